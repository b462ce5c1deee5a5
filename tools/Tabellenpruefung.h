#pragma once

#include "Tabellenzeile.h"

/// The checks that keep the food table trustworthy. Each returns what it objects to; an empty list
/// means that all is well.
namespace Tabellenpruefung {

/// The longest name, in characters; longer ones are cut off in the narrow columns of the plan.
inline constexpr qsizetype laengsterName = 48;

/// Energy worked out with the factors of Regulation (EU) No 1169/2011, in kcal per 100 g.
double energieAusNaehrstoffen(const Tabellenzeile &zeile);

/// One food by itself: its name, its figures, its marks.
Beanstandungen zeilePruefen(const Tabellenzeile &zeile);

/// What only shows across lines: names that are alike, and entries that name the same food.
Beanstandungen zusammenhangPruefen(const Tabelle &tabelle);

/// Both of them, over the whole table.
Beanstandungen pruefen(const Tabelle &tabelle);

} // namespace Tabellenpruefung
