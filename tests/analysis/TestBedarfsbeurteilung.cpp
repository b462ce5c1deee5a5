#include "Bedarfsbeurteilung.h"

#include <QTest>

#include <initializer_list>
#include <limits>
#include <utility>

class TestBedarfsbeurteilung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void percentagesAreTruncated_data();
    void percentagesAreTruncated();
    void rowColours_data();
    void rowColours();
    void rowsAboveZeroAreCounted_data();
    void rowsAboveZeroAreCounted();
    void tooFewValuesGiveNoJudgement();
    void theMeanCoverage_data();
    void theMeanCoverage();
    void theOverallJudgement_data();
    void theOverallJudgement();
    void exactly45TakesTheColourOfVitaminC_data();
    void exactly45TakesTheColourOfVitaminC();
    void badValuesDoNoHarm_data();
    void badValuesDoNoHarm();
};

Q_DECLARE_METATYPE(Naehrwert)
Q_DECLARE_METATYPE(Ampel)
Q_DECLARE_METATYPE(Naehrwertreihe)

namespace {

using Werte = std::initializer_list<std::pair<Naehrwert, float>>;

/// Displayed values that are 0 but for those named.
Naehrwertreihe reihe(Werte werte)
{
    Naehrwertreihe anzeige = {};
    for (const auto &[wert, zahl] : werte) {
        anzeige[stelle(wert)] = zahl;
    }
    return anzeige;
}

/// Exactly seven rows above 0: calcium carries `calcium` percent, the five others 1 percent each
/// and vitamin C `vitaminC` percent.
Naehrwertreihe siebenWerte(float kal, float calcium, float vitaminC)
{
    return reihe({{Naehrwert::kal, kal},
                  {Naehrwert::ca, calcium * 10.0F},
                  {Naehrwert::ma, 3.5F},
                  {Naehrwert::na, 5.5F},
                  {Naehrwert::ka, 20.0F},
                  {Naehrwert::ph, 14.0F},
                  {Naehrwert::fe, 0.12F},
                  {Naehrwert::vitc, vitaminC}});
}

const Bedarfszeile &zeileFuer(const Bedarfsbeurteilung &beurteilung, Naehrwert wert)
{
    for (const Bedarfszeile &zeile : beurteilung.zeilen) {
        if (zeile.wert == wert) {
            return zeile;
        }
    }
    qFatal("no such row");
}

constexpr float keineZahl = std::numeric_limits<float>::quiet_NaN();
constexpr float unendlich = std::numeric_limits<float>::infinity();

} // namespace

void TestBedarfsbeurteilung::percentagesAreTruncated_data()
{
    QTest::addColumn<Naehrwert>("wert");
    QTest::addColumn<float>("menge");
    QTest::addColumn<int>("prozent");
    QTest::newRow("1000 mg calcium are 100 percent") << Naehrwert::ca << 1000.0F << 100;
    QTest::newRow("calcium, just below") << Naehrwert::ca << 999.9F << 99;
    QTest::newRow("magnesium") << Naehrwert::ma << 38.4F << 10;
    QTest::newRow("fibre") << Naehrwert::bs << 4.0F << 13;
    QTest::newRow("sodium") << Naehrwert::na << 1100.0F << 200;
    QTest::newRow("potassium") << Naehrwert::ka << 19.9F << 0;
    QTest::newRow("phosphorus") << Naehrwert::ph << 700.0F << 50;
    QTest::newRow("iron") << Naehrwert::fe << 4.0F << 33;
    QTest::newRow("vitamin A, not divided when shown") << Naehrwert::vita << 2500.0F << 250;
    QTest::newRow("vitamin B1, double precision") << Naehrwert::b1 << 0.18F << 15;
    QTest::newRow("vitamin B2, double precision") << Naehrwert::b2 << 0.144F << 8;
    QTest::newRow("vitamin B6, double precision") << Naehrwert::b6 << 0.289F << 16;
    QTest::newRow("vitamin C") << Naehrwert::vitc << 99.99F << 99;
    QTest::newRow("negative, toward zero") << Naehrwert::vitc << -1.9F << -1;
}

void TestBedarfsbeurteilung::percentagesAreTruncated()
{
    QFETCH(Naehrwert, wert);
    QFETCH(float, menge);
    const Bedarfsbeurteilung beurteilung = bedarfBeurteilen(reihe({{wert, menge}}));
    QTEST(zeileFuer(beurteilung, wert).prozent, "prozent");
    for (const Bedarfszeile &zeile : beurteilung.zeilen) {
        QVERIFY(zeile.wert == wert || zeile.prozent == 0);
    }
}

void TestBedarfsbeurteilung::rowColours_data()
{
    QTest::addColumn<Naehrwertreihe>("anzeige");
    QTest::addColumn<Naehrwert>("wert");
    QTest::addColumn<Ampel>("farbe");
    using enum Naehrwert;
    QTest::newRow("calcium below 10 percent is red") << reihe({{ca, 99.0F}}) << ca << Ampel::Rot;
    QTest::newRow("calcium at exactly 10 percent is green")
        << reihe({{ca, 100.0F}}) << ca << Ampel::Gruen;
    QTest::newRow("calcium above 10 percent is green")
        << reihe({{ca, 110.0F}}) << ca << Ampel::Gruen;
    QTest::newRow("exactly 10 percent keeps the green of the row before")
        << reihe({{ca, 100.0F}, {ma, 35.0F}}) << ma << Ampel::Gruen;
    QTest::newRow("exactly 10 percent keeps the red of the row before")
        << reihe({{ca, 99.0F}, {ma, 35.0F}}) << ma << Ampel::Rot;
    QTest::newRow("10.9 percent is 10 after truncation")
        << reihe({{ca, 99.0F}, {ma, 38.4F}}) << ma << Ampel::Rot;
    QTest::newRow("11 percent is green") << reihe({{ma, 38.5F}}) << ma << Ampel::Gruen;
    QTest::newRow("the colour is carried over several rows")
        << reihe({{ca, 500.0F}, {ma, 35.0F}, {bs, 3.0F}, {na, 55.0F}}) << na << Ampel::Gruen;
    QTest::newRow("a red row ends the green")
        << reihe({{ca, 500.0F}, {bs, 3.0F}}) << bs << Ampel::Rot;
    QTest::newRow("vitamin C takes that of vitamin B6")
        << reihe({{b6, 1.7F}, {vitc, 10.0F}}) << vitc << Ampel::Gruen;
    QTest::newRow("0 percent is red") << reihe({{ca, 500.0F}}) << vitc << Ampel::Rot;
    QTest::newRow("negative is red") << reihe({{vitc, -500.0F}}) << vitc << Ampel::Rot;
}

void TestBedarfsbeurteilung::rowColours()
{
    QFETCH(Naehrwertreihe, anzeige);
    QFETCH(Naehrwert, wert);
    QTEST(zeileFuer(bedarfBeurteilen(anzeige), wert).farbe, "farbe");
}

void TestBedarfsbeurteilung::rowsAboveZeroAreCounted_data()
{
    QTest::addColumn<Naehrwertreihe>("anzeige");
    QTest::addColumn<int>("vorhanden");
    using enum Naehrwert;
    QTest::newRow("nothing") << reihe({}) << 0;
    QTest::newRow("below 1 percent does not count") << reihe({{ca, 9.9F}}) << 0;
    QTest::newRow("1 percent counts") << reihe({{ca, 10.0F}}) << 1;
    QTest::newRow("negative does not count") << reihe({{ca, -500.0F}, {ma, 35.0F}}) << 1;
    QTest::newRow("energy, protein, fat, carbohydrate and cholesterol never count")
        << reihe({{kal, 900.0F}, {protein, 90.0F}, {fett, 90.0F}, {kh, 90.0F}, {chol, 90.0F}}) << 0;
    QTest::newRow("seven") << siebenWerte(100.0F, 1.0F, 1.0F) << 7;
    Naehrwertreihe alle;
    alle.fill(1000.0F);
    QTest::newRow("all twelve") << alle << 12;
}

void TestBedarfsbeurteilung::rowsAboveZeroAreCounted()
{
    QFETCH(Naehrwertreihe, anzeige);
    QTEST(bedarfBeurteilen(anzeige).vorhanden, "vorhanden");
}

void TestBedarfsbeurteilung::tooFewValuesGiveNoJudgement()
{
    const Bedarfsbeurteilung sechs = bedarfBeurteilen(siebenWerte(100.0F, 400.0F, 0.0F));
    QCOMPARE(sechs.vorhanden, 6);
    QVERIFY(!sechs.gesamt.has_value());
    QCOMPARE(sechs.boxtitel, QStringLiteral("keine Beurteilung möglich"));
    QCOMPARE(sechs.balkenlaenge, 0);

    const Bedarfsbeurteilung sieben = bedarfBeurteilen(siebenWerte(100.0F, 400.0F, 1.0F));
    QCOMPARE(sieben.vorhanden, 7);
    QVERIFY(sieben.gesamt.has_value());
}

void TestBedarfsbeurteilung::theMeanCoverage_data()
{
    QTest::addColumn<Naehrwertreihe>("anzeige");
    QTest::addColumn<int>("gesamt");
    // The sum of siebenWerte is the percentage of calcium + 5 + that of vitamin C.
    QTest::newRow("100 kcal, the sum itself") << siebenWerte(100.0F, 20.0F, 7.0F) << 32;
    QTest::newRow("199.9 kcal count as one hundred") << siebenWerte(199.9F, 20.0F, 7.0F) << 32;
    QTest::newRow("300 kcal, whole division") << siebenWerte(300.0F, 20.0F, 7.0F) << 10;
    QTest::newRow("below 100 kcal") << siebenWerte(99.0F, 200.0F, 7.0F) << 0;
    QTest::newRow("no energy") << siebenWerte(0.0F, 200.0F, 7.0F) << 0;
    QTest::newRow("negative energy, toward zero") << siebenWerte(-250.0F, 20.0F, 8.0F) << -16;
    QTest::newRow("-99 kcal count as none") << siebenWerte(-99.0F, 20.0F, 8.0F) << 0;

    Naehrwertreihe vitaminA = siebenWerte(100.0F, 20.0F, 7.0F);
    vitaminA[stelle(Naehrwert::vita)] = 9999.0F; // 999 percent
    QTest::newRow("999 percent of vitamin A add nothing") << vitaminA << 32;
    vitaminA[stelle(Naehrwert::vita)] = 29999.0F; // 2999 percent
    QTest::newRow("2999 percent of vitamin A add 2") << vitaminA << 34;
    vitaminA[stelle(Naehrwert::vita)] = -29999.0F;
    QTest::newRow("-2999 percent of vitamin A take 2") << vitaminA << 30;

    Naehrwertreihe rest = siebenWerte(100.0F, 20.0F, 7.0F);
    rest[stelle(Naehrwert::bs)] = 3.0F;  // 10 percent
    rest[stelle(Naehrwert::b1)] = 0.18F; // 15 percent
    rest[stelle(Naehrwert::b2)] = 0.4F;  // 25 percent
    rest[stelle(Naehrwert::b6)] = 0.34F; // 20 percent
    QTest::newRow("fibre and the B vitamins add in full") << rest << 102;

    Naehrwertreihe ungeheuer;
    ungeheuer.fill(1e30F);
    ungeheuer[stelle(Naehrwert::kal)] = 100.0F;
    QTest::newRow("a sum beyond 32 bits is held at the limit") << ungeheuer << 2147483647;
    // 11 x 2147483647 + 2147483 = 23624467600, over 100 = 236244676
    ungeheuer[stelle(Naehrwert::kal)] = 10000.0F;
    QTest::newRow("a sum beyond 32 bits, divided") << ungeheuer << 236244676;
}

void TestBedarfsbeurteilung::theMeanCoverage()
{
    QFETCH(Naehrwertreihe, anzeige);
    const Bedarfsbeurteilung beurteilung = bedarfBeurteilen(anzeige);
    QVERIFY(beurteilung.gesamt.has_value());
    QTEST(beurteilung.gesamt->wert, "gesamt");
    QTEST(beurteilung.balkenlaenge, "gesamt");
    QCOMPARE(beurteilung.gesamt->zuWenigEnergie, beurteilung.gesamt->wert == 0);
}

void TestBedarfsbeurteilung::theOverallJudgement_data()
{
    QTest::addColumn<float>("kal");
    QTest::addColumn<float>("calcium"); // percent; the sum is this + 10
    QTest::addColumn<int>("gesamt");
    QTest::addColumn<Ampel>("farbe");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("titel");
    const auto zwei = QStringLiteral("  ");
    const auto drei = QStringLiteral("   ");
    QTest::newRow("99 kcal: 0, red, code 1") << 99.0F << 300.0F << 0 << Ampel::Rot << 1 << drei;
    QTest::newRow("9 is red") << 200.0F << 9.0F << 9 << Ampel::Rot << 1 << drei;
    QTest::newRow("exactly 10 is blue") << 200.0F << 10.0F << 10 << Ampel::Blau << 2 << zwei;
    QTest::newRow("44 is blue") << 100.0F << 34.0F << 44 << Ampel::Blau << 2 << zwei;
    QTest::newRow("46 is green") << 100.0F << 36.0F << 46 << Ampel::Gruen << 3 << drei;
    QTest::newRow("far above") << 100.0F << 990.0F << 1000 << Ampel::Gruen << 3 << drei;
    QTest::newRow("negative is red") << -100.0F << 50.0F << -60 << Ampel::Rot << 1 << drei;
}

void TestBedarfsbeurteilung::theOverallJudgement()
{
    QFETCH(float, kal);
    QFETCH(float, calcium);
    const Bedarfsbeurteilung beurteilung = bedarfBeurteilen(siebenWerte(kal, calcium, 5.0F));
    QVERIFY(beurteilung.gesamt.has_value());
    QTEST(beurteilung.gesamt->wert, "gesamt");
    QTEST(beurteilung.gesamt->farbe, "farbe");
    QTEST(beurteilung.gesamt->balkencode, "code");
    QVERIFY(beurteilung.boxtitel.has_value());
    QTEST(*beurteilung.boxtitel, "titel");
}

void TestBedarfsbeurteilung::exactly45TakesTheColourOfVitaminC_data()
{
    QTest::addColumn<float>("calcium");
    QTest::addColumn<float>("vitaminC");
    QTest::addColumn<Ampel>("farbe");
    QTest::newRow("vitamin C red") << 35.0F << 5.0F << Ampel::Rot;
    QTest::newRow("vitamin C green") << 20.0F << 20.0F << Ampel::Gruen;
    // Vitamin C at exactly 10 percent carries the red of vitamin B6 (0 percent) on.
    QTest::newRow("vitamin C carried over") << 30.0F << 10.0F << Ampel::Rot;
}

void TestBedarfsbeurteilung::exactly45TakesTheColourOfVitaminC()
{
    QFETCH(float, calcium);
    QFETCH(float, vitaminC);
    const Bedarfsbeurteilung beurteilung = bedarfBeurteilen(siebenWerte(100.0F, calcium, vitaminC));
    QVERIFY(beurteilung.gesamt.has_value());
    QCOMPARE(beurteilung.gesamt->wert, 45);
    QTEST(beurteilung.gesamt->farbe, "farbe");
    QCOMPARE(beurteilung.gesamt->balkencode, 0);
    QVERIFY2(!beurteilung.boxtitel.has_value(), "the title stays as it was");
    QCOMPARE(beurteilung.balkenlaenge, 45);
}

void TestBedarfsbeurteilung::badValuesDoNoHarm_data()
{
    QTest::addColumn<float>("zahl");
    QTest::addColumn<int>("prozent");
    QTest::newRow("no number is 0 percent") << keineZahl << 0;
    QTest::newRow("infinite") << unendlich << 2147483647;
    QTest::newRow("minus infinite") << -unendlich << (-2147483647 - 1);
    QTest::newRow("largest") << std::numeric_limits<float>::max() << 2147483647;
}

void TestBedarfsbeurteilung::badValuesDoNoHarm()
{
    QFETCH(float, zahl);
    QFETCH(int, prozent);
    Naehrwertreihe anzeige;
    anzeige.fill(zahl);
    const Bedarfsbeurteilung beurteilung = bedarfBeurteilen(anzeige);
    for (const Bedarfszeile &zeile : beurteilung.zeilen) {
        QCOMPARE(zeile.prozent, prozent);
    }
    QCOMPARE(beurteilung.gesamt.has_value(), prozent > 0);
}

QTEST_GUILESS_MAIN(TestBedarfsbeurteilung)
#include "TestBedarfsbeurteilung.moc"
