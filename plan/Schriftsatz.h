#pragma once

#include <QCache>
#include <QString>
#include <QTextLayout>

#include <utility>

class QPainter;
class QRectF;

/// Writes short texts in Helvetica. Making letters of a text takes far longer than putting them on
/// paper, and a list of numbers has the same ones over and over: what was set once is kept.
class Schriftsatz
{
public:
    /// Draws one line of text of this size in points from the left upper corner of `platz`. Text
    /// that is wider than its place is narrowed, so that it runs neither into its neighbour nor off
    /// the paper.
    void zeichne(QPainter &maler, const QRectF &platz, int groesse, const QString &text);

private:
    struct Zeile
    {
        QTextLayout satz;
        double breite = 0; ///< points, without blanks at the end
    };

    const Zeile &gesetzt(int groesse, const QString &text);

    static constexpr qsizetype meisteZeilen = 10000; ///< some ten megabytes

    QCache<std::pair<int, QString>, Zeile> m_zeilen =
        QCache<std::pair<int, QString>, Zeile>(meisteZeilen);
};
