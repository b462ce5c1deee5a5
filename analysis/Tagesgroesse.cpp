#include "Tagesgroesse.h"

#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

using enum Tagesgroesse;

const std::array<Tagesgroessenbeschreibung, anzahlTagesgroessen> tagesgroessen = {{
    {Purine, "purines", "mg", QT_TRANSLATE_NOOP("Mahlberg", "Harnsäure aus Purinen"), 0},
    {Broteinheiten, "bread units", QT_TRANSLATE_NOOP("Mahlberg", "BE"),
     QT_TRANSLATE_NOOP("Mahlberg", "Broteinheiten"), 1},
    {Alkohol, "alcohol", "g", QT_TRANSLATE_NOOP("Mahlberg", "Alkohol"), 1},
    {AlkoholJeWoche, "alcohol a week", "g", QT_TRANSLATE_NOOP("Mahlberg", "Alkohol in der Woche"),
     0},
    {Wasser, "water", "ml", QT_TRANSLATE_NOOP("Mahlberg", "Wasser insgesamt"), 0},
    {WasserGetraenke, "water in drinks", "ml", QT_TRANSLATE_NOOP("Mahlberg", "Wasser in Getränken"),
     0},
    {WasserSpeisen, "water in foods", "ml", QT_TRANSLATE_NOOP("Mahlberg", "Wasser in Speisen"), 0},
    {Salz, "salt", "g", QT_TRANSLATE_NOOP("Mahlberg", "Salz"), 1},
    {Energiedichte, "energy density", "kcal/100 g",
     QT_TRANSLATE_NOOP("Mahlberg", "Energiedichte ohne Getränke"), 0},
    {Gesaettigt, "saturated fat", "%",
     QT_TRANSLATE_NOOP("Mahlberg", "Energie aus gesättigten Fettsäuren"), 1},
    {Zucker, "sugars", "%", QT_TRANSLATE_NOOP("Mahlberg", "Energie aus allem Zucker"), 1},
    {FreierZucker, "free sugars", "%",
     QT_TRANSLATE_NOOP("Mahlberg", "Energie aus freiem Zucker, geschätzt"), 1},
}};

QString nameVon(Tagesgroesse groesse)
{
    return localizedString(QString::fromUtf8(beschreibung(groesse).bezeichnung));
}

QString einheitVon(Tagesgroesse groesse)
{
    return localizedString(QString::fromUtf8(beschreibung(groesse).einheit));
}
