#include "Fensterplatz.h"
#include "Probefenster.h"

#include <QDialog>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

using namespace Fensterplatz;

/// Where windows stand on large and small screens.
class TestFensterplatz : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void windowsOpenWithinTheirScreen_data();
    void windowsOpenWithinTheirScreen();
    void thePlanStandsBesideTheTable_data();
    void thePlanStandsBesideTheTable();
    void everyWindowIsBroughtIn();
    void aWindowWithoutAPlaceGetsNone();
    void whatFillsTheScreenFillsIt();
    void shownAgainItStaysWhereItWas();
    void aLongNameMakesNoWindowWider();
    void aMenuIsLeftWhereItIs();
    void theMainWindowRollsWhereItIsSmall();
    void theSheetFitsASmallScreen();
    void thePlanLeavesTheTableFree();
};

namespace {

// What stands around a window: 32 above, 4 on the other sides.
constexpr QRect laptop(0, 0, 1366, 768);
constexpr QRect doppelt(0, 0, 683, 384); // the same at twice the scale
constexpr QRect gross(0, 0, 2560, 1440);
constexpr QRect zweiter(1366, 0, 1920, 1080); // a screen right of the laptop's

} // namespace

void TestFensterplatz::windowsOpenWithinTheirScreen_data()
{
    QTest::addColumn<QRect>("schirm");
    QTest::addColumn<QPoint>("ort");
    QTest::addColumn<QSize>("wunsch");
    QTest::addColumn<QRect>("platz");
    QTest::newRow("what fits stays as it is")
        << laptop << QPoint(40, 50) << QSize(600, 400) << QRect(40, 50, 600, 400);
    QTest::newRow("too tall for a laptop")
        << laptop << QPoint(10, 40) << QSize(1280, 800) << QRect(10, 32, 1280, 732);
    QTest::newRow("too wide and too tall at twice the scale")
        << doppelt << QPoint(0, 0) << QSize(1280, 800) << QRect(4, 32, 675, 348);
    QTest::newRow("hanging out on the right and below")
        << laptop << QPoint(1200, 700) << QSize(600, 400) << QRect(762, 364, 600, 400);
    QTest::newRow("beyond the left and upper edge")
        << laptop << QPoint(-300, -300) << QSize(600, 400) << QRect(4, 32, 600, 400);
    QTest::newRow("exactly as large as there is room")
        << laptop << QPoint(4, 32) << QSize(1358, 732) << QRect(4, 32, 1358, 732);
    QTest::newRow("one point more")
        << laptop << QPoint(4, 32) << QSize(1359, 733) << QRect(4, 32, 1358, 732);
    QTest::newRow("on the second screen")
        << zweiter << QPoint(0, 0) << QSize(1280, 800) << QRect(1370, 32, 1280, 800);
}

void TestFensterplatz::windowsOpenWithinTheirScreen()
{
    QFETCH(QRect, schirm);
    QFETCH(QPoint, ort);
    QFETCH(QSize, wunsch);
    QFETCH(QRect, platz);
    QCOMPARE(imSchirm(schirm, ort, wunsch), platz);
}

void TestFensterplatz::thePlanStandsBesideTheTable_data()
{
    QTest::addColumn<QRect>("schirm");
    QTest::addColumn<QRect>("haupt");
    QTest::addColumn<QRect>("tabelle");
    QTest::addColumn<QRect>("platz");
    QTest::newRow("room on the right of the main window")
        << gross << QRect(0, 0, 1288, 836) << QRect(16, 150, 640, 600)
        << QRect(1292, 32, 1240, 780);
    QTest::newRow("exactly as much room as it needs")
        << QRect(0, 0, 2536, 1440) << QRect(0, 0, 1288, 836) << QRect(16, 150, 640, 600)
        << QRect(1292, 32, 1240, 780);
    QTest::newRow("one point less: right of the table, as wide as it is")
        << QRect(0, 0, 2535, 1440) << QRect(0, 0, 1288, 836) << QRect(16, 150, 640, 600)
        << QRect(1291, 32, 1240, 780);
    QTest::newRow("room on the left only")
        << gross << QRect(1272, 100, 1288, 836) << QRect(1288, 250, 640, 600)
        << QRect(28, 132, 1240, 780);
    QTest::newRow("on the left exactly as much as it needs")
        << gross << QRect(1248, 100, 1288, 836) << QRect(1264, 250, 640, 600)
        << QRect(4, 132, 1240, 780);
    QTest::newRow("a laptop: narrower, right of the table")
        << laptop << QRect(0, 0, 1288, 768) << QRect(16, 150, 640, 500) << QRect(660, 32, 702, 732);
    QTest::newRow("a maximised main window")
        << QRect(0, 0, 1920, 1080) << QRect(0, 0, 1920, 1080) << QRect(16, 150, 900, 800)
        << QRect(920, 32, 996, 780);
    QTest::newRow("just wide enough beside the table")
        << laptop << QRect(0, 0, 1288, 768) << QRect(16, 150, 788, 500) << QRect(808, 32, 554, 732);
    QTest::newRow("too narrow beside the table: flat, at the lower edge")
        << laptop << QRect(0, 0, 1288, 768) << QRect(16, 150, 789, 500)
        << QRect(122, 489, 1240, 275);
    QTest::newRow("at twice the scale: flat, at the lower edge")
        << doppelt << QRect(0, 0, 683, 384) << QRect(16, 150, 420, 200) << QRect(4, 105, 675, 275);
}

void TestFensterplatz::thePlanStandsBesideTheTable()
{
    QFETCH(QRect, schirm);
    QFETCH(QRect, haupt);
    QFETCH(QRect, tabelle);
    QFETCH(QRect, platz);
    QCOMPARE(planplatz({schirm, haupt, tabelle, QSize(1240, 780), QSize(554, 275)}), platz);
}

void TestFensterplatz::everyWindowIsBroughtIn()
{
    const Schirmwaechter waechter;
    const QRect schirm = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget fenster;
    fenster.setGeometry(schirm.right() - 20, schirm.bottom() - 20, schirm.width() + 500, 300);
    fenster.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenster));
    QCOMPARE(fenster.width(), schirm.width() - 8);
    QCOMPARE(fenster.height(), 300);
    QVERIFY(schirm.contains(fenster.geometry()));

    QDialog frage(&fenster);
    frage.resize(200, schirm.height() + 300);
    frage.open();
    QVERIFY(QTest::qWaitForWindowExposed(&frage));
    QCOMPARE(frage.height(), schirm.height() - 36);
}

/// The desktop knows best where a window goes that was never put anywhere.
void TestFensterplatz::aWindowWithoutAPlaceGetsNone()
{
    QWidget fenster;
    fenster.resize(QGuiApplication::primaryScreen()->availableGeometry().width() + 500, 300);
    bringeInDenSchirm(fenster);
    QVERIFY(!fenster.testAttribute(Qt::WA_Moved));
    QCOMPARE(fenster.width(), QGuiApplication::primaryScreen()->availableGeometry().width() - 8);
}

void TestFensterplatz::whatFillsTheScreenFillsIt()
{
    const Schirmwaechter waechter;
    const QRect schirm = QGuiApplication::primaryScreen()->geometry();
    QWidget fenster;
    fenster.showFullScreen();
    QTRY_COMPARE(fenster.geometry(), schirm);
    fenster.hide();
    fenster.setWindowState(Qt::WindowMaximized);
    fenster.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenster));
    QVERIFY(fenster.isMaximized());
    QVERIFY(fenster.width() > schirm.width() - 8); // it needs no frame beside it
}

void TestFensterplatz::shownAgainItStaysWhereItWas()
{
    const Schirmwaechter waechter;
    const QRect schirm = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget fenster;
    fenster.setGeometry(4, 32, 300, schirm.height() - 36);
    for (int i = 0; i < 3; ++i) {
        fenster.show();
        QVERIFY(QTest::qWaitForWindowExposed(&fenster));
        QCOMPARE(fenster.geometry(), QRect(4, 32, 300, schirm.height() - 36));
        fenster.hide();
    }
}

void TestFensterplatz::aLongNameMakesNoWindowWider()
{
    Probeheim heim;
    heim.schreibeTabelle(zaehltabelle(30));
    const Probefenster fenster(heim);
    fenster->EingabeFensterfeldA->setStringValue(QString(300, u'W'));
    fenster->umschreibenDerEingabeFelder();
    QCOMPARE(fenster->hinweise->hinweise().size(), 1);
    QVERIFY(fenster->hinweise->hinweise()[0].text.startsWith(u'„' + QString(59, u'W') +
                                                             QStringLiteral("…“ ist gesichert.")));
    QVERIFY(fenster->Hauptfenster->minimumSizeHint().width() <= 675);
    fenster->hinweise->zeige({.kennung = QStringLiteral("lang"), .text = QString(300, u'W')});
    QVERIFY(fenster->Hauptfenster->minimumSizeHint().width() <= 675);
}

void TestFensterplatz::aMenuIsLeftWhereItIs()
{
    const Schirmwaechter waechter;
    QLabel fahne(nullptr, Qt::ToolTip);
    fahne.setGeometry(-50, -50, 40, 20);
    fahne.show();
    QCOMPARE(fahne.geometry(), QRect(-50, -50, 40, 20));
}

void TestFensterplatz::theMainWindowRollsWhereItIsSmall()
{
    Probeheim heim;
    heim.schreibeTabelle(zaehltabelle(30));
    const Probefenster fenster(heim);
    QMainWindow &haupt = *fenster->Hauptfenster;
    const auto *rollend =
        qobject_cast<QScrollArea *>(fenster->teiler->parentWidget()->parentWidget());
    QVERIFY(rollend != nullptr);
    QVERIFY(haupt.minimumSizeHint().width() <= 675);
    QVERIFY(haupt.minimumSizeHint().height() <= 348);

    haupt.resize(1280, 800);
    QCoreApplication::processEvents();
    QVERIFY(!rollend->horizontalScrollBar()->isVisible());
    QVERIFY(!rollend->verticalScrollBar()->isVisible());

    haupt.resize(675, 348);
    QCoreApplication::processEvents();
    QCOMPARE(haupt.size(), QSize(675, 348));
    QVERIFY(rollend->horizontalScrollBar()->isVisible());
    // Nothing is squeezed: what does not fit is reached by rolling, also with the Tab key.
    QVERIFY(fenster->teiler->width() >= fenster->teiler->minimumSizeHint().width());
    fenster->lebensmittelmenge->setFocus();
    rollend->horizontalScrollBar()->setValue(0);
    QTest::keyClick(haupt.focusWidget(), Qt::Key_Tab);
    const QWidget *vorn = haupt.focusWidget();
    const QPoint mitte = vorn->mapTo(rollend->viewport(), vorn->rect().center());
    QVERIFY(rollend->viewport()->rect().contains(mitte));
}

void TestFensterplatz::theSheetFitsASmallScreen()
{
    Probeheim heim;
    heim.schreibeTabelle(zaehltabelle(30));
    const Probefenster fenster(heim);
    QDialog &blatt = *fenster->einfenster;
    fenster->Fenster();
    QVERIFY(QTest::qWaitForWindowExposed(&blatt));
    const auto *rollend = blatt.findChild<QScrollArea *>();
    QVERIFY(!rollend->verticalScrollBar()->isVisible()); // where there is room it is seen whole
    QVERIFY(blatt.minimumSizeHint().height() <= 348);
    blatt.resize(blatt.width(), 348);
    QCoreApplication::processEvents();
    QCOMPARE(blatt.height(), 348);
    fenster->EingabeFensteruebernehmen->setFocus(Qt::TabFocusReason);
    QTest::keyClick(blatt.focusWidget(), Qt::Key_Tab);
    QTest::keyClick(blatt.focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
    QVERIFY(fenster->EingabeFensteruebernehmen->hasFocus());
    QVERIFY(fenster->EingabeFensteruebernehmen->visibleRegion().boundingRect().height() > 10);
}

void TestFensterplatz::thePlanLeavesTheTableFree()
{
    Probeheim heim;
    heim.schreibeTabelle(zaehltabelle(30));
    const Probefenster fenster(heim);
    // The screen of the tests has 800 points: too few for the plan beside a table of this width.
    fenster->Hauptfenster->resize(780, 700);
    fenster->Tabelle->setMinimumWidth(420);
    QCoreApplication::processEvents();
    fenster->Planmoduloeffnen();
    const QWidget &plan = *fenster->planmodul->window();
    const QRect schirm = plan.screen()->availableGeometry();
    QVERIFY(schirm.contains(plan.geometry()));
    const QRect tabelle(fenster->Tabelle->mapToGlobal(QPoint(0, 0)), fenster->Tabelle->size());
    const QRect frei = tabelle.intersected(schirm);
    QVERIFY(plan.geometry().top() - frei.top() >= 5 * fenster->Tabelle->rowHeight());
}

QTEST_MAIN(TestFensterplatz)
#include "TestFensterplatz.moc"
