#pragma once

#include "Naehrwerte.h"

#include <QString>

/// Grams of a food as the plan shows them: as short as they are.
QString mengentext(float gramm);

/// The value that a column of the plan's tables shows; null where it is no value's column.
const Naehrwertbeschreibung *naehrwertVon(const QString &spalte);

/// A value of the plan with as many digits behind the comma as all numbers of its column have; a
/// dash for one that ran over.
QString naehrwerttext(Naehrwert wert, double zahl);

/// The same with its unit, for a sentence: "62,0 g".
QString naehrwertMitEinheit(Naehrwert wert, double zahl);
