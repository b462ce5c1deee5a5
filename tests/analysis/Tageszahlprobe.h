#pragma once

#include "Tageszahlen.h"

#include <algorithm>

/// What the tests of the figures of a day share.
namespace Tageszahlprobe {

/// The figure of that kind; of bread units those of the whole day.
inline const Tageszahl &zahl(const QList<Tageszahl> &zahlen, Tagesgroesse groesse)
{
    static const Tageszahl keine;
    const auto gefunden = std::ranges::find(zahlen, groesse, &Tageszahl::groesse);
    return gefunden != zahlen.end() ? *gefunden : keine;
}

/// The verdicts on a figure, limit by limit.
inline QList<Grenzurteil> urteile(const Tageszahl &zahl)
{
    QList<Grenzurteil> liste;
    for (const Grenzvergleich &eine : zahl.grenzen) {
        liste << eine.urteil;
    }
    return liste;
}

} // namespace Tageszahlprobe
