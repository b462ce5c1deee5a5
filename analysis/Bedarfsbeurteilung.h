#pragma once

#include "Ampel.h"
#include "Skalierung.h"
#include "Tagesbedarf.h"

#include <QString>

#include <array>
#include <cstdint>
#include <optional>

/// From which share of a day's requirement on a food counts as a source of the nutrient, in
/// percent.
inline constexpr std::int32_t bedarfsgrenze = 10;

/// How far the displayed amount covers the daily requirement of one nutrient.
struct Bedarfszeile
{
    Naehrwert wert = Naehrwert::ca;
    std::int32_t prozent = 0; ///< truncated toward zero
    /// Red below 10 percent, green above, at exactly 10 the colour of the row before. Calcium, the
    /// first row, is green from 10 percent on, so there always is a colour.
    Ampel farbe = Ampel::Rot;
};

/// The judgement of a food of which enough is known.
struct Gesamtbeurteilung
{
    std::int32_t wert = 0;                     ///< mean coverage per 100 kcal, in percent
    Ampel farbe = Ampel::Rot;                  ///< text colour of the number
    int balkencode = Balkencode::unveraendert; ///< for the bar; 0 at exactly 45
    /// True below 100 kcal: then the value is 0 whatever is covered, and says nothing.
    bool zuWenigEnergie = false;
};

/// What the evaluation of the displayed values gives.
struct Bedarfsbeurteilung
{
    std::array<Bedarfszeile, tagesbedarfe.size()> zeilen;
    int vorhanden = 0; ///< rows above 0 percent, 0 to 12
    /// Absent when fewer than seven rows are above 0: then the number is hidden and the bar keeps
    /// its colour.
    std::optional<Gesamtbeurteilung> gesamt;
    /// Title of the box around the judgement, a key into the string table; absent: it stays.
    std::optional<QString> boxtitel;
    std::int32_t balkenlaenge = 0; ///< not clipped
};

/// Judges the displayed values, energy in kcal included, against the daily requirements.
Bedarfsbeurteilung bedarfBeurteilen(const Naehrwertreihe &anzeige);
