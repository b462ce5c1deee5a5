#pragma once

#include "AppController.h"

#include <QList>
#include <QStringList>

#include <functional>

/// A meal plan that only keeps what it is told; `beimSichern` and `beimLoeschen` run at the moment
/// of telling.
class Probeplan : public Planmodul
{
public:
    /// Gives the controller such a plan, which is the controller's from then on.
    static Probeplan &bei(AppController &controller)
    {
        auto *plan = new Probeplan;
        controller.planmodul = plan;
        return *plan;
    }

    void umschreibungMitName(const Datenmodul &lebensmittel) override
    {
        gesichert << lebensmittel;
        beimSichern();
    }
    void loeschenvonkundeneintraegen(const QString &name) override
    {
        geloescht << name;
        beimLoeschen();
    }
    void nameimportvontoolbar(const QString &name) override { geschickt << name; }

    QList<Datenmodul> gesichert;
    QStringList geloescht;
    QStringList geschickt; ///< foods wanted in the plan
    std::function<void()> beimSichern = [] {
    };
    std::function<void()> beimLoeschen = [] {
    };

private:
    /// It has no foods and no place to keep any.
    Probeplan()
        : Planmodul({.eingebauteTabelle = {},
                     .datenordner = Datenordner(QStringLiteral("/dev/null")),
                     .melde = {}})
    {
    }
};
