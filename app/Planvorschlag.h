#pragma once

#include "Einblickblatt.h"
#include "Planliste.h"

/// Puts what was suggested into the rows of a plan. A food stands in a plan once: where it does
/// already, its row gets what comes in besides. The plan keeps whole grams, so they are rounded,
/// and are at least 1. False, and nothing is changed, where the row that is to give up its place is
/// not there.
bool nimmInPlan(Planliste &liste, const Speisenaenderung &aenderung);
