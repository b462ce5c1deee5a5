#pragma once

#include <QDateTime>
#include <QString>

/// What writers of the user's files leave lying about when they are killed.
namespace Dateireste {

/// Removes what writers of a file and of its copies left, but nothing that one is at work on.
/// Earlier versions, and Qt for the settings, name theirs in a way in which somebody may also name
/// a copy that he made: what is a whole store among these is put beside the file as a dated copy
/// instead. `jetzt` tells how old they are.
void raeumeAuf(const QString &path, const QDateTime &jetzt);

} // namespace Dateireste
