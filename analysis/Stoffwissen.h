#pragma once

#include "Datenmodul.h"
#include "Kenngroesse.h"
#include "Zusatzwerte.h"

#include <QHash>
#include <QString>

#include <array>

/// How much of something a food holds, and how much of the food nobody knows it of.
struct Stoffangabe
{
    double wert = 0; ///< in the unit of the `Kenngroesse`, of the part that is known
    /// The part of the food's grams of which it is unknown, 0 to 1. At 1 there is no figure.
    double unbekannt = 0;

    bool istUnbekannt() const { return unbekannt >= 1; }
    bool operator==(const Stoffangabe &) const = default;
};

/// What is known of an own food that was cooked from others, per 100 g of the dish.
using Rezeptangaben = std::array<Stoffangabe, anzahlKenngroessen>;

/// Tells what a food holds, and keeps apart what it does not hold and what nobody knows. The record
/// says 0 for both.
class Stoffwissen
{
public:
    /// `tabelle` tells of the built-in foods. While it is empty, a 0 of theirs is taken as one of
    /// an own food.
    explicit Stoffwissen(Zusatztabelle tabelle = {}) : m_tabelle(std::move(tabelle)) {}

    /// What is known of the dishes among the own foods, by their keys. Of those that stand in
    /// `gegebene` it holds for a record with these values only: one that was kept before the dish
    /// was cooked otherwise tells of another dish.
    void setzeRezepte(const QHash<QString, Rezeptangaben> &rezepte,
                      const Lebensmittelverzeichnis &gegebene = {});

    /// Whether it is known of what this own food was cooked.
    bool istGericht(const QString &schluessel) const { return m_rezepte.contains(schluessel); }

    /// The same where the food of this key is an own one. One that is called as a built-in food has
    /// that one's name alone, and none of its figures.
    Stoffwissen mitEigenem(const QString &schluessel) const;

    /// How much 100 g of a food hold. A value that is not 0 is known wherever it comes from. A 0 is
    /// unknown:
    /// - of a built-in food where the source gives no figure; a trace, and less than a limit, is
    ///   a known 0;
    /// - of an own food for all but energy, protein, fat and carbohydrate: what is left empty where
    ///   a food is entered is kept as 0, and a label rarely tells more.
    /// What the record does not hold is known of a built-in food where it was published, and of a
    /// dish as far as it is of what the dish was cooked from. Salt is as well known as sodium,
    /// bread units as carbohydrate. A value below 0 and one that is no number are unknown.
    Stoffangabe je100g(const QString &schluessel, const Datenmodul &lebensmittel,
                       Kenngroesse groesse) const;

    /// What is known of a built-in food beside its record; null for any other.
    const Zusatzwerte *zusatz(const QString &schluessel) const;

    /// All that is known beside the records.
    const Zusatztabelle &tabelle() const { return m_tabelle; }

private:
    Stoffangabe ausSatz(const QString &schluessel, const Datenmodul &lebensmittel,
                        Naehrwert wert) const;
    Stoffangabe ausTabelle(const QString &schluessel, const Datenmodul &lebensmittel,
                           Kenngroesse groesse) const;
    const Rezeptangaben *rezept(const QString &schluessel, const Datenmodul &lebensmittel) const;

    Zusatztabelle m_tabelle;
    QHash<QString, Rezeptangaben> m_rezepte;
    Lebensmittelverzeichnis m_gegebene; ///< dishes as their recipes gave them
};

/// Whether two records hold the same but for their ratings, which users set by hand.
bool gleicheWerte(Datenmodul eines, const Datenmodul &anderes);
