#include "Planliste.h"

#include "Ganzzahl.h"
#include "Lebensmittelbestand.h"

#include <algorithm>

void Planliste::laden(const Lebensmittelverzeichnis &gesichert)
{
    plansavedictionary = gesichert;
    PlanArray = sortiertNachName(gesichert.keys());
    mengenarray.clear();
    for (const QString &name : std::as_const(PlanArray)) {
        const auto gramm = static_cast<double>(plansavedictionary.constFind(name)->kal());
        mengenarray << static_cast<float>(ganzzahl(gramm));
    }
}

bool Planliste::einsetzen(const QString &name, qsizetype zeile)
{
    if (zeile < 0 || zeile > PlanArray.size()) {
        return false;
    }
    PlanArray.insert(zeile, name);
    mengenarray.insert(zeile, mengenzahl);
    const qsizetype laenge = PlanArray.size(); // as it is now, whatever is taken out below
    for (qsizetype i = 0; i < laenge; ++i) {
        if (!enthaelt(i)) {
            return false;
        }
        if (i == zeile || PlanArray[i] != PlanArray[zeile]) {
            continue;
        }
        streiche(i);
        if (!enthaelt(zeile)) {
            return false;
        }
        // When the food stood before the row, another one has moved up into the row by now.
        plansavedictionary.remove(PlanArray[zeile]);
    }
    eintragenzumplansaven(name, mengenzahl);
    return true;
}

void Planliste::anhaengen(const QString &name)
{
    const qsizetype laenge = PlanArray.size();
    bool gefunden = false;
    for (qsizetype i = 0; i < laenge; ++i) {
        if (PlanArray[i] == name) {
            streiche(i);
            plansavedictionary.remove(name);
            PlanArray << name;
            mengenarray << mengenzahl;
            gefunden = true;
        }
    }
    if (!gefunden) {
        PlanArray << name;
        mengenarray << mengenzahl;
    }
    eintragenzumplansaven(name, mengenzahl);
}

bool Planliste::mengeAendern(qsizetype zeile, float gramm)
{
    if (!enthaelt(zeile)) {
        return false;
    }
    mengenarray[zeile] = gramm;
    eintragenzumplansaven(PlanArray[zeile], gramm);
    return true;
}

bool Planliste::zeileEntfernen(qsizetype zeile)
{
    if (!enthaelt(zeile)) {
        return false;
    }
    plansavedictionary.remove(PlanArray[zeile]);
    streiche(zeile);
    return true;
}

bool Planliste::verschieben(qsizetype von, qsizetype nach)
{
    if (!enthaelt(von) || !enthaelt(nach)) {
        return false;
    }
    PlanArray.move(von, nach);
    mengenarray.move(von, nach);
    return true;
}

void Planliste::umbenennen(const QString &alt, const QString &neu)
{
    std::replace(PlanArray.begin(), PlanArray.end(), alt, neu);
    const auto traeger = plansavedictionary.constFind(alt);
    if (traeger != plansavedictionary.constEnd()) {
        const float gramm = traeger->kal();
        plansavedictionary.remove(alt);
        eintragenzumplansaven(neu, gramm);
    }
}

std::optional<qsizetype> Planliste::zeileVon(const QString &name) const
{
    const qsizetype zeile = PlanArray.indexOf(name);
    return zeile >= 0 ? std::optional(zeile) : std::nullopt;
}

void Planliste::streiche(qsizetype zeile)
{
    PlanArray.removeAt(zeile);
    mengenarray.removeAt(zeile);
}

void Planliste::eintragenzumplansaven(const QString &name, float gramm)
{
    Datenmodul traeger;
    traeger.setName(name);
    traeger.setkal(gramm);
    plansavedictionary.insert(name, traeger);
}
