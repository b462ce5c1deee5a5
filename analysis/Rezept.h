#pragma once

#include "Datenmodul.h"
#include "Speise.h"
#include "Stoffwissen.h"

#include <QList>
#include <QMap>
#include <QString>

#include <array>
#include <optional>

/// What goes into a dish.
struct Rezeptzutat
{
    QString schluessel;   ///< the food's key in its store
    double gramm = 0;     ///< as it goes into the pot
    Datenmodul satz = {}; ///< the food as it was when the dish was reckoned

    bool operator==(const Rezeptzutat &andere) const;
};

/// How an own food was cooked from others.
struct Rezept
{
    QString schluessel; ///< the own food's name and key
    QList<Rezeptzutat> zutaten = {};
    /// What the dish weighs when it is done, in g; absent: as much as all that went in.
    std::optional<double> fertiggewicht = {};
    std::optional<double> portionen = {}; ///< how many it makes; absent: nobody counted
    /// Whether the own food changes when one of these foods does.
    bool folgt = true;
    QString gruppe = {}; ///< the food group by whose rules it is rated; empty: `gruppenvorschlag`
    /// The ratings that the user set by hand, in the order of `Wertung`; null: as proposed.
    std::array<QString, anzahlWertungen> wertungen = {};
    QString notiz = {};
    /// The own food as the recipe gave it last: while it still is so, nobody has changed it.
    Datenmodul gegeben = {};

    bool operator==(const Rezept &anderes) const;
};

/// Recipes by the keys of their own foods.
using Rezepte = QMap<QString, Rezept>;

/// Why nothing can be reckoned from a recipe.
enum class Rezeptmangel {
    Keiner,
    OhneName,
    OhneZutaten,
    ZuVieleZutaten, ///< more than `meisteZutaten`
    ZutatOhneName,
    ZutatOhneMenge,      ///< 0 g, less, or no number
    ZutatZuSchwer,       ///< more than `meisteRezeptgramm`
    OhneGewicht,         ///< done, it weighs less than `wenigsteRezeptgramm`, or no number
    ZuSchwer,            ///< more than `meisteRezeptgramm`
    ZuLeicht,            ///< done, it weighs less than what is in it besides water
    PortionenUnmoeglich, ///< no number, less than `wenigstePortionen`, more than `meistePortionen`
    Kreis,               ///< the dish is among its own ingredients, or theirs
};

/// 100 kg, the most that any amount in the program may be.
inline constexpr double meisteRezeptgramm = 100'000;
/// What is lighter is no dish, and its values per 100 g would grow without end.
inline constexpr double wenigsteRezeptgramm = 1;
/// A tenth of a portion is the least that anybody would cook.
inline constexpr double wenigstePortionen = 0.1;
inline constexpr double meistePortionen = 1000;
inline constexpr qsizetype meisteZutaten = 100;

/// What a dish comes to.
struct Rezeptergebnis
{
    /// With anything but `Keiner` the rest says nothing.
    Rezeptmangel mangel = Rezeptmangel::Keiner;
    /// The name, the seventeen values per 100 g of the finished dish, and the ratings that were set
    /// by hand; the others are null. What is unknown counts as 0 here.
    Datenmodul satz = {};
    Rezeptangaben angaben = {}; ///< the same with what is unknown, per 100 g of the finished dish
    double rohgewicht = 0;      ///< g that went in
    double fertiggewicht = 0;   ///< g

    explicit operator bool() const { return mangel == Rezeptmangel::Keiner; }
};

/// Reckons a dish from its ingredients, as they are kept with it: the sum of what is known in them,
/// by the weight of the finished dish. The unknown part goes by the grams of the ingredients.
/// Nothing but water comes or goes in cooking: what the dish weighs less than its ingredients is
/// water gone, what it weighs more is water taken up. What is lost to heat, to cooking water and
/// with fat that is poured off is not reckoned. A circle through other recipes is not seen here.
Rezeptergebnis rezeptwerte(const Rezept &rezept, const Stoffwissen &wissen);

/// The first thing that is wrong with a recipe that is to stand beside these others. An other one
/// of its name is the one that it takes the place of.
Rezeptmangel rezeptmangel(const Rezept &rezept, const Stoffwissen &wissen,
                          const Rezepte &andere = {});

/// Why nothing is reckoned, as a sentence in the language of the windows; empty for `Keiner`.
QString mangeltext(Rezeptmangel mangel);

/// The grams of all ingredients; those that count by `zaehlendeGramm`.
double rohgewicht(const Rezept &rezept);

/// What the dish weighs when it is done, in g.
double fertiggewicht(const Rezept &rezept);

/// The grams of one portion; absent where nobody counted them, or none can be.
std::optional<double> portionsgramm(const Rezept &rezept);

/// The ingredients as rows of food; where they stand is their place in the recipe.
Speisen zutatenAlsSpeisen(const Rezept &rezept);

/// Whether a dish is among its own ingredients or, through other recipes, among theirs. Another one
/// of its name doesn't count.
bool enthaeltSich(const Rezept &rezept, const Rezepte &andere);

/// The keys of all recipes in an order in which each comes after those that it is cooked from.
/// Recipes that contain themselves are left out.
QStringList kochfolge(const Rezepte &rezepte);

/// The recipes whose own food still holds the values that they gave. Of a food that was changed by
/// hand, or entered anew under the name of a dish, no recipe tells what is in it. Ratings don't
/// matter.
Rezepte geltendeRezepte(const Rezepte &rezepte, const Lebensmittelverzeichnis &eigene);

/// What is known of all these dishes, each as it was reckoned last. A dish that can't be reckoned
/// is left out.
QHash<QString, Rezeptangaben> rezeptangaben(const Rezepte &rezepte, Stoffwissen wissen);
