#pragma once

#include "Bezugswert.h"

#include <QList>

/// So many foods stand side by side.
inline constexpr qsizetype wenigsteVerglichene = 2;
inline constexpr qsizetype meisteVerglichene = 5;

/// A figure of one of the foods that are compared.
struct Vergleichszahl
{
    Bezugswert wert = {};
    bool besser = false;

    bool operator==(const Vergleichszahl &) const = default;
};

/// One figure of all foods that are compared, in their order.
struct Vergleichsreihe
{
    Kenngroesse groesse = Kenngroesse::kal;
    QList<Vergleichszahl> zahlen = {};

    bool operator==(const Vergleichsreihe &) const = default;
};

/// All figures of foods beside one another, in the order of the `Kenngroesse`. A figure is better
/// where more or less of it is (`richtung`), no other known one reaches it, and one falls short of
/// it. Figures that look the same on screen are equal: those that share the best are all better,
/// and none is where all are equal. A figure that is unknown is no worse than others; one that is
/// known in part is never better, but keeps those from it that it may surpass by what is known.
QList<Vergleichsreihe> vergleiche(const QList<Kandidat> &kandidaten, Bezug bezug,
                                  const Stoffwissen &wissen);
