#pragma once

#include "Aufzeichnung.h"

#include <functional>

/// A row of a plan: a food and how much of it.
struct Planmenge
{
    QString schluessel;
    float gramm = 0;
    /// What the food was like when the plan was kept; absent in the plan on the desk.
    std::optional<Datenmodul> eintrag = {};
};

/// A plan that was kept, to choose from.
struct Vorratsplan
{
    QString titel;
    QDate datum; ///< null: not known
    QList<Planmenge> posten;
};

/// The record that a food has today, by its key; null when it is in no store.
using Speisenachschlag = std::function<const Datenmodul *(const QString &schluessel)>;

/// A day as a plan.
struct Tagesplan
{
    /// Each food once, where the day has it first, with all that is eaten of it.
    QList<Planmenge> posten;
    QStringList zusammengezaehlt; ///< keys of the foods that stand in several rows of the day
    /// What is not in the plan, by name as on screen: alternatives, rows that are not understood,
    /// and foods that no store has any more. Each row counts.
    QStringList ausgelassen;
};

/// The plan that a day comes to. A plan has each food once and knows no alternatives.
Tagesplan alsPlan(const Tag &tag, const Speisenachschlag &heute);

/// The rows of a plan as rows of a meal, with their grams as the amount. Foods come as they are
/// today; one that no store has any more comes as it was when the plan was kept.
QList<Mahlzeitzeile> alsZeilen(const QList<Planmenge> &posten, const Speisenachschlag &heute);
