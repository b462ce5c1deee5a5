// How long the two searches take over a table of foods. The user waits for them.

#include "Namenssuche.h"
#include "Profilsuche.h"

#include <benchmark/benchmark.h>

namespace {

QStringList namenMachen(std::int64_t anzahl)
{
    QStringList namen;
    namen.reserve(static_cast<qsizetype>(anzahl));
    for (std::int64_t i = 0; i < anzahl; ++i) {
        namen.append(QStringLiteral("Lebensmittel %1, gekocht, ohne Schale").arg(i));
    }
    return namen;
}

void searchByName(benchmark::State &state)
{
    const QStringList namen = namenMachen(state.range(0));
    for (auto runde : state) {
        benchmark::DoNotOptimize(namenSuchen({}, namen, namen, QStringLiteral("TTEL 77")));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(searchByName)->Arg(1016)->Arg(100'000)->Unit(benchmark::kMicrosecond);

/// The same text looked for in each name by itself.
void baselineContains(benchmark::State &state)
{
    const QStringList namen = namenMachen(state.range(0));
    const auto text = QStringLiteral("TTEL 77");
    for (auto runde : state) {
        QList<Suchtreffer> treffer;
        for (const QString &name : namen) {
            if (name.contains(text, Qt::CaseInsensitive)) {
                treffer.append({name, name});
            }
        }
        benchmark::DoNotOptimize(treffer);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(baselineContains)->Arg(1016)->Arg(100'000)->Unit(benchmark::kMicrosecond);

void searchByProfile(benchmark::State &state)
{
    const QStringList namen = namenMachen(state.range(0));
    Lebensmittelverzeichnis foods;
    float zahl = 0.0F;
    for (const QString &name : namen) {
        Datenmodul &food = foods[name];
        food.setprotein(zahl);
        food.setuebergewicht(QStringLiteral("+"));
        zahl = zahl < 40.0F ? zahl + 0.5F : 0.0F;
    }
    Profil profil;
    profil.protein = Zahlkriterium{QStringLiteral(">"), 30.0F};
    profil.wertungen[stelle(Wertung::uebergewicht)] = QStringLiteral("+");
    const Lebensmittelverzeichnis keine;
    for (auto runde : state) {
        benchmark::DoNotOptimize(profilSuchen({keine, {}}, {foods, namen}, profil));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(searchByProfile)->Arg(1016)->Arg(100'000)->Unit(benchmark::kMicrosecond);

} // namespace
