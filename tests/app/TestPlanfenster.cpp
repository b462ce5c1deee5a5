#include "Archivdatei.h"
#include "Oberflaeche.h"
#include "Probefenster.h"
#include "Probeplan.h"

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QToolButton>

using enum Naehrwert;

/// The meal plan beside the main window: how it is opened, and how foods get into it.
class TestPlanfenster : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theToolbarOpensThePlan();
    void openingAgainShowsTheSamePlan();
    void theMenuOpensThePlan();
    void bothWindowsStayUsable();
    void theShownFoodIsSentUnderItsKey();
    void aFoodOfSeveralListsIsSentForEachOfThem_data();
    void aFoodOfSeveralListsIsSentForEachOfThem();
    void aTranslatedSearchResultIsNoFurtherList();
    void beforeAFoodWasShownNothingIsSent();
    void aFoodIsDraggedIntoThePlan();
    void anOwnFoodIsDraggedIntoThePlan();
    void aFoodIsDraggedWithinThePlan();
    void aDragOfAFoodAlreadyInThePlanLeavesTheTableAsItWas();
    void aDragWithinThePlanLeavesTheSelection();
    void aSavedFoodReachesThePlan();
    void aDeletedFoodLeavesThePlan();
    void bothWriteTheOwnFoodsInTheirOrder();
    void thePlanEndsWithTheProgram();
    void whatTheCalculatorSaysReachesThePlan();
    void theCurveHasItsRoomWheneverItComes_data();
    void theCurveHasItsRoomWheneverItComes();

private:
    AppController &controller() const { return m_fenster->controller(); }
    Planmodul &plan() const { return *controller().planmodul; }
    void drueckeWerkzeug(const char *kennung) const;
    /// The plan, opened where it covers nothing of the main window.
    void oeffneDaneben() const;
    QPoint planstelle(int zeile) const;
    Lebensmittelverzeichnis eigeneDatei() const
    {
        return Archivdatei::lesen(m_heim->eigeneDatei()).archiv.verzeichnis;
    }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

const QString eigenesA = QStringLiteral("Eigenes A");
const QString eigenesB = QStringLiteral("Eigenes B");

} // namespace

void TestPlanfenster::init()
{
    Planmodul::klient = {};
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(30));
    m_heim->schreibeEigene(
        verzeichnis({lebensmittel(eigenesA, {{kal, 11}}), lebensmittel(eigenesB, {{kal, 22}})}));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestPlanfenster::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestPlanfenster::drueckeWerkzeug(const char *kennung) const
{
    const QStringList leiste = controller().toolbar->kennungen();
    const auto stelle = static_cast<int>(leiste.indexOf(QLatin1String(kennung)));
    QTest::mouseClick(controller().toolbar->werkzeugfeld(stelle), Qt::LeftButton);
}

void TestPlanfenster::oeffneDaneben() const
{
    controller().Planmoduloeffnen();
    plan().window()->setGeometry(controller().Hauptfenster->geometry().right() + 50, 0, 900, 700);
    QVERIFY(QTest::qWaitForWindowExposed(plan().window()));
}

/// The middle of a row's name in the plan's table; below all rows where there is none.
QPoint TestPlanfenster::planstelle(int zeile) const
{
    const Tabellenansicht &tabelle = *plan().PlanTabelle;
    return zeile < tabelle.model()->rowCount()
               ? tabelle.visualRect(tabelle.model()->index(zeile, 0)).center()
               : QPoint(60, tabelle.viewport()->height() - 3);
}

void TestPlanfenster::theToolbarOpensThePlan()
{
    QVERIFY(controller().planmodul == nullptr);
    drueckeWerkzeug("plan1");
    QVERIFY(controller().planmodul != nullptr);
    QVERIFY(plan().window()->isVisible());
    QVERIFY(plan().PlanArray.isEmpty()); // nothing is sent
    QCOMPARE(plan().Dictionary.size(), 30);
}

void TestPlanfenster::openingAgainShowsTheSamePlan()
{
    drueckeWerkzeug("plan1");
    const Planmodul *vorher = controller().planmodul;
    plan().nameimportvontoolbar(zaehlname(4));
    plan().window()->close();
    QVERIFY(!plan().window()->isVisible());
    drueckeWerkzeug("plan1");
    QCOMPARE(controller().planmodul, vorher);
    QVERIFY(plan().window()->isVisible());
    QCOMPARE(plan().PlanArray, QStringList(zaehlname(4)));
}

void TestPlanfenster::theMenuOpensThePlan()
{
    QTest::keyClick(controller().Hauptfenster, Qt::Key_0, Qt::ControlModifier);
    QVERIFY(controller().planmodul != nullptr && plan().window()->isVisible());
    controller().Hauptfenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(controller().Hauptfenster));
    m_fenster->klicke(6, inName);
    QTest::keyClick(controller().Tabelle, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(plan().PlanArray, QStringList(zaehlname(6)));
}

void TestPlanfenster::bothWindowsStayUsable()
{
    oeffneDaneben();
    QVERIFY(plan().window()->windowModality() == Qt::NonModal);
    QVERIFY(plan().window()->parentWidget() == nullptr); // it may lie behind the main window
    m_fenster->klicke(3, inName);
    QCOMPARE(Probefenster::text(*controller().feldA), zaehlname(3));
    drueckeWerkzeug("export");
    QCOMPARE(plan().PlanArray, QStringList(zaehlname(3)));
    m_fenster->klicke(5, inName);
    QCOMPARE(Probefenster::text(*controller().feldA), zaehlname(5));
}

void TestPlanfenster::theShownFoodIsSentUnderItsKey()
{
    const Probeuebersetzer englisch({{zaehlname(7), QStringLiteral("Dish 7")}});
    m_fenster->klicke(7, inName);
    drueckeWerkzeug("export");
    QVERIFY(plan().window()->isVisible());
    QCOMPARE(plan().PlanArray, QStringList(zaehlname(7)));
    QCOMPARE(plan().PlanTabelle->model()->index(0, 0).data().toString(), QStringLiteral("Dish 7"));
}

void TestPlanfenster::aFoodOfSeveralListsIsSentForEachOfThem_data()
{
    QTest::addColumn<QStringList>("eigene");
    QTest::addColumn<QStringList>("gesucht");
    QTest::addColumn<int>("mal");
    const QString name = zaehlname(3);
    const QString strich = QStringLiteral("-");
    QTest::newRow("built-in alone") << QStringList() << QStringList() << 1;
    QTest::newRow("found as well") << QStringList() << QStringList({strich, name}) << 2;
    QTest::newRow("saved as an own food as well") << QStringList(name) << QStringList() << 2;
    QTest::newRow("in all three, found twice")
        << QStringList(name) << QStringList({name, strich, name}) << 4;
}

void TestPlanfenster::aFoodOfSeveralListsIsSentForEachOfThem()
{
    QFETCH(QStringList, eigene);
    QFETCH(QStringList, gesucht);
    auto *probeplan = new Probeplan; // the window takes it over
    controller().planmodul = probeplan;
    m_fenster->klicke(3, inName);
    controller().KundenArray << eigene;
    controller().suchArray = gesucht;
    drueckeWerkzeug("export");
    QFETCH(int, mal);
    QCOMPARE(probeplan->geschickt, QStringList(mal, zaehlname(3)));
}

void TestPlanfenster::aTranslatedSearchResultIsNoFurtherList()
{
    m_fenster->klicke(3, inName);
    controller().suchArray = {QStringLiteral("Dish 3")};
    controller().suchArray2 = {zaehlname(3)};
    drueckeWerkzeug("export");
    QCOMPARE(plan().PlanArray, QStringList(zaehlname(3)));
}

void TestPlanfenster::beforeAFoodWasShownNothingIsSent()
{
    m_fenster.reset();
    m_heim->schreibeTabelle({});
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    controller().suchArray = {QString(), QStringLiteral("")};
    drueckeWerkzeug("export");
    QVERIFY(plan().window()->isVisible());
    QVERIFY(plan().PlanArray.isEmpty());
}

void TestPlanfenster::aFoodIsDraggedIntoThePlan()
{
    oeffneDaneben();
    QWidget &tabelle = *controller().Tabelle->viewport();
    QWidget &ziel = *plan().PlanTabelle->viewport();
    ziehe(tabelle, m_fenster->mitte(4, inName), ziel, planstelle(0));
    QCOMPARE(plan().PlanArray, QStringList(zaehlname(4)));
    ziehe(tabelle, m_fenster->mitte(6, inName), ziel, planstelle(0)); // on the row: behind it
    QCOMPARE(plan().PlanArray, QStringList({zaehlname(4), zaehlname(6)}));
    ziehe(tabelle, m_fenster->mitte(8, inName), ziel, planstelle(0) - QPoint(0, 11)); // its edge
    QCOMPARE(plan().PlanArray, QStringList({zaehlname(8), zaehlname(4), zaehlname(6)}));
    QCOMPARE(plan().PlanTabelle->model()->rowCount(), 3);
    QCOMPARE(controller().Array.size(), 30); // copied, not moved
}

void TestPlanfenster::anOwnFoodIsDraggedIntoThePlan()
{
    oeffneDaneben();
    ziehe(*controller().Tabelle->viewport(), m_fenster->mitte(1, inEigen),
          *plan().PlanTabelle->viewport(), planstelle(0));
    QCOMPARE(plan().PlanArray, QStringList(eigenesB));
    QCOMPARE(plan().PlanTabelle->model()->index(0, 2).data().toString(), QStringLiteral("22"));
}

void TestPlanfenster::aFoodIsDraggedWithinThePlan()
{
    oeffneDaneben();
    for (const int zeile : {1, 2, 3}) {
        plan().nameimportvontoolbar(zaehlname(zeile));
    }
    QWidget &tabelle = *plan().PlanTabelle->viewport();
    ziehe(tabelle, planstelle(2), tabelle, planstelle(0)); // the last one to behind the first
    QCOMPARE(plan().PlanArray, QStringList({zaehlname(1), zaehlname(3), zaehlname(2)}));
    QCOMPARE(plan().PlanTabelle->model()->index(1, 0).data().toString(), zaehlname(3));
}

/// Only when the food stands last does the drag run through; from anywhere else the rows change,
/// but are neither saved nor shown before the next change.
void TestPlanfenster::aDragOfAFoodAlreadyInThePlanLeavesTheTableAsItWas()
{
    oeffneDaneben();
    for (const int zeile : {1, 2, 3}) {
        plan().nameimportvontoolbar(zaehlname(zeile));
    }
    const auto gezeigt = [this] {
        const QAbstractItemModel &modell = *plan().PlanTabelle->model();
        QStringList namen;
        for (int i = 0; i < modell.rowCount(); ++i) {
            namen << modell.index(i, 0).data().toString();
        }
        return namen;
    };
    const QStringList vorher = {zaehlname(1), zaehlname(2), zaehlname(3)};
    QWidget &haupt = *controller().Tabelle->viewport();
    QWidget &ziel = *plan().PlanTabelle->viewport();
    ziehe(haupt, m_fenster->mitte(1, inName), ziel, planstelle(1)); // behind the second row
    QCOMPARE(plan().PlanArray, QStringList({zaehlname(2), zaehlname(1), zaehlname(3)}));
    QCOMPARE(gezeigt(), vorher);
    QVERIFY(plan().window()->isVisible());
    ziehe(ziel, planstelle(0), ziel, planstelle(9)); // the row still shows the first food
    QCOMPARE(plan().PlanArray, QStringList({zaehlname(2), zaehlname(3), zaehlname(1)}));
    QCOMPARE(gezeigt(), vorher);
    m_fenster->klicke(4, inName);
    drueckeWerkzeug("export");
    QCOMPARE(gezeigt(), QStringList({zaehlname(2), zaehlname(3), zaehlname(1), zaehlname(4)}));
}

void TestPlanfenster::aDragWithinThePlanLeavesTheSelection()
{
    oeffneDaneben();
    for (const int zeile : {1, 2, 3}) {
        plan().nameimportvontoolbar(zaehlname(zeile));
    }
    plan().PlanTabelle->selectRow(0);
    QWidget &tabelle = *plan().PlanTabelle->viewport();
    ziehe(tabelle, planstelle(2), tabelle, planstelle(1));
    QCOMPARE(plan().PlanTabelle->selectedRow(), 0);
    QCOMPARE(plan().PlanTabelle->selectionModel()->selectedRows().size(), 1);
}

void TestPlanfenster::aSavedFoodReachesThePlan()
{
    oeffneDaneben();
    controller().Fenster();
    controller().EingabeFensterfeldA->setStringValue(QStringLiteral("Eintopf"));
    controller().EingabeFensterfeldB->setFloatValue(55);
    controller().umschreibenDerEingabeFelder();
    QCOMPARE(plan().KundenDictionary.value(QStringLiteral("Eintopf")).kal(), 55.0F);
    QCOMPARE(eigeneDatei().size(), 3);
}

void TestPlanfenster::aDeletedFoodLeavesThePlan()
{
    oeffneDaneben();
    plan().nameimportvontoolbar(eigenesA);
    plan().nameimportvontoolbar(zaehlname(1));
    m_fenster->klicke(0, inEigen);
    m_heim->antworten = {1};
    controller().LoescheneigeneLM();
    QCOMPARE(plan().PlanArray, QStringList(zaehlname(1)));
    QCOMPARE(eigeneDatei().keys(), QStringList(eigenesB));
    QVERIFY(!plan().KundenDictionary.contains(eigenesA));
}

/// Who saves what is on display while the sheet is empty gives the plan a food without a name. The
/// file first holds the plan's foods, then the main window's, and then those of the plan's table
/// when it asks for an own one.
void TestPlanfenster::bothWriteTheOwnFoodsInTheirOrder()
{
    oeffneDaneben();
    plan().nameimportvontoolbar(eigenesA);
    m_fenster->klicke(2, inName);
    controller().SicherneigeneLM(); // a copy of a built-in food
    QCOMPARE(eigeneDatei().keys(), QStringList({eigenesA, eigenesB, zaehlname(2)}));
    QCOMPARE(plan().KundenDictionary.keys(), QStringList({QString(), eigenesA, eigenesB}));
    QVERIFY(!plan().PlanTabelle->grab().isNull());
    QCOMPARE(eigeneDatei().keys(), QStringList({QString(), eigenesA, eigenesB}));
}

void TestPlanfenster::thePlanEndsWithTheProgram()
{
    oeffneDaneben();
    const QPointer<Planmodul> beobachtet = controller().planmodul;
    const QPointer<QWidget> fenster = plan().window();
    m_fenster.reset();
    QVERIFY(beobachtet.isNull());
    QVERIFY(fenster.isNull());
}

void TestPlanfenster::whatTheCalculatorSaysReachesThePlan()
{
    m_fenster.reset();
    Oberflaeche oberflaeche(m_heim->tueren());
    oberflaeche.awakeFromNib();
    AppController &haupt = oberflaeche.hauptfenster;
    haupt.Hauptfenster->show();
    haupt.Planmoduloeffnen();
    haupt.planmodul->nameimportvontoolbar(zaehlname(1));
    AnthroController &rechner = oberflaeche.rechner;
    rechner.groessen->setFloatValue(2.0F);
    rechner.slidergroesse(*rechner.groessen);
    rechner.gewichtn->setFloatValue(80);
    rechner.slidergewicht(*rechner.gewichtn);
    QVERIFY(rechner.plan != haupt.planmodul); // two plans, one client
    haupt.planmodul->datenberechnen();
    QCOMPARE(haupt.planmodul->BMI->floatValue(), 20.0F);
    QCOMPARE(haupt.planmodul->Kalorienbedarf->intValue(), Planmodul::klient.unbereinigt);
    QVERIFY(Planmodul::klient.unbereinigt > 1000);
}

void TestPlanfenster::theCurveHasItsRoomWheneverItComes_data()
{
    QTest::addColumn<bool>("vorher");
    QTest::addColumn<int>("breite");
    for (const int breite : {640, 667, 900, 1300}) {
        QTest::addRow("the first food comes while the plan is closed, %d px", breite)
            << true << breite;
        QTest::addRow("the first food comes while it is open, %d px", breite) << false << breite;
    }
}

/// An empty plan has no curve, and a closed one does not notice that it gets one.
void TestPlanfenster::theCurveHasItsRoomWheneverItComes()
{
    QFETCH(bool, vorher);
    QFETCH(int, breite);
    Planmodul::klient = {.bedarf = 2000, .unbereinigt = 2500, .gewicht = 80.0F, .groesse = 1.8F};
    m_fenster->klicke(3, inName);
    if (vorher) {
        controller().gibInPlan();
        QCoreApplication::processEvents();
    } else {
        controller().Planmoduloeffnen();
    }
    plan().window()->resize(breite, 732);
    controller().Planmoduloeffnen();
    QVERIFY(QTest::qWaitForWindowExposed(plan().window()));
    if (!vorher) {
        controller().gibInPlan();
    }
    QCoreApplication::processEvents();
    QVERIFY(plan().gewichtview->isVisible());
    const auto platz = [this](const QWidget &teil) {
        return QRect(teil.mapTo(plan().boxinhalt, QPoint()), teil.size());
    };
    QVERIFY(platz(*plan().gewichtview).bottom() < platz(*plan().wochenskala).top());
    QVERIFY(platz(*plan().wochenskala).bottom() < platz(*plan().verlaufworte).top());
    QVERIFY(platz(*plan().verlaufworte).bottom() <= plan().boxinhalt->height());
}

int main(int argc, char **argv)
{
    mitEchtemZiehen();
    QApplication app(argc, argv);
    TestPlanfenster test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestPlanfenster.moc"
