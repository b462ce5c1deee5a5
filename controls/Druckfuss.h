#pragma once

#include "Drucktuer.h"

#include <QLocale>

/// The same print with a line at the foot of every page: the day, which page it is of how many, and
/// the program. The line stands within the margins, never nearer to the paper's edge than printers
/// reach, and what is printed ends above it.
Druckauftrag mitFuss(const Druckauftrag &auftrag);

/// The same in another language than that of the windows: `seitenworte` is "Page %1 of %2" in it,
/// and the day is written as it is in `land`.
Druckauftrag mitFuss(const Druckauftrag &auftrag, const QString &seitenworte, const QLocale &land);
