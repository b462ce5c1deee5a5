#include "Planpostentext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <limits>

namespace {

const QString schluesselfeld = QStringLiteral("food");
const QString grammfeld = QStringLiteral("grams");
const QString wertefeld = QStringLiteral("per100g");
const QString wertungsfeld = QStringLiteral("ratings");

/// JSON has no signs for what is no number and for what is beyond all numbers; an own food can hold
/// either.
const struct
{
    float zahl;
    QString wort;
} unzahlen[] = {
    {std::numeric_limits<float>::quiet_NaN(), QStringLiteral("nan")},
    {std::numeric_limits<float>::infinity(), QStringLiteral("inf")},
    {-std::numeric_limits<float>::infinity(), QStringLiteral("-inf")},
};

QJsonValue alsJson(float zahl)
{
    for (const auto &unzahl : unzahlen) {
        if (zahl == unzahl.zahl || (std::isnan(zahl) && std::isnan(unzahl.zahl))) {
            return unzahl.wort;
        }
    }
    return static_cast<double>(zahl);
}

QJsonValue alsJson(const QString &text)
{
    return text.isNull() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
}

QJsonObject alsJson(const Planposten &posten)
{
    QJsonObject zeile{{schluesselfeld, posten.schluessel}, {grammfeld, alsJson(posten.gramm)}};
    if (posten.eintrag) {
        QJsonObject werte;
        for (const Naehrwertbeschreibung &wert : naehrwerte) {
            werte.insert(QLatin1String(wert.kennung), alsJson(posten.eintrag->wert(wert.wert)));
        }
        QJsonObject urteile;
        for (const Wertungsbeschreibung &wertung : wertungen) {
            urteile.insert(QLatin1String(wertung.kennung),
                           alsJson(posten.eintrag->wertung(wertung.wertung)));
        }
        zeile.insert(wertefeld, werte);
        zeile.insert(wertungsfeld, urteile);
    }
    return zeile;
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

std::optional<Datenmodul> eintragAus(const QString &schluessel, const QJsonObject &werte,
                                     const QJsonObject &urteile)
{
    Datenmodul eintrag;
    eintrag.setName(schluessel);
    for (const Naehrwertbeschreibung &zeile : naehrwerte) {
        const std::optional<float> zahl = zahlAus(werte.value(QLatin1String(zeile.kennung)));
        if (!zahl) {
            return std::nullopt;
        }
        eintrag.setWert(zeile.wert, *zahl);
    }
    for (const Wertungsbeschreibung &zeile : wertungen) {
        eintrag.setWertung(zeile.wertung, urteile.value(QLatin1String(zeile.kennung)).toString());
    }
    return eintrag;
}

std::optional<Planposten> postenAus(const QJsonObject &zeile)
{
    const std::optional<float> gramm = zahlAus(zeile.value(grammfeld));
    const QJsonValue schluessel = zeile.value(schluesselfeld);
    if (!gramm || !schluessel.isString()) {
        return std::nullopt;
    }
    Planposten posten{schluessel.toString(), *gramm, {}};
    if (zeile.contains(wertefeld)) {
        posten.eintrag = eintragAus(posten.schluessel, zeile.value(wertefeld).toObject(),
                                    zeile.value(wertungsfeld).toObject());
        if (!posten.eintrag) {
            return std::nullopt;
        }
    }
    return posten;
}

} // namespace

QByteArray postenAlsText(const QList<Planposten> &posten)
{
    QJsonArray zeilen;
    for (const Planposten &zeile : posten) {
        zeilen.append(alsJson(zeile));
    }
    return QJsonDocument(zeilen).toJson(QJsonDocument::Compact);
}

std::optional<QList<Planposten>> postenAusText(const QByteArray &text)
{
    const QJsonDocument dokument = QJsonDocument::fromJson(text);
    if (!dokument.isArray()) {
        return std::nullopt;
    }
    const QJsonArray zeilen = dokument.array();
    QList<Planposten> posten;
    for (const auto &zeile : zeilen) {
        const std::optional<Planposten> eine = postenAus(zeile.toObject());
        if (!eine) {
            return std::nullopt;
        }
        posten << *eine;
    }
    return posten;
}
