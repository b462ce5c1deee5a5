// Dishes are rated by the rules of the food table.

#include "Rezeptwertungsprobe.h"

class TestRezeptwertung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLentilSoupIsRatedByItsFigures();
    void saltChangesTheHeart();
    void everyFigureOfTheRulesIsWorkedOut();
    void sugarsGoByTheParts_data();
    void sugarsGoByTheParts();
    void purinesOfAClassCountAsTheRulesHaveIt();
    void plantsAreNeverUnsuitableForTheirPurines_data();
    void plantsAreNeverUnsuitableForTheirPurines();
    void aDishThatIsNotRichInPurinesIsNoPlant();
    void meatAndFishNameTheGroup_data();
    void meatAndFishNameTheGroup();
    void theChosenGroupHolds();
    void dishesOfDishesGoByTheirParts();
    void aDishInItselfEnds();
    void theReasonsAreTold();
    void ratingsByHandComeBeforeProposedOnes();
    void whatCanNotBeReckonedHasNoRecord();
};

void TestRezeptwertung::aLentilSoupIsRatedByItsFigures()
{
    const Rezept suppe = gericht(linsensuppe, 800);
    // Energy: 640 + 40 + 20 + 90 = 790 kcal in 800 g.
    QCOMPARE(zahl(suppe, Groesse::Energie), 98.75);
    // Fat: 3 + 0.4 + 0.3 + 10 = 13.7 g; saturated: 0.4 + 0.1 + 0.1 + 0.7 = 1.3 g.
    QVERIFY(qAbs(zahl(suppe, Groesse::Fett) - 1.7125) < 1e-6); // 0.4 g in single precision
    QCOMPARE(zahl(suppe, Groesse::Gesaettigt), 0.1625);
    // Uric acid: 400 + 10 + 4, and 10 g of oil at the 25 mg of its class = 416.5 mg.
    QCOMPARE(zahl(suppe, Groesse::Harnsaeure), 52.0625);
    // U10 for few kcal and little fat; D13, for 12.6 g of carbohydrate come with 4.75 g of fibre;
    // G4 for over 50 mg; H8 for 36 mg of sodium in 800 g.
    QCOMPARE(urteile(suppe), u"++0+"_s);
}

void TestRezeptwertung::saltChangesTheHeart()
{
    // 3 g of salt bring 1170 mg of sodium to 36: 1206 mg in 800 g are 150.75 mg, over 120.
    QCOMPARE(urteile(gericht(linsensuppe + Mengen{{u"Salz"_s, 3}}, 800)), u"++00"_s);
    // 2 g: 816 mg in 800 g.
    QCOMPARE(urteile(gericht(linsensuppe + Mengen{{u"Salz"_s, 2}}, 800)), u"++0+"_s);
}

void TestRezeptwertung::everyFigureOfTheRulesIsWorkedOut()
{
    // 100 g of milk, 50 g of yoghurt with fruit and 50 g of semolina, 200 g in all.
    Rezept rezept = gericht({{u"Milch"_s, 100}, {u"Fruchtjoghurt"_s, 50}, {u"Grieß"_s, 50}});
    QCOMPARE(zahl(rezept, Groesse::Energie), (66 + 50 + 175) / 2.0);
    QCOMPARE(zahl(rezept, Groesse::Fett), (4 + 1.5 + 0.5) / 2);
    QCOMPARE(zahl(rezept, Groesse::Gesaettigt), (2.4 + 1 + 0.1) / 2);
    QCOMPARE(zahl(rezept, Groesse::GesaettigtAnteil), 350 / 6.0);
    QCOMPARE(zahl(rezept, Groesse::Ballaststoffe), 1.0);
    // 4.9 (as single precision holds it) + 7 + 35 g.
    QVERIFY(qAbs(zahl(rezept, Groesse::Kohlenhydrate) - 23.45) < 1e-6);
    QVERIFY(qAbs(zahl(rezept, Groesse::KohlenhydrateJeBallaststoff) - 23.45) < 1e-6);
    QCOMPARE(zahl(rezept, Groesse::Zucker), (4.9 + 7 + 0.5) / 2);
    // Of the yoghurt's 14 g 6 are its own; of the semolina's all are free: 4 + 0.5 g.
    QCOMPARE(zahl(rezept, Groesse::FreierZucker), 2.25);
    // 9 kcal of 145.5.
    QCOMPARE(zahl(rezept, Groesse::FreierZuckerAnteil), 900 / 145.5);
    QCOMPARE(zahl(rezept, Groesse::Fruktosezucker), 2.25);
    QCOMPARE(zahl(rezept, Groesse::Cholesterin), (12 + 4) / 2.0);
    QCOMPARE(zahl(rezept, Groesse::Natrium), (44 + 22.5 + 0.5) / 2);
    QCOMPARE(zahl(rezept, Groesse::Alkohol), 0.0);
    // Yoghurt 2 mg; semolina is in the middle class as it is eaten, and 50 g give 140 g: 140 mg.
    QCOMPARE(zahl(rezept, Groesse::Harnsaeure), 71.0);
}

void TestRezeptwertung::sugarsGoByTheParts_data()
{
    QTest::addColumn<Mengen>("mengen"); // 200 g each
    QTest::addColumn<double>("frei");
    QTest::addColumn<double>("fruktose");

    QTest::newRow("of vegetables none is free") << Mengen{{u"Möhren"_s, 200}} << 0.0 << 6.0;
    QTest::newRow("of fruit none is free") << Mengen{{u"Apfel"_s, 200}} << 0.0 << 12.0;
    QTest::newRow("table sugar is")
        << Mengen{{u"Zucker"_s, 20}, {u"Apfel"_s, 180}} << 10.0 << 20.8; // 20 g; 20 + 21.6 g
    QTest::newRow("milk holds lactose") << Mengen{{u"Milch"_s, 200}} << 0.0 << 0.0;
    // 38 g in 770 g of milk are less than the 5 g of milk.
    QTest::newRow("and so does its powder") << Mengen{{u"Milchpulver"_s, 200}} << 0.0 << 0.0;
    QTest::newRow("what yoghurt holds beyond is added")
        << Mengen{{u"Fruchtjoghurt"_s, 100}, {u"Milch"_s, 100}} << 4.0 << 4.0;
    QTest::newRow("glucose is free without fructose")
        << Mengen{{u"Traubenzucker"_s, 20}, {u"Milch"_s, 180}} << 10.0 << 0.0;
}

void TestRezeptwertung::sugarsGoByTheParts()
{
    QFETCH(const Mengen, mengen);
    QFETCH(const double, frei);
    QFETCH(const double, fruktose);
    QCOMPARE(zahl(gericht(mengen), Groesse::FreierZucker), frei);
    QCOMPARE(zahl(gericht(mengen), Groesse::Fruktosezucker), fruktose);
    QCOMPARE(zahl(gericht(mengen, 400), Groesse::FreierZucker), frei / 2);
}

void TestRezeptwertung::purinesOfAClassCountAsTheRulesHaveIt()
{
    // High counts as 200 mg: 20 g hold 40 mg. In 100 g of milk they are 33 mg.
    const Rezept rezept = gericht({{u"Suppengewürz"_s, 20}, {u"Milch"_s, 100}});
    QCOMPARE(zahl(rezept, Groesse::Harnsaeure), 40 / 1.2);
    QVERIFY(!gerichtsgroessen(rezept, wissen()).groessen.purinklasse);
}

void TestRezeptwertung::plantsAreNeverUnsuitableForTheirPurines_data()
{
    QTest::addColumn<Mengen>("mengen");
    QTest::addColumn<QString>("urteil"); // for gout

    QTest::newRow("lentils alone: 200 mg") << Mengen{{u"Linsen"_s, 100}} << u"0"_s;
    QTest::newRow("liver alone: 500 mg") << Mengen{{u"Leber"_s, 100}} << u"-"_s;
    // 180 and 50 mg in 100 g.
    QTest::newRow("lentils with 50 mg of liver")
        << Mengen{{u"Linsen"_s, 90}, {u"Leber"_s, 10}} << u"0"_s;
    QTest::newRow("and twice as much of both")
        << Mengen{{u"Linsen"_s, 180}, {u"Leber"_s, 20}} << u"0"_s;
    // 178 and 55 mg.
    QTest::newRow("lentils with more of it")
        << Mengen{{u"Linsen"_s, 89}, {u"Leber"_s, 11}} << u"-"_s;
    // 150 mg are not over the limit.
    QTest::newRow("liver with milk: 150 mg")
        << Mengen{{u"Leber"_s, 30}, {u"Milch"_s, 70}} << u"0"_s;
    // 155 mg.
    QTest::newRow("liver with less milk") << Mengen{{u"Leber"_s, 31}, {u"Milch"_s, 69}} << u"-"_s;
}

void TestRezeptwertung::plantsAreNeverUnsuitableForTheirPurines()
{
    QFETCH(const Mengen, mengen);
    QFETCH(const QString, urteil);
    const Wertungsvorschlag vorschlag =
        wertungsvorschlag(Wertung::gicht, gerichtsgroessen(gericht(mengen), wissen()));
    QCOMPARE(vorschlag.urteil, urteil);
    QVERIFY(!vorschlag.istUnsicher());
}

/// Else its reasons would say that no rule calls it unsuitable.
void TestRezeptwertung::aDishThatIsNotRichInPurinesIsNoPlant()
{
    // 60 and 25 mg.
    const Gerichtsgroessen befund =
        gerichtsgroessen(gericht({{u"Linsen"_s, 30}, {u"Leber"_s, 5}, {u"Milch"_s, 65}}), wissen());
    QVERIFY(!(befund.groessen.merkmale & Merkmal::Pflanzlich));
    QCOMPARE(wertungsvorschlag(Wertung::gicht, befund).urteil, u"0"_s);
}

void TestRezeptwertung::meatAndFishNameTheGroup_data()
{
    QTest::addColumn<QString>("gruppe");
    QTest::addColumn<bool>("fleisch");
    for (const Lebensmittelgruppe &gruppe : lebensmittelgruppen()) {
        const QString name = QString::fromUtf8(gruppe.name);
        const QStringList fleisch = {u"Rind- und Kalbfleisch"_s,
                                     u"Schweinefleisch"_s,
                                     u"Lamm, Pferd und Wild"_s,
                                     u"Geflügel und Kaninchen"_s,
                                     u"Innereien"_s,
                                     u"Wurst und Schinken"_s,
                                     u"Fisch"_s,
                                     u"Krusten- und Weichtiere"_s,
                                     u"Gerichte mit Fleisch oder Fisch"_s};
        QTest::newRow(gruppe.name) << name << fleisch.contains(name);
    }
}

void TestRezeptwertung::meatAndFishNameTheGroup()
{
    QFETCH(const QString, gruppe);
    QFETCH(const bool, fleisch);
    const Stoffwissen eines(Zusatztabelle{{u"Ding"_s, {.gruppe = lebensmittelgruppe(gruppe)}}});
    Rezept rezept = gericht({{u"Ding"_s, 1}});
    rezept.zutaten.prepend(eigenes(500));
    QCOMPARE(QString::fromUtf8(gruppenvorschlag(rezept, eines).name),
             fleisch ? u"Gerichte mit Fleisch oder Fisch"_s : u"Gerichte ohne Fleisch"_s);
}

void TestRezeptwertung::theChosenGroupHolds()
{
    Rezept saft = gericht({{u"Apfel"_s, 100}});
    QCOMPARE(gruppeVon(saft, wissen()).name, lebensmittelgruppe(u"Gerichte ohne Fleisch"_s)->name);
    QCOMPARE(urteile(saft).left(1), u"+"_s);
    saft.gruppe = u"Saft und Erfrischungsgetränke"_s;
    QCOMPARE(gruppeVon(saft, wissen()).name, lebensmittelgruppe(saft.gruppe)->name);
    // U1: a drink of 55 kcal; D1 and G3: of 12 g of sugars.
    QCOMPARE(urteile(saft).left(3), u"---"_s);
    // A liquid is not low in free sugars above 2.5 g.
    Rezept getraenk = gericht({{u"Zucker"_s, 3}, {u"Milch"_s, 97}});
    QVERIFY(gerichtsgroessen(getraenk, wissen()).groessen.merkmale & Merkmal::Zuckerarm);
    getraenk.gruppe = u"Milch und Sahne"_s;
    QVERIFY(!(gerichtsgroessen(getraenk, wissen()).groessen.merkmale & Merkmal::Zuckerarm));
    saft.gruppe = u"Gibt es nicht"_s;
    QCOMPARE(gruppeVon(saft, wissen()).name, lebensmittelgruppe(u"Gerichte ohne Fleisch"_s)->name);
}

void TestRezeptwertung::dishesOfDishesGoByTheirParts()
{
    // 200 g of apple sauce: 20 g of sugar and 180 g of apple, so 10 g of free sugars in 100 g.
    Rezept mus = gericht({{u"Zucker"_s, 20}, {u"Apfel"_s, 180}});
    mus.schluessel = u"Apfelmus"_s;
    Rezept leber = gericht({{u"Leber"_s, 100}});
    leber.schluessel = u"Leberpfanne"_s;
    const Rezepte andere = {{mus.schluessel, mus}, {leber.schluessel, leber}};
    Stoffwissen alles = wissen();
    alles.setzeRezepte(rezeptangaben(andere, alles));

    Rezept teller = gericht({{u"Apfelmus"_s, 100}, {u"Möhren"_s, 100}});
    const auto frei = static_cast<std::size_t>(Groesse::FreierZucker);
    Gerichtsgroessen befund = gerichtsgroessen(teller, alles, andere);
    QCOMPARE(befund.groessen.zahlen[frei], 5.0);
    QCOMPARE(befund.unbekannt[frei], 0.0);
    QVERIFY(gruppeVon(teller, alles, andere).name ==
            lebensmittelgruppe(u"Gerichte ohne Fleisch"_s)->name);
    // Without its recipe nobody knows which of the sauce's sugars are free.
    befund = gerichtsgroessen(teller, alles);
    QCOMPARE(befund.groessen.zahlen[frei], 0.0);
    QCOMPARE(befund.unbekannt[frei], 0.5);

    teller.zutaten << Rezeptzutat{u"Leberpfanne"_s, 200, satz(u"Leber"_s)};
    QVERIFY(gruppeVon(teller, alles, andere).name ==
            lebensmittelgruppe(u"Gerichte mit Fleisch oder Fisch"_s)->name);
    // Apple 12.6 mg and liver 1000 mg and carrots 10 mg in 400 g.
    QCOMPARE(gerichtsgroessen(teller, alles, andere).groessen.zahl(Groesse::Harnsaeure),
             1022.6 / 4);
    QCOMPARE(wertungsvorschlag(Wertung::gicht, gerichtsgroessen(teller, alles, andere)).urteil,
             u"-"_s);
}

void TestRezeptwertung::aDishInItselfEnds()
{
    Rezept a = gericht({{u"Apfel"_s, 100}, {u"B"_s, 100}});
    a.schluessel = u"A"_s;
    Rezept b = gericht({{u"A"_s, 100}});
    b.schluessel = u"B"_s;
    const Gerichtsgroessen befund = gerichtsgroessen(a, wissen(), {{u"A"_s, a}, {u"B"_s, b}});
    // What comes round again is unknown.
    QCOMPARE(befund.unbekannt[static_cast<std::size_t>(Groesse::FreierZucker)], 0.5);
}

void TestRezeptwertung::theReasonsAreTold()
{
    const Gerichtsgroessen suppe = gerichtsgroessen(gericht(linsensuppe, 800), wissen());
    const QStringList zeilen =
        begruendung(Wertung::uebergewicht, suppe, Regelsprache::Deutsch, QLocale(u"de_DE"_s));
    QCOMPARE(zeilen.constFirst(), u"Übergewicht: „+“ (geeignet), Regel U10"_s);
    QVERIFY(zeilen.contains(u"Energie 98,75 kcal (höchstens 150 kcal)"_s) ||
            zeilen.contains(u"Energie 98,8 kcal (höchstens 150 kcal)"_s));
    QVERIFY(!zeilen.constLast().contains(u"Unsicher"_s));
}

void TestRezeptwertung::ratingsByHandComeBeforeProposedOnes()
{
    Rezept rezept = gericht(linsensuppe, 800);
    rezept.wertungen[stelle(Wertung::hkk)] = u"-"_s;
    const std::optional<Datenmodul> satz = gerichtssatz(rezept, wissen());
    QVERIFY(satz);
    QCOMPARE(satz->name(), u"Gericht"_s);
    QCOMPARE(satz->kal(), 98.75F);
    QCOMPARE(satz->uebergewicht(), u"+"_s);
    QCOMPARE(satz->diabetes(), u"+"_s);
    QCOMPARE(satz->gicht(), u"0"_s);
    QCOMPARE(satz->hkk(), u"-"_s);
}

void TestRezeptwertung::whatCanNotBeReckonedHasNoRecord()
{
    QVERIFY(!gerichtssatz(gericht({}), wissen()));
}

QTEST_APPLESS_MAIN(TestRezeptwertung)
#include "TestRezeptwertung.moc"
