#include "Archivbau.h"
#include "Archiver.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

using namespace Archivbau;

class TestDatenlesen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void aFileAsText();
    void aFileAsTable();
    void oddTextsAndValues();
    void anEmptyStore();
    void damageIsNamed_data();
    void damageIsNamed();
    void whatIsNoFile();
    void remarks();
    void wrongUsage_data();
    void wrongUsage();
    void help();
    void outputThatCannotBeWritten();

private:
    QString schreibe(const QByteArray &bytes);
    void starte(const QStringList &argumente, const QString &ausgabe = QString());

    QTemporaryDir m_ordner;
    int m_ausgang = -1;
    QString m_ausgabe;
    QString m_meldungen;
};

void TestDatenlesen::cleanup()
{
    QFile::remove(m_ordner.filePath(QStringLiteral("Eier.daten")));
}

QString TestDatenlesen::schreibe(const QByteArray &bytes)
{
    QFile datei(m_ordner.filePath(QStringLiteral("Eier.daten")));
    if (!datei.open(QIODevice::WriteOnly) || datei.write(bytes) != bytes.size()) {
        qFatal("no file can be written");
    }
    return datei.fileName();
}

void TestDatenlesen::starte(const QStringList &argumente, const QString &ausgabe)
{
    QProcess programm;
    if (!ausgabe.isNull()) {
        programm.setStandardOutputFile(ausgabe);
    }
    programm.start(QStringLiteral(DATENLESEN), argumente);
    QVERIFY(programm.waitForFinished());
    QCOMPARE(programm.exitStatus(), QProcess::NormalExit);
    m_ausgang = programm.exitCode();
    m_ausgabe = QString::fromUtf8(programm.readAllStandardOutput());
    m_meldungen = QString::fromUtf8(programm.readAllStandardError());
}

void TestDatenlesen::aFileAsText()
{
    starte({schreibe(beispielBytes())});
    QCOMPARE(m_ausgabe, QStringLiteral("Foods: 1\n"
                                       "Ei\n"
                                       "    kal           155 kcal\n"
                                       "    protein       12.6 g\n"
                                       "    fett          10.6 g\n"
                                       "    uebergewicht  0\n"
                                       "    diabetes      +\n"
                                       "    gicht         +\n"
                                       "    hkk           -\n"));
    QCOMPARE(m_meldungen, QString());
    QCOMPARE(m_ausgang, 0);
}

void TestDatenlesen::aFileAsTable()
{
    const QString erwartet =
        QStringLiteral("key,name,kal,protein,fett,kh,bs,chol,na,ka,ca,ph,ma,fe,vita,b1,b2,b6,vitc,"
                       "uebergewicht,diabetes,gicht,hkk\n"
                       "\"Ei\",\"Ei\",155,12.6,10.6,0,0,0,0,0,0,0,0,0,0,0,0,0,0,\"0\",\"+\",\"+\","
                       "\"-\"\n");
    const QString path = schreibe(beispiel(Folge::BigEndian));
    starte({QStringLiteral("--csv"), path});
    QCOMPARE(m_ausgabe, erwartet);
    QCOMPARE(m_ausgang, 0);
    starte({path, QStringLiteral("--csv")});
    QCOMPARE(m_ausgabe, erwartet);
}

void TestDatenlesen::oddTextsAndValues()
{
    Datenmodul odd;
    odd.setkal(-0.1F);
    odd.setprotein(1e30F);
    odd.setfett(std::numeric_limits<float>::infinity());
    odd.setkh(std::numeric_limits<float>::quiet_NaN());
    odd.setvita(16777216);
    odd.setgicht(QStringLiteral(""));
    odd.sethkk(QStringLiteral("sehr \"gut\", ja\n"));
    const QString path = schreibe(Archiver::write({{QStringLiteral("豆腐\x1b[31m"), odd}}));

    starte({path});
    QCOMPARE(m_ausgabe, QStringLiteral("Foods: 1\n"
                                       "豆腐\\x1b[31m\n"
                                       "    name          (none)\n"
                                       "    kal           -0.1 kcal\n"
                                       "    protein       1e+30 g\n"
                                       "    fett          inf g\n"
                                       "    kh            nan g\n"
                                       "    vita          16777216 µg\n"
                                       "    gicht         \n"
                                       "    hkk           sehr \"gut\", ja\\x0a\n"));
    starte({QStringLiteral("--csv"), path});
    QCOMPARE(m_ausgabe.section(QLatin1Char('\n'), 1),
             QStringLiteral("\"豆腐\x1b[31m\",,-0.1,1e+30,inf,nan,0,0,0,0,0,0,0,0,16777216,0,0,0,0,"
                            ",,\"\",\"sehr \"\"gut\"\", ja\n\"\n"));
}

void TestDatenlesen::anEmptyStore()
{
    starte({schreibe(datei(verzeichnisAnfang + "00 86"))});
    QCOMPARE(m_ausgabe, QStringLiteral("Foods: 0\n"));
    QCOMPARE(m_ausgang, 0);
}

void TestDatenlesen::damageIsNamed_data()
{
    QTest::addColumn<QByteArray>("inhalt");
    QTest::addColumn<QString>("grund");
    QTest::newRow("cut") << beispielBytes().first(187)
                         << QStringLiteral("damaged at byte 187: the data end too early");
    QTest::newRow("another class")
        << datei("84 01 '@' 84 84 84 07 'NSArray' 00")
        << QStringLiteral("damaged at byte 21: the class \"NSArray\" is not known here");
    QTest::newRow("empty") << QByteArray("")
                           << QStringLiteral("damaged at byte 0: the data end too early");
    QTest::newRow("a table") << QByteArray("name;kcal\nEi;155\n")
                             << QStringLiteral("damaged at byte 0: the file does not begin as an "
                                               "archive");
}

void TestDatenlesen::damageIsNamed()
{
    QFETCH(QByteArray, inhalt);
    QFETCH(QString, grund);
    const QString path = schreibe(inhalt);
    for (const QStringList &argumente :
         {QStringList{path}, QStringList{QStringLiteral("--csv"), path}}) {
        starte(argumente);
        QCOMPARE(m_ausgabe, QString());
        QCOMPARE(m_meldungen, QStringLiteral("datenlesen: ") + path + QStringLiteral(": ") + grund +
                                  QLatin1Char('\n'));
        QCOMPARE(m_ausgang, 1);
    }
}

void TestDatenlesen::whatIsNoFile()
{
    const QString path = m_ordner.filePath(QStringLiteral("fehlt.daten"));
    starte({path});
    QCOMPARE(m_meldungen,
             QStringLiteral("datenlesen: ") + path + QStringLiteral(": there is no such file\n"));
    QCOMPARE(m_ausgabe, QString());
    QCOMPARE(m_ausgang, 1);

    starte({m_ordner.path()});
    QCOMPARE(m_meldungen, QStringLiteral("datenlesen: ") + m_ordner.path() +
                              QStringLiteral(": it is a folder or a device, not a file\n"));
    QCOMPARE(m_ausgang, 1);
}

void TestDatenlesen::remarks()
{
    const QString path =
        schreibe(datei(verzeichnisAnfang + "02 " + ersterText + "02 'Ei' 86 " + erstesLebensmittel +
                       "92 96 " + nullwerte() + keineWertungen + "86 92 96 92 98 86 'abc'"));
    starte({path});
    QCOMPARE(m_ausgabe, QStringLiteral("Foods: 1\nEi\n"));
    QCOMPARE(m_meldungen,
             QStringLiteral("datenlesen: %1: 1 entries left out, a later one has the same name\n"
                            "datenlesen: %1: 3 bytes follow the end of the data\n")
                 .arg(path));
    QCOMPARE(m_ausgang, 0);
}

void TestDatenlesen::wrongUsage_data()
{
    QTest::addColumn<QStringList>("argumente");
    QTest::newRow("none") << QStringList();
    QTest::newRow("only an option") << QStringList(QStringLiteral("--csv"));
    QTest::newRow("an unknown option")
        << QStringList{QStringLiteral("--json"), QStringLiteral("a.daten")};
    QTest::newRow("an option in the file's place") << QStringList(QStringLiteral("--version"));
    QTest::newRow("two files") << QStringList{QStringLiteral("a.daten"), QStringLiteral("b.daten")};
}

void TestDatenlesen::wrongUsage()
{
    QFETCH(QStringList, argumente);
    starte(argumente);
    QVERIFY(m_meldungen.startsWith(QStringLiteral("Usage: datenlesen [--csv] FILE\n")));
    QCOMPARE(m_ausgabe, QString());
    QCOMPARE(m_ausgang, 2);
}

void TestDatenlesen::help()
{
    starte({QStringLiteral("--help")});
    QVERIFY(m_ausgabe.startsWith(QStringLiteral("Usage: datenlesen [--csv] FILE\n")));
    QCOMPARE(m_ausgang, 0);
}

void TestDatenlesen::outputThatCannotBeWritten()
{
    starte({schreibe(beispielBytes())}, QStringLiteral("/dev/full"));
    QCOMPARE(m_meldungen, QStringLiteral("datenlesen: the output could not be written\n"));
    QCOMPARE(m_ausgang, 1);
}

QTEST_GUILESS_MAIN(TestDatenlesen)
#include "TestDatenlesen.moc"
