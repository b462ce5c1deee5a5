#pragma once

#include "Aufzeichnung.h"
#include "Tagesrechnung.h"
#include "Zeilenstand.h"

#include <QAbstractTableModel>

#include <optional>

/// One day of a record as the rows of a table: each meal with its name and sums, below it what is
/// eaten, and a last row into which the next food is typed.
class Tagesmodell : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum class Art {
        Mahlzeit,
        Speise,
        Eingabe, ///< the empty row at the end of a meal
    };

    /// What a row of the table is.
    struct Platz
    {
        Art art = Art::Mahlzeit;
        int mahlzeit = 0;
        int zeile = 0; ///< among the rows of the meal; of the last, empty one their number

        bool operator==(const Platz &) const = default;
    };

    /// The columns; behind `Fest` come the four ratings.
    enum Spalte { Name, Angabe, Gramm, Energie, Protein, Fett, Kohlenhydrate, Fest };
    static constexpr int anzahlSpalten = Fest + static_cast<int>(anzahlWertungen);

    using QAbstractTableModel::QAbstractTableModel;

    /// Where rows learn what their foods are like today; without one, none is marked.
    void setNachschlag(Speisenachschlag heute) { m_heute = std::move(heute); }

    /// Shows a day from now on; one that is not there is shown as no rows. A day on which rows can
    /// be typed has the empty ones.
    void zeige(const Aufzeichnung &aufzeichnung, int tag, bool aenderbar);

    /// What the row is; absent beyond the rows.
    std::optional<Platz> platz(int reihe) const;
    /// Where in the table that is; −1 where there is no such row.
    int reihe(const Platz &platz) const;
    /// The row of a meal; null for other rows of the table.
    const Mahlzeitzeile *zeile(int reihe) const;
    /// Whether something can be typed into the cell: the name of a meal, a food, its amount.
    bool beschreibbar(int reihe, int spalte) const;
    /// What stands in the cell as it was typed.
    QString eingabetext(int reihe, int spalte) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString mahlzeitText(int mahlzeit, int spalte) const;
    QString speiseText(const Mahlzeitzeile &zeile, int spalte) const;
    QString erklaerung(const Mahlzeitzeile &zeile) const;
    QString seitdem(const Mahlzeitzeile &zeile) const;

    Speisenachschlag m_heute;
    Aufzeichnung m_aufzeichnung;
    int m_tag = 0;
    bool m_aenderbar = false;
    QList<Platz> m_reihen;
    std::vector<Plansummen> m_summen; ///< meal by meal
};
