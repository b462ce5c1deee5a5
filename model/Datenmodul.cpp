#include "Datenmodul.h"

#include <algorithm>
#include <cmath>

bool gleicherInhalt(const Datenmodul &eines, const Datenmodul &anderes)
{
    const auto gleich = [](float a, float b) {
        return a == b || (std::isnan(a) && std::isnan(b));
    };
    return std::all_of(naehrwerte.begin(), naehrwerte.end(),
                       [&](const Naehrwertbeschreibung &zeile) {
                           return gleich(eines.wert(zeile.wert), anderes.wert(zeile.wert));
                       }) &&
           std::all_of(wertungen.begin(), wertungen.end(), [&](const Wertungsbeschreibung &zeile) {
               return eines.wertung(zeile.wertung) == anderes.wertung(zeile.wertung);
           });
}
