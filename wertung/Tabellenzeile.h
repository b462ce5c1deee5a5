#pragma once

#include "Lebensmittelgruppe.h"
#include "Naehrwerte.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

/// How rich in purines a food is for which nobody published a figure, in milligrams of uric acid
/// that 100 g give.
enum class Purinklasse {
    Niedrig, ///< up to 50 mg
    Mittel,  ///< 50 to 150 mg
    Hoch,    ///< more than 150 mg
};

/// What kind of sugar a food holds, where that is not the usual half of fructose.
enum class Zuckerart {
    Ueblich,      ///< about half of the sugars is fructose
    OhneFruktose, ///< glucose or lactose only
};

/// One line of the food table: a food with its figures per 100 g, and what rating and checking it
/// need besides. Figures are held as they stand in the file.
struct Tabellenzeile
{
    int zeile = 0; ///< line in the file, from 1
    QString nameDe;
    QString nameEn;
    const Lebensmittelgruppe *gruppe = nullptr; ///< never null in a line that was read
    QString quelle;                             ///< the source's id of the food
    std::array<double, anzahlNaehrwerte> werte = {};
    double zucker = 0;     ///< g
    double gesaettigt = 0; ///< saturated fat, g
    double alkohol = 0;    ///< g
    /// Grams ready to eat that 100 g give: more than 100 for what is cooked in water or dissolved.
    double verzehrfertig = 100;
    std::optional<double> harnsaeure; ///< mg uric acid that the purines of 100 g give
    QString purinquellen;             ///< keys of the publications, parted by blanks
    /// What of which published foods 100 g hold, such as "40 Linsen, getrocknet + 10 Zwiebel"; a
    /// food alone stands for 100 g of it.
    QString purinherkunft;
    std::optional<Purinklasse> purinklasse; ///< only where there is no figure
    Merkmale merkmale;                      ///< those of this food beside its group's
    Zuckerart zuckerart = Zuckerart::Ueblich;
    QString synonymVon; ///< German name of the entry that is the same food; empty for a food's own
    QStringList ausnahmen; ///< checks that this food may fail, for the reason in `notiz`
    QString notiz;
    QString pruefzeichen; ///< the seal of the line, see `Siegel`

    double wert(Naehrwert wert) const { return werte[stelle(wert)]; }
};

/// What is wrong in the table, said to whoever changed it.
struct Beanstandung
{
    int zeile = 0;   ///< line in the file, from 1; 0 where the whole table is meant
    QString regel;   ///< short name of the check that failed
    QString meldung; ///< English
};

using Tabelle = QList<Tabellenzeile>;
using Beanstandungen = QList<Beanstandung>;
