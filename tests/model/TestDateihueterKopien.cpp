#include "Dateihueter.h"
#include "Dateiprobe.h"
#include "Hindernisse.h"

#include <memory>

/// What is kept of a file before it is overwritten.
class TestDateihueterKopien : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void whatTheProgramKnowsNeedsNoCopy();
    void unreadableAtTheStartReadableLater_data();
    void unreadableAtTheStartReadableLater();
    void whatIsUnreadableIsMovedAside();
    void whatCantBeMovedAsideStays();
    void aLaterReaderOfAnotherStateMakesItNotKnown();
    void whatALaterReaderSawDifferentlyIsKept_data();
    void whatALaterReaderSawDifferentlyIsKept();
    void whatCameWithoutBeingReadIsKept();
    void replacedFromOutsideWhileRunning();
    void aTouchedFileNeedsNoCopy();
    void aDamagedFileIsKeptBesideTheNewOne_data();
    void aDamagedFileIsKeptBesideTheNewOne();
    void aCopyIsNeverOverwritten();
    void theSameBytesAreKeptOnce();
    void tenCopiesStay();
    void theLargestCopyStays();
    void aCopyOfAClockThatGoesWrongStays();
    void otherNamesAreNoCopies();
    void copiesLieWhereTheLinkLeads();
    void withoutRoomForACopyTheFileStays();
    void aHugeFileIsMovedAside();

private:
    void lese() const { m_hueter->lesen(m_probe->path()); }
    /// Writes a store, at the moment that it is.
    bool schreibe(int nummer) const
    {
        const bool gelungen = m_hueter->schreiben(m_probe->path(), speisen(nummer));
        if (gelungen) {
            m_probe->datiere(m_jetzt);
        }
        return gelungen;
    }
    /// A program that starts anew on the same files.
    void starte()
    {
        m_hueter = std::make_unique<Dateihueter>();
        m_hueter->setUhr([this] { return m_jetzt; });
    }

    std::unique_ptr<Dateiprobe> m_probe;
    std::unique_ptr<Dateihueter> m_hueter;
    QDateTime m_jetzt;
};

namespace {

const QDateTime moment(QDate(2026, 11, 20), QTime(14, 3, 5));
const QString kopiename = QStringLiteral("Eigene 2026-11-20 14.03.05.daten");
const QStringList nurDieDatei = {QStringLiteral("Eigene.daten")};

} // namespace

void TestDateihueterKopien::init()
{
    m_probe = std::make_unique<Dateiprobe>();
    m_jetzt = moment;
    starte();
}

void TestDateihueterKopien::whatTheProgramKnowsNeedsNoCopy()
{
    lese(); // nothing is there yet
    for (int nummer = 1; nummer < 20; ++nummer) {
        QVERIFY(schreibe(nummer));
        if (nummer % 5 == 0) {
            starte();
            lese();
        }
    }
    QCOMPARE(m_probe->bytes(), speisebytes(19));
    QCOMPARE(m_probe->dateien(), nurDieDatei);
}

void TestDateihueterKopien::unreadableAtTheStartReadableLater_data()
{
    QTest::addColumn<bool>("nochEinLeser");
    QTest::newRow("the main window saves") << false;
    QTest::newRow("a plan that was opened later could read it") << true;
}

void TestDateihueterKopien::unreadableAtTheStartReadableLater()
{
    QFETCH(bool, nochEinLeser);
    m_probe->lege(speisebytes(7, 300));
    m_probe->gibRechte(0, nurDieDatei[0]);
    m_probe->gibRechte(0777);
    {
        const OhneRechte einfach;
        QVERIFY(einfach.gelungen());
        QVERIFY(m_hueter->lesen(m_probe->path()).archiv.verzeichnis.isEmpty());
    }
    m_probe->gibRechte(0600, nurDieDatei[0]);
    if (nochEinLeser) {
        QCOMPARE(m_hueter->lesen(m_probe->path()).archiv.verzeichnis.size(), 300);
    }
    QVERIFY(schreibe(1));
    QCOMPARE(m_probe->bytes(), speisebytes(1));
    QCOMPARE(m_probe->bytes(kopiename), speisebytes(7, 300));
    QCOMPARE(m_probe->rechte(kopiename), mode_t(0600));
    QVERIFY(schreibe(2));
    QCOMPARE(m_probe->dateien().size(), 2);
}

void TestDateihueterKopien::whatIsUnreadableIsMovedAside()
{
    m_probe->lege(speisebytes(7, 300));
    m_probe->gibRechte(0, nurDieDatei[0]);
    m_probe->gibRechte(0777);
    {
        const OhneRechte einfach;
        QVERIFY(einfach.gelungen());
        lese();
        QVERIFY(schreibe(1));
        QCOMPARE(m_probe->bytes(), speisebytes(1));
        QVERIFY(schreibe(2));
        QCOMPARE(m_probe->bytes(), speisebytes(2));
    }
    m_probe->gibRechte(0600, kopiename);
    QCOMPARE(m_probe->bytes(kopiename), speisebytes(7, 300));
    QCOMPARE(m_probe->rechte(), mode_t(0600));
    QCOMPARE(m_probe->dateien().size(), 2);
}

void TestDateihueterKopien::whatCantBeMovedAsideStays()
{
    m_probe->lege(speisebytes(7));
    m_probe->gibRechte(0, nurDieDatei[0]);
    m_probe->gibRechte(0555);
    {
        const OhneRechte einfach;
        QVERIFY(einfach.gelungen());
        lese();
        QVERIFY(!schreibe(1));
    }
    m_probe->gibRechte(0700);
    m_probe->gibRechte(0600, nurDieDatei[0]);
    QCOMPARE(m_probe->bytes(), speisebytes(7));
    QCOMPARE(m_probe->dateien(), nurDieDatei);
}

/// What the main window read at the start is all that it holds; that a plan read more doesn't help.
void TestDateihueterKopien::aLaterReaderOfAnotherStateMakesItNotKnown()
{
    QVERIFY(schreibe(1));
    starte();
    lese();
    m_probe->lege(speisebytes(7, 300));
    lese();
    QVERIFY(schreibe(2));
    QCOMPARE(m_probe->bytes(kopiename), speisebytes(7, 300));
}

void TestDateihueterKopien::whatALaterReaderSawDifferentlyIsKept_data()
{
    QTest::addColumn<QString>("dazwischen");
    QTest::newRow("another store") << QStringLiteral("store");
    QTest::newRow("a damaged one") << QStringLiteral("damaged");
    QTest::newRow("no file") << QStringLiteral("missing");
}

/// For a while something else was at the path, as when a disk comes and goes.
void TestDateihueterKopien::whatALaterReaderSawDifferentlyIsKept()
{
    QFETCH(QString, dazwischen);
    m_probe->lege(speisebytes(7, 300));
    lese();
    if (dazwischen == QLatin1String("missing")) {
        QVERIFY(QFile::remove(m_probe->path()));
    } else {
        m_probe->lege(dazwischen == QLatin1String("store") ? speisebytes(8) : "nothing of ours");
    }
    lese();
    m_probe->lege(speisebytes(7, 300));
    QVERIFY(schreibe(1));
    QCOMPARE(m_probe->bytes(kopiename), speisebytes(7, 300));
}

void TestDateihueterKopien::whatCameWithoutBeingReadIsKept()
{
    lese();
    m_probe->lege(speisebytes(7, 300)); // the folder was not mounted when it was looked at
    QVERIFY(schreibe(1));
    QCOMPARE(m_probe->bytes(kopiename), speisebytes(7, 300));
}

void TestDateihueterKopien::replacedFromOutsideWhileRunning()
{
    QVERIFY(schreibe(1));
    m_probe->lege(speisebytes(7, 300));
    QVERIFY(schreibe(2));
    QCOMPARE(m_probe->bytes(kopiename), speisebytes(7, 300));
    m_probe->lege("nothing of ours");
    m_jetzt = m_jetzt.addSecs(60);
    m_hueter->halte(m_probe->path(), speisen(3));
    QCOMPARE(m_probe->bytes(), speisebytes(3));
    QCOMPARE(m_probe->bytes(QStringLiteral("Eigene 2026-11-20 14.04.05.daten")),
             QByteArray("nothing of ours"));
    QCOMPARE(m_probe->dateien().size(), 3);
}

void TestDateihueterKopien::aTouchedFileNeedsNoCopy()
{
    QVERIFY(schreibe(1));
    m_probe->lege(speisebytes(1));
    QVERIFY(schreibe(2));
    m_probe->lege(speisebytes(3)); // what is to be written anyway
    QVERIFY(schreibe(3));
    QVERIFY(schreibe(4));
    QCOMPARE(m_probe->dateien().filter(QStringLiteral("14.03")), QStringList());
}

void TestDateihueterKopien::aDamagedFileIsKeptBesideTheNewOne_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("kopie");
    const auto row = [](const char *wie, const char *name, const char *kopie) {
        QTest::newRow(wie) << QString::fromUtf8(name) << QString::fromUtf8(kopie);
    };
    row("own foods", "MahlbergCustomnutr.daten", "MahlbergCustomnutr 2026-11-20 14.03.05.daten");
    row("two dots", "a.b.daten", "a.b 2026-11-20 14.03.05.daten");
    row("no ending", "Eigene", "Eigene 2026-11-20 14.03.05");
}

void TestDateihueterKopien::aDamagedFileIsKeptBesideTheNewOne()
{
    QFETCH(QString, name);
    QFETCH(QString, kopie);
    const QByteArray rest = speisebytes(1).chopped(1);
    m_probe->lege(rest, name);
    for (const int nummer : {1, 2, 3}) { // only the first time makes a copy
        m_hueter->lesen(m_probe->path(name));
        QVERIFY(m_hueter->schreiben(m_probe->path(name), speisen(nummer)));
        QCOMPARE(m_probe->bytes(name), speisebytes(nummer));
        m_jetzt = m_jetzt.addSecs(60);
    }
    QCOMPARE(m_probe->bytes(kopie), rest);
    QCOMPARE(m_probe->rechte(kopie), mode_t(0600));
    QCOMPARE(m_probe->dateien().filter(QStringLiteral("2026")).size(), 1);
}

void TestDateihueterKopien::aCopyIsNeverOverwritten()
{
    for (const char *stueck : {"erste", "zweite", "dritte"}) {
        m_probe->lege(stueck);
        QVERIFY(schreibe(1));
    }
    QCOMPARE(m_probe->bytes(kopiename), QByteArray("erste"));
    QCOMPARE(m_probe->bytes(QStringLiteral("Eigene 2026-11-20 14.03.05 (2).daten")),
             QByteArray("zweite"));
    QCOMPARE(m_probe->bytes(QStringLiteral("Eigene 2026-11-20 14.03.05 (3).daten")),
             QByteArray("dritte"));
    QCOMPARE(m_probe->dateien().size(), 4);
}

void TestDateihueterKopien::theSameBytesAreKeptOnce()
{
    for (int i = 0; i < 40; ++i) {
        m_probe->lege(i % 2 == 0 ? "zerstört" : "zerstoert");
        QVERIFY(schreibe(1));
        m_jetzt = m_jetzt.addSecs(60);
    }
    QCOMPARE(m_probe->dateien().size(), 3);
}

void TestDateihueterKopien::tenCopiesStay()
{
    for (int i = 1; i <= 15; ++i) {
        m_probe->lege("Rest " + QByteArray::number(100 + i));
        QVERIFY(schreibe(i));
        m_jetzt = m_jetzt.addSecs(i < 12 ? 60 : 0); // the last ones within one second
    }
    QStringList kopien = m_probe->dateien();
    kopien.removeOne(nurDieDatei[0]);
    QCOMPARE(kopien.size(), 10);
    QList<QByteArray> inhalte;
    for (const QString &kopie : std::as_const(kopien)) {
        inhalte << m_probe->bytes(kopie);
    }
    // The first one is the largest, there being none larger.
    for (const int i : {1, 7, 8, 9, 10, 11, 12, 13, 14, 15}) {
        QVERIFY(inhalte.contains("Rest " + QByteArray::number(100 + i)));
    }
}

/// 300 foods that were put aside don't go because of what trouble with the disk leaves afterwards.
void TestDateihueterKopien::theLargestCopyStays()
{
    for (int i = 0; i < 40; ++i) {
        m_probe->lege(i == 5 ? speisebytes(7, 300) : "Rest " + QByteArray::number(i));
        QVERIFY(schreibe(i));
        m_jetzt = m_jetzt.addSecs(60);
    }
    QCOMPARE(m_probe->bytes(QStringLiteral("Eigene 2026-11-20 14.08.05.daten")),
             speisebytes(7, 300));
    QCOMPARE(m_probe->dateien().size(), 11);
}

void TestDateihueterKopien::aCopyOfAClockThatGoesWrongStays()
{
    for (int i = 0; i < 10; ++i) {
        m_probe->lege("Rest " + QByteArray::number(i));
        QVERIFY(schreibe(i));
        m_jetzt = m_jetzt.addSecs(60);
    }
    m_jetzt = QDateTime(QDate(1970, 1, 1), QTime(0, 0));
    m_probe->lege("Rest");
    QVERIFY(schreibe(1));
    QCOMPARE(m_probe->bytes(QStringLiteral("Eigene 1970-01-01 00.00.00.daten")),
             QByteArray("Rest"));
    QCOMPARE(m_probe->dateien().size(), 11);
}

void TestDateihueterKopien::otherNamesAreNoCopies()
{
    const QStringList namen = {
        QStringLiteral("Eigene 2026-11-20.daten"),
        QStringLiteral("Eigene 2026-11-20 14.03.daten"),
        QStringLiteral("Eigene 2026-11-20 14.03.05 Kopie.daten"),
        QStringLiteral("Eigene 2026-11-20 14.03.05.daten.alt"),
        QStringLiteral("Meine Eigene 2026-11-20 14.03.05.daten"),
        QStringLiteral("EigeneX2026-11-20 14.03.05.daten"),
    };
    for (const QString &name : namen) {
        m_probe->lege("von Hand", name);
    }
    for (int i = 0; i < 15; ++i) {
        m_probe->lege("Rest " + QByteArray::number(i));
        QVERIFY(schreibe(i));
    }
    for (const QString &name : namen) {
        QCOMPARE(m_probe->bytes(name), QByteArray("von Hand"));
    }
    QCOMPARE(m_probe->dateien().size(), 1 + 10 + namen.size());
}

void TestDateihueterKopien::copiesLieWhereTheLinkLeads()
{
    QVERIFY(QDir(m_probe->path(QStringLiteral("."))).mkdir(QStringLiteral("dort")));
    const QString ziel = QStringLiteral("dort/Foods.daten");
    m_probe->lege("zerstört", ziel);
    QVERIFY(QFile::link(m_probe->path(ziel), m_probe->path()));
    QVERIFY(schreibe(1));
    QVERIFY(QFileInfo(m_probe->path()).isSymLink());
    QCOMPARE(m_probe->bytes(ziel), speisebytes(1));
    QCOMPARE(m_probe->bytes(QStringLiteral("dort/Foods 2026-11-20 14.03.05.daten")),
             QByteArray("zerstört"));
}

void TestDateihueterKopien::withoutRoomForACopyTheFileStays()
{
    // The new file has room, the copy of the large one that nobody has read has not.
    for (const QByteArray &dort : {speisebytes(7, 300), speisebytes(7, 300).chopped(1)}) {
        m_probe->lege(dort);
        {
            const VolleFestplatte voll(10'000);
            QVERIFY(!schreibe(1));
        }
        QCOMPARE(m_probe->bytes(), dort);
        QCOMPARE(m_probe->dateien(), nurDieDatei);
    }
    QVERIFY(schreibe(1));
    QCOMPARE(m_probe->bytes(kopiename), speisebytes(7, 300).chopped(1));
}

void TestDateihueterKopien::aHugeFileIsMovedAside()
{
    m_probe->lege(speisebytes(7));
    constexpr qint64 zuGross = qint64(64) * 1024 * 1024 + 1;
    QVERIFY(QFile::resize(m_probe->path(), zuGross));
    lese();
    QVERIFY(schreibe(1));
    QCOMPARE(m_probe->bytes(), speisebytes(1));
    QCOMPARE(QFileInfo(m_probe->path(kopiename)).size(), zuGross);
}

QTEST_GUILESS_MAIN(TestDateihueterKopien)
#include "TestDateihueterKopien.moc"
