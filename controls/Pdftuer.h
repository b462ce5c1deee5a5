#pragma once

#include "Dateituer.h"
#include "Drucktuer.h"

#include <QString>

#include <functional>

class QSettings;
class QWidget;

/// The folder that PDFs are meant for: the one that the settings hold, and the documents folder
/// where they hold none. It need not be there.
QString pdfordner(const QSettings &einstellungen);

/// The folder as the user has chosen it; empty where it is that of the system.
QString gewaehlterPdfordner(const QSettings &einstellungen);

/// Keeps the folder for PDFs in the settings. An empty one means that of the system.
void merkePdfordner(QSettings &einstellungen, const QString &ordner);

/// Whether files can be put into the folder.
bool nimmtDateien(const QString &ordner);

/// Opens a folder where the user looks at folders. False when there is nothing that could.
using Ordnertuer = std::function<bool(const QString &ordner)>;

/// The door that asks the desktop.
bool zeigeOrdner(const QString &ordner);

/// The door that saves a print as a PDF, without any printer, on the paper that the settings hold.
/// It proposes a new name in the folder for PDFs; where that is gone or can't be written, it says
/// so and begins in the documents. What can't be written is told through `melde`, and another place
/// is asked for. A PDF that was there is replaced only by a whole one. Where it lies is told in the
/// window's strip of notices, from where its folder opens. The settings outlive the door.
Pdftuer systempdftuer(QSettings &einstellungen, const Meldungstuer &melde, const Dateituer &frage,
                      const Ordnertuer &oeffne = zeigeOrdner);
