#pragma once

#include "Planauswertung.h"

#include <QString>

/// What the face of a plan says, in the language of the windows, for those who can't see it. An
/// empty plan is called empty, whatever its face.
QString planurteil(const Planauswertung &auswertung, bool leer);
