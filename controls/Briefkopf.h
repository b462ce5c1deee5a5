#pragma once

#include "Druckzeilen.h"

#include <QImage>
#include <QStringList>

/// Whose print it is: what stands at its head for the client to see. All of it may be missing.
struct Briefkopf
{
    QString name;
    QStringList anschrift; ///< line by line
    QImage logo;           ///< null: none
    /// There is a logo, but it can't be read; the print goes without.
    bool logoFehlt = false;

    bool istLeer() const { return name.isEmpty() && anschrift.isEmpty() && logo.isNull(); }
};

/// The head as it is printed, so many points wide, with a line below: at the left name and address,
/// at the right the logo, shrunk to its place with its proportions kept. Without any of them there
/// is nothing.
Druckstreifenfolge gesetzt(const Briefkopf &kopf, double breite);
