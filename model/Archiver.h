#pragma once

#include "Datenmodul.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

/// Turns a store of foods into the bytes of a ".daten" file and back.
namespace Archiver {

enum class Zustand {
    Gelesen,     ///< the bytes hold a store, perhaps an empty one
    Beschaedigt, ///< they do not; the store is empty then
};

/// What reading some bytes gave.
struct Ergebnis
{
    Zustand zustand = Zustand::Beschaedigt;
    Lebensmittelverzeichnis verzeichnis;
    /// Damaged only: the byte from which on the data make no sense, counted from 0, and why, in
    /// English, for those who look after files.
    qsizetype position = 0;
    QString grund;
    /// Read only: how many entries the file announces (more than the store holds when a name stands
    /// in it twice, of which the later one counts), and how many bytes follow the store unread.
    qsizetype eintraege = 0;
    qsizetype rest = 0;

    bool gelesen() const { return zustand == Zustand::Gelesen; }
};

/// Reads a store in either byte order. Bytes that are anything but a whole store of foods, down to
/// the class versions, are damaged; they never bring the program down, take time beyond their
/// length or memory beyond a small multiple of it: a long file whose entries share their foods is
/// damaged, since no program writes such.
Ergebnis read(QByteArrayView bytes);

/// Writes a store, always little-endian and by name, so that equal stores give equal bytes. Reading
/// it back gives every float bit for bit and tells an absent text from an empty one. A name under
/// which a food is kept can't be absent; an absent one is written as empty.
QByteArray write(const Lebensmittelverzeichnis &verzeichnis);

} // namespace Archiver
