#pragma once

#include "Planmodul.h"

#include <array>

/// What the plan's window shows of one value.
struct Plananzeige
{
    Textfeld *prozent;
    WertungView *balken;
};

/// That of all values, in the record's order.
inline std::array<Plananzeige, anzahlNaehrwerte> plananzeigen(const Planmodul &p)
{
    return {{{p.gesamtkal, p.gesamtkalview},
             {p.gesamtprotein, p.gesamtproteinview},
             {p.gesamtfett, p.gesamtfettview},
             {p.gesamtkohlenhydrate, p.gesamtkohlenhydrateview},
             {p.gesamtballaststoffe, p.gesamtballaststoffeview},
             {p.gesamtcholesterin, p.gesamtcholesterinview},
             {p.gesamtnatrium, p.gesamtnatriumview},
             {p.gesamtkalium, p.gesamtkaliumview},
             {p.gesamtcalcium, p.gesamtcalciumview},
             {p.gesamtphosphor, p.gesamtphosphorview},
             {p.gesamtmagnesium, p.gesamtmagnesiumview},
             {p.gesamteisen, p.gesamteisenview},
             {p.gesamtvitamina, p.gesamtvitaminaview},
             {p.gesamtvitaminb1, p.gesamtvitaminb1view},
             {p.gesamtvitaminb2, p.gesamtvitaminb2view},
             {p.gesamtvitaminb6, p.gesamtvitaminb6view},
             {p.gesamtvitaminc, p.gesamtvitamincview}}};
}

/// How many foods of the plan are suitable, neutral and unsuitable.
using Planzaehlung = std::array<Zaehlfeld *, 3>;

/// That of all ratings, in the record's order.
inline std::array<Planzaehlung, anzahlWertungen> planzaehlungen(const Planmodul &p)
{
    return {{{p.uebergewichtpos, p.uebergewichtneutral, p.uebergewichtneg},
             {p.diabetespos, p.diabetesneutral, p.diabetesneg},
             {p.gichtpos, p.gichtneutral, p.gichtneg},
             {p.hkkpos, p.hkkneutral, p.hkkneg}}};
}
