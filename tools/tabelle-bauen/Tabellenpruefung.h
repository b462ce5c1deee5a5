#pragma once

#include "Purinpruefung.h"
#include "Quellenvergleich.h"
#include "Tabellendatei.h"

/// The checks that keep the food table trustworthy. Each returns what it objects to; an empty list
/// means that all is well.
namespace Tabellenpruefung {

/// What was published, which the table is compared with.
struct Vergleichswerte
{
    Quellwerte quelle;
    Purintabelle purine;
};

/// Whether the lines must bear their seals: not while they are about to be sealed.
enum class Siegelpflicht { Ja, Nein };

/// Energy worked out with the factors of Regulation (EU) No 1169/2011, in kcal per 100 g.
double energieAusNaehrstoffen(const Tabellenzeile &zeile);

/// One food by itself: its names, its figures, its purines, its marks.
Beanstandungen zeilePruefen(const Tabellenzeile &zeile, const Vergleichswerte &vergleich);

/// What only shows across lines: names that are alike, and entries that name the same food.
Beanstandungen zusammenhangPruefen(const Tabelle &tabelle);

/// Both of them, over the whole table.
Beanstandungen pruefen(const Tabelle &tabelle, const Vergleichswerte &vergleich);

/// All that the build asks of a file: that it can be read, then that its foods are in order and
/// sealed. What can't be read is said by itself, since every other check would only repeat it.
Tabellendatei::Ergebnis dateiPruefen(QByteArrayView bytes, const Vergleichswerte &vergleich,
                                     Siegelpflicht siegelpflicht = Siegelpflicht::Ja);

} // namespace Tabellenpruefung
