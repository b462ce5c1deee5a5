#include "Planregeln.h"

#include <QTest>

#include <cmath>
#include <initializer_list>
#include <limits>

class TestPlanregeln : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theRulesFollowTheNutrients();
    void bands_data();
    void bands();
    void points_data();
    void points();
    void percentagesAreShownWithOneDecimal();
    void energyPercentage_data();
    void energyPercentage();
    void macronutrientPercentage_data();
    void macronutrientPercentage();
    void whatAHundredPercentAre_data();
    void whatAHundredPercentAre();
    void otherPercentages_data();
    void otherPercentages();
    void badTotalsDoNoHarm();
};

Q_DECLARE_METATYPE(Naehrwert)

namespace {

constexpr int keinBand = 0;
constexpr float keineZahl = std::numeric_limits<float>::quiet_NaN();
constexpr float unendlich = std::numeric_limits<float>::infinity();

const Planregel &regel(Naehrwert wert)
{
    return planregeln[stelle(wert)];
}

using Paare = std::initializer_list<std::pair<double, int>>;

/// One data row for each nutrient and percentage.
void zeilen(std::initializer_list<Naehrwert> werte, Paare paare)
{
    for (const Naehrwert wert : werte) {
        for (const auto &[prozent, antwort] : paare) {
            QTest::addRow("%s at %.2f percent", beschreibung(wert).kennung, prozent)
                << wert << prozent << antwort;
        }
    }
}

} // namespace

void TestPlanregeln::theRulesFollowTheNutrients()
{
    for (std::size_t i = 0; i < planregeln.size(); ++i) {
        QCOMPARE(stelle(planregeln.at(i).wert), i);
    }
}

void TestPlanregeln::bands_data()
{
    using enum Naehrwert;
    QTest::addColumn<Naehrwert>("wert");
    QTest::addColumn<double>("prozent");
    QTest::addColumn<int>("code");
    const double nan = static_cast<double>(keineZahl);
    const double oben = static_cast<double>(unendlich);
    zeilen({kal, protein, fett, kh}, {{-5, 1},
                                      {0, 1},
                                      {29.99, 1},
                                      {30, 2},
                                      {69.99, 2},
                                      {70, 3},
                                      {109.99, 3},
                                      {110, 2},
                                      {119.99, 2},
                                      {120, 1},
                                      {500, 1},
                                      {oben, 1},
                                      {-oben, 1},
                                      {nan, keinBand}});
    zeilen({bs}, {{-5, 1},
                  {0, 1},
                  {29.99, 1},
                  {30, 2},
                  {69.99, 2},
                  {70, 3},
                  {500, 3},
                  {oben, 3},
                  {nan, keinBand}});
    zeilen({chol}, {{-5, 1},
                    {0, 1},
                    {29.99, 1},
                    {30, 2},
                    {69.99, 2},
                    {70, 3},
                    {100, 3},
                    {100.01, 1},
                    {120, 1},
                    {oben, 1},
                    {nan, keinBand}});
    zeilen({na, ka, ca, ph, ma}, {{-5, 1},
                                  {0, 1},
                                  {39.99, 1},
                                  {40, 2},
                                  {69.99, 2},
                                  {70, 3},
                                  {100, 3},
                                  {100.01, 2},
                                  {119.99, 2},
                                  {120, keinBand},
                                  {120.01, 1},
                                  {oben, 1},
                                  {nan, keinBand}});
    zeilen({fe}, {{-5, 1},
                  {0, 1},
                  {39.99, 1},
                  {40, 2},
                  {69.99, 2},
                  {70, 3},
                  {100, 3},
                  {100.01, 1},
                  {119.99, 1},
                  {120, keinBand},
                  {120.01, 1},
                  {oben, 1},
                  {nan, keinBand}});
    zeilen({vita, b1, b2, b6, vitc}, {{-5, 1},
                                      {0, 1},
                                      {39.99, 1},
                                      {40, 2},
                                      {69.99, 2},
                                      {70, 3},
                                      {120, 3},
                                      {120.01, 2},
                                      {140, 2},
                                      {140.01, 1},
                                      {oben, 1},
                                      {nan, keinBand}});
}

void TestPlanregeln::bands()
{
    QFETCH(Naehrwert, wert);
    QFETCH(double, prozent);
    QTEST(letzteStufe(regel(wert).baender, prozent).value_or(keinBand), "code");
}

void TestPlanregeln::points_data()
{
    using enum Naehrwert;
    QTest::addColumn<Naehrwert>("wert");
    QTest::addColumn<double>("prozent");
    QTest::addColumn<int>("punkt");
    const double nan = static_cast<double>(keineZahl);
    zeilen({kal, protein, fett, kh, na, ka, ca, ph, ma, fe, b1, b2, b6, vitc},
           {{0, 0}, {69.99, 0}, {70, 1}, {109.99, 1}, {110, 0}, {nan, 0}});
    zeilen({bs}, {{0, 0}, {69.99, 0}, {70, 1}, {500, 1}, {nan, 0}});
    zeilen({chol}, {{0, 0}, {29.99, 0}, {30, 1}, {70, 1}, {70.01, 0}, {100, 0}, {nan, 0}});
    zeilen({vita}, {{0, 0}, {69.99, 0}, {70, 1}, {99.99, 1}, {100, 0}, {105, 0}, {nan, 0}});
}

void TestPlanregeln::points()
{
    QFETCH(Naehrwert, wert);
    QFETCH(double, prozent);
    QTEST(static_cast<int>(regel(wert).punkt.enthaelt(prozent)), "punkt");
}

void TestPlanregeln::percentagesAreShownWithOneDecimal()
{
    QCOMPARE_EQ(gezeigterProzentsatz(69.94999), 69.9);
    QCOMPARE_EQ(gezeigterProzentsatz(69.96), 70.0);
    QCOMPARE_EQ(gezeigterProzentsatz(70.04), 70.0);
    QCOMPARE_EQ(gezeigterProzentsatz(0.0), 0.0);
    QVERIFY(std::isnan(gezeigterProzentsatz(static_cast<double>(keineZahl))));
    QVERIFY(std::isinf(gezeigterProzentsatz(static_cast<double>(unendlich))));
}

void TestPlanregeln::energyPercentage_data()
{
    QTest::addColumn<float>("summe");
    QTest::addColumn<int>("bedarf");
    QTest::addColumn<double>("prozent");
    QTest::newRow("more than half") << 1110.0F << 2000 << 55.5;
    QTest::newRow("in single precision") << 1000.0F << 3000 << static_cast<double>(33.333333F);
    QTest::newRow("no requirement") << 1110.0F << 0 << 0.0;
    QTest::newRow("no energy") << 0.0F << 2000 << 0.0;
    QTest::newRow("negative requirement") << 500.0F << -1000 << -50.0;
}

void TestPlanregeln::energyPercentage()
{
    QFETCH(float, summe);
    QFETCH(int, bedarf);
    QFETCH(double, prozent);
    QCOMPARE_EQ(planprozent(regel(Naehrwert::kal).bezug, summe, bedarf), prozent);
}

void TestPlanregeln::macronutrientPercentage_data()
{
    using enum Naehrwert;
    QTest::addColumn<Naehrwert>("wert");
    QTest::addColumn<float>("gramm");
    QTest::addColumn<int>("bedarf");
    QTest::addColumn<double>("prozent");
    QTest::newRow("protein: 240 kcal of 400") << protein << 60.0F << 2000 << 60.0;
    QTest::newRow("fat: 270 kcal of 600") << fett << 30.0F << 2000 << 45.0;
    QTest::newRow("carbohydrate: 600 kcal of 1000") << kh << 150.0F << 2000 << 60.0;
    QTest::newRow("kcal are cut off first: 7 of 10") << protein << 1.9375F << 50 << 70.0;
    QTest::newRow("the part is cut off too: 10 of 10") << protein << 2.5F << 54 << 100.0;
    QTest::newRow("the quotient is cut off: 2/3") << protein << 0.5F << 15 << 66.0;
    QTest::newRow("fat of 1999: 599") << fett << 66.6667F << 1999 << 100.0;
    QTest::newRow("carbohydrate of 1999: 999") << kh << 250.0F << 1999 << 100.0;
    QTest::newRow("negative, toward zero") << protein << -0.5F << 15 << -66.0;
    QTest::newRow("no requirement") << fett << 30.0F << 0 << 0.0;
    // 4,000,000 of 400,000,001 kcal; single precision would want 400,000,000 and see 1 percent.
    QTest::newRow("the part is worked out in double precision")
        << protein << 1e6F << 2000000009 << 0.0;
    QTest::newRow("a requirement of which the part is 0") << protein << 30.0F << 4 << 0.0;
    QTest::newRow("negative requirement of which the part is 0") << protein << 30.0F << -4 << 0.0;
    // 2147483647 kcal x 100 / 1
    QTest::newRow("held at the limit") << protein << 1e30F << 5 << 2147483647.0;
    QTest::newRow("no number is 0") << kh << keineZahl << 2000 << 0.0;
}

void TestPlanregeln::macronutrientPercentage()
{
    QFETCH(Naehrwert, wert);
    QFETCH(float, gramm);
    QFETCH(int, bedarf);
    QFETCH(double, prozent);
    QCOMPARE_EQ(planprozent(regel(wert).bezug, gramm, bedarf), prozent);
}

void TestPlanregeln::otherPercentages_data()
{
    using enum Naehrwert;
    QTest::addColumn<Naehrwert>("wert");
    QTest::addColumn<float>("summe");
    QTest::addColumn<double>("prozent");
    QTest::newRow("fibre of 30") << bs << 15.0F << 50.0;
    QTest::newRow("cholesterol of 200") << chol << 150.0F << 75.0;
    QTest::newRow("sodium of 550") << na << 660.0F << 120.0;
    QTest::newRow("potassium of 2000") << ka << 500.0F << 25.0;
    QTest::newRow("calcium of 1000") << ca << 105.0F << 10.5;
    QTest::newRow("phosphorus of 1400") << ph << 350.0F << 25.0;
    QTest::newRow("magnesium of 350") << ma << 70.0F << 20.0;
    QTest::newRow("iron of 12") << fe << 14.4F << 120.0;
    QTest::newRow("vitamin A of 1000") << vita << 1050.0F << 105.0;
    QTest::newRow("vitamin B1 of 1.2") << b1 << 0.375F << 31.25;
    QTest::newRow("vitamin B2 of 1.6") << b2 << 2.0F << 125.0;
    QTest::newRow("vitamin B6 of 1.7") << b6 << 2.04F << 120.0;
    QTest::newRow("vitamin C of 100") << vitc << 12.5F << 12.5;
    QTest::newRow("a third, single precision") << fe << 4.0F << static_cast<double>(33.333333F);
    // In double 8.99999976158..., of which single precision keeps 8.999999762.
    QTest::newRow("divided in double, kept in single")
        << b2 << 0.144F << static_cast<double>(8.9999998F);
    QTest::newRow("single precision would give 14.999999") << b1 << 0.18F << 15.0;
}

void TestPlanregeln::otherPercentages()
{
    QFETCH(Naehrwert, wert);
    QFETCH(float, summe);
    QFETCH(double, prozent);
    QCOMPARE_EQ(planprozent(regel(wert).bezug, summe, 2000), prozent);
    QCOMPARE_EQ(planprozent(regel(wert).bezug, summe, 0), prozent);
}

void TestPlanregeln::badTotalsDoNoHarm()
{
    for (const Planregel &zeile : planregeln) {
        const bool ganz = std::holds_alternative<Anteilsbezug>(zeile.bezug);
        const double ohneZahl = planprozent(zeile.bezug, keineZahl, 2000);
        QVERIFY(ganz ? ohneZahl == 0.0 : qIsNaN(ohneZahl));
        const double hoch = planprozent(zeile.bezug, unendlich, 2000);
        QVERIFY(ganz ? hoch > 1e8 : qIsInf(hoch));
    }
}

void TestPlanregeln::whatAHundredPercentAre_data()
{
    QTest::addColumn<Naehrwert>("wert");
    QTest::addColumn<int>("energiebedarf");
    QTest::addColumn<double>("bedarf"); // -1: there is none
    QTest::newRow("energy") << Naehrwert::kal << 2000 << 2000.0;
    QTest::newRow("protein") << Naehrwert::protein << 2000 << 100.0;
    QTest::newRow("carbohydrate") << Naehrwert::kh << 2000 << 250.0;
    QTest::newRow("fat") << Naehrwert::fett << 2100 << 70.0;
    QTest::newRow("a part is cut off to whole kcal") << Naehrwert::protein << 2004 << 100.0;
    QTest::newRow("cholesterol") << Naehrwert::chol << 2000 << 200.0;
    QTest::newRow("vitamin B1") << Naehrwert::b1 << 2000 << 1.2;
    QTest::newRow("energy, unknown") << Naehrwert::kal << 0 << -1.0;
    QTest::newRow("fat, unknown") << Naehrwert::fett << 0 << -1.0;
    QTest::newRow("a part of next to nothing") << Naehrwert::protein << 4 << -1.0;
    QTest::newRow("an amount a day is always known") << Naehrwert::ca << 0 << 1000.0;
}

void TestPlanregeln::whatAHundredPercentAre()
{
    QFETCH(Naehrwert, wert);
    QFETCH(int, energiebedarf);
    QFETCH(double, bedarf);
    QCOMPARE(planbedarf(regel(wert).bezug, energiebedarf).value_or(-1.0), bedarf);
}

QTEST_GUILESS_MAIN(TestPlanregeln)
#include "TestPlanregeln.moc"
