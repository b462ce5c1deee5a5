#pragma once

#include "Rezept.h"

#include <QJsonObject>

#include <optional>

/// A recipe as it stands in the file of the recipes. What is absent is left out there; a value that
/// is no number is null.
QJsonObject alsJson(const Rezept &rezept);

/// The recipe that stands there; absent when it can't be understood whole, or nothing could be
/// reckoned from it.
std::optional<Rezept> rezeptAus(const QJsonObject &eintrag);
