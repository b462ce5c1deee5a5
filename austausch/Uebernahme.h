#pragma once

#include "Lebensmittelbestand.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

/// What becomes of a food that comes in when an own food has its name already, and other values.
enum class Namensgleich {
    Ersetzen,      ///< it takes the place of the own food
    Ueberspringen, ///< it stays out
    NeuerName      ///< both are kept, the one that comes in under a name that nobody has
};

/// The choice for all foods whose name is taken, and those for single ones, by name.
struct Namenswahl
{
    Namensgleich sonst = Namensgleich::Ueberspringen;
    QHash<QString, Namensgleich> einzeln = {};

    Namensgleich fuer(const QString &name) const { return einzeln.value(name, sonst); }
};

/// The own foods after others have come in, and what became of these.
struct Uebernahme
{
    Lebensmittelbestand bestand;
    QStringList neu;           ///< added, under these names; those of `umbenannt` are among them
    QStringList umbenannt;     ///< of those the ones that came under another name
    QStringList ersetzt;       ///< own foods that have other values now
    QStringList uebersprungen; ///< stayed out because their name is taken
    QStringList gleich;        ///< were there already, with the same values and ratings

    /// Foods that came in.
    qsizetype anzahl() const { return neu.size() + ersetzt.size(); }
};

/// Takes foods over into the own foods, each under its name. New names stand at the end in the
/// order in which they came; a food that is replaced keeps its place. One that is there already,
/// the same to the last bit, is no clash and changes nothing. Where a name stands twice among those
/// that come in, the second meets the first as if that had been there.
Uebernahme uebernimm(const Lebensmittelbestand &eigene, const QList<Datenmodul> &neue,
                     const Namenswahl &wahl);

/// The names of those that come in which an own food has with other values or ratings: those about
/// which a choice has to be made.
QStringList vergebeneNamen(const Lebensmittelverzeichnis &eigene, const QList<Datenmodul> &neue);
