#pragma once

#include "Einblickblatt.h"
#include "Zahlenmodell.h"

class QLabel;
class QTableView;
class QTextEdit;

/// Further figures of a day beside their published limits: purines, bread units, alcohol, water,
/// salt, energy density, saturated fat and sugars. All that can be told of the chosen row stands
/// below the table, for the keyboard and the screen reader as well as for the mouse.
class Zahlenblatt : public Einblickblatt
{
    Q_OBJECT

public:
    explicit Zahlenblatt(QWidget *parent = nullptr);

    void zeige(const Einblickstand &stand) override;
    void folgeSprache() override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void baueTabelle();
    void zeigeStand();
    void zeigeEinzelheiten();
    void stelleSpalten();
    int breitestesWort() const;
    QString anmerkung() const;

    Einblickstand m_stand;
    Zahlenmodell m_modell;
    QTableView *m_tabelle;
    QLabel *m_anmerkung;
    QLabel *m_leer;
    QTextEdit *m_einzelheiten;
};
