#include "Erklaerungsprobe.h"

using namespace Erklaerungsprobe;

/// What a dietitian reads about seasonings and about purines, in both languages.
class TestPurinerklaerung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSeasoningsRatingIsTold_data();
    void aSeasoningsRatingIsTold();
    void whatIsLeftAndPurinesAreTold_data();
    void whatIsLeftAndPurinesAreTold();
};

void TestPurinerklaerung::aSeasoningsRatingIsTold_data()
{
    spalten();
    erklaert("neutral by carbohydrate", Wertung::diabetes, food(gewuerz, {{u"kh"_s, 56}}),
             "Diabetes: „0“ (neutral), Regel D2\n"
             "Würze mit mehr als einer Broteinheit Kohlenhydrate in 100 g.\n"
             "verwertbare Kohlenhydrate 56 g (über 12 g)\n"
             "Ohne diese Regel wäre es „+“.\n"
             "Keine Regel gibt einem solchen Lebensmittel „-“.",
             "Diabetes: \"0\" (neutral), rule D2\n"
             "A seasoning with more than one bread unit of carbohydrate in 100 g.\n"
             "available carbohydrate 56 g (over 12 g)\n"
             "Without this rule it would be \"+\".\n"
             "No rule gives such a food a \"-\".");
    erklaert("neutral by energy and fat", Wertung::uebergewicht,
             food(gewuerz, {{u"kal"_s, 400}, {u"fett"_s, 30}, {u"sugars"_s, 50}}),
             "Übergewicht: „0“ (neutral), Regel U5\n"
             "Andere Würze: grammweise gegessen, fällt sie kaum ins Gewicht.\n"
             "Nächster Weg zu „+“: Energie höchstens 150 kcal (hier 400 kcal) und Fett höchstens 3 "
             "g (hier 30 g)\n"
             "Keine Regel gibt einem solchen Lebensmittel „-“.",
             "Overweight: \"0\" (neutral), rule U5\n"
             "Any other seasoning: eaten by the gram, it hardly counts.\n"
             "Nearest way to \"+\": energy at most 150 kcal (here 400 kcal) and fat at most 3 g "
             "(here 30 g)\n"
             "No rule gives such a food a \"-\".");
    erklaert("fibre is no way to + for it", Wertung::uebergewicht,
             food(gewuerz, {{u"kal"_s, 160}, {u"bs"_s, 40}}),
             "Übergewicht: „0“ (neutral), Regel U5\n"
             "Andere Würze: grammweise gegessen, fällt sie kaum ins Gewicht.\n"
             "Nächster Weg zu „+“: Energie höchstens 150 kcal (hier 160 kcal)\n"
             "Keine Regel gibt einem solchen Lebensmittel „-“.",
             "Overweight: \"0\" (neutral), rule U5\n"
             "Any other seasoning: eaten by the gram, it hardly counts.\n"
             "Nearest way to \"+\": energy at most 150 kcal (here 160 kcal)\n"
             "No rule gives such a food a \"-\".");
    erklaert("suitable", Wertung::diabetes, food(gewuerz, {{u"kh"_s, 7.3}}),
             "Diabetes: „+“ (geeignet), Regel D3\n"
             "Andere Würze.\n"
             "„0“ erst bei: verwertbare Kohlenhydrate über 12 g (hier 7,3 g)\n"
             "Keine Regel gibt einem solchen Lebensmittel „-“.",
             "Diabetes: \"+\" (suitable), rule D3\n"
             "Any other seasoning.\n"
             "\"0\" not before: available carbohydrate over 12 g (here 7.3 g)\n"
             "No rule gives such a food a \"-\".");
    erklaert("its purines are not asked for", Wertung::gicht,
             food(gewuerz, {{u"uric_acid"_s, 300}}),
             "Gicht: „+“ (geeignet), Regel G9\n"
             "Purinarm, oder als Würze nur grammweise gegessen.\n"
             "„0“ erst bei: Alkohol über 0,95 g (hier 0 g)\n"
             "Keine Regel gibt einem solchen Lebensmittel „-“.",
             "Gout: \"+\" (suitable), rule G9\n"
             "Low in purines, or a seasoning that is eaten by the gram.\n"
             "\"0\" not before: alcohol over 0.95 g (here 0 g)\n"
             "No rule gives such a food a \"-\".");
}

void TestPurinerklaerung::aSeasoningsRatingIsTold()
{
    pruefen();
}

void TestPurinerklaerung::whatIsLeftAndPurinesAreTold_data()
{
    spalten();
    erklaert("left at +, a drink", Wertung::uebergewicht, food(saft, {{u"kal"_s, 1}}),
             "Übergewicht: „+“ (geeignet), Regel U3\n"
             "Ein energiefreies Getränk.\n"
             "„0“ erst bei: Energie über 4 kcal (hier 1 kcal)\n"
             "„-“ erst bei: Energie über 20 kcal (hier 1 kcal)",
             "Overweight: \"+\" (suitable), rule U3\n"
             "A drink free of energy.\n"
             "\"0\" not before: energy over 4 kcal (here 1 kcal)\n"
             "\"-\" not before: energy over 20 kcal (here 1 kcal)");
    erklaert("left at +, by its figures", Wertung::gicht,
             food(kuchen, {{u"kal"_s, 300}, {u"sugars"_s, 15}, {u"uric_acid"_s, 10}}),
             "Gicht: „+“ (geeignet), Regel G9\n"
             "Purinarm, oder als Würze nur grammweise gegessen.\n"
             "„0“ erst bei: Harnsäure aus Purinen über 50 mg (hier 10 mg), Zucker mit Fruktose "
             "über 22,5 g (hier 15 g),\n"
             "Energie aus freiem Zucker über 50 % (hier 20 %) oder Alkohol über 0,95 g (hier 0 g)\n"
             "„-“ erst bei: Harnsäure aus Purinen über 150 mg (hier 10 mg)",
             "Gout: \"+\" (suitable), rule G9\n"
             "Low in purines, or a seasoning that is eaten by the gram.\n"
             "\"0\" not before: uric acid from purines over 50 mg (here 10 mg), sugars with "
             "fructose over 22.5 g (here 15 g),\n"
             "energy from free sugars over 50 % (here 20 %) or alcohol over 0.95 g (here 0 g)\n"
             "\"-\" not before: uric acid from purines over 150 mg (here 10 mg)");
    erklaert("left at +, by its class", Wertung::gicht,
             mitKlasse(food(kuchen, {{u"kal"_s, 300}, {u"sugars"_s, 3}}), Purinklasse::Niedrig),
             "Gicht: „+“ (geeignet), Regel G9\n"
             "Purinarm, oder als Würze nur grammweise gegessen.\n"
             "„0“ erst bei: mäßig viele Purine (hier wenige), Zucker mit Fruktose mindestens 12 g "
             "(hier 3 g) oder Alkohol über 0,95 g (hier 0 g)\n"
             "„-“ erst bei: viele Purine (hier wenige)\n"
             "Eine Zahl für die Purine ist nicht veröffentlicht.",
             "Gout: \"+\" (suitable), rule G9\n"
             "Low in purines, or a seasoning that is eaten by the gram.\n"
             "\"0\" not before: moderate in purines (here low), sugars with fructose at least 12 g "
             "(here 3 g) or alcohol over 0.95 g (here 0 g)\n"
             "\"-\" not before: high in purines (here low)\n"
             "No figure is published for the purines.");
    erklaert("moderate by its figure and publications", Wertung::gicht,
             belegt(food(rind, {{u"uric_acid"_s, 110.5}}), u"ACU KAN14"_s),
             "Gicht: „0“ (neutral), Regel G4\n"
             "Mäßig viele Purine, oder viele aus pflanzlicher Kost.\n"
             "Harnsäure aus Purinen 110,5 mg (über 50 mg)\n"
             "„-“ erst bei: Harnsäure aus Purinen über 150 mg (hier 110,5 mg)\n"
             "Ohne diese Regel wäre es „+“.\n"
             "Purinwerte nach: ACU, KAN14",
             "Gout: \"0\" (neutral), rule G4\n"
             "Moderate in purines, or high in those of plants.\n"
             "uric acid from purines 110.5 mg (over 50 mg)\n"
             "\"-\" not before: uric acid from purines over 150 mg (here 110.5 mg)\n"
             "Without this rule it would be \"+\".\n"
             "Purine figures from: ACU, KAN14");
    erklaert("moderate by its class", Wertung::gicht, mitKlasse(food(rind), Purinklasse::Mittel),
             "Gicht: „0“ (neutral), Regel G4\n"
             "Mäßig viele Purine, oder viele aus pflanzlicher Kost.\n"
             "Purine: mäßig viele\n"
             "„-“ erst bei: viele Purine (hier mäßig viele)\n"
             "Ohne diese Regel wäre es „+“.\n"
             "Eine Zahl für die Purine ist nicht veröffentlicht.",
             "Gout: \"0\" (neutral), rule G4\n"
             "Moderate in purines, or high in those of plants.\n"
             "purines: moderate\n"
             "\"-\" not before: high in purines (here moderate)\n"
             "Without this rule it would be \"+\".\n"
             "No figure is published for the purines.");
    erklaert("many of a plant", Wertung::gicht, mitKlasse(food(gemuese), Purinklasse::Hoch),
             "Gicht: „0“ (neutral), Regel G4\n"
             "Mäßig viele Purine, oder viele aus pflanzlicher Kost.\n"
             "Purine: viele\n"
             "Ohne diese Regel wäre es „+“.\n"
             "Keine Regel gibt einem solchen Lebensmittel „-“.\n"
             "Eine Zahl für die Purine ist nicht veröffentlicht.",
             "Gout: \"0\" (neutral), rule G4\n"
             "Moderate in purines, or high in those of plants.\n"
             "purines: high\n"
             "Without this rule it would be \"+\".\n"
             "No rule gives such a food a \"-\".\n"
             "No figure is published for the purines.");
    erklaert("high by its figure", Wertung::gicht,
             belegt(food(rind, {{u"uric_acid"_s, 219.8}}), u"KAN14"_s),
             "Gicht: „-“ (ungeeignet), Regel G1\n"
             "Purinreich: mehr als 150 mg Harnsäure aus 100 g.\n"
             "Harnsäure aus Purinen 219,8 mg (über 150 mg)\n"
             "Purinwerte nach: KAN14",
             "Gout: \"-\" (unsuitable), rule G1\n"
             "High in purines: more than 150 mg uric acid from 100 g.\n"
             "uric acid from purines 219.8 mg (over 150 mg)\n"
             "Purine figures from: KAN14");
    erklaert("high by its class", Wertung::gicht, mitKlasse(food(rind), Purinklasse::Hoch),
             "Gicht: „-“ (ungeeignet), Regel G1\n"
             "Purinreich: mehr als 150 mg Harnsäure aus 100 g.\n"
             "Purine: viele\n"
             "Eine Zahl für die Purine ist nicht veröffentlicht.",
             "Gout: \"-\" (unsuitable), rule G1\n"
             "High in purines: more than 150 mg uric acid from 100 g.\n"
             "purines: high\n"
             "No figure is published for the purines.");
    erklaert(
        "the figure of the food as eaten", Wertung::gicht,
        belegt(food(u"Hülsenfrüchte"_s, {{u"uric_acid"_s, 150}, {u"ready_g"_s, 250}}), u"ACU"_s),
        "Gicht: „0“ (neutral), Regel G4\n"
        "Mäßig viele Purine, oder viele aus pflanzlicher Kost.\n"
        "Harnsäure aus Purinen 60 mg (über 50 mg)\n"
        "Ohne diese Regel wäre es „+“.\n"
        "Keine Regel gibt einem solchen Lebensmittel „-“.\n"
        "Gerechnet je 100 g, wie gegessen: 100 g ergeben 250 g.\n"
        "Purinwerte nach: ACU",
        "Gout: \"0\" (neutral), rule G4\n"
        "Moderate in purines, or high in those of plants.\n"
        "uric acid from purines 60 mg (over 50 mg)\n"
        "Without this rule it would be \"+\".\n"
        "No rule gives such a food a \"-\".\n"
        "Reckoned for 100 g as eaten: 100 g give 250 g.\n"
        "Purine figures from: ACU");
    erklaert("not asked for where alcohol decides", Wertung::gicht,
             belegt(food(u"Bier"_s, {{u"kal"_s, 42}, {u"alcohol"_s, 4}, {u"uric_acid"_s, 13}}),
                    u"FUK13"_s),
             "Gicht: „-“ (ungeeignet), Regel G2\n"
             "Ein alkoholisches Getränk.\n"
             "Alkohol 4 g (über 0,95 g)",
             "Gout: \"-\" (unsuitable), rule G2\n"
             "An alcoholic drink.\n"
             "alcohol 4 g (over 0.95 g)");
    erklaert("nor is the class", Wertung::gicht,
             mitKlasse(food(u"Bier"_s, {{u"kal"_s, 42}, {u"alcohol"_s, 4}}), Purinklasse::Niedrig),
             "Gicht: „-“ (ungeeignet), Regel G2\n"
             "Ein alkoholisches Getränk.\n"
             "Alkohol 4 g (über 0,95 g)",
             "Gout: \"-\" (unsuitable), rule G2\n"
             "An alcoholic drink.\n"
             "alcohol 4 g (over 0.95 g)");
    erklaert("a plant left at +", Wertung::gicht,
             belegt(food(obst, {{u"kal"_s, 50}, {u"sugars"_s, 9}, {u"uric_acid"_s, 10}}), u"ACU"_s),
             "Gicht: „+“ (geeignet), Regel G9\n"
             "Purinarm, oder als Würze nur grammweise gegessen.\n"
             "„0“ erst bei: Harnsäure aus Purinen über 50 mg (hier 10 mg), Zucker mit Fruktose "
             "mindestens 12 g (hier 9 g) oder Alkohol über 0,95 g (hier 0 g)\n"
             "Keine Regel gibt einem solchen Lebensmittel „-“.\n"
             "Purinwerte nach: ACU",
             "Gout: \"+\" (suitable), rule G9\n"
             "Low in purines, or a seasoning that is eaten by the gram.\n"
             "\"0\" not before: uric acid from purines over 50 mg (here 10 mg), sugars with "
             "fructose at least 12 g (here 9 g) or alcohol over 0.95 g (here 0 g)\n"
             "No rule gives such a food a \"-\".\n"
             "Purine figures from: ACU");
    erklaert("two rules on sugars", Wertung::gicht,
             mitKlasse(food(kuchen, {{u"kal"_s, 400}, {u"sugars"_s, 52}}), Purinklasse::Niedrig),
             "Gicht: „0“ (neutral), Regel G5\n"
             "Viel Zucker, zur Hälfte Fruktose.\n"
             "Zucker mit Fruktose 52 g (über 22,5 g)\n"
             "„0“ auch nach Regel G6: Zucker mit Fruktose 52 g (mindestens 12 g) und Energie aus "
             "freiem Zucker 52 % (über 50 %)\n"
             "„-“ erst bei: viele Purine (hier wenige)\n"
             "Ohne diese Regeln wäre es „+“.\n"
             "Eine Zahl für die Purine ist nicht veröffentlicht.",
             "Gout: \"0\" (neutral), rule G5\n"
             "High in sugars, half of them fructose.\n"
             "sugars with fructose 52 g (over 22.5 g)\n"
             "\"0\" by rule G6 as well: sugars with fructose 52 g (at least 12 g) and energy from "
             "free sugars 52 % (over 50 %)\n"
             "\"-\" not before: high in purines (here low)\n"
             "Without these rules it would be \"+\".\n"
             "No figure is published for the purines.");
}

void TestPurinerklaerung::whatIsLeftAndPurinesAreTold()
{
    pruefen();
}

QTEST_GUILESS_MAIN(TestPurinerklaerung)
#include "TestPurinerklaerung.moc"
