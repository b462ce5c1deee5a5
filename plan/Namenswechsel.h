#pragma once

#include "Datenmodul.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

/// From the name that a built-in food once had to the one that it has now.
using Namenswechsel = QHash<QString, QString>;

/// Reads the lines "former name;name of today"; one that begins with # is a remark. A file that
/// can't be read holds none.
Namenswechsel leseNamenswechsel(const QString &path);

/// The same, without what leads to names that the built-in table does not have.
Namenswechsel leseNamenswechsel(const QString &path, const Lebensmittelverzeichnis &eingebaute);

/// What has become of the foods of a plan that are in no store under the name that the plan has for
/// them. Each name stands once, in the order of the rows.
struct Namensbefund
{
    QStringList umbenannt; ///< they have another name now
    QStringList doppelt;   ///< they too, but the plan has a row of that name already
    QStringList fehlend;   ///< nothing is known of them
};

/// Looks for the foods that are in no store. `unbekannt` are their names, `namen` all of the plan.
Namensbefund pruefeNamen(const QStringList &unbekannt, const QStringList &namen,
                         const Namenswechsel &wechsel);
