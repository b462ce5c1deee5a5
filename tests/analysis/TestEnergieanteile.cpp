#include "Energieanteile.h"

#include <QTest>

#include <cmath>
#include <limits>

class TestEnergieanteile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sharesOfDisplayedGrams_data();
    void sharesOfDisplayedGrams();
    void sharesOfWholeGrams_data();
    void sharesOfWholeGrams();
    void theTwoWaysDifferInTheFractions();
    void aValueThatIsNoNumberCountsAsEnergy();
    void infiniteValuesDoNoHarm();
    void theShareMultipliesBeforeItDivides();
};

namespace {

void spalten()
{
    QTest::addColumn<float>("gesamt");
    QTest::addColumn<float>("ausProtein");
    QTest::addColumn<float>("ausKh");
    QTest::addColumn<float>("ausFett");
}

void vergleiche(const Energieanteile &anteile)
{
    QFETCH(float, gesamt);
    QFETCH(float, ausProtein);
    QFETCH(float, ausKh);
    QFETCH(float, ausFett);
    QCOMPARE_EQ(anteile.gesamtkal, gesamt);
    QCOMPARE_EQ(anteile.kalumrprot, ausProtein);
    QCOMPARE_EQ(anteile.kalumrkh, ausKh);
    QCOMPARE_EQ(anteile.kalumrfett, ausFett);
}

} // namespace

void TestEnergieanteile::sharesOfDisplayedGrams_data()
{
    QTest::addColumn<float>("protein");
    QTest::addColumn<float>("kh");
    QTest::addColumn<float>("fett");
    spalten();
    QTest::newRow("nothing at all") << 0.0F << 0.0F << 0.0F << 0.0F << 0.0F << 0.0F << 0.0F;
    QTest::newRow("only protein") << 12.0F << 0.0F << 0.0F << 48.0F << 100.0F << 0.0F << 0.0F;
    QTest::newRow("only carbohydrate") << 0.0F << 5.0F << 0.0F << 20.0F << 0.0F << 100.0F << 0.0F;
    QTest::newRow("only fat") << 0.0F << 0.0F << 2.0F << 18.0F << 0.0F << 0.0F << 100.0F;
    // 5 x 4 + 9 x 4 + 16 x 9 = 200
    QTest::newRow("all three") << 5.0F << 9.0F << 16.0F << 200.0F << 10.0F << 18.0F << 72.0F;
    // 2.5 x 4 + 1.5 x 4 + 0.5 x 9 = 20.5
    QTest::newRow("fractions count")
        << 2.5F << 1.5F << 0.5F << 20.5F << 1000.0F / 20.5F << 600.0F / 20.5F << 450.0F / 20.5F;
    QTest::newRow("negative values that cancel out")
        << 1.0F << -1.0F << 0.0F << 0.0F << 0.0F << 0.0F << 0.0F;
    QTest::newRow("a negative value") << -1.0F << 2.0F << 0.0F << 4.0F << -100.0F << 200.0F << 0.0F;
}

void TestEnergieanteile::sharesOfDisplayedGrams()
{
    QFETCH(float, protein);
    QFETCH(float, kh);
    QFETCH(float, fett);
    vergleiche(energieanteile(protein, kh, fett));
}

void TestEnergieanteile::sharesOfWholeGrams_data()
{
    QTest::addColumn<int>("protein");
    QTest::addColumn<int>("kh");
    QTest::addColumn<int>("fett");
    spalten();
    constexpr int groesste = std::numeric_limits<int>::max();
    QTest::newRow("nothing at all") << 0 << 0 << 0 << 0.0F << 0.0F << 0.0F << 0.0F;
    QTest::newRow("all three") << 5 << 9 << 16 << 200.0F << 10.0F << 18.0F << 72.0F;
    // (2 + 1) x 4 + 0 x 9 = 12
    QTest::newRow("thirds") << 2 << 1 << 0 << 12.0F << 800.0F / 12.0F << 400.0F / 12.0F << 0.0F;
    QTest::newRow("values that cancel out") << 3 << -3 << 0 << 0.0F << 0.0F << 0.0F << 0.0F;
    // 2147483647 x 17 = 36507221999, nearest in single precision 36507222016
    QTest::newRow("the largest numbers do not run over")
        << groesste << groesste << groesste << 36507222016.0F << 858993459200.0F / 36507222016.0F
        << 858993459200.0F / 36507222016.0F << 1932735283200.0F / 36507222016.0F;
}

void TestEnergieanteile::sharesOfWholeGrams()
{
    QFETCH(int, protein);
    QFETCH(int, kh);
    QFETCH(int, fett);
    vergleiche(energieanteileGanzzahlig(protein, kh, fett));
}

void TestEnergieanteile::theTwoWaysDifferInTheFractions()
{
    // Displayed: 0.9 g protein and 0.5 g fat. In whole grams nothing is left of either.
    QVERIFY(energieanteile(0.9F, 0.0F, 0.5F).kalumrprot > 40.0F);
    QVERIFY(energieanteileGanzzahlig(0, 0, 0) == Energieanteile());
}

void TestEnergieanteile::aValueThatIsNoNumberCountsAsEnergy()
{
    const float keineZahl = std::numeric_limits<float>::quiet_NaN();
    const Energieanteile anteile = energieanteile(keineZahl, 1.0F, 1.0F);
    QVERIFY(std::isnan(anteile.gesamtkal));
    QVERIFY(std::isnan(anteile.kalumrprot));
    QVERIFY(std::isnan(anteile.kalumrkh));
    QVERIFY(std::isnan(anteile.kalumrfett));
}

void TestEnergieanteile::infiniteValuesDoNoHarm()
{
    const Energieanteile anteile =
        energieanteile(std::numeric_limits<float>::infinity(), 1.0F, 1.0F);
    QVERIFY(std::isinf(anteile.gesamtkal));
    QVERIFY(std::isnan(anteile.kalumrprot));
    QCOMPARE_EQ(anteile.kalumrkh, 0.0F);
}

void TestEnergieanteile::theShareMultipliesBeforeItDivides()
{
    // 1e37 x 4 x 100 is more than single precision holds; dividing first would give 100.
    QVERIFY(std::isinf(energieanteil(1e37F, KilokalorienJeGramm::protein, 4e37F)));
    QCOMPARE_EQ(energieanteil(3.0F, KilokalorienJeGramm::fett, 54.0F), 50.0F);
    QCOMPARE_EQ(energieanteil(3.0F, KilokalorienJeGramm::fett, 0.0F), 0.0F);
    QCOMPARE_EQ(energieanteil(3.0F, KilokalorienJeGramm::fett, -0.0F), 0.0F);
}

QTEST_GUILESS_MAIN(TestEnergieanteile)
#include "TestEnergieanteile.moc"
