#include "Tafel.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestTafel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cellsStandUnderEachOther_data();
    void cellsStandUnderEachOther();
};

void TestTafel::cellsStandUnderEachOther_data()
{
    QTest::addColumn<QList<QStringList>>("zeilen");
    QTest::addColumn<QString>("erwartet");
    QTest::newRow("nothing") << QList<QStringList>() << u""_s;
    QTest::newRow("numbers on the right")
        << QList<QStringList>{{u"Ei"_s, u"9,5 g"_s, u"gut"_s}, {u"Öl"_s, u"100 g"_s, u"so"_s}}
        << u"  Ei  9,5 g  gut\n  Öl  100 g  so\n"_s;
    QTest::newRow("a row that ends early sets no blanks")
        << QList<QStringList>{{u"Ei"_s}, {u"Eigelb"_s, u"1"_s, u"x"_s}}
        << u"  Ei\n  Eigelb  1  x\n"_s;
    QTest::newRow("empty cells keep their place, but not at the end")
        << QList<QStringList>{{u"Ei"_s, u""_s, u"gut"_s}, {u"Ei"_s, u"12"_s, u""_s}}
        << u"  Ei      gut\n  Ei  12\n"_s;
    QTest::newRow("more columns than sides")
        << QList<QStringList>{{u"a"_s, u"b"_s, u"c"_s, u"d"_s}, {u"a"_s, u"b"_s, u"c"_s, u"dd"_s}}
        << u"  a  b  c  d\n  a  b  c  dd\n"_s;
}

void TestTafel::cellsStandUnderEachOther()
{
    QFETCH(QList<QStringList>, zeilen);
    QFETCH(QString, erwartet);
    QCOMPARE(ausgerichtet(zeilen, QLatin1String("lrl")), erwartet);
}

QTEST_GUILESS_MAIN(TestTafel)
#include "TestTafel.moc"
