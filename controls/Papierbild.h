#pragma once

#include "Drucktuer.h"
#include "Textfarbe.h"

#include <QPicture>
#include <QSizeF>
#include <QStringList>

class QWidget;

/// A rating as it stands above a picture: what it is about, the sign with its word, and the colour
/// of both.
struct Papierwertung
{
    QString bezeichnung;
    QString urteil;
    Textfarbe farbe = Textfarbe::Standard;
};

/// How a part of a window looks on paper: as on the screen at the moment of asking, but black on
/// white under every theme, without what only a screen needs, and drawn in lines and letters rather
/// than in pixels.
class Papierbild
{
public:
    explicit Papierbild(QWidget &flaeche);

    /// The size of the part on the screen, in points of the layout.
    QSizeF groesse() const { return m_groesse; }

    /// How many times as large as on the screen it is drawn into a place of this size.
    double vergroesserung(const QSizeF &platz) const;

    /// Draws the picture into `ziel`, as large as it fits there, at its top left corner.
    void male(QPainter &maler, const QRectF &ziel) const;

private:
    QPicture m_bild;
    QSizeF m_groesse;
};

/// A print of a part of a window as it looks now, on one page, below lines that say what it is, and
/// ratings side by side. The first line is the name of the print.
Druckauftrag bildauftrag(const QStringList &ueberschriften, QWidget &flaeche,
                         const QList<Papierwertung> &wertungen = {});

/// The same of a part that can be arranged in several ways: each page gets the picture that comes
/// out largest on it. There is one picture at least.
Druckauftrag bildauftrag(const QStringList &ueberschriften, const QList<Papierbild> &bilder,
                         const QList<Papierwertung> &wertungen = {});
