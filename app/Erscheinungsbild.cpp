#include "Erscheinungsbild.h"

#include "Einstellungen.h"
#include "Schreibtisch.h"
#include "Textfarbe.h"

#include <QApplication>
#include <QPalette>

#include <optional>

namespace {

const QString schluessel = QStringLiteral("Erscheinungsbild");

struct Farbwahl
{
    QPalette::ColorRole rolle;
    QRgb hell;
    QRgb dunkel;
};

constexpr Farbwahl farben[] = {
    {QPalette::Window, 0xfff6f6f4, 0xff232527},
    {QPalette::WindowText, 0xff1e1e1e, 0xffececec},
    {QPalette::Base, 0xffffffff, 0xff1b1d1f},
    {QPalette::AlternateBase, 0xfff3f6f3, 0xff212426},
    {QPalette::Text, 0xff1e1e1e, 0xffececec},
    {QPalette::Button, 0xffeeeeec, 0xff34373b},
    {QPalette::ButtonText, 0xff1e1e1e, 0xffececec},
    {QPalette::BrightText, 0xffffffff, 0xffffffff},
    {QPalette::ToolTipBase, 0xfffffbe6, 0xff34373b},
    {QPalette::ToolTipText, 0xff1e1e1e, 0xffececec},
    {QPalette::PlaceholderText, 0xff6e6e6e, 0xff9a9a9a},
    {QPalette::Highlight, 0xff2f7d4f, 0xff4caf78},
    {QPalette::HighlightedText, 0xffffffff, 0xff10130f},
    {QPalette::Link, 0xff1a5fb4, 0xff8ab8ff},
    {QPalette::Light, 0xffffffff, 0xff303337},
    {QPalette::Midlight, 0xffd6d6d3, 0xff45494e},
    {QPalette::Mid, 0xffb9b9b6, 0xff5a5f65},
    {QPalette::Dark, 0xff9a9a97, 0xff17181a},
    {QPalette::Shadow, 0xff6a6a68, 0xff0c0d0e},
};

QPalette palette(bool dunkel)
{
    QPalette ergebnis;
    for (const Farbwahl &wahl : farben) {
        ergebnis.setColor(wahl.rolle, QColor::fromRgb(dunkel ? wahl.dunkel : wahl.hell));
    }
    const QColor blass = QColor::fromRgb(dunkel ? 0xff8b8f94 : 0xff757573);
    for (const auto rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        ergebnis.setColor(QPalette::Disabled, rolle, blass);
    }
    // The filled part of a slider that can't be moved is no invitation.
    ergebnis.setColor(QPalette::Disabled, QPalette::Highlight,
                      ergebnis.color(QPalette::Active, QPalette::Mid));
    return ergebnis;
}

/// A desktop that paints dark windows is recognised by its own palette, which comes to light when
/// the program has none.
bool systemIstDunkel()
{
    QApplication::setPalette(QPalette());
    return istDunkel(QApplication::palette());
}

/// How the windows are dressed, like the palette one for the whole program.
struct Stand
{
    Erscheinungsbild bild = Erscheinungsbild::System; ///< what the user wants
    std::optional<bool> wunsch; ///< whether the desktop wants dark windows; absent: not said
};

Stand &stand()
{
    static Stand stand;
    return stand;
}

} // namespace

Erscheinungsbild gemerktesErscheinungsbild(const QSettings &einstellungen)
{
    const int gemerkt = einstellungen.value(schluessel, 0).toInt();
    return gemerkt == 1   ? Erscheinungsbild::Hell
           : gemerkt == 2 ? Erscheinungsbild::Dunkel
                          : Erscheinungsbild::System;
}

void merkeErscheinungsbild(Einstellungen &einstellungen, Erscheinungsbild bild)
{
    einstellungen.setValue(schluessel, static_cast<int>(bild));
    einstellungen.sync();
}

void zeigeErscheinungsbild(Erscheinungsbild bild)
{
    stand().bild = bild;
    const std::optional<bool> wunsch = stand().wunsch;
    const bool dunkel = bild != Erscheinungsbild::System ? bild == Erscheinungsbild::Dunkel
                        : wunsch.has_value()             ? *wunsch
                                                         : systemIstDunkel();
    QApplication::setPalette(palette(dunkel));
}

void folgeSchreibtisch(const Schreibtisch &schreibtisch)
{
    const auto zeige = [] {
        zeigeErscheinungsbild(stand().bild);
    };
    QObject::connect(&schreibtisch, &Schreibtisch::umgefaerbt, &schreibtisch, zeige);
    QObject::connect(&schreibtisch, &Schreibtisch::gesagt, &schreibtisch,
                     [zeige](std::optional<bool> dunkel) {
                         stand().wunsch = dunkel;
                         zeige();
                     });
}
