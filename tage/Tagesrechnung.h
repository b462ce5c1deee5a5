#pragma once

#include "Aufzeichnung.h"
#include "Planauswertung.h"
#include "Plansummen.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

/// What a row adds: its seventeen values in the order of `Naehrwert`, in single precision, the
/// value times the grams first, then divided by 100. Absent for a row that does not count.
std::optional<std::array<float, anzahlNaehrwerte>> zeilenwerte(const Mahlzeitzeile &zeile);

/// The rows of a meal or a day that count, in their order, as the plan's functions take them. They
/// point into the record.
std::vector<Planzeile> planzeilen(const Mahlzeit &mahlzeit);
std::vector<Planzeile> planzeilen(const Tag &tag);

/// How many rows count nothing though they are meant to: their food is unknown, or their amount was
/// not understood. Alternatives are none of them.
int unverstandene(const Mahlzeit &mahlzeit);
int unverstandene(const Tag &tag);

/// Whether anything on this day counts.
bool istErfasst(const Tag &tag);

/// What a day comes to, or the mean of days.
struct Tagesrechnung
{
    std::vector<Plansummen> mahlzeiten; ///< meal by meal; of the mean what falls on one day
    Plansummen summen;
    Planauswertung auswertung;
    int tage = 0;         ///< how many days are in it; 0: nothing is
    int unverstanden = 0; ///< rows in it that are meant to count and don't
};

/// What it is measured against, in kcal per day, as the plan takes it; 0 while it is unknown.
struct Energiebedarf
{
    std::int32_t bedarf = 0;
    std::int32_t unbereinigt = 0;
};

/// A day. One that is not there, or on which nothing counts, is a `Tagesrechnung` of no days.
Tagesrechnung rechneTag(const Aufzeichnung &aufzeichnung, int tag, const Energiebedarf &bedarf);

/// The mean of the days that are to be in it. A day on which nothing counts was not recorded, and
/// is left out: it would make the client's days look leaner than they are. Each row comes in with
/// its grams divided by the number of days, and the ratings of all rows are counted.
Tagesrechnung rechneMittel(const Aufzeichnung &aufzeichnung, const Energiebedarf &bedarf);

/// The share of each meal in the energy, in percent; all 0 where there is none.
std::vector<double> energieanteile(const Tagesrechnung &rechnung);
