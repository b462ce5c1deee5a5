#pragma once

#include "Quellenvergleich.h"

/// Checks the names of the food table: what a name may hold, and that the figures in it are those
/// of the food.
namespace Namenspruefung {

/// The longest name, in characters; longer ones are cut off in the narrow columns of the plan.
inline constexpr qsizetype laengsterName = 48;

/// Both names of one food. Figures that need the source's water or density are left out when it
/// does not have the food.
Beanstandungen zeilePruefen(const Tabellenzeile &zeile, const Quellwerte &quelle);

/// Names that are alike, in each language by itself.
Beanstandungen gleicheNamen(const Tabelle &tabelle);

} // namespace Namenspruefung
