#pragma once

#include "Stoffwissen.h"

#include <optional>

/// For how much of a food a figure is told.
enum class Bezug { Je100g, Je100kcal, JePortion };

/// A food that is ranked among others, or compared with them.
struct Kandidat
{
    QString schluessel; ///< the food's key in its store
    Datenmodul satz;
    bool eigen = false; ///< one of the user's own foods, which have no group
    /// Grams of a usual portion. Absent, not over 0 or no number: it has none.
    std::optional<double> portion = {};
};

/// How much of something a food holds, or why there is no figure.
struct Bezugswert
{
    enum class Stand {
        Bekannt,
        Mindestens,  ///< of a dish of which a part is unknown: it may be more
        OhneAngabe,  ///< nobody knows it
        OhnePortion, ///< it is known, but not how much a portion is
    };
    Stand stand = Stand::OhneAngabe;
    double wert = 0; ///< in the unit of the `Kenngroesse`; 0 where there is no figure

    bool hatZahl() const { return stand == Stand::Bekannt || stand == Stand::Mindestens; }
    bool operator==(const Bezugswert &) const = default;
};

/// What 100 g, 100 kcal or a portion of a food hold, to six digits that count. 100 kcal of a food
/// without energy do not exist, nor do those of one whose energy is known in part only: there is no
/// figure.
Bezugswert bezugswert(const Kandidat &kandidat, Kenngroesse groesse, Bezug bezug,
                      const Stoffwissen &wissen);

/// A number to six digits that count. Records hold single precision, in which 0.1 g are a little
/// more than that; so they are 0.1 g to whoever asks for at most 0.1 g, and equal amounts are equal
/// however they were worked out. What is no number stays so.
double sechsstellig(double zahl);

/// Which of two foods is the better one by a figure alone.
enum class Richtung {
    Keine, ///< neither: it depends on who eats it
    MehrIstBesser,
    WenigerIstBesser,
};

Richtung richtung(Kenngroesse groesse);
