#pragma once

#include "Datenmodul.h"

#include <QString>

/// A store of foods as text to read: each food's name, below it its values with their units and its
/// ratings. Values that are 0 and ratings that are absent are left out, and a name that differs
/// from the one under which the food is kept is shown. Each line ends in a line feed.
QString alsText(const Lebensmittelverzeichnis &verzeichnis);

/// A store of foods as a table for other programs: comma-separated, a line of column names first.
/// Every text is quoted, so that an absent one, which is an empty cell, is told from an empty one;
/// every number has as many digits as it takes to read back the same value.
QString alsCsv(const Lebensmittelverzeichnis &verzeichnis);
