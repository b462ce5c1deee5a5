#include "Tagebuchdatei.h"

#include "Aufzeichnungstext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <utility>

namespace {

const QString artfeld = QStringLiteral("format");
const QString art = QStringLiteral("Mahlberg diary");
const QString formfeld = QStringLiteral("version");
constexpr int form = 1;
const QString listenfeld = QStringLiteral("records");
const QString kennungsfeld = QStringLiteral("key");
const QString inhaltsfeld = QStringLiteral("record");

using Verstaendnis = Merkdatei::Verstaendnis;

/// A record with its key; absent when it can't be understood.
std::optional<Aufzeichnung> liesEine(const QJsonObject &eintrag)
{
    const QJsonObject inhalt = eintrag.value(inhaltsfeld).toObject();
    const Aufzeichnungslesung lesung =
        leseAufzeichnung(QJsonDocument(inhalt).toJson(QJsonDocument::Compact));
    Aufzeichnung aufzeichnung = lesung.aufzeichnung;
    aufzeichnung.kennung = eintrag.value(kennungsfeld).toString();
    const bool gelesen = !aufzeichnung.tage.isEmpty() && !aufzeichnung.kennung.isEmpty();
    return gelesen ? std::optional(aufzeichnung) : std::nullopt;
}

Verstaendnis deute(const QByteArray &bytes, QList<Aufzeichnung> &aufzeichnungen)
{
    const QJsonObject alles = QJsonDocument::fromJson(bytes).object();
    const int fassung = alles.value(formfeld).toInt();
    if (alles.value(artfeld) != art || fassung < 1) {
        return Verstaendnis::Teilweise;
    }
    const QJsonArray eintraege = alles.value(listenfeld).toArray();
    for (const auto &eintrag : eintraege) {
        if (const std::optional<Aufzeichnung> eine = liesEine(eintrag.toObject())) {
            aufzeichnungen << *eine;
        }
    }
    return fassung > form                              ? Verstaendnis::Neuer
           : aufzeichnungen.size() == eintraege.size() ? Verstaendnis::Ganz
                                                       : Verstaendnis::Teilweise;
}

} // namespace

Tagebuchdatei::Tagebuchdatei(QString path) : m_datei(std::move(path), Merkdatei::Tageskopien::Zehn)
{
}

QList<Aufzeichnung> Tagebuchdatei::lies(const QDateTime &jetzt)
{
    QList<Aufzeichnung> aufzeichnungen;
    m_datei.lies([&](const QByteArray &bytes) { return deute(bytes, aufzeichnungen); }, jetzt);
    return aufzeichnungen;
}

bool Tagebuchdatei::schreibe(const QList<Aufzeichnung> &aufzeichnungen)
{
    if (aufzeichnungen.isEmpty()) {
        return m_datei.schreibe({});
    }
    QJsonArray eintraege;
    for (const Aufzeichnung &eine : aufzeichnungen) {
        eintraege.append(
            QJsonObject{{kennungsfeld, eine.kennung},
                        {inhaltsfeld, QJsonDocument::fromJson(alsText(eine)).object()}});
    }
    return m_datei.schreibe(
        QJsonDocument(QJsonObject{{artfeld, art}, {formfeld, form}, {listenfeld, eintraege}})
            .toJson());
}
