#include "Planprobe.h"

#include <QScrollBar>
#include <QTest>

using namespace Qt::StringLiterals;

/// The rows below the plan's table: what its columns add up to, and what is left of a day's need.
class TestPlanmodulSummen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void eachColumnIsAddedUp();
    void theEnergyIsThatOfTheColumn();
    void whatIsLeftIsTheNeedLessTheSum_data();
    void whatIsLeftIsTheNeedLessTheSum();
    void whatIsMetIsNeitherLeftNorTooMuch();
    void withoutARequirementNothingIsLeftOfIt();
    void theSumsFollowTheRows();
    void aFoodOfNoTableDoesNotCount();
    void theSumsStayWhileTheRowsRoll();
    void theSumsRollSidewaysWithTheColumns();
    void theSumsEndWhereTheRowsEnd();
    void theTabKeyAndTheMouseLeaveTheSumsAlone();

private:
    void oeffne() { m_fenster = std::make_unique<Planfenster>(*m_heim); }
    Planmodul &plan() const { return m_fenster->plan(); }
    QModelIndex index(int zeile, const QString &spalte) const
    {
        const Tabellenmodell &modell = *plan().SummenTabelle->modell();
        return modell.index(zeile, modell.spaltenstelle(spalte));
    }
    QString summe(const QString &spalte) const { return index(0, spalte).data().toString(); }
    QString rest(const QString &spalte) const { return index(1, spalte).data().toString(); }
    /// What a cell says beyond its number, with plain blanks.
    QString worte(int zeile, const QString &spalte) const
    {
        const QModelIndex zelle = index(zeile, spalte);
        const QString vorgelesen = zelle.data(Qt::AccessibleDescriptionRole).toString();
        return zelle.data(Qt::ToolTipRole).toString() == vorgelesen
                   ? QString(vorgelesen).replace(QChar(QChar::Nbsp), u' ')
                   : u"the tool tip says something else"_s;
    }

    std::unique_ptr<Planheim> m_heim;
    std::unique_ptr<Planfenster> m_fenster;
};

void TestPlanmodulSummen::init()
{
    vergissKlient();
    m_fenster.reset();
    m_heim = std::make_unique<Planheim>();
    m_heim->schreibeTabelle({zaehlspeise(u"Brot"_s),
                             speise(u"Ei"_s, {{Naehrwert::protein, 12}, {Naehrwert::vitc, 1}}),
                             speise(u"Salz"_s, {{Naehrwert::na, 38000}})});
    m_heim->schreibePlan({{u"Brot"_s, 250}, {u"Ei"_s, 50}});
    oeffne();
}

void TestPlanmodulSummen::eachColumnIsAddedUp()
{
    const QMap<QString, QString> erwartet = {
        {u"name"_s, u"Summe"_s},   {u"menge"_s, u"300"_s}, {u"kal"_s, u"5"_s},
        {u"protein"_s, u"16,0"_s}, {u"fett"_s, u"15,0"_s}, {u"kh"_s, u"20,0"_s},
        {u"bs"_s, u"25,0"_s},      {u"chol"_s, u"30"_s},   {u"na"_s, u"35"_s},
        {u"ka"_s, u"40"_s},        {u"ca"_s, u"45"_s},     {u"ph"_s, u"50"_s},
        {u"ma"_s, u"55"_s},        {u"fe"_s, u"60,0"_s},   {u"vita"_s, u"65"_s},
        {u"b1"_s, u"70,00"_s},     {u"b2"_s, u"75,00"_s},  {u"b6"_s, u"80,00"_s},
        {u"vitc"_s, u"85,5"_s},    {u"hkk"_s, QString()},
    };
    for (auto it = erwartet.begin(); it != erwartet.end(); ++it) {
        QCOMPARE(std::pair(it.key(), summe(it.key())), std::pair(it.key(), it.value()));
    }
}

/// Who adds up the column gets the sum below it; what the shares go by is told.
void TestPlanmodulSummen::theEnergyIsThatOfTheColumn()
{
    QCOMPARE(summe(u"kal"_s), u"5"_s);
    // 16 g of protein, 20 g of carbohydrate and 15 g of fat: 64 + 80 + 135
    QCOMPARE(worte(0, u"kal"_s), u"Anteile und Gewichtsverlauf rechnen mit 279 kcal: der Energie "
                                 "aus Protein, Kohlenhydraten und Fett."_s);
    QCOMPARE(plan().Kalorienerrechnet->intValue(), 279);
}

void TestPlanmodulSummen::whatIsLeftIsTheNeedLessTheSum_data()
{
    QTest::addColumn<QString>("spalte");
    QTest::addColumn<QString>("rest");
    QTest::addColumn<QString>("worte");
    QTest::newRow("energy") << u"kal"_s << u"1995"_s
                            << u"Energie: noch 1995 kcal (5 kcal von 2000 kcal)"_s;
    QTest::newRow("a fifth of the energy")
        << u"protein"_s << u"84,0"_s << u"Protein: noch 84,0 g (16,0 g von 100,0 g)"_s;
    QTest::newRow("three tenths of the energy, nine kcal a gram")
        << u"fett"_s << u"51,7"_s << u"Fett: noch 51,7 g (15,0 g von 66,7 g)"_s;
    QTest::newRow("an amount a day")
        << u"na"_s << u"515"_s << u"Natrium: noch 515 mg (35 mg von 550 mg)"_s;
    QTest::newRow("too much") << u"fe"_s << u"-48,0"_s
                              << u"Eisen: 48,0 mg zu viel (60,0 mg von 12,0 mg)"_s;
    QTest::newRow("grams of food are not needed") << u"menge"_s << QString() << QString();
    QTest::newRow("nor is a rating") << u"gicht"_s << QString() << QString();
}

void TestPlanmodulSummen::whatIsLeftIsTheNeedLessTheSum()
{
    QFETCH(QString, spalte);
    QFETCH(QString, rest);
    QFETCH(QString, worte);
    Planmodul::klient.bedarf = 2000;
    oeffne();
    QCOMPARE(this->rest(u"name"_s), u"Bis zum Tagesbedarf"_s);
    QCOMPARE(this->worte(0, u"name"_s), QString()); // every food counts
    QCOMPARE(this->rest(spalte), rest);
    QCOMPARE(this->worte(1, spalte), worte);
}

void TestPlanmodulSummen::whatIsMetIsNeitherLeftNorTooMuch()
{
    m_heim->schreibeTabelle({speise(u"Quellwasser"_s, {{Naehrwert::na, 55}})});
    m_heim->schreibePlan({{u"Quellwasser"_s, 1000}});
    oeffne();
    QCOMPARE(rest(u"na"_s), u"0"_s);
    QCOMPARE(worte(1, u"na"_s), u"Natrium: 550 mg von 550 mg"_s);
}

void TestPlanmodulSummen::withoutARequirementNothingIsLeftOfIt()
{
    for (const QString &spalte : {u"kal"_s, u"protein"_s, u"fett"_s, u"kh"_s}) {
        QCOMPARE(rest(spalte), u"-"_s);
        QVERIFY(worte(1, spalte).endsWith(
            u"Der Energiebedarf ist noch nicht bekannt (unter „Körper und Energie“)."_s));
    }
    QCOMPARE(rest(u"na"_s), u"515"_s);
}

void TestPlanmodulSummen::theSumsFollowTheRows()
{
    m_fenster->tippeMenge(1, u"150"_s);
    QCOMPARE(summe(u"menge"_s), u"400"_s);
    QCOMPARE(summe(u"protein"_s), u"28,0"_s);
    plan().nameimportvontoolbar(u"Salz"_s);
    QCOMPARE(summe(u"na"_s), u"38035"_s);
    plan().PlanTabelle->selectRow(0);
    plan().Lebensmittelentfernen();
    QCOMPARE(summe(u"menge"_s), u"250"_s);
    QCOMPARE(summe(u"b1"_s), u"0,00"_s);
}

void TestPlanmodulSummen::aFoodOfNoTableDoesNotCount()
{
    m_heim->schreibePlan({{u"Brot"_s, 100}, {u"Dodo"_s, 40}});
    oeffne();
    QCOMPARE(summe(u"name"_s), u"Summe (1 zählt nicht mit)"_s);
    QCOMPARE(summe(u"menge"_s), u"100"_s);
    QVERIFY(worte(0, u"name"_s).startsWith(u"Ein Lebensmittel, das in keiner Tabelle steht"_s));
    QCOMPARE(worte(1, u"name"_s), QString()); // what is left needs no such words
    plan().nameimportvontoolbar(u"Moa"_s);
    QCOMPARE(summe(u"name"_s), u"Summe (2 zählen nicht mit)"_s);
}

void TestPlanmodulSummen::theSumsStayWhileTheRowsRoll()
{
    for (int i = 0; i < 40; ++i) {
        plan().nameimportvontoolbar(u"Speise %1"_s.arg(i));
    }
    Breittabelle &summen = *plan().SummenTabelle;
    const QRect platz = summen.geometry();
    for (const int ort : {0, plan().PlanTabelle->verticalScrollBar()->maximum()}) {
        plan().PlanTabelle->verticalScrollBar()->setValue(ort);
        QCOMPARE(summen.geometry(), platz);
        for (const int zeile : {0, 1}) {
            QVERIFY(summen.viewport()->rect().contains(
                summen.visualRect(index(zeile, u"name"_s)).adjusted(0, 0, 0, 0)));
        }
    }
}

void TestPlanmodulSummen::theSumsRollSidewaysWithTheColumns()
{
    Breittabelle &tabelle = *plan().PlanTabelle;
    Breittabelle &summen = *plan().SummenTabelle;
    plan().window()->resize(700, 780);
    QTRY_VERIFY(summen.horizontalScrollBar()->maximum() > 100);
    const auto gleich = [&] {
        for (int i = 0; i < tabelle.model()->columnCount(); ++i) {
            if (tabelle.columnViewportPosition(i) != summen.columnViewportPosition(i) ||
                tabelle.columnWidth(i) != summen.columnWidth(i)) {
                return false;
            }
        }
        return true;
    };
    QVERIFY(gleich());
    summen.horizontalScrollBar()->setValue(90); // the bar that the user sees
    QCOMPARE(tabelle.horizontalScrollBar()->value(), 90);
    QVERIFY(gleich());
    tabelle.horizontalScrollBar()->setValue(tabelle.horizontalScrollBar()->maximum());
    QVERIFY(gleich());
    QTest::keyClick(plan().tabellengroesse->regler(), Qt::Key_PageUp); // other widths
    QVERIFY(gleich());
}

void TestPlanmodulSummen::theSumsEndWhereTheRowsEnd()
{
    for (int i = 0; i < 40; ++i) {
        plan().nameimportvontoolbar(u"Speise %1"_s.arg(i));
    }
    QTRY_VERIFY(plan().PlanTabelle->verticalScrollBar()->isVisible());
    QTRY_COMPARE(plan().SummenTabelle->viewport()->width(),
                 plan().PlanTabelle->viewport()->width());
    QCOMPARE(plan().SummenTabelle->mapToGlobal(QPoint(0, 0)).x(),
             plan().PlanTabelle->mapToGlobal(QPoint(0, 0)).x());
}

void TestPlanmodulSummen::theTabKeyAndTheMouseLeaveTheSumsAlone()
{
    plan().PlanTabelle->setFocus();
    plan().PlanTabelle->selectRow(1);
    Breittabelle &summen = *plan().SummenTabelle;
    QTest::mouseClick(summen.viewport(), Qt::LeftButton, {},
                      summen.visualRect(index(0, u"menge"_s)).center());
    QVERIFY(plan().PlanTabelle->hasFocus());
    QCOMPARE(plan().PlanTabelle->selectedRow(), 1);
    QVERIFY(!(index(0, u"menge"_s).flags() & Qt::ItemIsEditable));
}

QTEST_MAIN(TestPlanmodulSummen)
#include "TestPlanmodulSummen.moc"
