#pragma once

#include "Datenmodul.h"
#include "Datenordner.h"

#include <QHash>
#include <QString>

/// The doors through which the commands reach what the program ships with. They only read.
struct Befehlstueren
{
    QString eingebauteTabelle; ///< path of the built-in food table, a file or a resource
    QString englischeNamen;    ///< path of the built-in foods' English names, likewise
    QString namenswechsel;     ///< path of the names that built-in foods once had, likewise
};

/// The foods that a command knows.
struct Bestaende
{
    Lebensmittelverzeichnis eingebaute;
    Lebensmittelverzeichnis eigene;
    QHash<QString, QString> englisch; ///< from a built-in food's key to its English name
    /// Why the own foods could not be read, in a sentence in the language of the windows; null when
    /// they were, or when there are none.
    QString eigeneUngelesen;
};

/// Reads the foods, the user's own from this data folder. What is missing or can't be read stays
/// empty.
Bestaende ladeBestaende(const Befehlstueren &tueren, const Datenordner &datenordner);
