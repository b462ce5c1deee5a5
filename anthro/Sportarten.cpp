#include "Sportarten.h"

#include "Ganzzahl.h"

constexpr std::array<Sportart, 20> sportarten = {{
    {u"", {}, 0},
    {u"Badminton", u"badminton", 240},
    {u"Baskettball", u"baskettball", 360},
    {u"Bergsteigen", u"mountain-climbing", 500},
    {u"Eishockey", u"ice-hockey", 510},
    {u"Fußball", u"soccer", 450},
    {u"Handball", {}, 500},
    {u"Jogging", {}, 440},
    {u"Karate", {}, 670},
    {u"Krafttraining", u"weight-lifting", 370},
    {u"Radfahren", u"bicycling", 300},
    {u"Reiten", u"horse-riding", 300},
    {u"Brustschwimmen", u"swimming", 270},
    {u"Ski alpin", u"skiing", 500},
    {u"Squash", {}, 510},
    {u"Tanzen", u"dancing", 200},
    {u"Tennis", {}, 360},
    {u"Tischtennis", u"table-tennis", 220},
    {u"Volleyball", {}, 170},
    {u"Wandern", u"hiking", 320},
}};

std::optional<std::int32_t> sportkalorien(QStringView name)
{
    for (const Sportart &sport : sportarten) {
        const bool englisch = !sport.englisch.isNull() && name == sport.englisch;
        if (englisch || name == sport.deutsch) {
            return sport.kilokalorienJeStunde;
        }
    }
    return std::nullopt;
}

std::int32_t sportenergieGanzeStunden(std::int32_t kilokalorienJeStunde, std::int32_t stunden)
{
    return ganzzahl(std::int64_t{kilokalorienJeStunde} * stunden);
}

std::int32_t sportenergie(std::int32_t kilokalorienJeStunde, float stunden)
{
    return ganzzahl(static_cast<double>(static_cast<float>(kilokalorienJeStunde) * stunden));
}
