#include "Energiebedarf.h"

#include "Ampel.h"
#include "Bereich.h"
#include "Ganzzahl.h"
#include "Sportarten.h"

#include <array>

namespace {

constexpr std::array<Stufe, 5> energieStufen = {{
    {{ueber(1400), unter(2700)}, Gesichtscode::lachend},
    {{vonUnten, unter(1400)}, Gesichtscode::neutral},
    {{ueber(2700), nachOben}, Gesichtscode::neutral},
    {{vonUnten, unter(1100)}, Gesichtscode::weinend},
    {{ueber(3000), nachOben}, Gesichtscode::weinend},
}};

} // namespace

std::optional<float> arbeitsfaktor(int tag)
{
    switch (tag) {
    case 0:
        return 1.1F;
    case 1:
        return 1.3F;
    case 2:
        return 1.5F;
    default:
        return std::nullopt;
    }
}

float energiegrundbedarf(float gewicht, float arbeit, float geschlecht)
{
    constexpr float kilokalorienJeKilogramm = 20.0F;
    return gewicht * kilokalorienJeKilogramm * arbeit * geschlecht;
}

Energiebedarf energiebedarfRechnen(const Energieeingaben &eingaben)
{
    constexpr std::int32_t teilerReduktion = 5;
    const auto sport =
        static_cast<float>(sportenergieGanzeStunden(eingaben.sportkal, eingaben.ganzeStunden));
    const float summe =
        energiegrundbedarf(eingaben.gewicht, eingaben.arbeit, eingaben.geschlecht) + sport;
    const std::int32_t kal = ganzzahl(static_cast<double>(summe));
    return {eingaben.reduktion ? kal - kal / teilerReduktion : kal, kal};
}

std::optional<int> energieGesicht(std::int32_t kal)
{
    return letzteStufe(energieStufen, kal);
}
