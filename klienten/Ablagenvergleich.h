#pragma once

#include "Klientendaten.h"
#include "Vergleichszeile.h"

#include <cstdint>

/// A plan that is compared, and what it is measured against.
struct Ablagenseite
{
    Planablage ablage;
    std::int32_t energiebedarf = 0; ///< kcal per day; 0: not known
};

/// Rows that belong together, with what they are called.
struct Vergleichsabschnitt
{
    QString titel;
    QList<Vergleichszeile> zeilen;
};

/// Two kept plans side by side, each evaluated by what its foods were like when it was kept: sums
/// with their shares of a day's need, shares of the energy, ratings with points and judgement, and
/// the foods that are only in one of the two or in both with other amounts. A food without a record
/// counts nothing, and how many of these there are has a row of its own.
QList<Vergleichsabschnitt> ablagenVergleichen(const Ablagenseite &links,
                                              const Ablagenseite &rechts);
