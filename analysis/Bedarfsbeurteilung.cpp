#include "Bedarfsbeurteilung.h"

#include "Ganzzahl.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr std::int32_t grenzeSchlecht = 10; // percent of the day in 100 kcal
constexpr std::int32_t grenzeGut = 45;
constexpr int mindestensVorhanden = 7;
constexpr std::int64_t teilerVitaminA = 1000; // vitamin A enters the sum so reduced

using Zeilen = std::array<Bedarfszeile, tagesbedarfe.size()>;

Zeilen zeilenBeurteilen(const Naehrwertreihe &anzeige)
{
    Zeilen zeilen;
    Ampel farbe = Ampel::Rot;
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        const Tagesbedarf &bedarf = tagesbedarfe[i];
        const std::int32_t prozent = ganzzahl(bedarfsprozent(anzeige[stelle(bedarf.wert)], bedarf));
        const bool genauGenug = bedarf.wert == Naehrwert::ca && prozent == bedarfsgrenze;
        if (prozent < bedarfsgrenze) {
            farbe = Ampel::Rot;
        } else if (prozent > bedarfsgrenze || genauGenug) {
            farbe = Ampel::Gruen;
        }
        zeilen[i] = {bedarf.wert, prozent, farbe};
    }
    return zeilen;
}

/// The sum of the percentages per 100 kcal; absent when there is less energy than that.
std::optional<std::int32_t> mittlereDeckung(const Zeilen &zeilen, float kilokalorien)
{
    const std::int32_t hunderter = ganzzahl(static_cast<double>(kilokalorien / 100.0F));
    if (hunderter == 0) {
        return std::nullopt;
    }
    std::int64_t summe = 0;
    for (const Bedarfszeile &zeile : zeilen) {
        const std::int64_t prozent = zeile.prozent;
        summe += zeile.wert == Naehrwert::vita ? prozent / teilerVitaminA : prozent;
    }
    return ganzzahl(summe / hunderter);
}

/// At exactly 45 the number takes the colour of the last row and the bar keeps its own.
Gesamtbeurteilung gesamtBeurteilen(std::int32_t wert, Ampel farbeLetzteZeile)
{
    if (wert < grenzeSchlecht) {
        return {wert, Ampel::Rot, Balkencode::rot};
    }
    if (wert < grenzeGut) {
        return {wert, Ampel::Blau, Balkencode::blau};
    }
    if (wert > grenzeGut) {
        return {wert, Ampel::Gruen, Balkencode::gruen};
    }
    return {wert, farbeLetzteZeile, Balkencode::unveraendert};
}

/// The middle judgement has a title of two blanks, the outer ones have three; at exactly 45 the
/// title stays.
std::optional<QString> boxtitel(int balkencode)
{
    switch (balkencode) {
    case Balkencode::rot:
    case Balkencode::gruen:
        return QStringLiteral("   ");
    case Balkencode::blau:
        return QStringLiteral("  ");
    default:
        return std::nullopt;
    }
}

} // namespace

Bedarfsbeurteilung bedarfBeurteilen(const Naehrwertreihe &anzeige)
{
    Bedarfsbeurteilung ergebnis;
    ergebnis.zeilen = zeilenBeurteilen(anzeige);
    ergebnis.vorhanden = static_cast<int>(
        std::count_if(ergebnis.zeilen.begin(), ergebnis.zeilen.end(),
                      [](const Bedarfszeile &zeile) { return zeile.prozent > 0; }));
    if (ergebnis.vorhanden < mindestensVorhanden) {
        ergebnis.boxtitel =
            QString::fromUtf8(QT_TRANSLATE_NOOP("Mahlberg", "keine Beurteilung möglich"));
        return ergebnis;
    }
    const std::optional<std::int32_t> deckung =
        mittlereDeckung(ergebnis.zeilen, anzeige[stelle(Naehrwert::kal)]);
    const std::int32_t wert = deckung.value_or(0);
    ergebnis.gesamt = gesamtBeurteilen(wert, ergebnis.zeilen.back().farbe);
    ergebnis.gesamt->zuWenigEnergie = !deckung.has_value();
    ergebnis.boxtitel = boxtitel(ergebnis.gesamt->balkencode);
    ergebnis.balkenlaenge = wert;
    return ergebnis;
}
