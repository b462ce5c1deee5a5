#pragma once

#include "Datenmodul.h"

constexpr int anzahlGesicherte = 100;

/// The foods that the helper saves, and that the test looks for: a file of many blocks, of which
/// the first food carries the number of the save.
inline Lebensmittelverzeichnis gesicherteLebensmittel(int nummer)
{
    Lebensmittelverzeichnis alle;
    for (int i = 0; i < anzahlGesicherte; ++i) {
        Datenmodul &eines = alle[QStringLiteral("Eigenes Lebensmittel %1").arg(i)];
        eines.setName(QStringLiteral("Eigenes Lebensmittel %1").arg(i));
        eines.setkal(static_cast<float>(i == 0 ? nummer : i));
        eines.setuebergewicht(QStringLiteral("+"));
    }
    return alle;
}
