#pragma once

#include "Aufzeichnung.h"
#include "Briefkopf.h"
#include "Drucktuer.h"
#include "Mass.h"
#include "Zweisprachig.h"

#include <functional>
#include <optional>

/// How a record is printed for the client to take home.
struct Handzettelwunsch
{
    std::optional<int> tag = {}; ///< only this day, counted from 0; absent: all
    bool zahlen = false;         ///< with what each day comes to
    bool gross = false;          ///< in letters for those who can't read small ones
    Regelsprache sprache = Regelsprache::Deutsch;

    bool operator==(const Handzettelwunsch &) const = default;
};

/// What stands on a print of a record besides the record itself.
struct Druckangaben
{
    Briefkopf briefkopf = {};
    QString klient = {}; ///< empty: nobody is named
    /// The measures of a food; while it is absent, amounts stand as they were typed.
    std::function<QList<Mass>(const QString &schluessel)> masse = {};
    QDate heute = {};
};

/// What the client takes home: under the letterhead the days side by side, each with its meals,
/// foods and amounts. Meals and days without anything are left out, a row that was not understood
/// stands as it was typed. A usual week takes two pages at most; figures are on it only when they
/// are wanted.
Druckauftrag handzettel(const Aufzeichnung &aufzeichnung, const Handzettelwunsch &wunsch,
                        const Druckangaben &angaben);
