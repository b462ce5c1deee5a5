#pragma once

#include "Tabellenzeile.h"

#include <QByteArrayView>

/// Takes a file of fields apart: UTF-8, a line a record, fields parted by semicolons, "#" in front
/// of a remark, the columns' names in the first line that is none.
namespace Feldzeilen {

struct Feldzeile
{
    int nummer = 0; ///< line in the file, from 1
    QStringList felder;
};

struct Ergebnis
{
    QList<Feldzeile> zeilen;
    Beanstandungen beanstandungen;
};

/// The check that a file fails which can't be read as it should be.
inline const QString formregel = QStringLiteral("format");

/// Whether a line of the file, its end taken off, holds no fields.
bool istBemerkung(QStringView zeile);

/// The lines under the columns' names, each with as many fields as `spalten`. Other lines are left
/// out and objected to; with other columns nothing is read.
Ergebnis lesen(QByteArrayView bytes, const QStringList &spalten);

} // namespace Feldzeilen
