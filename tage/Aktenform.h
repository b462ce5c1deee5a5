#pragma once

#include "Handzettel.h"
#include "Tagesrechnung.h"

/// The record with all that is worked out of it, for the file of the practice: the mean of the days
/// and then each day with its meals and rows, the sums of all values by meal, what they are of the
/// needs, the ratings as they are counted, and what the plan's evaluation says. In the language of
/// the windows; what is not known stays empty.
Druckauftrag aktenform(const Aufzeichnung &aufzeichnung, const Energiebedarf &bedarf,
                       const Druckangaben &angaben);
