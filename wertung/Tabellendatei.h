#pragma once

#include "Tabellenzeile.h"

#include <QByteArrayView>

/// Reads the food table: one food a line.
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
