#include "Bildprobe.h"
#include "CustomProgressIndicator.h"

#include <limits>

/// The bar is drawn 101 by 18 points large, so its outline runs around (1, 1) to (100, 17): 99 by
/// 16 points with ends of radius 8.
class TestCustomProgressIndicator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFreshBarIsEmpty();
    void outlineIsBlackAndInsetByOne();
    void fillIsGreyAndInsetByTwoMore();
    void fillWidthIsRoundedDown();
    void fullScaleCanBeSet();
    void lowerEndIsHeldAndNotDrawn();
    void nothingIsDrawnWithoutAPositiveValue_data();
    void nothingIsDrawnWithoutAPositiveValue();
    void aLevelBeyondTheScaleRunsUpToTheEdge_data();
    void aLevelBeyondTheScaleRunsUpToTheEdge();
    void aScaleThatMeasuresNothingLeavesTheOutline_data();
    void aScaleThatMeasuresNothingLeavesTheOutline();
    void barSaysWhatItShows();
    void barSaysATraceAsOne();
    void cleanup() { m_probe.sichereNachFehler(); }

private:
    static constexpr QSize groesse{101, 18};
    static constexpr double unendlich = std::numeric_limits<double>::infinity();
    static constexpr double keineZahl = std::numeric_limits<double>::quiet_NaN();
    Bildprobe m_probe;
};

void TestCustomProgressIndicator::aFreshBarIsEmpty()
{
    const CustomProgressIndicator view;
    QCOMPARE(view.doubleValue(), 0.0);
    QCOMPARE(view.minValue(), 0.0);
    QCOMPARE(view.maxValue(), 100.0);
    m_probe.male(view, groesse);
    QVERIFY(m_probe.istLeer());
}

void TestCustomProgressIndicator::outlineIsBlackAndInsetByOne()
{
    CustomProgressIndicator view;
    view.setDoubleValue(0.5);
    m_probe.male(view, groesse, 2);
    for (const int y : {1, 2, 33, 34}) {
        QCOMPARE(m_probe.farbe(100, y), QColor(0, 0, 0));
    }
    QVERIFY(m_probe.istLeer({30, 0, 140, 1}));
    QVERIFY(m_probe.istLeer({30, 3, 140, 30}));
    QVERIFY(m_probe.istLeer({30, 35, 140, 1}));
    // The corner (1, 1) lies 11.3 points from the end's centre (9, 9), and the end is 8 points
    // wide.
    QVERIFY(m_probe.istLeer({2, 2, 4, 4}));
    QVERIFY(m_probe.deckung(1, 18) > 200 && m_probe.deckung(200, 18) > 200);
}

void TestCustomProgressIndicator::fillIsGreyAndInsetByTwoMore()
{
    CustomProgressIndicator view;
    view.setDoubleValue(100);
    m_probe.male(view, groesse);
    QVERIFY(m_probe.istLeer({20, 2, 60, 1}));
    for (const int y : {3, 9, 14}) {
        QCOMPARE(m_probe.farbe(50, y), QColor(128, 128, 128));
    }
    QVERIFY(m_probe.istLeer({20, 15, 60, 1}));
    QVERIFY(m_probe.istLeer({2, 9, 1, 1}));
    QVERIFY(m_probe.deckung(3, 9) > 200 && m_probe.deckung(97, 9) > 200);
    QVERIFY(m_probe.istLeer({98, 9, 1, 1}));
}

void TestCustomProgressIndicator::fillWidthIsRoundedDown()
{
    // 99 x 50.9 / 100 = 50.391, so the fill ends at 1 + 50 - 2.
    CustomProgressIndicator view;
    view.setDoubleValue(50.9);
    m_probe.male(view, groesse);
    QVERIFY(m_probe.deckung(48, 9) > 200);
    QVERIFY(m_probe.istLeer({49, 8, 48, 2}));
}

void TestCustomProgressIndicator::fullScaleCanBeSet()
{
    CustomProgressIndicator view;
    view.setMaxValue(4);
    QCOMPARE(view.maxValue(), 4.0);
    view.setDoubleValue(1);
    // 99 x 1 / 4 = 24.75, so the fill ends at 1 + 24 - 2.
    m_probe.male(view, groesse);
    QVERIFY(m_probe.deckung(22, 9) > 200);
    QVERIFY(m_probe.istLeer({23, 8, 70, 2}));
}

void TestCustomProgressIndicator::lowerEndIsHeldAndNotDrawn()
{
    CustomProgressIndicator view;
    view.setDoubleValue(40);
    m_probe.male(view, groesse);
    const QImage vorher = m_probe.bild();
    view.setMinValue(30);
    QCOMPARE(view.minValue(), 30.0);
    m_probe.male(view, groesse);
    QCOMPARE(m_probe.bild(), vorher);
}

void TestCustomProgressIndicator::nothingIsDrawnWithoutAPositiveValue_data()
{
    QTest::addColumn<double>("wert");
    QTest::newRow("0") << 0.0;
    QTest::newRow("negative zero") << -0.0;
    QTest::newRow("-1") << -1.0;
    QTest::newRow("minus infinity") << -unendlich;
    QTest::newRow("not a number") << keineZahl;
}

void TestCustomProgressIndicator::nothingIsDrawnWithoutAPositiveValue()
{
    QFETCH(double, wert);
    CustomProgressIndicator view;
    view.setDoubleValue(wert);
    m_probe.male(view, groesse);
    QVERIFY(m_probe.istLeer());
    QCOMPARE(view.beschreibung(), QStringLiteral("kein Balken"));
}

void TestCustomProgressIndicator::aLevelBeyondTheScaleRunsUpToTheEdge_data()
{
    QTest::addColumn<double>("wert");
    QTest::newRow("250") << 250.0;
    QTest::newRow("1e9") << 1e9;
    QTest::newRow("largest") << std::numeric_limits<double>::max();
    QTest::newRow("infinite") << unendlich;
}

void TestCustomProgressIndicator::aLevelBeyondTheScaleRunsUpToTheEdge()
{
    QFETCH(double, wert);
    CustomProgressIndicator view;
    view.setDoubleValue(wert);
    m_probe.maleInnerhalb(view, QRectF(QPointF(10, 10), groesse), {400, 40});
    QCOMPARE(m_probe.farbe(110, 13), QColor(128, 128, 128));
    QCOMPARE(m_probe.farbe(110, 24), QColor(128, 128, 128));
    QVERIFY(m_probe.istLeer({111, 0, 289, 40}));
}

void TestCustomProgressIndicator::aScaleThatMeasuresNothingLeavesTheOutline_data()
{
    QTest::addColumn<double>("vollausschlag");
    QTest::newRow("0") << 0.0;
    QTest::newRow("negative") << -100.0;
    QTest::newRow("infinite") << unendlich;
    QTest::newRow("not a number") << keineZahl;
}

void TestCustomProgressIndicator::aScaleThatMeasuresNothingLeavesTheOutline()
{
    QFETCH(double, vollausschlag);
    CustomProgressIndicator view;
    view.setMaxValue(vollausschlag);
    view.setDoubleValue(unendlich);
    m_probe.male(view, groesse);
    QVERIFY(m_probe.deckung(50, 1) > 0);
    QVERIFY(m_probe.istLeer({4, 6, 92, 6}));
}

void TestCustomProgressIndicator::barSaysWhatItShows()
{
    CustomProgressIndicator view;
    view.setDoubleValue(12.3);
    QLocale::setDefault(QLocale(QLocale::German));
    QCOMPARE(view.beschreibung(), QStringLiteral("12,3 von 100"));
    QLocale::setDefault(QLocale(QLocale::English));
    QCOMPARE(view.beschreibung(), QStringLiteral("12.3 von 100"));
}

/// What is drawn is never said to be nothing.
void TestCustomProgressIndicator::barSaysATraceAsOne()
{
    CustomProgressIndicator view;
    QLocale::setDefault(QLocale(QLocale::German));
    view.setDoubleValue(0.04);
    QCOMPARE(view.beschreibung(), QStringLiteral("0,04 von 100"));
    view.setDoubleValue(1234);
    view.setMaxValue(2000);
    QCOMPARE(view.beschreibung(), QStringLiteral("1234,0 von 2000"));
}

QTEST_MAIN(TestCustomProgressIndicator)
#include "TestCustomProgressIndicator.moc"
