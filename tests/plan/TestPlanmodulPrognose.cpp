#include "Planprobe.h"

#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

/// The projection of the weight in the plan's window, and what the calculator hands over.
class TestPlanmodulPrognose : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void atTheStartSevenDaysAndTheUnadjustedRequirement();
    void theWorkedExample();
    void theChartGetsWhatTheFieldsShow();
    void aWeightThatIsCutOffToNothingDrawsAFlatLine();
    void withoutAHeightThereIsNoBmi();
    void theWordsSayWhatIsMissing_data();
    void theWordsSayWhatIsMissing();
    void everyOpenPlanHearsOfTheClient();
    void todaysWeightIsNotRounded();
    void aGainIsCalledAGain();
    void aWishThatThePlanCanNotMeetIsSaid_data();
    void aWishThatThePlanCanNotMeetIsSaid();
    void figuresThatRunOverAreADash();
    void weightAndHeightShowTheBmiAtOnce();
    void aWantedLossGivesTheDays();
    void theButtonCountsTheDaysAnew();
    void aPlanOfJustEnoughNeedsNoDays();
    void aPlanOfTooMuchGivesTheDaysWithoutTheirSign();
    void negativeDaysLoseTheirSign();
    void fractionsOfADayDoNotCount();
    void nonsenseIsNothing();
    void aTypedRequirementCounts();
    void theNextEvaluationOverwritesATypedRequirement();
    void anEmptyPlanKeepsATypedRequirement();
    void theClientOutlivesTheWindowAndIsSharedByAll();
    void wholeDaysAreShownWithoutAComma();

private:
    /// A plan of so many kcal for a client of these measures.
    void oeffne(float kilokalorien, const Klient &klient);
    void tippe(Textfeld *feld, const QString &text) const;
    Planmodul &plan() const { return m_fenster->plan(); }

    std::unique_ptr<Planheim> m_heim;
    std::unique_ptr<Planfenster> m_fenster;
};

namespace {

constexpr Klient klient2500 = {
    .bedarf = 2000, .unbereinigt = 2500, .gewicht = 80.0F, .groesse = 1.8F};

} // namespace

void TestPlanmodulPrognose::init()
{
    vergissKlient();
    m_fenster.reset();
    m_heim = std::make_unique<Planheim>();
}

void TestPlanmodulPrognose::oeffne(float kilokalorien, const Klient &klient)
{
    Planmodul::klient = klient;
    m_heim->schreibeTabelle({speise(u"Zucker"_s, {{Naehrwert::kh, kilokalorien / 4.0F}})});
    m_heim->schreibePlan({{u"Zucker"_s, 100}});
    m_fenster = std::make_unique<Planfenster>(*m_heim);
}

void TestPlanmodulPrognose::tippe(Textfeld *feld, const QString &text) const
{
    feld->setFocus();
    feld->selectAll();
    QTest::keyClick(feld, Qt::Key_Delete);
    QTest::keyClicks(feld, text);
    QTest::keyClick(feld, Qt::Key_Return);
}

void TestPlanmodulPrognose::atTheStartSevenDaysAndTheUnadjustedRequirement()
{
    Planmodul::klient = klient2500;
    m_fenster = std::make_unique<Planfenster>(*m_heim);
    QCOMPARE(plan().Tage->floatValue(), 7.0F);
    QCOMPARE(plan().Kalorienbedarf->intValue(), 2500);
    QCOMPARE(plan().Gewichtsverlust->floatValue(), 0.0F);
}

void TestPlanmodulPrognose::theWorkedExample()
{
    oeffne(1800, klient2500);
    QCOMPARE(plan().Kalorienbedarf->intValue(), 2500);
    QCOMPARE(plan().Kalorienerrechnet->intValue(), 1800);
    QCOMPARE(plan().Gewichtsverlust->floatValue(), -0.7F);
    QCOMPARE(Planfenster::text(*plan().Gewichtsverlust), u"-0,7 kg"_s);
    QCOMPARE(Planfenster::text(*plan().BMI), u"24,7"_s);    // 24.691
    QCOMPARE(Planfenster::text(*plan().BMIneu), u"24,5"_s); // 24.475
    QVERIFY(qAbs(plan().BMI->floatValue() - 24.691358F) < 0.00001F);
    QVERIFY(qAbs(plan().BMIneu->floatValue() - 24.475309F) < 0.00001F);
}

void TestPlanmodulPrognose::theChartGetsWhatTheFieldsShow()
{
    oeffne(1500, {.unbereinigt = 2500, .gewicht = 80.9F, .groesse = 1.8F});
    const GewichtsverlaufView &kurve = *plan().gewichtview;
    QCOMPARE(kurve.gewicht(), 80.0F); // whole kilograms
    QCOMPARE(kurve.kalorienbedarf(), 2500);
    QCOMPARE(kurve.kalorienerrechnet(), 1500);
    QCOMPARE(kurve.groesse(), 1.8F);
    QCOMPARE(kurve.b(), 79.0F);
    QVERIFY(qAbs(kurve.unteresbmigewicht() - 64.8F) < 0.001F);
    QVERIFY(qAbs(kurve.oberesbmigewicht() - 81.0F) < 0.001F);
    QCOMPARE(plan().verlaufworte->text(), kurve.beschreibung());
}

void TestPlanmodulPrognose::aWeightThatIsCutOffToNothingDrawsAFlatLine()
{
    oeffne(1500, {.unbereinigt = 2500, .gewicht = 0.9F, .groesse = 1.8F});
    for (const float gewicht : plan().gewichtview->wochengewichte()) {
        QCOMPARE(gewicht, 0.0F);
    }
    QVERIFY(!plan().window()->grab().isNull());
}

void TestPlanmodulPrognose::withoutAHeightThereIsNoBmi()
{
    oeffne(1800, {.unbereinigt = 2500, .gewicht = 80.0F});
    QCOMPARE(plan().BMI->floatValue(), 0.0F);
    QCOMPARE(plan().BMIneu->floatValue(), 0.0F);
    QCOMPARE(plan().Gewichtsverlust->floatValue(), -0.7F);
    // The course is known, but not what is healthy.
    QVERIFY(plan().gewichtview->isVisible());
    QVERIFY(qAbs(plan().gewichtview->b() - 79.3F) < 0.0001F);
    QVERIFY(plan().verlaufworte->text().startsWith(plan().gewichtview->beschreibung() +
                                                   u" Ohne Größe"_s));
    Planmodul::klient.groesse = 1.8F;
    plan().datenberechnen();
    QVERIFY(plan().gewichtview->isVisible());
    QCOMPARE(plan().verlaufworte->text(), plan().gewichtview->beschreibung());
}

void TestPlanmodulPrognose::theWordsSayWhatIsMissing_data()
{
    QTest::addColumn<float>("gewicht");
    QTest::addColumn<float>("groesse");
    QTest::addColumn<bool>("gezeichnet");
    QTest::addColumn<QString>("worte");
    QTest::newRow("nothing is known")
        << 0.0F << 0.0F << false
        << u"Für den Verlauf fehlen Gewicht und Größe (unter „Körper und Energie“)."_s;
    QTest::newRow("only the height")
        << 0.0F << 1.8F << true
        << u"Gesund sind 64,8 kg bis 81,0 kg. Für den Verlauf fehlt das Gewicht (unter "
           "„Körper und Energie“)."_s;
    QTest::newRow("only the weight")
        << 80.0F << 0.0F << true
        << u"Gewicht heute 80 kg, nach einer Woche 0,7 kg weniger, nach zwei 1,4 kg weniger, nach "
           "drei 2,0 kg weniger, nach vier 2,7 kg weniger. Ohne Größe (unter „Körper und "
           "Energie“) sagen die Farben nichts."_s;
}

void TestPlanmodulPrognose::theWordsSayWhatIsMissing()
{
    QFETCH(float, gewicht);
    QFETCH(float, groesse);
    QFETCH(bool, gezeichnet);
    QFETCH(QString, worte);
    oeffne(1800, {.unbereinigt = 2500, .gewicht = gewicht, .groesse = groesse});
    QCOMPARE(plan().gewichtview->isVisible(), gezeichnet);
    QCOMPARE(plan().verlaufworte->text().replace(QChar(QChar::Nbsp), u' '), worte);
}

/// The calculator speaks to a plan of its own, and the user looks at this one.
void TestPlanmodulPrognose::everyOpenPlanHearsOfTheClient()
{
    oeffne(1800, {.unbereinigt = 2500});
    Planmodul desRechners(m_heim->tueren());
    desRechners.anthrouebergabegroesse(2);
    QVERIFY(plan().verlaufworte->text().contains(u"fehlt das Gewicht"_s));
    desRechners.anthrouebergabegewicht(80);
    QCOMPARE(plan().BMI->floatValue(), 20.0F);
    const QString neu =
        u"Gewicht oder Größe sind neu: Der Verlauf folgt mit der nächsten Änderung am Plan."_s;
    QCOMPARE(plan().verlaufworte->text(), neu);
    // All else waits for an evaluation.
    desRechners.anthrouebergabe(2100);
    desRechners.anthrouebergabe2(2700);
    QCOMPARE(plan().Kalorienbedarf->intValue(), 2500);
    QCOMPARE(plan().gesamtkal->floatValue(), 0.0F);
    QCOMPARE(plan().gewichtview->gewicht(), 0.0F);
    QCOMPARE(plan().BMIneu->floatValue(), 0.0F);
    plan().datenberechnen();
    QCOMPARE(plan().verlaufworte->text(), plan().gewichtview->beschreibung());
    {
        const Planmodul nochEiner(m_heim->tueren()); // one that is gone hears nothing
    }
    desRechners.anthrouebergabegewicht(100);
    QCOMPARE(plan().BMI->floatValue(), 25.0F);
    QCOMPARE(plan().verlaufworte->text(), neu);
    desRechners.anthrouebergabegewicht(80); // as it was
    QCOMPARE(plan().verlaufworte->text(), plan().gewichtview->beschreibung());
}

void TestPlanmodulPrognose::todaysWeightIsNotRounded()
{
    oeffne(1800, {.unbereinigt = 2500, .gewicht = 82.5F, .groesse = 1.8F});
    QCOMPARE(plan().gewichtview->gewicht(), 82.0F); // the chart has whole kilograms
    QVERIFY(plan().verlaufworte->text().startsWith(
        u"Gewicht heute 82,5\u00a0kg, nach einer Woche 0,7\u00a0kg weniger, "_s));
}

void TestPlanmodulPrognose::aGainIsCalledAGain()
{
    oeffne(3200, klient2500);
    QCOMPARE(plan().aenderungswort->text(), u"Zunahme"_s);
    QVERIFY(plan().Gewichtsverlust->accessibleName().startsWith(u"Zunahme"_s));
    QCOMPARE(Planfenster::text(*plan().Gewichtsverlust), u"0,7 kg"_s);
    QVERIFY(plan().verlaufworte->text().contains(u"nach einer Woche 0,7\u00a0kg mehr"_s));
    m_fenster->tippeMenge(0, u"10"_s);
    QCOMPARE(plan().aenderungswort->text(), u"Abnahme"_s);
    QVERIFY(plan().Gewichtsverlust->accessibleName().startsWith(u"Abnahme"_s));
    QVERIFY(plan().Gewichtsverlust->floatValue() < 0);
    m_fenster->tippeMenge(0, u"78,125"_s); // 2500 kcal, as many as are needed
    QCOMPARE(plan().Gewichtsverlust->floatValue(), 0.0F);
    QCOMPARE(plan().aenderungswort->text(), u"Änderung"_s);
    QVERIFY(plan().Gewichtsverlust->accessibleName().startsWith(u"Änderung"_s));
}

void TestPlanmodulPrognose::aWishThatThePlanCanNotMeetIsSaid_data()
{
    QTest::addColumn<float>("kilokalorien");
    QTest::addColumn<int>("bedarf");
    QTest::addColumn<QString>("wunsch");
    QTest::addColumn<QString>("worte");
    QTest::newRow("less energy than needed") << 1800.0F << 2500 << u"2"_s << QString();
    QTest::newRow("nothing is wished for") << 3200.0F << 2500 << u"0"_s << QString();
    QTest::newRow("as much as needed")
        << 2500.0F << 2500 << u"2"_s
        << u"Mit diesem Plan nicht zu erreichen: Er hat so viel Energie, wie gebraucht wird."_s;
    QTest::newRow("more than needed")
        << 3200.0F << 2500 << u"2"_s
        << u"Mit diesem Plan nicht zu erreichen: Er hat mehr Energie, als gebraucht wird."_s;
    QTest::newRow("nobody knows how much is needed")
        << 1800.0F << 0 << u"2"_s
        << u"Ob der Wunsch erreicht wird, ist ohne Energiebedarf nicht bekannt."_s;
}

void TestPlanmodulPrognose::aWishThatThePlanCanNotMeetIsSaid()
{
    QFETCH(float, kilokalorien);
    QFETCH(int, bedarf);
    QFETCH(QString, wunsch);
    QFETCH(QString, worte);
    oeffne(kilokalorien, {.unbereinigt = bedarf, .gewicht = 80, .groesse = 1.8F});
    QVERIFY(!plan().wunschworte->isVisible());
    tippe(plan().wunschverlust, wunsch);
    QCOMPARE(plan().wunschworte->text(), worte);
    QCOMPARE(plan().wunschworte->isVisible(), !worte.isEmpty());
    QCOMPARE(plan().Tage->accessibleDescription(), worte);
    m_fenster->tippeMenge(0, u"1"_s); // now the plan has less, where it is known how much is needed
    QCOMPARE(plan().wunschworte->isVisible(), bedarf == 0);
}

void TestPlanmodulPrognose::figuresThatRunOverAreADash()
{
    oeffne(1800, {.bedarf = 2000, .unbereinigt = 2500, .gewicht = 80, .groesse = 1e-20F});
    QCOMPARE(Planfenster::text(*plan().BMI), u"-"_s);
    QCOMPARE(Planfenster::text(*plan().BMIneu), u"-"_s);
    plan().anthrouebergabegroesse(1.8F);
    QCOMPARE(Planfenster::text(*plan().BMI), u"24,7"_s);
    m_fenster->tippeMenge(0, u"3e38"_s); // a number, but what it adds up to is none
    QCOMPARE(Planfenster::text(*plan().gesamtkal), u"-"_s);
    m_fenster->tippeMenge(0, u"100"_s);
    QCOMPARE(Planfenster::text(*plan().gesamtkal), u"90,0 %"_s);
}

void TestPlanmodulPrognose::weightAndHeightShowTheBmiAtOnce()
{
    oeffne(1800, {});
    plan().anthrouebergabegewicht(80);
    QCOMPARE(plan().BMI->floatValue(), 0.0F);
    plan().anthrouebergabegroesse(2);
    QCOMPARE(plan().BMI->floatValue(), 20.0F);
    plan().anthrouebergabegewicht(100);
    QCOMPARE(plan().BMI->floatValue(), 25.0F);
    QCOMPARE(plan().BMIneu->floatValue(), 0.0F); // the rest waits for the next evaluation
    plan().anthrouebergabegroesse(0);
    QCOMPARE(plan().BMI->floatValue(), 0.0F);
}

void TestPlanmodulPrognose::aWantedLossGivesTheDays()
{
    oeffne(1800, klient2500);
    tippe(plan().wunschverlust, u"2"_s);
    QCOMPARE(plan().Tage->intValue(), 20);
    QCOMPARE(Planfenster::text(*plan().Tage), u"20 Tage"_s);
    QCOMPARE(plan().Gewichtsverlust->floatValue(), -2.0F);
}

void TestPlanmodulPrognose::theButtonCountsTheDaysAnew()
{
    oeffne(1800, klient2500);
    tippe(plan().wunschverlust, u"3,5"_s);
    QVERIFY(qAbs(plan().Tage->floatValue() - 35.0F) < 0.001F);
    m_fenster->tippeMenge(0, u"50"_s); // 900 kcal: 1600 less than needed
    QVERIFY(qAbs(plan().Tage->floatValue() - 35.0F) < 0.001F);
    QTest::mouseClick(plan().tageknopf, Qt::LeftButton);
    QVERIFY(qAbs(plan().Tage->floatValue() - 15.3125F) < 0.001F);
}

void TestPlanmodulPrognose::aPlanOfJustEnoughNeedsNoDays()
{
    oeffne(2500, klient2500);
    tippe(plan().wunschverlust, u"2"_s);
    QCOMPARE(plan().Tage->floatValue(), 0.0F);
    QCOMPARE(plan().Gewichtsverlust->floatValue(), 0.0F);
    QCOMPARE(Planfenster::text(*plan().Gewichtsverlust), u"0,0 kg"_s); // and not "-0,0"
}

void TestPlanmodulPrognose::aPlanOfTooMuchGivesTheDaysWithoutTheirSign()
{
    oeffne(3200, klient2500);
    tippe(plan().wunschverlust, u"2"_s);
    QCOMPARE(plan().Tage->intValue(), 20);
    QCOMPARE(plan().Gewichtsverlust->floatValue(), 2.0F); // a gain
}

void TestPlanmodulPrognose::negativeDaysLoseTheirSign()
{
    oeffne(1800, klient2500);
    tippe(plan().Tage, u"-14"_s);
    QCOMPARE(Planfenster::text(*plan().Tage), u"14"_s); // still being typed in
    QCOMPARE(plan().Tage->floatValue(), 14.0F);
    QCOMPARE(plan().Gewichtsverlust->floatValue(), -1.4F);
}

void TestPlanmodulPrognose::fractionsOfADayDoNotCount()
{
    oeffne(1800, klient2500);
    tippe(plan().Tage, u"7,9"_s);
    QCOMPARE(plan().Tage->floatValue(), 7.9F);
    QCOMPARE(plan().Gewichtsverlust->floatValue(), -0.7F);
}

void TestPlanmodulPrognose::nonsenseIsNothing()
{
    oeffne(1800, klient2500);
    tippe(plan().Tage, u"bald"_s);
    QCOMPARE(plan().Gewichtsverlust->floatValue(), 0.0F);
    tippe(plan().Tage, u"7"_s);
    tippe(plan().Kalorienbedarf, u"viel"_s);
    QCOMPARE(plan().Gewichtsverlust->floatValue(), 1.8F);
    tippe(plan().wunschverlust, u"-"_s);
    QCOMPARE(plan().Tage->floatValue(), 0.0F);
}

void TestPlanmodulPrognose::aTypedRequirementCounts()
{
    oeffne(1800, klient2500);
    tippe(plan().Kalorienbedarf, u"2800"_s);
    QCOMPARE(plan().Gewichtsverlust->floatValue(), -1.0F);
    QCOMPARE(plan().gewichtview->kalorienbedarf(), 2800);
}

void TestPlanmodulPrognose::theNextEvaluationOverwritesATypedRequirement()
{
    oeffne(1800, klient2500);
    tippe(plan().Kalorienbedarf, u"2800"_s);
    m_fenster->tippeMenge(0, u"100"_s);
    QCOMPARE(plan().Kalorienbedarf->intValue(), 2500);
    QCOMPARE(plan().Gewichtsverlust->floatValue(), -0.7F);
}

void TestPlanmodulPrognose::anEmptyPlanKeepsATypedRequirement()
{
    Planmodul::klient = klient2500;
    m_fenster = std::make_unique<Planfenster>(*m_heim);
    tippe(plan().Kalorienbedarf, u"2800"_s);
    QCOMPARE(plan().Gewichtsverlust->floatValue(), -2.8F);
    plan().datenberechnen();
    QCOMPARE(plan().Kalorienbedarf->intValue(), 2800);
    QCOMPARE(plan().Gewichtsverlust->floatValue(), -2.8F);
}

void TestPlanmodulPrognose::theClientOutlivesTheWindowAndIsSharedByAll()
{
    {
        Planmodul einer(m_heim->tueren());
        einer.anthrouebergabe(2100);
        einer.anthrouebergabe2(2500);
        einer.anthrouebergabegewicht(80);
        einer.anthrouebergabegroesse(1.8F);
    }
    oeffne(1800, Planmodul::klient);
    QCOMPARE(plan().Kalorienbedarf->intValue(), 2500);
    QVERIFY(qAbs(plan().gesamtkal->floatValue() - 85.714287F) < 0.0001F);
    QVERIFY(qAbs(plan().BMI->floatValue() - 24.691358F) < 0.00001F);
    plan().window()->close();
    Planmodul anderer(m_heim->tueren());
    anderer.anthrouebergabe2(2600);
    plan().showWindow();
    QCOMPARE(plan().Kalorienbedarf->intValue(), 2500); // as it was, until it is evaluated
    plan().datenberechnen();
    QCOMPARE(plan().Kalorienbedarf->intValue(), 2600);
}

void TestPlanmodulPrognose::wholeDaysAreShownWithoutAComma()
{
    oeffne(1800, klient2500);
    QCOMPARE(Planfenster::text(*plan().Tage), u"7 Tage"_s);
    plan().Tage->setFloatValue(7.25F);
    QCOMPARE(Planfenster::text(*plan().Tage), u"7,3 Tage"_s);
}

QTEST_MAIN(TestPlanmodulPrognose)
#include "TestPlanmodulPrognose.moc"
