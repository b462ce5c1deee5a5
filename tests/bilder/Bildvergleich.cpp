#include "Bildvergleich.h"

#include <QRect>

#include <cstdlib>

namespace {

bool gleichfarbig(QRgb a, QRgb b)
{
    const auto nah = [](int eines, int anderes) {
        return std::abs(eines - anderes) <= Bildvergleich::spielraum;
    };
    return nah(qRed(a), qRed(b)) && nah(qGreen(a), qGreen(b)) && nah(qBlue(a), qBlue(b)) &&
           nah(qAlpha(a), qAlpha(b));
}

/// Light enough for red to stand out, dark enough to see where it stands.
QRgb verblasst(QRgb farbe)
{
    const int grau = 160 + qGray(farbe) * 3 / 8;
    return qRgb(grau, grau, grau);
}

/// Without its ratio, which a file does not keep.
QImage pixel(const QImage &bild)
{
    QImage ergebnis = bild.convertToFormat(QImage::Format_ARGB32);
    ergebnis.setDevicePixelRatio(1);
    return ergebnis;
}

QString masse(const QImage &bild)
{
    return QStringLiteral("%1 x %2").arg(bild.width()).arg(bild.height());
}

} // namespace

Bildvergleich::Bildvergleich(const QImage &gesehen, const QImage &erwartet)
    : m_gesehen(pixel(gesehen))
    , m_erwartet(pixel(erwartet))
    , m_unterschied(m_gesehen.size().expandedTo(m_erwartet.size()), QImage::Format_RGB32)
    , m_gleicheGroesse(gesehen.size() == erwartet.size())
{
    m_unterschied.fill(Qt::red);
    for (int y = 0; y < qMin(m_gesehen.height(), m_erwartet.height()); ++y) {
        vergleicheZeile(y);
    }
}

void Bildvergleich::vergleicheZeile(int y)
{
    const auto *gesehen = reinterpret_cast<const QRgb *>(m_gesehen.constScanLine(y));
    const auto *erwartet = reinterpret_cast<const QRgb *>(m_erwartet.constScanLine(y));
    auto *unterschied = reinterpret_cast<QRgb *>(m_unterschied.scanLine(y));
    for (int x = 0; x < qMin(m_gesehen.width(), m_erwartet.width()); ++x) {
        if (gleichfarbig(gesehen[x], erwartet[x])) {
            unterschied[x] = verblasst(erwartet[x]);
        } else {
            ++m_abweichend;
            m_bereich |= QRect(x, y, 1, 1);
        }
    }
}

QString Bildvergleich::worte() const
{
    if (!m_gleicheGroesse) {
        return QStringLiteral("it is %1 pixels, not %2").arg(masse(m_gesehen), masse(m_erwartet));
    }
    return m_abweichend == 0 ? QString()
                             : QStringLiteral("%1 pixels differ, at %2, %3 in %4 x %5")
                                   .arg(m_abweichend)
                                   .arg(m_bereich.x())
                                   .arg(m_bereich.y())
                                   .arg(m_bereich.width())
                                   .arg(m_bereich.height());
}
