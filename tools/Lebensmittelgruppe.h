#pragma once

#include <QFlags>
#include <QString>

#include <array>
#include <vector>

/// How rich in purines a food is, in milligrams of uric acid that 100 g give.
enum class Purinklasse {
    Niedrig, ///< less than 50 mg
    Mittel,  ///< 50 to 150 mg
    Hoch,    ///< more than 150 mg
};

/// What the rating rules ask of a food besides its figures. The upper ones belong to its group, the
/// lower ones are worked out for each food.
enum class Merkmal : unsigned {
    Getraenk = 1U << 0U,    ///< drunk besides the meals, so that its energy comes on top
    Fluessig = 1U << 1U,    ///< low in sugars by the limit for liquids
    Gewuerz = 1U << 2U,     ///< eaten by the gram or by the spoon
    Tierisch = 1U << 3U,    ///< meat, fish and what is made of them
    Fettquelle = 1U << 4U,  ///< nuts, oils and fish: the fat that is recommended
    Beilage = 1U << 5U,     ///< salted only by the water in which it is cooked
    Milchzucker = 1U << 6U, ///< its own sugar is lactose, which holds no fructose
    Bier = 1U << 7U,
    Zuckerarm = 1U << 8U, ///< worked out: low in free sugars
    PurinMittel = 1U << 9U,
    PurinHoch = 1U << 10U,
};
Q_DECLARE_FLAGS(Merkmale, Merkmal)
Q_DECLARE_OPERATORS_FOR_FLAGS(Merkmale)

inline constexpr std::size_t anzahlVitamine = 5;

/// What is said once about a food group of the table.
struct Lebensmittelgruppe
{
    const char *name; ///< German, as in the table's column "group"
    Purinklasse purin;
    Merkmale merkmale;
    /// Sugars in g per 100 g that belong to the food itself and are therefore not free sugars.
    double eigenerZucker;
    /// The most that 100 g of an unfortified food of this group hold, in the order and the units of
    /// the record: vitamin A, B1, B2, B6, C.
    std::array<double, anzahlVitamine> vitamingrenzen;
};

/// All food groups in the order of the table.
const std::vector<Lebensmittelgruppe> &lebensmittelgruppen();

/// The group of that name, or null when there is none.
const Lebensmittelgruppe *lebensmittelgruppe(const QString &name);
