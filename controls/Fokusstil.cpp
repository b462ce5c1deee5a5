#include "Fokusstil.h"

#include "Textfarbe.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QPainter>
#include <QStyleOption>

namespace {

constexpr int rahmenbreite = 2;

bool hatTastatur(const QStyleOption &option)
{
    constexpr QStyle::State beides = QStyle::State_HasFocus | QStyle::State_Enabled;
    return (option.state & beides) == beides;
}

/// The line to type into within another control, which has the frame around both.
bool istInnenzeile(const QWidget *widget)
{
    const QWidget *mutter = widget != nullptr ? widget->parentWidget() : nullptr;
    return qobject_cast<const QComboBox *>(mutter) != nullptr ||
           qobject_cast<const QAbstractSpinBox *>(mutter) != nullptr;
}

/// The style's own edge is darker than the window, and in the dark nobody sees where a field is.
bool brauchtRand(QStyle::PrimitiveElement element, const QStyleOption &option,
                 const QWidget *widget)
{
    if (!istDunkel(option.palette)) {
        return false;
    }
    const auto *feld = qstyleoption_cast<const QStyleOptionFrame *>(&option);
    return element == QStyle::PE_IndicatorCheckBox || element == QStyle::PE_IndicatorRadioButton ||
           (element == QStyle::PE_PanelLineEdit && feld != nullptr && feld->lineWidth > 0 &&
            !istInnenzeile(widget));
}

void maleRand(QStyle::PrimitiveElement element, const QStyleOption &option, QPainter &painter)
{
    const QRect platz = option.rect.adjusted(0, 0, -1, -1);
    painter.save();
    painter.setPen(option.palette.color(QPalette::PlaceholderText));
    painter.setBrush(Qt::NoBrush);
    if (element == QStyle::PE_IndicatorRadioButton) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawEllipse(QRectF(platz).adjusted(0.5, 0.5, -0.5, -0.5));
    } else {
        painter.drawRect(platz);
    }
    painter.restore();
}

bool istTabelle(const QWidget *widget)
{
    return qobject_cast<const QAbstractItemView *>(widget) != nullptr;
}

} // namespace

void maleFokus(QPainter &painter, const QRect &platz, const QPalette &palette, bool aufAkzent)
{
    const QRect innen = platz.adjusted(rahmenbreite, rahmenbreite, -rahmenbreite, -rahmenbreite);
    const QColor farbe = palette.color(aufAkzent ? QPalette::HighlightedText : QPalette::Highlight);
    for (const QRect &strich : QRegion(platz).subtracted(innen)) {
        painter.fillRect(strich, farbe);
    }
}

Fokusstil::Fokusstil() : QProxyStyle(QStringLiteral("Fusion")) {}

void Fokusstil::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                              QPainter *painter, const QWidget *widget) const
{
    if (element == PE_FrameFocusRect) {
        const auto *grund = qstyleoption_cast<const QStyleOptionFocusRect *>(option);
        maleFokus(*painter, option->rect, option->palette,
                  grund != nullptr && istTabelle(widget) &&
                      grund->backgroundColor == option->palette.color(QPalette::Highlight));
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (brauchtRand(element, *option, widget)) {
        maleRand(element, *option, *painter);
    }
    if (element == PE_PanelLineEdit && hatTastatur(*option) && !istInnenzeile(widget)) {
        maleFokus(*painter, option->rect, option->palette);
    }
}

void Fokusstil::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    if (!hatTastatur(*option)) {
        return;
    }
    if (element == CE_ShapedFrame || element == CE_PushButton) { // lists, tables and texts too
        maleFokus(*painter, option->rect, option->palette);
    } else if (element == CE_TabBarTabLabel) {
        maleFokus(*painter, option->rect.adjusted(3, 3, -3, -3), option->palette);
    }
}

void Fokusstil::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                   QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    const bool umrahmt = control == CC_SpinBox || control == CC_ComboBox || control == CC_Slider;
    if (umrahmt && hatTastatur(*option)) {
        maleFokus(*painter, option->rect, option->palette);
    }
}

int Fokusstil::pixelMetric(PixelMetric metric, const QStyleOption *option,
                           const QWidget *widget) const
{
    return metric == PM_DefaultFrameWidth && istTabelle(widget)
               ? rahmenbreite
               : QProxyStyle::pixelMetric(metric, option, widget);
}
