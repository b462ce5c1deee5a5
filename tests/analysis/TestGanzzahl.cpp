#include "Ganzzahl.h"

#include <QTest>

#include <cstdint>
#include <limits>

class TestGanzzahl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fractionsFallAwayTowardZero_data();
    void fractionsFallAwayTowardZero();
    void longNumbersAreHeldAtTheLimits_data();
    void longNumbersAreHeldAtTheLimits();
};

void TestGanzzahl::fractionsFallAwayTowardZero_data()
{
    constexpr double unendlich = std::numeric_limits<double>::infinity();
    QTest::addColumn<double>("zahl");
    QTest::addColumn<int>("erwartet");
    QTest::newRow("zero") << 0.0 << 0;
    QTest::newRow("negative zero") << -0.0 << 0;
    QTest::newRow("just below one") << 0.9999999 << 0;
    QTest::newRow("exactly one") << 1.0 << 1;
    QTest::newRow("not rounded up") << 2.999 << 2;
    QTest::newRow("negative, toward zero") << -2.999 << -2;
    QTest::newRow("largest") << 2147483647.0 << 2147483647;
    QTest::newRow("largest with a fraction") << 2147483647.9 << 2147483647;
    QTest::newRow("one too large") << 2147483648.0 << 2147483647;
    QTest::newRow("smallest") << -2147483648.0 << (-2147483647 - 1);
    QTest::newRow("smallest with a fraction") << -2147483648.9 << (-2147483647 - 1);
    QTest::newRow("smallest but one") << -2147483647.0 << -2147483647;
    QTest::newRow("far too large") << 1e300 << 2147483647;
    QTest::newRow("far too small") << -1e300 << (-2147483647 - 1);
    QTest::newRow("infinite") << unendlich << 2147483647;
    QTest::newRow("minus infinite") << -unendlich << (-2147483647 - 1);
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << 0;
    QTest::newRow("single precision, largest below 2^31")
        << static_cast<double>(2147483520.0F) << 2147483520;
}

void TestGanzzahl::fractionsFallAwayTowardZero()
{
    QFETCH(double, zahl);
    QFETCH(int, erwartet);
    QCOMPARE(ganzzahl(zahl), erwartet);
}

void TestGanzzahl::longNumbersAreHeldAtTheLimits_data()
{
    QTest::addColumn<qint64>("zahl");
    QTest::addColumn<int>("erwartet");
    QTest::newRow("small") << qint64(-7) << -7;
    QTest::newRow("largest") << qint64(2147483647) << 2147483647;
    QTest::newRow("one too large") << qint64(2147483648) << 2147483647;
    QTest::newRow("smallest") << qint64(-2147483648) << (-2147483647 - 1);
    QTest::newRow("one too small") << qint64(-2147483649) << (-2147483647 - 1);
}

void TestGanzzahl::longNumbersAreHeldAtTheLimits()
{
    QFETCH(qint64, zahl);
    QFETCH(int, erwartet);
    QCOMPARE(ganzzahl(static_cast<std::int64_t>(zahl)), erwartet);
}

QTEST_GUILESS_MAIN(TestGanzzahl)
#include "TestGanzzahl.moc"
