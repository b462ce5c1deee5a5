#include "Tabellenworte.h"

using namespace Qt::StringLiterals;

const Tabellenworte::Worte<std::optional<Purinklasse>> &Tabellenworte::purinklassen()
{
    static const Worte<std::optional<Purinklasse>> worte = {{QString(), std::nullopt},
                                                            {u"low"_s, Purinklasse::Niedrig},
                                                            {u"moderate"_s, Purinklasse::Mittel},
                                                            {u"high"_s, Purinklasse::Hoch}};
    return worte;
}

const Tabellenworte::Worte<Merkmale> &Tabellenworte::merkmale()
{
    static const Worte<Merkmale> worte = {{QString(), Merkmale()},
                                          {u"recommended fat"_s, Merkmal::Fettquelle},
                                          {u"red meat"_s, Merkmal::RotesFleisch},
                                          {u"caffeine"_s, Merkmal::Koffein}};
    return worte;
}

const Tabellenworte::Worte<Zuckerart> &Tabellenworte::zuckerarten()
{
    static const Worte<Zuckerart> worte = {{QString(), Zuckerart::Ueblich},
                                           {u"no fructose"_s, Zuckerart::OhneFruktose}};
    return worte;
}
