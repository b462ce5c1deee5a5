#pragma once

#include "Planauswertung.h"

#include <QList>
#include <QStringList>

#include <cstdint>
#include <span>

/// What a row prints of a nutrient: the record's value times (grams / 100), in single precision and
/// truncated toward zero, so 0.6 mg of a vitamin is 0. For energy that is the stored value, not the
/// one that the evaluation works out from protein, carbohydrate and fat. A row without a record
/// prints 0.
std::int32_t druckwert(const Planzeile &zeile, Naehrwert wert);

/// What all rows print of a nutrient, in their order.
QList<std::int32_t> druckwerte(std::span<const Planzeile> zeilen, Naehrwert wert);

/// What all rows print of a rating: its text as it stands; null where there is none.
QStringList druckwertungen(std::span<const Planzeile> zeilen, Wertung wertung);
