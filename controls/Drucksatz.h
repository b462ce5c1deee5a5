#pragma once

#include "Druckzeilen.h"

#include <QSizeF>
#include <QStringList>

class QPointF;

/// A table on paper. Columns are as wide as their texts ask for; where there is no room for that,
/// the wordy ones are broken into lines, and on narrow paper the table is set smaller.
struct Drucktabelle
{
    struct Spalte
    {
        QString kopf;
        bool zahlen = false;   ///< they stand below each other at the right edge
        double mindestens = 0; ///< points that it is wide where there is room for them
    };
    struct Zeile
    {
        QStringList zellen;
        QString darunter = {}; ///< stands below the cells, over the whole width
        bool fett = false;
        bool haelt = false; ///< the next one stands on the same page
    };
    QList<Spalte> spalten;
    QList<Zeile> zeilen;
};

/// Sets texts, tables and pictures one below the other and breaks them into pages. Texts are plain
/// and stand there as they were typed. A paragraph or a row stays on one page unless it is long; a
/// table has its head on each page.
class Drucksatz
{
public:
    /// `seite`: what a page holds, in points. `kopftext` stands at the top of each page but the
    /// first, cut off where it is longer than a line.
    Drucksatz(const QSizeF &seite, const QString &kopftext);

    void absatz(const QString &text, const Druckschrift &schrift = {});
    /// A paragraph whose end stands on the same page as what follows.
    void vorspann(const QString &text);
    /// Stands there as soon as something follows, on the same page. A large one keeps more distance
    /// from what is above it.
    void ueberschrift(const QString &text, const Druckschrift &schrift);
    /// A name at the left edge, and beside it what there is to say.
    void angabe(const QString &name, const QString &inhalt);
    void tabelle(const Drucktabelle &tabelle);
    void bild(const Druckstreifen &bild) { setze({bild}); }
    void linie();
    void abstand(double hoehe);

    double breite() const { return m_seite.width(); }
    int seiten() const { return static_cast<int>(m_seiten.size()); }
    /// Paints a page, counted from 1, with its top left corner at `ecke`.
    void male(QPainter &maler, const QPointF &ecke, int nummer) const;

private:
    bool istLang(const Druckstreifenfolge &gruppe) const;
    void setze(const Druckstreifenfolge &gruppe);
    void lege(const Druckstreifenfolge &folge, const Druckstreifenfolge &kopf);
    void neueSeite(const Druckstreifenfolge &kopf);

    QSizeF m_seite;
    QString m_kopftext;
    QList<Druckstreifenfolge> m_seiten;
    Druckstreifenfolge m_wartend;      ///< headings, until there is what they head
    Druckstreifenfolge m_tabellenkopf; ///< of the table that is being set
    double m_frei;                     ///< what is left of the last page
    bool m_leer = true;                ///< nothing but heads stands on it
};
