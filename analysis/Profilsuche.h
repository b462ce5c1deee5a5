#pragma once

#include "Datenmodul.h"

#include <QString>
#include <QStringList>

#include <array>
#include <optional>

/// A value per 100 g that is to be above (">"), below ("<") or equal to ("=") a number. All three
/// compare exactly, in single precision. Any other operator is met by no food.
struct Zahlkriterium
{
    QString vergleich;
    float zahl = 0;
};

/// What a food must be like. A criterion that is absent is met by every food.
struct Profil
{
    std::optional<Zahlkriterium> protein;
    std::optional<Zahlkriterium> energie; ///< kcal
    /// The wanted text of each rating: "+", "0" or "-". Any other text is met by no food, not even
    /// by one that is rated with that very text.
    std::array<std::optional<QString>, anzahlWertungen> wertungen;
};

/// A store of foods with the order in which it is shown.
struct Suchbestand
{
    const Lebensmittelverzeichnis &lebensmittel;
    const QStringList &reihenfolge;
};

/// Whether a food meets all six criteria.
bool erfuellt(const Datenmodul &lebensmittel, const Profil &profil);

/// The keys of all foods that meet the profile: own foods first, each store in its order, nothing
/// sorted. A listed name without a record is looked at like a fresh record: all values 0, no
/// rating.
QStringList profilSuchen(const Suchbestand &eigene, const Suchbestand &eingebaute,
                         const Profil &profil);
