// Putting the names of a store in order, as large as the built-in table and of 100,000 foods.
// Beside it: Qt's plain sorting of the same names by their code.

#include "Lebensmittelbestand.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>

namespace {

constexpr int eingebaut = 1016;
constexpr int viele = 100'000;

const QLocale deutsch(QLocale::German, QLocale::Germany);

QStringList erfinde(int anzahl)
{
    QStringList namen;
    for (int i = 0; i < anzahl; ++i) {
        namen += QStringLiteral("%1 Äpfel und Öl, gekocht").arg(i, 6, 36, QLatin1Char('a'));
    }
    std::shuffle(namen.begin(), namen.end(), std::mt19937(1));
    return namen;
}

void sortiertEinfach(benchmark::State &state)
{
    const QStringList namen = erfinde(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        QStringList kopie = namen;
        kopie.sort();
        benchmark::DoNotOptimize(kopie);
    }
}

void eigene(benchmark::State &state)
{
    const QStringList namen = erfinde(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(sortiertNachName(namen));
    }
}

void eingebaute(benchmark::State &state)
{
    const QStringList namen = erfinde(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(sortiertNachUebersetzung(namen, deutsch));
    }
}

} // namespace

BENCHMARK(sortiertEinfach)->Arg(eingebaut)->Arg(viele)->Unit(benchmark::kMillisecond);
BENCHMARK(eigene)->Arg(eingebaut)->Arg(viele)->Unit(benchmark::kMillisecond);
BENCHMARK(eingebaute)->Arg(eingebaut)->Arg(viele)->Unit(benchmark::kMillisecond);
