#pragma once

#include "Kartei.h"
#include "Rollseite.h"
#include "Satzformular.h"
#include "ui_Planblatt.h"

#include <functional>

/// The page about the plans that are kept of a client: their list, and the chosen one with its
/// foods as they were on its day. A food that has changed since is marked.
class Planblatt : public Rollseite, public Ui::PlanblattGestalt
{
    Q_OBJECT

public:
    /// The record that a food has today, by its key; null when no store has it.
    using Nachschlagen = std::function<const Datenmodul *(const QString &)>;

    Planblatt(Kartei &kartei, Nachschlagen heute);

    /// Shows the plans of a client. The chosen one stays chosen; of another client it is the last.
    void zeige(const Klientenakte &akte);

    /// What stands in the fields is kept, as far as it can be. False when something can't.
    bool sichere();

    /// Takes the chosen plan away; it can be brought back.
    void loesche();

    /// Another language is spoken.
    void folgeSprache();
    /// Whether something may be changed, and whether this client is at the desk.
    void erlaube(bool aendern, bool amTisch);

Q_SIGNALS:
    /// The plan on the desk is to be kept under the client.
    void ablegenGewuenscht();
    /// This plan is wanted on the desk.
    void holenGewuenscht(const Planablage &plan);
    /// A plan was taken away.
    void geloescht();

private:
    void fuelle();
    void fuelleZeilen(const QList<Planposten> &posten);
    void waehle(int zeile);
    void zeigeGewaehlten();
    const Planablage *gewaehlter() const;
    QString seitdem(const Planposten &posten) const;

    Kartei &m_kartei;
    Nachschlagen m_heute;
    Klientenakte m_akte;
    QString m_gewaehlt; ///< key of the plan in the fields; null: none
    Satzformular m_formular;
    bool m_fuellt = false; ///< what is chosen in the list now was not chosen by the user
    bool m_aendern = true;
    bool m_amTisch = false;
};
