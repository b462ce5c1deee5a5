#pragma once

#include "Csv.h"
#include "Datenmodul.h"

#include <QList>
#include <QStringList>

/// The foods as a table, per 100 g, in this order: the name under which each is kept, all values
/// with their units, the ratings. The headings are in the language of the windows, and
/// `deuteUeberschriften` understands them. Where a food is shown under another name than it is
/// kept, a second column has the shown ones.
Csv::Tabelle lebensmitteltabelle(const QList<Datenmodul> &lebensmittel);

/// The headings of all values, with their units, and of the ratings.
QStringList wertekoepfe();

/// All values of a food and its ratings, under those headings. `anteil`: how much of 100 g is
/// meant.
QList<Csv::Zelle> wertezellen(const Datenmodul &lebensmittel, float anteil);

/// A row of a meal plan as it goes out.
struct Plantabellenzeile
{
    QString name;
    float gramm = 0;
    const Datenmodul *lebensmittel = nullptr; ///< null for one that no table has
};

/// A plan as a table: the foods under their shown names, the grams, and the values for so much of
/// them. A food that no table has leaves its values empty.
Csv::Tabelle plantabelle(const QList<Plantabellenzeile> &posten);
