#include "Planpostentext.h"

#include "Lebensmitteltext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QString schluesselfeld = QStringLiteral("food");
const QString grammfeld = QStringLiteral("grams");

QJsonObject alsJson(const Planposten &posten)
{
    QJsonObject zeile{{schluesselfeld, posten.schluessel},
                      {grammfeld, Lebensmitteltext::alsJson(posten.gramm)}};
    if (posten.eintrag) {
        Lebensmitteltext::fuegeHinzu(zeile, *posten.eintrag);
    }
    return zeile;
}

std::optional<Planposten> postenAus(const QJsonObject &zeile)
{
    const std::optional<float> gramm = Lebensmitteltext::zahlAus(zeile.value(grammfeld));
    const QJsonValue schluessel = zeile.value(schluesselfeld);
    if (!gramm || !schluessel.isString()) {
        return std::nullopt;
    }
    Planposten posten{schluessel.toString(), *gramm, {}};
    if (Lebensmitteltext::enthaelt(zeile)) {
        posten.eintrag = Lebensmitteltext::lies(zeile, posten.schluessel);
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
