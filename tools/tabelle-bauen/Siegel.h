#pragma once

#include "Tabellenzeile.h"

#include <QByteArrayView>

/// The seal at the end of each line of the food table. Names, groups, marks and notes have no
/// second place that they could be compared with; the seal makes whoever touches a line look at it
/// again.
namespace Siegel {

/// The seal of a line whose other fields are these: eight hexadecimal digits.
QString pruefzeichen(const QStringList &felder);

/// Every line of the file that does not bear the seal of its fields.
Beanstandungen pruefen(QByteArrayView bytes);

/// The file with every line sealed; all else stays as it is.
QByteArray versiegelt(QByteArrayView bytes);

} // namespace Siegel
