#include "Gewichtsverlauf.h"

#include <QTest>

#include <cmath>
#include <limits>

class TestGewichtsverlauf : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void weightsAfterEachWeek_data();
    void weightsAfterEachWeek();
    void eachWeekLosesLessThanTheOneBefore();
    void theFirstDifferenceIsOneOfWholeNumbers();
    void aDifferenceBeyond32BitsIsNotWrapped();
    void aWeekThatEndsAtZeroLeavesNoRequirement();
    void senselessFiguresComeToAnEnd();
    void weightsOfTheHealthyBand_data();
    void weightsOfTheHealthyBand();
};

namespace {

constexpr int kleinste = std::numeric_limits<int>::min();
constexpr int groesste = std::numeric_limits<int>::max();

bool fastGleich(float ist, double soll)
{
    return std::abs(double{ist} - soll) <= std::abs(soll) * 1e-6;
}

} // namespace

void TestGewichtsverlauf::weightsAfterEachWeek_data()
{
    QTest::addColumn<float>("gewicht");
    QTest::addColumn<int>("bedarf");
    QTest::addColumn<int>("aufnahme");
    QTest::addColumn<QList<double>>("soll"); // today, then weeks 1 to 4

    // 1000 kcal a day too little are 7000 a week, a kilogram. From then on 31.25 kcal are needed
    // for each kilogram: 2468.75, 2438.4765625 and 2409.149169921875 kcal in weeks 2, 3 and 4.
    QTest::newRow("80 kg, 2500 needed, 1500 eaten")
        << 80.0F << 2500 << 1500
        << QList<double>{80, 79, 78.03125, 77.0927734375, 76.183624267578125};
    // 20 kcal per kilogram: 1960, 1920.8 and 1882.384 needed.
    QTest::newRow("nothing eaten")
        << 100.0F << 2000 << 0 << QList<double>{100, 98, 96.04, 94.1192, 92.236816};
    // 20 kcal per kilogram: 2020, 2039.8 and 2059.402 needed, the plan holds 1000 more than at
    // first.
    QTest::newRow("more eaten than needed")
        << 100.0F << 2000 << 3000 << QList<double>{100, 101, 101.98, 102.9404, 103.881592};
    QTest::newRow("intake equal to requirement")
        << 80.0F << 2500 << 2500 << QList<double>{80, 80, 80, 80, 80};
    QTest::newRow("no requirement known")
        << 100.0F << 0 << 10000 << QList<double>{100, 110, 120, 130, 140};
    QTest::newRow("weight 0: a flat line at 0")
        << 0.0F << 2500 << 1500 << QList<double>{0, 0, 0, 0, 0};
    QTest::newRow("nothing known") << 0.0F << 0 << 0 << QList<double>{0, 0, 0, 0, 0};
}

void TestGewichtsverlauf::weightsAfterEachWeek()
{
    QFETCH(float, gewicht);
    QFETCH(int, bedarf);
    QFETCH(int, aufnahme);
    QFETCH(QList<double>, soll);
    const Wochengewichte ist = gewichtsverlauf(gewicht, bedarf, aufnahme);
    for (std::size_t woche = 0; woche < ist.size(); ++woche) {
        QVERIFY2(fastGleich(ist[woche], soll[static_cast<qsizetype>(woche)]),
                 qPrintable(QStringLiteral("week %1: %2").arg(woche).arg(ist[woche], 0, 'g', 9)));
    }
}

void TestGewichtsverlauf::eachWeekLosesLessThanTheOneBefore()
{
    const Wochengewichte gewichte = gewichtsverlauf(80, 2500, 1500);
    QCOMPARE(gewichte[1], 79.0F);
    for (std::size_t woche = 2; woche < gewichte.size(); ++woche) {
        const float verlust = gewichte[woche - 1] - gewichte[woche];
        QVERIFY(verlust > 0);
        QVERIFY(verlust < gewichte[woche - 2] - gewichte[woche - 1]);
    }
}

void TestGewichtsverlauf::theFirstDifferenceIsOneOfWholeNumbers()
{
    // As floats 16777217 and 16777216 are the same number; as whole numbers they are one apart, and
    // 7 x 1 / 7000 of a kilogram is to be seen at a weight of 1 kg.
    QVERIFY(fastGleich(gewichtsverlauf(1, 16777217, 16777216)[1], 0.999));
}

void TestGewichtsverlauf::aDifferenceBeyond32BitsIsNotWrapped()
{
    // 4294967295 kcal are 4294967.295 kg a week.
    QVERIFY(fastGleich(gewichtsverlauf(100, groesste, kleinste)[1], 100 - 4294967.295));
    QVERIFY(fastGleich(gewichtsverlauf(100, kleinste, groesste)[1], 100 + 4294967.295));
}

void TestGewichtsverlauf::aWeekThatEndsAtZeroLeavesNoRequirement()
{
    // 1000 kcal a day too little take the one kilogram there is. Nothing weighs nothing and needs
    // nothing; the 500 kcal eaten are half a kilogram a week from then on.
    QCOMPARE(gewichtsverlauf(1, 1500, 500), (Wochengewichte{1.0F, 0.0F, 0.5F, 1.0F, 1.5F}));
}

void TestGewichtsverlauf::senselessFiguresComeToAnEnd()
{
    for (const float gewicht : {-80.0F, 1e-38F, 3e38F, std::numeric_limits<float>::infinity(),
                                std::numeric_limits<float>::quiet_NaN()}) {
        for (const int bedarf : {kleinste, -1, 0, groesste}) {
            for (const int aufnahme : {kleinste, 0, groesste}) {
                const Wochengewichte gewichte = gewichtsverlauf(gewicht, bedarf, aufnahme);
                QVERIFY(gewichte[0] == gewicht || std::isnan(gewicht));
            }
        }
    }
}

void TestGewichtsverlauf::weightsOfTheHealthyBand_data()
{
    QTest::addColumn<float>("groesse");
    QTest::addColumn<double>("unten");
    QTest::addColumn<double>("oben");
    QTest::newRow("1.80 m") << 1.8F << 64.8 << 81.0;
    QTest::newRow("1.60 m") << 1.6F << 51.2 << 64.0;
    QTest::newRow("2 m") << 2.0F << 80.0 << 100.0;
    QTest::newRow("no height") << 0.0F << 0.0 << 0.0;
}

void TestGewichtsverlauf::weightsOfTheHealthyBand()
{
    QFETCH(float, groesse);
    QFETCH(double, unten);
    QFETCH(double, oben);
    QVERIFY(fastGleich(gewichtBeiBmi(20, groesse), unten));
    QVERIFY(fastGleich(gewichtBeiBmi(25, groesse), oben));
}

QTEST_GUILESS_MAIN(TestGewichtsverlauf)
#include "TestGewichtsverlauf.moc"
