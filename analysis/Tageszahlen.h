#pragma once

#include "Grenzwerte.h"
#include "Speise.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// How a figure stands to a limit.
enum class Grenzurteil {
    Keines,   ///< it is not measured against it
    Gehalten, ///< whatever the unknown foods hold
    Verfehlt, ///< whatever the unknown foods hold
    Offen,    ///< it hangs on what is unknown
};

/// A limit beside a figure.
struct Grenzvergleich
{
    const Grenzwert *grenze = nullptr; ///< never null
    Grenzurteil urteil = Grenzurteil::Keines;

    bool operator==(const Grenzvergleich &) const = default;
};

/// One figure of a day.
struct Tageszahl
{
    Tagesgroesse groesse = Tagesgroesse::Purine;
    QString mahlzeit = {}; ///< of which meal it is told; absent: of the whole
    /// Of what is known, in the unit of the `Tagesgroesse`. Absent: nothing is known, or, of a part
    /// of the energy, there is no energy.
    std::optional<double> wert = {};
    /// Between these lies the true figure; absent: nobody knows.
    std::optional<double> mindestens = {};
    std::optional<double> hoechstens = {};
    double unbekannt = 0;        ///< the part of all grams of which it is not known, 0 to 1
    QStringList unbekannte = {}; ///< the keys of these foods
    QList<Grenzvergleich> grenzen = {};
    Grenzmangel mangel = Grenzmangel::Keiner; ///< why there is no limit
};

/// Of what and of whom the figures are told.
struct Tagesangaben
{
    Speisen speisen = {};
    QList<Speisenmahlzeit> mahlzeiten = {}; ///< the same by meals; empty where there are none
    /// False: it is only a part of what is eaten in a day, and not measured against a day's limits.
    bool ganzerTag = true;
    Referenzperson person = {};
    bool gicht = false; ///< only with gout the purines are measured against their limits
};

/// The figures of a day in the order of `Tagesgroesse`; those of the meals stand behind the bread
/// units of the day. A food without a figure is unknown, never 0.
///
/// - A food is a drink when its group says so. Of an own food nobody knows whether it is one.
/// - A gram of water is a milliliter. Water that is poured on what is dry is not known of.
/// - The purines of a food that has a class instead of a figure are unknown, but not without end:
///   a low class holds up to 50 mg in 100 g ready to eat, a moderate one up to 150 mg.
/// - Free sugars are all sugars of a food beyond what its group holds by nature: an estimate.
/// - A week is seven such days.
QList<Tageszahl> tageszahlen(const Tagesangaben &angaben, const Stoffwissen &wissen);
