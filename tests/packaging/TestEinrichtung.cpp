#include "Werkzeuglauf.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QMimeDatabase>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <array>

using namespace Qt::StringLiterals;

/// What lies where after the program was installed and moved elsewhere, and whether it works there.
class TestEinrichtung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void nothingIsMissingAndNothingElseIsThere();
    void theProgramsCanBeStartedAndTheRestCant();
    void theIconHasItsSizes_data();
    void theIconHasItsSizes();
    void theMovedProgramShowsItsFoods();
    void theDesktopFindsTheEntry();
    void theMovedProgramsAnswer_data();
    void theMovedProgramsAnswer();
    void theFilesOfTheProgramAreKnown_data();
    void theFilesOfTheProgramAreKnown();

private:
    QTemporaryDir m_schreibtisch;
};

namespace {

const QDir verlegt(QStringLiteral(VERLEGT));

constexpr std::array<int, 9> groessen = {16, 22, 24, 32, 48, 64, 128, 256, 512};

QStringList allesInstallierte()
{
    QStringList pfade;
    QDirIterator dateien(verlegt.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (dateien.hasNext()) {
        pfade << verlegt.relativeFilePath(dateien.next());
    }
    pfade.sort();
    return pfade;
}

QByteArray lies(const QString &pfad)
{
    QFile datei(pfad);
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
}

QString programm(const QString &name)
{
    return verlegt.filePath(u"bin/"_s + name);
}

} // namespace

/// A desktop that has read what kinds of files were installed.
void TestEinrichtung::initTestCase()
{
    const QDir ordner(m_schreibtisch.path());
    const QString art = u"mime/packages/org.mahlberg.Mahlberg.xml"_s;
    QVERIFY(ordner.mkpath(u"mime/packages"_s));
    QVERIFY(QFile::copy(verlegt.filePath(u"share/"_s + art), ordner.filePath(art)));
    qputenv("XDG_DATA_DIRS", QFile::encodeName(ordner.path()) + ":/usr/share");
    const Lauf lauf = starten("update-mime-database", {ordner.filePath(u"mime"_s)});
    QVERIFY2(lauf.ausgang == 0 && lauf.fehler.isEmpty(), qPrintable(lauf.fehler));
}

void TestEinrichtung::nothingIsMissingAndNothingElseIsThere()
{
    QStringList erwartet = {
        u"share/applications/org.mahlberg.Mahlberg.desktop"_s,
        u"share/doc/mahlberg/CHANGELOG.md"_s,
        u"share/doc/mahlberg/LICENSE"_s,
        u"share/icons/hicolor/scalable/apps/org.mahlberg.Mahlberg.svg"_s,
        u"share/metainfo/org.mahlberg.Mahlberg.metainfo.xml"_s,
        u"share/mime/packages/org.mahlberg.Mahlberg.xml"_s,
    };
    for (const int groesse : groessen) {
        erwartet << u"share/icons/hicolor/%1x%1/apps/org.mahlberg.Mahlberg.png"_s.arg(groesse);
    }
    for (const char *name : {"mahlberg", "datenlesen", "wertung-erklaeren"}) {
        for (const char *wo :
             {"bin/%1", "share/man/man1/%1.1", "share/man/de/man1/%1.1",
              "share/bash-completion/completions/%1", "share/zsh/site-functions/_%1",
              "share/fish/vendor_completions.d/%1.fish"}) {
            erwartet << QString::fromLatin1(wo).arg(QLatin1String(name));
        }
    }
    erwartet.sort();
    QCOMPARE(allesInstallierte(), erwartet);
}

void TestEinrichtung::theProgramsCanBeStartedAndTheRestCant()
{
    for (const QString &pfad : allesInstallierte()) {
        const QFileInfo datei(verlegt.filePath(pfad));
        QVERIFY2(datei.isExecutable() == pfad.startsWith(u"bin/"), qPrintable(pfad));
        QVERIFY2(datei.size() > 0, qPrintable(pfad));
    }
}

void TestEinrichtung::theIconHasItsSizes_data()
{
    QTest::addColumn<int>("groesse");
    for (const int groesse : groessen) {
        QTest::addRow("%d points", groesse) << groesse;
    }
}

/// The apple is red, the corners are clear.
void TestEinrichtung::theIconHasItsSizes()
{
    QFETCH(int, groesse);
    const QImage bild(verlegt.filePath(
        u"share/icons/hicolor/%1x%1/apps/org.mahlberg.Mahlberg.png"_s.arg(groesse)));
    QCOMPARE(bild.size(), QSize(groesse, groesse));
    QCOMPARE(bild.pixelColor(0, 0).alpha(), 0);
    const QColor apfel = bild.pixelColor(groesse / 2, groesse * 2 / 5);
    QVERIFY2(apfel.alpha() == 255 && apfel.red() > 2 * apfel.green(), qPrintable(apfel.name()));
}

/// The windows, in German.
void TestEinrichtung::theMovedProgramShowsItsFoods()
{
    const QTemporaryDir ordner;
    const Lauf lauf = starten(qPrintable(programm(u"mahlberg"_s)),
                              {u"--language"_s, u"de"_s, u"--tour"_s, ordner.path()});
    QVERIFY2(lauf.ausgang == 0, qPrintable(lauf.fehler));
    QVERIFY(QDir(ordner.path()).entryList({u"*.png"_s}).size() > 10);
    const QString text = QString::fromUtf8(lies(ordner.filePath(u"summary.txt"_s)));
    for (const QString &eines : {u"1016 rows"_s, u"Herz und Kreislauf"_s, u", roh"_s}) {
        QVERIFY2(text.contains(eines), qPrintable(eines));
    }
}

/// Desktops go by the name of the entry, older ones by what it says of the program's windows.
void TestEinrichtung::theDesktopFindsTheEntry()
{
    const QTemporaryDir heim;
    QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
    umgebung.insert(u"HOME"_s, heim.path());
    umgebung.remove(u"XDG_CONFIG_HOME"_s);
    umgebung.insert(u"QT_PLUGIN_PATH"_s, QStringLiteral(BEDIENHAND));
    umgebung.insert(u"QT_QPA_GENERIC_PLUGINS"_s, u"bedienhand"_s);
    QProcess prozess;
    prozess.setProcessEnvironment(umgebung);
    prozess.start(programm(u"mahlberg"_s), {u"--data-dir"_s, heim.path()});
    prozess.write("desktop\nclose Mahlberg\n"); // read once the program runs
    QVERIFY(prozess.waitForFinished());
    const QRegularExpressionMatch namen =
        QRegularExpression(u"^desktop: (.+) (.+)$"_s, QRegularExpression::MultilineOption)
            .match(QString::fromUtf8(prozess.readAllStandardOutput()));
    const QByteArray eintrag =
        lies(verlegt.filePath(u"share/applications/"_s + namen.captured(1) + u".desktop"_s));
    QVERIFY2(eintrag.contains("\nStartupWMClass=" + namen.captured(2).toUtf8() + '\n'),
             eintrag.constData());
}

void TestEinrichtung::theMovedProgramsAnswer_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("argumente");
    QTest::addColumn<int>("ausgang");
    QTest::addColumn<QString>("text");
    QTest::newRow("the version") << u"mahlberg"_s << QStringList{u"--version"_s} << 0
                                 << QStringLiteral("Mahlberg " MAHLBERG_VERSION "\n");
    QTest::newRow("a food in English")
        << u"mahlberg"_s << QStringList{u"--language"_s, u"en"_s, u"food"_s, u"Haferflocken"_s} << 0
        << u"Oats (rolled oats, porridge oats, oat flakes), 100 g\n"_s;
    QTest::newRow("a rating explained")
        << u"wertung-erklaeren"_s << QStringList{u"Haferflocken"_s} << 0
        << u"Haferflocken (Oats (rolled oats, porridge oats, oat flakes))\n"_s;
    QTest::newRow("no rating to explain") << u"wertung-erklaeren"_s << QStringList{u"Einhorn"_s}
                                          << 1 << u"There is no food \"Einhorn\".\n"_s;
    QTest::newRow("no file") << u"datenlesen"_s << QStringList{u"/nowhere.daten"_s} << 1
                             << u"datenlesen: /nowhere.daten: there is no such file\n"_s;
}

void TestEinrichtung::theMovedProgramsAnswer()
{
    QFETCH(QString, name);
    QFETCH(QStringList, argumente);
    QFETCH(int, ausgang);
    QFETCH(QString, text);
    const Lauf lauf = starten(qPrintable(programm(name)), argumente);
    const QString antwort = ausgang == 0 ? lauf.ausgabe : lauf.fehler;
    QVERIFY2(antwort.startsWith(text), qPrintable(antwort));
    QCOMPARE(lauf.ausgang, ausgang);
}

void TestEinrichtung::theFilesOfTheProgramAreKnown_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("unsere");
    const QByteArray anfang("\x04\x0bstreamtyped\x81\xe8\x03", 16);
    const QByteArray alterAnfang("\x04\x0btypedstream\x81\x03\xe8", 16);
    QTest::newRow("by its name") << u"Woche.daten"_s << QByteArray("?") << true;
    QTest::newRow("by its bytes") << u"Woche"_s << anfang << true;
    QTest::newRow("by the bytes of older machines") << u"Woche"_s << alterAnfang << true;
    QTest::newRow("a text") << u"Woche.txt"_s << QByteArray("streamtyped") << false;
}

void TestEinrichtung::theFilesOfTheProgramAreKnown()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(bool, unsere);
    const QString art = QMimeDatabase().mimeTypeForFileNameAndData(name, bytes).name();
    QCOMPARE(art == u"application/x-mahlberg-daten"_s, unsere);
}

QTEST_GUILESS_MAIN(TestEinrichtung)
#include "TestEinrichtung.moc"
