#include "Programmform.h"

#include "Csv.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <cmath>

namespace Programmform {

namespace {

/// In the order of `Naehrwert`.
constexpr std::array<const char *, anzahlNaehrwerte> naehrwertnamen = {
    "energy",    "protein",    "fat",        "carbohydrate", "fibre",     "cholesterol",
    "sodium",    "potassium",  "calcium",    "phosphate",    "magnesium", "iron",
    "vitamin_a", "vitamin_b1", "vitamin_b2", "vitamin_b6",   "vitamin_c",
};

/// In the order of `Wertung`.
constexpr std::array<const char *, anzahlWertungen> wertungsnamen = {"overweight", "diabetes",
                                                                     "gout", "cardiovascular"};

const QString wertfeld = QStringLiteral("value");

QJsonObject alsObjekt(const Posten &posten)
{
    QJsonObject objekt;
    for (const auto &[feld, wert] : posten.felder) {
        objekt.insert(feld, wert);
    }
    return objekt;
}

QJsonArray alsListe(const Abschnitt &abschnitt)
{
    QJsonArray liste;
    for (const Posten &posten : abschnitt.posten) {
        QJsonObject objekt = alsObjekt(posten);
        objekt.insert(abschnitt.namensfeld, posten.name);
        liste.append(objekt);
    }
    return liste;
}

QJsonObject nachNamen(const Abschnitt &abschnitt)
{
    QJsonObject alle;
    for (const Posten &posten : abschnitt.posten) {
        const bool nurWert =
            posten.felder.size() == 1 && posten.felder.constFirst().first == wertfeld;
        alle.insert(posten.name,
                    nurWert ? posten.felder.constFirst().second : QJsonValue(alsObjekt(posten)));
    }
    return alle;
}

Csv::Zelle alsZelle(const QJsonValue &wert)
{
    switch (wert.type()) {
    case QJsonValue::Bool:
        return wert.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QJsonValue::Double:
        return wert.toDouble();
    case QJsonValue::String:
        return wert.toString();
    default:
        return {};
    }
}

} // namespace

Posten einfach(const char *name, const QJsonValue &inhalt)
{
    return {QLatin1String(name), {{Feld::wert, inhalt}}};
}

QString kennung(Naehrwert wert)
{
    return QLatin1String(naehrwertnamen[stelle(wert)]);
}

QString kennung(Wertung wertung)
{
    return QLatin1String(wertungsnamen[stelle(wertung)]);
}

QJsonValue zahl(float wert)
{
    // Widened as it is, 0.3 would be printed as 0.30000001192092896.
    return std::isfinite(wert) ? QJsonValue(Csv::zahltext(wert, u'.').toDouble()) : QJsonValue();
}

QJsonValue zahl(double wert)
{
    return std::isfinite(wert) ? QJsonValue(wert) : QJsonValue();
}

QJsonValue text(const QString &wert)
{
    return wert.isNull() ? QJsonValue() : QJsonValue(wert);
}

QJsonValue urteil(std::optional<int> code)
{
    switch (code.value_or(Balkencode::unveraendert)) {
    case Balkencode::gruen:
        return QStringLiteral("good");
    case Balkencode::blau:
        return QStringLiteral("fair");
    case Balkencode::rot:
        return QStringLiteral("poor");
    default:
        return {};
    }
}

QJsonValue urteil(Ampel farbe)
{
    return urteil(farbe == Ampel::Gruen  ? Balkencode::gruen
                  : farbe == Ampel::Blau ? Balkencode::blau
                  : farbe == Ampel::Rot  ? Balkencode::rot
                                         : Balkencode::unveraendert);
}

QByteArray alsJson(const QList<Abschnitt> &abschnitte)
{
    QJsonObject alle;
    for (const Abschnitt &abschnitt : abschnitte) {
        alle.insert(abschnitt.name, abschnitt.namensfeld.isNull()
                                        ? QJsonValue(nachNamen(abschnitt))
                                        : QJsonValue(alsListe(abschnitt)));
    }
    return QJsonDocument(alle).toJson();
}

QByteArray alsCsv(const QList<Abschnitt> &abschnitte, const QStringList &spalten)
{
    Csv::Tabelle tabelle;
    tabelle.spalten = QStringList{QStringLiteral("section"), QStringLiteral("item")} + spalten;
    for (const Abschnitt &abschnitt : abschnitte) {
        for (const Posten &posten : abschnitt.posten) {
            QList<Csv::Zelle> zeile = {abschnitt.name, posten.name};
            const QJsonObject objekt = alsObjekt(posten);
            for (const QString &spalte : spalten) {
                zeile << alsZelle(objekt.value(spalte));
            }
            tabelle.zeilen << zeile;
        }
    }
    return Csv::schreiben(tabelle, Csv::formFuerProgramme());
}

} // namespace Programmform
