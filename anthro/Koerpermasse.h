#pragma once

#include <cstdint>
#include <optional>

/// The face for a body mass index: laughing between 18 and 25, neutral below 18 and above 25,
/// crying below 15 and above 30. Absent at exactly 18 and 25 and for NaN: the face stays.
std::optional<int> bmiGesicht(float bmi);

/// Waist divided by hip, both in cm, in single precision; 0 when there is no hip.
float taillenHueftVerhaeltnis(float taille, float huefte);

/// The face for waist by hip, for men and women alike: laughing between 0.8 and 0.88, neutral
/// outside, crying below 0.75 and above 0.93. The limits are double precision; the single-precision
/// ratio 80/100 lies a little above 0.8, so no ratio meets 0.8 or 0.88 and the face stays only
/// for NaN.
std::optional<int> verhaeltnisGesicht(float verhaeltnis);

/// Height and weight as they are shown in imperial measures.
struct ImperialeMasse
{
    std::int32_t fuss = 0;
    std::int32_t zoll = 0; ///< what is left of the height beyond whole feet
    float pfund = 0;       ///< a whole number

    bool operator==(const ImperialeMasse &) const = default;
};

/// From height in m and weight in kg. A foot has 30.48 cm, an inch 2.54 cm; a kilogram counts
/// 2.205 pounds. All three numbers are cut off, not rounded. Inches are kept in single precision
/// before that, so a height just short of a whole foot can show 12 of them.
ImperialeMasse imperialeMasse(float groesse, float gewicht);

/// Whether the calculator gives body measures, energy and alcohol for this age in years: no below
/// 10, yes above. Absent at exactly 10: everything stays as it is.
std::optional<bool> rechnerErlaubt(std::int32_t alter);
