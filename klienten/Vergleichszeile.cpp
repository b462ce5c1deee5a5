#include "Vergleichszeile.h"

#include "Zahlenform.h"

#include <algorithm>
#include <cmath>

QString unterschiedsworte(std::optional<double> links, std::optional<double> rechts,
                          const std::function<QString(double)> &worte)
{
    // A sum of many rows in single precision is less exact than one of its numbers.
    constexpr double genauigkeit = 1e-5;
    if (!links || !rechts || !std::isfinite(*links) || !std::isfinite(*rechts)) {
        return {};
    }
    const double mehr = *rechts - *links;
    const double groesster = std::max(std::abs(*links), std::abs(*rechts));
    QString betrag = worte(std::abs(mehr));
    QString nichts = worte(0);
    if (betrag == nichts || std::abs(mehr) <= genauigkeit * groesster) {
        return nichts;
    }
    const QLocale form = zahlenform();
    return (mehr < 0 ? form.negativeSign() : form.positiveSign()) + betrag;
}
