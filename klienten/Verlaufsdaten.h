#pragma once

#include "Messreihe.h"

/// What the picture of a course shows: how one measure went, and where it should lie.
struct Verlaufsdaten
{
    Messgroesse was = Messgroesse::Gewicht;
    QList<Messpunkt> punkte; ///< in the order of their days
    std::optional<Zielband> band;
    QDate bandAb;                     ///< the band holds from this day on; null: always
    std::optional<Bandmangel> mangel; ///< why there is no band

    bool operator==(const Verlaufsdaten &) const = default;
};

/// Gathers it from what is kept of a person. Who has grown up since the last measure has no band
/// yet: it would say nothing of what was measured.
Verlaufsdaten verlaufsdaten(const Person &person, const QList<Besuch> &besuche, Messgroesse was,
                            const QDate &heute);

/// The course in sentences of the user's language: how many measures there are, the first and the
/// last one, how much lies between them, and where the last one lies or why there is no band.
QString verlaufInWorten(const Verlaufsdaten &daten);

/// The band as its name and its limits, as in "Zielbereich 18,5–25", or why there is none.
QString bandInWorten(const Verlaufsdaten &daten);
