#pragma once

#include "Klientendaten.h"

#include <QVariant>

#include <span>

/// One column of a record: where it is kept, how the user knows it, and how it is read and set. The
/// store, the file that is handed over, the tables on paper and the view of two states side by side
/// all walk these, so a field added here is in all of them.
template <typename Satz>
struct Satzspalte
{
    const char *name;         ///< in the store and in files that are handed over
    const char *beschriftung; ///< key into the string table
    /// What is kept: a text, a whole number, a number, or nothing (a null value of any type). Dates
    /// are texts as in "2026-11-20".
    QVariant (*lies)(const Satz &);
    /// Takes over what was kept. False, and nothing changed, when it is nothing of the kind.
    bool (*setze)(Satz &, const QVariant &);
};

/// The columns without the key and the count of writes, in the order in which one reads them.
std::span<const Satzspalte<Person>> spalten(const Person *);
std::span<const Satzspalte<Besuch>> spalten(const Besuch *);
std::span<const Satzspalte<Planablage>> spalten(const Planablage *);
std::span<const Satzspalte<Aufzeichnung>> spalten(const Aufzeichnung *);

template <typename Satz>
std::span<const Satzspalte<Satz>> spalten()
{
    return spalten(static_cast<const Satz *>(nullptr));
}
