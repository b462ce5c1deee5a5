#pragma once

#include <QFrame>

/// A group of things that belong together, on the colour of tables and fields, with a line around
/// it and round corners.
class Karte : public QFrame
{
    Q_OBJECT

public:
    explicit Karte(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// Draws such a ground where there is no widget of its own for it.
void maleKarte(QPainter &painter, const QRect &platz, const QPalette &farben);
