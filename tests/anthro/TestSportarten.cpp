#include "Sportarten.h"

#include <QTest>

#include <limits>

class TestSportarten : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyNameHasItsEnergy_data();
    void everyNameHasItsEnergy();
    void thirtyThreeNames();
    void namesThatAreNoSport_data();
    void namesThatAreNoSport();
    void wholeHours_data();
    void wholeHours();
    void fractionsOfAnHour_data();
    void fractionsOfAnHour();
};

namespace {

struct Erwartet
{
    const char *name;
    int kilokalorien;
};

/// Every name with its kcal per hour.
constexpr Erwartet namen[] = {
    {"", 0},
    {"Badminton", 240},
    {"badminton", 240},
    {"Baskettball", 360},
    {"baskettball", 360},
    {"Bergsteigen", 500},
    {"mountain-climbing", 500},
    {"Eishockey", 510},
    {"ice-hockey", 510},
    {"Fußball", 450},
    {"soccer", 450},
    {"Handball", 500},
    {"Jogging", 440},
    {"Karate", 670},
    {"Krafttraining", 370},
    {"weight-lifting", 370},
    {"Radfahren", 300},
    {"bicycling", 300},
    {"Reiten", 300},
    {"horse-riding", 300},
    {"Brustschwimmen", 270},
    {"swimming", 270},
    {"Ski alpin", 500},
    {"skiing", 500},
    {"Squash", 510},
    {"Tanzen", 200},
    {"dancing", 200},
    {"Tennis", 360},
    {"Tischtennis", 220},
    {"table-tennis", 220},
    {"Volleyball", 170},
    {"Wandern", 320},
    {"hiking", 320},
};

} // namespace

void TestSportarten::everyNameHasItsEnergy_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("kilokalorien");
    for (const Erwartet &zeile : namen) {
        QTest::addRow("\"%s\"", zeile.name) << QString::fromUtf8(zeile.name) << zeile.kilokalorien;
    }
}

void TestSportarten::everyNameHasItsEnergy()
{
    QFETCH(QString, name);
    QTEST(sportkalorien(name).value_or(-1), "kilokalorien");
}

void TestSportarten::thirtyThreeNames()
{
    QCOMPARE(std::size(namen), std::size_t(33));
    int anzahl = 0;
    for (const Sportart &sport : sportarten) {
        anzahl += sport.englisch.isNull() ? 1 : 2;
    }
    QCOMPARE(anzahl, 33);
}

void TestSportarten::namesThatAreNoSport_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("basketball with a single t") << "Basketball";
    QTest::newRow("in lower case") << "karate";
    QTest::newRow("in capitals") << "TENNIS";
    QTest::newRow("with a blank") << "Tennis ";
    QTest::newRow("only a blank") << " ";
    QTest::newRow("a dash") << "-";
    QTest::newRow("without sharp s") << "Fussball";
    QTest::newRow("a part of a name") << "Ski";
}

void TestSportarten::namesThatAreNoSport()
{
    QFETCH(QString, name);
    QVERIFY(!sportkalorien(name).has_value());
}

void TestSportarten::wholeHours_data()
{
    QTest::addColumn<int>("jeStunde");
    QTest::addColumn<int>("stunden");
    QTest::addColumn<int>("erwartet");
    QTest::newRow("two hours of karate") << 670 << 2 << 1340;
    QTest::newRow("no hours") << 670 << 0 << 0;
    QTest::newRow("no sport") << 0 << 5 << 0;
    QTest::newRow("held at the limit") << 2147483647 << 3 << 2147483647;
}

void TestSportarten::wholeHours()
{
    QFETCH(int, jeStunde);
    QFETCH(int, stunden);
    QTEST(sportenergieGanzeStunden(jeStunde, stunden), "erwartet");
}

void TestSportarten::fractionsOfAnHour_data()
{
    QTest::addColumn<int>("jeStunde");
    QTest::addColumn<float>("stunden");
    QTest::addColumn<int>("erwartet");
    QTest::newRow("two and a half hours of karate") << 670 << 2.5F << 1675;
    // 1.9 in single precision is 1.8999999762; times 300 it is 570 again in single precision,
    // in double it would be 569.99999.
    QTest::newRow("1.9 hours of cycling") << 300 << 1.9F << 570;
    QTest::newRow("cut off, not rounded") << 510 << 0.0078125F << 3;
    QTest::newRow("no hours") << 670 << 0.0F << 0;
    QTest::newRow("no sport") << 0 << 2.5F << 0;
    QTest::newRow("held at the limit") << 670 << 1e30F << 2147483647;
    QTest::newRow("no number") << 670 << std::numeric_limits<float>::quiet_NaN() << 0;
}

void TestSportarten::fractionsOfAnHour()
{
    QFETCH(int, jeStunde);
    QFETCH(float, stunden);
    QTEST(sportenergie(jeStunde, stunden), "erwartet");
}

QTEST_GUILESS_MAIN(TestSportarten)
#include "TestSportarten.moc"
