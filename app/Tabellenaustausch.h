#pragma once

#include "Ausgabefenster.h"
#include "Csvleser.h"
#include "Lebensmitteltabelle.h"
#include "Planliste.h"
#include "Tueren.h"
#include "Uebernahme.h"

#include <QObject>

class AppController;
class Hinweisstreifen;

/// Lets lists go out as tables, to a file or to the clipboard, and foods of the user's come in from
/// one. All of a file comes in at once and is taken back at once.
class Tabellenaustausch : public QObject
{
    Q_OBJECT

public:
    /// The controller outlives this object.
    Tabellenaustausch(AppController &controller, Tueren tueren);

private:
    // Coming in
    void frageNachQuelle();
    void liesDatei(const QString &path);
    void zeigeEinlesung(const QString &path, const Csv::Rohtext &text);
    void uebernimm(const Uebernahme &uebernahme);
    void meldeUnlesbares(const QString &path, const QString &grund);

    // Going out
    void frageNachListe(QWidget *fenster);
    void frageNachZiel(QWidget *fenster, const Ausgabeliste &liste, const Csv::Form &form);
    void schreibe(QWidget *fenster, const QString &path, const QByteArray &bytes);
    QList<Ausgabeliste> listen() const;
    QList<Datenmodul> eigene() const;
    QList<Datenmodul> eingebaute() const;
    QList<Datenmodul> gefundene() const;
    const Datenmodul *lebensmittel(const QString &name) const;
    Planliste plan() const;
    Csv::Tabelle tabelleDesPlans() const;

    // The clipboard
    void kopiere();
    void kopierePlan();
    Csv::Tabelle listeDerSpalte() const;
    static void lege(const Csv::Tabelle &tabelle, Hinweisstreifen &streifen);

    void bereitePlan();
    Hinweisstreifen &streifenVon(const QWidget *fenster) const;
    QString ordner() const;
    void merkeOrdner(const QString &path);

    AppController &m_controller;
    Tueren m_tueren;
};
