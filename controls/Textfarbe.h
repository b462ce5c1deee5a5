#pragma once

#include <QColor>

class QPalette;

/// What the colour of a text says. `Standard` and `Schwarz` are the theme's ordinary text; the
/// others carry a verdict.
enum class Textfarbe { Standard, Schwarz, Rot, Blau, Gruen };

/// Whether windows are dark with this palette.
bool istDunkel(const QPalette &palette);

/// The colour in which a verdict is written on this palette: readable on a light and on a dark
/// window alike (contrast of at least 4.5 : 1 on both).
QColor farbeFuer(Textfarbe farbe, const QPalette &palette);
