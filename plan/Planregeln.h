#pragma once

#include "Bereich.h"
#include "Naehrwerte.h"
#include "Tagesbedarf.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <variant>

/// A total is measured against the client's energy requirement.
struct Energiebezug
{
};

/// A total is measured against a part of the client's energy requirement.
struct Anteilsbezug
{
    float kilokalorienJeGramm;
    double anteil; ///< of the requirement
};

/// What a total is measured against: the requirement, a part of it, or a fixed amount per day.
using Planbezug = std::variant<Energiebezug, Anteilsbezug, Tagesbedarf>;

/// How the plan's total of one nutrient is judged.
struct Planregel
{
    Naehrwert wert;
    Planbezug bezug;
    std::span<const Stufe> baender; ///< percentage to bar code; a gap leaves the bar as it is
    Bereich punkt;                  ///< percentages that earn a point
};

/// The rules of all seventeen, in the order of Naehrwert. The plan wants 20 % of the energy from
/// protein, 30 % from fat and 50 % from carbohydrate; of cholesterol it allows 200 mg. The other
/// amounts per day are those by which a single food is judged.
extern const std::array<Planregel, anzahlNaehrwerte> planregeln;

/// The total in percent of what it is measured against; 0 when there is no requirement.
/// - energy: 100 times kcal, divided by the requirement, in single precision;
/// - protein, fat, carbohydrate: in whole numbers, kcal times 100 divided by the part of the
///   requirement, each cut off toward zero before;
/// - all others: `bedarfsprozent`, narrowed to single precision.
/// The wider type of the result holds all of them unchanged.
double planprozent(const Planbezug &bezug, float summe, std::int32_t energiebedarf);

/// What 100 % are, in the unit of the total: kcal, or grams of what carries a part of the energy.
/// Absent when there is no requirement.
std::optional<double> planbedarf(const Planbezug &bezug, std::int32_t energiebedarf);

/// A percentage as its field shows it, with one decimal. The points are counted by what stands
/// there: who reads 70.0 % has reached 70, though the bar goes by the number behind it.
double gezeigterProzentsatz(double prozent);
