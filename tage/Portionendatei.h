#pragma once

#include "Mass.h"
#include "Tabellenzeile.h"

#include <QByteArrayView>

/// One line of the household measures: a measure and the foods that it is for.
struct Portionszeile
{
    int zeile = 0;       ///< line in the file, from 1
    QStringList gruppen; ///< names of food groups; a food must be in one of them
    /// Pieces of German names. A food's name must hold all pieces of one of the lists; without
    /// lists the line is for the whole group.
    QList<QStringList> namen;
    QStringList ausser; ///< a food whose name holds one of these pieces is left out
    Mass mass;
    QString notiz;

    bool fuerGruppe() const { return namen.isEmpty(); }
    bool passt(const QString &gruppe, const QString &name) const;
};

/// Reads the household measures: one line a measure.
namespace Portionendatei {

struct Ergebnis
{
    QList<Portionszeile> zeilen;
    Beanstandungen beanstandungen;
};

/// No measure is heavier, in g: what is more is a slip of the pen.
constexpr double meisteGramm = 2000;

/// The check that a measure fails which lacks a name in one of its four forms.
inline const QString namensregel = QStringLiteral("name");

/// The check that a measure fails which weighs nothing or too much.
inline const QString grammregel = QStringLiteral("grams");

/// Reads what is there. A line with something wrong is left out and objected to.
Ergebnis lesen(QByteArrayView bytes);

/// The measures of the food, the most specific first: a line with a name goes before one for a
/// whole group, and takes its place where both give a measure of the same name.
QList<Portionszeile> zeilenFuer(const QList<Portionszeile> &zeilen, const QString &gruppe,
                                const QString &name);

} // namespace Portionendatei
