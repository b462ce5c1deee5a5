#pragma once

#include <cstdint>
#include <optional>

/// The factor of an activity level: 1.1, 1.3 and 1.5 for the tags 0, 1 and 2. Absent for any other
/// tag: the factor stays.
std::optional<float> arbeitsfaktor(int tag);

/// The energy requirement without sport, in kcal per day: weight in kg times 20 times the factors
/// of activity and gender, in that order and in single precision. Age and height do not enter it.
float energiegrundbedarf(float gewicht, float arbeit, float geschlecht);

/// What the energy requirement depends on.
struct Energieeingaben
{
    float gewicht = 0;             ///< kg
    float arbeit = 0;              ///< factor of the activity
    float geschlecht = 0;          ///< factor of the gender
    std::int32_t sportkal = 0;     ///< kcal per hour of the sport
    std::int32_t ganzeStunden = 0; ///< hours of it; only whole hours count
    bool reduktion = false;        ///< a fifth less, to lose weight
};

/// The energy requirement in whole kcal per day.
struct Energiebedarf
{
    std::int32_t kal = 0;            ///< after the reduction, if there is one
    std::int32_t kalunbereinigt = 0; ///< before it

    bool operator==(const Energiebedarf &) const = default;
};

/// The requirement with sport, cut off to whole kcal; the reduction takes a fifth of that, in whole
/// numbers.
Energiebedarf energiebedarfRechnen(const Energieeingaben &eingaben);

/// The face for a requirement after reduction: laughing between 1400 and 2700 kcal, neutral
/// outside, crying below 1100 and above 3000. Absent at exactly 1400 and 2700: the face stays.
std::optional<int> energieGesicht(std::int32_t kal);
