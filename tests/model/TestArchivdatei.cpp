#include "Archivbau.h"
#include "Archivdatei.h"
#include "Hindernisse.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <sys/stat.h>

using namespace Archivbau;
using Zustand = Archivdatei::Zustand;

class TestArchivdatei : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aMissingFileIsMissing_data();
    void aMissingFileIsMissing();
    void aFileIsRead();
    void anEmptyStoreIsRead();
    void aDamagedFileSaysWhere();
    void whatIsNoFileIsNotOpened_data();
    void whatIsNoFileIsNotOpened();
    void aHugeFileIsUnreadable();
    void whatIsTooLargeToBeReadIsNotWritten();
    void aFolderThatCantBeEnteredIsUnreadable();

    void aNewFileIsWritten();
    void aChangedFileIsReplaced();
    void unchangedBytesAreNotTouched();
    void onlyTheUserMayRead_data();
    void onlyTheUserMayRead();
    void aLinkStaysALink();
    void writingFails_data();
    void writingFails();
    void aFullDiskLeavesTheOldFile();
    void aReadOnlyFolderLeavesTheOldFile();
    void whatComesMeanwhileIsSeen_data();
    void whatComesMeanwhileIsSeen();
    void whatIsWrittenAgainAndAgainStays();

private:
    QString path(const char *name) const { return m_ordner->filePath(QString::fromUtf8(name)); }
    QStringList dateien() const;
    void schreibeRoh(const QString &path, const QByteArray &bytes) const;

    std::unique_ptr<QTemporaryDir> m_ordner;
};

namespace {

const QDateTime moment(QDate(2026, 11, 20), QTime(14, 3, 5));

QByteArray leseRoh(const QString &path)
{
    QFile datei(path);
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
}

struct stat status(const QString &path)
{
    struct stat info = {};
    stat(QFile::encodeName(path).constData(), &info);
    return info;
}

} // namespace

void TestArchivdatei::init()
{
    m_ordner = std::make_unique<QTemporaryDir>();
    QVERIFY(m_ordner->isValid());
}

QStringList TestArchivdatei::dateien() const
{
    return QDir(m_ordner->path())
        .entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
}

void TestArchivdatei::schreibeRoh(const QString &path, const QByteArray &bytes) const
{
    QFile datei(path);
    QVERIFY(datei.open(QIODevice::WriteOnly));
    QCOMPARE(datei.write(bytes), bytes.size());
}

void TestArchivdatei::aMissingFileIsMissing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no such file") << QStringLiteral("/Eigene.daten");
    QTest::newRow("no such folder") << QStringLiteral("/fehlt/Eigene.daten");
}

void TestArchivdatei::aMissingFileIsMissing()
{
    QFETCH(QString, name);
    const auto inhalt = Archivdatei::lesen(m_ordner->path() + name);
    QVERIFY(inhalt.zustand == Zustand::Fehlt);
    QVERIFY(inhalt.archiv.verzeichnis.isEmpty());
    QVERIFY(Archivdatei::lesen(QString()).zustand == Zustand::Fehlt);
    QVERIFY(dateien().isEmpty());
}

void TestArchivdatei::aFileIsRead()
{
    schreibeRoh(path("Eigene.daten"), beispielBytes());
    const auto inhalt = Archivdatei::lesen(path("Eigene.daten"));
    QVERIFY(inhalt.zustand == Zustand::Gelesen);
    QVERIFY(gleich(inhalt.archiv.verzeichnis, beispielVerzeichnis()));
}

void TestArchivdatei::anEmptyStoreIsRead()
{
    schreibeRoh(path("Eigene.daten"), datei(verzeichnisAnfang + "00 86"));
    const auto inhalt = Archivdatei::lesen(path("Eigene.daten"));
    QVERIFY(inhalt.zustand == Zustand::Gelesen);
    QVERIFY(inhalt.archiv.verzeichnis.isEmpty());
}

void TestArchivdatei::aDamagedFileSaysWhere()
{
    schreibeRoh(path("Eigene.daten"), beispielBytes().first(100));
    const auto inhalt = Archivdatei::lesen(path("Eigene.daten"));
    QVERIFY(inhalt.zustand == Zustand::Beschaedigt);
    QVERIFY(inhalt.archiv.verzeichnis.isEmpty());
    QCOMPARE(inhalt.archiv.position, 100);
    QCOMPARE(inhalt.archiv.grund, QStringLiteral("the data end too early"));

    schreibeRoh(path("Eigene.daten"), {});
    QVERIFY(Archivdatei::lesen(path("Eigene.daten")).zustand == Zustand::Beschaedigt);
}

void TestArchivdatei::whatIsNoFileIsNotOpened_data()
{
    QTest::addColumn<QString>("art");
    QTest::newRow("a pipe nobody writes to") << QStringLiteral("pipe");
    QTest::newRow("a folder") << QStringLiteral("folder");
    QTest::newRow("a device") << QStringLiteral("device");
}

void TestArchivdatei::whatIsNoFileIsNotOpened()
{
    QFETCH(QString, art);
    const QString ort = path("Eigene.daten");
    if (art == QLatin1String("pipe")) {
        QCOMPARE(mkfifo(QFile::encodeName(ort).constData(), 0600), 0);
    } else if (art == QLatin1String("folder")) {
        QVERIFY(QDir().mkdir(ort));
    } else {
        QVERIFY(QFile::link(QStringLiteral("/dev/zero"), ort));
    }
    const auto davor = status(ort);

    const auto inhalt = Archivdatei::lesen(ort);
    QVERIFY(inhalt.zustand == Zustand::Unlesbar);
    QVERIFY(!inhalt.grund.isEmpty());
    QVERIFY(inhalt.archiv.verzeichnis.isEmpty());
    QVERIFY(!Archivdatei::schreiben(ort, beispielVerzeichnis()));
    QCOMPARE(status(ort).st_ino, davor.st_ino);
    QCOMPARE(status(ort).st_mode, davor.st_mode);
    QCOMPARE(dateien().size(), 1);
}

void TestArchivdatei::aHugeFileIsUnreadable()
{
    QFile datei(path("Eigene.daten"));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    QVERIFY(datei.resize(qint64(64) * 1024 * 1024)); // no more than its size is ever on the disk
    QVERIFY(Archivdatei::lesen(datei.fileName()).zustand == Zustand::Beschaedigt);
    QVERIFY(datei.resize(64 * 1024 * 1024 + 1));
    const auto inhalt = Archivdatei::lesen(datei.fileName());
    QVERIFY(inhalt.zustand == Zustand::Unlesbar);
    QCOMPARE(inhalt.grund, QStringLiteral("it is too large"));
}

/// It would be gone at the next start.
void TestArchivdatei::whatIsTooLargeToBeReadIsNotWritten()
{
    schreibeRoh(path("Eigene.daten"), beispielBytes());
    Datenmodul riese;
    riese.setgicht(QString(qsizetype(64) * 1024 * 1024, QLatin1Char('x')));
    const auto ausgang =
        Archivdatei::schreiben(path("Eigene.daten"), {{QStringLiteral("Riese"), riese}});
    QVERIFY(!ausgang);
    QCOMPARE(ausgang.grund, QStringLiteral("it would be too large to be read again"));
    QCOMPARE(leseRoh(path("Eigene.daten")), beispielBytes());
    QCOMPARE(dateien(), QStringList(QStringLiteral("Eigene.daten")));
}

void TestArchivdatei::aFolderThatCantBeEnteredIsUnreadable()
{
    QVERIFY(QDir(m_ordner->path()).mkdir(QStringLiteral("zu")));
    const QString ort = path("zu/Eigene.daten");
    schreibeRoh(ort, beispielBytes());
    QCOMPARE(chmod(QFile::encodeName(path("zu")).constData(), 0), 0);
    {
        const OhneRechte einfach;
        QVERIFY(einfach.gelungen());
        QVERIFY(Archivdatei::lesen(ort).zustand == Zustand::Unlesbar);
        QVERIFY(!Archivdatei::schreiben(ort, {}));
    }
    QCOMPARE(chmod(QFile::encodeName(path("zu")).constData(), 0700), 0);
    QCOMPARE(leseRoh(ort), beispielBytes());
}

void TestArchivdatei::aNewFileIsWritten()
{
    QVERIFY(Archivdatei::schreiben(path("Eigene.daten"), beispielVerzeichnis()));
    QCOMPARE(leseRoh(path("Eigene.daten")), beispielBytes());
    QCOMPARE(dateien(), QStringList(QStringLiteral("Eigene.daten")));
}

void TestArchivdatei::aChangedFileIsReplaced()
{
    schreibeRoh(path("Eigene.daten"), vieleEintraege(1000, Folge::BigEndian));
    QVERIFY(Archivdatei::schreiben(path("Eigene.daten"), beispielVerzeichnis()));
    QCOMPARE(leseRoh(path("Eigene.daten")), beispielBytes());
    QVERIFY(Archivdatei::schreiben(path("Eigene.daten"), {}));
    QCOMPARE(leseRoh(path("Eigene.daten")), datei(verzeichnisAnfang + "00 86"));
    QCOMPARE(dateien(), QStringList(QStringLiteral("Eigene.daten")));
}

void TestArchivdatei::unchangedBytesAreNotTouched()
{
    const QString ort = path("Eigene.daten");
    schreibeRoh(ort, beispielBytes());
    QFile datei(ort);
    QVERIFY(datei.open(QIODevice::ReadWrite));
    QVERIFY(datei.setFileTime(moment.addYears(-10), QFileDevice::FileModificationTime));
    datei.close();
    const auto davor = status(ort);

    QVERIFY(Archivdatei::schreiben(ort, beispielVerzeichnis()));
    const auto danach = status(ort);
    QCOMPARE(danach.st_ino, davor.st_ino);
    QCOMPARE(danach.st_mtim.tv_sec, davor.st_mtim.tv_sec);
    QCOMPARE(danach.st_ctim.tv_sec, davor.st_ctim.tv_sec);
    QCOMPARE(danach.st_ctim.tv_nsec, davor.st_ctim.tv_nsec);
}

void TestArchivdatei::onlyTheUserMayRead_data()
{
    QTest::addColumn<uint>("vorher");
    QTest::addColumn<uint>("nachher");
    QTest::newRow("a new file") << 0U << 0600U;
    QTest::newRow("everybody could") << 0644U << 0600U;
    QTest::newRow("everybody could do everything") << 0777U << 0600U;
    QTest::newRow("the group could") << 0640U << 0600U;
    QTest::newRow("the user alone could") << 0600U << 0600U;
    QTest::newRow("the user could only read") << 0400U << 0400U;
    QTest::newRow("the user could only write") << 0200U << 0600U;
}

void TestArchivdatei::onlyTheUserMayRead()
{
    QFETCH(uint, vorher);
    QFETCH(uint, nachher);
    const QString ort = path("Eigene.daten");
    if (vorher != 0) {
        schreibeRoh(ort, beispielBytes());
        QCOMPARE(chmod(QFile::encodeName(ort).constData(), vorher), 0);
    }
    QVERIFY(Archivdatei::schreiben(ort, {}));
    QCOMPARE(status(ort).st_mode & 0777U, nachher);
}

void TestArchivdatei::aLinkStaysALink()
{
    schreibeRoh(path("anderswo.daten"), beispielBytes());
    QVERIFY(QFile::link(path("anderswo.daten"), path("Eigene.daten")));
    QVERIFY(Archivdatei::schreiben(path("Eigene.daten"), {}));
    QVERIFY(QFileInfo(path("Eigene.daten")).isSymLink());
    QCOMPARE(dateien().size(), 2);
    QCOMPARE(leseRoh(path("anderswo.daten")), datei(verzeichnisAnfang + "00 86"));
}

void TestArchivdatei::writingFails_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("no path") << QString();
    QTest::newRow("no such folder") << QStringLiteral("/fehlt/Eigene.daten");
    QTest::newRow("the folder is a file") << QStringLiteral("/Datei/Eigene.daten");
    QTest::newRow("the name is too long") << QLatin1Char('/') + QString(300, QLatin1Char('n'));
}

void TestArchivdatei::writingFails()
{
    QFETCH(QString, path);
    schreibeRoh(this->path("Datei"), "Inhalt");
    const QString ort = path.isEmpty() ? path : m_ordner->path() + path;
    QVERIFY(!Archivdatei::schreiben(ort, beispielVerzeichnis()));
    QCOMPARE(leseRoh(this->path("Datei")), QByteArray("Inhalt"));
    QCOMPARE(dateien(), QStringList(QStringLiteral("Datei")));
}

void TestArchivdatei::aFullDiskLeavesTheOldFile()
{
    const QString ort = path("Eigene.daten");
    schreibeRoh(ort, beispielBytes());
    const auto viele = Archiver::read(vieleEintraege(1000, Folge::LittleEndian)).verzeichnis;
    {
        const VolleFestplatte voll(10'000);
        QVERIFY(!Archivdatei::schreiben(ort, viele));
        QVERIFY(!Archivdatei::schreiben(path("Neu.daten"), viele));
    }
    QCOMPARE(leseRoh(ort), beispielBytes());
    QCOMPARE(dateien(), QStringList(QStringLiteral("Eigene.daten")));
    QVERIFY(Archivdatei::schreiben(ort, viele));
}

void TestArchivdatei::aReadOnlyFolderLeavesTheOldFile()
{
    const QString ort = path("Eigene.daten");
    schreibeRoh(ort, beispielBytes());
    const QByteArray ordner = QFile::encodeName(m_ordner->path());
    QCOMPARE(chmod(ordner.constData(), 0555), 0);
    {
        const OhneRechte einfach;
        QVERIFY(einfach.gelungen());
        QVERIFY(Archivdatei::lesen(ort).zustand == Zustand::Gelesen);
        QVERIFY(!Archivdatei::schreiben(ort, {}));
        QVERIFY(!Archivdatei::schreiben(path("Neu.daten"), {}));
    }
    QCOMPARE(chmod(ordner.constData(), 0700), 0);
    QCOMPARE(leseRoh(ort), beispielBytes());
    QCOMPARE(dateien(), QStringList(QStringLiteral("Eigene.daten")));
}

void TestArchivdatei::whatComesMeanwhileIsSeen_data()
{
    QTest::addColumn<QByteArray>("vorher");
    QTest::addColumn<QByteArray>("inzwischen");
    QTest::addColumn<bool>("alsNeueDatei");
    const QByteArray erste = "das Erste";
    QTest::newRow("a longer one, written into the file")
        << erste << QByteArray("ein anderes") << false;
    QTest::newRow("another file of the same size and date")
        << erste << QByteArray("ein neues") << true;
    QTest::newRow("none any more") << erste << QByteArray() << false;
    QTest::newRow("one where none was") << QByteArray() << QByteArray("ein neues") << true;
}

/// While the file is being replaced, another program writes there.
void TestArchivdatei::whatComesMeanwhileIsSeen()
{
    QFETCH(QByteArray, vorher);
    QFETCH(QByteArray, inzwischen);
    QFETCH(bool, alsNeueDatei);
    const QString ort = path("Eigene.daten");
    const auto lege = [&](const QString &name, const QByteArray &bytes) {
        schreibeRoh(name, bytes);
        QFile datei(name);
        QVERIFY(datei.open(QIODevice::ReadWrite));
        QVERIFY(datei.setFileTime(moment, QFileDevice::FileModificationTime));
    };
    if (!vorher.isEmpty()) {
        lege(ort, vorher);
    }
    QList<QByteArray> gesehenes;
    const auto bewahre = [&](const Archivdatei::Rohdaten &alt) {
        gesehenes << alt.bytes;
        if (gesehenes.size() > 1) {
            return true;
        }
        if (alsNeueDatei) {
            lege(path("anderswo"), inzwischen);
            QFile::remove(ort);
            return QFile::rename(path("anderswo"), ort);
        }
        if (inzwischen.isEmpty()) {
            return QFile::remove(ort);
        }
        schreibeRoh(ort, inzwischen);
        return true;
    };
    QVERIFY(Archivdatei::schreiben(ort, beispielVerzeichnis(), bewahre));
    QCOMPARE(gesehenes, QList<QByteArray>({vorher, inzwischen}));
    QCOMPARE(leseRoh(ort), beispielBytes());
    QCOMPARE(dateien(), QStringList(QStringLiteral("Eigene.daten")));
}

void TestArchivdatei::whatIsWrittenAgainAndAgainStays()
{
    const QString ort = path("Eigene.daten");
    schreibeRoh(ort, "x");
    QByteArray letztes;
    const auto ausgang =
        Archivdatei::schreiben(ort, beispielVerzeichnis(), [&](const Archivdatei::Rohdaten &alt) {
            letztes = alt.bytes + 'x';
            schreibeRoh(ort, letztes);
            return true;
        });
    QVERIFY(!ausgang);
    QCOMPARE(ausgang.grund, QStringLiteral("another program is writing it again and again"));
    QVERIFY(letztes.size() > 2); // it was tried more than once
    QCOMPARE(leseRoh(ort), letztes);
    QCOMPARE(dateien(), QStringList(QStringLiteral("Eigene.daten")));
}

QTEST_GUILESS_MAIN(TestArchivdatei)
#include "TestArchivdatei.moc"
