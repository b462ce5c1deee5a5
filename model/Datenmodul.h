#pragma once

#include "Naehrwerte.h"

#include <QMap>
#include <QString>

#include <array>

/// One food: its name, seventeen values per 100 g and four suitability ratings. The record only
/// holds: it computes nothing, rounds nothing and checks nothing, so a value comes back exactly as
/// it was put in. A fresh record has all values 0 and all texts absent (null).
class Datenmodul
{
public:
    /// Reserved slot beside the seventeen values. Nothing reads, writes or stores it: energy in kJ
    /// is always worked out from kcal.
    float joule = 0;

    /// The food's name, also its key in every store; null when it was never set.
    const QString &name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }

    /// A value per 100 g, in the unit that `beschreibung(wert)` names.
    float wert(Naehrwert wert) const { return m_werte[stelle(wert)]; }
    void setWert(Naehrwert wert, float zahl) { m_werte[stelle(wert)] = zahl; }

    /// A rating, normally "+", "0" or "-"; an own food may hold any text; null when never set.
    const QString &wertung(Wertung wertung) const { return m_wertungen[stelle(wertung)]; }
    void setWertung(Wertung wertung, const QString &text) { m_wertungen[stelle(wertung)] = text; }

#define MAHLBERG_ZUGRIFF(feld)                                                                     \
    float feld() const                                                                             \
    {                                                                                              \
        return wert(Naehrwert::feld);                                                              \
    }                                                                                              \
    void set##feld(float zahl)                                                                     \
    {                                                                                              \
        setWert(Naehrwert::feld, zahl);                                                            \
    }
    MAHLBERG_NAEHRWERTE(MAHLBERG_ZUGRIFF)
#undef MAHLBERG_ZUGRIFF

#define MAHLBERG_ZUGRIFF(feld)                                                                     \
    const QString &feld() const                                                                    \
    {                                                                                              \
        return wertung(Wertung::feld);                                                             \
    }                                                                                              \
    void set##feld(const QString &text)                                                            \
    {                                                                                              \
        setWertung(Wertung::feld, text);                                                           \
    }
    MAHLBERG_WERTUNGEN(MAHLBERG_ZUGRIFF)
#undef MAHLBERG_ZUGRIFF

private:
    QString m_name;
    std::array<float, anzahlNaehrwerte> m_werte = {};
    std::array<QString, anzahlWertungen> m_wertungen;
};

/// A store of foods, from name to record. Walking it goes by name, so that a file written from it
/// is the same whenever its content is the same.
using Lebensmittelverzeichnis = QMap<QString, Datenmodul>;

/// Whether two foods have the same values and ratings, whatever they are called. A value that is no
/// number is the same as another such.
bool gleicherInhalt(const Datenmodul &eines, const Datenmodul &anderes);
