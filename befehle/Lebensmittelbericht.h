#pragma once

#include "Bedarfsbeurteilung.h"
#include "Energieanteile.h"
#include "Lebensmittelwahl.h"
#include "Relationen.h"
#include "Skalierung.h"

#include <QByteArray>
#include <QString>

#include <array>

/// All that the main window shows of a food for an amount.
struct Lebensmittelbericht
{
    QString schluessel;     ///< the food's name as its store has it
    QString englisch;       ///< its English name; null where it has none
    bool eigenes = false;   ///< it is an own food
    float gramm = 100;      ///< the amount
    Naehrwertreihe werte{}; ///< for the amount
    float kilojoule = 0;    ///< likewise
    Energieanteile anteile;
    Bedarfsbeurteilung bedarf;
    Relationen relationen;
    std::array<QString, anzahlWertungen> wertungen; ///< as they stand; null where there is none
};

/// Works it out as the main window does. `wahl` stands for a food.
Lebensmittelbericht lebensmittelbericht(const Lebensmittelwahl &wahl, const Bestaende &bestaende,
                                        float gramm);

/// For people, in the language of the windows and with their numbers.
QString alsText(const Lebensmittelbericht &bericht);
/// For programs, see `Programmform`.
QByteArray alsJson(const Lebensmittelbericht &bericht);
QByteArray alsCsv(const Lebensmittelbericht &bericht);
