#pragma once

#include "Lebensmitteldatei.h"

#include <QString>

/// Why nothing of a file can be shown, as a sentence in the language of the windows; empty when
/// nothing is in the way.
QString hinderniswort(const Lebensmitteldatei &datei);
