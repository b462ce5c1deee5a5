#pragma once

#include <cstdint>
#include <optional>

/// What becomes of the weight when the plan is eaten every day: 7000 kcal more or less are one
/// kilogram.
namespace Prognose {

/// What the projection starts from.
struct Eingaben
{
    float tage = 0;             ///< as entered
    std::int32_t bedarf = 0;    ///< kcal per day
    std::int32_t errechnet = 0; ///< kcal of the plan
    float gewicht = 0;          ///< kg
    float groesse = 0;          ///< m, 0 when not known
};

/// What it shows.
struct Verlauf
{
    /// The days without their sign, when they were entered negative; absent: the field stays.
    std::optional<float> tage;
    float gewichtsverlust = 0; ///< change in kg, negative for a loss
    float bmi = 0;             ///< now
    float bmiNeu = 0;          ///< after the days
};

/// The change over the whole days of `eingaben.tage` (their fraction does not count): days times
/// the difference in energy, divided by 7000, times -1. The difference is taken in whole numbers,
/// all else in single precision. No change is 0 without a sign.
Verlauf verlustberechnen(const Eingaben &eingaben);

/// How many days it takes to lose `verlust` kg; negative when the plan has more energy than is
/// needed, 0 when it has just as much. In single precision.
float tageberechnen(float verlust, std::int32_t bedarf, std::int32_t errechnet);

} // namespace Prognose
