#include "Programmprobe.h"

#include "Archivbau.h"
#include "Archivdatei.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;

/// The program as a process of its own that is started with files, as a file manager does it, alone
/// and while another one is at work.
class TestProgrammDateien : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aFileOnTheCommandLineIsShown_data();
    void aFileOnTheCommandLineIsShown();
    void whatCanNotBeOpenedIsTold();
    void theOpenProgramTakesTheFile();
    void filesOfAnyNameAreTaken_data();
    void filesOfAnyNameAreTaken();
    void aPathCountsFromWhereTheSecondWasStarted();
    void manyFilesAreTakenAtOnce();
    void aFileThatIsGoneIsToldByTheOpenProgram();
    void aFileWaitsForTheAnswerToAQuestion();
    void theSecondAsksWhereTheFirstIsStuck_data();
    void theSecondAsksWhereTheFirstIsStuck();
    void anotherDataFolderIsAnotherProgram();

private:
    QString lege(const QString &name) const;
    static QString fehlmeldung(const QString &datei)
    {
        return u"message: Das lässt sich nicht öffnen. | „%1“: Diese Datei gibt es nicht. | ok"_s
            .arg(datei);
    }
    QString pfad(const QString &name) const { return m_heim->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_heim;
};

namespace {

QStringList deutsch(const QStringList &argumente)
{
    return QStringList{u"--language"_s, u"de"_s} + argumente;
}

} // namespace

void TestProgrammDateien::init()
{
    m_heim = std::make_unique<QTemporaryDir>();
    QVERIFY(m_heim->isValid());
}

QString TestProgrammDateien::lege(const QString &name) const
{
    const QByteArray bytes = Archivbau::beispiel(Archivbau::Folge::BigEndian);
    QFile datei(pfad(name));
    if (!datei.open(QIODevice::WriteOnly) || datei.write(bytes) != bytes.size()) {
        qFatal("a file of the test could not be written");
    }
    return datei.fileName();
}

void TestProgrammDateien::aFileOnTheCommandLineIsShown_data()
{
    QTest::addColumn<bool>("alsAdresse");
    QTest::newRow("by its path") << false;
    QTest::newRow("by its address") << true;
}

void TestProgrammDateien::aFileOnTheCommandLineIsShown()
{
    QFETCH(bool, alsAdresse);
    const QString alt = lege(u"mein alter Stand.daten"_s);
    Programm programm(
        m_heim->path(),
        deutsch({alsAdresse ? QUrl::fromLocalFile(alt).toString(QUrl::FullyEncoded) : alt}));
    QCOMPARE(programm.naechstes(), fenster);
    QCOMPARE(programm.naechstes(), u"window: mein alter Stand.daten"_s);
}

void TestProgrammDateien::whatCanNotBeOpenedIsTold()
{
    Programm programm(m_heim->path(), deutsch({pfad(u"fehlt.daten"_s)}));
    QCOMPARE(programm.naechstes(), fenster);
    QCOMPARE(programm.naechstes(), fehlmeldung(pfad(u"fehlt.daten"_s)));
    programm.tue(u"press ok"_s);
    programm.tue(u"close Mahlberg"_s);
    QCOMPARE(programm.ende(), 0);
}

void TestProgrammDateien::theOpenProgramTakesTheFile()
{
    Programm erstes(m_heim->path());
    QCOMPARE(erstes.naechstes(), fenster);
    Programm zweites(m_heim->path(), deutsch({lege(u"a.daten"_s), lege(u"b.daten"_s)}));
    QCOMPARE(erstes.naechstes(), u"window: a.daten"_s);
    QCOMPARE(zweites.ende(), 0);
    QCOMPARE(zweites.naechstes(), QString()); // neither a question nor a window came
    erstes.tue(u"close a.daten"_s);
    QCOMPARE(erstes.naechstes(), u"window: b.daten"_s);
    erstes.tue(u"close b.daten"_s);
    Programm drittes(m_heim->path()); // without a file it is asked as before
    QCOMPARE(drittes.naechstes(), frage);
    drittes.tue(u"press Beenden"_s);
    QCOMPARE(drittes.ende(), 0);
    erstes.tue(u"close Mahlberg"_s);
    QCOMPARE(erstes.ende(), 0);
}

void TestProgrammDateien::filesOfAnyNameAreTaken_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks and umlauts") << u"Öle und  Fette für übermorgen.daten"_s;
    QTest::newRow("signs that a shell obeys") << u"$HOME;'\"`*?&.daten"_s;
    QTest::newRow("a percentage sign") << u"100%20.daten"_s;
    QTest::newRow("another script") << u"食品.daten"_s;
    QTest::newRow("two lines") << u"erste\nzweite.daten"_s;
}

void TestProgrammDateien::filesOfAnyNameAreTaken()
{
    QFETCH(QString, name);
    Programm erstes(m_heim->path());
    QCOMPARE(erstes.naechstes(), fenster);
    Programm zweites(m_heim->path(), deutsch({lege(name)}));
    QStringList zeilen;
    for (qsizetype i = 0; i <= name.count(u'\n'); ++i) {
        zeilen << erstes.naechstes();
    }
    QCOMPARE(zeilen.join(u'\n'), u"window: "_s + name);
    QCOMPARE(zweites.ende(), 0);
}

void TestProgrammDateien::aPathCountsFromWhereTheSecondWasStarted()
{
    QVERIFY(QDir().mkpath(pfad(u"da"_s)));
    QVERIFY(QDir().mkpath(pfad(u"dort/tief"_s)));
    lege(u"dort/a.daten"_s);
    Programm erstes(m_heim->path(), deutsch({}), pfad(u"da"_s));
    QCOMPARE(erstes.naechstes(), fenster);
    Programm zweites(m_heim->path(), deutsch({u"../a.daten"_s, u"b.daten"_s}),
                     pfad(u"dort/tief"_s));
    QCOMPARE(erstes.naechstes(), fehlmeldung(pfad(u"dort/tief/b.daten"_s)));
    erstes.tue(u"press ok"_s);
    QCOMPARE(erstes.naechstes(), u"window: a.daten"_s);
    QCOMPARE(zweites.ende(), 0);
}

void TestProgrammDateien::manyFilesAreTakenAtOnce()
{
    constexpr int anzahl = 50;
    QStringList dateien;
    for (int i = 0; i < anzahl; ++i) {
        dateien << lege(u"%1.daten"_s.arg(i));
    }
    Programm erstes(m_heim->path());
    QCOMPARE(erstes.naechstes(), fenster);
    Programm zweites(m_heim->path(), deutsch(dateien));
    for (int i = 0; i < anzahl; ++i) {
        QCOMPARE(erstes.naechstes(), u"window: %1.daten"_s.arg(i));
        erstes.tue(u"close %1.daten"_s.arg(i));
    }
    QCOMPARE(zweites.ende(), 0);
    erstes.tue(u"close Mahlberg"_s);
    QCOMPARE(erstes.ende(), 0);
}

void TestProgrammDateien::aFileThatIsGoneIsToldByTheOpenProgram()
{
    Programm erstes(m_heim->path());
    QCOMPARE(erstes.naechstes(), fenster);
    Programm zweites(m_heim->path(), deutsch({pfad(u"weg.daten"_s)}));
    QCOMPARE(erstes.naechstes(), fehlmeldung(pfad(u"weg.daten"_s)));
    QCOMPARE(zweites.ende(), 0);
    QCOMPARE(zweites.naechstes(), QString());
}

void TestProgrammDateien::aFileWaitsForTheAnswerToAQuestion()
{
    Programm erstes(m_heim->path(), deutsch({pfad(u"fehlt.daten"_s)}));
    QCOMPARE(erstes.naechstes(), fenster);
    QCOMPARE(erstes.naechstes(), fehlmeldung(pfad(u"fehlt.daten"_s)));
    Programm zweites(m_heim->path(), deutsch({lege(u"a.daten"_s)}));
    QCOMPARE(zweites.ende(), 0); // it has been taken
    erstes.tue(u"desktop"_s);
    QVERIFY(erstes.naechstes().startsWith(u"desktop: "_s)); // and is not shown yet
    erstes.tue(u"press ok"_s);
    QCOMPARE(erstes.naechstes(), u"window: a.daten"_s);
    erstes.tue(u"close a.daten"_s);
    erstes.tue(u"close Mahlberg"_s);
    QCOMPARE(erstes.ende(), 0);
}

void TestProgrammDateien::theSecondAsksWhereTheFirstIsStuck_data()
{
    QTest::addColumn<bool>("trotzdem");
    QTest::newRow("it is left at that") << false;
    QTest::newRow("the second opens the file itself") << true;
}

/// Nobody answers, so the note is taken back, and the file isn't opened a second time later.
void TestProgrammDateien::theSecondAsksWhereTheFirstIsStuck()
{
    QFETCH(bool, trotzdem);
    Programm erstes(m_heim->path());
    QCOMPARE(erstes.naechstes(), fenster);
    erstes.halteAn();
    Programm zweites(m_heim->path(), deutsch({lege(u"a.daten"_s)}));
    QCOMPARE(zweites.naechstes(), frage);
    erstes.lasseWeiter();
    zweites.tue(trotzdem ? u"press Trotzdem öffnen"_s : u"press Beenden"_s);
    if (trotzdem) {
        QCOMPARE(zweites.naechstes(), fenster);
        QCOMPARE(zweites.naechstes(), u"window: a.daten"_s);
        zweites.toete();
    } else {
        QCOMPARE(zweites.ende(), 0);
    }
    Programm drittes(m_heim->path(), deutsch({lege(u"b.daten"_s)}));
    QCOMPARE(erstes.naechstes(), u"window: b.daten"_s);
    QCOMPARE(drittes.ende(), 0);
}

void TestProgrammDateien::anotherDataFolderIsAnotherProgram()
{
    Programm erstes(m_heim->path());
    QCOMPARE(erstes.naechstes(), fenster);
    Programm zweites(m_heim->path(),
                     deutsch({u"--data-dir"_s, pfad(u"Praxis"_s), lege(u"a.daten"_s)}));
    QCOMPARE(zweites.naechstes(), fenster);
    QCOMPARE(zweites.naechstes(), u"window: a.daten"_s);
    QVERIFY(QFile::exists(pfad(u"Praxis/Mahlberg.lock"_s)));
}

QTEST_GUILESS_MAIN(TestProgrammDateien)
#include "TestProgrammDateien.moc"
