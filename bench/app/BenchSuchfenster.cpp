// How long the two searches of the main window keep the user waiting, from Return to the last
// entry in the column. A search by name with direct take-over on puts the first food on display
// once for every food that does not match. Beside it, what the computations of as many selections
// take by themselves, and what finding the names takes.

#include "AppController.h"
#include "Archivdatei.h"
#include "Bedarfsbeurteilung.h"
#include "Einstellungen.h"
#include "Energieanteile.h"
#include "Erfundenes.h"
#include "Namenssuche.h"
#include "Relationen.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTemporaryDir>

namespace {

constexpr int eingebaut = 1016;
constexpr int viele = 100'000;

const QString jederName = QStringLiteral("MITTEL");
const QString jederSiebte = QStringLiteral("frucht 3");
const QString keinName = QStringLiteral("gibt es nicht");

Lebensmittelverzeichnis erfinde(int anzahl)
{
    Lebensmittelverzeichnis alle;
    for (int i = 0; i < anzahl; ++i) {
        const QString name = QStringLiteral("Lebensmittel Frucht %1, Sorte %2").arg(i % 7).arg(i);
        alle.insert(name, erfundenesLebensmittel(name, i));
    }
    return alle;
}

/// The main window over as many foods, shown.
class Fenster
{
public:
    explicit Fenster(std::int64_t anzahl)
        : m_einstellungen(m_heim.filePath(QStringLiteral("e.ini")), QSettings::IniFormat)
    {
        const QString tabelle = m_heim.filePath(QStringLiteral("DatabaseIII.daten"));
        Archivdatei::schreiben(tabelle, erfinde(static_cast<int>(anzahl)));
        m_controller = std::make_unique<AppController>(
            Tueren{.eingebauteTabelle = tabelle,
                   .datenordner = Datenordner(m_heim.path()),
                   .melde = [](QWidget *, const Meldung &) { return 0; },
                   .protokolliere = [](const QString &) {},
                   .einstellungen = &m_einstellungen});
        m_controller->awakeFromNib();
        m_controller->Hauptfenster->show();
        QApplication::processEvents();
    }
    AppController *operator->() const { return m_controller.get(); }

private:
    QTemporaryDir m_heim;
    Einstellungen m_einstellungen;
    std::unique_ptr<AppController> m_controller;
};

void sucheNamen(benchmark::State &state, const QString &text, bool uebernahme)
{
    const Fenster fenster(state.range(0));
    fenster->direkteuebernahme->setChecked(uebernahme);
    fenster->suchfeld->setStringValue(text);
    for (auto _ : state) {
        fenster->suchen(*fenster->suchfeld);
        state.PauseTiming();
        QApplication::processEvents();
        state.ResumeTiming();
    }
    state.SetComplexityN(state.range(0));
    state.counters["found"] = static_cast<double>(fenster->suchArray.size() - 1);
}

/// The same with all that follows until the window is painted.
void sucheNamenBisZumBild(benchmark::State &state, const QString &text)
{
    const Fenster fenster(state.range(0));
    fenster->suchfeld->setStringValue(text);
    for (auto _ : state) {
        fenster->suchen(*fenster->suchfeld);
        QApplication::processEvents();
    }
}

void sucheProfil(benchmark::State &state, float protein)
{
    const Fenster fenster(state.range(0));
    fenster->suchprofileinaus->waehle(0);
    fenster->proteineingabe->setFloatValue(protein);
    for (auto _ : state) {
        fenster->proteinsuche();
        state.PauseTiming();
        QApplication::processEvents();
        state.ResumeTiming();
    }
    state.SetComplexityN(state.range(0));
    state.counters["found"] = static_cast<double>(fenster->suchArray.size());
}

void grundlinieRechnen(benchmark::State &state)
{
    const Lebensmittelverzeichnis eines = erfinde(1);
    for (auto _ : state) {
        for (std::int64_t i = 0; i < state.range(0); ++i) {
            const Naehrwertreihe werte = skalieren(*eines.begin(), 100);
            benchmark::DoNotOptimize(energieanteile(werte[1], werte[3], werte[2]));
            benchmark::DoNotOptimize(bedarfBeurteilen(werte));
            benchmark::DoNotOptimize(relationenRechnen(werte));
        }
    }
}

void grundlinieFinden(benchmark::State &state, const QString &text)
{
    const QStringList namen = erfinde(static_cast<int>(state.range(0))).keys();
    for (auto _ : state) {
        benchmark::DoNotOptimize(namenSuchen({}, namen, namen, text));
    }
}

void gerade(benchmark::internal::Benchmark *bank)
{
    for (const int anzahl :
         {eingebaut / 4, eingebaut / 2, eingebaut, eingebaut * 2, eingebaut * 4}) {
        bank->Arg(anzahl);
    }
    bank->Complexity(benchmark::oN);
}

} // namespace

BENCHMARK(grundlinieRechnen)->Arg(eingebaut)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(grundlinieFinden, keinen, keinName)->Arg(viele)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(grundlinieFinden, alle, jederName)->Arg(viele)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(sucheNamen, keinenMitUebernahme, keinName, true)
    ->Apply(gerade)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(sucheNamen, jedenSiebtenMitUebernahme, jederSiebte, true)
    ->Arg(eingebaut)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(sucheNamenBisZumBild, jedenSiebtenMitUebernahme, jederSiebte)
    ->Arg(eingebaut)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(sucheNamen, keinen, keinName, false)->Arg(viele)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(sucheNamen, jedenSiebten, jederSiebte, false)
    ->Arg(viele)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(sucheNamen, alle, jederName, false)
    ->RangeMultiplier(4)
    ->Range(viele / 16, viele)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(sucheProfil, keinen, 1000.0F)->Arg(viele)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(sucheProfil, alle, -1.0F)->Arg(viele)->Unit(benchmark::kMillisecond);
