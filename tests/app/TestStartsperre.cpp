#include "Hindernisse.h"
#include "Startsperre.h"

#include <QDateTime>
#include <QFile>
#include <QLockFile>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

/// One program at a time works on a user's files.
class TestStartsperre : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theSecondFindsTheFirst();
    void theSignGoesWithTheProgram();
    void whoWasKilledLocksNobodyOut();
    void anOldSignOfARunningProgramStillCounts();
    void aSignThatNobodyHoldsCountsForNothing_data();
    void aSignThatNobodyHoldsCountsForNothing();
    void anOlderProgramIsNoticedAndNoticesThisOne();
    void theSignPassesOnWhenTheFirstEnds_data();
    void theSignPassesOnWhenTheFirstEnds();
    void theSignIsForTheUserAlone();
    void aSignThatBelongsToAnotherStays();
    void whereNoSignCanBeLeftTheProgramStarts();
    void aSignInAProtectedFolderIsSeen();

private:
    void schreibeZeichen(const QByteArray &inhalt) const;
    QString zeichen() const { return m_ordner->filePath(QStringLiteral("Mahlberg.lock")); }

    std::unique_ptr<QTemporaryDir> m_ordner;
};

namespace {

/// The sign as programs up to version 0.1 write it: number and name of the program, name and number
/// of the machine, and the number of its start.
QByteArray altesZeichen()
{
    const QTemporaryDir ordner;
    const QString datei = ordner.filePath(QStringLiteral("probe.lock"));
    QLockFile sperre(datei);
    sperre.lock();
    QFile gelesen(datei);
    return gelesen.open(QIODevice::ReadOnly) ? gelesen.readAll() : QByteArray();
}

/// The same with one of its lines replaced.
QByteArray altesZeichen(int zeile, const QByteArray &anders)
{
    QByteArrayList zeilen = altesZeichen().split('\n');
    zeilen[zeile] = anders;
    return zeilen.join('\n');
}

/// A program that holds the sign until it is told to end, and then takes the sign away, or that
/// holds it until it is killed.
class Anderes
{
public:
    explicit Anderes(const QString &ordner)
    {
        int melden[2] = {};
        int warten[2] = {};
        QVERIFY(pipe(melden) == 0 && pipe(warten) == 0);
        m_nummer = fork();
        if (m_nummer == 0) {
            {
                const Startsperre sperre(ordner);
                char zeichen = sperre.besetzt() ? 'b' : 'f';
                const bool gesagt = write(melden[1], &zeichen, 1) == 1;
                close(warten[1]);
                while (gesagt && read(warten[0], &zeichen, 1) > 0) {
                }
            }
            _exit(0);
        }
        char zeichen = 0;
        QVERIFY(read(melden[0], &zeichen, 1) == 1);
        QCOMPARE(zeichen, 'f');
        close(melden[0]);
        close(melden[1]);
        close(warten[0]);
        m_ende = warten[1];
    }

    void beende() const
    {
        close(m_ende);
        waitpid(m_nummer, nullptr, 0);
    }
    void toete() const
    {
        kill(m_nummer, SIGKILL);
        beende();
    }

private:
    pid_t m_nummer = -1;
    int m_ende = -1;
};

} // namespace

void TestStartsperre::init()
{
    m_ordner = std::make_unique<QTemporaryDir>();
    QVERIFY(m_ordner->isValid());
}

void TestStartsperre::schreibeZeichen(const QByteArray &inhalt) const
{
    QFile datei(zeichen());
    QVERIFY(datei.open(QIODevice::WriteOnly));
    QCOMPARE(datei.write(inhalt), inhalt.size());
}

void TestStartsperre::theSecondFindsTheFirst()
{
    const Startsperre erster(m_ordner->path());
    QVERIFY(!erster.besetzt());
    Startsperre zweiter(m_ordner->path());
    QVERIFY(zweiter.besetzt());
    QVERIFY(QFile::exists(zeichen()));
}

void TestStartsperre::theSignGoesWithTheProgram()
{
    {
        Startsperre erster(m_ordner->path());
        Startsperre zweiter(m_ordner->path());
    }
    QVERIFY(!QFile::exists(zeichen()));
    const Startsperre naechster(m_ordner->path());
    QVERIFY(!naechster.besetzt());
}

void TestStartsperre::whoWasKilledLocksNobodyOut()
{
    const pid_t kind = fork();
    if (kind == 0) {
        const Startsperre sperre(m_ordner->path());
        _exit(sperre.besetzt() ? 1 : 0); // without taking the sign away
    }
    int ende = -1;
    QCOMPARE(waitpid(kind, &ende, 0), kind);
    QCOMPARE(ende, 0);
    QVERIFY(QFile::exists(zeichen()));
    const Startsperre naechster(m_ordner->path());
    QVERIFY(!naechster.besetzt());
}

void TestStartsperre::anOldSignOfARunningProgramStillCounts()
{
    const Startsperre erster(m_ordner->path());
    QFile datei(zeichen());
    QVERIFY(datei.open(QIODevice::ReadWrite));
    QVERIFY(datei.setFileTime(QDateTime::currentDateTime().addDays(-3),
                              QFileDevice::FileModificationTime));
    Startsperre zweiter(m_ordner->path());
    QVERIFY(zweiter.besetzt());
}

void TestStartsperre::aSignThatNobodyHoldsCountsForNothing_data()
{
    QTest::addColumn<QByteArray>("inhalt");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("garbage") << QByteArray("\0\xff garbage\n\n\n", 13);
    QTest::newRow("half of it") << altesZeichen().left(4);
    QTest::newRow("of this machine before its system was set up anew")
        << altesZeichen(3, "0123456789abcdef0123456789abcdef");
    QTest::newRow("of another machine") << altesZeichen(2, "anderswo");
    QTest::newRow("a killed program whose number a running one has by now") << altesZeichen();
    QTest::newRow("a number that no program has") << altesZeichen(0, "999999999");
}

void TestStartsperre::aSignThatNobodyHoldsCountsForNothing()
{
    QFETCH(QByteArray, inhalt);
    schreibeZeichen(inhalt);
    {
        Startsperre sperre(m_ordner->path());
        QVERIFY(!sperre.besetzt());
        Startsperre zweite(m_ordner->path()); // from now on it is held
        QVERIFY(zweite.besetzt());
    }
    QVERIFY(!QFile::exists(zeichen()));
}

void TestStartsperre::anOlderProgramIsNoticedAndNoticesThisOne()
{
    QLockFile aelteres(zeichen());
    aelteres.setStaleLockTime(0);
    QVERIFY(aelteres.tryLock());
    {
        Startsperre sperre(m_ordner->path());
        QVERIFY(sperre.besetzt());
    }
    QVERIFY(QFile::exists(zeichen())); // it is not ours to take away
    aelteres.unlock();

    Startsperre sperre(m_ordner->path());
    QVERIFY(!sperre.besetzt());
    QVERIFY(!aelteres.tryLock());
    QCOMPARE(aelteres.error(), QLockFile::LockFailedError);
}

void TestStartsperre::theSignPassesOnWhenTheFirstEnds_data()
{
    QTest::addColumn<bool>("getoetet");
    QTest::newRow("it is closed") << false;
    QTest::newRow("it is killed") << true;
}

/// Whoever opens the program twice all the same is to be asked again at the third time, also when
/// the first one has ended by then.
void TestStartsperre::theSignPassesOnWhenTheFirstEnds()
{
    QFETCH(bool, getoetet);
    const Anderes erster(m_ordner->path());
    Startsperre zweiter(m_ordner->path());
    QVERIFY(zweiter.besetzt());
    getoetet ? erster.toete() : erster.beende();
    QTRY_VERIFY(!zweiter.besetzt());
    Startsperre dritter(m_ordner->path());
    QVERIFY(dritter.besetzt());
}

void TestStartsperre::theSignIsForTheUserAlone()
{
    Startsperre sperre(m_ordner->path());
    QVERIFY(!sperre.besetzt());
    struct stat zustand = {};
    QVERIFY(stat(QFile::encodeName(zeichen()).constData(), &zustand) == 0);
    QCOMPARE(zustand.st_mode & 07777U, 0600U);
}

/// Who clears up the folder by hand also clears the sign, and then another program leaves its own.
void TestStartsperre::aSignThatBelongsToAnotherStays()
{
    {
        Startsperre erster(m_ordner->path());
        QVERIFY(QFile::remove(zeichen()));
        schreibeZeichen("another one");
    }
    QVERIFY(QFile::exists(zeichen()));
}

void TestStartsperre::whereNoSignCanBeLeftTheProgramStarts()
{
    const Startsperre sperre(m_ordner->filePath(QStringLiteral("fehlt")));
    QVERIFY(!sperre.besetzt());
}

void TestStartsperre::aSignInAProtectedFolderIsSeen()
{
    Startsperre erster(m_ordner->path());
    QVERIFY(chmod(QFile::encodeName(zeichen()).constData(), 0444) == 0);
    QVERIFY(chmod(QFile::encodeName(m_ordner->path()).constData(), 0555) == 0);
    {
        const OhneRechte ohneRechte;
        QVERIFY(ohneRechte.gelungen());
        Startsperre zweiter(m_ordner->path());
        QVERIFY(zweiter.besetzt());
    }
    QVERIFY(QFile::exists(zeichen()));
    QVERIFY(chmod(QFile::encodeName(m_ordner->path()).constData(), 0700) == 0);
}

QTEST_GUILESS_MAIN(TestStartsperre)
#include "TestStartsperre.moc"
