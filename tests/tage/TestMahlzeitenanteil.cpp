// What each meal adds to a day, and where the picture of the meals puts it.

#include "Aufzeichnungsprobe.h"
#include "Mahlzeitenanteil.h"

#include <QLocale>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using Aufzeichnungsprobe::oder;
using Aufzeichnungsprobe::zeile;

namespace {

constexpr double unendlich = std::numeric_limits<double>::infinity();

} // namespace

class TestMahlzeitenanteil : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void init() { m_eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 3); }

    void mealsHaveTheirEnergyAndShare();
    void whatWasNotEatenIsNotZero();
    void whatIsNotUnderstoodIsUnknown();
    void theMeanKnowsOnlyDaysThatAreInIt();
    void ofNoDayNoMealCounts_data();
    void ofNoDayNoMealCounts();
    void noMealsAreNoShares();
    void theLargestFillsItsBar();
    void aBarIsFilledInProportion_data();
    void aBarIsFilledInProportion();
    void figuresBesideTheBar_data();
    void figuresBesideTheBar();
    void mealsInSentences_data();
    void mealsInSentences();
    void columnsShareTheWidth_data();
    void columnsShareTheWidth();

private:
    QList<Mahlzeitzeile> &zeilen(int tag, int mahlzeit)
    {
        return m_eine.tage[tag].mahlzeiten[mahlzeit].zeilen;
    }
    QList<Mahlzeitenanteil> anteile(int tag) const
    {
        return mahlzeitenanteile(m_eine, tag, rechneTag(m_eine, tag, {}), rechneMittel(m_eine, {}));
    }

    Aufzeichnung m_eine;
};

/// 300 + 500 + 200 kcal are 1000; on the second day there are 100 at breakfast and 700 at night.
void TestMahlzeitenanteil::mealsHaveTheirEnergyAndShare()
{
    m_eine.mahlzeiten[5] = u"Nachts"_s;
    zeilen(0, 0) = {zeile(u"Brot"_s, 100, 240), zeile(u"Butter"_s, 10, 600)};
    zeilen(0, 2) = {zeile(u"Reis"_s, 200, 250), oder(zeile(u"Nudeln"_s, 100, 350))};
    zeilen(0, 4) = {zeile(u"Suppe"_s, 400, 50)};
    zeilen(1, 0) = {zeile(u"Apfel"_s, 200, 50)};
    zeilen(1, 5) = {zeile(u"Chips"_s, 140, 500)};
    const QList<Mahlzeitenanteil> alle = anteile(0);
    QCOMPARE(alle.size(), 6);
    QCOMPARE(alle[0], (Mahlzeitenanteil{u"Frühstück"_s, 300.0, 30.0, 200.0, 0}));
    QCOMPARE(alle[1], (Mahlzeitenanteil{u"Vormittag"_s, {}, 0.0, {}, 0}));
    QCOMPARE(alle[2], (Mahlzeitenanteil{u"Mittagessen"_s, 500.0, 50.0, 250.0, 0}));
    QCOMPARE(alle[4], (Mahlzeitenanteil{u"Abendessen"_s, 200.0, 20.0, 100.0, 0}));
    QCOMPARE(alle[5], (Mahlzeitenanteil{u"Nachts"_s, {}, 0.0, 350.0, 0}));
    QCOMPARE(anteile(1)[5], (Mahlzeitenanteil{u"Nachts"_s, 700.0, 87.5, 350.0, 0}));
}

void TestMahlzeitenanteil::whatWasNotEatenIsNotZero()
{
    zeilen(0, 0) = {zeile(u"Wasser"_s, 200, 0)};
    zeilen(0, 1) = {oder(zeile(u"Brot"_s, 100))};
    QCOMPARE(anteile(0)[0].energie, 0.0);
    QCOMPARE(anteile(0)[0].prozent, 0.0);
    QCOMPARE(anteile(0)[0].mittel, 0.0);
    QVERIFY(!anteile(0)[1].energie);
    QVERIFY(!anteile(0)[1].mittel);
    QCOMPARE(anteile(0)[1].unverstanden, 0);
}

void TestMahlzeitenanteil::whatIsNotUnderstoodIsUnknown()
{
    zeilen(0, 0) = {{.text = u"Kuchen"_s}, {.text = u"Torte"_s}};
    zeilen(0, 1) = {{.text = u"Kuchen"_s}, zeile(u"Brot"_s, 100, 240)};
    QCOMPARE(anteile(0)[0], (Mahlzeitenanteil{u"Frühstück"_s, {}, 0.0, {}, 2}));
    QCOMPARE(anteile(0)[1], (Mahlzeitenanteil{u"Vormittag"_s, 240.0, 100.0, 240.0, 1}));
}

void TestMahlzeitenanteil::theMeanKnowsOnlyDaysThatAreInIt()
{
    zeilen(0, 0) = {zeile(u"Brot"_s, 100, 240)};
    zeilen(1, 1) = {zeile(u"Apfel"_s, 100, 50)};
    m_eine.tage[1].imMittel = false;
    QCOMPARE(anteile(1)[0], (Mahlzeitenanteil{u"Frühstück"_s, {}, 0.0, 240.0, 0}));
    QCOMPARE(anteile(1)[1], (Mahlzeitenanteil{u"Vormittag"_s, 50.0, 100.0, {}, 0}));
}

void TestMahlzeitenanteil::ofNoDayNoMealCounts_data()
{
    QTest::addColumn<int>("tag");
    QTest::newRow("before the first") << -1;
    QTest::newRow("behind the last") << 3;
}

void TestMahlzeitenanteil::ofNoDayNoMealCounts()
{
    QFETCH(int, tag);
    zeilen(0, 0) = {zeile(u"Brot"_s, 100, 240), {}};
    QCOMPARE(anteile(tag).size(), 6);
    QCOMPARE(anteile(tag)[0], (Mahlzeitenanteil{u"Frühstück"_s, {}, 0.0, 240.0, 0}));
}

void TestMahlzeitenanteil::noMealsAreNoShares()
{
    QVERIFY(mahlzeitenanteile({}, 0, rechneTag({}, 0, {}), rechneMittel({}, {})).isEmpty());
    QCOMPARE(vollausschlag({}), 0.0);
}

void TestMahlzeitenanteil::theLargestFillsItsBar()
{
    QCOMPARE(vollausschlag({{.energie = 300.0}, {.energie = 412.0, .mittel = 100.0}, {}}), 412.0);
    QCOMPARE(vollausschlag({{.energie = 300.0}, {.energie = 412.0, .mittel = 500.0}}), 500.0);
    QCOMPARE(vollausschlag({{.energie = unendlich}, {.mittel = 20.0}}), 20.0);
    QCOMPARE(vollausschlag({{.energie = std::nan("")}, {.energie = 0.0}, {.energie = -5.0}}), 0.0);
}

void TestMahlzeitenanteil::aBarIsFilledInProportion_data()
{
    QTest::addColumn<std::optional<double>>("energie");
    QTest::addColumn<double>("voll");
    QTest::addColumn<double>("erwartet");
    using Energie = std::optional<double>;
    QTest::newRow("nothing") << Energie() << 400.0 << 0.0;
    QTest::newRow("no energy") << Energie(0) << 400.0 << 0.0;
    QTest::newRow("no energy, and no scale") << Energie(0) << 0.0 << 0.0;
    QTest::newRow("less than none") << Energie(-1) << 400.0 << 0.0;
    QTest::newRow("no number") << Energie(std::nan("")) << 400.0 << 0.0;
    QTest::newRow("a quarter") << Energie(100) << 400.0 << 0.25;
    QTest::newRow("all of it") << Energie(400) << 400.0 << 1.0;
    QTest::newRow("ran over") << Energie(unendlich) << 400.0 << 1.0;
    QTest::newRow("ran over, and no scale") << Energie(unendlich) << 0.0 << 1.0;
}

void TestMahlzeitenanteil::aBarIsFilledInProportion()
{
    QFETCH(std::optional<double>, energie);
    QFETCH(double, voll);
    QTEST(fuellung(energie, voll), "erwartet");
}

void TestMahlzeitenanteil::figuresBesideTheBar_data()
{
    QTest::addColumn<Mahlzeitenanteil>("einer");
    QTest::addColumn<QString>("energie");
    QTest::addColumn<QString>("anteil");
    QTest::newRow("whole numbers")
        << Mahlzeitenanteil{.energie = 411.6, .prozent = 22.5} << u"412 kcal"_s << u"23 %"_s;
    QTest::newRow("all of the day")
        << Mahlzeitenanteil{.energie = 411.6, .prozent = 100} << u"412 kcal"_s << u"100 %"_s;
    QTest::newRow("very little is not nothing")
        << Mahlzeitenanteil{.energie = 3.0, .prozent = 0.2} << u"3 kcal"_s << u"0,2 %"_s;
    QTest::newRow("no energy") << Mahlzeitenanteil{.energie = 0.0} << u"0 kcal"_s << QString();
    QTest::newRow("nothing") << Mahlzeitenanteil{} << u"–"_s << QString();
    QTest::newRow("not known") << Mahlzeitenanteil{.unverstanden = 1} << u"?"_s << QString();
    QTest::newRow("ran over") << Mahlzeitenanteil{.energie = unendlich, .prozent = std::nan("")}
                              << u"- kcal"_s << QString();
}

void TestMahlzeitenanteil::figuresBesideTheBar()
{
    QFETCH(Mahlzeitenanteil, einer);
    QTEST(energietext(einer).replace(QChar(QChar::Nbsp), u' '), "energie");
    QTEST(anteilstext(einer).replace(QChar(QChar::Nbsp), u' '), "anteil");
}

void TestMahlzeitenanteil::mealsInSentences_data()
{
    QTest::addColumn<Mahlzeitenanteil>("einer");
    QTest::addColumn<QString>("erwartet");
    QTest::newRow("with a mean") << Mahlzeitenanteil{u"Früh"_s, 412.0, 23.0, 380.0, 0}
                                 << u"Früh: 412 kcal, 23 %; im Mittel 380 kcal."_s;
    QTest::newRow("without a mean")
        << Mahlzeitenanteil{u"Früh"_s, 412.0, 23.0, {}, 0} << u"Früh: 412 kcal, 23 %."_s;
    QTest::newRow("no energy") << Mahlzeitenanteil{u"Früh"_s, 0.0, 0, 0.0, 0}
                               << u"Früh: 0 kcal; im Mittel 0 kcal."_s;
    QTest::newRow("nothing") << Mahlzeitenanteil{u"Früh"_s, {}, 0, 380.0, 0}
                             << u"Früh: nichts; im Mittel 380 kcal."_s;
    QTest::newRow("not known") << Mahlzeitenanteil{u"Früh"_s, {}, 0, {}, 2}
                               << u"Früh: unbekannt; Zeilen, die nicht zählen: 2."_s;
    QTest::newRow("partly known") << Mahlzeitenanteil{u"Früh"_s, 412.0, 23.0, {}, 1}
                                  << u"Früh: 412 kcal, 23 %; Zeilen, die nicht zählen: 1."_s;
    QTest::newRow("a name like a place for another")
        << Mahlzeitenanteil{u"%1 %2"_s, 412.0, 23.0, {}, 0} << u"%1 %2: 412 kcal, 23 %."_s;
}

void TestMahlzeitenanteil::mealsInSentences()
{
    QFETCH(Mahlzeitenanteil, einer);
    QTEST(mahlzeitInWorten(einer).replace(QChar(QChar::Nbsp), u' '), "erwartet");
}

void TestMahlzeitenanteil::columnsShareTheWidth_data()
{
    QTest::addColumn<double>("breite");
    QTest::addColumn<Mahlzeitenbreiten>("wunsch");
    QTest::addColumn<Mahlzeitenspalten>("erwartet");
    // The figures need 60 and 40; between four columns are three times 10.
    QTest::newRow("short names leave all else to the bars")
        << 330.0 << Mahlzeitenbreiten{70, 60, 40, 10, 30}
        << Mahlzeitenspalten{70, 80, 130, 220, 290};
    QTest::newRow("long names get no more than the half")
        << 330.0 << Mahlzeitenbreiten{170, 60, 40, 10, 30}
        << Mahlzeitenspalten{100, 110, 100, 220, 290};
    QTest::newRow("where it is narrow, bars keep their least")
        << 180.0 << Mahlzeitenbreiten{70, 60, 40, 10, 30} << Mahlzeitenspalten{20, 30, 30, 70, 140};
    QTest::newRow("where it is too narrow, no name is left")
        << 150.0 << Mahlzeitenbreiten{70, 60, 40, 10, 30} << Mahlzeitenspalten{0, 10, 20, 40, 110};
    QTest::newRow("nowhere a width is below nothing")
        << 50.0 << Mahlzeitenbreiten{70, 60, 40, 10, 30} << Mahlzeitenspalten{0, 10, 0, -60, 10};
}

void TestMahlzeitenanteil::columnsShareTheWidth()
{
    QFETCH(double, breite);
    QFETCH(Mahlzeitenbreiten, wunsch);
    QFETCH(Mahlzeitenspalten, erwartet);
    QCOMPARE(mahlzeitenspalten(breite, wunsch), erwartet);
}

QTEST_GUILESS_MAIN(TestMahlzeitenanteil)
#include "TestMahlzeitenanteil.moc"
