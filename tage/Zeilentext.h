#pragma once

#include "Zeilenablage.h"

#include <functional>

/// Where rows that come from elsewhere find their foods.
struct Speisequellen
{
    /// The key of the food that is called so, in German or English; null where none is.
    std::function<QString(const QString &name)> schluessel;
    /// The record of a food as it is today; null when it is in no store.
    std::function<const Datenmodul *(const QString &schluessel)> lebensmittel;
    /// What an amount of a food comes to, in grams, of a null key that of no certain food; absent
    /// where it can't be understood.
    std::function<std::optional<float>(const QString &schluessel, const QString &angabe)> gramm;
};

/// Understands a text as rows: lines with tabs or semicolons between food and amount, tables as
/// `alsTabelle` writes them, with or without their headings, and lines such as "2 Scheiben
/// Vollkornbrot" and "Vollkornbrot 100 g". What is no food stays as it was typed; nothing is left
/// out. Rows that name several meals come as rows of these.
Ablagelesung leseZeilentext(const QString &text, const Speisequellen &quellen);

/// Gives the rows the records that their foods have today, and the weight that their amounts have.
/// What no store has any more, and what isn't understood any more, stays as it was.
void bringeAufHeute(Zeilenablage &ablage, const Speisequellen &quellen);
