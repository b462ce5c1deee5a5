#pragma once

#include "Klientenspeicher.h"

#include <QAbstractTableModel>

/// The clients that the list shows: name and number in two columns.
class Klientenmodell : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows these from now on, in this order.
    void setze(const QList<Personenzeile> &personen);

    /// The key of the client in a row; null beyond the rows.
    QString kennung(int zeile) const;
    /// The row of a client; −1 when they are not among those shown.
    int zeileVon(const QString &kennung) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QList<Personenzeile> m_personen;
};
