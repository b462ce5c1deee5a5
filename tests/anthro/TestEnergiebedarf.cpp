#include "Energiebedarf.h"

#include "Sportarten.h"

#include <QTest>

#include <cmath>
#include <limits>

class TestEnergiebedarf : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void activityFactors();
    void baseFormula_data();
    void baseFormula();
    void requirement_data();
    void requirement();
    void faces_data();
    void faces();
    void sameAsTheFormula_data();
    void sameAsTheFormula();
};

namespace {

constexpr float mann = 1.2F;
constexpr float frau = 1.0F;
constexpr int bleibt = 0; // no decision

} // namespace

void TestEnergiebedarf::activityFactors()
{
    QCOMPARE_EQ(arbeitsfaktor(0).value_or(0.0F), 1.1F);
    QCOMPARE_EQ(arbeitsfaktor(1).value_or(0.0F), 1.3F);
    QCOMPARE_EQ(arbeitsfaktor(2).value_or(0.0F), 1.5F);
    QVERIFY(!arbeitsfaktor(3).has_value());
    QVERIFY(!arbeitsfaktor(-1).has_value());
}

void TestEnergiebedarf::baseFormula_data()
{
    QTest::addColumn<float>("gewicht");
    QTest::addColumn<float>("arbeit");
    QTest::addColumn<float>("geschlecht");
    QTest::addColumn<float>("erwartet");
    QTest::newRow("80 kg, man") << 80.0F << 1.1F << mann << 2112.0F;
    QTest::newRow("80 kg, woman") << 80.0F << 1.5F << frau << 2400.0F;
    QTest::newRow("half a kilogram counts") << 50.5F << 1.1F << frau << 1111.0F;
    QTest::newRow("no weight") << 0.0F << 1.1F << mann << 0.0F;
}

void TestEnergiebedarf::baseFormula()
{
    QFETCH(float, gewicht);
    QFETCH(float, arbeit);
    QFETCH(float, geschlecht);
    QFETCH(float, erwartet);
    QCOMPARE_EQ(energiegrundbedarf(gewicht, arbeit, geschlecht), erwartet);
}

void TestEnergiebedarf::requirement_data()
{
    QTest::addColumn<float>("gewicht");
    QTest::addColumn<float>("arbeit");
    QTest::addColumn<float>("geschlecht");
    QTest::addColumn<int>("sportkal");
    QTest::addColumn<int>("stunden");
    QTest::addColumn<int>("ohneReduktion");
    QTest::addColumn<int>("mitReduktion");
    QTest::newRow("man 1.1") << 80.0F << 1.1F << mann << 0 << 0 << 2112 << 1690;
    QTest::newRow("man 1.3") << 80.0F << 1.3F << mann << 0 << 0 << 2496 << 1997;
    QTest::newRow("man 1.5") << 80.0F << 1.5F << mann << 0 << 0 << 2880 << 2304;
    QTest::newRow("woman 1.1") << 80.0F << 1.1F << frau << 0 << 0 << 1760 << 1408;
    QTest::newRow("woman 1.3") << 80.0F << 1.3F << frau << 0 << 0 << 2080 << 1664;
    QTest::newRow("woman 1.5") << 80.0F << 1.5F << frau << 0 << 0 << 2400 << 1920;
    QTest::newRow("woman of 50 kg") << 50.0F << 1.1F << frau << 0 << 0 << 1100 << 880;
    QTest::newRow("an hour of cycling adds 300")
        << 80.0F << 1.1F << mann << 300 << 1 << 2412 << 1930;
    QTest::newRow("two hours of karate") << 80.0F << 1.1F << mann << 670 << 2 << 3452 << 2762;
    QTest::newRow("no weight: only the sport") << 0.0F << 1.1F << mann << 500 << 2 << 1000 << 800;
    QTest::newRow("nothing") << 0.0F << 1.1F << mann << 0 << 0 << 0 << 0;
    QTest::newRow("less than five is not reduced") << 0.2F << 1.0F << frau << 0 << 0 << 4 << 4;
    // 61.3 x 20 x 1.1 = 1348.6
    QTest::newRow("cut off, not rounded") << 61.3F << 1.1F << frau << 0 << 0 << 1348 << 1079;
    QTest::newRow("held at the limit")
        << 1e30F << 1.1F << mann << 0 << 0 << 2147483647 << 1717986918;
    QTest::newRow("sport held at the limit")
        << 0.0F << 1.1F << mann << 2147483647 << 9 << 2147483647 << 1717986918;
    QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN() << 1.1F << mann << 300
                               << 1 << 0 << 0;
}

void TestEnergiebedarf::requirement()
{
    QFETCH(float, gewicht);
    QFETCH(float, arbeit);
    QFETCH(float, geschlecht);
    QFETCH(int, sportkal);
    QFETCH(int, stunden);
    Energieeingaben eingaben = {.gewicht = gewicht,
                                .arbeit = arbeit,
                                .geschlecht = geschlecht,
                                .sportkal = sportkal,
                                .ganzeStunden = stunden,
                                .reduktion = false};
    QTEST(energiebedarfRechnen(eingaben).kal, "ohneReduktion");
    QTEST(energiebedarfRechnen(eingaben).kalunbereinigt, "ohneReduktion");
    eingaben.reduktion = true;
    QTEST(energiebedarfRechnen(eingaben).kal, "mitReduktion");
    QTEST(energiebedarfRechnen(eingaben).kalunbereinigt, "ohneReduktion");
}

void TestEnergiebedarf::faces_data()
{
    QTest::addColumn<int>("kal");
    QTest::addColumn<int>("gesicht");
    QTest::newRow("nothing") << 0 << 3;
    QTest::newRow("negative") << -5 << 3;
    QTest::newRow("1099") << 1099 << 3;
    QTest::newRow("exactly 1100") << 1100 << 2;
    QTest::newRow("1399") << 1399 << 2;
    QTest::newRow("exactly 1400 leaves the face") << 1400 << bleibt;
    QTest::newRow("1401") << 1401 << 1;
    QTest::newRow("1690") << 1690 << 1;
    QTest::newRow("2699") << 2699 << 1;
    QTest::newRow("exactly 2700 leaves the face") << 2700 << bleibt;
    QTest::newRow("2701") << 2701 << 2;
    QTest::newRow("exactly 3000") << 3000 << 2;
    QTest::newRow("3001") << 3001 << 3;
    QTest::newRow("largest") << 2147483647 << 3;
}

void TestEnergiebedarf::faces()
{
    QFETCH(int, kal);
    QTEST(energieGesicht(kal).value_or(bleibt), "gesicht");
}

namespace {

/// The rules once more, in a few lines and without tables.
int gesichtNachRegeln(int kal)
{
    int gesicht = bleibt;
    if (1400 < kal && kal < 2700) {
        gesicht = 1;
    }
    if (kal < 1400 || kal > 2700) {
        gesicht = 2;
    }
    if (kal < 1100 || kal > 3000) {
        gesicht = 3;
    }
    return gesicht;
}

} // namespace

void TestEnergiebedarf::sameAsTheFormula_data()
{
    QTest::addColumn<float>("arbeit");
    QTest::addColumn<float>("geschlecht");
    for (const float arbeit : {1.1F, 1.3F, 1.5F}) {
        QTest::addRow("man %.1f", static_cast<double>(arbeit)) << arbeit << mann;
        QTest::addRow("woman %.1f", static_cast<double>(arbeit)) << arbeit << frau;
    }
}

void TestEnergiebedarf::sameAsTheFormula()
{
    // 6 x 341 weights x 20 sports x 5 hours x 2: about 400,000 combinations.
    QFETCH(float, arbeit);
    QFETCH(float, geschlecht);
    for (int halbe = 60; halbe <= 400; ++halbe) {
        const float gewicht = static_cast<float>(halbe) / 2.0F;
        float grund = gewicht * 20.0F;
        grund *= arbeit;
        grund *= geschlecht;
        for (int i = 0; i < 20 * 5; ++i) {
            const int sportkal =
                sportarten.at(static_cast<std::size_t>(i / 5)).kilokalorienJeStunde;
            const int stunden = i % 5;
            const float summe = grund + static_cast<float>(sportkal * stunden);
            const int voll = static_cast<int>(std::floor(summe));
            const Energieeingaben ohne = {gewicht, arbeit, geschlecht, sportkal, stunden, false};
            const Energieeingaben mit = {gewicht, arbeit, geschlecht, sportkal, stunden, true};
            const Energiebedarf erwartet = {voll - voll / 5, voll};
            if (energiebedarfRechnen(ohne) != Energiebedarf{voll, voll} ||
                energiebedarfRechnen(mit) != erwartet ||
                energieGesicht(voll).value_or(bleibt) != gesichtNachRegeln(voll)) {
                QFAIL(qPrintable(QStringLiteral("%1 kg, sport %2, %3 h")
                                     .arg(static_cast<double>(gewicht))
                                     .arg(sportkal)
                                     .arg(stunden)));
            }
        }
    }
}

QTEST_GUILESS_MAIN(TestEnergiebedarf)
#include "TestEnergiebedarf.moc"
