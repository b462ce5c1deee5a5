#pragma once

#include "Beitragsmodell.h"
#include "Einblickblatt.h"

class QComboBox;
class QLabel;
class QTableView;

/// Which foods give how much of something, those that give most first, and which do not suit
/// somebody with one of the four conditions. From each it is one step to its row.
class Beitragsblatt : public Einblickblatt
{
    Q_OBJECT

public:
    explicit Beitragsblatt(QWidget *parent = nullptr);

    void zeige(const Einblickstand &stand) override;
    void folgeSprache() override;

    /// Asks for this from now on.
    void waehle(Kenngroesse groesse);
    void waehle(Wertung wertung);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fuelleAuswahl();
    void zeigeWieder();
    void zeigeGewaehltes();
    void zeigeBeitraege(Kenngroesse groesse);
    void zeigeUngeeignete(Wertung wertung);
    void stelleSpalten();
    void geheZuZeile();
    QString leerWorte() const;

    Einblickstand m_stand;
    Beitragsmodell m_modell;
    QLabel *m_frage;
    QComboBox *m_wovon;
    QLabel *m_summe;
    QLabel *m_leer;
    QTableView *m_tabelle;
    QLabel *m_unbekannt;
};
