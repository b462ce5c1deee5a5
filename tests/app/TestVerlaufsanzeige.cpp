#include "Verlaufsprobe.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>
#include <QTest>

#include <algorithm>

using enum Naehrwert;

/// What one sees of taking back and repeating: what is selected and on display, the menus and the
/// notices.
class TestVerlaufsanzeige : public Verlaufsprobe
{
    Q_OBJECT

private Q_SLOTS:
    void whatHasChangedIsSelected();
    void theFirstChangedRowComesIntoSight();
    void anotherFoodOnDisplayStaysAsItIs_data();
    void anotherFoodOnDisplayStaysAsItIs();
    void thePlanIsDrawnWithTheValuesOfBefore();
    void aFoodThatIsBackIsMissedNoMore();
    void theMenusSayWhatIsTakenBack();
    void thePlansMenuKnowsWhatWasBefore();
    void foodsAreCalledAsInTheTable();
    void aLongNameIsCutShort();
    void theNoticeOffersTheWayBack();
    void theWayBackGoesWithTheNextChange();
    void theWordsAboutAStepGoWithTheNextChange();
    void theMainTableFollows();
    void theSelectionGoesWithItsFood();
    void aStateThatComesBackSettlesWhatWasSaved();
};

namespace {

/// Counts how often a part of a window is drawn.
class Malzaehler : public QObject
{
public:
    explicit Malzaehler(QObject &teil) { teil.installEventFilter(this); }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        gemalt += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
    int gemalt = 0;
};

} // namespace

/// One sees where the change was.
void TestVerlaufsanzeige::whatHasChangedIsSelected()
{
    oeffnePlan();
    Tabellenmodell &modell = *plan().PlanTabelle->modell();
    modell.setData(modell.index(1, modell.spaltenstelle(QStringLiteral("menge"))),
                   QStringLiteral("12,5"), Qt::EditRole);
    plan().PlanTabelle->selectRow(0);
    imPlan();
    QCOMPARE(plan().PlanTabelle->selectedRow(), 1);
    plan().PlanTabelle->selectRow(2);
    QTest::keyClick(plan().PlanTabelle, Qt::Key_Delete);
    plan().PlanTabelle->selectRow(0);
    imPlan();
    QCOMPARE(plan().PlanTabelle->selectedRow(), 2);
}

void TestVerlaufsanzeige::theFirstChangedRowComesIntoSight()
{
    oeffnePlan();
    for (int i = 0; i < 60; ++i) {
        plan().nameimportvontoolbar(QStringLiteral("Speise %1").arg(i));
    }
    Tabellenansicht &tabelle = *plan().PlanTabelle;
    tabelle.selectRow(2);
    QTest::keyClick(&tabelle, Qt::Key_Delete);
    tabelle.verticalScrollBar()->setValue(tabelle.verticalScrollBar()->maximum());
    QVERIFY(tabelle.verticalScrollBar()->value() > 3);
    imPlan();
    QVERIFY(tabelle.viewport()->rect().contains(
        tabelle.visualRect(tabelle.model()->index(2, 0)).center()));
}

void TestVerlaufsanzeige::anotherFoodOnDisplayStaysAsItIs_data()
{
    QTest::addColumn<int>("spalte");
    QTest::addColumn<QString>("energie");
    QTest::newRow("a built-in food") << inName << QStringLiteral("15 kcal");
    QTest::newRow("another own food") << inEigen << QStringLiteral("105 kcal");
}

void TestVerlaufsanzeige::anotherFoodOnDisplayStaysAsItIs()
{
    QFETCH(int, spalte);
    QFETCH(QString, energie);
    sichere(QStringLiteral("mus"), QStringLiteral("45"));
    m_fenster->klicke(0, spalte);
    m_fenster->tippeMenge(QStringLiteral("150"));
    QCOMPARE(Probefenster::text(*controller().feldB), energie);
    imHauptfenster();
    QCOMPARE(controller().KundenArray, QStringList{brei});
    QCOMPARE(Probefenster::text(*controller().feldB), energie);
    QCOMPARE(AppController::angeklickteSpalte, spalte);
    QCOMPARE(controller().Tabelle->selectedRow(), 0);
}

/// Its table shows the values of the own foods, though no row has changed.
void TestVerlaufsanzeige::thePlanIsDrawnWithTheValuesOfBefore()
{
    oeffnePlan();
    plan().nameimportvontoolbar(brei);
    sichere(brei, QStringLiteral("90"));
    controller().Hauptfenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(controller().Hauptfenster));
    QCoreApplication::processEvents();
    Malzaehler plantabelle(*plan().PlanTabelle->viewport());
    QCoreApplication::processEvents();
    QCOMPARE(plantabelle.gemalt, 0);
    Q_EMIT controller().zuruecknehmenGewuenscht();
    QCOMPARE(plan().KundenDictionary[brei].kal(), 70.0F);
    QTRY_VERIFY(plantabelle.gemalt > 0);
}

/// A row of the plan is called by a name that no food has, until the own food of that name is back.
void TestVerlaufsanzeige::aFoodThatIsBackIsMissedNoMore()
{
    m_fenster->klicke(0, inEigen);
    m_heim->antworten = {1};
    controller().LoescheneigeneLM();
    controller().Planmoduloeffnen();
    Planliste frueher;
    frueher.laden(verzeichnis({lebensmittel(brei, {{kal, 55}})}));
    plan().uebernimmPlan(frueher);
    const auto fehltEines = [this] {
        const auto &alle = plan().hinweise->hinweise();
        return std::any_of(alle.begin(), alle.end(),
                           [](const Hinweis &einer) { return einer.text.contains(brei); });
    };
    QVERIFY(fehltEines());
    plan().uebernimmEigene(verzeichnis({lebensmittel(brei, {{kal, 70}})}));
    QVERIFY(!fehltEines());
}

void TestVerlaufsanzeige::theMenusSayWhatIsTakenBack()
{
    const auto worte = [this](const char *name) {
        return controller().Hauptfenster->findChild<QAction *>(QLatin1String(name))->text();
    };
    QCOMPARE(worte("aktionRueckgaengig"), QStringLiteral("&Rückgängig"));
    oeffnePlan();
    QCOMPARE(worte("aktionRueckgaengig"), QStringLiteral("&Rückgängig: „C“ in den Plan"));
    QCOMPARE(plan().aktionRueckgaengig->text(), worte("aktionRueckgaengig"));
    QCOMPARE(worte("aktionWiederholen"), QStringLiteral("&Wiederholen"));
    imPlan();
    QCOMPARE(worte("aktionRueckgaengig"), QStringLiteral("&Rückgängig: „B“ in den Plan"));
    QCOMPARE(worte("aktionWiederholen"), QStringLiteral("&Wiederholen: „C“ in den Plan"));
    QCOMPARE(plan().aktionWiederholen->text(), worte("aktionWiederholen"));
}

void TestVerlaufsanzeige::thePlansMenuKnowsWhatWasBefore()
{
    sichere(QStringLiteral("mus"), QStringLiteral("45"));
    controller().Planmoduloeffnen();
    QCOMPARE(plan().aktionRueckgaengig->text(), QStringLiteral("&Rückgängig: „mus“ gesichert"));
}

void TestVerlaufsanzeige::foodsAreCalledAsInTheTable()
{
    const Probeuebersetzer uebersetzer({{d, QStringLiteral("Dill")}});
    oeffnePlan();
    plan().nameimportvontoolbar(d);
    QCOMPARE(plan().aktionRueckgaengig->text(), QStringLiteral("&Rückgängig: „Dill“ in den Plan"));
}

/// A menu is not made wider than the screen by a name.
void TestVerlaufsanzeige::aLongNameIsCutShort()
{
    sichere(QString(70, u'n'), QStringLiteral("45"));
    controller().Planmoduloeffnen();
    QCOMPARE(plan().aktionRueckgaengig->text(),
             QStringLiteral("&Rückgängig: „%1…“ gesichert").arg(QString(59, u'n')));
}

void TestVerlaufsanzeige::theNoticeOffersTheWayBack()
{
    m_fenster->klicke(0, inEigen);
    m_heim->antworten = {1};
    controller().LoescheneigeneLM();
    const Hinweis einer = controller().hinweise->hinweise().constFirst();
    QCOMPARE(einer.text, QStringLiteral("„brei“ ist gelöscht."));
    QCOMPARE(einer.knopf, QStringLiteral("Zurücknehmen"));
    einer.aktion();
    QCOMPARE(controller().KundenArray, QStringList{brei});
    QCOMPARE(hinweis(), QStringLiteral("Zurückgenommen: „brei“ gelöscht."));
    QCOMPARE(controller().hinweise->hinweise().size(), 1); // the one about deleting is settled
    QCOMPARE(controller().hinweise->hinweise().constFirst().dauer, 8000);
    controller().hinweise->hinweise().constFirst().aktion();
    QVERIFY(controller().KundenArray.isEmpty());
    QCOMPARE(hinweis(), QStringLiteral("Wiederholt: „brei“ gelöscht."));
    QCOMPARE(controller().hinweise->hinweise().constFirst().knopf, QStringLiteral("Zurücknehmen"));
    controller().hinweise->hinweise().constFirst().aktion();
    QCOMPARE(controller().KundenArray, QStringList{brei});
}

void TestVerlaufsanzeige::theWayBackGoesWithTheNextChange()
{
    m_fenster->klicke(0, inEigen);
    m_heim->antworten = {1};
    controller().LoescheneigeneLM();
    controller().Planmoduloeffnen();
    plan().nameimportvontoolbar(a);
    QVERIFY(controller().hinweise->hinweise().isEmpty());
}

/// What it offers would take back or repeat another step by then.
void TestVerlaufsanzeige::theWordsAboutAStepGoWithTheNextChange()
{
    oeffnePlan();
    imPlan();
    QCOMPARE(plan().hinweise->hinweise().size(), 1);
    plan().nameimportvontoolbar(d);
    QVERIFY(plan().hinweise->hinweise().isEmpty());
    imHauptfenster();
    QCOMPARE(controller().hinweise->hinweise().size(), 1);
    plan().nameimportvontoolbar(d);
    QVERIFY(controller().hinweise->hinweise().isEmpty());
}

void TestVerlaufsanzeige::theMainTableFollows()
{
    QCoreApplication::processEvents();
    Malzaehler tabelle(*controller().Tabelle->viewport());
    const QString mus = QStringLiteral("mus");
    controller().uebernimmEigene(verzeichnis({lebensmittel(mus, {{kal, 45}})}), {mus});
    QTRY_VERIFY(tabelle.gemalt > 0);
    QCOMPARE(controller().Tabelle->model()->index(0, inEigen).data().toString(), mus);
}

/// The own food on display is another row's once one before it is back.
void TestVerlaufsanzeige::theSelectionGoesWithItsFood()
{
    sichere(QStringLiteral("mus"), QStringLiteral("45"));
    m_fenster->klicke(0, inEigen);
    m_heim->antworten = {1};
    controller().LoescheneigeneLM();
    m_fenster->klicke(0, inEigen);
    QCOMPARE(controller().feldA->stringValue(), QStringLiteral("mus"));
    imHauptfenster();
    QCOMPARE(controller().KundenArray, (QStringList{brei, QStringLiteral("mus")}));
    QCOMPARE(controller().feldA->stringValue(), QStringLiteral("mus"));
    QCOMPARE(controller().Tabelle->selectedRow(), 1);
}

void TestVerlaufsanzeige::aStateThatComesBackSettlesWhatWasSaved()
{
    m_fenster->klicke(0, inEigen);
    m_heim->antworten = {1};
    controller().LoescheneigeneLM();
    QCOMPARE(hinweis(), QStringLiteral("„brei“ ist gelöscht."));
    controller().uebernimmEigene(verzeichnis({lebensmittel(brei, {{kal, 70}})}), {brei});
    QCOMPARE(hinweis(), QString());
}

QTEST_MAIN(TestVerlaufsanzeige)
#include "TestVerlaufsanzeige.moc"
