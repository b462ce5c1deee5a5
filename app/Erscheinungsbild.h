#pragma once

#include <QString>

class Einstellungen;
class QPalette;
class QSettings;
class Schreibtisch;

/// Light, dark, or as the desktop has it.
enum class Erscheinungsbild { System, Hell, Dunkel };

/// The appearance that the settings hold; `System` where they hold none.
Erscheinungsbild gemerktesErscheinungsbild(const QSettings &einstellungen);

/// Keeps the appearance in the settings.
void merkeErscheinungsbild(Einstellungen &einstellungen, Erscheinungsbild bild);

/// Dresses all windows of the program. Those that follow the desktop are dressed as it asked for
/// last, or else as its palette is.
void zeigeErscheinungsbild(Erscheinungsbild bild);

/// From now on, windows that follow the desktop change with it. What it says while they don't is
/// kept for when they do.
void folgeSchreibtisch(const Schreibtisch &schreibtisch);
