#pragma once

#include "Wertungsregeln.h"

/// The checks that keep the rating rules trustworthy. They take the rules as an argument, so that a
/// test can break one on purpose.
namespace Regelpruefung {

/// Every rule has a name of its own, a rating that the program knows and publications that exist,
/// and one rule of each condition holds for whatever the others leave.
Beanstandungen aufbauPruefen(const Regelwerk &regeln = wertungsregeln());

/// Every rule, every food group and every publication stands on the page for dietitians, word for
/// word.
Beanstandungen seitePruefen(const QString &markdown, const Regelwerk &regeln = wertungsregeln());

/// Foods that dietitians judge alike come out as they judge them. `liste` holds lines of the food's
/// German name and, for each condition, the ratings that are accepted (none: opinions differ).
Beanstandungen einigkeitPruefen(const Tabelle &tabelle, const QString &liste,
                                const Regelwerk &regeln = wertungsregeln());

/// Every rating of every condition is given to at least a tenth of the foods, and every rule
/// decides at least one.
Beanstandungen anteilePruefen(const Tabelle &tabelle, const Regelwerk &regeln = wertungsregeln());

} // namespace Regelpruefung
