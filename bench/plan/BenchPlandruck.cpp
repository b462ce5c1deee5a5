// How long a plan of many foods takes on its way to a PDF and into the preview: the detailed list,
// with 23 entries in a row, beside the simple one, which has three.

#include "Archivdatei.h"
#include "Erfundenes.h"
#include "Planmodul.h"

#include <benchmark/benchmark.h>

#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QTemporaryDir>

namespace {

/// What a plan of as many rows hands to the printer.
Druckauftrag auftrag(std::int64_t zeilen, void (Planmodul::*form)())
{
    const QTemporaryDir heim;
    const QString tabelle = heim.filePath(QStringLiteral("DatabaseIII.daten"));
    Lebensmittelverzeichnis foods;
    Planliste liste;
    for (int i = 0; i < zeilen; ++i) {
        const QString name = QStringLiteral("Lebensmittel %1").arg(i, 4, 10, QChar(u'0'));
        foods.insert(name, erfundenesLebensmittel(name, i));
        liste.anhaengen(name);
    }
    Archivdatei::schreiben(tabelle, foods);
    Druckauftrag ergebnis;
    Planmodul plan({.eingebauteTabelle = tabelle,
                    .datenordner = Datenordner(heim.path()),
                    .melde = [](QWidget *, const Meldung &) { return 0; },
                    .drucke =
                        [&ergebnis](QWidget *, const Druckauftrag &neu) {
                            ergebnis = neu;
                        }});
    plan.PlanArray = liste.PlanArray;
    plan.mengenarray = liste.mengenarray;
    (plan.*form)();
    return ergebnis;
}

void printToPdf(benchmark::State &state, void (Planmodul::*form)())
{
    const Druckauftrag liste = auftrag(state.range(0), form);
    const QTemporaryDir ordner;
    for (auto runde : state) {
        QPrinter drucker(QPrinter::HighResolution);
        drucker.setOutputFormat(QPrinter::PdfFormat);
        drucker.setOutputFileName(ordner.filePath(QStringLiteral("plan.pdf")));
        if (drucke(drucker, liste)) {
            state.SkipWithError("nothing was printed");
        }
    }
}

void showInThePreview(benchmark::State &state, void (Planmodul::*form)())
{
    const Druckauftrag liste = auftrag(state.range(0), form);
    QPrinter drucker(QPrinter::HighResolution);
    QPrintPreviewWidget vorschau(&drucker);
    QObject::connect(&vorschau, &QPrintPreviewWidget::paintRequested, &vorschau,
                     [&liste](QPrinter *geraet) { drucke(*geraet, liste); });
    vorschau.show();
    for (auto runde : state) {
        vorschau.updatePreview();
    }
}

} // namespace

BENCHMARK_CAPTURE(printToPdf, baselineSimpleList, &Planmodul::drucken)
    ->Arg(5000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(printToPdf, detailedList, &Planmodul::drucken3)
    ->Arg(5000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(showInThePreview, baselineSimpleList, &Planmodul::drucken)
    ->Arg(5000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(showInThePreview, detailedList, &Planmodul::drucken3)
    ->Arg(5000)
    ->Unit(benchmark::kMillisecond);
