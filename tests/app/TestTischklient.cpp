// The client at the desk: the calculator is set through its own actions, what is measured with it
// becomes today's visit, plans are kept and fetched, and nothing on the desk is emptied.

#include "Klientenprobe.h"

using namespace Qt::StringLiterals;

class TestTischklient : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void whoNeverOpensTheCabinetHasNone();
    void takingAPlaceSetsTheCalculator();
    void whatWasNeverMeasuredIsNotThatOfTheOneBefore();
    void theLatestOfEachMeasureCounts();
    void aChildIsNotReckonedWith();
    void takingAPlaceMakesNoVisit();
    void aMeasureChangedBecomesTodaysVisit();
    void whatWasNotChangedIsNotInTheVisit();
    void aSecondMeasureGoesIntoTheSameVisit();
    void theVisitKeepsTheFigureAsItWasTyped();
    void theVisitOfTodayIsTheOneThatIsThere();
    void aMeasureOnItsWayIsKeptWhenTheyLeave();
    void leavingEmptiesNothing();
    void afterLeavingNothingIsKept();
    void theTitlesSayWhoSitsThere();
    void aDeletedClientLeavesTheDesk();
    void anUnlikelyMeasureIsSaid();
    void thePlanIsKeptWithItsFoods();
    void aPlanIsKeptOnce();
    void anEmptyPlanIsNotKept();
    void aKeptPlanComesBack();
    void whatStoodThereIsKeptFirst();
    void whatIsKeptAlreadyIsNotKeptTwice();
    void whoeverComesNextLeavesThePlanOfTheOneBeforeWithThem();
    void aStartAnewKnowsThePlanThatIsKept();
    void fetchingCanBeTakenBack();

private:
    QString klient(const QString &name, const QList<Besuch> &besuche = {},
                   const std::function<void(Person &)> &aendere = {});
    Klientenakte akte(const QString &kennung) { return m_probe->kartei().akte(kennung).value(); }
    AnthroController &rechner() { return m_probe->programm().rechner(); }
    Tischklient &tisch() { return m_probe->tisch(); }
    Planmodul &plan()
    {
        m_probe->programm()->Planmoduloeffnen();
        return *m_probe->programm()->planmodul;
    }
    void stelle(Schieber *schieber, double zahl)
    {
        schieber->eingabe()->setFocus();
        schieber->eingabe()->selectAll();
        QTest::keyClicks(schieber->eingabe(), QLocale().toString(zahl, 'g', 6));
        QTest::keyClick(schieber->eingabe(), Qt::Key_Return);
    }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Klientenprobe> m_probe;
};

namespace {

Besuch besuchVom(const QDate &tag, double gewicht)
{
    Besuch besuch;
    besuch.datum = tag;
    besuch.gewicht = gewicht;
    return besuch;
}

Datenmodul lebensmittel(const QString &name, float kal)
{
    Datenmodul eines;
    eines.setName(name);
    eines.setkal(kal);
    return eines;
}

} // namespace

void TestTischklient::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(
        {{u"Apfel"_s, lebensmittel(u"Apfel"_s, 54)}, {u"Brot"_s, lebensmittel(u"Brot"_s, 220)}});
    m_probe = std::make_unique<Klientenprobe>(*m_heim);
}

void TestTischklient::cleanup()
{
    m_probe.reset();
    m_heim.reset();
}

QString TestTischklient::klient(const QString &name, const QList<Besuch> &besuche,
                                const std::function<void(Person &)> &aendere)
{
    Person person;
    person.name = name;
    if (aendere) {
        aendere(person);
    }
    QString kennung = m_probe->kartei().sichere({QString(), person, {}});
    for (const Besuch &besuch : besuche) {
        m_probe->kartei().sichere({kennung, besuch, {}});
    }
    return kennung;
}

void TestTischklient::whoNeverOpensTheCabinetHasNone()
{
    stelle(rechner().gewichtn, 91);
    plan().nameimportvontoolbar(u"Apfel"_s);
    QTest::qWait(400);
    m_probe.reset();
    const QDir ordner = QFileInfo(m_heim->eigeneDatei()).dir();
    QVERIFY(ordner.entryList({u"*.sqlite*"_s}).isEmpty());
}

void TestTischklient::takingAPlaceSetsTheCalculator()
{
    Besuch besuch = besuchVom(QDate(2026, 1, 5), 64.5);
    besuch.groesse = 1.68;
    besuch.taille = 82;
    besuch.huefte = 101.5;
    besuch.aktivitaet = Aktivitaet::Mittel;
    besuch.reduktion = true;
    besuch.sport = u"Radfahren"_s;
    besuch.sportdauer = 2;
    const QString kennung = klient(u"Anna"_s, {besuch}, [](Person &person) {
        person.geschlecht = Personengeschlecht::Frau;
        person.geburt = QDate::currentDate().addYears(-40);
    });
    QVERIFY(tisch().nimm(kennung));
    QCOMPARE(rechner().gewicht->floatValue(), 64.5F);
    QCOMPARE(rechner().gewichtn->floatValue(), 64.5F);
    QCOMPARE(rechner().groesse->floatValue(), 1.68F);
    QCOMPARE(rechner().taillenumfang->floatValue(), 82.0F);
    QCOMPARE(rechner().hueftumfang->floatValue(), 101.5F);
    QCOMPARE(rechner().geschlechtauswahl, 1.0F);
    QCOMPARE(rechner().arbeitauswahl, 1.3F);
    QCOMPARE(rechner().arbeit->gewaehlterTag(), 1);
    QVERIFY(rechner().gewichtredu->isChecked());
    QCOMPARE(rechner().alter->intValue(), 40);
    QCOMPARE(rechner().sport->stringValue(), u"Radfahren"_s);
    QCOMPARE(rechner().sportmenge->doubleValue(), 2.0);
    // 64.5 kg x 20 x 1.3 x 1.0 = 1677 and 2 h of 300 kcal, a fifth less
    QCOMPARE(rechner().kalunbereinigt, 2277);
    QCOMPARE(rechner().kal, 1822);
    QCOMPARE(Planmodul::klient.gewicht, 64.5F);
}

void TestTischklient::whatWasNeverMeasuredIsNotThatOfTheOneBefore()
{
    stelle(rechner().gewichtn, 91);
    stelle(rechner().taillen, 99);
    const QString kennung = klient(u"Anna"_s, {besuchVom(QDate(2026, 1, 5), 64.5)});
    QVERIFY(tisch().nimm(kennung));
    QCOMPARE(rechner().gewicht->floatValue(), 64.5F);
    QCOMPARE(rechner().taillenumfang->floatValue(), 0.0F);
    QCOMPARE(rechner().groesse->floatValue(), 0.0F);
    QVERIFY(m_probe->programm()->hinweise->hinweise().constFirst().text.contains(
        u"Nicht bekannt: Geschlecht, Geburtsdatum, Tätigkeit"_s));
}

void TestTischklient::theLatestOfEachMeasureCounts()
{
    Besuch erster = besuchVom(QDate(2025, 1, 5), 70);
    erster.groesse = 1.7;
    const QString kennung = klient(
        u"Anna"_s, {besuchVom(QDate(2026, 1, 5), 66), erster, besuchVom(QDate(2025, 6, 1), 68)});
    QVERIFY(tisch().nimm(kennung));
    QCOMPARE(rechner().gewicht->floatValue(), 66.0F);
    QCOMPARE(rechner().groesse->floatValue(), 1.7F);
}

void TestTischklient::aChildIsNotReckonedWith()
{
    const QString kind = klient(u"Kind"_s, {besuchVom(QDate(2026, 1, 5), 30)}, [](Person &person) {
        person.geburt = QDate::currentDate().addYears(-9);
    });
    const QString anna =
        klient(u"Anna"_s, {besuchVom(QDate(2026, 1, 5), 64.5)},
               [](Person &person) { person.geburt = QDate::currentDate().addYears(-40); });
    QVERIFY(tisch().nimm(kind));
    QVERIFY(!rechner().gewichtn->isEnabled());
    QCOMPARE(rechner().gewicht->floatValue(), 0.0F);
    QVERIFY(tisch().nimm(anna));
    QVERIFY(rechner().gewichtn->isEnabled());
    QCOMPARE(rechner().gewicht->floatValue(), 64.5F);
    QTest::qWait(400);
    QCOMPARE(akte(kind).besuche.size(), 1);
    QCOMPARE(akte(anna).besuche.size(), 1);
}

void TestTischklient::takingAPlaceMakesNoVisit()
{
    const QString kennung = klient(u"Anna"_s, {besuchVom(QDate(2026, 1, 5), 64.3)});
    QVERIFY(tisch().nimm(kennung));
    QTest::qWait(400);
    tisch().verlasse();
    QCOMPARE(akte(kennung).besuche.size(), 1);
    QCOMPARE(akte(kennung).besuche.constFirst().fassung, 1);
}

void TestTischklient::aMeasureChangedBecomesTodaysVisit()
{
    const QString kennung = klient(u"Anna"_s, {besuchVom(QDate(2026, 1, 5), 64.5)});
    QVERIFY(tisch().nimm(kennung));
    stelle(rechner().gewichtn, 63);
    QTRY_COMPARE(akte(kennung).besuche.size(), 2);
    QCOMPARE(akte(kennung).besuche.constLast().datum, QDate::currentDate());
    QCOMPARE(akte(kennung).besuche.constLast().gewicht, 63.0);
}

void TestTischklient::whatWasNotChangedIsNotInTheVisit()
{
    Besuch besuch = besuchVom(QDate(2026, 1, 5), 64.5);
    besuch.groesse = 1.7;
    const QString kennung = klient(u"Anna"_s, {besuch});
    QVERIFY(tisch().nimm(kennung));
    stelle(rechner().gewichtn, 63);
    tisch().sichere();
    const Besuch heute = akte(kennung).besuche.constLast();
    QVERIFY(!heute.groesse);
    QVERIFY(!heute.aktivitaet);
    QVERIFY(!heute.reduktion);
    QVERIFY(!heute.sport);
    QVERIFY(!heute.sportdauer);
}

void TestTischklient::aSecondMeasureGoesIntoTheSameVisit()
{
    const QString kennung = klient(u"Anna"_s);
    QVERIFY(tisch().nimm(kennung));
    stelle(rechner().gewichtn, 63);
    tisch().sichere();
    stelle(rechner().taillen, 88);
    QTest::mouseClick(rechner().arbeit->zelle(2), Qt::LeftButton);
    tisch().sichere();
    QCOMPARE(akte(kennung).besuche.size(), 1);
    const Besuch heute = akte(kennung).besuche.constFirst();
    QCOMPARE(heute.gewicht, 63.0);
    QCOMPARE(heute.taille, 88.0);
    QCOMPARE(heute.aktivitaet, Aktivitaet::Schwer);
}

void TestTischklient::theVisitKeepsTheFigureAsItWasTyped()
{
    const QString kennung = klient(u"Anna"_s);
    QVERIFY(tisch().nimm(kennung));
    stelle(rechner().gewichtn, 63.3); // no number of single precision
    tisch().sichere();
    QCOMPARE(akte(kennung).besuche.constFirst().gewicht, 63.3);
}

void TestTischklient::theVisitOfTodayIsTheOneThatIsThere()
{
    Besuch heute = besuchVom(QDate::currentDate(), 64.5);
    heute.notiz = u"nüchtern"_s;
    const QString kennung = klient(u"Anna"_s, {heute});
    QVERIFY(tisch().nimm(kennung));
    stelle(rechner().taillen, 88);
    tisch().sichere();
    QCOMPARE(akte(kennung).besuche.size(), 1);
    QCOMPARE(akte(kennung).besuche.constFirst().taille, 88.0);
    QCOMPARE(akte(kennung).besuche.constFirst().gewicht, 64.5);
    QCOMPARE(akte(kennung).besuche.constFirst().notiz, u"nüchtern"_s);
}

void TestTischklient::aMeasureOnItsWayIsKeptWhenTheyLeave()
{
    const QString kennung = klient(u"Anna"_s);
    QVERIFY(tisch().nimm(kennung));
    stelle(rechner().gewichtn, 63);
    tisch().verlasse();
    QCOMPARE(akte(kennung).besuche.size(), 1);
}

void TestTischklient::leavingEmptiesNothing()
{
    const QString kennung = klient(u"Anna"_s, {besuchVom(QDate(2026, 1, 5), 64.5)});
    QVERIFY(tisch().nimm(kennung));
    plan().nameimportvontoolbar(u"Apfel"_s);
    tisch().verlasse();
    QCOMPARE(rechner().gewicht->floatValue(), 64.5F);
    QCOMPARE(plan().PlanArray, QStringList(u"Apfel"_s));
    QVERIFY(!tisch().akte());
}

void TestTischklient::afterLeavingNothingIsKept()
{
    const QString kennung = klient(u"Anna"_s);
    QVERIFY(tisch().nimm(kennung));
    tisch().verlasse();
    stelle(rechner().gewichtn, 63);
    QTest::qWait(400);
    QVERIFY(akte(kennung).besuche.isEmpty());
}

void TestTischklient::theTitlesSayWhoSitsThere()
{
    const QString kennung = klient(u"Anna Muster"_s);
    plan();
    const QString tag = QDate::currentDate().toString(u"dd.MM.yyyy"_s);
    QVERIFY(tisch().nimm(kennung));
    QCOMPARE(m_probe->programm()->Hauptfenster->windowTitle(),
             u"Anna Muster, %1 – Mahlberg"_s.arg(tag));
    QCOMPARE(plan().window()->windowTitle(), u"Anna Muster, %1 – Mahlzeitenplan"_s.arg(tag));
    tisch().verlasse();
    QCOMPARE(m_probe->programm()->Hauptfenster->windowTitle(), u"Mahlberg"_s);
    QCOMPARE(plan().window()->windowTitle(), u"Mahlzeitenplan"_s);
}

void TestTischklient::aDeletedClientLeavesTheDesk()
{
    const QString kennung = klient(u"Anna"_s);
    QVERIFY(tisch().nimm(kennung));
    QVERIFY(m_probe->kartei().loesche(akte(kennung)));
    QVERIFY(!tisch().akte());
    stelle(rechner().gewichtn, 63);
    QTest::qWait(400);
    QVERIFY(!m_probe->kartei().akte(kennung));
}

void TestTischklient::anUnlikelyMeasureIsSaid()
{
    const QString kennung = klient(u"Anna"_s, {besuchVom(QDate::currentDate().addDays(-7), 64)});
    QVERIFY(tisch().nimm(kennung));
    stelle(rechner().gewichtn, 84);
    tisch().sichere();
    QCOMPARE(akte(kennung).besuche.constLast().gewicht, 84.0);
    QVERIFY(m_probe->programm()->hinweise->hinweise().constFirst().text.startsWith(
        u"Das Gewicht springt: 84,0 kg nach 64,0 kg am "_s));
}

void TestTischklient::thePlanIsKeptWithItsFoods()
{
    const QString kennung = klient(u"Anna"_s);
    QVERIFY(tisch().nimm(kennung));
    plan().gibHinein(u"Brot"_s, 80);
    plan().gibHinein(u"Apfel"_s, 150);
    plan().gibHinein(u"Unbekanntes"_s, 20);
    tisch().legePlanAb();
    const Planablage abgelegt = akte(kennung).plaene.value(0);
    QCOMPARE(abgelegt.datum, QDate::currentDate());
    QCOMPARE(abgelegt.posten.size(), 3);
    QCOMPARE(abgelegt.posten[0].schluessel, u"Brot"_s);
    QCOMPARE(abgelegt.posten[0].gramm, 80.0F);
    QCOMPARE(abgelegt.posten[0].eintrag.value().kal(), 220.0F);
    QCOMPARE(abgelegt.posten[1].gramm, 150.0F);
    QVERIFY(!abgelegt.posten[2].eintrag);
}

void TestTischklient::aPlanIsKeptOnce()
{
    const QString kennung = klient(u"Anna"_s);
    QVERIFY(tisch().nimm(kennung));
    plan().gibHinein(u"Brot"_s, 80);
    tisch().legePlanAb();
    tisch().legePlanAb();
    QCOMPARE(akte(kennung).plaene.size(), 1);
    QCOMPARE(m_probe->programm()->hinweise->hinweise().constFirst().text,
             u"Dieser Plan ist schon abgelegt."_s);
    plan().gibHinein(u"Brot"_s, 90);
    tisch().legePlanAb();
    QCOMPARE(akte(kennung).plaene.size(), 2);
}

void TestTischklient::anEmptyPlanIsNotKept()
{
    const QString kennung = klient(u"Anna"_s);
    QVERIFY(tisch().nimm(kennung));
    tisch().legePlanAb();
    QVERIFY(akte(kennung).plaene.isEmpty());
    QCOMPARE(m_probe->programm()->hinweise->hinweise().constFirst().text,
             u"Der Plan ist leer; es gibt nichts abzulegen."_s);
}

void TestTischklient::aKeptPlanComesBack()
{
    const QString kennung = klient(u"Anna"_s);
    QVERIFY(tisch().nimm(kennung));
    plan().gibHinein(u"Brot"_s, 80);
    plan().gibHinein(u"Apfel"_s, 12.5F);
    tisch().legePlanAb();
    plan().setzePlan({});
    tisch().holePlan(akte(kennung).plaene.constFirst());
    QCOMPARE(plan().PlanArray, QStringList({u"Brot"_s, u"Apfel"_s}));
    QCOMPARE(plan().mengenarray, QList<float>({80, 12.5F}));
    QCOMPARE(akte(kennung).plaene.size(), 1);
}

void TestTischklient::whatStoodThereIsKeptFirst()
{
    const QString kennung = klient(u"Anna"_s);
    QVERIFY(tisch().nimm(kennung));
    plan().gibHinein(u"Brot"_s, 80);
    tisch().legePlanAb();
    plan().gibHinein(u"Apfel"_s, 100);
    tisch().holePlan(akte(kennung).plaene.constFirst());
    QCOMPARE(plan().PlanArray, QStringList(u"Brot"_s));
    QCOMPARE(akte(kennung).plaene.size(), 2);
    QSet<qsizetype> zeilen;
    for (const Planablage &eine : akte(kennung).plaene) {
        zeilen << eine.posten.size();
    }
    QCOMPARE(zeilen, QSet<qsizetype>({1, 2}));
}

void TestTischklient::whatIsKeptAlreadyIsNotKeptTwice()
{
    const QString kennung = klient(u"Anna"_s);
    QVERIFY(tisch().nimm(kennung));
    plan().gibHinein(u"Brot"_s, 80);
    tisch().legePlanAb();
    plan().setzePlan({});
    plan().gibHinein(u"Apfel"_s, 80);
    tisch().legePlanAb();
    tisch().holePlan(akte(kennung).plaene.constFirst());
    tisch().holePlan(akte(kennung).plaene.constLast());
    tisch().verlasse();
    QCOMPARE(akte(kennung).plaene.size(), 2);
}

void TestTischklient::whoeverComesNextLeavesThePlanOfTheOneBeforeWithThem()
{
    const QString anna = klient(u"Anna"_s);
    const QString berta = klient(u"Berta"_s);
    QVERIFY(tisch().nimm(anna));
    plan().gibHinein(u"Brot"_s, 80);
    QVERIFY(tisch().nimm(berta));
    QCOMPARE(akte(anna).plaene.size(), 1);
    tisch().verlasse();
    QVERIFY(akte(berta).plaene.isEmpty());
}

void TestTischklient::aStartAnewKnowsThePlanThatIsKept()
{
    const QString anna = klient(u"Anna"_s);
    const QString berta = klient(u"Berta"_s);
    QVERIFY(tisch().nimm(anna));
    plan().gibHinein(u"Brot"_s, 80);
    tisch().legePlanAb();
    m_probe.reset();
    m_heim->liesEinstellungenNeu();
    m_probe = std::make_unique<Klientenprobe>(*m_heim);
    QVERIFY(tisch().nimm(berta));
    QCOMPARE(plan().PlanArray, QStringList(u"Brot"_s));
    tisch().verlasse();
    QVERIFY(akte(berta).plaene.isEmpty());
}

void TestTischklient::fetchingCanBeTakenBack()
{
    const QString kennung = klient(u"Anna"_s);
    QVERIFY(tisch().nimm(kennung));
    plan().gibHinein(u"Brot"_s, 80);
    tisch().legePlanAb();
    plan().gibHinein(u"Apfel"_s, 100);
    tisch().holePlan(akte(kennung).plaene.constFirst());
    QCOMPARE(plan().PlanArray, QStringList(u"Brot"_s));
    Q_EMIT plan().zuruecknehmenGewuenscht();
    QCOMPARE(plan().PlanArray, QStringList({u"Brot"_s, u"Apfel"_s}));
}

QTEST_MAIN(TestTischklient)
#include "TestTischklient.moc"
