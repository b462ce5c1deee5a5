#include "Planprobe.h"

#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

/// What the plan's window says of itself: that its table shows an old plan, and what 100 % are.
class TestPlanmodulHinweise : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aMoveThatFailedSaysThatTheTableIsOld();
    void theNoticeFollowsTheSelection();
    void aRowBehindTheLastFoodIsNone();
    void theButtonShowsThePlanAndSavesNothing();
    void theNoticeGoesWithTheNextChange_data();
    void theNoticeGoesWithTheNextChange();
    void aClosedNoticeComesBackWithTheNextMove();
    void aMoveThatRanThroughSaysNothing();
    void theShareSaysWhatAHundredPercentAre_data();
    void theShareSaysWhatAHundredPercentAre();
    void whatAHundredPercentAreWaitsForAnEvaluation();

private:
    Planmodul &plan() const { return m_fenster->plan(); }
    QStringList gezeigt() const { return m_fenster->spalte(u"name"_s); }
    /// The text of the only notice; null when there is none.
    QString hinweis() const
    {
        const QList<Hinweis> &alle = plan().hinweise->hinweise();
        return alle.size() == 1 ? alle[0].text : QString();
    }
    /// Clicks on a row beside its amount.
    void waehle(int zeile) const
    {
        QTest::mouseClick(plan().PlanTabelle->viewport(), Qt::LeftButton, {},
                          m_fenster->mitte(zeile, u"name"_s));
    }
    /// Moves the first of four foods below the third one: the rows are then Brot, Ei, apfel and
    /// Milch, and the food in the third row's place, apfel, has lost its entry.
    void verschiebe() const { QVERIFY(m_fenster->wirfAbUeber(u"apfel"_s, 3)); }

    std::unique_ptr<Planheim> m_heim;
    std::unique_ptr<Planfenster> m_fenster;
};

void TestPlanmodulHinweise::init()
{
    vergissKlient();
    m_fenster.reset();
    m_heim = std::make_unique<Planheim>();
    m_heim->schreibeTabelle({speise(u"apfel"_s), speise(u"Brot"_s), speise(u"Ei"_s),
                             speise(u"Milch"_s), speise(u"Zucker"_s)});
    m_heim->schreibePlan({{u"apfel"_s, 10}, {u"Brot"_s, 20}, {u"Ei"_s, 30}, {u"Milch"_s, 40}});
    m_fenster = std::make_unique<Planfenster>(*m_heim);
}

void TestPlanmodulHinweise::aMoveThatFailedSaysThatTheTableIsOld()
{
    QVERIFY(!plan().hinweise->isVisible());
    verschiebe();
    QCOMPARE(plan().PlanArray, QStringList({u"Brot"_s, u"Ei"_s, u"apfel"_s, u"Milch"_s}));
    QCOMPARE(gezeigt(), QStringList({u"apfel"_s, u"Brot"_s, u"Ei"_s, u"Milch"_s}));
    QVERIFY(plan().hinweise->isVisible());
    QVERIFY(plan().hinweise->hinweise()[0].warnung);
    QVERIFY(hinweis().startsWith(u"Die Tabelle zeigt den Plan vor dem letzten Verschieben."_s));
    QVERIFY(hinweis().endsWith(u"Die Zeilen stehen für andere Lebensmittel."_s));
}

void TestPlanmodulHinweise::theNoticeFollowsTheSelection()
{
    verschiebe();
    waehle(0);
    QVERIFY(hinweis().endsWith(u"Die ausgewählte Zeile steht für „Brot“."_s));
    waehle(2);
    QVERIFY(hinweis().endsWith(u"Die ausgewählte Zeile steht für „apfel“."_s));
    // What it says is what happens.
    QTest::mouseClick(plan().entfernenknopf, Qt::LeftButton);
    QCOMPARE(plan().PlanArray, QStringList({u"Brot"_s, u"Ei"_s, u"Milch"_s}));
}

void TestPlanmodulHinweise::aRowBehindTheLastFoodIsNone()
{
    verschiebe();
    plan().PlanArray.removeLast();
    plan().mengenarray.removeLast();
    waehle(3);
    QVERIFY(hinweis().endsWith(u"Die ausgewählte Zeile gibt es nicht mehr."_s));
}

void TestPlanmodulHinweise::theButtonShowsThePlanAndSavesNothing()
{
    verschiebe();
    const QMap<QString, float> datei = m_heim->plan();
    plan().planworte->setText(u"unberührt"_s);
    auto *knopf = plan().hinweise->findChild<QPushButton *>(u"hinweisknopf"_s);
    QVERIFY(knopf);
    QCOMPARE(knopf->text(), u"Plan neu zeigen"_s);
    QTest::mouseClick(knopf, Qt::LeftButton);
    QCOMPARE(gezeigt(), QStringList({u"Brot"_s, u"Ei"_s, u"apfel"_s, u"Milch"_s}));
    QCOMPARE(m_fenster->spalte(u"menge"_s), QStringList({u"20"_s, u"30"_s, u"100"_s, u"40"_s}));
    QVERIFY(!plan().hinweise->isVisible());
    QCOMPARE(m_heim->plan(), datei);
    QCOMPARE(plan().planworte->text(), u"unberührt"_s); // nothing was evaluated
}

void TestPlanmodulHinweise::theNoticeGoesWithTheNextChange_data()
{
    QTest::addColumn<int>("weg");
    QTest::newRow("a food from the main window") << 0;
    QTest::newRow("a food that is removed") << 1;
    QTest::newRow("a drop that runs through") << 2;
    QTest::newRow("amounts typed into the rows that were moved") << 3;
}

void TestPlanmodulHinweise::theNoticeGoesWithTheNextChange()
{
    QFETCH(int, weg);
    verschiebe();
    QVERIFY(plan().hinweise->isVisible());
    if (weg == 0) {
        plan().nameimportvontoolbar(u"Zucker"_s);
    } else if (weg == 1) {
        waehle(1);
        QTest::mouseClick(plan().entfernenknopf, Qt::LeftButton);
    } else if (weg == 2) {
        QVERIFY(m_fenster->wirfAbUeber(u"Zucker"_s, 0));
    } else {
        for (const int zeile : {0, 1}) {
            m_fenster->tippeMenge(zeile, u"50"_s);
            QVERIFY(plan().hinweise->isVisible());
        }
        m_fenster->tippeMenge(2, u"50"_s);
    }
    QVERIFY(!plan().hinweise->isVisible());
    QCOMPARE(gezeigt(), plan().PlanArray);
}

void TestPlanmodulHinweise::aClosedNoticeComesBackWithTheNextMove()
{
    verschiebe();
    QTest::keyClick(plan().PlanTabelle, Qt::Key_Escape, Qt::ShiftModifier);
    QVERIFY(!plan().hinweise->isVisible());
    waehle(1);
    QVERIFY(!plan().hinweise->isVisible());
    QVERIFY(m_fenster->wirfAbUeber(u"Brot"_s, 3));
    QVERIFY(plan().hinweise->isVisible());
}

void TestPlanmodulHinweise::aMoveThatRanThroughSaysNothing()
{
    QVERIFY(m_fenster->wirfAbUeber(u"Milch"_s, 0)); // it stood last
    QCOMPARE(gezeigt(), QStringList({u"Milch"_s, u"apfel"_s, u"Brot"_s, u"Ei"_s}));
    QVERIFY(!plan().hinweise->isVisible());
}

void TestPlanmodulHinweise::theShareSaysWhatAHundredPercentAre_data()
{
    QTest::addColumn<int>("bedarf");
    QTest::addColumn<int>("unbereinigt");
    QTest::addColumn<QString>("worte");
    QTest::newRow("nothing is known")
        << 0 << 0 << u"100 % der Energie: noch nicht bekannt (unter „Körper und Energie“)"_s;
    QTest::newRow("the whole requirement")
        << 2000 << 2000 << u"100 % der Energie = 2000 kcal am Tag"_s;
    QTest::newRow("less, to lose weight")
        << 1690 << 2112 << u"100 % der Energie = 1690 kcal am Tag (zum Abnehmen)"_s;
    QTest::newRow("thousands are not parted")
        << 12345 << 12345 << u"100 % der Energie = 12345 kcal am Tag"_s;
}

void TestPlanmodulHinweise::theShareSaysWhatAHundredPercentAre()
{
    QFETCH(int, bedarf);
    QFETCH(int, unbereinigt);
    QFETCH(QString, worte);
    Planmodul::klient.bedarf = bedarf;
    Planmodul::klient.unbereinigt = unbereinigt;
    m_fenster = std::make_unique<Planfenster>(*m_heim);
    QCOMPARE(plan().bedarfsworte->text().replace(QChar(QChar::Nbsp), u' '), worte);
}

/// Beside shares of another requirement it would be wrong.
void TestPlanmodulHinweise::whatAHundredPercentAreWaitsForAnEvaluation()
{
    plan().anthrouebergabe(2000);
    QVERIFY(plan().bedarfsworte->text().contains(u"noch nicht bekannt"_s));
    m_fenster->tippeMenge(0, u"100"_s);
    QVERIFY(plan().bedarfsworte->text().contains(u"2000"_s));
}

QTEST_MAIN(TestPlanmodulHinweise)
#include "TestPlanmodulHinweise.moc"
