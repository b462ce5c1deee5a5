#pragma once

#include "Naehrwerte.h"

#include <QString>

#include <array>
#include <cstddef>
#include <optional>

/// What can be asked of a food or of all that is eaten: the seventeen values of the record in their
/// order, then what the further table holds, and what is counted from these. All of them add up.
enum class Kenngroesse {
#define MAHLBERG_AUFZAEHLEN(name) name,
    MAHLBERG_NAEHRWERTE(MAHLBERG_AUFZAEHLEN)
#undef MAHLBERG_AUFZAEHLEN
        zucker,    ///< sugars, g
    gesaettigt,    ///< saturated fat, g
    alkohol,       ///< g
    wasser,        ///< what the food holds of it, g
    harnsaeure,    ///< uric acid from purines, mg
    salz,          ///< counted from sodium, g
    broteinheiten, ///< counted from carbohydrate
};
inline constexpr std::size_t anzahlKenngroessen =
    static_cast<std::size_t>(Kenngroesse::broteinheiten) + 1;

/// What is said once about each.
struct Kenngroessenbeschreibung
{
    Kenngroesse groesse;
    const char *kennung;     ///< identifier in files, such as "vitc"
    const char *einheit;     ///< sign behind a number; for bread units a key of the string table
    const char *bezeichnung; ///< key into the string table, such as "Vitamin C"
    int stellen;             ///< digits behind the comma on screen
};

/// All of them, in the order of the enumeration.
extern const std::array<Kenngroessenbeschreibung, anzahlKenngroessen> kenngroessen;

constexpr std::size_t stelle(Kenngroesse groesse)
{
    return static_cast<std::size_t>(groesse);
}

inline const Kenngroessenbeschreibung &beschreibung(Kenngroesse groesse)
{
    return kenngroessen[stelle(groesse)];
}

/// The same value of the record.
constexpr Kenngroesse kenngroesse(Naehrwert wert)
{
    return static_cast<Kenngroesse>(stelle(wert));
}

/// The value of the record that it is; absent for what the record does not hold.
constexpr std::optional<Naehrwert> naehrwert(Kenngroesse groesse)
{
    if (stelle(groesse) >= anzahlNaehrwerte) {
        return std::nullopt;
    }
    return static_cast<Naehrwert>(stelle(groesse));
}

/// How it is called on screen.
QString nameVon(Kenngroesse groesse);

/// The unit's sign as it stands behind a number on screen.
QString einheitVon(Kenngroesse groesse);

/// Grams of available carbohydrate that count as one bread unit (German Broteinheit; NetDoktor,
/// Broteinheiten-Tabelle). The former German rule; a Swiss Brotwert has 10 g.
inline constexpr double kohlenhydrateJeBroteinheit = 12;
