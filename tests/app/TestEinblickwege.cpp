// Where the windows of the insight stand and lead, what they are about, and in which words.

#include "Einblickprobe.h"

#include "Beitragsblatt.h"
#include "Standaufbau.h"

using namespace Qt::StringLiterals;

class TestEinblickwege : public QObject, private Einblickprobe
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { raeumeAuf(); }

    void theWindowComesBesideTheOneItWasCalledFrom_data();
    void theWindowComesBesideTheOneItWasCalledFrom();
    void theWindowStaysWhereItWasMoved();
    void theRankingStandsWhereItWasLeft();
    void theWayToARowShowsThePlan();
    void aFoodHasNoRowsToGoTo();
    void theMainWindowComesUpWithTheFood();
    void theBuiltInFoodOfANameIsMeant();
    void theRankingNamesEachFoodOnce();
    void theRankingKnowsWhichFoodsAreOwn();
    void theRankingKnowsThePortions();
    void aFoodIsShownAsItWasChosen();
    void aSuggestionForAFoodLeavesTheDaysAlone();
    void suggestionsComeInWithTheirPortion();
    void whatDoesNotComeInHasNoWayBack();
    void aNoticeGoesByItself();
    void withoutARecordThatIsSaid();
    void anotherRecordIsFollowed();
    void anotherDayIsFollowed();
    void thePlanIsFollowedOnceTheWindowRests();
    void everySliderIsFollowed();
    void theSuggestionsKnowWhatTheyAreAbout();
    void aDishIsKnownByItsIngredients();
    void portionsAreSaidInTheLanguageOfTheWindows();
    void theLanguageChangesTheRankingToo();

private:
    QString menge(Kenngroesse groesse) const
    {
        fenster().beitragsblatt->waehle(groesse);
        const auto *tabelle = fenster().beitragsblatt->findChild<QTableView *>(u"beitraege"_s);
        return tabelle->model()->index(0, Beitragsmodell::Menge).data().toString();
    }
    Aufzeichnung aufzeichnung(const QString &name) const
    {
        Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, QDate(2026, 11, 23), 2);
        eine.tage[0].mahlzeiten[0].zeilen = {
            Mahlzeitzeile{.schluessel = name, .gramm = 120.0F, .eintrag = lebensmittel(name)}};
        return eine;
    }
};

void TestEinblickwege::init()
{
    // An own food that is called as a built-in one is.
    richteEin(verzeichnis({lebensmittel(u"Apfel"_s, {{Naehrwert::kal, 400}}),
                           lebensmittel(u"Müsli"_s, {{Naehrwert::kal, 380}})}),
              {lebensmittel(u"Apfelmus, gezuckert"_s, {{Naehrwert::kal, 90}})});
}

void TestEinblickwege::theWindowComesBesideTheOneItWasCalledFrom_data()
{
    QTest::addColumn<bool>("vomPlan");
    QTest::addColumn<bool>("links");

    QTest::newRow("the main window stands on the left") << false << true;
    QTest::newRow("the main window stands on the right") << false << false;
    QTest::newRow("the plan stands on the left") << true << true;
    QTest::newRow("the plan stands on the right") << true << false;
}

void TestEinblickwege::theWindowComesBesideTheOneItWasCalledFrom()
{
    QFETCH(const bool, vomPlan);
    QFETCH(const bool, links);
    oeffne();
    programm()->Planmoduloeffnen();
    const QRect schirm = programm()->Hauptfenster->screen()->availableGeometry();
    const auto stelle = [&schirm](QWidget *welches, bool amLinkenRand) {
        welches->setGeometry(amLinkenRand ? schirm.left() : schirm.right() - 299, 20, 300, 300);
    };
    programm()->Hauptfenster->setMinimumSize(1, 1);
    plan().window()->setMinimumSize(1, 1);
    stelle(programm()->Hauptfenster, vomPlan ? !links : links);
    stelle(plan().window(), vomPlan ? links : !links);
    ruhe();
    const QWidget *von = vomPlan ? plan().window() : programm()->Hauptfenster;
    von->findChild<QAction *>(u"aktionEinblick"_s)->trigger();
    QCOMPARE(fenster().geometry().center().x() > schirm.center().x(), links);
    QVERIFY(schirm.contains(fenster().geometry()));
}

void TestEinblickwege::theWindowStaysWhereItWasMoved()
{
    const QRect platz(40, 50, 520, 600);
    oeffne();
    zeige(Gegenstand::Plan);
    fenster().setGeometry(platz);
    ruhe();
    zeige(Gegenstand::Lebensmittel);
    QCOMPARE(fenster().geometry(), platz);
}

void TestEinblickwege::theRankingStandsWhereItWasLeft()
{
    const QRect platz(40, 50, 620, 500);
    oeffne();
    anschluss().rangliste().zeige();
    anschluss().rangliste().setGeometry(platz);
    anschluss().rangliste().close();
    m_probe.reset();
    oeffne();
    anschluss().rangliste().zeige();
    QCOMPARE(anschluss().rangliste().geometry(), platz);
}

void TestEinblickwege::theWayToARowShowsThePlan()
{
    oeffne();
    legePlan();
    zeige(Gegenstand::Plan);
    plan().window()->close();
    QVERIFY(!plan().window()->isVisible());
    Q_EMIT fenster().beitragsblatt->zeileGewuenscht(1);
    QVERIFY(plan().window()->isVisible());
    QVERIFY(QTest::qWaitForWindowActive(plan().window()));
    QVERIFY(plan().PlanTabelle->hasFocus());
}

void TestEinblickwege::aFoodHasNoRowsToGoTo()
{
    oeffne();
    tage().buch.beginne(aufzeichnung(u"Toast"_s));
    zeige(Gegenstand::Lebensmittel);
    Q_EMIT fenster().beitragsblatt->zeileGewuenscht(0);
    QVERIFY(!tage().isVisible());
}

void TestEinblickwege::theMainWindowComesUpWithTheFood()
{
    oeffne();
    anschluss().rangliste().zeige();
    QVERIFY(QTest::qWaitForWindowActive(&anschluss().rangliste()));
    programm()->Hauptfenster->setWindowState(Qt::WindowMinimized);
    Q_EMIT anschluss().rangliste().lebensmittelGewuenscht(u"Toast"_s);
    QVERIFY(!programm()->Hauptfenster->isMinimized());
    QVERIFY(QTest::qWaitForWindowActive(programm()->Hauptfenster));
}

void TestEinblickwege::theBuiltInFoodOfANameIsMeant()
{
    oeffne();
    Q_EMIT anschluss().rangliste().lebensmittelGewuenscht(u"Apfel"_s);
    zeige(Gegenstand::Lebensmittel);
    QCOMPARE(menge(Kenngroesse::kal), u"50 kcal"_s);
}

void TestEinblickwege::theRankingNamesEachFoodOnce()
{
    oeffne();
    anschluss().rangliste().zeige(Kenngroesse::kal);
    QCOMPARE(
        spalte(anschluss().rangliste(), u"rangliste"_s, Rangmodell::Name),
        (QStringList{u"Müsli"_s, u"Toast"_s, u"Apfelmus, gezuckert"_s, u"Milch"_s, u"Apfel"_s}));
}

void TestEinblickwege::theRankingKnowsWhichFoodsAreOwn()
{
    oeffne();
    anschluss().rangliste().zeige(Kenngroesse::kal);
    auto *gruppe = anschluss().rangliste().findChild<QComboBox *>(u"gruppe"_s);
    gruppe->setCurrentIndex(gruppe->findText(u"Eigene Lebensmittel"_s));
    QCOMPARE(spalte(anschluss().rangliste(), u"rangliste"_s, Rangmodell::Name),
             QStringList{u"Müsli"_s});
}

/// A bowl of 60 g holds 228 kcal of 380 in 100 g.
void TestEinblickwege::theRankingKnowsThePortions()
{
    oeffne();
    QVERIFY(programm().oberflaeche().tage.eigeneMasse().setze(
        u"Müsli"_s, {{u"Schale"_s, u"Schalen"_s, u"bowl"_s, u"bowls"_s, 60}}));
    anschluss().rangliste().zeige(Kenngroesse::kal);
    auto *bezug = anschluss().rangliste().findChild<QComboBox *>(u"rangbezug"_s);
    bezug->setCurrentIndex(bezug->findText(u"je Portion"_s));
    const QStringList namen = spalte(anschluss().rangliste(), u"rangliste"_s, Rangmodell::Name);
    const qsizetype muesli = namen.indexOf(u"Müsli"_s);
    QVERIFY(muesli >= 0);
    QCOMPARE(spalte(anschluss().rangliste(), u"rangliste"_s, Rangmodell::Portion).value(muesli),
             u"1 Schale (60 g)"_s);
    QCOMPARE(spalte(anschluss().rangliste(), u"rangliste"_s, Rangmodell::Wert).value(muesli),
             u"228 kcal"_s);
}

void TestEinblickwege::aFoodIsShownAsItWasChosen()
{
    oeffne();
    programm().klicke(1, inName);
    zeige(Gegenstand::Lebensmittel);
    QCOMPARE(menge(Kenngroesse::kal), u"50 kcal"_s);
    programm().klicke(0, inEigen);
    zeige(Gegenstand::Lebensmittel);
    QCOMPARE(titel(), u"Apfel, 100 g"_s);
    QCOMPARE(menge(Kenngroesse::kal), u"400 kcal"_s);
}

void TestEinblickwege::aSuggestionForAFoodLeavesTheDaysAlone()
{
    oeffne();
    tage().buch.beginne(aufzeichnung(u"Toast"_s));
    zeige(Gegenstand::Lebensmittel);
    nimm({.schluessel = u"Milch"_s, .gramm = 100});
    QVERIFY(!tage().buch.schritte.canUndo());
    QCOMPARE(hinweise(), QStringList());
}

void TestEinblickwege::suggestionsComeInWithTheirPortion()
{
    oeffne();
    QVERIFY(programm().oberflaeche().tage.eigeneMasse().setze(
        u"Milch"_s, {{u"Glas"_s, u"Gläser"_s, u"glass"_s, u"glasses"_s, 210}}));
    tage().buch.beginne(aufzeichnung(u"Toast"_s));
    zeige(Gegenstand::Tag);
    nimm({.schluessel = u"Milch"_s, .gramm = 210, .angabe = u"1 Glas"_s});
    const Aufzeichnung eine = tage().buch.jetzige().value_or(Aufzeichnung());
    const Mahlzeitzeile neue = eine.tage[0].mahlzeiten[0].zeilen.value(1);
    QCOMPARE(neue.angabe, u"1 Glas"_s);
    QCOMPARE(neue.gramm, std::optional(210.0F));
    QCOMPARE(hinweise(), QStringList{u"„Milch“ steht jetzt bei den Tagen: 1 Glas."_s});
}

void TestEinblickwege::whatDoesNotComeInHasNoWayBack()
{
    const QString lang = u"Suppe aus dem Garten "_s.repeated(30).trimmed();
    oeffne();
    tage().buch.beginne(aufzeichnung(u"Toast"_s));
    zeige(Gegenstand::Tag);
    nimm({.schluessel = lang, .gramm = 100}); // which is in no store
    QCOMPARE(fenster().hinweise->hinweise().size(), 1);
    const Hinweis einer = fenster().hinweise->hinweise().constFirst();
    QVERIFY(einer.text.contains(u"kam nicht zu den Tagen"_s));
    QVERIFY(!einer.text.contains(lang)); // nobody reads that to its end
    QVERIFY(!einer.aktion);
    QCOMPARE(einer.knopf, QString());
}

void TestEinblickwege::aNoticeGoesByItself()
{
    oeffne();
    legePlan();
    zeige(Gegenstand::Plan);
    nimm({.schluessel = u"Toast"_s, .gramm = 40});
    const Hinweis einer = fenster().hinweise->hinweise().constFirst();
    QCOMPARE(einer.knopf, u"Rückgängig"_s);
    QVERIFY(einer.dauer > 0);
}

void TestEinblickwege::withoutARecordThatIsSaid()
{
    oeffne();
    zeige(Gegenstand::Tag);
    QCOMPARE(titel(), u"Keine Aufzeichnung ist geöffnet."_s);
    zeige(Gegenstand::Mittel);
    QCOMPARE(titel(), u"Keine Aufzeichnung ist geöffnet."_s);
}

void TestEinblickwege::anotherRecordIsFollowed()
{
    oeffne();
    tage().buch.beginne(aufzeichnung(u"Toast"_s));
    tage().buch.beginne(aufzeichnung(u"Milch"_s));
    zeige(Gegenstand::Tag);
    tage().buch.waehle(0);
    ruhe();
    QCOMPARE(spalte(*fenster().beitragsblatt, u"beitraege"_s, Beitragsmodell::Name),
             QStringList{u"Toast"_s});
}

void TestEinblickwege::anotherDayIsFollowed()
{
    oeffne();
    tage().buch.beginne(aufzeichnung(u"Toast"_s));
    zeige(Gegenstand::Tag);
    QCOMPARE(titel(), u"Mo. 23.11.26"_s);
    tage().buch.waehleTag(1);
    ruhe();
    QCOMPARE(titel(), u"Di. 24.11.26"_s);
}

void TestEinblickwege::thePlanIsFollowedOnceTheWindowRests()
{
    oeffne();
    legePlan();
    zeige(Gegenstand::Plan);
    QCOMPARE(titel(), u"Mahlzeitenplan, Zeilen: 2"_s);
    plan().gibHinein(u"Toast"_s, 30);
    ruhe();
    QCOMPARE(titel(), u"Mahlzeitenplan, Zeilen: 3"_s);
}

void TestEinblickwege::everySliderIsFollowed()
{
    oeffne();
    programm().klicke(1, inName);
    zeige(Gegenstand::Lebensmittel);
    int gramm = 100;
    for (const Schieber *regler : {programm()->lebensmittelmenge, programm()->lebensmittelmenge2,
                                   programm()->lebensmittelmenge3}) {
        gramm += 50;
        programm()->DatenAnsicht->setCurrentIndex(gramm / 50 - 3);
        Probefenster::tippeMenge(*regler, QString::number(gramm));
        ruhe();
        QCOMPARE(titel(), u"Apfel, %1 g"_s.arg(gramm));
    }
}

void TestEinblickwege::theSuggestionsKnowWhatTheyAreAbout()
{
    oeffne();
    zeigeVorschlaege();
    zeige(Gegenstand::Lebensmittel);
    QCOMPARE(fenster().vorschlagsblatt->findChild<QLabel *>(u"leer"_s)->text(),
             u"Vorschläge gibt es zu einem Plan, einem Tag oder dem Mittel der Tage."_s);
}

void TestEinblickwege::aDishIsKnownByItsIngredients()
{
    oeffne();
    programm().klicke(1, inName);
    zeige(Gegenstand::Lebensmittel); // nobody knows the dish yet
    const Datenmodul mus = programm()->Dictionary.value(u"Apfelmus, gezuckert"_s);
    anschluss().rezepte.beginneRezept({{u"Apfelmus, gezuckert"_s, 200, mus}},
                                      programm()->Hauptfenster);
    anschluss().rezepte.offenes()->findChild<QLineEdit *>(u"rezeptname"_s)->setText(u"Mus"_s);
    anschluss().rezepte.offenes()->sichere();
    ruhe();
    QCOMPARE(titel(), u"Mus, 100 g"_s);
    QCOMPARE(menge(Kenngroesse::zucker), u"20,4 g"_s); // as of its ingredient
}

void TestEinblickwege::portionsAreSaidInTheLanguageOfTheWindows()
{
    Sprache sprache(u"de"_s);
    m_heim->sprich = [&sprache](const QString &kuerzel) {
        sprache.sprich(kuerzel);
    };
    oeffne();
    QVERIFY(programm().oberflaeche().tage.eigeneMasse().setze(
        u"Müsli"_s, {{u"Schale"_s, u"Schalen"_s, u"bowl"_s, u"bowls"_s, 60}}));
    legePlan();
    zeigeVorschlaege();
    QVERIFY(vorschlaege().contains(u"Müsli\n1 Schale (60 g)"_s));
    programm().oberflaeche().sprich(u"en"_s);
    ruhe();
    QVERIFY(vorschlaege().contains(u"Müsli\n1 bowl (60 g)"_s));
    programm().oberflaeche().sprich(u"de"_s);
}

void TestEinblickwege::theLanguageChangesTheRankingToo()
{
    Sprache sprache(u"de"_s);
    m_heim->sprich = [&sprache](const QString &kuerzel) {
        sprache.sprich(kuerzel);
    };
    oeffne();
    anschluss().rangliste().zeige(Kenngroesse::kal);
    const auto *tabelle = anschluss().rangliste().findChild<QTableView *>(u"rangliste"_s);
    const auto kopf = [tabelle] {
        return tabelle->model()->headerData(Rangmodell::Name, Qt::Horizontal).toString();
    };
    QCOMPARE(kopf(), u"Lebensmittel"_s);
    programm().oberflaeche().sprich(u"en"_s);
    QCOMPARE(kopf(), u"Food"_s);
    programm().oberflaeche().sprich(u"de"_s);
    QCOMPARE(kopf(), u"Lebensmittel"_s);
}

QTEST_MAIN(TestEinblickwege)
#include "TestEinblickwege.moc"
