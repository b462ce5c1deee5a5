#include "Skalierung.h"

#include <QTest>

#include <cstdint>
#include <limits>

// Numbers are compared bit for bit (QCOMPARE_EQ); QCOMPARE would let the last digits pass.
class TestSkalierung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyValueIsScaled_data();
    void everyValueIsScaled();
    void theMultiplicationComesFirst();
    void amounts_data();
    void amounts();
    void fractionsOfAGramCount();
    void valuesThatAreNoAmountPassThrough();
    void visibility_data();
    void visibility();
    void kilojoules_data();
    void kilojoules();
    void kilojoulesBecomeKilocalories();
    void saltAndSodium_data();
    void saltAndSodium();
    void valuePerGram_data();
    void valuePerGram();
};

namespace {

constexpr float unendlich = std::numeric_limits<float>::infinity();
constexpr float keineZahl = std::numeric_limits<float>::quiet_NaN();

} // namespace

void TestSkalierung::everyValueIsScaled_data()
{
    QTest::addColumn<int>("index");
    for (const auto &zeile : naehrwerte) {
        QTest::newRow(zeile.kennung) << static_cast<int>(stelle(zeile.wert));
    }
}

void TestSkalierung::everyValueIsScaled()
{
    QFETCH(int, index);
    Datenmodul food;
    food.setWert(static_cast<Naehrwert>(index), 12.5F);
    const Naehrwertreihe reihe = skalieren(food, 250);
    for (int i = 0; i < static_cast<int>(reihe.size()); ++i) {
        QCOMPARE_EQ(reihe.at(static_cast<std::size_t>(i)), i == index ? 31.25F : 0.0F);
    }
}

void TestSkalierung::theMultiplicationComesFirst()
{
    // 3e38 times 100 is more than single precision holds; dividing first would give 3e38 back.
    Datenmodul food;
    food.setkal(3e38F);
    QCOMPARE_EQ(skalieren(food, 100).front(), unendlich);
    // Dividing the amount first would give 0.058999997, dividing the value first 0.059000004.
    food.setkal(0.1F);
    QCOMPARE_EQ(skalieren(food, 59).front(), 0.05900000035762787F);
}

void TestSkalierung::amounts_data()
{
    QTest::addColumn<float>("wert");
    QTest::addColumn<int>("menge");
    QTest::addColumn<float>("erwartet");
    QTest::newRow("100 g shows the stored value") << 0.1F << 100 << 0.1F;
    QTest::newRow("100 g, another value") << 123.4F << 100 << 123.4F;
    QTest::newRow("100 g, three decimals, last digit") << 0.007F << 100 << 0.0070000007F;
    QTest::newRow("0 g makes every field 0") << 52.0F << 0 << 0.0F;
    QTest::newRow("1 g") << 50.0F << 1 << 0.5F;
    QTest::newRow("half of 200 g") << 64.0F << 50 << 32.0F;
    QTest::newRow("a negative value stays negative") << -8.0F << 50 << -4.0F;
    QTest::newRow("a negative amount is taken as it is") << 8.0F << -50 << -4.0F;
    QTest::newRow("largest amount") << 100.0F << 2147483647 << 2147483648.0F;
}

void TestSkalierung::amounts()
{
    QFETCH(float, wert);
    QFETCH(int, menge);
    QFETCH(float, erwartet);
    Datenmodul food;
    food.setvitc(wert);
    QCOMPARE_EQ(skalieren(food, menge).back(), erwartet);
}

void TestSkalierung::fractionsOfAGramCount()
{
    Datenmodul food;
    food.setkal(80);
    QCOMPARE_EQ(skalieren(food, 12.5F).front(), 10.0F);
    QCOMPARE_EQ(skalieren(food, 0.5F).front(), 0.4F);
}

void TestSkalierung::valuesThatAreNoAmountPassThrough()
{
    Datenmodul food;
    food.setfe(keineZahl);
    food.setna(unendlich);
    QVERIFY(qIsNaN(skalieren(food, 100)[stelle(Naehrwert::fe)]));
    QCOMPARE_EQ(skalieren(food, 100)[stelle(Naehrwert::na)], unendlich);
}

void TestSkalierung::visibility_data()
{
    QTest::addColumn<float>("wert");
    QTest::addColumn<QString>("erwartet");
    const auto zeigen = QStringLiteral("show");
    const auto verbergen = QStringLiteral("hide");
    const auto lassen = QStringLiteral("leave");
    QTest::newRow("above 0") << 0.5F << zeigen;
    QTest::newRow("smallest above 0") << std::numeric_limits<float>::denorm_min() << zeigen;
    QTest::newRow("infinite") << unendlich << zeigen;
    QTest::newRow("exactly 0") << 0.0F << verbergen;
    QTest::newRow("negative zero is 0") << -0.0F << verbergen;
    QTest::newRow("smallest below 0") << -std::numeric_limits<float>::denorm_min() << lassen;
    QTest::newRow("negative") << -3.0F << lassen;
    QTest::newRow("no number") << keineZahl << lassen;
}

void TestSkalierung::visibility()
{
    QFETCH(float, wert);
    const std::optional<bool> sichtbar = sichtbarkeit(wert);
    const char *antwort = "leave";
    if (sichtbar.has_value()) {
        antwort = *sichtbar ? "show" : "hide";
    }
    QTEST(QString::fromLatin1(antwort), "erwartet");
}

void TestSkalierung::kilojoules_data()
{
    QTest::addColumn<float>("kcal");
    QTest::addColumn<float>("kj");
    QTest::newRow("nothing") << 0.0F << 0.0F;
    QTest::newRow("100 kcal are 417.9104 kJ") << 100.0F << 417.910447761194F;
    QTest::newRow("67 kcal are 280 kJ") << 67.0F << 280.0F;
    QTest::newRow("6700 kcal are 28000 kJ") << 6700.0F << 28000.0F;
    QTest::newRow("negative") << -67.0F << -280.0F;
    QTest::newRow("infinite") << unendlich << unendlich;
    // 70113734.3 lies next to 70113736; with the factor in single precision it were 70113728.
    QTest::newRow("multiplied in double precision") << 16777215.0F << 70113736.0F;
}

void TestSkalierung::kilojoules()
{
    QFETCH(float, kcal);
    QFETCH(float, kj);
    QCOMPARE_EQ(kilojoule(kcal), kj);
}

void TestSkalierung::kilojoulesBecomeKilocalories()
{
    QCOMPARE(kilokalorien(280), 67.0);
    QCOMPARE(kilokalorien(0), 0.0);
    QCOMPARE(kilojoule(static_cast<float>(kilokalorien(1000))), 1000.0F);
}

void TestSkalierung::saltAndSodium_data()
{
    QTest::addColumn<double>("salz");    // g
    QTest::addColumn<double>("natrium"); // mg
    QTest::newRow("none") << 0.0 << 0.0;
    QTest::newRow("a gram of sodium") << 2.5 << 1000.0;
    QTest::newRow("a cheese") << 1.25 << 500.0;
}

void TestSkalierung::saltAndSodium()
{
    QFETCH(double, salz);
    QFETCH(double, natrium);
    QCOMPARE(salzAusNatrium(natrium), salz);
    QCOMPARE(natriumAusSalz(salz), natrium);
}

void TestSkalierung::valuePerGram_data()
{
    QTest::addColumn<float>("wert");
    QTest::addColumn<int>("menge");
    QTest::addColumn<float>("erwartet");
    QTest::newRow("per gram") << 25.0F << 200 << 0.125F;
    QTest::newRow("one gram") << 25.0F << 1 << 25.0F;
    QTest::newRow("no amount") << 25.0F << 0 << 0.0F;
}

void TestSkalierung::valuePerGram()
{
    QFETCH(float, wert);
    QFETCH(int, menge);
    QFETCH(float, erwartet);
    QCOMPARE_EQ(jeGramm(wert, menge), erwartet);
}

QTEST_GUILESS_MAIN(TestSkalierung)
#include "TestSkalierung.moc"
