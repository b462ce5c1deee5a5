#pragma once

#include <QByteArrayView>
#include <QtGlobal>

#include <array>
#include <cstddef>

/// The fixed parts of the typed archive stream in which every store of foods is kept: what reader
/// and writer must agree on. The stream is older than this program; the users' files of many years
/// are in it, so nothing here may change.
namespace Archivformat {

/// First byte of every stream.
inline constexpr quint8 streamfassung = 4;

/// The signature behind it says in which byte order all numbers that follow are written.
inline constexpr QByteArrayView signaturLittleEndian = "streamtyped";
inline constexpr QByteArrayView signaturBigEndian = "typedstream";

/// Number that the writing system left behind the signature. It has no meaning for the content.
inline constexpr qint32 systemfassung = 1000;

/// The marks among the bytes that begin a value.
namespace Marke {
inline constexpr quint8 erste = 0x80;
inline constexpr quint8 zweiByte = 0x81;   ///< an integer in the next two bytes
inline constexpr quint8 vierByte = 0x82;   ///< an integer in the next four bytes
inline constexpr quint8 gleitkomma = 0x83; ///< a floating-point value in the next four bytes
inline constexpr quint8 neu = 0x84;        ///< a string, class or object that is met first here
inline constexpr quint8 nil = 0x85;        ///< nothing
inline constexpr quint8 ende = 0x86;       ///< end of an object
inline constexpr quint8 letzte = 0x91;
} // namespace Marke

/// True for a byte that is a mark; every other one is a small integer by itself.
constexpr bool istMarke(quint8 kopf)
{
    return kopf >= Marke::erste && kopf <= Marke::letzte;
}

/// The smallest integer that one byte holds (0x92), the largest being 127. The number of something
/// written before is kept less this much, so that the first 238 numbers take one byte.
inline constexpr qint32 kleinsteEinzelne = -110;

/// The types of the groups in which values stand in the stream.
namespace Typ {
inline constexpr char objekt = '@';
inline constexpr char ganzzahl = 'i';
inline constexpr char gleitkomma = 'f';
inline constexpr char bytes = '+';
} // namespace Typ

/// The classes that these files may hold; `Keine` stands above a root class.
enum class Klasse : quint8 {
    Objekt,
    Text,
    TextVar,
    Verzeichnis,
    VerzeichnisVar,
    Lebensmittel,
    Keine
};

struct Klassenbeschreibung
{
    QByteArrayView name;
    qint32 fassung;
    Klasse oberklasse;
};

inline constexpr std::array<Klassenbeschreibung, 6> klassen = {{
    {"NSObject", 0, Klasse::Keine},
    {"NSString", 1, Klasse::Objekt},
    {"NSMutableString", 1, Klasse::Text},
    {"NSDictionary", 0, Klasse::Objekt},
    {"NSMutableDictionary", 0, Klasse::Verzeichnis},
    {"Datenmodul", 0, Klasse::Objekt},
}};

/// Name, version and superclass of a class other than `Keine`.
constexpr const Klassenbeschreibung &beschreibung(Klasse klasse)
{
    return klassen[static_cast<std::size_t>(klasse)];
}

} // namespace Archivformat
