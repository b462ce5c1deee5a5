#include "Klientenuebergabe.h"

#include "Planpostentext.h"
#include "Satzspalten.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QString artfeld = QStringLiteral("format");
const QString art = QStringLiteral("Mahlberg client");
const QString formfeld = QStringLiteral("version");
constexpr int form = 1;

const QString personenfeld = QStringLiteral("person");
const QString besuchsfeld = QStringLiteral("besuche");
const QString planfeld = QStringLiteral("plaene");
const QString postenfeld = QStringLiteral("posten");
const QString kennungsfeld = QStringLiteral("kennung");
const QString fassungsfeld = QStringLiteral("fassung");

/// A field of a record; the rows of a plan are JSON already.
QJsonValue feldAlsJson(const QString &name, const QVariant &wert)
{
    if (name == postenfeld) {
        return QJsonDocument::fromJson(wert.toString().toUtf8()).array();
    }
    return wert.isNull() ? QJsonValue(QJsonValue::Null) : QJsonValue::fromVariant(wert);
}

QVariant feldAusJson(const QString &name, const QJsonValue &wert)
{
    if (name == postenfeld) {
        return QString::fromUtf8(QJsonDocument(wert.toArray()).toJson(QJsonDocument::Compact));
    }
    return wert.isNull() || wert.isUndefined() ? QVariant() : wert.toVariant();
}

template <typename Satz>
QJsonObject alsJson(const Satz &satz)
{
    QJsonObject felder{{kennungsfeld, satz.kennung}, {fassungsfeld, satz.fassung}};
    for (const Satzspalte<Satz> &spalte : spalten<Satz>()) {
        const QString name = QLatin1String(spalte.name);
        felder.insert(name, feldAlsJson(name, spalte.lies(satz)));
    }
    return felder;
}

template <typename Satz>
QJsonArray alsJson(const QList<Satz> &saetze)
{
    QJsonArray alle;
    for (const Satz &satz : saetze) {
        alle.append(alsJson(satz));
    }
    return alle;
}

/// Reads a record. The name of the field that can't be read is put behind `stelle`; it stays empty
/// when all is well.
template <typename Satz>
Satz satzAus(const QJsonValue &wert, QString &stelle)
{
    const QJsonObject felder = wert.toObject();
    Satz satz;
    satz.kennung = felder.value(kennungsfeld).toString();
    satz.fassung = felder.value(fassungsfeld).toInt();
    if (satz.kennung.isEmpty() || satz.fassung < 1) {
        stelle = satz.kennung.isEmpty() ? kennungsfeld : fassungsfeld;
        return satz;
    }
    for (const Satzspalte<Satz> &spalte : spalten<Satz>()) {
        const QString name = QLatin1String(spalte.name);
        if (!spalte.setze(satz, feldAusJson(name, felder.value(name)))) {
            stelle = name;
            return satz;
        }
    }
    return satz;
}

template <typename Satz>
QList<Satz> saetzeAus(const QJsonObject &alles, const QString &feld, QString &stelle)
{
    const QJsonArray werte = alles.value(feld).toArray();
    QList<Satz> saetze;
    for (const auto &wert : werte) {
        QString mangel;
        saetze << satzAus<Satz>(wert, mangel);
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
    akte.person = satzAus<Person>(alles.value(personenfeld), stelle);
    if (!stelle.isEmpty()) {
        return {Zustand::Beschaedigt, {}, personenfeld + QLatin1Char('.') + stelle};
    }
    akte.besuche = saetzeAus<Besuch>(alles, besuchsfeld, stelle);
    if (stelle.isEmpty()) {
        akte.plaene = saetzeAus<Planablage>(alles, planfeld, stelle);
    }
    return stelle.isEmpty() ? Uebergabe{Zustand::Gelesen, akte}
                            : Uebergabe{Zustand::Beschaedigt, {}, stelle};
}
