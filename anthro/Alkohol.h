#pragma once

#include "Ampel.h"
#include "Getraenke.h"

#include <cstdint>
#include <optional>

/// Grams of alcohol in a quantity. Only whole 100 ml count: 330 ml are three of them, 99 ml none.
float alkoholgramm(std::int32_t milliliter, float grammJe100Milliliter);

/// Grams of alcohol that a body of `gewicht` kg breaks down in an hour: 0.1 g per kg when a drink
/// was chosen, half of that when the quantity was set. Multiplied in double, kept in single
/// precision.
float abbaurate(float gewicht, Alkoholanlass anlass);

/// Hours until the alcohol is broken down; 0 when the rate is 0.
float abbaudauer(float gramm, float rate);

/// The colour of the grams of alcohol: red above the daily limit of 20 g for a woman and 30 g for a
/// man, `darunter` below it. After a change of drink or quantity that is black, after a change of
/// gender green. Absent at exactly the limit, for NaN and for any other word: the colour stays.
std::optional<Ampel> alkoholfarbe(QStringView geschlecht, float gramm, Ampel darunter);

/// The colour of the quantity: black below 600 ml, red above. Absent at exactly 600: it stays.
std::optional<Ampel> mengenfarbe(std::int32_t milliliter);
