#include "Einblickperson.h"

#include "Angabenpruefung.h"

#include <array>
#include <cmath>

namespace {

/// Up to this age, in years, the calculator works nothing out: what it shows is somebody else's.
constexpr int rechneralter = 10;

constexpr std::array<double, 3> pale = {1.4, 1.6, 1.8}; // in the order of `Aktivitaet`

std::optional<Referenzgeschlecht> geschlecht(Personengeschlecht eines)
{
    switch (eines) {
    case Personengeschlecht::Mann:
        return Referenzgeschlecht::Mann;
    case Personengeschlecht::Frau:
        return Referenzgeschlecht::Frau;
    default:
        return std::nullopt;
    }
}

Referenzzustand zustand(const Person &person)
{
    if (person.geschlecht != Personengeschlecht::Frau) {
        return Referenzzustand::Keiner;
    }
    return person.umstand == Umstand::Schwanger  ? Referenzzustand::Schwanger
           : person.umstand == Umstand::Stillend ? Referenzzustand::Stillend
                                                 : Referenzzustand::Keiner;
}

/// The calculator reckons in single precision, of which nobody wants to read all digits: a balance
/// shows tenths.
double aufZehntel(double kilogramm)
{
    return std::round(kilogramm * 10) / 10;
}

std::optional<double> bekannt(double zahl)
{
    return zahl > 0 ? std::optional(zahl) : std::nullopt;
}

} // namespace

double palFuer(Aktivitaet aktivitaet)
{
    return pale.at(static_cast<std::size_t>(aktivitaet));
}

Referenzperson referenzperson(const std::optional<Klientenakte> &akte,
                              const Rechnerangaben &rechner, const QDate &heute)
{
    Referenzperson person;
    person.pal = palFuer(rechner.aktivitaet);
    person.gewicht = bekannt(aufZehntel(rechner.gewicht));
    if (akte) {
        person.geschlecht = geschlecht(akte->person.geschlecht);
        person.alter = alterAm(heute, akte->person.geburt);
        person.zustand = zustand(akte->person);
    } else {
        person.geschlecht = rechner.frau ? Referenzgeschlecht::Frau : Referenzgeschlecht::Mann;
        person.alter = rechner.alter;
    }
    // It knows nothing of pregnancy and nursing either, and takes whose sex is not known for a man.
    if (person.zustand == Referenzzustand::Keiner && person.alter.value_or(0) > rechneralter &&
        person.geschlecht) {
        person.energiebedarf = bekannt(rechner.energiebedarf);
    }
    return person;
}

Referenzperson mitNeuem(Referenzperson getippt, const Referenzperson &bisher,
                        const Referenzperson &neu)
{
    const auto uebernimm = [&](auto Referenzperson::*feld) {
        if (bisher.*feld != neu.*feld) {
            getippt.*feld = neu.*feld;
        }
    };
    uebernimm(&Referenzperson::geschlecht);
    uebernimm(&Referenzperson::alter);
    uebernimm(&Referenzperson::zustand);
    if (bisher.zustand != neu.zustand) { // they are of the state that was
        getippt.trimester = neu.trimester;
        getippt.stillmonat = neu.stillmonat;
    }
    uebernimm(&Referenzperson::pal);
    uebernimm(&Referenzperson::gewicht);
    getippt.energiebedarf = neu.energiebedarf;
    if (getippt != neu) { // it was worked out for the client, and holds for nobody else
        getippt.energiebedarf.reset();
    }
    return getippt;
}

std::array<bool, anzahlWertungen> leidenVon(const std::optional<Klientenakte> &akte)
{
    return akte ? akte->person.leiden : std::array<bool, anzahlWertungen>();
}
