#include "Probefenster.h"

#include <QComboBox>
#include <QTest>

using enum Naehrwert;

/// The search by profile: its six switches and what each of them asks of a food.
class TestSucheProfil : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_heim = std::make_unique<Probeheim>(); }
    void cleanup();
    void atTheStartNoSwitchIsOn();
    void aSwitchWakesItsCriterion_data();
    void aSwitchWakesItsCriterion();
    void theRunningIndexEndsAtSix();
    void aNumberIsComparedStrictly_data();
    void aNumberIsComparedStrictly();
    void numbersAreSinglePrecision();
    void commaAndPointAreAlike_data();
    void commaAndPointAreAlike();
    void aNumberIsShownToItsLastDigit();
    void aRatingMustBeEqual_data();
    void aRatingMustBeEqual();
    void anUnknownTextIsMetByNoFood_data();
    void anUnknownTextIsMetByNoFood();
    void allSwitchedCriteriaMustBeMet();
    void withAllSwitchesOffEveryFoodIsFound();
    void ownFoodsComeFirst();
    void theColumnTranslatesAndKeepsTheKeys();
    void nothingFoundLeavesTheColumnEmpty();
    void theDisplayAndTheSelectionStay();
    void theSearchesReplaceEachOther();
    void everyWayToSearch_data();
    void everyWayToSearch();
    void thePanelOpensAndCloses();
    void theIndicatorShowsWhileTheSearchRuns();

private:
    void oeffne(const QList<Datenmodul> &eingebaut, const QList<Datenmodul> &eigene = {});
    void schalte(int zelle) const { controller().suchprofileinaus->zelle(zelle)->click(); }
    void waehle(Auswahlfeld *feld, const QString &text) const;
    void tippe(Textfeld *feld, const QString &text) const;
    AppController &controller() const { return m_fenster->controller(); }
    /// The controls of a switch's criterion.
    QList<QWidget *> kriterien(int zelle) const;
    /// The first of them, with the operator or the rating.
    Auswahlfeld *wahl(int zelle) const
    {
        return static_cast<Auswahlfeld *>(kriterien(zelle).first());
    }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

enum Schalter { protein_, uebergewicht_, diabetes_, gicht_, hkk_, energie_ };

Datenmodul speise(const char *name, float gramm, float kilokalorien, const char *urteile = "0000")
{
    QStringList einzeln;
    for (const char *urteil = urteile; *urteil != '\0'; ++urteil) {
        einzeln << QString(QLatin1Char(*urteil));
    }
    return lebensmittel(QString::fromUtf8(name), {{protein, gramm}, {kal, kilokalorien}}, einzeln);
}

QStringList liste(const char *namen)
{
    return QString::fromUtf8(namen).split(u'|', Qt::SkipEmptyParts);
}

} // namespace

void TestSucheProfil::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestSucheProfil::oeffne(const QList<Datenmodul> &eingebaut, const QList<Datenmodul> &eigene)
{
    m_heim->schreibeTabelle(verzeichnis(eingebaut));
    m_heim->schreibeEigene(verzeichnis(eigene));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    controller().profilaufzu->click();
}

void TestSucheProfil::waehle(Auswahlfeld *feld, const QString &text) const
{
    feld->setFocus();
    for (int i = 0; i < feld->count() && feld->stringValue() != text; ++i) {
        QTest::keyClick(feld, i == 0 ? Qt::Key_Home : Qt::Key_Down);
    }
    QCOMPARE(feld->stringValue(), text);
    QCOMPARE(feld->currentText(), text);
}

void TestSucheProfil::tippe(Textfeld *feld, const QString &text) const
{
    feld->setFocus();
    feld->selectAll();
    QTest::keyClicks(feld, text);
}

QList<QWidget *> TestSucheProfil::kriterien(int zelle) const
{
    const QList<QList<QWidget *>> alle = {
        {controller().proteingroesserkleiner, controller().proteineingabe},
        {controller().uebergewichtprofil},
        {controller().diabetesprofil},
        {controller().gichtprofil},
        {controller().hkkprofil},
        {controller().kaloriengroesserkleiner, controller().kalorieneingabe}};
    return alle[zelle];
}

void TestSucheProfil::atTheStartNoSwitchIsOn()
{
    oeffne({speise("Apfel", 1, 50)});
    for (int zelle = 0; zelle < 6; ++zelle) {
        QVERIFY(!controller().suchprofileinaus->istEin(zelle));
        for (const QWidget *feld : kriterien(zelle)) {
            QVERIFY(!feld->isEnabled());
        }
    }
    QVERIFY(controller().suchArray.isEmpty()); // nothing was searched for
    QCOMPARE(controller().suchprofileinaus->zellen().size(), 6);
}

void TestSucheProfil::aSwitchWakesItsCriterion_data()
{
    QTest::addColumn<int>("zelle");
    const char *const namen[] = {"protein", "overweight", "diabetes", "gout", "heart", "energy"};
    for (int zelle = 0; zelle < 6; ++zelle) {
        QTest::newRow(namen[zelle]) << zelle;
    }
}

void TestSucheProfil::aSwitchWakesItsCriterion()
{
    QFETCH(int, zelle);
    oeffne({speise("Apfel", 1, 50)});
    for (const bool ein : {true, false}) {
        schalte(zelle);
        for (int i = 0; i < 6; ++i) {
            for (const QWidget *feld : kriterien(i)) {
                QCOMPARE(feld->isEnabled(), i == zelle && ein);
            }
        }
    }
}

void TestSucheProfil::theRunningIndexEndsAtSix()
{
    oeffne({speise("Apfel", 1, 50)});
    controller().zaehlereinaus = 0;
    controller().proteinsuche();
    QCOMPARE(controller().zaehlereinaus, 6);
    schalte(hkk_);
    QCOMPARE(controller().zaehlereinaus, 6);
}

void TestSucheProfil::aNumberIsComparedStrictly_data()
{
    QTest::addColumn<int>("schalter");
    QTest::addColumn<QString>("vergleich");
    QTest::addColumn<QString>("zahl");
    QTest::addColumn<QStringList>("treffer");
    const auto zeile = [](const char *name, int schalter, const char *vergleich, const char *zahl,
                          const char *treffer) {
        QTest::newRow(name) << schalter << QString::fromLatin1(vergleich)
                            << QString::fromLatin1(zahl) << liste(treffer);
    };
    zeile("protein above 10", protein_, ">", "10", "drüber");
    zeile("protein below 10", protein_, "<", "10", "drunter|nichts");
    zeile("protein of 10", protein_, "=", "10", "genau");
    zeile("protein above 0", protein_, ">", "0", "drüber|drunter|genau");
    zeile("protein of 0", protein_, "=", "0", "nichts");
    zeile("protein below 0", protein_, "<", "0", "");
    zeile("an empty field is 0", protein_, "=", "", "nichts");
    zeile("energy above 100", energie_, ">", "100", "drunter");
    zeile("energy below 100", energie_, "<", "100", "drüber|nichts");
    zeile("energy of 100", energie_, "=", "100", "genau");
}

void TestSucheProfil::aNumberIsComparedStrictly()
{
    QFETCH(int, schalter);
    QFETCH(QString, vergleich);
    QFETCH(QString, zahl);
    QFETCH(QStringList, treffer);
    oeffne({speise("drunter", 9.9F, 101), speise("genau", 10, 100), speise("drüber", 10.1F, 99),
            speise("nichts", 0, 0)});
    schalte(schalter);
    const bool eiweiss = schalter == protein_;
    waehle(eiweiss ? controller().proteingroesserkleiner : controller().kaloriengroesserkleiner,
           vergleich);
    Textfeld *eingabe = eiweiss ? controller().proteineingabe : controller().kalorieneingabe;
    tippe(eingabe, zahl);
    if (zahl.isEmpty()) {
        QTest::keyClick(eingabe, Qt::Key_Delete);
    }
    QTest::mouseClick(controller().profilsuchen, Qt::LeftButton);
    QCOMPARE(controller().suchArray, treffer);
    QCOMPARE(controller().suchArray2, treffer);
}

void TestSucheProfil::numbersAreSinglePrecision()
{
    oeffne({speise("ein Zehntel", 0.1F, 99.9F)});
    schalte(protein_);
    schalte(energie_);
    for (const char *vergleich : {"=", ">", "<"}) {
        waehle(controller().proteingroesserkleiner, QString::fromLatin1(vergleich));
        waehle(controller().kaloriengroesserkleiner, QString::fromLatin1(vergleich));
        tippe(controller().proteineingabe, QStringLiteral("0,1"));
        tippe(controller().kalorieneingabe, QStringLiteral("99,9"));
        QTest::keyClick(controller().kalorieneingabe, Qt::Key_Return);
        QCOMPARE(controller().suchArray.size(), *vergleich == '=' ? 1 : 0);
    }
}

void TestSucheProfil::commaAndPointAreAlike_data()
{
    QTest::addColumn<QString>("sprache");
    QTest::addColumn<QString>("zahl");
    for (const char *sprache : {"de", "en"}) {
        for (const char *zahl : {"1,25", "1.25", "1.250", "1,250"}) {
            QTest::addRow("%s in %s", zahl, sprache)
                << QString::fromLatin1(sprache) << QString::fromLatin1(zahl);
        }
    }
}

void TestSucheProfil::commaAndPointAreAlike()
{
    QFETCH(QString, sprache);
    QFETCH(QString, zahl);
    QLocale::setDefault(QLocale(sprache));
    oeffne({speise("fünf Viertel", 1.25F, 100)});
    schalte(protein_);
    waehle(controller().proteingroesserkleiner, QStringLiteral("="));
    tippe(controller().proteineingabe, zahl);
    QTest::keyClick(controller().proteineingabe, Qt::Key_Return);
    QCOMPARE(controller().suchArray, liste("fünf Viertel"));
}

void TestSucheProfil::aNumberIsShownToItsLastDigit()
{
    oeffne({speise("genau", 12.34F, 1234.5F)});
    QCOMPARE(Probefenster::text(*controller().proteineingabe), QStringLiteral("10 g"));
    QCOMPARE(Probefenster::text(*controller().kalorieneingabe), QStringLiteral("100 kcal"));
    schalte(protein_);
    schalte(energie_);
    waehle(controller().proteingroesserkleiner, QStringLiteral("="));
    waehle(controller().kaloriengroesserkleiner, QStringLiteral("="));
    tippe(controller().proteineingabe, QStringLiteral("12,34"));
    tippe(controller().kalorieneingabe, QStringLiteral("1.234,5"));
    QTest::mouseClick(controller().profilsuchen, Qt::LeftButton);
    controller().suchfeld->setFocus();
    for (int mal = 0; mal < 2; ++mal) {
        QCOMPARE(Probefenster::text(*controller().proteineingabe), QStringLiteral("12,34 g"));
        QCOMPARE(Probefenster::text(*controller().kalorieneingabe), QStringLiteral("1234,5 kcal"));
        QCOMPARE(controller().suchArray, liste("genau"));
        controller().profilaufzu->click(); // put away
        QVERIFY(!controller().proteineingabe->isVisible());
        controller().profilaufzu->click();
        QVERIFY(controller().proteineingabe->isVisible());
    }
}

void TestSucheProfil::aRatingMustBeEqual_data()
{
    QTest::addColumn<int>("schalter");
    QTest::addColumn<QString>("urteil");
    QTest::addColumn<QStringList>("treffer");
    const auto zeile = [](const char *name, int schalter, const char *urteil, const char *treffer) {
        QTest::newRow(name) << schalter << QString::fromLatin1(urteil) << liste(treffer);
    };
    zeile("good for the weight", uebergewicht_, "+", "A");
    zeile("neutral for the weight", uebergewicht_, "0", "B");
    zeile("bad for the weight", uebergewicht_, "-", "C|D");
    zeile("good for diabetics", diabetes_, "+", "B");
    zeile("neutral for diabetics", diabetes_, "0", "C|D");
    zeile("bad for diabetics", diabetes_, "-", "A");
    zeile("good against gout", gicht_, "+", "C|D");
    zeile("neutral for gout", gicht_, "0", "A");
    zeile("bad for gout", gicht_, "-", "B");
    zeile("good for the heart", hkk_, "+", "A|B");
    zeile("neutral for the heart", hkk_, "0", "C");
    zeile("bad for the heart", hkk_, "-", "D");
}

void TestSucheProfil::aRatingMustBeEqual()
{
    QFETCH(int, schalter);
    QFETCH(QString, urteil);
    QFETCH(QStringList, treffer);
    Datenmodul ohneUrteil;
    ohneUrteil.setName(QStringLiteral("unbeurteilt"));
    oeffne({speise("A", 1, 1, "+-0+"), speise("B", 1, 1, "0+-+"), speise("C", 1, 1, "-0+0"),
            speise("D", 1, 1, "-0+-"), speise("E", 1, 1, "xxxx"), ohneUrteil});
    schalte(schalter);
    waehle(wahl(schalter), urteil);
    QTest::mouseClick(controller().profilsuchen, Qt::LeftButton);
    QCOMPARE(controller().suchArray, treffer);
}

void TestSucheProfil::anUnknownTextIsMetByNoFood_data()
{
    QTest::addColumn<int>("schalter");
    QTest::addColumn<QString>("text");
    QTest::newRow("an operator") << int(protein_) << QStringLiteral(">=");
    QTest::newRow("no operator") << int(energie_) << QString();
    QTest::newRow("a rating, though a food has it") << int(gicht_) << QStringLiteral("x");
    QTest::newRow("no rating, though a food has none") << int(hkk_) << QString();
}

void TestSucheProfil::anUnknownTextIsMetByNoFood()
{
    QFETCH(int, schalter);
    QFETCH(QString, text);
    oeffne({speise("A", 10, 100, "xxxx"), speise("B", 10, 100, ""), speise("C", 11, 101)});
    schalte(schalter);
    wahl(schalter)->setStringValue(text);
    controller().proteinsuche();
    QVERIFY(controller().suchArray.isEmpty());
    schalte(schalter);
    QCOMPARE(controller().suchArray.size(), 3); // a criterion that is off is met
}

void TestSucheProfil::allSwitchedCriteriaMustBeMet()
{
    oeffne({speise("alles", 11, 99, "++++"), speise("wenig Protein", 10, 99, "++++"),
            speise("viel Energie", 11, 100, "++++"), speise("Gewicht", 11, 99, "0+++"),
            speise("Zucker", 11, 99, "+0++"), speise("Gicht", 11, 99, "++0+"),
            speise("Herz", 11, 99, "+++0")});
    waehle(controller().kaloriengroesserkleiner, QStringLiteral(">"));
    for (int zelle = 0; zelle < 6; ++zelle) {
        schalte(zelle);
    }
    waehle(controller().kaloriengroesserkleiner, QStringLiteral("<"));
    QTest::mouseClick(controller().profilsuchen, Qt::LeftButton);
    QCOMPARE(controller().suchArray, liste("alles"));
    schalte(gicht_); // off again, which searches too
    QCOMPARE(controller().suchArray, liste("alles|Gicht"));
}

void TestSucheProfil::withAllSwitchesOffEveryFoodIsFound()
{
    oeffne({speise("B", 1, 1), speise("A", 2, 2)}, {speise("Z", 3, 3)});
    QTest::mouseClick(controller().profilsuchen, Qt::LeftButton);
    QCOMPARE(controller().suchArray, liste("Z|A|B"));
}

void TestSucheProfil::ownFoodsComeFirst()
{
    oeffne({speise("Ahorn", 20, 1), speise("Brot", 20, 1), speise("Quark", 9, 1)},
           {speise("Zimt", 20, 1), speise("Brot", 20, 1), speise("aus dem Garten", 20, 1)});
    schalte(protein_);
    const QStringList treffer = liste("aus dem Garten|Brot|Zimt|Ahorn|Brot");
    QCOMPARE(controller().suchArray, treffer);
    QCOMPARE(controller().suchArray2, treffer);
}

void TestSucheProfil::theColumnTranslatesAndKeepsTheKeys()
{
    const Probeuebersetzer englisch({{QStringLiteral("Apfel"), QStringLiteral("Apple")}});
    oeffne({speise("Apfel", 1, 1), speise("Zucker", 1, 1)});
    controller().proteinsuche();
    QCOMPARE(controller().suchArray, liste("Apfel|Zucker"));
    QCOMPARE(controller().suchArray2, liste("Apfel|Zucker"));
    QCOMPARE(m_fenster->zelle(0, inSuch).text, QStringLiteral("Apple"));
    QCOMPARE(controller().Tabelle->modell()->ziehtext(inSuch, 0), QStringLiteral("Apfel"));
    m_fenster->klicke(0, inSuch);
    QCOMPARE(Probefenster::text(*controller().feldA), QStringLiteral("Apple"));
}

void TestSucheProfil::nothingFoundLeavesTheColumnEmpty()
{
    oeffne({speise("Apfel", 1, 1), speise("Zucker", 1, 1)});
    schalte(protein_); // above 10
    QVERIFY(controller().suchArray.isEmpty());
    QVERIFY(controller().suchArray2.isEmpty());
    QCOMPARE(m_fenster->zelle(0, inSuch).text, QString());
    QVERIFY(m_heim->meldungen.isEmpty());
}

void TestSucheProfil::theDisplayAndTheSelectionStay()
{
    oeffne({speise("Apfel", 1, 1), speise("Brot", 1, 2), speise("Zucker", 1, 3)});
    m_fenster->klicke(1, inName);
    schalte(protein_);
    QTest::mouseClick(controller().profilsuchen, Qt::LeftButton);
    QCOMPARE(controller().Tabelle->selectedRow(), 1);
    QCOMPARE(Probefenster::text(*controller().feldA), QStringLiteral("Brot"));
    QCOMPARE(AppController::angeklickteSpalte, 0);
}

void TestSucheProfil::theSearchesReplaceEachOther()
{
    oeffne({speise("Apfel", 1, 1), speise("Brot", 1, 2), speise("Zucker", 1, 3)});
    controller().suchfeld->setStringValue(QStringLiteral("brot"));
    controller().suchen(*controller().suchfeld);
    QCOMPARE(controller().suchArray, liste("-|Brot"));
    controller().proteinsuche();
    QCOMPARE(controller().suchArray, liste("Apfel|Brot|Zucker"));
    controller().suchen(*controller().suchfeld);
    QCOMPARE(controller().suchArray2, liste("-|Brot"));
}

void TestSucheProfil::everyWayToSearch_data()
{
    QTest::addColumn<QString>("weg");
    for (const char *weg : {"button", "switch", "Return in protein", "Return in energy"}) {
        QTest::newRow(weg) << QString::fromLatin1(weg);
    }
}

void TestSucheProfil::everyWayToSearch()
{
    QFETCH(QString, weg);
    oeffne({speise("Apfel", 1, 1)});
    if (weg == QStringLiteral("button")) {
        QTest::mouseClick(controller().profilsuchen, Qt::LeftButton);
    } else if (weg == QStringLiteral("switch")) {
        schalte(hkk_);
        controller().suchArray.clear();
        schalte(hkk_);
    } else {
        const bool protein = weg.endsWith(QStringLiteral("protein"));
        controller().suchprofileinaus->waehle(protein ? protein_ : energie_);
        controller().proteinsuche(); // the field is asleep before
        controller().suchArray.clear();
        Textfeld *feld = protein ? controller().proteineingabe : controller().kalorieneingabe;
        tippe(feld, QStringLiteral("0"));
        QVERIFY(controller().suchArray.isEmpty());
        QTest::keyClick(feld, Qt::Key_Return);
    }
    QCOMPARE(controller().suchArray, liste("Apfel"));
}

void TestSucheProfil::thePanelOpensAndCloses()
{
    oeffne({speise("Apfel", 1, 1)});
    QVERIFY(controller().suchprofileinaus->isVisible());
    QTest::mouseClick(controller().profilaufzu, Qt::LeftButton);
    QVERIFY(!controller().suchprofileinaus->isVisible());
    QTest::keyClick(controller().Hauptfenster, Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(controller().suchprofileinaus->isVisible());
    QVERIFY(controller().suchArray.isEmpty());
}

void TestSucheProfil::theIndicatorShowsWhileTheSearchRuns()
{
    oeffne({speise("Apfel", 1, 1)});
    QVERIFY(controller().suchfortschritt->isHidden());
    struct : QObject
    {
        QStringList verlauf;
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
                verlauf << (event->type() == QEvent::Show ? QStringLiteral("Start")
                                                          : QStringLiteral("Stop"));
            }
            return false;
        }
    } horcher;
    controller().suchfortschritt->installEventFilter(&horcher);
    QTest::mouseClick(controller().profilsuchen, Qt::LeftButton);
    QCOMPARE(horcher.verlauf, liste("Start|Stop"));
}

QTEST_MAIN(TestSucheProfil)
#include "TestSucheProfil.moc"
