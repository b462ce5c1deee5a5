#pragma once

#include "Wertungsregeln.h"

#include <QLocale>

/// Why a food is rated as it is: the rule, the figures that decided and, where the rating could
/// have been another one, what it was short of.
class Wertungserklaerung
{
public:
    /// Explains the rating that the rules give. `zahlen` writes the figures as the reader is used
    /// to.
    Wertungserklaerung(Wertung wertung, const Tabellenzeile &zeile, Regelsprache sprache,
                       const QLocale &zahlen, const Regelwerk &regeln = wertungsregeln());
    /// The same for what stands in no table, such as a dish: by its figures as it is eaten.
    Wertungserklaerung(Wertung wertung, const Wertungsgroessen &food, Regelsprache sprache,
                       const QLocale &zahlen, const Regelwerk &regeln = wertungsregeln());

    /// The rule that decided; null when none holds, which the build rules out.
    const Wertungsregel *regel() const { return m_regel; }

    /// The rule's own figures, such as "energy 42 kcal (over 20 kcal)". Empty for a rule that takes
    /// what the others leave: the lists below then name the figures that decided.
    QStringList gruende() const { return m_gruende; }

    /// For "0": the further rules that give it, each with its figures, since a food is no nearer to
    /// "+" while they hold.
    QStringList auchNull() const { return m_auchNull; }

    /// For "0": what the nearest way to "+" asks for and the food does not keep, such as "energy
    /// at most 150 kcal (here 176 kcal)". Empty where `sonstPlus`.
    QStringList fehltZumPlus() const { return texte(m_fehltZumPlus); }

    /// For "0": whether nothing but the deciding rule and those of `auchNull` keeps the food from
    /// "+".
    bool sonstPlus() const { return m_sonstPlus; }

    /// For a "+" that is left when no other rule holds: what keeps the food from "0".
    QStringList fehltZurNull() const { return texte(m_fehltZurNull); }

    /// What keeps the food from "-", such as "energy over 275 kcal (here 176 kcal)"; for "0", and
    /// for a "+" that is left when no other rule holds. Empty where no rule gives such a food a
    /// "-".
    QStringList fehltZumMinus() const { return texte(m_fehltZumMinus); }

    /// All of it in lines, the condition and its rating first, without the publications.
    QStringList zeilen() const;

private:
    /// For each figure the limit that is missed.
    using Verfehltes = std::vector<Bedingung>;

    QString figur(const Bedingung &bedingung) const;
    QString mitEinheit(double zahl, Groesse groesse) const;
    QString grenze(const Bedingung &bedingung) const;
    QString gehalten(const Bedingung &bedingung) const;
    QString verfehlt(const Bedingung &bedingung) const;
    QString klassenwort(Purinklasse purinklasse) const;
    QString grundOderSatz(const Wertungsregel &regel) const;
    QStringList gehaltenes(const Wertungsregel &regel) const;
    QStringList bedingungszeilen(const Zweisprachig &vorn, const QStringList &liste,
                                 const Zweisprachig &bindewort) const;
    QStringList schlusszeilen() const;
    bool bleibtPlus() const;
    bool nenntPurine() const;
    bool betrifft(const Wertungsregel &regel) const;
    Bedingung zuckerarm() const;
    Verfehltes verfehltes(const Wertungsregel &regel) const;
    void ergaenze(Verfehltes &liste, const Verfehltes &neue) const;
    void naehertPlus(const Verfehltes &verfehlt);
    void sammle(const Regelwerk &regeln);
    void sammleOhneRegel(const Regelwerk &regeln);
    QStringList texte(const Verfehltes &liste) const;

    Wertung m_wertung;
    Regelsprache m_sprache;
    QLocale m_zahlen;
    double m_verzehrfertig = 100;
    QString m_purinquellen;
    Wertungsgroessen m_food;
    const Wertungsregel *m_regel;
    QStringList m_gruende;
    QStringList m_auchNull;
    Verfehltes m_fehltZumPlus;
    Verfehltes m_fehltZurNull;
    Verfehltes m_fehltZumMinus;
    bool m_sonstPlus = false;
    bool m_plusErstOhneRegel = false; ///< the ways to "+" come after the rule that decides
};
