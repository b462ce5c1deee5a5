#include "Vergleich.h"

#include <algorithm>
#include <cmath>

namespace {

/// The number as it looks on screen; one that would look like 0 is told by more digits there.
double wieGezeigt(double wert, int stellen)
{
    const double stufe = std::pow(10, stellen);
    const double gerundet = std::round(wert * stufe) / stufe;
    return gerundet == 0 ? wert : gerundet;
}

void merkeBessere(Vergleichsreihe &zeile)
{
    const Richtung wohin = richtung(zeile.groesse);
    if (wohin == Richtung::Keine) {
        return;
    }
    // More of it is better, or less of it: either way the larger of these numbers.
    const auto guete = [&zeile, wohin](const Vergleichszahl &eine) {
        const double zahl = wieGezeigt(eine.wert.wert, beschreibung(zeile.groesse).stellen);
        return wohin == Richtung::MehrIstBesser ? zahl : -zahl;
    };
    QList<double> gueten;
    for (const Vergleichszahl &eine : std::as_const(zeile.zahlen)) {
        if (eine.wert.hatZahl()) {
            gueten << guete(eine);
        }
    }
    if (gueten.isEmpty()) {
        return;
    }
    const auto [schlechteste, beste] = std::ranges::minmax(gueten);
    for (Vergleichszahl &eine : zeile.zahlen) {
        eine.besser = eine.wert.stand == Bezugswert::Stand::Bekannt && beste > schlechteste &&
                      guete(eine) == beste;
    }
}

} // namespace

QList<Vergleichsreihe> vergleiche(const QList<Kandidat> &kandidaten, Bezug bezug,
                                  const Stoffwissen &wissen)
{
    QList<Vergleichsreihe> zeilen;
    for (const Kenngroessenbeschreibung &eine : kenngroessen) {
        Vergleichsreihe zeile = {.groesse = eine.groesse};
        for (const Kandidat &einer : kandidaten) {
            zeile.zahlen.append({.wert = bezugswert(einer, eine.groesse, bezug, wissen)});
        }
        merkeBessere(zeile);
        zeilen << zeile;
    }
    return zeilen;
}
