#include "Bildprobe.h"
#include "NahrstoffraumView.h"

#include <QtMath>

#include <cmath>
#include <limits>

/// The circles are drawn 200 by 190 points large: their radius is 40, and their centres (50, 140)
/// and (150, 140) from the bottom left, so 50 from the top.
class TestNahrstoffraumView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFreshViewHoldsTheTarget();
    void percentagesAreHeldAndBecomeFractions();
    void gramsAreHeldAndNotDrawn();
    void targetSlices_data();
    void targetSlices();
    void targetStaysWhateverIsGiven();
    void actualSlices_data();
    void actualSlices();
    void sharesOfZeroLeaveTheRightCircleEmpty();
    void sharesThatAreNoSharesComeToAnEnd_data();
    void sharesThatAreNoSharesComeToAnEnd();
    void radiusIsAFifthOfTheWidth_data();
    void radiusIsAFifthOfTheWidth();
    void nothingIsDrawnOutsideTheBounds();
    void circlesAreSharpAtRatioTwo();
    void circlesSayWhatTheyShow();
    void circlesSayATraceAsOne();
    void cleanup() { m_probe.sichereNachFehler(); }

private:
    static constexpr QSize groesse{200, 190};
    static constexpr QPointF links{50, 50};
    static constexpr QPointF rechts{150, 50};

    /// The colour at an angle, counter-clockwise from the positive x axis, three quarters out.
    QColor farbeBei(QPointF mitte, double winkel, double abstand = 30) const
    {
        const double bogen = qDegreesToRadians(winkel);
        return m_probe.farbe(static_cast<int>(std::floor(mitte.x() + abstand * std::cos(bogen))),
                             static_cast<int>(std::floor(mitte.y() - abstand * std::sin(bogen))));
    }
    void male(float protein, float kohlenhydrate, float fett)
    {
        NahrstoffraumView view;
        view.wert1(protein);
        view.wert2(kohlenhydrate);
        view.wert3(fett);
        m_probe.male(view, groesse);
    }

    Bildprobe m_probe;
};

namespace {

const QColor gruen(0, 255, 0);
const QColor blau(0, 0, 255);
const QColor gelb(255, 255, 0);
const QColor nichts(0, 0, 0, 0);
constexpr float keineZahl = std::numeric_limits<float>::quiet_NaN();
constexpr float unendlich = std::numeric_limits<float>::infinity();

} // namespace

void TestNahrstoffraumView::aFreshViewHoldsTheTarget()
{
    const NahrstoffraumView view;
    QCOMPARE(view.a(), 15.0F);
    QCOMPARE(view.b(), 55.0F);
    QCOMPARE(view.c(), 30.0F);
    for (const Energieverteilung &anteile : {view.sollwerte(), view.istwerte()}) {
        QCOMPARE(anteile.protein, 0.15F);
        QCOMPARE(anteile.kohlenhydrat, 0.55F);
        QCOMPARE(anteile.fett, 0.3F);
    }
    QCOMPARE(view.aa(), 0);
    QCOMPARE(view.bb(), 0);
    QCOMPARE(view.cc(), 0);
    // Both circles show the same.
    m_probe.male(view, groesse);
    QCOMPARE(m_probe.bild().copy(0, 0, 100, 190), m_probe.bild().copy(100, 0, 100, 190));
}

void TestNahrstoffraumView::percentagesAreHeldAndBecomeFractions()
{
    NahrstoffraumView view;
    view.wert1(20);
    view.wert2(50.5F);
    view.wert3(-3);
    QCOMPARE(view.a(), 20.0F);
    QCOMPARE(view.b(), 50.5F);
    QCOMPARE(view.c(), -3.0F);
    QCOMPARE(view.istwerte().protein, 0.2F);
    QCOMPARE(view.istwerte().kohlenhydrat, 0.505F);
    QCOMPARE(view.istwerte().fett, -0.03F);
    QCOMPARE(view.sollwerte().protein, 0.15F);
}

void TestNahrstoffraumView::gramsAreHeldAndNotDrawn()
{
    NahrstoffraumView view;
    m_probe.male(view, groesse);
    const QImage vorher = m_probe.bild();
    view.grammkreisMitProtein(12, -7, 1000000);
    QCOMPARE(view.aa(), 12);
    QCOMPARE(view.bb(), -7);
    QCOMPARE(view.cc(), 1000000);
    m_probe.male(view, groesse);
    QCOMPARE(m_probe.bild(), vorher);
}

void TestNahrstoffraumView::targetSlices_data()
{
    QTest::addColumn<double>("winkel");
    QTest::addColumn<QColor>("farbe");
    // Protein 15 percent ends at 54 degrees, with carbohydrate 70 percent at 252.
    QTest::newRow("just past 0 degrees is protein") << 3.0 << gruen;
    QTest::newRow("just before 54 degrees is protein") << 51.0 << gruen;
    QTest::newRow("just past 54 degrees is carbohydrate") << 57.0 << blau;
    QTest::newRow("180 degrees is carbohydrate") << 180.0 << blau;
    QTest::newRow("just before 252 degrees is carbohydrate") << 249.0 << blau;
    QTest::newRow("just past 252 degrees is fat") << 255.0 << gelb;
    QTest::newRow("just before 360 degrees is fat") << 357.0 << gelb;
}

void TestNahrstoffraumView::targetSlices()
{
    QFETCH(double, winkel);
    QFETCH(QColor, farbe);
    m_probe.male(NahrstoffraumView(), groesse);
    QCOMPARE(farbeBei(links, winkel), farbe);
    QCOMPARE(farbeBei(links, winkel, 37), farbe);
    QCOMPARE(farbeBei(links, winkel, 42), nichts);
}

void TestNahrstoffraumView::targetStaysWhateverIsGiven()
{
    m_probe.male(NahrstoffraumView(), groesse);
    const QImage vorher = m_probe.bild().copy(0, 0, 100, 190);
    male(80, 10, 10);
    QCOMPARE(m_probe.bild().copy(0, 0, 100, 190), vorher);
}

void TestNahrstoffraumView::actualSlices_data()
{
    QTest::addColumn<QList<float>>("prozent");
    QTest::addColumn<double>("winkel");
    QTest::addColumn<QColor>("farbe");

    const QList<float> voll = {20, 50, 30}; // 72, 252 and 360 degrees
    QTest::newRow("before the end of protein") << voll << 69.0 << gruen;
    QTest::newRow("behind the end of protein") << voll << 75.0 << blau;
    QTest::newRow("before the end of carbohydrate") << voll << 249.0 << blau;
    QTest::newRow("behind the end of carbohydrate") << voll << 255.0 << gelb;
    QTest::newRow("before the end of fat") << voll << 357.0 << gelb;

    const QList<float> wenig = {20, 30, 10}; // 72, 180 and 216 degrees
    QTest::newRow("less than 1: before the end of fat") << wenig << 213.0 << gelb;
    QTest::newRow("less than 1: the rest is empty") << wenig << 219.0 << nichts;
    QTest::newRow("less than 1: empty up to the end") << wenig << 357.0 << nichts;

    const QList<float> viel = {60, 60, 30}; // 216, 432 = 72 and 540 = 180 degrees
    QTest::newRow("more than 1: carbohydrate runs over protein") << viel << 36.0 << blau;
    QTest::newRow("more than 1: fat runs over protein") << viel << 126.0 << gelb;
    QTest::newRow("more than 1: what is left of protein") << viel << 198.0 << gruen;
    QTest::newRow("more than 1: carbohydrate before the turn") << viel << 300.0 << blau;

    QTest::newRow("one share alone fills the circle") << QList<float>{0, 100, 0} << 350.0 << blau;
    QTest::newRow("five turns are one") << QList<float>{0, 0, 500} << 123.0 << gelb;

    const QList<float> negativ = {-10, 50, 30}; // -36, 144 and 252 degrees
    QTest::newRow("negative: it has no slice, the next starts there") << negativ << 330.0 << blau;
    QTest::newRow("negative: before the end of carbohydrate") << negativ << 141.0 << blau;
    QTest::newRow("negative: fat is where it would be") << negativ << 147.0 << gelb;
    QTest::newRow("negative: the rest is empty") << negativ << 300.0 << nichts;
}

void TestNahrstoffraumView::actualSlices()
{
    QFETCH(QList<float>, prozent);
    QFETCH(double, winkel);
    QFETCH(QColor, farbe);
    male(prozent[0], prozent[1], prozent[2]);
    QCOMPARE(farbeBei(rechts, winkel), farbe);
}

void TestNahrstoffraumView::sharesOfZeroLeaveTheRightCircleEmpty()
{
    male(0, 0, 0);
    QVERIFY(m_probe.istLeer({100, 0, 100, 190}));
    QVERIFY(!m_probe.istLeer({0, 0, 100, 190}));
}

void TestNahrstoffraumView::sharesThatAreNoSharesComeToAnEnd_data()
{
    QTest::addColumn<QList<float>>("prozent");
    QTest::addColumn<QColor>("bei30Grad"); // what a slice before the bad value drew
    QTest::newRow("protein not a number: nothing has a place")
        << QList<float>{keineZahl, 50, 30} << nichts;
    QTest::newRow("fat not a number: the others stay") << QList<float>{20, 50, keineZahl} << gruen;
    QTest::newRow("protein infinite") << QList<float>{unendlich, 50, 30} << nichts;
    QTest::newRow("carbohydrate minus infinite") << QList<float>{20, -unendlich, 30} << gruen;
    QTest::newRow("largest") << QList<float>(3, std::numeric_limits<float>::max()) << nichts;
    QTest::newRow("very large") << QList<float>{1e30F, 0, 0} << gruen;
    QTest::newRow("all negative") << QList<float>{-20, -50, -30} << nichts;
}

void TestNahrstoffraumView::sharesThatAreNoSharesComeToAnEnd()
{
    QFETCH(QList<float>, prozent);
    QFETCH(QColor, bei30Grad);
    male(prozent[0], prozent[1], prozent[2]);
    QCOMPARE(farbeBei(rechts, 30), bei30Grad);
    QCOMPARE(farbeBei(links, 30), gruen);
}

void TestNahrstoffraumView::radiusIsAFifthOfTheWidth_data()
{
    QTest::addColumn<QSize>("platz");
    QTest::addColumn<QPoint>("mitte"); // of the left circle, from the top left corner
    QTest::addColumn<int>("radius");
    // From the top the centre lies at height - (height + 90) / 2.
    QTest::newRow("200 by 190") << QSize(200, 190) << QPoint(50, 50) << 40;
    QTest::newRow("200 by 250") << QSize(200, 250) << QPoint(50, 80) << 40;
    QTest::newRow("300 by 290") << QSize(300, 290) << QPoint(75, 100) << 60;
}

void TestNahrstoffraumView::radiusIsAFifthOfTheWidth()
{
    QFETCH(QSize, platz);
    QFETCH(QPoint, mitte);
    QFETCH(int, radius);
    NahrstoffraumView view;
    view.wert1(100);
    view.wert2(0);
    view.wert3(0);
    m_probe.male(view, platz);
    const int versatz = platz.width() / 2; // from the left centre to the right one
    for (const int x : {mitte.x(), mitte.x() + versatz}) {
        QVERIFY(m_probe.deckung(x, mitte.y() - radius) > 200);
        QCOMPARE(m_probe.deckung(x, mitte.y() - radius - 1), 0);
        QVERIFY(m_probe.deckung(x, mitte.y() + radius - 1) > 200);
        QCOMPARE(m_probe.deckung(x, mitte.y() + radius), 0);
        QVERIFY(m_probe.deckung(x - radius, mitte.y()) > 200);
        QCOMPARE(m_probe.deckung(x - radius - 1, mitte.y()), 0);
        QVERIFY(m_probe.deckung(x + radius - 1, mitte.y()) > 200);
        QCOMPARE(m_probe.deckung(x + radius, mitte.y()), 0);
    }
    QVERIFY(m_probe.istLeer({0, mitte.y() + radius, platz.width(), platz.height() / 3}));
}

void TestNahrstoffraumView::nothingIsDrawnOutsideTheBounds()
{
    // So low that the circles are cut off at the top.
    const NahrstoffraumView view;
    m_probe.maleInnerhalb(view, QRectF(20, 60, 200, 100), {240, 200});
    QVERIFY(m_probe.istLeer({0, 0, 240, 60}));
    QCOMPARE(m_probe.farbe(90, 66), gelb);
}

void TestNahrstoffraumView::circlesAreSharpAtRatioTwo()
{
    const NahrstoffraumView view;
    m_probe.male(view, groesse, 2);
    QCOMPARE(m_probe.farbe(100, 21), blau); // the top of the left circle, half a point inside
    QCOMPARE(m_probe.deckung(100, 19), 0);
}

void TestNahrstoffraumView::circlesSayWhatTheyShow()
{
    NahrstoffraumView view;
    view.wert1(21.4F);
    view.wert2(50);
    view.wert3(28.6F);
    // No line may end between a number and its unit.
    QCOMPARE(view.beschreibung().replace(QChar(QChar::Nbsp), u'_'),
             QStringLiteral("Soll: Protein 15_%, Kohlenhydrate 55_%, Fett 30_%. "
                            "Ist: Protein 21_%, Kohlenhydrate 50_%, Fett 29_%."));
}

/// A share that is there is never said to be nothing.
void TestNahrstoffraumView::circlesSayATraceAsOne()
{
    QLocale::setDefault(QLocale(QLocale::German));
    NahrstoffraumView view;
    view.wert1(0.3F);
    view.wert2(0);
    view.wert3(99.7F);
    QVERIFY(view.beschreibung()
                .replace(QChar(QChar::Nbsp), u'_')
                .endsWith(QStringLiteral("Ist: Protein 0,3_%, Kohlenhydrate 0_%, Fett 100_%.")));
}

QTEST_MAIN(TestNahrstoffraumView)
#include "TestNahrstoffraumView.moc"
