#pragma once

#include "Klientendaten.h"

#include <QDate>
#include <QList>
#include <QString>

/// What is wrong with what was typed about a person, so that it is not kept.
enum class Personenmangel {
    NameFehlt,
    GeburtInZukunft,
    GeburtUnmoeglich, ///< nobody is that old
};

/// The faults of a person on a day, in the order of the fields.
QList<Personenmangel> maengel(const Person &person, const QDate &heute);

/// A measure that is likely to be a slip. It is asked about once, and kept when it is meant.
struct Zweifel
{
    enum class Art {
        Gewicht, ///< outside of what people weigh
        Groesse,
        Taille,
        Huefte,
        Gewichtssprung, ///< far from the visit before
        Groessensprung,
        InZukunft, ///< a visit that is still to come
        VorGeburt,
    };
    Art art;
    double wert = 0;      ///< what was typed: kg, m, cm; 0 for days
    double vergleich = 0; ///< of a jump, the measure before
    QDate tag = {};       ///< of a jump, the day of the visit before

    bool operator==(const Zweifel &) const = default;
};

/// What is to be asked about a visit, given the others of the same person.
QList<Zweifel> zweifel(const Besuch &besuch, const QList<Besuch> &andere, const QDate &geburt,
                       const QDate &heute);

/// Whole years of life on a day; absent when the birth is not known or still to come.
std::optional<int> alterAm(const QDate &tag, const QDate &geburt);
