#pragma once

#include <QProxyStyle>

class QPainter;
class QPalette;

/// Paints the frame that shows where the keyboard works: 2 px inside the edges, in the accent. On a
/// ground that is itself of the accent (a chosen row) it has the colour of the text there.
void maleFokus(QPainter &painter, const QRect &platz, const QPalette &palette,
               bool aufAkzent = false);

/// The look of all windows: as calm as its ground "Fusion", but whatever has the keyboard has a
/// frame that is seen from afar, also by those who see little, and after a click as well.
class Fokusstil : public QProxyStyle
{
    Q_OBJECT

public:
    Fokusstil();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override;
    /// A table's frame is as wide as that of the keyboard, so that nothing moves when it comes.
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override;
};
