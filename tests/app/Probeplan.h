#pragma once

#include "Planmodul.h"

#include <QDir>
#include <QList>
#include <QStringList>

#include <functional>

/// A meal plan that only keeps what it is told; `beimSichern` and `beimLoeschen` run at the moment
/// of telling.
class Probeplan : public Planmodul
{
public:
    /// Without foods, and with a home of its own that no test looks at.
    Probeplan()
        : Planmodul({.eingebauteTabelle = QString(),
                     .datenordner = Datenordner(QDir::temp().filePath(QStringLiteral("planheim"))),
                     .melde = [](QWidget *, const Meldung &) {
                         return 0;
                     }})
    {
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
};
