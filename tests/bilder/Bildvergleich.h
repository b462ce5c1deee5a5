#pragma once

#include <QImage>
#include <QString>

/// Compares a picture of what is on screen with the one that is expected. Two runs give the same to
/// the last bit, on a busy machine and with the processor's newer instructions switched off, so no
/// number of pixels may differ: a comma in place of a point is three of them. Only the colour of
/// each may be off by a few steps, which is what a processor of another make can round at a soft
/// edge.
class Bildvergleich
{
public:
    /// The largest difference of a colour channel, of 255, that counts as the same.
    static constexpr int spielraum = 6;

    Bildvergleich(const QImage &gesehen, const QImage &erwartet);

    bool gleich() const { return m_gleicheGroesse && m_abweichend == 0; }
    /// What differs, for the message of a failed test; empty where nothing does.
    QString worte() const;
    /// The expected picture, pale, with what differs in red; where one picture reaches beyond the
    /// other, all of that differs.
    const QImage &unterschied() const { return m_unterschied; }

private:
    void vergleicheZeile(int y);

    QImage m_gesehen;
    QImage m_erwartet;
    QImage m_unterschied;
    bool m_gleicheGroesse;
    int m_abweichend = 0; ///< pixels
    QRect m_bereich;      ///< around all of them
};
