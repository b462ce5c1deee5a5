#include "WertungView.h"

#include "Balken.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <array>

namespace {

struct Urteil
{
    int code;
    Qt::GlobalColor farbe;
    const char *name;        ///< key into the string table
    const char16_t *zeichen; ///< for those who can't tell the colours apart
};

constexpr std::array<Urteil, 3> urteile = {{
    {1, Qt::red, QT_TRANSLATE_NOOP("Mahlberg", "rot"), u"✗"},
    {2, Qt::blue, QT_TRANSLATE_NOOP("Mahlberg", "blau"), u"≈"},
    {3, Qt::green, QT_TRANSLATE_NOOP("Mahlberg", "grün"), u"✓"},
}};

constexpr double einzug = 4;

const Urteil &urteilDer(const QColor &farbe)
{
    return *std::find_if(urteile.begin(), urteile.end(),
                         [&farbe](const Urteil &urteil) { return farbe == urteil.farbe; });
}

} // namespace

WertungView::WertungView(QWidget *parent) : Zeichenansicht(parent) {}

void WertungView::drawaRect(int code)
{
    m_a = code;
    for (const Urteil &urteil : urteile) {
        if (urteil.code == code) {
            m_color = urteil.farbe;
        }
    }
    update();
}

void WertungView::drawabalken(int wert)
{
    m_value = std::min(wert, 100);
    update();
}

void WertungView::zeichnen(QPainter &maler, const QRectF &bounds) const
{
    zeichneBalken(maler, bounds, {m_value, m_maxValue, einzug, m_color, m_color});
}

QString WertungView::beschreibung() const
{
    if (m_value <= 0) {
        return QCoreApplication::translate("Mahlberg", "kein Balken");
    }
    return QCoreApplication::translate("Mahlberg", "%1 von %2, %3")
        .arg(QLocale().toString(m_value), QLocale().toString(m_maxValue),
             QCoreApplication::translate("Mahlberg", urteilDer(m_color).name));
}

QString WertungView::zeichen() const
{
    return m_value > 0 ? QString::fromUtf16(urteilDer(m_color).zeichen) : QString();
}

QSize WertungView::sizeHint() const
{
    return {120, 20};
}

QSize WertungView::minimumSizeHint() const
{
    return {40, 16};
}
