#pragma once

#include "Tabellenzeile.h"

#include <QByteArrayView>

/// Reads the food table: UTF-8, one food a line, fields parted by semicolons, "#" in front of a
/// remark, the columns' names in the first line that is none.
namespace Tabellendatei {

struct Ergebnis
{
    Tabelle tabelle;
    Beanstandungen beanstandungen;
};

/// The names of the columns in their order.
QStringList spalten();

/// Reads what is there. A line that can't be read is left out and objected to.
Ergebnis lesen(QByteArrayView bytes);

} // namespace Tabellendatei
