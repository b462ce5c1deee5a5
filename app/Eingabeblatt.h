#pragma once

#include "Datenmodul.h"
#include "ui_Eingabefenster.h"

#include <QObject>

#include <functional>

/// Helps at the sheet for own foods: takes energy in kJ and salt in g, as labels have them, and
/// questions figures that don't fit together while they are typed. What the sheet holds stays kcal
/// and mg of sodium, and nothing is refused.
class Eingabeblatt : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the window. `inhalt` gives what stands in the sheet, as a record.
    Eingabeblatt(const Ui::EingabefensterGestalt &blatt, QDialog &fenster,
                 std::function<Datenmodul()> inhalt);

private:
    /// A field that the sheet holds, and the one beside it for the same in another unit.
    struct Paar
    {
        Textfeld *gehalten;
        Textfeld *andere;
        double (*hin)(double); ///< from the held unit to the other
        double (*her)(double);
        int stellen; ///< digits behind the comma that the other unit needs
    };

    void verbinde(const Paar &paar);
    void pruefe();

    Ui::EingabefensterGestalt m_blatt;
    std::function<Datenmodul()> m_inhalt;
};
