#pragma once

#include "Verlaufsdaten.h"

class QPainter;
class QPalette;
class QRectF;

/// Draws a course into a place, for screen and paper alike: the measures in front of the band where
/// they should lie, over time as it really went by. Letters are those of the painter, and all that
/// has a size goes by theirs. Colours are those for texts in a window of this palette; the ground
/// is left as it is. The painter comes back as it was.
///
/// A place that is too small for axes has the last measure alone.
void maleVerlauf(QPainter &maler, const QRectF &platz, const Verlaufsdaten &daten,
                 const QPalette &farben);
