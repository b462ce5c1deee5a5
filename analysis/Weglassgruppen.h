#pragma once

#include "Lebensmittelgruppe.h"

#include <QFlags>
#include <QString>

#include <array>

/// What a client may not eat, or does not want to.
enum class Weglassgruppe : unsigned {
    Fleisch = 1U << 0U, ///< of mammals and birds, with broth, lard and gelatine
    Schwein = 1U << 1U, ///< of these what is of pigs
    Milch = 1U << 2U,   ///< of any animal, with all that is made of it
    Fisch = 1U << 3U,   ///< with crustaceans and molluscs
    Gluten = 1U << 4U,  ///< wheat with its kin, rye, barley, oats, and what is made of them
    Nuesse = 1U << 5U,  ///< with almonds, peanuts, coconut, chestnuts and pine nuts
    Alkohol = 1U << 6U, ///< in drinks and in what is cooked or filled with them
};
Q_DECLARE_FLAGS(Weglassgruppen, Weglassgruppe)
Q_DECLARE_OPERATORS_FOR_FLAGS(Weglassgruppen)

/// What is said once about a group.
struct Weglassgruppenbeschreibung
{
    Weglassgruppe gruppe;
    const char *kennung;     ///< identifier in files, such as "milch"
    const char *bezeichnung; ///< key into the string table
};

/// All of them, in the order in which they are shown.
extern const std::array<Weglassgruppenbeschreibung, 7> weglassgruppen;

/// All groups together: what must be thought of a food of which nothing is known.
Weglassgruppen alleWeglassgruppen();

/// Which of the groups a built-in food holds or may hold. What is a matter of recipe counts as
/// held unless the food is known to be free of it; traces from the place where it is made don't
/// count. `name` is the German name. A food without a group, as all own foods are, and one of a
/// group that is not listed may hold anything.
Weglassgruppen kannEnthalten(const Lebensmittelgruppe *gruppe, const QString &name);
