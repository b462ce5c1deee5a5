#pragma once

#include "Briefkopfablage.h"
#include "Dateituer.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

/// Shows and changes the letterhead of the practice, in the window of the settings. What is typed
/// holds at once.
class Briefkopfwahl : public QWidget
{
    Q_OBJECT

public:
    /// Without a door no logo can be chosen.
    Briefkopfwahl(Briefkopfablage ablage, Dateituer frage);

private:
    QWidget *baueLogo();
    void waehle();
    void uebernimm(const QString &path);
    void entferne();
    void zeigeLogo(const QString &hindernis = {});

    Briefkopfablage m_ablage;
    Dateituer m_frage;
    QLineEdit *m_name;
    QPlainTextEdit *m_anschrift;
    QLabel *m_bild;
    QLabel *m_worte;
    QPushButton *m_entfernen;
};
