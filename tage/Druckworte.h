#pragma once

#include "Aufzeichnung.h"
#include "Mass.h"
#include "Zweisprachig.h"

#include <QLocale>
#include <QTranslator>

#include <memory>
#include <vector>

/// The language of one print, whatever the windows speak: a client takes home what they can read.
/// Copies share what they have loaded.
class Druckworte
{
public:
    explicit Druckworte(Regelsprache sprache);
    /// The language of the windows.
    static Regelsprache derFenster();

    /// The text for a German key, as `localizedString` finds it on screen; the key itself where
    /// there is none. An absent (null) key gives an absent text.
    QString operator()(const QString &schluessel) const;

    Regelsprache sprache() const { return m_sprache; }
    /// How numbers and days are written: as the windows do it where they speak this language, as
    /// the desktop does where it does, else as it is done where the language comes from.
    const QLocale &land() const { return m_land; }

private:
    Regelsprache m_sprache;
    QLocale m_land;
    std::vector<std::shared_ptr<const QTranslator>> m_uebersetzer; ///< asked one after the other
};

/// How a meal is called in a print, see `mahlzeitname`.
QString mahlzeitworte(const QString &name, const Druckworte &worte);

/// How a day is called in a print: "Montag, 23. November 2026", or "Tag 1" without a date.
QString tagesworte(const Aufzeichnung &aufzeichnung, int tag, const Druckworte &worte);

/// How a kind of record is called in a print.
QString artworte(Aufzeichnungsart art, const Druckworte &worte);

/// How a record is called in a print: by its title, and without one by its kind.
QString titelworte(const Aufzeichnung &aufzeichnung, const Druckworte &worte);

/// What a row says of its food: its name in the print's language, or what was typed in place of
/// one.
QString speisenworte(const Mahlzeitzeile &zeile, const Druckworte &worte);

/// The text, where it is not long, so that no line ends within it: an amount with its unit.
QString beisammen(QString text);

/// How much of it, in the print's language: "2 Scheiben (100 g)", or "100 g" for plain grams. The
/// grams are those that the row counts, also where the measure weighs something else by now. Where
/// the amount is no longer understood (the measure is gone), it stands as it was typed, with these
/// grams; and where it never was, without any.
QString mengenworte(const Mahlzeitzeile &zeile, const QList<Mass> &masse, const Druckworte &worte);

/// The whole row, "oder" before an alternative: "oder Butter – 1 EL (10 g)". Empty for an empty
/// one.
QString zeilenworte(const Mahlzeitzeile &zeile, const QList<Mass> &masse, const Druckworte &worte);
