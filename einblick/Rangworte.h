#pragma once

#include "Bezugswert.h"
#include "Mass.h"

#include <QStringList>

#include <optional>

class QComboBox;

/// How figures of ranked and compared foods are said, and chosen.
namespace Rangworte {

/// "je 100 g", "je 100 kcal", "je Portion".
QString bezug(Bezug bezug);

/// The figure with its unit, "mind." before it where it may be more; or the word for what is
/// missing: "unbekannt", "ohne Portion".
QString wert(Kenngroesse groesse, const Bezugswert &wert);

/// "1 Scheibe (50 g)"; empty where there is no portion.
QString portionsworte(const std::optional<Mass> &portion);

/// Fills a chooser with these entries, with all values, and with all bases, in the language on
/// screen. What was chosen stays chosen.
void fuelle(QComboBox &wahl, const QStringList &namen);
void fuelleGroessen(QComboBox &wahl);
void fuelleBezuege(QComboBox &wahl);

Kenngroesse gewaehlteGroesse(const QComboBox &wahl);
Bezug gewaehlterBezug(const QComboBox &wahl);

} // namespace Rangworte
