#pragma once

#include "Tagesrechnung.h"

#include <QList>
#include <QString>

#include <optional>

/// What a meal adds to the energy of its day, and to that of the days in the mean.
struct Mahlzeitenanteil
{
    QString name = {}; ///< as it is called on screen
    /// In kcal; absent where nothing of the meal counts, which may have been eaten all the same.
    std::optional<double> energie = {};
    double prozent = 0; ///< of the energy of the day
    /// In kcal on one day; absent where nothing of the meal counts on any day of the mean.
    std::optional<double> mittel = {};
    int unverstanden = 0; ///< rows of the day that are meant to count and don't

    bool operator==(const Mahlzeitenanteil &) const = default;
};

/// Meal by meal, in their order. `rechnung` and `mittel` are what the day and the mean come to. Of
/// a day that is not there no meal counts.
QList<Mahlzeitenanteil> mahlzeitenanteile(const Aufzeichnung &aufzeichnung, int tag,
                                          const Tagesrechnung &rechnung,
                                          const Tagesrechnung &mittel);

/// The energy that fills a bar, in kcal: that of the largest meal, also of the mean. 0 where there
/// is none; what ran over is passed by.
double vollausschlag(const QList<Mahlzeitenanteil> &alle);

/// Which part of a bar that ends at `voll` an energy fills, 0 to 1. None, and one below 0, fills
/// nothing; one that ran over fills all of it.
double fuellung(const std::optional<double> &energie, double voll);

/// The energy as it stands beside the bar: "412 kcal"; a dash where there is nothing, and a
/// question mark where the food or its amount is not known.
QString energietext(const Mahlzeitenanteil &einer);

/// The share as it stands beside the bar: "23 %"; empty where there is none.
QString anteilstext(const Mahlzeitenanteil &einer);

/// A meal in a sentence, for those who can't see its bar: "Frühstück: 412 kcal, 23 %; im Mittel 380
/// kcal."
QString mahlzeitInWorten(const Mahlzeitenanteil &einer);

/// Where the parts of each line of the picture begin and how wide they are, in points from its left
/// edge: name, bar, energy and share.
struct Mahlzeitenspalten
{
    double namensbreite = 0;
    double balken = 0; ///< left edge
    double balkenbreite = 0;
    double energie = 0; ///< left edge
    double prozent = 0; ///< left edge

    bool operator==(const Mahlzeitenspalten &) const = default;
};

/// How wide these parts would like to be.
struct Mahlzeitenbreiten
{
    double name = 0; ///< of the longest
    double energie = 0;
    double prozent = 0;
    double abstand = 0; ///< between two of them
    double balken = 0;  ///< the least that still is a bar
};

/// Gives the figures all that they need. Names and bars share the rest: the names get what the
/// longest needs, as long as the bars keep their least, and no more than half.
Mahlzeitenspalten mahlzeitenspalten(double breite, const Mahlzeitenbreiten &wunsch);
