#pragma once

#include "Aufruf.h"

#include <QString>

/// Why a command line was not understood, in one sentence in the language of the windows.
QString inWorten(const Aufruffehler &fehler);

/// How the program is called: its commands and options, each with an example, in the language of
/// the windows.
QString hilfetext();
