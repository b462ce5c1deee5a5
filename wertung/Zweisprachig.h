#pragma once

#include <QString>

/// The language in which the rules are told: German or English on screen, English where the table
/// is built and on the page for dietitians.
enum class Regelsprache { Deutsch, Englisch };

/// A text of the rules. Both languages stand side by side, since the page, the tools and the
/// windows must say the same.
struct Zweisprachig
{
    const char *de;
    const char *en;

    QString in(Regelsprache sprache) const
    {
        return QString::fromUtf8(sprache == Regelsprache::Deutsch ? de : en);
    }
};
