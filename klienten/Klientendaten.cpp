#include "Klientendaten.h"

bool Planposten::operator==(const Planposten &anderer) const
{
    return schluessel == anderer.schluessel && gramm == anderer.gramm &&
           eintrag.has_value() == anderer.eintrag.has_value() &&
           (!eintrag || gleicherInhalt(*eintrag, *anderer.eintrag));
}
