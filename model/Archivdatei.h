#pragma once

#include "Archiver.h"

#include <QDateTime>
#include <QString>

/// The files in which stores of foods are kept. One function reads such a file, one writes it; no
/// other place of the program opens them.
namespace Archivdatei {

enum class Zustand {
    Fehlt,       ///< there is no file, as on the first start
    Unlesbar,    ///< there is something that can't be opened, or that is no file
    Beschaedigt, ///< there is a file, but it holds no store of foods
    Gelesen,     ///< there is a store, perhaps an empty one
};

/// What reading a file gave.
struct Inhalt
{
    Zustand zustand = Zustand::Fehlt;
    /// The store, and for a damaged file where and why. The store is empty unless the file was
    /// read.
    Archiver::Ergebnis archiv;
    /// Why a file is unreadable, in English, for those who look after files.
    QString grund;
};

/// Reads a store. Only regular files are opened, so that a pipe of that name can't hold the program
/// up; a path that is empty leads to nothing.
Inhalt lesen(const QString &path);

/// Writes a store so that at any moment, also on a power cut, either the old or the new file is
/// there whole. False when the new one could not be written; the old one is untouched then.
///
/// A file whose bytes would not change is not touched at all. A file that holds no store of foods
/// is damaged, but may be all that is left of somebody's work: it is overwritten only after a copy
/// of it was put beside it, with the moment `jetzt` in the copy's name. A file that can't even be
/// opened is moved to such a name. Something at this path that is no file is not overwritten.
bool schreiben(const QString &path, const Lebensmittelverzeichnis &verzeichnis,
               const QDateTime &jetzt = QDateTime::currentDateTime());

} // namespace Archivdatei
