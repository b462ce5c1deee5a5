#include "Naehrwerte.h"

#include <QCoreApplication>

using enum Einheit;

const std::array<Naehrwertbeschreibung, anzahlNaehrwerte> naehrwerte = {{
    {Naehrwert::kal, "kal", Kilokalorie, QT_TRANSLATE_NOOP("Mahlberg", "Energie")},
    {Naehrwert::protein, "protein", Gramm, QT_TRANSLATE_NOOP("Mahlberg", "Protein")},
    {Naehrwert::fett, "fett", Gramm, QT_TRANSLATE_NOOP("Mahlberg", "Fett")},
    {Naehrwert::kh, "kh", Gramm, QT_TRANSLATE_NOOP("Mahlberg", "Kohlenhydrate")},
    {Naehrwert::bs, "bs", Gramm, QT_TRANSLATE_NOOP("Mahlberg", "Ballaststoffe")},
    {Naehrwert::chol, "chol", Milligramm, QT_TRANSLATE_NOOP("Mahlberg", "Cholesterin")},
    {Naehrwert::na, "na", Milligramm, QT_TRANSLATE_NOOP("Mahlberg", "Natrium")},
    {Naehrwert::ka, "ka", Milligramm, QT_TRANSLATE_NOOP("Mahlberg", "Kalium")},
    {Naehrwert::ca, "ca", Milligramm, QT_TRANSLATE_NOOP("Mahlberg", "Calcium")},
    {Naehrwert::ph, "ph", Milligramm, QT_TRANSLATE_NOOP("Mahlberg", "Phosphat")},
    {Naehrwert::ma, "ma", Milligramm, QT_TRANSLATE_NOOP("Mahlberg", "Magnesium")},
    {Naehrwert::fe, "fe", Milligramm, QT_TRANSLATE_NOOP("Mahlberg", "Eisen")},
    {Naehrwert::vita, "vita", Mikrogramm, QT_TRANSLATE_NOOP("Mahlberg", "Vitamin A")},
    {Naehrwert::b1, "b1", Milligramm, QT_TRANSLATE_NOOP("Mahlberg", "Vitamin B1")},
    {Naehrwert::b2, "b2", Milligramm, QT_TRANSLATE_NOOP("Mahlberg", "Vitamin B2")},
    {Naehrwert::b6, "b6", Milligramm, QT_TRANSLATE_NOOP("Mahlberg", "Vitamin B6")},
    {Naehrwert::vitc, "vitc", Milligramm, QT_TRANSLATE_NOOP("Mahlberg", "Vitamin C")},
}};

const std::array<Wertungsbeschreibung, anzahlWertungen> wertungen = {{
    {Wertung::uebergewicht, "uebergewicht", QT_TRANSLATE_NOOP("Mahlberg", "Übergewicht")},
    {Wertung::diabetes, "diabetes", QT_TRANSLATE_NOOP("Mahlberg", "Diabetes")},
    {Wertung::gicht, "gicht", QT_TRANSLATE_NOOP("Mahlberg", "Gicht")},
    {Wertung::hkk, "hkk", QT_TRANSLATE_NOOP("Mahlberg", "Herz und Kreislauf")},
}};

QString einheitszeichen(Einheit einheit)
{
    static const std::array<QString, 4> zeichen = {
        QStringLiteral("kcal"),
        QStringLiteral("g"),
        QStringLiteral("mg"),
        QStringLiteral("µg"),
    };
    return zeichen[static_cast<std::size_t>(einheit)];
}
