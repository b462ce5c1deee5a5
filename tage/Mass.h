#pragma once

#include <QString>
#include <QStringList>

/// A household measure of a food: what one spoon, slice or glass of it weighs.
struct Mass
{
    QString eines;    ///< German, as one says it of one: "Scheibe"
    QString viele;    ///< German, of several: "Scheiben"
    QString einesEn;  ///< "slice"
    QString vieleEn;  ///< "slices"
    double gramm = 0; ///< of one, eaten without peel, stone, bone or shell; over 0
    /// Keys of the publications; empty for what the user entered.
    QStringList quellen = {};

    bool operator==(const Mass &) const = default;
};
