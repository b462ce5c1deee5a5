#include "Planprobe.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSlider>
#include <QTest>

using namespace Qt::StringLiterals;

/// The plan by the keyboard, and what happens to an amount that is still being typed.
class TestPlanmodulTasten : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theTabKeyGoesThroughTheWindow();
    void aDayIsPlannedWithoutTheMouse();
    void altAndAnArrowMoveTheRow();
    void atTheEndsARowStays();
    void keysMeanTheRowOfTheKeyboardUntilOneIsSelected();
    void movingTakesTheAmountThatIsTypedWithIt();
    void theMenuShowsTheKeysThatMove();
    void deleteInAnAmountDeletesACharacter();
    void removingTakesTheAmountThatIsTypedWithIt();
    void removingFromTheMenuWithNothingSelectedLeavesTheTypedAmount();
    void aFoodThatComesInLeavesATypedAmountWhereItWas();
    void soDoesAFoodThatComesWithAnAmount();
    void aFoodThatComesInIsInSight();
    void aDropLeavesATypedAmountWhereItWas();
    void aDeletedOwnFoodLeavesTheTypedAmountOfAnother();

private:
    Tabellenansicht &tabelle() const { return *(*m_fenster)->PlanTabelle; }
    /// Begins to type an amount and does not finish.
    void beginne(int zeile, const QString &gramm) const;
    QMap<QString, float> mengen() const;

    std::unique_ptr<Planheim> m_heim;
    std::unique_ptr<Planfenster> m_fenster;
};

void TestPlanmodulTasten::init()
{
    vergissKlient();
    m_fenster.reset();
    m_heim = std::make_unique<Planheim>();
    m_heim->schreibeTabelle({speise(u"Brot"_s), speise(u"Ei"_s), speise(u"Milch"_s)});
    m_heim->schreibeEigene({speise(u"Auflauf"_s)});
    m_heim->schreibePlan({{u"Auflauf"_s, 10}, {u"Brot"_s, 20}, {u"Ei"_s, 30}});
    m_fenster = std::make_unique<Planfenster>(*m_heim);
}

void TestPlanmodulTasten::beginne(int zeile, const QString &gramm) const
{
    QTest::mouseClick(tabelle().viewport(), Qt::LeftButton, {},
                      m_fenster->mitte(zeile, u"menge"_s));
    QWidget *eingabe = QApplication::focusWidget();
    QVERIFY(qobject_cast<QLineEdit *>(eingabe) != nullptr);
    QTest::keyClick(eingabe, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(eingabe, gramm);
}

QMap<QString, float> TestPlanmodulTasten::mengen() const
{
    QMap<QString, float> alle;
    for (qsizetype i = 0; i < (*m_fenster)->PlanArray.size(); ++i) {
        alle.insert((*m_fenster)->PlanArray[i], (*m_fenster)->mengenarray[i]);
    }
    return alle;
}

void TestPlanmodulTasten::theTabKeyGoesThroughTheWindow()
{
    const Planmodul &plan = m_fenster->plan();
    const QWidgetList halte = {plan.PlanTabelle,
                               plan.entfernenknopf,
                               plan.druckknopf,
                               plan.tabellengroesse->regler(),
                               plan.tabellengroesse->eingabe(),
                               plan.Kalorienbedarf,
                               plan.Tage,
                               plan.wunschverlust,
                               plan.tageknopf};
    plan.PlanTabelle->setFocus();
    for (const QWidget *halt : halte) {
        QVERIFY2(QApplication::focusWidget() == halt, qPrintable(halt->objectName()));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(QApplication::focusWidget(), plan.PlanTabelle); // round again
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), plan.tageknopf);
}

void TestPlanmodulTasten::aDayIsPlannedWithoutTheMouse()
{
    tabelle().setFocus();
    QTest::keyClick(&tabelle(), Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(&tabelle(), Qt::Key_F2); // wherever the cursor stands in the row
    QTest::keyClicks(QApplication::focusWidget(), u"15"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCoreApplication::processEvents();
    QTest::keyClick(&tabelle(), Qt::Key_Down);
    QTest::keyClick(&tabelle(), Qt::Key_Return); // in the column of the amounts by now
    QTest::keyClicks(QApplication::focusWidget(), u"25,5"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCoreApplication::processEvents();
    QTest::keyClick(&tabelle(), Qt::Key_Down);
    QTest::keyClick(&tabelle(), Qt::Key_Delete);
    QCOMPARE(mengen(), (QMap<QString, float>{{u"Auflauf"_s, 15}, {u"Brot"_s, 25.5F}}));
    QCOMPARE(m_heim->plan(), mengen());
}

void TestPlanmodulTasten::altAndAnArrowMoveTheRow()
{
    m_fenster->tippeMenge(2, u"33"_s); // Ei
    tabelle().selectRow(2);
    (*m_fenster)->planworte->clear();
    QTest::keyClick(&tabelle(), Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(m_fenster->spalte(u"name"_s), QStringList({u"Auflauf"_s, u"Ei"_s, u"Brot"_s}));
    QVERIFY(!(*m_fenster)->planworte->text().isEmpty()); // it was evaluated
    QTest::keyClick(&tabelle(), Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(m_fenster->spalte(u"name"_s), QStringList({u"Ei"_s, u"Auflauf"_s, u"Brot"_s}));
    QCOMPARE(m_fenster->spalte(u"menge"_s), QStringList({u"33"_s, u"10"_s, u"20"_s}));
    QCOMPARE(tabelle().selectedRow(), 0);
    QTest::keyClick(&tabelle(), Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(m_fenster->spalte(u"name"_s), QStringList({u"Auflauf"_s, u"Ei"_s, u"Brot"_s}));
    QCOMPARE(tabelle().selectedRow(), 1);
    QCOMPARE(m_heim->plan(),
             (QMap<QString, float>{{u"Auflauf"_s, 10}, {u"Brot"_s, 20}, {u"Ei"_s, 33}}));
}

void TestPlanmodulTasten::atTheEndsARowStays()
{
    tabelle().selectRow(0);
    QTest::keyClick(&tabelle(), Qt::Key_Up, Qt::AltModifier);
    tabelle().selectRow(2);
    QTest::keyClick(&tabelle(), Qt::Key_Down, Qt::AltModifier);
    tabelle().clearSelection();
    (*m_fenster)->druckknopf->setFocus();
    (*m_fenster)->aktionHoch->trigger();
    QCOMPARE(m_fenster->spalte(u"name"_s), QStringList({u"Auflauf"_s, u"Brot"_s, u"Ei"_s}));
}

/// The table comes up with the keyboard's frame around a cell of its first row, and no selection.
void TestPlanmodulTasten::keysMeanTheRowOfTheKeyboardUntilOneIsSelected()
{
    tabelle().setFocus();
    QCOMPARE(tabelle().selectedRow(), -1);
    QTest::keyClick(&tabelle(), Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(m_fenster->spalte(u"name"_s), QStringList({u"Brot"_s, u"Auflauf"_s, u"Ei"_s}));
    QCOMPARE(tabelle().selectedRow(), 1);
    tabelle().setCurrentIndex(tabelle().model()->index(2, 0));
    tabelle().clearSelection();
    QTest::keyClick(&tabelle(), Qt::Key_Delete);
    QCOMPARE(mengen(), (QMap<QString, float>{{u"Auflauf"_s, 10}, {u"Brot"_s, 20}}));
}

void TestPlanmodulTasten::movingTakesTheAmountThatIsTypedWithIt()
{
    beginne(1, u"77"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(m_fenster->spalte(u"name"_s), QStringList({u"Auflauf"_s, u"Ei"_s, u"Brot"_s}));
    QCOMPARE(m_fenster->spalte(u"menge"_s), QStringList({u"10"_s, u"30"_s, u"77"_s}));
    QCOMPARE(m_heim->plan().value(u"Brot"_s), 77.0F);
}

void TestPlanmodulTasten::theMenuShowsTheKeysThatMove()
{
    const Planmodul &plan = m_fenster->plan();
    QVERIFY(plan.menueBearbeiten->actions().contains(plan.aktionHoch));
    QVERIFY(plan.menueBearbeiten->actions().contains(plan.aktionRunter));
    QCOMPARE(plan.aktionHoch->shortcut(), QKeySequence(Qt::ALT | Qt::Key_Up));
    QCOMPARE(plan.aktionRunter->shortcut(), QKeySequence(Qt::ALT | Qt::Key_Down));
}

void TestPlanmodulTasten::deleteInAnAmountDeletesACharacter()
{
    beginne(1, u"45"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(mengen(), (QMap<QString, float>{{u"Auflauf"_s, 10}, {u"Brot"_s, 5}, {u"Ei"_s, 30}}));
}

void TestPlanmodulTasten::removingTakesTheAmountThatIsTypedWithIt()
{
    beginne(1, u"45"_s);
    (*m_fenster)->aktionEntfernen->trigger(); // from the menu, the amount is still open
    QCOMPARE(mengen(), (QMap<QString, float>{{u"Auflauf"_s, 10}, {u"Ei"_s, 30}}));
    QCoreApplication::processEvents();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(mengen(), (QMap<QString, float>{{u"Auflauf"_s, 10}, {u"Ei"_s, 30}}));
    QCOMPARE(m_heim->plan(), mengen());
}

void TestPlanmodulTasten::removingFromTheMenuWithNothingSelectedLeavesTheTypedAmount()
{
    beginne(1, u"45"_s);
    tabelle().clearSelection();
    (*m_fenster)->aktionEntfernen->trigger();
    QCOMPARE(mengen(), (QMap<QString, float>{{u"Auflauf"_s, 10}, {u"Brot"_s, 45}, {u"Ei"_s, 30}}));
}

void TestPlanmodulTasten::aFoodThatComesInLeavesATypedAmountWhereItWas()
{
    beginne(0, u"45"_s);
    (*m_fenster)->nameimportvontoolbar(u"Brot"_s); // the rows below move up
    (*m_fenster)->nameimportvontoolbar(u"Milch"_s);
    QCOMPARE(mengen(),
             (QMap<QString, float>{
                 {u"Auflauf"_s, 45}, {u"Brot"_s, 100}, {u"Ei"_s, 30}, {u"Milch"_s, 100}}));
    QCOMPARE(m_heim->plan(), mengen());
}

void TestPlanmodulTasten::soDoesAFoodThatComesWithAnAmount()
{
    beginne(0, u"45"_s);
    (*m_fenster)->gibHinein(u"Brot"_s, 80);
    QCOMPARE(mengen(), (QMap<QString, float>{{u"Auflauf"_s, 45}, {u"Brot"_s, 80}, {u"Ei"_s, 30}}));
    QCOMPARE(m_heim->plan(), mengen());
}

void TestPlanmodulTasten::aFoodThatComesInIsInSight()
{
    for (int i = 0; i < 60; ++i) {
        (*m_fenster)->nameimportvontoolbar(u"Speise %1"_s.arg(i));
    }
    tabelle().verticalScrollBar()->setValue(0);
    (*m_fenster)->gibHinein(u"Milch"_s, 80);
    const auto letzte = static_cast<int>((*m_fenster)->PlanArray.size()) - 1;
    QVERIFY(letzte > 50);
    QVERIFY(tabelle().viewport()->rect().contains(
        tabelle().visualRect(m_fenster->index(letzte, u"name"_s)).center()));
}

void TestPlanmodulTasten::aDropLeavesATypedAmountWhereItWas()
{
    beginne(1, u"45"_s);
    QVERIFY(m_fenster->wirfAbUeber(u"Milch"_s, 0));
    QCoreApplication::processEvents();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(mengen(), (QMap<QString, float>{
                           {u"Auflauf"_s, 10}, {u"Brot"_s, 45}, {u"Ei"_s, 30}, {u"Milch"_s, 100}}));
}

void TestPlanmodulTasten::aDeletedOwnFoodLeavesTheTypedAmountOfAnother()
{
    beginne(2, u"45"_s);
    (*m_fenster)->loeschenvonkundeneintraegen(u"Auflauf"_s);
    QCOMPARE(mengen(), (QMap<QString, float>{{u"Brot"_s, 20}, {u"Ei"_s, 45}}));
    QCOMPARE(m_heim->plan(), mengen());
}

QTEST_MAIN(TestPlanmodulTasten)
#include "TestPlanmodulTasten.moc"
