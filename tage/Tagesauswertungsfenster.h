#pragma once

#include "Tagesrechnung.h"
#include "ui_Tagesauswertungsfenster.h"

#include <QDialog>

#include <array>

/// The evaluation of a day or of the mean of the days, judged as a plan is. The window stays open
/// beside that of the days and follows what is typed there.
class Tagesauswertungsfenster : public QDialog, public Ui::TagesauswertungsfensterGestalt
{
    Q_OBJECT

public:
    /// What is evaluated.
    struct Stand
    {
        QString tagesname; ///< null: no record is open
        Tagesrechnung tag;
        Tagesrechnung mittel;
        Energiebedarf bedarf;
    };

    explicit Tagesauswertungsfenster(QWidget *parent);

    void zeige(const Stand &stand);
    /// Another language is spoken.
    void folgeSprache();

protected:
    void changeEvent(QEvent *event) override;

private:
    void baueWertungen();
    void ladeBilder();
    void beschrifte();
    void zeigeGewaehltes();
    void zeigeWertungen(const Planauswertung &auswertung);
    void zeigeKreise(const Planauswertung &auswertung);
    void zeigeBeurteilung(const Planauswertung &auswertung);
    void rueckeKreisworte();
    QString leerWorte() const;
    QString gegenstand(const Tagesrechnung &rechnung) const;

    /// Of one rating: how many foods are suitable, neutral and unsuitable.
    using Zaehlung = std::array<Zaehlfeld *, 3>;

    Stand m_stand;
    std::array<QLabel *, anzahlWertungen> m_wertungsnamen = {};
    std::array<Zaehlung, anzahlWertungen> m_zaehlungen = {};
};
