#pragma once

#include "Ablagenvergleich.h"
#include "Klientendaten.h"
#include "Rollseite.h"
#include "ui_Fortschrittsblatt.h"

#include <array>

/// The page about a client's progress: two visits or two plans side by side, and what lies between
/// them. Where there are no two, it says what is missing.
class Fortschrittsblatt : public Rollseite, public Ui::FortschrittsblattGestalt
{
    Q_OBJECT

public:
    explicit Fortschrittsblatt(QWidget *parent = nullptr);

    /// Shows a client. At first the oldest record stands beside the latest one; what is chosen
    /// stays chosen while the client is the same and has the record.
    void setze(const Klientenakte &akte);

    /// Another language is spoken.
    void folgeSprache();

protected:
    void changeEvent(QEvent *event) override;

private:
    /// A record that can be chosen.
    struct Angebot
    {
        QString kennung;
        QString worte;
    };
    /// The keys of the records that were chosen; null for one that was not.
    struct Wahl
    {
        QString von;
        QString bis;
    };

    bool zeigtPlaene() const { return planwahl->isChecked(); }
    Wahl &wahl() { return m_wahl[zeigtPlaene() ? 1 : 0]; }
    QList<Angebot> angebote() const;
    void fuelle();
    void waehle(QString &kennung, int stelle);
    void zeige();
    QList<Vergleichsabschnitt> besuchsabschnitte() const;
    QList<Vergleichsabschnitt> planabschnitte();
    void setzeBreite();
    void setzeKoepfe();
    void setzeZeilen(const QList<Vergleichsabschnitt> &abschnitte);
    void haengeAn(const QList<QTableWidgetItem *> &zellen);

    Klientenakte m_akte;
    std::array<Wahl, 2> m_wahl; ///< of visits and of plans
};
