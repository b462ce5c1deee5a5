#pragma once

#include "Datenmodul.h"

#include <array>
#include <cstdint>
#include <optional>

/// The seventeen values of a food for some amount, in the order of Naehrwert, as the display holds
/// them: single precision, not rounded.
using Naehrwertreihe = std::array<float, anzahlNaehrwerte>;

/// The values of `lebensmittel` in `menge` grams of it. In single precision: value times amount
/// first, then divided by 100. At 100 g this gives back the stored value, but for the last binary
/// digit of some values with three or more decimals (0.007 comes back as 0.0070000007).
Naehrwertreihe skalieren(const Datenmodul &lebensmittel, std::int32_t menge);

/// The same for an amount that may have a fraction, in grams.
Naehrwertreihe skalieren(const Datenmodul &lebensmittel, float menge);

/// Whether a value and its label are to be seen: yes above 0, no at exactly 0 (either sign).
/// Absent for a negative value and for NaN: the two stay as they are.
std::optional<bool> sichtbarkeit(float wert);

/// Energy in kJ from energy in kcal: times 4.17910447761194, in double precision, the result kept
/// in single. The factor is 280/67; it lies a little below the usual 4.184.
float kilojoule(float kilokalorien);

/// Energy in kcal from energy in kJ, with the factor of `kilojoule`: what was typed in kJ is shown
/// as that many kJ again.
double kilokalorien(double kilojoule);

/// Table salt in g from sodium in mg, and back: 1 g of sodium counts as 2.5 g of salt, as the
/// European Union has it on the labels of packed foods (Regulation (EU) No 1169/2011, Annex I).
/// What is really in 2.5 g of salt is a little less.
double salzAusNatrium(double milligramm);
double natriumAusSalz(double gramm);

/// The displayed value for one gram of the displayed amount; 0 when the amount is 0.
float jeGramm(float wert, std::int32_t menge);
