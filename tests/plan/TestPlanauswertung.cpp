#include "Planauswertung.h"

#include <QRandomGenerator>
#include <QTest>

#include <array>
#include <limits>
#include <vector>

class TestPlanauswertung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyPlan();
    void circleShares_data();
    void circleShares();
    void theProductComesBeforeTheDivision();
    void runningTotalsAreSinglePrecision();
    void valuesThatAreNoNumber();
    void infiniteValues();
    void negativeAmounts();
    void largeEnergyIsHeldAtTheLimit();
    void theWinnerOfEachRatingIsItsOwn();
    void faces_data();
    void faces();
    void pointsGoByTheNumbersShown_data();
    void pointsGoByTheNumbersShown();
    void sameAsALongWay_data();
    void sameAsALongWay();
};

namespace {

Datenmodul food(float protein, float fett, float kh)
{
    Datenmodul neu;
    neu.setprotein(protein);
    neu.setfett(fett);
    neu.setkh(kh);
    return neu;
}

const Plannaehrwert &naehrwert(const Planauswertung &auswertung, Naehrwert wert)
{
    return auswertung.naehrwerte[stelle(wert)];
}

} // namespace

void TestPlanauswertung::anEmptyPlan()
{
    for (const int bedarf : {0, 2000}) {
        const Planauswertung auswertung = planAuswerten({}, bedarf, 2500);
        for (const Plannaehrwert &wert : auswertung.naehrwerte) {
            QCOMPARE_EQ(wert.prozent, 0.0);
            QVERIFY(wert.balken.has_value());
            QVERIFY2(!wert.balken->code.has_value(), "the colour stays");
            QCOMPARE(wert.balken->laenge, 0);
        }
        for (const Planwertung &wertung : auswertung.wertungen) {
            QCOMPARE(wertung.plus + wertung.neutral + wertung.minus, 0);
            QVERIFY(!wertung.punkt);
            QVERIFY(!wertung.sieger.has_value());
        }
        QVERIFY2(!auswertung.energie.has_value(), "the energy fields stay");
        QCOMPARE_EQ(auswertung.proteinanteil, 0.0F);
        QCOMPARE_EQ(auswertung.khanteil, 0.0F);
        QCOMPARE_EQ(auswertung.fettanteil, 0.0F);
        QCOMPARE(auswertung.punkte, 0);
        QCOMPARE(auswertung.gesicht, 3);
    }
}

void TestPlanauswertung::circleShares_data()
{
    QTest::addColumn<float>("protein");
    QTest::addColumn<float>("fett");
    QTest::addColumn<float>("kh");
    QTest::addColumn<float>("proteinanteil");
    QTest::addColumn<float>("fettanteil");
    QTest::addColumn<float>("khanteil");
    QTest::newRow("no energy") << 0.0F << 0.0F << 0.0F << 0.0F << 0.0F << 0.0F;
    QTest::newRow("only fat") << 0.0F << 7.0F << 0.0F << 0.0F << 100.0F << 0.0F;
    // 3 x (80 + 90 + 200) = 1110 kcal
    QTest::newRow("all three") << 20.0F << 10.0F << 50.0F << 24000.0F / 1110.0F
                               << 27000.0F / 1110.0F << 60000.0F / 1110.0F;
}

void TestPlanauswertung::circleShares()
{
    QFETCH(float, protein);
    QFETCH(float, fett);
    QFETCH(float, kh);
    QFETCH(float, proteinanteil);
    QFETCH(float, fettanteil);
    QFETCH(float, khanteil);
    const Datenmodul lebensmittel = food(protein, fett, kh);
    const std::array<Planzeile, 2> zeilen = {{{&lebensmittel, 100.0F}, {&lebensmittel, 200.0F}}};
    for (const int bedarf : {0, 2000}) {
        const Planauswertung auswertung = planAuswerten(zeilen, bedarf, 0);
        QCOMPARE_EQ(auswertung.proteinanteil, proteinanteil);
        QCOMPARE_EQ(auswertung.fettanteil, fettanteil);
        QCOMPARE_EQ(auswertung.khanteil, khanteil);
    }
}

void TestPlanauswertung::theProductComesBeforeTheDivision()
{
    // 0.1 x 59 / 100 is 0.059000000; dividing first gives 0.058999997 or 0.059000004.
    Datenmodul lebensmittel;
    lebensmittel.setvitc(0.1F);
    const std::array<Planzeile, 1> zeilen = {{{&lebensmittel, 59.0F}}};
    // Vitamin C is measured against 100 mg, so the percentage is the amount again.
    QCOMPARE_EQ(naehrwert(planAuswerten(zeilen, 0, 0), Naehrwert::vitc).prozent,
                static_cast<double>(0.05900000035762787F * 100.0F / 100.0F));
}

void TestPlanauswertung::runningTotalsAreSinglePrecision()
{
    // 16777216 + 1 stays 16777216 in single precision, however often it is added.
    Datenmodul viel;
    viel.setka(16777216.0F);
    Datenmodul wenig;
    wenig.setka(1.0F);
    std::vector<Planzeile> zeilen(5, {&wenig, 100.0F});
    zeilen.front() = {&viel, 100.0F};
    QCOMPARE_EQ(naehrwert(planAuswerten(zeilen, 0, 0), Naehrwert::ka).prozent,
                static_cast<double>(16777216.0F * 100.0F / 2000.0F));
}

void TestPlanauswertung::valuesThatAreNoNumber()
{
    Datenmodul gut;
    gut.setna(440.0F);
    Datenmodul schlecht;
    schlecht.setna(std::numeric_limits<float>::quiet_NaN());
    schlecht.setprotein(std::numeric_limits<float>::quiet_NaN());
    const std::array<Planzeile, 2> zeilen = {{{&gut, 100.0F}, {&schlecht, 100.0F}}};
    const Planauswertung auswertung = planAuswerten(zeilen, 2000, 0);
    const Plannaehrwert &natrium = naehrwert(auswertung, Naehrwert::na);
    QVERIFY(qIsNaN(natrium.prozent));
    QCOMPARE(natrium.balken.value_or(Planbalken{}).code.value_or(0), 3);
    QCOMPARE(natrium.balken.value_or(Planbalken{}).laenge, 80);
    QCOMPARE_EQ(naehrwert(auswertung, Naehrwert::protein).prozent, 0.0);
    QCOMPARE(auswertung.energie.value_or(Planenergie{1, 1}).errechnet, 0);
    QVERIFY(qIsNaN(auswertung.proteinanteil));
    QCOMPARE(auswertung.punkte, 0);
}

void TestPlanauswertung::infiniteValues()
{
    Datenmodul unendlich;
    for (const auto &zeile : naehrwerte) {
        unendlich.setWert(zeile.wert, std::numeric_limits<float>::infinity());
    }
    const std::array<Planzeile, 1> zeilen = {{{&unendlich, 100.0F}}};
    const Planauswertung auswertung = planAuswerten(zeilen, 2000, 0);
    QCOMPARE(auswertung.energie.value_or(Planenergie{}).errechnet, 2147483647);
    for (const auto &zeile : naehrwerte) {
        const int code = zeile.wert == Naehrwert::bs ? 3 : 1;
        const auto balken = naehrwert(auswertung, zeile.wert).balken.value_or(Planbalken{});
        QCOMPARE(balken.code.value_or(0), code);
        QVERIFY(balken.laenge > 100);
    }
}

void TestPlanauswertung::negativeAmounts()
{
    Datenmodul lebensmittel = food(10.0F, 0.0F, 0.0F);
    lebensmittel.setvitc(50.0F);
    const std::array<Planzeile, 1> zeilen = {{{&lebensmittel, -100.0F}}};
    const Planauswertung auswertung = planAuswerten(zeilen, 2000, 0);
    QCOMPARE_EQ(naehrwert(auswertung, Naehrwert::vitc).prozent, -50.0);
    QCOMPARE(naehrwert(auswertung, Naehrwert::vitc).balken.value_or(Planbalken{}).laenge, -50);
    QCOMPARE_EQ(naehrwert(auswertung, Naehrwert::protein).prozent, -10.0);
    QCOMPARE(auswertung.energie.value_or(Planenergie{}).errechnet, -40);
}

void TestPlanauswertung::largeEnergyIsHeldAtTheLimit()
{
    const Datenmodul lebensmittel = food(1e9F, 0.0F, 0.0F);
    const std::array<Planzeile, 1> zeilen = {{{&lebensmittel, 100.0F}}};
    const Planauswertung auswertung = planAuswerten(zeilen, 2000, 0);
    QCOMPARE(auswertung.energie.value_or(Planenergie{}).errechnet, 2147483647);
    // 2147483647 x 100 / 400
    QCOMPARE_EQ(naehrwert(auswertung, Naehrwert::protein).prozent, 536870911.0);
}

void TestPlanauswertung::theWinnerOfEachRatingIsItsOwn()
{
    Datenmodul lebensmittel;
    lebensmittel.setuebergewicht(QStringLiteral("+"));
    lebensmittel.setdiabetes(QStringLiteral("0"));
    lebensmittel.setgicht(QStringLiteral("-"));
    const std::array<Planzeile, 2> zeilen = {{{&lebensmittel, 100.0F}, {nullptr, 100.0F}}};
    const auto wertung = planAuswerten(zeilen, 0, 0).wertungen;
    QCOMPARE(wertung[0].sieger, Wertungssieger::Plus);
    QCOMPARE(wertung[1].sieger, Wertungssieger::Neutral);
    QCOMPARE(wertung[2].sieger, Wertungssieger::Minus);
    QVERIFY(!wertung[3].sieger.has_value());
}

void TestPlanauswertung::faces_data()
{
    QTest::addColumn<int>("punkte");
    QTest::addColumn<int>("gesicht");
    QTest::newRow("all") << 21 << 1;
    QTest::newRow("17 laughs") << 17 << 1;
    QTest::newRow("16 is neutral") << 16 << 2;
    QTest::newRow("9 is neutral") << 9 << 2;
    QTest::newRow("8 cries") << 8 << 3;
    QTest::newRow("none") << 0 << 3;
}

void TestPlanauswertung::faces()
{
    QFETCH(int, punkte);
    QTEST(plangesicht(punkte), "gesicht");
}

namespace {

/// The energy part of the evaluation once more, for any plan, without tables.
struct Langweg
{
    float energie = 0;
    float prozent = 0;
    int code = 0;
    int laenge = 0;
};

Langweg langweg(const std::vector<Planzeile> &zeilen, int bedarf)
{
    Langweg w;
    for (const Planzeile &zeile : zeilen) {
        if (zeile.lebensmittel != nullptr) {
            const Datenmodul &f = *zeile.lebensmittel;
            w.energie +=
                (f.protein() * 4.0F + f.kh() * 4.0F + f.fett() * 9.0F) * zeile.menge / 100.0F;
        }
        w.prozent = bedarf == 0 ? 0.0F : 100.0F * w.energie / static_cast<float>(bedarf);
        if (w.prozent >= 70 && w.prozent < 110) {
            w.code = 3;
        } else if ((w.prozent >= 30 && w.prozent < 70) || (w.prozent >= 110 && w.prozent < 120)) {
            w.code = 2;
        } else {
            w.code = 1;
        }
        w.laenge = static_cast<int>(w.prozent);
    }
    return w;
}

} // namespace

void TestPlanauswertung::pointsGoByTheNumbersShown_data()
{
    QTest::addColumn<float>("natrium"); // mg, of 550
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("punkte");
    QTest::newRow("69.945 percent, shown as 69.9: none") << 384.7F << 2 << 0;
    QTest::newRow("69.964 percent, shown as 70.0: a point beside a blue bar") << 384.8F << 2 << 1;
    QTest::newRow("70 percent") << 385.0F << 3 << 1;
    QTest::newRow("109.945 percent, shown as 109.9") << 604.7F << 2 << 1;
    QTest::newRow("109.964 percent, shown as 110.0: none") << 604.8F << 2 << 0;
}

void TestPlanauswertung::pointsGoByTheNumbersShown()
{
    QFETCH(float, natrium);
    Datenmodul salz;
    salz.setna(natrium);
    const std::array zeilen = {Planzeile{&salz, 100.0F}};
    const Planauswertung auswertung = planAuswerten(zeilen, 2000, 2000);
    QTEST(auswertung.punkte, "punkte");
    QTEST(naehrwert(auswertung, Naehrwert::na).balken.value_or(Planbalken{}).code.value_or(0),
          "code");
}

void TestPlanauswertung::sameAsALongWay_data()
{
    QTest::addColumn<quint32>("saat");
    for (const quint32 saat : {21U, 22U, 23U}) {
        QTest::addRow("random plans %u", saat) << saat;
    }
}

void TestPlanauswertung::sameAsALongWay()
{
    QFETCH(quint32, saat);
    QRandomGenerator zufall(saat);
    const auto zahl = [&zufall](int hoechstens) {
        return static_cast<float>(zufall.bounded(static_cast<double>(hoechstens)));
    };
    std::array<Datenmodul, 50> lebensmittel;
    for (Datenmodul &eines : lebensmittel) {
        eines = food(zahl(30), zahl(30), zahl(60));
    }
    for (int durchgang = 0; durchgang < 300; ++durchgang) {
        std::vector<Planzeile> zeilen;
        for (int i = zufall.bounded(1, 30); i > 0; --i) {
            const auto welches = static_cast<std::size_t>(zufall.bounded(55));
            zeilen.push_back({welches < 50 ? &lebensmittel[welches] : nullptr,
                              static_cast<float>(zufall.bounded(301))});
        }
        const int bedarf = zufall.bounded(4) == 0 ? 0 : zufall.bounded(1000, 4000);
        const Langweg erwartet = langweg(zeilen, bedarf);
        const Planauswertung auswertung = planAuswerten(zeilen, bedarf, 77);
        const Plannaehrwert &energie = naehrwert(auswertung, Naehrwert::kal);
        QCOMPARE_EQ(energie.prozent, static_cast<double>(erwartet.prozent));
        QCOMPARE(energie.balken.value_or(Planbalken{}).code.value_or(0), erwartet.code);
        QCOMPARE(energie.balken.value_or(Planbalken{}).laenge, erwartet.laenge);
        QCOMPARE(auswertung.energie.value_or(Planenergie{}).errechnet,
                 static_cast<int>(erwartet.energie));
        QCOMPARE(auswertung.energie.value_or(Planenergie{}).bedarf, 77);
    }
}

QTEST_GUILESS_MAIN(TestPlanauswertung)
#include "TestPlanauswertung.moc"
