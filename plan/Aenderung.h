#pragma once

#include <QString>

/// What the user did to the plan or to the own foods.
enum class Aenderungsart {
    Hinein,     ///< a food came into the plan
    Hinaus,     ///< a food was taken out of it
    Menge,      ///< a food has another amount
    Platz,      ///< a food has another place
    Namen,      ///< foods of the plan got the names that the table has for them now
    Planstand,  ///< an earlier plan was brought back
    Gesichert,  ///< a new own food was saved
    Geaendert,  ///< an own food was saved with other values
    Geloescht,  ///< an own food was deleted
    Eigenstand, ///< earlier own foods were brought back
    Eingelesen  ///< foods came into the own foods from a file
};

/// One change that can be taken back.
struct Aenderung
{
    Aenderungsart art;
    QString name = {}; ///< store key of the food; empty where it is about several
};

/// The change in a few words, in the language of the windows, to stand behind "Rückgängig:".
QString inWorten(const Aenderung &aenderung);
