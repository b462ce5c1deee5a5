#include "Probefenster.h"

#include <QTest>

using enum Naehrwert;

/// The selection action in the columns of the built-in and of the own foods.
class TestAuswahl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_heim = std::make_unique<Probeheim>(); }
    void cleanup();
    void rowsWithASecondNameShowTheirFood_data();
    void rowsWithASecondNameShowTheirFood();
    void rowsWithASecondNameReachIntoTheOwnFoods_data();
    void rowsWithASecondNameReachIntoTheOwnFoods();
    void row0HidesTheShareBars_data();
    void row0HidesTheShareBars();
    void theListOfTheClickedColumnIsShown_data();
    void theListOfTheClickedColumnIsShown();
    void anOwnFoodMayHaveTheNameOfABuiltInOne();
    void anEmptyCellLeavesTheDisplay_data();
    void anEmptyCellLeavesTheDisplay();
    void anEmptyCellIsNoFoodWithoutName();
    void mettwurstIsNeverShown_data();
    void mettwurstIsNeverShown();
    void mettwurstWithAnythingBehindItIsShown();
    void rowsFrom1016OnHideTheDisplay_data();
    void rowsFrom1016OnHideTheDisplay();
    void beyondRow1015TheEvaluationGoesOnWithWhatStands();
    void aClickBesideTheRowsChangesNothing();
    void everyValueFindsItsField();
    void theTextsAreThoseOfTheRecord();
    void theNumberOfFoodsIsShownAgain();
    void whatIsDisplayedGoesBackIntoARecord();

private:
    void oeffne(const Lebensmittelverzeichnis &eingebaut,
                const Lebensmittelverzeichnis &eigene = {});
    AppController &controller() const { return m_fenster->controller(); }
    bool regler(bool bedienbar) const;
    bool balken(bool sichtbar) const;
    bool wertungen(bool sichtbar) const;
    QString gezeigt() const { return Probefenster::text(*controller().feldA); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

void TestAuswahl::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestAuswahl::oeffne(const Lebensmittelverzeichnis &eingebaut,
                         const Lebensmittelverzeichnis &eigene)
{
    m_heim->schreibeTabelle(eingebaut);
    m_heim->schreibeEigene(eigene);
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

/// True when all three sliders are enabled as said, and their captions with them.
bool TestAuswahl::regler(bool bedienbar) const
{
    const AppController &c = controller();
    const QList<QWidget *> alle = {c.lebensmittelmenge,         c.lebensmittelmenge2,
                                   c.lebensmittelmenge3,        c.anzeigelebensmittelmenge,
                                   c.anzeigelebensmittelmenge2, c.anzeigelebensmittelmenge3};
    return std::all_of(alle.begin(), alle.end(),
                       [&](const QWidget *w) { return w->isEnabled() == bedienbar; });
}

bool TestAuswahl::balken(bool sichtbar) const
{
    const AppController &c = controller();
    return c.proteinanzeige->isHidden() != sichtbar && c.fettanzeige->isHidden() != sichtbar &&
           c.khanzeige->isHidden() != sichtbar;
}

bool TestAuswahl::wertungen(bool sichtbar) const
{
    const auto &felder = controller().wertungsfelder();
    return std::all_of(felder.begin(), felder.end(),
                       [&](const Textfeld *feld) { return feld->isHidden() != sichtbar; });
}

void TestAuswahl::rowsWithASecondNameShowTheirFood_data()
{
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("gezeigt");
    QTest::newRow("574 is itself") << 574 << 574;
    QTest::newRow("575 is itself") << 575 << 575;
    QTest::newRow("576 is 575") << 576 << 575;
    QTest::newRow("577 is 575") << 577 << 575;
    QTest::newRow("578 is itself") << 578 << 578;
    QTest::newRow("603 is itself") << 603 << 603;
    QTest::newRow("604 is 575") << 604 << 575;
    QTest::newRow("605 is itself") << 605 << 605;
}

void TestAuswahl::rowsWithASecondNameShowTheirFood()
{
    QFETCH(int, zeile);
    QFETCH(int, gezeigt);
    oeffne(zaehltabelle(610));
    m_fenster->klicke(zeile, inName);
    QCOMPARE(this->gezeigt(), zaehlname(gezeigt));
    QCOMPARE(controller().unuebersetztername, zaehlname(gezeigt));
    QCOMPARE(controller().feldB->intValue(), gezeigt + 1);
    QCOMPARE(controller().Tabelle->selectedRow(), zeile); // the selection stays where it is
    QCOMPARE(m_fenster->zelle(zeile, inName).text, zaehlname(gezeigt));
}

void TestAuswahl::rowsWithASecondNameReachIntoTheOwnFoods_data()
{
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("gezeigt");
    QTest::newRow("575") << 575 << 575;
    QTest::newRow("576") << 576 << 575;
    QTest::newRow("577") << 577 << 575;
    QTest::newRow("604") << 604 << 575;
    QTest::newRow("605") << 605 << 605;
}

void TestAuswahl::rowsWithASecondNameReachIntoTheOwnFoods()
{
    QFETCH(int, zeile);
    QFETCH(int, gezeigt);
    Lebensmittelverzeichnis eigene;
    for (int i = 0; i < 610; ++i) {
        const QString name = QStringLiteral("Eigenes %1").arg(i, 4, 10, QLatin1Char('0'));
        eigene.insert(name, lebensmittel(name, {{kal, 5}}));
    }
    oeffne(zaehltabelle(610), eigene);
    m_fenster->klicke(zeile, inEigen);
    QCOMPARE(this->gezeigt(), controller().KundenArray.at(gezeigt));
}

void TestAuswahl::row0HidesTheShareBars_data()
{
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("spalte");
    QTest::addColumn<bool>("sichtbar");
    QTest::newRow("row 0 of the built-in foods") << 0 << inName << false;
    QTest::newRow("row 0 of the own foods") << 0 << inEigen << false;
    QTest::newRow("row 1 of the built-in foods") << 1 << inName << true;
    QTest::newRow("row 1 of the own foods") << 1 << inEigen << true;
}

void TestAuswahl::row0HidesTheShareBars()
{
    QFETCH(int, zeile);
    QFETCH(int, spalte);
    QFETCH(bool, sichtbar);
    oeffne(zaehltabelle(4), zaehltabelle(3));
    m_fenster->klicke(sichtbar ? 0 : 2, inName); // the other state before
    m_fenster->klicke(zeile, spalte);
    QVERIFY(balken(sichtbar));
    QVERIFY(regler(true)); // of either list, in every row
}

void TestAuswahl::theListOfTheClickedColumnIsShown_data()
{
    QTest::addColumn<int>("spalte");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("bestand");
    QTest::addColumn<bool>("loeschbar");
    QTest::newRow("built-in") << inName << zaehlname(1) << 1 << false;
    QTest::newRow("own") << inEigen << QStringLiteral("Eigenes B") << 2 << true;
}

void TestAuswahl::theListOfTheClickedColumnIsShown()
{
    QFETCH(int, spalte);
    QFETCH(QString, name);
    QFETCH(int, bestand);
    QFETCH(bool, loeschbar);
    oeffne(zaehltabelle(4), verzeichnis({lebensmittel(QStringLiteral("Eigenes A")),
                                         lebensmittel(QStringLiteral("Eigenes B"))}));
    m_fenster->klicke(0, loeschbar ? inName : inEigen); // the other state before
    m_fenster->klicke(1, spalte);
    QCOMPARE(gezeigt(), name);
    QCOMPARE(AppController::angeklickteSpalte, spalte);
    QCOMPARE(controller().welcheTabelleAktiv, bestand);
    QCOMPARE(controller().loeschenknopf->isEnabled(), loeschbar);
}

void TestAuswahl::anOwnFoodMayHaveTheNameOfABuiltInOne()
{
    oeffne(zaehltabelle(3), verzeichnis({lebensmittel(zaehlname(1), {{kal, 999}})}));
    m_fenster->klicke(0, inEigen);
    QCOMPARE(gezeigt(), zaehlname(1));
    QCOMPARE(controller().feldB->intValue(), 999);
    m_fenster->klicke(1, inName);
    QCOMPARE(gezeigt(), zaehlname(1));
    QCOMPARE(controller().feldB->intValue(), 2);
}

void TestAuswahl::anEmptyCellLeavesTheDisplay_data()
{
    QTest::addColumn<int>("spalte");
    QTest::addColumn<int>("bestand");
    QTest::newRow("of the own foods") << inEigen << 2;
    QTest::newRow("of the search results") << inSuch << 1;
}

void TestAuswahl::anEmptyCellLeavesTheDisplay()
{
    QFETCH(int, spalte);
    QFETCH(int, bestand);
    oeffne(zaehltabelle(6), zaehltabelle(2));
    m_fenster->klicke(3, inName);
    const QStringList vorher = m_fenster->gezeigteWerte();
    m_fenster->klicke(5, spalte);
    QCOMPARE(gezeigt(), zaehlname(3));
    QCOMPARE(controller().unuebersetztername, zaehlname(3));
    QCOMPARE(m_fenster->gezeigteWerte(), vorher);
    QCOMPARE(controller().welcheTabelleAktiv, bestand);
    QCOMPARE(AppController::angeklickteSpalte, spalte);
}

/// An own food may be kept under the empty name; an empty cell is not it.
void TestAuswahl::anEmptyCellIsNoFoodWithoutName()
{
    const QString ohneName = QStringLiteral("");
    oeffne(zaehltabelle(6), verzeichnis({lebensmittel(ohneName, {{kal, 77}})}));
    QCOMPARE(controller().KundenArray, QStringList{ohneName});
    m_fenster->klicke(3, inName);
    m_fenster->klicke(5, inEigen);
    QCOMPARE(gezeigt(), zaehlname(3));
    m_fenster->klicke(0, inEigen);
    QCOMPARE(gezeigt(), QString());
    QCOMPARE(controller().feldB->intValue(), 77);
}

void TestAuswahl::mettwurstIsNeverShown_data()
{
    QTest::addColumn<int>("spalte");
    QTest::addColumn<int>("bestand");
    QTest::newRow("clicked itself") << inName << 1;
    QTest::newRow("clicked the own food beside it") << inEigen << 2;
    QTest::newRow("clicked the search result beside it") << inSuch << 1;
}

/// The row is looked up in the list of the built-in foods, whatever column was clicked.
void TestAuswahl::mettwurstIsNeverShown()
{
    QFETCH(int, spalte);
    QFETCH(int, bestand);
    oeffne(
        verzeichnis({lebensmittel(QStringLiteral("Brie"), {{kal, 350}, {fett, 30}, {protein, 20}}),
                     lebensmittel(QStringLiteral("Mettwurst"), {{kal, 380}, {protein, 14}}),
                     lebensmittel(QStringLiteral("Zwieback"), {{kal, 370}, {kh, 73}})}),
        zaehltabelle(3));
    controller().suchArray = {zaehlname(0), QStringLiteral("nicht vorhanden")};
    controller().suchArray2 = controller().suchArray;
    m_fenster->klicke(2, inName);
    const QStringList vorher = m_fenster->gezeigteWerte();
    controller().DatenAnsicht->hide();
    controller().hkkfeld->hide();
    controller().hkkfeld->setTextColor(Textfarbe::Blau);
    controller().LManzahl->setStringValue(QStringLiteral("?"));
    controller().catagesbedarffeld->setStringValue(QStringLiteral("?"));
    controller().kaefeld->setStringValue(QStringLiteral("?"));
    controller().joulefeld->setStringValue(QStringLiteral("?"));

    m_fenster->klicke(1, spalte);
    QCOMPARE(gezeigt(), QStringLiteral("Zwieback"));
    QCOMPARE(controller().unuebersetztername, QStringLiteral("Zwieback"));
    QCOMPARE(m_fenster->gezeigteWerte(), vorher);
    QVERIFY(!controller().DatenAnsicht->isHidden());
    QVERIFY(wertungen(true));
    QVERIFY(controller().hkkfeld->textColor() == Textfarbe::Blau);
    QCOMPARE(controller().kalumrkh, 100.0F);
    for (const Textfeld *feld : {controller().LManzahl, controller().catagesbedarffeld,
                                 controller().kaefeld, controller().joulefeld}) {
        QCOMPARE(feld->stringValue(), QStringLiteral("?"));
    }
    // What comes before the stop has happened.
    QVERIFY(balken(true));
    QVERIFY(regler(spalte != inSuch));
    QCOMPARE(controller().loeschenknopf->isEnabled(), spalte == inEigen);
    QCOMPARE(controller().welcheTabelleAktiv, bestand);
    QCOMPARE(AppController::angeklickteSpalte, spalte);
}

void TestAuswahl::mettwurstWithAnythingBehindItIsShown()
{
    const QString name = QStringLiteral("Mettwurst, luftgetrocknet");
    oeffne(verzeichnis({lebensmittel(QStringLiteral("Brie")), lebensmittel(name),
                        lebensmittel(QStringLiteral("mettwurst"))}),
           verzeichnis({lebensmittel(QStringLiteral("Mettwurst"))}));
    for (const QString &anderer : {name, QStringLiteral("mettwurst")}) {
        m_fenster->klicke(static_cast<int>(controller().Array.indexOf(anderer)), inName);
        QCOMPARE(gezeigt(), anderer);
    }
    m_fenster->klicke(0, inEigen); // an own food of that name is a food like any other
    QCOMPARE(gezeigt(), QStringLiteral("Mettwurst"));
    QCOMPARE(controller().welcheTabelleAktiv, 2);
}

void TestAuswahl::rowsFrom1016OnHideTheDisplay_data()
{
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("spalte");
    QTest::addColumn<bool>("sichtbar");
    QTest::newRow("1015 is shown") << 1015 << inName << true;
    QTest::newRow("1016 is not") << 1016 << inName << false;
    QTest::newRow("1019 is not") << 1019 << inName << false;
    QTest::newRow("an own food in row 1015 is shown") << 1015 << inEigen << true;
    QTest::newRow("an own food in row 1016 is not") << 1016 << inEigen << false;
}

void TestAuswahl::rowsFrom1016OnHideTheDisplay()
{
    QFETCH(int, zeile);
    QFETCH(int, spalte);
    QFETCH(bool, sichtbar);
    oeffne(zaehltabelle(1020), zaehltabelle(1020));
    m_fenster->klicke(sichtbar ? 1018 : 5, inName); // the other state before
    m_fenster->klicke(zeile, spalte);
    QCOMPARE(!controller().DatenAnsicht->isHidden(), sichtbar);
    QVERIFY(wertungen(sichtbar));
    QCOMPARE(gezeigt(), zaehlname(sichtbar ? zeile : 5));
    QCOMPARE(controller().welcheTabelleAktiv, spalte == inEigen ? 2 : 1);
    QVERIFY(regler(true));
    QVERIFY(balken(true));
}

void TestAuswahl::beyondRow1015TheEvaluationGoesOnWithWhatStands()
{
    oeffne(zaehltabelle(1020));
    m_fenster->klicke(5, inName);
    controller().khfeld->setFloatValue(20);
    controller().feldB->setFloatValue(100);
    controller().cafeld->setFloatValue(1000);
    controller().gichtfeld->setStringValue(QStringLiteral("0"));
    controller().LManzahl->setStringValue(QString());
    m_fenster->klicke(1016, inName);
    QCOMPARE(controller().gesamtkal, 120.0F); // 10 g of protein and 20 g of carbohydrate
    QCOMPARE(controller().nahrview->b(), controller().kalumrkh);
    QCOMPARE(controller().joulefeld->floatValue(), 417.91046F);
    QCOMPARE(controller().catagesbedarffeld->intValue(), 100);
    QCOMPARE(controller().kaefeld->floatValue(), 2.0F);
    QVERIFY(controller().gichtfeld->textColor() == Textfarbe::Blau);
    QCOMPARE(controller().LManzahl->intValue(), 1020);
}

void TestAuswahl::aClickBesideTheRowsChangesNothing()
{
    oeffne(zaehltabelle(4), zaehltabelle(2));
    m_fenster->klicke(1, inEigen);
    controller().catagesbedarffeld->setStringValue(QStringLiteral("?"));
    m_fenster->klickeDaneben();
    QCOMPARE(controller().Tabelle->selectedRow(), -1);
    QCOMPARE(AppController::angeklickteSpalte, -1);
    QCOMPARE(gezeigt(), zaehlname(1));
    QCOMPARE(controller().welcheTabelleAktiv, 2);
    QCOMPARE(controller().catagesbedarffeld->stringValue(), QStringLiteral("?"));
    QVERIFY(regler(true));
    QVERIFY(balken(true));
    QVERIFY(!controller().loeschenknopf->isEnabled()); // nothing is chosen to be deleted
    QVERIFY(m_heim->meldungen.isEmpty());
}

void TestAuswahl::everyValueFindsItsField()
{
    Datenmodul alles = lebensmittel(QStringLiteral("Bunter Teller"));
    for (std::size_t i = 0; i < anzahlNaehrwerte; ++i) {
        alles.setWert(static_cast<Naehrwert>(i), static_cast<float>(i) + 1.0F);
    }
    oeffne(verzeichnis({alles, lebensmittel(QStringLiteral("Apfel"))}));
    m_fenster->klicke(1, inName);
    const AppController &c = controller();
    const QList<Textfeld *> felder = {c.feldB,    c.proteinfeld, c.fettfeld, c.khfeld, c.bsfeld,
                                      c.cholfeld, c.nafeld,      c.kafeld,   c.cafeld, c.phfeld,
                                      c.mafeld,   c.fefeld,      c.vitafeld, c.b1feld, c.b2feld,
                                      c.b6feld,   c.vitcfeld};
    const QList<QWidget *> beschriftungen = {
        c.feldBeinaus,    c.proteineinaus, c.fettfeldeinaus, c.khfeldeinaus, c.bsfeldeinaus,
        c.cholfeldeinaus, c.nafeldeinaus,  c.kafeldeinaus,   c.cafeldeinaus, c.phfeldeinaus,
        c.mafeldeinaus,   c.fefeldeinaus,  c.vitafeldeinaus, c.b1feldeinaus, c.b2feldeinaus,
        c.b6feldeinaus,   c.vitcfeldeinaus};
    QCOMPARE(felder.size(), 17);
    for (int i = 0; i < felder.size(); ++i) {
        QCOMPARE(felder[i]->floatValue(), static_cast<float>(i + 1));
        QVERIFY(!felder[i]->isHidden());
        QVERIFY(!beschriftungen[i]->isHidden());
    }
    QCOMPARE(c.proteinanzeige->doubleValue(), 2.0);
    QCOMPARE(c.fettanzeige->doubleValue(), 3.0);
    QCOMPARE(c.khanzeige->doubleValue(), 4.0);
    QVERIFY(!c.joulefeld->isHidden() && !c.joulefeldeinaus->isHidden());
    m_fenster->klicke(0, inName); // the apple has nothing
    for (int i = 0; i < felder.size(); ++i) {
        QVERIFY(felder[i]->isHidden());
        QVERIFY(beschriftungen[i]->isHidden());
    }
    QVERIFY(c.joulefeld->isHidden() && c.joulefeldeinaus->isHidden());
    QVERIFY(!c.feldA->isHidden());
}

void TestAuswahl::theTextsAreThoseOfTheRecord()
{
    const Probeuebersetzer englisch({{QStringLiteral("Butter"), QStringLiteral("Butter, salted")}});
    Datenmodul butter =
        lebensmittel(QStringLiteral("Butter"), {},
                     {QStringLiteral("-"), QStringLiteral("x"), {}, QStringLiteral("0")});
    Lebensmittelverzeichnis tabelle = verzeichnis({butter, lebensmittel(QStringLiteral("Apfel"))});
    tabelle.insert(QStringLiteral("Zucker"), lebensmittel(QStringLiteral("Rohrzucker")));
    oeffne(tabelle);
    m_fenster->klicke(1, inName);
    QCOMPARE(gezeigt(), QStringLiteral("Butter, salted"));
    QCOMPARE(controller().unuebersetztername, QStringLiteral("Butter"));
    QCOMPARE(Probefenster::text(*controller().uebergewichtfeld), QStringLiteral("-"));
    QCOMPARE(Probefenster::text(*controller().diabetesfeld), QStringLiteral("x"));
    QCOMPARE(Probefenster::text(*controller().gichtfeld), QString());
    QCOMPARE(Probefenster::text(*controller().hkkfeld), QStringLiteral("0"));
    m_fenster->klicke(2, inName); // kept as "Zucker", and called something else
    QCOMPARE(gezeigt(), QStringLiteral("Rohrzucker"));
    QCOMPARE(controller().unuebersetztername, QStringLiteral("Rohrzucker"));
}

void TestAuswahl::theNumberOfFoodsIsShownAgain()
{
    oeffne(zaehltabelle(4));
    controller().LManzahl->setStringValue(QStringLiteral("12 Treffer"));
    m_fenster->klicke(2, inName);
    QCOMPARE(Probefenster::text(*controller().LManzahl), QStringLiteral("4"));
}

/// The values go back as they stand, not worked back to 100 g, and the name as it reads.
void TestAuswahl::whatIsDisplayedGoesBackIntoARecord()
{
    const Probeuebersetzer englisch({{QStringLiteral("Brot"), QStringLiteral("Bread")}});
    Datenmodul brot =
        lebensmittel(QStringLiteral("Brot"), {},
                     {QStringLiteral("-"), QStringLiteral("x"), QString(), QStringLiteral("0")});
    for (std::size_t i = 0; i < anzahlNaehrwerte; ++i) {
        brot.setWert(static_cast<Naehrwert>(i), static_cast<float>(i) * 2.0F + 1.0F);
    }
    oeffne(verzeichnis({brot}));
    m_fenster->tippeMenge(QStringLiteral("50"));
    controller().vitcfeld->setStringValue(QStringLiteral("-"));
    controller().b6feld->setStringValue(QStringLiteral("1,25 mg"));
    Datenmodul neu;
    controller().eintragen(neu);
    QCOMPARE(neu.name(), QStringLiteral("Bread"));
    for (std::size_t i = 0; i < stelle(b6); ++i) {
        QCOMPARE(neu.wert(static_cast<Naehrwert>(i)), static_cast<float>(i) + 0.5F);
    }
    QCOMPARE(neu.b6(), 1.25F);
    QCOMPARE(neu.vitc(), 0.0F);
    QCOMPARE(neu.uebergewicht(), QStringLiteral("-"));
    QCOMPARE(neu.diabetes(), QStringLiteral("x"));
    QCOMPARE(neu.gicht(), QString());
    QCOMPARE(neu.hkk(), QStringLiteral("0"));
}

QTEST_MAIN(TestAuswahl)
#include "TestAuswahl.moc"
