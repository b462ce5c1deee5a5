#include "Koerpermasse.h"

#include "Ampel.h"
#include "Bereich.h"
#include "Ganzzahl.h"

#include <array>

namespace {

constexpr std::array<Stufe, 5> bmiStufen = {{
    {{ueber(18), unter(25)}, Gesichtscode::lachend},
    {{vonUnten, unter(18)}, Gesichtscode::neutral},
    {{ueber(25), nachOben}, Gesichtscode::neutral},
    {{vonUnten, unter(15)}, Gesichtscode::weinend},
    {{ueber(30), nachOben}, Gesichtscode::weinend},
}};

constexpr std::array<Stufe, 5> verhaeltnisStufen = {{
    {{ueber(0.8), unter(0.88)}, Gesichtscode::lachend},
    {{vonUnten, unter(0.8)}, Gesichtscode::neutral},
    {{ueber(0.88), nachOben}, Gesichtscode::neutral},
    {{vonUnten, unter(0.75)}, Gesichtscode::weinend},
    {{ueber(0.93), nachOben}, Gesichtscode::weinend},
}};

constexpr double zentimeterJeFuss = 30.48;
constexpr double zentimeterJeZoll = 2.54;
constexpr double pfundJeKilogramm = 2.205;

} // namespace

std::optional<int> bmiGesicht(float bmi)
{
    return letzteStufe(bmiStufen, static_cast<double>(bmi));
}

float taillenHueftVerhaeltnis(float taille, float huefte)
{
    return huefte != 0.0F ? taille / huefte : 0.0F;
}

std::optional<int> verhaeltnisGesicht(float verhaeltnis)
{
    return letzteStufe(verhaeltnisStufen, static_cast<double>(verhaeltnis));
}

ImperialeMasse imperialeMasse(float groesse, float gewicht)
{
    const float zentimeter = groesse * 100.0F;
    const std::int32_t fuss = ganzzahl(static_cast<double>(zentimeter) / zentimeterJeFuss);
    const float rest = zentimeter - static_cast<float>(fuss * zentimeterJeFuss);
    const auto zoll = static_cast<float>(static_cast<double>(rest) / zentimeterJeZoll);
    const std::int32_t pfund = ganzzahl(static_cast<double>(gewicht) * pfundJeKilogramm);
    return {fuss, ganzzahl(static_cast<double>(zoll)), static_cast<float>(pfund)};
}

std::optional<bool> rechnerErlaubt(std::int32_t alter)
{
    constexpr std::int32_t grenze = 10;
    return alter == grenze ? std::nullopt : std::optional(alter > grenze);
}
