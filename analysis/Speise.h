#pragma once

#include "Stoffwissen.h"

#include <QList>
#include <QStringList>

#include <functional>
#include <optional>

/// A food and how much of it is eaten: a row of a plan, of a meal, or of the mean of days.
struct Speise
{
    QString schluessel; ///< the food's key in its store
    /// Absent: the food is in no store, and nothing is known of it.
    std::optional<Datenmodul> lebensmittel = {};
    double gramm = 0;
    int ort = -1; ///< where it stands among the rows that it was taken from; -1: nowhere
};

using Speisen = QList<Speise>;

/// What is eaten at one time of a day.
struct Speisenmahlzeit
{
    QString name; ///< as it is called on screen
    Speisen speisen;
};

/// What foods come to together.
struct Stoffsumme
{
    double wert = 0;        ///< of what is known, in the unit of the `Kenngroesse`
    double unbekannt = 0;   ///< the part of all grams of which it is not known, 0 to 1
    QStringList unbekannte; ///< the keys of these foods, each once, in the order of the rows

    bool operator==(const Stoffsumme &) const = default;
};

/// How much of something a row holds: what 100 g hold, times its grams. Grams below 0, and such
/// that are no number, count as 0.
Stoffangabe stoffangabe(const Speise &speise, Kenngroesse groesse, const Stoffwissen &wissen);

/// All of them together, in double precision. A food without a figure adds nothing, but counts as
/// unknown.
Stoffsumme summiere(const Speisen &speisen, Kenngroesse groesse, const Stoffwissen &wissen);

/// The same of what is told of each row by a rule. Rows without grams are not asked for.
Stoffsumme summiere(const Speisen &speisen,
                    const std::function<Stoffangabe(const Speise &)> &angabeVon);

/// The grams that count of a row: none below 0, and none of what is no number.
double zaehlendeGramm(const Speise &speise);
