#pragma once

#include <QString>

#include <array>
#include <cstddef>

/// What is told of a day beside the values of its foods, in the order in which it is shown.
enum class Tagesgroesse {
    Purine,          ///< mg of uric acid that they give
    Broteinheiten,   ///< of the day and of each meal
    Alkohol,         ///< g; of what is no whole day
    AlkoholJeWoche,  ///< g in seven such days
    Wasser,          ///< ml in drinks and foods together
    WasserGetraenke, ///< ml
    WasserSpeisen,   ///< ml
    Salz,            ///< g
    Energiedichte,   ///< kcal in 100 g, drinks left out
    Gesaettigt,      ///< percent of the energy
    Zucker,          ///< percent of the energy
    FreierZucker,    ///< percent of the energy
};
inline constexpr std::size_t anzahlTagesgroessen =
    static_cast<std::size_t>(Tagesgroesse::FreierZucker) + 1;

/// What is said once about each.
struct Tagesgroessenbeschreibung
{
    Tagesgroesse groesse;
    const char *kennung;     ///< as docs/limits.md calls it
    const char *einheit;     ///< sign behind a number; for bread units a key of the string table
    const char *bezeichnung; ///< key into the string table
    int stellen;             ///< digits behind the comma on screen
};

/// All of them, in the order of the enumeration.
extern const std::array<Tagesgroessenbeschreibung, anzahlTagesgroessen> tagesgroessen;

inline const Tagesgroessenbeschreibung &beschreibung(Tagesgroesse groesse)
{
    return tagesgroessen[static_cast<std::size_t>(groesse)];
}

/// How it is called on screen.
QString nameVon(Tagesgroesse groesse);

/// The unit's sign as it stands behind a number on screen.
QString einheitVon(Tagesgroesse groesse);
