#include "Dateihueter.h"
#include "Dateiprobe.h"
#include "Stoerung.h"

#include <QSignalSpy>

#include <memory>

using Schritt = Stoerung::Schritt;
using Art = Dateimeldung::Art;

Q_DECLARE_METATYPE(Stoerung::Schritt)

/// Every step on the way from and to the disk fails, once and for good.
class TestDateihueterStoerung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void readingFails_data();
    void readingFails();
    void aLaterReadingFails_data() { readingFails_data(); }
    void aLaterReadingFails();
    void writingFails_data();
    void writingFails();
    void theFirstFileFails_data() { writingFails_data(); }
    void theFirstFileFails();
    void copyingFails_data();
    void copyingFails();
    void theDaysCopyFails_data();
    void theDaysCopyFails();
    void puttingAsideFails_data();
    void puttingAsideFails();
    void aFolderThatKnowsNoSyncIsNoFailure();
    void withoutSecondNamesTheOldFileIsBackToo();
    void whatDoesNotComeBackIsKept_data();
    void whatDoesNotComeBackIsKept();
    void whatDoesNotComeBackKeepsItsCopy_data();
    void whatDoesNotComeBackKeepsItsCopy();

private:
    QList<Art> offen() const
    {
        QList<Art> arten;
        for (const Dateimeldung &meldung : m_hueter->offeneMeldungen()) {
            arten << meldung.art;
        }
        return arten;
    }
    bool schreibe(int nummer) const
    {
        return m_hueter->schreiben(m_probe->path(), speisen(nummer));
    }
    void pruefeOhneReste() const
    {
        QVERIFY(m_probe->dateien().filter(QStringLiteral("schreibe")).isEmpty());
        QVERIFY(m_probe->dateien(QStringLiteral("Sicherungen"))
                    .filter(QStringLiteral("schreibe"))
                    .isEmpty());
    }

    std::unique_ptr<Dateiprobe> m_probe;
    std::unique_ptr<Dateihueter> m_hueter;
};

namespace {

const QStringList nurDieDatei = {QStringLiteral("Eigene.daten")};

void steps(const QList<std::pair<const char *, Schritt>> &schritte)
{
    QTest::addColumn<Schritt>("schritt");
    QTest::addColumn<bool>("einmal");
    for (const auto &[name, schritt] : schritte) {
        QTest::addRow("%s, once", name) << schritt << true;
        QTest::addRow("%s, for good", name) << schritt << false;
    }
}

const QList<std::pair<const char *, Schritt>> schreibschritte = {
    {"making the new file", Schritt::Anlegen},
    {"writing it", Schritt::Schreiben},
    {"its rights", Schritt::Rechte},
    {"syncing it", Schritt::DateiSichern},
    {"opening the folder", Schritt::OrdnerOeffnen},
    {"renaming it", Schritt::Umbenennen},
    {"syncing the folder", Schritt::OrdnerSichern},
};

} // namespace

void TestDateihueterStoerung::init()
{
    m_probe = std::make_unique<Dateiprobe>();
    m_hueter = std::make_unique<Dateihueter>();
}

void TestDateihueterStoerung::readingFails_data()
{
    steps({{"opening", Schritt::Oeffnen}, {"reading", Schritt::Lesen}});
}

/// At the start; what is saved afterwards, while reading works again, destroys nothing.
void TestDateihueterStoerung::readingFails()
{
    QFETCH(Schritt, schritt);
    QFETCH(bool, einmal);
    m_probe->lege(speisebytes(7, 300));
    {
        const Stoerung stoerung(schritt, 0, einmal);
        const auto inhalt = m_hueter->lesen(m_probe->path());
        QCOMPARE(stoerung.ausfaelle() > 0, true);
        QVERIFY(inhalt.zustand == Archivdatei::Zustand::Unlesbar);
        QVERIFY(inhalt.archiv.verzeichnis.isEmpty());
        QCOMPARE(offen(), QList<Art>{Art::NichtLesbar});
        if (!einmal) { // also while it is saved: what can't be read is moved aside
            QVERIFY(schreibe(1));
        }
    }
    QVERIFY(schreibe(2));
    QCOMPARE(m_probe->bytes(), speisebytes(2));
    QCOMPARE(offen(), QList<Art>{Art::Beiseitegelegt});
    QFile kopie(m_hueter->offeneMeldungen()[0].kopie);
    QVERIFY(kopie.open(QIODevice::ReadOnly));
    QCOMPARE(kopie.readAll(), speisebytes(7, 300));
    QCOMPARE(m_probe->dateien().size(), 2);
}

/// A part of the program that is opened later has nothing then, though the others have it all.
void TestDateihueterStoerung::aLaterReadingFails()
{
    QFETCH(Schritt, schritt);
    QFETCH(bool, einmal);
    m_probe->lege(speisebytes(7, 300));
    QCOMPARE(m_hueter->lesen(m_probe->path()).archiv.verzeichnis.size(), 300);
    {
        const Stoerung stoerung(schritt, 0, einmal);
        QVERIFY(m_hueter->lesen(m_probe->path()).archiv.verzeichnis.isEmpty());
        QVERIFY(stoerung.ausfaelle() > 0);
    }
    QCOMPARE(m_hueter->lesen(m_probe->path()).archiv.verzeichnis.size(), 300);
    QVERIFY(schreibe(1));
    QCOMPARE(m_probe->bytes(), speisebytes(1));
    QCOMPARE(offen(), QList<Art>{Art::Beiseitegelegt});
    QFile kopie(m_hueter->offeneMeldungen()[0].kopie);
    QVERIFY(kopie.open(QIODevice::ReadOnly));
    QCOMPARE(kopie.readAll(), speisebytes(7, 300));
}

void TestDateihueterStoerung::writingFails_data()
{
    steps(schreibschritte);
}

void TestDateihueterStoerung::writingFails()
{
    QFETCH(Schritt, schritt);
    QFETCH(bool, einmal);
    QVERIFY(schreibe(1));
    const auto vorher = Dateiprobe::status(m_probe->path());
    QSignalSpy geschrieben(m_hueter.get(), &Dateihueter::geschrieben);
    {
        const Stoerung stoerung(schritt, 0, einmal);
        QVERIFY(!schreibe(2));
        QVERIFY(stoerung.ausfaelle() > 0);
        QCOMPARE(schreibe(3), einmal);
    }
    QCOMPARE(geschrieben.size(), einmal ? 1 : 0);
    QCOMPARE(m_probe->bytes(), speisebytes(einmal ? 3 : 1));
    if (!einmal) {
        QCOMPARE(Dateiprobe::status(m_probe->path()).st_ino, vorher.st_ino);
        QCOMPARE(offen(), QList<Art>{Art::NichtGeschrieben});
    }
    QVERIFY(schreibe(4));
    QCOMPARE(m_probe->bytes(), speisebytes(4));
    QVERIFY(offen().isEmpty());
    QCOMPARE(m_probe->dateien(), nurDieDatei);
}

void TestDateihueterStoerung::theFirstFileFails()
{
    QFETCH(Schritt, schritt);
    QFETCH(bool, einmal);
    {
        const Stoerung stoerung(schritt, 0, einmal);
        QVERIFY(!schreibe(1));
    }
    QVERIFY(m_probe->dateien().isEmpty());
    QCOMPARE(offen(), QList<Art>{Art::NichtGeschrieben});
    QVERIFY(schreibe(2));
    QCOMPARE(m_probe->dateien(), nurDieDatei);
}

void TestDateihueterStoerung::copyingFails_data()
{
    writingFails_data();
}

/// The new file is complete each time; what fails is the copy of a file that nobody has read.
void TestDateihueterStoerung::copyingFails()
{
    QFETCH(Schritt, schritt);
    QFETCH(bool, einmal);
    const bool amOrdner = schritt == Schritt::OrdnerOeffnen || schritt == Schritt::OrdnerSichern ||
                          schritt == Schritt::Umbenennen;
    m_probe->lege(speisebytes(7, 300));
    for (int i = 0; i < 15; ++i) {
        const Stoerung stoerung(schritt, amOrdner ? 0 : 1, einmal);
        QVERIFY(!schreibe(1));
        QVERIFY(stoerung.ausfaelle() > 0);
        QCOMPARE(m_probe->bytes(), speisebytes(7, 300));
        QCOMPARE(m_probe->dateien(), nurDieDatei);
    }
    QCOMPARE(offen(), QList<Art>{Art::NichtGeschrieben});
    QVERIFY(schreibe(2));
    QCOMPARE(m_probe->bytes(), speisebytes(2));
    QCOMPARE(m_probe->dateien().size(), 2);
    QCOMPARE(offen(), QList<Art>{Art::Beiseitegelegt});
}

void TestDateihueterStoerung::theDaysCopyFails_data()
{
    writingFails_data();
}

/// Today's change is saved all the same when the copy of yesterday's state alone fails.
void TestDateihueterStoerung::theDaysCopyFails()
{
    QFETCH(Schritt, schritt);
    QFETCH(bool, einmal);
    QVERIFY(schreibe(1));
    m_probe->datiere(QDateTime::currentDateTime().addDays(-1));
    const bool amOrdner = schritt == Schritt::OrdnerOeffnen || schritt == Schritt::OrdnerSichern ||
                          schritt == Schritt::Umbenennen;
    {
        const Stoerung stoerung(schritt, amOrdner ? 0 : 1, einmal);
        // For good, the steps in the folder fail for the new file too.
        QCOMPARE(schreibe(2), einmal || !amOrdner);
        QVERIFY(stoerung.ausfaelle() > 0);
    }
    pruefeOhneReste();
    QCOMPARE(m_probe->bytes(), speisebytes(einmal || !amOrdner ? 2 : 1));
    QVERIFY(m_hueter->sicherungen(m_probe->path()).isEmpty());
    QVERIFY(schreibe(3));
    QCOMPARE(m_probe->bytes(), speisebytes(3));
    QVERIFY(offen().isEmpty());
}

void TestDateihueterStoerung::puttingAsideFails_data()
{
    QTest::addColumn<Schritt>("schritt");
    QTest::addColumn<int>("heile");
    QTest::newRow("moving the old one") << Schritt::Umbenennen << 0;
    QTest::newRow("renaming the new one") << Schritt::Umbenennen << 1;
    QTest::newRow("opening the folder") << Schritt::OrdnerOeffnen << 0;
    QTest::newRow("syncing the folder") << Schritt::OrdnerSichern << 0;
}

/// A file that can't be read is moved aside; when the new one doesn't come, it is back.
void TestDateihueterStoerung::puttingAsideFails()
{
    QFETCH(Schritt, schritt);
    QFETCH(int, heile);
    QVERIFY(schreibe(7));
    QVERIFY(QFile::resize(m_probe->path(), 64 * 1024 * 1024 + 1)); // too large to be read
    {
        const Stoerung stoerung(schritt, heile, true);
        QVERIFY(!schreibe(1));
        QCOMPARE(stoerung.ausfaelle(), 1);
    }
    QCOMPARE(m_probe->dateien(), nurDieDatei);
    QCOMPARE(QFileInfo(m_probe->path()).size(), 64 * 1024 * 1024 + 1);
    QVERIFY(schreibe(1));
    QCOMPARE(m_probe->dateien().size(), 2);
}

void TestDateihueterStoerung::aFolderThatKnowsNoSyncIsNoFailure()
{
    const Stoerung stoerung(Schritt::OrdnerSichern, 0, false, EINVAL);
    QVERIFY(schreibe(1));
    QVERIFY(stoerung.ausfaelle() > 0);
    QCOMPARE(m_probe->bytes(), speisebytes(1));
}

/// As on a stick, or where the file is another user's.
void TestDateihueterStoerung::withoutSecondNamesTheOldFileIsBackToo()
{
    QVERIFY(schreibe(1));
    const auto vorher = Dateiprobe::status(m_probe->path());
    const Stoerung ohneNamen(Schritt::Verknuepfen, 0, false, EPERM);
    {
        const Stoerung stoerung(Schritt::OrdnerSichern);
        QVERIFY(!schreibe(2));
        QCOMPARE(stoerung.ausfaelle(), 1);
    }
    QCOMPARE(Dateiprobe::status(m_probe->path()).st_ino, vorher.st_ino);
    QCOMPARE(m_probe->bytes(), speisebytes(1));
    QCOMPARE(m_probe->dateien(), nurDieDatei);
    QVERIFY(schreibe(3));
    QCOMPARE(m_probe->bytes(), speisebytes(3));
    QCOMPARE(m_probe->dateien(), nurDieDatei);
}

void TestDateihueterStoerung::whatDoesNotComeBackIsKept_data()
{
    QTest::addColumn<bool>("zweiNamen");
    QTest::addColumn<int>("heile");
    QTest::newRow("the old file had a second name") << true << 1;
    QTest::newRow("the two changed names") << false << 0;
}

/// The new file is there, but it was said that it isn't: the old one stays within reach.
void TestDateihueterStoerung::whatDoesNotComeBackIsKept()
{
    QFETCH(bool, zweiNamen);
    QFETCH(int, heile);
    QVERIFY(m_hueter->schreiben(m_probe->path(), speisen(7, 300)));
    m_probe->datiere(QDateTime(QDate(2026, 11, 20), QTime(14, 3, 5)));
    m_hueter->setUhr([] { return QDateTime(QDate(2026, 11, 20), QTime(15, 0)); });
    {
        const Stoerung ohneNamen(Schritt::Verknuepfen, zweiNamen ? 1000 : 0, false, EPERM);
        const Stoerung sichern(Schritt::OrdnerSichern);
        const Stoerung zurueck(Schritt::Umbenennen, heile);
        QVERIFY(!schreibe(1));
        QCOMPARE(sichern.ausfaelle(), 1);
        QCOMPARE(zurueck.ausfaelle(), 1);
    }
    QCOMPARE(m_probe->bytes(), speisebytes(1));
    QCOMPARE(m_probe->dateien().size(), 2);
    Dateihueter naechsterStart;
    naechsterStart.lesen(m_probe->path());
    QCOMPARE(m_probe->dateien().size(), 2);
    QCOMPARE(m_probe->bytes(QStringLiteral("Eigene 2026-11-20 14.03.05.daten")),
             speisebytes(7, 300));
}

void TestDateihueterStoerung::whatDoesNotComeBackKeepsItsCopy_data()
{
    QTest::addColumn<QList<Schritt>>("wegeZurueck");
    QTest::addColumn<int>("heile");
    QTest::newRow("renaming it back fails") << QList<Schritt>{Schritt::Umbenennen} << 2;
    QTest::newRow("the disk knows no way back")
        << QList<Schritt>{Schritt::Verknuepfen, Schritt::Tauschen} << 0;
}

/// Nobody has read the file: its copy may be all that there is of it.
void TestDateihueterStoerung::whatDoesNotComeBackKeepsItsCopy()
{
    QFETCH(QList<Schritt>, wegeZurueck);
    QFETCH(int, heile);
    m_probe->lege(speisebytes(7, 300));
    m_hueter->setUhr([] { return QDateTime(QDate(2026, 11, 20), QTime(14, 3, 5)); });
    {
        const Stoerung sichern(Schritt::OrdnerSichern, 1);
        const Stoerung einer(wegeZurueck.constFirst(), heile, false, EPERM);
        const Stoerung anderer(wegeZurueck.constLast(), heile, false, EPERM);
        QVERIFY(!schreibe(1));
        QCOMPARE(sichern.ausfaelle(), 1);
    }
    QCOMPARE(m_probe->bytes(), speisebytes(1));
    QCOMPARE(m_probe->bytes(QStringLiteral("Eigene 2026-11-20 14.03.05.daten")),
             speisebytes(7, 300));
}

QTEST_GUILESS_MAIN(TestDateihueterStoerung)
#include "TestDateihueterStoerung.moc"
