#pragma once

#include <QList>
#include <QWidget>

class QAbstractButton;

/// A group of switches or of choices that exclude each other. Its cells are the buttons laid out
/// within it, in the order of their property "tag"; other controls may stand between them. Whoever
/// owns the group connects the clicks of its cells.
class Matrix : public QWidget
{
    Q_OBJECT

public:
    explicit Matrix(QWidget *parent = nullptr);

    /// The cells in the order of their tags.
    QList<QAbstractButton *> zellen() const;

    /// The cell with this tag; null when there is none.
    QAbstractButton *zelle(int tag) const;

    /// Whether the cell with this tag is on; no cell is off.
    bool istEin(int tag) const;

    /// The tag of the first cell that is on; −1 when none is.
    int gewaehlterTag() const;

    /// Switches a cell on, as the program does it.
    void waehle(int tag);
};
