// Which foods give how much of something: in a plan of 30 rows, and in the largest record that a
// dietitian keeps, 14 days of 6 meals with 12 foods each, 300 different ones. From the question to
// the finished picture, beside a plain table of as many foods that is filled anew and painted, in
// the same run.

#include "Beitragsblatt.h"
#include "Erfundenes.h"

#include <QApplication>
#include <QHeaderView>
#include <QStandardItemModel>
#include <QTableView>

#include <benchmark/benchmark.h>

namespace {

/// How many rows, and of how many foods.
struct Umfang
{
    int zeilen;
    int speisen;
};
constexpr Umfang plan = {30, 30};
constexpr Umfang zweiWochen = {14 * 6 * 12, 300};
constexpr QSize fenstergroesse(480, 600);

Einblickstand voller(const Umfang &umfang)
{
    Einblickstand stand;
    stand.gegenstand = Gegenstand::Mittel;
    for (int i = 0; i < umfang.zeilen; ++i) {
        const int nummer = i % umfang.speisen;
        const QString name = QStringLiteral("Lebensmittel %1").arg(nummer);
        stand.speisen << Speise{name, erfundenesLebensmittel(name, nummer), 100.0 / 14, i};
    }
    return stand;
}

/// The next question after the one before.
Kenngroesse naechste(int nummer)
{
    return kenngroessen.at(static_cast<std::size_t>(nummer) % anzahlNaehrwerte).groesse;
}

void rechnen(benchmark::State &state, Umfang umfang)
{
    const Einblickstand stand = voller(umfang);
    int nummer = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(beitraege(stand.speisen, naechste(nummer++), stand.wissen));
    }
}

void fragen(benchmark::State &state, Umfang umfang)
{
    Beitragsblatt blatt;
    blatt.resize(fenstergroesse);
    blatt.zeige(voller(umfang));
    blatt.show();
    QApplication::processEvents();
    int nummer = 0;
    for (auto _ : state) {
        blatt.waehle(naechste(++nummer));
        QApplication::processEvents();
    }
}

/// Something in the record has changed, and all of it comes anew.
void folgen(benchmark::State &state, Umfang umfang)
{
    const Einblickstand stand = voller(umfang);
    Beitragsblatt blatt;
    blatt.resize(fenstergroesse);
    blatt.show();
    for (auto _ : state) {
        blatt.zeige(stand);
        QApplication::processEvents();
    }
}

void roheTabelle(benchmark::State &state, Umfang umfang)
{
    QTableView tabelle;
    QStandardItemModel modell(umfang.speisen, 4);
    tabelle.setModel(&modell);
    tabelle.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    tabelle.resize(fenstergroesse);
    tabelle.show();
    QApplication::processEvents();
    int nummer = 0;
    for (auto _ : state) {
        const QString text = QString::number(++nummer);
        for (int zeile = 0; zeile < umfang.speisen; ++zeile) {
            for (int spalte = 0; spalte < 4; ++spalte) {
                modell.setData(modell.index(zeile, spalte), text);
            }
        }
        QApplication::processEvents();
    }
}

BENCHMARK_CAPTURE(roheTabelle, plan, plan)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(rechnen, plan, plan)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(fragen, plan, plan)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(folgen, plan, plan)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(roheTabelle, zweiWochen, zweiWochen)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(rechnen, zweiWochen, zweiWochen)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(fragen, zweiWochen, zweiWochen)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(folgen, zweiWochen, zweiWochen)->Unit(benchmark::kMillisecond);

} // namespace
