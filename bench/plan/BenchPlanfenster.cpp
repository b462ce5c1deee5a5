// How long the plan's window keeps the user waiting: for a changed amount until all that follows
// from it is saved, evaluated and painted, and for a step of scrolling. With foods of the user's
// own every value that the table shows looks after the file that they are kept in. Beside it, a
// plain table of texts that is as large.

#include "Archivdatei.h"
#include "Erfundenes.h"
#include "Planmodul.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>

#include <memory>

namespace {

/// A plan of as many rows in its window, shown. The foods are built in or the user's own.
class Fenster
{
public:
    Fenster(std::int64_t zeilen, bool eigene)
    {
        Lebensmittelverzeichnis foods;
        Lebensmittelverzeichnis plan;
        for (int i = 0; i < zeilen; ++i) {
            const QString name = QStringLiteral("Lebensmittel %1").arg(i, 4, 10, QChar(u'0'));
            foods.insert(name, erfundenesLebensmittel(name, i));
            Datenmodul traeger;
            traeger.setName(name);
            traeger.setWert(Naehrwert::kal, 100);
            plan.insert(name, traeger);
        }
        const Datenordner ordner(m_heim.path());
        const QString tabelle = m_heim.filePath(QStringLiteral("DatabaseIII.daten"));
        Archivdatei::schreiben(
            eigene ? ordner.pathForDataFile(QStringLiteral("customdaten")) : tabelle, foods);
        Archivdatei::schreiben(ordner.pathForDataFile(QStringLiteral("plandaten")), plan);
        m_plan = std::make_unique<Planmodul>(Plantueren{.eingebauteTabelle = tabelle,
                                                        .datenordner = ordner,
                                                        .melde = [](QWidget *, const Meldung &) {
                                                            return 0;
                                                        }});
        m_plan->showWindow();
        QApplication::processEvents();
    }
    Planmodul *operator->() const { return m_plan.get(); }

private:
    QTemporaryDir m_heim;
    std::unique_ptr<Planmodul> m_plan;
};

void changeAnAmount(benchmark::State &state, bool eigene)
{
    const Fenster fenster(state.range(0), eigene);
    Tabellenmodell &modell = *fenster->PlanTabelle->modell();
    const QModelIndex menge = modell.index(0, modell.spaltenstelle(QStringLiteral("menge")));
    int gramm = 100;
    for (auto runde : state) {
        gramm = gramm == 100 ? 250 : 100;
        modell.setData(menge, QString::number(gramm), Qt::EditRole);
        QApplication::processEvents();
    }
}

/// Up and down by a row, each time until it is painted.
void scrolle(benchmark::State &state, QTableView &tabelle)
{
    QScrollBar &leiste = *tabelle.verticalScrollBar();
    bool unten = false;
    for (auto runde : state) {
        unten = !unten;
        leiste.setValue(leiste.minimum() + (unten ? 1 : 0));
        tabelle.viewport()->repaint();
    }
}

void scrollTheTable(benchmark::State &state, bool eigene)
{
    const Fenster fenster(state.range(0), eigene);
    scrolle(state, *fenster->PlanTabelle);
}

void baselineScrollAPlainTable(benchmark::State &state)
{
    const Fenster fenster(state.range(0), false);
    const QTableView &vorbild = *fenster->PlanTabelle;
    QStandardItemModel texte(vorbild.model()->rowCount(), vorbild.model()->columnCount());
    for (int zeile = 0; zeile < texte.rowCount(); ++zeile) {
        for (int spalte = 0; spalte < texte.columnCount(); ++spalte) {
            texte.setItem(
                zeile, spalte,
                new QStandardItem(vorbild.model()->index(zeile, spalte).data().toString()));
        }
    }
    QTableView tabelle;
    tabelle.setModel(&texte);
    tabelle.resize(vorbild.size());
    tabelle.verticalHeader()->setDefaultSectionSize(vorbild.rowHeight(0));
    for (int spalte = 0; spalte < texte.columnCount(); ++spalte) {
        tabelle.setColumnWidth(spalte, vorbild.columnWidth(spalte));
    }
    tabelle.show();
    QApplication::processEvents();
    scrolle(state, tabelle);
}

} // namespace

BENCHMARK_CAPTURE(changeAnAmount, builtIn, false)
    ->Arg(30)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(changeAnAmount, own, true)->Arg(30)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(baselineScrollAPlainTable)->Arg(30)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(scrollTheTable, builtIn, false)->Arg(30)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(scrollTheTable, own, true)->Arg(30)->Unit(benchmark::kMillisecond);
