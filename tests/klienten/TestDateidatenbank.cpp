// The file in which one desk keeps its clients: for the user alone, wiped where something was
// deleted, left alone when it is not ours, and copied day by day.

#include "Dateidatenbank.h"
#include "Klientenschema.h"
#include "Pruefspeicher.h"
#include "Sicherungen.h"

#include <QDir>
#include <QFile>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

namespace {

int rechte(const QString &path)
{
    struct stat angaben = {};
    return stat(QFile::encodeName(path).constData(), &angaben) == 0
               ? static_cast<int>(angaben.st_mode & 0777U)
               : -1;
}

QByteArray bytes(const QString &path)
{
    QFile datei(path);
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
}

void schreibe(const QString &path, const QByteArray &inhalt)
{
    QFile datei(path);
    QVERIFY(datei.open(QIODevice::WriteOnly));
    QCOMPARE(datei.write(inhalt), inhalt.size());
}

} // namespace

class TestDateidatenbank : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theFileIsForItsUserAlone();
    void aFileOpenToOthersIsNarrowed();
    void theLogIsUsedAndGoesWithTheLastUser();
    void everythingIsOnTheDiskWhenAWriteIsTold();
    void anEmptyFileIsAStoreOfNobody();
    void whatIsNotOursIsLeftAsItIs_data();
    void whatIsNotOursIsLeftAsItIs();
    void aNewerStoreIsReadOnly();
    void aNewerStoreMadeMeanwhileIsNotWritten();
    void aStoreThatAnotherProgramHoldsIsToldOf();
    void aFolderThatCanNotBeWrittenIsToldOf();
    void damageWithinIsFound_data();
    void damageWithinIsFound();
    void aFileReplacedFromOutsideIsOpenedAnew();
    void aFileRemovedFromOutsideIsMadeAnew();
    void nothingIsLeftOfTheDeleted();
    void aCopyIsWholeAndForItsUserAlone();
    void aCopyThatFailsLeavesNothing();
    void aDayIsKeptBeforeItsFirstChange();
    void tenDaysAreKept();

private:
    Dateidatenbank &datenbank();
    QString path() const { return m_ordner->filePath(QStringLiteral("Klienten.sqlite")); }
    QVariant frage(const QString &anweisung, const QString &path = {});

    std::unique_ptr<QTemporaryDir> m_ordner;
    std::unique_ptr<Klientenspeicher> m_tisch;
};

void TestDateidatenbank::init()
{
    m_tisch.reset();
    m_ordner = std::make_unique<QTemporaryDir>();
    m_tisch = std::make_unique<Klientenspeicher>(std::make_unique<Dateidatenbank>(path()));
}

Dateidatenbank &TestDateidatenbank::datenbank()
{
    return dynamic_cast<Dateidatenbank &>(m_tisch->datenbank());
}

/// Asks the file past the program; a statement that answers nothing gives whether it worked.
QVariant TestDateidatenbank::frage(const QString &anweisung, const QString &andere)
{
    QVariant antwort;
    {
        QSqlDatabase datei =
            QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("vorbei"));
        datei.setDatabaseName(andere.isNull() ? path() : andere);
        datei.open();
        QSqlQuery abfrage(datei);
        const bool gelungen = abfrage.exec(anweisung);
        antwort = gelungen && abfrage.next() ? abfrage.value(0) : QVariant(gelungen);
    }
    QSqlDatabase::removeDatabase(QStringLiteral("vorbei"));
    return antwort;
}

void TestDateidatenbank::theFileIsForItsUserAlone()
{
    const mode_t vorher = umask(0);
    Person person = namens(QStringLiteral("Anna"));
    const Schreibausgang ausgang = m_tisch->sichere(person);
    umask(vorher);
    QVERIFY(ausgang);
    QCOMPARE(rechte(path()), 0600);
    QCOMPARE(rechte(path() + QStringLiteral("-wal")), 0600);
    QCOMPARE(rechte(path() + QStringLiteral("-shm")), 0600);
}

void TestDateidatenbank::aFileOpenToOthersIsNarrowed()
{
    Person person = namens(QStringLiteral("Anna"));
    QVERIFY(m_tisch->sichere(person));
    m_tisch->schliesse();
    QCOMPARE(chmod(QFile::encodeName(path()).constData(), 0644), 0);
    QVERIFY(m_tisch->sichere(person));
    QCOMPARE(rechte(path()), 0600);
}

void TestDateidatenbank::theLogIsUsedAndGoesWithTheLastUser()
{
    Person person = namens(QStringLiteral("Anna"));
    QVERIFY(m_tisch->sichere(person));
    QCOMPARE(frage(QStringLiteral("PRAGMA journal_mode")), QVariant(QStringLiteral("wal")));
    m_tisch->schliesse();
    QCOMPARE(QDir(m_ordner->path()).entryList(QDir::Files),
             QStringList{QStringLiteral("Klienten.sqlite")});
}

void TestDateidatenbank::everythingIsOnTheDiskWhenAWriteIsTold()
{
    class Offene : public Dateidatenbank
    {
    public:
        using Dateidatenbank::Dateidatenbank;
        using Dateidatenbank::verbindung;
    };
    auto eigene = std::make_unique<Offene>(path());
    const Offene &offene = *eigene;
    Klientenspeicher tisch(std::move(eigene));
    Person person = namens(QStringLiteral("Anna"));
    QVERIFY(tisch.sichere(person));
    const std::pair<const char *, int> erwartet[] = {
        {"PRAGMA synchronous", 2},                               // full
        {"PRAGMA secure_delete", 1},                             // overwritten with zeros
        {"PRAGMA foreign_keys", 1},    {"PRAGMA temp_store", 2}, // memory
        {"PRAGMA busy_timeout", 2000},
    };
    for (const auto &[anweisung, wert] : erwartet) {
        QSqlQuery abfrage(offene.verbindung());
        QVERIFY(abfrage.exec(QLatin1String(anweisung)) && abfrage.next());
        QVERIFY2(abfrage.value(0).toInt() == wert, anweisung);
    }
}

void TestDateidatenbank::anEmptyFileIsAStoreOfNobody()
{
    schreibe(path(), {});
    QVERIFY(m_tisch->oeffne());
    QCOMPARE(QFileInfo(path()).size(), 0);
    Person person = namens(QStringLiteral("Anna"));
    QVERIFY(m_tisch->sichere(person));
    QCOMPARE(frage(QStringLiteral("SELECT count(*) FROM person")).toInt(), 1);
}

void TestDateidatenbank::whatIsNotOursIsLeftAsItIs_data()
{
    QTest::addColumn<QByteArray>("inhalt"); // empty: made by the statement
    QTest::addColumn<QString>("anweisung");
    QTest::addColumn<Hindernis>("hindernis");
    QTest::newRow("a text") << QByteArray("Liebe Frau Meier, \n").repeated(20) << QString()
                            << Hindernis::Beschaedigt;
    QTest::newRow("a single letter") << QByteArray("x") << QString() << Hindernis::Beschaedigt;
    QTest::newRow("the beginning of a database")
        << QByteArray("SQLite format 3\0", 16) << QString() << Hindernis::Beschaedigt;
    QTest::newRow("a database of another program")
        << QByteArray() << QStringLiteral("CREATE TABLE person (name TEXT)") << Hindernis::Fremd;
}

void TestDateidatenbank::whatIsNotOursIsLeftAsItIs()
{
    QFETCH(const QByteArray, inhalt);
    QFETCH(const QString, anweisung);
    QFETCH(const Hindernis, hindernis);
    if (inhalt.isEmpty()) {
        QVERIFY(frage(anweisung).toBool());
    } else {
        schreibe(path(), inhalt);
    }
    const QByteArray vorher = bytes(path());
    QCOMPARE(m_tisch->oeffne().hindernis, hindernis);
    Person person = namens(QStringLiteral("Anna"));
    const Schreibausgang ausgang = m_tisch->sichere(person);
    QCOMPARE(ausgang.hindernis.hindernis, hindernis);
    QVERIFY(person.kennung.isNull());
    QList<Personenzeile> zeilen;
    QCOMPARE(m_tisch->personen(zeilen).hindernis, hindernis);
    QCOMPARE(bytes(path()), vorher);
    QCOMPARE(QDir(m_ordner->path()).entryList(QDir::Files).size(), 1);
}

void TestDateidatenbank::aNewerStoreIsReadOnly()
{
    Person person = namens(QStringLiteral("Anna"));
    QVERIFY(m_tisch->sichere(person));
    m_tisch->schliesse();
    QVERIFY(
        frage(QStringLiteral("UPDATE bestand SET fassung = %1").arg(Klientenschema::fassung + 1))
            .toBool());
    const QByteArray vorher = bytes(path());
    QCOMPARE(m_tisch->oeffne().hindernis, Hindernis::Neuer);
    QList<Personenzeile> zeilen;
    QVERIFY(m_tisch->personen(zeilen));
    QCOMPARE(zeilen.size(), 1);
    person.name = QStringLiteral("Bea");
    QCOMPARE(m_tisch->sichere(person).hindernis.hindernis, Hindernis::Neuer);
    QCOMPARE(m_tisch->loesche(person.kennung).hindernis.hindernis, Hindernis::Neuer);
    m_tisch->schliesse();
    QCOMPARE(bytes(path()), vorher);
}

void TestDateidatenbank::aNewerStoreMadeMeanwhileIsNotWritten()
{
    Person person = namens(QStringLiteral("Anna"));
    QVERIFY(m_tisch->sichere(person));
    QVERIFY(
        frage(QStringLiteral("UPDATE bestand SET fassung = %1").arg(Klientenschema::fassung + 1))
            .toBool());
    person.name = QStringLiteral("Bea");
    QCOMPARE(m_tisch->sichere(person).hindernis.hindernis, Hindernis::Neuer);
    QCOMPARE(frage(QStringLiteral("SELECT name FROM person")).toString(), QStringLiteral("Anna"));
    QList<Personenzeile> zeilen;
    QVERIFY(m_tisch->personen(zeilen));
    QCOMPARE(zeilen.size(), 1);
}

void TestDateidatenbank::aStoreThatAnotherProgramHoldsIsToldOf()
{
    Person person = namens(QStringLiteral("Anna"));
    QVERIFY(m_tisch->sichere(person));
    {
        QSqlDatabase andere =
            QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("haelt"));
        andere.setDatabaseName(path());
        QVERIFY(andere.open());
        QVERIFY(QSqlQuery(andere).exec(QStringLiteral("BEGIN IMMEDIATE")));
        Person zweite = namens(QStringLiteral("Bea"));
        QCOMPARE(m_tisch->sichere(zweite).hindernis.hindernis, Hindernis::Gesperrt);
        QVERIFY(zweite.kennung.isNull());
        QVERIFY(QSqlQuery(andere).exec(QStringLiteral("ROLLBACK")));
        QVERIFY(m_tisch->sichere(zweite));
    }
    QSqlDatabase::removeDatabase(QStringLiteral("haelt"));
}

void TestDateidatenbank::aFolderThatCanNotBeWrittenIsToldOf()
{
    const QString ordner = m_ordner->filePath(QStringLiteral("weg"));
    Klientenspeicher tisch(
        std::make_unique<Dateidatenbank>(ordner + QStringLiteral("/Klienten.sqlite")));
    QVERIFY(tisch.oeffne()); // nothing is there, and nothing was wanted yet
    Person person = namens(QStringLiteral("Anna"));
    QCOMPARE(tisch.sichere(person).hindernis.hindernis, Hindernis::Verwehrt);
    QVERIFY(QDir().mkdir(ordner));
    QVERIFY(tisch.sichere(person));
}

void TestDateidatenbank::damageWithinIsFound_data()
{
    QTest::addColumn<QString>("rest"); // end of the name of what a crash has left
    QTest::newRow("closed as it should be") << QString();
    QTest::newRow("with the rest of a log") << QStringLiteral("-wal");
    QTest::newRow("with the rest of a journal") << QStringLiteral("-journal");
}

void TestDateidatenbank::damageWithinIsFound()
{
    QFETCH(const QString, rest);
    for (int i = 0; i < 200; ++i) {
        Person person = namens(QStringLiteral("Person %1").arg(i));
        person.notizen = QString(500, u'x');
        QVERIFY(m_tisch->sichere(person));
    }
    m_tisch->schliesse();
    QByteArray inhalt = bytes(path());
    constexpr qsizetype seite = 4096;
    QVERIFY(inhalt.size() > 20 * seite);
    // Pages of the table are overwritten.
    inhalt.replace(10 * seite, 4 * seite, QByteArray(4 * seite, '\x5a'));
    schreibe(path(), inhalt);
    if (!rest.isEmpty()) {
        schreibe(path() + rest, QByteArray(32, '\0'));
    }
    for (int start = 0; start < 3; ++start) {
        const Ausgang ausgang = m_tisch->oeffne();
        QCOMPARE(ausgang.hindernis, Hindernis::Beschaedigt);
        QVERIFY(!ausgang.grund.isEmpty());
    }
    Person person = namens(QStringLiteral("Bea"));
    QCOMPARE(m_tisch->sichere(person).hindernis.hindernis, Hindernis::Beschaedigt);
    QCOMPARE(bytes(path()), inhalt);
}

void TestDateidatenbank::aFileReplacedFromOutsideIsOpenedAnew()
{
    Person anna = namens(QStringLiteral("Anna"));
    QVERIFY(m_tisch->sichere(anna));
    const QString kopie = m_ordner->filePath(QStringLiteral("kopie"));
    QVERIFY(datenbank().kopiere(kopie));
    Person bea = namens(QStringLiteral("Bea"));
    QVERIFY(m_tisch->sichere(bea));
    QVERIFY(QFile::remove(path()));
    QFile::remove(path() + QStringLiteral("-wal"));
    QFile::remove(path() + QStringLiteral("-shm"));
    QVERIFY(QFile::rename(kopie, path()));
    QList<Personenzeile> zeilen;
    QVERIFY(m_tisch->personen(zeilen));
    QCOMPARE(zeilen.size(), 1);
    QCOMPARE(m_tisch->sichere(bea).art, Schreibausgang::Art::Verschwunden);
    Person carla = namens(QStringLiteral("Carla"));
    QVERIFY(m_tisch->sichere(carla));
    QCOMPARE(frage(QStringLiteral("SELECT count(*) FROM person")).toInt(), 2);
}

void TestDateidatenbank::aFileRemovedFromOutsideIsMadeAnew()
{
    Person anna = namens(QStringLiteral("Anna"));
    QVERIFY(m_tisch->sichere(anna));
    QVERIFY(QFile::remove(path()));
    QList<Personenzeile> zeilen = {{}};
    QVERIFY(m_tisch->personen(zeilen));
    QVERIFY(zeilen.isEmpty());
    Person bea = namens(QStringLiteral("Bea"));
    QVERIFY(m_tisch->sichere(bea));
    QCOMPARE(frage(QStringLiteral("SELECT name FROM person")).toString(), QStringLiteral("Bea"));
}

void TestDateidatenbank::nothingIsLeftOfTheDeleted()
{
    const QByteArray geheim = "Rumpelstilzchen";
    Person bleibende = namens(QStringLiteral("Anna"));
    QVERIFY(m_tisch->sichere(bleibende));
    Person person = namens(QString::fromLatin1(geheim));
    person.notizen = QString::fromLatin1(geheim).repeated(1000);
    QVERIFY(m_tisch->sichere(person));
    person.notizen.chop(5); // an earlier state of the row
    QVERIFY(m_tisch->sichere(person));
    m_tisch->schliesse();
    QVERIFY(bytes(path()).contains(geheim));
    QVERIFY(m_tisch->loesche(person.kennung));
    for (const QString &datei : QDir(m_ordner->path()).entryList(QDir::Files)) {
        QVERIFY2(!bytes(m_ordner->filePath(datei)).contains(geheim), qPrintable(datei));
    }
    QList<Personenzeile> zeilen;
    QVERIFY(m_tisch->personen(zeilen));
    QCOMPARE(zeilen.size(), 1);
}

void TestDateidatenbank::aCopyIsWholeAndForItsUserAlone()
{
    Person person = namens(QStringLiteral("Anna"));
    QVERIFY(m_tisch->sichere(person));
    const QString kopie = m_ordner->filePath(QStringLiteral("Kopie.sqlite"));
    schreibe(kopie, "was da stand");
    QVERIFY(datenbank().kopiere(kopie));
    QCOMPARE(rechte(kopie), 0600);
    QVERIFY(!QFile::exists(kopie + QStringLiteral("-wal")));
    Klientenspeicher andere(std::make_unique<Dateidatenbank>(kopie));
    std::optional<Person> gelesene;
    QVERIFY(andere.lies(person.kennung, gelesene));
    QVERIFY(gelesene);
    QCOMPARE(*gelesene, person);
    person.name = QStringLiteral("Bea");
    QVERIFY(andere.sichere(person)); // what was brought back is used like any other
    QCOMPARE(frage(QStringLiteral("PRAGMA journal_mode"), kopie), QVariant(QStringLiteral("wal")));
}

void TestDateidatenbank::aCopyThatFailsLeavesNothing()
{
    Person person = namens(QStringLiteral("Anna"));
    QVERIFY(m_tisch->sichere(person));
    const QString ziel = m_ordner->filePath(QStringLiteral("Kopie"));
    QVERIFY(QDir().mkpath(ziel + QStringLiteral("/voll"))); // a folder, which nothing replaces
    const QStringList vorher = QDir(m_ordner->path()).entryList(QDir::AllEntries);
    QVERIFY(!datenbank().kopiere(ziel));
    QCOMPARE(QDir(m_ordner->path()).entryList(QDir::AllEntries), vorher);
    QVERIFY(!datenbank().kopiere(m_ordner->filePath(QStringLiteral("kein/Ordner"))));
    QVERIFY(m_tisch->sichere(person));
}

void TestDateidatenbank::aDayIsKeptBeforeItsFirstChange()
{
    Person person = namens(QStringLiteral("Anna"));
    QVERIFY(m_tisch->sichere(person));
    QVERIFY(Sicherungen::tage(path()).isEmpty());
    QDateTime morgen = QDateTime::currentDateTime().addDays(1);
    datenbank().setUhr([&] { return morgen; });
    person.name = QStringLiteral("Bea");
    QVERIFY(m_tisch->sichere(person));
    person.name = QStringLiteral("Carla");
    QVERIFY(m_tisch->sichere(person));
    const QList<Sicherungen::Sicherung> tage = Sicherungen::tage(path());
    QCOMPARE(tage.size(), 1);
    QCOMPARE(tage.constFirst().tag, QDate::currentDate());
    QCOMPARE(rechte(tage.constFirst().path), 0600);
    QCOMPARE(frage(QStringLiteral("SELECT name FROM person"), tage.constFirst().path).toString(),
             QStringLiteral("Anna"));
}

void TestDateidatenbank::tenDaysAreKept()
{
    Person person = namens(QStringLiteral("Anna"));
    QVERIFY(m_tisch->sichere(person));
    QDateTime jetzt = QDateTime::currentDateTime();
    datenbank().setUhr([&] { return jetzt; });
    for (int tag = 0; tag < 12; ++tag) {
        m_tisch->schliesse();
        // The file was last changed on the evening before.
        QFile datei(path());
        QVERIFY(datei.open(QIODevice::ReadWrite) &&
                datei.setFileTime(jetzt, QFileDevice::FileModificationTime));
        datei.close();
        jetzt = jetzt.addDays(1);
        person.notizen += QLatin1Char('x');
        QVERIFY(m_tisch->sichere(person));
    }
    const QList<Sicherungen::Sicherung> tage = Sicherungen::tage(path());
    QCOMPARE(tage.size(), 10);
    QCOMPARE(tage.constFirst().tag, jetzt.date().addDays(-1));
    QCOMPARE(tage.constLast().tag, jetzt.date().addDays(-10));
}

QTEST_GUILESS_MAIN(TestDateidatenbank)
#include "TestDateidatenbank.moc"
