#pragma once

#include "Kenngroesse.h"

#include <QList>

#include <optional>

/// What a day should hold of something, in the unit of the `Kenngroesse`: between two ends, of
/// which either may be missing.
struct Zielbereich
{
    Kenngroesse groesse;
    std::optional<double> unten; ///< at least: what is recommended or adequate
    std::optional<double> oben;  ///< at most: the upper end of a range; more is not better
    /// What should not be passed for long (upper level); absent where none is set.
    std::optional<double> obergrenze;

    bool operator==(const Zielbereich &) const = default;
};

using Zielbereiche = QList<Zielbereich>;

/// How an amount stands to its range.
enum class Lage {
    ZuWenig,    ///< below the lower end
    Richtig,    ///< between the ends, both included
    ZuViel,     ///< above the upper end of the range
    Ueberhoeht, ///< above the upper level
};

/// Where an amount lies; a missing end is kept by any amount. Between a lower end without an upper
/// one and an upper level it is right.
constexpr Lage lage(const Zielbereich &ziel, double wert)
{
    if (ziel.obergrenze && wert > *ziel.obergrenze) {
        return Lage::Ueberhoeht;
    }
    if (ziel.oben && wert > *ziel.oben) {
        return Lage::ZuViel;
    }
    return ziel.unten && wert < *ziel.unten ? Lage::ZuWenig : Lage::Richtig;
}
