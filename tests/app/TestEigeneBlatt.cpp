#include "Archivdatei.h"
#include "Probefenster.h"
#include "Probeplan.h"

#include <QFile>
#include <QLineEdit>
#include <QTest>

using enum Naehrwert;

/// A new food by way of the entry sheet.
class TestEigeneBlatt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void withoutANameNothingHappens();
    void theMessageIsTranslated();
    void blanksAreAName();
    void aNewFoodIsAppended();
    void itIsOnDisplayForAHundredGrams();
    void theCaptionsAreTranslatedAndTheGramsAreNot();
    void theSaveButtonStaysAsTheAmountLeftIt();
    void everyValueFindsItsPlace();
    void anEmptyFieldIsZero();
    void ratingsAreTakenAsTheyStand_data();
    void ratingsAreTakenAsTheyStand();
    void aNameThatIsThereIsOverwritten();
    void aBuiltInNameIsAllowed();
    void theTableTakesTheFoodInAtOnce();
    void nothingElseMoves();
    void hiddenValuesStayHidden();
    void theSheetStaysOpenAndKeepsItsText();
    void thePlanIsToldFirst();
    void withoutAPlanNothingIsMissing();
    void aNewNameIsLogged();

private:
    void oeffne(const QList<Datenmodul> &eigene = {});
    void trageEin(const QString &name, const QString &kilokalorien = {}) const;
    void uebernimm() const
    {
        QTest::mouseClick(controller().EingabeFensteruebernehmen, Qt::LeftButton);
    }
    Lebensmittelverzeichnis datei() const
    {
        return Archivdatei::lesen(m_heim->eigeneDatei()).archiv.verzeichnis;
    }
    AppController &controller() const { return m_fenster->controller(); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

void TestEigeneBlatt::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(verzeichnis({
        lebensmittel(QStringLiteral("Apfel"), {{kal, 52}, {kh, 11.4F}, {ca, 5}}),
        lebensmittel(QStringLiteral("Brot"), {{kal, 240}, {chol, 1}, {ca, 200}}),
        lebensmittel(QStringLiteral("Quark"), {{kal, 70}}),
    }));
}

void TestEigeneBlatt::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestEigeneBlatt::oeffne(const QList<Datenmodul> &eigene)
{
    if (!eigene.isEmpty()) {
        m_heim->schreibeEigene(verzeichnis(eigene));
    }
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    m_fenster->drueckeWerkzeug(QStringLiteral("neu"));
    QVERIFY(QTest::qWaitForWindowActive(controller().einfenster));
}

void TestEigeneBlatt::trageEin(const QString &name, const QString &kilokalorien) const
{
    for (Textfeld *feld : {controller().EingabeFensterfeldA, controller().EingabeFensterfeldB}) {
        feld->selectAll();
        feld->del();
    }
    controller().EingabeFensterfeldA->insert(name);
    controller().EingabeFensterfeldB->insert(kilokalorien);
}

void TestEigeneBlatt::withoutANameNothingHappens()
{
    oeffne();
    Probeplan &plan = *new Probeplan; // the window takes it over
    controller().planmodul = &plan;
    controller().Fensterschliessen();
    m_fenster->klicke(1, inName);
    m_fenster->tippeMenge(QStringLiteral("30"));
    controller().Fenster();
    trageEin(QString(), QStringLiteral("99"));
    uebernimm();

    QCOMPARE(m_heim->meldungen.size(), 1);
    QVERIFY(m_heim->meldungen[0].text.isEmpty());
    QCOMPARE(m_heim->meldungen[0].erklaerung, QStringLiteral("Bitte einen Namen eingeben"));
    QCOMPARE(m_heim->meldungen[0].knoepfe, QStringList{QStringLiteral("ok")});
    QVERIFY(controller().einfenster->isVisible());
    QCOMPARE(controller().einfenster->focusWidget(), controller().EingabeFensterfeldA);

    QVERIFY(controller().KundenArray.isEmpty());
    QVERIFY(controller().KundenDictionary.isEmpty());
    QVERIFY(plan.gesichert.isEmpty());
    QVERIFY(!QFile::exists(m_heim->eigeneDatei()));
    QCOMPARE(controller().lebensmittelmenge->intValue(), 30);
    QCOMPARE(Probefenster::text(*controller().anzeigelebensmittelmenge),
             QStringLiteral("Inhaltstoffe in 30 gramm"));
    QCOMPARE(Probefenster::text(*controller().feldA), QStringLiteral("Brot"));
    QCOMPARE(Probefenster::text(*controller().feldB), QStringLiteral("72 kcal"));
}

void TestEigeneBlatt::theMessageIsTranslated()
{
    const Probeuebersetzer englisch(
        {{QStringLiteral("Bitte einen Namen eingeben"), QStringLiteral("Please enter a name")}});
    oeffne();
    uebernimm();
    QCOMPARE(m_heim->meldungen.value(0).erklaerung, QStringLiteral("Please enter a name"));
}

void TestEigeneBlatt::blanksAreAName()
{
    oeffne();
    trageEin(QStringLiteral("  "));
    uebernimm();
    QVERIFY(m_heim->meldungen.isEmpty());
    QCOMPARE(controller().KundenArray, QStringList{QStringLiteral("  ")});
    QCOMPARE(datei().keys(), QStringList{QStringLiteral("  ")});
}

void TestEigeneBlatt::aNewFoodIsAppended()
{
    oeffne({lebensmittel(QStringLiteral("Zimt"), {{kal, 247}})});
    trageEin(QStringLiteral("Apfelmus"), QStringLiteral("80"));
    uebernimm();
    const QStringList namen = {QStringLiteral("Zimt"), QStringLiteral("Apfelmus")};
    QCOMPARE(controller().KundenArray, namen);
    QCOMPARE(m_fenster->zelle(1, inEigen).text, QStringLiteral("Apfelmus"));
    QCOMPARE(controller().KundenDictionary.size(), 2);
    QCOMPARE(controller().KundenDictionary[namen[1]].name(), namen[1]);
    QCOMPARE(controller().KundenDictionary[namen[1]].kal(), 80.0F);
    QCOMPARE(inhalt(datei()), inhalt(controller().KundenDictionary));
    QCOMPARE(datei()[namen[0]].kal(), 247.0F);
}

void TestEigeneBlatt::itIsOnDisplayForAHundredGrams()
{
    oeffne();
    controller().Fensterschliessen();
    m_fenster->klicke(1, inName);
    m_fenster->tippeMenge(QStringLiteral("30"));
    controller().Fenster();
    trageEin(QStringLiteral("Apfelmus"), QStringLiteral("100"));
    uebernimm();
    QCOMPARE(Probefenster::text(*controller().feldA), QStringLiteral("Apfelmus"));
    QCOMPARE(Probefenster::text(*controller().feldB), QStringLiteral("100 kcal"));
    QCOMPARE(controller().joulefeld->floatValue(), 417.910447761194F);
    for (const Schieber *regler : {controller().lebensmittelmenge, controller().lebensmittelmenge2,
                                   controller().lebensmittelmenge3}) {
        QCOMPARE(regler->intValue(), 100);
    }
    QCOMPARE(Probefenster::text(*controller().anzeigelebensmittelmenge),
             QStringLiteral("Inhaltstoffe in 100 gramm"));
    QCOMPARE(Probefenster::text(*controller().anzeigelebensmittelmenge2),
             QStringLiteral("% der Zufuhr in 100 gramm"));
    QCOMPARE(Probefenster::text(*controller().anzeigelebensmittelmenge3),
             QStringLiteral("BE und Relationen in 100 gramm"));
}

void TestEigeneBlatt::theCaptionsAreTranslatedAndTheGramsAreNot()
{
    const Probeuebersetzer englisch({
        {QStringLiteral("Inhaltstoffe in "), QStringLiteral("Contents of ")},
        {QStringLiteral("% der Zufuhr in "), QStringLiteral("% of the need in ")},
        {QStringLiteral("BE und Relationen in "), QStringLiteral("Units in ")},
        {QStringLiteral(" gramm"), QStringLiteral(" grams")},
    });
    oeffne();
    trageEin(QStringLiteral("Apfelmus"));
    uebernimm();
    QCOMPARE(Probefenster::text(*controller().anzeigelebensmittelmenge),
             QStringLiteral("Contents of 100 gramm"));
    QCOMPARE(Probefenster::text(*controller().anzeigelebensmittelmenge2),
             QStringLiteral("% of the need in 100 gramm"));
    QCOMPARE(Probefenster::text(*controller().anzeigelebensmittelmenge3),
             QStringLiteral("Units in 100 gramm"));
}

void TestEigeneBlatt::theSaveButtonStaysAsTheAmountLeftIt()
{
    oeffne();
    controller().Fensterschliessen();
    m_fenster->klicke(1, inName);
    m_fenster->tippeMenge(QStringLiteral("30"));
    QVERIFY(!controller().sichernknopf->isEnabled());
    controller().Fenster();
    trageEin(QStringLiteral("Apfelmus"));
    uebernimm();
    QVERIFY(!controller().sichernknopf->isEnabled()); // only an amount wakes it
    m_fenster->tippeMenge(QStringLiteral("50"));
    m_fenster->tippeMenge(QStringLiteral("100"));
    QVERIFY(controller().sichernknopf->isEnabled());
    uebernimm();
    QVERIFY(controller().sichernknopf->isEnabled());
}

void TestEigeneBlatt::everyValueFindsItsPlace()
{
    oeffne();
    trageEin(QStringLiteral("Apfelmus"));
    for (std::size_t i = 0; i < anzahlNaehrwerte; ++i) {
        controller().eingabefelder()[i]->insert(QStringLiteral("%1,5").arg(i + 1));
    }
    const QStringList urteile = {QStringLiteral("+"), QStringLiteral("-"), QStringLiteral("0"),
                                 QStringLiteral("x")};
    controller().EingabeFensteruebergewicht->setCurrentText(urteile[0]);
    controller().EingabeFensterdiabetes->setCurrentText(urteile[1]);
    controller().EingabeFenstergicht->setCurrentText(urteile[2]);
    controller().EingabeFensterhkk->setCurrentText(urteile[3]);
    uebernimm();
    const Datenmodul aufDerPlatte = datei().value(QStringLiteral("Apfelmus"));
    for (const auto &zeile : naehrwerte) {
        const float zahl = static_cast<float>(stelle(zeile.wert)) + 1.5F;
        QCOMPARE(controller().wertfelder()[stelle(zeile.wert)]->floatValue(), zahl);
        QCOMPARE(aufDerPlatte.wert(zeile.wert), zahl);
    }
    for (const auto &zeile : wertungen) {
        const QString &urteil = urteile[static_cast<int>(stelle(zeile.wertung))];
        QCOMPARE(controller().wertungsfelder()[stelle(zeile.wertung)]->stringValue(), urteil);
        QCOMPARE(aufDerPlatte.wertung(zeile.wertung), urteil);
    }
    QCOMPARE(controller().eingabefelder()[0], controller().EingabeFensterfeldB);
    QCOMPARE(controller().eingabefelder()[1], controller().EingabeFensterproteinfeld);
    QCOMPARE(controller().eingabefelder()[16], controller().EingabeFenstervitcfeld);
}

void TestEigeneBlatt::anEmptyFieldIsZero()
{
    oeffne();
    controller().Fensterschliessen();
    m_fenster->klicke(1, inName); // has values that must go
    controller().Fenster();
    trageEin(QStringLiteral("Wasser"));
    uebernimm();
    const Datenmodul aufDerPlatte = datei().value(QStringLiteral("Wasser"));
    for (const auto &zeile : naehrwerte) {
        QCOMPARE(aufDerPlatte.wert(zeile.wert), 0.0F);
        QCOMPARE(controller().wertfelder()[stelle(zeile.wert)]->floatValue(), 0.0F);
    }
    QCOMPARE(controller().joulefeld->floatValue(), 0.0F);
    for (const auto &zeile : wertungen) { // what the boxes offer at first
        QCOMPARE(aufDerPlatte.wertung(zeile.wertung), QStringLiteral("0"));
    }
}

void TestEigeneBlatt::ratingsAreTakenAsTheyStand_data()
{
    QTest::addColumn<QString>("urteil");
    QTest::newRow("suitable") << QStringLiteral("+");
    QTest::newRow("neutral") << QStringLiteral("0");
    QTest::newRow("unsuitable") << QStringLiteral("-");
    QTest::newRow("words of one's own") << QStringLiteral("kaum");
    QTest::newRow("nothing") << QString();
}

void TestEigeneBlatt::ratingsAreTakenAsTheyStand()
{
    QFETCH(QString, urteil);
    oeffne();
    trageEin(QStringLiteral("Apfelmus"));
    Auswahlfeld *feld = controller().EingabeFenstergicht;
    feld->setFocus();
    feld->lineEdit()->selectAll();
    QTest::keyClick(feld, Qt::Key_Delete);
    QTest::keyClicks(feld, urteil);
    uebernimm();
    QCOMPARE(controller().gichtfeld->stringValue(), urteil);
    QCOMPARE(datei().value(QStringLiteral("Apfelmus")).gicht(), urteil);
    QCOMPARE(datei().value(QStringLiteral("Apfelmus")).hkk(), QStringLiteral("0"));
}

void TestEigeneBlatt::aNameThatIsThereIsOverwritten()
{
    oeffne({lebensmittel(QStringLiteral("Apfelmus"), {{kal, 80}, {kh, 19}}),
            lebensmittel(QStringLiteral("Zimt"), {{kal, 247}})});
    trageEin(QStringLiteral("Apfelmus"), QStringLiteral("75"));
    uebernimm();
    QCOMPARE(controller().KundenArray,
             QStringList({QStringLiteral("Apfelmus"), QStringLiteral("Zimt")}));
    QCOMPARE(datei().size(), 2);
    QCOMPARE(datei()[QStringLiteral("Apfelmus")].kal(), 75.0F);
    QCOMPARE(datei()[QStringLiteral("Apfelmus")].kh(), 0.0F);
    QVERIFY(m_heim->protokoll.isEmpty());
    trageEin(QStringLiteral("apfelmus"), QStringLiteral("1")); // case counts
    uebernimm();
    QCOMPARE(controller().KundenArray.size(), 3);
    QCOMPARE(datei()[QStringLiteral("Apfelmus")].kal(), 75.0F);
}

void TestEigeneBlatt::aBuiltInNameIsAllowed()
{
    oeffne();
    trageEin(QStringLiteral("Brot"), QStringLiteral("1"));
    uebernimm();
    QCOMPARE(controller().KundenArray, QStringList{QStringLiteral("Brot")});
    QCOMPARE(controller().Dictionary[QStringLiteral("Brot")].kal(), 240.0F);
    QCOMPARE(controller().Array.size(), 3);
}

void TestEigeneBlatt::theTableTakesTheFoodInAtOnce()
{
    oeffne();
    trageEin(QStringLiteral("Apfelmus"), QStringLiteral("80"));
    uebernimm();
    controller().Fensterschliessen();
    m_fenster->klicke(1, inName);
    m_fenster->klicke(0, inEigen);
    QCOMPARE(Probefenster::text(*controller().feldA), QStringLiteral("Apfelmus"));
    QCOMPARE(Probefenster::text(*controller().feldB), QStringLiteral("80 kcal"));
    QCOMPARE(controller().unuebersetztername, QStringLiteral("Apfelmus"));
    QVERIFY(controller().loeschenknopf->isEnabled());
}

/// The food is saved, not chosen.
void TestEigeneBlatt::nothingElseMoves()
{
    oeffne();
    controller().Fensterschliessen();
    m_fenster->klicke(1, inName);
    const QString bedarf = Probefenster::text(*controller().catagesbedarffeld);
    const Textfarbe farbe = controller().uebergewichtfeld->textColor();
    controller().Fenster();
    trageEin(QStringLiteral("Apfelmus"));
    controller().EingabeFensteruebergewicht->setCurrentText(QStringLiteral("-"));
    uebernimm();
    QCOMPARE(controller().Tabelle->selectedRow(), 1);
    QCOMPARE(AppController::angeklickteSpalte, 0);
    QCOMPARE(controller().welcheTabelleAktiv, 1);
    QCOMPARE(controller().unuebersetztername, QStringLiteral("Brot"));
    QVERIFY(!controller().loeschenknopf->isEnabled());
    QCOMPARE(Probefenster::text(*controller().catagesbedarffeld), bedarf);
    QVERIFY(controller().uebergewichtfeld->textColor() == farbe);
    QCOMPARE(m_fenster->zelle(1, inName).text, QStringLiteral("Apfelmus")); // the display's name
    QVERIFY(controller().sichernBox->isHidden());
}

void TestEigeneBlatt::hiddenValuesStayHidden()
{
    oeffne();
    controller().Fensterschliessen();
    m_fenster->klicke(1, inName);
    QVERIFY(!controller().cholfeld->isHidden());
    QVERIFY(controller().proteinfeld->isHidden());
    controller().Fenster();
    trageEin(QStringLiteral("Apfelmus"));
    controller().EingabeFensterproteinfeld->insert(QStringLiteral("7"));
    uebernimm();
    QVERIFY(!controller().cholfeld->isHidden());
    QVERIFY(controller().proteinfeld->isHidden());
    QVERIFY(controller().proteineinaus->isHidden());
}

void TestEigeneBlatt::theSheetStaysOpenAndKeepsItsText()
{
    oeffne();
    trageEin(QStringLiteral("Apfelmus"), QStringLiteral("80"));
    uebernimm();
    QVERIFY(controller().einfenster->isVisible());
    QCOMPARE(controller().EingabeFensterfeldA->text(), QStringLiteral("Apfelmus"));
    QCOMPARE(controller().EingabeFensterfeldB->text(), QStringLiteral("80"));
    trageEin(QStringLiteral("Apfelmus 2"), QStringLiteral("81"));
    uebernimm();
    QCOMPARE(controller().KundenArray.size(), 2);
}

void TestEigeneBlatt::thePlanIsToldFirst()
{
    oeffne();
    Probeplan &plan = *new Probeplan; // the window takes it over
    controller().planmodul = &plan;
    bool vorher = false;
    plan.beimSichern = [this, &vorher] {
        vorher = controller().KundenArray.isEmpty() && controller().KundenDictionary.isEmpty() &&
                 !QFile::exists(m_heim->eigeneDatei()) && m_heim->protokoll.isEmpty() &&
                 controller().feldA->stringValue() == QStringLiteral("Apfelmus");
    };
    trageEin(QStringLiteral("Apfelmus"), QStringLiteral("80,5"));
    controller().EingabeFenstervitcfeld->insert(QStringLiteral("3"));
    controller().EingabeFensterhkk->setCurrentText(QStringLiteral("+"));
    uebernimm();
    QVERIFY(vorher);
    QCOMPARE(plan.gesichert.size(), 1);
    QCOMPARE(inhalt(plan.gesichert[0]),
             inhalt(lebensmittel(QStringLiteral("Apfelmus"), {{kal, 80.5F}, {vitc, 3}},
                                 {QStringLiteral("0"), QStringLiteral("0"), QStringLiteral("0"),
                                  QStringLiteral("+")})));
    QVERIFY(plan.geloescht.isEmpty());
    uebernimm(); // and again at each save
    QCOMPARE(plan.gesichert.size(), 2);
}

void TestEigeneBlatt::withoutAPlanNothingIsMissing()
{
    oeffne();
    QVERIFY(controller().planmodul == nullptr);
    trageEin(QStringLiteral("Apfelmus"));
    uebernimm();
    QCOMPARE(datei().size(), 1);
}

void TestEigeneBlatt::aNewNameIsLogged()
{
    oeffne({lebensmittel(QStringLiteral("Zimt"))});
    trageEin(QStringLiteral("Apfelmus"));
    uebernimm();
    QCOMPARE(m_heim->protokoll.size(), 2);
    QCOMPARE(m_heim->protokoll[0], QStringLiteral("felda = Apfelmus"));
    QVERIFY(m_heim->protokoll[1].startsWith(QStringLiteral("array = ")));
    QVERIFY(m_heim->protokoll[1].contains(QStringLiteral("Zimt")));
    QVERIFY(m_heim->protokoll[1].contains(QStringLiteral("Apfelmus")));
    uebernimm();
    QCOMPARE(m_heim->protokoll.size(), 2); // not when it is changed
}

QTEST_MAIN(TestEigeneBlatt)
#include "TestEigeneBlatt.moc"
