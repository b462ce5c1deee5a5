#include "Stoffwissen.h"

#include "Skalierung.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr Stoffangabe ungewusst = {.wert = 0, .unbekannt = 1};

/// What nobody enters a food without.
constexpr std::array immerAngegeben = {Naehrwert::kal, Naehrwert::protein, Naehrwert::fett,
                                       Naehrwert::kh};

bool stehtImmerDa(Naehrwert wert)
{
    return std::ranges::find(immerAngegeben, wert) != immerAngegeben.end();
}

/// Where the further table holds a figure.
struct Tabellenspalte
{
    Kenngroesse groesse;
    std::optional<double> Zusatzwerte::*spalte;
};
constexpr std::array<Tabellenspalte, 5> spalten = {{
    {Kenngroesse::zucker, &Zusatzwerte::zucker},
    {Kenngroesse::gesaettigt, &Zusatzwerte::gesaettigt},
    {Kenngroesse::alkohol, &Zusatzwerte::alkohol},
    {Kenngroesse::wasser, &Zusatzwerte::wasser},
    {Kenngroesse::harnsaeure, &Zusatzwerte::harnsaeure},
}};

} // namespace

Stoffwissen Stoffwissen::mitEigenem(const QString &schluessel) const
{
    Stoffwissen wissen = *this;
    wissen.m_tabelle.remove(schluessel);
    return wissen;
}

void Stoffwissen::setzeRezepte(const QHash<QString, Rezeptangaben> &rezepte,
                               const Lebensmittelverzeichnis &gegebene)
{
    m_rezepte = rezepte;
    m_gegebene = gegebene;
}

Stoffangabe Stoffwissen::je100g(const QString &schluessel, const Datenmodul &lebensmittel,
                                Kenngroesse groesse) const
{
    if (const auto wert = naehrwert(groesse)) {
        return ausSatz(schluessel, lebensmittel, *wert);
    }
    if (groesse == Kenngroesse::salz) {
        const Stoffangabe natrium = ausSatz(schluessel, lebensmittel, Naehrwert::na);
        return {salzAusNatrium(natrium.wert), natrium.unbekannt};
    }
    if (groesse == Kenngroesse::broteinheiten) {
        const Stoffangabe kh = ausSatz(schluessel, lebensmittel, Naehrwert::kh);
        return {kh.wert / kohlenhydrateJeBroteinheit, kh.unbekannt};
    }
    return ausTabelle(schluessel, lebensmittel, groesse);
}

Stoffangabe Stoffwissen::ausSatz(const QString &schluessel, const Datenmodul &lebensmittel,
                                 Naehrwert wert) const
{
    const double zahl = static_cast<double>(lebensmittel.wert(wert));
    if (!std::isfinite(zahl) || zahl < 0) {
        return ungewusst;
    }
    if (const Zusatzwerte *zusatz = this->zusatz(schluessel)) {
        return zahl == 0 && zusatz->unbestimmt[stelle(wert)] ? ungewusst : Stoffangabe{zahl, 0};
    }
    if (const Rezeptangaben *rezept = this->rezept(schluessel, lebensmittel)) {
        return {zahl, (*rezept)[stelle(kenngroesse(wert))].unbekannt};
    }
    return zahl == 0 && !stehtImmerDa(wert) ? ungewusst : Stoffangabe{zahl, 0};
}

Stoffangabe Stoffwissen::ausTabelle(const QString &schluessel, const Datenmodul &lebensmittel,
                                    Kenngroesse groesse) const
{
    if (const Zusatzwerte *zusatz = this->zusatz(schluessel)) {
        for (const Tabellenspalte &eine : spalten) {
            const auto &figur = zusatz->*eine.spalte;
            if (eine.groesse == groesse && figur) {
                return {*figur, 0};
            }
        }
        return ungewusst;
    }
    const Rezeptangaben *rezept = this->rezept(schluessel, lebensmittel);
    return rezept != nullptr ? (*rezept)[stelle(groesse)] : ungewusst;
}

const Rezeptangaben *Stoffwissen::rezept(const QString &schluessel,
                                         const Datenmodul &lebensmittel) const
{
    const auto eines = m_rezepte.constFind(schluessel);
    if (eines == m_rezepte.cend()) {
        return nullptr;
    }
    const auto gegeben = m_gegebene.constFind(schluessel);
    return gegeben == m_gegebene.cend() || gleicheWerte(*gegeben, lebensmittel) ? &*eines : nullptr;
}

const Zusatzwerte *Stoffwissen::zusatz(const QString &schluessel) const
{
    const auto eintrag = m_tabelle.constFind(schluessel);
    return eintrag != m_tabelle.cend() ? &*eintrag : nullptr;
}

bool gleicheWerte(Datenmodul eines, const Datenmodul &anderes)
{
    for (const Wertungsbeschreibung &eine : wertungen) {
        eines.setWertung(eine.wertung, anderes.wertung(eine.wertung));
    }
    return gleicherInhalt(eines, anderes);
}
