#include "Hindernisse.h"
#include "Planprobe.h"

#include <QApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <QFileInfo>
#include <QMimeData>
#include <QPushButton>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

/// The plan's rows in its window and in its file.
class TestPlanmodulListe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aPlanComesBackInAlphabeticalOrder();
    void aSavedAmountIsCutOff();
    void missingFilesGiveAnEmptyPlan();
    void damagedFilesGiveAnEmptyPlan();
    void damagedFilesAreKeptBesideTheNewOnes();
    void onAFullDiskThePlanGoesOn();
    void onAReadOnlyDiskThePlanGoesOn();
    void theDataFolderIsMadeAtOnce();
    void openingAPlanWritesNoPlanFile();
    void aFoodFromTheMainWindowComesLast();
    void aFoodAlreadyInThePlanMovesToTheEnd();
    void aFoodComesWithItsAmount_data();
    void aFoodComesWithItsAmount();
    void withoutAWindowTheListsAreKeptAllTheSame();
    void theButtonRemovesTheSelectedRow();
    void theDeleteKeyRemovesTheSelectedRow();
    void removingWithNothingSelectedDoesNothing();
    void removingTwiceTakesTheNextRow();
    void aDropGoesAboveARow();
    void aDropOnARowGoesBehindIt();
    void aDropBelowAllRowsGoesLast();
    void onlyTextsAreTaken();
    void aDropThatRunsOutOfTheListIsNeitherSavedNorShown();
    void afterAFailedDropTheWindowGoesOn();

private:
    void oeffne() { m_fenster = std::make_unique<Planfenster>(*m_heim); }
    /// Adds a food and changes an amount while nothing can be written.
    void aendereOhneSchreiben() const;
    /// The file of before is whole, and nothing lies beside it.
    void pruefeAlteDatei() const;
    QStringList gezeigt() const { return m_fenster->spalte(u"name"_s); }

    std::unique_ptr<Planheim> m_heim;
    std::unique_ptr<Planfenster> m_fenster;
};

void TestPlanmodulListe::init()
{
    vergissKlient();
    m_fenster.reset();
    m_heim = std::make_unique<Planheim>();
    m_heim->schreibeTabelle({speise(u"apfel"_s), speise(u"Brot"_s), speise(u"Ei"_s),
                             speise(u"Milch"_s), speise(u"Zucker"_s)});
}

void TestPlanmodulListe::aPlanComesBackInAlphabeticalOrder()
{
    {
        oeffne();
        for (const QString &name : {u"Zucker"_s, u"apfel"_s, u"Brot"_s}) {
            (*m_fenster)->nameimportvontoolbar(name);
        }
        QCOMPARE(gezeigt(), QStringList({u"Zucker"_s, u"apfel"_s, u"Brot"_s}));
    }
    oeffne();
    QCOMPARE(gezeigt(), QStringList({u"apfel"_s, u"Brot"_s, u"Zucker"_s}));
    QCOMPARE((*m_fenster)->Arrayrausgeben(), gezeigt());
}

void TestPlanmodulListe::aSavedAmountIsCutOff()
{
    m_heim->schreibePlan({{u"Brot"_s, 150.7F}, {u"Ei"_s, 0.9F}});
    oeffne();
    QCOMPARE(m_fenster->spalte(u"menge"_s), QStringList({u"150"_s, u"0"_s}));
    QCOMPARE(m_heim->plan()[u"Brot"_s], 150.7F); // the file stays as it is until something changes
}

void TestPlanmodulListe::missingFilesGiveAnEmptyPlan()
{
    QVERIFY(QFile::remove(m_heim->tabelle()));
    oeffne();
    QVERIFY((*m_fenster)->Dictionary.isEmpty());
    QVERIFY((*m_fenster)->KundenDictionary.isEmpty());
    QVERIFY((*m_fenster)->plansavedictionary.isEmpty());
    QVERIFY(gezeigt().isEmpty());
}

void TestPlanmodulListe::damagedFilesGiveAnEmptyPlan()
{
    for (const QString &pfad : {m_heim->tabelle(), m_heim->eigeneDatei(), m_heim->plandatei()}) {
        QFile datei(pfad);
        QVERIFY(datei.open(QIODevice::WriteOnly));
        QVERIFY(datei.write("no foods") > 0);
    }
    oeffne();
    QVERIFY((*m_fenster)->Dictionary.isEmpty());
    QVERIFY((*m_fenster)->KundenDictionary.isEmpty());
    QVERIFY(gezeigt().isEmpty());
}

/// What can't be read may be all that is left of somebody's work.
void TestPlanmodulListe::damagedFilesAreKeptBesideTheNewOnes()
{
    const QDir ordner = QFileInfo(m_heim->plandatei()).dir();
    for (const QString &pfad : {m_heim->eigeneDatei(), m_heim->plandatei()}) {
        QFile datei(pfad);
        QVERIFY(datei.open(QIODevice::WriteOnly));
        QVERIFY(datei.write("no foods, " + QFileInfo(pfad).fileName().toLatin1()) > 0);
    }
    oeffne();
    (*m_fenster)->nameimportvontoolbar(u"Niemand"_s);
    QVERIFY(gezeigt().constFirst().isNull()); // asking for it writes the own foods too
    QCOMPARE(m_heim->plan().keys(), QStringList(u"Niemand"_s));
    for (const QString &name : {u"MahlbergCustomnutr"_s, u"MahlbergPlanmod"_s}) {
        const QStringList kopien = ordner.entryList({name + u" *.daten"_s});
        QCOMPARE(kopien.size(), 1);
        QFile kopie(ordner.filePath(kopien.constFirst()));
        QVERIFY(kopie.open(QIODevice::ReadOnly));
        QCOMPARE(kopie.readAll(), "no foods, " + name.toLatin1() + ".daten");
    }
}

void TestPlanmodulListe::aendereOhneSchreiben() const
{
    (*m_fenster)->nameimportvontoolbar(u"Ei"_s);
    m_fenster->tippeMenge(0, u"250"_s);
    QCOMPARE(gezeigt(), QStringList({u"Brot"_s, u"Ei"_s}));
    QCOMPARE((*m_fenster)->mengenarray, QList<float>({250, 100}));
}

void TestPlanmodulListe::pruefeAlteDatei() const
{
    QCOMPARE(m_heim->plan(), (QMap<QString, float>{{u"Brot"_s, 80}}));
    QCOMPARE(QFileInfo(m_heim->plandatei()).dir().entryList(QDir::Files),
             QStringList(u"MahlbergPlanmod.daten"_s));
}

void TestPlanmodulListe::onAFullDiskThePlanGoesOn()
{
    m_heim->schreibePlan({{u"Brot"_s, 80}});
    oeffne();
    {
        const VolleFestplatte voll(100);
        aendereOhneSchreiben();
    }
    pruefeAlteDatei();
    (*m_fenster)->nameimportvontoolbar(u"Milch"_s); // there is room again
    QCOMPARE(m_heim->plan(),
             (QMap<QString, float>{{u"Brot"_s, 250}, {u"Ei"_s, 100}, {u"Milch"_s, 100}}));
}

void TestPlanmodulListe::onAReadOnlyDiskThePlanGoesOn()
{
    m_heim->schreibePlan({{u"Brot"_s, 80}});
    oeffne();
    const QByteArray ordner = QFile::encodeName(QFileInfo(m_heim->plandatei()).path());
    m_heim->oeffneFuerAlle();
    QCOMPARE(chmod(ordner.constData(), 0555), 0);
    {
        const OhneRechte einfach;
        QVERIFY(einfach.gelungen());
        aendereOhneSchreiben();
    }
    pruefeAlteDatei();
    QCOMPARE(chmod(ordner.constData(), 0755), 0);
    (*m_fenster)->nameimportvontoolbar(u"Milch"_s);
    QCOMPARE(m_heim->plan().size(), 3);
}

void TestPlanmodulListe::theDataFolderIsMadeAtOnce()
{
    const Planmodul plan(m_heim->tueren());
    QVERIFY(
        QFileInfo(QFileInfo(m_heim->tabelle()).path() + u"/Library/Application Support/Mahlberg"_s)
            .isDir());
}

void TestPlanmodulListe::openingAPlanWritesNoPlanFile()
{
    oeffne();
    QVERIFY(!QFile::exists(m_heim->plandatei()));
    QVERIFY(!QFile::exists(m_heim->eigeneDatei()));
}

void TestPlanmodulListe::aFoodFromTheMainWindowComesLast()
{
    oeffne();
    (*m_fenster)->nameimportvontoolbar(u"Ei"_s);
    (*m_fenster)->nameimportvontoolbar(u"apfel"_s);
    QCOMPARE(gezeigt(), QStringList({u"Ei"_s, u"apfel"_s}));
    QCOMPARE(m_fenster->spalte(u"menge"_s), QStringList({u"100"_s, u"100"_s}));
    QCOMPARE(m_heim->plan(), (QMap<QString, float>{{u"Ei"_s, 100.0F}, {u"apfel"_s, 100.0F}}));
}

void TestPlanmodulListe::aFoodAlreadyInThePlanMovesToTheEnd()
{
    m_heim->schreibePlan({{u"apfel"_s, 50}, {u"Brot"_s, 60}});
    oeffne();
    (*m_fenster)->nameimportvontoolbar(u"apfel"_s);
    QCOMPARE(gezeigt(), QStringList({u"Brot"_s, u"apfel"_s}));
    QCOMPARE(m_fenster->spalte(u"menge"_s), QStringList({u"60"_s, u"100"_s}));
    QCOMPARE(m_heim->plan(), (QMap<QString, float>{{u"Brot"_s, 60.0F}, {u"apfel"_s, 100.0F}}));
}

void TestPlanmodulListe::aFoodComesWithItsAmount_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("namen");
    QTest::addColumn<QList<float>>("gramm");
    QTest::newRow("a new one") << u"Ei"_s << QStringList{u"apfel"_s, u"Brot"_s, u"Ei"_s}
                               << QList<float>{50, 60, 150};
    QTest::newRow("one of the plan")
        << u"apfel"_s << QStringList{u"Brot"_s, u"apfel"_s} << QList<float>{60, 150};
    QTest::newRow("the last one") << u"Brot"_s << QStringList{u"apfel"_s, u"Brot"_s}
                                  << QList<float>{50, 150};
}

void TestPlanmodulListe::aFoodComesWithItsAmount()
{
    QFETCH(QString, name);
    QFETCH(QStringList, namen);
    QFETCH(QList<float>, gramm);
    m_heim->schreibePlan({{u"apfel"_s, 50}, {u"Brot"_s, 60}});
    QMap<QString, float> datei;
    for (qsizetype i = 0; i < namen.size(); ++i) {
        datei.insert(namen[i], gramm[i]);
    }
    {
        Planmodul ohneFenster(m_heim->tueren());
        const Planliste vorher = ohneFenster;
        ohneFenster.gibHinein(name, 150);
        QCOMPARE(ohneFenster.PlanArray, namen);
        QCOMPARE(ohneFenster.mengenarray, gramm);
        QCOMPARE(m_heim->plan(), datei);
        ohneFenster.uebernimmPlan(vorher);
    }
    oeffne();
    (*m_fenster)->gibHinein(name, 150);
    QCOMPARE(gezeigt(), namen);
    QCOMPARE(m_fenster->spalte(u"menge"_s).constLast(), u"150"_s);
    QCOMPARE(m_heim->plan(), datei);
}

void TestPlanmodulListe::withoutAWindowTheListsAreKeptAllTheSame()
{
    Planmodul plan(m_heim->tueren());
    plan.nameimportvontoolbar(u"Ei"_s);
    plan.anthrouebergabegewicht(80);
    plan.anthrouebergabegroesse(1.8F);
    plan.Lebensmittelentfernen(); // nothing can be selected yet
    plan.datenberechnen();
    Textfeld feld;
    feld.setIntValue(30);
    plan.verlustberechnen();
    plan.tageberechnen(feld);
    plan.tabgroesseaendern(feld);
    plan.loeschenvonkundeneintraegen(u"Niemand"_s);
    QVERIFY(plan.PlanTabelle == nullptr);
    QCOMPARE(m_heim->plan().keys(), QStringList(u"Ei"_s));
    plan.window();
    QCOMPARE(plan.PlanTabelle->model()->rowCount(), 1);
}

void TestPlanmodulListe::theButtonRemovesTheSelectedRow()
{
    m_heim->schreibePlan({{u"apfel"_s, 50}, {u"Brot"_s, 60}, {u"Ei"_s, 70}});
    oeffne();
    QTest::mouseClick((*m_fenster)->PlanTabelle->viewport(), Qt::LeftButton, {},
                      m_fenster->mitte(1, u"name"_s));
    QTest::mouseClick((*m_fenster)->entfernenknopf, Qt::LeftButton);
    QCOMPARE(gezeigt(), QStringList({u"apfel"_s, u"Ei"_s}));
    QCOMPARE(m_fenster->spalte(u"menge"_s), QStringList({u"50"_s, u"70"_s}));
    QCOMPARE(m_heim->plan().keys(), QStringList({u"Ei"_s, u"apfel"_s}));
}

void TestPlanmodulListe::theDeleteKeyRemovesTheSelectedRow()
{
    m_heim->schreibePlan({{u"apfel"_s, 50}, {u"Brot"_s, 60}});
    oeffne();
    QTest::mouseClick((*m_fenster)->PlanTabelle->viewport(), Qt::LeftButton, {},
                      m_fenster->mitte(0, u"fett"_s));
    QTest::keyClick((*m_fenster)->PlanTabelle, Qt::Key_Delete);
    QCOMPARE(gezeigt(), QStringList(u"Brot"_s));
}

void TestPlanmodulListe::removingWithNothingSelectedDoesNothing()
{
    m_heim->schreibePlan({{u"apfel"_s, 50.5F}});
    oeffne();
    QTest::mouseClick((*m_fenster)->entfernenknopf, Qt::LeftButton);
    QCOMPARE(gezeigt(), QStringList(u"apfel"_s));
    QCOMPARE(m_heim->plan()[u"apfel"_s], 50.5F); // not written either
    QVERIFY((*m_fenster)->window()->isVisible());
}

void TestPlanmodulListe::removingTwiceTakesTheNextRow()
{
    m_heim->schreibePlan({{u"apfel"_s, 50}, {u"Brot"_s, 60}, {u"Ei"_s, 70}});
    oeffne();
    (*m_fenster)->PlanTabelle->selectRow(0);
    (*m_fenster)->Lebensmittelentfernen();
    (*m_fenster)->Lebensmittelentfernen();
    QCOMPARE(gezeigt(), QStringList(u"Ei"_s));
    (*m_fenster)->Lebensmittelentfernen();
    (*m_fenster)->Lebensmittelentfernen(); // with the last row its selection is gone
    QVERIFY(gezeigt().isEmpty());
    QVERIFY(m_heim->plan().isEmpty());
}

void TestPlanmodulListe::aDropGoesAboveARow()
{
    m_heim->schreibePlan({{u"apfel"_s, 50}, {u"Brot"_s, 60}});
    oeffne();
    QVERIFY(m_fenster->wirfAbUeber(u"Ei"_s, 1));
    QCOMPARE(gezeigt(), QStringList({u"apfel"_s, u"Ei"_s, u"Brot"_s}));
    QVERIFY(m_fenster->wirfAbUeber(u"Milch"_s, 0));
    QCOMPARE(gezeigt(), QStringList({u"Milch"_s, u"apfel"_s, u"Ei"_s, u"Brot"_s}));
    QCOMPARE(m_fenster->spalte(u"menge"_s), QStringList({u"100"_s, u"50"_s, u"100"_s, u"60"_s}));
    QCOMPARE(m_heim->plan().size(), 4);
}

void TestPlanmodulListe::aDropOnARowGoesBehindIt()
{
    m_heim->schreibePlan(
        {{u"apfel"_s, 1}, {u"Brot"_s, 1}, {u"Ei"_s, 1}, {u"Milch"_s, 1}, {u"X"_s, 1}});
    oeffne();
    QVERIFY(m_fenster->wirfAb(u"Zucker"_s, m_fenster->mitte(3, u"name"_s)));
    QCOMPARE((*m_fenster)->PlanArray.indexOf(u"Zucker"_s), 4);
    QCOMPARE((*m_fenster)->PlanArray.indexOf(u"X"_s), 5);
}

void TestPlanmodulListe::aDropBelowAllRowsGoesLast()
{
    oeffne();
    const int unten = (*m_fenster)->PlanTabelle->viewport()->height() - 2;
    QVERIFY(m_fenster->wirfAb(u"Ei"_s, QPoint(700, unten))); // into an empty plan
    QVERIFY(m_fenster->wirfAb(u"apfel"_s, QPoint(30, unten)));
    QCOMPARE(gezeigt(), QStringList({u"Ei"_s, u"apfel"_s}));
}

void TestPlanmodulListe::onlyTextsAreTaken()
{
    oeffne();
    QMimeData daten;
    daten.setUrls({QUrl(u"file:///tmp/apfel"_s)});
    QWidget *flaeche = (*m_fenster)->PlanTabelle->viewport();
    QDragEnterEvent herein(QPoint(9, 9), Qt::CopyAction, &daten, Qt::LeftButton, {});
    QApplication::sendEvent(flaeche, &herein);
    QVERIFY(!herein.isAccepted());
    QDropEvent abwurf(QPoint(9, 9), Qt::CopyAction, &daten, Qt::LeftButton, {});
    QApplication::sendEvent(flaeche, &abwurf);
    QVERIFY(!abwurf.isAccepted());
    QVERIFY((*m_fenster)->PlanArray.isEmpty());
}

void TestPlanmodulListe::aDropThatRunsOutOfTheListIsNeitherSavedNorShown()
{
    m_heim->schreibePlan({{u"apfel"_s, 50}, {u"Brot"_s, 60}, {u"Ei"_s, 70}});
    oeffne();
    QVERIFY(m_fenster->wirfAbUeber(u"apfel"_s, 2)); // a drop is always answered with yes
    QCOMPARE((*m_fenster)->PlanArray, QStringList({u"Brot"_s, u"apfel"_s, u"Ei"_s}));
    QCOMPARE((*m_fenster)->mengenarray, QList<float>({60, 100, 70}));
    QCOMPARE((*m_fenster)->plansavedictionary.keys(), QStringList({u"Brot"_s, u"apfel"_s}));
    QCOMPARE(m_heim->plan().keys(), QStringList({u"Brot"_s, u"Ei"_s, u"apfel"_s}));
    QCOMPARE(gezeigt(), QStringList({u"apfel"_s, u"Brot"_s, u"Ei"_s}));
    QCOMPARE(m_fenster->spalte(u"menge"_s), QStringList({u"50"_s, u"60"_s, u"70"_s}));
    QVERIFY(!(*m_fenster)->window()->grab().isNull());
    QCOMPARE(gezeigt(), QStringList({u"apfel"_s, u"Brot"_s, u"Ei"_s}));
}

void TestPlanmodulListe::afterAFailedDropTheWindowGoesOn()
{
    m_heim->schreibePlan({{u"apfel"_s, 50}, {u"Brot"_s, 60}, {u"Ei"_s, 70}});
    oeffne();
    QVERIFY(m_fenster->wirfAbUeber(u"apfel"_s, 2));
    m_fenster->tippeMenge(0, u"30"_s); // the row is Brot's by now, and says so
    QCOMPARE(gezeigt(), QStringList({u"Brot"_s, u"Brot"_s, u"Ei"_s}));
    QCOMPARE((*m_fenster)->mengenarray, QList<float>({30, 100, 70}));
    (*m_fenster)->nameimportvontoolbar(u"Milch"_s);
    QCOMPARE(gezeigt(), QStringList({u"Brot"_s, u"apfel"_s, u"Ei"_s, u"Milch"_s}));
    // Ei had lost its entry, and apfel still has that of its old row.
    QCOMPARE(m_heim->plan(),
             (QMap<QString, float>{{u"Brot"_s, 30.0F}, {u"Milch"_s, 100.0F}, {u"apfel"_s, 50.0F}}));
}

QTEST_MAIN(TestPlanmodulListe)
#include "TestPlanmodulListe.moc"
