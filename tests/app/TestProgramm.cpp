#include "Programmprobe.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

/// The program as it is shipped, started as a process of its own in a home of its own, with a hand
/// at its windows.
class TestProgramm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void closingTheMainWindowEndsTheProgram_data();
    void closingTheMainWindowEndsTheProgram();
    void theSecondStartAsks_data();
    void theSecondStartAsks();
    void whoEndsTheSecondLeavesTheFirstAlone_data();
    void whoEndsTheSecondLeavesTheFirstAlone();
    void whoOpensTheSecondGetsItsWindow();
    void whoWasKilledIsNotAskedAbout();
    void allThatIsMadeIsForTheUserAlone();
    void theSettingsOfAnOlderVersionAreCaredFor();
    void theHomeIsTheOneThatTheSystemKnows_data();
    void theHomeIsTheOneThatTheSystemKnows();
    void theTourLeavesTheHomeAlone();
    void aNamedFolderHoldsTheFiles();
    void qtReadsItsOwnOptions();

private:
    QString pfad(const QString &name) const { return m_heim->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_heim;
};

namespace {

/// The permissions of a file or folder as the shell writes them, in octal digits.
QString rechte(const QString &pfad)
{
    struct stat zustand = {};
    return stat(QFile::encodeName(pfad).constData(), &zustand) == 0
               ? QString::number(zustand.st_mode & 07777, 8)
               : u"none"_s;
}

QByteArray lies(const QString &pfad)
{
    QFile datei(pfad);
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray("none");
}

void schreibe(const QString &pfad, const QByteArray &inhalt, mode_t rechte)
{
    QVERIFY(QFileInfo(pfad).dir().mkpath(u"."_s));
    QFile datei(pfad);
    QVERIFY(datei.open(QIODevice::WriteOnly));
    QCOMPARE(datei.write(inhalt), inhalt.size());
    QVERIFY(fchmod(datei.handle(), rechte) == 0);
}

/// Everything below a folder with its permissions, its time and what it holds.
QStringList alles(const QString &ordner)
{
    QStringList gefunden;
    QDirIterator suche(ordner, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (suche.hasNext()) {
        const QString pfad = suche.next();
        const QFileInfo info(pfad);
        gefunden << QStringList{pfad, rechte(pfad), info.lastModified().toString(Qt::ISODateWithMs),
                                info.isFile() ? QString::fromLatin1(lies(pfad).toHex()) : QString()}
                        .join(u' ');
    }
    gefunden.sort();
    return gefunden;
}

} // namespace

void TestProgramm::init()
{
    umask(022); // as on most machines
    m_heim = std::make_unique<QTemporaryDir>();
    QVERIFY(m_heim->isValid());
}

void TestProgramm::closingTheMainWindowEndsTheProgram_data()
{
    QTest::addColumn<bool>("mitPlan");
    QTest::newRow("the only window") << false;
    QTest::newRow("while the plan is open") << true;
}

void TestProgramm::closingTheMainWindowEndsTheProgram()
{
    QFETCH(bool, mitPlan);
    Programm programm(m_heim->path());
    QCOMPARE(programm.naechstes(), fenster);
    if (mitPlan) {
        programm.tue(u"choose Mahlzeiten&plan"_s);
        QVERIFY(programm.naechstes().startsWith(u"window: "_s));
    }
    QVERIFY(QFile::exists(pfad(zeichen)));
    programm.tue(u"close Mahlberg"_s);
    QCOMPARE(programm.ende(), 0);
    QVERIFY(!QFile::exists(pfad(zeichen)));
}

void TestProgramm::theSecondStartAsks_data()
{
    QTest::addColumn<QString>("sprache");
    QTest::addColumn<QString>("erwartet");
    QTest::newRow("in German") << u"de"_s << frage;
    QTest::newRow("in English")
        << u"en"_s
        << u"message: Mahlberg is already open. | Opened twice at once, one "
           "overwrites the foods and the plan of the other. | Quit | "
           "Open anyway"_s;
}

void TestProgramm::theSecondStartAsks()
{
    QFETCH(QString, sprache);
    QFETCH(QString, erwartet);
    Programm erstes(m_heim->path());
    QCOMPARE(erstes.naechstes(), fenster);
    Programm zweites(m_heim->path(), {u"--language"_s, sprache});
    QCOMPARE(zweites.naechstes(), erwartet);
}

void TestProgramm::whoEndsTheSecondLeavesTheFirstAlone_data()
{
    QTest::addColumn<QString>("antwort");
    QTest::newRow("with the button") << u"press Beenden"_s;
    QTest::newRow("by closing the question") << u"close"_s;
}

void TestProgramm::whoEndsTheSecondLeavesTheFirstAlone()
{
    QFETCH(QString, antwort);
    schreibe(pfad(u".config/Mahlberg/Mahlberg.conf"_s), "[General]\nGewicht=80.5\n", 0600);
    schreibe(pfad(u"Library/Application Support/Mahlberg/MahlbergPlanmod.daten"_s), "?", 0600);
    Programm erstes(m_heim->path());
    QCOMPARE(erstes.naechstes(), fenster);
    erstes.tue(u"settle"_s);
    QCOMPARE(erstes.naechstes(), u"settled"_s);
    const QStringList vorher = alles(m_heim->path());
    QVERIFY(vorher.size() >= 6);

    Programm zweites(m_heim->path());
    QCOMPARE(zweites.naechstes(), frage);
    zweites.tue(antwort);
    QCOMPARE(zweites.ende(), 0);
    QCOMPARE(zweites.naechstes(), QString()); // no window came
    QCOMPARE(alles(m_heim->path()), vorher);

    Programm drittes(m_heim->path()); // the first one is still noticed
    QCOMPARE(drittes.naechstes(), frage);
    erstes.tue(u"close Mahlberg"_s);
    QCOMPARE(erstes.ende(), 0);
}

void TestProgramm::whoOpensTheSecondGetsItsWindow()
{
    Programm erstes(m_heim->path());
    QCOMPARE(erstes.naechstes(), fenster);
    Programm zweites(m_heim->path());
    QCOMPARE(zweites.naechstes(), frage);
    zweites.tue(u"press Trotzdem öffnen"_s);
    QCOMPARE(zweites.naechstes(), fenster);

    erstes.tue(u"close Mahlberg"_s);
    QCOMPARE(erstes.ende(), 0);
    QTRY_VERIFY(QFile::exists(pfad(zeichen))); // the second one's, from now on
    Programm drittes(m_heim->path());
    QCOMPARE(drittes.naechstes(), frage);
    drittes.tue(u"press Beenden"_s);
    QCOMPARE(drittes.ende(), 0);
    zweites.tue(u"close Mahlberg"_s);
    QCOMPARE(zweites.ende(), 0);
    QVERIFY(!QFile::exists(pfad(zeichen)));
}

void TestProgramm::whoWasKilledIsNotAskedAbout()
{
    Programm erstes(m_heim->path());
    QCOMPARE(erstes.naechstes(), fenster);
    erstes.toete();
    QVERIFY(QFile::exists(pfad(zeichen)));
    Programm zweites(m_heim->path());
    QCOMPARE(zweites.naechstes(), fenster);
}

void TestProgramm::allThatIsMadeIsForTheUserAlone()
{
    QVERIFY(chmod(QFile::encodeName(m_heim->path()).constData(), 0755) == 0);
    Programm programm(m_heim->path());
    QCOMPARE(programm.naechstes(), fenster);
    programm.tue(u"choose &Dunkel"_s); // is kept in the settings at once
    const QString einstellungen = pfad(u".config/Mahlberg/Mahlberg.conf"_s);
    QTRY_VERIFY(lies(einstellungen).contains("Erscheinungsbild="));
    for (const QString &ordner :
         {u".config"_s, u".config/Mahlberg"_s, u"Library"_s, u"Library/Application Support"_s,
          u"Library/Application Support/Mahlberg"_s}) {
        QCOMPARE(rechte(pfad(ordner)), u"700"_s);
    }
    QCOMPARE(rechte(einstellungen), u"600"_s);
    QCOMPARE(rechte(pfad(zeichen)), u"600"_s);
    QCOMPARE(rechte(m_heim->path()), u"755"_s);
    programm.tue(u"close Mahlberg"_s);
    QCOMPARE(programm.ende(), 0);
    QCOMPARE(rechte(einstellungen), u"600"_s);
}

void TestProgramm::theSettingsOfAnOlderVersionAreCaredFor()
{
    const QString einstellungen = pfad(u".config/Mahlberg/Mahlberg.conf"_s);
    const QByteArray kaputt = "[General]\nGewicht=80.5\nthis is no line of settings\n";
    schreibe(einstellungen, kaputt, 0644);
    schreibe(einstellungen + u".lock"_s, "garbage", 0644);
    Programm programm(m_heim->path());
    QCOMPARE(programm.naechstes(), fenster);
    programm.tue(u"choose &Dunkel"_s);
    QTRY_VERIFY(lies(einstellungen).contains("Erscheinungsbild="));
    QVERIFY(lies(einstellungen).contains("Gewicht=80.5\n"));
    QCOMPARE(rechte(einstellungen), u"600"_s);
    const QDir ordner = QFileInfo(einstellungen).dir();
    const QStringList kopien = ordner.entryList({u"Mahlberg 2*.conf"_s}, QDir::Files);
    QCOMPARE(kopien.size(), 1);
    QCOMPARE(lies(ordner.filePath(kopien[0])), kaputt);
}

void TestProgramm::theHomeIsTheOneThatTheSystemKnows_data()
{
    QTest::addColumn<QString>("home");
    QTest::addColumn<bool>("bleibt");
    QTest::newRow("none in the environment") << QString() << false;
    QTest::newRow("a relative one") << u"heim"_s << false;
    QTest::newRow("an absolute one") << u"/tmp/heim"_s << true;
}

/// All that looks for the home folder, the settings and file dialogs too, finds the same one.
void TestProgramm::theHomeIsTheOneThatTheSystemKnows()
{
    QFETCH(QString, home);
    QFETCH(bool, bleibt);
    QProcess konto; // the sixth field of the user's line
    konto.start(u"getent"_s, {u"passwd"_s, QString::number(getuid())});
    QVERIFY(konto.waitForFinished());
    const QString bekannt = QString::fromUtf8(konto.readAll()).section(u':', 5, 5);

    QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
    home.isNull() ? umgebung.remove(u"HOME"_s) : umgebung.insert(u"HOME"_s, home);
    umgebung.insert(u"QT_PLUGIN_PATH"_s, QStringLiteral(BEDIENHAND));
    umgebung.insert(u"QT_QPA_GENERIC_PLUGINS"_s, u"bedienhand:home"_s);
    QProcess programm;
    programm.setProcessEnvironment(umgebung);
    programm.start(QStringLiteral(MAHLBERG), QStringList());
    QVERIFY(programm.waitForFinished());
    QCOMPARE(QString::fromUtf8(programm.readAllStandardOutput()).trimmed(),
             bleibt ? home : bekannt);
}

void TestProgramm::theTourLeavesTheHomeAlone()
{
    Programm programm(m_heim->path(), {u"--tour"_s, pfad(u"tour"_s)});
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(pfad(u"tour/summary.txt"_s)), 60000);
    QCOMPARE(programm.ende(), 0);
    QCOMPARE(QDir(m_heim->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{u"tour"_s});
}

/// Only the settings stay where they are.
void TestProgramm::aNamedFolderHoldsTheFiles()
{
    Programm programm(m_heim->path(),
                      {u"--language"_s, u"de"_s, u"--data-dir"_s, pfad(u"Praxis/Anna"_s)});
    QCOMPARE(programm.naechstes(), fenster);
    QVERIFY(QFile::exists(pfad(u"Praxis/Anna/Mahlberg.lock"_s)));
    QVERIFY(!QFile::exists(pfad(u"Library"_s)));
    QCOMPARE(rechte(pfad(u"Praxis"_s)), u"700"_s);
    QCOMPARE(rechte(pfad(u"Praxis/Anna"_s)), u"700"_s);
    programm.tue(u"choose &Dunkel"_s);
    QTRY_VERIFY(lies(pfad(u".config/Mahlberg/Mahlberg.conf"_s)).contains("Erscheinungsbild="));
    // Who works on other files is in nobody's way.
    Programm zweites(m_heim->path());
    QCOMPARE(zweites.naechstes(), fenster);
    Programm drittes(m_heim->path(), {u"--language"_s, u"de"_s, u"--data-dir"_s,
                                      pfad(u"Praxis/../Praxis/Anna/"_s)});
    QCOMPARE(drittes.naechstes(), frage);
}

void TestProgramm::qtReadsItsOwnOptions()
{
    qputenv("QT_QPA_PLATFORM", "keine");
    Programm programm(m_heim->path(), {u"-platform"_s, u"offscreen"_s, u"--language"_s, u"en"_s,
                                       u"-style"_s, u"Fusion"_s});
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QCOMPARE(programm.naechstes(), fenster);
}

QTEST_GUILESS_MAIN(TestProgramm)
#include "TestProgramm.moc"
