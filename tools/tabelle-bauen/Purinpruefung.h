#pragma once

#include "Tabellenzeile.h"

#include <QByteArrayView>
#include <QHash>

/// What was published about the purines of one food: the span of the figures, in mg of uric acid
/// that 100 g give, and who published them.
struct Purineintrag
{
    double niedrig = 0;
    double hoch = 0;
    QStringList schluessel; ///< keys of the publications

    double mitte() const { return (niedrig + hoch) / 2; }
};

/// The published foods by their names.
using Purintabelle = QHash<QString, Purineintrag>;

/// Checks that every purine figure of the food table follows from published ones.
namespace Purinpruefung {

struct Ergebnis
{
    Purintabelle purine;
    Beanstandungen beanstandungen;
};

/// The columns of the file of the published figures.
QStringList spalten();

/// Reads the published figures. Every publication must be one that the rating rules know.
Ergebnis lesen(QByteArrayView bytes);

/// A part of what 100 g of a food hold.
struct Teil
{
    double gramm = 100;
    Purineintrag eintrag;
};

/// What a food's purines come from.
struct Herkunft
{
    QList<Teil> teile;
    QStringList fehler; ///< parts that can't be read, in words
};

/// Takes "40 Linsen, getrocknet + Zwiebel" apart; a food without grams stands for 100 g of it.
Herkunft herkunft(const QString &text, const Purintabelle &purine);

/// The middle of the published spans, added up by weight and rounded to one decimal, halves up.
double harnsaeure(const QList<Teil> &teile);

/// The keys of all parts in the order in which they first appear, parted by blanks.
QString schluessel(const QList<Teil> &teile);

/// What one food's columns about purines say must follow from one another.
Beanstandungen pruefen(const Tabellenzeile &zeile, const Purintabelle &purine);

} // namespace Purinpruefung
