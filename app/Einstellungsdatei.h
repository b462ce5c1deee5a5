#pragma once

#include <QSettings>
#include <QString>

/// The care for the file in which the user defaults are kept. Nothing here has to succeed: without
/// its settings the program works as on the first day.
namespace Einstellungsdatei {

/// Where the platform keeps the user defaults of this program.
QString imSystem();

/// Makes the file ready before it is opened: clears away what a killed program left, a lock that
/// would stop the window for half a minute and files half written, makes the file and its folder
/// for the user alone, and puts a dated copy of a damaged file beside it, since the next write
/// replaces it.
void bereiteVor(const QString &datei, QSettings::Format format);

/// The part of it that may be needed again before each write.
void schuetze(const QString &datei);

} // namespace Einstellungsdatei
