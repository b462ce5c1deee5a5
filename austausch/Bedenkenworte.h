#pragma once

#include "Plausibilitaet.h"

#include <QString>

/// A doubt in a sentence, in the language of the windows, with its figures and their units.
QString inWorten(const Bedenken &bedenken);
