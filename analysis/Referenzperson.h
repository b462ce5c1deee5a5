#pragma once

#include <optional>

enum class Referenzgeschlecht { Mann, Frau };

/// What changes the needs of a woman.
enum class Referenzzustand { Keiner, Schwanger, Stillend };

/// For whom published reference values are looked up. What is absent is not known, and a value that
/// hangs on it is then said to be lacking.
struct Referenzperson
{
    std::optional<Referenzgeschlecht> geschlecht = {};
    std::optional<int> alter = {}; ///< whole years
    Referenzzustand zustand = Referenzzustand::Keiner;
    std::optional<int> trimester = {};  ///< of pregnancy, 1 to 3
    std::optional<int> stillmonat = {}; ///< since the birth; 1 is the first month
    std::optional<double> pal = {}; ///< physical activity level: energy of a day over that at rest
    std::optional<double> gewicht = {}; ///< of the body, kg
    /// Whether her last menstruation lies behind a woman: iron hangs on it.
    std::optional<bool> nachMenopause = {};
    /// What was worked out for this very person, kcal a day. Shares of the energy are taken of it,
    /// instead of the energy that the set gives.
    std::optional<double> energiebedarf = {};

    bool operator==(const Referenzperson &) const = default;
};
