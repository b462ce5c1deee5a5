#include "Dateihueter.h"
#include "Dateiprobe.h"

#include <memory>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

/// What writers that were killed have left lying about.
class TestDateireste : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theyAreRemovedAtTheStart_data();
    void theyAreRemovedAtTheStart();
    void whatTheUserMadeStays_data();
    void whatTheUserMadeStays();
    void whatIsJustBeingWrittenStays_data();
    void whatIsJustBeingWrittenStays();
    void earlierVersionsAreGivenAMinute();
    void aWholeStoreIsKept_data();
    void aWholeStoreIsKept();
    void whatTheFileHoldsNeedsNoCopy_data() { aWholeStoreIsKept_data(); }
    void whatTheFileHoldsNeedsNoCopy();
    void whatCantBeReadStays();
    void onlyTheStartCleansUp();
    void foldersAndLinksStay();
    void theyAreRemovedWhereTheLinkLeads();

private:
    void lege(const QString &name, int sekundenAlt = 3600) const
    {
        m_probe->lege("Rest", name);
        m_probe->datiere(QDateTime::currentDateTime().addSecs(-sekundenAlt), name);
    }
    void starte() const { Dateihueter().lesen(m_probe->path()); }
    bool istDa(const QString &name) const
    {
        const QFileInfo info(m_probe->path(name));
        return info.exists() || info.isSymLink();
    }

    std::unique_ptr<Dateiprobe> m_probe;
};

void TestDateireste::init()
{
    m_probe = std::make_unique<Dateiprobe>();
    m_probe->lege(speisebytes(1));
    QVERIFY(QDir(m_probe->path(QStringLiteral("."))).mkdir(QStringLiteral("Sicherungen")));
}

void TestDateireste::theyAreRemovedAtTheStart_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("a new file") << QStringLiteral("Eigene.daten.schreibe-aB3xYz");
    QTest::newRow("an old one") << QStringLiteral("Eigene.daten.schreibe-aB3xYz.vorher");
    QTest::newRow("a copy beside")
        << QStringLiteral("Eigene 2026-11-20 14.03.05.daten.schreibe-000000");
    QTest::newRow("a day's copy") << QStringLiteral(
        "Sicherungen/Eigene 2026-11-20.daten.schreibe-aaaaaa");
    QTest::newRow("a new file of an earlier version") << QStringLiteral("Eigene.daten.qWeRtZ");
    QTest::newRow("another one") << QStringLiteral("Eigene.daten.abcdeF");
}

void TestDateireste::theyAreRemovedAtTheStart()
{
    QFETCH(QString, name);
    lege(name);
    starte();
    QVERIFY(!istDa(name));
    QCOMPARE(m_probe->bytes(), speisebytes(1));
}

void TestDateireste::whatTheUserMadeStays_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"Eigene.daten.backup", "Eigene.daten.Backup", "Eigene.daten.SICHER",
          "Eigene.daten.kopie1", "Eigene.daten.alt", "Eigene.daten.aBcDeFg", "EigeneXdaten.aBcDeF",
          "Andere.daten.aBcDeF", "Andere.daten.schreibe-aBcDeF", "Eigene.daten.schreibe-kurz",
          "Eigene.daten.schreibe-zulang1", "Eigene 2026-11-20 14.03.05.daten",
          "Sicherungen/Eigene 2026-11-20.daten", "Sicherungen/Eigene 2026-11-20.daten.aBcDeF"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void TestDateireste::whatTheUserMadeStays()
{
    QFETCH(QString, name);
    lege(name);
    starte();
    QVERIFY(istDa(name));
}

void TestDateireste::whatIsJustBeingWrittenStays_data()
{
    QTest::addColumn<QString>("rest");
    QTest::addColumn<QString>("gesperrt");
    const QString neues = QStringLiteral("Eigene.daten.schreibe-aB3xYz");
    QTest::newRow("the new file") << neues << neues;
    QTest::newRow("the old one before the change") << neues + QStringLiteral(".vorher") << neues;
    QTest::newRow("the old one after the change")
        << neues + QStringLiteral(".vorher") << QStringLiteral("Eigene.daten");
}

void TestDateireste::whatIsJustBeingWrittenStays()
{
    QFETCH(QString, rest);
    QFETCH(QString, gesperrt);
    lege(rest);
    if (!istDa(gesperrt)) {
        lege(gesperrt);
    }
    const int datei = open(QFile::encodeName(m_probe->path(gesperrt)).constData(), O_RDONLY);
    QCOMPARE(flock(datei, LOCK_EX), 0);
    starte();
    QVERIFY(istDa(rest));
    close(datei);
    starte();
    QVERIFY(!istDa(rest));
}

void TestDateireste::earlierVersionsAreGivenAMinute()
{
    const QString name = QStringLiteral("Eigene.daten.qWeRtZ");
    lege(name, 0);
    starte();
    QVERIFY(istDa(name));
    Dateihueter spaeter;
    spaeter.setUhr([] { return QDateTime::currentDateTime().addSecs(61); });
    spaeter.lesen(m_probe->path());
    QVERIFY(!istDa(name));
}

void TestDateireste::aWholeStoreIsKept_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("a change that didn't come to its end")
        << QStringLiteral("Eigene.daten.schreibe-aB3xYz");
    QTest::newRow("what stood there before one")
        << QStringLiteral("Eigene.daten.schreibe-aB3xYz.vorher");
    QTest::newRow("a rest of an earlier version, or a copy that somebody called like that")
        << QStringLiteral("Eigene.daten.meinBu");
}

void TestDateireste::aWholeStoreIsKept()
{
    QFETCH(QString, name);
    m_probe->lege(speisebytes(7, 300), name);
    m_probe->datiere(QDateTime(QDate(2026, 2, 3), QTime(4, 5, 6)), name);
    starte();
    QVERIFY(!istDa(name));
    QCOMPARE(m_probe->bytes(QStringLiteral("Eigene 2026-02-03 04.05.06.daten")),
             speisebytes(7, 300));
}

void TestDateireste::whatTheFileHoldsNeedsNoCopy()
{
    QFETCH(QString, name);
    m_probe->lege(speisebytes(1), name);
    m_probe->datiere(QDateTime(QDate(2026, 2, 3), QTime(4, 5, 6)), name);
    starte();
    QCOMPARE(m_probe->dateien(),
             QStringList({QStringLiteral("Eigene.daten"), QStringLiteral("Sicherungen")}));
}

void TestDateireste::whatCantBeReadStays()
{
    const QString name = QStringLiteral("Eigene.daten.schreibe-aB3xYz.vorher");
    lege(name);
    QVERIFY(QFile::resize(m_probe->path(name), 64 * 1024 * 1024 + 1));
    starte();
    QVERIFY(istDa(name));
}

void TestDateireste::onlyTheStartCleansUp()
{
    Dateihueter hueter;
    hueter.lesen(m_probe->path());
    const QString name = QStringLiteral("Eigene.daten.schreibe-aB3xYz");
    lege(name);
    hueter.lesen(m_probe->path());
    QVERIFY(hueter.schreiben(m_probe->path(), speisen(2)));
    QVERIFY(istDa(name));
}

void TestDateireste::foldersAndLinksStay()
{
    const QString ordner = QStringLiteral("Eigene.daten.schreibe-aaaaaa");
    const QString verweis = QStringLiteral("Eigene.daten.schreibe-bbbbbb");
    QVERIFY(QDir(m_probe->path(QStringLiteral("."))).mkdir(ordner));
    QVERIFY(QFile::link(m_probe->path(), m_probe->path(verweis)));
    starte();
    QVERIFY(istDa(ordner));
    QVERIFY(istDa(verweis));
}

void TestDateireste::theyAreRemovedWhereTheLinkLeads()
{
    QVERIFY(QFile::rename(m_probe->path(), m_probe->path(QStringLiteral("Foods.daten"))));
    QVERIFY(QFile::link(m_probe->path(QStringLiteral("Foods.daten")), m_probe->path()));
    const QString name = QStringLiteral("Foods.daten.schreibe-aB3xYz");
    lege(name);
    starte();
    QVERIFY(!istDa(name));
}

QTEST_GUILESS_MAIN(TestDateireste)
#include "TestDateireste.moc"
