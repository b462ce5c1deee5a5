#pragma once

#include "Planauswertung.h"

#include <QString>
#include <QStringList>

#include <deque>
#include <vector>

/// Whole plans, worked out by hand. One program compares the computation with them, another one
/// what the window shows.
namespace Planbeispiele {

/// A plan written down: one text per row, such as "250 kh=10 vitc=40 0-+-" for 250 g of a food
/// with these values per 100 g and these four ratings ("." for none). "250 ?" is a food that is in
/// no store.
struct Plan
{
    std::deque<Datenmodul> lebensmittel; // a deque, so that the addresses in the rows stay valid
    std::vector<Planzeile> zeilen;
};

Plan lesen(const QStringList &texte);

/// What is expected of a nutrient ("55.5:2/55" is 55.5 percent and a bar of code 2 and length 55,
/// "120:-" leaves the bar alone): named in the list, or 0 percent with an empty bar of code 1.
QString erwartet(const QString &liste, const char *kennung);

/// Adds the test's columns and a row for each plan: "plan", "bedarf", "prozente", "energie" (kcal,
/// truncated), "gezaehlt" (counts of + 0 -, "!" for the point), "punkte", "gesicht".
void fuelle();

} // namespace Planbeispiele
