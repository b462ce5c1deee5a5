#pragma once

#include "Druckzeilen.h"

#include <QPointF>
#include <QSizeF>

/// What stands together in a column: a heading, and below it parts that are not divided where that
/// can be helped.
struct Spaltenblock
{
    Druckstreifenfolge kopf;
    Druckstreifenfolge fortsetzung; ///< stands above what goes on in another column
    QList<Druckstreifenfolge> teile;
};

/// Sets blocks into columns side by side, and those into pages.
class Spaltensatz
{
public:
    struct Papier
    {
        QSizeF seite; ///< what a page holds, in points
        int spalten = 1;
        double abstand = 20;     ///< between columns
        double blockabstand = 0; ///< between blocks
    };

    /// `seitenkopf` stands at the top of each page but the first.
    Spaltensatz(const Papier &papier, Druckstreifenfolge seitenkopf);

    /// Over all columns; what is set later begins below it.
    void oben(const Druckstreifenfolge &folge);
    /// With `ganze` a block that does not fit below the others begins a column; else each column is
    /// filled. A block that is longer than a column goes on in the next.
    void setze(const QList<Spaltenblock> &bloecke, bool ganze);

    double spaltenbreite() const { return spaltenbreite(m_papier); }
    static double spaltenbreite(const Papier &papier);
    int spalten() const { return m_papier.spalten; }
    int seiten() const { return static_cast<int>(m_seiten.size()); }
    /// Paints a page, counted from 1, with its top left corner at `ecke`.
    void male(QPainter &maler, const QPointF &ecke, int nummer) const;

private:
    struct Stueck
    {
        QPointF ort;
        Druckstreifen streifen;
    };

    double frei() const { return m_papier.seite.height() - m_unten; }
    bool passt(double hoehe) const;
    bool istLang(const Druckstreifenfolge &folge) const;
    void setzeTeil(const Druckstreifenfolge &teil, const Spaltenblock &block);
    void lege(const Druckstreifenfolge &folge);
    void neueSeite();
    void neueSpalte();

    Papier m_papier;
    Druckstreifenfolge m_seitenkopf;
    QList<QList<Stueck>> m_seiten;
    double m_anfang = 0; ///< where the columns of the last page begin
    double m_unten = 0;  ///< where the next strip goes
    int m_spalte = 0;
    bool m_leer = true; ///< nothing but heads stands in the column
};
