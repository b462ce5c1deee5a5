#include "Alkohol.h"

#include "Geschlecht.h"

namespace {

/// `unter` below the limit, red above, nothing at it.
template <typename Zahl>
std::optional<Ampel> anGrenze(Zahl zahl, Zahl grenze, Ampel unter)
{
    if (zahl < grenze) {
        return unter;
    }
    return zahl > grenze ? std::optional(Ampel::Rot) : std::nullopt;
}

} // namespace

float alkoholgramm(std::int32_t milliliter, float grammJe100Milliliter)
{
    const std::int32_t hunderter = milliliter / 100;
    return static_cast<float>(hunderter) * grammJe100Milliliter;
}

float abbaurate(float gewicht, Alkoholanlass anlass)
{
    const double grammJeKilogramm = anlass == Alkoholanlass::Wahl ? 0.1 : 0.05;
    return static_cast<float>(static_cast<double>(gewicht) * grammJeKilogramm);
}

float abbaudauer(float gramm, float rate)
{
    return rate != 0.0F ? gramm / rate : 0.0F;
}

std::optional<Ampel> alkoholfarbe(QStringView geschlecht, float gramm, Ampel darunter)
{
    constexpr float grenzeFrau = 20.0F;
    constexpr float grenzeMann = 30.0F;
    if (geschlecht == Geschlecht::frau) {
        return anGrenze(gramm, grenzeFrau, darunter);
    }
    if (geschlecht == Geschlecht::mann) {
        return anGrenze(gramm, grenzeMann, darunter);
    }
    return std::nullopt;
}

std::optional<Ampel> mengenfarbe(std::int32_t milliliter)
{
    constexpr std::int32_t grenze = 600;
    return anGrenze(milliliter, grenze, Ampel::Schwarz);
}
