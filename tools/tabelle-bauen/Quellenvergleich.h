#pragma once

#include "Tabellenzeile.h"

#include <QByteArrayView>
#include <QHash>

/// What the source publishes about one of its foods, per 100 g. A trace, "less than" a limit and
/// what was not determined count as 0.
struct Quelleintrag
{
    std::array<double, anzahlNaehrwerte> werte = {};
    double zucker = 0;            ///< g
    double gesaettigt = 0;        ///< saturated fat, g
    double alkohol = 0;           ///< g
    std::optional<double> wasser; ///< g
    std::optional<double> dichte; ///< g per ml
    /// The columns, by their names, of what was not determined or not given. A trace and "less
    /// than" a limit were determined.
    QStringList unbestimmt;
};

/// The source's foods by their ids.
using Quellwerte = QHash<QString, Quelleintrag>;

/// Compares the figures of the food table with those of its source, so that none is mistyped.
namespace Quellenvergleich {

struct Ergebnis
{
    Quellwerte werte;
    Beanstandungen beanstandungen;
};

/// The columns of the file of the source's figures.
QStringList spalten();

/// Reads the source's figures.
Ergebnis lesen(QByteArrayView bytes);

/// Each figure of a line that the source gives otherwise, and an id that the source does not have.
Beanstandungen pruefen(const Tabellenzeile &zeile, const Quellwerte &quelle);

} // namespace Quellenvergleich
