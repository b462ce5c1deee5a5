#include "Wertungsprobe.h"

using namespace Wertungsprobe;

/// What the rating rules see of a line of the table.
class TestWertungsgroessen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void figuresAreThoseOfTheFoodAsEaten();
    void uricAcidIsThatOfTheFoodAsEaten();
    void sugarsThatBelongToTheFoodAreNotFree_data();
    void sugarsThatBelongToTheFoodAreNotFree();
    void lowInFreeSugarsIsWorkedOut_data();
    void lowInFreeSugarsIsWorkedOut();
    void lactoseAndGlucoseHoldNoFructose();
    void aFoodsMarksComeOnTopOfItsGroups();
    void aClassStandsOnlyWhereThereIsNoFigure();
    void ratiosAreDefinedWithoutADenominator();
};

void TestWertungsgroessen::figuresAreThoseOfTheFoodAsEaten()
{
    Tabellenzeile zeile = food(reis, {{u"kal"_s, 352},
                                      {u"kh"_s, 78},
                                      {u"fett"_s, 0.96},
                                      {u"saturated"_s, 0.32},
                                      {u"bs"_s, 1},
                                      {u"sugars"_s, 1.6},
                                      {u"chol"_s, 16},
                                      {u"na"_s, 8},
                                      {u"alcohol"_s, 0.64}});
    QCOMPARE(wertungsgroessen(zeile).zahl(Groesse::Energie), 352.0);
    zeile.verzehrfertig = 320;
    const Wertungsgroessen gekocht = wertungsgroessen(zeile);
    QCOMPARE(gekocht.zahl(Groesse::Energie), 110.0);
    QCOMPARE(gekocht.zahl(Groesse::Fett), 0.3);
    QCOMPARE(gekocht.zahl(Groesse::Gesaettigt), 0.1);
    QCOMPARE(gekocht.zahl(Groesse::GesaettigtAnteil), 100.0 / 3);
    QCOMPARE(gekocht.zahl(Groesse::Kohlenhydrate), 24.375);
    QCOMPARE(gekocht.zahl(Groesse::Ballaststoffe), 0.3125);
    QCOMPARE(gekocht.zahl(Groesse::KohlenhydrateJeBallaststoff), 78.0);
    QCOMPARE(gekocht.zahl(Groesse::Zucker), 0.5);
    QCOMPARE(gekocht.zahl(Groesse::FreierZucker), 0.5);
    QCOMPARE(gekocht.zahl(Groesse::FreierZuckerAnteil), 100 * 0.5 * 4 / 110);
    QCOMPARE(gekocht.zahl(Groesse::Fruktosezucker), 0.5);
    QCOMPARE(gekocht.zahl(Groesse::Cholesterin), 5.0);
    QCOMPARE(gekocht.zahl(Groesse::Natrium), 2.5);
    QCOMPARE(gekocht.zahl(Groesse::Alkohol), 0.2);
}

void TestWertungsgroessen::uricAcidIsThatOfTheFoodAsEaten()
{
    const Tabellenzeile linsen =
        food(u"Hülsenfrüchte"_s, {{u"uric_acid"_s, 75}, {u"ready_g"_s, 250}});
    QCOMPARE(wertungsgroessen(linsen).zahl(Groesse::Harnsaeure), 30.0);
    QCOMPARE(wertungsgroessen(food(rind, {{u"uric_acid"_s, 141.5}})).zahl(Groesse::Harnsaeure),
             141.5);
}

void TestWertungsgroessen::sugarsThatBelongToTheFoodAreNotFree_data()
{
    QTest::addColumn<QString>("gruppe");
    QTest::addColumn<double>("zucker");
    QTest::addColumn<double>("frei");
    QTest::newRow("fruit") << obst << 15.0 << 0.0;
    QTest::newRow("canned fruit") << u"Obstkonserven und Kompott"_s << 15.0 << 15.0;
    QTest::newRow("dried fruit") << u"Trockenobst"_s << 60.0 << 60.0;
    QTest::newRow("juice") << saft << 10.0 << 10.0;
    QTest::newRow("milk") << milch << 4.8 << 0.0;
    QTest::newRow("cocoa made with milk") << milch << 9.5 << 4.5;
    QTest::newRow("sweetened yoghurt") << u"Joghurt und Quark"_s << 14.0 << 8.0;
    QTest::newRow("processed cheese") << u"Käse"_s << 7.0 << 1.0;
    QTest::newRow("plant drink") << sojadrink << 3.0 << 3.0;
    QTest::newRow("cake") << kuchen << 20.0 << 20.0;
}

void TestWertungsgroessen::sugarsThatBelongToTheFoodAreNotFree()
{
    QFETCH(QString, gruppe);
    QFETCH(double, zucker);
    QFETCH(double, frei);
    const Tabellenzeile zeile = food(gruppe, {{u"sugars"_s, zucker}});
    QCOMPARE(wertungsgroessen(zeile).zahl(Groesse::FreierZucker), frei);
}

void TestWertungsgroessen::lowInFreeSugarsIsWorkedOut_data()
{
    QTest::addColumn<QString>("gruppe");
    QTest::addColumn<double>("zucker");
    QTest::addColumn<bool>("zuckerarm");
    QTest::newRow("cake, exactly 5 g") << kuchen << 5.0 << true;
    QTest::newRow("cake, 5.1 g") << kuchen << 5.1 << false;
    QTest::newRow("fruit, its own") << obst << 60.0 << true;
    QTest::newRow("milk, exactly 2.5 g more than lactose") << milch << 7.5 << true;
    QTest::newRow("milk, 2.6 g more") << milch << 7.6 << false;
    QTest::newRow("yoghurt, which is no liquid, 5 g more")
        << u"Joghurt und Quark"_s << 11.0 << true;
    QTest::newRow("drink, exactly 2.5 g") << saft << 2.5 << true;
    QTest::newRow("drink, 2.6 g") << saft << 2.6 << false;
}

void TestWertungsgroessen::lowInFreeSugarsIsWorkedOut()
{
    QFETCH(QString, gruppe);
    QFETCH(double, zucker);
    QFETCH(bool, zuckerarm);
    const Tabellenzeile zeile = food(gruppe, {{u"sugars"_s, zucker}});
    QCOMPARE(wertungsgroessen(zeile).merkmale.testFlag(Merkmal::Zuckerarm), zuckerarm);
}

void TestWertungsgroessen::lactoseAndGlucoseHoldNoFructose()
{
    const auto fruktose = [](const Tabellenzeile &zeile) {
        return wertungsgroessen(zeile).zahl(Groesse::Fruktosezucker);
    };
    QCOMPARE(fruktose(food(milch, {{u"sugars"_s, 4.8}})), 0.0);
    QCOMPARE(fruktose(food(milch, {{u"sugars"_s, 9}})), 4.0);
    QCOMPARE(fruktose(food(obst, {{u"sugars"_s, 9}})), 9.0);
    const Tabellenzeile zucker = food(u"Zucker und Süßwaren"_s, {{u"sugars"_s, 98}});
    QCOMPARE(fruktose(zucker), 98.0);
    QCOMPARE(fruktose(ohneFruktose(zucker)), 0.0);
    QCOMPARE(wertungsgroessen(ohneFruktose(zucker)).zahl(Groesse::FreierZucker), 98.0);
}

void TestWertungsgroessen::aFoodsMarksComeOnTopOfItsGroups()
{
    const Wertungsgroessen cola = wertungsgroessen(markiert(food(saft), Merkmal::Koffein));
    QVERIFY(cola.merkmale ==
            (Merkmal::Getraenk | Merkmal::Fluessig | Merkmal::Koffein | Merkmal::Zuckerarm));
    QVERIFY(wertungsgroessen(food(kuchen)).merkmale == Merkmale(Merkmal::Zuckerarm));
}

void TestWertungsgroessen::aClassStandsOnlyWhereThereIsNoFigure()
{
    Tabellenzeile zeile = mitKlasse(food(rind), Purinklasse::Mittel);
    QVERIFY(wertungsgroessen(zeile).purinklasse == Purinklasse::Mittel);
    zeile.harnsaeure = 110;
    QVERIFY(!wertungsgroessen(zeile).purinklasse);
    QCOMPARE(wertungsgroessen(zeile).zahl(Groesse::Harnsaeure), 110.0);
}

void TestWertungsgroessen::ratiosAreDefinedWithoutADenominator()
{
    const Wertungsgroessen nichts = wertungsgroessen(food(kuchen));
    QCOMPARE(nichts.zahl(Groesse::GesaettigtAnteil), 0.0);
    QCOMPARE(nichts.zahl(Groesse::KohlenhydrateJeBallaststoff), 0.0);
    QCOMPARE(nichts.zahl(Groesse::FreierZuckerAnteil), 0.0);
    const Wertungsgroessen staerke = wertungsgroessen(food(kuchen, {{u"kh"_s, 80}}));
    QVERIFY(qIsInf(staerke.zahl(Groesse::KohlenhydrateJeBallaststoff)));
}

QTEST_GUILESS_MAIN(TestWertungsgroessen)
#include "TestWertungsgroessen.moc"
