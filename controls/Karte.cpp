#include "Karte.h"

#include <QPainter>

namespace {

constexpr double ecke = 6;

} // namespace

void maleKarte(QPainter &painter, const QRect &platz, const QPalette &farben)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(farben.color(QPalette::Midlight));
    painter.setBrush(farben.base());
    painter.drawRoundedRect(QRectF(platz).adjusted(0.5, 0.5, -0.5, -0.5), ecke, ecke);
    painter.restore();
}

Karte::Karte(QWidget *parent) : QFrame(parent) {}

void Karte::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    maleKarte(painter, rect(), palette());
}
