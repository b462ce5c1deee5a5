#pragma once

#include "Tagesrechnung.h"

#include <QAbstractTableModel>

#include <array>
#include <optional>

/// The seventeen values beside one another for what is chosen, its meal, its day and the mean of
/// the days, with the part of a day's need that the last two are. What is not there is empty, and
/// not 0.
class Summenmodell : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Spalte { Zeile, Mahlzeit, Tag, Tagesanteil, Mittel, Mittelanteil, AnzahlSpalten };

    /// Whether the column holds parts of a day's need, in percent.
    static constexpr bool istAnteil(int spalte)
    {
        return spalte == Tagesanteil || spalte == Mittelanteil;
    }

    /// What the table tells of.
    struct Stand
    {
        std::optional<std::array<float, anzahlNaehrwerte>> zeile;
        std::optional<Plansummen> mahlzeit;
        Tagesrechnung tag;
        Tagesrechnung mittel;
        bool mitBedarf = false; ///< a day's need is known, so that there are parts of it
    };

    using QAbstractTableModel::QAbstractTableModel;

    void zeige(Stand stand);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::optional<double> zahl(Naehrwert wert, int spalte) const;

    Stand m_stand;
};
