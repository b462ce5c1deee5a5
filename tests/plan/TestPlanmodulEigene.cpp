#include "Planprobe.h"

#include "Archivdatei.h"
#include "Stoerung.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTest>

using namespace Qt::StringLiterals;

/// The plan's copy of the user's own foods, and the file that it shares with the main window.
class TestPlanmodulEigene : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aSavedFoodIsTakenOver();
    void aFoodSavedAgainIsOverwritten();
    void aSavedFoodIsWrittenAtOnce();
    void savingReloadsAndEvaluatesNothing();
    void aDeletedFoodLeavesFileAndPlan();
    void aDeletedFoodThatIsNotInThePlanLeavesTheFileOnly();
    void deletingWhatNobodyKnowsDoesNoHarm();
    void askingForABuiltInFoodWritesNothing();
    void askingForAnOwnFoodWritesTheCopy();
    void askingForAnUnknownFoodWritesTheCopyToo();
    void askingForAnAmountWritesNothing();
    void theMainWindowsFileIsOverwrittenWhenTheTableIsAsked();
    void aPaintedTableAsksForItsCells();
    void aFileThatNeedNotChangeIsNotTouched();
    void aFailedWriteIsNotTriedWithEveryCell();
    void aDamagedFileThatCantBeReplacedIsNotCopiedWithEveryCell();

private:
    void oeffne() { m_fenster = std::make_unique<Planfenster>(*m_heim); }
    /// Puts a moment of long ago on the file, to see whether it is written.
    void stelleZurueck() const;
    bool istGeschrieben() const;

    std::unique_ptr<Planheim> m_heim;
    std::unique_ptr<Planfenster> m_fenster;
};

namespace {

const QDateTime frueher(QDate(2020, 1, 1), QTime(12, 0));

} // namespace

void TestPlanmodulEigene::stelleZurueck() const
{
    QFile datei(m_heim->eigeneDatei());
    QVERIFY(datei.open(QIODevice::ReadWrite));
    QVERIFY(datei.setFileTime(frueher, QFileDevice::FileModificationTime));
}

bool TestPlanmodulEigene::istGeschrieben() const
{
    return QFileInfo(m_heim->eigeneDatei()).lastModified() != frueher;
}

void TestPlanmodulEigene::init()
{
    vergissKlient();
    m_fenster.reset();
    m_heim = std::make_unique<Planheim>();
    m_heim->schreibeTabelle({speise(u"Brot"_s, {{Naehrwert::vitc, 10}})});
}

void TestPlanmodulEigene::aSavedFoodIsTakenOver()
{
    oeffne();
    Datenmodul eintopf = speise(u"Eintopf"_s, {}, {u"+"_s, u"0"_s, u"-"_s, u"hm"_s});
    for (const auto &zeile : naehrwerte) {
        eintopf.setWert(zeile.wert, 0.1F + static_cast<float>(stelle(zeile.wert)));
    }
    (*m_fenster)->umschreibungMitName(eintopf);
    const Datenmodul &kopie = (*m_fenster)->KundenDictionary[u"Eintopf"_s];
    QCOMPARE(kopie.name(), u"Eintopf"_s);
    for (const auto &zeile : naehrwerte) {
        QCOMPARE(kopie.wert(zeile.wert), eintopf.wert(zeile.wert));
    }
    for (const auto &zeile : wertungen) {
        QCOMPARE(kopie.wertung(zeile.wertung), eintopf.wertung(zeile.wertung));
    }
}

void TestPlanmodulEigene::aFoodSavedAgainIsOverwritten()
{
    m_heim->schreibeEigene({speise(u"Eintopf"_s, {{Naehrwert::fett, 5}})});
    oeffne();
    (*m_fenster)->umschreibungMitName(speise(u"Eintopf"_s, {{Naehrwert::protein, 6}}));
    QCOMPARE((*m_fenster)->KundenDictionary.size(), 1);
    QCOMPARE((*m_fenster)->KundenDictionary[u"Eintopf"_s].fett(), 0.0F);
    QCOMPARE((*m_fenster)->KundenDictionary[u"Eintopf"_s].protein(), 6.0F);
}

void TestPlanmodulEigene::aSavedFoodIsWrittenAtOnce()
{
    m_heim->schreibeEigene({speise(u"Alt"_s)});
    oeffne();
    (*m_fenster)->umschreibungMitName(speise(u"Eintopf"_s, {{Naehrwert::fett, 5}}));
    QCOMPARE(m_heim->eigene().keys(), QStringList({u"Alt"_s, u"Eintopf"_s}));
    QCOMPARE(m_heim->eigene()[u"Eintopf"_s].fett(), 5.0F);
}

void TestPlanmodulEigene::savingReloadsAndEvaluatesNothing()
{
    m_heim->schreibeEigene({speise(u"Eintopf"_s, {{Naehrwert::vitc, 20}})});
    m_heim->schreibePlan({{u"Eintopf"_s, 100}});
    oeffne();
    (*m_fenster)->umschreibungMitName(speise(u"Eintopf"_s, {{Naehrwert::vitc, 30}}));
    QCOMPARE((*m_fenster)->gesamtvitaminc->floatValue(), 20.0F);
    (*m_fenster)->datenberechnen();
    QCOMPARE((*m_fenster)->gesamtvitaminc->floatValue(), 30.0F);
}

void TestPlanmodulEigene::aDeletedFoodLeavesFileAndPlan()
{
    m_heim->schreibeEigene({speise(u"Alt"_s), speise(u"Eintopf"_s, {{Naehrwert::vitc, 20}})});
    m_heim->schreibePlan({{u"Brot"_s, 100}, {u"Eintopf"_s, 100}});
    oeffne();
    (*m_fenster)->loeschenvonkundeneintraegen(u"Eintopf"_s);
    QCOMPARE(m_heim->eigene().keys(), QStringList(u"Alt"_s));
    QCOMPARE(m_heim->plan().keys(), QStringList(u"Brot"_s));
    QCOMPARE(m_fenster->spalte(u"name"_s), QStringList(u"Brot"_s));
    QCOMPARE((*m_fenster)->gesamtvitaminc->floatValue(), 10.0F);
}

void TestPlanmodulEigene::aDeletedFoodThatIsNotInThePlanLeavesTheFileOnly()
{
    m_heim->schreibeEigene({speise(u"Alt"_s), speise(u"Eintopf"_s)});
    m_heim->schreibePlan({{u"Brot"_s, 100.5F}});
    oeffne();
    (*m_fenster)->loeschenvonkundeneintraegen(u"Eintopf"_s);
    QCOMPARE(m_heim->eigene().keys(), QStringList(u"Alt"_s));
    QCOMPARE(m_heim->plan().value(u"Brot"_s), 100.5F); // the plan's file is not written
    QCOMPARE(m_fenster->spalte(u"name"_s), QStringList(u"Brot"_s));
    QVERIFY((*m_fenster)->window()->isVisible());
}

void TestPlanmodulEigene::deletingWhatNobodyKnowsDoesNoHarm()
{
    oeffne();
    (*m_fenster)->loeschenvonkundeneintraegen(u"Niemand"_s);
    (*m_fenster)->loeschenvonkundeneintraegen({});
    QVERIFY(m_heim->eigene().isEmpty());
    QVERIFY((*m_fenster)->PlanArray.isEmpty());
}

void TestPlanmodulEigene::askingForABuiltInFoodWritesNothing()
{
    m_heim->schreibePlan({{u"Brot"_s, 100}});
    oeffne();
    QVERIFY(!(*m_fenster)->window()->grab().isNull());
    QVERIFY(!QFile::exists(m_heim->eigeneDatei()));
}

void TestPlanmodulEigene::askingForAnOwnFoodWritesTheCopy()
{
    m_heim->schreibeEigene({speise(u"Eintopf"_s)});
    m_heim->schreibePlan({{u"Eintopf"_s, 100}});
    oeffne();
    QVERIFY(QFile::remove(m_heim->eigeneDatei()));
    QCOMPARE(m_fenster->zelle(0, u"name"_s), u"Eintopf"_s);
    QCOMPARE(m_heim->eigene().keys(), QStringList(u"Eintopf"_s));
}

void TestPlanmodulEigene::askingForAnUnknownFoodWritesTheCopyToo()
{
    m_heim->schreibePlan({{u"Niemand"_s, 100}});
    oeffne();
    QVERIFY(m_fenster->zelle(0, u"kal"_s).isNull());
    QCOMPARE(Archivdatei::lesen(m_heim->eigeneDatei()).zustand, Archivdatei::Zustand::Gelesen);
    QVERIFY(m_heim->eigene().isEmpty());
}

void TestPlanmodulEigene::askingForAnAmountWritesNothing()
{
    m_heim->schreibePlan({{u"Niemand"_s, 100}});
    Planmodul plan(m_heim->tueren());
    plan.window();
    const Tabellenmodell &modell = *plan.PlanTabelle->modell();
    QCOMPARE(modell.index(0, modell.spaltenstelle(u"menge"_s)).data().toString(), u"100"_s);
    QVERIFY(!QFile::exists(m_heim->eigeneDatei()));
    QVERIFY(!modell.index(0, modell.spaltenstelle(u"name"_s)).data().isValid());
    QVERIFY(QFile::exists(m_heim->eigeneDatei()));
}

/// The main window saves last, with what it displays; the table's next request brings the plan's
/// copy back.
void TestPlanmodulEigene::theMainWindowsFileIsOverwrittenWhenTheTableIsAsked()
{
    m_heim->schreibeEigene({speise(u"Eintopf"_s, {{Naehrwert::fett, 5}})});
    m_heim->schreibePlan({{u"Brot"_s, 100}, {u"Eintopf"_s, 100}});
    oeffne();
    for (const float fett : {6.0F, 7.0F}) {
        (*m_fenster)->umschreibungMitName(speise(u"Eintopf"_s, {{Naehrwert::fett, fett}}));
        QCOMPARE(m_heim->eigene()[u"Eintopf"_s].fett(), fett);
        m_heim->schreibeEigene({speise(u"Eintopf"_s, {{Naehrwert::fett, 1}}), speise(u"Neu"_s)});
        QCOMPARE(m_fenster->zelle(0, u"fett"_s), u"0,0"_s); // built in: the file is not its matter
        QCOMPARE(m_heim->eigene().size(), 2);
        QVERIFY(!m_fenster->zelle(1, u"fett"_s).isNull());
        QCOMPARE(m_heim->eigene().keys(), QStringList(u"Eintopf"_s));
        QCOMPARE(m_heim->eigene()[u"Eintopf"_s].fett(), fett);
    }
}

void TestPlanmodulEigene::aPaintedTableAsksForItsCells()
{
    m_heim->schreibeEigene({speise(u"Eintopf"_s)});
    m_heim->schreibePlan({{u"Eintopf"_s, 100}});
    oeffne();
    m_heim->schreibeEigene({speise(u"Von anderer Hand"_s)});
    QVERIFY(!(*m_fenster)->PlanTabelle->grab().isNull());
    QCOMPARE(m_heim->eigene().keys(), QStringList(u"Eintopf"_s));
}

void TestPlanmodulEigene::aFileThatNeedNotChangeIsNotTouched()
{
    m_heim->schreibeEigene({speise(u"Eintopf"_s)});
    m_heim->schreibePlan({{u"Eintopf"_s, 100}});
    stelleZurueck();
    oeffne();
    QVERIFY(!(*m_fenster)->PlanTabelle->grab().isNull());
    (*m_fenster)->umschreibungMitName(speise(u"Eintopf"_s));
    QVERIFY(!istGeschrieben());
    (*m_fenster)->umschreibungMitName(speise(u"Eintopf"_s, {{Naehrwert::fett, 1}}));
    QVERIFY(istGeschrieben());
}

/// With 100,000 own foods every try takes a fifth of a second.
void TestPlanmodulEigene::aFailedWriteIsNotTriedWithEveryCell()
{
    QList<Datenmodul> eigene;
    QList<std::pair<QString, float>> zeilen;
    for (int i = 0; i < 20; ++i) {
        eigene << speise(u"Eintopf %1"_s.arg(i));
        zeilen << std::pair(eigene.constLast().name(), 100.0F);
    }
    m_heim->schreibeEigene(eigene);
    m_heim->schreibePlan(zeilen);
    oeffne();
    const Stoerung stoerung(Stoerung::Schritt::Anlegen, 0, false, EACCES);
    (*m_fenster)->umschreibungMitName(speise(u"Neu"_s));
    QCOMPARE(stoerung.ausfaelle(), 1);
    QElapsedTimer uhr;
    uhr.start();
    for (int i = 0; i < 3; ++i) {
        QVERIFY(!(*m_fenster)->PlanTabelle->grab().isNull());
    }
    QVERIFY(stoerung.ausfaelle() <= 1 + uhr.elapsed() / 5000);
    const int bisher = stoerung.ausfaelle();
    (*m_fenster)->umschreibungMitName(speise(u"Noch eines"_s)); // a change is tried at once
    QCOMPARE(stoerung.ausfaelle(), bisher + 1);
}

void TestPlanmodulEigene::aDamagedFileThatCantBeReplacedIsNotCopiedWithEveryCell()
{
    m_heim->schreibePlan({{u"Eintopf"_s, 100}, {u"Niemand"_s, 100}});
    QFile datei(m_heim->eigeneDatei());
    QVERIFY(datei.open(QIODevice::WriteOnly));
    QVERIFY(datei.write("no foods") > 0);
    datei.close();
    {
        const Stoerung stoerung(Stoerung::Schritt::Umbenennen, 1); // the copy goes well each time
        oeffne();
        QVERIFY(!(*m_fenster)->PlanTabelle->grab().isNull());
        QVERIFY(stoerung.ausfaelle() > 0);
    }
    const QDir ordner = QFileInfo(m_heim->eigeneDatei()).dir();
    QCOMPARE(ordner.entryList(QDir::Files),
             QStringList({u"MahlbergCustomnutr.daten"_s, u"MahlbergPlanmod.daten"_s}));
    (*m_fenster)->umschreibungMitName(speise(u"Neu"_s));
    QCOMPARE(m_heim->eigene().keys(), QStringList(u"Neu"_s));
    QCOMPARE(ordner.entryList(QDir::Files).size(), 3);
}

QTEST_MAIN(TestPlanmodulEigene)
#include "TestPlanmodulEigene.moc"
