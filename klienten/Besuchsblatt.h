#pragma once

#include "Kartei.h"
#include "Meldung.h"
#include "Rollseite.h"
#include "Satzformular.h"
#include "ui_Besuchsblatt.h"

#include <QSet>

/// The page about a client's visits: a table of them, the course of a measure, and the chosen visit
/// to be filled in. An unlikely measure is asked about once, and kept when it is meant.
class Besuchsblatt : public Rollseite, public Ui::BesuchsblattGestalt
{
    Q_OBJECT

public:
    Besuchsblatt(Kartei &kartei, Meldungstuer melde);

    /// Shows the visits of a client. The chosen one stays chosen; of another client it is the last.
    void zeige(const Klientenakte &akte);

    /// What stands in the fields is kept, as far as it can be. False when something can't.
    bool sichere();

    /// Begins a visit of today. If there is one already, that is chosen.
    void beginneBesuch();
    /// Takes the chosen visit away; it can be brought back.
    void loesche();

    /// Another language is spoken.
    void folgeSprache();
    /// Whether something may be changed.
    void erlaube(bool aendern);

Q_SIGNALS:
    /// A visit was taken away.
    void geloescht();
    /// What stands in the fields can't be kept, and so nothing else is shown.
    void festgehalten();

private:
    void bieteAn();
    void fuelle();
    void waehle(int zeile);
    void zeigeGewaehlten();
    void zeigeVerlauf();
    const Besuch *gewaehlter() const;
    bool bestaetigt(const Besuch &besuch);

    Kartei &m_kartei;
    Meldungstuer m_melde;
    Klientenakte m_akte;
    QString m_gewaehlt;      ///< key of the visit in the fields; null: none
    QSet<QString> m_gefragt; ///< doubts that were settled, as visit and words
    Satzformular m_formular;
    bool m_fuellt = false; ///< what is chosen in the table now was not chosen by the user
    bool m_fragt = false;  ///< a question is open; the field that lost the keyboard waits for it
    bool m_aendern = true;
};
