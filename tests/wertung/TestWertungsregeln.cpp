#include "Wertungsregeln.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// Every limit of the rules, on it and just beyond it.
class TestWertungsregeln : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void overweight_data();
    void overweight();
    void diabetes_data();
    void diabetes();
    void gout_data();
    void gout();
    void heart_data();
    void heart();
    void figuresAreThoseOfTheFoodAsEaten();
    void sugarsThatBelongToTheFoodAreNotFree_data();
    void sugarsThatBelongToTheFoodAreNotFree();
    void lactoseAndGlucoseHoldNoFructose();
    void aMarkOverridesTheClassOfTheGroup();
    void ratiosAreDefinedWithoutADenominator();
    void aReasonNamesTheFigures();
};

namespace {

using Werte = QList<std::pair<QString, double>>;

/// A food of a group with only these figures, named as the table's columns are.
Tabellenzeile food(const QString &gruppe, const Werte &werte)
{
    Tabellenzeile zeile;
    zeile.gruppe = lebensmittelgruppe(gruppe);
    for (const auto &[spalte, zahl] : werte) {
        if (spalte == u"sugars") {
            zeile.zucker = zahl;
        } else if (spalte == u"saturated") {
            zeile.gesaettigt = zahl;
        } else if (spalte == u"alcohol") {
            zeile.alkohol = zahl;
        }
        for (const auto &wert : naehrwerte) {
            if (spalte == QLatin1String(wert.kennung)) {
                zeile.werte[stelle(wert.wert)] = zahl;
            }
        }
    }
    return zeile;
}

void spalten()
{
    QTest::addColumn<QString>("gruppe");
    QTest::addColumn<Werte>("werte");
    QTest::addColumn<QString>("regel");
}

void pruefen(Wertung wertung)
{
    QFETCH(QString, gruppe);
    QFETCH(Werte, werte);
    QFETCH(QString, regel);
    QVERIFY(lebensmittelgruppe(gruppe) != nullptr);
    const auto *const entschieden =
        entscheidendeRegel(wertung, wertungsgroessen(food(gruppe, werte)));
    QVERIFY(entschieden != nullptr);
    QCOMPARE(QString::fromLatin1(entschieden->kennung), regel);
}

const QString saft = u"Saft und Erfrischungsgetränke"_s;
const QString gewuerz = u"Kräuter, Gewürze und Zutaten"_s;
const QString kuchen = u"Kuchen und Gebäck"_s;
const QString milch = u"Milch und Sahne"_s;
const QString rind = u"Rind- und Kalbfleisch"_s;
const QString reis = u"Getreide, Reis und Nudeln"_s;

} // namespace

void TestWertungsregeln::overweight_data()
{
    spalten();
    QTest::newRow("drink, 21 kcal") << saft << Werte{{u"kal"_s, 21}} << u"U1"_s;
    QTest::newRow("drink, exactly 20 kcal") << saft << Werte{{u"kal"_s, 20}} << u"U2"_s;
    QTest::newRow("drink, exactly 4 kcal") << saft << Werte{{u"kal"_s, 4}} << u"U3"_s;
    QTest::newRow("seasoning, 150 kcal, 3 g fat")
        << gewuerz << Werte{{u"kal"_s, 150}, {u"fett"_s, 3}} << u"U4"_s;
    QTest::newRow("seasoning, 151 kcal") << gewuerz << Werte{{u"kal"_s, 151}} << u"U5"_s;
    QTest::newRow("dense and sweet seasoning")
        << gewuerz << Werte{{u"kal"_s, 400}, {u"fett"_s, 30}, {u"sugars"_s, 50}} << u"U5"_s;
    QTest::newRow("22.6 g free sugars")
        << kuchen << Werte{{u"kal"_s, 100}, {u"sugars"_s, 22.6}} << u"U6"_s;
    QTest::newRow("exactly 22.5 g free sugars")
        << kuchen << Werte{{u"kal"_s, 100}, {u"sugars"_s, 22.5}} << u"U11"_s;
    QTest::newRow("276 kcal, 5.9 g fibre")
        << kuchen << Werte{{u"kal"_s, 276}, {u"bs"_s, 5.9}} << u"U7"_s;
    QTest::newRow("276 kcal, 6 g fibre")
        << kuchen << Werte{{u"kal"_s, 276}, {u"bs"_s, 6}} << u"U11"_s;
    QTest::newRow("exactly 275 kcal, no fibre") << kuchen << Werte{{u"kal"_s, 275}} << u"U11"_s;
    QTest::newRow("226 kcal, 17.6 g fat")
        << kuchen << Werte{{u"kal"_s, 226}, {u"fett"_s, 17.6}} << u"U8"_s;
    QTest::newRow("226 kcal, 17.5 g fat")
        << kuchen << Werte{{u"kal"_s, 226}, {u"fett"_s, 17.5}} << u"U11"_s;
    QTest::newRow("exactly 225 kcal, 20 g fat")
        << kuchen << Werte{{u"kal"_s, 225}, {u"fett"_s, 20}} << u"U11"_s;
    QTest::newRow("226 kcal, exactly 12 g free sugars")
        << kuchen << Werte{{u"kal"_s, 226}, {u"sugars"_s, 12}} << u"U9"_s;
    QTest::newRow("226 kcal, 11.9 g free sugars")
        << kuchen << Werte{{u"kal"_s, 226}, {u"sugars"_s, 11.9}} << u"U11"_s;
    QTest::newRow("150 kcal, 3 g fat, 5 g free sugars")
        << kuchen << Werte{{u"kal"_s, 150}, {u"fett"_s, 3}, {u"sugars"_s, 5}} << u"U10"_s;
    QTest::newRow("151 kcal") << kuchen << Werte{{u"kal"_s, 151}} << u"U11"_s;
    QTest::newRow("3.1 g fat") << kuchen << Werte{{u"kal"_s, 100}, {u"fett"_s, 3.1}} << u"U11"_s;
    QTest::newRow("5.1 g free sugars")
        << kuchen << Werte{{u"kal"_s, 100}, {u"sugars"_s, 5.1}} << u"U11"_s;
    QTest::newRow("a liquid with 2.5 g free sugars")
        << milch << Werte{{u"kal"_s, 50}, {u"sugars"_s, 7.5}} << u"U10"_s;
    QTest::newRow("a liquid with 2.6 g free sugars")
        << milch << Werte{{u"kal"_s, 50}, {u"sugars"_s, 7.6}} << u"U11"_s;
}

void TestWertungsregeln::overweight()
{
    pruefen(Wertung::uebergewicht);
}

void TestWertungsregeln::diabetes_data()
{
    spalten();
    QTest::newRow("drink, 5.1 g sugars") << saft << Werte{{u"sugars"_s, 5.1}} << u"D1"_s;
    QTest::newRow("drink, exactly 5 g sugars") << saft << Werte{{u"sugars"_s, 5}} << u"D13"_s;
    QTest::newRow("drink, exactly 2.5 g sugars")
        << saft << Werte{{u"kh"_s, 2.5}, {u"sugars"_s, 2.5}} << u"D11"_s;
    QTest::newRow("seasoning, 12.1 g carbohydrate") << gewuerz << Werte{{u"kh"_s, 12.1}} << u"D2"_s;
    QTest::newRow("seasoning, exactly 12 g") << gewuerz << Werte{{u"kh"_s, 12}} << u"D3"_s;
    QTest::newRow("22.6 g free sugars")
        << kuchen << Werte{{u"kal"_s, 400}, {u"sugars"_s, 22.6}} << u"D4"_s;
    QTest::newRow("12 g free sugars, over half of the energy")
        << kuchen << Werte{{u"kal"_s, 95}, {u"kh"_s, 12}, {u"sugars"_s, 12}} << u"D5"_s;
    QTest::newRow("12 g free sugars, exactly half of the energy")
        << kuchen << Werte{{u"kal"_s, 96}, {u"kh"_s, 12}, {u"sugars"_s, 12}} << u"D13"_s;
    QTest::newRow("11.9 g free sugars, all of the energy")
        << kuchen << Werte{{u"kal"_s, 48}, {u"kh"_s, 12}, {u"sugars"_s, 11.9}} << u"D13"_s;
    QTest::newRow("12 g free sugars, 5.1 g saturated fat")
        << kuchen
        << Werte{{u"kal"_s, 300}, {u"fett"_s, 20}, {u"saturated"_s, 5.1}, {u"sugars"_s, 12}}
        << u"D6"_s;
    QTest::newRow("12 g free sugars, 5 g saturated fat")
        << kuchen << Werte{{u"kal"_s, 300}, {u"fett"_s, 10}, {u"saturated"_s, 5}, {u"sugars"_s, 12}}
        << u"D13"_s;
    QTest::newRow("40.1 g carbohydrate, 4 g fibre")
        << kuchen << Werte{{u"kh"_s, 40.1}, {u"bs"_s, 4}} << u"D7"_s;
    QTest::newRow("41 g carbohydrate, 4.1 g fibre")
        << kuchen << Werte{{u"kh"_s, 41}, {u"bs"_s, 4.1}} << u"D13"_s;
    QTest::newRow("40 g carbohydrate, no fibre") << kuchen << Werte{{u"kh"_s, 40}} << u"D13"_s;
    QTest::newRow("41 g carbohydrate, no fibre") << kuchen << Werte{{u"kh"_s, 41}} << u"D7"_s;
    QTest::newRow("0.96 g alcohol") << kuchen << Werte{{u"alcohol"_s, 0.96}} << u"D8"_s;
    QTest::newRow("0.95 g alcohol") << kuchen << Werte{{u"alcohol"_s, 0.95}} << u"D11"_s;
    QTest::newRow("5.1 g saturated of 17 g fat")
        << kuchen << Werte{{u"fett"_s, 17}, {u"saturated"_s, 5.2}} << u"D9"_s;
    QTest::newRow("5.1 g saturated of 17.5 g fat, 30 percent not reached")
        << kuchen << Werte{{u"fett"_s, 17.5}, {u"saturated"_s, 5.1}} << u"D11"_s;
    QTest::newRow("17.6 g fat") << kuchen << Werte{{u"fett"_s, 17.6}} << u"D10"_s;
    QTest::newRow("17.5 g fat") << kuchen << Werte{{u"fett"_s, 17.5}} << u"D11"_s;
    QTest::newRow("50 g fat of nuts")
        << u"Nüsse und Samen"_s << Werte{{u"fett"_s, 50}, {u"saturated"_s, 4}} << u"D11"_s;
    QTest::newRow("exactly 12 g carbohydrate") << kuchen << Werte{{u"kh"_s, 12}} << u"D11"_s;
    QTest::newRow("12.1 g carbohydrate, no fibre") << kuchen << Werte{{u"kh"_s, 12.1}} << u"D13"_s;
    QTest::newRow("20 g carbohydrate, 4 g fibre, 5 g sugars")
        << kuchen << Werte{{u"kh"_s, 20}, {u"bs"_s, 4}, {u"sugars"_s, 5}, {u"kal"_s, 200}}
        << u"D12"_s;
    QTest::newRow("20 g carbohydrate, 3.9 g fibre")
        << kuchen << Werte{{u"kh"_s, 20}, {u"bs"_s, 3.9}} << u"D13"_s;
    QTest::newRow("much fibre, but 5.1 g of a fruit's own sugars")
        << u"Obst"_s << Werte{{u"kh"_s, 20}, {u"bs"_s, 8}, {u"sugars"_s, 5.1}} << u"D13"_s;
}

void TestWertungsregeln::diabetes()
{
    pruefen(Wertung::diabetes);
}

void TestWertungsregeln::gout_data()
{
    spalten();
    QTest::newRow("offal") << u"Innereien"_s << Werte{} << u"G1"_s;
    QTest::newRow("fish") << u"Fisch"_s << Werte{} << u"G1"_s;
    QTest::newRow("meat, exactly 25 g protein") << rind << Werte{{u"protein"_s, 25}} << u"G2"_s;
    QTest::newRow("meat, 24.9 g protein") << rind << Werte{{u"protein"_s, 24.9}} << u"G6"_s;
    QTest::newRow("pulses, 25 g protein")
        << u"Hülsenfrüchte"_s << Werte{{u"protein"_s, 25}} << u"G6"_s;
    QTest::newRow("drink, 0.96 g alcohol") << saft << Werte{{u"alcohol"_s, 0.96}} << u"G3"_s;
    QTest::newRow("drink, 0.95 g alcohol") << saft << Werte{{u"alcohol"_s, 0.95}} << u"G11"_s;
    QTest::newRow("drink, 5.1 g sugars") << saft << Werte{{u"sugars"_s, 5.1}} << u"G4"_s;
    QTest::newRow("drink, exactly 5 g sugars") << saft << Werte{{u"sugars"_s, 5}} << u"G9"_s;
    QTest::newRow("drink, exactly 2.5 g sugars") << saft << Werte{{u"sugars"_s, 2.5}} << u"G11"_s;
    QTest::newRow("50.1 g sugars") << kuchen << Werte{{u"sugars"_s, 50.1}} << u"G5"_s;
    QTest::newRow("exactly 50 g sugars") << kuchen << Werte{{u"sugars"_s, 50}} << u"G7"_s;
    QTest::newRow("exactly 22.5 g sugars") << kuchen << Werte{{u"sugars"_s, 22.5}} << u"G11"_s;
    QTest::newRow("seasoning, 60 g sugars") << gewuerz << Werte{{u"sugars"_s, 60}} << u"G11"_s;
    QTest::newRow("beer without alcohol") << u"Bier"_s << Werte{{u"sugars"_s, 1}} << u"G8"_s;
    QTest::newRow("a dish with 0.96 g alcohol")
        << kuchen << Werte{{u"alcohol"_s, 0.96}} << u"G10"_s;
    QTest::newRow("eggs") << u"Eier"_s << Werte{{u"protein"_s, 30}} << u"G11"_s;
}

void TestWertungsregeln::gout()
{
    pruefen(Wertung::gicht);
}

void TestWertungsregeln::heart_data()
{
    spalten();
    QTest::newRow("5.1 g saturated of 16 g fat")
        << kuchen << Werte{{u"fett"_s, 16}, {u"saturated"_s, 5.1}} << u"H1"_s;
    QTest::newRow("exactly 5 g saturated, all of the fat")
        << kuchen << Werte{{u"fett"_s, 5}, {u"saturated"_s, 5}} << u"H8"_s;
    QTest::newRow("6 g saturated, exactly 30 percent of the fat")
        << kuchen << Werte{{u"fett"_s, 20}, {u"saturated"_s, 6}} << u"H7"_s;
    QTest::newRow("201 mg cholesterol") << kuchen << Werte{{u"chol"_s, 201}} << u"H2"_s;
    QTest::newRow("exactly 200 mg cholesterol") << kuchen << Werte{{u"chol"_s, 200}} << u"H8"_s;
    QTest::newRow("exactly 100 mg cholesterol") << kuchen << Werte{{u"chol"_s, 100}} << u"H6"_s;
    QTest::newRow("101 mg cholesterol") << kuchen << Werte{{u"chol"_s, 101}} << u"H8"_s;
    QTest::newRow("1001 mg sodium, much fibre")
        << kuchen << Werte{{u"na"_s, 1001}, {u"bs"_s, 20}} << u"H3"_s;
    QTest::newRow("exactly 1000 mg sodium, much fibre")
        << kuchen << Werte{{u"na"_s, 1000}, {u"bs"_s, 20}} << u"H8"_s;
    QTest::newRow("601 mg sodium, 2.9 g fibre")
        << kuchen << Werte{{u"na"_s, 601}, {u"bs"_s, 2.9}} << u"H4"_s;
    QTest::newRow("601 mg sodium, 3 g fibre")
        << kuchen << Werte{{u"na"_s, 601}, {u"bs"_s, 3}} << u"H8"_s;
    QTest::newRow("exactly 600 mg sodium") << kuchen << Werte{{u"na"_s, 600}} << u"H8"_s;
    QTest::newRow("rice boiled in salted water, 610 mg sodium")
        << reis << Werte{{u"na"_s, 610}} << u"H8"_s;
    QTest::newRow("drink, 0.96 g alcohol") << saft << Werte{{u"alcohol"_s, 0.96}} << u"H5"_s;
    QTest::newRow("1.5 g saturated fat, 120 mg sodium")
        << kuchen << Werte{{u"fett"_s, 2}, {u"saturated"_s, 1.5}, {u"na"_s, 120}} << u"H6"_s;
    QTest::newRow("1.6 g saturated of 2 g fat")
        << kuchen << Werte{{u"fett"_s, 2}, {u"saturated"_s, 1.6}} << u"H8"_s;
    QTest::newRow("121 mg sodium") << kuchen << Werte{{u"na"_s, 121}} << u"H8"_s;
    QTest::newRow("5.1 g free sugars") << kuchen << Werte{{u"sugars"_s, 5.1}} << u"H8"_s;
    QTest::newRow("2 g saturated of 10 g fat")
        << kuchen << Werte{{u"fett"_s, 10}, {u"saturated"_s, 2}} << u"H7"_s;
}

void TestWertungsregeln::heart()
{
    pruefen(Wertung::hkk);
}

void TestWertungsregeln::figuresAreThoseOfTheFoodAsEaten()
{
    Tabellenzeile zeile =
        food(reis, {{u"kal"_s, 352}, {u"kh"_s, 78}, {u"fett"_s, 0.9}, {u"bs"_s, 1}});
    QCOMPARE(wertungsgroessen(zeile).zahl(Groesse::Energie), 352.0);
    zeile.verzehrfertig = 320;
    const Wertungsgroessen gekocht = wertungsgroessen(zeile);
    QCOMPARE(gekocht.zahl(Groesse::Energie), 110.0);
    QCOMPARE(gekocht.zahl(Groesse::Kohlenhydrate), 24.375);
    QCOMPARE(gekocht.zahl(Groesse::Ballaststoffe), 0.3125);
    QCOMPARE(gekocht.zahl(Groesse::KohlenhydrateJeBallaststoff), 78.0);
}

void TestWertungsregeln::sugarsThatBelongToTheFoodAreNotFree_data()
{
    QTest::addColumn<QString>("gruppe");
    QTest::addColumn<double>("zucker");
    QTest::addColumn<double>("frei");
    QTest::newRow("fruit") << u"Obst"_s << 15.0 << 0.0;
    QTest::newRow("canned fruit") << u"Obstkonserven und Kompott"_s << 15.0 << 15.0;
    QTest::newRow("dried fruit") << u"Trockenobst"_s << 60.0 << 60.0;
    QTest::newRow("juice") << saft << 10.0 << 10.0;
    QTest::newRow("milk") << milch << 4.8 << 0.0;
    QTest::newRow("cocoa made with milk") << milch << 9.5 << 4.5;
    QTest::newRow("sweetened yoghurt") << u"Joghurt und Quark"_s << 14.0 << 8.0;
    QTest::newRow("cake") << kuchen << 20.0 << 20.0;
}

void TestWertungsregeln::sugarsThatBelongToTheFoodAreNotFree()
{
    QFETCH(QString, gruppe);
    QFETCH(double, zucker);
    QFETCH(double, frei);
    const Tabellenzeile zeile = food(gruppe, {{u"sugars"_s, zucker}});
    QCOMPARE(wertungsgroessen(zeile).zahl(Groesse::FreierZucker), frei);
}

void TestWertungsregeln::lactoseAndGlucoseHoldNoFructose()
{
    const auto fruktose = [](const Tabellenzeile &zeile) {
        return wertungsgroessen(zeile).zahl(Groesse::Fruktosezucker);
    };
    QCOMPARE(fruktose(food(milch, {{u"sugars"_s, 4.8}})), 0.0);
    QCOMPARE(fruktose(food(milch, {{u"sugars"_s, 9}})), 4.0);
    QCOMPARE(fruktose(food(u"Obst"_s, {{u"sugars"_s, 9}})), 9.0);
    Tabellenzeile zucker = food(u"Zucker und Süßwaren"_s, {{u"kh"_s, 99}, {u"sugars"_s, 98}});
    QCOMPARE(fruktose(zucker), 98.0);
    zucker.zuckerart = Zuckerart::OhneFruktose;
    QCOMPARE(fruktose(zucker), 0.0);
    zucker.zuckerart = Zuckerart::AlleKohlenhydrate;
    QCOMPARE(fruktose(zucker), 99.0);
}

void TestWertungsregeln::aMarkOverridesTheClassOfTheGroup()
{
    const auto regel = [](const Tabellenzeile &zeile) {
        return QString::fromLatin1(
            entscheidendeRegel(Wertung::gicht, wertungsgroessen(zeile))->kennung);
    };
    Tabellenzeile fisch = food(u"Fisch"_s, {{u"protein"_s, 18}});
    QCOMPARE(regel(fisch), u"G1"_s);
    fisch.purin = Purinklasse::Mittel;
    QCOMPARE(regel(fisch), u"G6"_s);
    fisch.purin = Purinklasse::Niedrig;
    QCOMPARE(regel(fisch), u"G11"_s);
    Tabellenzeile gemuese = food(u"Gemüse"_s, {});
    gemuese.purin = Purinklasse::Hoch;
    QCOMPARE(regel(gemuese), u"G1"_s);
}

void TestWertungsregeln::ratiosAreDefinedWithoutADenominator()
{
    const Wertungsgroessen nichts = wertungsgroessen(food(kuchen, {}));
    QCOMPARE(nichts.zahl(Groesse::GesaettigtAnteil), 0.0);
    QCOMPARE(nichts.zahl(Groesse::KohlenhydrateJeBallaststoff), 0.0);
    QCOMPARE(nichts.zahl(Groesse::FreierZuckerAnteil), 0.0);
    const Wertungsgroessen staerke = wertungsgroessen(food(kuchen, {{u"kh"_s, 80}}));
    QVERIFY(qIsInf(staerke.zahl(Groesse::KohlenhydrateJeBallaststoff)));
}

void TestWertungsregeln::aReasonNamesTheFigures()
{
    const Wertungsgroessen cola =
        wertungsgroessen(food(saft, {{u"kal"_s, 40}, {u"sugars"_s, 10}, {u"kh"_s, 10}}));
    const auto *const regel = entscheidendeRegel(Wertung::uebergewicht, cola);
    QCOMPARE(begruendung(*regel, cola), QStringList{u"energy 40 kcal (over 20)"_s});
    const auto *const gicht = entscheidendeRegel(Wertung::gicht, cola);
    QCOMPARE(begruendung(*gicht, cola), QStringList{u"sugars with fructose 10 g (over 5)"_s});
}

QTEST_GUILESS_MAIN(TestWertungsregeln)
#include "TestWertungsregeln.moc"
