#pragma once

#include "Skalierung.h"

#include <QString>

#include <cstdint>
#include <optional>

/// One relation between the displayed values, with its bar.
struct Relation
{
    float wert = 0;
    QString text;            ///< stands in place of the number; null: the number stands
    std::optional<int> code; ///< red or green for the bar; absent: its colour stays
    std::int32_t laenge = 0; ///< length of the bar, ten times the value, not clipped
};

/// What the relations tab shows.
struct Relationen
{
    Relation natriumKalium;
    Relation magnesiumCalcium;
    Relation broteinheiten;          ///< 12 g of carbohydrate each
    float kohlenhydrateinheiten = 0; ///< 10 g of carbohydrate each; has no bar
};

/// The relations of the displayed values, in single precision. A relation to nothing (potassium or
/// calcium 0) is 0 and shows a dash. The limits between green and red are compared in double
/// precision: 0.5 for the two relations, 5.4 for the bread units. 64.8 g of carbohydrate are
/// 5.4000001 bread units in single precision and so already red.
Relationen relationenRechnen(const Naehrwertreihe &anzeige);
