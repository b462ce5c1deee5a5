// How long a plan takes to evaluate. A plan is evaluated after every change of a row: 30 rows are
// to take less than a millisecond, 1,000 rows less than 30.

#include "Planauswertung.h"

#include <benchmark/benchmark.h>

#include <array>
#include <vector>

namespace {

constexpr std::size_t anzahlLebensmittel = 200;

std::vector<Datenmodul> lebensmittelMachen()
{
    static const std::array<QString, 3> zeichen = {QStringLiteral("+"), QStringLiteral("0"),
                                                   QStringLiteral("-")};
    std::vector<Datenmodul> lebensmittel(anzahlLebensmittel);
    for (std::size_t i = 0; i < lebensmittel.size(); ++i) {
        for (const auto &zeile : naehrwerte) {
            const std::size_t zahl = (i * 31 + stelle(zeile.wert) * 17) % 97;
            lebensmittel[i].setWert(zeile.wert, static_cast<float>(zahl) / 8.0F);
        }
        for (const auto &zeile : wertungen) {
            lebensmittel[i].setWertung(zeile.wertung, zeichen[(i + stelle(zeile.wertung)) % 3]);
        }
    }
    return lebensmittel;
}

std::vector<Planzeile> planMachen(const std::vector<Datenmodul> &lebensmittel, std::size_t anzahl)
{
    std::vector<Planzeile> zeilen(anzahl);
    for (std::size_t i = 0; i < anzahl; ++i) {
        zeilen[i] = {&lebensmittel[(i * 7) % anzahlLebensmittel],
                     static_cast<float>(20 + (i * 13) % 280)};
    }
    return zeilen;
}

void evaluateAPlan(benchmark::State &state)
{
    const std::vector<Datenmodul> lebensmittel = lebensmittelMachen();
    const std::vector<Planzeile> zeilen =
        planMachen(lebensmittel, static_cast<std::size_t>(state.range(0)));
    for (auto runde : state) {
        benchmark::DoNotOptimize(planAuswerten(zeilen, 2000, 2500));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(evaluateAPlan)->Arg(30)->Arg(1000)->Unit(benchmark::kMicrosecond);

/// The least that any evaluation must do: add up seventeen values of every row.
void baselineOnlyAddUp(benchmark::State &state)
{
    const std::vector<Datenmodul> lebensmittel = lebensmittelMachen();
    const std::vector<Planzeile> zeilen =
        planMachen(lebensmittel, static_cast<std::size_t>(state.range(0)));
    for (auto runde : state) {
        std::array<float, anzahlNaehrwerte> summen = {};
        for (const Planzeile &zeile : zeilen) {
            for (const auto &wert : naehrwerte) {
                summen[stelle(wert.wert)] +=
                    zeile.lebensmittel->wert(wert.wert) * zeile.menge / 100.0F;
            }
        }
        benchmark::DoNotOptimize(summen);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(baselineOnlyAddUp)->Arg(30)->Arg(1000)->Unit(benchmark::kMicrosecond);

} // namespace
