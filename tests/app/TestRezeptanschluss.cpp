// Recipes joined to the desk: from plan and meal to an own food, and how it follows its
// ingredients.

#include "Gerichteprobe.h"

#include "Beitragsblatt.h"

#include <QLineEdit>
#include <QMenuBar>

using namespace Qt::StringLiterals;

class TestRezeptanschluss : public QObject, private Gerichteprobe
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { raeumeAuf(); }

    void thePlanBecomesARecipe();
    void aMealBecomesARecipe();
    void theMainWindowBeginsAnEmptyOne();
    void theDishIsAnOwnFood();
    void theDishIsTakenBack();
    void itsRecipeIsOpenedAgain();
    void theRecipeOutlastsTheProgram();
    void aPortionIsAMeasure();
    void theDishFollowsAnIngredient();
    void aDishThatDoesNotFollowStays();
    void aDishChangedByHandIsLeftAndTold();
    void whatWasTakenBackIsRepeatedToItsEnd();
    void aRecipeIsTakenBackWithItsDish();
    void theOpenRecipeGoesWithItsIngredients();
    void anAmountThatIsBeingTypedComesAlong();
    void aDishFollowsOnAfterItsIngredientWasTakenBack();
    void rowsThatNobodyKnowsAreTold();
    void onlyOneRecipeIsOpen();
    void aRecipeThatCanNotBeKeptGivesNoFood();
    void aFileThatCouldNotBeReadIsTold_data();
    void aFileThatCouldNotBeReadIsTold();
    void theInsightKnowsTheDish();
    void theInsightKnowsNoRecipeOfADishChangedByHand();

private:
    /// A broth of 100 g and 300 g of water: 400 g of soup with 10 kcal in 100 g.
    Rezept suppe(bool folgt = true) const
    {
        Rezept eines;
        eines.schluessel = u"Suppe"_s;
        eines.zutaten = {{u"Brühe"_s, 100, programm()->KundenDictionary.value(u"Brühe"_s)},
                         {u"Wasser"_s, 300, programm()->Dictionary.value(u"Wasser"_s)}};
        eines.folgt = folgt;
        return eines;
    }
    void koche(bool folgt = true) const
    {
        anschluss().beginneRezept(suppe().zutaten, programm()->Hauptfenster);
        if (!folgt) {
            auto *haken = anschluss().offenes()->findChild<QCheckBox *>(u"folgt"_s);
            QVERIFY(haken != nullptr && haken->isChecked());
            haken->setChecked(false);
        }
        sichereAls(u"Suppe"_s);
        QVERIFY(programm()->KundenDictionary.contains(u"Suppe"_s));
    }
    bool sagt(const QString &teil) const
    {
        const QStringList alle = m_probe->hauptsaetze();
        return std::any_of(alle.begin(), alle.end(),
                           [&](const QString &satz) { return satz.contains(teil); });
    }
};

void TestRezeptanschluss::init()
{
    richteEin();
}

void TestRezeptanschluss::thePlanBecomesARecipe()
{
    oeffne();
    programm()->Planmoduloeffnen();
    plan().gibHinein(u"Linsen"_s, 200);
    plan().gibHinein(u"Möhren"_s, 100);
    eintrag(plan().window())->trigger();
    QVERIFY(anschluss().offenes() != nullptr && anschluss().offenes()->isVisible());
    QCOMPARE(zutaten(), (QStringList{u"Linsen 200"_s, u"Möhren 100"_s}));
}

void TestRezeptanschluss::aMealBecomesARecipe()
{
    oeffne();
    Tagefenster &tage = programm().oberflaeche().tage.fenster();
    tage.zeige();
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 1);
    Mahlzeitzeile raetsel;
    raetsel.text = u"Dings"_s;
    eine.tage[0].mahlzeiten[2].zeilen = {
        {.schluessel = u"Linsen"_s, .gramm = 180.0F, .eintrag = lebensmittel(u"Linsen"_s)},
        raetsel};
    eine.tage[0].mahlzeiten[0].zeilen = {
        {.schluessel = u"Möhren"_s, .gramm = 50.0F, .eintrag = lebensmittel(u"Möhren"_s)}};
    tage.buch.beginne(eine);
    tage.ansicht->geheZu({Tagesmodell::Art::Mahlzeit, 2, 0}, Tagesmodell::Name);
    eintrag(&tage)->trigger();
    QCOMPARE(zutaten(), QStringList{u"Linsen 180"_s});
}

void TestRezeptanschluss::theMainWindowBeginsAnEmptyOne()
{
    oeffne();
    programm().klicke(1, inName); // a built-in food has no recipe
    eintrag(programm()->Hauptfenster)->trigger();
    QCOMPARE(zutaten(), QStringList());
}

void TestRezeptanschluss::theDishIsAnOwnFood()
{
    oeffne();
    koche();
    // 40 kcal of 100 g of broth in 400 g: 10 kcal.
    QCOMPARE(kal(u"Suppe"_s), 10.0F);
    QCOMPARE(programm()->KundenArray, (QStringList{u"Brühe"_s, u"Suppe"_s}));
    QCOMPARE(programm()->unuebersetztername, u"Suppe"_s);
    QVERIFY(anschluss().offenes() == nullptr);
    QVERIFY(QFile::exists(pfad(u"MahlbergRezepte.json"_s)));
}

void TestRezeptanschluss::theDishIsTakenBack()
{
    oeffne();
    koche();
    Q_EMIT programm()->zuruecknehmenGewuenscht();
    ruhe();
    QVERIFY(!programm()->KundenDictionary.contains(u"Suppe"_s));
    QVERIFY(anschluss().rezepte().isEmpty()); // a recipe without its food is nobody's to see
    Q_EMIT programm()->wiederholenGewuenscht();
    ruhe();
    QCOMPARE(kal(u"Suppe"_s), 10.0F);
    QCOMPARE(anschluss().rezepte().size(), 1);
}

void TestRezeptanschluss::itsRecipeIsOpenedAgain()
{
    oeffne();
    koche();
    programm()->zeigeEigenes(u"Suppe"_s);
    eintrag(programm()->Hauptfenster)->trigger();
    QCOMPARE(zutaten(), (QStringList{u"Brühe 100"_s, u"Wasser 300"_s}));
}

void TestRezeptanschluss::theRecipeOutlastsTheProgram()
{
    oeffne();
    koche();
    m_probe.reset();
    oeffne();
    QCOMPARE(anschluss().rezepte().keys(), QStringList{u"Suppe"_s});
    setzeBruehe({{Naehrwert::kal, 80}});
    QCOMPARE(kal(u"Suppe"_s), 20.0F);
}

void TestRezeptanschluss::aPortionIsAMeasure()
{
    oeffne();
    anschluss().beginneRezept(suppe().zutaten, programm()->Hauptfenster);
    sichereAls(u"Suppe"_s, u"4"_s);
    const QList<Mass> masse = programm().oberflaeche().tage.masse(u"Suppe"_s);
    QCOMPARE(masse.size(), 1);
    QCOMPARE(masse[0].eines, u"Portion"_s);
    QCOMPARE(masse[0].gramm, 100.0);
}

void TestRezeptanschluss::theDishFollowsAnIngredient()
{
    oeffne();
    koche();
    setzeBruehe({{Naehrwert::kal, 80}});
    QCOMPARE(kal(u"Suppe"_s), 20.0F);
    QVERIFY(sagt(u"ihren Zutaten gefolgt sind: Suppe."_s));
    // And again, since it is still what its recipe gave.
    setzeBruehe({{Naehrwert::kal, 20}});
    QCOMPARE(kal(u"Suppe"_s), 5.0F);
}

void TestRezeptanschluss::aDishThatDoesNotFollowStays()
{
    oeffne();
    koche(false);
    setzeBruehe({{Naehrwert::kal, 80}});
    QCOMPARE(kal(u"Suppe"_s), 10.0F);
}

void TestRezeptanschluss::aDishChangedByHandIsLeftAndTold()
{
    oeffne();
    koche();
    Lebensmittelverzeichnis eigene = programm()->KundenDictionary;
    eigene[u"Suppe"_s].setkal(33);
    programm()->uebernimmEigene(eigene, programm()->KundenArray);
    setzeBruehe({{Naehrwert::kal, 80}});
    QCOMPARE(kal(u"Suppe"_s), 33.0F);
    QVERIFY(sagt(u"von Hand geändert sind: Suppe."_s));
    for (const Hinweis &einer : programm()->hinweise->hinweise()) {
        programm()->hinweise->nimmZurueck(einer.kennung);
    }
    Lebensmittelverzeichnis mehr = programm()->KundenDictionary;
    mehr[u"Tee"_s] = lebensmittel(u"Tee"_s);
    programm()->uebernimmEigene(mehr, programm()->KundenArray + QStringList(u"Tee"_s));
    Q_EMIT programm()->eigeneGeaendert({Aenderungsart::Gesichert, u"Tee"_s});
    ruhe();
    QVERIFY(!sagt(u"von Hand geändert sind"_s)); // it was told
}

/// What follows is a step of its own, and steps that were taken back are all there to be repeated.
void TestRezeptanschluss::whatWasTakenBackIsRepeatedToItsEnd()
{
    oeffne();
    koche();
    setzeBruehe({{Naehrwert::kal, 80}});
    Lebensmittelverzeichnis mehr = programm()->KundenDictionary;
    mehr[u"Tee"_s] = lebensmittel(u"Tee"_s);
    programm()->uebernimmEigene(mehr, programm()->KundenArray + QStringList(u"Tee"_s));
    Q_EMIT programm()->eigeneGeaendert({Aenderungsart::Gesichert, u"Tee"_s});
    for (int mal = 0; mal < 3; ++mal) { // the tea, the dish, the broth
        Q_EMIT programm()->zuruecknehmenGewuenscht();
    }
    ruhe();
    QCOMPARE(kal(u"Brühe"_s), 40.0F);
    QCOMPARE(kal(u"Suppe"_s), 10.0F);
    for (int mal = 0; mal < 3; ++mal) {
        Q_EMIT programm()->wiederholenGewuenscht();
    }
    ruhe();
    QCOMPARE(kal(u"Brühe"_s), 80.0F);
    QCOMPARE(kal(u"Suppe"_s), 20.0F);
    QVERIFY(programm()->KundenDictionary.contains(u"Tee"_s));
    setzeBruehe({{Naehrwert::kal, 60}});
    QCOMPARE(kal(u"Suppe"_s), 15.0F);
    QVERIFY(!sagt(u"von Hand"_s));
}

void TestRezeptanschluss::aRecipeIsTakenBackWithItsDish()
{
    oeffne();
    koche();
    programm()->zeigeEigenes(u"Suppe"_s);
    eintrag(programm()->Hauptfenster)->trigger();
    teil<Zutatenliste>({})->zeige({suppe().zutaten.constFirst()});
    sichereAls(u"Suppe"_s);
    QCOMPARE(kal(u"Suppe"_s), 40.0F);
    Q_EMIT programm()->zuruecknehmenGewuenscht();
    ruhe();
    QCOMPARE(kal(u"Suppe"_s), 10.0F);
    QCOMPARE(anschluss().rezepte().value(u"Suppe"_s).zutaten.size(), 2);
    Q_EMIT programm()->wiederholenGewuenscht();
    ruhe();
    QCOMPARE(anschluss().rezepte().value(u"Suppe"_s).zutaten.size(), 1);
    setzeBruehe({{Naehrwert::kal, 80}});
    QCOMPARE(kal(u"Suppe"_s), 80.0F);
    QVERIFY(!sagt(u"von Hand"_s));
}

void TestRezeptanschluss::theOpenRecipeGoesWithItsIngredients()
{
    oeffne();
    koche();
    programm()->zeigeEigenes(u"Suppe"_s);
    eintrag(programm()->Hauptfenster)->trigger();
    setzeBruehe({{Naehrwert::kal, 80}});
    sichereAls(u"Suppe"_s);
    QVERIFY(m_heim->meldungen.isEmpty()); // nobody changed it by hand
    QVERIFY(anschluss().offenes() == nullptr || !anschluss().offenes()->isVisible());
    QCOMPARE(kal(u"Suppe"_s), 20.0F);
}

void TestRezeptanschluss::anAmountThatIsBeingTypedComesAlong()
{
    oeffne();
    programm()->Planmoduloeffnen();
    plan().gibHinein(u"Linsen"_s, 200);
    auto &tabelle = *plan().PlanTabelle;
    tabelle.setCurrentIndex(tabelle.model()->index(0, 1));
    tabelle.edit(tabelle.currentIndex());
    auto *feld = tabelle.findChild<QLineEdit *>();
    QVERIFY(feld != nullptr);
    feld->setText(u"250"_s);
    eintrag(plan().window())->trigger();
    QCOMPARE(zutaten(), QStringList{u"Linsen 250"_s});
}

void TestRezeptanschluss::aDishFollowsOnAfterItsIngredientWasTakenBack()
{
    oeffne();
    koche();
    setzeBruehe({{Naehrwert::kal, 80}});
    QCOMPARE(kal(u"Suppe"_s), 20.0F);
    Q_EMIT programm()->zuruecknehmenGewuenscht(); // the dish, then the broth
    Q_EMIT programm()->zuruecknehmenGewuenscht();
    ruhe();
    QCOMPARE(kal(u"Brühe"_s), 40.0F);
    QCOMPARE(kal(u"Suppe"_s), 10.0F);
    setzeBruehe({{Naehrwert::kal, 60}});
    QCOMPARE(kal(u"Suppe"_s), 15.0F);
    QVERIFY(!sagt(u"von Hand"_s));
}

void TestRezeptanschluss::rowsThatNobodyKnowsAreTold()
{
    oeffne();
    programm()->Planmoduloeffnen();
    plan().gibHinein(u"Linsen"_s, 200);
    plan().gibHinein(u"Brühe"_s, 100);
    programm()->KundenDictionary.remove(u"Brühe"_s); // as a plan of another desk has it
    eintrag(plan().window())->trigger();
    QCOMPARE(zutaten(), QStringList{u"Linsen 200"_s});
    QCOMPARE(m_heim->meldungen.size(), 1);
    QCOMPARE(m_heim->meldungen[0].erklaerung, u"Brühe"_s);
}

void TestRezeptanschluss::onlyOneRecipeIsOpen()
{
    oeffne();
    anschluss().beginneRezept(suppe().zutaten, programm()->Hauptfenster);
    const Rezeptfenster *erstes = anschluss().offenes();
    anschluss().beginneRezept({}, programm()->Hauptfenster);
    QCOMPARE(anschluss().offenes(), erstes);
    QCOMPARE(zutaten().size(), 2);
    QVERIFY(m_heim->meldungen.isEmpty());
    // Foods that were to be cooked don't get lost without a word.
    anschluss().beginneRezept({suppe().zutaten.constFirst()}, programm()->Hauptfenster);
    QCOMPARE(anschluss().offenes(), erstes);
    QCOMPARE(zutaten().size(), 2);
    QCOMPARE(m_heim->meldungen.size(), 1);
    QCOMPARE(m_heim->meldungen[0].text, u"Ein Rezept ist noch offen."_s);
    // Nor does that of another dish.
    anschluss().offenes()->reject();
    ruhe();
    koche();
    programm()->zeigeEigenes(u"Suppe"_s);
    eintrag(programm()->Hauptfenster)->trigger();
    eintrag(programm()->Hauptfenster)->trigger();
    QCOMPARE(m_heim->meldungen.size(), 1);
    programm().klicke(1, inName);
    anschluss().beginneRezept({suppe().zutaten.constFirst()}, programm()->Hauptfenster);
    QCOMPARE(m_heim->meldungen.size(), 2);
}

void TestRezeptanschluss::aRecipeThatCanNotBeKeptGivesNoFood()
{
    oeffne();
    // A newer version has written the file: it is not overwritten.
    QFile datei(pfad(u"MahlbergRezepte.json"_s));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    const QByteArray neuer = R"({"format": "Mahlberg recipes", "version": 2, "recipes": []})";
    datei.write(neuer);
    datei.close();
    anschluss().beginneRezept(suppe().zutaten, programm()->Hauptfenster);
    sichereAls(u"Suppe"_s);
    QVERIFY(!programm()->KundenDictionary.contains(u"Suppe"_s));
    QVERIFY(anschluss().offenes() != nullptr);
    QVERIFY(!anschluss().ablage.hindernis().isEmpty());
    QVERIFY(sagt(anschluss().ablage.hindernis()));
    QVERIFY(datei.open(QIODevice::ReadOnly));
    QCOMPARE(datei.readAll(), neuer);
    m_heim->antworten << 1; // the window is closed all the same
}

void TestRezeptanschluss::aFileThatCouldNotBeReadIsTold_data()
{
    QTest::addColumn<QByteArray>("inhalt");
    QTest::addColumn<QString>("satz");

    QTest::newRow("damaged") << QByteArray("{\"format\": \"Mahlb") << u"war beschädigt"_s;
    QTest::newRow("newer") << QByteArray(
                                  R"({"format": "Mahlberg recipes", "version": 2, "recipes": []})")
                           << u"von einer neueren Version"_s;
}

void TestRezeptanschluss::aFileThatCouldNotBeReadIsTold()
{
    QFETCH(const QByteArray, inhalt);
    QFETCH(const QString, satz);
    oeffne();
    QFile datei(pfad(u"MahlbergRezepte.json"_s));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    datei.write(inhalt);
    datei.close();
    QVERIFY(!sagt(satz)); // it is not read yet
    eintrag(programm()->Hauptfenster)->trigger();
    QVERIFY(sagt(satz));
    programm()->hinweise->nimmZurueck(u"rezeptablage"_s); // it was read
    setzeBruehe({{Naehrwert::kal, 80}});
    QVERIFY(!sagt(satz));
}

void TestRezeptanschluss::theInsightKnowsTheDish()
{
    oeffne();
    koche();
    programm()->zeigeEigenes(u"Suppe"_s);
    programm().oberflaeche().einblick.oeffne(Gegenstand::Lebensmittel);
    const Speisen speisen = {{u"Suppe"_s, programm()->KundenDictionary.value(u"Suppe"_s), 400}};
    // Of the water all is known to the table, of the broth nobody knows the sodium: a quarter.
    Rezepte alle = anschluss().rezepte();
    const QHash<QString, Rezeptangaben> angaben = rezeptangaben(alle, Stoffwissen());
    QVERIFY(angaben.contains(u"Suppe"_s));
    QCOMPARE(angaben[u"Suppe"_s][stelle(Kenngroesse::na)].unbekannt, 0.25);
}

void TestRezeptanschluss::theInsightKnowsNoRecipeOfADishChangedByHand()
{
    oeffne();
    koche();
    programm()->zeigeEigenes(u"Suppe"_s);
    Einblickanschluss &einblick = programm().oberflaeche().einblick;
    einblick.oeffne(Gegenstand::Lebensmittel);
    einblick.fenster().beitragsblatt->waehle(Kenngroesse::na);
    const auto *unbekannt = einblick.fenster().beitragsblatt->findChild<QWidget *>(u"unbekannt"_s);
    QVERIFY(unbekannt != nullptr && !unbekannt->isHidden()); // of a quarter, the broth
    Lebensmittelverzeichnis eigene = programm()->KundenDictionary;
    eigene[u"Suppe"_s].setna(300); // as a label has it
    programm()->uebernimmEigene(eigene, programm()->KundenArray);
    Q_EMIT programm()->eigeneGeaendert({Aenderungsart::Geaendert, u"Suppe"_s});
    ruhe();
    QVERIFY(unbekannt->isHidden());
}

QTEST_MAIN(TestRezeptanschluss)
#include "TestRezeptanschluss.moc"
