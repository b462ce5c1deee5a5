// An earlier state of the store comes back, and what is there then is kept.

#include "Dateidatenbank.h"
#include "Klientenspeicher.h"
#include "Klientenstand.h"
#include "Pruefspeicher.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

class TestKlientenstand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aCopySaysHowManyItHolds();
    void whatIsNoCopySaysNothing_data();
    void whatIsNoCopySaysNothing();
    void lookingDoesNotChangeTheCopy();
    void theStateComesBackAndTheOtherIsKept();
    void itComesBackWhereNothingIsAnyMore();
    void aDamagedStoreIsKeptWithItsLog();
    void withoutTheCopyTheStoreStays();
    void onlyTheUserCanReadIt();

private:
    static void schreibe(const QString &datei, const QStringList &namen);
    static QStringList namenIn(const QString &datei);
    QString datei() const { return m_ordner->filePath(QStringLiteral("MahlbergKlienten.sqlite")); }
    QString kopie() const { return m_ordner->filePath(QStringLiteral("Kopie.sqlite")); }

    std::unique_ptr<QTemporaryDir> m_ordner;
    const QDateTime m_jetzt = QDateTime(QDate(2026, 11, 23), QTime(14, 3, 5));
};

void TestKlientenstand::init()
{
    m_ordner = std::make_unique<QTemporaryDir>();
}

void TestKlientenstand::schreibe(const QString &datei, const QStringList &namen)
{
    Klientenspeicher speicher(std::make_unique<Dateidatenbank>(datei));
    for (const QString &name : namen) {
        Person person = namens(name);
        QVERIFY(speicher.sichere(person));
    }
}

QStringList TestKlientenstand::namenIn(const QString &datei)
{
    Klientenspeicher speicher(std::make_unique<Dateidatenbank>(datei));
    QList<Personenzeile> personen;
    speicher.personen(personen);
    QStringList namen;
    for (const Personenzeile &person : std::as_const(personen)) {
        namen << person.name;
    }
    namen.sort();
    return namen;
}

void TestKlientenstand::aCopySaysHowManyItHolds()
{
    schreibe(kopie(), {QStringLiteral("Anna"), QStringLiteral("Berta")});
    QCOMPARE(klientenIn(kopie()), 2);
}

void TestKlientenstand::whatIsNoCopySaysNothing_data()
{
    QTest::addColumn<QByteArray>("inhalt");
    QTest::newRow("nothing is there") << QByteArray();
    QTest::newRow("a text") << QByteArray("Liebe Frau Muster,\n");
    QTest::newRow("the beginning of a store") << QByteArray("SQLite format 3\0", 16);
}

void TestKlientenstand::whatIsNoCopySaysNothing()
{
    QFETCH(QByteArray, inhalt);
    if (!inhalt.isEmpty()) {
        QFile file(kopie());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(inhalt) == inhalt.size());
    }
    QVERIFY(!klientenIn(kopie()));
}

void TestKlientenstand::lookingDoesNotChangeTheCopy()
{
    schreibe(kopie(), {QStringLiteral("Anna")});
    QFile file(kopie());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray vorher = file.readAll();
    QCOMPARE(klientenIn(kopie()), 1);
    QVERIFY(file.seek(0));
    QVERIFY(file.readAll() == vorher);
    QCOMPARE(QDir(m_ordner->path()).entryList(QDir::Files).size(), 1);
}

void TestKlientenstand::theStateComesBackAndTheOtherIsKept()
{
    schreibe(datei(), {QStringLiteral("Heute")});
    schreibe(kopie(), {QStringLiteral("Gestern")});
    QString beiseite;
    QVERIFY(holeStand(datei(), kopie(), m_jetzt, beiseite));
    QCOMPARE(namenIn(datei()), QStringList(QStringLiteral("Gestern")));
    QCOMPARE(QFileInfo(beiseite).fileName(),
             QStringLiteral("MahlbergKlienten 2026-11-23 14.03.05.sqlite"));
    QCOMPARE(namenIn(beiseite), QStringList(QStringLiteral("Heute")));
    QCOMPARE(namenIn(kopie()), QStringList(QStringLiteral("Gestern")));
}

void TestKlientenstand::itComesBackWhereNothingIsAnyMore()
{
    schreibe(kopie(), {QStringLiteral("Gestern")});
    QString beiseite = QStringLiteral("davor");
    QVERIFY(holeStand(datei(), kopie(), m_jetzt, beiseite));
    QVERIFY(beiseite.isNull());
    QCOMPARE(namenIn(datei()), QStringList(QStringLiteral("Gestern")));
}

void TestKlientenstand::aDamagedStoreIsKeptWithItsLog()
{
    schreibe(kopie(), {QStringLiteral("Gestern")});
    for (const char *endung : {"", "-wal", "-shm"}) {
        QFile file(datei() + QLatin1String(endung));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(endung) >= 0);
    }
    QString beiseite;
    QVERIFY(holeStand(datei(), kopie(), m_jetzt, beiseite));
    QCOMPARE(namenIn(datei()), QStringList(QStringLiteral("Gestern")));
    QFile log(beiseite + QStringLiteral("-wal"));
    QVERIFY(log.open(QIODevice::ReadOnly));
    QCOMPARE(log.readAll(), QByteArray("-wal"));
    QVERIFY(QFileInfo::exists(beiseite + QStringLiteral("-shm")));
}

void TestKlientenstand::withoutTheCopyTheStoreStays()
{
    schreibe(datei(), {QStringLiteral("Heute")});
    QString beiseite;
    const Ausgang ausgang = holeStand(datei(), kopie(), m_jetzt, beiseite);
    QCOMPARE(ausgang.hindernis, Hindernis::Verwehrt);
    QVERIFY(beiseite.isNull());
    QCOMPARE(namenIn(datei()), QStringList(QStringLiteral("Heute")));
    QCOMPARE(QDir(m_ordner->path()).entryList(QDir::Files).size(), 1);
}

void TestKlientenstand::onlyTheUserCanReadIt()
{
    schreibe(kopie(), {QStringLiteral("Gestern")});
    QVERIFY(
        QFile::setPermissions(kopie(), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
    QString beiseite;
    QVERIFY(holeStand(datei(), kopie(), m_jetzt, beiseite));
    QCOMPARE(QFile::permissions(datei()) &
                 (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther),
             QFile::Permissions());
}

QTEST_GUILESS_MAIN(TestKlientenstand)
#include "TestKlientenstand.moc"
