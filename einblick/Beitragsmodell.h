#pragma once

#include "Beitraege.h"

#include <QAbstractTableModel>

/// The foods that give something, as rows of a table; those of which it is unknown stand last. Or
/// the foods that do not suit.
class Beitragsmodell : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Spalte { Name, Gramm, Menge, Anteil, AnzahlSpalten };

    using QAbstractTableModel::QAbstractTableModel;

    /// From now on these are shown.
    void zeige(const Beitraege &alle, Kenngroesse groesse);
    /// From now on these are shown, whose shares are those of the grams; the column of the amount
    /// is then empty.
    void zeige(const QList<Ungeeignetes> &alle);

    /// The food in this row of the table; empty: there is no such row.
    QString schluessel(int zeile) const { return m_zeilen.value(zeile).schluessel; }
    /// The row of this food; -1: it has none.
    int zeileVon(const QString &schluessel) const;
    /// Where the rows of the food in this row of the table stand, see `Speise::ort`.
    QList<int> orte(int zeile) const { return m_zeilen.value(zeile).orte; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const Beitrag &zeile, int spalte) const;
    QString inWorten(const Beitrag &zeile) const;

    QList<Beitrag> m_zeilen;
    std::optional<Kenngroesse> m_groesse; ///< absent: the foods do not suit
};
