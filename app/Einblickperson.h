#pragma once

#include "Klientendaten.h"
#include "Referenzperson.h"

#include <QDate>

/// What the calculator says of whom it reckons for.
struct Rechnerangaben
{
    bool frau = false;
    int alter = 0; ///< years
    Aktivitaet aktivitaet = Aktivitaet::Leicht;
    double gewicht = 0;       ///< kg; 0: not known
    double energiebedarf = 0; ///< kcal a day, after any reduction; 0: not known
};

/// The physical activity level that one of the calculator's three steps stands for. The sets print
/// their energy for 1.4 (mostly sitting), 1.6 (sitting, with some walking and standing) and 1.8
/// (mostly walking and standing); see docs/reference-values.md.
double palFuer(Aktivitaet aktivitaet);

/// For whom the reference values are looked up: the client at the desk, and the calculator's
/// measures of them; what is not known of a client stays so. Where nobody sits at the desk, whoever
/// the calculator reckons for.
Referenzperson referenzperson(const std::optional<Klientenakte> &akte,
                              const Rechnerangaben &rechner, const QDate &heute);

/// What was typed about a person, with what has changed since between two states of what is known
/// of them: new measures come in, and what was typed beside them stays. The energy that was worked
/// out holds only where nothing was typed.
Referenzperson mitNeuem(Referenzperson getippt, const Referenzperson &bisher,
                        const Referenzperson &neu);

/// Which of the four conditions matter for the client; none where nobody sits at the desk.
std::array<bool, anzahlWertungen> leidenVon(const std::optional<Klientenakte> &akte);
