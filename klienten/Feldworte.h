#pragma once

#include "Satzspalten.h"

#include <QString>

/// What a field of a record says to the user, in the language of the windows: with its unit,
/// choices in words, days as the country writes them. Empty for what is not known.
QString feldworte(const char *spalte, const QVariant &wert);

/// A day in figures as the country writes it, with all four digits of the year: clients were born
/// in two centuries. Empty for a null one.
QString tagesworte(const QDate &tag);

/// The unit of a field, such as "kg"; empty for one that has none.
QString feldeinheit(const char *spalte);

/// What the field of a record says.
template <typename Satz>
QString feldworte(const Satz &satz, const Satzspalte<Satz> &spalte)
{
    return feldworte(spalte.name, spalte.lies(satz));
}

/// The words of the choices, in the order of their values.
QStringList geschlechtsworte();
QStringList umstandsworte();
QStringList aktivitaetsworte();
QStringList aufzeichnungsworte();
