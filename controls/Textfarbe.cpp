#include "Textfarbe.h"

#include <QPalette>

#include <array>

namespace {

struct Farbpaar
{
    QRgb hell;
    QRgb dunkel;
};

// Red, blue, green; on a light and on a dark window.
constexpr std::array<Farbpaar, 3> verdikte = {{
    {0xffc01c28, 0xffff8f87},
    {0xff1a5fb4, 0xff8ab8ff},
    {0xff1a7f37, 0xff7bd88f},
}};

} // namespace

bool istDunkel(const QPalette &palette)
{
    constexpr int mitte = 128;
    return palette.color(QPalette::Window).lightness() < mitte;
}

QColor farbeFuer(Textfarbe farbe, const QPalette &palette)
{
    if (farbe == Textfarbe::Standard || farbe == Textfarbe::Schwarz) {
        return palette.color(QPalette::WindowText);
    }
    const auto &paar =
        verdikte[static_cast<std::size_t>(farbe) - static_cast<std::size_t>(Textfarbe::Rot)];
    return QColor::fromRgb(istDunkel(palette) ? paar.dunkel : paar.hell);
}
