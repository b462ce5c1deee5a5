// The practice's server: it goes away and comes back, refuses, and shares its database with others.

#include "Pruefspeicher.h"
#include "Serverdatenbank.h"

#include <QTest>

class TestServerdatenbank : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void aConnectionThatBreaksIsMadeAnew();
    void aServerThatIsAwayIsToldOf();
    void aDatabaseThatIsNotThereIsToldOf();
    void aUserWhoMayNotIsToldOf();
    void aUserWhoMayOnlyReadReads();
    void aRowThatAnotherHoldsIsToldOf();
    void othersInTheDatabaseAreLeftAlone();
    void onThisMachineNobodyListens();

private:
    std::unique_ptr<Klientenspeicher> tisch(const QString &dazu = {});
    QString frage(const QString &anweisung) { return m_server->frage(m_datenbank, anweisung); }

    std::unique_ptr<Pruefserver> m_server;
    QString m_datenbank;
    int m_nummer = 0;
};

void TestServerdatenbank::initTestCase()
{
    m_server = std::make_unique<Pruefserver>();
    QVERIFY2(m_server->grund().isEmpty(), qPrintable(m_server->grund()));
}

void TestServerdatenbank::init()
{
    m_datenbank = QStringLiteral("praxis%1").arg(++m_nummer);
    m_server->angabe(m_datenbank);
}

std::unique_ptr<Klientenspeicher> TestServerdatenbank::tisch(const QString &dazu)
{
    const Serverangabe angabe =
        leseServerangabe(m_server->angabe(m_datenbank) + QLatin1Char(' ') + dazu);
    return std::make_unique<Klientenspeicher>(std::make_unique<Serverdatenbank>(angabe));
}

void TestServerdatenbank::aConnectionThatBreaksIsMadeAnew()
{
    const auto einer = tisch();
    Person person = namens(QStringLiteral("Anna"));
    QVERIFY(einer->sichere(person));
    const QString alle =
        QStringLiteral("SELECT count(pg_terminate_backend(pid)) FROM pg_stat_activity WHERE "
                       "application_name = 'Mahlberg'");
    QCOMPARE(frage(alle).trimmed(), QStringLiteral("1"));
    person.name = QStringLiteral("Bea");
    QVERIFY(einer->sichere(person));
    QCOMPARE(frage(alle).trimmed(), QStringLiteral("1"));
    std::optional<Person> gelesene;
    QVERIFY(einer->lies(person.kennung, gelesene));
    QCOMPARE(gelesene->name, QStringLiteral("Bea"));
    QCOMPARE(gelesene->fassung, 2);
}

void TestServerdatenbank::aServerThatIsAwayIsToldOf()
{
    const auto einer = tisch();
    Person person = namens(QStringLiteral("Anna"));
    QVERIFY(einer->sichere(person));
    m_server->halteAn();
    person.name = QStringLiteral("Bea");
    const Person getippt = person;
    const Schreibausgang ausgang = einer->sichere(person);
    QCOMPARE(ausgang.hindernis.hindernis, Hindernis::Getrennt);
    QVERIFY(!ausgang.hindernis.grund.isEmpty());
    QCOMPARE(person, getippt);
    QList<Personenzeile> zeilen;
    QCOMPARE(einer->personen(zeilen).hindernis, Hindernis::Getrennt);
    m_server->starte();
    QVERIFY(einer->sichere(person));
    QCOMPARE(frage(QStringLiteral("SELECT name FROM mahlberg.person")).trimmed(),
             QStringLiteral("Bea"));
}

void TestServerdatenbank::aDatabaseThatIsNotThereIsToldOf()
{
    const Serverangabe angabe =
        leseServerangabe(m_server->angabe(m_datenbank) + QStringLiteral(" dbname=nirgends"));
    Klientenspeicher einer(std::make_unique<Serverdatenbank>(angabe));
    const Ausgang ausgang = einer.oeffne();
    QCOMPARE(ausgang.hindernis, Hindernis::Getrennt);
    QVERIFY2(ausgang.grund.contains(QLatin1String("nirgends")), qPrintable(ausgang.grund));
}

void TestServerdatenbank::aUserWhoMayNotIsToldOf()
{
    frage(QStringLiteral("CREATE ROLE gast LOGIN"));
    const auto gast = tisch(QStringLiteral("user=gast"));
    QVERIFY(gast->oeffne()); // nothing is there yet
    Person person = namens(QStringLiteral("Anna"));
    QCOMPARE(gast->sichere(person).hindernis.hindernis, Hindernis::Verwehrt);
    QVERIFY(tisch()->sichere(person));
    QList<Personenzeile> zeilen;
    QCOMPARE(gast->personen(zeilen).hindernis, Hindernis::Verwehrt);
    QVERIFY(zeilen.isEmpty());
}

void TestServerdatenbank::aUserWhoMayOnlyReadReads()
{
    Person person = namens(QStringLiteral("Anna"));
    QVERIFY(tisch()->sichere(person));
    frage(QStringLiteral("CREATE ROLE leser LOGIN; GRANT USAGE ON SCHEMA mahlberg TO leser; "
                         "GRANT SELECT ON ALL TABLES IN SCHEMA mahlberg TO leser"));
    const auto leser = tisch(QStringLiteral("user=leser"));
    QList<Personenzeile> zeilen;
    QVERIFY(leser->personen(zeilen));
    QCOMPARE(zeilen.size(), 1);
    person.name = QStringLiteral("Bea");
    QCOMPARE(leser->sichere(person).hindernis.hindernis, Hindernis::Verwehrt);
}

void TestServerdatenbank::aRowThatAnotherHoldsIsToldOf()
{
    const auto einer = tisch();
    Person person = namens(QStringLiteral("Anna"));
    QVERIFY(einer->sichere(person));
    {
        QSqlDatabase andere =
            QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), QStringLiteral("haelt"));
        andere.setConnectOptions(m_server->angabe(m_datenbank));
        QVERIFY(andere.open());
        QSqlQuery abfrage(andere);
        QVERIFY(abfrage.exec(QStringLiteral("BEGIN")));
        QVERIFY(abfrage.exec(QStringLiteral("SELECT * FROM mahlberg.person FOR UPDATE")));
        person.name = QStringLiteral("Bea");
        QCOMPARE(einer->sichere(person).hindernis.hindernis, Hindernis::Gesperrt);
        QVERIFY(abfrage.exec(QStringLiteral("ROLLBACK")));
    }
    QSqlDatabase::removeDatabase(QStringLiteral("haelt"));
    QVERIFY(einer->sichere(person));
}

void TestServerdatenbank::othersInTheDatabaseAreLeftAlone()
{
    frage(QStringLiteral("CREATE TABLE person (name TEXT); INSERT INTO person VALUES ('fremd')"));
    Person person = namens(QStringLiteral("Anna"));
    QVERIFY(tisch()->sichere(person));
    QCOMPARE(frage(QStringLiteral("SELECT name FROM public.person")).trimmed(),
             QStringLiteral("fremd"));
    QCOMPARE(frage(QStringLiteral("SELECT name FROM mahlberg.person")).trimmed(),
             QStringLiteral("Anna"));
}

void TestServerdatenbank::onThisMachineNobodyListens()
{
    const auto einer = tisch();
    QVERIFY(einer->oeffne());
    QVERIFY(!dynamic_cast<Serverdatenbank &>(einer->datenbank()).offenLesbar());
}

QTEST_GUILESS_MAIN(TestServerdatenbank)
#include "TestServerdatenbank.moc"
