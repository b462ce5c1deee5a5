#include "Prognose.h"

#include "Bmi.h"
#include "Ganzzahl.h"

namespace Prognose {

namespace {

constexpr float kilokalorienJeKilogramm = 7000.0F;

/// In 64 bits, so that it can't run over.
float fehlend(std::int32_t bedarf, std::int32_t errechnet)
{
    return static_cast<float>(std::int64_t{bedarf} - errechnet);
}

/// Absent when there is no sign to lose.
std::optional<float> ohneVorzeichen(float tage)
{
    return tage < 0.0F ? std::optional(-tage) : std::nullopt;
}

} // namespace

Verlauf verlustberechnen(const Eingaben &eingaben)
{
    Verlauf verlauf;
    verlauf.tage = ohneVorzeichen(eingaben.tage);
    const std::int32_t ganzeTage =
        ganzzahl(static_cast<double>(verlauf.tage.value_or(eingaben.tage)));
    const float aenderung = static_cast<float>(ganzeTage) *
                            fehlend(eingaben.bedarf, eingaben.errechnet) / kilokalorienJeKilogramm *
                            -1.0F;
    // Multiplied by -1 a change of 0 is a negative zero, which would be shown as "-0".
    verlauf.gewichtsverlust = aenderung == 0.0F ? 0.0F : aenderung;
    verlauf.bmi = ::bmi(eingaben.gewicht, eingaben.groesse);
    verlauf.bmiNeu = ::bmi(eingaben.gewicht + verlauf.gewichtsverlust, eingaben.groesse);
    return verlauf;
}

float tageberechnen(float verlust, std::int32_t bedarf, std::int32_t errechnet)
{
    const float kilogrammJeTag = fehlend(bedarf, errechnet) / kilokalorienJeKilogramm;
    return kilogrammJeTag != 0.0F ? verlust / kilogrammJeTag : 0.0F;
}

} // namespace Prognose
