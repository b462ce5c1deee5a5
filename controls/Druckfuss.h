#pragma once

#include "Drucktuer.h"

/// The same print with a line at the foot of every page: the day, which page it is of how many, and
/// the program. The line stands within the margins, never nearer to the paper's edge than printers
/// reach, and what is printed ends above it.
Druckauftrag mitFuss(const Druckauftrag &auftrag);
