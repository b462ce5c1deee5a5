// The insight and the ranking stay true while what they show changes elsewhere.

#include "Einblickprobe.h"

#include <QToolButton>

using namespace Qt::StringLiterals;

class TestEinblickfolge : public QObject, private Einblickprobe
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { raeumeAuf(); }

    void takingBackNamesTheFoodThatCame();
    void theWayBackGoesWithTheNextChangeOfThePlan();
    void theWayBackGoesWithTheNextChangeOfTheDays();
    void theWayBackGoesWithAChangeOfAnOwnFood();
    void twoQuickKeysTakeOneSuggestion();
    void theRankingFollowsOwnFoodsBesideSuggestions();
    void theRankingFollowsAnOwnFoodThatIsTakenBack();
    void suggestionsFollowAnOwnFoodThatIsTakenBack();
    void suggestionsKnowNewMeasures();
    void theConditionsOfTheClientAreFollowed();
    void wishesForRatingsGoWithTheClient();
    void newMeasuresLeaveTheWayBackToTheClient();
    void aWindowThatWasPutAwayComesBack();

private:
    QStringList rangliste() const
    {
        return spalte(anschluss().rangliste(), u"rangliste"_s, Rangmodell::Name);
    }
    void loescheMuesli() const
    {
        programm()->uebernimmEigene({}, {});
        Q_EMIT programm()->eigeneGeaendert({Aenderungsart::Geloescht, u"Müsli"_s});
        ruhe();
    }
    /// What has no usual portion is suggested to nobody.
    bool gibMuesliEineSchale() const
    {
        const bool gelungen = programm().oberflaeche().tage.eigeneMasse().setze(
            u"Müsli"_s, {{u"Schale"_s, u"Schalen"_s, u"bowl"_s, u"bowls"_s, 60}});
        ruhe();
        return gelungen;
    }
    QString anna() const { return klient(u"Anna"_s, Personengeschlecht::Frau, QDate(1998, 3, 1)); }
};

void TestEinblickfolge::init()
{
    richteEin(verzeichnis({lebensmittel(u"Müsli"_s, {{Naehrwert::kal, 400}})}));
}

void TestEinblickfolge::takingBackNamesTheFoodThatCame()
{
    oeffne();
    legePlan();
    anschluss().oeffne(Gegenstand::Plan);
    nimm({.schluessel = u"Toast"_s, .gramm = 40});
    QCOMPARE(plan().aktionRueckgaengig->text(), u"&Rückgängig: „Toast“ in den Plan"_s);
}

void TestEinblickfolge::theWayBackGoesWithTheNextChangeOfThePlan()
{
    oeffne();
    legePlan();
    anschluss().oeffne(Gegenstand::Plan);
    nimm({.schluessel = u"Toast"_s, .gramm = 40});
    ruhe();
    QCOMPARE(hinweise(), QStringList{u"„Toast“ steht jetzt im Plan."_s});
    // What the button would take back now is another change.
    plan().gibHinein(u"Müsli"_s, 60);
    ruhe();
    QCOMPARE(hinweise(), QStringList());
    QCOMPARE(imPlan(), u"Apfel 150, Milch 200, Toast 40, Müsli 60"_s);
}

void TestEinblickfolge::theWayBackGoesWithTheNextChangeOfTheDays()
{
    oeffne();
    tage().zeige();
    tage().buch.beginne(neueAufzeichnung(Aufzeichnungsart::Protokoll, QDate(2026, 11, 23), 2));
    ruhe();
    anschluss().oeffne(Gegenstand::Tag);
    nimm({.schluessel = u"Toast"_s, .gramm = 40});
    ruhe();
    QCOMPARE(hinweise(), QStringList{u"„Toast“ steht jetzt bei den Tagen: 40 g."_s});
    tage().buch.waehleTag(1); // nothing has changed by that
    ruhe();
    QCOMPARE(hinweise().size(), 1);
    QVERIFY(tage().buch.aendere(
        u"leeren"_s, [](Aufzeichnung &eine) { return Aufzeichnungsaenderung::leere(eine, 0); }));
    QCOMPARE(hinweise(), QStringList());
}

void TestEinblickfolge::theWayBackGoesWithAChangeOfAnOwnFood()
{
    oeffne();
    legePlan();
    anschluss().oeffne(Gegenstand::Plan);
    nimm({.schluessel = u"Toast"_s, .gramm = 40});
    QCOMPARE(hinweise().size(), 1);
    loescheMuesli(); // plan and own foods have one line of changes
    QCOMPARE(hinweise(), QStringList());
}

void TestEinblickfolge::twoQuickKeysTakeOneSuggestion()
{
    oeffne();
    legePlan();
    anschluss().oeffne(Gegenstand::Plan);
    // Both come before the window shows what the first one did.
    nimm({.ort = 0, .schluessel = u"Milch"_s, .gramm = 50});
    nimm({.ort = 0, .schluessel = u"Milch"_s, .gramm = 50});
    QCOMPARE(imPlan(), u"Milch 250"_s);
    ruhe();
    nimm({.ort = 0, .schluessel = u"Apfel"_s, .gramm = 120});
    QCOMPARE(imPlan(), u"Apfel 120"_s);
}

void TestEinblickfolge::theRankingFollowsOwnFoodsBesideSuggestions()
{
    oeffne();
    legePlan();
    zeigeVorschlaege();
    anschluss().rangliste().zeige(Kenngroesse::kal);
    QCOMPARE(rangliste().value(0), u"Müsli"_s);
    loescheMuesli();
    QCOMPARE(rangliste(), (QStringList{u"Toast"_s, u"Milch"_s, u"Apfel"_s}));
}

void TestEinblickfolge::theRankingFollowsAnOwnFoodThatIsTakenBack()
{
    oeffne();
    anschluss().rangliste().zeige(Kenngroesse::kal);
    loescheMuesli();
    QCOMPARE(rangliste(), (QStringList{u"Toast"_s, u"Milch"_s, u"Apfel"_s}));
    Q_EMIT programm()->zuruecknehmenGewuenscht();
    ruhe();
    QCOMPARE(rangliste(), (QStringList{u"Müsli"_s, u"Toast"_s, u"Milch"_s, u"Apfel"_s}));
    // The notice about it offers to do it again.
    programm()->hinweise->hinweise().constFirst().aktion();
    ruhe();
    QCOMPARE(rangliste(), (QStringList{u"Toast"_s, u"Milch"_s, u"Apfel"_s}));
}

void TestEinblickfolge::suggestionsFollowAnOwnFoodThatIsTakenBack()
{
    oeffne();
    legePlan();
    QVERIFY(gibMuesliEineSchale());
    zeigeVorschlaege();
    const auto mitMuesli = [this] {
        return !vorschlaege().filter(u"Müsli"_s).isEmpty();
    };
    QVERIFY(mitMuesli());
    loescheMuesli();
    QVERIFY(!mitMuesli());
    Q_EMIT programm()->zuruecknehmenGewuenscht();
    ruhe();
    QVERIFY(mitMuesli());
}

void TestEinblickfolge::suggestionsKnowNewMeasures()
{
    oeffne();
    legePlan();
    zeigeVorschlaege();
    QVERIFY(!vorschlaege().contains(u"Müsli\n1 Schale (60 g)"_s));
    QVERIFY(gibMuesliEineSchale());
    QVERIFY(vorschlaege().contains(u"Müsli\n1 Schale (60 g)"_s));
}

void TestEinblickfolge::theConditionsOfTheClientAreFollowed()
{
    oeffne();
    const QString kennung = anna();
    QVERIFY(m_probe->tisch().nimm(kennung));
    anschluss().oeffne(Gegenstand::Plan);
    const auto *gicht = fenster().vorschlagsblatt->findChild<QComboBox *>(u"wunsch_gicht"_s);
    QCOMPARE(gicht->currentText(), u"beliebig"_s);
    const Person vorher = m_probe->kartei().akte(kennung).value_or(Klientenakte()).person;
    Person nachher = vorher;
    nachher.leiden[stelle(Wertung::gicht)] = true;
    QCOMPARE(m_probe->kartei().sichere({kennung, nachher, vorher}), kennung);
    ruhe();
    QCOMPARE(gicht->currentText(), u"nicht ungeeignet"_s);
}

void TestEinblickfolge::wishesForRatingsGoWithTheClient()
{
    oeffne();
    anschluss().oeffne(Gegenstand::Plan);
    auto *gicht = fenster().vorschlagsblatt->findChild<QComboBox *>(u"wunsch_gicht"_s);
    gicht->setCurrentIndex(gicht->findText(u"nur geeignet"_s));
    QVERIFY(m_probe->tisch().nimm(anna()));
    ruhe();
    QCOMPARE(gicht->currentText(), u"beliebig"_s);
}

void TestEinblickfolge::newMeasuresLeaveTheWayBackToTheClient()
{
    Planmodul::klient.bedarf = 2300;
    oeffne();
    QVERIFY(m_probe->tisch().nimm(anna()));
    anschluss().oeffne(Gegenstand::Plan);
    QVERIFY(QTest::qWaitForWindowActive(&fenster()));
    Personenwahl &wahl = *fenster().personenwahl;
    wahl.setSatz(Referenzsatz::Efsa);
    wahl.findChild<QToolButton *>(u"oeffner"_s)->click();
    Klientenprobe::tippe(wahl.findChild<QLineEdit *>(u"alter"_s), u"40"_s);
    QCOMPARE(wahl.person().alter, std::optional(40));
    QVERIFY(!wahl.person().energiebedarf); // that was Anna's
    Planmodul::klient.gewicht = 64;
    Planmodul::klient.bedarf = 2100;
    Q_EMIT programm().rechner().angabeGeaendert();
    ruhe();
    QCOMPARE(wahl.person().alter, std::optional(40));
    QCOMPARE(wahl.person().gewicht, std::optional(64.0));
    QVERIFY(!wahl.person().energiebedarf);
    auto *zurueck = wahl.findChild<QToolButton *>(u"zurueck"_s);
    QVERIFY(zurueck->isVisible());
    zurueck->click();
    QCOMPARE(wahl.person().alter, std::optional(28));
    QCOMPARE(wahl.person().gewicht, std::optional(64.0));
    QCOMPARE(wahl.person().energiebedarf, std::optional(2100.0));
}

void TestEinblickfolge::aWindowThatWasPutAwayComesBack()
{
    oeffne();
    anschluss().oeffne(Gegenstand::Plan);
    fenster().setWindowState(Qt::WindowMinimized);
    anschluss().oeffne(Gegenstand::Plan);
    QVERIFY(!fenster().isMinimized());
    anschluss().rangliste().zeige();
    anschluss().rangliste().setWindowState(Qt::WindowMinimized);
    anschluss().rangliste().zeige();
    QVERIFY(!anschluss().rangliste().isMinimized());
}

QTEST_MAIN(TestEinblickfolge)
#include "TestEinblickfolge.moc"
