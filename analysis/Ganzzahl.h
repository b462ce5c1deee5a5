#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

/// The whole number that is kept of a computed one: the digits behind the point fall away, toward
/// zero, nothing is rounded. What is too large for 32 bits becomes the largest or smallest number
/// there is, and what is no number at all (NaN) becomes 0.
inline std::int32_t ganzzahl(double zahl)
{
    constexpr double grenze = 2147483648.0; // 2^31, the first that is too large
    if (std::isnan(zahl)) {
        return 0;
    }
    if (zahl >= grenze) {
        return std::numeric_limits<std::int32_t>::max();
    }
    if (zahl <= -grenze) {
        return std::numeric_limits<std::int32_t>::min();
    }
    return static_cast<std::int32_t>(zahl);
}

/// A sum or product made in 64 bits, brought back to 32 with the same limits.
constexpr std::int32_t ganzzahl(std::int64_t zahl)
{
    using Grenzen = std::numeric_limits<std::int32_t>;
    if (zahl > Grenzen::max()) {
        return Grenzen::max();
    }
    if (zahl < Grenzen::min()) {
        return Grenzen::min();
    }
    return static_cast<std::int32_t>(zahl);
}
