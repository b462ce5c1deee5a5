#pragma once

#include "Mass.h"

#include <QList>

#include <optional>

/// The household measure in which a food is eaten at once: of its measures the first of 20 to
/// 300 g that is no spoon, or else of 5 to 500 g; a leaf of lettuce is no portion while there is a
/// larger measure. Absent when the food has none. The limits are our own choice.
std::optional<Mass> ueblichePortion(const QList<Mass> &masse);
