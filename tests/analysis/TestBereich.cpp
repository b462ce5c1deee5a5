#include "Bereich.h"

#include <QTest>

#include <array>
#include <limits>

class TestBereich : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsBelongToTheRangeOrNot_data();
    void endsBelongToTheRangeOrNot();
    void openSidesHoldEverythingButNaN();
    void theLastMatchingStepCounts_data();
    void theLastMatchingStepCounts();
};

namespace {

constexpr double unendlich = std::numeric_limits<double>::infinity();
constexpr double keineZahl = std::numeric_limits<double>::quiet_NaN();

} // namespace

void TestBereich::endsBelongToTheRangeOrNot_data()
{
    QTest::addColumn<double>("zahl");
    QTest::addColumn<bool>("abBis");
    QTest::addColumn<bool>("abUnter");
    QTest::addColumn<bool>("ueberBis");
    QTest::addColumn<bool>("ueberUnter");
    QTest::newRow("below") << 69.99 << false << false << false << false;
    QTest::newRow("lower end") << 70.0 << true << true << false << false;
    QTest::newRow("within") << 70.01 << true << true << true << true;
    QTest::newRow("upper end") << 110.0 << true << false << true << false;
    QTest::newRow("above") << 110.01 << false << false << false << false;
    QTest::newRow("no number") << keineZahl << false << false << false << false;
}

void TestBereich::endsBelongToTheRangeOrNot()
{
    QFETCH(double, zahl);
    QTEST(Bereich({ab(70), bis(110)}).enthaelt(zahl), "abBis");
    QTEST(Bereich({ab(70), unter(110)}).enthaelt(zahl), "abUnter");
    QTEST(Bereich({ueber(70), bis(110)}).enthaelt(zahl), "ueberBis");
    QTEST(Bereich({ueber(70), unter(110)}).enthaelt(zahl), "ueberUnter");
}

void TestBereich::openSidesHoldEverythingButNaN()
{
    constexpr Bereich tief = {vonUnten, unter(30)};
    constexpr Bereich hoch = {ab(120), nachOben};
    QVERIFY(tief.enthaelt(-unendlich));
    QVERIFY(tief.enthaelt(-1));
    QVERIFY(!tief.enthaelt(30));
    QVERIFY(!tief.enthaelt(keineZahl));
    QVERIFY(hoch.enthaelt(120));
    QVERIFY(hoch.enthaelt(unendlich));
    QVERIFY(!hoch.enthaelt(keineZahl));
}

void TestBereich::theLastMatchingStepCounts_data()
{
    QTest::addColumn<double>("zahl");
    QTest::addColumn<int>("code"); // 0 stands for none
    QTest::newRow("only the first") << 20.0 << 1;
    QTest::newRow("only the second") << 16.0 << 2;
    QTest::newRow("second and third, third counts") << 14.0 << 3;
    QTest::newRow("gap") << 18.0 << 0;
    QTest::newRow("no number") << keineZahl << 0;
}

void TestBereich::theLastMatchingStepCounts()
{
    static constexpr std::array<Stufe, 3> stufen = {{
        {{ueber(18), unter(25)}, 1},
        {{vonUnten, unter(18)}, 2},
        {{vonUnten, unter(15)}, 3},
    }};
    QFETCH(double, zahl);
    QTEST(letzteStufe(stufen, zahl).value_or(0), "code");
}

QTEST_GUILESS_MAIN(TestBereich)
#include "TestBereich.moc"
