#include "Rangliste.h"

#include "Lebensmittelbestand.h"

#include <QHash>

#include <algorithm>

namespace {

const QString platzhalter = QStringLiteral("-");

/// What becomes of a food; of several reasons the last one counts.
enum class Urteil { Drin, OhnePortion, OhneAngabe, Draussen };

Urteil urteil(const Bezugswert &wert)
{
    return wert.hatZahl()                                 ? Urteil::Drin
           : wert.stand == Bezugswert::Stand::OhnePortion ? Urteil::OhnePortion
                                                          : Urteil::OhneAngabe;
}

Urteil urteil(const Bezugswert &wert, const Wertebereich &bereich)
{
    if (!wert.hatZahl()) {
        return urteil(wert);
    }
    if (bereich.bis && wert.wert > sechsstellig(*bereich.bis)) {
        return Urteil::Draussen;
    }
    const bool zuWenig = bereich.von && wert.wert < sechsstellig(*bereich.von);
    if (wert.stand == Bezugswert::Stand::Mindestens && (zuWenig || bereich.bis)) {
        return Urteil::OhneAngabe; // with what is unknown of it, it may be otherwise
    }
    return zuWenig ? Urteil::Draussen : Urteil::Drin;
}

bool gehoertZurWahl(const Kandidat &kandidat, const Rangfrage &frage, const Stoffwissen &wissen)
{
    if (kandidat.schluessel == platzhalter) {
        return false;
    }
    if (frage.nurEigene || frage.gruppe == nullptr) {
        return kandidat.eigen || !frage.nurEigene;
    }
    const Zusatzwerte *zusatz = wissen.zusatz(kandidat.schluessel);
    return !kandidat.eigen && zusatz != nullptr && zusatz->gruppe == frage.gruppe;
}

bool istSoBewertet(const Datenmodul &satz, const Rangfrage &frage)
{
    return std::ranges::all_of(wertungen, [&](const Wertungsbeschreibung &eine) {
        return istErfuellt(frage.wertungen[stelle(eine.wertung)], satz.wertung(eine.wertung));
    });
}

Urteil urteil(const Kandidat &kandidat, const Rangfrage &frage, const Stoffwissen &wissen)
{
    Urteil bisher = Urteil::Drin;
    for (const Wertebereich &bereich : frage.bereiche) {
        if (bereich.von || bereich.bis) {
            const Bezugswert wert = bezugswert(kandidat, bereich.groesse, bereich.bezug, wissen);
            bisher = std::max(bisher, urteil(wert, bereich));
        }
    }
    return bisher;
}

/// Puts the foods into their order and numbers them.
void ordne(QList<Rangplatz> &plaetze, bool absteigend)
{
    std::ranges::stable_sort(plaetze, [absteigend](const Rangplatz &a, const Rangplatz &b) {
        return absteigend ? a.wert.wert > b.wert.wert : a.wert.wert < b.wert.wert;
    });
    for (qsizetype i = 1; i < plaetze.size(); ++i) {
        const Rangplatz &voriger = plaetze[i - 1];
        plaetze[i].rang =
            plaetze[i].wert.wert == voriger.wert.wert ? voriger.rang : static_cast<int>(i) + 1;
    }
}

} // namespace

Rangliste rangliste(const QList<Kandidat> &kandidaten, const Rangfrage &frage,
                    const Stoffwissen &wissen)
{
    Rangliste liste;
    for (qsizetype i = 0; i < kandidaten.size(); ++i) {
        const Kandidat &einer = kandidaten[i];
        if (!gehoertZurWahl(einer, frage, wissen) || !istSoBewertet(einer.satz, frage)) {
            continue;
        }
        const Bezugswert wert = bezugswert(einer, frage.groesse, frage.bezug, wissen);
        switch (std::max(urteil(wert), urteil(einer, frage, wissen))) {
        case Urteil::Drin:
            liste.plaetze.append({.stelle = i, .wert = wert});
            break;
        case Urteil::OhnePortion:
            liste.ohnePortion << i;
            break;
        case Urteil::OhneAngabe:
            liste.ohneAngabe << i;
            break;
        case Urteil::Draussen:
            break;
        }
    }
    ordne(liste.plaetze, frage.absteigend);
    return liste;
}

QList<Kandidat> nachNamen(QList<Kandidat> kandidaten, const QLocale &locale)
{
    QStringList namen;
    for (const Kandidat &einer : std::as_const(kandidaten)) {
        namen << einer.schluessel;
    }
    QHash<QString, qsizetype> stellen;
    const QStringList sortiert = sortiertNachUebersetzung(namen, locale);
    for (qsizetype i = 0; i < sortiert.size(); ++i) {
        stellen.insert(sortiert[i], i); // foods with one name stand there together
    }
    std::ranges::stable_sort(kandidaten, [&stellen](const Kandidat &a, const Kandidat &b) {
        const qsizetype stelleA = stellen.value(a.schluessel);
        const qsizetype stelleB = stellen.value(b.schluessel);
        return stelleA != stelleB ? stelleA < stelleB : a.eigen && !b.eigen;
    });
    return kandidaten;
}
