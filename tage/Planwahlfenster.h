#pragma once

#include "Planumwandlung.h"

#include <QDialog>

class QListWidget;

/// Asks which of the kept plans is wanted, and shows what is in it.
class Planwahlfenster : public QDialog
{
    Q_OBJECT

public:
    /// At least one plan; the first is chosen.
    Planwahlfenster(const QList<Vorratsplan> &plaene, QWidget *parent);

    /// Which plan is chosen, counted from 0.
    int gewaehlter() const;

private:
    void zeigePlan(int stelle);

    QList<Vorratsplan> m_plaene;
    QListWidget *m_liste;
    QListWidget *m_posten;
};
