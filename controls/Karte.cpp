#include "Karte.h"

#include <QPainter>

namespace {

constexpr double ecke = 6;

} // namespace

Karte::Karte(QWidget *parent) : QFrame(parent) {}

void Karte::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Midlight));
    painter.setBrush(palette().base());
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), ecke, ecke);
}
