#include "Erklaerungsprobe.h"
#include "Tabellenprobe.h"

#include <QRegularExpression>

using namespace Erklaerungsprobe;

/// What a dietitian reads about a rating, in both languages.
class TestWertungserklaerung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFiguresAreTold_data();
    void theFiguresAreTold();
    void aNeutralRatingTellsWhatBarsTheOthers_data();
    void aNeutralRatingTellsWhatBarsTheOthers();
    void figuresFollowTheReadersLocale();
    void listsCanBeAskedForOneByOne();
    void withoutRulesThereIsNothingToTell();
    void everyShippedRatingNamesWhatDecided();
    void withoutTheRulesThatAreToldAFoodIsSuitable();
};

void TestWertungserklaerung::theFiguresAreTold_data()
{
    spalten();
    erklaert("the figure over its limit", Wertung::uebergewicht, food(saft, {{u"kal"_s, 42}}),
             "Übergewicht: „-“ (ungeeignet), Regel U1\n"
             "Ein Getränk, das nicht energiearm ist: Es sättigt nicht, seine Energie kommt hinzu.\n"
             "Energie 42 kcal (über 20 kcal)",
             "Overweight: \"-\" (unsuitable), rule U1\n"
             "A drink that is not low in energy: it does not fill, its energy comes on top.\n"
             "energy 42 kcal (over 20 kcal)");
    erklaert("two figures", Wertung::diabetes,
             food(kuchen, {{u"kal"_s, 90.5}, {u"kh"_s, 18}, {u"sugars"_s, 15.5}}),
             "Diabetes: „-“ (ungeeignet), Regel D5\n"
             "Süß, und die meiste Energie kommt aus freiem Zucker.\n"
             "freier Zucker 15,5 g (mindestens 12 g)\n"
             "Energie aus freiem Zucker 68,5 % (über 50 %)",
             "Diabetes: \"-\" (unsuitable), rule D5\n"
             "Sweet, and most of its energy is free sugars.\n"
             "free sugars 15.5 g (at least 12 g)\n"
             "energy from free sugars 68.5 % (over 50 %)");
    erklaert("the limit that a mark stands for", Wertung::uebergewicht,
             food(kuchen, {{u"kal"_s, 110}, {u"fett"_s, 2.5}, {u"sugars"_s, 4.25}}),
             "Übergewicht: „+“ (geeignet), Regel U10\n"
             "Geringe Energiedichte, wenig Fett und wenig freier Zucker.\n"
             "freier Zucker 4,25 g (höchstens 5 g)\n"
             "Energie 110 kcal (höchstens 150 kcal)\n"
             "Fett 2,5 g (höchstens 3 g)",
             "Overweight: \"+\" (suitable), rule U10\n"
             "Low energy density, low in fat and low in free sugars.\n"
             "free sugars 4.25 g (at most 5 g)\n"
             "energy 110 kcal (at most 150 kcal)\n"
             "fat 2.5 g (at most 3 g)");
    erklaert("that limit for a liquid", Wertung::diabetes,
             food(milch, {{u"kal"_s, 45}, {u"kh"_s, 6.5}, {u"sugars"_s, 6.5}}),
             "Diabetes: „+“ (geeignet), Regel D11\n"
             "Wenig freier Zucker und wenig Kohlenhydrate.\n"
             "freier Zucker 1,5 g (höchstens 2,5 g)\n"
             "verwertbare Kohlenhydrate 6,5 g (höchstens 8 g)",
             "Diabetes: \"+\" (suitable), rule D11\n"
             "Low in free sugars and in carbohydrate.\n"
             "free sugars 1.5 g (at most 2.5 g)\n"
             "available carbohydrate 6.5 g (at most 8 g)");
    erklaert("no fibre at all", Wertung::diabetes, food(kuchen, {{u"kal"_s, 250}, {u"kh"_s, 60}}),
             "Diabetes: „-“ (ungeeignet), Regel D7\n"
             "Viel Stärke oder Zucker mit wenig Ballaststoffen.\n"
             "verwertbare Kohlenhydrate 60 g (über 40 g)\n"
             "Kohlenhydrate je Gramm Ballaststoffe über 10 g (hier keine Ballaststoffe)",
             "Diabetes: \"-\" (unsuitable), rule D7\n"
             "Much starch or sugar with little fibre: refined.\n"
             "available carbohydrate 60 g (over 40 g)\n"
             "carbohydrate for each gram of fibre over 10 g (here no fibre)");
    erklaert("a large figure without a thousands mark", Wertung::hkk,
             food(gewuerz, {{u"na"_s, 38758}}),
             "Herz und Kreislauf: „-“ (ungeeignet), Regel H3\n"
             "100 g enthalten das halbe Natrium eines Tages.\n"
             "Natrium 38758 mg (über 1000 mg)",
             "Heart and circulation: \"-\" (unsuitable), rule H3\n"
             "100 g hold half of a day's sodium.\n"
             "sodium 38758 mg (over 1000 mg)");
    erklaert("more digits where few would hide the limit", Wertung::uebergewicht,
             food(saft, {{u"kal"_s, 20.04}}),
             "Übergewicht: „-“ (ungeeignet), Regel U1\n"
             "Ein Getränk, das nicht energiearm ist: Es sättigt nicht, seine Energie kommt hinzu.\n"
             "Energie 20,04 kcal (über 20 kcal)",
             "Overweight: \"-\" (unsuitable), rule U1\n"
             "A drink that is not low in energy: it does not fill, its energy comes on top.\n"
             "energy 20.04 kcal (over 20 kcal)");
    erklaert("figures of the food as eaten", Wertung::diabetes,
             food(reis, {{u"kal"_s, 352}, {u"kh"_s, 78}, {u"bs"_s, 1}, {u"ready_g"_s, 320}}),
             "Diabetes: „0“ (neutral), Regel D15\n"
             "Alles Übrige.\n"
             "Nächster Weg zu „+“: verwertbare Kohlenhydrate höchstens 8 g (hier 24,4 g)\n"
             "„-“ erst bei: freier Zucker mindestens 12 g (hier 0 g) oder verwertbare "
             "Kohlenhydrate über 40 g (hier 24,4 g)\n"
             "Gerechnet je 100 g, wie gegessen: 100 g ergeben 320 g.",
             "Diabetes: \"0\" (neutral), rule D15\n"
             "Everything else.\n"
             "Nearest way to \"+\": available carbohydrate at most 8 g (here 24.4 g)\n"
             "\"-\" not before: free sugars at least 12 g (here 0 g) or available carbohydrate "
             "over 40 g (here 24.4 g)\n"
             "Reckoned for 100 g as eaten: 100 g give 320 g.");
    erklaert(
        "a powder that gives a drink", Wertung::diabetes,
        food(milch, {{u"kal"_s, 1200}, {u"kh"_s, 80}, {u"sugars"_s, 80}, {u"ready_g"_s, 2500}}),
        "Diabetes: „+“ (geeignet), Regel D11\n"
        "Wenig freier Zucker und wenig Kohlenhydrate.\n"
        "freier Zucker 0 g (höchstens 2,5 g)\n"
        "verwertbare Kohlenhydrate 3,2 g (höchstens 8 g)\n"
        "Gerechnet je 100 g, wie gegessen: 100 g ergeben 2500 g.",
        "Diabetes: \"+\" (suitable), rule D11\n"
        "Low in free sugars and in carbohydrate.\n"
        "free sugars 0 g (at most 2.5 g)\n"
        "available carbohydrate 3.2 g (at most 8 g)\n"
        "Reckoned for 100 g as eaten: 100 g give 2500 g.");
}

void TestWertungserklaerung::theFiguresAreTold()
{
    pruefen();
}

void TestWertungserklaerung::aNeutralRatingTellsWhatBarsTheOthers_data()
{
    spalten();
    erklaert("one limit short of +", Wertung::uebergewicht,
             food(kuchen, {{u"kal"_s, 176}, {u"fett"_s, 2}}),
             "Übergewicht: „0“ (neutral), Regel U12\n"
             "Alles Übrige.\n"
             "Nächster Weg zu „+“: Energie höchstens 150 kcal (hier 176 kcal)\n"
             "„-“ erst bei: freier Zucker über 22,5 g (hier 0 g) oder Energie über 200 kcal (hier "
             "176 kcal)",
             "Overweight: \"0\" (neutral), rule U12\n"
             "Everything else.\n"
             "Nearest way to \"+\": energy at most 150 kcal (here 176 kcal)\n"
             "\"-\" not before: free sugars over 22.5 g (here 0 g) or energy over 200 kcal (here "
             "176 kcal)");
    erklaert("of two ways the one with fewer limits", Wertung::hkk,
             food(nuesse, {{u"kal"_s, 150}, {u"fett"_s, 50}, {u"saturated"_s, 4}, {u"na"_s, 300}}),
             "Herz und Kreislauf: „0“ (neutral), Regel H10\n"
             "Alles Übrige.\n"
             "Nächster Weg zu „+“: Natrium höchstens 120 mg (hier 300 mg)\n"
             "„-“ erst bei: gesättigtes Fett über 5 g (hier 4 g), Cholesterin über 200 mg (hier 0 "
             "mg) oder Natrium über 600 mg (hier 300 mg)",
             "Heart and circulation: \"0\" (neutral), rule H10\n"
             "Everything else.\n"
             "Nearest way to \"+\": sodium at most 120 mg (here 300 mg)\n"
             "\"-\" not before: saturated fat over 5 g (here 4 g), cholesterol over 200 mg (here 0 "
             "mg) or sodium over 600 mg (here 300 mg)");
    erklaert("one limit far off before two near ones", Wertung::diabetes,
             food(obst, {{u"kal"_s, 150}, {u"kh"_s, 33}, {u"bs"_s, 5}, {u"sugars"_s, 5.5}}),
             "Diabetes: „0“ (neutral), Regel D15\n"
             "Alles Übrige.\n"
             "Nächster Weg zu „+“: verwertbare Kohlenhydrate höchstens 12 g (hier 33 g)\n"
             "„-“ erst bei: freier Zucker mindestens 12 g (hier 0 g) oder verwertbare "
             "Kohlenhydrate über 40 g (hier 33 g)",
             "Diabetes: \"0\" (neutral), rule D15\n"
             "Everything else.\n"
             "Nearest way to \"+\": available carbohydrate at most 12 g (here 33 g)\n"
             "\"-\" not before: free sugars at least 12 g (here 0 g) or available carbohydrate "
             "over 40 g (here 33 g)");
    erklaert("of as many limits the nearest", Wertung::diabetes,
             food(kuchen, {{u"kal"_s, 250}, {u"kh"_s, 48}, {u"bs"_s, 6}, {u"sugars"_s, 2}}),
             "Diabetes: „0“ (neutral), Regel D15\n"
             "Alles Übrige.\n"
             "Nächster Weg zu „+“: Kohlenhydrate je Gramm Ballaststoffe höchstens 6 g (hier 8 g)\n"
             "„-“ erst bei: freier Zucker mindestens 12 g (hier 2 g) oder Kohlenhydrate je Gramm "
             "Ballaststoffe über 10 g (hier 8 g)",
             "Diabetes: \"0\" (neutral), rule D15\n"
             "Everything else.\n"
             "Nearest way to \"+\": carbohydrate for each gram of fibre at most 6 g (here 8 g)\n"
             "\"-\" not before: free sugars at least 12 g (here 2 g) or carbohydrate for each gram "
             "of fibre over 10 g (here 8 g)");
    erklaert("three limits short of +", Wertung::uebergewicht,
             food(kuchen, {{u"kal"_s, 250}, {u"fett"_s, 10}, {u"sugars"_s, 6}}),
             "Übergewicht: „0“ (neutral), Regel U12\n"
             "Alles Übrige.\n"
             "Nächster Weg zu „+“: freier Zucker höchstens 5 g (hier 6 g), Energie höchstens 150 "
             "kcal (hier 250 kcal) und Fett höchstens 3 g (hier 10 g)\n"
             "„-“ erst bei: freier Zucker mindestens 12 g (hier 6 g), Energie über 275 kcal (hier "
             "250 kcal) oder Fett über 17,5 g (hier 10 g)",
             "Overweight: \"0\" (neutral), rule U12\n"
             "Everything else.\n"
             "Nearest way to \"+\": free sugars at most 5 g (here 6 g), energy at most 150 kcal "
             "(here 250 kcal) and fat at most 3 g (here 10 g)\n"
             "\"-\" not before: free sugars at least 12 g (here 6 g), energy over 275 kcal (here "
             "250 kcal) or fat over 17.5 g (here 10 g)");
    erklaert("nothing but the rule", Wertung::uebergewicht, food(saft, {{u"kal"_s, 15}}),
             "Übergewicht: „0“ (neutral), Regel U2\n"
             "Ein energiearmes Getränk.\n"
             "Energie 15 kcal (über 4 kcal)\n"
             "„-“ erst bei: Energie über 20 kcal (hier 15 kcal)\n"
             "Ohne diese Regel wäre es „+“.",
             "Overweight: \"0\" (neutral), rule U2\n"
             "A drink low in energy.\n"
             "energy 15 kcal (over 4 kcal)\n"
             "\"-\" not before: energy over 20 kcal (here 15 kcal)\n"
             "Without this rule it would be \"+\".");
    erklaert(
        "nothing but the rule, by one of several ways", Wertung::diabetes,
        food(obst,
             {{u"kal"_s, 60}, {u"kh"_s, 10}, {u"bs"_s, 2}, {u"sugars"_s, 9}, {u"alcohol"_s, 2}}),
        "Diabetes: „0“ (neutral), Regel D8\n"
        "Enthält Alkohol.\n"
        "Alkohol 2 g (über 0,95 g)\n"
        "„-“ erst bei: freier Zucker mindestens 12 g (hier 0 g) oder verwertbare Kohlenhydrate "
        "über 40 g (hier 10 g)\n"
        "Ohne diese Regel wäre es „+“.",
        "Diabetes: \"0\" (neutral), rule D8\n"
        "Holds alcohol.\n"
        "alcohol 2 g (over 0.95 g)\n"
        "\"-\" not before: free sugars at least 12 g (here 0 g) or available carbohydrate over 40 "
        "g (here 10 g)\n"
        "Without this rule it would be \"+\".");
    erklaert(
        "nothing but the mark", Wertung::hkk,
        food(
            rind,
            {{u"kal"_s, 110}, {u"fett"_s, 2}, {u"saturated"_s, 1}, {u"chol"_s, 60}, {u"na"_s, 65}}),
        "Herz und Kreislauf: „0“ (neutral), Regel H6\n"
        "Rotes Fleisch oder Wurst: höchstens 300 g Fleisch und Wurst in der Woche.\n"
        "„-“ erst bei: gesättigtes Fett über 5 g (hier 1 g), Cholesterin über 200 mg (hier 60 mg) "
        "oder Natrium über 600 mg (hier 65 mg)\n"
        "Ohne diese Regel wäre es „+“.",
        "Heart and circulation: \"0\" (neutral), rule H6\n"
        "Red meat or sausage: at most 300 g of meat and sausage a week.\n"
        "\"-\" not before: saturated fat over 5 g (here 1 g), cholesterol over 200 mg (here 60 mg) "
        "or sodium over 600 mg (here 65 mg)\n"
        "Without this rule it would be \"+\".");
    erklaert("the mark and a figure", Wertung::hkk,
             food(rind, {{u"kal"_s, 200},
                         {u"fett"_s, 12},
                         {u"saturated"_s, 3.1},
                         {u"chol"_s, 60},
                         {u"na"_s, 65}}),
             "Herz und Kreislauf: „0“ (neutral), Regel H6\n"
             "Rotes Fleisch oder Wurst: höchstens 300 g Fleisch und Wurst in der Woche.\n"
             "Für „+“ wäre außerdem nötig: gesättigtes Fett höchstens 1,5 g (hier 3,1 g)\n"
             "„-“ erst bei: gesättigtes Fett über 5 g (hier 3,1 g), Cholesterin über 200 mg (hier "
             "60 mg) oder Natrium über 600 mg (hier 65 mg)",
             "Heart and circulation: \"0\" (neutral), rule H6\n"
             "Red meat or sausage: at most 300 g of meat and sausage a week.\n"
             "Also needed for \"+\": saturated fat at most 1.5 g (here 3.1 g)\n"
             "\"-\" not before: saturated fat over 5 g (here 3.1 g), cholesterol over 200 mg (here "
             "60 mg) or sodium over 600 mg (here 65 mg)");
    erklaert(
        "another rule as well", Wertung::diabetes,
        food(u"Käse"_s, {{u"kal"_s, 370}, {u"fett"_s, 30}, {u"saturated"_s, 18}, {u"kh"_s, 1}}),
        "Diabetes: „0“ (neutral), Regel D9\n"
        "Viel gesättigtes Fett.\n"
        "gesättigtes Fett 18 g (über 5 g)\n"
        "gesättigter Anteil am Fett 60 % (über 30 %)\n"
        "„0“ auch nach Regel D10: Fett 30 g (über 17,5 g)\n"
        "„-“ erst bei: freier Zucker mindestens 12 g (hier 0 g) oder verwertbare Kohlenhydrate "
        "über 40 g (hier 1 g)\n"
        "Ohne diese Regeln wäre es „+“.",
        "Diabetes: \"0\" (neutral), rule D9\n"
        "High in saturated fat.\n"
        "saturated fat 18 g (over 5 g)\n"
        "saturated part of the fat 60 % (over 30 %)\n"
        "\"0\" by rule D10 as well: fat 30 g (over 17.5 g)\n"
        "\"-\" not before: free sugars at least 12 g (here 0 g) or available carbohydrate over 40 "
        "g (here 1 g)\n"
        "Without these rules it would be \"+\".");
    erklaert("another rule and a figure as well", Wertung::diabetes,
             food(u"Süßspeisen und Eis"_s, {{u"kal"_s, 300},
                                            {u"fett"_s, 12},
                                            {u"saturated"_s, 8},
                                            {u"kh"_s, 24},
                                            {u"sugars"_s, 9},
                                            {u"alcohol"_s, 2}}),
             "Diabetes: „0“ (neutral), Regel D8\n"
             "Enthält Alkohol.\n"
             "Alkohol 2 g (über 0,95 g)\n"
             "„0“ auch nach Regel D9: gesättigtes Fett 8 g (über 5 g) und gesättigter Anteil am "
             "Fett 66,7 % (über 30 %)\n"
             "Für „+“ wäre außerdem nötig: freier Zucker höchstens 5 g (hier 9 g) und verwertbare "
             "Kohlenhydrate höchstens 8 g (hier 24 g)\n"
             "„-“ erst bei: freier Zucker mindestens 12 g (hier 9 g) oder verwertbare "
             "Kohlenhydrate über 40 g (hier 24 g)",
             "Diabetes: \"0\" (neutral), rule D8\n"
             "Holds alcohol.\n"
             "alcohol 2 g (over 0.95 g)\n"
             "\"0\" by rule D9 as well: saturated fat 8 g (over 5 g) and saturated part of the fat "
             "66.7 % (over 30 %)\n"
             "Also needed for \"+\": free sugars at most 5 g (here 9 g) and available carbohydrate "
             "at most 8 g (here 24 g)\n"
             "\"-\" not before: free sugars at least 12 g (here 9 g) or available carbohydrate "
             "over 40 g (here 24 g)");
    erklaert(
        "another mark as well", Wertung::hkk,
        markiert(food(saft), Merkmal::RotesFleisch | Merkmal::Koffein),
        "Herz und Kreislauf: „0“ (neutral), Regel H6\n"
        "Rotes Fleisch oder Wurst: höchstens 300 g Fleisch und Wurst in der Woche.\n"
        "„0“ auch nach Regel H7: Ein Erfrischungsgetränk mit Koffein.\n"
        "„-“ erst bei: gesättigtes Fett über 5 g (hier 0 g), Cholesterin über 200 mg (hier 0 mg),\n"
        "Natrium über 600 mg (hier 0 mg) oder Alkohol über 0,95 g (hier 0 g)\n"
        "Ohne diese Regeln wäre es „+“.",
        "Heart and circulation: \"0\" (neutral), rule H6\n"
        "Red meat or sausage: at most 300 g of meat and sausage a week.\n"
        "\"0\" by rule H7 as well: A soft drink with caffeine.\n"
        "\"-\" not before: saturated fat over 5 g (here 0 g), cholesterol over 200 mg (here 0 "
        "mg),\n"
        "sodium over 600 mg (here 0 mg) or alcohol over 0.95 g (here 0 g)\n"
        "Without these rules it would be \"+\".");
    erklaert(
        "four limits in two lines", Wertung::hkk,
        markiert(food(saft, {{u"kal"_s, 42}, {u"sugars"_s, 10}}), Merkmal::Koffein),
        "Herz und Kreislauf: „0“ (neutral), Regel H7\n"
        "Ein Erfrischungsgetränk mit Koffein.\n"
        "Für „+“ wäre außerdem nötig: freier Zucker höchstens 2,5 g (hier 10 g)\n"
        "„-“ erst bei: gesättigtes Fett über 5 g (hier 0 g), Cholesterin über 200 mg (hier 0 mg),\n"
        "Natrium über 600 mg (hier 0 mg) oder Alkohol über 0,95 g (hier 0 g)",
        "Heart and circulation: \"0\" (neutral), rule H7\n"
        "A soft drink with caffeine.\n"
        "Also needed for \"+\": free sugars at most 2.5 g (here 10 g)\n"
        "\"-\" not before: saturated fat over 5 g (here 0 g), cholesterol over 200 mg (here 0 "
        "mg),\n"
        "sodium over 600 mg (here 0 mg) or alcohol over 0.95 g (here 0 g)");
}

void TestWertungserklaerung::aNeutralRatingTellsWhatBarsTheOthers()
{
    pruefen();
}

void TestWertungserklaerung::figuresFollowTheReadersLocale()
{
    const Tabellenzeile salz = food(gewuerz, {{u"na"_s, 38758.5}});
    const auto grund = [&](Regelsprache sprache, const QLocale &zahlen) {
        return Wertungserklaerung(Wertung::hkk, salz, sprache, zahlen).gruende().join(u';');
    };
    const QLocale amerika(QLocale::English, QLocale::UnitedStates);
    QCOMPARE(grund(Regelsprache::Deutsch, deutschland), u"Natrium 38758,5 mg (über 1000 mg)"_s);
    QCOMPARE(grund(Regelsprache::Englisch, amerika), u"sodium 38758.5 mg (over 1000 mg)"_s);
    QCOMPARE(grund(Regelsprache::Englisch, deutschland), u"sodium 38758,5 mg (over 1000 mg)"_s);
}

void TestWertungserklaerung::listsCanBeAskedForOneByOne()
{
    const auto erklaerung = [](Wertung wertung, const Tabellenzeile &zeile) {
        return Wertungserklaerung(wertung, zeile, Regelsprache::Englisch, QLocale::c());
    };
    const auto rest = erklaerung(Wertung::uebergewicht, food(kuchen, {{u"kal"_s, 176}}));
    QCOMPARE(QLatin1String(rest.regel()->kennung), u"U12"_s);
    QVERIFY(rest.gruende().isEmpty() && rest.auchNull().isEmpty() && !rest.sonstPlus());
    QCOMPARE(rest.fehltZumPlus(), QStringList{u"energy at most 150 kcal (here 176 kcal)"_s});
    QVERIFY(rest.fehltZurNull().isEmpty());
    QCOMPARE(rest.fehltZumMinus(), (QStringList{u"free sugars over 22.5 g (here 0 g)"_s,
                                                u"energy over 200 kcal (here 176 kcal)"_s}));

    const auto tee = erklaerung(Wertung::uebergewicht, food(saft));
    QCOMPARE(tee.fehltZurNull(), QStringList{u"energy over 4 kcal (here 0 kcal)"_s});
    QVERIFY(tee.fehltZumPlus().isEmpty() && !tee.sonstPlus());

    const auto bier = erklaerung(Wertung::diabetes, food(u"Bier"_s, {{u"alcohol"_s, 4}}));
    QVERIFY(bier.sonstPlus() && bier.fehltZumPlus().isEmpty());
    QCOMPARE(bier.gruende(), QStringList{u"alcohol 4 g (over 0.95 g)"_s});

    // A rating that its own figures decide leaves nothing to add.
    const auto limonade = erklaerung(Wertung::diabetes, food(saft, {{u"sugars"_s, 9}}));
    QVERIFY(limonade.fehltZumPlus().isEmpty() && limonade.fehltZurNull().isEmpty());
    QVERIFY(limonade.fehltZumMinus().isEmpty() && !limonade.sonstPlus());
}

void TestWertungserklaerung::withoutRulesThereIsNothingToTell()
{
    const Regelwerk keine;
    const Wertungserklaerung erklaerung(Wertung::gicht, food(kuchen), Regelsprache::Deutsch,
                                        deutschland, keine);
    QVERIFY(erklaerung.regel() == nullptr);
    QVERIFY(erklaerung.zeilen().isEmpty());
}

void TestWertungserklaerung::everyShippedRatingNamesWhatDecided()
{
    const std::tuple<Regelsprache, QLocale, QRegularExpression> sprachen[] = {
        {Regelsprache::Deutsch, deutschland, QRegularExpression(u"\\d\\.\\d"_s)},
        {Regelsprache::Englisch, QLocale::c(), QRegularExpression(u"\\d,\\d"_s)}};
    static const QRegularExpression unsinn(u"%\\d|\\d[eE][+-]?\\d|\\b(inf|nan)\\b|%1|^\\s*$"_s);
    static const QRegularExpression figur(u"\\d|purine"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    const Tabelle tabelle = Tabellenprobe::ausgelieferteTabelle();
    QVERIFY(!tabelle.isEmpty());
    for (const Tabellenzeile &zeile : tabelle) {
        for (const auto &wertung : wertungen) {
            for (const auto &[sprache, zahlen, fremd] : sprachen) {
                const Wertungserklaerung erklaerung(wertung.wertung, zeile, sprache, zahlen);
                const QStringList zeilen = erklaerung.zeilen();
                const QString alles = zeile.nameDe + u": "_s + zeilen.join(u'\n');
                QVERIFY2(zeilen.size() > 2, qPrintable(alles));
                QVERIFY2(zeilen.at(2).contains(figur), qPrintable(alles));
                for (const QString &eine : zeilen) {
                    QVERIFY2(eine.size() <= 200, qPrintable(alles));
                    QVERIFY2(!eine.contains(unsinn) && !eine.contains(fremd), qPrintable(alles));
                }
            }
        }
    }
}

/// Takes the rule that decided and those that say the same away, and looks what is left.
void TestWertungserklaerung::withoutTheRulesThatAreToldAFoodIsSuitable()
{
    int geprueft = 0;
    for (const Tabellenzeile &zeile : Tabellenprobe::ausgelieferteTabelle()) {
        for (const auto &wertung : wertungen) {
            const Wertungserklaerung erklaerung(wertung.wertung, zeile, Regelsprache::Englisch,
                                                QLocale::c());
            QStringList gestrichen = {QLatin1String(erklaerung.regel()->kennung)};
            for (const QString &auch : erklaerung.auchNull()) {
                gestrichen.append(auch.section(u' ', 3, 3));
            }
            Regelwerk uebrige;
            for (const Wertungsregel &regel : wertungsregeln()) {
                if (!gestrichen.contains(QLatin1String(regel.kennung))) {
                    uebrige.push_back(regel);
                }
            }
            if (erklaerung.sonstPlus()) {
                const auto *const sonst =
                    entscheidendeRegel(wertung.wertung, wertungsgroessen(zeile), uebrige);
                QVERIFY2(sonst != nullptr && *sonst->urteil == '+', qPrintable(zeile.nameDe));
                ++geprueft;
            }
        }
    }
    QVERIFY(geprueft > 0);
}

QTEST_GUILESS_MAIN(TestWertungserklaerung)
#include "TestWertungserklaerung.moc"
