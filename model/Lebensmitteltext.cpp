#include "Lebensmitteltext.h"

#include <cmath>
#include <limits>

namespace Lebensmitteltext {

namespace {

const QString wertefeld = QStringLiteral("per100g");
const QString wertungsfeld = QStringLiteral("ratings");

const struct
{
    float zahl;
    QString wort;
} unzahlen[] = {
    {std::numeric_limits<float>::quiet_NaN(), QStringLiteral("nan")},
    {std::numeric_limits<float>::infinity(), QStringLiteral("inf")},
    {-std::numeric_limits<float>::infinity(), QStringLiteral("-inf")},
};

QJsonValue alsJson(const QString &text)
{
    return text.isNull() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
}

} // namespace

QJsonValue alsJson(float zahl)
{
    for (const auto &unzahl : unzahlen) {
        if (zahl == unzahl.zahl || (std::isnan(zahl) && std::isnan(unzahl.zahl))) {
            return unzahl.wort;
        }
    }
    return static_cast<double>(zahl);
}

std::optional<float> zahlAus(const QJsonValue &wert)
{
    for (const auto &unzahl : unzahlen) {
        if (wert == unzahl.wort) {
            return unzahl.zahl;
        }
    }
    return wert.isDouble() ? std::optional(static_cast<float>(wert.toDouble())) : std::nullopt;
}

void fuegeHinzu(QJsonObject &ziel, const Datenmodul &lebensmittel)
{
    QJsonObject werte;
    for (const Naehrwertbeschreibung &wert : naehrwerte) {
        werte.insert(QLatin1String(wert.kennung), alsJson(lebensmittel.wert(wert.wert)));
    }
    QJsonObject urteile;
    for (const Wertungsbeschreibung &wertung : wertungen) {
        urteile.insert(QLatin1String(wertung.kennung),
                       alsJson(lebensmittel.wertung(wertung.wertung)));
    }
    ziel.insert(wertefeld, werte);
    ziel.insert(wertungsfeld, urteile);
}

bool enthaelt(const QJsonObject &quelle)
{
    return quelle.contains(wertefeld);
}

std::optional<Datenmodul> lies(const QJsonObject &quelle, const QString &name)
{
    const QJsonObject werte = quelle.value(wertefeld).toObject();
    const QJsonObject urteile = quelle.value(wertungsfeld).toObject();
    Datenmodul lebensmittel;
    lebensmittel.setName(name);
    for (const Naehrwertbeschreibung &zeile : naehrwerte) {
        const std::optional<float> zahl = zahlAus(werte.value(QLatin1String(zeile.kennung)));
        if (!zahl) {
            return std::nullopt;
        }
        lebensmittel.setWert(zeile.wert, *zahl);
    }
    for (const Wertungsbeschreibung &zeile : wertungen) {
        lebensmittel.setWertung(zeile.wertung,
                                urteile.value(QLatin1String(zeile.kennung)).toString());
    }
    return lebensmittel;
}

} // namespace Lebensmitteltext
