#include "CustomProgressIndicator.h"

#include "Balken.h"
#include "Zahlenform.h"

#include <QCoreApplication>

namespace {

constexpr double einzug = 1;
/// Half way between black and white; Qt's own gray is a little lighter and bluish.
constexpr QColor grau(128, 128, 128);

} // namespace

CustomProgressIndicator::CustomProgressIndicator(QWidget *parent) : Zeichenansicht(parent) {}

void CustomProgressIndicator::setDoubleValue(double wert)
{
    m_value = wert;
    update();
}

void CustomProgressIndicator::zeichnen(QPainter &maler, const QRectF &bounds) const
{
    zeichneBalken(maler, bounds, {m_value, m_maxValue, einzug, Qt::black, grau});
}

QString CustomProgressIndicator::beschreibung() const
{
    if (!(m_value > 0)) {
        return QCoreApplication::translate("Mahlberg", "kein Balken");
    }
    return QCoreApplication::translate("Mahlberg", "%1 von %2")
        .arg(wertText(m_value, 1), zahlenform().toString(m_maxValue));
}

QSize CustomProgressIndicator::sizeHint() const
{
    return {120, 14};
}

QSize CustomProgressIndicator::minimumSizeHint() const
{
    return {40, 10};
}
