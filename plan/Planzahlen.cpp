#include "Planzahlen.h"

#include "Zahlenform.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

/// Digits that a number of single precision keeps.
constexpr int bedeutsameStellen = 7;

/// Digits behind the comma of a value, in the record's order. All numbers of a column have as many,
/// so that they stand under each other.
constexpr std::array<int, anzahlNaehrwerte> nachkommastellen = {0, 1, 1, 1, 1, 0, 0, 0, 0,
                                                                0, 0, 1, 0, 2, 2, 2, 1};

} // namespace

QString mengentext(float gramm)
{
    return zahlenform().toString(static_cast<double>(gramm), 'g', bedeutsameStellen);
}

const Naehrwertbeschreibung *naehrwertVon(const QString &spalte)
{
    const auto *zeile =
        std::find_if(naehrwerte.begin(), naehrwerte.end(),
                     [&spalte](const auto &eine) { return spalte == QLatin1String(eine.kennung); });
    return zeile != naehrwerte.end() ? zeile : nullptr;
}

QString naehrwerttext(Naehrwert wert, double zahl)
{
    return std::isfinite(zahl) ? wertText(zahl, nachkommastellen[stelle(wert)])
                               : QStringLiteral("-");
}

QString naehrwertMitEinheit(Naehrwert wert, double zahl)
{
    return naehrwerttext(wert, zahl) + QChar(QChar::Nbsp) +
           einheitszeichen(beschreibung(wert).einheit);
}
