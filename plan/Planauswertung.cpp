#include "Planauswertung.h"

#include "Energieanteile.h"
#include "Ganzzahl.h"
#include "Planregeln.h"

#include <algorithm>

namespace {

using Zeilen = std::span<const Planzeile>;
using Summen = std::array<float, anzahlNaehrwerte>;

/// What a row adds to the total of a nutrient; for energy that is kcal.
float beitrag(const Planzeile &zeile, Naehrwert wert)
{
    if (zeile.lebensmittel == nullptr) {
        return 0.0F;
    }
    const Datenmodul &lebensmittel = *zeile.lebensmittel;
    const float je100Gramm =
        wert == Naehrwert::kal
            ? energieAusNaehrstoffen(lebensmittel.protein(), lebensmittel.kh(), lebensmittel.fett())
            : lebensmittel.wert(wert);
    return je100Gramm * zeile.menge / 100.0F;
}

/// Adds up one nutrient. The bar follows the running total; where that lies in no band, it keeps
/// what the rows before gave it.
Plannaehrwert summieren(const Planregel &regel, Zeilen zeilen, std::int32_t energiebedarf,
                        float &summe)
{
    Plannaehrwert ergebnis;
    for (const Planzeile &zeile : zeilen) {
        summe += beitrag(zeile, regel.wert);
        ergebnis.prozent = planprozent(regel.bezug, summe, energiebedarf);
        if (const auto code = letzteStufe(regel.baender, ergebnis.prozent)) {
            ergebnis.balken = Planbalken{*code, ganzzahl(ergebnis.prozent)};
        }
    }
    return ergebnis;
}

Planwertung wertungZaehlen(Wertung wertung, Zeilen zeilen)
{
    Planwertung ergebnis;
    for (const Planzeile &zeile : zeilen) {
        if (zeile.lebensmittel != nullptr) {
            zaehleWertung(ergebnis, zeile.lebensmittel->wertung(wertung));
        }
    }
    return ergebnis;
}

int punkteZaehlen(const Planauswertung &auswertung)
{
    const auto ausNaehrwerten =
        std::count_if(auswertung.naehrwerte.begin(), auswertung.naehrwerte.end(),
                      [](const Plannaehrwert &naehrwert) { return naehrwert.punkt; });
    const auto ausWertungen =
        std::count_if(auswertung.wertungen.begin(), auswertung.wertungen.end(),
                      [](const Planwertung &wertung) { return wertung.punkt; });
    return static_cast<int>(ausNaehrwerten + ausWertungen);
}

void energieanteileSetzen(Planauswertung &auswertung, const Summen &summen)
{
    const float energie = summen[stelle(Naehrwert::kal)];
    const auto anteil = [&summen, energie](Naehrwert wert, float kilokalorienJeGramm) {
        return energieanteil(summen[stelle(wert)], kilokalorienJeGramm, energie);
    };
    auswertung.proteinanteil = anteil(Naehrwert::protein, KilokalorienJeGramm::protein);
    auswertung.khanteil = anteil(Naehrwert::kh, KilokalorienJeGramm::kh);
    auswertung.fettanteil = anteil(Naehrwert::fett, KilokalorienJeGramm::fett);
}

} // namespace

Planauswertung planAuswerten(std::span<const Planzeile> zeilen, std::int32_t energiebedarf,
                             std::int32_t unbereinigt)
{
    Planauswertung auswertung;
    Summen summen = {};
    for (const Planregel &regel : planregeln) {
        const std::size_t i = stelle(regel.wert);
        Plannaehrwert &naehrwert = auswertung.naehrwerte[i];
        naehrwert = summieren(regel, zeilen, energiebedarf, summen[i]);
        naehrwert.summe = summen[i];
        naehrwert.punkt = regel.punkt.enthaelt(gezeigterProzentsatz(naehrwert.prozent));
    }
    for (const auto &zeile : wertungen) {
        auswertung.wertungen[stelle(zeile.wertung)] = wertungZaehlen(zeile.wertung, zeilen);
    }
    energieanteileSetzen(auswertung, summen);
    if (zeilen.empty()) {
        // The bars are emptied, but keep their colour.
        for (Plannaehrwert &naehrwert : auswertung.naehrwerte) {
            naehrwert.balken = Planbalken{};
        }
    } else {
        const float energie = summen[stelle(Naehrwert::kal)];
        auswertung.energie = {unbereinigt, ganzzahl(static_cast<double>(energie))};
    }
    auswertung.punkte = punkteZaehlen(auswertung);
    auswertung.gesicht = plangesicht(auswertung.punkte);
    return auswertung;
}

int plangesicht(int punkte)
{
    constexpr int mehrAlsFuerLachend = 16;
    constexpr int mindestensFuerNeutral = 9;
    if (punkte > mehrAlsFuerLachend) {
        return Gesichtscode::lachend;
    }
    return punkte >= mindestensFuerNeutral ? Gesichtscode::neutral : Gesichtscode::weinend;
}
