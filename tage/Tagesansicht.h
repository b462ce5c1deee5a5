#pragma once

#include "Tagesmodell.h"
#include "Vorschlagsfeld.h"

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

    explicit Tagesansicht(QWidget *parent = nullptr);

    void setVorschlaege(Vorschlagsquelle quelle) { m_vorschlaege = std::move(quelle); }

    /// Shows a day. The cell with the cursor stays the one, as far as it is still there.
    void zeige(const Aufzeichnung &aufzeichnung, int tag, bool aenderbar);

    const Tagesmodell &tagesmodell() const { return m_modell; }
    /// The cell with the cursor; absent where there is none.
    std::optional<Tagesmodell::Platz> platz() const { return m_modell.platz(currentIndex().row()); }
    /// Puts the cursor into a cell.
    void geheZu(const Tagesmodell::Platz &platz, int spalte);
    /// The chosen rows of meals, in their order.
    QList<Tagesmodell::Platz> gewaehlteZeilen() const;

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

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void uebernimm(bool weiter);
    void verwirf();
    void stelleFeld();

    Tagesmodell m_modell;
    Vorschlagsquelle m_vorschlaege;
    QPointer<Vorschlagsfeld> m_feld;
    Tagesmodell::Platz m_feldplatz;
    int m_feldspalte = 0;
};
