#include "Prognose.h"

#include <QTest>

#include <cmath>
#include <limits>

class TestPrognose : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void weightChange_data();
    void weightChange();
    void noChangeHasNoSign();
    void negativeDaysLoseTheirSign_data();
    void negativeDaysLoseTheirSign();
    void bodyMassIndex_data();
    void bodyMassIndex();
    void daysForALoss_data();
    void daysForALoss();
    void daysAndProjectionFitTogether_data();
    void daysAndProjectionFitTogether();
};

namespace {

constexpr float keineZahl = std::numeric_limits<float>::quiet_NaN();
constexpr float unendlich = std::numeric_limits<float>::infinity();
constexpr int groesste = std::numeric_limits<int>::max();
constexpr int kleinste = std::numeric_limits<int>::min();

float aenderung(float tage, int bedarf, int errechnet)
{
    return Prognose::verlustberechnen(
               {.tage = tage, .bedarf = bedarf, .errechnet = errechnet, .gewicht = 0, .groesse = 0})
        .gewichtsverlust;
}

} // namespace

void TestPrognose::weightChange_data()
{
    QTest::addColumn<float>("tage");
    QTest::addColumn<int>("bedarf");
    QTest::addColumn<int>("errechnet");
    QTest::addColumn<float>("erwartet");
    QTest::newRow("a week at 700 kcal less") << 7.0F << 2500 << 1800 << -0.7F;
    QTest::newRow("20 days at 700 kcal less") << 20.0F << 2500 << 1800 << -2.0F;
    QTest::newRow("more than needed is a gain") << 7.0F << 1800 << 2500 << 0.7F;
    QTest::newRow("just as much") << 7.0F << 2000 << 2000 << 0.0F;
    QTest::newRow("no days") << 0.0F << 2500 << 1800 << 0.0F;
    QTest::newRow("a fraction of a day does not count") << 7.9F << 2500 << 1800 << -0.7F;
    QTest::newRow("less than a day is none") << 0.9F << 2500 << 1800 << 0.0F;
    QTest::newRow("negative days count as days") << -14.0F << 2500 << 1500 << -2.0F;
    QTest::newRow("no requirement known") << 7.0F << 0 << 1000 << 1.0F;
    // 4294967295 kcal, in single precision 4294967296, / 7000 = 613566.756...
    QTest::newRow("the difference does not run over")
        << 1.0F << groesste << kleinste << -4294967296.0F / 7000.0F;
    QTest::newRow("too many days are held at the limit")
        << unendlich << 7000 << 0 << -2147483648.0F;
    QTest::newRow("days that are no number are none") << keineZahl << 2500 << 1800 << 0.0F;
}

void TestPrognose::weightChange()
{
    QFETCH(float, tage);
    QFETCH(int, bedarf);
    QFETCH(int, errechnet);
    QFETCH(float, erwartet);
    QCOMPARE_EQ(aenderung(tage, bedarf, errechnet), erwartet);
}

void TestPrognose::noChangeHasNoSign()
{
    QVERIFY(!std::signbit(aenderung(7.0F, 2000, 2000)));
    QVERIFY(!std::signbit(aenderung(0.0F, 2500, 1800)));
}

void TestPrognose::negativeDaysLoseTheirSign_data()
{
    QTest::addColumn<float>("tage");
    QTest::addColumn<float>("erwartet"); // the same number: the field stays as it is
    QTest::newRow("-14") << -14.0F << 14.0F;
    QTest::newRow("-0.5") << -0.5F << 0.5F;
    QTest::newRow("14 stays") << 14.0F << 14.0F;
    QTest::newRow("0 stays") << 0.0F << 0.0F;
}

void TestPrognose::negativeDaysLoseTheirSign()
{
    QFETCH(float, tage);
    QFETCH(float, erwartet);
    const auto verlauf = Prognose::verlustberechnen(
        {.tage = tage, .bedarf = 2000, .errechnet = 1000, .gewicht = 80, .groesse = 1.8F});
    QCOMPARE(verlauf.tage.has_value(), tage < 0);
    QCOMPARE_EQ(verlauf.tage.value_or(tage), erwartet);
}

void TestPrognose::bodyMassIndex_data()
{
    QTest::addColumn<float>("gewicht");
    QTest::addColumn<float>("groesse");
    QTest::addColumn<float>("bmi");
    QTest::addColumn<float>("bmiNeu");
    // 80 / 3.2399998 and 79.3 / 3.2399998
    QTest::newRow("80 kg at 1.80 m") << 80.0F << 1.8F << 24.69136F << 24.475311F;
    QTest::newRow("100.7 kg at 2 m") << 100.7F << 2.0F << 25.175F << 25.0F;
    QTest::newRow("no height received yet") << 80.0F << 0.0F << 0.0F << 0.0F;
    QTest::newRow("no weight received yet") << 0.0F << 1.0F << 0.0F << -0.7F;
    QTest::newRow("neither") << 0.0F << 0.0F << 0.0F << 0.0F;
}

void TestPrognose::bodyMassIndex()
{
    QFETCH(float, gewicht);
    QFETCH(float, groesse);
    QFETCH(float, bmi);
    QFETCH(float, bmiNeu);
    const auto verlauf = Prognose::verlustberechnen(
        {.tage = 7, .bedarf = 2500, .errechnet = 1800, .gewicht = gewicht, .groesse = groesse});
    QCOMPARE_EQ(verlauf.gewichtsverlust, -0.7F);
    QCOMPARE_EQ(verlauf.bmi, bmi);
    QCOMPARE_EQ(verlauf.bmiNeu, bmiNeu);
}

void TestPrognose::daysForALoss_data()
{
    QTest::addColumn<float>("verlust");
    QTest::addColumn<int>("bedarf");
    QTest::addColumn<int>("errechnet");
    QTest::addColumn<float>("erwartet");
    QTest::newRow("2 kg at 0.1 kg a day") << 2.0F << 2500 << 1800 << 20.0F;
    QTest::newRow("not a whole number of days") << 1.0F << 2000 << 1125 << 8.0F;
    QTest::newRow("more than needed: negative days") << 2.0F << 1000 << 1875 << -16.0F;
    QTest::newRow("just as much: 0 days") << 2.0F << 2000 << 2000 << 0.0F;
    QTest::newRow("no loss wanted") << 0.0F << 2500 << 1800 << 0.0F;
    QTest::newRow("a gain wanted, plan below") << -1.0F << 2000 << 1125 << -8.0F;
    QTest::newRow("7000 kcal missing a day") << 1.5F << 7000 << 0 << 1.5F;
    QTest::newRow("the difference does not run over")
        << 1.0F << kleinste << groesste << 1.0F / (-4294967296.0F / 7000.0F);
}

void TestPrognose::daysForALoss()
{
    QFETCH(float, verlust);
    QFETCH(int, bedarf);
    QFETCH(int, errechnet);
    QFETCH(float, erwartet);
    QCOMPARE_EQ(Prognose::tageberechnen(verlust, bedarf, errechnet), erwartet);
}

void TestPrognose::daysAndProjectionFitTogether_data()
{
    QTest::addColumn<float>("verlust");
    QTest::addColumn<int>("bedarf");
    QTest::addColumn<int>("errechnet");
    QTest::addColumn<float>("tage");
    QTest::addColumn<float>("aenderung");
    QTest::newRow("2 kg in 20 days") << 2.0F << 2500 << 1800 << 20.0F << -2.0F;
    QTest::newRow("above the requirement: 16 days, a gain")
        << 2.0F << 1000 << 1875 << 16.0F << 2.0F;
    QTest::newRow("just as much") << 2.0F << 2000 << 2000 << 0.0F << 0.0F;
    // 1 kg at 0.3 kg a day: 3.33 days, of which three count.
    QTest::newRow("only whole days are projected") << 1.0F << 2100 << 0 << 1.0F / 0.3F << -0.9F;
}

void TestPrognose::daysAndProjectionFitTogether()
{
    QFETCH(float, verlust);
    QFETCH(int, bedarf);
    QFETCH(int, errechnet);
    QFETCH(float, tage);
    const float errechneteTage = Prognose::tageberechnen(verlust, bedarf, errechnet);
    const auto verlauf = Prognose::verlustberechnen({.tage = errechneteTage,
                                                     .bedarf = bedarf,
                                                     .errechnet = errechnet,
                                                     .gewicht = 80,
                                                     .groesse = 1.8F});
    QCOMPARE_EQ(verlauf.tage.value_or(errechneteTage), tage);
    QFETCH(float, aenderung);
    QCOMPARE_EQ(verlauf.gewichtsverlust, aenderung);
}

QTEST_GUILESS_MAIN(TestPrognose)
#include "TestPrognose.moc"
