#pragma once

#include "Lebensmittelgruppe.h"
#include "Naehrwerte.h"

#include <array>

/// The first of the values that are limited by group; all that follow it in the record are too.
inline constexpr Naehrwert ersterBegrenzter = Naehrwert::chol;
inline constexpr std::size_t anzahlBegrenzte = anzahlNaehrwerte - stelle(ersterBegrenzter);

/// The most that 100 g of a food of a group can hold, so that a figure of the wrong column, unit or
/// line is noticed that the energy does not give away.
struct Gruppengrenzen
{
    const char *gruppe; ///< name of the group
    double alkohol;     ///< g
    /// From cholesterol to vitamin C, in the order and the units of the record.
    std::array<double, anzahlBegrenzte> mengen;

    double grenze(Naehrwert wert) const { return mengen[stelle(wert) - stelle(ersterBegrenzter)]; }
};

/// The limits of a group.
const Gruppengrenzen &gruppengrenzen(const Lebensmittelgruppe &gruppe);
