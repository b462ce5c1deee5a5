#include "Csv.h"

#include <QTest>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

/// Tables as they go out.
class TestCsv : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFormIsThatOfTheCountry_data();
    void theFormIsThatOfTheCountry();
    void programsGetTheSameEverywhere();
    void aTableStandsAsItIs();
    void fieldsAreQuotedWhereTheyHaveTo_data();
    void fieldsAreQuotedWhereTheyHaveTo();
    void numbersAreWrittenInFull_data();
    void numbersAreWrittenInFull();
    void doublesKeepAllTheirDigits();
    void whatIsNoFigureIsNoFormula();
    void whatWouldRunIsMarked_data();
    void whatWouldRunIsMarked();
    void aRowWithNothingInItCounts();
};

void TestCsv::theFormIsThatOfTheCountry_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QChar>("trennung");
    QTest::addColumn<QChar>("dezimal");
    QTest::newRow("Germany") << QLocale(QLocale::German, QLocale::Germany) << QChar(u';')
                             << QChar(u',');
    QTest::newRow("Switzerland") << QLocale(QLocale::German, QLocale::Switzerland) << QChar(u',')
                                 << QChar(u'.');
    QTest::newRow("United States")
        << QLocale(QLocale::English, QLocale::UnitedStates) << QChar(u',') << QChar(u'.');
    QTest::newRow("no language") << QLocale::c() << QChar(u',') << QChar(u'.');
}

void TestCsv::theFormIsThatOfTheCountry()
{
    QFETCH(QLocale, locale);
    const Csv::Form form = Csv::formDesTabellenprogramms(locale);
    QTEST(form.trennung, "trennung");
    QTEST(form.dezimal, "dezimal");
    QVERIFY(form.marke);
    QCOMPARE(form.zeilenende, u"\r\n"_s);
}

void TestCsv::programsGetTheSameEverywhere()
{
    QCOMPARE(Csv::schreiben({{u"Käse"_s}, {{1.5F}}}, Csv::formFuerProgramme()),
             QByteArray("K\xC3\xA4se\n1.5\n"));
}

void TestCsv::aTableStandsAsItIs()
{
    const Csv::Tabelle tabelle = {
        {u"Name"_s, u"Energie (kcal)"_s, u"Gicht"_s},
        {{u"Käse"_s, 312.5F, u"-"_s}, {u"Öl; kalt"_s, 1234.0F, {}}, {QString(), -0.5, u""_s}}};
    const Csv::Form form = {
        .trennung = u';', .dezimal = u',', .marke = true, .zeilenende = u"\r\n"_s};
    const QByteArray bytes = Csv::schreiben(tabelle, form);
    QVERIFY(bytes.startsWith("\xEF\xBB\xBFName"));
    QCOMPARE(QString::fromUtf8(bytes.sliced(3)), u"Name;Energie (kcal);Gicht\r\n"
                                                 u"Käse;312,5;'-\r\n"
                                                 u"\"Öl; kalt\";1234;\r\n"
                                                 u";-0,5;\"\"\r\n"_s);
}

void TestCsv::fieldsAreQuotedWhereTheyHaveTo_data()
{
    QTest::addColumn<QChar>("trennung");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("feld");
    const QChar komma = u',';
    const QChar strichpunkt = u';';
    QTest::newRow("plain") << komma << u"Brot"_s << u"Brot"_s;
    QTest::newRow("the separator") << komma << u"Brot, dunkel"_s << u"\"Brot, dunkel\""_s;
    QTest::newRow("another separator") << strichpunkt << u"Brot, dunkel"_s << u"Brot, dunkel"_s;
    QTest::newRow("quotes") << komma << u"\"Bio\""_s << u"\"\"\"Bio\"\"\""_s;
    QTest::newRow("line feed") << komma << u"a\nb"_s << u"\"a\nb\""_s;
    QTest::newRow("return") << komma << u"a\rb"_s << u"\"a\rb\""_s;
    QTest::newRow("blank in front") << komma << u" a"_s << u"\" a\""_s;
    QTest::newRow("blank behind") << komma << u"a "_s << u"\"a \""_s;
    QTest::newRow("empty") << komma << u""_s << u"\"\""_s;
}

void TestCsv::fieldsAreQuotedWhereTheyHaveTo()
{
    QFETCH(QChar, trennung);
    QFETCH(QString, text);
    QFETCH(QString, feld);
    const QByteArray bytes =
        Csv::schreiben({{text, u"x"_s}, {{text, u"x"_s}}}, {.trennung = trennung});
    const QString zeile = feld + trennung + u"x\n"_s;
    QCOMPARE(QString::fromUtf8(bytes), zeile + zeile); // headings are fields like others
}

void TestCsv::numbersAreWrittenInFull_data()
{
    QTest::addColumn<float>("zahl");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole") << 39900.0F << u"39900"_s;
    QTest::newRow("tenth") << 0.1F << u"0,1"_s;
    QTest::newRow("next to a tenth") << std::nextafter(0.1F, 1.0F) << u"0,10000001"_s;
    QTest::newRow("small") << 0.0000001F << u"0,0000001"_s;
    QTest::newRow("large") << 1e20F << u"100000002004087734272"_s;
    QTest::newRow("below zero") << -1.5F << u"-1,5"_s;
    QTest::newRow("zero") << 0.0F << u"0"_s;
    QTest::newRow("a third") << 1.0F / 3.0F << u"0,33333334"_s;
}

void TestCsv::numbersAreWrittenInFull()
{
    QFETCH(float, zahl);
    QFETCH(QString, text);
    QCOMPARE(Csv::zahltext(zahl, u','), text);
    QCOMPARE(QString::fromUtf8(
                 Csv::schreiben({{u"x"_s}, {{zahl}}}, {.trennung = u';', .dezimal = u','})),
             u"x\n"_s + text + u'\n');
    QCOMPARE(QString::fromUtf8(
                 Csv::schreiben({{u"x"_s}, {{zahl}}}, {.trennung = u',', .dezimal = u','})),
             text.contains(u',') ? u"x\n\""_s + text + u"\"\n"_s : u"x\n"_s + text + u'\n');
}

void TestCsv::doublesKeepAllTheirDigits()
{
    QCOMPARE(Csv::zahltext(0.1 + 0.2, u'.'), u"0.30000000000000004"_s);
    QCOMPARE(Csv::zahltext(std::numeric_limits<double>::denorm_min(), u'.').size(), 326);
    QCOMPARE(Csv::zahltext(std::numeric_limits<double>::max(), u'.').size(), 309);
}

void TestCsv::whatIsNoFigureIsNoFormula()
{
    const float unendlich = std::numeric_limits<float>::infinity();
    QCOMPARE(Csv::schreiben({{u"x"_s, u"y"_s}, {{unendlich, -unendlich}}}, {}),
             QByteArray("x,y\ninf,'-inf\n"));
}

void TestCsv::whatWouldRunIsMarked_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("geschuetzt");
    QTest::newRow("suitable") << u"+"_s << u"'+"_s;
    QTest::newRow("neutral") << u"0"_s << u"0"_s;
    QTest::newRow("unsuitable") << u"-"_s << u"'-"_s;
    QTest::newRow("formula") << u"=1+2"_s << u"'=1+2"_s;
    QTest::newRow("at") << u"@SUM(A1)"_s << u"'@SUM(A1)"_s;
    QTest::newRow("tab") << u"\tx"_s << u"'\tx"_s;
    QTest::newRow("return") << u"\rx"_s << u"'\rx"_s;
    QTest::newRow("line feed") << u"\nx"_s << u"'\nx"_s;
    QTest::newRow("behind blanks") << u"  =1"_s << u"'  =1"_s;
    QTest::newRow("wide") << u"\uFF1D1"_s << u"'\uFF1D1"_s;
    QTest::newRow("marked") << u"'+"_s << u"''+"_s;
    QTest::newRow("marked twice") << u"''=1"_s << u"'''=1"_s;
    QTest::newRow("apostrophe") << u"'n Abend"_s << u"'n Abend"_s;
    QTest::newRow("apostrophe alone") << u"'"_s << u"'"_s;
    QTest::newRow("sign inside") << u"Brot - dunkel"_s << u"Brot - dunkel"_s;
    QTest::newRow("empty") << u""_s << u""_s;
}

void TestCsv::whatWouldRunIsMarked()
{
    QFETCH(QString, text);
    QFETCH(QString, geschuetzt);
    QCOMPARE(Csv::geschuetzt(text), geschuetzt);
    QCOMPARE(Csv::ungeschuetzt(geschuetzt), text);
}

void TestCsv::aRowWithNothingInItCounts()
{
    QCOMPARE(Csv::schreiben({{u"x"_s}, {{Csv::Zelle()}}}, {}), QByteArray("x\n\"\"\n"));
}

QTEST_GUILESS_MAIN(TestCsv)
#include "TestCsv.moc"
