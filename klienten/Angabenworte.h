#pragma once

#include "Angabenpruefung.h"
#include "Datenbank.h"

/// What is wrong with an entry about a person, to stand beside its field.
QString inWorten(Personenmangel mangel);

/// Why a measure is asked about, in one sentence.
QString inWorten(const Zweifel &zweifel);

/// What stands between the program and its store, and what that means for the user, in a sentence
/// or two; empty for no hindrance.
QString inWorten(const Ausgang &ausgang);
