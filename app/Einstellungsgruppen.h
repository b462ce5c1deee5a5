#pragma once

#include "Dateituer.h"

#include <QWidget>

class QActionGroup;
class QLineEdit;
class QPushButton;
class QSettings;

/// The entries of a menu of which one holds, as buttons for the window of the settings: choosing
/// one chooses the entry, and the other way round. The entries outlive it.
QWidget *menuewahl(const QActionGroup &eintraege);

/// Shows and changes the folder that is proposed for PDFs.
class Pdfordnerwahl : public QWidget
{
    Q_OBJECT

public:
    /// The settings outlive it. Without a door no folder can be chosen but that of the system.
    Pdfordnerwahl(QSettings &einstellungen, Dateituer frage);

private:
    void waehle();
    void merke(const QString &ordner);
    void zeige();

    QSettings &m_einstellungen;
    Dateituer m_frage;
    QLineEdit *m_ordner;
    QPushButton *m_wieSystem;
};
