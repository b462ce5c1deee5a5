#pragma once

#include "Meldung.h"
#include "Namenssuche.h"
#include "Summenmodell.h"
#include "Tagebuch.h"
#include "ui_Tagefenster.h"

#include <QMainWindow>

#include <functional>
#include <optional>

/// The doors through which the window of the days reaches the foods and the rest of the program.
struct Tagetueren
{
    Meldungstuer melde; ///< shows a message and waits for its answer
    /// The foods whose name contains a text, as the search by name finds them.
    std::function<Namenssuchergebnis(const QString &text)> suche;
    /// The record of a food; null when it is in no store.
    std::function<const Datenmodul *(const QString &schluessel)> lebensmittel;
    /// What an amount of a food comes to, in grams; absent where it can't be understood.
    std::function<std::optional<float>(const QString &schluessel, const QString &angabe)> gramm;
    /// What the days are measured against.
    std::function<Energiebedarf()> bedarf;
    std::function<QDate()> heute = [] {
        return QDate::currentDate();
    };
};

/// The window in which days are recorded and planned, meal by meal. Nothing needs a hand on the
/// mouse: a food's name, Return, its amount, Return, the next.
class Tagefenster : public QMainWindow, public Ui::TagefensterGestalt
{
    Q_OBJECT

public:
    /// The records are kept in `ablage`, which outlives the window.
    Tagefenster(Aufzeichnungsablage &ablage, Tagetueren tueren);

    Tagebuch buch;

    /// Shows the window, in front of others.
    void zeige();
    /// Other records from now on: somebody else sits at the desk.
    void setzeAblage(Aufzeichnungsablage &ablage) { buch.setzeAblage(ablage); }
    /// What the days are measured against has changed.
    void frischeAuf();
    /// Another language is spoken.
    void folgeSprache();

    // What the menu does. Where there is nothing to do it to, nothing happens.
    void neuesProtokoll();
    void neuerWochenplan();
    void loescheAufzeichnung();
    void loescheZeilen();
    void wechsleOder();
    void fuelleTage();
    void leereTag();
    void neueMahlzeit();
    void loescheMahlzeit();
    void mahlzeitHinauf() { verschiebeMahlzeit(-1); }
    void mahlzeitHinunter() { verschiebeMahlzeit(1); }
    void naechsterTag() { buch.waehleTag(buch.tag() + 1); }
    void vorigerTag() { buch.waehleTag(buch.tag() - 1); }

Q_SIGNALS:
    /// The user of the window wants the handbook.
    void hilfeGewuenscht();

private:
    void baueMenue();
    void baueTabellen();
    void verbinde();
    void zeigeAuswahl();
    void zeigeKopf();
    void zeigeTage();
    void zeigeTag();
    void zeigeNotizen();
    void zeigeSummen();
    void verschiebeMahlzeit(int um);
    bool aendere(const char *was, const Tagebuch::Tat &tat);

    // What was typed into the table
    void nimmAn(const Tagesmodell::Platz &platz, int spalte, const QString &text,
                const QString &schluessel, bool weiter);
    void nimmNamen(const Tagesmodell::Platz &platz, const QString &text, const QString &schluessel,
                   bool weiter);
    void nimmAngabe(const Tagesmodell::Platz &platz, const QString &text, bool weiter);
    void geheZuMahlzeit(int mahlzeit);
    void geheZuNaechster(const Tagesmodell::Platz &platz);
    Mahlzeitzeile zeileFuer(const QString &text, const QString &schluessel) const;

    Tagetueren m_tueren;
    Summenmodell m_summen;
    bool m_zeigt = false; ///< the controls are being set, and not by the user
};
