#pragma once

#include "Mengenangabe.h"
#include "Rezept.h"

#include <QString>

/// How a recipe is said and read on screen.
namespace Rezeptworte {

/// Grams to the last digit, as they can be typed again: "12,5 g".
QString gramm(double gramm);

/// A count to its last digit: "2,5".
QString anzahl(double zahl);

/// The grams of an amount that was typed, in double precision.
double grammVon(const Mengenangabe &angabe);

/// What becomes of the water: "160 g Wasser verkocht", "440 g Wasser aufgenommen"; empty where the
/// dish weighs what its ingredients do, or there are none.
QString wasserworte(const Rezept &rezept);

/// "= 250 g je Portion", with a word when that is too much for a household measure; empty without a
/// count.
QString portionsworte(const Rezept &rezept);

/// The sign of a rating with its word: "+ geeignet". A rating that is another text stands alone.
QString urteil(const QString &zeichen);

} // namespace Rezeptworte
