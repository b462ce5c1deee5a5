#pragma once

#include "Mass.h"
#include "Vergleich.h"

#include <QAbstractTableModel>

#include <optional>

/// Foods side by side: a row for each figure and each rating, a column for each food. A better
/// figure has a sign before it and is bold.
class Vergleichsmodell : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// What the table shows.
    struct Stand
    {
        QList<Kandidat> kandidaten;
        QList<std::optional<Mass>> portionen; ///< of each of these
        Bezug bezug = Bezug::Je100g;
        Stoffwissen wissen = Stoffwissen();
    };

    using QAbstractTableModel::QAbstractTableModel;

    void zeige(const Stand &stand);
    /// Another language is spoken.
    void folgeSprache();

    const QList<Kandidat> &kandidaten() const { return m_stand.kandidaten; }
    const QList<Vergleichsreihe> &reihen() const { return m_reihen; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    /// The rows from top to bottom: how much the figures are of, all figures, all ratings.
    enum class Art { Portion, Zahl, Wertung };
    struct Zeile
    {
        Art art = Art::Zahl;
        std::size_t stelle = 0; ///< among those of its kind
    };

    Zeile zeile(int reihe) const;
    QString kopf(const Zeile &zeile) const;
    QString text(const Zeile &zeile, int spalte) const;
    bool istBesser(const Zeile &zeile, int spalte) const;
    QString inWorten(const Zeile &zeile, int spalte) const;

    Stand m_stand;
    QList<Vergleichsreihe> m_reihen;
};
