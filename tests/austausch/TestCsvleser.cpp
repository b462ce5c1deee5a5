#include "Csvleser.h"

#include <QTest>

using namespace Qt::StringLiterals;
using enum Csv::Lesefehler;

Q_DECLARE_METATYPE(Csv::Lesefehler)

/// Tables of others, taken apart.
class TestCsvleser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textIsReadInEveryEncoding_data();
    void textIsReadInEveryEncoding();
    void theSignsOfWindowsAreKnown();
    void whatIsNoTextIsRefused_data();
    void whatIsNoTextIsRefused();
    void aFileMayBeAsLargeAsItIsAllowed();
    void rowsAreTakenApart_data();
    void rowsAreTakenApart();
    void absentIsToldFromEmpty();
    void linesAreCountedAsInTheFile_data();
    void linesAreCountedAsInTheFile();
    void aQuoteThatStaysOpenIsTold();
    void marksAreTakenOff();
    void tooManyRowsAreRefused();
    void theSeparatorIsGuessed_data();
    void theSeparatorIsGuessed();
};

void TestCsvleser::textIsReadInEveryEncoding_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("zeichensatz");
    QTest::newRow("UTF-8") << QByteArray("K\xC3\xA4se \xE2\x82\xAC") << u"UTF-8"_s;
    QTest::newRow("UTF-8 with mark")
        << QByteArray("\xEF\xBB\xBFK\xC3\xA4se \xE2\x82\xAC") << u"UTF-8"_s;
    QTest::newRow("Windows-1252") << QByteArray("K\xE4se \x80") << u"Windows-1252"_s;
    QTest::newRow("UTF-16 LE with mark")
        << QByteArray("\xFF\xFEK\0\xE4\0s\0e\0 \0\xAC\x20", 14) << u"UTF-16"_s;
    QTest::newRow("UTF-16 BE with mark")
        << QByteArray("\xFE\xFF\0K\0\xE4\0s\0e\0 \x20\xAC", 14) << u"UTF-16"_s;
    QTest::newRow("UTF-16 LE") << QByteArray("K\0\xE4\0s\0e\0 \0\xAC\x20", 12) << u"UTF-16"_s;
    QTest::newRow("UTF-16 BE") << QByteArray("\0K\0\xE4\0s\0e\0 \x20\xAC", 12) << u"UTF-16"_s;
}

void TestCsvleser::textIsReadInEveryEncoding()
{
    QFETCH(QByteArray, bytes);
    const Csv::Rohtext gelesen = Csv::entschluesseln(bytes);
    QCOMPARE(gelesen.fehler, Keiner);
    QCOMPARE(gelesen.text, u"Käse €"_s);
    QTEST(gelesen.zeichensatz, "zeichensatz");
}

/// From the first to the last that Latin-1 has not, and beside them.
void TestCsvleser::theSignsOfWindowsAreKnown()
{
    QCOMPARE(Csv::entschluesseln(QByteArray("\x7F\x80\x85\x96\x9F\xA0\xFF")).text,
             u"\x7F\u20AC\u2026\u2013\u0178\u00A0\u00FF"_s);
}

void TestCsvleser::whatIsNoTextIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Csv::Lesefehler>("fehler");
    QTest::newRow("nothing") << QByteArray() << Leer;
    QTest::newRow("a mark alone") << QByteArray("\xEF\xBB\xBF") << Leer;
    QTest::newRow("blanks and ends of lines") << QByteArray(" \r\n\n\t") << Leer;
    QTest::newRow("a picture") << QByteArray("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16) << KeinText;
    QTest::newRow("an archive of a spreadsheet") << QByteArray("PK\x03\x04\x14\x06") << KeinText;
    QTest::newRow("zeros") << QByteArray(64, '\0') << KeinText;
    QTest::newRow("damaged behind the mark") << QByteArray("\xEF\xBB\xBFK\xE4se") << KeinText;
    QTest::newRow("half a sign of UTF-16") << QByteArray("\xFF\xFEK\0\xE4", 5) << KeinText;
    QTest::newRow("perhaps UTF-16") << QByteArray("K\0e\0s\0\0\x01", 8) << KeinText;
    QTest::newRow("UTF-32") << QByteArray("\xFF\xFE\0\0K\0\0\0", 8) << KeinText;
}

void TestCsvleser::whatIsNoTextIsRefused()
{
    QFETCH(QByteArray, bytes);
    QTEST(Csv::entschluesseln(bytes).fehler, "fehler");
}

void TestCsvleser::aFileMayBeAsLargeAsItIsAllowed()
{
    QByteArray bytes(Csv::groessteDatei, 'x');
    QCOMPARE(Csv::entschluesseln(bytes).fehler, Keiner);
    bytes += 'x';
    QCOMPARE(Csv::entschluesseln(bytes).fehler, ZuGross);
}

void TestCsvleser::rowsAreTakenApart_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<QStringList>>("felder");
    const QList<QStringList> zwei = {{u"a"_s, u"b"_s}, {u"c"_s, u"d"_s}};
    QTest::newRow("line feeds") << u"a;b\nc;d\n"_s << zwei;
    QTest::newRow("returns") << u"a;b\rc;d\r"_s << zwei;
    QTest::newRow("both") << u"a;b\r\nc;d\r\n"_s << zwei;
    QTest::newRow("mixed") << u"a;b\r\nc;d\n"_s << zwei;
    QTest::newRow("last line without an end") << u"a;b\nc;d"_s << zwei;
    QTest::newRow("empty lines") << u"\na;b\n\n\nc;d\n\n"_s << zwei;
    QTest::newRow("blanks around") << u" a ; b\t\nc;d"_s << zwei;
    QTest::newRow("quotes around") << u"\"a\";\"b\"\n\"c\";\"d\""_s << zwei;
    QTest::newRow("blanks around quotes") << u" \"a\" ;b\nc; \"d\"\n"_s << zwei;
    QTest::newRow("the separator's line") << u"sep=;\na;b\nc;d"_s << zwei;
    QTest::newRow("another separator") << u"a,b;c"_s << QList<QStringList>{{u"a,b"_s, u"c"_s}};
    QTest::newRow("quotes in quotes")
        << u"\"a \"\"b\"\"\";\"\"\"\""_s << QList<QStringList>{{u"a \"b\""_s, u"\""_s}};
    QTest::newRow("separator in quotes")
        << u"\"a;b\";c"_s << QList<QStringList>{{u"a;b"_s, u"c"_s}};
    QTest::newRow("ends of lines in quotes")
        << u"\"a\r\nb\";\"c\rd\ne\""_s << QList<QStringList>{{u"a\r\nb"_s, u"c\rd\ne"_s}};
    QTest::newRow("blanks in quotes") << u"\" a \";b"_s << QList<QStringList>{{u" a "_s, u"b"_s}};
    QTest::newRow("a quote inside")
        << u"5\" Rohr;b"_s << QList<QStringList>{{u"5\" Rohr"_s, u"b"_s}};
    QTest::newRow("separator at the end") << u"a;\n"_s << QList<QStringList>{{u"a"_s, QString()}};
    QTest::newRow("separators alone")
        << u";;"_s << QList<QStringList>{{QString(), QString(), QString()}};
    QTest::newRow("sep as a food") << u"sep=;x\n"_s << QList<QStringList>{{u"sep="_s, u"x"_s}};
}

void TestCsvleser::rowsAreTakenApart()
{
    QFETCH(QString, text);
    QFETCH(QList<QStringList>, felder);
    const Csv::Saetze gelesen = Csv::zerlegen(text, u';');
    QList<QStringList> alle;
    for (const Csv::Satz &satz : gelesen.saetze) {
        alle << satz.felder;
    }
    // "sep=;" as the beginning of a first heading is a mark only when nothing else stands there.
    QCOMPARE(alle, felder);
    QCOMPARE(gelesen.offeneZeile, 0);
    QCOMPARE(gelesen.fehler, Keiner);
}

void TestCsvleser::absentIsToldFromEmpty()
{
    const QStringList felder = Csv::zerlegen(u"a;;\"\""_s, u';').saetze.first().felder;
    QVERIFY(felder[1].isNull());
    QVERIFY(!felder[2].isNull() && felder[2].isEmpty());
}

void TestCsvleser::linesAreCountedAsInTheFile_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<int>>("zeilen");
    QTest::newRow("one each") << u"a\nb\nc"_s << QList<int>{1, 2, 3};
    QTest::newRow("empty ones between") << u"\na\r\n\r\nb\r\rc"_s << QList<int>{2, 4, 6};
    QTest::newRow("several lines in quotes") << u"\"a\nb\r\nc\"\nd"_s << QList<int>{1, 4};
    QTest::newRow("behind the separator's line") << u"sep=;\r\na\nb"_s << QList<int>{2, 3};
}

void TestCsvleser::linesAreCountedAsInTheFile()
{
    QFETCH(QString, text);
    QList<int> zeilen;
    for (const Csv::Satz &satz : Csv::zerlegen(text, u';').saetze) {
        zeilen << satz.zeile;
    }
    QTEST(zeilen, "zeilen");
}

void TestCsvleser::aQuoteThatStaysOpenIsTold()
{
    const Csv::Saetze gelesen = Csv::zerlegen(u"a;b\n\n\"c;d\ne;f\n"_s, u';');
    QCOMPARE(gelesen.offeneZeile, 3);
    QCOMPARE(Csv::zerlegen(u"a;\"b\"\"\n"_s, u';').offeneZeile, 1);
}

void TestCsvleser::marksAreTakenOff()
{
    const QStringList felder =
        Csv::zerlegen(u"'+;'-;\"'=1;2\";''+;'n Abend;+"_s, u';').saetze.first().felder;
    QCOMPARE(felder, QStringList({u"+"_s, u"-"_s, u"=1;2"_s, u"'+"_s, u"'n Abend"_s, u"+"_s}));
}

void TestCsvleser::tooManyRowsAreRefused()
{
    QString text = u"a\n"_s.repeated(Csv::meisteZeilen);
    QCOMPARE(Csv::zerlegen(text, u';').saetze.size(), Csv::meisteZeilen);
    text += u"a\n"_s;
    QCOMPARE(Csv::zerlegen(text, u';').fehler, ZuVieleZeilen);
    text.chop(1);
    QCOMPARE(Csv::zerlegen(text, u';').fehler, ZuVieleZeilen); // the last line without an end
}

void TestCsvleser::theSeparatorIsGuessed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QChar>("trennung");
    QTest::newRow("semicolons") << u"Name;kcal\nBrot;1,5\nMus;2,5"_s << QChar(u';');
    QTest::newRow("commas") << u"Name,kcal\nBrot,1.5\n"_s << QChar(u',');
    QTest::newRow("tabs") << u"Name\tkcal\nBrot, dunkel\t1,5\n"_s << QChar(u'\t');
    QTest::newRow("bars") << u"Name|kcal\nBrot; dunkel|1\n"_s << QChar(u'|');
    QTest::newRow("commas in all headings") << u"Energie, kcal;Fett, g\n1;2\n3;4"_s << QChar(u';');
    QTest::newRow("semicolons in quotes") << u"\"a;b\",c\n\"d;e\",f"_s << QChar(u',');
    QTest::newRow("its own line") << u"sep=,\nName;x\nBrot;y"_s << QChar(u',');
    QTest::newRow("its own line alone") << u"sep=:"_s << QChar(u':');
    QTest::newRow("as many of one as of another") << u"a;b,c\nd;e,f"_s << QChar(u';');
    QTest::newRow("one column") << u"Name\nBrot\n"_s << QChar(u';');
    QTest::newRow("nothing") << QString() << QChar(u';');
}

void TestCsvleser::theSeparatorIsGuessed()
{
    QFETCH(QString, text);
    QTEST(Csv::geratenesTrennzeichen(text), "trennung");
}

QTEST_GUILESS_MAIN(TestCsvleser)
#include "TestCsvleser.moc"
