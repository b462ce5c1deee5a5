#pragma once

#include "Referenzdatei.h"
#include "Zielbereich.h"

#include <array>

/// Why there is no value, in the order in which it is looked for.
enum class Referenzmangel {
    Keiner,
    NichtFestgelegt, ///< the set gives none, and says so
    AlterFehlt,
    AlterAusserhalb, ///< the set has none for this age
    GeschlechtFehlt,
    ZustandOhneWert, ///< the set has none for pregnancy or lactation, or not for this age in it
    TrimesterFehlt,
    StillmonatFehlt,
    StillmonatAusserhalb, ///< the set has none for this month of lactation
    MenopauseFehlt,
    PalFehlt,
    PalAusserhalb, ///< the set prints none for an activity near to this one
    GewichtFehlt,
    EnergieFehlt, ///< a share of the energy, and the energy is lacking
};

/// What a set says about the day's amount of one nutrient.
struct Referenzwert
{
    Naehrwert wert = Naehrwert::kal;
    /// One of the first four; absent: see `mangel`.
    std::optional<Referenzart> art = {};
    Referenzmangel mangel = Referenzmangel::Keiner;
    std::optional<double> unten = {}; ///< in the unit of the nutrient
    std::optional<double> oben = {};  ///< the same unless it is a range; absent: more than `unten`

    /// As what it was printed, and the figures there; known for a share of the energy even where
    /// the energy is lacking.
    Referenzeinheit einheit = Referenzeinheit::Keine;
    std::optional<double> gedrucktUnten = {};
    std::optional<double> gedrucktOben = {};
    Referenzvorbehalt vorbehalt = Referenzvorbehalt::Keiner;
    QStringList quellen = {};
    QStringList notizenDe = {}; ///< what the set remarks, in German and, in the same order, English
    QStringList notizenEn = {};

    std::optional<double> zuschlag = {};     ///< the part of it that pregnancy or lactation adds
    std::optional<double> gewicht = {};      ///< kg that it was worked out for
    std::optional<double> energie = {};      ///< kcal that it was worked out for
    bool eigeneEnergie = false;              ///< these are the person's own, not the set's
    std::optional<double> pal = {};          ///< the activity that it is printed for
    bool palGenaehert = false;               ///< which is near to the person's, but not the same
    std::optional<double> zuschlagspal = {}; ///< the same of the addition, where it is another
    /// It is that of a woman who is not pregnant: the set has one of pregnancy from a later month
    /// on.
    bool wieNichtSchwanger = false;

    /// `Obergrenze` or `SichereZufuhr`; `KeineObergrenze` where the set says that it has none;
    /// absent: it says nothing about it.
    std::optional<Referenzart> grenzart = {};
    std::optional<double> grenze = {}; ///< in the unit of the nutrient
    Referenzvorbehalt grenzvorbehalt = Referenzvorbehalt::Keiner;
    QStringList grenzquellen = {};

    /// Whether an amount of the food table may be measured against `grenze`: it is an upper level,
    /// and of all that the table counts.
    bool grenzeGiltFuerTabelle() const
    {
        return grenze && grenzart == Referenzart::Obergrenze &&
               grenzvorbehalt == Referenzvorbehalt::Keiner;
    }

    bool operator==(const Referenzwert &) const = default;
};

/// What a set says about a person's day. Empty: the general needs count.
struct Referenzwerte
{
    std::optional<Referenzsatz> satz = {};
    Referenzperson person = {};
    std::array<Referenzwert, anzahlNaehrwerte> werte = {}; ///< in the order of `Naehrwert`

    bool istLeer() const { return !satz; }
    const Referenzwert &wert(Naehrwert welcher) const { return werte[stelle(welcher)]; }
};

/// By what energy printed in MJ became kcal in the table, and comes to mg for each MJ.
inline constexpr double kcalJeMegajoule = 238.83;

/// All that a set says about a day of this person. Each value that it lacks has its reason.
Referenzwerte referenzwerte(const Referenzzeilen &zeilen, Referenzsatz satz,
                            const Referenzperson &person);

/// What a day should hold by the set, for what the set has a value of.
Zielbereiche zielbereiche(const Referenzwerte &werte);
