#include "Programmprobe.h"

#include "Archivbau.h"
#include "Archivdatei.h"

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
    void anotherDataFolderIsAnotherProgram();

private:
    QString lege(const QString &name) const;
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
    QCOMPARE(programm.naechstes(), u"message: Das lässt sich nicht öffnen. | „"_s +
                                       pfad(u"fehlt.daten"_s) +
                                       u"“: Diese Datei gibt es nicht. | ok"_s);
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
