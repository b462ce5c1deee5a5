#pragma once

#include "Vorschlaege.h"

#include <QTest>

#include <algorithm>

/// What the tests of the suggestions share.
namespace Vorschlagsprobe {

using namespace Qt::StringLiterals;

using Werte = QList<std::pair<Naehrwert, float>>;

/// A small store: foods with the few values that matter, per 100 g.
class Lager
{
public:
    /// `gruppe` null: an own food.
    void nimm(const QString &name, const char *gruppe, const Werte &werte, double portion = 100)
    {
        Datenmodul satz;
        satz.setName(name);
        for (const Wertungsbeschreibung &eine : wertungen) {
            satz.setWertung(eine.wertung, u"0"_s);
        }
        for (const auto &[wert, zahl] : werte) {
            satz.setWert(wert, zahl);
        }
        if (gruppe != nullptr) {
            Zusatzwerte zusatz;
            zusatz.gruppe = lebensmittelgruppe(QString::fromUtf8(gruppe));
            m_tabelle.insert(name, zusatz);
        }
        kandidaten.append({name, satz, portion, u"1 Portion"_s});
    }

    Zusatzwerte &zusatz(const QString &name) { return m_tabelle[name]; }
    Datenmodul &satz(const QString &name)
    {
        return std::ranges::find_if(kandidaten,
                                    [&name](const auto &einer) { return einer.schluessel == name; })
            ->lebensmittel;
    }
    Stoffwissen wissen() const { return Stoffwissen(m_tabelle); }
    Speise speise(const QString &name, double gramm, int ort = -1)
    {
        return {name, satz(name), gramm, ort};
    }

    Kandidaten kandidaten;

private:
    Zusatztabelle m_tabelle;
};

inline QStringList namen(const Vorschlagsliste &liste)
{
    QStringList alle;
    for (const Vorschlag &einer : liste.vorschlaege) {
        alle << einer.speise.schluessel;
    }
    return alle;
}

inline constexpr auto obst = "Obst";
inline constexpr auto brot = "Brot und Brötchen";

} // namespace Vorschlagsprobe
