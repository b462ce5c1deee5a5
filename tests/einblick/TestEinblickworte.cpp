#include "Einblickworte.h"
#include "Probesprache.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestEinblickworte : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void amountsCarryTheirUnit_data();
    void amountsCarryTheirUnit();
    void gramsOfAFood_data();
    void gramsOfAFood();
    void partsOfAWhole_data();
    void partsOfAWhole();
    void theUnknownIsSaidWhereThereIsSome();
    void manyFoodsAreCounted();
    void longNamesAreCutOff();
    void theLanguageIsFollowed();
};

void TestEinblickworte::amountsCarryTheirUnit_data()
{
    QTest::addColumn<Kenngroesse>("groesse");
    QTest::addColumn<double>("wert");
    QTest::addColumn<QString>("text");

    QTest::newRow("energy is whole") << Kenngroesse::kal << 1511.4 << u"1511 kcal"_s;
    QTest::newRow("iron has one digit") << Kenngroesse::fe << 12.44 << u"12,4 mg"_s;
    QTest::newRow("vitamin B1 has two") << Kenngroesse::b1 << 1.236 << u"1,24 mg"_s;
    QTest::newRow("vitamin A") << Kenngroesse::vita << 850.0 << u"850 µg"_s;
    QTest::newRow("bread units") << Kenngroesse::broteinheiten << 9.96 << u"10,0 BE"_s;
    QTest::newRow("what is very little does not read 0")
        << Kenngroesse::kal << 0.04 << u"0,04 kcal"_s;
    QTest::newRow("none") << Kenngroesse::vitc << 0.0 << u"0 mg"_s;
}

void TestEinblickworte::amountsCarryTheirUnit()
{
    QFETCH(const Kenngroesse, groesse);
    QFETCH(const double, wert);
    QTEST(Einblickworte::menge(groesse, wert), "text");
}

void TestEinblickworte::gramsOfAFood_data()
{
    QTest::addColumn<double>("gramm");
    QTest::addColumn<QString>("text");

    QTest::newRow("whole") << 125.0 << u"125 g"_s;
    QTest::newRow("a mean of days") << 42.86 << u"43 g"_s;
    QTest::newRow("exactly 10 g has no digit") << 10.0 << u"10 g"_s;
    QTest::newRow("a little less than 10 g has one") << 9.9 << u"9,9 g"_s;
    QTest::newRow("what reads 10 g has no digit either") << 9.96 << u"10 g"_s;
    QTest::newRow("a few whole grams") << 5.0 << u"5 g"_s;
    QTest::newRow("a digit that would be 0 is left out") << 5.02 << u"5 g"_s;
    QTest::newRow("one that is not is seen") << 5.05 << u"5,1 g"_s;
    QTest::newRow("very little") << 0.25 << u"0,3 g"_s;
    QTest::newRow("so little that it would read 0") << 0.04 << u"0,04 g"_s;
    QTest::newRow("none") << 0.0 << u"0 g"_s;
}

void TestEinblickworte::gramsOfAFood()
{
    QFETCH(const double, gramm);
    QTEST(Einblickworte::gramm(gramm), "text");
}

void TestEinblickworte::partsOfAWhole_data()
{
    QTest::addColumn<double>("teil");
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << 0.0 << u"0 %"_s;
    QTest::newRow("what would read 0") << 0.004 << u"< 1 %"_s;
    QTest::newRow("what just reads 1") << 0.005 << u"1 %"_s;
    QTest::newRow("what reads 1") << 0.006 << u"1 %"_s;
    QTest::newRow("a third") << 1.0 / 3 << u"33 %"_s;
    QTest::newRow("all") << 1.0 << u"100 %"_s;
}

void TestEinblickworte::partsOfAWhole()
{
    QFETCH(const double, teil);
    QTEST(Einblickworte::anteil(teil), "text");
}

void TestEinblickworte::theUnknownIsSaidWhereThereIsSome()
{
    QCOMPARE(Einblickworte::unbekanntes(0), QString());
    QCOMPARE(Einblickworte::unbekanntes(0.12), u"bei 12 % der Menge unbekannt"_s);
    QCOMPARE(Einblickworte::unbekanntes(0.001), u"bei < 1 % der Menge unbekannt"_s);
}

void TestEinblickworte::manyFoodsAreCounted()
{
    QCOMPARE(Einblickworte::namen({}), QString());
    QCOMPARE(Einblickworte::namen({u"a"_s, u"b"_s}), u"a, b"_s);
    const QStringList sechs = {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s};
    QCOMPARE(Einblickworte::namen(sechs), u"a, b, c, d, e, f"_s);
    QCOMPARE(Einblickworte::namen(sechs + QStringList{u"g"_s, u"h"_s}),
             u"a, b, c, d, e, f und 2 weitere"_s);
}

void TestEinblickworte::longNamesAreCutOff()
{
    QCOMPARE(Einblickworte::namen({QString(61, u'a'), u"b"_s}), QString(59, u'a') + u"…, b"_s);
}

void TestEinblickworte::theLanguageIsFollowed()
{
    const Probesprache englisch(QLocale::English);
    QCOMPARE(Einblickworte::menge(Kenngroesse::fe, 12.44), u"12.4 mg"_s);
    QCOMPARE(Einblickworte::menge(Kenngroesse::broteinheiten, 2), u"2.0 BU"_s);
    QCOMPARE(Einblickworte::unbekanntes(0.12), u"unknown for 12 % of the amount"_s);
    QCOMPARE(Einblickworte::namen({u"Bananen, roh"_s, u"Oma"_s}), u"Bananas, raw, Oma"_s);
}

QTEST_MAIN(TestEinblickworte)
#include "TestEinblickworte.moc"
