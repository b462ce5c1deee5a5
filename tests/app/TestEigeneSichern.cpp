#include "Archivdatei.h"
#include "Probefenster.h"
#include "Probeplan.h"

#include <QTest>

using enum Naehrwert;

/// Saving what is on display, and the save box in which one does it.
class TestEigeneSichern : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aBuiltInFoodIsCopiedUnderItsName();
    void theNameIsTheOneThatIsRead();
    void aChangedNameIsAnotherFood();
    void changedValuesAreSaved();
    void savingAgainOverwritesInPlace();
    void onlyAHundredGramsCanBeSaved_data();
    void onlyAHundredGramsCanBeSaved();
    void thePlanGetsWhatStandsInTheSheet();
    void withoutAFoodOnDisplayTheNameIsEmpty();
    void theBoxOpensAndCloses();
    void openingTheBoxMovesNothing();
    void everyWayToTheBox_data();
    void everyWayToTheBox();
    void theOpenBoxShowsEveryValue();
    void deletingIsOfferedForOwnFoods_data();
    void deletingIsOfferedForOwnFoods();
    void theDisplayCanBeTypedIntoWhileTheBoxIsOpen();
    void theValuesTakeNothingButNumbers_data();
    void theValuesTakeNothingButNumbers();
    void lookingAtAValueDoesNotRoundIt();
    void aChoiceShowsTheFoodAgain();

private:
    void oeffne(const QList<Datenmodul> &eigene = {});
    void oeffneKasten() const { QTest::mouseClick(controller().sichernaufzu, Qt::LeftButton); }
    void sichere() const { QTest::mouseClick(controller().sichernknopf, Qt::LeftButton); }
    void tippe(Textfeld *feld, const QString &text) const
    {
        feld->setFocus();
        feld->selectAll();
        QTest::keyClicks(feld, text);
    }
    Lebensmittelverzeichnis datei() const
    {
        return Archivdatei::lesen(m_heim->eigeneDatei()).archiv.verzeichnis;
    }
    AppController &controller() const { return m_fenster->controller(); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

void TestEigeneSichern::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(verzeichnis({
        lebensmittel(QStringLiteral("Apfel"), {{kal, 52}, {kh, 11.4F}}),
        lebensmittel(QStringLiteral("Brot"), {{kal, 240.25F}, {protein, 7.125F}, {na, 1540}}),
        lebensmittel(QStringLiteral("Quark"), {{kal, 70}}),
    }));
}

void TestEigeneSichern::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestEigeneSichern::oeffne(const QList<Datenmodul> &eigene)
{
    if (!eigene.isEmpty()) {
        m_heim->schreibeEigene(verzeichnis(eigene));
    }
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestEigeneSichern::aBuiltInFoodIsCopiedUnderItsName()
{
    oeffne();
    m_fenster->klicke(1, inName);
    oeffneKasten();
    sichere();
    const QString brot = QStringLiteral("Brot");
    QCOMPARE(controller().KundenArray, QStringList{brot});
    QCOMPARE(inhalt(datei()), inhalt(verzeichnis({controller().Dictionary[brot]})));
    QCOMPARE(controller().Array.size(), 3); // the built-in one stands as it did
    QCOMPARE(m_fenster->zelle(0, inEigen).text, brot);
    QCOMPARE(m_heim->protokoll.value(0), QStringLiteral("felda = Brot"));
    QCOMPARE(m_heim->protokoll.size(), 2);
}

void TestEigeneSichern::theNameIsTheOneThatIsRead()
{
    const Probeuebersetzer englisch({{QStringLiteral("Apfel"), QStringLiteral("Apple")}});
    oeffne();
    m_fenster->klicke(0, inName);
    oeffneKasten();
    sichere();
    QCOMPARE(controller().KundenArray, QStringList{QStringLiteral("Apple")});
    QCOMPARE(datei().value(QStringLiteral("Apple")).name(), QStringLiteral("Apple"));
    QCOMPARE(controller().unuebersetztername, QStringLiteral("Apfel"));
}

void TestEigeneSichern::aChangedNameIsAnotherFood()
{
    oeffne({lebensmittel(QStringLiteral("Müsli"), {{kal, 370}})});
    m_fenster->klicke(0, inEigen);
    oeffneKasten();
    tippe(controller().feldA, QStringLiteral("Morgenbrei"));
    sichere();
    QCOMPARE(controller().KundenArray,
             QStringList({QStringLiteral("Müsli"), QStringLiteral("Morgenbrei")}));
    QCOMPARE(datei()[QStringLiteral("Müsli")].kal(), 370.0F);
    QCOMPARE(datei()[QStringLiteral("Morgenbrei")].kal(), 370.0F);
    QCOMPARE(datei()[QStringLiteral("Morgenbrei")].name(), QStringLiteral("Morgenbrei"));
}

void TestEigeneSichern::changedValuesAreSaved()
{
    oeffne({lebensmittel(QStringLiteral("Müsli"), {{kal, 370}})});
    m_fenster->klicke(0, inEigen);
    oeffneKasten();
    for (std::size_t i = 0; i < anzahlNaehrwerte; ++i) {
        tippe(controller().wertfelder()[i], QStringLiteral("%1,25").arg(i + 1));
    }
    const QStringList urteile = {QStringLiteral("-"), QStringLiteral("+"), QStringLiteral("0"),
                                 QStringLiteral("na ja")};
    for (std::size_t i = 0; i < anzahlWertungen; ++i) {
        tippe(controller().wertungsfelder()[i], urteile[static_cast<int>(i)]);
    }
    sichere();
    const Datenmodul gesichert = datei().value(QStringLiteral("Müsli"));
    for (const auto &zeile : naehrwerte) {
        QCOMPARE(gesichert.wert(zeile.wert), static_cast<float>(stelle(zeile.wert)) + 1.25F);
    }
    for (const auto &zeile : wertungen) {
        QCOMPARE(gesichert.wertung(zeile.wertung),
                 urteile[static_cast<int>(stelle(zeile.wertung))]);
    }
    QVERIFY(m_heim->protokoll.isEmpty());
}

void TestEigeneSichern::savingAgainOverwritesInPlace()
{
    oeffne({lebensmittel(QStringLiteral("A"), {{kal, 1}}),
            lebensmittel(QStringLiteral("B"), {{kal, 2}}),
            lebensmittel(QStringLiteral("C"), {{kal, 3}})});
    m_fenster->klicke(1, inEigen);
    oeffneKasten();
    tippe(controller().feldB, QStringLiteral("99"));
    sichere();
    sichere();
    QCOMPARE(controller().KundenArray,
             QStringList({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}));
    QCOMPARE(datei()[QStringLiteral("B")].kal(), 99.0F);
    QCOMPARE(datei().size(), 3);
    m_fenster->klicke(0, inName);
    m_fenster->klicke(1, inEigen);
    QCOMPARE(controller().feldB->intValue(), 99);
}

void TestEigeneSichern::onlyAHundredGramsCanBeSaved_data()
{
    QTest::addColumn<QString>("gramm");
    QTest::addColumn<bool>("sicherbar");
    QTest::newRow("less") << QStringLiteral("99") << false;
    QTest::newRow("more") << QStringLiteral("101") << false;
    QTest::newRow("as many") << QStringLiteral("100") << true;
}

void TestEigeneSichern::onlyAHundredGramsCanBeSaved()
{
    QFETCH(QString, gramm);
    QFETCH(bool, sicherbar);
    oeffne();
    m_fenster->klicke(1, inName);
    oeffneKasten();
    QVERIFY(controller().sichernknopf->isEnabled());
    m_fenster->tippeMenge(QStringLiteral("50"));
    m_fenster->tippeMenge(gramm);
    QCOMPARE(controller().sichernknopf->isEnabled(), sicherbar);
    sichere();
    QCOMPARE(controller().KundenArray.size(), sicherbar ? 1 : 0);
}

/// Even when the sheet was never opened.
void TestEigeneSichern::thePlanGetsWhatStandsInTheSheet()
{
    oeffne();
    Probeplan &plan = *new Probeplan; // the window takes it over
    controller().planmodul = &plan;
    m_fenster->klicke(1, inName);
    oeffneKasten();
    sichere();
    controller().EingabeFensterfeldA->setStringValue(QStringLiteral("Entwurf"));
    controller().EingabeFensterkhfeld->setStringValue(QStringLiteral("4,5"));
    sichere();
    const QStringList neutral(4, QStringLiteral("0"));
    QCOMPARE(plan.gesichert.size(), 2);
    QCOMPARE(inhalt(plan.gesichert[0]), inhalt(lebensmittel(QString(), {}, neutral)));
    QCOMPARE(inhalt(plan.gesichert[1]),
             inhalt(lebensmittel(QStringLiteral("Entwurf"), {{kh, 4.5F}}, neutral)));
    QCOMPARE(controller().KundenArray, QStringList{QStringLiteral("Brot")});
}

void TestEigeneSichern::withoutAFoodOnDisplayTheNameIsEmpty()
{
    m_heim->schreibeTabelle({});
    oeffne();
    oeffneKasten();
    sichere();
    QCOMPARE(controller().KundenDictionary.size(), 1);
    QCOMPARE(controller().KundenArray.size(), 1);
    sichere();
    QCOMPARE(controller().KundenArray.size(), 1); // it is found again
    m_fenster.reset();
    oeffne();
    QCOMPARE(controller().KundenArray, QStringList{QString()});
}

void TestEigeneSichern::theBoxOpensAndCloses()
{
    oeffne();
    QVERIFY(controller().sichernBox->isHidden());
    QCOMPARE(controller().BoxAufZu, 0);
    for (const int offen : {1, 0, 1, 0}) {
        oeffneKasten();
        QCOMPARE(controller().BoxAufZu, offen);
        QCOMPARE(controller().sichernBox->isVisible(), offen == 1);
        QCOMPARE(controller().sichernaufzu->isChecked(), offen == 1);
        QCOMPARE(controller().sichernknopf->isVisible(), offen == 1);
        QCOMPARE(controller().loeschenknopf->isVisible(), offen == 1);
    }
    QVERIFY(controller().KundenArray.isEmpty());
}

void TestEigeneSichern::openingTheBoxMovesNothing()
{
    oeffne();
    const QSize fenster = controller().Hauptfenster->size();
    const QRect ansicht = controller().DatenAnsicht->geometry();
    const QRect knopf = controller().sichernaufzu->geometry();
    for (const bool offen : {true, false}) {
        oeffneKasten();
        QCoreApplication::processEvents();
        QCOMPARE(controller().sichernBox->isVisible(), offen);
        QCOMPARE(controller().Hauptfenster->size(), fenster);
        QCOMPARE(controller().DatenAnsicht->geometry(), ansicht);
        QCOMPARE(controller().sichernaufzu->geometry(), knopf);
    }
}

void TestEigeneSichern::everyWayToTheBox_data()
{
    QTest::addColumn<bool>("menue");
    QTest::newRow("the keys of the menu") << true;
    QTest::newRow("the action itself") << false;
}

void TestEigeneSichern::everyWayToTheBox()
{
    QFETCH(bool, menue);
    oeffne();
    for (const bool offen : {true, false}) {
        if (menue) {
            QTest::keyClick(controller().Hauptfenster, Qt::Key_S, Qt::ControlModifier);
        } else {
            controller().SichernFensterAuf();
        }
        QCOMPARE(controller().sichernBox->isVisible(), offen);
        QCOMPARE(controller().sichernaufzu->isChecked(), offen);
    }
}

void TestEigeneSichern::theOpenBoxShowsEveryValue()
{
    oeffne();
    m_fenster->klicke(1, inName);
    m_fenster->tippeMenge(QStringLiteral("0"));
    const QList<QWidget *> andere = {
        controller().joulefeld,      controller().joulefeldeinaus, controller().feldBeinaus,
        controller().proteineinaus,  controller().fettfeldeinaus,  controller().khfeldeinaus,
        controller().bsfeldeinaus,   controller().cholfeldeinaus,  controller().nafeldeinaus,
        controller().kafeldeinaus,   controller().cafeldeinaus,    controller().phfeldeinaus,
        controller().mafeldeinaus,   controller().fefeldeinaus,    controller().vitafeldeinaus,
        controller().b1feldeinaus,   controller().b2feldeinaus,    controller().b6feldeinaus,
        controller().vitcfeldeinaus,
    };
    const auto alle = [this, &andere](bool versteckt) {
        for (const QWidget *widget : andere) {
            QCOMPARE(widget->isHidden(), versteckt);
        }
        for (const Textfeld *feld : controller().wertfelder()) {
            QCOMPARE(feld->isHidden(), versteckt);
        }
    };
    alle(true);
    oeffneKasten();
    alle(false);
    oeffneKasten();
    alle(false); // they stay
    m_fenster->klicke(1, inName);
    QVERIFY(controller().cholfeld->isHidden()); // until the next food
}

void TestEigeneSichern::deletingIsOfferedForOwnFoods_data()
{
    QTest::addColumn<int>("aktiv");
    QTest::addColumn<bool>("vorher");
    QTest::addColumn<bool>("nachher");
    QTest::newRow("an own food") << 2 << false << true;
    QTest::newRow("a built-in food") << 1 << true << false;
    QTest::newRow("none yet: it stays enabled") << 0 << true << true;
    QTest::newRow("none yet: it stays disabled") << 0 << false << false;
}

void TestEigeneSichern::deletingIsOfferedForOwnFoods()
{
    QFETCH(int, aktiv);
    QFETCH(bool, vorher);
    QFETCH(bool, nachher);
    oeffne();
    controller().welcheTabelleAktiv = aktiv;
    controller().loeschenknopf->setEnabled(vorher);
    oeffneKasten();
    QCOMPARE(controller().loeschenknopf->isEnabled(), nachher);
    controller().loeschenknopf->setEnabled(vorher);
    oeffneKasten(); // closing asks nothing
    QCOMPARE(controller().loeschenknopf->isEnabled(), vorher);
}

void TestEigeneSichern::theDisplayCanBeTypedIntoWhileTheBoxIsOpen()
{
    oeffne();
    m_fenster->klicke(1, inName);
    QList<Textfeld *> felder = {controller().feldA};
    for (Textfeld *feld : controller().wertfelder()) {
        felder << feld;
    }
    for (Textfeld *feld : controller().wertungsfelder()) {
        felder << feld;
    }
    for (const bool offen : {false, true, false}) {
        for (Textfeld *feld : felder) {
            QCOMPARE(feld->isEditable(), offen);
            if (!offen) {
                const QString vorher = feld->stringValue();
                tippe(feld, QStringLiteral("1"));
                QCOMPARE(feld->stringValue(), vorher);
            }
        }
        QVERIFY(!controller().joulefeld->isEditable()); // reckoned, not saved
        oeffneKasten();
    }
}

void TestEigeneSichern::theValuesTakeNothingButNumbers_data()
{
    QTest::addColumn<QString>("getippt");
    QTest::addColumn<float>("zahl");
    QTest::newRow("letters are passed over") << QStringLiteral("1x2") << 12.0F;
    QTest::newRow("a comma") << QStringLiteral("1,5") << 1.5F;
    QTest::newRow("a point") << QStringLiteral("1.5") << 1.5F;
    QTest::newRow("a point parts no thousands") << QStringLiteral("1.250") << 1.25F;
    QTest::newRow("a large number") << QStringLiteral("38758") << 38758.0F;
}

void TestEigeneSichern::theValuesTakeNothingButNumbers()
{
    QFETCH(QString, getippt);
    QFETCH(float, zahl);
    oeffne();
    m_fenster->klicke(1, inName);
    oeffneKasten();
    for (Textfeld *feld : {controller().nafeld, controller().proteinfeld}) {
        tippe(feld, getippt);
        QCOMPARE(feld->floatValue(), zahl);
        QTest::keyClick(feld, Qt::Key_Tab);
        QCOMPARE(feld->floatValue(), zahl);
    }
}

void TestEigeneSichern::lookingAtAValueDoesNotRoundIt()
{
    oeffne();
    m_fenster->klicke(1, inName);
    QCOMPARE(Probefenster::text(*controller().nafeld), QStringLiteral("1540 mg"));
    oeffneKasten();
    for (Textfeld *feld : controller().wertfelder()) {
        feld->setFocus();
        QTest::keyClick(feld, Qt::Key_Tab);
    }
    controller().nafeld->setFocus();
    QCOMPARE(Probefenster::text(*controller().nafeld), QStringLiteral("1540")); // to type on
    QTest::keyClick(controller().nafeld, Qt::Key_End);
    QTest::keyClicks(controller().nafeld, QStringLiteral(",25"));
    sichere();
    QCOMPARE(datei().value(QStringLiteral("Brot")).na(), 1540.25F);
    QCOMPARE(datei().value(QStringLiteral("Brot")).kal(), 240.25F);
    QCOMPARE(datei().value(QStringLiteral("Brot")).protein(), 7.125F);
    oeffneKasten();
    QCOMPARE(Probefenster::text(*controller().nafeld), QStringLiteral("1540 mg"));
}

void TestEigeneSichern::aChoiceShowsTheFoodAgain()
{
    oeffne();
    m_fenster->klicke(1, inName);
    oeffneKasten();
    tippe(controller().feldB, QStringLiteral("999"));
    m_fenster->klicke(2, inName);
    QCOMPARE(controller().feldB->intValue(), 70);
    QVERIFY(controller().sichernBox->isVisible());
    m_fenster->klicke(1, inName);
    QCOMPARE(controller().feldB->floatValue(), 240.25F); // typed, and not saved
}

QTEST_MAIN(TestEigeneSichern)
#include "TestEigeneSichern.moc"
