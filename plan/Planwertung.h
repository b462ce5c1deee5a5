#pragma once

#include "Ampel.h"
#include "Datenmodul.h"

#include <optional>

/// Which of the three counts of a rating leads.
enum class Wertungssieger { Plus, Neutral, Minus };

/// How often the plan's foods carry "+", "0" and "-" for one condition. Rows are counted one by
/// one; what led on the way stays visible.
struct Planwertung
{
    int plus = 0;
    int neutral = 0;
    int minus = 0;
    /// Whether "+" led after any row. Once earned, the point stays.
    bool punkt = false;
    /// The count that led last, alone and strictly; a tie leaves the earlier one. Absent when none
    /// ever led: the fields keep their looks.
    std::optional<Wertungssieger> sieger;
};

/// Counts one more row. Absent text and any text but the three are not counted.
void zaehleWertung(Planwertung &wertung, const QString &text);

/// How the first character of a count is written.
struct Zeichenstil
{
    Ampel farbe;
    int punktgroesse; ///< of the user's font

    bool operator==(const Zeichenstil &) const = default;
};

/// The looks of the three counts of one rating.
struct Wertungsstil
{
    Zeichenstil plus;
    Zeichenstil neutral;
    Zeichenstil minus;
};

/// The leading count in its colour, the two others small and black.
Wertungsstil wertungsstil(Wertungssieger sieger);
