#include "Wertungsprobe.h"

using namespace Wertungsprobe;

/// Every limit of the rules, on it and just beyond it.
class TestWertungsregeln : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRuleGivesItsRating_data();
    void everyRuleGivesItsRating();
    void overweight_data();
    void overweight();
    void diabetes_data();
    void diabetes();
    void gout_data();
    void gout();
    void purineClasses_data();
    void purineClasses();
    void purinesOfPlantsNeverForbid_data();
    void purinesOfPlantsNeverForbid();
    void heart_data();
    void heart();
};

/// What the sentence of each rule says, in the order in which the rules are tried.
void TestWertungsregeln::everyRuleGivesItsRating_data()
{
    QTest::addColumn<int>("wertung");
    QTest::addColumn<QString>("urteile");
    QTest::newRow("overweight") << static_cast<int>(Wertung::uebergewicht)
                                << u"U1- U20 U3+ U4+ U50 U6- U7- U8- U9- U10+ U11+ U120"_s;
    QTest::newRow("diabetes")
        << static_cast<int>(Wertung::diabetes)
        << u"D1- D20 D3+ D4- D5- D6- D7- D80 D90 D100 D11+ D12+ D13+ D14+ D150"_s;
    QTest::newRow("gout") << static_cast<int>(Wertung::gicht)
                          << u"G1- G2- G3- G40 G50 G60 G70 G80 G9+"_s;
    QTest::newRow("heart") << static_cast<int>(Wertung::hkk)
                           << u"H1- H2- H3- H4- H5- H60 H70 H8+ H9+ H100"_s;
}

void TestWertungsregeln::everyRuleGivesItsRating()
{
    QFETCH(int, wertung);
    QFETCH(QString, urteile);
    QStringList gefunden;
    for (const Wertungsregel &regel : wertungsregeln()) {
        if (static_cast<int>(regel.wertung) == wertung) {
            gefunden.append(QLatin1String(regel.kennung) + QLatin1String(regel.urteil));
        }
    }
    QCOMPARE(gefunden.join(u' '), urteile);
}

void TestWertungsregeln::overweight_data()
{
    spalten();
    fall("drink, 20.1 kcal", saft, {{u"kal"_s, 20.1}}, u"U1"_s);
    fall("drink, exactly 20 kcal", saft, {{u"kal"_s, 20}}, u"U2"_s);
    fall("drink, 4.1 kcal", saft, {{u"kal"_s, 4.1}}, u"U2"_s);
    fall("drink, exactly 4 kcal", saft, {{u"kal"_s, 4}}, u"U3"_s);
    fall("a sweet drink is judged as a drink", saft, {{u"kal"_s, 10}, {u"sugars"_s, 25}}, u"U2"_s);
    fall("seasoning, 150 kcal, 3 g fat", gewuerz, {{u"kal"_s, 150}, {u"fett"_s, 3}}, u"U4"_s);
    fall("seasoning, 150.1 kcal", gewuerz, {{u"kal"_s, 150.1}}, u"U5"_s);
    fall("seasoning, 3.1 g fat", gewuerz, {{u"kal"_s, 100}, {u"fett"_s, 3.1}}, u"U5"_s);
    fall("a seasoning's fibre does not help", gewuerz, {{u"kal"_s, 160}, {u"bs"_s, 40}}, u"U5"_s);
    fall("dense, fat and sweet seasoning", gewuerz,
         {{u"kal"_s, 400}, {u"fett"_s, 30}, {u"sugars"_s, 50}}, u"U5"_s);
    fall("22.6 g free sugars", kuchen, {{u"kal"_s, 100}, {u"sugars"_s, 22.6}}, u"U6"_s);
    fall("exactly 22.5 g free sugars", kuchen, {{u"kal"_s, 100}, {u"sugars"_s, 22.5}}, u"U12"_s);
    fall("milk with 22.6 g besides its lactose", milch, {{u"kal"_s, 150}, {u"sugars"_s, 27.6}},
         u"U6"_s);
    fall("milk with 22.5 g besides its lactose", milch, {{u"kal"_s, 150}, {u"sugars"_s, 27.5}},
         u"U12"_s);
    fall("a fruit's own sugars are not free", obst, {{u"kal"_s, 100}, {u"sugars"_s, 25}}, u"U10"_s);
    fall("275.1 kcal, 5.9 g fibre", kuchen, {{u"kal"_s, 275.1}, {u"bs"_s, 5.9}}, u"U7"_s);
    fall("275.1 kcal, 6 g fibre", kuchen, {{u"kal"_s, 275.1}, {u"bs"_s, 6}}, u"U12"_s);
    fall("exactly 275 kcal, no fibre", kuchen, {{u"kal"_s, 275}}, u"U12"_s);
    fall("200.1 kcal, 17.6 g fat", kuchen, {{u"kal"_s, 200.1}, {u"fett"_s, 17.6}}, u"U8"_s);
    fall("200.1 kcal, exactly 17.5 g fat", kuchen, {{u"kal"_s, 200.1}, {u"fett"_s, 17.5}},
         u"U12"_s);
    fall("exactly 200 kcal, 17.6 g fat", kuchen, {{u"kal"_s, 200}, {u"fett"_s, 17.6}}, u"U12"_s);
    fall("nuts, whatever their fibre", nuesse, {{u"kal"_s, 600}, {u"fett"_s, 50}, {u"bs"_s, 10}},
         u"U8"_s);
    fall("225.1 kcal, exactly 12 g free sugars", kuchen, {{u"kal"_s, 225.1}, {u"sugars"_s, 12}},
         u"U9"_s);
    fall("225.1 kcal, 11.9 g free sugars", kuchen, {{u"kal"_s, 225.1}, {u"sugars"_s, 11.9}},
         u"U12"_s);
    fall("exactly 225 kcal, 12 g free sugars", kuchen, {{u"kal"_s, 225}, {u"sugars"_s, 12}},
         u"U12"_s);
    fall("dense and sweet, whatever the fibre", kuchen,
         {{u"kal"_s, 300}, {u"sugars"_s, 12}, {u"bs"_s, 10}}, u"U9"_s);
    fall("150 kcal, 3 g fat, 5 g free sugars", kuchen,
         {{u"kal"_s, 150}, {u"fett"_s, 3}, {u"sugars"_s, 5}}, u"U10"_s);
    fall("150.1 kcal, 3 g fat, 5 g free sugars", kuchen,
         {{u"kal"_s, 150.1}, {u"fett"_s, 3}, {u"sugars"_s, 5}}, u"U12"_s);
    fall("150 kcal, 3.1 g fat", kuchen, {{u"kal"_s, 150}, {u"fett"_s, 3.1}}, u"U12"_s);
    fall("150 kcal, 5.1 g free sugars", kuchen, {{u"kal"_s, 150}, {u"sugars"_s, 5.1}}, u"U12"_s);
    fall("a liquid with 2.5 g free sugars", milch, {{u"kal"_s, 50}, {u"sugars"_s, 7.5}}, u"U10"_s);
    fall("a liquid with 2.6 g free sugars", milch, {{u"kal"_s, 50}, {u"sugars"_s, 7.6}}, u"U12"_s);
    fall("a plant drink with 2.6 g free sugars", sojadrink, {{u"kal"_s, 50}, {u"sugars"_s, 2.6}},
         u"U12"_s);
    fall("165 kcal, 3 g fat, 3 g fibre, 5 g free sugars", kuchen,
         {{u"kal"_s, 165}, {u"fett"_s, 3}, {u"bs"_s, 3}, {u"sugars"_s, 5}}, u"U11"_s);
    fall("165.1 kcal, 3 g fibre", kuchen, {{u"kal"_s, 165.1}, {u"bs"_s, 3}}, u"U12"_s);
    fall("165 kcal, 3.1 g fat, 3 g fibre", kuchen,
         {{u"kal"_s, 165}, {u"fett"_s, 3.1}, {u"bs"_s, 3}}, u"U12"_s);
    fall("165 kcal, 2.9 g fibre", kuchen, {{u"kal"_s, 165}, {u"bs"_s, 2.9}}, u"U12"_s);
    fall("165 kcal, 3 g fibre, 5.1 g free sugars", kuchen,
         {{u"kal"_s, 165}, {u"bs"_s, 3}, {u"sugars"_s, 5.1}}, u"U12"_s);
}

void TestWertungsregeln::overweight()
{
    pruefen(Wertung::uebergewicht);
}

void TestWertungsregeln::diabetes_data()
{
    spalten();
    fall("drink, 5.1 g sugars", saft, {{u"sugars"_s, 5.1}}, u"D1"_s);
    fall("drink, exactly 5 g sugars", saft, {{u"kh"_s, 5}, {u"sugars"_s, 5}}, u"D15"_s);
    fall("drink, 2.6 g sugars", saft, {{u"kh"_s, 2.6}, {u"sugars"_s, 2.6}}, u"D15"_s);
    fall("drink, exactly 2.5 g sugars", saft, {{u"kh"_s, 2.5}, {u"sugars"_s, 2.5}}, u"D11"_s);
    fall("seasoning, 12.1 g carbohydrate", gewuerz, {{u"kh"_s, 12.1}}, u"D2"_s);
    fall("seasoning, exactly 12 g carbohydrate", gewuerz, {{u"kh"_s, 12}}, u"D3"_s);
    fall("a sweet seasoning", gewuerz, {{u"kal"_s, 350}, {u"kh"_s, 85}, {u"sugars"_s, 80}},
         u"D2"_s);
    fall("a fat seasoning", gewuerz,
         {{u"kal"_s, 500}, {u"kh"_s, 5}, {u"fett"_s, 50}, {u"saturated"_s, 30}}, u"D3"_s);
    fall("22.6 g free sugars", kuchen, {{u"kal"_s, 400}, {u"kh"_s, 30}, {u"sugars"_s, 22.6}},
         u"D4"_s);
    fall("exactly 22.5 g free sugars", kuchen,
         {{u"kal"_s, 400}, {u"kh"_s, 30}, {u"sugars"_s, 22.5}}, u"D15"_s);
    fall("12 g free sugars, over half of the energy", kuchen,
         {{u"kal"_s, 95.9}, {u"kh"_s, 12}, {u"sugars"_s, 12}}, u"D5"_s);
    fall("12 g free sugars, exactly half of the energy", kuchen,
         {{u"kal"_s, 96}, {u"kh"_s, 12}, {u"sugars"_s, 12}}, u"D15"_s);
    fall("11.9 g free sugars, nearly all of the energy", kuchen,
         {{u"kal"_s, 48}, {u"kh"_s, 12}, {u"sugars"_s, 11.9}}, u"D15"_s);
    fall("12 g free sugars, 5.1 g saturated fat", kuchen,
         {{u"kal"_s, 300},
          {u"fett"_s, 17.5},
          {u"saturated"_s, 5.1},
          {u"kh"_s, 12},
          {u"sugars"_s, 12}},
         u"D6"_s);
    fall(
        "12 g free sugars, exactly 5 g saturated fat", kuchen,
        {{u"kal"_s, 300}, {u"fett"_s, 17.5}, {u"saturated"_s, 5}, {u"kh"_s, 12}, {u"sugars"_s, 12}},
        u"D15"_s);
    fall("11.9 g free sugars, 5.1 g saturated fat", kuchen,
         {{u"kal"_s, 300},
          {u"fett"_s, 17.5},
          {u"saturated"_s, 5.1},
          {u"kh"_s, 12},
          {u"sugars"_s, 11.9}},
         u"D15"_s);
    fall("40.1 g carbohydrate, no fibre", kuchen, {{u"kh"_s, 40.1}}, u"D7"_s);
    fall("exactly 40 g carbohydrate, no fibre", kuchen, {{u"kh"_s, 40}}, u"D15"_s);
    fall("50 g carbohydrate, 4.98 g fibre", kuchen, {{u"kh"_s, 50}, {u"bs"_s, 4.98}}, u"D7"_s);
    fall("50 g carbohydrate, a tenth as much fibre", kuchen, {{u"kh"_s, 50}, {u"bs"_s, 5}},
         u"D15"_s);
    fall("0.96 g alcohol", kuchen, {{u"alcohol"_s, 0.96}}, u"D8"_s);
    fall("0.95 g alcohol", kuchen, {{u"alcohol"_s, 0.95}}, u"D11"_s);
    fall("spirits without sugar", saft, {{u"kal"_s, 230}, {u"alcohol"_s, 33}}, u"D8"_s);
    fall("5.1 g saturated of 16 g fat", kuchen, {{u"fett"_s, 16}, {u"saturated"_s, 5.1}}, u"D9"_s);
    fall("exactly 5 g saturated of 16 g fat", kuchen, {{u"fett"_s, 16}, {u"saturated"_s, 5}},
         u"D11"_s);
    fall("nuts, over 30 percent of the fat saturated", nuesse,
         {{u"fett"_s, 20}, {u"saturated"_s, 6.01}}, u"D9"_s);
    fall("nuts, exactly 30 percent saturated", nuesse, {{u"fett"_s, 20}, {u"saturated"_s, 6}},
         u"D11"_s);
    fall("17.6 g fat", kuchen, {{u"fett"_s, 17.6}}, u"D10"_s);
    fall("exactly 17.5 g fat", kuchen, {{u"fett"_s, 17.5}}, u"D11"_s);
    fall("50 g fat of nuts", nuesse, {{u"fett"_s, 50}, {u"saturated"_s, 4}}, u"D11"_s);
    fall("50 g fat of oil", oel, {{u"fett"_s, 50}, {u"saturated"_s, 4}}, u"D11"_s);
    fall("50 g fat of fish", u"Fisch"_s, {{u"fett"_s, 50}, {u"saturated"_s, 4}}, u"D11"_s);
    fall("50 g fat, marked as recommended",
         markiert(food(kuchen, {{u"fett"_s, 50}, {u"saturated"_s, 4}}), Merkmal::Fettquelle),
         u"D11"_s);
    fall("exactly 8 g carbohydrate, no fibre, 5 g free sugars", kuchen,
         {{u"kal"_s, 100}, {u"kh"_s, 8}, {u"sugars"_s, 5}}, u"D11"_s);
    fall("8.1 g carbohydrate, no fibre", kuchen, {{u"kh"_s, 8.1}}, u"D15"_s);
    fall("8 g carbohydrate, 5.1 g free sugars", kuchen,
         {{u"kal"_s, 100}, {u"kh"_s, 8}, {u"sugars"_s, 5.1}}, u"D15"_s);
    fall("a liquid with 2.5 g free sugars", milch,
         {{u"kal"_s, 50}, {u"kh"_s, 7.5}, {u"sugars"_s, 7.5}}, u"D11"_s);
    fall("a liquid with 2.6 g free sugars", milch,
         {{u"kal"_s, 50}, {u"kh"_s, 7.6}, {u"sugars"_s, 7.6}}, u"D15"_s);
    fall("10 g carbohydrate, a tenth as much fibre", kuchen, {{u"kh"_s, 10}, {u"bs"_s, 1}},
         u"D12"_s);
    fall("10 g carbohydrate, 0.995 g fibre", kuchen, {{u"kh"_s, 10}, {u"bs"_s, 0.995}}, u"D15"_s);
    fall("exactly 12 g carbohydrate, 1.5 g fibre", kuchen, {{u"kh"_s, 12}, {u"bs"_s, 1.5}},
         u"D12"_s);
    fall("12.1 g carbohydrate, 1.5 g fibre", kuchen, {{u"kh"_s, 12.1}, {u"bs"_s, 1.5}}, u"D15"_s);
    fall("10 g carbohydrate, 1 g fibre, 5 g free sugars", kuchen,
         {{u"kal"_s, 100}, {u"kh"_s, 10}, {u"bs"_s, 1}, {u"sugars"_s, 5}}, u"D12"_s);
    fall("10 g carbohydrate, 1 g fibre, 5.1 g free sugars", kuchen,
         {{u"kal"_s, 100}, {u"kh"_s, 10}, {u"bs"_s, 1}, {u"sugars"_s, 5.1}}, u"D15"_s);
    fall("a fruit with 12 g of its own sugars", obst,
         {{u"kal"_s, 50}, {u"kh"_s, 12}, {u"bs"_s, 2}, {u"sugars"_s, 12}}, u"D12"_s);
    fall("24 g carbohydrate, a sixth as much fibre, 5 g sugars", kuchen,
         {{u"kal"_s, 200}, {u"kh"_s, 24}, {u"bs"_s, 4}, {u"sugars"_s, 5}}, u"D13"_s);
    fall("24 g carbohydrate, 3.95 g fibre", kuchen, {{u"kh"_s, 24}, {u"bs"_s, 3.95}}, u"D15"_s);
    fall("much fibre, but 5.1 g of a fruit's own sugars", obst,
         {{u"kh"_s, 24}, {u"bs"_s, 4}, {u"sugars"_s, 5.1}}, u"D15"_s);
    fall("a plant drink with 2.6 g free sugars", sojadrink,
         {{u"kal"_s, 200}, {u"kh"_s, 24}, {u"bs"_s, 4}, {u"sugars"_s, 2.6}}, u"D15"_s);
    fall("much fibre, exactly 3 g saturated fat", kuchen,
         {{u"kh"_s, 24}, {u"bs"_s, 4}, {u"fett"_s, 12}, {u"saturated"_s, 3}}, u"D13"_s);
    fall("much fibre, 3.1 g saturated fat", kuchen,
         {{u"kh"_s, 24}, {u"bs"_s, 4}, {u"fett"_s, 12}, {u"saturated"_s, 3.1}}, u"D15"_s);
    fall("nuts, a sixth as much fibre", nuesse, {{u"kh"_s, 24}, {u"bs"_s, 4}}, u"D15"_s);
    fall("nuts, a fifth as much fibre, 10 g sugars", nuesse,
         {{u"kh"_s, 20}, {u"bs"_s, 4}, {u"sugars"_s, 10}, {u"fett"_s, 50}, {u"saturated"_s, 4}},
         u"D14"_s);
    fall("nuts, 3.95 g fibre", nuesse, {{u"kh"_s, 20}, {u"bs"_s, 3.95}}, u"D15"_s);
    fall("nuts, 10.1 g sugars", nuesse, {{u"kh"_s, 20}, {u"bs"_s, 4}, {u"sugars"_s, 10.1}},
         u"D15"_s);
    fall("a fifth as much fibre, 10 g sugars, not recommended fat", obst,
         {{u"kh"_s, 20}, {u"bs"_s, 4}, {u"sugars"_s, 10}}, u"D15"_s);
    fall("marked as recommended fat, 5 g free sugars",
         markiert(food(kuchen, {{u"kal"_s, 300}, {u"kh"_s, 20}, {u"bs"_s, 4}, {u"sugars"_s, 5}}),
                  Merkmal::Fettquelle),
         u"D14"_s);
    fall("marked as recommended fat, 5.1 g free sugars",
         markiert(food(kuchen, {{u"kal"_s, 300}, {u"kh"_s, 20}, {u"bs"_s, 4}, {u"sugars"_s, 5.1}}),
                  Merkmal::Fettquelle),
         u"D15"_s);
    fall("the same without the mark", kuchen,
         {{u"kal"_s, 300}, {u"kh"_s, 20}, {u"bs"_s, 4}, {u"sugars"_s, 5}}, u"D13"_s);
}

void TestWertungsregeln::diabetes()
{
    pruefen(Wertung::diabetes);
}

void TestWertungsregeln::gout_data()
{
    spalten();
    fall("meat, 150.1 mg uric acid", rind, {{u"uric_acid"_s, 150.1}}, u"G1"_s);
    fall("meat, exactly 150 mg", rind, {{u"uric_acid"_s, 150}}, u"G4"_s);
    fall("drink, 0.96 g alcohol", saft, {{u"alcohol"_s, 0.96}}, u"G2"_s);
    fall("drink, 0.95 g alcohol", saft, {{u"alcohol"_s, 0.95}}, u"G9"_s);
    fall("drink, 5.1 g sugars", saft, {{u"sugars"_s, 5.1}}, u"G3"_s);
    fall("drink, exactly 5 g sugars", saft, {{u"sugars"_s, 5}}, u"G7"_s);
    fall("drink, 10 g glucose", ohneFruktose(food(saft, {{u"sugars"_s, 10}})), u"G9"_s);
    fall("50.1 mg uric acid", kuchen, {{u"uric_acid"_s, 50.1}}, u"G4"_s);
    fall("exactly 50 mg", kuchen, {{u"uric_acid"_s, 50}}, u"G9"_s);
    fall("drink, 60 mg", saft, {{u"uric_acid"_s, 60}}, u"G4"_s);
    fall("seasoning, 50.1 mg", gewuerz, {{u"uric_acid"_s, 50.1}}, u"G9"_s);
    fall("seasoning, 150.1 mg", gewuerz, {{u"uric_acid"_s, 150.1}}, u"G9"_s);
    fall("22.6 g sugars", kuchen, {{u"kal"_s, 400}, {u"sugars"_s, 22.6}}, u"G5"_s);
    fall("exactly 22.5 g sugars", kuchen, {{u"kal"_s, 400}, {u"sugars"_s, 22.5}}, u"G9"_s);
    fall("22.6 g of a fruit's own sugars", obst, {{u"kal"_s, 100}, {u"sugars"_s, 22.6}}, u"G5"_s);
    fall("milk with 22.6 g besides its lactose", milch, {{u"kal"_s, 400}, {u"sugars"_s, 27.6}},
         u"G5"_s);
    fall("milk with 22.5 g besides its lactose", milch, {{u"kal"_s, 400}, {u"sugars"_s, 27.5}},
         u"G9"_s);
    fall("60 g glucose", ohneFruktose(food(kuchen, {{u"kal"_s, 300}, {u"sugars"_s, 60}})), u"G9"_s);
    fall("seasoning, 60 g sugars", gewuerz, {{u"kal"_s, 300}, {u"sugars"_s, 60}}, u"G9"_s);
    fall("12 g sugars, over half of the energy", kuchen, {{u"kal"_s, 95.9}, {u"sugars"_s, 12}},
         u"G6"_s);
    fall("12 g sugars, exactly half of the energy", kuchen, {{u"kal"_s, 96}, {u"sugars"_s, 12}},
         u"G9"_s);
    fall("11.9 g sugars, nearly all of the energy", kuchen, {{u"kal"_s, 48}, {u"sugars"_s, 11.9}},
         u"G9"_s);
    fall("a fruit with 12 g of its own sugars", obst, {{u"kal"_s, 50}, {u"sugars"_s, 12}}, u"G9"_s);
    fall("12 g glucose, over half of the energy",
         ohneFruktose(food(kuchen, {{u"kal"_s, 50}, {u"sugars"_s, 12}})), u"G9"_s);
    fall("drink, 2.6 g sugars", saft, {{u"sugars"_s, 2.6}}, u"G7"_s);
    fall("drink, exactly 2.5 g sugars", saft, {{u"sugars"_s, 2.5}}, u"G9"_s);
    fall("a liquid that is no drink, 4 g added sugars", milch, {{u"kal"_s, 70}, {u"sugars"_s, 9}},
         u"G9"_s);
    fall("dish, 0.96 g alcohol", kuchen, {{u"alcohol"_s, 0.96}}, u"G8"_s);
    fall("dish, 0.95 g alcohol", kuchen, {{u"alcohol"_s, 0.95}}, u"G9"_s);
    fall("seasoning, 0.96 g alcohol", gewuerz, {{u"alcohol"_s, 0.96}}, u"G8"_s);
    fall("neither a figure nor a class", rind, {}, u"G9"_s);
}

void TestWertungsregeln::gout()
{
    pruefen(Wertung::gicht);
}

void TestWertungsregeln::purineClasses_data()
{
    spalten();
    fall("meat, low", mitKlasse(food(rind), Purinklasse::Niedrig), u"G9"_s);
    fall("meat, moderate", mitKlasse(food(rind), Purinklasse::Mittel), u"G4"_s);
    fall("meat, high", mitKlasse(food(rind), Purinklasse::Hoch), u"G1"_s);
    fall("a plant, low", mitKlasse(food(gemuese), Purinklasse::Niedrig), u"G9"_s);
    fall("a plant, moderate", mitKlasse(food(gemuese), Purinklasse::Mittel), u"G4"_s);
    fall("a plant, high", mitKlasse(food(gemuese), Purinklasse::Hoch), u"G4"_s);
    fall("a seasoning, low", mitKlasse(food(gewuerz), Purinklasse::Niedrig), u"G9"_s);
    fall("a seasoning, moderate", mitKlasse(food(gewuerz), Purinklasse::Mittel), u"G9"_s);
    fall("a seasoning, high", mitKlasse(food(gewuerz), Purinklasse::Hoch), u"G9"_s);
    fall("a figure stands before a class",
         mitKlasse(food(rind, {{u"uric_acid"_s, 10}}), Purinklasse::Hoch), u"G9"_s);
    fall("a figure is divided by what it gives", rind, {{u"uric_acid"_s, 450}, {u"ready_g"_s, 300}},
         u"G4"_s);
    fall("a figure stays high when divided by less", rind,
         {{u"uric_acid"_s, 450}, {u"ready_g"_s, 299}}, u"G1"_s);
    fall("a class is not divided", mitKlasse(food(rind, {{u"ready_g"_s, 300}}), Purinklasse::Hoch),
         u"G1"_s);
    fall("a moderate class is not divided",
         mitKlasse(food(reis, {{u"ready_g"_s, 300}}), Purinklasse::Mittel), u"G4"_s);
}

void TestWertungsregeln::purineClasses()
{
    pruefen(Wertung::gicht);
}

void TestWertungsregeln::purinesOfPlantsNeverForbid_data()
{
    QTest::addColumn<QString>("gruppe");
    QTest::addColumn<QString>("regel");
    for (const char *const gruppe :
         {"Flocken und Müsli", "Hülsenfrüchte", "Gemüse", "Pilze", "Obst", "Trockenobst",
          "Nüsse und Samen", "Tofu und Fleischersatz"}) {
        QTest::newRow(gruppe) << QString::fromUtf8(gruppe) << u"G4"_s;
    }
    for (const char *const gruppe :
         {"Innereien", "Fisch", "Krusten- und Weichtiere", "Schweinefleisch", "Wurst und Schinken",
          "Suppen und Soßen", "Gerichte ohne Fleisch", "Hefe", "Bier"}) {
        QTest::newRow(gruppe) << QString::fromUtf8(gruppe) << u"G1"_s;
    }
}

void TestWertungsregeln::purinesOfPlantsNeverForbid()
{
    QFETCH(QString, gruppe);
    QFETCH(QString, regel);
    const Tabellenzeile zeile = food(gruppe, {{u"uric_acid"_s, 300}});
    const auto *const entschieden = entscheidendeRegel(Wertung::gicht, wertungsgroessen(zeile));
    QCOMPARE(QString::fromLatin1(entschieden->kennung), regel);
}

void TestWertungsregeln::heart_data()
{
    spalten();
    fall("5.1 g saturated of 16 g fat", kuchen, {{u"fett"_s, 16}, {u"saturated"_s, 5.1}}, u"H1"_s);
    fall("exactly 5 g saturated, all of the fat", kuchen, {{u"fett"_s, 5}, {u"saturated"_s, 5}},
         u"H10"_s);
    fall("over 30 percent of the fat saturated", nuesse, {{u"fett"_s, 20}, {u"saturated"_s, 6.01}},
         u"H1"_s);
    fall("exactly 30 percent of the fat saturated", nuesse, {{u"fett"_s, 20}, {u"saturated"_s, 6}},
         u"H9"_s);
    fall("200.1 mg cholesterol", kuchen, {{u"chol"_s, 200.1}}, u"H2"_s);
    fall("exactly 200 mg cholesterol", kuchen, {{u"chol"_s, 200}}, u"H10"_s);
    fall("1000.1 mg sodium, much fibre", kuchen, {{u"na"_s, 1000.1}, {u"bs"_s, 20}}, u"H3"_s);
    fall("exactly 1000 mg sodium, much fibre", kuchen, {{u"na"_s, 1000}, {u"bs"_s, 20}}, u"H10"_s);
    fall("600.1 mg sodium, 2.9 g fibre", kuchen, {{u"na"_s, 600.1}, {u"bs"_s, 2.9}}, u"H4"_s);
    fall("600.1 mg sodium, exactly 3 g fibre", kuchen, {{u"na"_s, 600.1}, {u"bs"_s, 3}}, u"H10"_s);
    fall("exactly 600 mg sodium, no fibre", kuchen, {{u"na"_s, 600}}, u"H10"_s);
    fall("rice boiled in salted water, 600.1 mg sodium", reis, {{u"na"_s, 600.1}}, u"H10"_s);
    fall("potatoes boiled in salted water", u"Kartoffeln"_s, {{u"na"_s, 600.1}}, u"H10"_s);
    fall("pulses boiled in salted water", u"Hülsenfrüchte"_s, {{u"na"_s, 600.1}}, u"H10"_s);
    fall("rice, 1000.1 mg sodium", reis, {{u"na"_s, 1000.1}}, u"H3"_s);
    fall("drink, 0.96 g alcohol", saft, {{u"alcohol"_s, 0.96}}, u"H5"_s);
    fall("drink, 0.95 g alcohol", saft, {{u"alcohol"_s, 0.95}}, u"H8"_s);
    fall("dish, 0.96 g alcohol", kuchen, {{u"alcohol"_s, 0.96}}, u"H8"_s);
    fall("beef", rind, {}, u"H6"_s);
    fall("pork", u"Schweinefleisch"_s, {}, u"H6"_s);
    fall("lamb, horse and game", u"Lamm, Pferd und Wild"_s, {}, u"H6"_s);
    fall("sausage", u"Wurst und Schinken"_s, {}, u"H6"_s);
    fall("poultry", gefluegel, {}, u"H8"_s);
    fall("a dish marked as red meat", markiert(food(kuchen), Merkmal::RotesFleisch), u"H6"_s);
    fall("fat beef", rind, {{u"fett"_s, 16}, {u"saturated"_s, 5.1}}, u"H1"_s);
    fall("a soft drink marked for its caffeine", markiert(food(saft), Merkmal::Koffein), u"H7"_s);
    fall("the same without the mark", saft, {}, u"H8"_s);
    fall("caffeine and alcohol", markiert(food(saft, {{u"alcohol"_s, 0.96}}), Merkmal::Koffein),
         u"H5"_s);
    fall(
        "1.5 g saturated, 120 mg sodium, 100 mg cholesterol, 5 g free sugars", kuchen,
        {{u"fett"_s, 2}, {u"saturated"_s, 1.5}, {u"na"_s, 120}, {u"chol"_s, 100}, {u"sugars"_s, 5}},
        u"H8"_s);
    fall("1.6 g saturated fat", kuchen, {{u"fett"_s, 10}, {u"saturated"_s, 1.6}}, u"H10"_s);
    fall("120.1 mg sodium", kuchen, {{u"na"_s, 120.1}}, u"H10"_s);
    fall("100.1 mg cholesterol", kuchen, {{u"chol"_s, 100.1}}, u"H10"_s);
    fall("5.1 g free sugars", kuchen, {{u"sugars"_s, 5.1}}, u"H10"_s);
    fall("a liquid with 2.5 g free sugars", milch, {{u"sugars"_s, 7.5}}, u"H8"_s);
    fall("a liquid with 2.6 g free sugars", milch, {{u"sugars"_s, 7.6}}, u"H10"_s);
    fall("nuts, 30 percent saturated, 120 mg sodium", nuesse,
         {{u"fett"_s, 10}, {u"saturated"_s, 3}, {u"na"_s, 120}}, u"H9"_s);
    fall("fish, 100 mg cholesterol", u"Fisch"_s,
         {{u"fett"_s, 10}, {u"saturated"_s, 3}, {u"chol"_s, 100}}, u"H9"_s);
    fall("oil, 30.05 percent saturated, under 5 g", oel, {{u"fett"_s, 10}, {u"saturated"_s, 3.005}},
         u"H10"_s);
    fall("nuts, 120.1 mg sodium", nuesse, {{u"fett"_s, 10}, {u"saturated"_s, 3}, {u"na"_s, 120.1}},
         u"H10"_s);
    fall("fish, 100.1 mg cholesterol", u"Fisch"_s,
         {{u"fett"_s, 10}, {u"saturated"_s, 3}, {u"chol"_s, 100.1}}, u"H10"_s);
    fall("margarine, 5 g free sugars", oel,
         {{u"fett"_s, 10}, {u"saturated"_s, 3}, {u"sugars"_s, 5}}, u"H9"_s);
    fall("margarine, 5.1 g free sugars", oel,
         {{u"fett"_s, 10}, {u"saturated"_s, 3}, {u"sugars"_s, 5.1}}, u"H10"_s);
    fall("2 g saturated of 10 g fat, not recommended", kuchen,
         {{u"fett"_s, 10}, {u"saturated"_s, 2}}, u"H10"_s);
    fall("the same, marked as recommended",
         markiert(food(kuchen, {{u"fett"_s, 10}, {u"saturated"_s, 2}}), Merkmal::Fettquelle),
         u"H9"_s);
}

void TestWertungsregeln::heart()
{
    pruefen(Wertung::hkk);
}

QTEST_GUILESS_MAIN(TestWertungsregeln)
#include "TestWertungsregeln.moc"
