#pragma once

#include "Datenmodul.h"

#include <QStringList>

/// Wherein one store of foods differs from another, by name, each list in the stores' order.
struct Bestandsunterschied
{
    QStringList fehlend;     ///< foods that only the first store holds
    QStringList zusaetzlich; ///< foods that only the second one holds
    QStringList anders;      ///< foods that both hold, with other values or ratings

    bool leer() const { return fehlend.isEmpty() && zusaetzlich.isEmpty() && anders.isEmpty(); }
};

/// Whether two records say the same, to the last bit: a value that is no number equals itself, and
/// an absent rating is not an empty one. The slot that nothing stores does not count.
bool gleich(const Datenmodul &eines, const Datenmodul &anderes);

/// Compares two stores of foods. Two that share their data are equal at once, however large.
Bestandsunterschied vergleiche(const Lebensmittelverzeichnis &erster,
                               const Lebensmittelverzeichnis &zweiter);
