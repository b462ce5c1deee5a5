#include "Klientenuebergabe.h"

#include "Satztext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QString artfeld = QStringLiteral("format");
const QString art = QStringLiteral("Mahlberg client");
const QString formfeld = QStringLiteral("version");
constexpr int form = 2; // 1 knew no records of days

const QString personenfeld = QStringLiteral("person");
const QString besuchsfeld = QStringLiteral("besuche");
const QString planfeld = QStringLiteral("plaene");
const QString aufzeichnungsfeld = QStringLiteral("aufzeichnungen");
/// Whoever goes from one desk to another was kept at least once.
constexpr int mindestfassung = 1;

template <typename Satz>
QJsonArray alsJson(const QList<Satz> &saetze)
{
    QJsonArray alle;
    for (const Satz &satz : saetze) {
        alle.append(alsJson(satz));
    }
    return alle;
}

template <typename Satz>
QList<Satz> saetzeAus(const QJsonObject &alles, const QString &feld, QString &stelle)
{
    const QJsonArray werte = alles.value(feld).toArray();
    QList<Satz> saetze;
    for (const auto &wert : werte) {
        QString mangel;
        saetze << satzAus<Satz>(wert, mindestfassung, mangel);
        if (!mangel.isEmpty()) {
            stelle = QStringLiteral("%1[%2].%3").arg(feld).arg(saetze.size() - 1).arg(mangel);
            break;
        }
    }
    return saetze;
}

} // namespace

QByteArray akteAlsText(const Klientenakte &akte)
{
    const QJsonObject alles{
        {artfeld, art},
        {formfeld, form},
        {personenfeld, alsJson(akte.person)},
        {besuchsfeld, alsJson(akte.besuche)},
        {planfeld, alsJson(akte.plaene)},
        {aufzeichnungsfeld, alsJson(akte.aufzeichnungen)},
    };
    return QJsonDocument(alles).toJson();
}

Uebergabe leseAkte(const QByteArray &text)
{
    using Zustand = Uebergabe::Zustand;
    const QJsonObject alles = QJsonDocument::fromJson(text).object();
    if (alles.value(artfeld) != art) {
        return {Zustand::Fremd};
    }
    if (alles.value(formfeld).toInt() > form) {
        return {Zustand::Neuer};
    }
    QString stelle;
    Klientenakte akte;
    akte.person = satzAus<Person>(alles.value(personenfeld), mindestfassung, stelle);
    if (!stelle.isEmpty()) {
        return {Zustand::Beschaedigt, {}, personenfeld + QLatin1Char('.') + stelle};
    }
    akte.besuche = saetzeAus<Besuch>(alles, besuchsfeld, stelle);
    if (stelle.isEmpty()) {
        akte.plaene = saetzeAus<Planablage>(alles, planfeld, stelle);
    }
    if (stelle.isEmpty()) {
        akte.aufzeichnungen = saetzeAus<Aufzeichnung>(alles, aufzeichnungsfeld, stelle);
    }
    return stelle.isEmpty() ? Uebergabe{Zustand::Gelesen, akte}
                            : Uebergabe{Zustand::Beschaedigt, {}, stelle};
}
