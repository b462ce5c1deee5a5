#include "Kenngroesse.h"

#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

using enum Kenngroesse;

const std::array<Kenngroessenbeschreibung, anzahlKenngroessen> kenngroessen = {{
    {kal, "kal", "kcal", "Energie", 0},
    {protein, "protein", "g", "Protein", 1},
    {fett, "fett", "g", "Fett", 1},
    {kh, "kh", "g", "Kohlenhydrate", 1},
    {bs, "bs", "g", "Ballaststoffe", 1},
    {chol, "chol", "mg", "Cholesterin", 0},
    {na, "na", "mg", "Natrium", 0},
    {ka, "ka", "mg", "Kalium", 0},
    {ca, "ca", "mg", "Calcium", 0},
    {ph, "ph", "mg", "Phosphat", 0},
    {ma, "ma", "mg", "Magnesium", 0},
    {fe, "fe", "mg", "Eisen", 1},
    {vita, "vita", "µg", "Vitamin A", 0},
    {b1, "b1", "mg", "Vitamin B1", 2},
    {b2, "b2", "mg", "Vitamin B2", 2},
    {b6, "b6", "mg", "Vitamin B6", 2},
    {vitc, "vitc", "mg", "Vitamin C", 0},
    {zucker, "zucker", "g", QT_TRANSLATE_NOOP("Mahlberg", "Zucker"), 1},
    {gesaettigt, "gesaettigt", "g", QT_TRANSLATE_NOOP("Mahlberg", "Gesättigte Fettsäuren"), 1},
    {alkohol, "alkohol", "g", QT_TRANSLATE_NOOP("Mahlberg", "Alkohol"), 1},
    {wasser, "wasser", "g", QT_TRANSLATE_NOOP("Mahlberg", "Wasser"), 0},
    {harnsaeure, "harnsaeure", "mg", QT_TRANSLATE_NOOP("Mahlberg", "Harnsäure aus Purinen"), 0},
    {salz, "salz", "g", QT_TRANSLATE_NOOP("Mahlberg", "Salz"), 1},
    {broteinheiten, "broteinheiten", QT_TRANSLATE_NOOP("Mahlberg", "BE"),
     QT_TRANSLATE_NOOP("Mahlberg", "Broteinheiten"), 1},
}};

QString nameVon(Kenngroesse groesse)
{
    return localizedString(QString::fromUtf8(beschreibung(groesse).bezeichnung));
}

QString einheitVon(Kenngroesse groesse)
{
    return localizedString(QString::fromUtf8(beschreibung(groesse).einheit));
}
