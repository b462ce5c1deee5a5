#pragma once

#include "Plantuer.h"

#include <QList>
#include <QStringList>

#include <functional>

/// A meal plan that only keeps what it is told; `beimSichern` and `beimLoeschen` run at the moment
/// of telling.
class Probeplan : public Plantuer
{
public:
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

    QList<Datenmodul> gesichert;
    QStringList geloescht;
    std::function<void()> beimSichern = [] {
    };
    std::function<void()> beimLoeschen = [] {
    };
};
