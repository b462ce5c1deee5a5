#pragma once

#include <QLocale>
#include <QString>

/// How numbers are written on screen: with the user's decimal mark, and with nothing between the
/// thousands. A point there would look like the point that is typed for the decimals.
QLocale zahlenform();

/// A value with so many digits behind the comma. One that would then look like 0 gets as many more
/// as its first digit that counts needs, up to six; what is smaller still is written in powers of
/// ten ("1E-09"), which can be typed as well. Only 0 itself shows as 0.
QString wertText(double zahl, int nachkommastellen);
