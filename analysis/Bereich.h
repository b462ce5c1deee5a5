#pragma once

#include <limits>
#include <optional>
#include <span>

/// One end of a range of numbers; the number itself belongs to the range or not.
struct Grenze
{
    double wert;
    bool eingeschlossen;
};

/// The lower ends: `ab` lets the number itself in, `ueber` does not.
constexpr Grenze ab(double wert)
{
    return {wert, true};
}
constexpr Grenze ueber(double wert)
{
    return {wert, false};
}

/// The upper ends: `bis` lets the number itself in, `unter` does not.
constexpr Grenze bis(double wert)
{
    return {wert, true};
}
constexpr Grenze unter(double wert)
{
    return {wert, false};
}

/// The ends of a range that is open to one side; infinite numbers lie within it.
inline constexpr Grenze vonUnten = ab(-std::numeric_limits<double>::infinity());
inline constexpr Grenze nachOben = bis(std::numeric_limits<double>::infinity());

/// A range of numbers. It holds no NaN.
struct Bereich
{
    Grenze von;
    Grenze bis;

    constexpr bool enthaelt(double zahl) const
    {
        const bool obenDrin = bis.eingeschlossen ? zahl <= bis.wert : zahl < bis.wert;
        const bool untenDrin = von.eingeschlossen ? zahl >= von.wert : zahl > von.wert;
        return untenDrin && obenDrin;
    }
};

/// A range and the code of a bar or a face that stands for it.
struct Stufe
{
    Bereich bereich;
    int code;
};

/// The code of the last step that holds the number: of overlapping steps the later one is the more
/// severe. Absent when the number lies in a gap, and then whatever is shown stays.
constexpr std::optional<int> letzteStufe(std::span<const Stufe> stufen, double zahl)
{
    std::optional<int> code;
    for (const Stufe &stufe : stufen) {
        if (stufe.bereich.enthaelt(zahl)) {
            code = stufe.code;
        }
    }
    return code;
}
