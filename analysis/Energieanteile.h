#pragma once

#include <cstdint>

/// Kilocalories in one gram of the three main nutrients.
namespace KilokalorienJeGramm {
inline constexpr float protein = 4.0F;
inline constexpr float kh = 4.0F;
inline constexpr float fett = 9.0F;
} // namespace KilokalorienJeGramm

/// Where the energy of a food or a plan comes from.
struct Energieanteile
{
    float gesamtkal = 0;  ///< energy from the three together, in kcal
    float kalumrprot = 0; ///< share of protein in it, in percent
    float kalumrkh = 0;   ///< share of carbohydrate, in percent
    float kalumrfett = 0; ///< share of fat, in percent

    bool operator==(const Energieanteile &) const = default;
};

/// Energy in kcal from grams of the three main nutrients, in single precision and in this order:
/// protein, carbohydrate, fat.
float energieAusNaehrstoffen(float protein, float kh, float fett);

/// The share, in percent, that `gramm` of a nutrient has in the energy `gesamt` (kcal): grams times
/// kcal per gram times 100, divided by `gesamt`, in single precision. 0 when `gesamt` is 0; NaN is
/// not 0 and goes on into the share.
float energieanteil(float gramm, float kilokalorienJeGramm, float gesamt);

/// The shares from the displayed grams as they are. All three are 0 when there is no energy.
Energieanteile energieanteile(float protein, float kh, float fett);

/// The shares from whole grams: sums and products in whole numbers (64 bits, so that none runs
/// over), only the last division in single precision. An own food that is loaded directly is
/// counted this way. All three are 0 when there is no energy.
Energieanteile energieanteileGanzzahlig(std::int32_t protein, std::int32_t kh, std::int32_t fett);
