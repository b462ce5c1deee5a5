#pragma once

#include "Wertungsregeln.h"

/// The rules as a page for people, in Markdown: docs/ratings.md holds these lines.
namespace Regelblatt {

/// Head and lines of the table of one condition's rules, in the order in which they are tried.
QStringList regeltabelle(Wertung wertung, const Regelwerk &regeln = wertungsregeln());

/// Head and lines of the table of food groups, with what the rules take from a group.
QStringList gruppentabelle();

/// The publications, one line each.
QStringList quellenliste();

/// What a rule asks for, in words: "drink, energy over 20 kcal".
QString bedingungen(const Wertungsregel &regel);

} // namespace Regelblatt
