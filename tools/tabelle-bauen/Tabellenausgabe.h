#pragma once

#include "Datenmodul.h"
#include "Quellenvergleich.h"
#include "Zusatzwerte.h"

#include <QByteArray>

/// What the build makes of the food table.
namespace Tabellenausgabe {

/// The entry in front of all others that stands for "no food": all values 0, all ratings "0".
inline constexpr QLatin1String platzhalter("-");

/// The record of one food, its ratings worked out by the rules.
Datenmodul datenmodul(const Tabellenzeile &zeile);

/// The store that ships with the program: all foods of the table and the placeholder.
Lebensmittelverzeichnis verzeichnis(const Tabelle &tabelle);

/// What is known of the foods beside their records. What the source does not determine is absent;
/// a trace and less than a limit are 0; what is nothing but water holds no purines. Nothing of a
/// food that the source does not have.
Zusatztabelle zusatzwerte(const Tabelle &tabelle, const Quellwerte &quelle);

/// The English names as a Qt translation source, for lrelease.
QByteArray uebersetzung(const Tabelle &tabelle);

} // namespace Tabellenausgabe
