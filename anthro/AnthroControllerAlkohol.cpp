// Alcohol: how much there is in a drink, and how long the body needs for it.

#include "AnthroController.h"

#include "Alkohol.h"
#include "Ampelfarbe.h"
#include "Getraenke.h"

void AnthroController::welcheralkohol()
{
    name = alkohol->stringValue();
    nimmGetraenk(Alkoholanlass::Wahl, zieher->intValue());
}

void AnthroController::wievielalkohol(const Wertehalter &sender)
{
    const std::int32_t milliliter = sender.intValue();
    zeigeFarbe(*ml, *mengenworte, mengenfarbe(milliliter));
    ml->setVisible(!mengenworte->isHidden()); // otherwise the number stands beside the slider
    ml->setIntValue(milliliter);
    nimmGetraenk(Alkoholanlass::Menge, milliliter);
}

/// A name that is no drink leaves the alcohol of the previous one and the grams as they stand; the
/// time is computed all the same. Words beside the name say so, unless the alcohol in force is the
/// one that this very name brought.
void AnthroController::nimmGetraenk(Alkoholanlass anlass, std::int32_t milliliter)
{
    const Getraenk *getrunken = getraenk(name, anlass);
    if (getrunken != nullptr) {
        if (!getrunken->protokollzeile.isNull()) {
            m_tueren.protokolliere(getrunken->protokollzeile.toString());
        }
        alk = getrunken->alkohol;
        alkgramm->setFloatValue(alkoholgramm(milliliter, alk));
        m_geltenderName = name;
    }
    getraenkworte->setVisible(name != m_geltenderName);
    zwischenvariable = abbaurate(gewicht->floatValue(), anlass);
    abbaudauer->setFloatValue(::abbaudauer(alkoholgramm(milliliter, alk), zwischenvariable));
    gewicht2->setFloatValue(gewicht->floatValue());
    faerbeAlkohol(Ampel::Schwarz);
}

void AnthroController::faerbeAlkohol(Ampel darunter)
{
    geschlechtname = geschlecht->stringValue();
    zeigeFarbe(*alkgramm, *alkoholworte,
               alkoholfarbe(geschlechtname, alkgramm->floatValue(), darunter));
}

/// Red has words beside it for those who don't see it. Without a colour both stay as they are.
void AnthroController::zeigeFarbe(Textfeld &feld, QWidget &worte, std::optional<Ampel> farbe)
{
    if (farbe) {
        feld.setTextColor(textfarbe(*farbe));
        worte.setVisible(*farbe == Ampel::Rot);
    }
}
