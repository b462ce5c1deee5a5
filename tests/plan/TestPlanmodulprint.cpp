#include "Druckplan.h"

#include <QImage>
#include <QPainter>
#include <QTest>

class TestPlanmodulprint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSimpleListHoldsWhatItWasGiven();
    void theDetailedListHoldsWhatItWasGiven();
    void nineRowsAreReservedBelowTheFoods_data();
    void nineRowsAreReservedBelowTheFoods();
    void theViewIsAsWideAsThePaperAndHoldsAllPages_data();
    void theViewIsAsWideAsThePaperAndHoldsAllPages();
    void thePagesOfTheSimpleListFollowEachOther();
    void thePagesOfTheDetailedListBeginHigher();
    void rowsRunDownwardFromTheTop();
    void theBeginningOfARowIsFifteenWide();
    void aRowEndsExactlyWhereThePageEnds();
    void onlyWhatLiesInTheRectangleIsDrawn();
    void nothingIsDrawnForAnotherForm();
    void theWholeViewCanBePaintedGreen();
};

using namespace Druckplan;

namespace {

/// What a list draws into a part of its view, as the picture of the whole view.
QImage gezeichnet(const Planmodulprint &plan, const QRectF &rect)
{
    QImage bild(plan.bounds().size().toSize(), QImage::Format_ARGB32_Premultiplied);
    bild.fill(Qt::transparent);
    QPainter maler(&bild);
    plan.drawRect(maler, rect);
    return bild;
}

bool istLeer(const QImage &bild, int von, int bis)
{
    for (int y = von; y < bis; ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            if (qAlpha(bild.pixel(x, y)) != 0) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

void TestPlanmodulprint::theSimpleListHoldsWhatItWasGiven()
{
    const Planmodulprint plan = einfach();
    QCOMPARE(plan.checker, 2);
    QCOMPARE(plan.peoplePerPage, 30);
    QCOMPARE(plan.pages, 1);
    QCOMPARE(plan.sollkal, 2000);
    QCOMPARE(plan.lebensmittel, namen);
    QCOMPARE(plan.mengen, mengen);
    QCOMPARE(plan.kals, kals);
    QVERIFY(plan.prot.isEmpty());
    QVERIFY(plan.vc.isEmpty());
    QVERIFY(plan.hk.isEmpty());
}

void TestPlanmodulprint::theDetailedListHoldsWhatItWasGiven()
{
    const Planmodulprint plan = detailliert();
    QCOMPARE(plan.checker, 1);
    QCOMPARE(plan.peoplePerPage, 30);
    QCOMPARE(plan.pages, 1);
    QCOMPARE(plan.sollkal, 2000);
    QCOMPARE(plan.lebensmittel, namen);
    QCOMPARE(plan.mengen, mengen);
    QCOMPARE(plan.kals, kals);
    const Planmodulprint::Zahlen *listen[] = {
        &plan.prot, &plan.fet, &plan.kh, &plan.bs, &plan.chol, &plan.na,  &plan.ka,  &plan.ca,
        &plan.ph,   &plan.ma,  &plan.fe, &plan.va, &plan.vb1,  &plan.vb2, &plan.vb6, &plan.vc};
    for (std::size_t i = 0; i < naehrstoffe.size(); ++i) {
        QCOMPARE(*listen[i], naehrstoffe[i]);
    }
    QCOMPARE(plan.uebergew, ::Druckplan::wertungen[0]);
    QCOMPARE(plan.diabet, ::Druckplan::wertungen[1]);
    QCOMPARE(plan.gich, ::Druckplan::wertungen[2]);
    QCOMPARE(plan.hk, ::Druckplan::wertungen[3]);
}

void TestPlanmodulprint::nineRowsAreReservedBelowTheFoods_data()
{
    QTest::addColumn<int>("zeilen");
    QTest::addColumn<int>("seiten");
    QTest::newRow("an empty plan takes one page") << 0 << 1;
    QTest::newRow("one food") << 1 << 1;
    QTest::newRow("21 foods fill the page") << 21 << 1;
    QTest::newRow("22 foods begin a second") << 22 << 2;
    QTest::newRow("30 foods") << 30 << 2;
    QTest::newRow("51 foods fill the second") << 51 << 2;
    QTest::newRow("52 foods begin a third") << 52 << 3;
    QTest::newRow("500 foods") << 500 << 17;
}

void TestPlanmodulprint::nineRowsAreReservedBelowTheFoods()
{
    QFETCH(int, zeilen);
    QFETCH(int, seiten);
    for (const int form : {1, 2}) {
        const Planmodulprint plan = liste(form, zeilen);
        QCOMPARE(plan.pages, seiten);
        QCOMPARE(plan.knowsPageRange().erste, 1);
        QCOMPARE(plan.knowsPageRange().anzahl, seiten);
    }
}

void TestPlanmodulprint::theViewIsAsWideAsThePaperAndHoldsAllPages_data()
{
    QTest::addColumn<int>("papier");
    QTest::addColumn<int>("lage");
    QTest::addColumn<QSizeF>("groesse");
    QTest::newRow("A4 upright") << int(QPageSize::A4) << int(QPageLayout::Portrait)
                                << QSizeF(595, 842);
    QTest::newRow("A4 across") << int(QPageSize::A4) << int(QPageLayout::Landscape)
                               << QSizeF(842, 595);
    QTest::newRow("Letter upright")
        << int(QPageSize::Letter) << int(QPageLayout::Portrait) << QSizeF(612, 792);
    QTest::newRow("Letter across")
        << int(QPageSize::Letter) << int(QPageLayout::Landscape) << QSizeF(792, 612);
}

void TestPlanmodulprint::theViewIsAsWideAsThePaperAndHoldsAllPages()
{
    QFETCH(int, papier);
    QFETCH(int, lage);
    QFETCH(QSizeF, groesse);
    const auto seite = Druckprobe::papier(static_cast<QPageSize::PageSizeId>(papier),
                                          static_cast<QPageLayout::Orientation>(lage),
                                          {10, 20, 30, 40}); // margins don't count
    const Planmodulprint plan = liste(1, 30, seite);
    QCOMPARE(plan.bounds(), QRectF(0, 0, groesse.width(), 2 * groesse.height()));
    QCOMPARE(plan.rectHeight, static_cast<float>(groesse.height()) / 30.0F);
}

void TestPlanmodulprint::thePagesOfTheSimpleListFollowEachOther()
{
    // Letter across: rows of 20.4 points, two pages of 612.
    const Planmodulprint plan =
        liste(2, 30, Druckprobe::papier(QPageSize::Letter, QPageLayout::Landscape));
    QCOMPARE(plan.rectForPage(1), QRectF(0, 1224 - 30 * double(20.4F), 792, 30 * double(20.4F)));
    QCOMPARE(plan.rectForPage(2), QRectF(0, 1224 - 60 * double(20.4F), 792, 30 * double(20.4F)));
}

void TestPlanmodulprint::thePagesOfTheDetailedListBeginHigher()
{
    const Planmodulprint plan =
        liste(1, 30, Druckprobe::papier(QPageSize::Letter, QPageLayout::Landscape));
    QCOMPARE(plan.rectForPage(1),
             QRectF(0, 1224 - 30 * double(20.4F) + 25, 792, 30 * double(20.4F)));
    QCOMPARE(plan.rectForPage(2),
             QRectF(0, 1224 - 60 * double(20.4F) + 25, 792, 30 * double(20.4F)));
}

void TestPlanmodulprint::rowsRunDownwardFromTheTop()
{
    for (const int form : {1, 2}) {
        const Planmodulprint plan =
            liste(form, 30, Druckprobe::papier(QPageSize::Letter, QPageLayout::Landscape));
        QCOMPARE(plan.rectForPerson(0), QRectF(0, 1224 - double(20.4F), 792, double(20.4F)));
        QCOMPARE(plan.rectForPerson(1), QRectF(0, 1224 - 2 * double(20.4F), 792, double(20.4F)));
        QCOMPARE(plan.rectForPerson(35), QRectF(0, 1224 - 36 * double(20.4F), 792, double(20.4F)));
    }
}

void TestPlanmodulprint::theBeginningOfARowIsFifteenWide()
{
    const Planmodulprint plan =
        liste(2, 30, Druckprobe::papier(QPageSize::Letter, QPageLayout::Landscape));
    QCOMPARE(plan.rectForPerson2(1), QRectF(0, 1224 - 2 * double(20.4F), 15, double(20.4F)));
}

void TestPlanmodulprint::aRowEndsExactlyWhereThePageEnds()
{
    // Not a hair of the next page's first row may count as lying on the page before.
    for (const auto lage : {QPageLayout::Portrait, QPageLayout::Landscape}) {
        for (const auto groesse : {QPageSize::A4, QPageSize::Letter}) {
            const Planmodulprint plan = liste(2, 500, Druckprobe::papier(groesse, lage));
            for (int seite = 1; seite < plan.pages; ++seite) {
                const QRectF ort = plan.rectForPage(seite);
                QVERIFY(plan.rectForPerson(30 * seite - 1).intersects(ort));
                QVERIFY(!plan.rectForPerson(30 * seite).intersects(ort));
            }
        }
    }
}

void TestPlanmodulprint::onlyWhatLiesInTheRectangleIsDrawn()
{
    for (const int form : {1, 2}) {
        const Planmodulprint plan = liste(form, 30);
        const int hoehe = 28; // of a row, a little less than it is
        const QImage dritte = gezeichnet(plan, plan.rectForPerson(2));
        QVERIFY(istLeer(dritte, 0, 2 * hoehe));
        QVERIFY(!istLeer(dritte, 2 * hoehe, 3 * hoehe));
        QVERIFY(istLeer(dritte, 3 * hoehe + 1, dritte.height()));
        const QImage kopf = gezeichnet(plan, plan.rectForPerson(31));
        QVERIFY(istLeer(kopf, 0, 31 * hoehe));
        QVERIFY(!istLeer(kopf, 31 * hoehe, 32 * hoehe + 2));
        QVERIFY(istLeer(kopf, 32 * hoehe + 3, kopf.height()));
        QVERIFY(istLeer(gezeichnet(plan, plan.rectForPerson(32)), 0, kopf.height()));
    }
}

void TestPlanmodulprint::nothingIsDrawnForAnotherForm()
{
    Planmodulprint plan = detailliert();
    plan.checker = 3;
    const QImage bild = gezeichnet(plan, plan.bounds());
    QVERIFY(istLeer(bild, 0, bild.height()));
}

void TestPlanmodulprint::theWholeViewCanBePaintedGreen()
{
    const Planmodulprint plan = einfach();
    QImage bild(600, 850, QImage::Format_ARGB32_Premultiplied);
    bild.fill(Qt::transparent);
    QPainter maler(&bild);
    plan.drawRectb(maler);
    maler.end();
    QCOMPARE(bild.pixelColor(0, 0), QColor(0, 255, 0));
    QCOMPARE(bild.pixelColor(594, 841), QColor(0, 255, 0));
    QCOMPARE(bild.pixelColor(595, 841).alpha(), 0);
    QCOMPARE(bild.pixelColor(594, 842).alpha(), 0);
}

QTEST_MAIN(TestPlanmodulprint)
#include "TestPlanmodulprint.moc"
