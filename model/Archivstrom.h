#pragma once

#include <QByteArrayView>
#include <QString>
#include <QtEndian>

/// A walk over the bytes of an archive, value by value. The first fault sticks: from then on every
/// read gives zero and moves nothing, so that a caller needs to look only where it would loop or
/// keep something.
class Archivstrom
{
public:
    explicit Archivstrom(QByteArrayView bytes) : m_bytes(bytes) {}

    /// The byte order of all numbers to come; little-endian at first.
    void setBigEndian(bool bigEndian) { m_bigEndian = bigEndian; }

    bool heil() const { return m_grund.isNull(); }
    qsizetype position() const { return m_position; }
    qsizetype rest() const { return m_bytes.size() - m_position; }

    /// Where and why the walk ended; position 0 and a null text while all is well.
    qsizetype schadensort() const { return m_schadensort; }
    const QString &grund() const { return m_grund; }

    /// Ends the walk. Only the first call counts; the text must not be null.
    void melde(qsizetype position, const QString &grund);

    quint8 byte();
    QByteArrayView bytes(qsizetype anzahl);

    /// A signed integer in one of its three forms.
    qint32 ganzzahl() { return ganzzahlNach(byte()); }
    /// The same when its first byte has been read already.
    qint32 ganzzahlNach(quint8 kopf);
    /// A length, which is unsigned in each of the three forms.
    qsizetype laenge();
    /// A single-precision value, written as such or as an integer.
    float gleitkommazahl();

private:
    void meldeFalscheMarke(quint8 kopf);

    template <typename Zahl>
    Zahl zahl()
    {
        const QByteArrayView roh = bytes(static_cast<qsizetype>(sizeof(Zahl)));
        if (roh.isEmpty()) {
            return {};
        }
        return m_bigEndian ? qFromBigEndian<Zahl>(roh.data()) : qFromLittleEndian<Zahl>(roh.data());
    }

    QByteArrayView m_bytes;
    qsizetype m_position = 0;
    bool m_bigEndian = false;
    qsizetype m_schadensort = 0;
    QString m_grund;
};
