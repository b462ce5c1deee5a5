#include "Planwertung.h"

void zaehleWertung(Planwertung &wertung, const QString &text)
{
    if (text == QLatin1String("+")) {
        ++wertung.plus;
    } else if (text == QLatin1String("0")) {
        ++wertung.neutral;
    } else if (text == QLatin1String("-")) {
        ++wertung.minus;
    }
    if (wertung.plus > wertung.neutral && wertung.plus > wertung.minus) {
        wertung.sieger = Wertungssieger::Plus;
        wertung.punkt = true;
    } else if (wertung.neutral > wertung.plus && wertung.neutral > wertung.minus) {
        wertung.sieger = Wertungssieger::Neutral;
    } else if (wertung.minus > wertung.plus && wertung.minus > wertung.neutral) {
        wertung.sieger = Wertungssieger::Minus;
    }
}

Wertungsstil wertungsstil(Wertungssieger sieger)
{
    constexpr Zeichenstil klein = {Ampel::Schwarz, 9};
    Wertungsstil stil = {klein, klein, klein};
    switch (sieger) {
    case Wertungssieger::Plus:
        stil.plus = {Ampel::Gruen, 11};
        break;
    case Wertungssieger::Neutral:
        stil.neutral = {Ampel::Blau, 12};
        break;
    case Wertungssieger::Minus:
        stil.minus = {Ampel::Rot, 12};
        break;
    }
    return stil;
}
