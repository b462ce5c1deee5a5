#pragma once

#include "Datenordner.h"
#include "Meldung.h"

#include <QString>

class QSettings;

/// The doors through which the program reaches the world outside of its windows. They are made in
/// `main`; a test opens doors of its own.
struct Tueren
{
    QString eingebauteTabelle; ///< path of the built-in food table, a file or a resource
    Datenordner datenordner;   ///< the user's data folder
    Meldungstuer melde;        ///< shows a message and waits for its answer
    QSettings *einstellungen;  ///< the user defaults; outlives all controllers
};
