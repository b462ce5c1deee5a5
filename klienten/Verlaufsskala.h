#pragma once

#include <QDate>
#include <QList>
#include <QString>

#include <functional>

/// An axis of values from one round figure to another.
struct Werteskala
{
    double von = 0;
    double bis = 0;
    double schritt = 1; ///< 1, 2 or 5 times a power of ten

    bool operator==(const Werteskala &) const = default;

    /// The figures from one end to the other.
    QList<double> stufen() const;
    /// A figure with as many digits as the steps need, as in "72,5".
    QString beschriftung(double stufe) const;
};

/// The finest axis that holds both values, the smaller one first, and has at most so many steps, of
/// which two are always allowed. Values that lie close to each other stand in the middle of a wider
/// one, so that a change of little meaning does not look like a great one. None of them is
/// negative.
Werteskala werteskala(double von, double bis, int hoechstens);

/// A day that is marked on the axis of time.
struct Zeitstrich
{
    QDate tag;
    QString text; ///< the day, month or year, as short as the language on screen has it

    bool operator==(const Zeitstrich &) const = default;
};

/// The marks of an axis that goes from one day to another: days, the first days of months or those
/// of years, in equal steps. Of those that `passen` the finest; where none gives two marks, the two
/// ends, or the last day alone.
QList<Zeitstrich> zeitstriche(const QDate &von, const QDate &bis,
                              const std::function<bool(const QList<Zeitstrich> &)> &passen);
