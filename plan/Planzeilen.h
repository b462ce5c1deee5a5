#pragma once

#include "Planauswertung.h"
#include "Planliste.h"

#include <vector>

/// The record of a food: from the built-in table or else from the own foods; null when neither has
/// it. It lives as long as its store is not changed.
const Datenmodul *lebensmittelVon(const QString &name, const Lebensmittelverzeichnis &eingebaute,
                                  const Lebensmittelverzeichnis &eigene);

/// The rows of a plan with their foods, in the plan's order.
std::vector<Planzeile> planzeilen(const Planliste &plan, const Lebensmittelverzeichnis &eingebaute,
                                  const Lebensmittelverzeichnis &eigene);
