// What joins the days with each other, with the plan on the desk, with kept plans and with the
// foods of today.

#include "Tagefenstertest.h"

#include <QListWidget>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;
using Aufzeichnungsprobe::oder;
using Aufzeichnungsprobe::speise;
using Aufzeichnungsprobe::zeile;
using Art = Tagesmodell::Art;
using Platz = Tagesmodell::Platz;

class TestTagefensterPlan : public Tagefenstertest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aDayGoesToTheDesk();
    void whatIsAddedUpAndLeftOutIsTold();
    void aPlanOnTheDeskIsReplacedOnlyWhenWanted_data();
    void aPlanOnTheDeskIsReplacedOnlyWhenWanted();
    void aDayOfNothingIsNoPlan();
    void aDeskThatTakesNothingIsTold();
    void thePlanOnTheDeskBecomesRows();
    void anEmptyDeskIsTold();
    void aKeptPlanBecomesRows();
    void aKeptPlanMayBeDeclined();
    void withoutKeptPlansThatIsTold();
    void withoutThePlanThereAreNoEntries();
    void chosenDaysAreFilled();
    void fillingMayBeDeclined();
    void theOnlyDayFillsNoOther();
    void valuesOfTodayAreTaken();
    void whatIsUpToDateIsNoStep();

private:
    void waehle(const QString &text) const { eintrag(text)->trigger(); }
    /// Answers the window that opens next with a key.
    void antworte(const std::function<void(QWidget &)> &tat)
    {
        m_geoeffnet = false;
        QTimer::singleShot(0, this, [this, tat] {
            QWidget *fenster = QApplication::activeModalWidget();
            m_geoeffnet = fenster != nullptr;
            if (m_geoeffnet) {
                tat(*fenster);
                fenster->close();
            }
        });
    }
    QString hinweis() const { return m_probe->hinweise().value(0); }

    bool m_geoeffnet = false;
};

/// Three days; on the first apple, toast and toast again, an alternative, and cake that no one
/// knows.
void TestTagefensterPlan::init()
{
    m_probe = std::make_unique<Fensterprobe>();
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 3);
    Mahlzeitzeile kuchen;
    kuchen.text = u"Omas Kuchen"_s;
    eine.tage[0].mahlzeiten[0].zeilen = {zeile(u"Apfel"_s, 150), zeile(u"Toast"_s, 40),
                                         oder(zeile(u"Milch"_s, 125))};
    eine.tage[0].mahlzeiten[2].zeilen = {zeile(u"Toast"_s, 20), kuchen};
    buch().beginne(eine);
    m_probe->fenster->ansicht->setFocus();
}

void TestTagefensterPlan::aDayGoesToTheDesk()
{
    waehle(u"Als Plan auf den Schreibtisch"_s);
    QCOMPARE(m_probe->gelegt.size(), 2);
    QCOMPARE(m_probe->gelegt[0].schluessel, u"Apfel"_s);
    QCOMPARE(m_probe->gelegt[0].gramm, 150.0F);
    QCOMPARE(m_probe->gelegt[1].schluessel, u"Toast"_s);
    QCOMPARE(m_probe->gelegt[1].gramm, 60.0F); // 40 + 20
    QVERIFY(m_probe->gefragt.isEmpty());
    QCOMPARE(buch().schritte.index(), 0);
}

void TestTagefensterPlan::whatIsAddedUpAndLeftOutIsTold()
{
    waehle(u"Als Plan auf den Schreibtisch"_s);
    QCOMPARE(hinweis(),
             u"Auf dem Schreibtisch liegt der Tag als Plan. Lebensmittel: 2. Aus mehreren "
             "Zeilen addiert: 1 (Toast). Ausgelassene Zeilen: 2 (Milch, Omas Kuchen)."_s);
    buch().aendere(u"x"_s, [](Aufzeichnung &was) {
        Mahlzeitzeile eine;
        for (const auto &name : {u"A"_s, u"B"_s}) {
            eine.text = name;
            was.tage[0].mahlzeiten[3].zeilen << eine;
        }
        return true;
    });
    waehle(u"Als Plan auf den Schreibtisch"_s);
    QVERIFY(hinweis().endsWith(u"Ausgelassene Zeilen: 4 (Milch, Omas Kuchen, A, B)."_s));
    buch().aendere(u"x"_s, [](Aufzeichnung &was) {
        was.tage[0].mahlzeiten[4].zeilen = was.tage[0].mahlzeiten[3].zeilen;
        return true;
    });
    waehle(u"Als Plan auf den Schreibtisch"_s);
    QVERIFY(
        hinweis().endsWith(u"Ausgelassene Zeilen: 6 (Milch, Omas Kuchen, A, B und 2 weitere)."_s));
}

void TestTagefensterPlan::aPlanOnTheDeskIsReplacedOnlyWhenWanted_data()
{
    QTest::addColumn<int>("antwort");
    QTest::addColumn<bool>("ersetzt");
    QTest::newRow("keep") << 0 << false;
    QTest::newRow("replace") << 1 << true;
    QTest::newRow("closed") << -1 << false;
}

void TestTagefensterPlan::aPlanOnTheDeskIsReplacedOnlyWhenWanted()
{
    QFETCH(const int, antwort);
    m_probe->plan = {{u"Wasser"_s, 100, {}}};
    m_probe->antwort = antwort;
    waehle(u"Als Plan auf den Schreibtisch"_s);
    QCOMPARE(m_probe->gefragt, QStringList{u"Den Plan auf dem Schreibtisch ersetzen?"_s});
    QTEST(!m_probe->gelegt.isEmpty(), "ersetzt");
    QTEST(!m_probe->hinweise().isEmpty(), "ersetzt");
}

void TestTagefensterPlan::aDayOfNothingIsNoPlan()
{
    buch().waehleTag(1);
    waehle(u"Als Plan auf den Schreibtisch"_s);
    QCOMPARE(hinweis(), u"Auf diesem Tag steht nichts, was in einen Plan kommen kann."_s);
    QVERIFY(m_probe->gelegt.isEmpty());
}

void TestTagefensterPlan::aDeskThatTakesNothingIsTold()
{
    m_probe->legtAufTisch = false;
    waehle(u"Als Plan auf den Schreibtisch"_s);
    QCOMPARE(hinweis(), u"Der Plan ließ sich nicht auf den Schreibtisch legen."_s);
}

void TestTagefensterPlan::thePlanOnTheDeskBecomesRows()
{
    m_probe->plan = {{u"Wasser"_s, 62.5F, {}}, {u"Milch"_s, 200, {}}, {u"Fort"_s, 10, {}}};
    m_probe->fenster->ansicht->geheZu({Art::Speise, 0, 0}, Tagesmodell::Name);
    waehle(u"Plan vom Schreibtisch übernehmen"_s);
    QCOMPARE(mahlzeit(0), u"ApfelWasserMilchFortToast|Milch"_s);
    QCOMPARE(m_probe->zeile(0, 1).angabe, u"62,5 g"_s);
    QCOMPARE(hinweis(), u"Zeilen vom Plan auf dem Schreibtisch: 3. Davon zählen nicht: 1."_s);
    QCOMPARE(buch().schritte.index(), 1);
    buch().schritte.undo();
    QCOMPARE(mahlzeit(0), u"ApfelToast|Milch"_s);
}

void TestTagefensterPlan::anEmptyDeskIsTold()
{
    waehle(u"Plan vom Schreibtisch übernehmen"_s);
    QCOMPARE(hinweis(), u"Der Plan auf dem Schreibtisch ist leer."_s);
    QCOMPARE(buch().schritte.index(), 0);
}

void TestTagefensterPlan::aKeptPlanBecomesRows()
{
    m_probe->abgelegte = {
        {u"Erster"_s, QDate(2026, 1, 2), {{u"Wasser"_s, 100, {}}}},
        {u"Zweiter"_s,
         {},
         {{u"Milch"_s, 200, speise(u"Milch"_s, 1)}, {u"Fort"_s, 10, speise(u"Fort"_s, 77)}}}};
    m_probe->fenster->ansicht->geheZu({Art::Eingabe, 1, 0}, Tagesmodell::Name);
    antworte([](QWidget &fenster) {
        auto *liste = fenster.findChild<QListWidget *>(u"plaene"_s);
        QTest::keyClick(liste, Qt::Key_Down);
        QTest::keyClick(liste, Qt::Key_Return);
    });
    waehle(u"Abgelegten Plan übernehmen …"_s);
    QVERIFY(m_geoeffnet);
    QCOMPARE(mahlzeit(1), u"MilchFort"_s);
    QCOMPARE(m_probe->zeile(1, 0).eintrag->kal(), 100.0F); // as it is today
    QCOMPARE(m_probe->zeile(1, 1).eintrag->kal(), 77.0F);  // as it was then
    QCOMPARE(hinweis(), u"Zeilen vom abgelegten Plan: 2."_s);
}

void TestTagefensterPlan::aKeptPlanMayBeDeclined()
{
    m_probe->abgelegte = {{u"Erster"_s, {}, {{u"Wasser"_s, 100, {}}}}};
    antworte([](QWidget &fenster) { QTest::keyClick(&fenster, Qt::Key_Escape); });
    waehle(u"Abgelegten Plan übernehmen …"_s);
    QVERIFY(m_geoeffnet);
    QCOMPARE(buch().schritte.index(), 0);
}

void TestTagefensterPlan::withoutKeptPlansThatIsTold()
{
    waehle(u"Abgelegten Plan übernehmen …"_s);
    QCOMPARE(hinweis(), u"Es ist kein Plan abgelegt."_s);
}

void TestTagefensterPlan::withoutThePlanThereAreNoEntries()
{
    QVERIFY(eintrag(u"Als Plan auf den Schreibtisch"_s) != nullptr);
    Tagetueren tueren = m_probe->tueren();
    tueren.legeAufTisch = {};
    tueren.planVomTisch = {};
    tueren.abgelegtePlaene = {};
    m_probe->fenster = std::make_unique<Tagefenster>(m_probe->ablage, tueren);
    QVERIFY(eintrag(u"Tag kopieren"_s) != nullptr);
    QVERIFY(eintrag(u"Als Plan auf den Schreibtisch"_s) == nullptr);
    QVERIFY(eintrag(u"Plan vom Schreibtisch übernehmen"_s) == nullptr);
    QVERIFY(eintrag(u"Abgelegten Plan übernehmen …"_s) == nullptr);
}

void TestTagefensterPlan::chosenDaysAreFilled()
{
    antworte([](QWidget &fenster) {
        auto *liste = fenster.findChild<QListWidget *>(u"tage"_s);
        QTest::keyClick(liste, Qt::Key_Space); // not the second day
        QTest::keyClick(liste, Qt::Key_Return);
    });
    waehle(u"In gewählte Tage füllen …"_s);
    QVERIFY(m_geoeffnet);
    QCOMPARE(mahlzeit(0, 1), QString());
    QCOMPARE(mahlzeit(0, 2), u"ApfelToast|Milch"_s);
    QCOMPARE(hinweis(), u"Gefüllte Tage: 1."_s);
    QCOMPARE(buch().schritte.index(), 1);
    m_probe->fenster->hinweise->findChild<QPushButton *>()->click();
    QCOMPARE(mahlzeit(0, 2), QString());
}

void TestTagefensterPlan::fillingMayBeDeclined()
{
    antworte([](QWidget &fenster) { QTest::keyClick(&fenster, Qt::Key_Escape); });
    waehle(u"In gewählte Tage füllen …"_s);
    QVERIFY(m_geoeffnet);
    QCOMPARE(mahlzeit(0, 1), QString());
    QCOMPARE(buch().schritte.index(), 0);
}

void TestTagefensterPlan::theOnlyDayFillsNoOther()
{
    buch().aendere(u"x"_s,
                   [](Aufzeichnung &was) { return Aufzeichnungsaenderung::setzeTagezahl(was, 1); });
    antworte([](QWidget &) {});
    waehle(u"In gewählte Tage füllen …"_s);
    QCoreApplication::processEvents();
    QVERIFY(!m_geoeffnet);
    QCOMPARE(hinweis(), u"Es gibt keinen anderen Tag zu füllen."_s);
}

void TestTagefensterPlan::valuesOfTodayAreTaken()
{
    m_probe->speisen[u"Toast"_s] = speise(u"Toast"_s, 260);
    m_probe->speisen.remove(u"Milch"_s);
    m_probe->fenster->frischeAuf();
    QCOMPARE(m_probe->zelle({Art::Speise, 0, 1}, Tagesmodell::Name), u"Toast *"_s);
    waehle(u"Werte von heute übernehmen"_s);
    QCOMPARE(hinweis(), u"Zeilen mit neuen Werten: 2. Lebensmittel, die in keiner Tabelle mehr "
                        "stehen: 1 (Milch)."_s);
    QCOMPARE(m_probe->zeile(0, 1).eintrag->kal(), 260.0F);
    QCOMPARE(m_probe->zeile(2, 0).eintrag->kal(), 260.0F);
    QCOMPARE(m_probe->zelle({Art::Speise, 0, 1}, Tagesmodell::Name), u"Toast"_s);
    QCOMPARE(buch().schritte.index(), 1);
    buch().schritte.undo();
    QCOMPARE(m_probe->zeile(2, 0).eintrag->kal(), 100.0F);
}

void TestTagefensterPlan::whatIsUpToDateIsNoStep()
{
    waehle(u"Werte von heute übernehmen"_s);
    QCOMPARE(hinweis(), u"Zeilen mit neuen Werten: 0."_s);
    QCOMPARE(buch().schritte.index(), 0);
}

QTEST_MAIN(TestTagefensterPlan)
#include "TestTagefensterPlan.moc"
