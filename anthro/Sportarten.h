#pragma once

#include <QStringView>

#include <array>
#include <cstdint>
#include <optional>

/// One sport and the energy it takes, whatever the body weighs.
struct Sportart
{
    QStringView deutsch;
    QStringView englisch; ///< null: the German name serves both languages
    std::int32_t kilokalorienJeStunde;
};

/// All sports. The first, with an empty name, is no sport.
extern const std::array<Sportart, 20> sportarten;

/// The kcal per hour of a sport; 0 for the empty name. Names are compared exactly. Absent for a
/// name that is not in the table: everything stays as it is.
std::optional<std::int32_t> sportkalorien(QStringView name);

/// The energy of whole hours, as shown after a sport was chosen and as it enters the requirement.
std::int32_t sportenergieGanzeStunden(std::int32_t kilokalorienJeStunde, std::int32_t stunden);

/// The energy of the hours with their fraction, as shown after the hours were set: in single
/// precision, cut off to whole kcal.
std::int32_t sportenergie(std::int32_t kilokalorienJeStunde, float stunden);
