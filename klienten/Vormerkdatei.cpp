#include "Vormerkdatei.h"

#include "Satztext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <tuple>
#include <utility>

namespace {

const QString artfeld = QStringLiteral("format");
const QString art = QStringLiteral("Mahlberg waiting");
const QString formfeld = QStringLiteral("version");
constexpr int form = 1;

const QString wunschfeld = QStringLiteral("waiting");
const QString personenfeld = QStringLiteral("person");
const QString satzartfeld = QStringLiteral("kind");
const QString neufeld = QStringLiteral("new");
const QString altfeld = QStringLiteral("old");

/// What only waits may never have been written.
constexpr int mindestfassung = 0;

/// How the kinds of records are called, in their order.
constexpr std::array<const char *, std::variant_size_v<Satz>> satzarten = {"person", "visit",
                                                                           "plan", "days"};

QJsonObject satzAlsJson(const Satz &satz)
{
    return std::visit([](const auto &einer) { return alsJson(einer); }, satz);
}

QJsonObject wunschAlsJson(const Schreibwunsch &wunsch)
{
    QJsonObject eintrag{
        {personenfeld, wunsch.person},
        {satzartfeld, QLatin1String(satzarten.at(wunsch.neu.index()))},
        {neufeld, satzAlsJson(wunsch.neu)},
    };
    if (wunsch.alt) {
        eintrag.insert(altfeld, satzAlsJson(*wunsch.alt));
    }
    return eintrag;
}

/// A wish for a record of this kind; absent when it is none.
template <typename Art>
std::optional<Schreibwunsch> wunschAus(const QJsonObject &eintrag)
{
    QString mangel;
    Schreibwunsch wunsch{eintrag.value(personenfeld).toString(),
                         satzAus<Art>(eintrag.value(neufeld), mindestfassung, mangel)};
    if (eintrag.contains(altfeld)) {
        wunsch.alt = satzAus<Art>(eintrag.value(altfeld), mindestfassung, mangel);
    }
    return mangel.isEmpty() && !wunsch.person.isEmpty() ? std::optional(wunsch) : std::nullopt;
}

std::optional<Schreibwunsch> leseWunsch(const QJsonObject &eintrag)
{
    const QString satzart = eintrag.value(satzartfeld).toString();
    if (satzart == QLatin1String(satzarten[0])) {
        return wunschAus<Person>(eintrag);
    }
    if (satzart == QLatin1String(satzarten[1])) {
        return wunschAus<Besuch>(eintrag);
    }
    if (satzart == QLatin1String(satzarten[2])) {
        return wunschAus<Planablage>(eintrag);
    }
    return satzart == QLatin1String(satzarten[3]) ? wunschAus<Aufzeichnung>(eintrag) : std::nullopt;
}

/// What the text says, and whether all of it was understood.
std::pair<QList<Schreibwunsch>, bool> deute(const QByteArray &text)
{
    const QJsonObject alles = QJsonDocument::fromJson(text).object();
    if (alles.value(artfeld) != art || alles.value(formfeld).toInt() != form) {
        return {{}, false};
    }
    QList<Schreibwunsch> wuensche;
    const QJsonArray eintraege = alles.value(wunschfeld).toArray();
    for (const auto &eintrag : eintraege) {
        if (const std::optional<Schreibwunsch> wunsch = leseWunsch(eintrag.toObject())) {
            wuensche << *wunsch;
        }
    }
    return {wuensche, wuensche.size() == eintraege.size()};
}

QByteArray alsText(const QList<Schreibwunsch> &wuensche)
{
    QJsonArray eintraege;
    for (const Schreibwunsch &wunsch : wuensche) {
        eintraege.append(wunschAlsJson(wunsch));
    }
    return QJsonDocument(QJsonObject{{artfeld, art}, {formfeld, form}, {wunschfeld, eintraege}})
        .toJson();
}

} // namespace

QList<Schreibwunsch> Vormerkdatei::lies(const QDateTime &jetzt)
{
    QList<Schreibwunsch> wuensche;
    m_datei.lies(
        [&wuensche](const QByteArray &bytes) {
            bool alle = false;
            std::tie(wuensche, alle) = deute(bytes);
            return alle ? Merkdatei::Verstaendnis::Ganz : Merkdatei::Verstaendnis::Teilweise;
        },
        jetzt);
    return wuensche;
}

bool Vormerkdatei::schreibe(const QList<Schreibwunsch> &wuensche)
{
    return m_datei.schreibe(wuensche.isEmpty() ? QByteArray() : alsText(wuensche));
}
