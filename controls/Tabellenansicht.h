#pragma once

#include "Tabellenmodell.h"

#include <QPersistentModelIndex>
#include <QTableView>

#include <optional>

/// A table that follows its controller (`Tabellenquelle`). A cell is chosen with the mouse or the
/// arrow keys; the action then finds the chosen row and the column in which it was chosen. The
/// mouse chooses when it is let go: a drag chooses nothing and moves nothing. Where the controller
/// takes drops (and `acceptDrops` is on), a line shows where they go. Alt+Left and Alt+Right make
/// the column of the keyboard's cell narrower and wider, as drawing its border does.
class Tabellenansicht : public QTableView
{
    Q_OBJECT
    /// True: solid lines between the columns and dashed ones between the rows.
    Q_PROPERTY(bool gitter READ gitter WRITE setGitter)
    /// Height of a row in points of the layout.
    Q_PROPERTY(int rowHeight READ rowHeight WRITE setRowHeight)
    /// What stands in the middle of a table without rows.
    Q_PROPERTY(QString hinweis READ hinweis WRITE setHinweis)

public:
    explicit Tabellenansicht(QWidget *parent = nullptr);

    void setQuelle(Tabellenquelle *quelle, const QList<Spalte> &spalten);

    /// The widths that the columns have at least, in points of the layout; a narrower table rolls
    /// sideways. Where there is more room, the first column gets as much as its longest entry
    /// needs, and the last one what is left; but a first column whose width the user has set keeps
    /// it.
    void setSpaltenbreiten(const QList<int> &breiten);

    /// Reads the number of rows anew and paints what stands in them; cheap enough to be called for
    /// every single entry of a list that grows.
    void reloadData();

    /// In these columns the arrow keys only move the cursor, and Return chooses.
    void setBestaetigungsspalten(const QStringList &kennungen) { m_bestaetigt = kennungen; }

    /// Moves the keyboard's cursor to a cell without choosing it.
    void setzeSchreibmarke(int zeile, const QString &kennung);

    /// Chooses a cell as a click on it does: selects it, rolls to it and runs the action. A cell
    /// that does not exist is not chosen.
    void waehle(int zeile, const QString &kennung);

    /// The selected row, −1 when none is.
    int selectedRow() const { return m_gewaehlt; }

    /// The column in which the user chose the row whose action is running; −1 at any other time.
    int clickedColumn() const { return m_clickedColumn; }

    /// Gives the columns their widths of the beginning again: what the user has set is forgotten.
    void vergissBreiten();

    /// Selects a row in place of what was selected, without running the action. A row that does
    /// not exist leaves the selection as it is.
    void selectRow(int zeile);
    /// Rolls the table up or down as far as it takes to show a row, and never sideways.
    void scrollRowToVisible(int zeile);
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;

    /// Ends typing into a cell and takes over what was typed. Where rows come and go, what is typed
    /// would otherwise end up in the row of another food.
    void beendeEingabe();

    bool gitter() const { return m_gitter; }
    void setGitter(bool gitter);
    int rowHeight() const;
    void setRowHeight(int hoehe);

    QString hinweis() const { return m_hinweis; }
    void setHinweis(const QString &hinweis);

    Tabellenmodell *modell() const { return m_modell; }

    /// The row above which something dropped at this place of the table would stand; absent when
    /// nothing can be dropped there.
    std::optional<int> abwurfzeile(const QPoint &ort) const;

    /// What a drag from this place of the table carries, null when nothing can be dragged there:
    /// the row that was pressed, the column that lies under the mouse.
    QMimeData *ziehdaten(int zeile, const QPoint &mausort) const;

    /// The picture under the mouse while this text is dragged: the name that is read in the table.
    QPixmap ziehbild(const QString &text) const;

Q_SIGNALS:
    /// The user has chosen a cell, or clicked beside all rows.
    void betaetigt();
    /// The user has drawn a column to this width; the last one only takes what is left.
    void spalteGezogen(int spalte, int breite);
    /// The widths that the user had set are forgotten.
    void breitenVergessen();
    /// The user has clicked a cell twice; the first click has chosen it. Where that has rolled
    /// another row under the mouse, it is still the first one that is meant.
    void doppeltGeklickt(const QModelIndex &zelle);
    /// A menu is wanted at this place of the screen, for the cell under the mouse or, with the keys
    /// for menus, for the one where the keyboard is; invalid beside all cells. Nothing is chosen.
    void menueGewuenscht(const QModelIndex &zelle, const QPoint &ort);
    /// Something is about to be dragged out of the table.
    void ziehenBeginnt();
    /// The lists may have changed: the table has read its number of rows anew.
    void neuGelesen();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;
    void startDrag(Qt::DropActions supportedActions) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

    /// Draws the line where something dropped would go, while there is one.
    void maleAbwurfstrich(QPainter &painter) const;
    /// True while what is scrolled to is not looked for sideways.
    bool rolltNurSenkrecht() const { return m_nurSenkrecht; }

private:
    QItemSelectionModel::SelectionFlags neueAuswahl() const;
    void melde(int spalte);
    void setzeUngerollt(const QModelIndex &index, QItemSelectionModel::SelectionFlags auswahl);
    void verteileBreiten();
    void wuenscheMenue();
    bool aendereBreite(const QKeyEvent &event);
    bool pruefeAbwurf(QDropEvent &event);
    int oberkante(int zeile) const;
    bool nurMitReturn(int spalte) const;

    Tabellenmodell *m_modell;
    QStringList m_bestaetigt;
    int m_gewaehlt = -1;
    int m_clickedColumn = -1;
    bool m_gitter = false;
    QString m_hinweis;
    std::optional<int> m_abwurfzeile; ///< while something is held over the table
    QPoint m_mausort;
    int m_gedrueckteZeile = -1;
    QPersistentModelIndex m_gedrueckteZelle; ///< where the left button went down last
    bool m_gedrueckt = false;                ///< the left button is down, and no drag has begun
    QPersistentModelIndex m_angefasst; ///< what is chosen when no drag has begun until the release
    bool m_nurSenkrecht = false;       ///< what is scrolled to now is not looked for sideways
    QList<int> m_grundbreiten;
    int m_bedarf = -1; ///< width of the first column's longest entry; −1 while it is not known
    bool m_breiteVonHand = false;
    bool m_verteilt = false; ///< a width that changes now is not set by the user
};
