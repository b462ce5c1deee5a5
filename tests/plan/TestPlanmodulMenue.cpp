#include "Planprobe.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QScrollBar>
#include <QTest>

using namespace Qt::StringLiterals;

/// The menu that a row of the plan opens with the right button or with a key.
class TestPlanmodulMenue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theRightButtonOffersWhatCanBeDoneWithTheRow_data();
    void theRightButtonOffersWhatCanBeDoneWithTheRow();
    void theKeyOffersTheSameForTheRowOfTheKeyboard_data();
    void theKeyOffersTheSameForTheRowOfTheKeyboard();
    void theKeyBringsTheRowIntoSight();
    void theKeysAreShown();
    void besideTheRowsOnlyTheColumnsAreLeft();
    void anEmptyPlanOffersOnlyTheColumns();
    void theHeadingsOfferOnlyTheColumns();
    void theEntriesWorkOnTheRowUnderTheMouse();
    void theAmountIsChangedFromTheMenu();

private:
    Planmodul &plan() const { return m_fenster->plan(); }
    Tabellenansicht &tabelle() const { return *plan().PlanTabelle; }
    static QMenu *menue() { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); }
    static QStringList eintraege();
    void klickeRechts(QWidget &flaeche, const QPoint &ort) const;
    void klickeRechts(int zeile) const
    {
        klickeRechts(*tabelle().viewport(), m_fenster->mitte(zeile, u"name"_s));
    }
    /// Clicks an entry of the menu.
    void waehle(QAction *aktion) const;

    std::unique_ptr<Planheim> m_heim;
    std::unique_ptr<Planfenster> m_fenster;
};

void TestPlanmodulMenue::init()
{
    vergissKlient();
    m_fenster.reset();
    m_heim = std::make_unique<Planheim>();
    m_heim->schreibeTabelle({speise(u"Apfel"_s), speise(u"Brot"_s), speise(u"Ei"_s)});
    m_heim->schreibePlan({{u"Apfel"_s, 10}, {u"Brot"_s, 20}, {u"Ei"_s, 30}});
    m_fenster = std::make_unique<Planfenster>(*m_heim);
}

QStringList TestPlanmodulMenue::eintraege()
{
    QStringList texte;
    if (menue() != nullptr) {
        for (const QAction *aktion : menue()->actions()) {
            if (!aktion->isSeparator()) {
                texte << aktion->text().remove(u'&');
            }
        }
    }
    return texte;
}

void TestPlanmodulMenue::klickeRechts(QWidget &flaeche, const QPoint &ort) const
{
    QTest::mouseClick(&flaeche, Qt::RightButton, {}, ort);
    QContextMenuEvent ereignis(QContextMenuEvent::Mouse, ort, flaeche.mapToGlobal(ort));
    QApplication::sendEvent(&flaeche, &ereignis);
    QVERIFY(menue() != nullptr);
}

void TestPlanmodulMenue::waehle(QAction *aktion) const
{
    QTest::mouseClick(menue(), Qt::LeftButton, {}, menue()->actionGeometry(aktion).center());
    QCoreApplication::processEvents();
}

void TestPlanmodulMenue::theRightButtonOffersWhatCanBeDoneWithTheRow_data()
{
    QTest::addColumn<int>("zeile");
    QTest::addColumn<QStringList>("was");
    QTest::newRow("first row") << 0
                               << QStringList{u"Menge ändern"_s, u"Lebensmittel entfernen"_s,
                                              u"Nach unten"_s, u"Spalten anpassen"_s};
    QTest::newRow("between") << 1
                             << QStringList{u"Menge ändern"_s, u"Lebensmittel entfernen"_s,
                                            u"Nach oben"_s, u"Nach unten"_s, u"Spalten anpassen"_s};
    QTest::newRow("last row") << 2
                              << QStringList{u"Menge ändern"_s, u"Lebensmittel entfernen"_s,
                                             u"Nach oben"_s, u"Spalten anpassen"_s};
}

void TestPlanmodulMenue::theRightButtonOffersWhatCanBeDoneWithTheRow()
{
    QFETCH(int, zeile);
    QFETCH(QStringList, was);
    klickeRechts(zeile);
    QCOMPARE(eintraege(), was);
    QCOMPARE(tabelle().selectedRow(), zeile); // one sees which row it is about
}

void TestPlanmodulMenue::theKeyOffersTheSameForTheRowOfTheKeyboard_data()
{
    QTest::addColumn<Qt::Key>("taste");
    QTest::addColumn<Qt::KeyboardModifiers>("dazu");
    QTest::newRow("menu key") << Qt::Key_Menu << Qt::KeyboardModifiers();
    QTest::newRow("Shift+F10") << Qt::Key_F10 << Qt::KeyboardModifiers(Qt::ShiftModifier);
}

void TestPlanmodulMenue::theKeyOffersTheSameForTheRowOfTheKeyboard()
{
    QFETCH(Qt::Key, taste);
    QFETCH(Qt::KeyboardModifiers, dazu);
    tabelle().setFocus();
    QTest::keyClick(&tabelle(), Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(&tabelle(), Qt::Key_Down);
    QTest::keyClick(&tabelle(), taste, dazu);
    QVERIFY(menue() != nullptr);
    QCOMPARE(eintraege().size(), 5);
    const QRect zeile = tabelle().visualRect(m_fenster->index(1, u"name"_s));
    QVERIFY(std::abs(menue()->y() - tabelle().viewport()->mapToGlobal(zeile.center()).y()) < 3);
    waehle(plan().aktionHoch);
    QCOMPARE(plan().PlanArray, (QStringList{u"Brot"_s, u"Apfel"_s, u"Ei"_s}));
}

/// The row comes into sight, so that one sees which it is.
void TestPlanmodulMenue::theKeyBringsTheRowIntoSight()
{
    for (int i = 0; i < 60; ++i) {
        plan().nameimportvontoolbar(u"Speise %1"_s.arg(i));
    }
    tabelle().setFocus();
    QTest::keyClick(&tabelle(), Qt::Key_Home, Qt::ControlModifier);
    tabelle().verticalScrollBar()->setValue(tabelle().verticalScrollBar()->maximum());
    QTest::keyClick(&tabelle(), Qt::Key_Menu);
    QVERIFY(menue() != nullptr);
    QCOMPARE(tabelle().verticalScrollBar()->value(), 0);
    const QPointer<QMenu> danach(menue());
    menue()->close();
    QTRY_VERIFY(danach.isNull()); // one is made each time
}

void TestPlanmodulMenue::theKeysAreShown()
{
    klickeRechts(1);
    QStringList tasten;
    for (const QAction *aktion : menue()->actions()) {
        if (!aktion->shortcut().isEmpty()) {
            QVERIFY(aktion->isShortcutVisibleInContextMenu());
            tasten << aktion->shortcut().toString();
        }
    }
    QCOMPARE(tasten, (QStringList{u"F2"_s, u"Del"_s, u"Alt+Up"_s, u"Alt+Down"_s}));
}

void TestPlanmodulMenue::besideTheRowsOnlyTheColumnsAreLeft()
{
    klickeRechts(*tabelle().viewport(), QPoint(20, tabelle().viewport()->height() - 4));
    QCOMPARE(eintraege(), QStringList{u"Spalten anpassen"_s});
}

void TestPlanmodulMenue::anEmptyPlanOffersOnlyTheColumns()
{
    while (!plan().PlanArray.isEmpty()) {
        tabelle().selectRow(0);
        plan().Lebensmittelentfernen();
    }
    tabelle().setFocus();
    QTest::keyClick(&tabelle(), Qt::Key_Menu);
    QCOMPARE(eintraege(), QStringList{u"Spalten anpassen"_s});
}

void TestPlanmodulMenue::theHeadingsOfferOnlyTheColumns()
{
    tabelle().selectRow(1);
    klickeRechts(*tabelle().horizontalHeader()->viewport(), QPoint(20, 5));
    QCOMPARE(eintraege(), QStringList{u"Spalten anpassen"_s});
}

void TestPlanmodulMenue::theEntriesWorkOnTheRowUnderTheMouse()
{
    tabelle().selectRow(0);
    klickeRechts(2);
    waehle(plan().aktionHoch);
    QCOMPARE(plan().PlanArray, (QStringList{u"Apfel"_s, u"Ei"_s, u"Brot"_s}));
    klickeRechts(0);
    waehle(plan().aktionEntfernen);
    QCOMPARE(plan().PlanArray, (QStringList{u"Ei"_s, u"Brot"_s}));
}

void TestPlanmodulMenue::theAmountIsChangedFromTheMenu()
{
    klickeRechts(1);
    waehle(plan().aktionMenge);
    auto *feld = tabelle().viewport()->findChild<QLineEdit *>();
    QVERIFY(feld != nullptr);
    QCOMPARE(feld->text(), u"20"_s); // Brot's amount can be typed
    QCOMPARE(tabelle().currentIndex(), m_fenster->index(1, u"menge"_s));
}

QTEST_MAIN(TestPlanmodulMenue)
#include "TestPlanmodulMenue.moc"
