#pragma once

#include "Tabellenzeile.h"

#include <QLocale>
#include <QStringList>

/// What must be true of the one table that ships with the program, over and above what every table
/// must keep.
namespace Auslieferung {

/// Foods in the shipped table. With the placeholder in front there are as many entries as the
/// program can show.
inline constexpr qsizetype anzahlLebensmittel = 1015;

/// Rows of the program's list, from 0, for which the program shows the food of `gezeigteReihe`.
inline constexpr int gezeigteReihe = 575;
inline constexpr std::array<int, 3> umgeleiteteReihen = {576, 577, 604};

/// The German names and the placeholder in the order in which the program lists them.
QStringList reihenfolge(const Tabelle &tabelle, const QLocale &locale);

/// Whether each redirected row of the list is the same food as the one that is shown for it.
Beanstandungen umleitungPruefen(const Tabelle &tabelle, const QLocale &locale);

/// The number of foods, every group represented, and the redirected rows in all locales in which
/// the program is used.
Beanstandungen pruefen(const Tabelle &tabelle);

} // namespace Auslieferung
