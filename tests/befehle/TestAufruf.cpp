#include "Aufruf.h"
#include "Aufrufworte.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

class TestAufruf : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsAskedFor_data();
    void whatIsAskedFor();
    void whatIsWrong_data();
    void whatIsWrong();
    void theLanguageIsKnownInSpiteOfAFault();
    void everyFaultHasItsSentence();
    void theHelpNamesAllThereIs();
};

namespace {

Aufruf gelesen(const QString &zeile)
{
    return leseAufruf(QStringList{u"mahlberg"_s} + zeile.split(u' ', Qt::SkipEmptyParts));
}

/// All of a command line in one line.
QString inKuerze(const Auftrag &auftrag)
{
    static const QStringList befehle = {u"windows"_s, u"help"_s, u"version"_s, u"evaluate"_s,
                                        u"food"_s};
    static const QStringList formen = {u"text"_s, u"csv"_s, u"json"_s};
    QStringList worte = {befehle[static_cast<int>(auftrag.befehl)]};
    if (!auftrag.name.isNull()) {
        worte << auftrag.name << QString::number(auftrag.gramm)
              << formen[static_cast<int>(auftrag.form)];
    }
    for (const auto &[wort, wert] : {std::pair(u"tour="_s, auftrag.rundgang),
                                     {u"language="_s, auftrag.sprache},
                                     {u"folder="_s, auftrag.datenordner}}) {
        if (!wert.isNull()) {
            worte << wort + wert;
        }
    }
    if (auftrag.eigenes) {
        worte << u"own"_s;
    }
    if (auftrag.energiebedarf != 0) {
        worte << u"energy=%1"_s.arg(auftrag.energiebedarf);
    }
    return worte.join(u' ');
}

} // namespace

void TestAufruf::whatIsAskedFor_data()
{
    QTest::addColumn<QString>("zeile");
    QTest::addColumn<QString>("erwartet");
    const auto zeile = [](const char *name, const QString &worte, const QString &erwartet) {
        QTest::newRow(name) << worte << erwartet;
    };
    zeile("nothing", u""_s, u"windows"_s);
    zeile("help", u"--help"_s, u"help"_s);
    zeile("help in short", u"-h"_s, u"help"_s);
    zeile("help behind a command that lacks its food", u"food --help"_s, u"help"_s);
    zeile("help goes before the version", u"--version --help"_s, u"help"_s);
    zeile("version", u"--version"_s, u"version"_s);
    zeile("version in short", u"-v"_s, u"version"_s);
    zeile("language", u"--language en"_s, u"windows language=en"_s);
    zeile("language with a sign between", u"--language=de"_s, u"windows language=de"_s);
    zeile("the last of two counts", u"--language de --language en"_s, u"windows language=en"_s);
    zeile("a folder", u"--data-dir /tmp/x"_s, u"windows folder=/tmp/x"_s);
    zeile("the tour", u"--tour build/tour --language en"_s,
          u"windows tour=build/tour language=en"_s);
    zeile("a plan", u"evaluate Plan.daten"_s, u"evaluate Plan.daten 100 text"_s);
    zeile("a plan as CSV", u"evaluate --format csv Plan.daten"_s, u"evaluate Plan.daten 100 csv"_s);
    zeile("options before the command", u"--format json --energy 2000 evaluate Plan.daten"_s,
          u"evaluate Plan.daten 100 json energy=2000"_s);
    zeile("options behind all", u"evaluate Plan.daten --data-dir x --format=text"_s,
          u"evaluate Plan.daten 100 text folder=x"_s);
    zeile("a food", u"food Butter"_s, u"food Butter 100 text"_s);
    zeile("a food and grams", u"food Butter 20"_s, u"food Butter 20 text"_s);
    zeile("a decimal comma", u"food Butter 12,5"_s, u"food Butter 12.5 text"_s);
    zeile("a decimal point", u"food Butter 12.5 --own"_s, u"food Butter 12.5 text own"_s);
    zeile("no grams at all", u"food Butter 0"_s, u"food Butter 0 text"_s);
    zeile("powers of ten", u"food Butter 1e3"_s, u"food Butter 1000 text"_s);
    zeile("a dash is a name", u"food -"_s, u"food - 100 text"_s);
    zeile("a name like an option", u"food -- --own"_s, u"food --own 100 text"_s);
    zeile("a name like a command", u"food evaluate"_s, u"food evaluate 100 text"_s);
    zeile("Qt's own options", u"-platform offscreen -style Fusion --language de -reverse"_s,
          u"windows language=de"_s);
    zeile("Qt's own options with two dashes", u"--platform offscreen --stylesheet=x"_s,
          u"windows"_s);
    zeile("Qt's own options before a command", u"-display :7 food Butter"_s,
          u"food Butter 100 text"_s);
}

void TestAufruf::whatIsAskedFor()
{
    QFETCH(QString, zeile);
    QFETCH(QString, erwartet);
    const Aufruf aufruf = gelesen(zeile);
    QVERIFY(!aufruf.fehler);
    QCOMPARE(inKuerze(aufruf.auftrag), erwartet);
}

void TestAufruf::whatIsWrong_data()
{
    QTest::addColumn<QString>("zeile");
    QTest::addColumn<Fehlerart>("art");
    QTest::addColumn<QString>("wort");
    const auto zeile = [](const char *name, const QString &worte, Fehlerart art,
                          const QString &wort) {
        QTest::newRow(name) << worte << art << wort;
    };
    using enum Fehlerart;
    zeile("an unknown option", u"--nonsense"_s, UnbekannteOption, u"--nonsense"_s);
    zeile("an unknown short one", u"-x"_s, UnbekannteOption, u"-x"_s);
    zeile("an unknown one with a value", u"food Butter --colour=red"_s, UnbekannteOption,
          u"--colour"_s);
    zeile("a known one cut short", u"--lang de"_s, UnbekannteOption, u"--lang"_s);
    zeile("two short ones in one", u"-hv"_s, UnbekannteOption, u"-hv"_s);
    zeile("an unknown one beside help", u"--help --nonsense"_s, UnbekannteOption, u"--nonsense"_s);
    zeile("a negative amount", u"food Butter -5"_s, UnbekannteOption, u"-5"_s);
    zeile("no language", u"--language"_s, AngabeFehlt, u"--language"_s);
    zeile("no folder", u"food Butter --data-dir"_s, AngabeFehlt, u"--data-dir"_s);
    zeile("a value for help", u"--help=food"_s, AngabeZuviel, u"--help=food"_s);
    zeile("a value for own beside another one", u"food --format=csv --own=1 Butter"_s, AngabeZuviel,
          u"--own=1"_s);
    zeile("a value for own before one that belongs there", u"food Butter --own=1 --format=csv"_s,
          AngabeZuviel, u"--own=1"_s);
    zeile("a value for help before another option", u"--help=1 --own"_s, AngabeZuviel,
          u"--help=1"_s);
    zeile("a value for an option of Qt", u"-reverse=1"_s, AngabeZuviel, u"-reverse=1"_s);
    zeile("an unknown language", u"--language fr"_s, SpracheUnbekannt, u"fr"_s);
    zeile("a language in capitals", u"--language DE"_s, SpracheUnbekannt, u"DE"_s);
    zeile("an empty folder", u"--data-dir="_s, OrdnerLeer, QString());
    zeile("an unknown form", u"food --format xml Butter"_s, FormUnbekannt, u"xml"_s);
    zeile("a form without a command", u"--format csv"_s, OptionUnpassend, u"--format"_s);
    zeile("own for a plan", u"evaluate --own Plan.daten"_s, OptionUnpassend, u"--own"_s);
    zeile("energy for a food", u"food --energy 2000 Butter"_s, OptionUnpassend, u"--energy"_s);
    zeile("a tour for a food", u"food Butter --tour x"_s, OptionUnpassend, u"--tour"_s);
    zeile("energy of nothing", u"evaluate --energy 0 P"_s, BedarfUngueltig, u"0"_s);
    zeile("energy below nothing", u"evaluate --energy -1 P"_s, BedarfUngueltig, u"-1"_s);
    zeile("a fraction of energy", u"evaluate --energy 2000.5 P"_s, BedarfUngueltig, u"2000.5"_s);
    zeile("energy beyond all numbers", u"evaluate --energy 2147483648 P"_s, BedarfUngueltig,
          u"2147483648"_s);
    zeile("an unknown command", u"eat Butter"_s, BefehlUnbekannt, u"eat"_s);
    zeile("a command in capitals", u"Food Butter"_s, BefehlUnbekannt, u"Food"_s);
    zeile("no plan", u"evaluate"_s, PlanFehlt, u"evaluate"_s);
    zeile("two plans", u"evaluate a b"_s, ArgumentZuviel, u"b"_s);
    zeile("no food", u"food --own"_s, NameFehlt, u"food"_s);
    zeile("three words for a food", u"food Butter 20 30"_s, ArgumentZuviel, u"30"_s);
    zeile("an amount that is no number", u"food Butter much"_s, MengeUngueltig, u"much"_s);
    zeile("an amount with its unit", u"food Butter 20g"_s, MengeUngueltig, u"20g"_s);
    zeile("a negative amount behind the dashes", u"food -- Butter -5"_s, MengeUngueltig, u"-5"_s);
    zeile("an infinite amount", u"food Butter inf"_s, MengeUngueltig, u"inf"_s);
    zeile("no number", u"food Butter nan"_s, MengeUngueltig, u"nan"_s);
    zeile("more than a number holds", u"food Butter 1e39"_s, MengeUngueltig, u"1e39"_s);
    zeile("two marks", u"food Butter 1.000,5"_s, MengeUngueltig, u"1.000,5"_s);
}

void TestAufruf::whatIsWrong()
{
    QFETCH(QString, zeile);
    QFETCH(Fehlerart, art);
    QFETCH(QString, wort);
    const Aufruf aufruf = gelesen(zeile);
    QVERIFY(aufruf.fehler.has_value());
    QCOMPARE(aufruf.fehler->art, art);
    QCOMPARE(aufruf.fehler->wort, wort);
}

void TestAufruf::theLanguageIsKnownInSpiteOfAFault()
{
    QCOMPARE(gelesen(u"--nonsense --language en"_s).auftrag.sprache, u"en"_s);
    QCOMPARE(gelesen(u"food --language en"_s).auftrag.sprache, u"en"_s);
    QVERIFY(gelesen(u"--language fr --nonsense"_s).auftrag.sprache.isNull());
}

void TestAufruf::everyFaultHasItsSentence()
{
    const auto satz = [](Fehlerart art) {
        return inWorten({art, u"X"_s});
    };
    using enum Fehlerart;
    QCOMPARE(satz(UnbekannteOption), u"Die Option „X“ gibt es nicht."_s);
    QCOMPARE(satz(AngabeFehlt), u"Hinter der Option „X“ fehlt eine Angabe."_s);
    QCOMPARE(satz(AngabeZuviel), u"Zu der Option in „X“ gehört keine Angabe."_s);
    QCOMPARE(satz(OptionUnpassend), u"Die Option „X“ passt nicht zu diesem Aufruf."_s);
    QCOMPARE(satz(SpracheUnbekannt), u"Die Option „--language“ kennt „de“ und „en“, nicht „X“."_s);
    QCOMPARE(satz(FormUnbekannt),
             u"Die Option „--format“ kennt „text“, „csv“ und „json“, nicht „X“."_s);
    QCOMPARE(satz(OrdnerLeer), u"Die Option „--data-dir“ verlangt einen Ordner."_s);
    QCOMPARE(satz(BedarfUngueltig),
             u"Die Option „--energy“ verlangt ganze kcal über 0, nicht „X“."_s);
    QCOMPARE(satz(BefehlUnbekannt), u"Den Befehl „X“ gibt es nicht."_s);
    QCOMPARE(satz(PlanFehlt), u"Hinter „X“ fehlt die Datei eines Plans."_s);
    QCOMPARE(satz(NameFehlt), u"Hinter „X“ fehlt der Name eines Lebensmittels."_s);
    QCOMPARE(satz(MengeUngueltig), u"Die Menge „X“ ist keine Zahl von Gramm ab 0."_s);
    QCOMPARE(satz(ArgumentZuviel), u"Die Angabe „X“ ist zu viel."_s);
    QCOMPARE(inWorten({UnbekannteOption, u"-\x1b[31m"_s}),
             u"Die Option „-\\x1b[31m“ gibt es nicht."_s);
}

void TestAufruf::theHelpNamesAllThereIs()
{
    const QString hilfe = hilfetext();
    for (const QString &wort :
         {u"mahlberg evaluate "_s, u"mahlberg food "_s, u"-h, --help"_s, u"-v, --version"_s,
          u"--language de|en"_s, u"--data-dir ORDNER"_s, u"--tour ORDNER"_s,
          u"--format text|csv|json"_s, u"--energy KCAL"_s, u"--own"_s}) {
        QVERIFY2(hilfe.contains(wort), qPrintable(wort));
    }
    // Each example is a call that is understood.
    static const QRegularExpression beispiel(u"Beispiel: mahlberg(.*)\n"_s);
    int beispiele = 0;
    for (auto treffer = beispiel.globalMatch(hilfe); treffer.hasNext(); ++beispiele) {
        const QString zeile = treffer.next().captured(1);
        QVERIFY2(!gelesen(zeile).fehler, qPrintable(zeile));
    }
    QCOMPARE(beispiele, 12);
}

QTEST_GUILESS_MAIN(TestAufruf)
#include "TestAufruf.moc"
