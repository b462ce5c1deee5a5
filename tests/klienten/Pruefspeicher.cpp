#include "Pruefspeicher.h"

#include "Dateidatenbank.h"
#include "Serverdatenbank.h"

#include <QSqlQuery>
#include <QTest>

#include <dlfcn.h>
#include <unistd.h>

namespace {

/// Somebody holds the file and gives it back when the test says so: waiting for them ends at once.
/// SQLite counts what it meant to wait, so that it tries as often as ever and then gives up.
bool wartenVergeblich = false;

} // namespace

/// Stands before the system's own.
extern "C" int usleep(useconds_t dauer)
{
    return wartenVergeblich
               ? 0
               : reinterpret_cast<int (*)(useconds_t)>(dlsym(RTLD_NEXT, "usleep"))(dauer);
}

Person namens(const QString &name)
{
    Person person;
    person.name = name;
    return person;
}

void Pruefspeicher::zeilen()
{
    QTest::addColumn<bool>("server");
    QTest::newRow("in a file") << false;
    QTest::newRow("on a server") << true;
}

bool Pruefspeicher::istServer() const
{
    QFETCH_GLOBAL(bool, server);
    return server;
}

void Pruefspeicher::beginne()
{
    ++m_nummer;
    wartenVergeblich = false; // also after a test that failed before it gave back
    m_ordner = std::make_unique<QTemporaryDir>();
    if (istServer() && m_server == nullptr) {
        m_server = std::make_unique<Pruefserver>();
        QVERIFY2(m_server->grund().isEmpty(), qPrintable(m_server->grund()));
    }
}

std::unique_ptr<Datenbank> Pruefspeicher::datenbank()
{
    if (istServer()) {
        return std::make_unique<Serverdatenbank>(
            leseServerangabe(m_server->angabe(datenbankname())));
    }
    return std::make_unique<Dateidatenbank>(datei());
}

std::unique_ptr<Klientenspeicher> Pruefspeicher::tisch()
{
    return std::make_unique<Klientenspeicher>(datenbank());
}

Kartei::Ort Pruefspeicher::ort()
{
    return {tisch(), vormerkdatei()};
}

void Pruefspeicher::nimmWeg()
{
    if (istServer()) {
        m_server->halteAn();
        return;
    }
    m_halter = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("halter"));
    m_halter.setDatabaseName(datei());
    QVERIFY(m_halter.open());
    QVERIFY(m_halter.exec(QStringLiteral("BEGIN IMMEDIATE")).isActive());
    wartenVergeblich = true;
}

void Pruefspeicher::gibZurueck()
{
    if (istServer()) {
        m_server->starte();
        return;
    }
    wartenVergeblich = false;
    m_halter = QSqlDatabase();
    QSqlDatabase::removeDatabase(QStringLiteral("halter"));
}

QVariant Pruefspeicher::frage(const QString &anweisung)
{
    const QString name = QStringLiteral("vorbei");
    QVariant antwort;
    {
        QSqlDatabase datenbank = QSqlDatabase::addDatabase(
            istServer() ? QStringLiteral("QPSQL") : QStringLiteral("QSQLITE"), name);
        if (istServer()) {
            datenbank.setConnectOptions(m_server->angabe(datenbankname()) +
                                        QStringLiteral(" options='-c search_path=mahlberg'"));
        } else {
            datenbank.setDatabaseName(datei());
        }
        datenbank.open();
        QSqlQuery abfrage(datenbank);
        const bool gelungen = abfrage.exec(anweisung);
        antwort = gelungen && abfrage.next() ? abfrage.value(0) : QVariant(gelungen);
    }
    QSqlDatabase::removeDatabase(name);
    return antwort;
}

bool Pruefspeicher::fuehre(const QString &anweisung)
{
    return frage(anweisung).toBool();
}
