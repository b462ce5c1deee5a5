#include "Schreibwunsch.h"

QString kennung(const Satz &satz)
{
    return std::visit([](const auto &einer) { return einer.kennung; }, satz);
}
