#pragma once

#include "Dateituer.h"
#include "Datenordner.h"
#include "Drucktuer.h"
#include "Meldung.h"

#include <QString>

#include <functional>
#include <memory>

class Dateihueter;
class Einstellungen;

/// The doors through which the program reaches the world outside of its windows. They are made in
/// `main`; a test opens doors of its own.
struct Tueren
{
    QString eingebauteTabelle; ///< path of the built-in food table, a file or a resource
    Datenordner datenordner;   ///< the user's data folder
    Meldungstuer melde;        ///< shows a message and waits for its answer
    std::function<void(const QString &)> protokolliere; ///< writes a line to the system log
    Einstellungen *einstellungen; ///< the user defaults; outlives all controllers
    /// Path of the table that tells why the built-in foods are rated as they are, a file or a
    /// resource; while it is empty, no rating of theirs is explained.
    QString wertungstabelle = {};
    Drucktuer drucke = {}; ///< prints; while it is absent, nothing does
    Pdftuer alsPdf = {};   ///< saves a print as a PDF; while it is absent, nothing does
    /// Reads and writes the user's files, for all windows of the program; a controller that gets
    /// none makes one of its own.
    std::shared_ptr<Dateihueter> dateien = {};
    /// Speaks another language ("de" or "en") from now on; while it is absent, the one of the start
    /// stays.
    std::function<void(const QString &)> sprich = {};
    Dateituer waehleDatei = {}; ///< asks for a file or a folder; while it is absent, nobody chooses
};
