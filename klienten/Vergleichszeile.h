#pragma once

#include <QString>

#include <functional>
#include <optional>

/// One thing about two states that stand side by side, in the language of the windows.
struct Vergleichszeile
{
    QString beschriftung;
    QString links; ///< null: not known
    QString rechts;
    QString unterschied; ///< of figures, the right less the left one, with its sign; null: none

    bool operator==(const Vergleichszeile &) const = default;
};

/// How much the right figure is more or less than the left one. `worte` says an amount with its
/// unit. What looks like 0 has no sign, and what is left of single precision alone is 0. Null where
/// either figure is absent or ran over.
QString unterschiedsworte(std::optional<double> links, std::optional<double> rechts,
                          const std::function<QString(double)> &worte);
