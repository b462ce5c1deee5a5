#pragma once

#include "Ampel.h"
#include "Naehrwerte.h"

#include <QString>

#include <optional>

/// A value of a food as the main window writes it, with its unit; a dash for one that ran over.
QString wertMitEinheit(Naehrwert wert, double zahl);

/// A percentage with so many decimals; a dash for one that ran over.
QString prozentMitZeichen(double zahl, int nachkommastellen);

/// The sign and the word of a bar's verdict, as beside the bars of the windows; empty where it has
/// none.
QString verdiktwort(std::optional<int> code);
QString verdiktwort(Ampel farbe);

/// The word for the sign of a rating; empty for what is no rating's sign.
QString wertungswort(const QString &zeichen);

/// Text of the string table in the language of the windows.
QString uebersetzt(const char *schluessel);
