#pragma once

#include "Druckprobe.h"
#include "Planmodulprint.h"

/// A plan of three foods whose figures were worked out by hand: 150.7 g of apples, 60.9 g of white
/// bread, which has no rating for the heart, and 200 g of milk.
namespace Druckplan {

inline const QStringList namen = {QStringLiteral("Äpfel, roh"), QStringLiteral("Weißbrot"),
                                  QStringLiteral("Vollmilch")};
inline const QList<float> mengen = {150.7F, 60.9F, 200};
inline const Planmodulprint::Zahlen kals = {78, 155, 130};
constexpr std::int32_t soll = 2000;

inline const std::array<Planmodulprint::Zahlen, 16> naehrstoffe = {{
    {0, 4, 6},
    {0, 0, 7},
    {17, 29, 9},
    {3, 1, 0},
    {0, 0, 24},
    {1, 328, 96},
    {179, 80, 314},
    {10, 35, 240},
    {16, 54, 184},
    {9, 14, 24},
    {0, 0, 0},
    {12, 0, 60},
    {0, 0, 0},
    {0, 0, 0},
    {0, 0, 0},
    {18, 0, 2},
}};
inline const std::array<QStringList, 4> wertungen = {{
    {QStringLiteral("+"), QStringLiteral("0"), QStringLiteral("-")},
    {QStringLiteral("+"), QStringLiteral("-"), QStringLiteral("+")},
    {QStringLiteral("+"), QStringLiteral("0"), QStringLiteral("+")},
    {QStringLiteral("+"), QString(), QStringLiteral("0")},
}};

inline const QPageLayout a4 = Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait);

inline Planmodulprint einfach(const QPageLayout &seite = a4)
{
    return Planmodulprint::initWithPeople(namen, mengen, kals, soll, seite);
}

inline Planmodulprint detailliert(const QPageLayout &seite = a4)
{
    return Planmodulprint::initWithPeople2(namen, mengen, kals, soll, naehrstoffe,
                                           ::Druckplan::wertungen, seite);
}

/// A list of so many foods, "Speise 1", "Speise 2" and so on, 100 g of each; every value of food i
/// is i.
inline Planmodulprint liste(int form, int zeilen, const QPageLayout &seite = a4)
{
    QStringList speisen;
    Planmodulprint::Zahlen werte;
    QStringList zeichen;
    for (int i = 1; i <= zeilen; ++i) {
        speisen << QStringLiteral("Speise %1").arg(i);
        werte << i;
        zeichen << QStringLiteral("+");
    }
    const QList<float> gramm(zeilen, 100.0F);
    if (form == 2) {
        return Planmodulprint::initWithPeople(speisen, gramm, werte, soll, seite);
    }
    std::array<Planmodulprint::Zahlen, 16> alle;
    alle.fill(werte);
    std::array<QStringList, 4> alleZeichen;
    alleZeichen.fill(zeichen);
    return Planmodulprint::initWithPeople2(speisen, gramm, werte, soll, alle, alleZeichen, seite);
}

/// The print of a list that is made anew for every paper.
template <typename Machen>
Druckauftrag auftrag(Machen machen)
{
    return {QStringLiteral("Plan"),
            [machen](const QPageLayout &seite) { return machen(seite).pages; },
            [machen](QPainter &maler, const QPageLayout &seite, int nummer) {
                machen(seite).maleSeite(maler, nummer);
            }};
}

} // namespace Druckplan
