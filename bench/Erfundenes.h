#pragma once

#include "Datenmodul.h"

/// A food for measuring, of this name; its values follow from the number.
inline Datenmodul erfundenesLebensmittel(const QString &name, int nummer)
{
    Datenmodul eines;
    eines.setName(name);
    for (const auto &zeile : naehrwerte) {
        eines.setWert(zeile.wert, static_cast<float>((nummer + 3) % 40) * 1.5F);
    }
    for (const auto &zeile : wertungen) {
        eines.setWertung(zeile.wertung, QStringLiteral("+"));
    }
    return eines;
}
