// Stores of every older form are brought to the present one, and nothing in them is lost.

#include "Klientenschema.h"
#include "Pruefspeicher.h"
#include "Sicherungen.h"

#include <QFile>
#include <QTest>

namespace {

const QString anna = QStringLiteral("5b7f2f7e-0d0c-4a55-9a3c-3f2f1f6c0a01");

} // namespace

class TestKlientenschema : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { Pruefspeicher::zeilen(); }
    void init() { m_speicher.beginne(); }

    void thereIsAStoreOfEachOlderForm();
    void anOlderStoreIsBroughtToThePresentForm_data() { aeltere(); }
    void anOlderStoreIsBroughtToThePresentForm();
    void theFormBeforeIsKept_data() { aeltere(); }
    void theFormBeforeIsKept();
    void aStepThatFailsLeavesTheFormBefore();
    void twoDesksStartAtOnce();
    void aStoreThatDoesNotSayItsFormIsNotTouched();
    void tablesThatAreTakenAwayAreMadeAnew();
    void anOlderStoreInTheOldOnesPlaceIsBroughtToThePresentForm();

private:
    static QString datei(int fassung);
    static void aeltere();
    void legeAlten(int fassung);

    Pruefspeicher m_speicher;
};

QString TestKlientenschema::datei(int fassung)
{
    return QFINDTESTDATA(QStringLiteral("bestaende/fassung%1.sql").arg(fassung));
}

void TestKlientenschema::aeltere()
{
    QTest::addColumn<int>("fassung");
    for (int fassung = 1; fassung < Klientenschema::fassung; ++fassung) {
        QTest::addRow("form %d", fassung) << fassung;
    }
}

void TestKlientenschema::legeAlten(int fassung)
{
    QFile text(datei(fassung));
    QVERIFY(text.open(QIODevice::ReadOnly));
    QVERIFY(m_speicher.fuehre(m_speicher.istServer()
                                  ? QStringLiteral("CREATE SCHEMA mahlberg")
                                  : QStringLiteral("PRAGMA application_id = 1298689122")));
    for (const QString &anweisung :
         QString::fromUtf8(text.readAll()).split(QStringLiteral(";\n"), Qt::SkipEmptyParts)) {
        QVERIFY2(m_speicher.fuehre(anweisung), qPrintable(anweisung));
    }
}

void TestKlientenschema::thereIsAStoreOfEachOlderForm()
{
    for (int fassung = 1; fassung < Klientenschema::fassung; ++fassung) {
        QVERIFY(QFile::exists(datei(fassung)));
    }
}

void TestKlientenschema::anOlderStoreIsBroughtToThePresentForm()
{
    QFETCH(const int, fassung);
    legeAlten(fassung);
    const auto tisch = m_speicher.tisch();
    QVERIFY(tisch->oeffne());
    QCOMPARE(m_speicher.frage(QStringLiteral("SELECT fassung FROM bestand")).toInt(),
             Klientenschema::fassung);
    QList<Personenzeile> zeilen;
    QVERIFY(tisch->personen(zeilen));
    QCOMPARE(zeilen.size(), 2);
    std::optional<Klientenakte> akte;
    QVERIFY(tisch->akte(anna, akte));
    QVERIFY(akte);
    QCOMPARE(akte->person.name, QStringLiteral("Anna Größ"));
    QCOMPARE(akte->person.nummer, QStringLiteral("17"));
    QCOMPARE(akte->person.geburt, QDate(1984, 3, 1));
    QCOMPARE(akte->person.geschlecht, Personengeschlecht::Frau);
    QCOMPARE(akte->person.umstand, Umstand::Schwanger);
    QCOMPARE(akte->person.leiden, (std::array{false, true, false, false}));
    QCOMPARE(akte->person.notizen, QStringLiteral("Allergie: Nüsse"));
    QCOMPARE(akte->besuche.size(), 1);
    const Besuch &besuch = akte->besuche.constFirst();
    QCOMPARE(besuch.datum, QDate(2025, 11, 3));
    QCOMPARE(besuch.gewicht, 72.4);
    QCOMPARE(besuch.groesse, 1.68);
    QCOMPARE(besuch.taille, 81.0);
    QCOMPARE(besuch.huefte, 99.5);
    QCOMPARE(besuch.aktivitaet, Aktivitaet::Mittel);
    QCOMPARE(besuch.reduktion, false);
    QCOMPARE(besuch.sport, QStringLiteral("Joggen"));
    QCOMPARE(besuch.sportdauer, 0.5);
    QCOMPARE(besuch.notiz, QStringLiteral("erstes Gespräch"));
    QCOMPARE(akte->plaene.size(), fassung < 2 ? 0 : 1); // plans came with the second form
    if (fassung >= 2) {
        QCOMPARE(akte->plaene.constFirst().titel, QStringLiteral("Erste Woche"));
        QCOMPARE(akte->plaene.constFirst().notiz, QStringLiteral("abends warm"));
        QCOMPARE(akte->plaene.constFirst().posten.constFirst().gramm, 150.5F);
    }
    QVERIFY(akte->aufzeichnungen.isEmpty());
    Aufzeichnung tage = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 3);
    QVERIFY(tisch->sichere(anna, tage));
    Planablage plan;
    plan.titel = QStringLiteral("Woche 1");
    plan.datum = QDate(2026, 11, 22);
    QVERIFY(tisch->sichere(anna, plan));
}

void TestKlientenschema::theFormBeforeIsKept()
{
    QFETCH(const int, fassung);
    if (m_speicher.istServer()) {
        return; // its copies are made by who looks after it
    }
    legeAlten(fassung);
    QVERIFY(m_speicher.tisch()->oeffne());
    const QList<Sicherungen::Sicherung> kopien = Sicherungen::alle(m_speicher.datei());
    QCOMPARE(kopien.size(), 1);
    QVERIFY(QFile::remove(m_speicher.datei()));
    QVERIFY(QFile::rename(kopien.constFirst().path, m_speicher.datei()));
    QCOMPARE(m_speicher.frage(QStringLiteral("SELECT fassung FROM bestand")).toInt(), fassung);
    QCOMPARE(m_speicher.frage(QStringLiteral("SELECT count(*) FROM besuch")).toInt(), 1);
}

void TestKlientenschema::aStepThatFailsLeavesTheFormBefore()
{
    legeAlten(1);
    QVERIFY(m_speicher.fuehre(QStringLiteral("CREATE TABLE plan (im TEXT, wege TEXT)")));
    const auto tisch = m_speicher.tisch();
    QVERIFY(!tisch->oeffne());
    QCOMPARE(m_speicher.frage(QStringLiteral("SELECT fassung FROM bestand")).toInt(), 1);
    QVERIFY(m_speicher.fuehre(QStringLiteral("DROP TABLE plan")));
    QVERIFY(tisch->oeffne());
    QCOMPARE(m_speicher.frage(QStringLiteral("SELECT fassung FROM bestand")).toInt(),
             Klientenschema::fassung);
    QCOMPARE(m_speicher.frage(QStringLiteral("SELECT count(*) FROM besuch")).toInt(), 1);
}

void TestKlientenschema::twoDesksStartAtOnce()
{
    const auto einer = m_speicher.tisch();
    const auto anderer = m_speicher.tisch();
    QVERIFY(einer->oeffne());
    QVERIFY(anderer->oeffne()); // nothing is there for either of them
    Person person = namens(QStringLiteral("Anna"));
    QVERIFY(einer->sichere(person));
    Person zweite = namens(QStringLiteral("Bea"));
    QVERIFY(anderer->sichere(zweite));
    QList<Personenzeile> zeilen;
    QVERIFY(einer->personen(zeilen));
    QCOMPARE(zeilen.size(), 2);
}

void TestKlientenschema::aStoreThatDoesNotSayItsFormIsNotTouched()
{
    legeAlten(1);
    QVERIFY(m_speicher.fuehre(QStringLiteral("DELETE FROM bestand")));
    const auto tisch = m_speicher.tisch();
    QCOMPARE(tisch->oeffne().hindernis, Hindernis::Beschaedigt);
    Person person = namens(QStringLiteral("Anna"));
    QCOMPARE(tisch->sichere(person).hindernis.hindernis, Hindernis::Beschaedigt);
    QCOMPARE(m_speicher.frage(QStringLiteral("SELECT count(*) FROM person")).toInt(), 2);
}

void TestKlientenschema::tablesThatAreTakenAwayAreMadeAnew()
{
    const auto tisch = m_speicher.tisch();
    Person person = namens(QStringLiteral("Anna"));
    QVERIFY(tisch->sichere(person));
    for (const char *tabelle : {"aufzeichnung", "plan", "besuch", "person", "bestand"}) {
        QVERIFY(m_speicher.fuehre(QStringLiteral("DROP TABLE ") + QLatin1String(tabelle)));
    }
    Person zweite = namens(QStringLiteral("Bea"));
    QVERIFY(tisch->sichere(zweite));
    QCOMPARE(m_speicher.frage(QStringLiteral("SELECT name FROM person")).toString(),
             QStringLiteral("Bea"));
}

void TestKlientenschema::anOlderStoreInTheOldOnesPlaceIsBroughtToThePresentForm()
{
    const auto tisch = m_speicher.tisch();
    Person person = namens(QStringLiteral("Carla"));
    QVERIFY(tisch->sichere(person));
    QVERIFY(m_speicher.fuehre(QStringLiteral("DROP TABLE aufzeichnung")));
    QVERIFY(m_speicher.fuehre(QStringLiteral("DROP TABLE plan")));
    QVERIFY(m_speicher.fuehre(QStringLiteral("UPDATE bestand SET fassung = 1")));
    person.name = QStringLiteral("Dora");
    QVERIFY(tisch->sichere(person));
    QCOMPARE(m_speicher.frage(QStringLiteral("SELECT name FROM person")).toString(),
             QStringLiteral("Dora"));
    QCOMPARE(m_speicher.frage(QStringLiteral("SELECT fassung FROM bestand")).toInt(),
             Klientenschema::fassung);
}

QTEST_GUILESS_MAIN(TestKlientenschema)
#include "TestKlientenschema.moc"
