#include "Balken.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace {

constexpr double strichbreite = 1;
constexpr double fuellungseinzug = 2;

/// A rectangle whose corners are rounded by half its height, which makes its ends half circles.
QPainterPath gerundet(const QRectF &rechteck)
{
    QPainterPath weg;
    weg.addRoundedRect(rechteck, rechteck.height() / 2, rechteck.height() / 2);
    return weg;
}

QRectF eingerueckt(const QRectF &rechteck, double einzug)
{
    return rechteck.adjusted(einzug, einzug, -einzug, -einzug);
}

} // namespace

double fuellbreite(double breite, const Balken &balken)
{
    if (!std::isfinite(balken.vollausschlag) || balken.vollausschlag <= 0) {
        return 0;
    }
    return std::floor(breite * balken.wert / balken.vollausschlag);
}

void zeichneBalken(QPainter &maler, const QRectF &bounds, const Balken &balken)
{
    const QRectF umriss = eingerueckt(bounds, balken.einzug);
    if (!(balken.wert > 0) || umriss.isEmpty()) {
        return;
    }
    maler.save();
    maler.setClipRect(bounds, Qt::IntersectClip);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.strokePath(gerundet(umriss), QPen(balken.rand, strichbreite));

    // A fill this long ends far beyond the bounds; drawing it any longer would change nothing.
    const double laengste = 2 * (umriss.width() + umriss.height());
    QRectF fuellung = umriss;
    fuellung.setWidth(std::fmin(fuellbreite(umriss.width(), balken), laengste));
    fuellung = eingerueckt(fuellung, fuellungseinzug);
    if (!fuellung.isEmpty()) {
        maler.fillPath(gerundet(fuellung), balken.fuellung);
    }
    maler.restore();
}
