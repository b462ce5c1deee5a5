#pragma once

#include "Zeichenansicht.h"

/// A level bar without a verdict: grey, in a black outline.
class CustomProgressIndicator : public Zeichenansicht
{
    Q_OBJECT

public:
    explicit CustomProgressIndicator(QWidget *parent = nullptr);

    /// Sets the value that fills the bar; seen at the next repaint.
    void setMaxValue(double wert) { m_maxValue = wert; }
    /// Sets the lower end of the scale. It is held only: the bar is drawn from 0.
    void setMinValue(double wert) { m_minValue = wert; }
    /// Sets the level. It isn't clipped: a level beyond the full scale runs over the outline up to
    /// the view's edge; 0, less or NaN draws nothing.
    void setDoubleValue(double wert);

    double doubleValue() const { return m_value; }
    double minValue() const { return m_minValue; }
    double maxValue() const { return m_maxValue; }

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
};
