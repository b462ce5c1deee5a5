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
    QTest::addColumn<QStringList>("deutsch");
    QTest::addColumn<QStringList>("englisch");
}

/// A data row: a rating of a food, and all lines of its explanation.
inline void erklaert(const char *name, Wertung wertung, const Tabellenzeile &zeile,
                     std::initializer_list<const char *> deutsch,
                     std::initializer_list<const char *> englisch)
{
    const auto zeilen = [](std::initializer_list<const char *> texte) {
        QStringList liste;
        for (const char *const text : texte) {
            liste.append(QString::fromUtf8(text));
        }
        return liste;
    };
    QTest::newRow(name) << static_cast<int>(wertung) << zeile << zeilen(deutsch)
                        << zeilen(englisch);
}

inline void pruefen()
{
    QFETCH(int, wertung);
    QFETCH(Tabellenzeile, zeile);
    QFETCH(QStringList, deutsch);
    QFETCH(QStringList, englisch);
    const auto die = static_cast<Wertung>(wertung);
    QCOMPARE(Wertungserklaerung(die, zeile, Regelsprache::Deutsch, deutschland).zeilen(), deutsch);
    QCOMPARE(Wertungserklaerung(die, zeile, Regelsprache::Englisch, QLocale::c()).zeilen(),
             englisch);
}

} // namespace Erklaerungsprobe
