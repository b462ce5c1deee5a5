#include "Werkzeuglauf.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// What desktops, shops, manuals and shells read: in order by the checkers of those who read it,
/// and all of one mind.
class TestPaketdateien : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theCheckersObjectToNothing_data();
    void theCheckersObjectToNothing();
    void theCheckersWouldObject_data();
    void theCheckersWouldObject();
    void everyoneNamesTheSameRelease_data();
    void everyoneNamesTheSameRelease();
    void thePicturesAreThereInBothLanguages();
    void everyTextStandsInBothLanguages_data();
    void everyTextStandsInBothLanguages();
    void theFlatpakMakesWhatIsInstalled();

private:
    QTemporaryDir m_ordner;
};

namespace {

const QDir projekt(QStringLiteral(PROJEKT));
const QDir verlegt(QStringLiteral(VERLEGT));

QString lies(const QString &pfad)
{
    QFile datei(pfad);
    return datei.open(QIODevice::ReadOnly) ? QString::fromUtf8(datei.readAll()) : QString();
}

/// The texts that the pattern's first pair of brackets catches.
QStringList gefunden(const QString &text, const char *muster)
{
    QStringList alle;
    auto treffer =
        QRegularExpression(QString::fromUtf8(muster), QRegularExpression::MultilineOption)
            .globalMatch(text);
    while (treffer.hasNext()) {
        alle << treffer.next().captured(1);
    }
    return alle;
}

} // namespace

void TestPaketdateien::theCheckersObjectToNothing_data()
{
    QTest::addColumn<QStringList>("befehl");
    const auto datei = [](const QString &name) {
        return verlegt.filePath(u"share/"_s + name);
    };
    QTest::newRow("the desktop's entry") << QStringList{
        u"desktop-file-validate"_s, datei(u"applications/org.mahlberg.Mahlberg.desktop"_s)};
    QTest::newRow("what software centres show")
        << QStringList{u"appstreamcli"_s, u"validate"_s, u"--no-net"_s, u"--strict"_s,
                       datei(u"metainfo/org.mahlberg.Mahlberg.metainfo.xml"_s)};
    QTest::newRow("the kind of file") << QStringList{
        u"xmllint"_s, u"--noout"_s, datei(u"mime/packages/org.mahlberg.Mahlberg.xml"_s)};
    for (const QString &programm : {u"mahlberg"_s, u"datenlesen"_s, u"wertung-erklaeren"_s}) {
        for (const QString &ordner : {u"man/man1/"_s, u"man/de/man1/"_s}) {
            const QString seite = datei(ordner + programm + u".1"_s);
            const QString zeile = ordner + programm;
            QTest::newRow(qPrintable(zeile + u", mandoc"_s))
                << QStringList{u"mandoc"_s, u"-Tlint"_s, u"-Wwarning"_s, seite};
            QTest::newRow(qPrintable(zeile + u", groff"_s)) << QStringList{
                u"man"_s, u"--warnings"_s, u"-EUTF-8"_s, u"-Tutf8"_s, u"-Z"_s, u"-l"_s, seite};
        }
        const QString bash = datei(u"bash-completion/completions/"_s + programm);
        const QString zsh = datei(u"zsh/site-functions/_"_s + programm);
        const QString fish = datei(u"fish/vendor_completions.d/"_s + programm + u".fish"_s);
        QTest::newRow(qPrintable(programm + u", bash"_s)) << QStringList{u"bash"_s, u"-n"_s, bash};
        QTest::newRow(qPrintable(programm + u", zsh"_s)) << QStringList{u"zsh"_s, u"-n"_s, zsh};
        QTest::newRow(qPrintable(programm + u", fish"_s)) << QStringList{u"fish"_s, u"-n"_s, fish};
    }
}

void TestPaketdateien::theCheckersObjectToNothing()
{
    QFETCH(QStringList, befehl);
    QVERIFY2(QFile::exists(befehl.last()), qPrintable(befehl.last()));
    const Lauf lauf = starten(qPrintable(befehl.first()), befehl.mid(1));
    QVERIFY2(lauf.ausgang == 0 && lauf.fehler.isEmpty(), qPrintable(lauf.ausgabe + lauf.fehler));
}

void TestPaketdateien::theCheckersWouldObject_data()
{
    QTest::addColumn<QStringList>("befehl");
    QFile datei(m_ordner.filePath(u"keins"_s));
    QVERIFY(datei.open(QIODevice::WriteOnly) && datei.write("if (\n") > 0);
    const QString keins = datei.fileName();
    QTest::newRow("an entry") << QStringList{u"desktop-file-validate"_s, keins};
    QTest::newRow("software centres")
        << QStringList{u"appstreamcli"_s, u"validate"_s, u"--no-net"_s, keins};
    QTest::newRow("a manual page") << QStringList{u"mandoc"_s, u"-Tlint"_s, u"-Wwarning"_s, keins};
    for (const QString &schale : {u"bash"_s, u"zsh"_s, u"fish"_s}) {
        QTest::newRow(qPrintable(schale)) << QStringList{schale, u"-n"_s, keins};
    }
}

/// A checker that passes whatever it is given is none.
void TestPaketdateien::theCheckersWouldObject()
{
    QFETCH(QStringList, befehl);
    const Lauf lauf = starten(qPrintable(befehl.first()), befehl.mid(1));
    QVERIFY(lauf.ausgang > 0);
}

void TestPaketdateien::everyoneNamesTheSameRelease_data()
{
    QTest::addColumn<QString>("datei");
    QTest::addColumn<QByteArray>("ausgabe");
    QTest::addColumn<QByteArray>("tag");
    QTest::newRow("the changes, for users")
        << u"CHANGELOG.md"_s << QByteArray("^## ([0-9.]+) \\(") << QByteArray("^## .* \\((.*)\\)$");
    QTest::newRow("software centres")
        << u"packaging/org.mahlberg.Mahlberg.metainfo.xml.in"_s
        << QByteArray("<release version=\"(.*?)\"") << QByteArray("<release .*date=\"(.*)\"");
    QTest::newRow("Debian") << u"debian/changelog"_s << QByteArray("^mahlberg \\((.*)\\)")
                            << QByteArray("^ -- .*  ..., (.*) ..:");
}

/// The newest release stands first, with the day on which it came out.
void TestPaketdateien::everyoneNamesTheSameRelease()
{
    QFETCH(QString, datei);
    QFETCH(QByteArray, ausgabe);
    QFETCH(QByteArray, tag);
    const QString text = lies(projekt.filePath(datei));
    QCOMPARE(gefunden(text, ausgabe).value(0), QStringLiteral(MAHLBERG_VERSION));
    const QString wann = gefunden(text, tag).value(0);
    const QDate iso = QDate::fromString(wann, Qt::ISODate);
    const QDate debian = QLocale::c().toDate(wann, u"dd MMM yyyy"_s);
    const QString neuestes =
        gefunden(lies(projekt.filePath(u"CHANGELOG.md"_s)), "^## .* \\((.*)\\)$").value(0);
    QCOMPARE(iso.isValid() ? iso : debian, QDate::fromString(neuestes, Qt::ISODate));
}

void TestPaketdateien::thePicturesAreThereInBothLanguages()
{
    const QString text =
        lies(verlegt.filePath(u"share/metainfo/org.mahlberg.Mahlberg.metainfo.xml"_s));
    const QString wo = QStringLiteral(MAHLBERG_WEB "/");
    QSet<QString> englische;
    for (const QString &adresse : gefunden(text, "<image>(.*)</image>")) {
        QVERIFY2(adresse.startsWith(wo), qPrintable(adresse));
        const QImage bild(projekt.filePath(adresse.mid(wo.size())));
        QVERIFY2(bild.width() >= 620, qPrintable(adresse)); // smaller ones are not shown
        englische << adresse;
    }
    QVERIFY(englische.size() >= 3);
    QSet<QString> deutsche;
    for (QString adresse : gefunden(text, "<image xml:lang=\"de\">(.*)</image>")) {
        QVERIFY2(QFile::exists(projekt.filePath(adresse.mid(wo.size()))), qPrintable(adresse));
        deutsche << adresse.replace(u"/de/"_s, u"/en/"_s);
    }
    QCOMPARE(deutsche, englische);
}

void TestPaketdateien::everyTextStandsInBothLanguages_data()
{
    QTest::addColumn<QString>("datei");
    QTest::addColumn<QByteArray>("englisch");
    QTest::addColumn<QByteArray>("deutsch");
    const QString metainfo = u"metainfo/org.mahlberg.Mahlberg.metainfo.xml"_s;
    for (const QByteArray stueck : {"summary", "p", "li", "caption", "developer_name"}) {
        QTest::newRow("software centres, " + stueck) << metainfo << "<(" + stueck + ")>"
                                                     << "<(" + stueck + ") xml:lang=\"de\">";
    }
    QTest::newRow("the kind of file")
        << u"mime/packages/org.mahlberg.Mahlberg.xml"_s << QByteArray("<(comment)>")
        << QByteArray("<(comment) xml:lang=\"de\">");
    QTest::newRow("the desktop's entry") << u"applications/org.mahlberg.Mahlberg.desktop"_s
                                         << QByteArray("^(GenericName|Comment|Keywords)=")
                                         << QByteArray("^(GenericName|Comment|Keywords)\\[de\\]=");
}

void TestPaketdateien::everyTextStandsInBothLanguages()
{
    QFETCH(QString, datei);
    QFETCH(QByteArray, englisch);
    QFETCH(QByteArray, deutsch);
    const QString text = lies(verlegt.filePath(u"share/"_s + datei));
    QVERIFY(!gefunden(text, englisch).isEmpty());
    QCOMPARE(gefunden(text, deutsch), gefunden(text, englisch));
}

/// Other systems read the description of a Flatpak with a program of their own; what they would
/// make of it has the names under which the build installs.
void TestPaketdateien::theFlatpakMakesWhatIsInstalled()
{
    const QFileInfo beschreibung(
        projekt.filePath(u"packaging/flatpak/org.mahlberg.Mahlberg.yml"_s));
    const Lauf lauf = starten("flatpak-builder", {u"--show-manifest"_s, beschreibung.filePath()});
    QCOMPARE(lauf.ausgang, 0);
    QCOMPARE(lauf.fehler, QString()); // properties that it does not know
    const QJsonObject flatpak = QJsonDocument::fromJson(lauf.ausgabe.toUtf8()).object();
    const QString kennung = flatpak.value(u"id"_s).toString();
    QCOMPARE(kennung, beschreibung.completeBaseName());
    for (const QString &datei :
         {u"applications/%1.desktop"_s, u"metainfo/%1.metainfo.xml"_s, u"mime/packages/%1.xml"_s,
          u"icons/hicolor/128x128/apps/%1.png"_s, u"icons/hicolor/scalable/apps/%1.svg"_s}) {
        QVERIFY2(QFile::exists(verlegt.filePath(u"share/"_s + datei.arg(kennung))),
                 qPrintable(datei));
    }
    const QString programm = flatpak.value(u"command"_s).toString();
    QVERIFY(QFileInfo(verlegt.filePath(u"bin/"_s + programm)).isExecutable());

    const QJsonObject bau = flatpak.value(u"modules"_s).toArray().first().toObject();
    const QJsonObject quelle = bau.value(u"sources"_s).toArray().first().toObject();
    const QDir ordner(beschreibung.dir().filePath(quelle.value(u"path"_s).toString()));
    QCOMPARE(QDir::cleanPath(ordner.path()), projekt.path());
    for (const auto &option : bau.value(u"config-opts"_s).toArray()) {
        const QString name = gefunden(option.toString(), "^-D([A-Z_]+)=").value(0);
        const QString bekannt = lies(projekt.filePath(u"CMakeLists.txt"_s));
        QVERIFY2(name.startsWith(u"CMAKE_"_s) || name == u"BUILD_TESTING" || bekannt.contains(name),
                 qPrintable(option.toString()));
    }
}

QTEST_GUILESS_MAIN(TestPaketdateien)
#include "TestPaketdateien.moc"
