#pragma once

#include <QDialog>

class QPushButton;
class QVBoxLayout;

/// The window of the settings: one group below the other. What is chosen in a group holds at once,
/// so that there is nothing to confirm.
class Einstellungsfenster : public QDialog
{
    Q_OBJECT

public:
    explicit Einstellungsfenster(QWidget *parent);

    /// Adds a group below those that are there, and owns what stands in it.
    void nimmAuf(const QString &titel, QWidget *inhalt);

protected:
    void showEvent(QShowEvent *event) override;

private:
    QVBoxLayout *m_gruppen;
    QPushButton *m_schliessen;
};
