#pragma once

#include "Archiver.h"

#include <QByteArray>
#include <QString>

#include <functional>

/// The files in which stores of foods are kept. One function reads such a file, one writes it; no
/// other place of the program opens them.
namespace Archivdatei {

enum class Zustand {
    Fehlt,       ///< there is no file, as on the first start
    Unlesbar,    ///< there is something that can't be opened, that is no file or too large for one
    Beschaedigt, ///< there is a file, but it holds no store of foods
    Gelesen,     ///< there is a store, perhaps an empty one
};

/// A file of 100,000 foods has about 30 MB. A larger one than this is no store of foods, and
/// reading it would only use up the machine's memory.
inline constexpr qint64 groessteDatei = qint64(64) << 20;

/// A file's bytes, as far as there are any.
struct Rohdaten
{
    Zustand zustand = Zustand::Fehlt; ///< never `Beschaedigt`
    QByteArray bytes;
    QString grund; ///< why a file is unreadable, in English, for those who look after files
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

/// Reads a file without asking what it means. Only regular files are opened, so that a pipe of that
/// name can't hold the program up; a path that is empty leads to nothing.
Rohdaten leseBytes(const QString &path);
/// What the bytes of a file mean.
Inhalt deute(const Rohdaten &daten);
/// Reads a store.
Inhalt lesen(const QString &path);

/// What writing a file came to.
struct Ausgang
{
    enum class Art {
        Misslungen,   ///< the old file is untouched
        Unveraendert, ///< it held these bytes already and was not touched
        Geschrieben,
    };
    Art art = Art::Misslungen;
    QByteArray bytes; ///< what the file holds now; null when it failed
    QString grund;    ///< why it failed, for those who look after files

    explicit operator bool() const { return art != Art::Misslungen; }
};

/// Is shown the file that is about to be replaced, once the new one is complete, so that a full
/// disk leaves no copy; again if another program changes it meanwhile. False: it must stay.
using Bewahrer = std::function<bool(const Rohdaten &vorher)>;

/// Writes a store so that at any moment, also on a power cut, either the old or the new file is
/// there whole. Something at this path that is no file is not overwritten, nor is a store written
/// that would be too large to be read again. What another program or a synchronised folder puts
/// there meanwhile is not overwritten unseen.
///
/// Without a `bewahre` nothing is kept of a file that was there before.
Ausgang schreiben(const QString &path, const Lebensmittelverzeichnis &verzeichnis,
                  const Bewahrer &bewahre = {});

} // namespace Archivdatei
