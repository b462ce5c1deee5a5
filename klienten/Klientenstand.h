#pragma once

#include "Datenbank.h"

#include <QDateTime>
#include <QString>

#include <optional>

/// How many clients a copy of the store holds; absent when it can't be read as one.
std::optional<int> klientenIn(const QString &kopie);

/// Puts a copy in the place of the store, which nobody of this program may have open. What stands
/// there is kept beside it first, whatever it is; `beiseite` takes the path, null when nothing was
/// there. When something fails, the store stays as it was.
Ausgang holeStand(const QString &datei, const QString &kopie, const QDateTime &jetzt,
                  QString &beiseite);
