#pragma once

#include "Zeichenansicht.h"

/// A split of energy into three shares, as fractions of 1. Nothing is checked: they need not add
/// up.
struct Energieverteilung
{
    float protein;
    float kohlenhydrat;
    float fett;
};

/// Two circles side by side: on the left how a day's energy should be split into protein (green),
/// carbohydrate (blue) and fat (yellow), on the right how it is split.
class NahrstoffraumView : public Zeichenansicht
{
    Q_OBJECT

public:
    explicit NahrstoffraumView(QWidget *parent = nullptr);

    /// The actual share of protein in percent; seen at the next repaint, which `wert3` asks for. So
    /// callers give all three in order.
    void wert1(float prozent);
    /// The actual share of carbohydrate in percent; seen like `wert1`.
    void wert2(float prozent);
    /// The actual share of fat in percent; asks for the repaint.
    void wert3(float prozent);
    /// The amounts in grams. They are held only, and not drawn.
    void grammkreisMitProtein(int protein, int kohlenhydrate, int fett);

    /// The percentages given last: protein, carbohydrate, fat.
    float a() const { return m_a; }
    float b() const { return m_b; }
    float c() const { return m_c; }
    /// The grams given last: protein, carbohydrate, fat.
    int aa() const { return m_aa; }
    int bb() const { return m_bb; }
    int cc() const { return m_cc; }
    const Energieverteilung &sollwerte() const { return m_soll; }
    const Energieverteilung &istwerte() const { return m_ist; }

    /// The radius is a fifth of the width; the centres lie 45 above the middle of the height, which
    /// leaves room for a legend below. Shares below 1 in all leave the rest of the circle empty,
    /// and beyond 1 they run over the first ones. A share that is negative or no number (NaN,
    /// infinite) has no slice.
    void zeichnen(QPainter &maler, const QRectF &bounds) const override;
    QString beschreibung() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool brauchtHellenGrund() const override { return true; }

private:
    float m_a = 15;
    float m_b = 55;
    float m_c = 30;
    Energieverteilung m_soll; ///< what a day's energy should be made of; as created, never changed
    Energieverteilung m_ist;
    int m_aa = 0;
    int m_bb = 0;
    int m_cc = 0;
};
