#pragma once

#include "Spaltensinn.h"

/// What one heading says.
struct Ueberschrift
{
    Spaltensinn sinn;
    bool jePortion = false;
};

/// Reads a heading such as "Eiweiß (g) je 100 g", "energy-kJ" or "Salz [g]". Without a unit the
/// record's own is meant. A heading that isn't understood to the last word means nothing.
Ueberschrift liesUeberschrift(const QString &text);
