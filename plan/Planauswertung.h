#pragma once

#include "Datenmodul.h"
#include "Planwertung.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>

/// One row of the plan: a food and how much of it. Without a record (null: the name is in no
/// store) the row counts as a row, but adds nothing and has no rating.
struct Planzeile
{
    const Datenmodul *lebensmittel = nullptr;
    float menge = 0; ///< grams
};

/// What a bar is told.
struct Planbalken
{
    std::optional<int> code; ///< absent: the colour stays
    std::int32_t laenge = 0; ///< not clipped
};

/// The plan's total of one nutrient.
struct Plannaehrwert
{
    double prozent = 0; ///< of what a day needs; a whole or a single-precision number, unchanged
    /// What the last row left whose running total matched a band. Absent: the bar stays as it was.
    std::optional<Planbalken> balken;
    float summe = 0;    ///< in the value's unit; of energy, what is worked out
    bool punkt = false; ///< the percentage, as it is shown, earns one
};

/// The energy fields of the projection.
struct Planenergie
{
    std::int32_t bedarf = 0;    ///< kcal per day before any reduction
    std::int32_t errechnet = 0; ///< kcal of the plan, truncated
};

/// Everything that the plan window shows about its rows.
struct Planauswertung
{
    std::array<Plannaehrwert, anzahlNaehrwerte> naehrwerte; ///< in the order of Naehrwert
    std::array<Planwertung, anzahlWertungen> wertungen;     ///< in the order of Wertung
    /// Absent for an empty plan: the fields and the projection stay as they were.
    std::optional<Planenergie> energie;
    float proteinanteil = 0; ///< share of the plan's energy, in percent, for the circle
    float khanteil = 0;
    float fettanteil = 0;
    int punkte = 0;  ///< 0 to 21
    int gesicht = 0; ///< code of the face
};

/// Evaluates a plan. `energiebedarf` is what energy, protein, fat and carbohydrate are measured
/// against (0 when nothing is known yet), `unbereinigt` is only passed on for display; both in kcal
/// per day. The energy of a food is worked out from protein, carbohydrate and fat, its stored
/// energy is not read. Every sum runs in single precision and in the order of the rows: a row adds
/// value times amount divided by 100.
Planauswertung planAuswerten(std::span<const Planzeile> zeilen, std::int32_t energiebedarf,
                             std::int32_t unbereinigt);

/// The face for a score: laughing above 16, neutral from 9 on, crying below.
int plangesicht(int punkte);
