#include "Gewichtsverlauf.h"

#include <cstddef>
#include <cstdint>

namespace {

constexpr float kcalProKilogramm = 7000.0F;
constexpr float tageProWoche = 7.0F;

float nachEinerWoche(float gewicht, float fehlbetrag)
{
    return gewicht - tageProWoche * fehlbetrag / kcalProKilogramm;
}

float bedarfBeiGewicht(float gewicht, float frueherBedarf, float frueheresGewicht)
{
    return frueheresGewicht == 0.0F ? 0.0F : gewicht * frueherBedarf / frueheresGewicht;
}

} // namespace

Wochengewichte gewichtsverlauf(float gewicht, int bedarf, int aufnahme)
{
    if (gewicht == 0.0F) {
        return {};
    }
    // The first difference is one of whole numbers; in 64 bits, since two of 32 may lie that far
    // apart.
    const auto ersterFehlbetrag = std::int64_t{bedarf} - std::int64_t{aufnahme};
    Wochengewichte gewichte = {gewicht,
                               nachEinerWoche(gewicht, static_cast<float>(ersterFehlbetrag))};

    auto bedarfDerWoche = static_cast<float>(bedarf);
    for (std::size_t woche = 2; woche < gewichte.size(); ++woche) {
        const float zuletzt = gewichte[woche - 1];
        bedarfDerWoche = bedarfBeiGewicht(zuletzt, bedarfDerWoche, gewichte[woche - 2]);
        gewichte[woche] = nachEinerWoche(zuletzt, bedarfDerWoche - static_cast<float>(aufnahme));
    }
    return gewichte;
}

float gewichtBeiBmi(float bmi, float groesse)
{
    return bmi * (groesse * groesse);
}
