#pragma once

#include "Datenmodul.h"

#include <QByteArray>

/// Archives made by hand, to hold the program's own reader and writer against. Nothing here uses
/// either of them.
namespace Archivbau {

enum class Folge { LittleEndian, BigEndian };

/// The bytes of a description, whose words are separated by blanks: `84` a byte, `'NSString'` the
/// bytes of a text without blanks, `s:155` a two-byte number, `l:70000` a four-byte number,
/// `f:12.6` a single-precision value, `x:7FC00001` four bytes given as one number.
QByteArray bytes(const QByteArray &beschreibung, Folge folge = Folge::LittleEndian);

/// Signature and system version.
QByteArray vorspann(Folge folge = Folge::LittleEndian);

/// A whole file: the description behind the signature.
QByteArray datei(const QByteArray &beschreibung, Folge folge = Folge::LittleEndian);

/// The beginning of a dictionary up to its number of entries. It takes the object numbers 0 to 3
/// (3, written 95, is the root class) and the string numbers 0 to 4 ("@" is 0, written 92).
inline const QByteArray verzeichnisAnfang =
    "84 01 '@' 84 84 84 13 'NSMutableDictionary' 00 84 84 0C 'NSDictionary' 00 "
    "84 84 08 'NSObject' 00 85 84 01 'i' ";

/// The first text of a file as far as its length: object 4 (written 96), class 5 (written 97), "+"
/// is string 6 (written 98).
inline const QByteArray ersterText = "92 84 84 84 08 'NSString' 01 95 84 01 '+' ";

/// The first food behind such a text as far as its name: object 6 (written 98), class 7 (99).
inline const QByteArray erstesLebensmittel = "92 84 84 84 0A 'Datenmodul' 00 95 ";

/// Seventeen zeros, the type code "f" being string 8 (written 9A).
QByteArray nullwerte();
/// Four absent ratings.
inline const QByteArray keineWertungen = "92 85 92 85 92 85 92 85 ";

/// One entry named "Ei" without values and ratings, then the end of the dictionary.
QByteArray einEintrag();

/// The worked example: "Ei" with 155 kcal, 12.6 g protein, 10.6 g fat, rated "0", "+", "+", "-".
/// Little-endian it is 188 bytes long, which are spelled out in beispielBytes().
QByteArray beispiel(Folge folge = Folge::LittleEndian);
QByteArray beispielBytes();
Lebensmittelverzeichnis beispielVerzeichnis();

/// A file of many foods named "L0000000", "L0000001" and so on, the energy being the number; every
/// one refers back to the types, classes and its own name.
QByteArray vieleEintraege(int anzahl, Folge folge);

} // namespace Archivbau

/// True when both stores hold the same, telling absent texts from empty ones and values bit by bit.
bool gleich(const Lebensmittelverzeichnis &a, const Lebensmittelverzeichnis &b);
