#include "Probefenster.h"

#include "Sprache.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QWindow>

using enum Naehrwert;

/// The way through what a search found: the strip below the table and the keys.
class TestTreffer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theStripTellsWhichResultIsChosen();
    void resultsBelowTheTableAreNotChosen();
    void theStripKeepsItsPlace();
    void twoClicksOnTheLowestRowMeetTheRowTwice();
    void theResultsOfAProfileAreCountedFromTheFirst();
    void theKeysGoThroughTheResults();
    void withoutResultsTheKeysDoNothing();
    void theKeySearchesWhatWasJustTyped();
    void theButtonGoesOn();
    void theWayBackToTheResults();
    void theFoodIsShownInItsList_data();
    void theFoodIsShownInItsList();
    void aKeyGoesToTheAmount_data();
    void aKeyGoesToTheAmount();
    void anotherChoiceTakesTheStripAway_data();
    void anotherChoiceTakesTheStripAway();
    void theStripSpeaksBothLanguages();

private:
    AppController &controller() const { return m_fenster->controller(); }
    void suche(const QString &text) const { m_fenster->suche(text); }
    QString strip() const;
    QString gezeigt() const { return Probefenster::text(*controller().feldA); }
    void drueckeF3(Qt::KeyboardModifiers dazu = {}) const
    {
        QTest::keyClick(controller().Hauptfenster, Qt::Key_F3, dazu);
    }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

const QString kuchen = QStringLiteral("Omas Speise 085");

} // namespace

void TestTreffer::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(900));
    m_heim->schreibeEigene(verzeichnis({lebensmittel(QStringLiteral("Eintopf"), {{kal, 300}}),
                                        lebensmittel(kuchen, {{kal, 400}})}));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestTreffer::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

/// What the strip says, empty while it is not there.
QString TestTreffer::strip() const
{
    return controller().trefferleiste->isVisible() ? controller().trefferstelle->text() : QString();
}

/// "085" is found in the own food first, then in the foods 85 and 850 to 859.
void TestTreffer::theStripTellsWhichResultIsChosen()
{
    QCOMPARE(strip(), QString());
    suche(QStringLiteral("085"));
    QCOMPARE(controller().suchArray2.size(), 13); // with the line above them
    QCOMPARE(strip(), QString());                 // none is chosen yet
    m_fenster->klicke(3, inSuch);
    QCOMPARE(strip(), QStringLiteral("Treffer 3 von 12"));
    QCOMPARE(gezeigt(), controller().suchArray2[3]);
    m_fenster->klicke(0, inSuch); // the line above them
    QCOMPARE(strip(), QString());
    m_fenster->klicke(3, inSuch);
    m_fenster->klicke(20, inSuch); // below them
    QCOMPARE(strip(), QString());
}

/// With own foods a search finds more than the table has rows, and what is not seen is not chosen.
void TestTreffer::resultsBelowTheTableAreNotChosen()
{
    m_fenster.reset();
    m_heim->schreibeTabelle(zaehltabelle(4));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    suche(QStringLiteral("speise"));
    QCOMPARE(controller().suchArray2.size(), 6); // with the line above them
    drueckeF3(Qt::ShiftModifier);
    QCOMPARE(strip(), QStringLiteral("Treffer 3 von 5"));
    QCOMPARE(gezeigt(), controller().suchArray2[3]);
    drueckeF3();
    QCOMPARE(strip(), QStringLiteral("Treffer 1 von 5"));
}

/// The table is no lower once a result is chosen: its last row does not slip away under the mouse.
void TestTreffer::theStripKeepsItsPlace()
{
    const int ohne = controller().Tabelle->height();
    suche(QStringLiteral("085"));
    QCoreApplication::processEvents();
    const int vorher = controller().Tabelle->height();
    QVERIFY(vorher < ohne);
    m_fenster->klicke(3, inSuch);
    QCoreApplication::processEvents();
    QCOMPARE(controller().Tabelle->height(), vorher);
    QTest::keyClick(controller().suchfeld, Qt::Key_Escape);
    QCoreApplication::processEvents();
    QCOMPARE(controller().Tabelle->height(), ohne); // no results: no place is kept
}

void TestTreffer::twoClicksOnTheLowestRowMeetTheRowTwice()
{
    suche(QStringLiteral("speise 00"));
    QCoreApplication::processEvents();
    Tabellenansicht &tabelle = *controller().Tabelle;
    const QPoint ort(tabelle.columnViewportPosition(inSuch) + 10, tabelle.viewport()->height() - 3);
    const int zeile = tabelle.rowAt(ort.y());
    QVERIFY(zeile > 5);
    const QString name = controller().suchArray2[zeile];
    QTest::mouseDClick(controller().Hauptfenster->windowHandle(), Qt::LeftButton, {},
                       tabelle.viewport()->mapTo(controller().Hauptfenster, ort));
    QCOMPARE(gezeigt(), name);
    QVERIFY(controller().planmodul != nullptr);
    QCOMPARE(controller().planmodul->PlanArray, QStringList{name});
}

void TestTreffer::theResultsOfAProfileAreCountedFromTheFirst()
{
    controller().profilaufzu->click();
    controller().suchprofileinaus->zelle(5)->click();
    controller().kaloriengroesserkleiner->setStringValue(QStringLiteral("<"));
    controller().kalorieneingabe->setStringValue(QStringLiteral("6"));
    QTest::mouseClick(controller().profilsuchen, Qt::LeftButton);
    QCOMPARE(controller().suchArray2.size(), 5); // 1, 2, 3, 4 and 5 kcal
    m_fenster->klicke(0, inSuch);
    QCOMPARE(strip(), QStringLiteral("Treffer 1 von 5"));
    drueckeF3();
    QCOMPARE(strip(), QStringLiteral("Treffer 2 von 5"));
    QCOMPARE(gezeigt(), zaehlname(1));
}

void TestTreffer::theKeysGoThroughTheResults()
{
    suche(QStringLiteral("0007"));
    suche(QStringLiteral("e 001")); // 10 to 19
    drueckeF3();
    QCOMPARE(strip(), QStringLiteral("Treffer 1 von 10"));
    QCOMPARE(gezeigt(), zaehlname(10));
    QCOMPARE(AppController::angeklickteSpalte, inSuch);
    drueckeF3();
    drueckeF3();
    QCOMPARE(gezeigt(), zaehlname(12));
    QCOMPARE(controller().Tabelle->selectedRow(), 12); // as a click on it does
    drueckeF3(Qt::ShiftModifier);
    QCOMPARE(gezeigt(), zaehlname(11));
    drueckeF3(Qt::ShiftModifier);
    drueckeF3(Qt::ShiftModifier); // before the first one comes the last one
    QCOMPARE(strip(), QStringLiteral("Treffer 10 von 10"));
    QCOMPARE(gezeigt(), zaehlname(19));
    drueckeF3();
    QCOMPARE(gezeigt(), zaehlname(10));
    suche(QStringLiteral("e 002"));
    drueckeF3(Qt::ShiftModifier); // none is chosen: the last one
    QCOMPARE(gezeigt(), zaehlname(29));
}

void TestTreffer::withoutResultsTheKeysDoNothing()
{
    m_fenster->klicke(4, inName);
    drueckeF3();
    QCOMPARE(gezeigt(), zaehlname(4));
    controller().direkteuebernahme->setChecked(false);
    suche(QStringLiteral("kaviar"));
    drueckeF3();
    drueckeF3(Qt::ShiftModifier);
    QCOMPARE(strip(), QString());
    QCOMPARE(gezeigt(), zaehlname(4));
}

void TestTreffer::theKeySearchesWhatWasJustTyped()
{
    controller().suchfeld->setFocus();
    QTest::keyClicks(controller().suchfeld, QStringLiteral("0017"));
    QTest::keyClick(controller().suchfeld, Qt::Key_F3);
    QCOMPARE(strip(), QStringLiteral("Treffer 1 von 1"));
    QCOMPARE(gezeigt(), zaehlname(17));
}

void TestTreffer::theButtonGoesOn()
{
    suche(QStringLiteral("e 001"));
    m_fenster->klicke(1, inSuch);
    QTest::mouseClick(controller().trefferweiter, Qt::LeftButton);
    QCOMPARE(strip(), QStringLiteral("Treffer 2 von 10"));
    QCOMPARE(gezeigt(), zaehlname(11));
    QVERIFY(controller().trefferweiter->toolTip().contains(QStringLiteral("F3")));
}

void TestTreffer::theWayBackToTheResults()
{
    suche(QStringLiteral("085"));
    m_fenster->klicke(5, inSuch);
    Tabellenansicht &tabelle = *controller().Tabelle;
    QVERIFY(tabelle.verticalScrollBar()->value() > 800);
    controller().feldB->setFocus();
    QTest::mouseClick(controller().treffersprung, Qt::LeftButton);
    QVERIFY(tabelle.hasFocus());
    QCOMPARE(tabelle.currentIndex(), tabelle.model()->index(5, inSuch));
    QVERIFY(tabelle.viewport()->rect().contains(m_fenster->mitte(5, inSuch)));
    QCOMPARE(gezeigt(), controller().suchArray2[5]); // nothing else was chosen
    QTest::keyClick(&tabelle, Qt::Key_Down);
    QTest::keyClick(&tabelle, Qt::Key_Return);
    QCOMPARE(strip(), QStringLiteral("Treffer 6 von 12"));
}

void TestTreffer::theFoodIsShownInItsList_data()
{
    QTest::addColumn<int>("treffer");
    QTest::addColumn<int>("spalte");
    QTest::newRow("a built-in food") << 4 << inName;
    QTest::newRow("an own food") << 1 << inEigen;
}

void TestTreffer::theFoodIsShownInItsList()
{
    QFETCH(int, treffer);
    QFETCH(int, spalte);
    suche(QStringLiteral("085"));
    m_fenster->klicke(treffer, inSuch);
    const QString name = controller().suchArray2[treffer];
    QVERIFY(!controller().lebensmittelmenge->isEnabled());
    QCOMPARE(controller().treffermenge->text(), QStringLiteral("Menge ändern: zuerst"));
    QVERIFY(controller().trefferinliste->isVisible());
    controller().suchfeld->setFocus();
    QTest::mouseClick(controller().trefferinliste, Qt::LeftButton);
    QVERIFY(controller().Tabelle->hasFocus());
    QCOMPARE(AppController::angeklickteSpalte, spalte);
    QCOMPARE(gezeigt(), name);
    const int zeile = controller().Tabelle->selectedRow();
    QVERIFY(controller().Tabelle->viewport()->rect().contains(m_fenster->mitte(zeile, spalte)));
    QVERIFY(controller().lebensmittelmenge->isEnabled());
    m_fenster->tippeMenge(QStringLiteral("30"));
    QCOMPARE(gezeigt(), name);
    // It is still the chosen result, from which one goes on.
    QCOMPARE(strip(), QStringLiteral("Treffer %1 von 12").arg(treffer));
    QCOMPARE(controller().treffermenge->text(), QStringLiteral("Menge: rechts einstellen."));
    QVERIFY(!controller().trefferinliste->isVisible());
    drueckeF3();
    QCOMPARE(strip(), QStringLiteral("Treffer %1 von 12").arg(treffer + 1));
    QVERIFY(controller().trefferinliste->isVisible());
}

void TestTreffer::aKeyGoesToTheAmount_data()
{
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("ansicht");
    QTest::addColumn<int>("regler");
    QTest::addColumn<int>("spalte");
    QTest::newRow("of a food") << 3 << 0 << 0 << int(inName);
    QTest::newRow("of a result, which is shown in its list first") << 3 << 0 << 0 << int(inSuch);
    QTest::newRow("of the second view") << 3 << 1 << 1 << int(inName);
    QTest::newRow("of the third view") << 3 << 2 << 2 << int(inSuch);
    QTest::newRow("a view without an amount gives way to the first") << 3 << 3 << 0 << int(inName);
    QTest::newRow("the last view") << 3 << 4 << 0 << int(inSuch);
    QTest::newRow("of an own result") << 1 << 0 << 0 << int(inSuch);
}

void TestTreffer::aKeyGoesToTheAmount()
{
    QFETCH(int, zeile);
    QFETCH(int, ansicht);
    QFETCH(int, regler);
    QFETCH(int, spalte);
    AppController &c = controller();
    suche(QStringLiteral("085"));
    m_fenster->klicke(zeile, spalte);
    const QString name = gezeigt();
    c.DatenAnsicht->setCurrentIndex(ansicht);
    QTest::keyClick(c.Hauptfenster, Qt::Key_G, Qt::ControlModifier);
    QCOMPARE(c.DatenAnsicht->currentIndex(), regler);
    QVERIFY(c.lebensmittelmenge->isEnabled());
    QWidget *feld = QApplication::focusWidget();
    const Schieber *alle[] = {c.lebensmittelmenge, c.lebensmittelmenge2, c.lebensmittelmenge3};
    QVERIFY(alle[regler]->isAncestorOf(feld));
    QTest::keyClicks(feld, QStringLiteral("65")); // in place of what stood there
    QTest::keyClick(feld, Qt::Key_Return);
    QCOMPARE(c.lebensmittelmenge->intValue(), 65);
    QCOMPARE(gezeigt(), name);
}

void TestTreffer::anotherChoiceTakesTheStripAway_data()
{
    QTest::addColumn<QString>("wahl");
    QTest::newRow("a built-in food") << QStringLiteral("name");
    QTest::newRow("an own food") << QStringLiteral("eigen");
    QTest::newRow("the own food of the row") << QStringLiteral("zeile");
    QTest::newRow("a search") << QStringLiteral("suche");
    QTest::newRow("an empty box") << QStringLiteral("leer");
}

void TestTreffer::anotherChoiceTakesTheStripAway()
{
    QFETCH(QString, wahl);
    suche(QStringLiteral("e 000"));
    m_fenster->klicke(1, inSuch);
    QCOMPARE(strip(), QStringLiteral("Treffer 1 von 10"));
    if (wahl == QLatin1String("name")) {
        m_fenster->klicke(4, inName);
    } else if (wahl == QLatin1String("eigen")) {
        m_fenster->klicke(0, inEigen);
    } else if (wahl == QLatin1String("zeile")) {
        QTest::keyClick(controller().Hauptfenster, Qt::Key_E, Qt::ControlModifier);
        QCOMPARE(gezeigt(), QStringLiteral("Eintopf"));
    } else if (wahl == QLatin1String("suche")) {
        suche(QStringLiteral("e 001"));
    } else {
        QTest::keyClick(controller().suchfeld, Qt::Key_Escape);
    }
    QCOMPARE(strip(), QString());
}

void TestTreffer::theStripSpeaksBothLanguages()
{
    m_fenster.reset();
    const Sprache englisch(QStringLiteral("en"));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    suche(QStringLiteral("e 001"));
    m_fenster->klicke(3, inSuch);
    QCOMPARE(strip(), QStringLiteral("Result 3 of 10"));
    QCOMPARE(controller().treffersprung->text(), QStringLiteral("Back to the results"));
    QCOMPARE(controller().trefferweiter->toolTip(),
             QStringLiteral("Next one: F3, one before: Shift+F3"));
    // Each letter calls up one entry of the menus that lead here.
    for (const QAction *titel : controller().Hauptfenster->menuBar()->actions().first(1)) {
        QStringList buchstaben;
        for (const QAction *aktion : titel->menu()->actions()) {
            const qsizetype stelle = aktion->text().indexOf(u'&');
            if (stelle >= 0) {
                buchstaben << aktion->text().mid(stelle + 1, 1).toLower();
            }
        }
        QCOMPARE(buchstaben.removeDuplicates(), 0);
    }
}

QTEST_MAIN(TestTreffer)
#include "TestTreffer.moc"
