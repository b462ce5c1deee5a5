// The insight joined to the desk: the ways to it, what it shows and for whom, and what the user
// wants done there.

#include "Einblickprobe.h"

#include "Beitragsblatt.h"
#include "Standaufbau.h"

#include <QLabel>
#include <QMenuBar>

using namespace Qt::StringLiterals;

class TestEinblickanschluss : public QObject, private Einblickprobe
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { raeumeAuf(); }

    void theKeyOpensTheFoodOnDisplay();
    void theFoodIsShownInItsAmount();
    void thePlanLeadsToItsOwn();
    void theDaysLeadToTheirOwn();
    void thePlanIsFollowed();
    void takingBackIsFollowed();
    void theDaysAreFollowed();
    void anotherSubjectCanBeChosen();
    void aRowOfThePlanIsShown();
    void aRowOfTheDaysIsShown();
    void aSuggestionComesIntoThePlanAndGoes();
    void aSuggestionTakesARowOfThePlan();
    void aSuggestionComesToTheDaysAndGoes();
    void aSuggestionForAFoodIsShown();
    void theClientAtTheDeskIsMeant();
    void whatWasTypedGoesWithTheClient();
    void newMeasuresOfTheClientAreTaken();
    void whatAClientLeavesOutIsKept();
    void whatAClientLeavesOutGoesWithThem();
    void theChosenSetIsKept();
    void theWindowStandsWhereItWasLeft();
    void theRankingShowsAFoodAndPutsItIntoThePlan();
    void ownFoodsCountAsSoonAsTheyAreThere();
    void anOwnFoodHasNoFiguresOfABuiltInOne();
    void theLanguageChangesTheWindowToo();

private:
    /// The foods of the sheet of contributions with the grams of each.
    QStringList beitraege() const
    {
        const QAbstractItemModel &modell =
            *fenster().beitragsblatt->findChild<QTableView *>(u"beitraege"_s)->model();
        QStringList alle;
        for (int zeile = 0; zeile < modell.rowCount(); ++zeile) {
            alle << modell.index(zeile, Beitragsmodell::Name).data().toString() + u' ' +
                        modell.index(zeile, Beitragsmodell::Gramm).data().toString();
        }
        alle.sort();
        return alle;
    }
    void druecke(QWidget *davor) const
    {
        davor->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(davor));
        QTest::keyClick(davor, Qt::Key_B, Qt::ControlModifier);
        ruhe();
    }
    void schreibeTage() const
    {
        tage().zeige();
        Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, QDate(2026, 11, 23), 2);
        const auto zeile = [](const QString &name, float gramm) {
            return Mahlzeitzeile{.schluessel = name, .gramm = gramm, .eintrag = lebensmittel(name)};
        };
        eine.tage[0].mahlzeiten[0].zeilen = {zeile(u"Apfel"_s, 120), zeile(u"Toast"_s, 40)};
        eine.tage[1].mahlzeiten[2].zeilen = {zeile(u"Milch"_s, 300)};
        tage().buch.beginne(eine);
        ruhe();
    }
    QString tag(int welcher) const
    {
        QStringList alle;
        const Aufzeichnung eine = tage().buch.jetzige().value_or(Aufzeichnung());
        for (const Mahlzeit &mahlzeit : eine.tage.value(welcher).mahlzeiten) {
            for (const Mahlzeitzeile &zeile : mahlzeit.zeilen) {
                alle << u"%1 %2"_s.arg(zeile.schluessel).arg(zeile.gramm.value_or(-1));
            }
        }
        return alle.join(u", "_s);
    }
    /// Presses the button of the notice in the insight.
    void nimmZurueck() const
    {
        const QList<Hinweis> alle = fenster().hinweise->hinweise();
        QVERIFY(!alle.isEmpty() && alle.constFirst().aktion);
        alle.constFirst().aktion();
        ruhe();
    }
};

void TestEinblickanschluss::init()
{
    richteEin(verzeichnis({lebensmittel(u"Müsli"_s, {{Naehrwert::kal, 400}})}));
}

void TestEinblickanschluss::theKeyOpensTheFoodOnDisplay()
{
    oeffne();
    programm().klicke(1, inName);
    druecke(programm()->Hauptfenster);
    QVERIFY(fenster().isVisible());
    QCOMPARE(fenster().gegenstand(), Gegenstand::Lebensmittel);
    QCOMPARE(titel(), u"Apfel, 100 g"_s);
    programm().klicke(2, inName);
    ruhe();
    QCOMPARE(titel(), u"Milch, 100 g"_s);
    programm().klicke(0, inName); // the line that stands for no food
    ruhe();
    QCOMPARE(titel(), u"Kein Lebensmittel ist gewählt."_s);
    programm().klicke(0, inEigen);
    ruhe();
    QCOMPARE(titel(), u"Müsli, 100 g"_s);
}

void TestEinblickanschluss::theFoodIsShownInItsAmount()
{
    oeffne();
    programm().klicke(1, inName);
    druecke(programm()->Hauptfenster);
    programm().tippeMenge(u"250"_s);
    ruhe();
    QCOMPARE(titel(), u"Apfel, 250 g"_s);
    QCOMPARE(beitraege(), QStringList{u"Apfel 250 g"_s});
}

void TestEinblickanschluss::thePlanLeadsToItsOwn()
{
    oeffne();
    legePlan();
    druecke(plan().window());
    QCOMPARE(fenster().gegenstand(), Gegenstand::Plan);
    QCOMPARE(titel(), u"Mahlzeitenplan, Zeilen: 2"_s);
    QCOMPARE(beitraege(), (QStringList{u"Apfel 150 g"_s, u"Milch 200 g"_s}));
}

void TestEinblickanschluss::theDaysLeadToTheirOwn()
{
    oeffne();
    schreibeTage();
    druecke(&tage());
    QCOMPARE(fenster().gegenstand(), Gegenstand::Tag);
    QCOMPARE(titel(), u"Mo. 23.11.26"_s);
    QCOMPARE(beitraege(), (QStringList{u"Apfel 120 g"_s, u"Toast 40 g"_s}));
}

void TestEinblickanschluss::thePlanIsFollowed()
{
    oeffne();
    legePlan();
    anschluss().oeffne(Gegenstand::Plan);
    plan().gibHinein(u"Toast"_s, 30);
    ruhe();
    QCOMPARE(beitraege(), (QStringList{u"Apfel 150 g"_s, u"Milch 200 g"_s, u"Toast 30 g"_s}));
}

void TestEinblickanschluss::takingBackIsFollowed()
{
    oeffne();
    legePlan();
    anschluss().oeffne(Gegenstand::Plan);
    Q_EMIT plan().zuruecknehmenGewuenscht();
    ruhe();
    QCOMPARE(beitraege(), QStringList{u"Apfel 150 g"_s});
    Q_EMIT plan().wiederholenGewuenscht();
    ruhe();
    QCOMPARE(beitraege(), (QStringList{u"Apfel 150 g"_s, u"Milch 200 g"_s}));
}

void TestEinblickanschluss::theDaysAreFollowed()
{
    oeffne();
    schreibeTage();
    anschluss().oeffne(Gegenstand::Tag);
    tage().buch.waehleTag(1);
    ruhe();
    QCOMPARE(beitraege(), QStringList{u"Milch 300 g"_s});
    QVERIFY(tage().buch.aendere(
        u"leeren"_s, [](Aufzeichnung &eine) { return Aufzeichnungsaenderung::leere(eine, 1); }));
    ruhe();
    QCOMPARE(beitraege(), QStringList());
}

void TestEinblickanschluss::anotherSubjectCanBeChosen()
{
    oeffne();
    schreibeTage();
    anschluss().oeffne(Gegenstand::Tag);
    auto *wahl = fenster().findChild<QComboBox *>(u"gegenstand"_s);
    Klientenprobe::waehle(wahl, u"Mittel der Tage"_s);
    // Two days: half of each.
    QCOMPARE(titel(), u"Tage im Mittel: 2."_s);
    QCOMPARE(beitraege(), (QStringList{u"Apfel 60 g"_s, u"Milch 150 g"_s, u"Toast 20 g"_s}));
    Klientenprobe::waehle(wahl, u"Plan"_s);
    QCOMPARE(titel(), u"Mahlzeitenplan, Zeilen: 0"_s);
}

void TestEinblickanschluss::aRowOfThePlanIsShown()
{
    oeffne();
    legePlan();
    anschluss().oeffne(Gegenstand::Plan);
    Q_EMIT fenster().beitragsblatt->zeileGewuenscht(1);
    QCOMPARE(plan().PlanTabelle->selectedRow(), 1);
    QVERIFY(QTest::qWaitForWindowActive(plan().window()));
}

void TestEinblickanschluss::aRowOfTheDaysIsShown()
{
    oeffne();
    schreibeTage();
    anschluss().oeffne(Gegenstand::Mittel);
    Q_EMIT fenster().beitragsblatt->zeileGewuenscht(Standaufbau::ortVon({1, 2, 0}));
    QCOMPARE(tage().buch.tag(), 1);
    QCOMPARE(tage().ansicht->platz(),
             std::optional(Tagesmodell::Platz{Tagesmodell::Art::Speise, 2, 0}));
}

void TestEinblickanschluss::aSuggestionComesIntoThePlanAndGoes()
{
    oeffne();
    legePlan();
    anschluss().oeffne(Gegenstand::Plan);
    Q_EMIT fenster().vorschlagsblatt->aenderungGewuenscht({.schluessel = u"Toast"_s, .gramm = 40});
    ruhe();
    QCOMPARE(imPlan(), u"Apfel 150, Milch 200, Toast 40"_s);
    QCOMPARE(fenster().hinweise->hinweise().constFirst().text, u"„Toast“ steht jetzt im Plan."_s);
    QCOMPARE(beitraege().size(), 3);
    nimmZurueck();
    QCOMPARE(imPlan(), u"Apfel 150, Milch 200"_s);
    QCOMPARE(beitraege().size(), 2);
}

void TestEinblickanschluss::aSuggestionTakesARowOfThePlan()
{
    oeffne();
    legePlan();
    anschluss().oeffne(Gegenstand::Plan);
    Q_EMIT fenster().vorschlagsblatt->aenderungGewuenscht(
        {.ort = 0, .schluessel = u"Toast"_s, .gramm = 150});
    ruhe();
    QCOMPARE(imPlan(), u"Toast 150, Milch 200"_s);
    nimmZurueck();
    QCOMPARE(imPlan(), u"Apfel 150, Milch 200"_s);
    // A row that is gone meanwhile.
    Q_EMIT fenster().vorschlagsblatt->aenderungGewuenscht(
        {.ort = 7, .schluessel = u"Toast"_s, .gramm = 150});
    QCOMPARE(imPlan(), u"Apfel 150, Milch 200"_s);
    QCOMPARE(fenster().hinweise->hinweise().constFirst().text, u"„Toast“ kam nicht in den Plan."_s);
    QVERIFY(!fenster().hinweise->hinweise().constFirst().aktion);
}

void TestEinblickanschluss::aSuggestionComesToTheDaysAndGoes()
{
    oeffne();
    schreibeTage();
    anschluss().oeffne(Gegenstand::Tag);
    Q_EMIT fenster().vorschlagsblatt->aenderungGewuenscht({.schluessel = u"Milch"_s, .gramm = 125});
    ruhe();
    QCOMPARE(tag(0), u"Apfel 120, Toast 40, Milch 125"_s);
    nimmZurueck();
    QCOMPARE(tag(0), u"Apfel 120, Toast 40"_s);
    Q_EMIT fenster().vorschlagsblatt->aenderungGewuenscht(
        {.ort = Standaufbau::ortVon({0, 0, 1}), .schluessel = u"Milch"_s, .gramm = 40});
    QCOMPARE(tag(0), u"Apfel 120, Milch 40"_s);
    nimmZurueck();
    QCOMPARE(tag(0), u"Apfel 120, Toast 40"_s);
}

void TestEinblickanschluss::aSuggestionForAFoodIsShown()
{
    oeffne();
    programm().klicke(1, inName);
    anschluss().oeffne(Gegenstand::Lebensmittel);
    Q_EMIT fenster().vorschlagsblatt->aenderungGewuenscht({.schluessel = u"Milch"_s, .gramm = 1});
    ruhe();
    QCOMPARE(programm()->unuebersetztername, u"Milch"_s);
    QCOMPARE(titel(), u"Milch, 100 g"_s);
}

void TestEinblickanschluss::theClientAtTheDeskIsMeant()
{
    oeffne();
    const QString anna = klient(u"Anna"_s, Personengeschlecht::Frau, QDate(1998, 3, 1));
    const QString bert = klient(u"Bert"_s, Personengeschlecht::Mann, QDate(1959, 3, 1), true);
    QVERIFY(m_probe->tisch().nimm(anna));
    anschluss().oeffne(Gegenstand::Plan);
    QCOMPARE(fenster().personenwahl->person().geschlecht, std::optional(Referenzgeschlecht::Frau));
    QCOMPARE(fenster().personenwahl->person().alter, std::optional(28));
    QVERIFY(m_probe->tisch().nimm(bert));
    QCOMPARE(fenster().personenwahl->person().geschlecht, std::optional(Referenzgeschlecht::Mann));
    QCOMPARE(fenster().personenwahl->person().alter, std::optional(67));
    QVERIFY(m_probe->tisch().nimm(anna));
    QCOMPARE(fenster().personenwahl->person().alter, std::optional(28));
}

void TestEinblickanschluss::whatWasTypedGoesWithTheClient()
{
    oeffne();
    anschluss().oeffne(Gegenstand::Plan);
    Referenzperson getippt = fenster().personenwahl->person();
    getippt.alter = 12;
    fenster().personenwahl->setPerson(getippt);
    QVERIFY(m_probe->tisch().nimm(klient(u"Anna"_s, Personengeschlecht::Frau, QDate(1998, 3, 1))));
    QCOMPARE(fenster().personenwahl->person().alter, std::optional(28));
}

void TestEinblickanschluss::newMeasuresOfTheClientAreTaken()
{
    oeffne();
    QVERIFY(m_probe->tisch().nimm(klient(u"Anna"_s, Personengeschlecht::Frau, QDate(1998, 3, 1))));
    anschluss().oeffne(Gegenstand::Plan);
    Referenzperson getippt = fenster().personenwahl->person();
    getippt.zustand = Referenzzustand::Schwanger;
    getippt.trimester = 2;
    fenster().personenwahl->setPerson(getippt);
    Planmodul::klient.gewicht = 64;
    Q_EMIT programm().rechner().angabeGeaendert();
    ruhe();
    QCOMPARE(fenster().personenwahl->person().gewicht, std::optional(64.0));
    QCOMPARE(fenster().personenwahl->person().trimester, std::optional(2));
}

void TestEinblickanschluss::whatAClientLeavesOutIsKept()
{
    oeffne();
    const QString anna = klient(u"Anna"_s, Personengeschlecht::Frau, QDate(1998, 3, 1));
    const QString bert = klient(u"Bert"_s, Personengeschlecht::Mann, QDate(1959, 3, 1), true);
    QVERIFY(m_probe->tisch().nimm(anna));
    anschluss().oeffne(Gegenstand::Plan);
    fenster().vorschlagsblatt->setzeWeggelassene(Weglassgruppe::Milch);
    fenster().vorschlagsblatt->setzeGestrichene({u"Toast"_s});
    Q_EMIT fenster().vorschlagsblatt->auswahlGeaendert();
    QVERIFY(m_probe->tisch().nimm(bert));
    QCOMPARE(fenster().vorschlagsblatt->weggelassene(), Weglassgruppen());
    QCOMPARE(fenster().vorschlagsblatt->gestrichene(), QStringList());
    m_probe.reset();
    oeffne();
    QVERIFY(m_probe->tisch().nimm(anna));
    anschluss().oeffne(Gegenstand::Plan);
    QCOMPARE(fenster().vorschlagsblatt->weggelassene(), Weglassgruppen(Weglassgruppe::Milch));
    QCOMPARE(fenster().vorschlagsblatt->gestrichene(), QStringList{u"Toast"_s});
}

void TestEinblickanschluss::whatAClientLeavesOutGoesWithThem()
{
    oeffne();
    const QString anna = klient(u"Anna"_s, Personengeschlecht::Frau, QDate(1998, 3, 1));
    const QString berta = klient(u"Berta"_s, Personengeschlecht::Frau, QDate(1998, 3, 1));
    for (const QString &kennung : {anna, berta}) {
        QVERIFY(m_probe->tisch().nimm(kennung));
        anschluss().oeffne(Gegenstand::Plan);
        fenster().vorschlagsblatt->setzeGestrichene({u"Toast"_s});
        Q_EMIT fenster().vorschlagsblatt->auswahlGeaendert();
    }
    const auto gemerkt = [this](const QString &kennung) {
        return m_heim->einstellungen().contains(u"Einblick/%1/Gestrichene"_s.arg(kennung));
    };
    Kartei &kartei = m_probe->kartei();
    QVERIFY(kartei.loesche(kartei.akte(anna).value_or(Klientenakte())));
    QVERIFY(gemerkt(anna)); // they may come back
    QVERIFY(kartei.holeZurueck());
    Besuch besuch;
    besuch.datum = QDate(2026, 11, 23);
    QVERIFY(!kartei.sichere({anna, besuch, {}}).isNull());
    QVERIFY(kartei.loesche(anna, kartei.akte(anna).value_or(Klientenakte()).besuche.value(0)));
    kartei.vergiss(); // a visit that is gone
    QVERIFY(gemerkt(anna));
    QVERIFY(kartei.loesche(kartei.akte(anna).value_or(Klientenakte())));
    QVERIFY(kartei.loesche(kartei.akte(berta).value_or(Klientenakte())));
    QVERIFY(!gemerkt(anna)); // only the last one comes back
    QVERIFY(gemerkt(berta));
    kartei.vergiss();
    QVERIFY(!gemerkt(berta));
}

void TestEinblickanschluss::theChosenSetIsKept()
{
    oeffne();
    anschluss().oeffne(Gegenstand::Plan);
    QCOMPARE(fenster().personenwahl->satz(), std::nullopt); // the general needs
    fenster().personenwahl->setSatz(Referenzsatz::Dach);
    Q_EMIT fenster().personenwahl->geaendert();
    m_probe.reset();
    oeffne();
    anschluss().oeffne(Gegenstand::Plan);
    QCOMPARE(fenster().personenwahl->satz(), std::optional(Referenzsatz::Dach));
}

void TestEinblickanschluss::theWindowStandsWhereItWasLeft()
{
    const QRect platz(40, 50, 520, 600);
    oeffne();
    anschluss().oeffne(Gegenstand::Plan);
    fenster().setGeometry(platz);
    fenster().close();
    m_probe.reset();
    oeffne();
    anschluss().oeffne(Gegenstand::Plan);
    QCOMPARE(fenster().geometry(), platz);
}

void TestEinblickanschluss::theRankingShowsAFoodAndPutsItIntoThePlan()
{
    oeffne();
    programm()->Hauptfenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(programm()->Hauptfenster));
    QTest::keyClick(programm()->Hauptfenster, Qt::Key_R, Qt::ControlModifier);
    QVERIFY(anschluss().rangliste().isVisible());
    Q_EMIT anschluss().rangliste().lebensmittelGewuenscht(u"Toast"_s);
    QCOMPARE(programm()->unuebersetztername, u"Toast"_s);
    Q_EMIT anschluss().rangliste().lebensmittelGewuenscht(u"Müsli"_s);
    QCOMPARE(programm()->unuebersetztername, u"Müsli"_s);
    Q_EMIT anschluss().rangliste().planGewuenscht(u"Milch"_s);
    QCOMPARE(imPlan(), u"Milch 100"_s);
}

void TestEinblickanschluss::ownFoodsCountAsSoonAsTheyAreThere()
{
    oeffne();
    anschluss().oeffne(Gegenstand::Lebensmittel);
    programm().klicke(0, inEigen);
    ruhe();
    QCOMPARE(titel(), u"Müsli, 100 g"_s);
    programm()->uebernimmEigene(verzeichnis({lebensmittel(u"Brei"_s, {{Naehrwert::kal, 90}})}),
                                {u"Brei"_s});
    Q_EMIT programm()->eigeneGeaendert({Aenderungsart::Gesichert, u"Brei"_s});
    programm()->zeigeEigenes(u"Brei"_s);
    ruhe();
    QCOMPARE(titel(), u"Brei, 100 g"_s);
}

void TestEinblickanschluss::anOwnFoodHasNoFiguresOfABuiltInOne()
{
    const Datenmodul mus = lebensmittel(u"Apfelmus, gezuckert"_s, {{Naehrwert::kal, 90}});
    m_heim->schreibeTabelle(verzeichnis({mus})); // of which sugars are published
    m_heim->schreibeEigene(verzeichnis({mus}));
    oeffne();
    anschluss().oeffne(Gegenstand::Lebensmittel);
    fenster().beitragsblatt->waehle(Kenngroesse::zucker);
    const auto &tabelle = *fenster().beitragsblatt->findChild<QTableView *>(u"beitraege"_s);
    programm().klicke(0, inName);
    ruhe();
    QCOMPARE(tabelle.model()->index(0, Beitragsmodell::Menge).data().toString(), u"20,4 g"_s);
    programm().klicke(0, inEigen);
    ruhe();
    QCOMPARE(tabelle.model()->index(0, Beitragsmodell::Menge).data().toString(), u"unbekannt"_s);
}

void TestEinblickanschluss::theLanguageChangesTheWindowToo()
{
    Sprache sprache(u"de"_s);
    m_heim->sprich = [&sprache](const QString &kuerzel) {
        sprache.sprich(kuerzel);
    };
    oeffne();
    anschluss().oeffne(Gegenstand::Plan);
    QCOMPARE(fenster().windowTitle(), u"Einblick"_s);
    programm().oberflaeche().sprich(u"en"_s);
    QCOMPARE(fenster().windowTitle(), u"Insight"_s);
    QCOMPARE(fenster().blaetter->tabText(1), u"&Contributions"_s);
    QCOMPARE(titel(), u"Meal plan, rows: 0"_s);
    programm().oberflaeche().sprich(u"de"_s);
    QCOMPARE(fenster().windowTitle(), u"Einblick"_s);
}

QTEST_MAIN(TestEinblickanschluss)
#include "TestEinblickanschluss.moc"
