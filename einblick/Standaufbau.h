#pragma once

#include "Aufzeichnungsaenderung.h"
#include "Einblickstand.h"
#include "Planumwandlung.h"

/// Makes what the insight shows of what stands on the desk and in the days. The client, the set of
/// reference values and what is known of the foods come in later.
namespace Standaufbau {

/// So much of a food. A null record shows nothing.
Einblickstand vomLebensmittel(const QString &schluessel, const Datenmodul *lebensmittel,
                              double gramm);

/// The rows of the plan on the desk; `ort` is the row. A row that carries no record is looked up; a
/// food that is in no store stays without.
Einblickstand vomPlan(const QList<Planmenge> &posten, const Speisenachschlag &lebensmittel);

/// A day of a record, meal by meal, with the rows that count; empty for one that is not there.
Einblickstand vomTag(const Aufzeichnung &aufzeichnung, int tag);

/// What falls on one day of those in the mean, by the same rule as the sums of the days.
Einblickstand vomMittel(const Aufzeichnung &aufzeichnung);

/// The place of a row of the days as `Speise::ort` holds it, and back.
int ortVon(const Aufzeichnungsaenderung::Stelle &stelle);
Aufzeichnungsaenderung::Stelle stelleVon(int ort);

/// What the plan's points are given for, as ranges: the default where no published set is chosen.
/// Of sodium and cholesterol only the upper end is aimed at: nobody should be told to eat more of
/// them. What is measured against the energy is missing while that is unknown (0 kcal).
Zielbereiche allgemeineZiele(std::int32_t energiebedarf);

} // namespace Standaufbau
