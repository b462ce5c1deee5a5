#pragma once

#include <QFlags>
#include <QString>

#include <vector>

/// What the rating rules ask of a food besides its figures. Most belong to its group, some are
/// marked in its line of the table, the last is worked out.
enum class Merkmal : unsigned {
    Getraenk = 1U << 0U,     ///< drunk besides the meals, so that its energy comes on top
    Fluessig = 1U << 1U,     ///< low in sugars by the limit for liquids
    Gewuerz = 1U << 2U,      ///< eaten by the gram or by the spoon
    Pflanzlich = 1U << 3U,   ///< its purines did not raise the risk of gout
    RotesFleisch = 1U << 4U, ///< red meat, and sausage of any meat
    Fettquelle = 1U << 5U,   ///< nuts, oils and fish: the fat that is recommended
    Beilage = 1U << 6U,      ///< salted only by the water in which it is cooked
    Milchzucker = 1U << 7U,  ///< its own sugar is lactose, which holds no fructose
    Koffein = 1U << 8U,      ///< a soft drink with caffeine
    Zuckerarm = 1U << 9U,    ///< worked out: low in free sugars
};
Q_DECLARE_FLAGS(Merkmale, Merkmal)
Q_DECLARE_OPERATORS_FOR_FLAGS(Merkmale)

/// What is said once about a food group of the table.
struct Lebensmittelgruppe
{
    const char *name; ///< German, as in the table's column "group"
    Merkmale merkmale;
    /// Sugars in g per 100 g that belong to the food itself and are therefore not free sugars.
    double eigenerZucker;
};

/// All food groups in the order of the table.
const std::vector<Lebensmittelgruppe> &lebensmittelgruppen();

/// The group of that name, or null when there is none.
const Lebensmittelgruppe *lebensmittelgruppe(const QString &name);
