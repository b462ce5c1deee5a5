#pragma once

#include "Naehrwerte.h"

#include <array>

/// Whether a percentage is divided in single or in double precision. Whole requirements divide in
/// single precision; 1.2 mg and the like have no exact single form and divide in double.
enum class Teilung { Einfach, Doppelt };

/// How much of a nutrient a day needs, in the unit of the nutrient.
struct Tagesbedarf
{
    Naehrwert wert;
    double bedarf;
    Teilung teilung = Teilung::Einfach;
};

/// The twelve nutrients with a daily requirement, in the order in which they are judged and shown.
/// Energy, protein, fat, carbohydrate and cholesterol have none.
inline constexpr std::array<Tagesbedarf, 12> tagesbedarfe = {{
    {Naehrwert::ca, 1000},
    {Naehrwert::ma, 350},
    {Naehrwert::bs, 30},
    {Naehrwert::na, 550},
    {Naehrwert::ka, 2000},
    {Naehrwert::ph, 1400},
    {Naehrwert::fe, 12},
    {Naehrwert::vita, 1000},
    {Naehrwert::b1, 1.2, Teilung::Doppelt},
    {Naehrwert::b2, 1.6, Teilung::Doppelt},
    {Naehrwert::b6, 1.7, Teilung::Doppelt},
    {Naehrwert::vitc, 100},
}};

/// How much of a day's requirement `menge` covers, in percent: amount times 100 in single
/// precision, then divided as the requirement says. A single-precision quotient comes back
/// unchanged in the wider type.
double bedarfsprozent(float menge, const Tagesbedarf &bedarf);
