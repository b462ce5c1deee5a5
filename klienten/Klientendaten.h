#pragma once

#include "Aufzeichnung.h"
#include "Datenmodul.h"

#include <QDate>
#include <QList>
#include <QString>

#include <array>
#include <optional>

/// What is known of a person's gender. The calculator and the reference values ask for it.
enum class Personengeschlecht { Unbekannt, Mann, Frau };

/// What changes the needs of a woman.
enum class Umstand { Keiner, Schwanger, Stillend };

/// How much a person moves, in the three steps of the calculator.
enum class Aktivitaet { Leicht, Mittel, Schwer };

/// A client of the practice. `kennung` is given when the record is first kept and never again
/// changed, so that it means the same person at another desk; null before. `fassung` counts how
/// often the record was written, so that of two desks that change it at once the second is noticed.
struct Person
{
    QString kennung;
    int fassung = 0;
    QString name;
    QString nummer; ///< the practice's own sign for the person; may be empty
    QDate geburt;   ///< null: not known
    Personengeschlecht geschlecht = Personengeschlecht::Unbekannt;
    Umstand umstand = Umstand::Keiner;
    /// Which of the four conditions matter for this person, in the order of `Wertung`.
    std::array<bool, anzahlWertungen> leiden = {};
    QString notizen;
    bool archiviert = false; ///< out of the daily list, with everything that is kept

    bool operator==(const Person &) const = default;
};

/// What was measured and told at one visit. A measure that is absent was not taken.
struct Besuch
{
    QString kennung;
    int fassung = 0;
    QDate datum;
    std::optional<double> gewicht; ///< kg
    std::optional<double> groesse; ///< m
    std::optional<double> taille;  ///< cm
    std::optional<double> huefte;  ///< cm
    std::optional<Aktivitaet> aktivitaet;
    std::optional<bool> reduktion;    ///< whether a fifth less energy is aimed at
    std::optional<QString> sport;     ///< in German, as in the calculator's table; empty: none
    std::optional<double> sportdauer; ///< hours a day
    QString notiz;

    bool operator==(const Besuch &) const = default;
};

/// A row of a kept plan: a food, how much of it, and what the food was like on that day. Without a
/// record (the food was in no store then) the row counts nothing, as it did on that day.
struct Planposten
{
    QString schluessel; ///< the food's key in its store
    float gramm = 0;
    std::optional<Datenmodul> eintrag; ///< values and ratings; its name is the key

    bool operator==(const Planposten &anderer) const;
};

/// A plan that is kept under a client.
struct Planablage
{
    QString kennung;
    int fassung = 0;
    QString titel;
    QDate datum;
    QString notiz;
    QList<Planposten> posten; ///< in the order of the rows

    bool operator==(const Planablage &) const = default;
};

/// Everything that is kept of one client: visits, plans and records of days with the oldest first,
/// and those of no certain date before them.
struct Klientenakte
{
    Person person;
    QList<Besuch> besuche;
    QList<Planablage> plaene;
    QList<Aufzeichnung> aufzeichnungen = {};

    bool operator==(const Klientenakte &) const = default;
};
