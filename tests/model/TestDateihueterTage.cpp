#include "Dateihueter.h"
#include "Dateiprobe.h"
#include "Hindernisse.h"

#include <memory>

/// The copies of the last days on which a file was changed.
class TestDateihueterTage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theFirstChangeOfADayKeepsTheDayBefore();
    void aDayIsKeptAsItEnded();
    void theLastTenDaysStay();
    void eachFileHasItsOwn();
    void aDayWithoutAChangeHasNoCopy();
    void ofOneDayTheLaterStateStays();
    void aClockThatWentWrongCostsNoDay();
    void copiesAreForTheUserAlone();
    void aCopyThatFailsHindersNothing_data();
    void aCopyThatFailsHindersNothing();
    void otherFilesAreNoCopies();

private:
    /// A program that is started on a day, reads the file and changes it some times.
    void arbeite(const QDate &tag, const QList<int> &nummern)
    {
        Dateihueter hueter;
        QDateTime jetzt(tag, QTime(9, 0));
        hueter.setUhr([&jetzt] { return jetzt; });
        hueter.lesen(m_probe->path());
        for (const int nummer : nummern) {
            jetzt = jetzt.addSecs(600);
            QVERIFY(hueter.schreiben(m_probe->path(), speisen(nummer)));
            m_probe->datiere(jetzt);
        }
    }
    QByteArray tagesstand(const char *tag) const
    {
        return m_probe->bytes(
            QStringLiteral("Sicherungen/Eigene %1.daten").arg(QLatin1String(tag)));
    }

    std::unique_ptr<Dateiprobe> m_probe;
};

namespace {

const QDate erster(2026, 11, 1);
const QString sicherungen = QStringLiteral("Sicherungen");

} // namespace

void TestDateihueterTage::init()
{
    m_probe = std::make_unique<Dateiprobe>();
}

void TestDateihueterTage::theFirstChangeOfADayKeepsTheDayBefore()
{
    arbeite(erster, {1});
    QCOMPARE(m_probe->dateien(), QStringList(QStringLiteral("Eigene.daten")));
    arbeite(erster.addDays(1), {2});
    QCOMPARE(tagesstand("2026-11-01"), speisebytes(1));
    QCOMPARE(m_probe->bytes(), speisebytes(2));
    const auto tage = Dateihueter().sicherungen(m_probe->path());
    QCOMPARE(tage.size(), 1);
    QCOMPARE(tage[0].tag, erster);
    QCOMPARE(tage[0].path, m_probe->path(QStringLiteral("Sicherungen/Eigene 2026-11-01.daten")));
}

void TestDateihueterTage::aDayIsKeptAsItEnded()
{
    arbeite(erster, {1, 2, 3});
    arbeite(erster.addDays(1), {4, 5});
    arbeite(erster.addDays(1), {6});
    QCOMPARE(tagesstand("2026-11-01"), speisebytes(3));
    arbeite(erster.addDays(2), {7, 8});
    QCOMPARE(tagesstand("2026-11-01"), speisebytes(3));
    QCOMPARE(tagesstand("2026-11-02"), speisebytes(6));
    QCOMPARE(m_probe->dateien(sicherungen).size(), 2);
}

void TestDateihueterTage::theLastTenDaysStay()
{
    for (int tag = 0; tag < 15; ++tag) {
        arbeite(erster.addDays(qint64(2) * tag), {tag});
    }
    const auto tage = Dateihueter().sicherungen(m_probe->path());
    QCOMPARE(tage.size(), 10);
    for (int i = 0; i < 10; ++i) {
        QCOMPARE(tage[i].tag, erster.addDays(qint64(2) * (13 - i)));
        QFile kopie(tage[i].path);
        QVERIFY(kopie.open(QIODevice::ReadOnly));
        QCOMPARE(kopie.readAll(), speisebytes(13 - i));
    }
    QCOMPARE(m_probe->dateien(sicherungen).size(), 10);
}

void TestDateihueterTage::eachFileHasItsOwn()
{
    const QString plan = m_probe->path(QStringLiteral("Eigene Plan.daten"));
    for (int tag = 0; tag < 12; ++tag) {
        arbeite(erster.addDays(tag), {tag});
        Dateihueter hueter;
        const QDateTime jetzt(erster.addDays(tag), QTime(9, 0));
        hueter.setUhr([jetzt] { return QDateTime(jetzt); });
        hueter.lesen(plan);
        QVERIFY(hueter.schreiben(plan, speisen(100 + tag)));
        m_probe->datiere(jetzt, QStringLiteral("Eigene Plan.daten"));
    }
    QCOMPARE(Dateihueter().sicherungen(m_probe->path()).size(), 10);
    QCOMPARE(Dateihueter().sicherungen(plan).size(), 10);
    QCOMPARE(m_probe->dateien(sicherungen).size(), 20);
}

void TestDateihueterTage::aDayWithoutAChangeHasNoCopy()
{
    arbeite(erster, {1});
    arbeite(erster.addDays(1), {1, 1});
    arbeite(erster.addDays(2), {});
    QVERIFY(!m_probe->dateien().contains(sicherungen) ||
            Dateihueter().sicherungen(m_probe->path()).size() == 1);
    QVERIFY(Dateihueter().sicherungen(m_probe->path(QStringLiteral("fehlt.daten"))).isEmpty());
}

/// A state that was brought back with its old date doesn't take the place of how that day ended.
void TestDateihueterTage::ofOneDayTheLaterStateStays()
{
    arbeite(erster, {1, 2});
    arbeite(erster.addDays(1), {3});
    QCOMPARE(tagesstand("2026-11-01"), speisebytes(2));
    m_probe->lege(speisebytes(1));
    m_probe->datiere(QDateTime(erster, QTime(9, 10)));
    arbeite(erster.addDays(2), {4});
    QCOMPARE(tagesstand("2026-11-01"), speisebytes(2));
    m_probe->lege(speisebytes(5));
    m_probe->datiere(QDateTime(erster, QTime(23, 0)));
    arbeite(erster.addDays(3), {6});
    QCOMPARE(tagesstand("2026-11-01"), speisebytes(5));
}

void TestDateihueterTage::aClockThatWentWrongCostsNoDay()
{
    for (int tag = 0; tag < 11; ++tag) {
        arbeite(erster.addDays(tag), {tag});
    }
    arbeite(QDate(2001, 1, 1), {50}); // keeps the eleventh day
    QCOMPARE(tagesstand("2026-11-11"), speisebytes(10));
    arbeite(erster.addDays(12), {60}); // keeps what the clock called 2001
    QCOMPARE(tagesstand("2001-01-01"), speisebytes(50));
    QCOMPARE(Dateihueter().sicherungen(m_probe->path()).size(), 10);
}

void TestDateihueterTage::copiesAreForTheUserAlone()
{
    arbeite(erster, {1});
    m_probe->gibRechte(0644, QStringLiteral("Eigene.daten"));
    arbeite(erster.addDays(1), {2});
    QCOMPARE(m_probe->rechte(sicherungen), mode_t(0700));
    QCOMPARE(m_probe->rechte(QStringLiteral("Sicherungen/Eigene 2026-11-01.daten")), mode_t(0600));
    QCOMPARE(m_probe->rechte(), mode_t(0600));
}

void TestDateihueterTage::aCopyThatFailsHindersNothing_data()
{
    QTest::addColumn<QString>("hindernis");
    QTest::newRow("a file is in the folder's place") << QStringLiteral("file");
    QTest::newRow("nothing can be made in the folder") << QStringLiteral("rights");
    QTest::newRow("a folder is in the copy's place") << QStringLiteral("folder");
    QTest::newRow("the disk has room for the new file only") << QStringLiteral("full");
}

void TestDateihueterTage::aCopyThatFailsHindersNothing()
{
    QFETCH(QString, hindernis);
    const QDir ordner(m_probe->path(QStringLiteral(".")));
    m_probe->lege(speisebytes(1, 300));
    m_probe->datiere(QDateTime(erster, QTime(9, 0)));
    m_probe->gibRechte(0777);
    m_probe->gibRechte(0644, QStringLiteral("Eigene.daten"));
    std::unique_ptr<VolleFestplatte> voll;
    if (hindernis == QLatin1String("file")) {
        m_probe->lege("im Weg", sicherungen);
    } else if (hindernis == QLatin1String("rights")) {
        QVERIFY(ordner.mkdir(sicherungen));
        m_probe->gibRechte(0555, sicherungen);
    } else if (hindernis == QLatin1String("folder")) {
        QVERIFY(ordner.mkpath(QStringLiteral("Sicherungen/Eigene 2026-11-01.daten")));
        m_probe->gibRechte(0777, sicherungen);
    } else {
        voll = std::make_unique<VolleFestplatte>(10'000);
    }
    {
        const OhneRechte einfach;
        QVERIFY(einfach.gelungen());
        Dateihueter hueter;
        hueter.setUhr([] { return QDateTime(erster.addDays(1), QTime(9, 0)); });
        hueter.lesen(m_probe->path());
        QVERIFY(hueter.schreiben(m_probe->path(), speisen(2)));
        QVERIFY(hueter.offeneMeldungen().isEmpty());
    }
    voll.reset();
    QCOMPARE(m_probe->bytes(), speisebytes(2));
    QVERIFY(tagesstand("2026-11-01").isEmpty());
    QVERIFY(m_probe->dateien().filter(QStringLiteral("schreibe")).isEmpty());
}

void TestDateihueterTage::otherFilesAreNoCopies()
{
    QVERIFY(QDir(m_probe->path(QStringLiteral("."))).mkdir(sicherungen));
    const QStringList namen = {
        QStringLiteral("Eigene 2026-13-01.daten"), QStringLiteral("Eigene 2026-11-01.daten.alt"),
        QStringLiteral("Eigene 2026-11-01 (2).daten"), QStringLiteral("Eigene.daten"),
        QStringLiteral("Andere 2026-11-01.daten")};
    for (const QString &name : namen) {
        m_probe->lege("von Hand", QStringLiteral("Sicherungen/") + name);
    }
    QVERIFY(Dateihueter().sicherungen(m_probe->path()).isEmpty());
    for (int tag = 0; tag < 15; ++tag) {
        arbeite(erster.addDays(100 + tag), {tag});
    }
    for (const QString &name : namen) {
        QCOMPARE(m_probe->bytes(QStringLiteral("Sicherungen/") + name), QByteArray("von Hand"));
    }
    QCOMPARE(Dateihueter().sicherungen(m_probe->path()).size(), 10);
}

QTEST_GUILESS_MAIN(TestDateihueterTage)
#include "TestDateihueterTage.moc"
