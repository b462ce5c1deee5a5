#pragma once

#include "Speise.h"

#include <QString>

/// How figures are said on the sheets of the insight, everywhere alike.
namespace Einblickworte {

/// An amount with its unit: "12,4 mg". Small amounts get the digits that they need.
QString menge(Kenngroesse groesse, double wert);

/// Grams of a food: "125 g"; below 10 g with one decimal where that is not 0.
QString gramm(double gramm);

/// A part of a whole, 0 to 1, in whole percent: "38 %"; "< 1 %" for what would read 0 and is not.
QString anteil(double teil);

/// Of how much nothing is known: "bei 12 % der Menge unbekannt"; empty where all is known.
QString unbekanntes(double teil);

/// Several foods by their names on screen, parted by commas; of many the first six and how many
/// there are besides.
QString namen(const QStringList &schluessel);

/// A text as a tooltip is to show it: what the user calls a food is no markup, whatever signs stand
/// in it.
QString hinweistext(const QString &text);

} // namespace Einblickworte
