#pragma once

#include "Probefenster.h"

#include <QLabel>

/// What the tests of the ratings' reasons share: a window with foods whose ratings a small table
/// explains, and the hands and eyes of its user.
class Wertungsprobe
{
protected:
    /// Six built-in foods: row 0 stands in no table that explains, row 3 stands there with other
    /// figures. Of the two own foods one bears the name of row 2.
    void richteEin();
    void raeumeAuf();
    void oeffne();
    void schreibeErklaerungen();

    void suche(const QString &text) const { m_fenster->suche(text); }
    void waehleTreffer(const QString &name) const;

    /// What the mouse gets to see where it rests on a rating; empty for no tool tip.
    QString anMaus(Wertung wertung = Wertung::uebergewicht) const;
    /// What F1 shows at a rating; empty for nothing.
    QString anTaste(Wertung wertung = Wertung::uebergewicht) const;

    AppController &controller() const { return m_fenster->controller(); }
    Textfeld *feld(Wertung wertung = Wertung::uebergewicht) const
    {
        return controller().wertungsfelder()[stelle(wertung)];
    }
    /// The text that the keyboard gets to see at a rating.
    QLabel *fahne(Wertung wertung = Wertung::uebergewicht) const
    {
        return feld(wertung)->findChild<QLabel *>(QStringLiteral("fahne"));
    }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
    Lebensmittelverzeichnis m_eingebaut;
    Lebensmittelverzeichnis m_eigene;
};

/// The last line at an own food, and all that is told of the own foods' overweight.
inline const QString vonIhnen = QStringLiteral("Diese Wertung haben Sie selbst vergeben.");
inline const QString eigenes = QStringLiteral("Übergewicht: „0“\n") + vonIhnen;

/// A shown text without its layout.
QString lesbar(const QString &html);

/// Lets the mouse rest on a field, as the window system says it after a while.
void ruheAn(const QWidget &feld);
