#include "Datenordner.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <sys/stat.h>
#include <unistd.h>

class TestDatenordner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyNameMakesTheFolder_data();
    void everyNameMakesTheFolder();
    void theFolderIsMadeAgainWhenItIsGone();
    void whatIsThereStays();
    void aFileInTheFoldersPlaceStays();
    void aFolderThatCannotBeMadeIsNoMatter();
    void theHomeMayEndInASlash();
    void theUsersHomeIsTheDefault();
    void withoutAHomeInTheEnvironmentTheSystemKnowsIt_data();
    void withoutAHomeInTheEnvironmentTheSystemKnowsIt();
    void newFoldersAreForTheUserAlone_data();
    void newFoldersAreForTheUserAlone();
    void aNamedFolderHoldsTheFilesItself();
    void aNamedFolderStaysTheSame();
    void whetherThereIsAFolder_data();
    void whetherThereIsAFolder();
    void whoOnlyLooksMakesNone();

private:
    QString ordner() const
    {
        return m_home->filePath(QStringLiteral("Library/Application Support/Mahlberg"));
    }
    std::unique_ptr<QTemporaryDir> m_home;
};

void TestDatenordner::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    QVERIFY(m_home->isValid());
}

void TestDatenordner::everyNameMakesTheFolder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("datei");
    QTest::newRow("own foods") << QStringLiteral("customdaten")
                               << QStringLiteral("/MahlbergCustomnutr.daten");
    QTest::newRow("meal plan") << QStringLiteral("plandaten")
                               << QStringLiteral("/MahlbergPlanmod.daten");
    QTest::newRow("an unknown name") << QStringLiteral("daten") << QString();
    QTest::newRow("upper case is another name") << QStringLiteral("Customdaten") << QString();
    QTest::newRow("a longer name") << QStringLiteral("plandaten2") << QString();
    QTest::newRow("an empty name") << QStringLiteral("") << QString();
    QTest::newRow("no name") << QString() << QString();
}

void TestDatenordner::everyNameMakesTheFolder()
{
    QFETCH(QString, name);
    QFETCH(QString, datei);
    const QString path = Datenordner(m_home->path()).pathForDataFile(name);
    QCOMPARE(path, datei.isNull() ? QString() : ordner() + datei);
    QCOMPARE(path.isNull(), datei.isNull());
    QVERIFY(QFileInfo(ordner()).isDir());
    QVERIFY(QDir(ordner()).isEmpty());
}

void TestDatenordner::theFolderIsMadeAgainWhenItIsGone()
{
    const Datenordner daten(m_home->path());
    QVERIFY(!QFileInfo::exists(ordner()));
    daten.pathForDataFile(QStringLiteral("plandaten"));
    QVERIFY(QDir(ordner()).removeRecursively());
    daten.pathForDataFile(QStringLiteral("irgendwas"));
    QVERIFY(QFileInfo(ordner()).isDir());
}

void TestDatenordner::whatIsThereStays()
{
    QVERIFY(QDir().mkpath(ordner()));
    QFile datei(ordner() + QStringLiteral("/MahlbergPlanmod.daten"));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    datei.write("Plan");
    datei.close();
    const QString path = Datenordner(m_home->path()).pathForDataFile(QStringLiteral("plandaten"));
    QCOMPARE(path, datei.fileName());
    QCOMPARE(datei.size(), 4);
}

void TestDatenordner::aFileInTheFoldersPlaceStays()
{
    QVERIFY(QDir().mkpath(QFileInfo(ordner()).path()));
    QFile datei(ordner());
    QVERIFY(datei.open(QIODevice::WriteOnly));
    datei.close();
    const QString path = Datenordner(m_home->path()).pathForDataFile(QStringLiteral("customdaten"));
    QCOMPARE(path, ordner() + QStringLiteral("/MahlbergCustomnutr.daten"));
    QVERIFY(QFileInfo(ordner()).isFile());
}

void TestDatenordner::aFolderThatCannotBeMadeIsNoMatter()
{
    QFile datei(m_home->filePath(QStringLiteral("Library")));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    datei.close();
    const Datenordner daten(m_home->path());
    QCOMPARE(daten.pathForDataFile(QStringLiteral("plandaten")),
             ordner() + QStringLiteral("/MahlbergPlanmod.daten"));
    QVERIFY(daten.pathForDataFile(QStringLiteral("sonst")).isNull());
    QVERIFY(!QFileInfo::exists(ordner()));
}

void TestDatenordner::theHomeMayEndInASlash()
{
    const Datenordner daten(m_home->path() + QLatin1Char('/'));
    QCOMPARE(daten.pathForDataFile(QStringLiteral("plandaten")),
             ordner() + QStringLiteral("/MahlbergPlanmod.daten"));
}

void TestDatenordner::theUsersHomeIsTheDefault()
{
    const QByteArray vorher = qgetenv("HOME");
    qputenv("HOME", QFile::encodeName(m_home->path()));
    const Datenordner daten;
    qputenv("HOME", vorher);
    QCOMPARE(daten.pathForDataFile(QStringLiteral("customdaten")),
             ordner() + QStringLiteral("/MahlbergCustomnutr.daten"));
}

void TestDatenordner::withoutAHomeInTheEnvironmentTheSystemKnowsIt_data()
{
    QTest::addColumn<QByteArray>("home");
    QTest::newRow("none") << QByteArray();
    QTest::newRow("an empty one") << QByteArray("");
    QTest::newRow("a relative one") << QByteArray("heim");
    QTest::newRow("the folder of the start") << QByteArray(".");
    QTest::newRow("a tilde") << QByteArray("~");
}

void TestDatenordner::withoutAHomeInTheEnvironmentTheSystemKnowsIt()
{
    QFETCH(QByteArray, home);
    QProcess frage; // who knows it as well: the sixth field of the user's line
    frage.start(QStringLiteral("getent"), {QStringLiteral("passwd"), QString::number(getuid())});
    QVERIFY(frage.waitForFinished());
    const QString erwartet = QString::fromUtf8(frage.readAll()).section(u':', 5, 5);
    QVERIFY(QDir::isAbsolutePath(erwartet));

    const QByteArray vorher = qgetenv("HOME");
    home.isNull() ? qunsetenv("HOME") : qputenv("HOME", home);
    const QString gefunden = heimatordner();
    qputenv("HOME", vorher);
    QCOMPARE(gefunden, erwartet);
    QCOMPARE(heimatordner(), QFile::decodeName(vorher));
}

void TestDatenordner::newFoldersAreForTheUserAlone_data()
{
    QTest::addColumn<QString>("vorhanden");
    QTest::addColumn<QStringList>("neue");
    QTest::newRow("none is there")
        << QString()
        << QStringList{QStringLiteral("Library"), QStringLiteral("Library/Application Support"),
                       QStringLiteral("Library/Application Support/Mahlberg")};
    QTest::newRow("others use the one above")
        << QStringLiteral("Library/Application Support")
        << QStringList{QStringLiteral("Library/Application Support/Mahlberg")};
    QTest::newRow("all are there")
        << QStringLiteral("Library/Application Support/Mahlberg") << QStringList();
}

void TestDatenordner::newFoldersAreForTheUserAlone()
{
    QFETCH(QString, vorhanden);
    QFETCH(QStringList, neue);
    const mode_t vorher = umask(022);
    QVERIFY(vorhanden.isNull() || QDir(m_home->path()).mkpath(vorhanden));
    Datenordner(m_home->path()).pathForDataFile(QStringLiteral("plandaten"));
    QVERIFY(QDir(m_home->path()).mkdir(QStringLiteral("danach"))); // made by somebody else
    umask(vorher);
    for (const QString &name :
         {QStringLiteral("Library"), QStringLiteral("Library/Application Support"),
          QStringLiteral("Library/Application Support/Mahlberg"), QStringLiteral("danach")}) {
        struct stat zustand = {};
        QVERIFY(stat(QFile::encodeName(m_home->filePath(name)).constData(), &zustand) == 0);
        QCOMPARE(zustand.st_mode & 0777U, neue.contains(name) ? 0700U : 0755U);
    }
}

void TestDatenordner::aNamedFolderHoldsTheFilesItself()
{
    const QString praxis = m_home->filePath(QStringLiteral("Praxis/Anna"));
    const Datenordner daten = Datenordner::unmittelbar(praxis);
    QVERIFY(!QFileInfo::exists(praxis));
    QCOMPARE(daten.pathForDataFile(QStringLiteral("plandaten")),
             praxis + QStringLiteral("/MahlbergPlanmod.daten"));
    QVERIFY(QFileInfo(praxis).isDir());
    for (const QString &neu : {QStringLiteral("Praxis"), QStringLiteral("Praxis/Anna")}) {
        struct stat zustand = {};
        QVERIFY(stat(QFile::encodeName(m_home->filePath(neu)).constData(), &zustand) == 0);
        QCOMPARE(zustand.st_mode & 07777U, 0700U);
    }
}

/// Also when the program goes to another folder later.
void TestDatenordner::aNamedFolderStaysTheSame()
{
    const QString vorher = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_home->path()));
    const QString hier = QDir::currentPath();
    const Datenordner daten = Datenordner::unmittelbar(QStringLiteral("Praxis"));
    QVERIFY(QDir::setCurrent(vorher));
    QCOMPARE(daten.datei(QStringLiteral("customdaten")),
             hier + QStringLiteral("/Praxis/MahlbergCustomnutr.daten"));
}

void TestDatenordner::whetherThereIsAFolder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("da");
    QTest::newRow("one that is made") << QStringLiteral("a/b") << true;
    QTest::newRow("one that was there") << QStringLiteral(".") << true;
    QTest::newRow("a file in its place") << QStringLiteral("datei") << false;
    QTest::newRow("below a file") << QStringLiteral("datei/b") << false;
}

void TestDatenordner::whetherThereIsAFolder()
{
    QFETCH(QString, name);
    QFETCH(bool, da);
    QFile datei(m_home->filePath(QStringLiteral("datei")));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    const QString ordner = m_home->filePath(name);
    QCOMPARE(Datenordner::unmittelbar(ordner).lege(), da);
    QCOMPARE(QFileInfo(ordner).isDir(), da);
    QVERIFY(QFileInfo(datei.fileName()).isFile());
}

void TestDatenordner::whoOnlyLooksMakesNone()
{
    const Datenordner daten(m_home->path());
    QCOMPARE(daten.datei(QStringLiteral("plandaten")),
             ordner() + QStringLiteral("/MahlbergPlanmod.daten"));
    QVERIFY(daten.datei(QStringLiteral("anderes")).isNull());
    QVERIFY(QDir(m_home->path()).isEmpty());
}

QTEST_GUILESS_MAIN(TestDatenordner)
#include "TestDatenordner.moc"
