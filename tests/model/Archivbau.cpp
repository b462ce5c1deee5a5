#include "Archivbau.h"

#include <QtEndian>

#include <bit>

namespace Archivbau {

namespace {

template <typename Zahl>
QByteArray zahl(Zahl wert, Folge folge)
{
    QByteArray bytes(static_cast<qsizetype>(sizeof(Zahl)), '\0');
    if (folge == Folge::BigEndian) {
        qToBigEndian(wert, bytes.data());
    } else {
        qToLittleEndian(wert, bytes.data());
    }
    return bytes;
}

QByteArray wort(const QByteArray &wort, Folge folge)
{
    const QByteArray rest = wort.mid(2);
    if (wort.startsWith('\'')) {
        return wort.mid(1, wort.size() - 2);
    }
    if (wort.startsWith("s:")) {
        return zahl(static_cast<quint16>(rest.toInt()), folge);
    }
    if (wort.startsWith("l:")) {
        return zahl(static_cast<quint32>(rest.toLongLong()), folge);
    }
    if (wort.startsWith("f:")) {
        return zahl(std::bit_cast<quint32>(rest.toFloat()), folge);
    }
    if (wort.startsWith("x:")) {
        return zahl(rest.toUInt(nullptr, 16), folge);
    }
    return QByteArray::fromHex(wort);
}

/// A reference to an object or class in the shortest form.
QByteArray verweis(int nummer, Folge folge)
{
    const int wert = nummer - 110;
    if (wert <= 127) {
        return {1, static_cast<char>(wert)};
    }
    if (wert <= 32767) {
        return '\x81' + zahl(static_cast<qint16>(wert), folge);
    }
    return '\x82' + zahl(wert, folge);
}

} // namespace

QByteArray bytes(const QByteArray &beschreibung, Folge folge)
{
    QByteArray ergebnis;
    const auto woerter = beschreibung.simplified().split(' ');
    for (const QByteArray &einzelnes : woerter) {
        ergebnis += wort(einzelnes, folge);
    }
    return ergebnis;
}

QByteArray vorspann(Folge folge)
{
    const QByteArray signatur = folge == Folge::BigEndian ? "'typedstream'" : "'streamtyped'";
    return bytes("04 0B " + signatur + " 81 s:1000", folge);
}

QByteArray datei(const QByteArray &beschreibung, Folge folge)
{
    return vorspann(folge) + bytes(beschreibung, folge);
}

QByteArray nullwerte()
{
    return "84 01 'f' 00 " + QByteArray("9A 00 ").repeated(16);
}

QByteArray einEintrag()
{
    return verzeichnisAnfang + "01 " + ersterText + "02 'Ei' 86 " + erstesLebensmittel + "92 96 " +
           nullwerte() + keineWertungen + "86 86";
}

QByteArray beispiel(Folge folge)
{
    return datei(verzeichnisAnfang + "01 " + ersterText + "02 'Ei' 86 " + erstesLebensmittel +
                     "92 96 84 01 'f' 81 s:155 9A 83 f:12.6 9A 83 f:10.6 " +
                     QByteArray("9A 00 ").repeated(14) +
                     "92 84 97 98 01 '0' 86 92 84 97 98 01 '+' 86 92 9B 92 84 97 98 01 '-' 86 "
                     "86 86",
                 folge);
}

QByteArray beispielBytes()
{
    return QByteArray::fromHex("04 0B 73 74 72 65 61 6D 74 79 70 65 64 81 E8 03"
                               "84 01 40 84 84 84 13 4E 53 4D 75 74 61 62 6C 65"
                               "44 69 63 74 69 6F 6E 61 72 79 00 84 84 0C 4E 53"
                               "44 69 63 74 69 6F 6E 61 72 79 00 84 84 08 4E 53"
                               "4F 62 6A 65 63 74 00 85 84 01 69 01 92 84 84 84"
                               "08 4E 53 53 74 72 69 6E 67 01 95 84 01 2B 02 45"
                               "69 86 92 84 84 84 0A 44 61 74 65 6E 6D 6F 64 75"
                               "6C 00 95 92 96 84 01 66 81 9B 00 9A 83 9A 99 49"
                               "41 9A 83 9A 99 29 41 9A 00 9A 00 9A 00 9A 00 9A"
                               "00 9A 00 9A 00 9A 00 9A 00 9A 00 9A 00 9A 00 9A"
                               "00 9A 00 92 84 97 98 01 30 86 92 84 97 98 01 2B"
                               "86 92 9B 92 84 97 98 01 2D 86 86 86");
}

Lebensmittelverzeichnis beispielVerzeichnis()
{
    Datenmodul ei;
    ei.setName(QStringLiteral("Ei"));
    ei.setkal(155);
    ei.setprotein(12.6F);
    ei.setfett(10.6F);
    ei.setuebergewicht(QStringLiteral("0"));
    ei.setdiabetes(QStringLiteral("+"));
    ei.setgicht(QStringLiteral("+"));
    ei.sethkk(QStringLiteral("-"));
    return {{ei.name(), ei}};
}

QByteArray vieleEintraege(int anzahl, Folge folge)
{
    const QByteArray nullen = QByteArray("\x9A\x00", 2).repeated(16);
    const QByteArray keine = bytes(keineWertungen) + '\x86';
    QByteArray ergebnis = datei(verzeichnisAnfang + "82 l:" + QByteArray::number(anzahl), folge);
    for (int i = 0; i < anzahl; ++i) {
        const QByteArray name = 'L' + QByteArray::number(i).rightJustified(7, '0');
        const QByteArray wert = "\x82" + zahl(i, folge);
        if (i == 0) {
            ergebnis += bytes(ersterText + "08 '" + name + "' 86 " + erstesLebensmittel +
                              "92 96 84 01 'f'") +
                        wert + nullen + keine;
            continue;
        }
        // The first entry took the numbers 4 to 7, two of them for classes.
        const int nummer = 8 + 2 * (i - 1);
        ergebnis += bytes("92 84 97 98 08") + name + bytes("86 92 84 99 92") +
                    verweis(nummer, folge) + '\x9A' + wert + nullen + keine;
    }
    return ergebnis + '\x86';
}

} // namespace Archivbau

namespace {

bool gleich(const QString &a, const QString &b)
{
    return a == b && a.isNull() == b.isNull();
}

bool gleich(const Datenmodul &a, const Datenmodul &b)
{
    bool ja = gleich(a.name(), b.name());
    for (const auto &zeile : naehrwerte) {
        ja = ja && std::bit_cast<quint32>(a.wert(zeile.wert)) ==
                       std::bit_cast<quint32>(b.wert(zeile.wert));
    }
    for (const auto &zeile : wertungen) {
        ja = ja && gleich(a.wertung(zeile.wertung), b.wertung(zeile.wertung));
    }
    return ja;
}

} // namespace

bool gleich(const Lebensmittelverzeichnis &a, const Lebensmittelverzeichnis &b)
{
    return std::equal(a.keyValueBegin(), a.keyValueEnd(), b.keyValueBegin(), b.keyValueEnd(),
                      [](const auto &x, const auto &y) {
                          return gleich(x.first, y.first) && gleich(x.second, y.second);
                      });
}
