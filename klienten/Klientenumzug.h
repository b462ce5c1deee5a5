#pragma once

#include "Klientenspeicher.h"

#include <functional>

/// What came of taking the clients of one store over into another one.
struct Umzugsausgang
{
    int aufgenommen = 0;
    int schonDa = 0;        ///< the other store has them already; they stay there as they are
    bool ganz = false;      ///< all were asked for
    Ausgang hindernis = {}; ///< what stopped it; none where the user did
};

/// Takes all clients over, each of them whole or not at all, and leaves the first store as it is.
/// It stops where one of the two fails; taken up again later, it goes on with those who are not
/// there yet. `weiter` is told how many of how many are done, and says whether to go on.
Umzugsausgang nimmAlleAuf(Klientenspeicher &von, Klientenspeicher &nach,
                          const std::function<bool(qsizetype fertig, qsizetype alle)> &weiter);
