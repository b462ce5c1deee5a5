#pragma once

#include "Zeichenansicht.h"

#include <QColor>

/// A bar from 0 to 100 whose colour carries a verdict.
class WertungView : public Zeichenansicht
{
    Q_OBJECT

public:
    explicit WertungView(QWidget *parent = nullptr);

    /// Takes a verdict: 1 makes the bar red, 2 blue, 3 green; any other code leaves its colour, and
    /// is kept in `a` all the same.
    void drawaRect(int code);
    /// Sets the bar's length in percent; more than 100 counts as 100, and 0 or less draws nothing.
    void drawabalken(int wert);

    double value() const { return m_value; }
    double minValue() const { return m_minValue; }
    double maxValue() const { return m_maxValue; }
    /// The bar's colour now, blue at first.
    const QColor &color() const { return m_color; }
    /// The code given last, known or not.
    int a() const { return m_a; }

    /// The verdict in one character, to stand beside the bar: ✓ green, ≈ blue, ✗ red. Empty while
    /// nothing is drawn.
    QString zeichen() const;

    void zeichnen(QPainter &maler, const QRectF &bounds) const override;
    QString beschreibung() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool brauchtHellenGrund() const override { return m_value > 0; }

private:
    double m_minValue = 0;
    double m_maxValue = 100;
    double m_value = 0;
    QColor m_color = Qt::blue;
    int m_a = 0;
};
