#pragma once

#include "Bezugswert.h"
#include "Wertungswunsch.h"

#include <QList>
#include <QLocale>

#include <array>
#include <optional>

/// Between what a figure of a food is to lie. Both ends belong to it, and either may be missing;
/// without both, and where they are no numbers, nothing is limited.
struct Wertebereich
{
    Kenngroesse groesse = Kenngroesse::kal;
    Bezug bezug = Bezug::Je100g;
    std::optional<double> von = {}; ///< in the unit of the `Kenngroesse`
    std::optional<double> bis = {};

    bool operator==(const Wertebereich &) const = default;
};

/// By what foods are ranked, and which of them.
struct Rangfrage
{
    Kenngroesse groesse = Kenngroesse::kal;
    Bezug bezug = Bezug::Je100g;
    bool absteigend = true; ///< the largest figure comes first
    bool nurEigene = false; ///< nothing but the user's own foods, whatever `gruppe` says
    const Lebensmittelgruppe *gruppe = nullptr; ///< null: foods of all groups, and own ones
    std::array<Wertungswunsch, anzahlWertungen> wertungen = {};
    QList<Wertebereich> bereiche = {}; ///< all of them are kept

    bool operator==(const Rangfrage &) const = default;
};

/// A food with its rank.
struct Rangplatz
{
    qsizetype stelle = 0; ///< of the food in the list that was ranked
    int rang = 1;         ///< equal figures have the same; the next rank is then left out
    Bezugswert wert = {};

    bool operator==(const Rangplatz &) const = default;
};

/// Foods by a figure. Those that would belong there, but have no figure by which they could be
/// ranked or of which a range asks, are listed apart, each once: they are not foods that hold
/// nothing of it.
struct Rangliste
{
    QList<Rangplatz> plaetze;
    QList<qsizetype> ohneAngabe;  ///< places in the list; nobody knows a figure that is asked for
    QList<qsizetype> ohnePortion; ///< the figures are known, but not how much a portion is

    bool operator==(const Rangliste &) const = default;
};

/// Ranks foods. Foods with equal figures stay in the order of the list, see `nachNamen`; a dish
/// whose figure is known in part is ranked by what is known. It is within a range only where it
/// would be with any more of it, too. The placeholder "-" is no food and stands nowhere.
Rangliste rangliste(const QList<Kandidat> &kandidaten, const Rangfrage &frage,
                    const Stoffwissen &wissen);

/// The foods in the order of their names as the user reads them, see `sortiertNachUebersetzung`.
/// Of two with the same name the own one comes first.
QList<Kandidat> nachNamen(QList<Kandidat> kandidaten, const QLocale &locale = QLocale());
