#pragma once

#include "Textfarbe.h"

#include <QAbstractTableModel>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/// How one cell of a table is painted.
struct Zellenbild
{
    QString text;
    bool umrandet = false;           ///< drawn with a border: the cell of the food on display
    std::optional<Textfarbe> anfang; ///< colour of the first character; absent: as the rest
    int anfangspunkte = 0;           ///< size of the first character in points; 0: as the rest
    QString erklaerung = {}; ///< what more there is to say, by the tool tip and to screen readers;
                             ///< null: nothing
};

/// A column of a table: what it is called in the code and on screen.
struct Spalte
{
    QString kennung;
    QString titel;
    QString kurztitel = {};  ///< what is left of the title in a narrow column; null: the title
    QString erklaerung = {}; ///< what the heading says when the mouse rests on it; null: nothing
    Qt::Alignment ausrichtung = Qt::AlignLeft | Qt::AlignVCenter;
    bool bearbeitbar = false; ///< true: the user can type into its cells
};

/// What a controller answers for its table. Rows beyond the controller's lists give absent values.
class Tabellenquelle
{
public:
    virtual ~Tabellenquelle() = default;

    virtual int numberOfRows() const = 0;

    /// The value of a cell; null where there is none.
    virtual QString objectValue(const QString &spalte, int zeile) = 0;

    /// What the row is called for those who can't see it. By default its number from the top.
    virtual QString zeilenname(int zeile);

    /// How the cell is painted, given its value. By default the value as plain text.
    virtual Zellenbild willDisplayCell(const QString &spalte, int zeile, const QString &wert);

    /// The text that a drag of this cell carries; null: nothing can be dragged from here.
    virtual QString writeRows(const QString &spalte, int zeile);

    /// The user has typed a text into a cell of an editable column.
    virtual void setObjectValue(const QString &spalte, int zeile, const QString &text);

    /// Something is held over a row, on it (`auf`) or over the edge above it; below all rows it is
    /// the edge above the row that does not exist yet. Answers above which row it is going to
    /// stand; absent when the table takes nothing.
    virtual std::optional<int> validateDrop(int zeile, bool auf);

    /// A text was dropped above this row.
    virtual void acceptDrop(int zeile, const QString &text);

protected:
    Tabellenquelle() = default;
    Tabellenquelle(const Tabellenquelle &) = default;
    Tabellenquelle &operator=(const Tabellenquelle &) = default;
};

/// Hands a controller's answers to Qt's table. It knows the number of rows that was read at the
/// last `reloadData`, so lists that changed since then can't bring the window down.
class Tabellenmodell : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// A column's short title; invalid when it has none.
    static constexpr int kurztitelrolle = Qt::UserRole;

    explicit Tabellenmodell(QObject *parent = nullptr);

    void setQuelle(Tabellenquelle *quelle, const QList<Spalte> &spalten);
    void reloadData();

    /// Puts another title above a column; the short one stands there while the column is narrow.
    void setTitel(const QString &kennung, const QString &titel, const QString &kurztitel);

    /// Puts each title, short title and explanation through `worte`.
    void beschrifteNeu(const std::function<QString(const QString &)> &worte);

    QString kennung(int spalte) const;
    int spaltenstelle(const QString &kennung) const;
    Tabellenquelle *quelle() const { return m_quelle; }
    Zellenbild bild(const QModelIndex &index) const;

    /// What a drag of this cell carries; null outside of the table and where nothing can be
    /// dragged.
    QString ziehtext(int spalte, int zeile) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &wert, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QStringList mimeTypes() const override;

private:
    Tabellenquelle *m_quelle = nullptr;
    QList<Spalte> m_spalten;
    int m_zeilen = 0;
};
