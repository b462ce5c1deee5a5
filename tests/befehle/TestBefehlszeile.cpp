// The shipped program as a process of its own, called from a terminal: there is no display, and the
// platform of the windows that the environment names does not exist.

#include "Archivdatei.h"
#include "Befehle.h"
#include "Datenordner.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <memory>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

class TestBefehlszeile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void whatNeedsNoDisplay_data();
    void whatNeedsNoDisplay();
    void theLanguage_data();
    void theLanguage();
    void aPlanInEveryForm();
    void programsReadTheSameEverywhere();
    void englishNamesInEveryLanguage();
    void ownFoodsOfTheHomeAndOfAFolder();
    void theNamedFolderIsForTheUserAlone();
    void theHomeStaysAsItIs();
    void anOutputThatCannotBeWritten();
    void windowsNeedADisplay();
    void windowsWithAFolderThatIsNone();
    void aDisplayThatDoesNotAnswer_data();
    void aDisplayThatDoesNotAnswer();

private:
    void starte(const QStringList &argumente, const QString &ausgabe = {});
    void starteProgramm(const QString &programm, const QStringList &argumente,
                        const QString &ausgabe = {});
    QString pfad(const QString &name) const { return m_heim->filePath(name); }
    void schreibe(const QString &datei, const QList<std::pair<QString, float>> &energien) const;

    std::unique_ptr<QTemporaryDir> m_heim;
    QProcessEnvironment m_umgebung;
    int m_ausgang = -1;
    QByteArray m_ausgabe;
    QString m_meldungen;
};

void TestBefehlszeile::init()
{
    m_heim = std::make_unique<QTemporaryDir>();
    QVERIFY(m_heim->isValid());
    m_umgebung = QProcessEnvironment::systemEnvironment();
    m_umgebung.insert(u"HOME"_s, m_heim->path());
    m_umgebung.insert(u"QT_QPA_PLATFORM"_s, u"keine"_s);
    for (const QString &name :
         {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"XDG_CONFIG_HOME"_s, u"LANGUAGE"_s}) {
        m_umgebung.remove(name);
    }
}

void TestBefehlszeile::starte(const QStringList &argumente, const QString &ausgabe)
{
    starteProgramm(QStringLiteral(MAHLBERG), argumente, ausgabe);
}

void TestBefehlszeile::starteProgramm(const QString &programm, const QStringList &argumente,
                                      const QString &ausgabe)
{
    QProcess prozess;
    prozess.setProcessEnvironment(m_umgebung);
    if (!ausgabe.isNull()) {
        prozess.setStandardOutputFile(ausgabe);
    }
    prozess.start(programm, argumente);
    QVERIFY(prozess.waitForFinished());
    m_ausgang = prozess.exitStatus() == QProcess::NormalExit ? prozess.exitCode() : -1;
    m_ausgabe = prozess.readAllStandardOutput();
    m_meldungen = QString::fromUtf8(prozess.readAllStandardError());
}

/// A file of foods that have nothing but energy, which is the form of a plan too.
void TestBefehlszeile::schreibe(const QString &datei,
                                const QList<std::pair<QString, float>> &energien) const
{
    Lebensmittelverzeichnis alle;
    for (const auto &[name, kal] : energien) {
        Datenmodul eines;
        eines.setName(name);
        eines.setkal(kal);
        alle.insert(name, eines);
    }
    QVERIFY(Archivdatei::schreiben(datei, alle));
}

void TestBefehlszeile::whatNeedsNoDisplay_data()
{
    QTest::addColumn<QStringList>("argumente");
    QTest::addColumn<int>("ausgang");
    QTest::addColumn<QString>("ausgabe");
    QTest::addColumn<QString>("meldung");
    const QString mehr = u" Mehr sagt „mahlberg --help“.\n"_s;
    QTest::newRow("version") << QStringList{u"--version"_s} << 0 << u"Mahlberg "_s << QString();
    QTest::newRow("help") << QStringList{u"-h"_s} << 0 << u"Aufruf:\n"_s << QString();
    QTest::newRow("a food") << QStringList{u"food"_s, u"Butter"_s, u"20"_s} << 0
                            << u"Butter, 20 g\n"_s << QString();
    QTest::newRow("an unknown food") << QStringList{u"food"_s, u"Xylophon"_s} << 1 << QString()
                                     << u"mahlberg: Ein Lebensmittel „Xylophon“ gibt es nicht.\n"_s;
    QTest::newRow("an unknown plan")
        << QStringList{u"evaluate"_s, u"/dev/null/plan"_s} << 1 << QString()
        << u"mahlberg: Die Datei „/dev/null/plan“ gibt es nicht.\n"_s;
    QTest::newRow("a wrong option") << QStringList{u"--nonsense"_s} << 2 << QString()
                                    << u"mahlberg: Die Option „--nonsense“ gibt es nicht."_s + mehr;
    QTest::newRow("a wrong command") << QStringList{u"eat"_s} << 2 << QString()
                                     << u"mahlberg: Den Befehl „eat“ gibt es nicht."_s + mehr;
    QTest::newRow("a food and a folder that is none")
        << QStringList{u"food"_s, u"Butter"_s, u"--data-dir"_s, u"/dev/null"_s} << 2 << QString()
        << u"mahlberg: Der Ordner „/dev/null“ für „--data-dir“ ist keiner oder lässt sich nicht anlegen."_s +
               mehr;
}

void TestBefehlszeile::whatNeedsNoDisplay()
{
    QFETCH(QStringList, argumente);
    QFETCH(int, ausgang);
    QFETCH(QString, ausgabe);
    QFETCH(QString, meldung);
    starte(argumente);
    QCOMPARE(m_meldungen, meldung);
    QCOMPARE(m_ausgang, ausgang);
    QCOMPARE(m_ausgabe.isEmpty(), ausgabe.isEmpty());
    QVERIFY2(m_ausgabe.startsWith(ausgabe.toUtf8()), m_ausgabe.constData());
}

void TestBefehlszeile::theLanguage_data()
{
    QTest::addColumn<QStringList>("option");
    QTest::addColumn<QByteArray>("einstellung");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<bool>("englisch");
    const QStringList keine;
    QTest::newRow("that of the option")
        << QStringList{u"--language"_s, u"en"_s} << QByteArray("de") << u"de_DE.UTF-8"_s << true;
    QTest::newRow("German too") << QStringList{u"--language"_s, u"de"_s} << QByteArray("en")
                                << u"en_GB.UTF-8"_s << false;
    QTest::newRow("that of the settings") << keine << QByteArray("en") << u"de_DE.UTF-8"_s << true;
    QTest::newRow("that of the desktop") << keine << QByteArray() << u"en_GB.UTF-8"_s << true;
    QTest::newRow("German where there is none") << keine << QByteArray() << u"C"_s << false;
}

void TestBefehlszeile::theLanguage()
{
    QFETCH(QStringList, option);
    QFETCH(QByteArray, einstellung);
    QFETCH(QString, locale);
    QFETCH(bool, englisch);
    if (!einstellung.isEmpty()) {
        QVERIFY(QDir().mkpath(pfad(u".config/Mahlberg"_s)));
        QFile datei(pfad(u".config/Mahlberg/Mahlberg.conf"_s));
        QVERIFY(datei.open(QIODevice::WriteOnly));
        datei.write("[General]\nSprache=" + einstellung + '\n');
    }
    m_umgebung.insert(u"LC_ALL"_s, locale);
    starte(option + QStringList{u"food"_s});
    QCOMPARE(
        m_meldungen,
        englisch
            ? u"mahlberg: “food” lacks the name of a food. “mahlberg --help” tells more.\n"_s
            : u"mahlberg: Hinter „food“ fehlt der Name eines Lebensmittels. Mehr sagt „mahlberg --help“.\n"_s);
    starte(option + QStringList{u"--help"_s});
    QVERIFY(m_ausgabe.startsWith(englisch ? "Usage:" : "Aufruf:"));
    starte(option + QStringList{u"food"_s, u"Haferflocken"_s, u"12.5"_s});
    QVERIFY2(m_ausgabe.startsWith(englisch ? "Oats (rolled oats, porridge oats, oat flakes), 12.5 g"
                                           : "Haferflocken, 12,5 g"),
             m_ausgabe.constData());
}

void TestBefehlszeile::aPlanInEveryForm()
{
    schreibe(pfad(u"Plan.daten"_s), {{u"Butter"_s, 20}, {u"Haferflocken"_s, 50.5F}});
    const QStringList aufruf = {u"evaluate"_s, pfad(u"Plan.daten"_s), u"--energy"_s, u"2000"_s};
    starte(aufruf);
    QCOMPARE(m_ausgang, 0);
    QCOMPARE(m_meldungen, QString());
    QVERIFY(m_ausgabe.startsWith("Lebensmittel\n  Butter        20 g\n  Haferflocken  50 g\n"));
    starte(aufruf + QStringList{u"--format"_s, u"csv"_s});
    QVERIFY(m_ausgabe.startsWith("section,item,value,"));
    QVERIFY(m_ausgabe.contains("\nrows,Haferflocken,,50,true,false,"));
    QVERIFY(!m_ausgabe.contains('\r'));
    starte(aufruf + QStringList{u"--format=json"_s});
    const QJsonObject gesagt = QJsonDocument::fromJson(m_ausgabe).object();
    QCOMPARE(gesagt[u"rows"].toArray().size(), 2);
    // 20 % of 0.7 g, and of the oats, whose half gram falls away, 50 % of 13.5 g.
    const double protein = gesagt[u"nutrients"][u"protein"][u"value"].toDouble();
    QVERIFY(std::abs(protein - 6.89) < 1e-5);
    QCOMPARE(gesagt[u"nutrients"][u"protein"][u"unit"].toString(), u"g"_s);
    QCOMPARE(gesagt[u"nutrients"][u"protein"][u"reference"].toDouble(), 100.0);
}

/// The same bytes whatever is spoken, and the same as the room itself gives.
void TestBefehlszeile::programsReadTheSameEverywhere()
{
    schreibe(pfad(u"Plan.daten"_s), {{u"Butter"_s, 20}, {u"Mandeln"_s, 33}, {u"Weg"_s, 1}});
    for (const QString &form : {u"csv"_s, u"json"_s}) {
        for (const QStringList &aufruf : {QStringList{u"evaluate"_s, pfad(u"Plan.daten"_s)},
                                          QStringList{u"food"_s, u"Mandeln"_s, u"12,5"_s}}) {
            QSet<QByteArray> ausgaben;
            for (const QString &locale : {u"de_DE.UTF-8"_s, u"en_US.UTF-8"_s, u"C"_s}) {
                m_umgebung.insert(u"LC_ALL"_s, locale);
                starte(aufruf + QStringList{u"--format"_s, form});
                QCOMPARE(m_ausgang, 0);
                ausgaben << m_ausgabe;
            }
            QCOMPARE(ausgaben.size(), 1);
        }
    }
}

void TestBefehlszeile::englishNamesInEveryLanguage()
{
    for (const QString &sprache : {u"de"_s, u"en"_s}) {
        for (const QString &name : {u"Almonds"_s, u"almonds"_s, u"Mandeln"_s, u"MANDELN"_s}) {
            starte({u"--language"_s, sprache, u"food"_s, u"--format"_s, u"json"_s, name});
            const QJsonObject gesagt = QJsonDocument::fromJson(m_ausgabe).object();
            QCOMPARE(gesagt[u"food"][u"name"].toString(), u"Mandeln"_s);
            QCOMPARE(gesagt[u"food"][u"english_name"].toString(), u"Almonds"_s);
        }
    }
    starte({u"--language"_s, u"en"_s, u"food"_s, u"Almond flakes"_s});
    QCOMPARE(m_ausgang, 1);
    QVERIFY2(
        m_meldungen.startsWith(u"mahlberg: There is no food “Almond flakes”. Similar names: “"_s),
        qPrintable(m_meldungen));
    QVERIFY(m_meldungen.contains(u"“Almond"_s));
}

void TestBefehlszeile::ownFoodsOfTheHomeAndOfAFolder()
{
    schreibe(Datenordner(m_heim->path()).pathForDataFile(u"customdaten"_s), {{u"Müsli"_s, 111}});
    QVERIFY(QDir().mkpath(pfad(u"Praxis"_s)));
    schreibe(pfad(u"Praxis/MahlbergCustomnutr.daten"_s), {{u"Müsli"_s, 222}});
    const QStringList aufruf = {u"food"_s, u"Müsli"_s, u"--format"_s, u"json"_s};
    const auto energie = [this] {
        return QJsonDocument::fromJson(m_ausgabe)[u"nutrients"][u"energy"][u"value"].toInt();
    };
    starte(aufruf);
    QCOMPARE(energie(), 111);
    starte(aufruf + QStringList{u"--data-dir"_s, pfad(u"Praxis"_s)});
    QCOMPARE(energie(), 222);

    schreibe(pfad(u"Plan.daten"_s), {{u"Müsli"_s, 100}});
    const QStringList plan = {u"evaluate"_s, pfad(u"Plan.daten"_s), u"--format"_s, u"json"_s};
    const auto spaltensumme = [this] {
        return QJsonDocument::fromJson(m_ausgabe)[u"nutrients"][u"energy"][u"column_sum"].toInt();
    };
    starte(plan);
    QCOMPARE(spaltensumme(), 111);
    starte(plan + QStringList{u"--data-dir"_s, pfad(u"Praxis"_s)});
    QCOMPARE(spaltensumme(), 222);
}

void TestBefehlszeile::theNamedFolderIsForTheUserAlone()
{
    starte({u"food"_s, u"Butter"_s, u"--data-dir"_s, pfad(u"neu/darin"_s)});
    QCOMPARE(m_ausgang, 0);
    for (const QString &ordner : {u"neu"_s, u"neu/darin"_s}) {
        struct stat zustand = {};
        QVERIFY(stat(QFile::encodeName(pfad(ordner)).constData(), &zustand) == 0);
        QCOMPARE(zustand.st_mode & 07777U, 0700U);
    }
}

void TestBefehlszeile::theHomeStaysAsItIs()
{
    schreibe(pfad(u"Plan.daten"_s), {{u"Butter"_s, 20}});
    starte({u"food"_s, u"Butter"_s});
    starte({u"evaluate"_s, pfad(u"Plan.daten"_s)});
    starte({u"--help"_s, u"--data-dir"_s, pfad(u"nie"_s)});
    starte({u"--nonsense"_s, u"--data-dir"_s, pfad(u"nie"_s)});
    QCOMPARE(QDir(m_heim->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{u"Plan.daten"_s});
}

void TestBefehlszeile::anOutputThatCannotBeWritten()
{
    starte({u"food"_s, u"Butter"_s}, u"/dev/full"_s);
    QCOMPARE(m_ausgang, 1);
    QCOMPARE(m_meldungen, u"mahlberg: Die Ausgabe ließ sich nicht schreiben.\n"_s);
}

/// Qt ends a program whose windows it can't open.
void TestBefehlszeile::windowsNeedADisplay()
{
    starte({});
    QVERIFY(m_ausgang != 0);
    m_umgebung.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    starte({u"-platform"_s, u"keine"_s});
    QVERIFY(m_ausgang != 0);
}

void TestBefehlszeile::windowsWithAFolderThatIsNone()
{
    starte({u"--data-dir"_s, u"/dev/null/x"_s, u"--language"_s, u"en"_s});
    QCOMPARE(m_ausgang, 2);
    QCOMPARE(m_meldungen, u"mahlberg: “/dev/null/x” for “--data-dir” is no folder or cannot be "
                          "made. “mahlberg --help” tells more.\n"_s);
}

void TestBefehlszeile::aDisplayThatDoesNotAnswer_data()
{
    QTest::addColumn<QString>("plattform");
    QTest::addColumn<bool>("antwortet");
    QTest::newRow("without a display") << u"offscreen"_s << true;
    QTest::newRow("nobody answers") << u"xcb"_s << false;
    QTest::newRow("no such platform") << u"keine"_s << false;
}

/// How ./run finds out whether it can open the windows.
void TestBefehlszeile::aDisplayThatDoesNotAnswer()
{
    QFETCH(QString, plattform);
    QFETCH(bool, antwortet);
    m_umgebung.insert(u"QT_QPA_PLATFORM"_s, plattform);
    m_umgebung.insert(u"DISPLAY"_s, u"localhost:4711"_s);
    starteProgramm(QStringLiteral(ANZEIGE_PRUEFEN), {u"--language"_s, u"en"_s});
    QCOMPARE(m_ausgang == 0, antwortet);
}

QTEST_GUILESS_MAIN(TestBefehlszeile)
#include "TestBefehlszeile.moc"
