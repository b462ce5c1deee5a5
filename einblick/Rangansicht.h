#pragma once

#include "Rangmodell.h"

#include <QElapsedTimer>
#include <QTableView>

/// The table of ranked foods. Typing goes to the next food whose name begins so, Return shows the
/// food, Ctrl+Return takes it into the plan, the space bar takes it for comparing.
class Rangansicht : public QTableView
{
    Q_OBJECT

public:
    explicit Rangansicht(QWidget *parent = nullptr);

    /// Shows other ranks. The answer to another question is read from the top; while it is the
    /// same, the food with the cursor keeps it as long as it is still there.
    void zeige(const Rangmodell::Stand &stand);
    /// Sorts by one of the columns; its heading shows it.
    void sortiere(Rangmodell::Spalte spalte);

    Rangmodell &rangmodell() { return m_modell; }
    /// The place of the food with the cursor in the list of foods; −1 where there is none.
    qsizetype stelle() const { return m_modell.stelle(currentIndex().row()); }

    void keyboardSearch(const QString &text) override;

Q_SIGNALS:
    void anzeigeGewuenscht(qsizetype stelle);
    void planGewuenscht(qsizetype stelle);
    /// A menu is wanted at this place of the screen, for the food that has the cursor then.
    void menueGewuenscht(const QPoint &ort);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void stelleSpalten();
    void wechsleHaken();
    void wuenscheMenue();
    bool suchtNoch() const;

    Rangmodell m_modell;
    Rangfrage m_frage;
    QElapsedTimer m_getippt; ///< since the last letter of a name that is looked for
};
