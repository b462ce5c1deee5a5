#include "Beitraege.h"

#include <QHash>

#include <algorithm>

namespace {

/// The same food of several rows, taken together in the order in which they stand.
class Sammlung
{
public:
    Beitrag &fuer(const Speise &speise)
    {
        const auto bisher = m_stellen.constFind(speise.schluessel);
        if (bisher != m_stellen.cend()) {
            return m_alle[*bisher];
        }
        m_stellen.insert(speise.schluessel, m_alle.size());
        m_alle << Beitrag{speise.schluessel, 0, {}, 0, {}};
        return m_alle.last();
    }

    const QList<Beitrag> &alle() const { return m_alle; }

private:
    QHash<QString, qsizetype> m_stellen;
    QList<Beitrag> m_alle;
};

void nimmHinzu(Beitrag &beitrag, const Speise &speise, const Stoffangabe &angabe)
{
    const double gramm = zaehlendeGramm(speise);
    const double ungewusst = beitrag.angabe.unbekannt * beitrag.gramm + angabe.unbekannt * gramm;
    beitrag.gramm += gramm;
    beitrag.angabe.wert += angabe.wert;
    beitrag.angabe.unbekannt = ungewusst / beitrag.gramm;
    beitrag.orte << speise.ort;
}

} // namespace

Beitraege beitraege(const Speisen &speisen, Kenngroesse groesse, const Stoffwissen &wissen)
{
    Sammlung sammlung;
    for (const Speise &eine : speisen) {
        if (zaehlendeGramm(eine) > 0) {
            nimmHinzu(sammlung.fuer(eine), eine, stoffangabe(eine, groesse, wissen));
        }
    }
    Beitraege ergebnis;
    ergebnis.summe = summiere(speisen, groesse, wissen);
    for (Beitrag einer : sammlung.alle()) {
        einer.anteil = ergebnis.summe.wert > 0 ? einer.angabe.wert / ergebnis.summe.wert : 0;
        (einer.angabe.istUnbekannt() ? ergebnis.unbekannte : ergebnis.bekannte) << einer;
    }
    std::stable_sort(
        ergebnis.bekannte.begin(), ergebnis.bekannte.end(),
        [](const Beitrag &a, const Beitrag &b) { return a.angabe.wert > b.angabe.wert; });
    return ergebnis;
}

QList<Ungeeignetes> ungeeignete(const Speisen &speisen, Wertung wertung)
{
    Sammlung sammlung;
    double alle = 0;
    for (const Speise &eine : speisen) {
        alle += zaehlendeGramm(eine);
        const bool nicht =
            eine.lebensmittel && eine.lebensmittel->wertung(wertung) == QStringLiteral("-");
        if (nicht && zaehlendeGramm(eine) > 0) {
            nimmHinzu(sammlung.fuer(eine), eine, {});
        }
    }
    QList<Ungeeignetes> liste;
    for (const Beitrag &einer : sammlung.alle()) {
        liste << Ungeeignetes{einer.schluessel, einer.gramm, einer.gramm / alle, einer.orte};
    }
    std::stable_sort(liste.begin(), liste.end(), [](const Ungeeignetes &a, const Ungeeignetes &b) {
        return a.gramm > b.gramm;
    });
    return liste;
}

Stoffsumme unbewertete(const Speisen &speisen, Wertung wertung)
{
    return summiere(speisen, [wertung](const Speise &eine) {
        const QString zeichen = eine.lebensmittel ? eine.lebensmittel->wertung(wertung) : QString();
        const bool bewertet = zeichen == QStringLiteral("+") || zeichen == QStringLiteral("0") ||
                              zeichen == QStringLiteral("-");
        return Stoffangabe{.wert = 0, .unbekannt = bewertet ? 0.0 : 1.0};
    });
}
