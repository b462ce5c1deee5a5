#pragma once

#include "Datenmodul.h"

#include <QList>

#include <utility>

/// The foods that the pictures of the windows show. They are a table of their own, so that a food
/// that is added or corrected changes no picture; their names are those of the shipped table, so
/// that they have English ones too.
Lebensmittelverzeichnis bildertafel();

/// The same behind the row without a food that stands first in the shipped table.
Lebensmittelverzeichnis bildertafelMitLeerzeile();

/// Two foods of the user's own.
Lebensmittelverzeichnis bildereigene();

/// What a day may look like that covers its needs: names of the table, with grams.
const QList<std::pair<QString, int>> &bildertag();
