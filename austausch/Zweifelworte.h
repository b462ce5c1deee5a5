#pragma once

#include "Plausibilitaet.h"

#include <QString>

/// A doubt about a food's figures as a sentence, in the language of the windows.
QString worte(const Bedenken &bedenken);
