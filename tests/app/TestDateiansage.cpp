#include "Archivdatei.h"
#include "Einstellungen.h"
#include "Hindernisse.h"
#include "Probefenster.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPushButton>
#include <QTest>

using enum Naehrwert;

/// What the windows say about the user's files, and how the own foods in the file are mended.
class TestDateiansage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aFileInOrderIsNotMentioned();
    void aFileThatCantBeReadIsNamed();
    void aDamagedFileIsNamedUntilItIsReplaced();
    void aFailedWriteIsSaidUntilItWorks();
    void savingAgainAtOnce();
    void savingAgainInVainIsSaidAgain();
    void aSheetThatIsNotSavedIsNotCalledSaved();
    void thePlansFileIsTheMatterOfThePlansWindow();
    void whatThePlanWroteInsteadIsNamed();
    void theWindowsFoodsArePutBack();
    void aSaveThatAgreesSaysNothing();
    void settingsThatCantBeKept();

private:
    void oeffne();
    void oeffnePlan() const;
    QString planDatei() const
    {
        return QFileInfo(m_heim->eigeneDatei()).path() + QStringLiteral("/MahlbergPlanmod.daten");
    }
    QString ordner() const { return QFileInfo(m_heim->eigeneDatei()).path(); }
    static QStringList texte(const Hinweisstreifen &streifen);
    QStringList texte() const { return texte(*controller().hinweise); }
    static QPushButton *knopf(const Hinweisstreifen &streifen)
    {
        return streifen.findChild<QPushButton *>(QStringLiteral("hinweisknopf"));
    }
    Lebensmittelverzeichnis datei() const
    {
        return Archivdatei::lesen(m_heim->eigeneDatei()).archiv.verzeichnis;
    }
    AppController &controller() const { return m_fenster->controller(); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

const QString eintopf = QStringLiteral("Eintopf");
const QString muesli = QStringLiteral("Müsli");

void schreibeRoh(const QString &path, const QByteArray &bytes)
{
    QFile datei(path);
    QVERIFY(datei.open(QIODevice::WriteOnly));
    QCOMPARE(datei.write(bytes), bytes.size());
}

} // namespace

void TestDateiansage::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(30));
    m_heim->schreibeEigene(
        verzeichnis({lebensmittel(eintopf, {{kal, 60}}), lebensmittel(muesli, {{kal, 350}})}));
}

void TestDateiansage::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestDateiansage::oeffne()
{
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

/// The plan with an own food in it, so that looking at it writes the own foods as it knows them.
void TestDateiansage::oeffnePlan() const
{
    controller().Planmoduloeffnen();
    controller().planmodul->nameimportvontoolbar(eintopf);
    QVERIFY(QTest::qWaitForWindowExposed(controller().planmodul->window()));
}

/// What a strip says, once all that was sent to it, and sent on, has arrived.
QStringList TestDateiansage::texte(const Hinweisstreifen &streifen)
{
    for (int runde = 0; runde < 3; ++runde) {
        QCoreApplication::processEvents();
    }
    QStringList ergebnis;
    for (const Hinweis &hinweis : streifen.hinweise()) {
        ergebnis << hinweis.text;
    }
    return ergebnis;
}

void TestDateiansage::aFileInOrderIsNotMentioned()
{
    oeffne();
    QVERIFY(texte().isEmpty());
    m_fenster->klicke(0, inEigen);
    controller().SicherneigeneLM();
    QCOMPARE(texte(), QStringList{QStringLiteral("„Eintopf“ ist geändert.")});
}

void TestDateiansage::aFileThatCantBeReadIsNamed()
{
    QFile::remove(m_heim->eigeneDatei());
    QVERIFY(QDir().mkdir(m_heim->eigeneDatei())); // nobody can open it as a file
    oeffne();
    const QStringList gesagt = texte();
    QCOMPARE(gesagt.size(), 1);
    QVERIFY(gesagt[0].contains(m_heim->eigeneDatei()));
    QVERIFY(gesagt[0].contains(QStringLiteral("lässt sich nicht lesen")));
    QVERIFY(controller().hinweise->hinweise()[0].warnung);
    QVERIFY(m_heim->meldungen.isEmpty()); // nothing has to be pressed
    QVERIFY(controller().KundenArray.isEmpty());
}

void TestDateiansage::aDamagedFileIsNamedUntilItIsReplaced()
{
    schreibeRoh(m_heim->eigeneDatei(), "kein Archiv");
    oeffne();
    QCOMPARE(texte().size(), 1);
    QVERIFY(texte()[0].contains(QStringLiteral("ist beschädigt")));
    controller().feldA->setStringValue(QStringLiteral("Neues"));
    controller().SicherneigeneLM();
    // What it held lies beside it now, and that is what is left to say about it.
    QCOMPARE(texte().size(), 2);
    QCOMPARE(texte()[1], QStringLiteral("„Neues“ ist gesichert."));
    QVERIFY(texte()[0].contains(QStringLiteral("aufgehoben als „MahlbergCustomnutr ")));
    QVERIFY(!controller().hinweise->hinweise()[0].warnung);
    const QStringList daneben =
        QDir(ordner()).entryList({QStringLiteral("MahlbergCustomnutr 2*.daten")}, QDir::Files);
    QCOMPARE(daneben.size(), 1);
    QVERIFY(texte()[0].contains(daneben[0]));
    QCOMPARE(datei().keys(), QStringList{QStringLiteral("Neues")});
}

void TestDateiansage::aFailedWriteIsSaidUntilItWorks()
{
    oeffne();
    controller().feldA->setStringValue(QStringLiteral("Neues"));
    {
        const VolleFestplatte voll(20);
        controller().SicherneigeneLM();
    }
    QCOMPARE(texte().size(), 1);
    QVERIFY(texte()[0].contains(m_heim->eigeneDatei()));
    QVERIFY(texte()[0].contains(QStringLiteral("lässt sich nicht schreiben")));
    QVERIFY(controller().hinweise->hinweise()[0].warnung);
    {
        const VolleFestplatte voll(20);
        controller().SicherneigeneLM();
    }
    QCOMPARE(texte().size(), 1); // once
    QCOMPARE(datei().size(), 2);
    controller().SicherneigeneLM();
    QCOMPARE(texte(), QStringList{QStringLiteral("„Neues“ ist geändert.")});
    QCOMPARE(datei().size(), 3);
    QVERIFY(m_heim->meldungen.isEmpty());
}

void TestDateiansage::savingAgainAtOnce()
{
    oeffne();
    controller().feldA->setStringValue(QStringLiteral("Neues"));
    {
        const VolleFestplatte voll(20);
        controller().SicherneigeneLM();
    }
    QCOMPARE(texte().size(), 1);
    QTest::mouseClick(knopf(*controller().hinweise), Qt::LeftButton);
    QVERIFY(texte().isEmpty());
    QVERIFY(datei().contains(QStringLiteral("Neues")));
}

void TestDateiansage::savingAgainInVainIsSaidAgain()
{
    oeffne();
    controller().feldA->setStringValue(QStringLiteral("Neues"));
    const VolleFestplatte voll(20);
    controller().SicherneigeneLM();
    QCOMPARE(texte().size(), 1);
    QTest::mouseClick(knopf(*controller().hinweise), Qt::LeftButton);
    QCOMPARE(texte().size(), 1);
    QVERIFY(texte()[0].contains(QStringLiteral("lässt sich nicht schreiben")));
}

void TestDateiansage::aSheetThatIsNotSavedIsNotCalledSaved()
{
    oeffne();
    {
        const VolleFestplatte voll(20);
        controller().EingabeFensterfeldA->setStringValue(QStringLiteral("Suppe"));
        controller().umschreibenDerEingabeFelder();
    }
    const QStringList gesagt = texte();
    QCOMPARE(gesagt.size(), 2);
    QVERIFY(gesagt.filter(QStringLiteral("ist gesichert")).isEmpty());
    QVERIFY(!gesagt.filter(QStringLiteral("„Suppe“ steht in der Liste, ist aber nicht gesichert."))
                 .isEmpty());
}

void TestDateiansage::thePlansFileIsTheMatterOfThePlansWindow()
{
    oeffne();
    oeffnePlan();
    Planmodul &plan = *controller().planmodul;
    {
        const VolleFestplatte voll(20);
        plan.nameimportvontoolbar(zaehlname(3));
    }
    QVERIFY(texte().isEmpty());
    const QStringList gesagt = texte(*plan.hinweise);
    QCOMPARE(gesagt.size(), 1);
    QVERIFY(gesagt[0].contains(planDatei()));
    QTest::mouseClick(knopf(*plan.hinweise), Qt::LeftButton);
    QVERIFY(texte(*plan.hinweise).isEmpty());
    QVERIFY(Archivdatei::lesen(planDatei()).archiv.verzeichnis.contains(zaehlname(3)));
}

/// Saving from the display tells the plan what stands in the sheet; the plan then writes that.
void TestDateiansage::whatThePlanWroteInsteadIsNamed()
{
    oeffne();
    oeffnePlan();
    m_fenster->klicke(0, inEigen);
    controller().feldB->setFloatValue(777);
    controller().SicherneigeneLM();
    controller().planmodul->PlanTabelle->viewport()->repaint();
    QCOMPARE(datei()[eintopf].kal(), 60.0F); // undone on the disk, as it is meant to be
    QVERIFY(datei().contains(QStringLiteral("")));
    const QStringList gesagt = texte();
    QCOMPARE(gesagt.size(), 1);
    QVERIFY(gesagt[0].contains(QStringLiteral("mit anderen Werten: „Eintopf“")));
    QVERIFY(gesagt[0].contains(QStringLiteral("zusätzlich: eines ohne Namen")));
    QVERIFY(!gesagt[0].contains(muesli));
    QCOMPARE(controller().KundenDictionary[eintopf].kal(), 777.0F);
}

void TestDateiansage::theWindowsFoodsArePutBack()
{
    whatThePlanWroteInsteadIsNamed();
    QTest::mouseClick(knopf(*controller().hinweise), Qt::LeftButton);
    QVERIFY(texte().isEmpty());
    QCOMPARE(datei().keys(), (QStringList{eintopf, muesli}));
    QCOMPARE(datei()[eintopf].kal(), 777.0F);
    // The plan has them too: looking at it undoes nothing any more.
    controller().planmodul->PlanTabelle->viewport()->repaint();
    QVERIFY(texte().isEmpty());
    QCOMPARE(datei()[eintopf].kal(), 777.0F);
    QVERIFY(controller().planmodul->hinweise->hinweise().isEmpty());
}

/// The plan writes first and the window second: in between they differ, but nobody need hear that.
void TestDateiansage::aSaveThatAgreesSaysNothing()
{
    oeffne();
    oeffnePlan();
    controller().Fenster();
    controller().EingabeFensterfeldA->setStringValue(QStringLiteral("Suppe"));
    controller().EingabeFensterfeldB->setFloatValue(40);
    controller().umschreibenDerEingabeFelder();
    controller().Fensterschliessen();
    controller().planmodul->PlanTabelle->viewport()->repaint();
    const QStringList gesagt = texte();
    QCOMPARE(gesagt.size(), 1);
    QVERIFY(gesagt[0].startsWith(QStringLiteral("„Suppe“ ist gesichert.")));
}

void TestDateiansage::settingsThatCantBeKept()
{
    const QTemporaryDir woanders;
    const QString pfad = woanders.filePath(QStringLiteral("unter/Mahlberg.conf"));
    Einstellungen einstellungen(pfad, QSettings::IniFormat);
    Tueren tueren = m_heim->tueren();
    tueren.einstellungen = &einstellungen;
    Oberflaeche oberflaeche(tueren);
    oberflaeche.awakeFromNib();
    Hinweisstreifen &streifen = *oberflaeche.hauptfenster.hinweise;
    QVERIFY(texte(streifen).isEmpty());
    Q_EMIT einstellungen.nichtGeschrieben(pfad);
    QCOMPARE(texte(streifen).size(), 1);
    QVERIFY(texte(streifen)[0].contains(pfad));
    Q_EMIT einstellungen.wiederGeschrieben();
    QVERIFY(texte(streifen).isEmpty());
}

QTEST_MAIN(TestDateiansage)
#include "TestDateiansage.moc"
