#pragma once

#include <QString>

class Einstellungen;
class QPalette;
class QSettings;

/// Light, dark, or as the desktop has it.
enum class Erscheinungsbild { System, Hell, Dunkel };

/// The appearance that the settings hold; `System` where they hold none.
Erscheinungsbild gemerktesErscheinungsbild(const QSettings &einstellungen);

/// Keeps the appearance in the settings.
void merkeErscheinungsbild(Einstellungen &einstellungen, Erscheinungsbild bild);

/// Dresses all windows of the program.
void zeigeErscheinungsbild(Erscheinungsbild bild);
