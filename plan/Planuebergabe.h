#pragma once

#include "Naehrwerte.h"

#include <QList>
#include <QStringList>

#include <array>
#include <cstdint>
#include <optional>

/// What a plan handed to its last print, row by row: whole numbers as they stand on paper, and the
/// ratings' texts, null where there is none.
struct Planuebergabe
{
    using Zahlen = QList<std::int32_t>;

    Zahlen kalorienuebergabe, proteinuebergabe, fettuebergabe, kohlenhydratuebergabe,
        ballaststoffuebergabe, cholesterinuebergabe, natriumuebergabe, kaliumuebergabe,
        calciumuebergabe, phosphoruebergabe, magnesiumuebergabe, eisenuebergabe, vitauebergabe,
        vitb1uebergabe, vitb2uebergabe, vitb6uebergabe, vitcuebergabe;
    QStringList uebergewichtuebergabe, diabetesuebergabe, gichtuebergabe, hkkuebergabe;

    /// The rows' names, grams and energies at the first print of the simple list; empty from the
    /// second on, absent before the first. Nothing reads them.
    std::optional<QStringList> plancopy;
    std::optional<QList<float>> mengencopy;
    std::optional<Zahlen> kaloriencopy;
};

/// The lists of the seventeen values, in the record's order.
inline constexpr std::array<Planuebergabe::Zahlen Planuebergabe::*, anzahlNaehrwerte>
    naehrwertuebergaben = {
        &Planuebergabe::kalorienuebergabe,     &Planuebergabe::proteinuebergabe,
        &Planuebergabe::fettuebergabe,         &Planuebergabe::kohlenhydratuebergabe,
        &Planuebergabe::ballaststoffuebergabe, &Planuebergabe::cholesterinuebergabe,
        &Planuebergabe::natriumuebergabe,      &Planuebergabe::kaliumuebergabe,
        &Planuebergabe::calciumuebergabe,      &Planuebergabe::phosphoruebergabe,
        &Planuebergabe::magnesiumuebergabe,    &Planuebergabe::eisenuebergabe,
        &Planuebergabe::vitauebergabe,         &Planuebergabe::vitb1uebergabe,
        &Planuebergabe::vitb2uebergabe,        &Planuebergabe::vitb6uebergabe,
        &Planuebergabe::vitcuebergabe,
};

/// The lists of the four ratings, in the record's order.
inline constexpr std::array<QStringList Planuebergabe::*, anzahlWertungen> wertungsuebergaben = {
    &Planuebergabe::uebergewichtuebergabe,
    &Planuebergabe::diabetesuebergabe,
    &Planuebergabe::gichtuebergabe,
    &Planuebergabe::hkkuebergabe,
};
