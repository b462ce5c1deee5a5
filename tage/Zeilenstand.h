#pragma once

#include "Planumwandlung.h"

/// How the food of a row stands to what its store has of it today.
enum class Zeilenstand {
    WieHeute,   ///< the same, or it is in no store now as it was then
    Veraendert, ///< other values or ratings, or it has some only now
    Fort,       ///< no store has it any more
};

Zeilenstand zeilenstand(const Mahlzeitzeile &zeile, const Speisenachschlag &heute);

/// What became of the rows of a record.
struct Werteabgleich
{
    int uebernommen = 0; ///< rows that have other values now
    QStringList fort;    ///< keys of foods that no store has any more, each once; they stay
};

/// Gives every row of the record the values that its food has today. What was said of the amounts,
/// and what it weighs, stays.
Werteabgleich uebernimmHeutigeWerte(Aufzeichnung &aufzeichnung, const Speisenachschlag &heute);
