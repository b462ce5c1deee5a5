// The largest record that a dietitian keeps: 14 days of 6 meals with 12 foods each. From the Return
// behind a typed amount to the finished picture, with the record kept nowhere, in the file of the
// desk and under a client, beside a plain table of as many rows in the same run.

#include "Dateidatenbank.h"
#include "Erfundenes.h"
#include "Kartei.h"
#include "Klientenaufzeichnungen.h"
#include "Tagefenster.h"
#include "Tagesdatei.h"

#include <QApplication>
#include <QKeyEvent>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

constexpr int anzahlTage = 14;
constexpr int anzahlZeilen = 12; // of a meal

Aufzeichnung volle()
{
    Aufzeichnung eine =
        neueAufzeichnung(Aufzeichnungsart::Protokoll, QDate(2026, 11, 23), anzahlTage);
    int nummer = 0;
    for (Tag &tag : eine.tage) {
        for (Mahlzeit &mahlzeit : tag.mahlzeiten) {
            for (int i = 0; i < anzahlZeilen; ++i) {
                Mahlzeitzeile zeile;
                zeile.schluessel = QStringLiteral("Lebensmittel %1").arg(nummer % 300);
                zeile.angabe = QStringLiteral("100 g");
                zeile.gramm = 100.F;
                zeile.eintrag = erfundenesLebensmittel(zeile.schluessel, nummer++ % 300);
                mahlzeit.zeilen << zeile;
            }
        }
    }
    return eine;
}

/// A place that keeps nothing on a disk.
class Gedaechtnis : public Aufzeichnungsablage
{
public:
    QList<Aufzeichnung> alle() override { return m_alle; }
    Aufzeichnung sichere(const Aufzeichnung &neu) override
    {
        Aufzeichnung eine = neu;
        eine.kennung = QStringLiteral("eine");
        m_alle = {eine};
        return eine;
    }
    bool loesche(const Aufzeichnung &) override { return false; }
    bool beschreibbar() const override { return true; }
    QString wessen() const override { return {}; }

private:
    QList<Aufzeichnung> m_alle;
};

void druecke(int taste, const QString &text = {})
{
    QKeyEvent ereignis(QEvent::KeyPress, taste, Qt::NoModifier, text);
    QApplication::sendEvent(QApplication::focusWidget(), &ereignis);
}

/// Types amounts into the middle of a day. What is measured is from the Return to the picture, and
/// where that is wanted until the record is kept, which happens after the picture.
void tippe(benchmark::State &state, Aufzeichnungsablage &ablage, bool bisGesichert = false)
{
    QMap<QString, Datenmodul> speisen;
    for (int i = 0; i < 300; ++i) {
        const QString name = QStringLiteral("Lebensmittel %1").arg(i);
        speisen.insert(name, erfundenesLebensmittel(name, i));
    }
    Tagetueren tueren;
    tueren.suche = [](const QString &) {
        return Namenssuchergebnis();
    };
    tueren.lebensmittel = [&](const QString &schluessel) {
        const auto stelle = speisen.constFind(schluessel);
        return stelle != speisen.constEnd() ? &*stelle : nullptr;
    };
    tueren.masse = [](const QString &) {
        return QList<Mass>();
    };
    tueren.bedarf = [] {
        return Energiebedarf{2000, 2200};
    };
    Tagefenster fenster(ablage, tueren);
    fenster.resize(1300, 700);
    fenster.buch.beginne(volle());
    fenster.zeige();
    QApplication::setActiveWindow(&fenster);
    QApplication::processEvents();
    int gramm = 100;
    for (auto _ : state) {
        state.PauseTiming();
        fenster.ansicht->geheZu({Tagesmodell::Art::Speise, 2, 3}, Tagesmodell::Angabe);
        fenster.ansicht->beginne(QString::number(gramm));
        gramm = gramm % 500 + 1;
        QApplication::processEvents();
        state.ResumeTiming();
        druecke(Qt::Key_Return);
        QApplication::sendPostedEvents();
        if (bisGesichert) {
            fenster.buch.sichere();
        }
    }
}

/// A cell of a plain table is changed and painted.
void roheTabelle(benchmark::State &state)
{
    QStandardItemModel modell(6 * (anzahlZeilen + 2), Tagesmodell::anzahlSpalten);
    for (int zeile = 0; zeile < modell.rowCount(); ++zeile) {
        for (int spalte = 0; spalte < modell.columnCount(); ++spalte) {
            modell.setItem(zeile, spalte, new QStandardItem(QString::number(zeile * spalte)));
        }
    }
    QTableView tabelle;
    tabelle.setModel(&modell);
    tabelle.resize(1300, 700);
    tabelle.show();
    QApplication::processEvents();
    int gramm = 0;
    for (auto _ : state) {
        modell.item(5, 2)->setText(QString::number(++gramm));
        tabelle.viewport()->update();
        QApplication::processEvents();
    }
}

void nirgends(benchmark::State &state)
{
    Gedaechtnis ablage;
    tippe(state, ablage);
}

void inDerDatei(benchmark::State &state, bool bisGesichert)
{
    const QTemporaryDir ordner;
    Tagesdatei ablage(ordner.filePath(QStringLiteral("MahlbergTage.json")));
    tippe(state, ablage, bisGesichert);
}

void beimKlienten(benchmark::State &state, bool bisGesichert)
{
    const QTemporaryDir ordner;
    const QString datei = ordner.filePath(QStringLiteral("MahlbergKlienten.sqlite"));
    Kartei kartei([datei] {
        return Kartei::Ort{
            std::make_unique<Klientenspeicher>(std::make_unique<Dateidatenbank>(datei)),
            datei + QStringLiteral(".json")};
    });
    Person person;
    person.name = QStringLiteral("Erika Beispiel");
    Klientenaufzeichnungen ablage(kartei, kartei.sichere({QString(), person, {}}));
    tippe(state, ablage, bisGesichert);
}

BENCHMARK(roheTabelle)->Unit(benchmark::kMillisecond);
BENCHMARK(nirgends)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(inDerDatei, bild, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(beimKlienten, bild, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(inDerDatei, gesichert, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(beimKlienten, gesichert, true)->Unit(benchmark::kMillisecond);

} // namespace
