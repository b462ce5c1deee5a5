#pragma once

#include "Speise.h"

#include <QList>

/// What one food adds to all that is eaten.
struct Beitrag
{
    QString schluessel;
    double gramm = 0;   ///< of all its rows
    Stoffangabe angabe; ///< what they hold together, and the part of its grams that is unknown
    double anteil = 0;  ///< in what is known of all foods, 0 to 1; 0 where they hold none
    QList<int> orte;    ///< of its rows, see `Speise::ort`

    bool operator==(const Beitrag &) const = default;
};

/// Which foods give how much of something.
struct Beitraege
{
    Stoffsumme summe;
    /// The foods of which at least a part is known, those that give most first; of equal ones the
    /// one that stands first among the rows.
    QList<Beitrag> bekannte;
    QList<Beitrag> unbekannte; ///< those of which nothing is known, in the order of the rows
};

/// Tells where it comes from. A food that stands in several rows is one. Rows without grams give
/// nothing and are left out.
Beitraege beitraege(const Speisen &speisen, Kenngroesse groesse, const Stoffwissen &wissen);

/// A food that does not suit somebody with one of the four conditions.
struct Ungeeignetes
{
    QString schluessel;
    double gramm = 0;     ///< of all its rows
    double anteil = 0;    ///< in the grams of all foods, 0 to 1
    QList<int> orte = {}; ///< of its rows

    bool operator==(const Ungeeignetes &) const = default;
};

/// The foods that are rated "-" for a condition, those of most grams first. A row whose food is in
/// no store has no rating and is none of them.
QList<Ungeeignetes> ungeeignete(const Speisen &speisen, Wertung wertung);

/// The rows without such a rating: nobody knows whether they suit. The sum's value is 0.
Stoffsumme unbewertete(const Speisen &speisen, Wertung wertung);
