#include "Bildprobe.h"
#include "WertungView.h"

#include <limits>

/// The bar is drawn 101 by 24 points large, so its outline runs around (4, 4) to (97, 20): 93 by 16
/// points with ends of radius 8.
class TestWertungView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFreshBarIsBlueAndEmpty();
    void codeChoosesTheColour_data();
    void codeChoosesTheColour();
    void unknownCodeKeepsTheColourAndIsKept_data();
    void unknownCodeKeepsTheColourAndIsKept();
    void valueIsClippedAboveOnly_data();
    void valueIsClippedAboveOnly();
    void nothingIsDrawnAtZeroOrBelow_data();
    void nothingIsDrawnAtZeroOrBelow();
    void outlineIsOnePointWideAndInsetByFour();
    void outlineIsSharpAtRatioTwo();
    void outlineEndsInHalfCircles();
    void fillIsInsetByTwoMore();
    void fillWidthIsRoundedDown_data();
    void fillWidthIsRoundedDown();
    void aValueBeyondFullDrawsTheFullBar();
    void aShortValueLeavesTheOutlineAlone_data();
    void aShortValueLeavesTheOutlineAlone();
    void aViewWithoutRoomDrawsNothing_data();
    void aViewWithoutRoomDrawsNothing();
    void barLiesWhereItsBoundsLie();
    void barSaysWhatItShows();
    void theSignGoesWithTheColour();
    void cleanup() { m_probe.sichereNachFehler(); }

private:
    void male(int wert, int code, int verhaeltnis = 1)
    {
        WertungView view;
        view.drawaRect(code);
        view.drawabalken(wert);
        m_probe.male(view, groesse, verhaeltnis);
    }

    static constexpr QSize groesse{101, 24};
    Bildprobe m_probe;
};

void TestWertungView::aFreshBarIsBlueAndEmpty()
{
    const WertungView view;
    QCOMPARE(view.color(), QColor(0, 0, 255));
    QCOMPARE(view.value(), 0.0);
    QCOMPARE(view.minValue(), 0.0);
    QCOMPARE(view.maxValue(), 100.0);
    QCOMPARE(view.a(), 0);
    m_probe.male(view, groesse);
    QVERIFY(m_probe.istLeer());
}

void TestWertungView::codeChoosesTheColour_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QColor>("farbe");
    QTest::newRow("1 is red") << 1 << QColor(255, 0, 0);
    QTest::newRow("2 is blue") << 2 << QColor(0, 0, 255);
    QTest::newRow("3 is green") << 3 << QColor(0, 255, 0);
}

void TestWertungView::codeChoosesTheColour()
{
    QFETCH(int, code);
    QFETCH(QColor, farbe);
    male(80, code, 2);
    QCOMPARE(m_probe.farbe(60, 24), farbe); // in the fill
    QCOMPARE(m_probe.farbe(100, 8), farbe); // on the outline
}

void TestWertungView::unknownCodeKeepsTheColourAndIsKept_data()
{
    QTest::addColumn<int>("code");
    QTest::newRow("0") << 0;
    QTest::newRow("4") << 4;
    QTest::newRow("-1") << -1;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
}

void TestWertungView::unknownCodeKeepsTheColourAndIsKept()
{
    QFETCH(int, code);
    WertungView view;
    view.drawaRect(code);
    QCOMPARE(view.color(), QColor(Qt::blue));
    for (const auto &[bekannt, farbe] : {std::pair(1, Qt::red), std::pair(3, Qt::green)}) {
        view.drawaRect(bekannt);
        QCOMPARE(view.a(), bekannt);
        view.drawaRect(code);
        QCOMPARE(view.color(), QColor(farbe));
        QCOMPARE(view.a(), code);
    }
}

void TestWertungView::valueIsClippedAboveOnly_data()
{
    QTest::addColumn<int>("wert");
    QTest::addColumn<double>("gehalten");
    QTest::newRow("99") << 99 << 99.0;
    QTest::newRow("100") << 100 << 100.0;
    QTest::newRow("101") << 101 << 100.0;
    QTest::newRow("250") << 250 << 100.0;
    QTest::newRow("largest") << std::numeric_limits<int>::max() << 100.0;
    QTest::newRow("-7") << -7 << -7.0;
    QTest::newRow("smallest") << std::numeric_limits<int>::min() << -2147483648.0;
}

void TestWertungView::valueIsClippedAboveOnly()
{
    QFETCH(int, wert);
    QFETCH(double, gehalten);
    WertungView view;
    view.drawabalken(wert);
    QCOMPARE(view.value(), gehalten);
}

void TestWertungView::nothingIsDrawnAtZeroOrBelow_data()
{
    QTest::addColumn<int>("wert");
    QTest::newRow("0") << 0;
    QTest::newRow("-1") << -1;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void TestWertungView::nothingIsDrawnAtZeroOrBelow()
{
    QFETCH(int, wert);
    male(wert, 1);
    QVERIFY(m_probe.istLeer());
}

void TestWertungView::outlineIsOnePointWideAndInsetByFour()
{
    // The line lies half on each side of y = 4 and of y = 20, so it covers half of two rows.
    male(1, 1);
    for (const int y : {3, 4, 19, 20}) {
        QVERIFY(qAbs(m_probe.deckung(50, y) - 128) < 10);
    }
    QVERIFY(m_probe.istLeer({20, 0, 60, 3}));
    QVERIFY(m_probe.istLeer({20, 5, 60, 14}));
    QVERIFY(m_probe.istLeer({20, 21, 60, 3}));
    // At half height the ends touch x = 4 and x = 97.
    QVERIFY(m_probe.deckung(3, 12) > 100 && m_probe.deckung(4, 12) > 100);
    QVERIFY(m_probe.deckung(96, 12) > 100 && m_probe.deckung(97, 12) > 100);
    QVERIFY(m_probe.istLeer({0, 0, 3, 24}));
    QVERIFY(m_probe.istLeer({98, 0, 3, 24}));
}

void TestWertungView::outlineIsSharpAtRatioTwo()
{
    male(1, 3, 2);
    QCOMPARE(m_probe.bild().size(), QSize(202, 48));
    QVERIFY(m_probe.istLeer({40, 0, 120, 7}));
    QCOMPARE(m_probe.farbe(100, 7), QColor(Qt::green));
    QCOMPARE(m_probe.farbe(100, 8), QColor(Qt::green));
    QVERIFY(m_probe.istLeer({40, 9, 120, 30}));
    QCOMPARE(m_probe.farbe(100, 39), QColor(Qt::green));
    QCOMPARE(m_probe.farbe(100, 40), QColor(Qt::green));
    QVERIFY(m_probe.istLeer({40, 41, 120, 7}));
}

void TestWertungView::outlineEndsInHalfCircles()
{
    // The left end's centre is (12, 12): the corner (4, 4) lies 11.3 from it, (6.3, 6.3) lies 8.
    male(1, 1);
    QVERIFY(m_probe.istLeer({4, 4, 2, 2}));
    QVERIFY(m_probe.istLeer({95, 18, 2, 2}));
    QVERIFY(m_probe.deckung(6, 6) > 128);
    QVERIFY(m_probe.deckung(94, 17) > 128);
}

void TestWertungView::fillIsInsetByTwoMore()
{
    male(100, 2);
    QVERIFY(m_probe.istLeer({20, 5, 60, 1}));
    for (const int y : {6, 12, 17}) {
        QCOMPARE(m_probe.farbe(50, y), QColor(Qt::blue));
    }
    QVERIFY(m_probe.istLeer({20, 18, 60, 1}));
    // Its ends lie at x = 6 and x = 95 and have a radius of 6, here around (12, 12).
    QVERIFY(m_probe.istLeer({5, 12, 1, 1}));
    QVERIFY(m_probe.deckung(6, 12) > 200);
    QVERIFY(m_probe.deckung(94, 12) > 200);
    QVERIFY(m_probe.istLeer({95, 12, 1, 1}));
    QCOMPARE(m_probe.deckung(8, 8), 255);
    QVERIFY(m_probe.deckung(7, 7) < 128);
}

void TestWertungView::fillWidthIsRoundedDown_data()
{
    QTest::addColumn<int>("wert");
    QTest::addColumn<int>("ende"); // first column behind the fill: 4 + floor(93 x value / 100) - 2
    QTest::newRow("50 of 93 points is 46.5, drawn as 46") << 50 << 48;
    QTest::newRow("99 of 93 points is 92.07, drawn as 92") << 99 << 94;
    QTest::newRow("31 of 93 points is 28.83, drawn as 28") << 31 << 30;
    QTest::newRow("100 is the whole width") << 100 << 95;
}

void TestWertungView::fillWidthIsRoundedDown()
{
    QFETCH(int, wert);
    QFETCH(int, ende);
    male(wert, 2);
    QVERIFY(m_probe.deckung(ende - 1, 12) > 200);
    QVERIFY(m_probe.istLeer({ende, 11, 96 - ende, 2}));
}

void TestWertungView::aValueBeyondFullDrawsTheFullBar()
{
    male(100, 2);
    const QImage voll = m_probe.bild();
    male(250, 2);
    QCOMPARE(m_probe.bild(), voll);
}

void TestWertungView::aShortValueLeavesTheOutlineAlone_data()
{
    QTest::addColumn<int>("wert");
    QTest::addColumn<bool>("gefuellt");
    QTest::newRow("4: three points less four") << 4 << false;
    QTest::newRow("5: four points less four") << 5 << false;
    QTest::newRow("6: five points less four") << 6 << true;
}

void TestWertungView::aShortValueLeavesTheOutlineAlone()
{
    QFETCH(int, wert);
    QFETCH(bool, gefuellt);
    male(wert, 1);
    QVERIFY(m_probe.deckung(50, 4) > 0);
    QCOMPARE(m_probe.deckung(6, 12) > 200, gefuellt);
    QVERIFY(m_probe.istLeer({7, 9, 88, 6}));
}

void TestWertungView::aViewWithoutRoomDrawsNothing_data()
{
    QTest::addColumn<QSize>("platz");
    QTest::newRow("no size at all") << QSize(0, 0);
    QTest::newRow("the insets take all the height") << QSize(100, 8);
    QTest::newRow("the insets take more than the width") << QSize(5, 30);
}

void TestWertungView::aViewWithoutRoomDrawsNothing()
{
    QFETCH(QSize, platz);
    WertungView view;
    view.drawabalken(70);
    m_probe.maleInnerhalb(view, QRectF(QPointF(20, 20), platz), {140, 70});
    QVERIFY(m_probe.istLeer());
}

void TestWertungView::barLiesWhereItsBoundsLie()
{
    male(60, 3);
    const QImage allein = m_probe.bild();
    WertungView view;
    view.drawaRect(3);
    view.drawabalken(60);
    m_probe.maleInnerhalb(view, QRectF(QPointF(30, 20), groesse), {160, 70});
    QCOMPARE(m_probe.bild().copy({QPoint(30, 20), groesse}), allein);
    QVERIFY(m_probe.istLeer({0, 0, 160, 20}));
    QVERIFY(m_probe.istLeer({0, 0, 30, 70}));
}

void TestWertungView::barSaysWhatItShows()
{
    WertungView view;
    QCOMPARE(view.beschreibung(), QStringLiteral("kein Balken"));
    view.drawabalken(62);
    QCOMPARE(view.beschreibung(), QStringLiteral("62 von 100, blau"));
    view.drawaRect(3);
    QCOMPARE(view.beschreibung(), QStringLiteral("62 von 100, grün"));
    view.drawaRect(1);
    view.drawaRect(0);
    QCOMPARE(view.beschreibung(), QStringLiteral("62 von 100, rot"));
}

void TestWertungView::theSignGoesWithTheColour()
{
    WertungView view;
    QCOMPARE(view.zeichen(), QString()); // nothing is drawn
    view.drawabalken(1);
    QCOMPARE(view.zeichen(), QStringLiteral("≈"));
    view.drawaRect(3);
    QCOMPARE(view.zeichen(), QStringLiteral("✓"));
    view.drawaRect(1);
    view.drawaRect(0); // leaves the colour
    QCOMPARE(view.zeichen(), QStringLiteral("✗"));
    view.drawabalken(0);
    QCOMPARE(view.zeichen(), QString());
}

QTEST_MAIN(TestWertungView)
#include "TestWertungView.moc"
