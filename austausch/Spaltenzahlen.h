#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// Which sign stands before the decimals; the other one may part thousands.
enum class Zahlenschrift { Komma, Punkt };

/// A number as it stands in a cell. Thousands may be parted by the other sign, by blanks or by
/// apostrophes. Absent for what is no number, for one that single precision (or double) can't
/// hold, and for "inf" and "nan".
std::optional<float> einfacheZahl(const QString &text, Zahlenschrift schrift);
std::optional<double> doppelteZahl(const QString &text, Zahlenschrift schrift);

/// Whether a cell means one number with a comma before the decimals and another one with a point:
/// "1.234" and "1,234".
bool istMehrdeutig(const QString &text);

/// How the numbers of each column are written, decided for the column as a whole: by its cells that
/// can be read in one way only; else as the other columns are; else by `sonst`.
QList<Zahlenschrift> zahlenschriften(const QList<QStringList> &spalten, Zahlenschrift sonst);
