#pragma once

#include <QFont>
#include <QList>
#include <QString>

#include <functional>

class QPainter;

/// How a text is set on paper.
struct Druckschrift
{
    double groesse = 9; ///< points
    bool fett = false;
};

/// A font made this much larger and shrunk by the painter has its true widths on every device.
constexpr int druckfeinheit = 100;

/// The font of a text, made that much larger.
QFont druckfont(const Druckschrift &schrift);

/// A piece of a page that no page's end divides. Its painter's origin is its top left corner, the
/// unit is the point.
struct Druckstreifen
{
    double hoehe = 0;
    std::function<void(QPainter &maler)> male = {}; ///< none: it stays free
};
using Druckstreifenfolge = QList<Druckstreifen>;

/// A text and the place that it has in a row: it is as high as it takes.
struct Druckzelle
{
    QString text;
    Druckschrift schrift = {};
    double links = 0;
    double breite = 0;
    bool amRechtenRand = false;
    double haengend = 0; ///< by so much its second and further lines begin further to the right
};

/// Sets texts side by side, a strip for each line. Each is plain text with its own ends of lines;
/// what is too long for a line goes on in the next, a word that is longer than a line too. Those of
/// one line stand on the same height.
Druckstreifenfolge gesetzt(const QList<Druckzelle> &zellen);

/// How wide a text is when nothing breaks it but its own ends of lines.
double textbreite(const QString &text, const Druckschrift &schrift);

/// How wide its longest word is.
double wortbreite(const QString &text, const Druckschrift &schrift);

/// The text in one line, cut off with three points where it is wider than that.
QString gekuerzt(const QString &text, const Druckschrift &schrift, double breite);

double hoehe(const Druckstreifenfolge &folge);

/// Nothing, so many points high.
Druckstreifen freiraum(double hoehe);

/// A line across, in points.
Druckstreifen waagerechte(double breite, double dicke);

/// Two strips as one.
Druckstreifen verbunden(const Druckstreifen &oben, const Druckstreifen &unten);

/// What is set apart, side by side: the first strips of both share a place, then the second ones.
/// Both have their own places to the left and right.
Druckstreifenfolge nebeneinander(const Druckstreifenfolge &links, const Druckstreifenfolge &rechts);
