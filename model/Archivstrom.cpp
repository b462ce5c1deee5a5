#include "Archivstrom.h"

#include "Archivformat.h"

#include <bit>

using namespace Archivformat;

void Archivstrom::melde(qsizetype position, const QString &grund)
{
    if (heil()) {
        m_schadensort = position;
        m_grund = grund;
    }
}

quint8 Archivstrom::byte()
{
    if (heil() && rest() < 1) {
        melde(m_position, QStringLiteral("the data end too early"));
    }
    return heil() ? static_cast<quint8>(m_bytes[m_position++]) : quint8(0);
}

QByteArrayView Archivstrom::bytes(qsizetype anzahl)
{
    if (heil() && anzahl > rest()) {
        melde(m_position, QStringLiteral("%1 bytes should follow, but the data end after %2")
                              .arg(anzahl)
                              .arg(rest()));
    }
    if (!heil()) {
        return {};
    }
    const QByteArrayView stueck = m_bytes.sliced(m_position, anzahl);
    m_position += anzahl;
    return stueck;
}

qint32 Archivstrom::ganzzahlNach(quint8 kopf)
{
    switch (kopf) {
    case Marke::zweiByte:
        return zahl<qint16>();
    case Marke::vierByte:
        return zahl<qint32>();
    default:
        if (istMarke(kopf)) {
            meldeFalscheMarke(kopf);
            return 0;
        }
        return static_cast<qint8>(kopf);
    }
}

qsizetype Archivstrom::laenge()
{
    const quint8 kopf = byte();
    switch (kopf) {
    case Marke::zweiByte:
        return zahl<quint16>();
    case Marke::vierByte:
        return zahl<quint32>();
    default:
        if (istMarke(kopf)) {
            meldeFalscheMarke(kopf);
            return 0;
        }
        return kopf;
    }
}

float Archivstrom::gleitkommazahl()
{
    const quint8 kopf = byte();
    if (kopf == Marke::gleitkomma) {
        // Moved as bits, so that even the payload of a "not a number" stays as it is.
        return std::bit_cast<float>(zahl<quint32>());
    }
    return static_cast<float>(ganzzahlNach(kopf));
}

void Archivstrom::meldeFalscheMarke(quint8 kopf)
{
    melde(m_position - 1, QStringLiteral("a number should stand here, not the mark %1")
                              .arg(uint(kopf), 2, 16, QLatin1Char('0')));
}
