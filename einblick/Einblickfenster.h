#pragma once

#include "Einblickblatt.h"
#include "Hinweisstreifen.h"
#include "Personenwahl.h"
#include "Vorschlaege.h"

#include <QDialog>

#include <functional>

class Beitragsblatt;
class QComboBox;
class QLabel;
class QSettings;
class QTabWidget;
class Referenzblatt;
class Vorschlagsblatt;
class Zahlenblatt;

/// The doors through which the insight reaches the desk and the days.
struct Einblicktueren
{
    /// What counts in a food, the plan, a day or the mean of days, and how it is called.
    std::function<Einblickstand(Gegenstand)> stand;
    /// What a day should hold where no published set is chosen.
    std::function<Zielbereiche()> allgemeineZiele;
    /// The foods that can be suggested, see `Vorschlagsblatt`.
    std::function<const Kandidaten &()> kandidaten;
    /// The published sets, as they were read; empty where they can't be.
    Referenzzeilen referenz;
    QSettings *einstellungen = nullptr; ///< where the last choice is kept; null: nowhere
};

/// What the figures mean for this client: a small window beside the main one, the plan or the days,
/// with a sheet for each question. It follows what is changed there.
class Einblickfenster : public QDialog
{
    Q_OBJECT

public:
    Einblickfenster(Einblicktueren tueren, QWidget *parent);

    /// Shows the window, about this from now on.
    void zeige(Gegenstand gegenstand);
    Gegenstand gegenstand() const;
    /// Something has changed on the desk or in the days.
    void frischeAuf();
    /// Somebody else is advised from now on: what was typed about the one before is gone.
    void setzeKlient(const Referenzperson &person, const std::array<bool, anzahlWertungen> &leiden);
    /// Other conditions matter for the same client.
    void setzeLeiden(const std::array<bool, anzahlWertungen> &leiden);
    /// Something else is known of the same client, beside what was typed.
    void folgePerson(const Referenzperson &bekannt, const Referenzperson &getippt);
    /// Another language is spoken.
    void folgeSprache();

    Personenwahl *const personenwahl;
    QTabWidget *const blaetter;
    Referenzblatt *const referenzblatt;
    Beitragsblatt *const beitragsblatt;
    Vorschlagsblatt *const vorschlagsblatt;
    Zahlenblatt *const zahlenblatt;
    Hinweisstreifen *const hinweise;

Q_SIGNALS:
    /// The user wants to be taken to a row, see `Speise::ort`.
    void zeileGewuenscht(Gegenstand gegenstand, int ort);
    /// The user wants this done, and to be able to take it back.
    void aenderungGewuenscht(Gegenstand gegenstand, const Speisenaenderung &aenderung);

private:
    void baue();
    void beschrifte();
    void zeigeStand();
    void zeigeTitel();
    QList<Einblickblatt *> alleBlaetter() const;

    Einblicktueren m_tueren;
    Einblickstand m_stand;
    std::array<bool, anzahlWertungen> m_leiden = {};
    QLabel *m_frage;
    QComboBox *m_gegenstand;
    QLabel *m_titel;
};
