#include "Probefenster.h"

#include <QAction>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

/// The search by name at the keys: when it begins, the way into the results and back.
class TestSucheTasten : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aPauseInTypingSearches();
    void everyKeyBeginsThePauseAnew();
    void returnSearchesAtOnceAndOnlyOnce();
    void returnSearchesAgain();
    void leavingTheBoxSearchesForWhatWasTyped();
    void leavingWithoutTypingSearchesNothing();
    void aClickRightAfterTypingChoosesWhatWasClicked();
    void noSearchRunsBehindAQuestion();
    void aProfileSearchIsNotOverwritten();
    void theClearButtonEmptiesTheColumn();
    void escapeClears();
    void escapeIsNoLongerFollowedByASearch();
    void controlFGoesToTheBox();
    void downGoesToTheFirstResult_data();
    void downGoesToTheFirstResult();
    void arrowsMoveThroughTheResultsWithoutChoosing();
    void returnTakesTheFoodOver();
    void theCursorStaysAmongTheResults();
    void withoutTakeOverReturnOnlyMovesTheSelection();
    void takingOverDoesNotDependOnWhereTheFoodIs();

private:
    AppController &controller() const { return m_fenster->controller(); }
    Textfeld *suchfeld() const { return controller().suchfeld; }
    Tabellenansicht *tabelle() const { return controller().Tabelle; }
    QString gezeigt() const { return Probefenster::text(*controller().feldA); }
    void tippe(const char *text) const
    {
        suchfeld()->setFocus();
        QTest::keyClicks(suchfeld(), QString::fromLatin1(text));
    }
    int suchlaeufe() const { return static_cast<int>(m_suchlaeufe->count()); }
    /// As long as a pause in typing and longer.
    static void warteDiePauseAb();

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
    std::unique_ptr<QSignalSpy> m_suchlaeufe;
};

namespace {

const QString strich = QStringLiteral("-");

/// Tells each time its widget is shown: the indicator of the search is shown once in each.
class Schauer : public QObject
{
    Q_OBJECT

public:
    explicit Schauer(QWidget *widget) : QObject(widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Show) {
            Q_EMIT gezeigt();
        }
        return false;
    }

Q_SIGNALS:
    void gezeigt();
};

} // namespace

void TestSucheTasten::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(30));
    m_heim->schreibeEigene(verzeichnis({lebensmittel(QStringLiteral("Meine Speise"))}));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    m_suchlaeufe =
        std::make_unique<QSignalSpy>(new Schauer(controller().suchfortschritt), &Schauer::gezeigt);
}

void TestSucheTasten::cleanup()
{
    m_suchlaeufe.reset();
    m_fenster.reset();
    m_heim.reset();
}

void TestSucheTasten::warteDiePauseAb()
{
    QTimer uhr;
    QSignalSpy um(&uhr, &QTimer::timeout);
    uhr.start(500);
    QVERIFY(um.wait());
}

void TestSucheTasten::aPauseInTypingSearches()
{
    tippe("0007");
    QCOMPARE(suchlaeufe(), 0);
    QTRY_COMPARE(suchlaeufe(), 1);
    QCOMPARE(controller().suchArray, QStringList({strich, zaehlname(7)}));
    QVERIFY(suchfeld()->hasFocus()); // and one can type on
    QTest::keyClick(suchfeld(), Qt::Key_Backspace);
    QTRY_COMPARE(suchlaeufe(), 2);
    QCOMPARE(controller().suchArray.size(), 11); // "000"
}

void TestSucheTasten::everyKeyBeginsThePauseAnew()
{
    QElapsedTimer uhr;
    uhr.start();
    while (uhr.elapsed() < 600) { // longer than the pause, but never still for so long
        tippe("x");
        QTest::qWait(20);
    }
    QCOMPARE(suchlaeufe(), 0);
    QTRY_COMPARE(suchlaeufe(), 1);
}

void TestSucheTasten::returnSearchesAtOnceAndOnlyOnce()
{
    tippe("0007");
    QTest::keyClick(suchfeld(), Qt::Key_Return);
    QCOMPARE(suchlaeufe(), 1);
    QCOMPARE(controller().suchArray.size(), 2);
    warteDiePauseAb();
    QCOMPARE(suchlaeufe(), 1);
}

void TestSucheTasten::returnSearchesAgain()
{
    tippe("0007");
    QTest::keyClick(suchfeld(), Qt::Key_Return);
    m_fenster->klicke(5, inName);
    suchfeld()->setFocus();
    QTest::keyClick(suchfeld(), Qt::Key_Return);
    QCOMPARE(suchlaeufe(), 2);
    QCOMPARE(gezeigt(), zaehlname(0));
    QTest::keyClick(suchfeld(), Qt::Key_Enter); // that of the number pad
    QCOMPARE(suchlaeufe(), 3);
}

void TestSucheTasten::leavingTheBoxSearchesForWhatWasTyped()
{
    tippe("0007");
    QTest::keyClick(suchfeld(), Qt::Key_Tab);
    QVERIFY(!suchfeld()->hasFocus());
    QCOMPARE(suchlaeufe(), 1);
    QCOMPARE(controller().suchArray, QStringList({strich, zaehlname(7)}));
    warteDiePauseAb();
    QCOMPARE(suchlaeufe(), 1);
}

void TestSucheTasten::leavingWithoutTypingSearchesNothing()
{
    suchfeld()->setFocus();
    QTest::keyClick(suchfeld(), Qt::Key_Tab);
    suchfeld()->setFocus();
    tabelle()->setFocus();
    QCOMPARE(suchlaeufe(), 0);
    QVERIFY(controller().suchArray.isEmpty());
}

void TestSucheTasten::aClickRightAfterTypingChoosesWhatWasClicked()
{
    tippe("0007");
    m_fenster->klicke(5, inName);
    warteDiePauseAb();
    QCOMPARE(suchlaeufe(), 1);
    QCOMPARE(gezeigt(), zaehlname(5));
    QCOMPARE(controller().suchArray, QStringList({strich, zaehlname(7)}));
}

/// A search shows the first food. While a question about the food on display is open, that one
/// must stay.
void TestSucheTasten::noSearchRunsBehindAQuestion()
{
    m_fenster->klicke(5, inName);
    tippe("0007");
    controller().Fenster();
    QVERIFY(QTest::qWaitForWindowActive(controller().einfenster));
    warteDiePauseAb();
    QCOMPARE(suchlaeufe(), 0);
    QCOMPARE(gezeigt(), zaehlname(5));
    controller().Fensterschliessen();
    controller().Hauptfenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(controller().Hauptfenster));
    suchfeld()->setFocus();
    QTest::keyClick(suchfeld(), Qt::Key_Return);
    QCOMPARE(suchlaeufe(), 1);
}

void TestSucheTasten::aProfileSearchIsNotOverwritten()
{
    tippe("0007");
    controller().proteinsuche();
    QCOMPARE(controller().suchArray.size(), 31);
    warteDiePauseAb();
    QCOMPARE(controller().suchArray.size(), 31);
}

void TestSucheTasten::theClearButtonEmptiesTheColumn()
{
    tippe("0007");
    QTest::keyClick(suchfeld(), Qt::Key_Return);
    auto *leeren = suchfeld()->findChild<QToolButton *>();
    QVERIFY(leeren != nullptr);
    QTest::mouseClick(leeren, Qt::LeftButton);
    QVERIFY(suchfeld()->text().isEmpty());
    QTRY_COMPARE(controller().suchArray, QStringList{strich});
}

void TestSucheTasten::escapeClears()
{
    tippe("0007");
    QTest::keyClick(suchfeld(), Qt::Key_Return);
    m_fenster->klicke(5, inName);
    suchfeld()->setFocus();
    QTest::keyClick(suchfeld(), Qt::Key_Escape);
    QCOMPARE(Probefenster::text(*suchfeld()), QString());
    QCOMPARE(suchfeld()->stringValue(), QString());
    QCOMPARE(controller().suchArray, QStringList{strich});
    QCOMPARE(controller().suchArray2, QStringList{strich});
    QCOMPARE(gezeigt(), zaehlname(0)); // an empty search is a search
    QVERIFY(suchfeld()->hasFocus());
}

void TestSucheTasten::escapeIsNoLongerFollowedByASearch()
{
    tippe("0007");
    QTest::keyClick(suchfeld(), Qt::Key_Escape);
    QCOMPARE(suchlaeufe(), 1);
    m_fenster->klicke(5, inName);
    warteDiePauseAb();
    QCOMPARE(suchlaeufe(), 1);
    QCOMPARE(gezeigt(), zaehlname(5));
}

void TestSucheTasten::controlFGoesToTheBox()
{
    suchfeld()->setStringValue(QStringLiteral("0007"));
    QCoreApplication::processEvents();
    tabelle()->setFocus();
    QTest::keyClick(controller().Hauptfenster, Qt::Key_F, Qt::ControlModifier);
    QVERIFY(suchfeld()->hasFocus());
    QCOMPARE(suchfeld()->selectedText(), QStringLiteral("0007"));
    QTest::keyClicks(suchfeld(), QStringLiteral("1")); // typing replaces the last search
    QCOMPARE(suchfeld()->stringValue(), QStringLiteral("1"));
}

void TestSucheTasten::downGoesToTheFirstResult_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("zeile");
    QTest::newRow("past the dash") << QStringLiteral("000") << 1;
    QTest::newRow("to the dash when nothing was found") << QStringLiteral("Kaviar") << 0;
}

void TestSucheTasten::downGoesToTheFirstResult()
{
    QFETCH(QString, text);
    QFETCH(int, zeile);
    suchfeld()->setFocus();
    QTest::keyClicks(suchfeld(), text);
    QTest::keyClick(suchfeld(), Qt::Key_Down); // without waiting for the search
    QCOMPARE(suchlaeufe(), 1);
    QVERIFY(tabelle()->hasFocus());
    QCOMPARE(tabelle()->currentIndex().row(), zeile);
    QCOMPARE(tabelle()->currentIndex().column(), inSuch);
    QCOMPARE(tabelle()->selectedRow(), 0);
    QCOMPARE(gezeigt(), zaehlname(0)); // nothing is chosen yet
}

void TestSucheTasten::arrowsMoveThroughTheResultsWithoutChoosing()
{
    tippe("000");
    QTest::keyClick(suchfeld(), Qt::Key_Down);
    QTest::keyClick(tabelle(), Qt::Key_Down);
    QTest::keyClick(tabelle(), Qt::Key_Down);
    QTest::keyClick(tabelle(), Qt::Key_Up);
    QCOMPARE(tabelle()->currentIndex().row(), 2);
    QCOMPARE(tabelle()->currentIndex().column(), inSuch);
    QCOMPARE(tabelle()->selectedRow(), 0);
    QCOMPARE(gezeigt(), zaehlname(0));
    QCOMPARE(AppController::angeklickteSpalte, -1);
}

void TestSucheTasten::returnTakesTheFoodOver()
{
    tippe("e 001");
    QTest::keyClick(suchfeld(), Qt::Key_Down);
    QTest::keyClick(tabelle(), Qt::Key_Down); // row 2: "Speise 0011"
    QTest::keyClick(tabelle(), Qt::Key_Return);
    QCOMPARE(gezeigt(), zaehlname(11));
    QCOMPARE(Probefenster::text(*controller().feldB), QStringLiteral("12 kcal"));
    QCOMPARE(AppController::angeklickteSpalte, 2);
    QCOMPARE(tabelle()->selectedRow(), 11);
    QVERIFY(!controller().lebensmittelmenge->isEnabled());
}

void TestSucheTasten::theCursorStaysAmongTheResults()
{
    tippe("e 001");
    QTest::keyClick(suchfeld(), Qt::Key_Down);
    QTest::keyClick(tabelle(), Qt::Key_Return);
    QCOMPARE(gezeigt(), zaehlname(10));
    QVERIFY(tabelle()->hasFocus());
    QTest::keyClick(tabelle(), Qt::Key_Down);
    QTest::keyClick(tabelle(), Qt::Key_Enter);
    QCOMPARE(gezeigt(), zaehlname(11));
    QCOMPARE(tabelle()->currentIndex().row(), 2);
}

void TestSucheTasten::withoutTakeOverReturnOnlyMovesTheSelection()
{
    controller().direkteuebernahme->click();
    tippe("e 001");
    QTest::keyClick(suchfeld(), Qt::Key_Down);
    QTest::keyClick(tabelle(), Qt::Key_Return);
    QCOMPARE(tabelle()->selectedRow(), 10);
    QCOMPARE(gezeigt(), zaehlname(0));
}

void TestSucheTasten::takingOverDoesNotDependOnWhereTheFoodIs()
{
    tippe("meine");
    QTest::keyClick(suchfeld(), Qt::Key_Down);
    QTest::keyClick(tabelle(), Qt::Key_Return);
    QCOMPARE(gezeigt(), QStringLiteral("Meine Speise"));
    QCOMPARE(controller().welcheTabelleAktiv, 1); // as the search left it
    QVERIFY(!controller().loeschenknopf->isEnabled());
}

QTEST_MAIN(TestSucheTasten)
#include "TestSucheTasten.moc"
