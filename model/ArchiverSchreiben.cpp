#include "Archiver.h"

#include "Archivformat.h"

#include <QHash>
#include <QtEndian>

#include <bit>
#include <cmath>
#include <limits>
#include <optional>

using namespace Archivformat;

namespace {

/// Room for a usual food, so that the bytes seldom move while they grow.
constexpr qsizetype ueblicherEintrag = 160;

class Archivschreiber
{
public:
    QByteArray schreibe(const Lebensmittelverzeichnis &verzeichnis);

private:
    void schreibeText(const QString &text);
    void schreibeLebensmittel(const Datenmodul &lebensmittel);

    void schreibeByte(quint8 byte) { m_bytes.append(static_cast<char>(byte)); }
    template <typename Zahl>
    void schreibeZahl(Zahl zahl);
    void schreibeGanzzahl(qint32 zahl);
    void schreibeLaenge(qsizetype laenge);
    void schreibeGleitkommazahl(float zahl);
    void schreibeVerweis(qint32 nummer) { schreibeGanzzahl(nummer + kleinsteEinzelne); }
    void schreibeBytes(QByteArrayView bytes);
    void schreibeTyp(char typ);
    void beginneObjekt(Klasse klasse);

    QByteArray m_bytes;
    qint32 m_kennungen = 0;                         ///< numbers given to type codes and class names
    qint32 m_nummeriert = 0;                        ///< numbers given to objects and classes
    std::array<std::optional<qint32>, 128> m_typen; ///< by letter
    std::array<std::optional<qint32>, klassen.size()> m_klassen;
    QHash<QString, qint32> m_texte; ///< never 0, which is the number of the whole store
};

QByteArray Archivschreiber::schreibe(const Lebensmittelverzeichnis &verzeichnis)
{
    m_bytes.reserve((verzeichnis.size() + 1) * ueblicherEintrag);
    m_texte.reserve(verzeichnis.size() + 1);
    schreibeByte(streamfassung);
    schreibeBytes(signaturLittleEndian);
    schreibeGanzzahl(systemfassung);

    schreibeTyp(Typ::objekt);
    beginneObjekt(Klasse::VerzeichnisVar);
    schreibeTyp(Typ::ganzzahl);
    schreibeGanzzahl(static_cast<qint32>(verzeichnis.size()));
    for (auto eintrag = verzeichnis.cbegin(); eintrag != verzeichnis.cend(); ++eintrag) {
        // The name of an entry can't be absent: a file with such a one could not be read again.
        schreibeText(eintrag.key().isNull() ? QString(QLatin1String("")) : eintrag.key());
        schreibeLebensmittel(eintrag.value());
    }
    schreibeByte(Marke::ende);
    return m_bytes;
}

/// A text that was written before is referred to, whoever it belongs to.
void Archivschreiber::schreibeText(const QString &text)
{
    schreibeTyp(Typ::objekt);
    if (text.isNull()) {
        schreibeByte(Marke::nil);
        return;
    }
    qint32 &nummer = m_texte[text];
    if (nummer != 0) {
        schreibeVerweis(nummer);
        return;
    }
    nummer = m_nummeriert;
    beginneObjekt(Klasse::Text);
    schreibeTyp(Typ::bytes);
    schreibeBytes(text.toUtf8());
    schreibeByte(Marke::ende);
}

void Archivschreiber::schreibeLebensmittel(const Datenmodul &lebensmittel)
{
    schreibeTyp(Typ::objekt);
    beginneObjekt(Klasse::Lebensmittel);
    schreibeText(lebensmittel.name());
    for (const auto &zeile : naehrwerte) {
        schreibeTyp(Typ::gleitkomma);
        schreibeGleitkommazahl(lebensmittel.wert(zeile.wert));
    }
    for (const auto &zeile : wertungen) {
        schreibeText(lebensmittel.wertung(zeile.wertung));
    }
    schreibeByte(Marke::ende);
}

template <typename Zahl>
void Archivschreiber::schreibeZahl(Zahl zahl)
{
    const Zahl klein = qToLittleEndian(zahl);
    m_bytes.append(reinterpret_cast<const char *>(&klein), sizeof(klein));
}

void Archivschreiber::schreibeGanzzahl(qint32 zahl)
{
    if (zahl >= kleinsteEinzelne && zahl <= std::numeric_limits<qint8>::max()) {
        schreibeByte(static_cast<quint8>(zahl));
    } else if (zahl == static_cast<qint16>(zahl)) {
        schreibeByte(Marke::zweiByte);
        schreibeZahl(static_cast<qint16>(zahl));
    } else {
        schreibeByte(Marke::vierByte);
        schreibeZahl(zahl);
    }
}

void Archivschreiber::schreibeLaenge(qsizetype laenge)
{
    if (laenge <= std::numeric_limits<qint8>::max()) {
        schreibeByte(static_cast<quint8>(laenge));
    } else if (laenge <= std::numeric_limits<quint16>::max()) {
        schreibeByte(Marke::zweiByte);
        schreibeZahl(static_cast<quint16>(laenge));
    } else {
        schreibeByte(Marke::vierByte);
        schreibeZahl(static_cast<quint32>(laenge));
    }
}

/// A whole number within 32 bits stands as an integer, save for negative zero, which would lose its
/// sign.
void Archivschreiber::schreibeGleitkommazahl(float zahl)
{
    constexpr float grenze = 2147483648.0F;
    const bool ganz = zahl >= -grenze && zahl < grenze && std::trunc(zahl) == zahl;
    if (ganz && !(zahl == 0.0F && std::signbit(zahl))) {
        schreibeGanzzahl(static_cast<qint32>(zahl));
    } else {
        schreibeByte(Marke::gleitkomma);
        schreibeZahl(std::bit_cast<quint32>(zahl));
    }
}

void Archivschreiber::schreibeBytes(QByteArrayView bytes)
{
    schreibeLaenge(bytes.size());
    m_bytes.append(bytes);
}

void Archivschreiber::schreibeTyp(char typ)
{
    auto &nummer = m_typen[static_cast<unsigned char>(typ)];
    if (nummer) {
        schreibeVerweis(*nummer);
        return;
    }
    nummer = m_kennungen++;
    schreibeByte(Marke::neu);
    schreibeBytes(QByteArrayView(&typ, 1));
}

/// Begins a new object: its number, then its class with those above it, as far as they are new.
void Archivschreiber::beginneObjekt(Klasse klasse)
{
    schreibeByte(Marke::neu);
    ++m_nummeriert;
    for (; klasse != Klasse::Keine; klasse = beschreibung(klasse).oberklasse) {
        auto &nummer = m_klassen[static_cast<std::size_t>(klasse)];
        if (nummer) {
            schreibeVerweis(*nummer);
            return;
        }
        nummer = m_nummeriert++;
        schreibeByte(Marke::neu);
        schreibeByte(Marke::neu);
        ++m_kennungen;
        schreibeBytes(beschreibung(klasse).name);
        schreibeGanzzahl(beschreibung(klasse).fassung);
    }
    schreibeByte(Marke::nil);
}

} // namespace

QByteArray Archiver::write(const Lebensmittelverzeichnis &verzeichnis)
{
    return Archivschreiber().schreibe(verzeichnis);
}
