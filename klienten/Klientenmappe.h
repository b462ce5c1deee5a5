#pragma once

#include "Klientendaten.h"

#include <QDate>
#include <QString>

/// What came of handing a client over.
struct Mappenausgang
{
    bool gelungen = false;
    QString ordner = {}; ///< the folder that was made; empty when none was
    QString grund = {};  ///< why none was, in the user's language
};

/// Puts everything that is kept of a client into a new folder in the folder `in`: as a sheet to
/// read (PDF), as tables (CSV, in the form that spreadsheets of this country open), and as the file
/// by which another desk takes the client in (JSON). The new folder has the client's name and the
/// day; where there is one of that name, a number tells them apart. It is there whole or not at
/// all, and only the user can read it.
Mappenausgang schreibeMappe(const QString &in, const Klientenakte &akte, const QDate &heute);

/// What the folder is called: it holds no sign that a disk or another system refuses, is not
/// hidden, and has of a long name the beginning.
QString mappenname(const QString &name, const QDate &heute);
