#pragma once

#include "Besuchsblatt.h"
#include "Dateituer.h"
#include "Drucktuer.h"
#include "Fortschrittsblatt.h"
#include "Kartei.h"
#include "Klientenmodell.h"
#include "Meldung.h"
#include "Personenblatt.h"
#include "Planblatt.h"
#include "Tischklient.h"
#include "ui_Klientenfenster.h"

#include <QMainWindow>

/// The doors through which the clients' window reaches the world outside of it.
struct Klientenfenstertueren
{
    Meldungstuer melde;         ///< shows a message and waits for its answer
    Drucktuer drucke = {};      ///< prints; while it is absent, nothing does
    Pdftuer alsPdf = {};        ///< saves a print as a PDF; while it is absent, nothing does
    Dateituer waehleDatei = {}; ///< asks for a file or a folder; while it is absent, nobody chooses
    Planblatt::Nachschlagen lebensmittel; ///< the record that a food has today
    QString datei = {};                   ///< of the store; null: it is on a server
};

/// Runs the window "Klienten": the list of them, searched as one types, and the chosen one with
/// person, visits, plans and progress. Everything is kept at once.
class Klientenfenster : public QMainWindow, public Ui::KlientenfensterGestalt
{
    Q_OBJECT

public:
    /// The cabinet and the desk outlive the window.
    Klientenfenster(Kartei &kartei, Tischklient &tisch, Klientenfenstertueren tueren);

    Personenblatt *personenblatt;
    Besuchsblatt *besuchsblatt;
    Planblatt *planblatt;
    Fortschrittsblatt *fortschrittsblatt;

    /// Shows the window, in front of others.
    void zeige();
    /// Another language is spoken: captions follow already, what is put together does here.
    void folgeSprache();
    /// Where the store is now; see `Klientenfenstertueren::datei`.
    void setDatei(const QString &datei);

    // What the menu does. Without a chosen client those about one do nothing.
    void neuerKlient();
    void anDenTisch();
    void archiviere();
    void loesche();
    void nimmZurueck();
    void drucke();
    void alsPdfSichern();
    void uebergib();
    void nimmAuf();
    void frischeAuf();

    /// Everything that was typed is kept, as far as it can be. False when something can't.
    bool sichere();

    /// What the notices are about.
    inline static const QString hinweisGeloescht = QStringLiteral("geloescht");
    inline static const QString hinweisHindernis = QStringLiteral("hindernis");

Q_SIGNALS:
    /// The user of the window wants the handbook.
    void hilfeGewuenscht();
    /// Earlier states of the store are to be seen.
    void fruehereStaendeGewuenscht();
    /// The clients in the file of this desk are to come onto the server.
    void umzugGewuenscht();

protected:
    void closeEvent(QCloseEvent *event) override;
    bool event(QEvent *event) override;

private:
    void baueMenue();
    void baueSeiten();
    void verbinde();
    void fuelleListe();
    void zeigeLeeres();
    void zeigeOrt();
    void waehle(const QString &kennung);
    void zeigeAkte();
    void zeigeKopf();
    void zeigeHindernis();
    void zeigeKollision(const Kollision &kollision);
    void zeigeVerschwundenen(const Schreibwunsch &wunsch);
    std::optional<Klientenakte> hiesigeAkte(const QString &kennung) const;
    void nimmWiederAuf(const Schreibwunsch &wunsch);
    void nimmDateiAuf(const QString &path);
    bool darfFort();
    void sageFestgehalten();
    void sageGeloescht(const QString &was);
    void sageUebergabe(const QString &ordner);

    Kartei &m_kartei;
    Tischklient &m_tisch;
    Klientenfenstertueren m_tueren;
    Klientenmodell m_modell;
    QString m_gewaehlt;   ///< key of the client who is shown; null: none, or a new one
    bool m_neuer = false; ///< a client is being entered who is not kept yet
    std::optional<Klientenakte> m_akte;
    QList<QAction *> m_zuKlient; ///< what is about the client who is shown
    bool m_waehlt = false;       ///< the list is being set, and not by the user
};
