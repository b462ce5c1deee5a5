#include "Ampel.h"
#include "Plananzeige.h"
#include "Planbeispiele.h"
#include "Planprobe.h"

#include <QApplication>
#include <QTest>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

/// What the plan window shows about the plan as a whole.
class TestPlanmodulAuswertung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void plans_data() { Planbeispiele::fuelle(); }
    void plans();
    void anEmptyPlanShowsNothingAndCries();
    void aPlanThatWasEmptiedKeepsColoursLooksAndEnergy();
    void aBarOfNoBandKeepsWhatTheEvaluationBeforeGaveIt();
    void theCircleGetsTheThreeShares();
    void theFaceHasItsPicturesAndWords();
    void aNewRequirementIsSeenAtTheNextEvaluation();
    void aFieldThatShowsSeventyPercentEarnsItsPoint();
    void theLeadingCountStandsOut_data();
    void theLeadingCountStandsOut();
    void aTieLeavesTheLooksOfTheRowBefore();
    void aTieFromTheFirstRowOnLeavesTheLooksOfTheEvaluationBefore();
    void aRatingOfAnyOtherTextIsNotCounted();
    void theSharesTellTheAmountsBehindThem_data();
    void theSharesTellTheAmountsBehindThem();
    void thePointsThatAreMissingAreNamed();
    void ofAnEmptyPlanNoPointIsMissed();
    void everyNumberHasItsBarBesideIt();
    void everyBarHasItsSignBesideIt();

private:
    void oeffne() { m_fenster = std::make_unique<Planfenster>(*m_heim); }
    Planmodul &plan() const { return m_fenster->plan(); }

    std::unique_ptr<Planheim> m_heim;
    std::unique_ptr<Planfenster> m_fenster;
};

namespace {

QString inWorten(const Plananzeige &anzeige)
{
    return QString::number(anzeige.prozent->doubleValue(), 'g', 9) +
           u":%1/%2"_s.arg(anzeige.balken->a()).arg(anzeige.balken->value());
}

/// A fresh bar that was left alone has code 0; a bar is full from 100 on.
QString wieGezeigt(const QString &erwartet)
{
    if (erwartet.endsWith(u":-"_s)) {
        return erwartet.chopped(1) + u"0/0"_s;
    }
    const int laenge = std::min(100, erwartet.section(u'/', 1).toInt());
    return erwartet.section(u'/', 0, 0) + u"/%1"_s.arg(laenge);
}

QString ziffern(const Planzaehlung &zaehlung)
{
    QString text;
    for (const Zaehlfeld *feld : zaehlung) {
        text += feld->stringValue();
    }
    return text;
}

/// The looks of three counts, such as "gruen11 schwarz9 schwarz9"; "neu" is a field never styled.
QString aussehen(const Planzaehlung &zaehlung)
{
    const QMap<Textfarbe, QString> namen = {{Textfarbe::Schwarz, u"schwarz"_s},
                                            {Textfarbe::Gruen, u"gruen"_s},
                                            {Textfarbe::Blau, u"blau"_s},
                                            {Textfarbe::Rot, u"rot"_s},
                                            {Textfarbe::Standard, u"neu"_s}};
    QStringList worte;
    for (const Zaehlfeld *feld : zaehlung) {
        worte << namen[feld->anfangsfarbe()] + QString::number(feld->anfangspunkte());
    }
    return worte.join(u' ');
}

QString zeilenname(qsizetype zeile)
{
    return u"Zeile %1"_s.arg(zeile, 2, 10, QChar(u'0'));
}

} // namespace

void TestPlanmodulAuswertung::init()
{
    vergissKlient();
    m_fenster.reset();
    m_heim = std::make_unique<Planheim>();
}

void TestPlanmodulAuswertung::plans()
{
    QFETCH(QStringList, plan);
    QFETCH(int, bedarf);
    QFETCH(QString, prozente);
    QFETCH(QString, gezaehlt);
    QFETCH(int, punkte);
    QFETCH(int, gesicht);
    Planmodul::klient = {.bedarf = bedarf, .unbereinigt = 2345};
    const Planbeispiele::Plan beispiel = Planbeispiele::lesen(plan);
    QList<Datenmodul> speisen;
    QList<std::pair<QString, float>> zeilen;
    for (const Planzeile &zeile : beispiel.zeilen) {
        const QString name = zeilenname(zeilen.size());
        zeilen << std::pair(name, zeile.menge);
        if (zeile.lebensmittel != nullptr) {
            speisen << *zeile.lebensmittel;
            speisen.last().setName(name);
        }
    }
    m_heim->schreibeTabelle(speisen);
    m_heim->schreibePlan(zeilen);
    oeffne();
    for (qsizetype i = 0; i < zeilen.size(); ++i) {
        const QString gramm = QLocale().toString(static_cast<double>(zeilen[i].second));
        if (gramm.contains(u',')) { // what a file forgets is typed
            m_fenster->tippeMenge(static_cast<int>(i), gramm);
        }
    }

    const auto gezeigt = plananzeigen(this->plan());
    for (const auto &zeile : naehrwerte) {
        const QString soll = wieGezeigt(Planbeispiele::erwartet(prozente, zeile.kennung));
        QCOMPARE(QLatin1String(zeile.kennung) + inWorten(gezeigt[stelle(zeile.wert)]),
                 QLatin1String(zeile.kennung) + soll);
    }
    QStringList gelesen;
    for (const Planzaehlung &zaehlung : planzaehlungen(this->plan())) {
        gelesen << ziffern(zaehlung);
    }
    QCOMPARE(gelesen.join(u' '), gezaehlt.remove(u'!'));
    QCOMPARE(this->plan().Kalorienbedarf->intValue(), 2345);
    QTEST(this->plan().Kalorienerrechnet->intValue(), "energie");
    QCOMPARE(this->plan().planbeurteilungfaceview->entscheidungszahl(), gesicht);
    QVERIFY(this->plan().planworte->text().endsWith(u"\n%1 von 21 Punkten"_s.arg(punkte)));
}

void TestPlanmodulAuswertung::anEmptyPlanShowsNothingAndCries()
{
    Planmodul::klient = {.bedarf = 2000, .unbereinigt = 2200, .gewicht = 80, .groesse = 1.8F};
    oeffne();
    for (const Plananzeige &anzeige : plananzeigen(plan())) {
        QCOMPARE(inWorten(anzeige), u"0:0/0"_s);
        QCOMPARE(Planfenster::text(*anzeige.prozent), u"0,0 %"_s);
    }
    for (const Planzaehlung &zaehlung : planzaehlungen(plan())) {
        QCOMPARE(ziffern(zaehlung), u"000"_s);
    }
    QCOMPARE(plan().planbeurteilungfaceview->entscheidungszahl(), Gesichtscode::weinend);
    QVERIFY(plan().planworte->text().endsWith(u"\n0 von 21 Punkten"_s));
    QCOMPARE(plan().kreisansicht->a(), 0.0F);
    // The projection is not made; the requirement was set when the window came up.
    QCOMPARE(plan().Kalorienbedarf->intValue(), 2200);
    QCOMPARE(plan().Kalorienerrechnet->intValue(), 0);
    QCOMPARE(plan().Gewichtsverlust->stringValue(), u"-"_s);
    QCOMPARE(plan().BMIneu->stringValue(), u"-"_s);
    QVERIFY(!plan().gewichtview->isVisible());
    QVERIFY(plan().verlaufworte->text().startsWith(u"Der Verlauf erscheint"_s));
    // The client is known all the same.
    QVERIFY(qAbs(plan().BMI->floatValue() - 24.691358F) < 0.00001F);
}

void TestPlanmodulAuswertung::aPlanThatWasEmptiedKeepsColoursLooksAndEnergy()
{
    Planmodul::klient = {.bedarf = 2000, .unbereinigt = 2200, .gewicht = 80, .groesse = 1.8F};
    m_heim->schreibeTabelle({speise(u"Saft"_s, {{Naehrwert::vitc, 80}, {Naehrwert::kh, 10}},
                                    {u"-"_s, u"-"_s, u"-"_s, u"-"_s})});
    m_heim->schreibePlan({{u"Saft"_s, 100}});
    oeffne();
    plan().PlanTabelle->selectRow(0);
    Planmodul::klient.unbereinigt = 2500;
    plan().Lebensmittelentfernen();
    QCOMPARE(inWorten({plan().gesamtvitaminc, plan().gesamtvitamincview}), u"0:3/0"_s);
    QCOMPARE(plan().gesamtvitamincview->color(), QColor(Qt::green));
    QCOMPARE(plan().gesamtvitamincview->a(), 3);
    QVERIFY(plan().gewichtview->isVisible());
    QCOMPARE(ziffern(planzaehlungen(plan())[0]), u"000"_s);
    QCOMPARE(aussehen(planzaehlungen(plan())[0]), u"schwarz9 schwarz9 rot12"_s);
    QCOMPARE(plan().Kalorienbedarf->intValue(), 2200);
    QCOMPARE(plan().Kalorienerrechnet->intValue(), 40);
    QVERIFY(plan().BMI->floatValue() > 24);
    QCOMPARE(plan().planbeurteilungfaceview->entscheidungszahl(), Gesichtscode::weinend);
}

void TestPlanmodulAuswertung::aBarOfNoBandKeepsWhatTheEvaluationBeforeGaveIt()
{
    m_heim->schreibeTabelle({speise(u"Salz"_s, {{Naehrwert::na, 550}, {Naehrwert::fe, 12}})});
    m_heim->schreibePlan({{u"Salz"_s, 80}});
    oeffne();
    QCOMPARE(inWorten({plan().gesamtnatrium, plan().gesamtnatriumview}), u"80:3/80"_s);
    m_fenster->tippeMenge(0, u"120"_s); // exactly 120 percent, of iron as well
    QCOMPARE(inWorten({plan().gesamtnatrium, plan().gesamtnatriumview}), u"120:3/80"_s);
    QCOMPARE(inWorten({plan().gesamteisen, plan().gesamteisenview}), u"120:3/80"_s);
    m_fenster->tippeMenge(0, u"121"_s);
    QCOMPARE(plan().gesamtnatriumview->color(), QColor(Qt::red));
    QCOMPARE(plan().gesamtnatriumview->value(), 100.0);
}

void TestPlanmodulAuswertung::theCircleGetsTheThreeShares()
{
    m_heim->schreibeTabelle({speise(
        u"Alles"_s, {{Naehrwert::protein, 20}, {Naehrwert::fett, 10}, {Naehrwert::kh, 57.5F}})});
    m_heim->schreibePlan({{u"Alles"_s, 100}}); // 80, 90 and 230 of 400 kcal
    oeffne();
    QCOMPARE(plan().kreisansicht->a(), 20.0F);
    QCOMPARE(plan().kreisansicht->b(), 57.5F);
    QCOMPARE(plan().kreisansicht->c(), 22.5F);
    QVERIFY(plan().kreisworte->text().contains(u"Protein 20"_s));
}

void TestPlanmodulAuswertung::theFaceHasItsPicturesAndWords()
{
    oeffne();
    const FaceView &gesicht = *plan().planbeurteilungfaceview;
    QVERIFY(!gesicht.bild().isNull());
    QVERIFY(!gesicht.bild2().isNull());
    QVERIFY(!gesicht.bild3().isNull());
    QVERIFY(gesicht.bild() != gesicht.bild2() && gesicht.bild2() != gesicht.bild3());
    QCOMPARE(plan().planworte->text(), u"Der Plan ist leer\n0 von 21 Punkten"_s);
}

void TestPlanmodulAuswertung::aNewRequirementIsSeenAtTheNextEvaluation()
{
    m_heim->schreibeTabelle({speise(u"Zucker"_s, {{Naehrwert::kh, 100}})});
    m_heim->schreibePlan({{u"Zucker"_s, 100}});
    oeffne();
    plan().anthrouebergabe(2000);
    plan().anthrouebergabe2(2300);
    QCOMPARE(plan().gesamtkal->floatValue(), 0.0F);
    QCOMPARE(plan().Kalorienbedarf->intValue(), 0);
    plan().datenberechnen();
    QCOMPARE(plan().gesamtkal->floatValue(), 20.0F);
    QCOMPARE(plan().gesamtkohlenhydrate->floatValue(), 40.0F);
    QCOMPARE(plan().Kalorienbedarf->intValue(), 2300);
}

/// 384.8 of 550 mg are 69.96 percent.
void TestPlanmodulAuswertung::aFieldThatShowsSeventyPercentEarnsItsPoint()
{
    m_heim->schreibeTabelle({speise(u"Salz"_s, {{Naehrwert::na, 384.8F}})});
    m_heim->schreibePlan({{u"Salz"_s, 100}});
    oeffne();
    QCOMPARE(Planfenster::text(*plan().gesamtnatrium), u"70,0 %"_s);
    QVERIFY(plan().planworte->text().endsWith(u"1 von 21 Punkten"_s));
}

void TestPlanmodulAuswertung::theLeadingCountStandsOut_data()
{
    QTest::addColumn<QString>("urteil");
    QTest::addColumn<QString>("erwartet");
    QTest::newRow("suitable") << "+"
                              << "gruen11 schwarz9 schwarz9";
    QTest::newRow("neutral") << "0"
                             << "schwarz9 blau12 schwarz9";
    QTest::newRow("unsuitable") << "-"
                                << "schwarz9 schwarz9 rot12";
}

void TestPlanmodulAuswertung::theLeadingCountStandsOut()
{
    QFETCH(QString, urteil);
    m_heim->schreibeTabelle({speise(u"Ding"_s, {}, {urteil, urteil, urteil, urteil})});
    m_heim->schreibePlan({{u"Ding"_s, 100}});
    oeffne();
    for (const Planzaehlung &zaehlung : planzaehlungen(plan())) {
        QTEST(aussehen(zaehlung), "erwartet");
    }
}

void TestPlanmodulAuswertung::aTieLeavesTheLooksOfTheRowBefore()
{
    m_heim->schreibeTabelle({speise(u"1"_s, {}, {u"0"_s}), speise(u"2"_s, {}, {u"-"_s})});
    m_heim->schreibePlan({{u"1"_s, 100}, {u"2"_s, 100}});
    oeffne();
    QCOMPARE(ziffern(planzaehlungen(plan())[0]), u"011"_s);
    QCOMPARE(aussehen(planzaehlungen(plan())[0]), u"schwarz9 blau12 schwarz9"_s);
    QCOMPARE(aussehen(planzaehlungen(plan())[1]), u"neu0 neu0 neu0"_s); // never rated
}

void TestPlanmodulAuswertung::aTieFromTheFirstRowOnLeavesTheLooksOfTheEvaluationBefore()
{
    m_heim->schreibeTabelle({speise(u"1"_s, {}, {u"+"_s}), speise(u"2"_s)});
    m_heim->schreibePlan({{u"1"_s, 100}});
    oeffne();
    plan().nameimportvontoolbar(u"2"_s);
    plan().PlanTabelle->selectRow(0);
    plan().Lebensmittelentfernen(); // only the food without a rating is left
    QCOMPARE(ziffern(planzaehlungen(plan())[0]), u"000"_s);
    QCOMPARE(aussehen(planzaehlungen(plan())[0]), u"gruen11 schwarz9 schwarz9"_s);
}

void TestPlanmodulAuswertung::aRatingOfAnyOtherTextIsNotCounted()
{
    m_heim->schreibeTabelle({speise(u"1"_s, {}, {u"++"_s, u" +"_s, u"gut"_s, u""_s})});
    m_heim->schreibePlan({{u"1"_s, 100}});
    oeffne();
    for (const Planzaehlung &zaehlung : planzaehlungen(plan())) {
        QCOMPARE(ziffern(zaehlung), u"000"_s);
    }
}

void TestPlanmodulAuswertung::theSharesTellTheAmountsBehindThem_data()
{
    QTest::addColumn<int>("bedarf");
    QTest::addColumn<QStringList>("worte"); // of energy, protein, fat and vitamin B1
    QTest::newRow("the requirement is known")
        << 2000
        << QStringList({u"1110 kcal von 2000 kcal"_s, u"60,0 g von 100,0 g"_s,
                        u"30,0 g von 66,7 g"_s, u"0,30 mg von 1,20 mg"_s});
    QTest::newRow("it is not known")
        << 0
        << QStringList({u"1110 kcal; der Energiebedarf ist noch nicht bekannt"_s,
                        u"60,0 g; der Energiebedarf ist noch nicht bekannt"_s,
                        u"30,0 g; der Energiebedarf ist noch nicht bekannt"_s,
                        u"0,30 mg von 1,20 mg"_s});
}

void TestPlanmodulAuswertung::theSharesTellTheAmountsBehindThem()
{
    QFETCH(int, bedarf);
    QFETCH(QStringList, worte);
    m_heim->schreibeTabelle({speise(u"Auflauf"_s, {{Naehrwert::protein, 20},
                                                   {Naehrwert::fett, 10},
                                                   {Naehrwert::kh, 50},
                                                   {Naehrwert::b1, 0.1F}})});
    m_heim->schreibePlan({{u"Auflauf"_s, 300}});
    Planmodul::klient.bedarf = bedarf;
    oeffne();
    QStringList gesagt;
    for (const Textfeld *feld :
         {plan().gesamtkal, plan().gesamtprotein, plan().gesamtfett, plan().gesamtvitaminb1}) {
        gesagt << feld->toolTip().replace(QChar(QChar::Nbsp), u' ');
        QCOMPARE(feld->accessibleDescription(), feld->toolTip());
    }
    QCOMPARE(gesagt, worte);
}

/// Energy 55.5 %, protein 60 %, fat 45 %, carbohydrate 60 %; of the others only calcium and the
/// rating for gout earn a point.
void TestPlanmodulAuswertung::thePointsThatAreMissingAreNamed()
{
    m_heim->schreibeTabelle({speise(u"Auflauf"_s,
                                    {{Naehrwert::protein, 20},
                                     {Naehrwert::fett, 10},
                                     {Naehrwert::kh, 50},
                                     {Naehrwert::ca, 300},
                                     {Naehrwert::ka, 820}},
                                    {u"0"_s, u"-"_s, u"+"_s, u"-"_s})});
    m_heim->schreibePlan({{u"Auflauf"_s, 300}});
    Planmodul::klient.bedarf = 2000;
    oeffne();
    const QString worte =
        plan().planworte->accessibleDescription().replace(QChar(QChar::Nbsp), u' ');
    QCOMPARE(
        worte,
        u"Es fehlen: Energie (55,5 %), Protein (60 %), Fett (45 %), Kohlenhydrate (60 %), "
        "Ballaststoffe (0 %), Cholesterin (0 %), Natrium (0 %), Kalium (123 %), Phosphat (0 %), "
        "Magnesium (0 %), Eisen (0 %), Vitamin A (0 %), Vitamin B1 (0 %), Vitamin B2 (0 %), "
        "Vitamin B6 (0 %), Vitamin C (0 %), Übergewicht, Diabetes, Herz und Kreislauf"_s);
    QVERIFY(plan().planworte->text().endsWith(u"2 von 21 Punkten"_s)); // and 19 are named
    QVERIFY(plan().planworte->toolTip().replace(QChar(QChar::Nbsp), u' ').contains(worte));
    QCOMPARE(plan().planbeurteilungfaceview->toolTip(), plan().planworte->toolTip());
}

void TestPlanmodulAuswertung::ofAnEmptyPlanNoPointIsMissed()
{
    oeffne();
    QVERIFY(plan().planworte->toolTip().isEmpty());
    QVERIFY(plan().planworte->accessibleDescription().isEmpty());
}

void TestPlanmodulAuswertung::everyNumberHasItsBarBesideIt()
{
    oeffne();
    for (const Plananzeige &anzeige : plananzeigen(plan())) {
        QCOMPARE(anzeige.balken->objectName(), anzeige.prozent->objectName() + u"view"_s);
        QVERIFY(anzeige.balken->x() >= anzeige.prozent->geometry().right());
        QVERIFY(anzeige.balken->geometry().top() <= anzeige.prozent->geometry().bottom());
        QVERIFY(anzeige.prozent->geometry().top() <= anzeige.balken->geometry().bottom());
        QVERIFY(!anzeige.prozent->accessibleName().isEmpty());
        QVERIFY(!anzeige.balken->accessibleName().isEmpty());
    }
}

/// Colours alone tell nothing to those who can't part red from green, nor on a black printer.
void TestPlanmodulAuswertung::everyBarHasItsSignBesideIt()
{
    m_heim->schreibeTabelle(
        {speise(u"Ding"_s, {{Naehrwert::bs, 30}, {Naehrwert::fe, 6}, {Naehrwert::vitc, 1}})});
    m_heim->schreibePlan({{u"Ding"_s, 100}}); // 100, 50 and 1 percent
    oeffne();
    const auto zeichen = [this](const WertungView *balken) {
        const QPoint daneben = balken->geometry().center() + QPoint(balken->width() / 2 + 10, 0);
        const auto *feld = qobject_cast<QLabel *>(plan().boxinhalt->childAt(daneben));
        return feld != nullptr ? feld->text() : u"nothing there"_s;
    };
    QCOMPARE(zeichen(plan().gesamtballaststoffeview), u"✓"_s);
    QCOMPARE(zeichen(plan().gesamteisenview), u"≈"_s);
    QCOMPARE(zeichen(plan().gesamtvitamincview), u"✗"_s);
    QCOMPARE(zeichen(plan().gesamtkalview), QString()); // no bar at 0 percent
    m_fenster->tippeMenge(0, u"240"_s);                 // iron at 120 percent keeps its bar
    QCOMPARE(zeichen(plan().gesamteisenview), u"≈"_s);
    plan().PlanTabelle->selectRow(0);
    plan().Lebensmittelentfernen();
    for (const Plananzeige &anzeige : plananzeigen(plan())) {
        QCOMPARE(zeichen(anzeige.balken), QString());
    }
}

QTEST_MAIN(TestPlanmodulAuswertung)
#include "TestPlanmodulAuswertung.moc"
