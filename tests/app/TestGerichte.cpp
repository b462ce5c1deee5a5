// Dishes beside the other foods of the desk: their names, portions and files, and what is told of
// them.

#include "Gerichteprobe.h"

#include "Sprache.h"

#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTableWidget>

using namespace Qt::StringLiterals;

class TestGerichte : public QObject, private Gerichteprobe
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { raeumeAuf(); }

    void aMealOfTheDayOnDisplayBecomesARecipe();
    void theRecipeStandsBeforeTheWindowItCameFrom();
    void anOpenRecipeComesToTheFront();
    void theProgramEndsOnlyAfterItsRecipe();
    void theRecipeOfAFoodThatIsGoneIsNotShown();
    void aBuiltInNameIsNotTaken();
    void anotherFoodIsReplacedOnlyAfterAQuestion();
    void aChangedDishStaysInItsPlace();
    void otherPortionsTakeThePlaceOfTheFormer();
    void whoCountsNoPortionsHasNoMeasure_data();
    void whoCountsNoPortionsHasNoMeasure();
    void aPortionThatCanNotBeKeptIsTold();
    void theDishIsShownAndTold();
    void theDishIsToldWhereItWasBegun();
    void otherRecipesAreTold();
    void aDishThatCanNotBeReckonedIsTold();
    void aDishIsNamedOnceWhenItFollows();
    void aFolderThatTakesNothingIsTold();
    void aRecipeThatCouldNotBeKeptLeavesTheFormer();
    void aDishFollowsWhileItsRecipeCanNotBeWritten();
    void ingredientsAreFoundAndMeasured();
    void formerNamesOfIngredientsLeadToTheirFoods_data();
    void formerNamesOfIngredientsLeadToTheirFoods();
    void theLanguageChangesTheOpenRecipe();

private:
    Rezeptzutat zutat(const QString &name, double gramm) const
    {
        const Datenmodul *satz = tage().speise(name);
        return {name, gramm, satz != nullptr ? *satz : Datenmodul()};
    }
    /// 100 g of broth and 300 g of water.
    void koche(const QString &name = u"Suppe"_s, const QString &portionen = {}) const
    {
        anschluss().beginneRezept({zutat(u"Brühe"_s, 100), zutat(u"Wasser"_s, 300)},
                                  programm()->Hauptfenster);
        sichereAls(name, portionen);
    }
    /// The soup's own measures, with the grams of each.
    QStringList massworte() const
    {
        QStringList alle;
        for (const Mass &eines : tage().eigeneMasse().masseFuer(u"Suppe"_s)) {
            alle << u"%1 %2"_s.arg(eines.eines).arg(eines.gramm);
        }
        return alle;
    }
    qsizetype wieOft(const QString &teil) const
    {
        return m_probe->hauptsaetze().filter(teil).size();
    }
};

void TestGerichte::init()
{
    richteEin({lebensmittel(u"Agar-Agar (Geliermittel aus Algen)"_s, {{Naehrwert::kal, 160}})});
}

void TestGerichte::aMealOfTheDayOnDisplayBecomesARecipe()
{
    oeffne();
    Tagefenster &fenster = tage().fenster();
    fenster.zeige();
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 2);
    const auto zeile = [](const QString &name, float gramm) {
        return Mahlzeitzeile{.schluessel = name, .gramm = gramm, .eintrag = lebensmittel(name)};
    };
    eine.tage[0].mahlzeiten[1].zeilen = {zeile(u"Möhren"_s, 50)};
    eine.tage[1].mahlzeiten[1].zeilen = {zeile(u"Linsen"_s, 180)};
    fenster.buch.beginne(eine);
    fenster.buch.waehleTag(1);
    fenster.ansicht->geheZu({Tagesmodell::Art::Speise, 1, 0}, Tagesmodell::Name);
    eintrag(&fenster)->trigger();
    QCOMPARE(zutaten(), QStringList{u"Linsen 180"_s});
    QCOMPARE(anschluss().offenes()->parentWidget(), &fenster);
}

void TestGerichte::theRecipeStandsBeforeTheWindowItCameFrom()
{
    oeffne();
    programm()->Planmoduloeffnen();
    QWidget *plan = programm()->holePlan().window();
    eintrag(plan)->trigger();
    QCOMPARE(anschluss().offenes()->parentWidget(), plan);
    anschluss().offenes()->close();
    ruhe();
    eintrag(programm()->Hauptfenster)->trigger();
    QCOMPARE(anschluss().offenes()->parentWidget(), programm()->Hauptfenster);
}

void TestGerichte::anOpenRecipeComesToTheFront()
{
    oeffne();
    eintrag(programm()->Hauptfenster)->trigger();
    QVERIFY(QTest::qWaitForWindowActive(anschluss().offenes()));
    programm()->Hauptfenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(programm()->Hauptfenster));
    eintrag(programm()->Hauptfenster)->trigger();
    QVERIFY(QTest::qWaitForWindowActive(anschluss().offenes()));
}

void TestGerichte::theProgramEndsOnlyAfterItsRecipe()
{
    oeffne();
    const QSignalSpy ende(&programm().oberflaeche().hauptfenster, &AppController::beendet);
    eintrag(programm()->Hauptfenster)->trigger();
    teil<QLineEdit>(u"rezeptname"_s)->setText(u"Suppe"_s);
    m_heim->antworten << 0 << 1; // goes on with the recipe, then lets it go
    QVERIFY(!programm()->Hauptfenster->close());
    QCOMPARE(ende.count(), 0);
    QVERIFY(programm()->Hauptfenster->isVisible());
    QCOMPARE(teil<QLineEdit>(u"rezeptname"_s)->text(), u"Suppe"_s);
    QVERIFY(programm()->Hauptfenster->close());
    QCOMPARE(ende.count(), 1);
    QCOMPARE(m_heim->meldungen.size(), 2);
    QVERIFY(anschluss().offenes() == nullptr || !anschluss().offenes()->isVisible());
}

void TestGerichte::theRecipeOfAFoodThatIsGoneIsNotShown()
{
    oeffne();
    koche();
    Lebensmittelverzeichnis eigene = programm()->KundenDictionary;
    eigene.remove(u"Suppe"_s);
    programm()->uebernimmEigene(eigene, {u"Brühe"_s});
    QCOMPARE(programm()->unuebersetztername, u"Suppe"_s); // still on display
    eintrag(programm()->Hauptfenster)->trigger();
    QCOMPARE(zutaten(), QStringList());
}

void TestGerichte::aBuiltInNameIsNotTaken()
{
    oeffne();
    koche(u"Linsen"_s);
    QVERIFY(anschluss().offenes() != nullptr);
    QVERIFY(!programm()->KundenDictionary.contains(u"Linsen"_s));
    QVERIFY(anschluss().rezepte().isEmpty());
    m_heim->antworten << 1; // the window is closed all the same
}

void TestGerichte::anotherFoodIsReplacedOnlyAfterAQuestion()
{
    oeffne();
    m_heim->antworten << 0 << 1;
    anschluss().beginneRezept({zutat(u"Linsen"_s, 100)}, programm()->Hauptfenster);
    sichereAls(u"Brühe"_s);
    QCOMPARE(m_heim->meldungen.size(), 1);
    QCOMPARE(m_heim->meldungen[0].gegenstand, u"Brühe"_s);
    QCOMPARE(kal(u"Brühe"_s), 40.0F);
    sichereAls(u"Brühe"_s);
    QCOMPARE(kal(u"Brühe"_s), 120.0F);
    QCOMPARE(programm()->KundenArray, QStringList{u"Brühe"_s});
}

void TestGerichte::aChangedDishStaysInItsPlace()
{
    oeffne();
    koche();
    koche(u"Eintopf"_s);
    programm()->zeigeEigenes(u"Suppe"_s);
    eintrag(programm()->Hauptfenster)->trigger();
    anschluss().offenes()->findChild<Zutatenliste *>()->zeige({zutat(u"Brühe"_s, 100)});
    QList<Aenderungsart> arten;
    connect(&programm().controller(), &AppController::eigeneGeaendert, this,
            [&arten](const Aenderung &was) { arten << was.art; });
    sichereAls(u"Suppe"_s);
    QCOMPARE(kal(u"Suppe"_s), 40.0F);
    QCOMPARE(programm()->KundenArray, (QStringList{u"Brühe"_s, u"Suppe"_s, u"Eintopf"_s}));
    QCOMPARE(arten, QList{Aenderungsart::Geaendert});
}

void TestGerichte::otherPortionsTakeThePlaceOfTheFormer()
{
    oeffne();
    koche(u"Suppe"_s, u"4"_s);
    QVERIFY(tage().eigeneMasse().setze(
        u"Suppe"_s, tage().masse(u"Suppe"_s) +
                        QList<Mass>{{u"Kelle"_s, u"Kellen"_s, u"ladle"_s, u"ladles"_s, 120}}));
    programm()->zeigeEigenes(u"Suppe"_s);
    eintrag(programm()->Hauptfenster)->trigger();
    sichereAls(u"Suppe"_s, u"2"_s);
    QCOMPARE(massworte(), (QStringList{u"Portion 200"_s, u"Kelle 120"_s}));
}

void TestGerichte::whoCountsNoPortionsHasNoMeasure_data()
{
    QTest::addColumn<double>("gewogen"); // by hand, in g; 0: not
    QTest::addColumn<QString>("portionen");
    QTest::addColumn<QStringList>("masse");
    QTest::newRow("the recipe's goes") << 0.0 << QString() << QStringList{u"Kelle 120"_s};
    QTest::newRow("one weighed by hand stays")
        << 95.0 << QString() << QStringList{u"Portion 95"_s, u"Kelle 120"_s};
    QTest::newRow("the recipe's counts again")
        << 95.0 << u"2"_s << QStringList{u"Portion 200"_s, u"Kelle 120"_s};
}

void TestGerichte::whoCountsNoPortionsHasNoMeasure()
{
    QFETCH(const double, gewogen);
    QFETCH(const QString, portionen);
    QFETCH(const QStringList, masse);
    oeffne();
    koche(u"Suppe"_s, u"4"_s);
    QList<Mass> alle = tage().masse(u"Suppe"_s);
    QCOMPARE(alle.size(), 1);
    alle[0].gramm = gewogen > 0 ? gewogen : alle[0].gramm;
    alle << Mass{u"Kelle"_s, u"Kellen"_s, u"ladle"_s, u"ladles"_s, 120};
    QVERIFY(tage().eigeneMasse().setze(u"Suppe"_s, alle));
    programm()->zeigeEigenes(u"Suppe"_s);
    eintrag(programm()->Hauptfenster)->trigger();
    sichereAls(u"Suppe"_s, portionen);
    QCOMPARE(massworte(), masse);
}

void TestGerichte::aPortionThatCanNotBeKeptIsTold()
{
    oeffne();
    // A newer version has written the measures: they are not overwritten.
    QFile datei(pfad(u"MahlbergMasse.json"_s));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    datei.write(R"({"format": "Mahlberg measures", "version": 2, "foods": []})");
    datei.close();
    koche(u"Suppe"_s, u"4"_s);
    QVERIFY(programm()->KundenDictionary.contains(u"Suppe"_s));
    QCOMPARE(wieOft(u"eigene Maße können nicht geändert werden"_s), 1);
}

void TestGerichte::theDishIsShownAndTold()
{
    oeffne();
    programm().klicke(1, inName);
    koche();
    QCOMPARE(programm()->feldA->text(), u"Suppe"_s);
    QCOMPARE(wieOft(u"„Suppe“ steht mit seinem Rezept bei den eigenen Lebensmitteln."_s), 1);
}

void TestGerichte::theDishIsToldWhereItWasBegun()
{
    oeffne();
    programm()->Planmoduloeffnen();
    Planmodul &plan = programm()->holePlan();
    plan.gibHinein(u"Linsen"_s, 100);
    eintrag(plan.window())->trigger();
    sichereAls(u"Mus"_s);
    QCOMPARE(wieOft(u"steht mit seinem Rezept"_s), 0);
    QCOMPARE(plan.hinweise->hinweise().constFirst().text,
             u"„Mus“ steht mit seinem Rezept bei den eigenen Lebensmitteln."_s);
    tage().fenster().zeige();
    tage().fenster().buch.beginne(
        neueAufzeichnung(Aufzeichnungsart::Protokoll, QDate(2026, 11, 23), 1));
    eintrag(&tage().fenster())->trigger();
    anschluss().offenes()->findChild<Zutatenliste *>()->zeige({zutat(u"Linsen"_s, 100)});
    sichereAls(u"Brei"_s);
    QCOMPARE(wieOft(u"steht mit seinem Rezept"_s), 0);
    QCOMPARE(tage().fenster().hinweise->hinweise().constFirst().text,
             u"„Brei“ steht mit seinem Rezept bei den eigenen Lebensmitteln."_s);
}

void TestGerichte::otherRecipesAreTold()
{
    oeffne();
    const QSignalSpy andere(&anschluss(), &Rezeptanschluss::geaendert);
    koche();
    QCOMPARE(andere.size(), 1);
}

void TestGerichte::aDishThatCanNotBeReckonedIsTold()
{
    oeffne();
    anschluss().beginneRezept({zutat(u"Brühe"_s, 100), zutat(u"Wasser"_s, 300)},
                              programm()->Hauptfenster);
    teil<QLineEdit>(u"fertiggewicht"_s)->setText(u"50"_s); // boiled down
    sichereAls(u"Suppe"_s);
    QCOMPARE(kal(u"Suppe"_s), 80.0F);
    // What is in it besides water weighs more than that now.
    setzeBruehe({{Naehrwert::kal, 320}, {Naehrwert::protein, 80}});
    QCOMPARE(kal(u"Suppe"_s), 80.0F);
    QCOMPARE(wieOft(u"nicht zu rechnen sind und bleiben, wie sie waren: Suppe."_s), 1);
}

void TestGerichte::aDishIsNamedOnceWhenItFollows()
{
    oeffne();
    koche();
    int wechsel = 0;
    connect(&programm().controller(), &AppController::eigeneGeaendert, this,
            [&wechsel] { ++wechsel; });
    setzeBruehe({{Naehrwert::kal, 80}});
    QCOMPARE(wechsel, 2); // the broth and the soup
    QCOMPARE(wieOft(u"gefolgt"_s), 1);
}

/// A folder stands where the file should.
void TestGerichte::aFolderThatTakesNothingIsTold()
{
    oeffne();
    koche();
    QVERIFY(QFile::remove(pfad(u"MahlbergRezepte.json"_s)));
    QVERIFY(QDir().mkpath(pfad(u"MahlbergRezepte.json"_s) + u"/darin"_s));
    anschluss().beginneRezept({zutat(u"Linsen"_s, 100)}, programm()->Hauptfenster);
    sichereAls(u"Mus"_s);
    QVERIFY(!programm()->KundenDictionary.contains(u"Mus"_s));
    QVERIFY(!anschluss().ablage.rezept(u"Mus"_s));
    QCOMPARE(teil<QLabel>(u"rezeptworte"_s)->text(), u"⚠ Das Gericht ließ sich nicht sichern."_s);
    QVERIFY(teil<QLabel>(u"rezeptworte"_s)->isVisible());
    QVERIFY(QDir(pfad(u"MahlbergRezepte.json"_s)).removeRecursively());
    sichereAls(u"Mus"_s);
    QVERIFY(programm()->KundenDictionary.contains(u"Mus"_s));
    QVERIFY(anschluss().ablage.rezept(u"Mus"_s).has_value());
}

/// Else the dish would be told as changed by hand from then on.
void TestGerichte::aRecipeThatCouldNotBeKeptLeavesTheFormer()
{
    oeffne();
    koche();
    QVERIFY(QFile::remove(pfad(u"MahlbergRezepte.json"_s)));
    QVERIFY(QDir().mkpath(pfad(u"MahlbergRezepte.json"_s) + u"/darin"_s));
    programm()->zeigeEigenes(u"Suppe"_s);
    eintrag(programm()->Hauptfenster)->trigger();
    anschluss().offenes()->findChild<Zutatenliste *>()->zeige({zutat(u"Brühe"_s, 100)});
    sichereAls(u"Suppe"_s);
    QCOMPARE(kal(u"Suppe"_s), 10.0F);
    QCOMPARE(anschluss().ablage.rezept(u"Suppe"_s).value_or(Rezept()).zutaten.size(), 2);
    m_heim->antworten << 1; // the window is closed all the same
    anschluss().offenes()->close();
    QVERIFY(QDir(pfad(u"MahlbergRezepte.json"_s)).removeRecursively());
    setzeBruehe({{Naehrwert::kal, 80}});
    QCOMPARE(kal(u"Suppe"_s), 20.0F);
    QCOMPARE(wieOft(u"von Hand"_s), 0);
}

void TestGerichte::aDishFollowsWhileItsRecipeCanNotBeWritten()
{
    oeffne();
    koche();
    QVERIFY(QFile::remove(pfad(u"MahlbergRezepte.json"_s)));
    QVERIFY(QDir().mkpath(pfad(u"MahlbergRezepte.json"_s) + u"/darin"_s));
    setzeBruehe({{Naehrwert::kal, 80}});
    QCOMPARE(kal(u"Suppe"_s), 20.0F);
    QCOMPARE(wieOft(u"Die Rezepte ließen sich nicht sichern."_s), 1);
    QVERIFY(QDir(pfad(u"MahlbergRezepte.json"_s)).removeRecursively());
    setzeBruehe({{Naehrwert::kal, 120}});
    QCOMPARE(kal(u"Suppe"_s), 30.0F);
    QCOMPARE(wieOft(u"von Hand"_s), 0);
    QVERIFY(QFile::exists(pfad(u"MahlbergRezepte.json"_s)));
}

void TestGerichte::ingredientsAreFoundAndMeasured()
{
    oeffne();
    QVERIFY(tage().eigeneMasse().setze(u"Linsen"_s,
                                       {{u"Tasse"_s, u"Tassen"_s, u"cup"_s, u"cups"_s, 190}}));
    eintrag(programm()->Hauptfenster)->trigger();
    ruhe();
    QTest::keyClicks(teil<QLineEdit>(u"neueZutat"_s), u"Lins"_s);
    const auto *treffer = teil<QListWidget>(u"treffer"_s);
    QCOMPARE(treffer->count(), 1);
    QCOMPARE(treffer->item(0)->text(), u"Linsen"_s);
    teil<Zutatenliste>({})->zeige({zutat(u"Linsen"_s, 100)});
    teil<QTableWidget>(u"zutaten"_s)->item(0, 1)->setText(u"2 Tassen"_s);
    QCOMPARE(zutaten(), QStringList{u"Linsen 380"_s});
    m_heim->antworten << 1; // the window is closed all the same
}

void TestGerichte::formerNamesOfIngredientsLeadToTheirFoods_data()
{
    QTest::addColumn<bool>("eigenes");
    QTest::addColumn<QString>("heisst");

    QTest::newRow("of a built-in food") << false << u"Agar-Agar (Geliermittel aus Algen)"_s;
    QTest::newRow("an own food has it today") << true << u"Agar-Agar"_s;
}

void TestGerichte::formerNamesOfIngredientsLeadToTheirFoods()
{
    QFETCH(const bool, eigenes);
    QFETCH(const QString, heisst);
    const Datenmodul agar = lebensmittel(u"Agar-Agar"_s, {{Naehrwert::kal, 160}});
    m_heim->schreibeEigene(verzeichnis({lebensmittel(u"Brühe"_s), agar}));
    oeffne();
    anschluss().beginneRezept({{u"Agar-Agar"_s, 10, agar}, zutat(u"Wasser"_s, 90)},
                              programm()->Hauptfenster);
    sichereAls(u"Gelee"_s);
    m_probe.reset();
    if (!eigenes) {
        Lebensmittelverzeichnis ohne = verzeichnis({lebensmittel(u"Brühe"_s)});
        ohne.insert(u"Gelee"_s, lebensmittel(u"Gelee"_s));
        m_heim->schreibeEigene(ohne);
    }
    oeffne();
    QCOMPARE(anschluss().rezepte().value(u"Gelee"_s).zutaten.value(0).schluessel, heisst);
}

void TestGerichte::theLanguageChangesTheOpenRecipe()
{
    Sprache sprache(u"de"_s);
    m_heim->sprich = [&sprache](const QString &kuerzel) {
        sprache.sprich(kuerzel);
    };
    oeffne();
    eintrag(programm()->Hauptfenster)->trigger();
    teil<Zutatenliste>({})->zeige({zutat(u"Linsen"_s, 100)});
    programm().oberflaeche().sprich(u"en"_s);
    const auto *werte = teil<QTableWidget>(u"werte"_s);
    QCOMPARE(werte->item(0, 0)->text(), u"Energy"_s);
    programm().oberflaeche().sprich(u"de"_s);
    QCOMPARE(werte->item(0, 0)->text(), u"Energie"_s);
    m_heim->antworten << 1;
}

QTEST_MAIN(TestGerichte)
#include "TestGerichte.moc"
