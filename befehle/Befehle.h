#pragma once

#include "Aufruf.h"
#include "Bestaende.h"

#include <QByteArray>
#include <QString>

/// With what the program ends.
enum Ausgangscode { Erledigt = 0, Misslungen = 1, FalscherAufruf = 2 };

/// What the program says to a command line.
struct Antwort
{
    QByteArray ausgabe; ///< for the output, in UTF-8
    QString meldung;    ///< a line for the error output; null: nothing is to be said
    int ausgang = Erledigt;
};

/// The user's data folder as a call names it, or the usual one. One that was named is made where
/// there is none; absent when that can't be done.
std::optional<Datenordner> datenordnerVon(const Auftrag &auftrag);

/// Answers a call that was not understood, that asks for no windows, or whose data folder can't be
/// used, in the language of the windows. No file is written.
Antwort antworte(const Aufruf &aufruf, const Befehlstueren &tueren);
