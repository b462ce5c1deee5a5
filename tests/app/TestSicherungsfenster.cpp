#include "Archivdatei.h"
#include "Dateifenster.h"
#include "Probefenster.h"
#include "Sicherungsfenster.h"

#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

using enum Naehrwert;

/// Looking at what the copies of own foods and plan hold, and bringing one back.
class TestSicherungsfenster : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void withoutCopiesItSaysWhenThereWillBeSome();
    void theNewestCopyIsShownFirst();
    void aCopyIsComparedWithToday();
    void lookingChangesNothing();
    void ownFoodsComeBack();
    void whatWasReplacedIsKept();
    void bringingBackIsUndone();
    void thePlansCopyFollows();
    void thePlanComesBack();
    void thePlansOrderComesBackToo();
    void theWayBackEndsWithTheNextChange();
    void theFoodOnDisplayStaysChosen();
    void aFoodThatIsGoneCantBeDeleted();
    void oneWindowIsEnough();
    void aDamagedCopyCantBeBroughtBack();
    void aCopyThatIsLikeTodayHasNothingToBringBack();
    void theContentIsCopiedAsATable();
    void aCopyOpensAsAnyOtherFile();
    void theMenuOpensIt();

private:
    void oeffne();
    Sicherungsfenster &fenster() const;
    template <typename Teil>
    Teil &teil(const char *name) const
    {
        return *fenster().findChild<Teil *>(QLatin1String(name));
    }
    void legeKopie(const QString &tag, const QByteArray &bytes) const;
    void legeKopie(const QString &tag, const QList<Datenmodul> &lebensmittel) const;
    QStringList zeile(int nummer) const;
    void holeZurueck() const
    {
        QTest::mouseClick(&teil<QPushButton>("zurueckholen"), Qt::LeftButton);
    }
    void druecke(const Hinweisstreifen &streifen) const
    {
        QTest::mouseClick(streifen.findChild<QPushButton *>(QStringLiteral("hinweisknopf")),
                          Qt::LeftButton);
    }
    Lebensmittelverzeichnis datei() const
    {
        return Archivdatei::lesen(m_heim->eigeneDatei()).archiv.verzeichnis;
    }
    QDir ordner() const { return QFileInfo(m_heim->eigeneDatei()).dir(); }
    AppController &controller() const { return m_fenster->controller(); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

const QString eintopf = QStringLiteral("Eintopf");
const QString muesli = QStringLiteral("Müsli");
const QString suppe = QStringLiteral("Suppe");

Datenmodul ration(const QString &name, float gramm)
{
    Datenmodul traeger;
    traeger.setName(name);
    traeger.setkal(gramm);
    return traeger;
}

} // namespace

void TestSicherungsfenster::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(30));
    m_heim->schreibeEigene(
        verzeichnis({lebensmittel(eintopf, {{kal, 60}}), lebensmittel(muesli, {{kal, 350}})}));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestSicherungsfenster::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestSicherungsfenster::oeffne()
{
    m_fenster->oberflaeche().ansage.zeigeFruehereStaende();
    QVERIFY(QTest::qWaitForWindowExposed(&fenster()));
}

Sicherungsfenster &TestSicherungsfenster::fenster() const
{
    return *controller().Hauptfenster->findChild<Sicherungsfenster *>();
}

void TestSicherungsfenster::legeKopie(const QString &tag, const QByteArray &bytes) const
{
    QVERIFY(ordner().mkpath(QStringLiteral("Sicherungen")));
    QFile kopie(
        ordner().filePath(QStringLiteral("Sicherungen/MahlbergCustomnutr %1.daten").arg(tag)));
    QVERIFY(kopie.open(QIODevice::WriteOnly));
    QCOMPARE(kopie.write(bytes), bytes.size());
}

void TestSicherungsfenster::legeKopie(const QString &tag,
                                      const QList<Datenmodul> &lebensmittel) const
{
    legeKopie(tag, Archiver::write(verzeichnis(lebensmittel)));
}

QStringList TestSicherungsfenster::zeile(int nummer) const
{
    const QTableWidget &inhalt = teil<QTableWidget>("inhalt");
    QStringList texte;
    for (int spalte = 0; spalte < inhalt.columnCount(); ++spalte) {
        texte << inhalt.item(nummer, spalte)->text();
    }
    return texte;
}

void TestSicherungsfenster::withoutCopiesItSaysWhenThereWillBeSome()
{
    oeffne();
    QCOMPARE(teil<QListWidget>("tage").count(), 0);
    QCOMPARE(teil<QTableWidget>("inhalt").rowCount(), 0);
    QVERIFY(teil<QLabel>("worte").text().startsWith(QStringLiteral("Es gibt noch keine")));
    QVERIFY(!teil<QPushButton>("zurueckholen").isEnabled());
}

void TestSicherungsfenster::theNewestCopyIsShownFirst()
{
    legeKopie(QStringLiteral("2026-11-18"), {lebensmittel(suppe, {{kal, 40}})});
    legeKopie(QStringLiteral("2026-11-20"), {lebensmittel(muesli, {{kal, 350}})});
    QVERIFY(QFile::copy(
        m_heim->eigeneDatei(),
        ordner().filePath(QStringLiteral("MahlbergCustomnutr 2026-11-19 08.05.00.daten"))));
    oeffne();
    const QListWidget &tage = teil<QListWidget>("tage");
    QCOMPARE(tage.count(), 3);
    QCOMPARE(tage.item(0)->text(), QStringLiteral("Freitag, 20. November 2026"));
    QCOMPARE(tage.item(1)->text(), QStringLiteral("beiseitegelegt am 19.11.26 08:05"));
    QCOMPARE(tage.item(2)->text(), QStringLiteral("Mittwoch, 18. November 2026"));
    QCOMPARE(tage.currentRow(), 0);
    QCOMPARE(zeile(0)[0], muesli);
}

void TestSicherungsfenster::aCopyIsComparedWithToday()
{
    legeKopie(QStringLiteral("2026-11-20"),
              {lebensmittel(QStringLiteral(""), {{kal, 0.5F}}), lebensmittel(muesli, {{kal, 350}}),
               lebensmittel(eintopf, {{kal, 75}}), lebensmittel(suppe, {{kal, 1234}})});
    controller().KundenDictionary.insert(QStringLiteral("Heutiges"), {});
    oeffne();
    QCOMPARE(teil<QTableWidget>("inhalt").rowCount(), 4);
    QCOMPARE(zeile(0), (QStringList{QStringLiteral("(ohne Namen)"), QStringLiteral("0,5"),
                                    QStringLiteral("fehlt")}));
    QCOMPARE(zeile(1), (QStringList{eintopf, QStringLiteral("75"), QStringLiteral("anders")}));
    QCOMPARE(zeile(2), (QStringList{muesli, QStringLiteral("350"), QStringLiteral("ebenso")}));
    QCOMPARE(zeile(3), (QStringList{suppe, QStringLiteral("1234"), QStringLiteral("fehlt")}));
    QCOMPARE(teil<QLabel>("worte").text(),
             QStringLiteral("4 Lebensmittel. Seitdem gelöscht: 2, geändert: 1, neu: 1."));
}

void TestSicherungsfenster::lookingChangesNothing()
{
    legeKopie(QStringLiteral("2026-11-20"), {lebensmittel(suppe, {{kal, 40}})});
    const QStringList vorher = controller().KundenArray;
    oeffne();
    fenster().reject();
    QCOMPARE(controller().KundenArray, vorher);
    QCOMPARE(datei().keys(), (QStringList{eintopf, muesli}));
    QVERIFY(controller().hinweise->hinweise().isEmpty());
}

void TestSicherungsfenster::ownFoodsComeBack()
{
    legeKopie(QStringLiteral("2026-11-20"),
              {lebensmittel(suppe, {{kal, 40}}), lebensmittel(eintopf, {{kal, 75}})});
    oeffne();
    holeZurueck();
    QCOMPARE(controller().KundenArray, (QStringList{eintopf, suppe}));
    QCOMPARE(controller().KundenDictionary[eintopf].kal(), 75.0F);
    QCOMPARE(datei().keys(), (QStringList{eintopf, suppe}));
    QCOMPARE(m_fenster->zelle(1, inEigen).text, suppe);
    QCOMPARE(controller().hinweise->hinweise()[0].text,
             QStringLiteral("Der frühere Stand ist zurückgeholt."));
    QVERIFY(m_heim->meldungen.isEmpty());
}

void TestSicherungsfenster::whatWasReplacedIsKept()
{
    legeKopie(QStringLiteral("2026-11-20"), {lebensmittel(suppe, {{kal, 40}})});
    oeffne();
    holeZurueck();
    const QStringList daneben =
        ordner().entryList({QStringLiteral("MahlbergCustomnutr 2*.daten")}, QDir::Files);
    QCOMPARE(daneben.size(), 1);
    QCOMPARE(Archivdatei::lesen(ordner().filePath(daneben[0])).archiv.verzeichnis.keys(),
             (QStringList{eintopf, muesli}));
}

void TestSicherungsfenster::bringingBackIsUndone()
{
    controller().KundenArray = {muesli, eintopf}; // in the order of this day
    legeKopie(QStringLiteral("2026-11-20"), {lebensmittel(suppe, {{kal, 40}})});
    oeffne();
    holeZurueck();
    QCOMPARE(controller().KundenArray, QStringList{suppe});
    druecke(*controller().hinweise);
    QCOMPARE(controller().KundenArray, (QStringList{muesli, eintopf}));
    QCOMPARE(datei().keys(), (QStringList{eintopf, muesli}));
    QCOMPARE(datei()[muesli].kal(), 350.0F);
}

void TestSicherungsfenster::thePlansCopyFollows()
{
    controller().Planmoduloeffnen();
    Planmodul &plan = *controller().planmodul;
    plan.nameimportvontoolbar(eintopf);
    legeKopie(QStringLiteral("2026-11-20"), {lebensmittel(eintopf, {{kal, 75}})});
    oeffne();
    holeZurueck();
    QCOMPARE(plan.KundenDictionary.keys(), QStringList{eintopf});
    QCOMPARE(plan.KundenDictionary[eintopf].kal(), 75.0F);
    plan.PlanTabelle->viewport()->repaint(); // writes the plan's copy
    QCOMPARE(datei().keys(), QStringList{eintopf});
    QCOMPARE(datei()[eintopf].kal(), 75.0F);
}

void TestSicherungsfenster::thePlanComesBack()
{
    QVERIFY(ordner().mkpath(QStringLiteral("Sicherungen")));
    const QString plandatei = ordner().filePath(QStringLiteral("MahlbergPlanmod.daten"));
    QVERIFY(Archivdatei::schreiben(plandatei, verzeichnis({ration(zaehlname(2), 150)})));
    QVERIFY(Archivdatei::schreiben(
        ordner().filePath(QStringLiteral("Sicherungen/MahlbergPlanmod 2026-11-19.daten")),
        verzeichnis({ration(zaehlname(7), 30), ration(zaehlname(5), 200)})));
    oeffne();
    teil<QComboBox>("quellenwahl").setCurrentIndex(1);
    QCOMPARE(teil<QListWidget>("tage").count(), 1);
    QCOMPARE(zeile(0), (QStringList{zaehlname(5), QStringLiteral("200"), QStringLiteral("fehlt")}));
    holeZurueck();
    Planmodul &plan = *controller().planmodul;
    QVERIFY(plan.window()->isVisible());
    QCOMPARE(plan.PlanArray, (QStringList{zaehlname(5), zaehlname(7)}));
    QCOMPARE(plan.mengenarray, (QList<float>{200, 30}));
    QCOMPARE(plan.PlanTabelle->modell()->rowCount(), 2);
    QCOMPARE(Archivdatei::lesen(plandatei).archiv.verzeichnis.keys(),
             (QStringList{zaehlname(5), zaehlname(7)}));
    druecke(*plan.hinweise);
    QCOMPARE(plan.PlanArray, QStringList{zaehlname(2)});
    QCOMPARE(Archivdatei::lesen(plandatei).archiv.verzeichnis[zaehlname(2)].kal(), 150.0F);
}

/// The file knows neither order nor fractions of a gram, but the plan on the desk does.
void TestSicherungsfenster::thePlansOrderComesBackToo()
{
    controller().Planmoduloeffnen();
    Planmodul &plan = *controller().planmodul;
    plan.nameimportvontoolbar(zaehlname(9));
    plan.nameimportvontoolbar(zaehlname(2));
    plan.mengeAendern(0, 150.7F);
    QVERIFY(ordner().mkpath(QStringLiteral("Sicherungen")));
    QVERIFY(Archivdatei::schreiben(
        ordner().filePath(QStringLiteral("Sicherungen/MahlbergPlanmod 2026-11-19.daten")),
        verzeichnis({ration(zaehlname(7), 30)})));
    oeffne();
    teil<QComboBox>("quellenwahl").setCurrentIndex(1);
    holeZurueck();
    QCOMPARE(plan.PlanArray, QStringList{zaehlname(7)});
    druecke(*plan.hinweise);
    QCOMPARE(plan.PlanArray, (QStringList{zaehlname(9), zaehlname(2)}));
    QCOMPARE(plan.mengenarray, (QList<float>{150.7F, 100}));
}

void TestSicherungsfenster::theWayBackEndsWithTheNextChange()
{
    legeKopie(QStringLiteral("2026-11-20"), {lebensmittel(suppe, {{kal, 40}})});
    oeffne();
    holeZurueck();
    for (int runde = 0; runde < 3; ++runde) { // its own writing is no change
        QCoreApplication::processEvents();
    }
    QCOMPARE(controller().hinweise->hinweise().size(), 1);
    controller().feldA->setStringValue(QStringLiteral("Danach"));
    controller().SicherneigeneLM();
    const QList<Hinweis> &alle = controller().hinweise->hinweise();
    QTRY_COMPARE(alle.size(), 1);
    QCOMPARE(alle.constFirst().kennung, AppController::hinweisGesichert);
    QCOMPARE(datei().keys(), (QStringList{QStringLiteral("Danach"), suppe}));
}

/// Deleting takes the selected row, which has to be that of the food on display.
void TestSicherungsfenster::theFoodOnDisplayStaysChosen()
{
    const QString apfel = QStringLiteral("Apfelbrei");
    legeKopie(QStringLiteral("2026-11-20"),
              {lebensmittel(apfel, {{kal, 40}}), lebensmittel(eintopf, {{kal, 75}}),
               lebensmittel(muesli, {{kal, 350}})});
    m_fenster->klicke(0, inEigen);
    QCOMPARE(controller().unuebersetztername, eintopf);
    oeffne();
    holeZurueck();
    QCOMPARE(controller().Tabelle->selectedRow(), 1);
    QVERIFY(m_fenster->zelle(1, inEigen).umrandet);
    m_heim->antworten = {1};
    controller().LoescheneigeneLM();
    QCOMPARE(controller().KundenArray, (QStringList{apfel, muesli}));
    QCOMPARE(controller().KundenDictionary.keys(), (QStringList{apfel, muesli}));
    QCOMPARE(datei().keys(), (QStringList{apfel, muesli}));
}

void TestSicherungsfenster::aFoodThatIsGoneCantBeDeleted()
{
    legeKopie(QStringLiteral("2026-11-20"), {lebensmittel(suppe, {{kal, 40}})});
    m_fenster->klicke(0, inEigen);
    QVERIFY(controller().loeschenknopf->isEnabled());
    oeffne();
    holeZurueck();
    QCOMPARE(controller().Tabelle->selectedRow(), -1);
    QVERIFY(!controller().loeschenknopf->isEnabled());
    controller().LoescheneigeneLM(); // the toolbar still offers it
    QCOMPARE(m_heim->meldungen.size(), 1);
    QCOMPARE(controller().KundenArray, QStringList{suppe});
}

void TestSicherungsfenster::oneWindowIsEnough()
{
    oeffne();
    m_fenster->oberflaeche().ansage.zeigeFruehereStaende();
    QCOMPARE(controller().Hauptfenster->findChildren<Sicherungsfenster *>().size(), 1);
}

void TestSicherungsfenster::aDamagedCopyCantBeBroughtBack()
{
    legeKopie(QStringLiteral("2026-11-20"), QByteArray("kein Archiv"));
    oeffne();
    QVERIFY(!teil<QPushButton>("zurueckholen").isEnabled());
    QVERIFY(teil<QLabel>("worte").text().startsWith(
        QStringLiteral("Diese Datei lässt sich nicht lesen: ")));
    QCOMPARE(teil<QTableWidget>("inhalt").rowCount(), 0);
}

void TestSicherungsfenster::aCopyThatIsLikeTodayHasNothingToBringBack()
{
    legeKopie(QStringLiteral("2026-11-20"),
              {lebensmittel(eintopf, {{kal, 60}}), lebensmittel(muesli, {{kal, 350}})});
    oeffne();
    QCOMPARE(teil<QTableWidget>("inhalt").rowCount(), 2);
    QVERIFY(!teil<QPushButton>("zurueckholen").isEnabled());
}

void TestSicherungsfenster::theContentIsCopiedAsATable()
{
    legeKopie(QStringLiteral("2026-11-20"), {lebensmittel(suppe, {{kal, 40}})});
    oeffne();
    QVERIFY(QTest::qWaitForWindowActive(&fenster()));
    auto &tafel = teil<QTableWidget>("inhalt");
    tafel.setFocus();
    QTest::keyClick(&tafel, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(),
             QStringLiteral("Lebensmittel\tkcal je 100 g\tHeute\nSuppe\t40\tfehlt\n"));
}

/// Single foods of an earlier state come back in this way.
void TestSicherungsfenster::aCopyOpensAsAnyOtherFile()
{
    legeKopie(QStringLiteral("2026-11-20"),
              {lebensmittel(suppe, {{kal, 40}}), lebensmittel(eintopf, {{kal, 75}})});
    const QString kopie =
        ordner().filePath(QStringLiteral("Sicherungen/MahlbergCustomnutr 2026-11-20.daten"));
    m_fenster->oberflaeche().empfang.oeffne({kopie});
    const auto *datei = controller().Hauptfenster->findChild<Dateifenster *>();
    QVERIFY(datei != nullptr);
    QTest::mouseClick(datei->findChild<QPushButton *>(QStringLiteral("uebernehmen")),
                      Qt::LeftButton);
    QCOMPARE(controller().KundenArray, (QStringList{eintopf, muesli, suppe}));
    QCOMPARE(controller().KundenDictionary[eintopf].kal(), 60.0F); // the own one stays
    QCOMPARE(Archivdatei::lesen(kopie).archiv.verzeichnis.keys(), (QStringList{eintopf, suppe}));
}

void TestSicherungsfenster::theMenuOpensIt()
{
    QAction *eintrag = nullptr;
    for (QAction *aktion :
         controller().Hauptfenster->menuBar()->actions().constFirst()->menu()->actions()) {
        if (aktion->text() == QStringLiteral("&Frühere Stände …")) {
            eintrag = aktion;
        }
    }
    QVERIFY(eintrag != nullptr);
    eintrag->trigger();
    QVERIFY(fenster().isVisible());
}

QTEST_MAIN(TestSicherungsfenster)
#include "TestSicherungsfenster.moc"
