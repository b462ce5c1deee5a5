#pragma once

#include "Zusatzwerte.h"

#include <QByteArrayView>

/// Reads and writes what is known of the built-in foods beside their records: one food a line, a
/// figure that was not published is an empty field.
namespace Zusatzdatei {

struct Ergebnis
{
    Zusatztabelle tabelle;
    Beanstandungen beanstandungen;
};

/// The names of the columns in their order.
QStringList spalten();

/// Reads what is there. A line with something wrong is left out and objected to: a field that can't
/// be read, a figure below 0, a density or a ready weight of 0, a class of purines beside a figure,
/// a food that stands twice or has no name.
Ergebnis lesen(QByteArrayView bytes);

/// The file of these foods with the acknowledgment of the source, in the order of their names. As
/// in the food table, no name holds a semicolon or a line's end.
QByteArray text(const Zusatztabelle &tabelle);

} // namespace Zusatzdatei
