#include "Datenordner.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <sys/stat.h>

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
    void foldersAreForTheUserAlone();

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

/// Those that the program makes; what somebody else made keeps its rights.
void TestDatenordner::foldersAreForTheUserAlone()
{
    const auto rechte = [this](const char *name) {
        struct stat angaben = {};
        stat(QFile::encodeName(m_home->filePath(QLatin1String(name))).constData(), &angaben);
        return angaben.st_mode & 0777U;
    };
    const mode_t vorher = umask(0);
    QVERIFY(QDir(m_home->path()).mkdir(QStringLiteral("Library")));
    Datenordner(m_home->path()).pathForDataFile(QStringLiteral("customdaten"));
    umask(vorher);
    QCOMPARE(rechte("Library"), mode_t(0777));
    QCOMPARE(rechte("Library/Application Support"), mode_t(0700));
    QCOMPARE(rechte("Library/Application Support/Mahlberg"), mode_t(0700));
}

QTEST_GUILESS_MAIN(TestDatenordner)
#include "TestDatenordner.moc"
