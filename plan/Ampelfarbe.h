#pragma once

#include "Ampel.h"
#include "Textfarbe.h"

/// The colour in which a judgement is written.
inline Textfarbe textfarbe(Ampel ampel)
{
    switch (ampel) {
    case Ampel::Rot:
        return Textfarbe::Rot;
    case Ampel::Blau:
        return Textfarbe::Blau;
    case Ampel::Gruen:
        return Textfarbe::Gruen;
    case Ampel::Schwarz:
        break;
    }
    return Textfarbe::Schwarz;
}
