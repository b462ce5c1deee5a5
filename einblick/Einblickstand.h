#pragma once

#include "Referenzwerte.h"
#include "Speise.h"
#include "Zielbereich.h"

#include <QString>

/// What the insight is about.
enum class Gegenstand { Lebensmittel, Plan, Tag, Mittel };

/// Everything that a sheet of the insight shows. It is a copy: nothing in it changes behind the
/// sheet's back.
struct Einblickstand
{
    Gegenstand gegenstand = Gegenstand::Lebensmittel;
    QString titel = {};   ///< how it is called on screen: a food's name, "Mo 23.11.2026"
    Speisen speisen = {}; ///< what counts in it; of a mean what falls on one day
    QList<Speisenmahlzeit> mahlzeiten = {}; ///< the same meal by meal; empty where there are none
    int ungezaehlt = 0;                     ///< rows that are meant to count and don't
    int tage = 1;                           ///< how many days are in a mean
    Stoffwissen wissen = Stoffwissen();
    /// What a day should hold, by the general needs or by the published set that was chosen.
    Zielbereiche ziele = {};
    Referenzperson person = {};  ///< for whom the published values are looked up
    Referenzwerte referenz = {}; ///< what the chosen set says; empty: the general needs
    /// Which of the four conditions matter for the client, in the order of `Wertung`.
    std::array<bool, anzahlWertungen> leiden = {};
};
