#pragma once

#include "Tabellenzeile.h"

#include <QHash>
#include <QString>

#include <array>
#include <optional>

/// What is known of a built-in food beside its record, per 100 g. A figure that is absent was not
/// published.
struct Zusatzwerte
{
    const Lebensmittelgruppe *gruppe = nullptr; ///< never null in what was read
    std::optional<double> zucker = {};          ///< sugars, g
    std::optional<double> gesaettigt = {};      ///< saturated fat, g
    std::optional<double> alkohol = {};         ///< g
    std::optional<double> wasser = {};          ///< g
    std::optional<double> dichte = {};          ///< g per ml
    std::optional<double> harnsaeure = {};      ///< mg of uric acid that the purines give
    /// How rich in purines it is by its kind; only where `harnsaeure` is absent.
    std::optional<Purinklasse> purinklasse = {};
    /// Grams ready to eat that 100 g give: more than 100 for what is cooked in water or dissolved.
    double verzehrfertig = 100;
    /// Marks of the food itself, beside those of its group.
    Merkmale merkmale = {};
    Zuckerart zuckerart = Zuckerart::Ueblich;
    /// Which of the record's values the source does not give: they read 0 there without being it.
    std::array<bool, anzahlNaehrwerte> unbestimmt = {};

    bool operator==(const Zusatzwerte &) const = default;
};

/// The further values by the foods' keys, their German names.
using Zusatztabelle = QHash<QString, Zusatzwerte>;
