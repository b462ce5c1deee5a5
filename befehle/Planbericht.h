#pragma once

#include "Bestaende.h"
#include "Namenswechsel.h"
#include "Planauswertung.h"
#include "Planliste.h"
#include "Plansummen.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <cstdint>

/// A row of a plan as it is told about.
struct Planberichtszeile
{
    QString name; ///< key of the food
    float gramm = 0;
    bool bekannt = false; ///< a store has it; otherwise the row counts nothing
    bool eigenes = false; ///< it is an own food
    QString heutigerName; ///< what an unknown food is called now; null where that is not known
};

/// All that the plan's window shows of a plan's rows and of their evaluation, without what it knows
/// from the calculator: the course of the weight.
struct Planbericht
{
    QList<Planberichtszeile> zeilen;
    std::int32_t energiebedarf = 0; ///< kcal per day; 0: unknown
    Planauswertung auswertung;
    Plansummen summen;
};

/// Evaluates a plan as its window does. `wechsel` leads from former names to those of today.
Planbericht planbericht(const Planliste &plan, const Bestaende &bestaende,
                        const Namenswechsel &wechsel, std::int32_t energiebedarf);

/// For people, in the language of the windows and with their numbers.
QString alsText(const Planbericht &bericht);
/// For programs, see `Programmform`.
QByteArray alsJson(const Planbericht &bericht);
QByteArray alsCsv(const Planbericht &bericht);
