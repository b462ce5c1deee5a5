#pragma once

#include "Aufzeichnung.h"

/// What can be done to a record of days. Each of them leaves it whole: every day with every meal,
/// and no alternative without a row before it. What asks for a day, meal or row that is not there
/// does nothing and answers false.
namespace Aufzeichnungsaenderung {

/// A place between the rows of a meal: 0 is before the first.
struct Stelle
{
    int tag = 0;
    int mahlzeit = 0;
    int zeile = 0;

    bool operator==(const Stelle &) const = default;
};

/// Puts rows in at a place, in their order.
bool fuegeEin(Aufzeichnung &aufzeichnung, const Stelle &stelle, const QList<Mahlzeitzeile> &zeilen);
/// Puts this row in place of the one that stands there.
bool ersetze(Aufzeichnung &aufzeichnung, const Stelle &stelle, const Mahlzeitzeile &zeile);
/// Makes a row an alternative to the one before it, or one that counts by itself. The first row of
/// a meal can't be an alternative.
bool setzeOder(Aufzeichnung &aufzeichnung, const Stelle &stelle, bool oder);

/// Puts a meal of this name in at a place, empty, into every day.
bool fuegeMahlzeitEin(Aufzeichnung &aufzeichnung, int stelle, const QString &name);
/// Takes a meal out of every day with all that stands in it. The last one stays.
bool nimmMahlzeitHeraus(Aufzeichnung &aufzeichnung, int mahlzeit);
bool verschiebeMahlzeit(Aufzeichnung &aufzeichnung, int von, int nach);
bool benenneMahlzeit(Aufzeichnung &aufzeichnung, int mahlzeit, const QString &name);

/// So many days from now on, 1 to `meisteTage`: new ones are empty and come last, those beyond go
/// with all that stands in them.
bool setzeTagezahl(Aufzeichnung &aufzeichnung, int tage);
/// Puts what a day holds, its notes too, in place of what these other days hold.
bool fuelle(Aufzeichnung &aufzeichnung, int von, const QList<int> &nach);
/// Empties a day of its rows and notes.
bool leere(Aufzeichnung &aufzeichnung, int tag);

} // namespace Aufzeichnungsaenderung
