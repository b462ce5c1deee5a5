#pragma once

#include "Rezept.h"
#include "Wertungsregeln.h"

#include <QLocale>

/// A dish as the rating rules see it, worked out from its ingredients, and how well it is known.
///
/// It is held against the rules as a food of its group, ready to eat as it is; that is where
/// seasonings, drinks and the like get their own rules from. Sugars go by the parts: what is an
/// ingredient's own sugar by its food group, and what has no fructose, stays so in the dish. The
/// purines of an ingredient of which only the class is published count as the rules have it for a
/// food of that class.
struct Gerichtsgroessen
{
    Wertungsgroessen groessen = {}; ///< of what is known
    /// The part of the ingredients' grams of which a figure is unknown, 0 to 1.
    std::array<double, anzahlGroessen> unbekannt = {};
    /// Which figures would be higher, and which lower, if the unknown held some.
    std::array<bool, anzahlGroessen> kannMehr = {};
    std::array<bool, anzahlGroessen> kannWeniger = {};
    Merkmale offen = {}; ///< marks that the dish might not have if all were known
};

/// The most uric acid from other foods than plants, in mg per 100 g, of a dish rich in purines that
/// counts as one of plants. Mahlberg's own: up to there a food is low in purines by rule G4.
inline constexpr double meisteAnderePurine = 50;

/// Works out what the rules ask for. Dishes among the ingredients are taken from `andere`, and
/// `wissen` must know them by `Stoffwissen::setzeRezepte`. The recipe must be one that can be
/// reckoned.
Gerichtsgroessen gerichtsgroessen(const Rezept &rezept, const Stoffwissen &wissen,
                                  const Rezepte &andere = {});

/// The group of a dish for which nobody chose one: that of dishes with meat or fish when one of its
/// ingredients is such, or a dish of such, else that of dishes without.
const Lebensmittelgruppe &gruppenvorschlag(const Rezept &rezept, const Stoffwissen &wissen,
                                           const Rezepte &andere = {});

/// The group by whose rules the dish is rated: the one that was chosen, or else the proposed one.
const Lebensmittelgruppe &gruppeVon(const Rezept &rezept, const Stoffwissen &wissen,
                                    const Rezepte &andere = {});

/// What the rules say of a dish for one condition.
struct Wertungsvorschlag
{
    QString urteil; ///< "+", "0" or "-"
    /// The figures of which so much is unknown that the rating could be another one, in the order
    /// of the enumeration. Empty: whatever the unknown holds, it would be the same.
    QList<Groesse> ungewiss;

    bool istUnsicher() const { return !ungewiss.isEmpty(); }
    bool operator==(const Wertungsvorschlag &) const = default;
};
Wertungsvorschlag wertungsvorschlag(Wertung wertung, const Gerichtsgroessen &gericht);

/// Why that is proposed, in the lines of `Wertungserklaerung`; what makes it uncertain comes last.
QStringList begruendung(Wertung wertung, const Gerichtsgroessen &gericht, Regelsprache sprache,
                        const QLocale &zahlen);

/// The record of a dish as its recipe gives it: the ratings that were not set by hand are the
/// proposed ones. Absent when it can't be reckoned.
std::optional<Datenmodul> gerichtssatz(const Rezept &rezept, const Stoffwissen &wissen,
                                       const Rezepte &andere = {});
