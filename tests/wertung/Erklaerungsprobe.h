#pragma once

#include "Wertungserklaerung.h"
#include "Wertungsprobe.h"

/// What the tests of the explanations share: a food's rating, and what is read about it.
namespace Erklaerungsprobe {

using namespace Qt::StringLiterals;
using Wertungsprobe::food;
using Wertungsprobe::gemuese;
using Wertungsprobe::gewuerz;
using Wertungsprobe::kuchen;
using Wertungsprobe::markiert;
using Wertungsprobe::milch;
using Wertungsprobe::mitKlasse;
using Wertungsprobe::nuesse;
using Wertungsprobe::obst;
using Wertungsprobe::reis;
using Wertungsprobe::rind;
using Wertungsprobe::saft;

inline const QLocale deutschland(QLocale::German, QLocale::Germany);

/// With the publications from which its purines are.
inline Tabellenzeile belegt(Tabellenzeile zeile, const QString &quellen)
{
    zeile.purinquellen = quellen;
    return zeile;
}

inline void spalten()
{
    QTest::addColumn<int>("wertung");
    QTest::addColumn<Tabellenzeile>("zeile");
    QTest::addColumn<QString>("deutsch");
    QTest::addColumn<QString>("englisch");
}

/// A data row: a rating of a food, and all lines of its explanation.
inline void erklaert(const char *name, Wertung wertung, const Tabellenzeile &zeile,
                     const char *deutsch, const char *englisch)
{
    QTest::newRow(name) << static_cast<int>(wertung) << zeile << QString::fromUtf8(deutsch)
                        << QString::fromUtf8(englisch);
}

inline void pruefen()
{
    QFETCH(int, wertung);
    QFETCH(Tabellenzeile, zeile);
    QFETCH(QString, deutsch);
    QFETCH(QString, englisch);
    const auto text = [&](Regelsprache sprache, const QLocale &zahlen) {
        return Wertungserklaerung(static_cast<Wertung>(wertung), zeile, sprache, zahlen)
            .zeilen()
            .join(u'\n');
    };
    QCOMPARE(text(Regelsprache::Deutsch, deutschland), deutsch);
    QCOMPARE(text(Regelsprache::Englisch, QLocale::c()), englisch);
}

} // namespace Erklaerungsprobe
