#include "Bildprobe.h"
#include "GewichtsverlaufView.h"

#include <QElapsedTimer>

#include <limits>

/// Points of the chart are counted from its bottom left corner, as kilograms are.
class TestGewichtsverlaufView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFreshViewHoldsNothing();
    void valuesAreHeldAndProjected();
    void bandsFollowTheHeight_data();
    void bandsFollowTheHeight();
    void bandsMeetWithoutAGap();
    void bandsStayBelowTheTop_data();
    void bandsStayBelowTheTop();
    void curvePassesTheWeeklyWeights_data();
    void curvePassesTheWeeklyWeights();
    void heavyWeightsLieWhereTheyAre_data();
    void heavyWeightsLieWhereTheyAre();
    void aCurveThatComesBackFromFarAway();
    void farWeightsArePaintedAsFastAsNearOnes();
    void curveIsThreeAndAHalfPointsWide();
    void axesLieAtTwo();
    void weekLinesLeanOnePointToTheRight_data();
    void weekLinesLeanOnePointToTheRight();
    void arrowsPointAsTheyAlwaysDid();
    void chartLiesAtTheBottomLeft();
    void nothingIsDrawnOutsideTheChart_data();
    void nothingIsDrawnOutsideTheChart();
    void axesAreSharpAtRatioTwo();
    void chartSaysWhatItShows_data();
    void chartSaysWhatItShows();
    void todaysWeightIsSaidAsItIs();
    void cleanup() { m_probe.sichereNachFehler(); }

private:
    static constexpr QSize groesse{330, 240};

    static void stelle(GewichtsverlaufView &view, int gewicht, int bedarf, int aufnahme,
                       float meter)
    {
        view.wert1(gewicht);
        view.wert2(bedarf);
        view.wert3(aufnahme);
        view.wert4(meter);
    }
    void male(int gewicht, int bedarf, int aufnahme, float meter)
    {
        GewichtsverlaufView view;
        stelle(view, gewicht, bedarf, aufnahme, meter);
        m_probe.male(view, groesse);
    }
    /// The colour of the pixel right above and to the right of a point of the chart.
    QColor farbe(int x, int y) const { return m_probe.farbe(x, m_probe.bild().height() - 1 - y); }

    Bildprobe m_probe;
};

namespace {

const QColor rot(255, 0, 0);
const QColor gruen(0, 255, 0);
const QColor blau(0, 0, 255);
const QColor schwarz(0, 0, 0);
const QColor nichts(0, 0, 0, 0);

} // namespace

void TestGewichtsverlaufView::aFreshViewHoldsNothing()
{
    const GewichtsverlaufView view;
    QCOMPARE(view.gewicht(), 0.0F);
    QCOMPARE(view.kalorienbedarf(), 0);
    QCOMPARE(view.kalorienerrechnet(), 0);
    QCOMPARE(view.groesse(), 0.0F);
    QCOMPARE(view.wochengewichte(), Wochengewichte{});
    QCOMPARE(view.unteresbmigewicht(), 0.0F);
    QCOMPARE(view.oberesbmigewicht(), 0.0F);
}

void TestGewichtsverlaufView::valuesAreHeldAndProjected()
{
    GewichtsverlaufView view;
    view.wert1(80);
    QCOMPARE(view.gewicht(), 80.0F);
    QCOMPARE(view.a(), 80.0F);
    QCOMPARE(view.b(), 0.0F);
    view.wert2(2500);
    QCOMPARE(view.kalorienbedarf(), 2500);
    QCOMPARE(view.b(), 0.0F);
    view.wert3(1500);
    QCOMPARE(view.kalorienerrechnet(), 1500);
    QCOMPARE(view.b(), 79.0F);
    QCOMPARE(view.c(), 78.03125F);
    QCOMPARE(view.d(), 77.0927734F);
    QCOMPARE(view.e(), 76.1836243F);
    view.wert4(1.8F);
    QCOMPARE(view.groesse(), 1.8F);
    QCOMPARE(view.unteresbmigewicht(), 64.8F);
    QCOMPARE(view.oberesbmigewicht(), 81.0F);
    // A new weight alone moves the start and leaves the weeks.
    view.wert1(90);
    QCOMPARE(view.a(), 90.0F);
    QCOMPARE(view.b(), 79.0F);
}

void TestGewichtsverlaufView::bandsFollowTheHeight_data()
{
    QTest::addColumn<QPoint>("punkt");
    QTest::addColumn<QColor>("farbe");
    QTest::newRow("below BMI 20") << QPoint(40, 30) << rot;
    QTest::newRow("just below 64.8 kg") << QPoint(40, 63) << rot;
    QTest::newRow("just above 64.8 kg, where the lower band still reaches")
        << QPoint(40, 65) << gruen;
    QTest::newRow("healthy") << QPoint(40, 72) << gruen;
    QTest::newRow("just below 81 kg") << QPoint(40, 80) << gruen;
    QTest::newRow("just above 81 kg") << QPoint(40, 81) << rot;
    QTest::newRow("just below the top") << QPoint(40, 229) << rot;
    QTest::newRow("above the top") << QPoint(40, 230) << nichts;
    QTest::newRow("right end of the bands") << QPoint(321, 72) << gruen;
    QTest::newRow("right of the bands") << QPoint(322, 72) << nichts;
    QTest::newRow("left of the bands") << QPoint(0, 72) << QColor(0, 0, 0, 38); // the axis' edge
}

void TestGewichtsverlaufView::bandsFollowTheHeight()
{
    QFETCH(QPoint, punkt);
    QFETCH(QColor, farbe);
    male(150, 2000, 2000, 1.8F);
    const QColor ist = this->farbe(punkt.x(), punkt.y());
    if (farbe.alpha() == 255 || farbe == nichts) {
        QCOMPARE(ist, farbe);
    } else {
        QVERIFY(qAbs(ist.alpha() - farbe.alpha()) < 8);
    }
}

void TestGewichtsverlaufView::bandsMeetWithoutAGap()
{
    for (const float meter : {1.5F, 1.63F, 1.71F, 1.77F, 1.84F, 1.99F}) {
        male(200, 2000, 2000, meter);
        for (int y = 5; y < 190; ++y) {
            const QColor ist = farbe(40, y);
            QVERIFY(ist == rot || ist == gruen);
        }
    }
}

void TestGewichtsverlaufView::bandsStayBelowTheTop_data()
{
    QTest::addColumn<float>("meter");
    QTest::addColumn<QColor>("bei200");
    QTest::newRow("upper limit 256, lower limit 204.8") << 3.2F << rot;
    QTest::newRow("upper limit 240.25, lower limit 192.2") << 3.1F << gruen;
    QTest::newRow("both limits far above") << 1e6F << rot;
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity() << rot;
    QTest::newRow("not a number: no bands") << std::numeric_limits<float>::quiet_NaN() << nichts;
    QTest::newRow("no height: all above BMI 25") << 0.0F << rot;
}

void TestGewichtsverlaufView::bandsStayBelowTheTop()
{
    QFETCH(float, meter);
    QFETCH(QColor, bei200);
    male(100, 2000, 2000, meter);
    QCOMPARE(farbe(40, 200), bei200);
    QVERIFY(m_probe.istLeer({20, 0, 310, 10}));
}

void TestGewichtsverlaufView::curvePassesTheWeeklyWeights_data()
{
    QTest::addColumn<int>("gewicht");
    QTest::addColumn<int>("aufnahme");
    QTest::addColumn<QList<QPoint>>("punkte");

    // Nothing is needed, so each 1000 kcal a day are a kilogram a week.
    QTest::newRow("up 45 kg a week, just before each week and half way of the first")
        << 20 << 45000 << QList<QPoint>{{41, 42}, {78, 63}, {158, 108}, {238, 153}, {318, 198}};
    QTest::newRow("down 10 kg a week, half way between the weeks")
        << 200 << -10000 << QList<QPoint>{{41, 195}, {120, 185}, {200, 175}, {280, 165}};
    QTest::newRow("flat") << 150 << 0
                          << QList<QPoint>{{10, 150}, {120, 150}, {200, 150}, {318, 150}};
}

void TestGewichtsverlaufView::curvePassesTheWeeklyWeights()
{
    QFETCH(int, gewicht);
    QFETCH(int, aufnahme);
    QFETCH(QList<QPoint>, punkte);
    male(gewicht, 0, aufnahme, 0.5F);
    for (const QPoint punkt : punkte) {
        QCOMPARE(farbe(punkt.x(), punkt.y()), blau);
        QCOMPARE(farbe(punkt.x(), punkt.y() + 4), rot);
        QCOMPARE(farbe(punkt.x(), punkt.y() - 4), rot);
    }
}

void TestGewichtsverlaufView::heavyWeightsLieWhereTheyAre_data()
{
    QTest::addColumn<int>("gewicht");
    QTest::addColumn<int>("aufnahme");
    QTest::addColumn<QPoint>("getroffen");
    QTest::addColumn<QPoint>("daneben"); // where a curve that ended at 3000 kg would lie

    // Nothing is needed, so each 1000 kcal a day are a kilogram a week. Between two weeks lie 80
    // points, 78 in the first.
    QTest::newRow("from 30000 kg to -10 in a week: 200 kg after 78 * 29800 / 30010 points")
        << 30000 << -30010000 << QPoint(79, 200) << QPoint(74, 200);
    QTest::newRow("from 100 kg to 20100: 200 kg after 78 * 100 / 20000 points, half a point")
        << 100 << 20000000 << QPoint(3, 200) << QPoint(5, 200);
    QTest::newRow("from -20000 kg to 50 in a week: 40 kg after 78 * 20040 / 20050 points")
        << -20000 << 20050000 << QPoint(79, 40) << QPoint(74, 40);
}

void TestGewichtsverlaufView::heavyWeightsLieWhereTheyAre()
{
    QFETCH(int, gewicht);
    QFETCH(int, aufnahme);
    QFETCH(QPoint, getroffen);
    QFETCH(QPoint, daneben);
    male(gewicht, 0, aufnahme, 0.5F);
    QVERIFY(farbe(getroffen.x(), getroffen.y()).blue() > 100);
    QCOMPARE(farbe(daneben.x(), daneben.y()), rot);
}

/// 100000 kg lose half of it in each week: 50000, 0, -50000 after the third. Only where it passes
/// the chart is it seen, at the end of the second week.
void TestGewichtsverlaufView::aCurveThatComesBackFromFarAway()
{
    male(100000, 0, -50000000, 0.5F);
    QCOMPARE(farbe(157, 120), rot);
    QVERIFY(farbe(159, 120).blue() > 100);
    for (const int x : {20, 78, 120, 200, 238, 300}) {
        for (const int y : {10, 120, 225}) {
            QCOMPARE(farbe(x, y), rot);
        }
    }
}

void TestGewichtsverlaufView::farWeightsArePaintedAsFastAsNearOnes()
{
    GewichtsverlaufView view;
    stelle(view, std::numeric_limits<int>::max(), 0, std::numeric_limits<int>::min(), 1.8F);
    QElapsedTimer uhr;
    uhr.start();
    for (int i = 0; i < 20; ++i) {
        m_probe.male(view, groesse, 2);
    }
    QVERIFY2(uhr.elapsed() < 5000, qPrintable(QString::number(uhr.elapsed())));
}

void TestGewichtsverlaufView::curveIsThreeAndAHalfPointsWide()
{
    // From 118.25 to 121.75: two rows between are full, the two at the edges three quarters.
    male(120, 2000, 2000, 1.8F);
    QCOMPARE(farbe(40, 119), blau);
    QCOMPARE(farbe(40, 120), blau);
    for (const int y : {118, 121}) {
        QVERIFY(qAbs(farbe(40, y).blue() - 191) < 12);
    }
    QCOMPARE(farbe(40, 117), rot);
    QCOMPARE(farbe(40, 122), rot);
    // It ends at x = 320 with a straight edge.
    QCOMPARE(farbe(319, 120), blau);
    QCOMPARE(farbe(320, 120), rot);
}

void TestGewichtsverlaufView::axesLieAtTwo()
{
    // 2.3 points wide around 2: from 0.85 to 3.15.
    male(120, 2000, 2000, 1.8F);
    for (const int lage : {1, 2}) {
        QCOMPARE(farbe(100, lage), schwarz);
        QCOMPARE(farbe(lage, 100), schwarz);
        QCOMPARE(farbe(300, lage), schwarz);
        QCOMPARE(farbe(lage, 220), schwarz);
    }
    QCOMPARE(farbe(100, 4), rot);
    QCOMPARE(farbe(4, 100), rot);
    // The horizontal axis ends at x = 320, the vertical one at y = 230 and the arrow's corner
    // there.
    QCOMPARE(farbe(323, 2), nichts);
    QCOMPARE(farbe(2, 232), nichts);
}

void TestGewichtsverlaufView::weekLinesLeanOnePointToTheRight_data()
{
    QTest::addColumn<int>("woche");
    QTest::newRow("first") << 80;
    QTest::newRow("second") << 160;
    QTest::newRow("third") << 240;
}

void TestGewichtsverlaufView::weekLinesLeanOnePointToTheRight()
{
    QFETCH(int, woche);
    male(210, 2000, 2000, 0);
    const auto dunkel = [this](int x, int y) {
        return 255 - farbe(x, y).red();
    };
    // At the foot the thin line lies on both sides of the week, at the head on both sides of the
    // point after it; half way it lies in between. It is three tenths of a point wide.
    QVERIFY(dunkel(woche - 1, 6) > 15);
    QCOMPARE(dunkel(woche + 1, 6), 0);
    QVERIFY(qAbs(dunkel(woche, 96) - 77) < 20);
    QCOMPARE(dunkel(woche - 1, 96), 0);
    QCOMPARE(dunkel(woche + 1, 96), 0);
    QVERIFY(dunkel(woche + 1, 187) > 15);
    QCOMPARE(dunkel(woche - 1, 187), 0);
    QCOMPARE(dunkel(woche, 191) + dunkel(woche + 1, 191), 0);
}

void TestGewichtsverlaufView::arrowsPointAsTheyAlwaysDid()
{
    male(120, 2000, 2000, 1.8F);
    // One stroke each: to the left above the horizontal axis, to the right below the vertical one's
    // end.
    QCOMPARE(farbe(316, 5), schwarz);
    QCOMPARE(farbe(314, 7), schwarz);
    QCOMPARE(farbe(319, 7), rot);
    QCOMPARE(farbe(5, 228), schwarz);
    QCOMPARE(farbe(7, 227), schwarz);
    QCOMPARE(farbe(7, 224), rot);
    QCOMPARE(farbe(12, 227), rot);
}

void TestGewichtsverlaufView::chartLiesAtTheBottomLeft()
{
    GewichtsverlaufView view;
    stelle(view, 80, 2500, 1500, 1.8F);
    m_probe.male(view, groesse);
    const QImage allein = m_probe.bild();
    m_probe.maleInnerhalb(view, QRectF(10, 20, 400, 300), {450, 350});
    const QImage teil = m_probe.bild().copy(10, 20 + 300 - 240, 330, 240);
    // A blended pixel may come out one step lighter at another place.
    for (int y = 0; y < allein.height(); ++y) {
        for (int x = 0; x < allein.width(); ++x) {
            QVERIFY(qAbs(qAlpha(teil.pixel(x, y)) - qAlpha(allein.pixel(x, y))) <= 2);
            QVERIFY(qAbs(qGray(teil.pixel(x, y)) - qGray(allein.pixel(x, y))) <= 2);
        }
    }
}

void TestGewichtsverlaufView::nothingIsDrawnOutsideTheChart_data()
{
    QTest::addColumn<int>("gewicht");
    QTest::addColumn<int>("bedarf");
    QTest::addColumn<int>("aufnahme");
    constexpr int kleinste = std::numeric_limits<int>::min();
    constexpr int groesste = std::numeric_limits<int>::max();
    QTest::newRow("an ordinary client") << 80 << 2500 << 1500;
    QTest::newRow("weight 0") << 0 << 2500 << 1500;
    QTest::newRow("260 kg") << 260 << 3000 << 2000;
    QTest::newRow("below 0 kg") << -50 << 3000 << 2000;
    QTest::newRow("largest") << groesste << groesste << groesste;
    QTest::newRow("smallest") << kleinste << groesste << kleinste;
    QTest::newRow("grows without end") << 1 << groesste << kleinste;
    QTest::newRow("falls without end") << 1 << kleinste << groesste;
}

void TestGewichtsverlaufView::nothingIsDrawnOutsideTheChart()
{
    QFETCH(int, gewicht);
    QFETCH(int, bedarf);
    QFETCH(int, aufnahme);
    GewichtsverlaufView view;
    stelle(view, gewicht, bedarf, aufnahme, 1.8F);
    m_probe.maleInnerhalb(view, QRectF(20, 20, 500, 400), {540, 440});
    const int unten = 420;
    QVERIFY(m_probe.istLeer({0, 0, 540, unten - 240}));
    QVERIFY(m_probe.istLeer({0, 0, 20, 440}));
    QVERIFY(m_probe.istLeer({0, unten, 540, 20}));
    QVERIFY(m_probe.istLeer({20 + 323, 0, 540 - 343, 440}));
    QCOMPARE(m_probe.farbe(60, unten - 1 - 30), rot);
}

void TestGewichtsverlaufView::axesAreSharpAtRatioTwo()
{
    // From 0.85 to 3.15 points, so from 1.7 to 6.3 pixels.
    GewichtsverlaufView view;
    stelle(view, 120, 2000, 2000, 1.8F);
    m_probe.male(view, groesse, 2);
    QCOMPARE(m_probe.bild().size(), QSize(660, 480));
    for (int lage = 2; lage < 6; ++lage) {
        QCOMPARE(farbe(200, lage), schwarz);
        QCOMPARE(farbe(lage, 200), schwarz);
    }
    QCOMPARE(farbe(200, 7), rot);
    QCOMPARE(farbe(200, 0), nichts);
    QCOMPARE(farbe(80, 162), rot);
    QCOMPARE(farbe(80, 161), gruen);
}

void TestGewichtsverlaufView::chartSaysWhatItShows_data()
{
    QTest::addColumn<int>("gewicht");
    QTest::addColumn<int>("bedarf");
    QTest::addColumn<int>("aufnahme");
    QTest::addColumn<float>("meter");
    QTest::addColumn<QString>("worte");
    const QString verlust =
        QStringLiteral("Gewicht heute 80_kg, nach einer Woche 1,0_kg weniger, nach zwei 2,0_kg "
                       "weniger, nach drei 2,9_kg weniger, nach vier 3,8_kg weniger.");
    QTest::newRow("a loss, no height") << 80 << 2500 << 1500 << 0.0F << verlust;
    QTest::newRow("a loss and what is healthy")
        << 80 << 2500 << 1500 << 1.8F
        << verlust + QStringLiteral(" Gesund sind 64,8_kg bis 81,0_kg.");
    // Nothing is needed: 500 kcal a day are half a kilogram a week.
    QTest::newRow("a gain is called one")
        << 80 << 0 << 500 << 0.0F
        << QStringLiteral("Gewicht heute 80_kg, nach einer Woche 0,5_kg mehr, nach zwei 1,0_kg "
                          "mehr, nach drei 1,5_kg mehr, nach vier 2,0_kg mehr.");
    QTest::newRow("no change")
        << 80 << 2000 << 2000 << 0.0F
        << QStringLiteral("Gewicht heute 80_kg, nach einer Woche unverändert, nach zwei "
                          "unverändert, nach drei unverändert, nach vier unverändert.");
    QTest::newRow("no thousands are parted")
        << 12000 << 0 << 1500000 << 0.0F
        << QStringLiteral("Gewicht heute 12000_kg, nach einer Woche 1500,0_kg mehr, nach zwei "
                          "3000,0_kg mehr, nach drei 4500,0_kg mehr, nach vier 6000,0_kg mehr.");
    QTest::newRow("no weight, but a height")
        << 0 << 2000 << 2000 << 1.8F << QStringLiteral("Gesund sind 64,8_kg bis 81,0_kg.");
    QTest::newRow("neither") << 0 << 2000 << 2000 << 0.0F << QStringLiteral("Noch kein Verlauf.");
}

void TestGewichtsverlaufView::chartSaysWhatItShows()
{
    QFETCH(int, gewicht);
    QFETCH(int, bedarf);
    QFETCH(int, aufnahme);
    QFETCH(float, meter);
    QFETCH(QString, worte);
    QLocale::setDefault(QLocale(QLocale::German));
    GewichtsverlaufView view;
    stelle(view, gewicht, bedarf, aufnahme, meter);
    // No line may end between a number and its unit.
    QCOMPARE(view.beschreibung().replace(QChar(QChar::Nbsp), u'_'), worte);
}

/// The chart reckons in whole kilograms, and half a kilogram lost is not one and a half.
void TestGewichtsverlaufView::todaysWeightIsSaidAsItIs()
{
    QLocale::setDefault(QLocale(QLocale::German));
    GewichtsverlaufView view;
    stelle(view, 82, 500, 0, 0);
    view.setGewichtHeute(82.5F);
    QCOMPARE(view.a(), 82.0F);
    QVERIFY(view.beschreibung().startsWith(
        QStringLiteral("Gewicht heute 82,5\u00a0kg, nach einer Woche 0,5\u00a0kg weniger,")));
    view.wert1(82); // another client
    QVERIFY(view.beschreibung().startsWith(QStringLiteral("Gewicht heute 82\u00a0kg,")));
}

QTEST_MAIN(TestGewichtsverlaufView)
#include "TestGewichtsverlaufView.moc"
