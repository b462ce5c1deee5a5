#pragma once

#include "Portionendatei.h"

/// What the household measures that ship must keep, beyond being readable.
namespace Portionspruefung {

/// Objects to measures that no food has, to publications that the page does not list, and to a
/// measure whose name another line gives to the same food with as much right.
Beanstandungen zeilenPruefen(const QList<Portionszeile> &zeilen, const Tabelle &lebensmittel,
                             const QString &seite);

/// Objects to foods that have no measure, at their lines in the table of foods.
Beanstandungen lebensmittelPruefen(const QList<Portionszeile> &zeilen, const Tabelle &lebensmittel);

} // namespace Portionspruefung
