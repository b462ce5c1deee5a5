#include "Plandruckwerte.h"

#include <QTest>

#include <cmath>
#include <limits>
#include <vector>

class TestPlandruckwerte : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aValueIsForTheAmountAndTruncated_data();
    void aValueIsForTheAmountAndTruncated();
    void energyIsTheStoredOne();
    void everyNutrientIsItsOwn();
    void rowsKeepTheirOrder();
    void anUnknownFoodPrintsNothing();
    void ratingsPassAsTheyStand();
};

void TestPlandruckwerte::aValueIsForTheAmountAndTruncated_data()
{
    QTest::addColumn<float>("je100Gramm");
    QTest::addColumn<float>("menge");
    QTest::addColumn<int>("gedruckt");
    QTest::newRow("100 g print the value itself") << 52.0F << 100.0F << 52;
    QTest::newRow("0.6 mg of a vitamin print 0") << 0.4F << 150.0F << 0;
    QTest::newRow("0.9 prints 0") << 0.9F << 100.0F << 0;
    QTest::newRow("17.9 is not rounded up") << 17.9F << 100.0F << 17;
    QTest::newRow("amounts have digits behind the point") << 52.0F << 150.7F << 78;
    QTest::newRow("no amount, no value") << 52.0F << 0.0F << 0;
    QTest::newRow("below zero it is truncated upwards") << 1.9F << -100.0F << -1;
    // 29 / 100 lies a little below 0.29 in single precision, but 100 times that is 29 again.
    QTest::newRow("the product is rounded to single precision") << 100.0F << 29.0F << 29;
    // 210 / 100 is 2.0999999 in single precision, and 30 times that 62.999996.
    QTest::newRow("the amount is divided first") << 30.0F << 210.0F << 62;
    QTest::newRow("no number prints 0") << std::nanf("") << 100.0F << 0;
    QTest::newRow("what is too large stops at the largest")
        << 3e9F << 100.0F << std::numeric_limits<int>::max();
}

void TestPlandruckwerte::aValueIsForTheAmountAndTruncated()
{
    QFETCH(float, je100Gramm);
    QFETCH(float, menge);
    QFETCH(int, gedruckt);
    Datenmodul lebensmittel;
    lebensmittel.setca(je100Gramm);
    QCOMPARE(druckwert({&lebensmittel, menge}, Naehrwert::ca), gedruckt);
}

void TestPlandruckwerte::energyIsTheStoredOne()
{
    Datenmodul lebensmittel;
    lebensmittel.setkal(52);
    lebensmittel.setprotein(100); // 400 kcal, if it were worked out
    QCOMPARE(druckwert({&lebensmittel, 100}, Naehrwert::kal), 52);
}

void TestPlandruckwerte::everyNutrientIsItsOwn()
{
    Datenmodul lebensmittel;
    float zahl = 10;
    for (const auto &zeile : naehrwerte) {
        lebensmittel.setWert(zeile.wert, zahl);
        zahl += 1;
    }
    int erwartet = 10;
    for (const auto &zeile : naehrwerte) {
        QCOMPARE(druckwert({&lebensmittel, 100}, zeile.wert), erwartet);
        ++erwartet;
    }
}

void TestPlandruckwerte::rowsKeepTheirOrder()
{
    Datenmodul apfel;
    apfel.setkh(11.4F);
    Datenmodul brot;
    brot.setkh(49);
    const std::vector<Planzeile> zeilen = {{&brot, 50}, {&apfel, 200}, {&brot, 10}};
    QCOMPARE(druckwerte(zeilen, Naehrwert::kh), QList<std::int32_t>({24, 22, 4}));
    QCOMPARE(druckwerte({}, Naehrwert::kh), QList<std::int32_t>());
}

void TestPlandruckwerte::anUnknownFoodPrintsNothing()
{
    const std::vector<Planzeile> zeilen = {{nullptr, 250}};
    QCOMPARE(druckwerte(zeilen, Naehrwert::kal), QList<std::int32_t>({0}));
    const QStringList texte = druckwertungen(zeilen, Wertung::gicht);
    QCOMPARE(texte.size(), 1);
    QVERIFY(texte.first().isNull());
}

void TestPlandruckwerte::ratingsPassAsTheyStand()
{
    Datenmodul gut;
    gut.setdiabetes(QStringLiteral("+"));
    Datenmodul eigenes;
    eigenes.setdiabetes(QStringLiteral("bedingt"));
    const Datenmodul ohne;
    const std::vector<Planzeile> zeilen = {{&eigenes, 1}, {&gut, 1}, {&ohne, 1}};
    QCOMPARE(druckwertungen(zeilen, Wertung::diabetes),
             QStringList({QStringLiteral("bedingt"), QStringLiteral("+"), QString()}));
    QCOMPARE(druckwertungen(zeilen, Wertung::hkk), QStringList({QString(), QString(), QString()}));
}

QTEST_APPLESS_MAIN(TestPlandruckwerte)
#include "TestPlandruckwerte.moc"
