#pragma once

#include "Mass.h"
#include "Rangliste.h"

#include <QAbstractTableModel>
#include <QSet>

#include <optional>

/// Ranked foods as the rows of a table. Those without a rank stand last, whatever the rows are
/// sorted by. A food is taken for comparing by the tick beside its name.
class Rangmodell : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Spalte { Rang, Name, Portion, Wert, Anteil, AnzahlSpalten };

    /// What the table shows.
    struct Stand
    {
        QList<Kandidat> kandidaten;           ///< in the order of their names
        QList<std::optional<Mass>> portionen; ///< of each of these
        Rangfrage frage;
        Rangliste liste;
        Stoffwissen wissen = Stoffwissen();
    };

    using QAbstractTableModel::QAbstractTableModel;

    void zeige(const Stand &stand);
    /// Marks these foods, by their places in the list, as taken for comparing.
    void setzeGewaehlte(const QSet<qsizetype> &gewaehlte);
    /// Another language is spoken.
    void folgeSprache();

    /// The food's place in the list of foods; −1 where there is no such row.
    qsizetype stelle(int reihe) const;
    /// The row of a food; −1 where it has none.
    int reihe(qsizetype stelle) const;
    /// Who stands in a row, by key and whether it is an own food; absent where there is none.
    std::optional<std::pair<QString, bool>> wer(int reihe) const;
    /// Where they stand now; −1 where they don't.
    int reiheVon(const std::pair<QString, bool> &wen) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &wert, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// Sorts what has a rank by a column, equal rows by their ranks.
    void sort(int spalte, Qt::SortOrder folge) override;

Q_SIGNALS:
    /// The user wants a food to be taken for comparing, or not to be.
    void wahlGewuenscht(qsizetype stelle, bool ja);

private:
    void ordne();
    double zahl(const Rangplatz &platz) const;
    QString text(const Rangplatz &platz, int spalte) const;
    QString inWorten(const Rangplatz &platz) const;
    bool hatAnteil(const Rangplatz &platz) const;

    Stand m_stand;
    QList<Rangplatz> m_zeilen; ///< as they stand in the table; rank 0: none
    double m_hoechster = 0;    ///< the largest figure of those with a rank
    QSet<qsizetype> m_gewaehlte;
    int m_spalte = Rang;
    Qt::SortOrder m_folge = Qt::AscendingOrder;
};
