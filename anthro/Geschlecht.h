#pragma once

#include <QString>

#include <optional>

/// The two words that stand for the gender, in the display and in the rules that read it back.
namespace Geschlecht {
inline constexpr QStringView mann = u"Mann";
inline constexpr QStringView frau = u"Frau";
} // namespace Geschlecht

/// The factor of the energy formula for the chosen gender: 1.2 for a man (tag 0), 1.0 for a woman
/// (tag 1). Absent for any other tag: the factor stays.
std::optional<float> geschlechtsfaktor(int tag);

/// The word for a factor: man above 1.0, woman at exactly 1.0. Null below: the word stays.
QString geschlechtswort(float faktor);
