// Dishes reckoned from what they were cooked of.

#include "Rezept.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

const QString linsen = u"Linsen, getrocknet"_s;
const QString moehren = u"Möhren, roh"_s;
const QString zwiebeln = u"Zwiebeln, roh"_s;
const QString oel = u"Rapsöl"_s;
const QString wasser = u"Trinkwasser"_s;
const QString suppe = u"Linsensuppe"_s;
const QString hausbrot = u"Hausbrot"_s;

constexpr double unendlich = std::numeric_limits<double>::infinity();
constexpr double keineZahl = std::numeric_limits<double>::quiet_NaN();

Datenmodul satz(const QString &name, float kal, float protein, float fett, float kh)
{
    Datenmodul eines;
    eines.setName(name);
    eines.setkal(kal);
    eines.setprotein(protein);
    eines.setfett(fett);
    eines.setkh(kh);
    return eines;
}

Datenmodul mit(Datenmodul eines, Naehrwert wert, float zahl)
{
    eines.setWert(wert, zahl);
    return eines;
}

/// Water and sugars are known of all five, uric acid of none but the lentils.
Stoffwissen wissen()
{
    const Lebensmittelgruppe *gruppe = &lebensmittelgruppen().front();
    Zusatztabelle tabelle;
    const auto kennt = [&](const QString &name, double zucker, double wassergramm) {
        tabelle.insert(name, {.gruppe = gruppe, .zucker = zucker, .wasser = wassergramm});
    };
    kennt(linsen, 1, 10);
    kennt(moehren, 6, 90);
    kennt(zwiebeln, 4, 90);
    kennt(oel, 0, 0);
    kennt(wasser, 0, 100);
    tabelle[linsen].harnsaeure = 200;
    return Stoffwissen(tabelle);
}

/// 200 + 100 + 50 + 10 + 640 = 1000 g go in.
Rezept linsensuppe()
{
    Rezept rezept;
    rezept.schluessel = suppe;
    rezept.zutaten = {
        {linsen, 200, mit(satz(linsen, 320, 25, 1.5F, 45), Naehrwert::fe, 8)},
        {moehren, 100, mit(satz(moehren, 40, 0.5F, 0.5F, 8), Naehrwert::vita, 1400)},
        {zwiebeln, 50, satz(zwiebeln, 40, 1, 0.5F, 6)},
        {oel, 10, satz(oel, 900, 0, 100, 0)},
        {wasser, 640, satz(wasser, 0, 0, 0, 0)},
    };
    return rezept;
}

Rezept aus(const QString &name, const QStringList &zutaten)
{
    Rezept rezept;
    rezept.schluessel = name;
    for (const QString &eine : zutaten) {
        rezept.zutaten << Rezeptzutat{eine, 100, satz(eine, 100, 1, 1, 1)};
    }
    return rezept;
}

Rezepte alle(const QList<Rezept> &liste)
{
    Rezepte rezepte;
    for (const Rezept &eines : liste) {
        rezepte.insert(eines.schluessel, eines);
    }
    return rezepte;
}

double wert(const Rezeptergebnis &ergebnis, Kenngroesse groesse)
{
    return ergebnis.angaben[stelle(groesse)].wert;
}

double unbekannt(const Rezeptergebnis &ergebnis, Kenngroesse groesse)
{
    return ergebnis.angaben[stelle(groesse)].unbekannt;
}

} // namespace

class TestRezept : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theIngredientsAddUpByTheirGrams();
    void whatBoilsAwayMakesTheDishStronger();
    void waterGoesAndComesWithTheWeight();
    void waterIsNeverLessThanNone();
    void theDishIsAsUnknownAsItsIngredients();
    void ratingsSetByHandStandInTheRecord();
    void aPortionIsItsPartOfTheFinishedDish();
    void withoutACountThereIsNoPortion();
    void whatIsWrongIsNamed_data();
    void whatIsWrongIsNamed();
    void limitsThemselvesAreKept_data();
    void limitsThemselvesAreKept();
    void aDishThatLosesNothingMayHoldMoreThanItself();
    void everyFaultHasItsOwnWords();
    void aDishIsNotAmongItsIngredients_data();
    void aDishIsNotAmongItsIngredients();
    void dishesComeAfterWhatTheyAreCookedFrom();
    void aDishOfADishIsAsUnknownAsThat();
    void whatCanNotBeReckonedIsLeftOut();
    void aRecipeTellsOfItsOwnFoodAlone_data();
    void aRecipeTellsOfItsOwnFoodAlone();
    void recipesAreTheSameOrNot();
};

void TestRezept::theIngredientsAddUpByTheirGrams()
{
    const Rezeptergebnis ergebnis = rezeptwerte(linsensuppe(), wissen());
    QVERIFY(ergebnis);
    QCOMPARE(ergebnis.rohgewicht, 1000.0);
    QCOMPARE(ergebnis.fertiggewicht, 1000.0);
    QCOMPARE(ergebnis.satz.name(), suppe);
    // Energy: 2 * 320 + 40 + 0.5 * 40 + 0.1 * 900 + 0 = 640 + 40 + 20 + 90 = 790 kcal in 1000 g.
    QCOMPARE(ergebnis.satz.kal(), 79.0F);
    QCOMPARE(wert(ergebnis, Kenngroesse::kal), 79.0);
    // Protein: 50 + 0.5 + 0.5 = 51 g. Fat: 3 + 0.5 + 0.25 + 10 = 13.75 g.
    QCOMPARE(ergebnis.satz.protein(), 5.1F);
    QCOMPARE(ergebnis.satz.fett(), 1.375F);
    // Carbohydrate: 90 + 8 + 3 = 101 g, so 10.1 g in 100 g, and 10.1 / 12 bread units.
    QCOMPARE(ergebnis.satz.kh(), 10.1F);
    QCOMPARE(wert(ergebnis, Kenngroesse::broteinheiten), 10.1 / 12);
    // Sugars: 2 + 6 + 2 = 10 g.
    QCOMPARE(wert(ergebnis, Kenngroesse::zucker), 1.0);
    // Vitamin A of the carrots alone: 1400 µg.
    QCOMPARE(ergebnis.satz.vita(), 140.0F);
    QVERIFY(ergebnis.satz.diabetes().isNull());
}

void TestRezept::whatBoilsAwayMakesTheDishStronger()
{
    Rezept rezept = linsensuppe();
    rezept.fertiggewicht = 790;
    const Rezeptergebnis ergebnis = rezeptwerte(rezept, wissen());
    // 790 kcal in 790 g; 16 mg of iron in 790 g.
    QCOMPARE(ergebnis.satz.kal(), 100.0F);
    QCOMPARE(wert(ergebnis, Kenngroesse::fe), 16 / 7.9);
    QCOMPARE(ergebnis.rohgewicht, 1000.0);
    QCOMPARE(ergebnis.fertiggewicht, 790.0);
}

void TestRezept::waterGoesAndComesWithTheWeight()
{
    Rezept rezept = linsensuppe();
    // Water: 20 + 90 + 45 + 0 + 640 = 795 g in 1000 g.
    QCOMPARE(wert(rezeptwerte(rezept, wissen()), Kenngroesse::wasser), 79.5);
    // 200 g boiled away: 595 g in 800 g.
    rezept.fertiggewicht = 800;
    QCOMPARE(wert(rezeptwerte(rezept, wissen()), Kenngroesse::wasser), 74.375);
    // 200 g taken up: 995 g in 1200 g.
    rezept.fertiggewicht = 1200;
    QCOMPARE(wert(rezeptwerte(rezept, wissen()), Kenngroesse::wasser), 995 / 12.0);
}

void TestRezept::waterIsNeverLessThanNone()
{
    Rezept rezept = linsensuppe();
    // Protein 51, fat 13.75 and carbohydrate 101 g leave 834.25 g; of these only 795 are water.
    rezept.fertiggewicht = 200;
    const Rezeptergebnis ergebnis = rezeptwerte(rezept, wissen());
    QVERIFY(ergebnis);
    QCOMPARE(wert(ergebnis, Kenngroesse::wasser), 0.0);
    // 790 kcal in 200 g.
    QCOMPARE(ergebnis.satz.kal(), 395.0F);
}

void TestRezept::theDishIsAsUnknownAsItsIngredients()
{
    Rezept rezept = linsensuppe();
    rezept.fertiggewicht = 500;
    rezept.zutaten << Rezeptzutat{hausbrot, 250, satz(hausbrot, 240, 8, 1, 48)};
    const Rezeptergebnis ergebnis = rezeptwerte(rezept, wissen());
    // Sugars: of 1250 g raw, 250 g of the own bread are unknown; 10 g known are in 500 g.
    QCOMPARE(unbekannt(ergebnis, Kenngroesse::zucker), 0.2);
    QCOMPARE(wert(ergebnis, Kenngroesse::zucker), 2.0);
    // Uric acid: only the 200 g of lentils are known; 400 mg in 500 g.
    QCOMPARE(unbekannt(ergebnis, Kenngroesse::harnsaeure), 0.84);
    QCOMPARE(wert(ergebnis, Kenngroesse::harnsaeure), 80.0);
    // An own food is entered with its energy, and may have been left without sodium, thus salt.
    QCOMPARE(unbekannt(ergebnis, Kenngroesse::kal), 0.0);
    QCOMPARE(unbekannt(ergebnis, Kenngroesse::na), 0.2);
    QCOMPARE(unbekannt(ergebnis, Kenngroesse::salz), 0.2);
    QCOMPARE(unbekannt(ergebnis, Kenngroesse::gesaettigt), 1.0);
}

void TestRezept::ratingsSetByHandStandInTheRecord()
{
    Rezept rezept = linsensuppe();
    rezept.wertungen[stelle(Wertung::gicht)] = u"-"_s;
    const Rezeptergebnis ergebnis = rezeptwerte(rezept, wissen());
    QCOMPARE(ergebnis.satz.gicht(), u"-"_s);
    QVERIFY(ergebnis.satz.hkk().isNull());
}

void TestRezept::aPortionIsItsPartOfTheFinishedDish()
{
    Rezept rezept = linsensuppe();
    rezept.portionen = 4;
    QCOMPARE(portionsgramm(rezept), 250.0);
    rezept.fertiggewicht = 900;
    rezept.portionen = 2.5;
    QCOMPARE(portionsgramm(rezept), 360.0);
}

void TestRezept::withoutACountThereIsNoPortion()
{
    Rezept rezept = linsensuppe();
    QVERIFY(!portionsgramm(rezept));
    for (const double keine : {0.0, -1.0, 0.09, 1000.1, unendlich, keineZahl}) {
        rezept.portionen = keine;
        QVERIFY(!portionsgramm(rezept));
    }
    rezept.portionen = 2;
    for (const double kein : {0.0, 0.9, 100'000.1, keineZahl}) {
        rezept.fertiggewicht = kein;
        QVERIFY(!portionsgramm(rezept));
    }
}

void TestRezept::whatIsWrongIsNamed_data()
{
    QTest::addColumn<Rezept>("rezept");
    QTest::addColumn<Rezeptmangel>("mangel");
    const auto zeile = [](const char *name, Rezeptmangel mangel, const auto &verderbe) {
        Rezept rezept = linsensuppe();
        verderbe(rezept);
        QTest::newRow(name) << rezept << mangel;
    };
    using enum Rezeptmangel;
    zeile("all is well", Keiner, [](Rezept &) {});
    zeile("no name", OhneName, [](Rezept &r) { r.schluessel.clear(); });
    zeile("a name of blanks", OhneName, [](Rezept &r) { r.schluessel = u"  \n"_s; });
    zeile("nothing in it", OhneZutaten, [](Rezept &r) { r.zutaten.clear(); });
    zeile("a hundred and one ingredients", ZuVieleZutaten,
          [](Rezept &r) { r.zutaten.fill(r.zutaten.front(), 101); });
    zeile("an ingredient without a name", ZutatOhneName,
          [](Rezept &r) { r.zutaten[4].schluessel = u" "_s; });
    zeile("an ingredient of no weight", ZutatOhneMenge, [](Rezept &r) { r.zutaten[2].gramm = 0; });
    zeile("of less", ZutatOhneMenge, [](Rezept &r) { r.zutaten[2].gramm = -5; });
    zeile("of no number", ZutatOhneMenge, [](Rezept &r) { r.zutaten[2].gramm = keineZahl; });
    zeile("without end", ZutatOhneMenge, [](Rezept &r) { r.zutaten[2].gramm = unendlich; });
    zeile("too heavy an ingredient", ZutatZuSchwer,
          [](Rezept &r) { r.zutaten[2].gramm = 100'000.1; });
    zeile("a dish of no weight", OhneGewicht, [](Rezept &r) { r.fertiggewicht = 0; });
    zeile("a dish of less", OhneGewicht, [](Rezept &r) { r.fertiggewicht = -800; });
    zeile("a dish of no number", OhneGewicht, [](Rezept &r) { r.fertiggewicht = keineZahl; });
    zeile("a dish without end", OhneGewicht, [](Rezept &r) { r.fertiggewicht = unendlich; });
    zeile("a crumb", OhneGewicht, [](Rezept &r) { r.zutaten = {{oel, 0.9, {}}}; });
    zeile("too heavy when done", ZuSchwer, [](Rezept &r) { r.fertiggewicht = 100'000.1; });
    zeile("too heavy in sum", ZuSchwer, [](Rezept &r) { r.zutaten.fill({linsen, 50'001, {}}, 2); });
    // Protein 51, fat 13.75, carbohydrate 101 g are 165.75 g.
    zeile("lighter than what can't boil away", ZuLeicht,
          [](Rezept &r) { r.fertiggewicht = 165.7; });
    zeile("no portion", PortionenUnmoeglich, [](Rezept &r) { r.portionen = 0; });
    zeile("hardly a portion", PortionenUnmoeglich, [](Rezept &r) { r.portionen = 0.099; });
    zeile("too many portions", PortionenUnmoeglich, [](Rezept &r) { r.portionen = 1000.5; });
    zeile("portions of no number", PortionenUnmoeglich, [](Rezept &r) { r.portionen = keineZahl; });
    zeile("the dish in itself", Kreis, [](Rezept &r) { r.zutaten[0].schluessel = suppe; });
}

void TestRezept::whatIsWrongIsNamed()
{
    QFETCH(const Rezept, rezept);
    QFETCH(const Rezeptmangel, mangel);
    QCOMPARE(rezeptmangel(rezept, wissen()), mangel);
    QCOMPARE(rezeptwerte(rezept, wissen()).mangel, mangel);
}

void TestRezept::limitsThemselvesAreKept_data()
{
    QTest::addColumn<Rezept>("rezept");
    const auto zeile = [](const char *name, const auto &aendere) {
        Rezept rezept = linsensuppe();
        aendere(rezept);
        QTest::newRow(name) << rezept;
    };
    zeile("a hundred ingredients", [](Rezept &r) { r.zutaten.fill(r.zutaten.front(), 100); });
    zeile("100 kg of one", [](Rezept &r) { r.zutaten = {{oel, 100'000, {}}}; });
    zeile("100 kg when done", [](Rezept &r) { r.fertiggewicht = 100'000; });
    zeile("a gram", [](Rezept &r) { r.zutaten = {{oel, 1, {}}}; });
    zeile("all the water gone", [](Rezept &r) { r.fertiggewicht = 165.75; });
    zeile("a tenth of a portion", [](Rezept &r) { r.portionen = 0.1; });
    zeile("a thousand portions", [](Rezept &r) { r.portionen = 1000; });
}

void TestRezept::limitsThemselvesAreKept()
{
    QFETCH(const Rezept, rezept);
    QCOMPARE(rezeptmangel(rezept, wissen()), Rezeptmangel::Keiner);
}

void TestRezept::aDishThatLosesNothingMayHoldMoreThanItself()
{
    // A label that rounds up: 60 + 41 = 101 g in 100 g.
    Rezept rezept;
    rezept.schluessel = suppe;
    rezept.zutaten = {{hausbrot, 100, satz(hausbrot, 600, 0, 41, 60)}};
    QVERIFY(rezeptwerte(rezept, wissen()));
    rezept.fertiggewicht = 100;
    QVERIFY(rezeptwerte(rezept, wissen()));
    rezept.fertiggewicht = 99.9;
    QCOMPARE(rezeptwerte(rezept, wissen()).mangel, Rezeptmangel::ZuLeicht);
}

void TestRezept::everyFaultHasItsOwnWords()
{
    QCOMPARE(mangeltext(Rezeptmangel::Keiner), QString());
    QStringList texte;
    for (int i = 1; i <= static_cast<int>(Rezeptmangel::Kreis); ++i) {
        texte << mangeltext(static_cast<Rezeptmangel>(i));
        QVERIFY(texte.constLast().endsWith(u'.'));
    }
    QCOMPARE(texte.removeDuplicates(), 0);
    QVERIFY(mangeltext(Rezeptmangel::Kreis).contains(u"eigene Zutat"_s));
    QVERIFY(mangeltext(Rezeptmangel::OhneName).contains(u"Namen"_s));
}

void TestRezept::aDishIsNotAmongItsIngredients_data()
{
    QTest::addColumn<QStringList>("zutaten"); // of the dish A
    QTest::addColumn<bool>("kreis");
    QTest::newRow("of foods") << QStringList{u"x"_s, u"y"_s} << false;
    QTest::newRow("of itself") << QStringList{u"x"_s, u"A"_s} << true;
    QTest::newRow("of a dish of foods") << QStringList{u"B"_s} << false;
    QTest::newRow("of a dish of it") << QStringList{u"x"_s, u"C"_s} << true;
    QTest::newRow("of a dish of a dish of it") << QStringList{u"D"_s} << true;
    QTest::newRow("twice of the same dish") << QStringList{u"B"_s, u"B"_s} << false;
    QTest::newRow("of dishes that go in a circle without it") << QStringList{u"E"_s} << false;
}

void TestRezept::aDishIsNotAmongItsIngredients()
{
    QFETCH(const QStringList, zutaten);
    QFETCH(const bool, kreis);
    const Rezepte andere =
        alle({aus(u"A"_s, {u"A"_s}), aus(u"B"_s, {u"x"_s}), aus(u"C"_s, {u"B"_s, u"A"_s}),
              aus(u"D"_s, {u"C"_s}), aus(u"E"_s, {u"F"_s}), aus(u"F"_s, {u"E"_s})});
    const Rezept a = aus(u"A"_s, zutaten);
    QCOMPARE(enthaeltSich(a, andere), kreis);
    QCOMPARE(rezeptmangel(a, wissen(), andere), kreis ? Rezeptmangel::Kreis : Rezeptmangel::Keiner);
}

void TestRezept::dishesComeAfterWhatTheyAreCookedFrom()
{
    const Rezepte rezepte =
        alle({aus(u"A"_s, {u"C"_s, u"B"_s}), aus(u"B"_s, {u"D"_s}), aus(u"C"_s, {u"B"_s, u"x"_s}),
              aus(u"D"_s, {u"y"_s}), aus(u"E"_s, {u"F"_s}), aus(u"F"_s, {u"E"_s})});
    QCOMPARE(kochfolge(rezepte), QStringList({u"D"_s, u"B"_s, u"C"_s, u"A"_s}));
    QCOMPARE(kochfolge({}), QStringList());
}

void TestRezept::aDishOfADishIsAsUnknownAsThat()
{
    // 100 g of carrots and 100 g of an own bread: sugars of half of it are unknown.
    Rezept b;
    b.schluessel = u"B"_s;
    b.zutaten = {{moehren, 100, satz(moehren, 40, 0.5F, 0.5F, 8)},
                 {hausbrot, 100, satz(hausbrot, 240, 8, 1, 48)}};
    // 300 g of it and 100 g of water: 3 g of sugars known in each 100 g, so 9 g in 400 g; unknown
    // of 150 g in 400 g.
    Rezept a;
    a.schluessel = u"A"_s;
    a.zutaten = {{u"B"_s, 300, satz(u"B"_s, 140, 4.25F, 0.75F, 28)},
                 {wasser, 100, satz(wasser, 0, 0, 0, 0)}};
    const QHash<QString, Rezeptangaben> angaben = rezeptangaben(alle({a, b}), wissen());
    const auto zucker = stelle(Kenngroesse::zucker);
    QCOMPARE(angaben[u"B"_s][zucker], (Stoffangabe{3, 0.5}));
    QCOMPARE(angaben[u"A"_s][zucker], (Stoffangabe{2.25, 0.375}));
}

void TestRezept::whatCanNotBeReckonedIsLeftOut()
{
    Rezept schlecht = aus(u"B"_s, {u"x"_s});
    schlecht.fertiggewicht = 0;
    const auto angaben =
        rezeptangaben(alle({aus(u"A"_s, {u"A"_s}), schlecht, aus(u"C"_s, {u"B"_s})}), wissen());
    QCOMPARE(angaben.keys(), QStringList(u"C"_s));
    // Nothing is known of what B is made of but what its record says.
    QCOMPARE(angaben[u"C"_s][stelle(Kenngroesse::zucker)].unbekannt, 1.0);
}

void TestRezept::aRecipeTellsOfItsOwnFoodAlone_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<float>("kal");
    QTest::addColumn<QString>("gicht");
    QTest::addColumn<bool>("gilt");

    QTest::newRow("as it was given") << u"A"_s << 60.0F << u"+"_s << true;
    QTest::newRow("rated by hand") << u"A"_s << 60.0F << u"-"_s << true;
    QTest::newRow("changed by hand") << u"A"_s << 70.0F << u"+"_s << false;
    QTest::newRow("gone, and another one is there") << u"B"_s << 60.0F << u"+"_s << false;
}

void TestRezept::aRecipeTellsOfItsOwnFoodAlone()
{
    QFETCH(const QString, name);
    QFETCH(const float, kal);
    QFETCH(const QString, gicht);
    QFETCH(const bool, gilt);
    Rezept rezept = aus(u"A"_s, {u"x"_s});
    rezept.gegeben.setkal(60);
    rezept.gegeben.setWertung(Wertung::gicht, u"+"_s);
    Datenmodul heute;
    heute.setkal(kal);
    heute.setWertung(Wertung::gicht, gicht);
    QCOMPARE(geltendeRezepte(alle({rezept}), {{name, heute}}).contains(u"A"_s), gilt);
}

void TestRezept::recipesAreTheSameOrNot()
{
    const Rezept eines = linsensuppe();
    QVERIFY(eines == linsensuppe());
    const auto anders = [&](const auto &aendere) {
        Rezept anderes = linsensuppe();
        aendere(anderes);
        return !(anderes == eines);
    };
    QVERIFY(anders([](Rezept &r) { r.schluessel = u"x"_s; }));
    QVERIFY(anders([](Rezept &r) { r.zutaten.removeLast(); }));
    QVERIFY(anders([](Rezept &r) { r.zutaten[1].gramm = 101; }));
    QVERIFY(anders([](Rezept &r) { r.zutaten[1].schluessel = u"x"_s; }));
    QVERIFY(anders([](Rezept &r) { r.zutaten[1].satz.setca(1); }));
    QVERIFY(anders([](Rezept &r) { r.fertiggewicht = 1000; }));
    QVERIFY(anders([](Rezept &r) { r.portionen = 1; }));
    QVERIFY(anders([](Rezept &r) { r.folgt = false; }));
    QVERIFY(anders([](Rezept &r) { r.gruppe = u"Obst"_s; }));
    QVERIFY(anders([](Rezept &r) { r.wertungen[2] = u"+"_s; }));
    QVERIFY(anders([](Rezept &r) { r.notiz = u"x"_s; }));
    QVERIFY(anders([](Rezept &r) { r.gegeben.setkal(1); }));
    QVERIFY(anders([](Rezept &r) { r.gegeben.setName(u"x"_s); }));
}

QTEST_APPLESS_MAIN(TestRezept)
#include "TestRezept.moc"
