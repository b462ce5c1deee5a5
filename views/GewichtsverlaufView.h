#pragma once

#include "Gewichtsverlauf.h"
#include "Zeichenansicht.h"

/// The body weight to expect over the next four weeks, in front of the bands of healthy (green) and
/// unhealthy (red) weight for the height. The scale is fixed: one point is one kilogram, 80 points
/// are a week, and the origin is the bottom left corner.
class GewichtsverlaufView : public Zeichenansicht
{
    Q_OBJECT

public:
    explicit GewichtsverlaufView(QWidget *parent = nullptr);

    /// The weight in whole kilograms; it counts for the projection that `wert3` makes.
    void wert1(int kilogramm);
    /// Today's weight in kg with its fraction, for the words alone. Without it, until the next
    /// `wert1`, they name the whole kilograms.
    void setGewichtHeute(float kilogramm) { m_gewichtHeute = kilogramm; }
    /// The requirement in kcal a day at that weight; it counts for the projection that `wert3`
    /// makes.
    void wert2(int kilokalorien);
    /// The planned intake in kcal a day. Works out the four weeks and asks for a repaint.
    void wert3(int kilokalorien);
    /// The height in metres, which sets the bands. Asks for a repaint.
    void wert4(float meter);

    float gewicht() const { return m_gewicht; }
    int kalorienbedarf() const { return m_kalorienbedarf; }
    int kalorienerrechnet() const { return m_kalorienerrechnet; }
    float groesse() const { return m_groesse; }
    /// The weights today and after one to four weeks, in kg: a, b, c, d and e.
    const Wochengewichte &wochengewichte() const { return m_wochengewichte; }
    float a() const { return m_wochengewichte[0]; }
    float b() const { return m_wochengewichte[1]; }
    float c() const { return m_wochengewichte[2]; }
    float d() const { return m_wochengewichte[3]; }
    float e() const { return m_wochengewichte[4]; }
    /// The weights at body mass index 20 and 25, in kg.
    float unteresbmigewicht() const { return m_unteresbmigewicht; }
    float oberesbmigewicht() const { return m_oberesbmigewicht; }

    /// The curve lies where its weights are, also where it leaves the chart and comes back; it ends
    /// before the first weight that is infinite or undefined.
    ///
    /// Nothing is drawn beyond the chart's 330 by 240 points, however large the view: a weight
    /// above 240 kg can't be seen. The bands end at 230 kg; a band that would begin above that, or
    /// that has no height, is left out.
    void zeichnen(QPainter &maler, const QRectF &bounds) const override;
    /// The course in words: today's weight, and how much more or less it is after each week.
    /// Without a weight it says nothing of it, without a height nothing of what is healthy, and
    /// without either that there is no course yet.
    QString beschreibung() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool brauchtHellenGrund() const override { return true; }

private:
    void zeichneBaender(QPainter &maler) const;
    void zeichneKurve(QPainter &maler) const;
    QString veraenderung(float gewicht) const;

    float m_gewicht = 0;
    float m_gewichtHeute = 0;
    int m_kalorienbedarf = 0;
    int m_kalorienerrechnet = 0;
    float m_groesse = 0;
    Wochengewichte m_wochengewichte = {};
    float m_unteresbmigewicht = 0;
    float m_oberesbmigewicht = 0;
};
