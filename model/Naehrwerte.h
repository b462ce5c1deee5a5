#pragma once

#include <QString>

#include <array>
#include <cstddef>

/// The seventeen values of a food in the order of the record, of the archive and of every list on
/// screen and on paper. A value added here gets its accessors in Datenmodul and its row below.
#define MAHLBERG_NAEHRWERTE(X)                                                                     \
    X(kal)                                                                                         \
    X(protein)                                                                                     \
    X(fett)                                                                                        \
    X(kh)                                                                                          \
    X(bs)                                                                                          \
    X(chol)                                                                                        \
    X(na)                                                                                          \
    X(ka)                                                                                          \
    X(ca)                                                                                          \
    X(ph)                                                                                          \
    X(ma)                                                                                          \
    X(fe)                                                                                          \
    X(vita)                                                                                        \
    X(b1)                                                                                          \
    X(b2)                                                                                          \
    X(b6)                                                                                          \
    X(vitc)

/// The four suitability ratings of a food, in the order of the record.
#define MAHLBERG_WERTUNGEN(X)                                                                      \
    X(uebergewicht)                                                                                \
    X(diabetes)                                                                                    \
    X(gicht)                                                                                       \
    X(hkk)

#define MAHLBERG_AUFZAEHLEN(name) name,
enum class Naehrwert { MAHLBERG_NAEHRWERTE(MAHLBERG_AUFZAEHLEN) };
enum class Wertung { MAHLBERG_WERTUNGEN(MAHLBERG_AUFZAEHLEN) };
#undef MAHLBERG_AUFZAEHLEN

inline constexpr std::size_t anzahlNaehrwerte = 17;
inline constexpr std::size_t anzahlWertungen = 4;

/// The unit in which a value is held and shown.
enum class Einheit { Kilokalorie, Gramm, Milligramm, Mikrogramm };

/// The unit's sign as it stands behind a number: "kcal", "g", "mg", "µg".
QString einheitszeichen(Einheit einheit);

/// What is said once about a value: how it is called in files and columns, in which unit it is
/// held, and under which words a user knows it.
struct Naehrwertbeschreibung
{
    Naehrwert wert;
    const char *kennung;     ///< identifier of columns and files, such as "vitc"
    Einheit einheit;         ///< unit per 100 g of food
    const char *bezeichnung; ///< key into the string table, such as "Vitamin C"
};

/// What is said once about a rating.
struct Wertungsbeschreibung
{
    Wertung wertung;
    const char *kennung;     ///< identifier of columns and files, such as "hkk"
    const char *bezeichnung; ///< key into the string table
};

/// All seventeen, in the order of the enumeration.
extern const std::array<Naehrwertbeschreibung, anzahlNaehrwerte> naehrwerte;

/// All four, in the order of the enumeration.
extern const std::array<Wertungsbeschreibung, anzahlWertungen> wertungen;

constexpr std::size_t stelle(Naehrwert wert)
{
    return static_cast<std::size_t>(wert);
}
constexpr std::size_t stelle(Wertung wertung)
{
    return static_cast<std::size_t>(wertung);
}

inline const Naehrwertbeschreibung &beschreibung(Naehrwert wert)
{
    return naehrwerte[stelle(wert)];
}
inline const Wertungsbeschreibung &beschreibung(Wertung wertung)
{
    return wertungen[stelle(wertung)];
}
