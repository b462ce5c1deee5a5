#pragma once

#include "Wertehalter.h"

#include <QWidget>

class QDoubleSpinBox;
class QSlider;

/// A slider for a number, with the number beside it to be typed. It holds the value that it was
/// given even beyond its range and between its steps; only what the user sets keeps to the range.
/// In the typed number a comma and a point both mean the decimals.
class Schieber : public QWidget, public Wertehalter
{
    Q_OBJECT
    Q_PROPERTY(double minimumValue READ minimumValue WRITE setMinimumValue)
    Q_PROPERTY(double maximumValue READ maximumValue WRITE setMaximumValue)
    Q_PROPERTY(double stepValue READ stepValue WRITE setStepValue)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(QString unit READ unit WRITE setUnit)
    Q_PROPERTY(double doubleValue READ doubleValue WRITE setDoubleValue)

public:
    explicit Schieber(QWidget *parent = nullptr);

    double minimumValue() const { return m_minimum; }
    void setMinimumValue(double minimum);
    double maximumValue() const { return m_maximum; }
    void setMaximumValue(double maximum);
    /// One step of the arrow keys; the slider stands on whole steps from the smallest value.
    double stepValue() const { return m_step; }
    void setStepValue(double step);
    /// Digits behind the comma of the number beside the slider.
    int decimals() const { return m_decimals; }
    void setDecimals(int decimals);
    QString unit() const { return m_unit; }
    void setUnit(const QString &unit);

    /// The held number as it is shown beside the slider, with its unit.
    QString textAufPapier() const;

    /// The two controls inside, for the Tab order and for whoever drives them.
    QSlider *regler() const { return m_regler; }
    QDoubleSpinBox *eingabe() const { return m_eingabe; }

Q_SIGNALS:
    /// The user has moved the slider or typed another number.
    void betaetigt();

protected:
    void wertGesetzt() override;
    QString zahlText(double zahl) const override;
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void einteilen();
    void zeigen();
    double gezeigteZahl() const;
    void beschreibe();
    void reglerBewegt(int stellung);
    void zahlEingegeben(double zahl);

    QSlider *m_regler;
    QDoubleSpinBox *m_eingabe;
    double m_minimum = 0;
    double m_maximum = 100;
    double m_step = 1;
    int m_decimals = 0;
    QString m_unit;
    bool m_veraltet = false;
};
