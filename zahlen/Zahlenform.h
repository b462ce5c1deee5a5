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

/// The same as people of another country write it, for what is printed in their language.
QString wertText(double zahl, int nachkommastellen, const QLocale &land);

/// The same, where small numbers get more digits behind the comma until so many that matter are
/// seen, so that 0.012 mg does not show as 0; with `bedeutsameStellen` 0 none gets more.
QString wertText(double zahl, int nachkommastellen, int bedeutsameStellen);
