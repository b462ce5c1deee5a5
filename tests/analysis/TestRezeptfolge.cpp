// Dishes follow their ingredients, in the order in which they are cooked, and nobody's own change
// is lost to it.

#include "Rezeptfolge.h"
#include "Rezeptwertung.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

Datenmodul satz(const QString &name, float kal, float kh = 0)
{
    Datenmodul eines;
    eines.setName(name);
    eines.setkal(kal);
    eines.setkh(kh);
    return eines;
}

using Mengen = QList<std::pair<QString, double>>;

} // namespace

/// A kitchen with bread and milk among the built-in foods. A soup is cooked of both, a meal of the
/// soup and an own sausage.
class TestRezeptfolge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void whereNothingChangedNothingFollows();
    void aDishFollowsItsIngredient();
    void aDishOfADishFollowsBehindIt();
    void valuesThatCameInFollowToo();
    void whatIsKnownOfADishRatesTheNext();
    void aDishThatIsNotToFollowStays();
    void andWhatIsCookedOfItStaysAsWell();
    void aDishChangedByHandIsToldAndLeft();
    void whatIsCookedOfItTakesItAsItIs();
    void itsRecipeDoesNotRateWhatIsCookedOfIt();
    void ratingsByHandAloneAreAChangeByHand();
    void aFoodThatHoldsAlreadyWhatItShouldKeepsFollowing();
    void ratingsAreProposedAnewAndThoseByHandStay();
    void theRatingsOfAnIngredientMakeNoChange();
    void builtInFoodsAreLookedUpFirst();
    void anIngredientThatIsGoneStaysAsItWas();
    void aDishThatIsGoneIsLeftAlone();
    void aDishThatCanNotBeReckonedIsTold();
    void circlesAreLeftAlone();

private:
    void koche(const QString &name, const Mengen &mengen);
    Nachzuege folge() const
    {
        return nachgezogen(m_rezepte, m_eingebaute, m_eigene, Stoffwissen());
    }

    Lebensmittelverzeichnis m_eingebaute;
    Lebensmittelverzeichnis m_eigene;
    Rezepte m_rezepte;
};

/// Keeps a dish of the foods as they are now.
void TestRezeptfolge::koche(const QString &name, const Mengen &mengen)
{
    Rezept rezept;
    rezept.schluessel = name;
    for (const auto &[zutat, gramm] : mengen) {
        rezept.zutaten << Rezeptzutat{zutat, gramm, {}};
    }
    rezept = mitHeutigen(rezept, m_eingebaute, m_eigene);
    rezept.gegeben = *gerichtssatz(rezept, Stoffwissen(), m_rezepte);
    m_rezepte.insert(name, rezept);
    m_eigene.insert(name, rezept.gegeben);
}

/// The soup: 100 g of bread at 250 and 300 g of milk at 66 kcal are 448 kcal in 400 g, 112 in 100.
/// The meal: 300 g of it and 100 g of sausage at 300 are 336 + 300 in 400 g, 159 in 100.
void TestRezeptfolge::init()
{
    m_rezepte.clear();
    m_eingebaute = {{u"Brot"_s, satz(u"Brot"_s, 250, 48)}, {u"Milch"_s, satz(u"Milch"_s, 66, 5)}};
    m_eigene = {{u"Hauswurst"_s, satz(u"Hauswurst"_s, 300)}};
    koche(u"Suppe"_s, {{u"Brot"_s, 100}, {u"Milch"_s, 300}});
    koche(u"Essen"_s, {{u"Suppe"_s, 300}, {u"Hauswurst"_s, 100}});
    QCOMPARE(m_eigene[u"Suppe"_s].kal(), 112.0F);
    QCOMPARE(m_eigene[u"Essen"_s].kal(), 159.0F);
}

void TestRezeptfolge::whereNothingChangedNothingFollows()
{
    QVERIFY(folge().istLeer());
}

void TestRezeptfolge::aDishFollowsItsIngredient()
{
    m_eigene[u"Hauswurst"_s].setkal(200);
    const Nachzuege zuege = folge();
    QCOMPARE(zuege.folgende.size(), 1);
    const Nachzug &essen = zuege.folgende.constFirst();
    // 336 + 200 in 400 g.
    QCOMPARE(essen.vorher.kal(), 159.0F);
    QCOMPARE(essen.nachher.kal(), 134.0F);
    QCOMPARE(essen.nachher.name(), u"Essen"_s);
    QCOMPARE(essen.rezept.schluessel, u"Essen"_s);
    QCOMPARE(essen.rezept.gegeben.kal(), 134.0F);
    QCOMPARE(essen.rezept.zutaten[1].satz.kal(), 200.0F);
    QCOMPARE(essen.rezept.zutaten[1].gramm, 100.0);
    QVERIFY(zuege.vonHandGeaenderte.isEmpty() && zuege.unmoegliche.isEmpty());
    QVERIFY(!zuege.istLeer());
    // Once that is kept there is nothing more to follow.
    m_rezepte.insert(u"Essen"_s, essen.rezept);
    m_eigene.insert(u"Essen"_s, essen.nachher);
    QVERIFY(folge().istLeer());
}

void TestRezeptfolge::aDishOfADishFollowsBehindIt()
{
    // The meal stands before the soup in the alphabet, and follows behind it.
    m_eingebaute[u"Brot"_s].setkal(290);
    const Nachzuege zuege = folge();
    QCOMPARE(zuege.folgende.size(), 2);
    // 290 + 198 in 400 g; then 366 + 300 in 400 g.
    QCOMPARE(zuege.folgende[0].nachher.name(), u"Suppe"_s);
    QCOMPARE(zuege.folgende[0].nachher.kal(), 122.0F);
    QCOMPARE(zuege.folgende[1].nachher.name(), u"Essen"_s);
    QCOMPARE(zuege.folgende[1].nachher.kal(), 166.5F);
    QCOMPARE(zuege.folgende[1].rezept.zutaten[0].satz.kal(), 122.0F);
}

void TestRezeptfolge::valuesThatCameInFollowToo()
{
    // Iron is told of the bread now: 8 mg in 400 g of soup, then 6 mg in 400 g of the meal.
    m_eingebaute[u"Brot"_s].setfe(8);
    const Nachzuege zuege = folge();
    QCOMPARE(zuege.folgende[0].nachher.fe(), 2.0F);
    QCOMPARE(zuege.folgende[1].nachher.fe(), 1.5F);
}

void TestRezeptfolge::whatIsKnownOfADishRatesTheNext()
{
    // Milk with 20 g of saturated fat: 60 g in 400 g of soup, then 45 g in 400 g of the meal are
    // 11.25 g, high by rule H1. No record tells of it.
    const Stoffwissen wissen(
        Zusatztabelle{{u"Milch"_s, {.gruppe = &lebensmittelgruppen().front(), .gesaettigt = 20}}});
    m_eingebaute[u"Brot"_s].setkal(290);
    const Nachzuege zuege = nachgezogen(m_rezepte, m_eingebaute, m_eigene, wissen);
    QCOMPARE(zuege.folgende[1].nachher.name(), u"Essen"_s);
    QCOMPARE(zuege.folgende[1].nachher.hkk(), u"-"_s);
}

void TestRezeptfolge::aDishThatIsNotToFollowStays()
{
    m_rezepte[u"Essen"_s].folgt = false;
    m_eigene[u"Hauswurst"_s].setkal(200);
    QVERIFY(folge().istLeer());
}

void TestRezeptfolge::andWhatIsCookedOfItStaysAsWell()
{
    m_rezepte[u"Suppe"_s].folgt = false;
    m_eingebaute[u"Brot"_s].setkal(290);
    QVERIFY(folge().istLeer());
}

void TestRezeptfolge::aDishChangedByHandIsToldAndLeft()
{
    m_eigene[u"Essen"_s].setvitc(20);
    QVERIFY(folge().istLeer()); // no ingredient changed
    m_eigene[u"Hauswurst"_s].setkal(200);
    const Nachzuege zuege = folge();
    QVERIFY(zuege.folgende.isEmpty());
    QCOMPARE(zuege.vonHandGeaenderte, QStringList(u"Essen"_s));
    QVERIFY(!zuege.istLeer());
}

void TestRezeptfolge::whatIsCookedOfItTakesItAsItIs()
{
    // The soup was set to 132 kcal by hand: 396 + 300 in 400 g.
    m_eigene[u"Suppe"_s].setkal(132);
    m_eingebaute[u"Brot"_s].setkal(290);
    const Nachzuege zuege = folge();
    QCOMPARE(zuege.vonHandGeaenderte, QStringList(u"Suppe"_s));
    QCOMPARE(zuege.folgende.size(), 1);
    QCOMPARE(zuege.folgende[0].nachher.kal(), 174.0F);
}

/// Of a soup that was changed by hand nobody knows the purines any more, so that 300 of 400 g of
/// the meal are unknown beside the sausage.
void TestRezeptfolge::itsRecipeDoesNotRateWhatIsCookedOfIt()
{
    Zusatzwerte zusatz;
    zusatz.gruppe = lebensmittelgruppe(u"Brot und Brötchen"_s);
    zusatz.harnsaeure = 40;
    Stoffwissen wissen(Zusatztabelle{{u"Brot"_s, zusatz}, {u"Milch"_s, zusatz}});
    const auto unbekannt = [&] {
        return gerichtsgroessen(m_rezepte[u"Essen"_s], wissen, m_rezepte)
            .unbekannt[static_cast<std::size_t>(Groesse::Harnsaeure)];
    };
    QCOMPARE(unbekannt(), 1.0);
    wissen.setzeRezepte(rezeptangaben(m_rezepte, wissen));
    QCOMPARE(unbekannt(), 0.25);
    // When the meal follows its sausage, 400 mg in 100 g of the soup rate it, and don't once nobody
    // knows of them.
    zusatz.harnsaeure = 400;
    const Stoffwissen reich(Zusatztabelle{{u"Brot"_s, zusatz}, {u"Milch"_s, zusatz}});
    const auto gicht = [&] {
        const QList<Nachzug> folgende =
            nachgezogen(m_rezepte, m_eingebaute, m_eigene, reich).folgende;
        return folgende.isEmpty() ? QString() : folgende.last().nachher.gicht();
    };
    m_eigene[u"Hauswurst"_s].setkal(200);
    QCOMPARE(gicht(), u"-"_s);
    m_eigene[u"Suppe"_s].setkal(132);
    QVERIFY(!gicht().isNull());
    QVERIFY(gicht() != u"-"_s);
}

void TestRezeptfolge::ratingsByHandAloneAreAChangeByHand()
{
    m_eigene[u"Essen"_s].setgicht(u"vielleicht"_s);
    m_eigene[u"Hauswurst"_s].setkal(200);
    QCOMPARE(folge().vonHandGeaenderte, QStringList(u"Essen"_s));
}

void TestRezeptfolge::aFoodThatHoldsAlreadyWhatItShouldKeepsFollowing()
{
    m_eigene[u"Hauswurst"_s].setkal(200);
    const Datenmodul soll = folge().folgende[0].nachher;
    m_eigene.insert(u"Essen"_s, soll);
    const Nachzuege zuege = folge();
    QCOMPARE(zuege.folgende.size(), 1);
    QVERIFY(gleicherInhalt(zuege.folgende[0].vorher, zuege.folgende[0].nachher));
    QVERIFY(gleicherInhalt(zuege.folgende[0].rezept.gegeben, soll));
    QVERIFY(zuege.vonHandGeaenderte.isEmpty());
}

void TestRezeptfolge::ratingsAreProposedAnewAndThoseByHandStay()
{
    m_rezepte[u"Essen"_s].wertungen[stelle(Wertung::gicht)] = u"-"_s;
    m_rezepte[u"Essen"_s].gegeben.setgicht(u"-"_s);
    m_eigene[u"Essen"_s].setgicht(u"-"_s);
    // 336 + 800 kcal in 400 g are 284: U7, energy-dense and without fibre.
    m_eigene[u"Hauswurst"_s].setkal(800);
    const Nachzuege zuege = folge();
    QCOMPARE(zuege.folgende[0].vorher.uebergewicht(), u"0"_s);
    QCOMPARE(zuege.folgende[0].nachher.uebergewicht(), u"-"_s);
    QCOMPARE(zuege.folgende[0].nachher.gicht(), u"-"_s);
}

void TestRezeptfolge::theRatingsOfAnIngredientMakeNoChange()
{
    m_eigene[u"Hauswurst"_s].setgicht(u"-"_s);
    QVERIFY(folge().istLeer());
}

void TestRezeptfolge::builtInFoodsAreLookedUpFirst()
{
    m_eigene.insert(u"Brot"_s, satz(u"Brot"_s, 500));
    QVERIFY(folge().istLeer());
}

void TestRezeptfolge::anIngredientThatIsGoneStaysAsItWas()
{
    m_eigene.remove(u"Hauswurst"_s);
    QVERIFY(folge().istLeer());
    m_eingebaute[u"Brot"_s].setkal(290);
    QCOMPARE(folge().folgende[1].nachher.kal(), 166.5F); // with its 300 kcal
}

void TestRezeptfolge::aDishThatIsGoneIsLeftAlone()
{
    m_eigene.remove(u"Suppe"_s);
    m_eingebaute[u"Brot"_s].setkal(290);
    QVERIFY(folge().istLeer()); // the meal has the soup as it was
}

void TestRezeptfolge::aDishThatCanNotBeReckonedIsTold()
{
    // 48 and 15 g of carbohydrate are left when the soup is boiled down to 70 g.
    m_rezepte[u"Suppe"_s].fertiggewicht = 70;
    m_eingebaute[u"Brot"_s].setkh(60);
    const Nachzuege zuege = folge();
    QCOMPARE(zuege.unmoegliche, QStringList(u"Suppe"_s));
    QVERIFY(zuege.folgende.isEmpty());
    QVERIFY(!zuege.istLeer());
}

void TestRezeptfolge::circlesAreLeftAlone()
{
    m_rezepte[u"Suppe"_s].zutaten[0].schluessel = u"Essen"_s;
    m_eigene[u"Hauswurst"_s].setkal(200);
    QVERIFY(folge().istLeer());
}

QTEST_APPLESS_MAIN(TestRezeptfolge)
#include "TestRezeptfolge.moc"
