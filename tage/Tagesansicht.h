#pragma once

#include "Tagesmodell.h"
#include "Vorschlagsfeld.h"

#include <QMimeData>
#include <QPointer>
#include <QTableView>

#include <functional>

/// The table of a day. Whoever types in a cell writes into a field over it; Return takes what was
/// typed and goes on to where the next thing is typed: from the food to its amount, from the amount
/// to the next row.
class Tagesansicht : public QTableView
{
    Q_OBJECT

public:
    /// What fits a text in a cell, the best first.
    using Vorschlagsquelle =
        std::function<QList<Vorschlagsfeld::Vorschlag>(int reihe, int spalte, const QString &text)>;

    /// What a drag of the chosen rows carries; whoever asks owns it. Null: they can't be dragged.
    using Ziehquelle = std::function<QMimeData *()>;
    /// Whether something that is held over the table can be dropped there.
    using Abwurfpruefung = std::function<bool(const QMimeData &daten)>;

    explicit Tagesansicht(QWidget *parent = nullptr);

    void setVorschlaege(Vorschlagsquelle quelle) { m_vorschlaege = std::move(quelle); }

    void setZiehquelle(Ziehquelle quelle) { m_ziehquelle = std::move(quelle); }
    void setAbwurfpruefung(Abwurfpruefung pruefung) { m_pruefung = std::move(pruefung); }
    /// Which foods have changed since their rows were entered; asked whenever a day is shown.
    void setNachschlag(Speisenachschlag heute) { m_modell.setNachschlag(std::move(heute)); }

    /// Shows a day. The cell with the cursor stays the one, as far as it is still there.
    void zeige(const Aufzeichnung &aufzeichnung, int tag, bool aenderbar);

    const Tagesmodell &tagesmodell() const { return m_modell; }
    /// The cell with the cursor; absent where there is none.
    std::optional<Tagesmodell::Platz> platz() const { return m_modell.platz(currentIndex().row()); }
    /// Puts the cursor into a cell.
    void geheZu(const Tagesmodell::Platz &platz, int spalte);
    /// The chosen rows of meals, in their order.
    QList<Tagesmodell::Platz> gewaehlteZeilen() const;
    /// Chooses these rows and puts the cursor into the first. Without any, nothing happens.
    void waehle(const QList<Tagesmodell::Platz> &zeilen);
    /// Before which row of a meal something held there would come; absent while nothing is held
    /// over the table that it takes.
    std::optional<Tagesmodell::Platz> abwurfplatz() const { return m_abwurf; }

    /// Begins to type into the cell with the cursor, in place of what stands there when `text` is
    /// not null. Where nothing can be typed, nothing happens.
    void beginne(const QString &text = {});
    /// The field over the cell; null while nobody types.
    Vorschlagsfeld *feld() const { return m_feld; }
    /// Takes what stands in the field, as leaving it does.
    void beende();

Q_SIGNALS:
    /// Something was typed into a cell. `schluessel` is that of the suggestion that was taken, null
    /// where none fits. `weiter` when the next thing is to be typed: Return was pressed.
    void getippt(const Tagesmodell::Platz &platz, int spalte, const QString &text,
                 const QString &schluessel, bool weiter);
    /// The chosen rows are to go.
    void loeschenGewuenscht();
    /// Something was dropped before a row of a meal, or behind its last one. `kopie`: what was
    /// dragged is to stay where it is as well.
    void abgeworfen(const QMimeData *daten, const Tagesmodell::Platz &vor, bool kopie);

protected:
    void startDrag(Qt::DropActions supportedActions) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void uebernimm(bool weiter);
    void verwirf();
    void stelleFeld();
    std::optional<Tagesmodell::Platz> platzBei(const QPoint &ort) const;
    bool pruefeAbwurf(QDropEvent &event);

    Tagesmodell m_modell;
    Vorschlagsquelle m_vorschlaege;
    QPointer<Vorschlagsfeld> m_feld;
    Tagesmodell::Platz m_feldplatz;
    int m_feldspalte = 0;
    Ziehquelle m_ziehquelle;
    Abwurfpruefung m_pruefung;
    std::optional<Tagesmodell::Platz> m_abwurf; ///< where what is held over the table would come
};
