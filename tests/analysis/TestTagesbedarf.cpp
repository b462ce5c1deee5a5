#include "Tagesbedarf.h"

#include <QTest>

#include <cmath>
#include <limits>

class TestTagesbedarf : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTwelveInTheirOrder_data();
    void theTwelveInTheirOrder();
    void twelveAndNoMore();
    void percentages_data();
    void percentages();
    void valuesThatAreNoAmount();
};

namespace {

const Tagesbedarf &bedarfFuer(Naehrwert wert)
{
    for (const Tagesbedarf &zeile : tagesbedarfe) {
        if (zeile.wert == wert) {
            return zeile;
        }
    }
    qFatal("no requirement");
}

} // namespace

Q_DECLARE_METATYPE(Naehrwert)

void TestTagesbedarf::theTwelveInTheirOrder_data()
{
    QTest::addColumn<int>("platz");
    QTest::addColumn<QString>("kennung");
    QTest::addColumn<double>("bedarf");
    QTest::addColumn<bool>("doppelt");
    QTest::newRow("calcium") << 0 << "ca" << 1000.0 << false;
    QTest::newRow("magnesium") << 1 << "ma" << 350.0 << false;
    QTest::newRow("fibre") << 2 << "bs" << 30.0 << false;
    QTest::newRow("sodium") << 3 << "na" << 550.0 << false;
    QTest::newRow("potassium") << 4 << "ka" << 2000.0 << false;
    QTest::newRow("phosphorus") << 5 << "ph" << 1400.0 << false;
    QTest::newRow("iron") << 6 << "fe" << 12.0 << false;
    QTest::newRow("vitamin A") << 7 << "vita" << 1000.0 << false;
    QTest::newRow("vitamin B1") << 8 << "b1" << 1.2 << true;
    QTest::newRow("vitamin B2") << 9 << "b2" << 1.6 << true;
    QTest::newRow("vitamin B6") << 10 << "b6" << 1.7 << true;
    QTest::newRow("vitamin C") << 11 << "vitc" << 100.0 << false;
}

void TestTagesbedarf::theTwelveInTheirOrder()
{
    QFETCH(int, platz);
    const Tagesbedarf &zeile = tagesbedarfe.at(static_cast<std::size_t>(platz));
    QTEST(QString::fromLatin1(beschreibung(zeile.wert).kennung), "kennung");
    QFETCH(double, bedarf);
    QCOMPARE_EQ(zeile.bedarf, bedarf);
    QTEST(zeile.teilung == Teilung::Doppelt, "doppelt");
}

void TestTagesbedarf::twelveAndNoMore()
{
    QCOMPARE(tagesbedarfe.size(), std::size_t(12));
}

void TestTagesbedarf::percentages_data()
{
    QTest::addColumn<Naehrwert>("wert");
    QTest::addColumn<float>("menge");
    QTest::addColumn<double>("prozent");
    QTest::newRow("calcium, the whole day") << Naehrwert::ca << 1000.0F << 100.0;
    QTest::newRow("magnesium, a tenth") << Naehrwert::ma << 35.0F << 10.0;
    QTest::newRow("fibre, twice the day") << Naehrwert::bs << 60.0F << 200.0;
    QTest::newRow("sodium, half") << Naehrwert::na << 275.0F << 50.0;
    QTest::newRow("iron, a third, single precision")
        << Naehrwert::fe << 4.0F << static_cast<double>(100.0F / 3.0F);
    QTest::newRow("negative") << Naehrwert::vitc << -5.0F << -5.0;
    // In single precision 0.18 mg would give 14.999999 percent.
    QTest::newRow("vitamin B1 divides in double precision") << Naehrwert::b1 << 0.18F << 15.0;
    QTest::newRow("vitamin B2 divides in double precision") << Naehrwert::b2 << 0.4F << 25.0;
    QTest::newRow("vitamin B6 divides in double precision") << Naehrwert::b6 << 0.34F << 20.0;
}

void TestTagesbedarf::percentages()
{
    QFETCH(Naehrwert, wert);
    QFETCH(float, menge);
    QFETCH(double, prozent);
    QCOMPARE_EQ(bedarfsprozent(menge, bedarfFuer(wert)), prozent);
}

void TestTagesbedarf::valuesThatAreNoAmount()
{
    constexpr float keineZahl = std::numeric_limits<float>::quiet_NaN();
    constexpr float unendlich = std::numeric_limits<float>::infinity();
    QVERIFY(std::isnan(bedarfsprozent(keineZahl, bedarfFuer(Naehrwert::ca))));
    QVERIFY(std::isinf(bedarfsprozent(unendlich, bedarfFuer(Naehrwert::b1))));
}

QTEST_GUILESS_MAIN(TestTagesbedarf)
#include "TestTagesbedarf.moc"
