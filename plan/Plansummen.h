#pragma once

#include "Planauswertung.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>

/// What the columns of the plan's table add up to, and what a day needs of it. The energy is the
/// foods' own, as the column shows it, and not the one that the evaluation works out.
struct Plansummen
{
    /// A row without a record counts in none of the sums, not even in this one.
    float menge = 0;                                ///< grams
    std::array<float, anzahlNaehrwerte> summe = {}; ///< in the order of Naehrwert
    /// In the order of Naehrwert, in the value's unit; absent while the requirement is unknown.
    std::array<std::optional<double>, anzahlNaehrwerte> bedarf = {};
    int ohneWerte = 0; ///< rows without a record

    /// What is left to the day's need; negative when there is too much. A difference that comes
    /// from single precision alone is none.
    std::optional<double> rest(Naehrwert wert) const;
};

/// Adds up the rows in their order. `energiebedarf` is what the percentages are measured against,
/// in kcal per day; 0 while it is unknown.
Plansummen plansummen(std::span<const Planzeile> zeilen, std::int32_t energiebedarf);
