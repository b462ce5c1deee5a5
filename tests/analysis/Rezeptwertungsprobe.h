#pragma once

#include "Rezeptwertung.h"

#include <QTest>

using namespace Qt::StringLiterals;

// Foods with their groups, and dishes made of them.

struct Speisedaten
{
    const char *name;
    const char *gruppe;
    double zucker;
    double gesaettigt;
    double verzehrfertig;
    std::optional<double> harnsaeure;
    std::optional<Purinklasse> klasse;
    std::array<float, 7> werte; // kal, protein, fett, kh, bs, chol, na
};

const Speisedaten speisen[] = {
    {"Linsen", "Hülsenfrüchte", 1, 0.2, 280, 200, {}, {320, 25, 1.5F, 45, 17, 0, 2}},
    {"Möhren", "Gemüse", 6, 0.1, 100, 10, {}, {40, 0.5F, 0.4F, 8, 3, 0, 28}},
    {"Zwiebeln", "Gemüse", 5, 0.2, 100, 8, {}, {40, 1, 0.6F, 6, 2, 0, 8}},
    {"Öl", "Fette und Öle", 0, 7, 100, {}, Purinklasse::Niedrig, {900, 0, 100, 0, 0, 0, 0}},
    {"Salz", "Kräuter, Gewürze und Zutaten", 0, 0, 100, 0, {}, {0, 0, 0, 0, 0, 0, 39000}},
    {"Milchpulver", "Milch und Sahne", 38, 17, 770, 0, {}, {500, 26, 26, 38, 0, 90, 370}},
    {"Milch", "Milch und Sahne", 4.9, 2.4, 100, 0, {}, {66, 3, 4, 4.9F, 0, 12, 44}},
    {"Zucker", "Zucker und Süßwaren", 100, 0, 100, 0, {}, {400, 0, 0, 100, 0, 0, 0}},
    {"Traubenzucker", "Zucker und Süßwaren", 100, 0, 100, 0, {}, {400, 0, 0, 100, 0, 0, 0}},
    {"Apfel", "Obst", 12, 0, 100, 14, {}, {55, 0, 0, 12, 2, 0, 1}},
    {"Fruchtjoghurt", "Joghurt und Quark", 14, 2, 100, 4, {}, {100, 4, 3, 14, 0, 8, 45}},
    {"Leber", "Innereien", 0, 1.5, 100, 500, {}, {130, 20, 5, 1, 0, 300, 80}},
    {"Sahne", "Milch und Sahne", 3, 21, 100, 0, {}, {340, 2, 35, 3, 0, 110, 35}},
    {"Suppengewürz",
     "Kräuter, Gewürze und Zutaten",
     0,
     0,
     100,
     {},
     Purinklasse::Hoch,
     {200, 10, 2, 20, 0, 0, 0}},
    {"Grieß",
     "Getreide, Reis und Nudeln",
     1,
     0.2,
     280,
     {},
     Purinklasse::Mittel,
     {350, 12, 1, 70, 4, 0, 1}},
};

inline constexpr std::array angegebene = {Naehrwert::kal, Naehrwert::protein, Naehrwert::fett,
                                          Naehrwert::kh,  Naehrwert::bs,      Naehrwert::chol,
                                          Naehrwert::na};

inline Stoffwissen wissen()
{
    Zusatztabelle tabelle;
    for (const Speisedaten &eine : speisen) {
        Zusatzwerte zusatz = {.gruppe = lebensmittelgruppe(QString::fromUtf8(eine.gruppe)),
                              .zucker = eine.zucker,
                              .gesaettigt = eine.gesaettigt,
                              .alkohol = 0,
                              .harnsaeure = eine.harnsaeure,
                              .purinklasse = eine.klasse,
                              .verzehrfertig = eine.verzehrfertig};
        if (eine.name == QByteArrayView("Traubenzucker")) {
            zusatz.zuckerart = Zuckerart::OhneFruktose;
        }
        tabelle.insert(QString::fromUtf8(eine.name), zusatz);
    }
    return Stoffwissen(tabelle);
}

inline Datenmodul satz(const QString &name)
{
    Datenmodul eines;
    eines.setName(name);
    for (const Speisedaten &eine : speisen) {
        if (name == QString::fromUtf8(eine.name)) {
            for (std::size_t i = 0; i < angegebene.size(); ++i) {
                eines.setWert(angegebene[i], eine.werte[i]);
            }
        }
    }
    return eines;
}

using Mengen = QList<std::pair<QString, double>>;

inline Rezept gericht(const Mengen &mengen, std::optional<double> fertig = {})
{
    Rezept rezept;
    rezept.schluessel = u"Gericht"_s;
    for (const auto &[name, gramm] : mengen) {
        rezept.zutaten << Rezeptzutat{name, gramm, satz(name)};
    }
    rezept.fertiggewicht = fertig;
    return rezept;
}

/// An own food with nothing but what everybody enters.
inline Rezeptzutat eigenes(double gramm, float kal = 100, float kh = 10)
{
    Datenmodul eines;
    eines.setkal(kal);
    eines.setkh(kh);
    return {u"Hausgemachtes"_s, gramm, eines};
}

inline const Mengen linsensuppe = {
    {u"Linsen"_s, 200}, {u"Möhren"_s, 100}, {u"Zwiebeln"_s, 50}, {u"Öl"_s, 10}};

inline double zahl(const Rezept &rezept, Groesse groesse)
{
    return gerichtsgroessen(rezept, wissen()).groessen.zahl(groesse);
}

inline QString urteile(const Rezept &rezept)
{
    QString alle;
    for (const Wertungsbeschreibung &eine : wertungen) {
        alle += wertungsvorschlag(eine.wertung, gerichtsgroessen(rezept, wissen())).urteil;
    }
    return alle;
}

/// A dish of which nothing is unknown but these figures. More fat than is known makes the saturated
/// part of it smaller, more fibre the carbohydrate for each gram of it.
inline Gerichtsgroessen mitUnbekanntem(Gerichtsgroessen gericht, const QList<Groesse> &unbekannte)
{
    for (const Groesse eine : unbekannte) {
        gericht.unbekannt[static_cast<std::size_t>(eine)] = 0.25;
        gericht.kannMehr[static_cast<std::size_t>(eine)] = true;
    }
    gericht.kannWeniger[static_cast<std::size_t>(Groesse::GesaettigtAnteil)] =
        unbekannte.contains(Groesse::Fett);
    gericht.kannWeniger[static_cast<std::size_t>(Groesse::KohlenhydrateJeBallaststoff)] =
        unbekannte.contains(Groesse::Ballaststoffe);
    return gericht;
}
