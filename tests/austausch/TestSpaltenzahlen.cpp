#include "Spaltenzahlen.h"

#include <QTest>

using namespace Qt::StringLiterals;
using enum Zahlenschrift;

/// Numbers as others write them.
class TestSpaltenzahlen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersAreRead_data();
    void numbersAreRead();
    void singlePrecisionIsRoundedOnce();
    void aColumnIsReadAsAWhole_data();
    void aColumnIsReadAsAWhole();
};

void TestSpaltenzahlen::numbersAreRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("komma"); // −1: no number
    QTest::addColumn<double>("punkt");
    QTest::newRow("whole") << u"12"_s << 12.0 << 12.0;
    QTest::newRow("comma") << u"12,5"_s << 12.5 << -1.0;
    QTest::newRow("point") << u"12.5"_s << -1.0 << 12.5;
    QTest::newRow("a thousand or a bit more than one") << u"1.234"_s << 1234.0 << 1.234;
    QTest::newRow("the other way round") << u"1,234"_s << 1.234 << 1234.0;
    QTest::newRow("both") << u"1.234,5"_s << 1234.5 << -1.0;
    QTest::newRow("both, the other way round") << u"1,234.5"_s << -1.0 << 1234.5;
    QTest::newRow("millions") << u"1.234.567"_s << 1234567.0 << -1.0;
    QTest::newRow("groups of two") << u"1.23.456"_s << -1.0 << -1.0;
    QTest::newRow("no group begins with zero") << u"0.123"_s << -1.0 << 0.123;
    QTest::newRow("four digits in front") << u"1234.567"_s << -1.0 << 1234.567;
    QTest::newRow("blanks") << u"39 900"_s << 39900.0 << 39900.0;
    QTest::newRow("narrow blanks") << u"39\u202F900,5"_s << 39900.5 << -1.0;
    QTest::newRow("apostrophes") << u"39'900.5"_s << -1.0 << 39900.5;
    QTest::newRow("mixed groups") << u"1'234.567"_s << -1.0 << 1234.567;
    QTest::newRow("nothing in front") << u",5"_s << 0.5 << -1.0;
    QTest::newRow("nothing behind") << u"5."_s << -1.0 << 5.0;
    QTest::newRow("blanks around") << u"  7 "_s << 7.0 << 7.0;
    QTest::newRow("plus") << u"+7"_s << 7.0 << 7.0;
    QTest::newRow("power of ten") << u"1,5E+03"_s << 1500.0 << -1.0;
    QTest::newRow("small power") << u"1e-3"_s << 0.001 << 0.001;
    QTest::newRow("empty") << u""_s << -1.0 << -1.0;
    QTest::newRow("a sign alone") << u"-"_s << -1.0 << -1.0;
    QTest::newRow("a mark alone") << u","_s << -1.0 << -1.0;
    QTest::newRow("a word") << u"Spuren"_s << -1.0 << -1.0;
    QTest::newRow("with a unit") << u"12 g"_s << -1.0 << -1.0;
    QTest::newRow("infinite") << u"inf"_s << -1.0 << -1.0;
    QTest::newRow("no number") << u"nan"_s << -1.0 << -1.0;
    QTest::newRow("hexadecimal") << u"0x10"_s << -1.0 << -1.0;
    QTest::newRow("Arabic digits") << u"\u0661\u0662"_s << -1.0 << -1.0;
    QTest::newRow("beyond all") << u"1e400"_s << -1.0 << -1.0;
}

void TestSpaltenzahlen::numbersAreRead()
{
    QFETCH(QString, text);
    QFETCH(double, komma);
    QFETCH(double, punkt);
    QCOMPARE(doppelteZahl(text, Komma).value_or(-1), komma);
    QCOMPARE(doppelteZahl(text, Punkt).value_or(-1), punkt);
    QCOMPARE(istMehrdeutig(text), komma >= 0 && punkt >= 0 && komma != punkt);
}

void TestSpaltenzahlen::singlePrecisionIsRoundedOnce()
{
    QCOMPARE(einfacheZahl(u"0,1"_s, Komma), 0.1F);
    QCOMPARE(einfacheZahl(u"-0,5"_s, Komma), -0.5F);
    QCOMPARE(einfacheZahl(u"\u22120,5"_s, Komma), -0.5F);
    // A hair above the middle of 1 and the next number: as a double it would be the middle.
    QCOMPARE(einfacheZahl(u"1.00000005960464477540"_s, Punkt), 1.00000011920928955F);
    QVERIFY(!einfacheZahl(u"1e39"_s, Punkt));
    QVERIFY(doppelteZahl(u"1e39"_s, Punkt));
}

void TestSpaltenzahlen::aColumnIsReadAsAWhole_data()
{
    QTest::addColumn<QList<QStringList>>("spalten");
    QTest::addColumn<Zahlenschrift>("sonst");
    QTest::addColumn<QList<Zahlenschrift>>("schriften");
    QTest::newRow("thousands beside decimals")
        << QList<QStringList>{{u"1.234"_s, u"12,5"_s}} << Punkt << QList{Komma};
    QTest::newRow("decimals throughout")
        << QList<QStringList>{{u"1.234"_s, u"12.5"_s}} << Komma << QList{Punkt};
    QTest::newRow("as the other column")
        << QList<QStringList>{{u"1.234"_s}, {u"0.5"_s}} << Komma << QList{Punkt, Punkt};
    QTest::newRow("each by itself")
        << QList<QStringList>{{u"0,5"_s}, {u"0.5"_s}} << Komma << QList{Komma, Punkt};
    QTest::newRow("nothing tells, comma")
        << QList<QStringList>{{u"1.234"_s}, {u"7"_s}} << Komma << QList{Komma, Komma};
    QTest::newRow("nothing tells, point")
        << QList<QStringList>{{u"1.234"_s}, {u"7"_s}} << Punkt << QList{Punkt, Punkt};
    QTest::newRow("most cells") << QList<QStringList>{{u"0,5"_s, u"0.5"_s, u"0.7"_s}} << Komma
                                << QList{Punkt};
    QTest::newRow("as many of both")
        << QList<QStringList>{{u"0,5"_s, u"0.5"_s}} << Komma << QList{Komma};
    QTest::newRow("no cells") << QList<QStringList>{{}} << Punkt << QList{Punkt};
}

void TestSpaltenzahlen::aColumnIsReadAsAWhole()
{
    QFETCH(QList<QStringList>, spalten);
    QFETCH(Zahlenschrift, sonst);
    QTEST(zahlenschriften(spalten, sonst), "schriften");
}

QTEST_GUILESS_MAIN(TestSpaltenzahlen)
#include "TestSpaltenzahlen.moc"
