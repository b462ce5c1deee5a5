#pragma once

#include "Planauswertung.h"
#include "Planregeln.h"

#include <QString>

#include <cstdint>

/// What the face of a plan says, in the language of the windows, for those who can't see it. An
/// empty plan is called empty, whatever its face.
QString planurteil(const Planauswertung &auswertung, bool leer);

/// How many of the 21 points a plan has.
QString punkteworte(const Planauswertung &auswertung);

/// Which points a plan lacks: nutrients with the share that earns none, and ratings. Null when it
/// lacks none.
QString fehlendePunkte(const Planauswertung &auswertung);

/// The amount behind a percentage, and what it is measured against: "60,0 g von 100,0 g".
/// `energiebedarf` is 0 while it is unknown.
QString mengenworte(const Planregel &regel, float summe, std::int32_t energiebedarf);

/// What 100 % of the energy are, both in kcal per day; 0 while it is unknown.
QString energieworte(std::int32_t bedarf, std::int32_t unbereinigt);
