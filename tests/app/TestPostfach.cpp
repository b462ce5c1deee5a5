#include "Postfach.h"

#include "Hindernisse.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <sys/stat.h>

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
    void notesComeInTheirOrder();
    void eachNoteComesOnceWhileAMessageIsOpen();
    void anOldNoteIsThrownAway_data();
    void anOldNoteIsThrownAway();
    void aHugeNoteIsThrownAway_data();
    void aHugeNoteIsThrownAway();
    void aNoteThatCanNotBeReadNamesNoFile();
    void moreFilesThanANoteHolds();
    void aNoteThatIsTakenBackIsNotOpened();
    void otherFilesAreLeftAlone();
    void aFolderThatIsNotThere();
    void aFullDiskLeavesNoNote_data();
    void aFullDiskLeavesNoNote();
    void aProtectedFolderLeavesNoNote();
    void theNoteIsForTheUserAlone();

private:
    void legeZettel(const QString &nummer, const QByteArray &inhalt, int alter = 0) const;
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

/// A note as another start of the program left it so many seconds ago.
void TestPostfach::legeZettel(const QString &nummer, const QByteArray &inhalt, int alter) const
{
    QFile zettel(m_ordner->filePath(u"Mahlberg-oeffnen-%1.zettel"_s.arg(nummer)));
    QVERIFY(zettel.open(QIODevice::WriteOnly));
    QCOMPARE(zettel.write(inhalt), inhalt.size());
    QVERIFY(zettel.flush());
    QVERIFY(zettel.setFileTime(QDateTime::currentDateTime().addSecs(-alter),
                               QFileDevice::FileModificationTime));
}

void TestPostfach::aNoteForOneThatIsStillStartingIsTaken()
{
    legeZettel(u"77"_s, "/a.daten");
    Postfach postfach(m_ordner->path());
    QSignalSpy eingetroffen(&postfach, &Postfach::eingetroffen);
    QTRY_COMPARE(eingetroffen.size(), 1);
    QCOMPARE(eingetroffen[0][0].toStringList(), QStringList{u"/a.daten"_s});
}

void TestPostfach::notesComeInTheirOrder()
{
    legeZettel(u"1"_s, "/zweite.daten", 20);
    legeZettel(u"2"_s, "/dritte.daten", 10);
    legeZettel(u"3"_s, "/erste.daten", 30);
    Postfach postfach(m_ordner->path());
    QSignalSpy eingetroffen(&postfach, &Postfach::eingetroffen);
    QTRY_COMPARE(eingetroffen.size(), 3);
    QStringList pfade;
    for (const QList<QVariant> &einer : eingetroffen) {
        pfade << einer[0].toStringList();
    }
    QCOMPARE(pfade, (QStringList{u"/erste.daten"_s, u"/zweite.daten"_s, u"/dritte.daten"_s}));
}

/// A message that a file gives rise to lets further events run before the next note is looked at.
void TestPostfach::eachNoteComesOnceWhileAMessageIsOpen()
{
    legeZettel(u"1"_s, "/erste.daten", 20);
    legeZettel(u"2"_s, "/zweite.daten", 10);
    Postfach postfach(m_ordner->path());
    QStringList pfade;
    connect(&postfach, &Postfach::eingetroffen, this, [&](const QStringList &neue) {
        const bool erste = pfade.isEmpty();
        pfade << neue;
        if (erste) {
            legeZettel(u"3"_s, "/dritte.daten");
            QTRY_COMPARE(pfade.size(), 3);
        }
    });
    QTRY_COMPARE(pfade.size(), 3);
    QCoreApplication::processEvents();
    QCOMPARE(pfade, (QStringList{u"/erste.daten"_s, u"/zweite.daten"_s, u"/dritte.daten"_s}));
    QCOMPARE(liegendes(), QStringList());
}

void TestPostfach::anOldNoteIsThrownAway_data()
{
    QTest::addColumn<int>("alter");
    QTest::addColumn<bool>("genommen");
    QTest::newRow("somebody may still wait") << 50 << true;
    QTest::newRow("nobody waits any more") << 61 << false;
}

void TestPostfach::anOldNoteIsThrownAway()
{
    QFETCH(int, alter);
    QFETCH(bool, genommen);
    legeZettel(u"77"_s, "/a.daten", alter);
    Postfach postfach(m_ordner->path());
    QSignalSpy eingetroffen(&postfach, &Postfach::eingetroffen);
    QTRY_COMPARE(liegendes(), QStringList());
    QCOMPARE(eingetroffen.size(), genommen ? 1 : 0);
}

void TestPostfach::aHugeNoteIsThrownAway_data()
{
    QTest::addColumn<int>("groesse");
    QTest::addColumn<bool>("genommen");
    QTest::newRow("as large as one gets") << (4 << 20) << true;
    QTest::newRow("larger") << (4 << 20) + 1 << false; // its last path would be cut off
}

void TestPostfach::aHugeNoteIsThrownAway()
{
    QFETCH(int, groesse);
    QFETCH(bool, genommen);
    legeZettel(u"77"_s, QByteArray(groesse, 'x'));
    Postfach postfach(m_ordner->path());
    QSignalSpy eingetroffen(&postfach, &Postfach::eingetroffen);
    QTRY_COMPARE(liegendes(), QStringList());
    QCOMPARE(eingetroffen.size(), genommen ? 1 : 0);
}

void TestPostfach::aNoteThatCanNotBeReadNamesNoFile()
{
    legeZettel(u"77"_s, "/a.daten");
    const QByteArray zettel = QFile::encodeName(m_ordner->filePath(liegendes().value(0)));
    QCOMPARE(chmod(QFile::encodeName(m_ordner->path()).constData(), 0777), 0);
    QCOMPARE(chmod(zettel.constData(), 0), 0);
    const OhneRechte einfach;
    QVERIFY(einfach.gelungen());
    Postfach postfach(m_ordner->path());
    QSignalSpy eingetroffen(&postfach, &Postfach::eingetroffen);
    QCoreApplication::processEvents();
    QCOMPARE(eingetroffen.size(), 0);
}

void TestPostfach::moreFilesThanANoteHolds()
{
    Postfach postfach(m_ordner->path());
    QVERIFY(!gibAbDaneben(m_ordner->path(), {QString(5 << 20, u'x')}));
    QCOMPARE(liegendes(), QStringList());
}

/// The program that is at work was stuck, and comes to itself when the other has long been asked.
void TestPostfach::aNoteThatIsTakenBackIsNotOpened()
{
    Postfach postfach(m_ordner->path());
    QSignalSpy eingetroffen(&postfach, &Postfach::eingetroffen);
    QVERIFY(!Postfach::gibAb(m_ordner->path(), {u"/a.daten"_s}, 50)); // no events run here
    QVERIFY(gibAbDaneben(m_ordner->path(), {u"/b.daten"_s}));
    QTRY_COMPARE(eingetroffen.size(), 1);
    QCOMPARE(eingetroffen[0][0].toStringList(), QStringList{u"/b.daten"_s});
}

void TestPostfach::otherFilesAreLeftAlone()
{
    const QStringList andere = {u"Einkauf.zettel"_s, u"Mahlberg-oeffnen-5.zettel.AbCdEf"_s,
                                u"Mahlberg.lock"_s, u"MahlbergCustomnutr.daten"_s};
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

void TestPostfach::aFullDiskLeavesNoNote_data()
{
    QTest::addColumn<int>("platz");
    QTest::newRow("nothing fits") << 0;
    QTest::newRow("a part fits") << 3;
}

/// An empty or cut note would open another file than the one that is meant, or none.
void TestPostfach::aFullDiskLeavesNoNote()
{
    QFETCH(int, platz);
    Postfach postfach(m_ordner->path());
    QSignalSpy eingetroffen(&postfach, &Postfach::eingetroffen);
    {
        const VolleFestplatte voll(static_cast<rlim_t>(platz));
        QVERIFY(!gibAbDaneben(m_ordner->path(), {u"/a.daten"_s}));
    }
    QCOMPARE(liegendes(), QStringList());
    QVERIFY(gibAbDaneben(m_ordner->path(), {u"/b.daten"_s}));
    QTRY_COMPARE(eingetroffen.size(), 1);
    QCOMPARE(eingetroffen[0][0].toStringList(), QStringList{u"/b.daten"_s});
}

void TestPostfach::aProtectedFolderLeavesNoNote()
{
    const QByteArray ordner = QFile::encodeName(m_ordner->path());
    QCOMPARE(chmod(ordner.constData(), 0555), 0);
    {
        const OhneRechte einfach;
        QVERIFY(einfach.gelungen());
        QVERIFY(!Postfach::gibAb(m_ordner->path(), {u"/a.daten"_s}, 60000));
    }
    QCOMPARE(chmod(ordner.constData(), 0700), 0);
    QCOMPARE(liegendes(), QStringList());
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
