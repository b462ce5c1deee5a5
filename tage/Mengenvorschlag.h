#pragma once

#include "Mengenangabe.h"

/// What an amount may become while it is typed.
struct Mengenvorschlag
{
    QString anzeige; ///< with what it weighs: "2 Scheiben (100 g)"
    QString angabe;  ///< how the row keeps it: "2 Scheiben"

    bool operator==(const Mengenvorschlag &) const = default;
};

/// What a beginning of an amount may mean, the nearest first: as it was typed, where that is
/// understood, and then the count with each measure of the food that begins so. Nothing typed asks
/// for one of each measure. More than 2 kg of a measure is no suggestion: 150 is meant in grams,
/// and not in slices.
QList<Mengenvorschlag> mengenvorschlaege(const QString &text, const QList<Mass> &masse,
                                         Regelsprache sprache);

/// How a row keeps what was typed as an amount: neatly, as long as that says the same to the last
/// digit ("½ Tasse" for "1/2 tasse", "150 g" for "150"). What is not understood stays as it was
/// typed.
QString behalteneAngabe(const QString &text, const QList<Mass> &masse, Regelsprache sprache);
