#include "Zahlenform.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

class TestZahlenform : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void digitsThatMatter_data();
    void digitsThatMatter();
    void theMarkIsThatOfTheLocale();
    void anotherCountryMayBeNamed();
};

void TestZahlenform::cleanup()
{
    QLocale::setDefault(QLocale::c());
}

void TestZahlenform::digitsThatMatter_data()
{
    QTest::addColumn<double>("zahl");
    QTest::addColumn<int>("nachkomma");
    QTest::addColumn<int>("bedeutsam");
    QTest::addColumn<QString>("erwartet");
    QTest::newRow("a large one has none behind the comma") << 250.4 << 0 << 2 << u"250"_s;
    QTest::newRow("two are seen before it") << 12.34 << 0 << 2 << u"12"_s;
    QTest::newRow("one before, one behind") << 9.54 << 0 << 2 << u"9.5"_s;
    QTest::newRow("exactly ten") << 10.0 << 0 << 2 << u"10"_s;
    QTest::newRow("a fraction") << 0.171 << 0 << 2 << u"0.17"_s;
    QTest::newRow("a small fraction") << 0.0251 << 0 << 2 << u"0.025"_s;
    QTest::newRow("three behind the comma are enough") << 0.00612 << 0 << 2 << u"0.006"_s;
    QTest::newRow("but none looks like 0") << 0.00006 << 0 << 2 << u"0.00006"_s;
    QTest::newRow("never fewer than are wanted") << 250.44 << 1 << 2 << u"250.4"_s;
    QTest::newRow("more are wanted than help") << 0.5 << 4 << 2 << u"0.5000"_s;
    QTest::newRow("negative") << -0.171 << 0 << 2 << u"-0.17"_s;
    QTest::newRow("0") << 0.0 << 0 << 2 << u"0"_s;
    QTest::newRow("none matter") << 0.171 << 1 << 0 << u"0.2"_s;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 0 << 2 << u"inf"_s;
}

void TestZahlenform::digitsThatMatter()
{
    QFETCH(double, zahl);
    QFETCH(int, nachkomma);
    QFETCH(int, bedeutsam);
    QFETCH(QString, erwartet);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    const QString text = wertText(zahl, nachkomma, bedeutsam);
    QCOMPARE(text == u"∞" ? u"inf"_s : text, erwartet);
}

void TestZahlenform::theMarkIsThatOfTheLocale()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QCOMPARE(wertText(1234.56, 1, 0), u"1234,6"_s);
    QCOMPARE(wertText(0.171, 0, 2), u"0,17"_s);
}

void TestZahlenform::anotherCountryMayBeNamed()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const QLocale englisch(QLocale::English, QLocale::UnitedKingdom);
    QCOMPARE(wertText(12.34, 1, englisch), u"12.3"_s);
    QCOMPARE(wertText(0.004, 1, englisch), u"0.004"_s); // none looks like 0
    QCOMPARE(wertText(1e-9, 1, englisch), u"1E-09"_s);
    QCOMPARE(wertText(12.34, 1), u"12,3"_s);
}

QTEST_GUILESS_MAIN(TestZahlenform)
#include "TestZahlenform.moc"
