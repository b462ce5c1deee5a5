#pragma once

#include "Referenzwerte.h"

#include <QString>
#include <QStringList>

/// How published reference values, and for whom they are, are said on screen.
namespace Referenzworte {

/// "D-A-CH"; for no set the general needs.
QString satz(std::optional<Referenzsatz> welcher);

/// "D-A-CH · Frau, 28 Jahre, schwanger (2. Trimester), PAL 1,6, 64 kg"; of the general needs,
/// which are the same for everybody, their name alone.
QString kurzfassung(std::optional<Referenzsatz> welcher, const Referenzperson &person);

/// How a value is meant: "Empfehlung", "Schätzwert". Only for the first four.
QString art(Referenzart welche);

/// Why there is no value: "Das Alter fehlt"; empty where there is one.
QString mangel(Referenzmangel welcher);

/// What a day should hold: "mind. 950 mg", "20–35 % der Energie = 47,2–82,6 g", "über 30 g",
/// "etwa 2100 kcal"; of what is lacking the share of the energy that is known, or nothing.
QString bereich(const Referenzwert &wert);

/// "höchstens 2500 mg", "sicher bis 40 mg", "Retinol höchstens 3000 µg"; empty where nothing is
/// limited.
QString grenze(const Referenzwert &wert);

/// The same of the general needs: "mind. 1000 mg", "50–70 g", "höchstens 2400 mg".
QString bereich(const Zielbereich &ziel);

/// All that is to be known about a value, line by line: what it is and how it was worked out, what
/// limits it, what the set remarks, what we chose ourselves, the publications.
QStringList auskunft(const Referenzwert &wert);

} // namespace Referenzworte
