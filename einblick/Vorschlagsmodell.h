#pragma once

#include "Vorschlaege.h"

#include <QAbstractTableModel>

/// The suggestions as rows of a table: the food with its portion, what it brings of the aim, and
/// its four ratings.
class Vorschlagsmodell : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Spalte { Lebensmittel, Bringt, Wertungszeichen, AnzahlSpalten };

    using QAbstractTableModel::QAbstractTableModel;

    /// From now on these are shown, for that aim; absent: for all of them together. `speisen` are
    /// the rows whose place some of them take.
    void zeige(const QList<Vorschlag> &vorschlaege, const Speisen &speisen,
               std::optional<Kenngroesse> ziel);
    const QList<Vorschlag> &vorschlaege() const { return m_vorschlaege; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString lebensmittel(const Vorschlag &vorschlag) const;
    QString bringt(const Vorschlag &vorschlag) const;

    QList<Vorschlag> m_vorschlaege;
    Speisen m_speisen;
    std::optional<Kenngroesse> m_ziel;
};
