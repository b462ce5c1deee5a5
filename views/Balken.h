#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

/// What a level bar is made of: a rounded outline with a rounded fill inside it.
struct Balken
{
    double wert;
    double vollausschlag; ///< the value that fills the outline
    double einzug;        ///< distance of the outline from the view's edge
    QColor rand;
    QColor fuellung;
};

/// The width that the fill has before its own inset: the outline's width in proportion to the
/// value, rounded down. A value beyond the full scale gives more than the outline's width. A full
/// scale that is no positive number measures nothing and gives 0.
double fuellbreite(double breite, const Balken &balken);

/// Draws the bar into `bounds` and nothing beside them. A value of 0, below 0 or none at all (NaN)
/// draws nothing, not even the outline.
void zeichneBalken(QPainter &maler, const QRectF &bounds, const Balken &balken);
