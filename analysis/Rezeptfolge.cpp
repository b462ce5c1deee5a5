#include "Rezeptfolge.h"

#include "Rezeptwertung.h"

namespace {

/// Goes through the recipes in the order in which they are cooked.
class Folge
{
public:
    Folge(const Rezepte &rezepte, const Lebensmittelverzeichnis &eingebaute,
          Lebensmittelverzeichnis eigene, Stoffwissen wissen)
        : m_rezepte(rezepte)
        , m_eingebaute(eingebaute)
        , m_eigene(std::move(eigene))
        , m_wissen(std::move(wissen))
    {
    }

    Nachzuege laufe()
    {
        m_wissen.setzeRezepte({});
        for (const QString &schluessel : kochfolge(m_rezepte)) {
            Rezept rezept = m_rezepte[schluessel];
            const auto lebensmittel = m_eigene.constFind(schluessel);
            if (lebensmittel != m_eigene.cend() && rezept.folgt) {
                rezept = zieheNach(schluessel, *lebensmittel);
            }
            // Of a dish that was changed by hand no recipe tells what is in it.
            const Rezeptergebnis ergebnis = rezeptwerte(rezept, m_wissen);
            if (ergebnis && gleicheWerte(rezept.gegeben, m_eigene.value(schluessel))) {
                m_angaben.insert(schluessel, ergebnis.angaben);
                m_wissen.setzeRezepte(m_angaben);
            }
        }
        return m_zuege;
    }

private:
    /// The recipe that tells of the dish from now on.
    Rezept zieheNach(const QString &schluessel, const Datenmodul &lebensmittel)
    {
        const Rezept &bisher = m_rezepte[schluessel];
        Rezept heute = mitHeutigen(bisher, m_eingebaute, m_eigene);
        if (heute.zutaten == bisher.zutaten) {
            return bisher;
        }
        const std::optional<Datenmodul> satz = gerichtssatz(heute, m_wissen, m_rezepte);
        if (!satz) {
            m_zuege.unmoegliche << schluessel;
            return bisher;
        }
        const bool unberuehrt = gleicherInhalt(bisher.gegeben, lebensmittel);
        const bool schonSo = gleicherInhalt(*satz, lebensmittel);
        if (!unberuehrt && !schonSo) {
            m_zuege.vonHandGeaenderte << schluessel;
            return bisher;
        }
        heute.gegeben = *satz;
        if (!unberuehrt || !schonSo) {
            m_zuege.folgende << Nachzug{heute, lebensmittel, *satz};
            m_eigene.insert(schluessel, *satz);
        }
        return heute;
    }

    const Rezepte &m_rezepte;
    const Lebensmittelverzeichnis &m_eingebaute;
    Lebensmittelverzeichnis m_eigene; ///< as they are when all that came before has followed
    Stoffwissen m_wissen;
    QHash<QString, Rezeptangaben> m_angaben;
    Nachzuege m_zuege;
};

} // namespace

Nachzuege nachgezogen(const Rezepte &rezepte, const Lebensmittelverzeichnis &eingebaute,
                      const Lebensmittelverzeichnis &eigene, Stoffwissen wissen)
{
    return Folge(rezepte, eingebaute, eigene, std::move(wissen)).laufe();
}

Rezept mitHeutigen(Rezept rezept, const Lebensmittelverzeichnis &eingebaute,
                   const Lebensmittelverzeichnis &eigene)
{
    for (Rezeptzutat &zutat : rezept.zutaten) {
        for (const Lebensmittelverzeichnis *speicher : {&eingebaute, &eigene}) {
            const auto heutiges = speicher->constFind(zutat.schluessel);
            if (heutiges != speicher->cend()) {
                zutat.satz = *heutiges;
                break;
            }
        }
    }
    return rezept;
}
