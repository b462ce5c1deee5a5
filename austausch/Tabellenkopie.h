#pragma once

#include "Csv.h"

class QAbstractItemModel;
class QAbstractItemView;
class QMimeData;

/// Lists on the clipboard, so that spreadsheets and text programs paste them as tables.
namespace Tabellenkopie {

/// What a list shows: the headings, and the texts of its rows.
Csv::Tabelle ausModell(const QAbstractItemModel &modell);

/// The table for the clipboard, twice: as lines with tabs and as a table of a web page, both with
/// the headings first. Numbers have the decimal mark of the user. Of a text that a spreadsheet
/// would run as a formula both begin with an apostrophe; a sign alone, as ratings are, runs nowhere
/// and stays as it is. The caller owns it.
QMimeData *alsZwischenablage(const Csv::Tabelle &tabelle);

/// Puts the table on the clipboard.
void kopiere(const Csv::Tabelle &tabelle);

/// Lets the user copy what a list shows as a table: with Ctrl+Shift+C while the keyboard is in it,
/// and from its menu.
void ermoegliche(QAbstractItemView &liste);

} // namespace Tabellenkopie
