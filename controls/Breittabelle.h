#pragma once

#include "Tabellenansicht.h"

#include <QPointer>

class Tabellenkopf;

/// A table that is wider than its window. While it is rolled sideways its first column stays in
/// sight, so that one can read whose values those are; it takes clicks, drags and drops as ever. A
/// first column of more than two thirds of the table would hide the others, and rolls with them.
class Breittabelle : public Tabellenansicht
{
    Q_OBJECT

public:
    explicit Breittabelle(QWidget *parent = nullptr);

    /// Stands below another table from now on, as rows of it that don't roll up and down: with the
    /// same columns, and rolled sideways together with it. This one has the bar to do so; it must
    /// be narrower than the other one by the bar that rolls that one up and down.
    void folge(Breittabelle &obere);

    /// Makes all columns as wide as what stands in them, in this table and in the one that follows
    /// it, and in their headings, where short titles will do.
    void passeSpaltenAn();

    QModelIndex indexAt(const QPoint &ort) const override;
    QRect visualRect(const QModelIndex &index) const override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;
    /// Of a table that follows another one: the height of its rows.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Width of the first column while it stands still in front of the others; 0 while it does not.
    int festeBreite() const;

Q_SIGNALS:
    /// There is more or less room beside one another.
    void breiteGeaendert();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void updateGeometries() override;

private:
    class Festspalte;

    void stelleFestspalte();
    void maleFestspalte(QPainter &painter) const;
    int spaltenbedarf(int spalte) const;

    Tabellenkopf *m_kopf;
    Festspalte *m_spalte;
    QPointer<Breittabelle> m_untere; ///< the table that follows this one
    bool m_folgt = false;            ///< this one follows another one
};
