#pragma once

#include "Drucktuer.h"

/// The same print with a line at the head of every page that says for whom it is. The line stands
/// within the margins, and what is printed begins below it. An empty text leaves the print as it
/// is.
Druckauftrag mitKopf(const Druckauftrag &auftrag, const QString &fuerWen);
