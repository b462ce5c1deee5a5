#pragma once

#include "Vorschlaege.h"

#include <QAbstractTableModel>

/// What a suggestion does to each aim, before it is taken: the aim, how much before and after, and
/// whether that is better or worse, by a sign and a word.
class Wirkungsmodell : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Spalte { Ziel, Menge, Urteil, AnzahlSpalten };

    using QAbstractTableModel::QAbstractTableModel;

    void zeige(const QList<Wirkung> &wirkungen);
    const QList<Wirkung> &wirkungen() const { return m_wirkungen; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QList<Wirkung> m_wirkungen;
};
