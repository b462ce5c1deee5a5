#pragma once

#include <QByteArray>
#include <QChar>
#include <QList>
#include <QLocale>
#include <QString>
#include <QStringList>

#include <variant>

/// Writes tables as text that spreadsheets and programs read: a line a row, fields parted by a
/// mark.
namespace Csv {

/// What stands in a cell: nothing, a text or a number. A null text is nothing as well.
using Zelle = std::variant<std::monostate, QString, float, double>;

/// A list as it goes out: what each column is called, and the rows, each with a cell for every
/// column.
struct Tabelle
{
    QStringList spalten;
    QList<QList<Zelle>> zeilen;
};

/// How a table is written. Any separator goes with any decimal mark: a field in which the separator
/// stands is put in quotes.
struct Form
{
    QChar trennung = QLatin1Char(',');
    QChar dezimal = QLatin1Char('.');
    /// True: begins with the byte-order mark, by which spreadsheets know UTF-8.
    bool marke = false;
    QString zeilenende = QStringLiteral("\n");

    bool operator==(const Form &) const = default;
};

/// What a spreadsheet of this country opens by a double click: where decimals stand behind a comma,
/// fields are parted by semicolons; elsewhere it is points and commas.
Form formDesTabellenprogramms(const QLocale &locale = QLocale());

/// What programs read, the same in every country: commas, points, no mark.
Form formFuerProgramme();

/// The table in UTF-8, the columns' names first. Numbers have as many digits as it takes to read
/// the same number back, with nothing between the thousands and without powers of ten. A text that
/// a spreadsheet would run as a formula is marked, see `geschuetzt`; so is a number that is not
/// finite, which is written "nan", "inf" or "-inf".
QByteArray schreiben(const Tabelle &tabelle, const Form &form);

/// The shortest decimal number that means this one and no other, never in powers of ten.
QString zahltext(float zahl, QChar dezimal);
QString zahltext(double zahl, QChar dezimal);

/// The text with an apostrophe in front when a spreadsheet would take it for a formula: when it
/// begins with "=", "+", "-", "@", a tab or the end of a line, behind blanks too. So does one that
/// would look as if it were marked already ("'+" becomes "''+"), so that each text comes back as it
/// was. All others stay as they are, "'n Abend" included.
QString geschuetzt(const QString &text);

/// The text that `geschuetzt` has made this one of.
QString ungeschuetzt(const QString &text);

} // namespace Csv
