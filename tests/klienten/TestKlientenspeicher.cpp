// What is kept comes back, in a file and on a server; two desks on one store.

#include "Pruefspeicher.h"

#include <QTest>

#include <cmath>
#include <limits>

using Art = Schreibausgang::Art;

namespace {

Person maria()
{
    Person person;
    person.name = QStringLiteral("Maria Größ-O'Neill; DROP TABLE person --");
    person.nummer = QStringLiteral("007/ä");
    person.geburt = QDate(1971, 2, 28);
    person.geschlecht = Personengeschlecht::Frau;
    person.umstand = Umstand::Stillend;
    person.leiden = {true, false, true, false};
    person.notizen = QStringLiteral("isst \"gern\" \\ spät\nmag kein ?\tIngwer 🫚");
    person.archiviert = true;
    return person;
}

Besuch besuchVom(const QDate &tag)
{
    Besuch besuch;
    besuch.datum = tag;
    besuch.gewicht = 81.3;
    besuch.groesse = 0.1 + 0.2; // every bit of it
    besuch.taille = 0.0;
    besuch.aktivitaet = Aktivitaet::Schwer;
    besuch.reduktion = false;
    besuch.sport = QString::fromUtf8("");
    besuch.sportdauer = 1.5;
    besuch.notiz = QStringLiteral("nüchtern gewogen");
    return besuch;
}

Datenmodul apfel()
{
    Datenmodul apfel;
    apfel.setName(QStringLiteral("Apfel"));
    apfel.setkal(53.7F);
    apfel.setprotein(std::numeric_limits<float>::denorm_min());
    apfel.setfett(std::numeric_limits<float>::quiet_NaN());
    apfel.setkh(-std::numeric_limits<float>::infinity());
    apfel.setvitc(std::numeric_limits<float>::max());
    apfel.setdiabetes(QStringLiteral("+"));
    apfel.setgicht(QString::fromUtf8(""));
    return apfel;
}

Planablage planMit(const QList<Planposten> &posten)
{
    Planablage plan;
    plan.titel = QStringLiteral("Woche 1");
    plan.datum = QDate(2026, 11, 20);
    plan.posten = posten;
    return plan;
}

Aufzeichnung tageMit(const QList<Mahlzeitzeile> &zeilen)
{
    Aufzeichnung tage = neueAufzeichnung(Aufzeichnungsart::Wochenplan, QDate(2026, 11, 23), 3);
    tage.titel = QStringLiteral("Woche 1");
    tage.tage[2].mahlzeiten[4].zeilen = zeilen;
    tage.tage[2].notiz = QStringLiteral("Geburtstag");
    return tage;
}

Mahlzeitzeile apfelzeile()
{
    return {.schluessel = QStringLiteral("Apfel"),
            .angabe = QStringLiteral("2 Stück"),
            .gramm = 0.1F,
            .eintrag = apfel()};
}

} // namespace

class TestKlientenspeicher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { Pruefspeicher::zeilen(); }
    void init()
    {
        m_speicher.beginne();
        m_tisch = m_speicher.tisch();
    }
    void cleanup() { m_tisch.reset(); }

    void whereNothingIsYetNothingIsMade();
    void aPersonComesBackAsItWasPutIn();
    void aVisitComesBackAsItWasPutIn();
    void aPlanComesBackAsItWasPutIn();
    void aRecordOfDaysComesBackAsItWasPutIn();
    void recordsOfDaysStandInTheOrderOfTheirDates();
    void ofTwoDesksThatChangeARecordOfDaysTheSecondIsTold();
    void aRecordOfDaysOfANewerVersionStaysWhole();
    void whatWasNotTakenStaysAbsent();
    void everyWriteCounts();
    void theSecondDeskIsTold();
    void theSameChangeTwiceIsNoConflict();
    void whatAnotherDeskDeletedIsToldOf();
    void aVisitOfNobodyIsNotKept();
    void deletingTakesEverythingAlong();
    void deletingWhatAnotherDeskChangedIsRefused();
    void whatWasDeletedComesBackWhole();
    void nobodyIsTakenUpTwice();
    void visitsStandInTheOrderOfTheirDays();
    void aRecordThatIsNotOursIsToldOf_data();
    void aRecordThatIsNotOursIsToldOf();

private:
    QString einePerson();
    QString eineMitAllem();

    Pruefspeicher m_speicher;
    std::unique_ptr<Klientenspeicher> m_tisch;
};

QString TestKlientenspeicher::einePerson()
{
    Person person = maria();
    const Schreibausgang ausgang = m_tisch->sichere(person);
    if (!ausgang) {
        QTest::qFail(qPrintable(ausgang.hindernis.grund), __FILE__, __LINE__);
    }
    return person.kennung;
}

/// Somebody with a visit, a plan and a record of days.
QString TestKlientenspeicher::eineMitAllem()
{
    QString person = einePerson();
    Besuch besuch = besuchVom(QDate(2026, 5, 5));
    Planablage plan = planMit({{QStringLiteral("Apfel"), 100, apfel()}});
    Aufzeichnung tage = tageMit({apfelzeile()});
    if (!m_tisch->sichere(person, besuch) || !m_tisch->sichere(person, plan) ||
        !m_tisch->sichere(person, tage)) {
        QTest::qFail("not everything was kept", __FILE__, __LINE__);
    }
    return person;
}

void TestKlientenspeicher::whereNothingIsYetNothingIsMade()
{
    QVERIFY(m_tisch->oeffne());
    QList<Personenzeile> zeilen = {{}};
    QVERIFY(m_tisch->personen(zeilen));
    QVERIFY(zeilen.isEmpty());
    std::optional<Klientenakte> akte;
    QVERIFY(m_tisch->akte(QStringLiteral("x"), akte));
    QVERIFY(!akte);
    if (m_speicher.istServer()) {
        QCOMPARE(m_speicher.frage(QStringLiteral("SELECT to_regclass('mahlberg.person') IS NULL")),
                 QVariant(true));
    } else {
        QVERIFY(!QFile::exists(m_speicher.datei()));
    }
}

void TestKlientenspeicher::aPersonComesBackAsItWasPutIn()
{
    Person person = maria();
    QVERIFY(m_tisch->sichere(person));
    QCOMPARE(person.fassung, 1);
    QCOMPARE(person.kennung.size(), 36);
    const auto anderer = m_speicher.tisch();
    std::optional<Person> gelesene;
    QVERIFY(anderer->lies(person.kennung, gelesene));
    QVERIFY(gelesene);
    Person erwartet = maria();
    erwartet.kennung = person.kennung;
    erwartet.fassung = 1;
    QCOMPARE(*gelesene, erwartet);
    QList<Personenzeile> zeilen;
    QVERIFY(anderer->personen(zeilen));
    QCOMPARE(zeilen, QList<Personenzeile>({{person.kennung, erwartet.name, erwartet.nummer,
                                            erwartet.geburt, true}}));
}

void TestKlientenspeicher::aVisitComesBackAsItWasPutIn()
{
    const QString person = einePerson();
    Besuch besuch = besuchVom(QDate(2024, 2, 29));
    QVERIFY(m_tisch->sichere(person, besuch));
    std::optional<Besuch> gelesener;
    QVERIFY(m_speicher.tisch()->lies(besuch.kennung, gelesener));
    Besuch erwartet = besuchVom(QDate(2024, 2, 29));
    erwartet.kennung = besuch.kennung;
    erwartet.fassung = 1;
    QVERIFY(gelesener);
    QCOMPARE(*gelesener, erwartet);
    QVERIFY(gelesener->sport.has_value());
    QVERIFY(!gelesener->huefte.has_value());
}

void TestKlientenspeicher::aPlanComesBackAsItWasPutIn()
{
    const QString person = einePerson();
    Planablage plan = planMit(
        {{QStringLiteral("Apfel"), 0.1F, apfel()}, {QStringLiteral("was es nie gab"), -3.0F, {}}});
    QVERIFY(m_tisch->sichere(person, plan));
    std::optional<Planablage> gelesener;
    QVERIFY(m_speicher.tisch()->lies(plan.kennung, gelesener));
    QVERIFY(gelesener);
    QCOMPARE(gelesener->titel, QStringLiteral("Woche 1"));
    QCOMPARE(gelesener->datum, QDate(2026, 11, 20));
    QCOMPARE(gelesener->posten.size(), 2);
    const Planposten &posten = gelesener->posten.constFirst();
    QCOMPARE(posten.schluessel, QStringLiteral("Apfel"));
    QCOMPARE(posten.gramm, 0.1F);
    QVERIFY(posten.eintrag);
    QCOMPARE(posten.eintrag->name(), QStringLiteral("Apfel"));
    QCOMPARE(posten.eintrag->kal(), 53.7F);
    QCOMPARE(posten.eintrag->protein(), std::numeric_limits<float>::denorm_min());
    QVERIFY(std::isnan(posten.eintrag->fett()));
    QCOMPARE(posten.eintrag->kh(), -std::numeric_limits<float>::infinity());
    QCOMPARE(posten.eintrag->vitc(), std::numeric_limits<float>::max());
    QCOMPARE(posten.eintrag->diabetes(), QStringLiteral("+"));
    QVERIFY(posten.eintrag->gicht().isEmpty() && !posten.eintrag->gicht().isNull());
    QVERIFY(posten.eintrag->hkk().isNull());
    QVERIFY(!gelesener->posten.constLast().eintrag);
    QCOMPARE(gelesener->posten.constLast().gramm, -3.0F);
}

void TestKlientenspeicher::aRecordOfDaysComesBackAsItWasPutIn()
{
    const QString person = einePerson();
    Aufzeichnung tage = tageMit({apfelzeile(), {.text = QStringLiteral("Omas Auflauf")}});
    QVERIFY(m_tisch->sichere(person, tage));
    QVERIFY(!tage.kennung.isNull());
    QCOMPARE(tage.fassung, 1);
    std::optional<Aufzeichnung> gelesene;
    QVERIFY(m_speicher.tisch()->lies(tage.kennung, gelesene));
    QVERIFY(gelesene);
    QVERIFY(*gelesene == tage);
    tage.datum = {};
    tage.art = Aufzeichnungsart::Protokoll;
    QVERIFY(m_tisch->sichere(person, tage));
    QCOMPARE(tage.fassung, 2);
    QVERIFY(m_speicher.tisch()->lies(tage.kennung, gelesene));
    QVERIFY(*gelesene == tage);
    QVERIFY(m_tisch->loesche(tage));
    QVERIFY(m_speicher.tisch()->lies(tage.kennung, gelesene));
    QVERIFY(!gelesene);
}

void TestKlientenspeicher::recordsOfDaysStandInTheOrderOfTheirDates()
{
    const QString person = einePerson();
    for (const QDate &datum : {QDate(2026, 11, 23), QDate(), QDate(2025, 1, 1)}) {
        Aufzeichnung tage = tageMit({});
        tage.datum = datum;
        QVERIFY(m_tisch->sichere(person, tage));
    }
    std::optional<Klientenakte> akte;
    QVERIFY(m_tisch->akte(person, akte));
    QList<QDate> tage;
    for (const Aufzeichnung &eine : akte->aufzeichnungen) {
        tage << eine.datum;
    }
    QCOMPARE(tage, (QList<QDate>{QDate(), QDate(2025, 1, 1), QDate(2026, 11, 23)}));
}

void TestKlientenspeicher::ofTwoDesksThatChangeARecordOfDaysTheSecondIsTold()
{
    const QString person = einePerson();
    Aufzeichnung erste = tageMit({apfelzeile()});
    QVERIFY(m_tisch->sichere(person, erste));
    Aufzeichnung zweite = erste;
    erste.titel = QStringLiteral("Woche 2");
    QVERIFY(m_tisch->sichere(person, erste));
    zweite.tage[0].notiz = QStringLiteral("Montag");
    QCOMPARE(m_speicher.tisch()->sichere(person, zweite).art, Schreibausgang::Art::Ueberholt);
    QCOMPARE(m_speicher.tisch()->loesche(zweite).art, Schreibausgang::Art::Ueberholt);
}

/// What this version does not know of it is handed on to the one that does.
void TestKlientenspeicher::aRecordOfDaysOfANewerVersionStaysWhole()
{
    const QString person = einePerson();
    Aufzeichnung tage = tageMit({apfelzeile()});
    QVERIFY(m_tisch->sichere(person, tage));
    QVERIFY(m_speicher.fuehre(
        QStringLiteral("UPDATE aufzeichnung SET tage = replace(tage, '\"version\":1', "
                       "'\"mood\":\"fine\",\"version\":2')")));
    std::optional<Klientenakte> akte;
    QVERIFY(m_tisch->akte(person, akte));
    QCOMPARE(akte->aufzeichnungen.size(), 1);
    QVERIFY(akte->aufzeichnungen.constFirst().neuererText.contains("\"mood\":\"fine\""));
    QCOMPARE(akte->aufzeichnungen.constFirst().tage, tage.tage);
    QVERIFY(m_tisch->loesche(person));
    QVERIFY(m_tisch->nimmAuf(*akte));
    QVERIFY(m_speicher.frage(QStringLiteral("SELECT tage FROM aufzeichnung"))
                .toString()
                .contains(QStringLiteral("\"mood\":\"fine\"")));
}

void TestKlientenspeicher::whatWasNotTakenStaysAbsent()
{
    Person person;
    person.name = QStringLiteral("N");
    QVERIFY(m_tisch->sichere(person));
    Besuch leerer;
    leerer.datum = QDate(2026, 1, 1);
    QVERIFY(m_tisch->sichere(person.kennung, leerer));
    std::optional<Klientenakte> akte;
    QVERIFY(m_tisch->akte(person.kennung, akte));
    QVERIFY(akte);
    QVERIFY(akte->person.geburt.isNull());
    const Besuch &besuch = akte->besuche.constFirst();
    QVERIFY(!besuch.gewicht && !besuch.groesse && !besuch.taille && !besuch.huefte &&
            !besuch.aktivitaet && !besuch.reduktion && !besuch.sport && !besuch.sportdauer);
}

void TestKlientenspeicher::everyWriteCounts()
{
    Person person = maria();
    for (int fassung = 1; fassung <= 3; ++fassung) {
        person.notizen += QLatin1Char('x');
        QVERIFY(m_tisch->sichere(person));
        QCOMPARE(person.fassung, fassung);
    }
    QCOMPARE(m_speicher.frage(QStringLiteral("SELECT fassung FROM person")).toInt(), 3);
    QCOMPARE(m_speicher.frage(QStringLiteral("SELECT count(*) FROM person")).toInt(), 1);
}

void TestKlientenspeicher::theSecondDeskIsTold()
{
    const auto einer = m_speicher.tisch();
    const auto anderer = m_speicher.tisch();
    Person meine = maria();
    QVERIFY(einer->sichere(meine));
    std::optional<Person> ihre;
    QVERIFY(anderer->lies(meine.kennung, ihre));

    meine.nummer = QStringLiteral("8");
    QVERIFY(einer->sichere(meine));
    ihre->nummer = QStringLiteral("9");
    const Person vorher = *ihre;
    QCOMPARE(anderer->sichere(*ihre).art, Art::Ueberholt);
    QCOMPARE(*ihre, vorher); // what was typed stays as it is
    std::optional<Person> jetzt;
    QVERIFY(anderer->lies(meine.kennung, jetzt));
    QCOMPARE(jetzt->nummer, QStringLiteral("8"));

    ihre->fassung = jetzt->fassung; // they have seen both
    QVERIFY(anderer->sichere(*ihre));
    QVERIFY(einer->lies(meine.kennung, jetzt));
    QCOMPARE(jetzt->nummer, QStringLiteral("9"));
}

void TestKlientenspeicher::theSameChangeTwiceIsNoConflict()
{
    const auto einer = m_speicher.tisch();
    Person meine = maria();
    QVERIFY(einer->sichere(meine));
    Person nochmal = meine;
    meine.nummer = QStringLiteral("8");
    QVERIFY(einer->sichere(meine));
    nochmal.nummer = QStringLiteral("8");
    QVERIFY(einer->sichere(nochmal)); // the answer to the first write never came
    QCOMPARE(nochmal, meine);
}

void TestKlientenspeicher::whatAnotherDeskDeletedIsToldOf()
{
    const auto einer = m_speicher.tisch();
    const auto anderer = m_speicher.tisch();
    Person person = maria();
    QVERIFY(einer->sichere(person));
    Besuch besuch = besuchVom(QDate(2026, 5, 5));
    QVERIFY(einer->sichere(person.kennung, besuch));
    QVERIFY(anderer->loesche(besuch));
    besuch.gewicht = 70;
    QCOMPARE(einer->sichere(person.kennung, besuch).art, Art::Verschwunden);
    QVERIFY(anderer->loesche(person.kennung));
    QCOMPARE(einer->sichere(person).art, Art::Verschwunden);
    QVERIFY(einer->loesche(besuch)); // gone as wanted
    QVERIFY(einer->loesche(person.kennung));
}

void TestKlientenspeicher::aVisitOfNobodyIsNotKept()
{
    einePerson();
    Besuch besuch = besuchVom(QDate(2026, 5, 5));
    QCOMPARE(m_tisch->sichere(QStringLiteral("niemand"), besuch).art, Art::Verschwunden);
    QVERIFY(besuch.kennung.isNull());
    QCOMPARE(m_speicher.frage(QStringLiteral("SELECT count(*) FROM besuch")).toInt(), 0);
}

void TestKlientenspeicher::deletingTakesEverythingAlong()
{
    const QString bleibende = eineMitAllem();
    const QString gehende = eineMitAllem();
    QVERIFY(m_tisch->loesche(gehende));
    std::optional<Klientenakte> akte;
    QVERIFY(m_tisch->akte(gehende, akte));
    QVERIFY(!akte);
    QCOMPARE(m_speicher.frage(QStringLiteral("SELECT count(*) FROM besuch")).toInt(), 1);
    QCOMPARE(m_speicher.frage(QStringLiteral("SELECT count(*) FROM plan")).toInt(), 1);
    QCOMPARE(m_speicher.frage(QStringLiteral("SELECT count(*) FROM aufzeichnung")).toInt(), 1);
    QVERIFY(m_tisch->akte(bleibende, akte));
    QVERIFY(akte);
}

void TestKlientenspeicher::deletingWhatAnotherDeskChangedIsRefused()
{
    const QString person = einePerson();
    Besuch besuch = besuchVom(QDate(2026, 5, 5));
    QVERIFY(m_tisch->sichere(person, besuch));
    const Besuch gesehener = besuch;
    besuch.gewicht = 70;
    QVERIFY(m_tisch->sichere(person, besuch));
    QCOMPARE(m_tisch->loesche(gesehener).art, Art::Ueberholt);
    QCOMPARE(m_speicher.frage(QStringLiteral("SELECT count(*) FROM besuch")).toInt(), 1);
    QVERIFY(m_tisch->loesche(besuch));
    QCOMPARE(m_speicher.frage(QStringLiteral("SELECT count(*) FROM besuch")).toInt(), 0);
}

void TestKlientenspeicher::whatWasDeletedComesBackWhole()
{
    const QString person = eineMitAllem();
    std::optional<Klientenakte> vorher;
    QVERIFY(m_tisch->akte(person, vorher));
    QVERIFY(m_tisch->loesche(person));
    QVERIFY(m_tisch->nimmAuf(*vorher));
    std::optional<Klientenakte> nachher;
    QVERIFY(m_tisch->akte(person, nachher));
    QVERIFY(nachher);
    QCOMPARE(*nachher, *vorher);
}

void TestKlientenspeicher::nobodyIsTakenUpTwice()
{
    const QString person = einePerson();
    Besuch besuch = besuchVom(QDate(2026, 5, 5));
    QVERIFY(m_tisch->sichere(person, besuch));
    std::optional<Klientenakte> akte;
    QVERIFY(m_tisch->akte(person, akte));
    QCOMPARE(m_tisch->nimmAuf(*akte).art, Art::Ueberholt);
    akte->person.kennung = neueKennung(); // another person with the same visit
    QCOMPARE(m_tisch->nimmAuf(*akte).art, Art::Ueberholt);
    QCOMPARE(m_speicher.frage(QStringLiteral("SELECT count(*) FROM person")).toInt(), 1);
}

void TestKlientenspeicher::visitsStandInTheOrderOfTheirDays()
{
    const QString person = einePerson();
    for (const QDate &tag : {QDate(2026, 5, 5), QDate(999, 12, 31), QDate(2026, 1, 31)}) {
        Besuch besuch = besuchVom(tag);
        QVERIFY(m_tisch->sichere(person, besuch));
    }
    std::optional<Klientenakte> akte;
    QVERIFY(m_tisch->akte(person, akte));
    QCOMPARE(akte->besuche.at(0).datum, QDate(999, 12, 31));
    QCOMPARE(akte->besuche.at(1).datum, QDate(2026, 1, 31));
    QCOMPARE(akte->besuche.at(2).datum, QDate(2026, 5, 5));
}

void TestKlientenspeicher::aRecordThatIsNotOursIsToldOf_data()
{
    QTest::addColumn<QString>("anweisung");
    QTest::newRow("a date that is none")
        << QStringLiteral("UPDATE person SET geburt = '1971-02-30'");
    QTest::newRow("a gender that is none") << QStringLiteral("UPDATE person SET geschlecht = 3");
    QTest::newRow("neither yes nor no") << QStringLiteral("UPDATE person SET gicht = 2");
    QTest::newRow("rows of a plan that are none")
        << QStringLiteral("UPDATE plan SET posten = '[{\"food\": 3, \"grams\": 100}]'");
    QTest::newRow("rows that are no JSON") << QStringLiteral("UPDATE plan SET posten = '[{'");
    QTest::newRow("days that are none")
        << QStringLiteral("UPDATE aufzeichnung SET tage = replace(tage, 'days', 'dogs')");
    QTest::newRow("a kind of days that is none")
        << QStringLiteral("UPDATE aufzeichnung SET art = 2");
    QTest::newRow("an activity beyond all") << QStringLiteral("UPDATE besuch SET aktivitaet = 7");
}

void TestKlientenspeicher::aRecordThatIsNotOursIsToldOf()
{
    QFETCH(const QString, anweisung);
    const QString person = eineMitAllem();
    QVERIFY(m_speicher.fuehre(anweisung));
    std::optional<Klientenakte> akte;
    const Ausgang ausgang = m_tisch->akte(person, akte);
    QCOMPARE(ausgang.hindernis, Hindernis::Beschaedigt);
    QVERIFY2(ausgang.grund.contains(QLatin1String("can not be read")), qPrintable(ausgang.grund));
    QVERIFY(!akte);
}

QTEST_GUILESS_MAIN(TestKlientenspeicher)
#include "TestKlientenspeicher.moc"
