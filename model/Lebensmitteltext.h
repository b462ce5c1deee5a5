#pragma once

#include "Datenmodul.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <optional>

/// Foods within files of other things, as JSON: what a food was like on the day on which it was
/// eaten or planned. The values stand there by name, so that other programs can read them too.
namespace Lebensmitteltext {

/// A number to the last bit. JSON has no signs for what is no number and for what is beyond all
/// numbers; an own food can hold either, and they stand there as words.
QJsonValue alsJson(float zahl);
/// The same back; absent for something else.
std::optional<float> zahlAus(const QJsonValue &wert);

/// Puts the values and ratings of a food into the object, beside whatever stands there.
void fuegeHinzu(QJsonObject &ziel, const Datenmodul &lebensmittel);
/// Whether the object tells of a food at all.
bool enthaelt(const QJsonObject &quelle);
/// The food that stands there, under this name. Absent where one of its values is missing or no
/// number.
std::optional<Datenmodul> lies(const QJsonObject &quelle, const QString &name);

} // namespace Lebensmitteltext
