#pragma once

#include "Csv.h"
#include "Satzspalten.h"

/// What is kept of a client as tables that spreadsheets read. Headings and choices are in the
/// language of the windows, units stand in the headings, numbers are numbers and days texts as in
/// "2026-11-23". What is not known leaves its cell empty.

/// What is known of the person, a field a row.
Csv::Tabelle personentabelle(const Person &person);

/// A row for each visit.
Csv::Tabelle besuchstabelle(const QList<Besuch> &besuche);

/// A row for each plan, with the number of its foods.
Csv::Tabelle plaenetabelle(const QList<Planablage> &plaene);

/// A row for each food of each plan, with the values for so much of it. A food that was in no store
/// leaves its values empty.
Csv::Tabelle planzeilentabelle(const QList<Planablage> &plaene);

/// A row for each record of days, with the number of its days.
Csv::Tabelle aufzeichnungstabelle(const QList<Aufzeichnung> &aufzeichnungen);

/// A row for each food of each day, with the amount as it was said and in grams, and the values for
/// so much of it. What does not count, an alternative or what was not understood, leaves its values
/// empty.
Csv::Tabelle tageszeilentabelle(const QList<Aufzeichnung> &aufzeichnungen);

/// How a column is headed: by what stands in it and the unit of it, as in "Gewicht (kg)". What has
/// none has an empty one.
QString mitEinheit(const QString &name, const QString &einheit);

/// The same for a field of a record.
QString spaltenkopf(const char *spalte, const char *beschriftung);

template <typename Satz>
QString spaltenkopf(const Satzspalte<Satz> &spalte)
{
    return spaltenkopf(spalte.name, spalte.beschriftung);
}
