#include "Alkohol.h"

#include <QTest>

#include <limits>

class TestAlkohol : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void grams_data();
    void grams();
    void rates_data();
    void rates();
    void hours_data();
    void hours();
    void limits_data();
    void limits();
    void quantityColour_data();
    void quantityColour();
    void aDrinkFromChoiceToHours_data();
    void aDrinkFromChoiceToHours();
    void manyQuantities();
};

namespace {

constexpr float keineZahl = std::numeric_limits<float>::quiet_NaN();

/// The colour as a word; "stays" for none.
QString inWorten(std::optional<Ampel> farbe)
{
    if (!farbe.has_value()) {
        return QStringLiteral("stays");
    }
    switch (*farbe) {
    case Ampel::Schwarz:
        return QStringLiteral("black");
    case Ampel::Rot:
        return QStringLiteral("red");
    case Ampel::Blau:
        return QStringLiteral("blue");
    case Ampel::Gruen:
        return QStringLiteral("green");
    }
    return {};
}

} // namespace

void TestAlkohol::grams_data()
{
    QTest::addColumn<int>("ml");
    QTest::addColumn<float>("je100");
    QTest::addColumn<float>("gramm");
    QTest::newRow("500 ml of 4 g") << 500 << 4.0F << 20.0F;
    QTest::newRow("330 ml count as 300") << 330 << 4.0F << 12.0F;
    QTest::newRow("99 ml count as nothing") << 99 << 63.2F << 0.0F;
    QTest::newRow("100 ml") << 100 << 63.2F << 63.2F;
    QTest::newRow("199 ml count as 100") << 199 << 7.9F << 7.9F;
    QTest::newRow("nothing") << 0 << 4.0F << 0.0F;
    QTest::newRow("no alcohol") << 500 << 0.0F << 0.0F;
    QTest::newRow("negative, toward zero") << -150 << 4.0F << -4.0F;
    QTest::newRow("in single precision") << 300 << 7.9F << 23.7F;
}

void TestAlkohol::grams()
{
    QFETCH(int, ml);
    QFETCH(float, je100);
    QFETCH(float, gramm);
    QCOMPARE_EQ(alkoholgramm(ml, je100), gramm);
}

void TestAlkohol::rates_data()
{
    QTest::addColumn<float>("gewicht");
    QTest::addColumn<float>("wahl");
    QTest::addColumn<float>("menge");
    QTest::newRow("80 kg") << 80.0F << 8.0F << 4.0F;
    QTest::newRow("no weight") << 0.0F << 0.0F << 0.0F;
    QTest::newRow("63.5 kg") << 63.5F << 6.35F << 3.175F;
    // In single precision 31 x 0.1 would be 3.1000001, and 31 x 0.05 1.5500001.
    QTest::newRow("multiplied in double precision") << 31.0F << 3.0999999F << 1.55F;
}

void TestAlkohol::rates()
{
    QFETCH(float, gewicht);
    QFETCH(float, wahl);
    QFETCH(float, menge);
    QCOMPARE_EQ(abbaurate(gewicht, Alkoholanlass::Wahl), wahl);
    QCOMPARE_EQ(abbaurate(gewicht, Alkoholanlass::Menge), menge);
}

void TestAlkohol::hours_data()
{
    QTest::addColumn<float>("gramm");
    QTest::addColumn<float>("rate");
    QTest::addColumn<float>("stunden");
    QTest::newRow("20 g at 8 g an hour") << 20.0F << 8.0F << 2.5F;
    QTest::newRow("20 g at 4 g an hour") << 20.0F << 4.0F << 5.0F;
    QTest::newRow("no alcohol") << 0.0F << 8.0F << 0.0F;
    QTest::newRow("no rate") << 20.0F << 0.0F << 0.0F;
    QTest::newRow("neither") << 0.0F << 0.0F << 0.0F;
    QTest::newRow("in single precision") << 1.0F << 3.0F << 0.33333334F;
}

void TestAlkohol::hours()
{
    QFETCH(float, gramm);
    QFETCH(float, rate);
    QFETCH(float, stunden);
    QCOMPARE_EQ(abbaudauer(gramm, rate), stunden);
}

void TestAlkohol::limits_data()
{
    QTest::addColumn<QString>("geschlecht");
    QTest::addColumn<float>("gramm");
    QTest::addColumn<QString>("nachGetraenk");
    QTest::addColumn<QString>("nachGeschlecht");
    QTest::newRow("woman, nothing") << "Frau" << 0.0F << "black"
                                    << "green";
    QTest::newRow("woman, just below 20 g") << "Frau" << 19.999998F << "black"
                                            << "green";
    QTest::newRow("woman, exactly 20 g") << "Frau" << 20.0F << "stays"
                                         << "stays";
    QTest::newRow("woman, just above 20 g") << "Frau" << 20.000002F << "red"
                                            << "red";
    QTest::newRow("woman, 24 g") << "Frau" << 24.0F << "red"
                                 << "red";
    QTest::newRow("man, 24 g") << "Mann" << 24.0F << "black"
                               << "green";
    QTest::newRow("man, just below 30 g") << "Mann" << 29.999998F << "black"
                                          << "green";
    QTest::newRow("man, exactly 30 g") << "Mann" << 30.0F << "stays"
                                       << "stays";
    QTest::newRow("man, just above 30 g") << "Mann" << 30.000002F << "red"
                                          << "red";
    QTest::newRow("no number") << "Mann" << keineZahl << "stays"
                               << "stays";
    QTest::newRow("no word") << "" << 100.0F << "stays"
                             << "stays";
    QTest::newRow("absent word") << QString() << 100.0F << "stays"
                                 << "stays";
    QTest::newRow("another word") << "Woman" << 100.0F << "stays"
                                  << "stays";
    QTest::newRow("in lower case") << "frau" << 100.0F << "stays"
                                   << "stays";
}

void TestAlkohol::limits()
{
    QFETCH(QString, geschlecht);
    QFETCH(float, gramm);
    QTEST(inWorten(alkoholfarbe(geschlecht, gramm, Ampel::Schwarz)), "nachGetraenk");
    QTEST(inWorten(alkoholfarbe(geschlecht, gramm, Ampel::Gruen)), "nachGeschlecht");
}

void TestAlkohol::quantityColour_data()
{
    QTest::addColumn<int>("ml");
    QTest::addColumn<QString>("farbe");
    QTest::newRow("nothing") << 0 << "black";
    QTest::newRow("599") << 599 << "black";
    QTest::newRow("exactly 600") << 600 << "stays";
    QTest::newRow("601") << 601 << "red";
    QTest::newRow("negative") << -1 << "black";
}

void TestAlkohol::quantityColour()
{
    QFETCH(int, ml);
    QTEST(inWorten(mengenfarbe(ml)), "farbe");
}

void TestAlkohol::aDrinkFromChoiceToHours_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("ml");
    QTest::addColumn<float>("gewicht");
    QTest::addColumn<float>("gramm");
    QTest::addColumn<float>("nachWahl");
    QTest::addColumn<float>("nachMenge");
    QTest::newRow("500 ml of Pils at 80 kg") << "Pils" << 500 << 80.0F << 20.0F << 2.5F << 5.0F;
    QTest::newRow("99 ml of anything") << "Strohrum" << 99 << 80.0F << 0.0F << 0.0F << 0.0F;
    QTest::newRow("without a weight") << "Pils" << 500 << 0.0F << 20.0F << 0.0F << 0.0F;
    QTest::newRow("600 ml of Pils at 60 kg") << "Pils" << 600 << 60.0F << 24.0F << 4.0F << 8.0F;
    QTest::newRow("placeholder") << "-" << 500 << 80.0F << 0.0F << 0.0F << 0.0F;
}

void TestAlkohol::aDrinkFromChoiceToHours()
{
    QFETCH(QString, name);
    QFETCH(int, ml);
    QFETCH(float, gewicht);
    QFETCH(float, gramm);
    QFETCH(float, nachWahl);
    QFETCH(float, nachMenge);
    const Getraenk *drink = getraenk(name, Alkoholanlass::Wahl);
    QVERIFY(drink != nullptr);
    const float alkohol = alkoholgramm(ml, drink->alkohol);
    QCOMPARE_EQ(alkohol, gramm);
    QCOMPARE_EQ(abbaudauer(alkohol, abbaurate(gewicht, Alkoholanlass::Wahl)), nachWahl);
    QCOMPARE_EQ(abbaudauer(alkohol, abbaurate(gewicht, Alkoholanlass::Menge)), nachMenge);
}

void TestAlkohol::manyQuantities()
{
    // Every drink in quantities of 0 to 1000 ml: about 100,000 combinations.
    for (const Getraenk &drink : getraenke) {
        for (int ml = 0; ml <= 1000; ++ml) {
            int hunderter = 0;
            while ((hunderter + 1) * 100 <= ml) {
                ++hunderter;
            }
            const float erwartet = static_cast<float>(hunderter) * drink.alkohol;
            if (alkoholgramm(ml, drink.alkohol) != erwartet) {
                QFAIL(qPrintable(drink.deutsch.toString()));
            }
        }
    }
}

QTEST_GUILESS_MAIN(TestAlkohol)
#include "TestAlkohol.moc"
