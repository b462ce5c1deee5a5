#include "Postfach.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

using namespace Qt::StringLiterals;

/// What a second start of the program hands to the one that is at work.
class TestPostfach : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void filesReachTheOneThatIsAtWork_data();
    void filesReachTheOneThatIsAtWork();
    void nobodyIsThereToTakeThem();
    void aNoteForOneThatIsStillStartingIsTaken();
    void anOldNoteIsThrownAway();
    void otherFilesAreLeftAlone();
    void aFolderThatIsNotThere();
    void theNoteIsForTheUserAlone();

private:
    QStringList liegendes() const
    {
        return QDir(m_ordner->path()).entryList(QDir::Files | QDir::Hidden);
    }

    std::unique_ptr<QTemporaryDir> m_ordner;
};

namespace {

/// A second start of the program, while this one answers its events.
bool gibAbDaneben(const QString &ordner, const QStringList &pfade)
{
    bool genommen = false;
    const std::unique_ptr<QThread> anderes(
        QThread::create([&] { genommen = Postfach::gibAb(ordner, pfade, 60000); }));
    anderes->start();
    while (!anderes->isFinished()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    }
    return genommen;
}

} // namespace

void TestPostfach::init()
{
    m_ordner = std::make_unique<QTemporaryDir>();
}

void TestPostfach::filesReachTheOneThatIsAtWork_data()
{
    QTest::addColumn<QStringList>("pfade");
    QTest::newRow("one") << QStringList{u"/home/a/alt.daten"_s};
    QTest::newRow("two") << QStringList{u"/home/a/alt.daten"_s, u"/b.daten"_s};
    QTest::newRow("any signs") << QStringList{u"/Über uns/a\nb \"c\".daten"_s};
    QTest::newRow("many") << QStringList(2000, u"/home/a/ein recht langer Name.daten"_s);
}

void TestPostfach::filesReachTheOneThatIsAtWork()
{
    QFETCH(QStringList, pfade);
    Postfach postfach(m_ordner->path());
    QSignalSpy eingetroffen(&postfach, &Postfach::eingetroffen);
    QVERIFY(gibAbDaneben(m_ordner->path(), pfade));
    QTRY_COMPARE(eingetroffen.size(), 1);
    QCOMPARE(eingetroffen[0][0].toStringList(), pfade);
    QCOMPARE(liegendes(), QStringList());
}

void TestPostfach::nobodyIsThereToTakeThem()
{
    QVERIFY(!Postfach::gibAb(m_ordner->path(), {u"/a.daten"_s}, 50));
    QCOMPARE(liegendes(), QStringList()); // and nobody will find it later
}

void TestPostfach::aNoteForOneThatIsStillStartingIsTaken()
{
    QFile zettel(m_ordner->filePath(u"Mahlberg-oeffnen-77.zettel"_s));
    QVERIFY(zettel.open(QIODevice::WriteOnly));
    zettel.write("/a.daten");
    zettel.close();
    Postfach postfach(m_ordner->path());
    QSignalSpy eingetroffen(&postfach, &Postfach::eingetroffen);
    QTRY_COMPARE(eingetroffen.size(), 1);
    QCOMPARE(eingetroffen[0][0].toStringList(), QStringList{u"/a.daten"_s});
}

void TestPostfach::anOldNoteIsThrownAway()
{
    QFile zettel(m_ordner->filePath(u"Mahlberg-oeffnen-77.zettel"_s));
    QVERIFY(zettel.open(QIODevice::WriteOnly));
    zettel.write("/a.daten");
    QVERIFY(zettel.flush());
    QVERIFY(zettel.setFileTime(QDateTime::currentDateTime().addSecs(-61),
                               QFileDevice::FileModificationTime));
    zettel.close();
    Postfach postfach(m_ordner->path());
    QSignalSpy eingetroffen(&postfach, &Postfach::eingetroffen);
    QTRY_COMPARE(liegendes(), QStringList());
    QCOMPARE(eingetroffen.size(), 0);
}

void TestPostfach::otherFilesAreLeftAlone()
{
    const QStringList andere = {u"Mahlberg-oeffnen-5.zettel.AbCdEf"_s, u"Mahlberg.lock"_s,
                                u"MahlbergCustomnutr.daten"_s};
    for (const QString &name : andere) {
        QFile datei(m_ordner->filePath(name));
        QVERIFY(datei.open(QIODevice::WriteOnly));
    }
    Postfach postfach(m_ordner->path());
    QSignalSpy eingetroffen(&postfach, &Postfach::eingetroffen);
    QVERIFY(gibAbDaneben(m_ordner->path(), {u"/a.daten"_s}));
    QTRY_COMPARE(eingetroffen.size(), 1);
    QCOMPARE(liegendes(), andere);
}

void TestPostfach::aFolderThatIsNotThere()
{
    QVERIFY(!Postfach::gibAb(m_ordner->filePath(u"fehlt"_s), {u"/a.daten"_s}, 60000));
}

void TestPostfach::theNoteIsForTheUserAlone()
{
    QFileDevice::Permissions rechte;
    const std::unique_ptr<QThread> anderes(
        QThread::create([this] { Postfach::gibAb(m_ordner->path(), {u"/a.daten"_s}, 60000); }));
    anderes->start();
    QTRY_VERIFY(!QDir(m_ordner->path()).entryList({u"*.zettel"_s}, QDir::Files).isEmpty());
    const QDir dort(m_ordner->path());
    const QString zettel = dort.filePath(dort.entryList({u"*.zettel"_s}, QDir::Files).value(0));
    rechte = QFileInfo(zettel).permissions();
    QVERIFY(QFile::remove(zettel));
    anderes->wait();
    QCOMPARE(rechte & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
             QFileDevice::Permissions());
}

QTEST_GUILESS_MAIN(TestPostfach)
#include "TestPostfach.moc"
