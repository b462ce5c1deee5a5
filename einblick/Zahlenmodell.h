#pragma once

#include "Tageszahlen.h"

#include <QAbstractTableModel>

/// The further figures of a day as rows of a table: what it is, with its limits, and how much.
class Zahlenmodell : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Spalte { Angabe, Menge, AnzahlSpalten };

    /// What stands in a cell, a `QList<Zeile>`.
    static constexpr int zeilenrolle = Qt::UserRole;
    /// All that can be told of a row, in several lines of plain text.
    static constexpr int einzelheitenrolle = Qt::UserRole + 1;

    /// One line of a cell.
    struct Zeile
    {
        QString text;
        bool istGrenze = false;                   ///< it stands behind the others
        Grenzurteil urteil = Grenzurteil::Keines; ///< of a limit

        bool operator==(const Zeile &) const = default;
    };

    using QAbstractTableModel::QAbstractTableModel;

    /// From now on these are shown. What is known of the foods tells how rich in purines those are
    /// of which there is no figure.
    void zeige(const QList<Tageszahl> &zahlen, const Stoffwissen &wissen);
    /// The row of the figure of that name on screen; -1: there is none.
    int zeileVon(const QString &name) const;
    /// The language, and with it all texts, are others.
    void folgeSprache();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString einzelheiten(const Tageszahl &zahl) const;
    QString unbekannte(const Tageszahl &zahl) const;

    QList<Tageszahl> m_zahlen;
    Stoffwissen m_wissen;
};

Q_DECLARE_METATYPE(QList<Zahlenmodell::Zeile>)
