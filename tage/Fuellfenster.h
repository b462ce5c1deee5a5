#pragma once

#include "Aufzeichnung.h"

#include <QDialog>
#include <QList>

class QLabel;
class QListWidget;
class QPushButton;

/// Asks into which other days of a record a day is to be filled. Days on which something stands
/// already are named, for it goes.
class Fuellfenster : public QDialog
{
    Q_OBJECT

public:
    Fuellfenster(const Aufzeichnung &aufzeichnung, int von, QWidget *parent);

    /// The chosen days, counted from 0, in their order.
    QList<int> gewaehlte() const;

private:
    void folge();

    Aufzeichnung m_aufzeichnung;
    QListWidget *m_tage;
    QLabel *m_worte;
    QPushButton *m_fuellen;
};
