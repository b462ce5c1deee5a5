#include "Startsperre.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/wait.h>
#include <unistd.h>

/// One program at a time works on a user's files.
class TestStartsperre : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSecondFindsTheFirst();
    void theSignGoesWithTheProgram();
    void whoWasKilledLocksNobodyOut();
    void anOldSignOfARunningProgramStillCounts();
    void whereNoSignCanBeLeftTheProgramStarts();

private:
    QString zeichen() const { return m_ordner.filePath(QStringLiteral("Mahlberg.lock")); }

    QTemporaryDir m_ordner;
};

void TestStartsperre::theSecondFindsTheFirst()
{
    const Startsperre erster(m_ordner.path());
    QVERIFY(!erster.besetzt());
    const Startsperre zweiter(m_ordner.path());
    QVERIFY(zweiter.besetzt());
    QVERIFY(QFile::exists(zeichen()));
}

void TestStartsperre::theSignGoesWithTheProgram()
{
    {
        const Startsperre erster(m_ordner.path());
        const Startsperre zweiter(m_ordner.path());
    }
    QVERIFY(!QFile::exists(zeichen()));
    const Startsperre naechster(m_ordner.path());
    QVERIFY(!naechster.besetzt());
}

void TestStartsperre::whoWasKilledLocksNobodyOut()
{
    const pid_t kind = fork();
    if (kind == 0) {
        const Startsperre sperre(m_ordner.path());
        _exit(sperre.besetzt() ? 1 : 0); // without taking the sign away
    }
    int ende = -1;
    QCOMPARE(waitpid(kind, &ende, 0), kind);
    QCOMPARE(ende, 0);
    QVERIFY(QFile::exists(zeichen()));
    const Startsperre naechster(m_ordner.path());
    QVERIFY(!naechster.besetzt());
}

void TestStartsperre::anOldSignOfARunningProgramStillCounts()
{
    const Startsperre erster(m_ordner.path());
    QFile datei(zeichen());
    QVERIFY(datei.open(QIODevice::ReadWrite));
    QVERIFY(datei.setFileTime(QDateTime::currentDateTime().addDays(-3),
                              QFileDevice::FileModificationTime));
    const Startsperre zweiter(m_ordner.path());
    QVERIFY(zweiter.besetzt());
}

void TestStartsperre::whereNoSignCanBeLeftTheProgramStarts()
{
    const Startsperre sperre(m_ordner.filePath(QStringLiteral("fehlt")));
    QVERIFY(!sperre.besetzt());
}

QTEST_GUILESS_MAIN(TestStartsperre)
#include "TestStartsperre.moc"
