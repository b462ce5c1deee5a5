#include "Tafel.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestTafel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cellsStandUnderEachOther_data();
    void cellsStandUnderEachOther();
    void oneLine_data();
    void oneLine();
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

void TestTafel::oneLine_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("erwartet");
    QTest::newRow("usual text") << u"Äpfel, roh"_s << u"Äpfel, roh"_s;
    QTest::newRow("none") << QString() << QString();
    QTest::newRow("a line break") << u"a\nb"_s << u"a\\x0ab"_s;
    QTest::newRow("colours of a terminal") << u"\x1b[31mrot"_s << u"\\x1b[31mrot"_s;
    QTest::newRow("a control character of eight bits") << QString(QChar(0x9b)) << u"\\x9b"_s;
}

void TestTafel::oneLine()
{
    QFETCH(QString, text);
    QFETCH(QString, erwartet);
    QCOMPARE(einzeilig(text), erwartet);
}

QTEST_GUILESS_MAIN(TestTafel)
#include "TestTafel.moc"
