#pragma once

#include <QDateTime>
#include <QString>

/// What writers of the user's files leave lying about when they are killed.
namespace Dateireste {

/// Removes what writers of a file and of its copies left, but nothing that one is at work on. A
/// whole store among the rests of the file may be all that there is of a change, or of what stood
/// there before it, or a copy that somebody made, since earlier versions, and Qt for the settings,
/// name theirs like one: it is put beside the file as a dated copy instead. `jetzt` tells how old
/// they are.
void raeumeAuf(const QString &path, const QDateTime &jetzt);

} // namespace Dateireste
