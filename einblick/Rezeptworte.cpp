#include "Rezeptworte.h"

#include "Einblickworte.h"
#include "Portionendatei.h"
#include "Wertungswort.h"
#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <cmath>

namespace {

/// Plan and days keep their grams in single precision, and thirds have no end.
constexpr double feinste = 1e-4;
constexpr double stufen = 1e4; ///< of these in one

} // namespace

QString Rezeptworte::anzahl(double zahl)
{
    const double gerundet = std::round(zahl * stufen) / stufen;
    return zahlenform().toString(std::abs(zahl) < feinste ? zahl : gerundet, 'f',
                                 QLocale::FloatingPointShortest);
}

QString Rezeptworte::gramm(double gramm)
{
    return QStringLiteral("%1 g").arg(anzahl(gramm));
}

double Rezeptworte::grammVon(const Mengenangabe &angabe)
{
    return angabe.anzahl * (angabe.mass ? angabe.mass->gramm : 1);
}

QString Rezeptworte::wasserworte(const Rezept &rezept)
{
    const double zuwachs = fertiggewicht(rezept) - rohgewicht(rezept);
    if (rezept.zutaten.isEmpty() || std::abs(zuwachs) < feinste || !std::isfinite(zuwachs)) {
        return {};
    }
    const QString menge = Einblickworte::gramm(std::abs(zuwachs));
    return zuwachs < 0 ? localizedString(QStringLiteral("%1 Wasser verkocht")).arg(menge)
                       : localizedString(QStringLiteral("%1 Wasser aufgenommen")).arg(menge);
}

QString Rezeptworte::portionsworte(const Rezept &rezept)
{
    const std::optional<double> eine = portionsgramm(rezept);
    if (!eine) {
        return {};
    }
    const bool zuSchwer = *eine > Portionendatei::meisteGramm;
    return (zuSchwer ? localizedString(QStringLiteral("= %1 je Portion, zu viel für ein Maß"))
                     : localizedString(QStringLiteral("= %1 je Portion")))
        .arg(Einblickworte::gramm(*eine));
}

QString Rezeptworte::urteil(const QString &zeichen)
{
    const QString wort = Wertungswort::wortFuer(zeichen);
    return wort.isEmpty() ? zeichen : QStringLiteral("%1 %2").arg(zeichen, wort);
}
