#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// One food found by its name.
struct Suchtreffer
{
    QString anzeige;    ///< the name as the user reads it
    QString schluessel; ///< the food's key in its store

    bool operator==(const Suchtreffer &) const = default;
};

/// What a search by name found.
struct Namenssuchergebnis
{
    QList<Suchtreffer> treffer;  ///< own foods first, each group in the order of its list
    qsizetype eigeneTreffer = 0; ///< how many of them, at the front, are own foods
    qsizetype nichtGefunden = 0; ///< built-in foods that don't contain the text
};

/// Finds every food whose name contains `text`, whether in capitals or not; accents count. Own
/// foods are searched by their name. A built-in food is searched by the name the user reads: place
/// by place, `uebersetzungen` holds that of `schluessel`; a key without one is read as it stands.
/// Nothing is sorted, nothing is listed only once. An empty text is found nowhere.
Namenssuchergebnis namenSuchen(const QStringList &eigene, const QStringList &schluessel,
                               const QStringList &uebersetzungen, const QString &text);
