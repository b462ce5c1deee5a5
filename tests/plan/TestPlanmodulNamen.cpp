#include "Planprobe.h"

#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

/// A plan from the time when foods of the table had other names: what its window says, and what
/// the user's yes does.
class TestPlanmodulNamen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aPlanOfTodayIsToldNothing();
    void oneFormerNameIsTold();
    void manyFormerNamesAreToldInOneNotice();
    void nothingIsWrittenBeforeTheUserSaysSo();
    void theNewNamesKeepAmountsAndOrder();
    void theNewNamesCount();
    void aNewNameThatIsThereAlreadyLeavesItsRow();
    void aFoodThatIsGoneIsNamed();
    void ofManyThatAreGoneTheFirstAreNamed();
    void anOwnFoodOfTheFormerNameStays();
    void aNameThatThisTableLacksIsNotOffered();
    void theNoticeGoesWithItsRows();
    void aClosedNoticeDoesNotComeBack();
    void aPlanThatIsTakenOverIsLookedAt();
    void whatCanNotBeWrittenIsWrittenNextTime();
    void anAmountThatIsBeingTypedIsKept();
    void theProgramKnowsTheFormerNamesOfItsFoods();

private:
    void oeffne()
    {
        Plantueren tueren = m_heim->tueren();
        tueren.namenswechsel = m_namen.fileName();
        m_fenster.reset();
        m_fenster = std::make_unique<Planfenster>(tueren);
    }
    Planmodul &plan() const { return m_fenster->plan(); }
    /// The texts of the notices, the newest first; a warning has an exclamation mark before it.
    QStringList hinweise() const
    {
        QStringList texte;
        for (const Hinweis &einer : plan().hinweise->hinweise()) {
            texte << (einer.warnung ? u"!"_s : QString()) + einer.text;
        }
        return texte;
    }
    void uebernimm() const
    {
        auto *knopf = plan().hinweise->findChild<QPushButton *>(u"hinweisknopf"_s);
        QVERIFY(knopf);
        QCOMPARE(knopf->text(), u"Neue Namen übernehmen"_s);
        QTest::mouseClick(knopf, Qt::LeftButton);
    }

    std::unique_ptr<Planheim> m_heim;
    std::unique_ptr<Planfenster> m_fenster;
    QFile m_namen;
};

void TestPlanmodulNamen::init()
{
    vergissKlient();
    m_fenster.reset();
    m_heim = std::make_unique<Planheim>();
    m_heim->schreibeTabelle({speise(u"Brot"_s), speise(u"Linsen, ganz"_s, {{Naehrwert::bs, 10}}),
                             speise(u"Enten, gebraten"_s, {{Naehrwert::bs, 5}})});
    m_namen.setFileName(QFileInfo(m_heim->tabelle()).path() + u"/namen.csv"_s);
    QVERIFY(m_namen.open(QIODevice::WriteOnly));
    m_namen.write("Linse, ganz;Linsen, ganz\nEnte;Enten, gebraten\nMoa;Moas, gebraten\n");
    m_namen.close();
}

void TestPlanmodulNamen::aPlanOfTodayIsToldNothing()
{
    m_heim->schreibePlan({{u"Brot"_s, 100}, {u"Linsen, ganz"_s, 50}});
    oeffne();
    QVERIFY(!plan().hinweise->isVisible());
}

void TestPlanmodulNamen::oneFormerNameIsTold()
{
    m_heim->schreibePlan({{u"Brot"_s, 100}, {u"Linse, ganz"_s, 50}});
    oeffne();
    QVERIFY(plan().hinweise->isVisible());
    QCOMPARE(hinweise(), QStringList(u"„Linse, ganz“ im Plan heißt jetzt „Linsen, ganz“. Unter dem "
                                     "alten Namen zählt es nicht mit."_s));
}

void TestPlanmodulNamen::manyFormerNamesAreToldInOneNotice()
{
    m_heim->schreibePlan({{u"Ente"_s, 150}, {u"Brot"_s, 100}, {u"Linse, ganz"_s, 50}});
    oeffne();
    QCOMPARE(hinweise(), QStringList(u"2 Lebensmittel im Plan heißen jetzt anders, z. B. „Ente“ "
                                     "jetzt „Enten, gebraten“. Unter den alten Namen zählen sie "
                                     "nicht mit."_s));
}

void TestPlanmodulNamen::nothingIsWrittenBeforeTheUserSaysSo()
{
    m_heim->schreibePlan({{u"Ente"_s, 150.5F}, {u"Linse, ganz"_s, 50}});
    QFile datei(m_heim->plandatei());
    QVERIFY(datei.open(QIODevice::ReadOnly));
    const QByteArray vorher = datei.readAll();
    datei.close();
    oeffne();
    plan().hinweise->schliesse();
    m_fenster.reset();
    QVERIFY(datei.open(QIODevice::ReadOnly));
    QCOMPARE(datei.readAll(), vorher);
}

void TestPlanmodulNamen::theNewNamesKeepAmountsAndOrder()
{
    m_heim->schreibePlan({{u"Brot"_s, 100}, {u"Linse, ganz"_s, 50}});
    oeffne();
    plan().nameimportvontoolbar(u"Brot"_s); // by hand: Linse stands before Brot now
    plan().nameimportvontoolbar(u"Ente"_s);
    m_fenster->tippeMenge(2, u"150"_s);
    QCOMPARE(plan().PlanArray, QStringList({u"Linse, ganz"_s, u"Brot"_s, u"Ente"_s}));
    uebernimm();
    QCOMPARE(m_fenster->spalte(u"name"_s),
             QStringList({u"Linsen, ganz"_s, u"Brot"_s, u"Enten, gebraten"_s}));
    QCOMPARE(m_fenster->spalte(u"menge"_s), QStringList({u"50"_s, u"100"_s, u"150"_s}));
    QCOMPARE(m_heim->plan(),
             (QMap<QString, float>{
                 {u"Linsen, ganz"_s, 50}, {u"Brot"_s, 100}, {u"Enten, gebraten"_s, 150}}));
    QVERIFY(!plan().hinweise->isVisible());
}

void TestPlanmodulNamen::theNewNamesCount()
{
    m_heim->schreibePlan({{u"Linse, ganz"_s, 60}, {u"Ente"_s, 180}});
    oeffne();
    QCOMPARE(plan().gesamtballaststoffe->doubleValue(), 0.0);
    uebernimm();
    QCOMPARE(plan().gesamtballaststoffe->doubleValue(), 50.0); // 6 g and 9 g of 30 g
}

void TestPlanmodulNamen::aNewNameThatIsThereAlreadyLeavesItsRow()
{
    m_heim->schreibePlan({{u"Ente"_s, 20}, {u"Linse, ganz"_s, 30}, {u"Linsen, ganz"_s, 40}});
    oeffne();
    QCOMPARE(hinweise().at(1),
             u"!„Linse, ganz“ heißt jetzt „Linsen, ganz“ und steht unter diesem Namen schon im "
             "Plan; die Zeile mit dem alten zählt nicht mit."_s);
    uebernimm();
    QCOMPARE(plan().PlanArray,
             QStringList({u"Enten, gebraten"_s, u"Linse, ganz"_s, u"Linsen, ganz"_s}));
    QCOMPARE(m_heim->plan(),
             (QMap<QString, float>{
                 {u"Enten, gebraten"_s, 20}, {u"Linse, ganz"_s, 30}, {u"Linsen, ganz"_s, 40}}));
    QCOMPARE(hinweise().size(), 1); // this one is still so
}

void TestPlanmodulNamen::aFoodThatIsGoneIsNamed()
{
    m_heim->schreibePlan({{u"Dodo"_s, 20}, {u"Brot"_s, 40}});
    oeffne();
    QCOMPARE(hinweise(), QStringList(u"!„Dodo“ steht nicht mehr in der Tabelle und zählt im Plan "
                                     "nicht mit."_s));
    QVERIFY(!plan().hinweise->findChild<QPushButton *>(u"hinweisknopf"_s));
}

void TestPlanmodulNamen::ofManyThatAreGoneTheFirstAreNamed()
{
    m_heim->schreibePlan({{u"100 %1"_s, 1},
                          {u"b"_s, 1},
                          {u"c"_s, 1},
                          {u"d"_s, 1},
                          {u"e"_s, 1},
                          {u"f"_s, 1},
                          {u"g"_s, 1},
                          {u"h"_s, 1}});
    oeffne();
    QCOMPARE(hinweise(),
             QStringList(u"!„100 %1“, „b“, „c“, „d“, „e“, „f“ und 2 weitere stehen nicht "
                         "mehr in der Tabelle und zählen im Plan nicht mit."_s));
}

void TestPlanmodulNamen::anOwnFoodOfTheFormerNameStays()
{
    m_heim->schreibeEigene({speise(u"Ente"_s, {{Naehrwert::bs, 1}})});
    m_heim->schreibePlan({{u"Ente"_s, 20}, {u"Linse, ganz"_s, 30}});
    oeffne();
    QVERIFY(hinweise().at(0).startsWith(u"„Linse, ganz“"_s));
    uebernimm();
    QCOMPARE(plan().PlanArray, QStringList({u"Ente"_s, u"Linsen, ganz"_s}));
    QVERIFY(m_heim->eigene().contains(u"Ente"_s));
}

void TestPlanmodulNamen::aNameThatThisTableLacksIsNotOffered()
{
    m_heim->schreibePlan({{u"Moa"_s, 20}});
    oeffne();
    QCOMPARE(hinweise().size(), 1);
    QVERIFY(hinweise().at(0).startsWith(u"!„Moa“ steht nicht mehr"_s));
}

void TestPlanmodulNamen::theNoticeGoesWithItsRows()
{
    m_heim->schreibePlan({{u"Dodo"_s, 20}, {u"Ente"_s, 20}, {u"Linse, ganz"_s, 40}});
    oeffne();
    QCOMPARE(hinweise().size(), 2);
    plan().PlanTabelle->selectRow(0);
    QTest::mouseClick(plan().entfernenknopf, Qt::LeftButton);
    QCOMPARE(hinweise().size(), 1);
    plan().PlanTabelle->selectRow(0);
    QTest::mouseClick(plan().entfernenknopf, Qt::LeftButton);
    QVERIFY(hinweise().at(0).startsWith(u"„Linse, ganz“ im Plan heißt jetzt"_s));
    plan().umschreibungMitName(speise(u"Linse, ganz"_s)); // an own food of that name is there now
    QVERIFY(!plan().hinweise->isVisible());
}

void TestPlanmodulNamen::aClosedNoticeDoesNotComeBack()
{
    m_heim->schreibePlan({{u"Brot"_s, 20}, {u"Ente"_s, 20}});
    oeffne();
    QTest::keyClick(plan().PlanTabelle, Qt::Key_Escape, Qt::ShiftModifier);
    QVERIFY(!plan().hinweise->isVisible());
    m_fenster->tippeMenge(0, u"30"_s);
    plan().nameimportvontoolbar(u"Brot"_s);
    QVERIFY(!plan().hinweise->isVisible());
}

void TestPlanmodulNamen::aPlanThatIsTakenOverIsLookedAt()
{
    m_heim->schreibePlan({{u"Brot"_s, 20}});
    oeffne();
    QVERIFY(!plan().hinweise->isVisible());
    Planliste frueher;
    frueher.anhaengen(u"Ente"_s);
    plan().uebernimmPlan(frueher);
    QVERIFY(hinweise().at(0).startsWith(u"„Ente“ im Plan heißt jetzt"_s));
}

/// The plan goes on with the new names, and the next change brings them into the file.
void TestPlanmodulNamen::whatCanNotBeWrittenIsWrittenNextTime()
{
    m_heim->schreibePlan({{u"Brot"_s, 20}, {u"Ente"_s, 150}});
    oeffne();
    QVERIFY(QFile::remove(m_heim->plandatei()));
    QVERIFY(QDir().mkdir(m_heim->plandatei())); // a folder stands where the file belongs
    uebernimm();
    QCOMPARE(plan().PlanArray, QStringList({u"Brot"_s, u"Enten, gebraten"_s}));
    QVERIFY(QDir().rmdir(m_heim->plandatei()));
    m_fenster->tippeMenge(0, u"30"_s);
    QCOMPARE(m_heim->plan(), (QMap<QString, float>{{u"Brot"_s, 30}, {u"Enten, gebraten"_s, 150}}));
}

/// What is being typed belongs to its row, whatever the food is called afterwards.
void TestPlanmodulNamen::anAmountThatIsBeingTypedIsKept()
{
    m_heim->schreibePlan({{u"Brot"_s, 20}, {u"Ente"_s, 150}});
    oeffne();
    plan().PlanTabelle->setCurrentIndex(m_fenster->index(1, u"menge"_s));
    plan().aktionMenge->trigger();
    auto *feld = plan().PlanTabelle->viewport()->findChild<QLineEdit *>();
    QVERIFY(feld != nullptr);
    feld->setText(u"75"_s);
    const Hinweis hinweis = plan().hinweise->hinweise().constFirst();
    hinweis.aktion(); // as the key on its button does, which leaves the field where it is
    QCOMPARE(m_heim->plan(), (QMap<QString, float>{{u"Brot"_s, 20}, {u"Enten, gebraten"_s, 75}}));
}

void TestPlanmodulNamen::theProgramKnowsTheFormerNamesOfItsFoods()
{
    m_heim->schreibePlan({{u"Baguette"_s, 70}, {u"Bauernbrot"_s, 50}});
    Plantueren tueren = m_heim->tueren();
    tueren.eingebauteTabelle = u":/DatabaseIII.daten"_s;
    m_fenster = std::make_unique<Planfenster>(tueren);
    uebernimm();
    QCOMPARE(m_heim->plan(), (QMap<QString, float>{{u"Baguettes (Stangenweißbrot)"_s, 70},
                                                   {u"Bauernbrote (Mischbrot, Graubrot)"_s, 50}}));
}

QTEST_MAIN(TestPlanmodulNamen)
#include "TestPlanmodulNamen.moc"
