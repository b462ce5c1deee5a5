#include "Werkzeuglauf.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

/// The manual pages and the completions of the shells name the options that the programs have.
class TestAufrufhilfen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theOptionsAreThoseOfTheProgram_data();
    void theOptionsAreThoseOfTheProgram();
    void bashCompletes_data();
    void bashCompletes();
};

namespace {

const QDir verlegt(QStringLiteral(VERLEGT));

/// What the pattern's first pair of brackets catches, without those that Qt gives to every program.
QSet<QString> optionen(const QString &text, const QString &muster)
{
    QSet<QString> alle;
    auto treffer = QRegularExpression(muster).globalMatch(text);
    while (treffer.hasNext()) {
        alle << treffer.next().captured(1);
    }
    alle.remove(u"help-all"_s);
    return alle;
}

/// What a program says of itself, and of each of its commands.
QString hilfetext(const QString &programm)
{
    const QString pfad = verlegt.filePath(u"bin/"_s + programm);
    return starten(qPrintable(pfad), {u"--help"_s}).ausgabe;
}

} // namespace

void TestAufrufhilfen::theOptionsAreThoseOfTheProgram_data()
{
    QTest::addColumn<QString>("programm");
    QTest::addColumn<QString>("datei");
    QTest::addColumn<QString>("muster");
    struct Ort
    {
        const char *datei;
        const char *muster;
    };
    static constexpr std::array<Ort, 5> orte = {{
        {"share/man/man1/%1.1", "Fl -([a-z][a-z-]*)"},
        {"share/man/de/man1/%1.1", "Fl -([a-z][a-z-]*)"},
        {"share/bash-completion/completions/%1", "(?<=[ '])--([a-z][a-z-]*)"},
        {"share/zsh/site-functions/_%1", "(?<=[ '{,)])--([a-z][a-z-]*)"},
        {"share/fish/vendor_completions.d/%1.fish", "(?<!set) -l ([a-z][a-z-]*)"},
    }};
    for (const QString &programm : {u"mahlberg"_s, u"datenlesen"_s, u"wertung-erklaeren"_s}) {
        for (const Ort &ort : orte) {
            const QString datei = QString::fromLatin1(ort.datei).arg(programm);
            QTest::newRow(qPrintable(datei))
                << programm << datei << QString::fromLatin1(ort.muster);
        }
    }
}

void TestAufrufhilfen::theOptionsAreThoseOfTheProgram()
{
    QFETCH(QString, programm);
    QFETCH(QString, datei);
    QFETCH(QString, muster);
    const QSet<QString> vorhanden = optionen(hilfetext(programm), u"--([a-z][a-z-]*)"_s);
    QVERIFY(vorhanden.contains(u"help"_s) && vorhanden.size() > 1);
    QFile seite(verlegt.filePath(datei));
    QVERIFY(seite.open(QIODevice::ReadOnly));
    QCOMPARE(optionen(QString::fromUtf8(seite.readAll()), muster), vorhanden);
}

void TestAufrufhilfen::bashCompletes_data()
{
    QTest::addColumn<QString>("programm");
    QTest::addColumn<QStringList>("worte"); // the last one is being typed
    QTest::addColumn<QString>("vorschlaege");
    QTest::newRow("an option") << u"mahlberg"_s << QStringList{u"--la"_s} << u"--language"_s;
    QTest::newRow("the languages")
        << u"mahlberg"_s << QStringList{u"--language"_s, QString()} << u"de en"_s;
    QTest::newRow("the commands") << u"mahlberg"_s << QStringList{u"f"_s} << u"food"_s;
    QTest::newRow("an option of a command")
        << u"mahlberg"_s << QStringList{u"evaluate"_s, u"--f"_s} << u"--format"_s;
    QTest::newRow("the formats") << u"mahlberg"_s
                                 << QStringList{u"food"_s, u"--format"_s, QString()}
                                 << u"text csv json"_s;
    QTest::newRow("files of the program only")
        << u"mahlberg"_s << QStringList{u"x/"_s} << u"x/Woche.daten"_s;
    QTest::newRow("a file to read")
        << u"datenlesen"_s << QStringList{u"x/"_s} << u"x/Woche.daten"_s;
    QTest::newRow("a table") << u"wertung-erklaeren"_s << QStringList{u"--table"_s, u"x/L"_s}
                             << u"x/Liste.csv"_s;
    QTest::newRow("all rules") << u"wertung-erklaeren"_s << QStringList{u"--r"_s} << u"--rules"_s;
}

void TestAufrufhilfen::bashCompletes()
{
    QFETCH(QString, programm);
    QFETCH(QStringList, worte);
    QFETCH(QString, vorschlaege);
    const QString ergaenzung = verlegt.filePath(u"share/bash-completion/completions/"_s + programm);
    const QString skript = u"cd \"$(mktemp -d)\" && mkdir x && touch x/Woche.daten x/Liste.csv && "
                           u"source \"$1\"; shift\n"
                           "compopt() { :; }\n"
                           "COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1))\n"
                           "$(complete -p \"$1\" | sed 's/.*-F \\([^ ]*\\).*/\\1/')\n"
                           "echo -n \"${COMPREPLY[*]}\"\n"
                           "cd / && rm -r \"$OLDPWD\""_s;
    const Lauf lauf =
        starten("bash", QStringList{u"-c"_s, skript, u"bash"_s, ergaenzung, programm} + worte);
    QCOMPARE(lauf.fehler, QString());
    QCOMPARE(lauf.ausgabe, vorschlaege);
}

QTEST_GUILESS_MAIN(TestAufrufhilfen)
#include "TestAufrufhilfen.moc"
