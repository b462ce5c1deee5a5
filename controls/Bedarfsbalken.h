#pragma once

#include "Textfarbe.h"

#include <QWidget>

/// How far something covers the need of a day, beside the figure that says so: the verdict's sign,
/// a thin bar from 0 to 100 percent with a mark at the limit of the verdict, and the limit itself.
/// What is more than 100 percent fills the bar.
class Bedarfsbalken : public QWidget
{
    Q_OBJECT

public:
    explicit Bedarfsbalken(QWidget *parent = nullptr);

    /// The share, in percent, from which on the verdict is good.
    void setGrenze(int prozent);
    /// Takes over what the figure shows and its colour; cheap enough to be called for every food
    /// that an action passes.
    void zeige(int prozent, Textfarbe farbe);

    int prozent() const { return m_prozent; }
    Textfarbe farbe() const { return m_farbe; }
    /// How much of the bar is filled, 0 to 1.
    double fuellung() const;
    /// The verdict in one character: ✓ green, ≈ blue, ✗ red; empty while there is none.
    QString zeichen() const;
    /// "ab 10 %", in the user's language.
    QString grenztext() const;
    /// For those who can't see it: "12 %, verfehlt (ab 10 %)", in the user's language.
    QString beschreibung() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QFont kleineSchrift() const;
    QSize groesse(int balkenbreite) const;
    void maleBalken(QPainter &painter, const QRectF &platz) const;

    int m_prozent = 0;
    int m_grenze = 0;
    Textfarbe m_farbe = Textfarbe::Standard;
};
