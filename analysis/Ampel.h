#pragma once

/// The colours in which a judgement is shown as text. Which shade is painted is decided where it
/// is painted.
enum class Ampel { Schwarz, Rot, Blau, Gruen };

/// The codes by which a rating bar is told its colour. Any other number leaves the colour as it is.
namespace Balkencode {
inline constexpr int unveraendert = 0;
inline constexpr int rot = 1;
inline constexpr int blau = 2;
inline constexpr int gruen = 3;
} // namespace Balkencode

/// The codes by which a face is told its expression.
namespace Gesichtscode {
inline constexpr int lachend = 1;
inline constexpr int neutral = 2;
inline constexpr int weinend = 3;
} // namespace Gesichtscode
