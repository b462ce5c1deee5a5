#pragma once

#include "Bestaende.h"

#include <QStringList>

/// The food that a name stands for.
struct Lebensmittelwahl
{
    const Datenmodul *lebensmittel = nullptr; ///< null: none has this name
    QString schluessel;                       ///< its key in its store
    bool eigenes = false;                     ///< it is an own one
    bool auchEigenes = false;                 ///< it is built in, and an own one has that name too
    /// Several foods of one store have this name but for upper and lower case; then none is chosen.
    QStringList mehrdeutig;
};

/// Looks for a food by its whole name: as it is typed, then without regard to upper and lower case.
/// A built-in food, which the plan takes first too, comes before an own one, and is found by its
/// German and its English name. With `nurEigene` only own foods are looked at. What is chosen lives
/// as long as `bestaende`.
Lebensmittelwahl waehleLebensmittel(const Bestaende &bestaende, const QString &name,
                                    bool nurEigene);

/// Up to five names, as the user reads them, that contain what was typed, or else the longest
/// beginning of it that any name contains. Own foods come first.
QStringList aehnlicheNamen(const Bestaende &bestaende, const QString &name);
