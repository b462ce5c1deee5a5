#pragma once

#include "Zeilenablage.h"

/// Moves rows about in a record and brings copied ones in. An alternative stays behind the row that
/// it is one to: a row takes its alternatives along, and nothing comes between them. Each answers
/// where the rows stand afterwards, in their order; nothing when nothing was moved.
namespace Zeilenzug {

using Stelle = Aufzeichnungsaenderung::Stelle;

/// The first place at or behind this one at which no row is parted from its alternatives.
int freierPlatz(const Mahlzeit &mahlzeit, int zeile);

/// Moves rows, or copies of them, to a place of the record, of another day as well. The place is
/// counted before they are taken out. Rows that are not there are passed over.
QList<Stelle> ziehe(Aufzeichnung &aufzeichnung, const QList<Stelle> &zeilen, const Stelle &nach,
                    bool kopie);

/// Moves rows by one place up, or down; from the edge of a meal they go into the one beside it.
/// Rows of several places come together. Alternatives without their row keep to it.
QList<Stelle> rueckeHinauf(Aufzeichnung &aufzeichnung, const QList<Stelle> &zeilen);
QList<Stelle> rueckeHinunter(Aufzeichnung &aufzeichnung, const QList<Stelle> &zeilen);

/// Takes rows out. Where the row before an alternative goes, the alternative is what is eaten.
/// False when none of them is there.
bool nimmHeraus(Aufzeichnung &aufzeichnung, const QList<Stelle> &zeilen);

/// Brings copied rows in. Those of one meal come to this place, and its note to the note of the
/// meal there. Rows of several meals each come to the end of the meal of this name on that day. A
/// day takes the place of what the day there holds. A meal that the record does not have comes
/// last in it; where no more fit in, its rows go into the last one.
QList<Stelle> fuegeEin(Aufzeichnung &aufzeichnung, const Zeilenablage &ablage, const Stelle &hier);

} // namespace Zeilenzug
