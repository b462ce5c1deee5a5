// How long the ranks take to be worked out anew, which happens with every letter that is typed into
// a range. They should be there with the next frame, within 16 ms.

#include "../Erfundenes.h"
#include "Rangliste.h"

#include <benchmark/benchmark.h>

#include <algorithm>

namespace {

struct Vorrat
{
    QList<Kandidat> kandidaten;
    Stoffwissen wissen;
};

/// Every third food is in the group that is asked for, and of every fifth the iron is unknown.
Vorrat vorratMachen(std::int64_t anzahl)
{
    Vorrat vorrat;
    Zusatztabelle tabelle;
    const auto &gruppen = lebensmittelgruppen();
    for (std::int64_t i = 0; i < anzahl; ++i) {
        const QString name = QStringLiteral("Lebensmittel %1, gekocht, ohne Schale").arg(i);
        vorrat.kandidaten.append({.schluessel = name,
                                  .satz = erfundenesLebensmittel(name, static_cast<int>(i)),
                                  .portion = 100});
        Zusatzwerte &zusatz = tabelle[name];
        zusatz.gruppe = &gruppen[static_cast<std::size_t>(i % 3)];
        zusatz.unbestimmt[stelle(Naehrwert::fe)] = i % 5 == 0;
    }
    vorrat.wissen = Stoffwissen(tabelle);
    return vorrat;
}

void rankWithThreeRanges(benchmark::State &state)
{
    const Vorrat vorrat = vorratMachen(state.range(0));
    const Rangfrage frage = {
        .groesse = Kenngroesse::bs,
        .bezug = Bezug::Je100kcal,
        .bereiche = {{.groesse = Kenngroesse::kal, .bis = 50},
                     {.groesse = Kenngroesse::fe, .von = 3, .bis = 55},
                     {.groesse = Kenngroesse::salz, .bezug = Bezug::JePortion, .bis = 1}}};
    for (auto runde : state) {
        benchmark::DoNotOptimize(rangliste(vorrat.kandidaten, frage, vorrat.wissen));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(rankWithThreeRanges)->Arg(1100)->Arg(100'000)->Unit(benchmark::kMicrosecond);

/// The same foods sorted by one value of their records, and nothing else.
void baselineSort(benchmark::State &state)
{
    const Vorrat vorrat = vorratMachen(state.range(0));
    for (auto runde : state) {
        QList<qsizetype> stellen;
        for (qsizetype i = 0; i < vorrat.kandidaten.size(); ++i) {
            stellen << i;
        }
        std::ranges::stable_sort(stellen, [&vorrat](qsizetype a, qsizetype b) {
            return vorrat.kandidaten[a].satz.bs() > vorrat.kandidaten[b].satz.bs();
        });
        benchmark::DoNotOptimize(stellen);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(baselineSort)->Arg(1100)->Arg(100'000)->Unit(benchmark::kMicrosecond);

/// Once for every time that the window is opened.
void sortByName(benchmark::State &state)
{
    const Vorrat vorrat = vorratMachen(state.range(0));
    for (auto runde : state) {
        benchmark::DoNotOptimize(nachNamen(vorrat.kandidaten, QLocale(QLocale::German)));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(sortByName)->Arg(1100)->Unit(benchmark::kMicrosecond);

} // namespace
