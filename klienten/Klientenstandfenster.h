#pragma once

#include "Sicherungen.h"

#include <QDialog>
#include <QList>

class QLabel;
class QListWidget;
class QPushButton;

/// Shows the copies of the store of clients and says how many clients each holds. Nothing changes
/// before one is asked for.
class Klientenstandfenster : public QDialog
{
    Q_OBJECT

public:
    Klientenstandfenster(const QString &datei, QWidget *parent);

Q_SIGNALS:
    /// This copy is wanted in the place of the store.
    void gewuenscht(const QString &kopie);

private:
    void zeigeStand(int stelle);

    QList<Sicherungen::Sicherung> m_kopien;
    QListWidget *m_tage;
    QLabel *m_worte;
    QPushButton *m_zurueck;
};
