#pragma once

#include "Datenmodul.h"

/// The foods that the helper saves, and that the test looks for: some hundreds, the first of which
/// carries the number of the save.
inline Lebensmittelverzeichnis gesicherteLebensmittel(int nummer)
{
    Lebensmittelverzeichnis alle;
    for (int i = 0; i < 300; ++i) {
        Datenmodul &eines = alle[QStringLiteral("Eigenes Lebensmittel %1").arg(i)];
        eines.setName(QStringLiteral("Eigenes Lebensmittel %1").arg(i));
        eines.setkal(static_cast<float>(i == 0 ? nummer : i));
        eines.setuebergewicht(QStringLiteral("+"));
    }
    return alle;
}
