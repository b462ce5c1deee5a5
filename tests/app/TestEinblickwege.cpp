// Where the windows of the insight stand and lead, what they are about, and in which words.

#include "Klientenprobe.h"

#include "Beitragsblatt.h"
#include "Sprache.h"
#include "Standaufbau.h"
#include "Vorschlagsblatt.h"

#include <QTabWidget>
#include <QTableView>

using namespace Qt::StringLiterals;

class TestEinblickwege : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theWindowComesBesideTheOneItWasCalledFrom_data();
    void theWindowComesBesideTheOneItWasCalledFrom();
    void theWindowStaysWhereItWasMoved();
    void theRankingStandsWhereItWasLeft();
    void theWayToARowShowsThePlan();
    void aFoodHasNoRowsToGoTo();
    void theMainWindowComesUpWithTheFood();
    void theBuiltInFoodOfANameIsMeant();
    void theRankingNamesEachFoodOnce();
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
    void oeffne() { m_probe = std::make_unique<Klientenprobe>(*m_heim); }
    Probefenster &programm() const { return m_probe->programm(); }
    Einblickanschluss &anschluss() const { return programm().oberflaeche().einblick; }
    Einblickfenster &fenster() const { return anschluss().fenster(); }
    Tagefenster &tage() const { return programm().oberflaeche().tage.fenster(); }
    Planmodul &plan() const { return programm()->holePlan(); }
    /// Shows the window, and waits until it has taken in what there is.
    void zeige(Gegenstand gegenstand) const
    {
        anschluss().oeffne(gegenstand);
        ruhe();
    }
    QString titel() const { return fenster().findChild<QLabel *>(u"titel"_s)->text(); }
    QString menge(Kenngroesse groesse) const
    {
        fenster().beitragsblatt->waehle(groesse);
        const auto *tabelle = fenster().beitragsblatt->findChild<QTableView *>(u"beitraege"_s);
        return tabelle->model()->index(0, Beitragsmodell::Menge).data().toString();
    }
    static QStringList spalte(const QWidget &wo, const QString &tabelle, int welche)
    {
        const QAbstractItemModel &modell = *wo.findChild<QTableView *>(tabelle)->model();
        QStringList alle;
        for (int zeile = 0; zeile < modell.rowCount(); ++zeile) {
            alle << modell.index(zeile, welche).data().toString();
        }
        return alle;
    }
    QStringList vorschlaege() const
    {
        return spalte(*fenster().vorschlagsblatt, u"vorschlaege"_s, Vorschlagsmodell::Lebensmittel);
    }
    void legePlan() const
    {
        programm()->Planmoduloeffnen();
        plan().gibHinein(u"Apfel"_s, 150);
        plan().gibHinein(u"Milch"_s, 200);
        ruhe();
    }
    void zeigeVorschlaege(std::int32_t bedarf) const
    {
        Planmodul::klient.bedarf = bedarf;
        zeige(Gegenstand::Plan);
        fenster().blaetter->setCurrentWidget(fenster().vorschlagsblatt);
        ruhe();
        fenster().vorschlagsblatt->waehleZiel(Kenngroesse::kal);
    }
    Aufzeichnung aufzeichnung(const QString &name) const
    {
        Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, QDate(2026, 11, 23), 2);
        eine.tage[0].mahlzeiten[0].zeilen = {
            Mahlzeitzeile{.schluessel = name, .gramm = 120.0F, .eintrag = lebensmittel(name)}};
        return eine;
    }
    QStringList hinweise() const
    {
        QStringList alle;
        for (const Hinweis &einer : fenster().hinweise->hinweise()) {
            alle << einer.text;
        }
        return alle;
    }
    void nimm(const Speisenaenderung &was) const
    {
        Q_EMIT fenster().vorschlagsblatt->aenderungGewuenscht(was);
    }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Klientenprobe> m_probe;
};

void TestEinblickwege::init()
{
    Planmodul::klient = {};
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(
        verzeichnis({lebensmittel(u"-"_s),
                     lebensmittel(u"Apfel"_s, {{Naehrwert::kal, 50}, {Naehrwert::vitc, 12}}),
                     lebensmittel(u"Apfelmus, gezuckert"_s, {{Naehrwert::kal, 90}}),
                     lebensmittel(u"Milch"_s, {{Naehrwert::kal, 60}, {Naehrwert::ca, 120}}),
                     lebensmittel(u"Toast"_s, {{Naehrwert::kal, 200}})}));
    // An own food that is called as a built-in one is.
    m_heim->schreibeEigene(verzeichnis({lebensmittel(u"Apfel"_s, {{Naehrwert::kal, 400}}),
                                        lebensmittel(u"Müsli"_s, {{Naehrwert::kal, 380}})}));
}

void TestEinblickwege::cleanup()
{
    m_probe.reset();
    m_heim.reset();
    Planmodul::klient = {};
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
    zeigeVorschlaege(2000);
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
    zeigeVorschlaege(2000);
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
