#pragma once

#include <QDialog>

class QLineEdit;
class QPushButton;

/// Asks before a client is taken away for good: the name is to be typed, so that no slip of the
/// hand does it.
class Loeschfrage : public QDialog
{
    Q_OBJECT

public:
    /// `kopien` says where copies of the client stay for some time; empty: nowhere that is known.
    Loeschfrage(const QString &name, const QString &kopien, QWidget *parent);

private:
    void folge(const QString &text);

    QString m_name;
    QLineEdit *m_eingabe;
    QPushButton *m_loeschen;
};
