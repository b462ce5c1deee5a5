// How long it takes to find what would help among a table of foods. The user waits for it after
// each click on the sheet: 50 ms for 1,000 foods and 30 rows.

#include "Vorschlaege.h"

#include <benchmark/benchmark.h>

namespace {

/// A table of made-up foods of all groups, a plan of some of them, and a range for each value.
struct Erfundenes
{
    Zusatztabelle tabelle;
    Kandidaten kandidaten;
    Speisen plan;
    Zielbereiche ziele;
};

Erfundenes erfinde(std::int64_t foods, int zeilen)
{
    Erfundenes eines;
    const auto &gruppen = lebensmittelgruppen();
    for (std::int64_t i = 0; i < foods; ++i) {
        const QString name = QStringLiteral("Lebensmittel %1 (auch so genannt), gekocht").arg(i);
        Datenmodul satz;
        satz.setName(name);
        for (const Naehrwertbeschreibung &wert : naehrwerte) {
            const auto versatz = static_cast<std::int64_t>(stelle(wert.wert));
            satz.setWert(wert.wert, static_cast<float>((i * 7 + versatz * 3) % 23));
        }
        for (const Wertungsbeschreibung &wertung : wertungen) {
            satz.setWertung(wertung.wertung,
                            i % 3 == 0 ? QStringLiteral("-") : QStringLiteral("0"));
        }
        Zusatzwerte zusatz;
        zusatz.gruppe = &gruppen[static_cast<std::size_t>(i) % gruppen.size()];
        eines.tabelle.insert(name, zusatz);
        eines.kandidaten.append({name, satz, 100, QStringLiteral("1 Portion")});
        if (i < zeilen) {
            eines.plan.append({name, satz, 100, static_cast<int>(i)});
        }
    }
    // 30 rows of 100 g with 11 per 100 g come to about 330.
    for (const Naehrwertbeschreibung &wert : naehrwerte) {
        const bool zuViel = wert.wert == Naehrwert::na;
        eines.ziele.append({kenngroesse(wert.wert), zuViel ? std::nullopt : std::optional(400.0),
                            zuViel ? std::optional(200.0) : std::nullopt, 2000});
    }
    return eines;
}

void suche(benchmark::State &state, Kenngroesse ziel)
{
    const Erfundenes eines = erfinde(state.range(0), static_cast<int>(state.range(1)));
    const Stoffwissen wissen(eines.tabelle);
    const Vorschlagsgrundlage grundlage = {eines.plan, eines.ziele, wissen};
    const Vorschlagsbedingungen bedingungen = {.ohne = Weglassgruppe::Schwein};
    for (auto runde : state) {
        benchmark::DoNotOptimize(vorschlaege(grundlage, ziel, eines.kandidaten, bedingungen));
    }
}

/// Too little: each food might come in besides.
void suggestWhatComesIn(benchmark::State &state)
{
    suche(state, Kenngroesse::fe);
}
BENCHMARK(suggestWhatComesIn)->Args({1000, 30})->Args({1000, 300})->Unit(benchmark::kMillisecond);

/// Too much: each food might take the place of each row of its kind.
void suggestWhatTakesAPlace(benchmark::State &state)
{
    suche(state, Kenngroesse::na);
}
BENCHMARK(suggestWhatTakesAPlace)
    ->Args({1000, 30})
    ->Args({1000, 300})
    ->Unit(benchmark::kMillisecond);

/// The plan with each of the foods, summed anew for each range: what it would cost to try them all.
void baselineSumEachPlan(benchmark::State &state)
{
    const Erfundenes eines = erfinde(state.range(0), static_cast<int>(state.range(1)));
    const Stoffwissen wissen(eines.tabelle);
    for (auto runde : state) {
        double summe = 0;
        for (const Vorschlagskandidat &einer : eines.kandidaten) {
            Speisen plan = eines.plan;
            plan.append({einer.schluessel, einer.lebensmittel, einer.gramm});
            for (const Zielbereich &ziel : eines.ziele) {
                summe += abstand(ziel, summiere(plan, ziel.groesse, wissen).wert);
            }
        }
        benchmark::DoNotOptimize(summe);
    }
}
BENCHMARK(baselineSumEachPlan)->Args({1000, 30})->Unit(benchmark::kMillisecond);

} // namespace
