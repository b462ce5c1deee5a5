#include "Fensterplatz.h"
#include "Probefenster.h"

#include <QScreen>
#include <QSlider>
#include <QSplitter>
#include <QTest>

using namespace Fensterplatz;

/// Windows come back as they were left: where they stood, how large they were, whether they filled
/// the screen. The screen of the tests has 800 x 800 points.
class TestFenstergedaechtnis : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theLastPlaceOnTheScreensOfToday_data();
    void theLastPlaceOnTheScreensOfToday();
    void theMainWindowComesBack();
    void thePlanComesBack();
    void untouchedWindowsAreLeftToTheProgram();
    void aWindowThatFillsTheScreenComesBackSo();
    void aPlaceOffTheScreenIsBroughtIn();
    void nonsenseInTheFileIsNotTaken();
    void aWindowOnItsWayIsNotNoted();
    void closingNotesAtOnce();
    void aFullScreenKeepsThePlaceOfBefore();
    void thePlansDividingLineComesBack();
    void thePlansRowsComeBack();
    void rowsThatCanNotBeAreNotTaken_data();
    void rowsThatCanNotBeAreNotTaken();
    void theSheetComesBackInItsSize();
    void theUntouchedSheetFitsItsContent();

private:
    AppController &controller() const { return m_fenster->controller(); }
    QWidget &haupt() const { return *controller().Hauptfenster; }
    QWidget &plan() const { return *controller().planmodul->window(); }
    void starteNeu();
    void oeffnePlan() const;
    void setze(const QString &schluessel, const QVariant &wert);
    QVariant gemerkt(const char *schluessel) const
    {
        return m_heim->einstellungen().value(QLatin1String(schluessel));
    }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

// What stands around a window: 32 above, 4 on the other sides.
constexpr QRect laptop(0, 0, 1366, 768);
constexpr QRect doppelt(0, 0, 683, 384); // the same at twice the scale
constexpr QRect zweiter(1366, 0, 1920, 1080);

} // namespace

void TestFenstergedaechtnis::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(30));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestFenstergedaechtnis::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestFenstergedaechtnis::starteNeu()
{
    m_fenster.reset();
    m_heim->liesEinstellungenNeu();
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestFenstergedaechtnis::oeffnePlan() const
{
    controller().Planmoduloeffnen();
    QVERIFY(QTest::qWaitForWindowExposed(&plan()));
}

void TestFenstergedaechtnis::setze(const QString &schluessel, const QVariant &wert)
{
    m_fenster.reset();
    m_heim->einstellungen().setValue(schluessel, wert);
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestFenstergedaechtnis::theLastPlaceOnTheScreensOfToday_data()
{
    QTest::addColumn<QList<QRect>>("schirme");
    QTest::addColumn<QRect>("gemerkt");
    QTest::addColumn<QRect>("platz");
    QTest::newRow("the same screen")
        << QList{laptop} << QRect(100, 80, 900, 600) << QRect(100, 80, 900, 600);
    QTest::newRow("on the second of two screens")
        << QList{laptop, zweiter} << QRect(1500, 100, 1280, 800) << QRect(1500, 100, 1280, 800);
    QTest::newRow("the second screen is gone")
        << QList{laptop} << QRect(1500, 100, 1280, 800) << QRect(82, 32, 1280, 732);
    QTest::newRow("a screen left of the first is gone")
        << QList{laptop} << QRect(-1900, 50, 800, 600) << QRect(4, 50, 800, 600);
    QTest::newRow("a smaller screen")
        << QList{laptop} << QRect(60, 60, 1800, 1000) << QRect(4, 32, 1358, 732);
    QTest::newRow("twice the scale")
        << QList{doppelt} << QRect(100, 80, 900, 600) << QRect(4, 32, 675, 348);
    QTest::newRow("on two screens: the one with more of it")
        << QList{laptop, zweiter} << QRect(1300, 100, 600, 400) << QRect(1370, 100, 600, 400);
    QTest::newRow("its title bar above the screen")
        << QList{laptop} << QRect(50, 0, 600, 400) << QRect(50, 32, 600, 400);
    QTest::newRow("no screen at all")
        << QList<QRect>() << QRect(50, 0, 600, 400) << QRect(50, 0, 600, 400);
}

void TestFenstergedaechtnis::theLastPlaceOnTheScreensOfToday()
{
    QFETCH(QList<QRect>, schirme);
    QFETCH(QRect, gemerkt);
    QTEST(wiederImSchirm(schirme, gemerkt), "platz");
}

void TestFenstergedaechtnis::theMainWindowComesBack()
{
    haupt().setGeometry(30, 60, 740, 610);
    starteNeu();
    QCOMPARE(haupt().geometry(), QRect(30, 60, 740, 610));
    QVERIFY(!haupt().isMaximized());
}

void TestFenstergedaechtnis::thePlanComesBack()
{
    oeffnePlan();
    plan().setGeometry(20, 90, 700, 500);
    starteNeu();
    oeffnePlan();
    QCOMPARE(plan().geometry(), QRect(20, 90, 700, 500));
    plan().setGeometry(40, 100, 700, 500);
    plan().close();
    starteNeu();
    oeffnePlan();
    QCOMPARE(plan().geometry(), QRect(40, 100, 700, 500));
}

/// The plan stands beside the main window wherever that is, until the user puts it elsewhere.
void TestFenstergedaechtnis::untouchedWindowsAreLeftToTheProgram()
{
    oeffnePlan();
    controller().Fenster();
    controller().Fensterschliessen();
    plan().close();
    haupt().close();
    m_fenster.reset();
    for (const char *schluessel :
         {"Hauptfenster/Platz", "Hauptfenster/maximiert", "Planfenster/Platz",
          "Planfenster/maximiert", "Planfenster/untereSeite", "Planfenster/Zeilenhoehe",
          "Eingabefenster/Groesse"}) {
        QVERIFY2(!gemerkt(schluessel).isValid(), schluessel);
    }
}

void TestFenstergedaechtnis::aWindowThatFillsTheScreenComesBackSo()
{
    haupt().setGeometry(30, 60, 740, 610);
    QTRY_COMPARE(gemerkt("Hauptfenster/Platz").toRect(), QRect(30, 60, 740, 610));
    haupt().showMaximized();
    oeffnePlan();
    plan().showMaximized();
    QTRY_VERIFY(gemerkt("Hauptfenster/maximiert").toBool());
    starteNeu();
    QVERIFY(haupt().isMaximized());
    QCOMPARE(gemerkt("Hauptfenster/Platz").toRect(), QRect(30, 60, 740, 610));
    oeffnePlan();
    QVERIFY(plan().isMaximized());
    QCOMPARE(haupt().normalGeometry(), QRect(30, 60, 740, 610));
    haupt().showNormal();
    starteNeu();
    QVERIFY(!haupt().isMaximized());
}

void TestFenstergedaechtnis::aPlaceOffTheScreenIsBroughtIn()
{
    setze(QStringLiteral("Hauptfenster/Platz"), QRect(3000, 2000, 1900, 700));
    QCOMPARE(haupt().geometry(), QRect(4, 96, 792, 700));
    QCOMPARE(gemerkt("Hauptfenster/Platz").toRect(), QRect(3000, 2000, 1900, 700));
    m_fenster.reset(); // the large screen may be there again tomorrow
    QCOMPARE(gemerkt("Hauptfenster/Platz").toRect(), QRect(3000, 2000, 1900, 700));
    setze(QStringLiteral("Planfenster/Platz"), QRect(-900, -900, 700, 500));
    oeffnePlan();
    QCOMPARE(plan().geometry(), QRect(4, 32, 700, 500));
}

void TestFenstergedaechtnis::nonsenseInTheFileIsNotTaken()
{
    const QSize vorher = haupt().size();
    for (const QVariant &unsinn : {QVariant(QStringLiteral("links")), QVariant(12),
                                   QVariant(QRect(0, 0, -5, 40)), QVariant(QRect())}) {
        setze(QStringLiteral("Hauptfenster/Platz"), unsinn);
        QCOMPARE(haupt().size(), vorher);
    }
}

/// Each step of a drag begins the wait anew.
void TestFenstergedaechtnis::aWindowOnItsWayIsNotNoted()
{
    QElapsedTimer uhr;
    uhr.start();
    for (int i = 0; uhr.elapsed() < 900; ++i) {
        haupt().setGeometry(10 + i % 50, 50, 700, 600);
        QCoreApplication::processEvents();
        QVERIFY(!gemerkt("Hauptfenster/Platz").isValid());
    }
    haupt().setGeometry(77, 88, 700, 600);
    QTRY_COMPARE(gemerkt("Hauptfenster/Platz").toRect(), QRect(77, 88, 700, 600));
}

void TestFenstergedaechtnis::closingNotesAtOnce()
{
    haupt().setGeometry(25, 45, 700, 600);
    QVERIFY(!gemerkt("Hauptfenster/Platz").isValid());
    haupt().close();
    QCOMPARE(gemerkt("Hauptfenster/Platz").toRect(), QRect(25, 45, 700, 600));
}

/// It was filled for the time being.
void TestFenstergedaechtnis::aFullScreenKeepsThePlaceOfBefore()
{
    haupt().setGeometry(30, 60, 740, 610);
    QTRY_COMPARE(gemerkt("Hauptfenster/Platz").toRect(), QRect(30, 60, 740, 610));
    haupt().showFullScreen();
    QTRY_VERIFY(haupt().width() > 740);
    haupt().close();
    QCOMPARE(gemerkt("Hauptfenster/Platz").toRect(), QRect(30, 60, 740, 610));
    QVERIFY(!gemerkt("Hauptfenster/maximiert").toBool());
}

void TestFenstergedaechtnis::thePlansDividingLineComesBack()
{
    oeffnePlan();
    plan().setGeometry(20, 40, 740, 700);
    QCoreApplication::processEvents();
    const int vorher = controller().planmodul->teiler->sizes().last();
    QWidget *linie = controller().planmodul->teiler->handle(1);
    const QPoint mitte = linie->rect().center();
    QTest::mousePress(linie, Qt::LeftButton, {}, mitte);
    QTest::mouseMove(linie, mitte + QPoint(0, 60));
    QTest::mouseRelease(linie, Qt::LeftButton, {}, mitte + QPoint(0, 60));
    const int unten = controller().planmodul->teiler->sizes().last();
    QVERIFY(vorher - unten >= 40); // it was moved
    starteNeu();
    oeffnePlan();
    QCOMPARE(plan().height(), 700);
    QVERIFY(qAbs(controller().planmodul->teiler->sizes().last() - unten) <= 4);
}

void TestFenstergedaechtnis::thePlansRowsComeBack()
{
    oeffnePlan();
    const int spalte =
        controller().planmodul->PlanTabelle->modell()->spaltenstelle(QStringLiteral("protein"));
    const int breite = controller().planmodul->PlanTabelle->columnWidth(spalte);
    controller().planmodul->tabellengroesse->regler()->setFocus();
    for (int i = 0; i < 9; ++i) {
        QTest::keyClick(controller().planmodul->tabellengroesse->regler(), Qt::Key_Right);
    }
    const int hoehe = controller().planmodul->PlanTabelle->rowHeight();
    QVERIFY(hoehe >= 35);
    starteNeu();
    oeffnePlan();
    QCOMPARE(controller().planmodul->PlanTabelle->rowHeight(), hoehe);
    QCOMPARE(controller().planmodul->tabellengroesse->intValue(), hoehe);
    // The widths that the control sets are for the time being.
    QCOMPARE(controller().planmodul->PlanTabelle->columnWidth(spalte), breite);
}

void TestFenstergedaechtnis::rowsThatCanNotBeAreNotTaken_data()
{
    QTest::addColumn<QVariant>("wert");
    QTest::newRow("lower than the control goes") << QVariant(19);
    QTest::newRow("higher than the control goes") << QVariant(101);
    QTest::newRow("no number") << QVariant(QStringLiteral("hoch"));
}

void TestFenstergedaechtnis::rowsThatCanNotBeAreNotTaken()
{
    QFETCH(QVariant, wert);
    oeffnePlan();
    const int vorher = controller().planmodul->PlanTabelle->rowHeight();
    setze(QStringLiteral("Planfenster/Zeilenhoehe"), wert);
    oeffnePlan();
    QCOMPARE(controller().planmodul->PlanTabelle->rowHeight(), vorher);
}

void TestFenstergedaechtnis::theSheetComesBackInItsSize()
{
    controller().Fenster();
    QVERIFY(QTest::qWaitForWindowExposed(controller().einfenster));
    const QSize groesse = controller().einfenster->size() + QSize(40, 30);
    controller().einfenster->resize(groesse);
    QCoreApplication::processEvents();
    controller().Fensterschliessen();
    starteNeu();
    controller().Fenster();
    QCOMPARE(controller().einfenster->size(), groesse);
}

/// A size that nobody chose must not hold back a sheet that needs more with larger letters.
void TestFenstergedaechtnis::theUntouchedSheetFitsItsContent()
{
    controller().Fenster();
    QVERIFY(QTest::qWaitForWindowExposed(controller().einfenster));
    controller().Fensterschliessen();
    starteNeu();
    QVERIFY(!controller().einfenster->testAttribute(Qt::WA_Resized));
    controller().Fenster();
    QCOMPARE(controller().einfenster->size(), controller().einfenster->sizeHint());
}

QTEST_MAIN(TestFenstergedaechtnis)
#include "TestFenstergedaechtnis.moc"
