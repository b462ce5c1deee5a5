#pragma once

#include "Vergleichsmodell.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QPushButton;
class QStackedWidget;
class QTableView;
class Wortkopf;

/// Two to five foods side by side.
class Vergleichsblatt : public QWidget
{
    Q_OBJECT

public:
    explicit Vergleichsblatt(QWidget *parent = nullptr);

    /// Shows these foods from now on. With fewer than two, the sheet says how foods get there.
    void zeige(const QList<Kandidat> &kandidaten, const QList<std::optional<Mass>> &portionen,
               const Stoffwissen &wissen);
    /// Takes the figures per this from now on.
    void waehle(Bezug bezug);
    /// Puts the keyboard into the table.
    void betrete();
    /// Another language is spoken.
    void folgeSprache();

private:
    void baue();
    void zeigeStand();
    void stelleSpalten();
    void kopiere() const;

    Vergleichsmodell::Stand m_stand;
    Vergleichsmodell m_modell;
    QLabel *m_frage;
    QComboBox *m_bezug;
    QPushButton *m_kopieren;
    QStackedWidget *m_seiten;
    QTableView *m_tabelle;
    Wortkopf *m_kopf;
    QLabel *m_leer;
    QLabel *m_legende;
};
