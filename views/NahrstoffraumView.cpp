#include "NahrstoffraumView.h"

#include "Zahlenform.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr float vollkreis = 360.0F;
/// The strip at the bottom that is kept free for a legend.
constexpr double fussraum = 90;

struct Kreis
{
    QPointF mitte;
    double radius;
};

struct Sektor
{
    Qt::GlobalColor farbe;
    float von; ///< degrees, counter-clockwise from the positive x axis
    float bis;
};

std::array<Sektor, 3> sektoren(const Energieverteilung &anteile)
{
    const float ersteGrenze = vollkreis * anteile.protein;
    const float zweiteGrenze = vollkreis * (anteile.protein + anteile.kohlenhydrat);
    const float dritteGrenze = vollkreis * (anteile.protein + anteile.kohlenhydrat + anteile.fett);
    return {{
        {Qt::green, 0.0F, ersteGrenze},
        {Qt::blue, ersteGrenze, zweiteGrenze},
        {Qt::yellow, zweiteGrenze, dritteGrenze},
    }};
}

void zeichneSektor(QPainter &maler, const Kreis &kreis, const Sektor &sektor)
{
    const float spanne = sektor.bis - sektor.von;
    if (!std::isfinite(spanne) || spanne <= 0) {
        return;
    }
    const QPointF ecke(kreis.radius, kreis.radius);
    QPainterPath weg(kreis.mitte);
    weg.arcTo(QRectF(kreis.mitte - ecke, kreis.mitte + ecke), std::fmod(sektor.von, vollkreis),
              std::min(spanne, vollkreis));
    weg.closeSubpath();
    maler.fillPath(weg, sektor.farbe);
}

void zeichneKreis(QPainter &maler, const Kreis &kreis, const Energieverteilung &anteile)
{
    for (const Sektor &sektor : sektoren(anteile)) {
        zeichneSektor(maler, kreis, sektor);
    }
}

/// No line ends between a number and its unit.
QString anteileInWorten(const char *satz, const Energieverteilung &anteile)
{
    const auto prozent = [](float anteil) {
        return wertText(static_cast<double>(anteil * 100.0F), 0) + QChar(QChar::Nbsp) + u'%';
    };
    return QCoreApplication::translate("Mahlberg", satz)
        .arg(prozent(anteile.protein), prozent(anteile.kohlenhydrat), prozent(anteile.fett));
}

} // namespace

NahrstoffraumView::NahrstoffraumView(QWidget *parent)
    : Zeichenansicht(parent)
    , m_soll{m_a / 100.0F, m_b / 100.0F, m_c / 100.0F}
    , m_ist(m_soll)
{
}

void NahrstoffraumView::wert1(float prozent)
{
    m_a = prozent;
    m_ist.protein = prozent / 100.0F;
}

void NahrstoffraumView::wert2(float prozent)
{
    m_b = prozent;
    m_ist.kohlenhydrat = prozent / 100.0F;
}

void NahrstoffraumView::wert3(float prozent)
{
    m_c = prozent;
    m_ist.fett = prozent / 100.0F;
    update();
}

void NahrstoffraumView::grammkreisMitProtein(int protein, int kohlenhydrate, int fett)
{
    m_aa = protein;
    m_bb = kohlenhydrate;
    m_cc = fett;
}

void NahrstoffraumView::zeichnen(QPainter &maler, const QRectF &bounds) const
{
    const auto breite = static_cast<float>(bounds.width());
    const double radius = breite / 5.0F;
    // (height + 90) / 2 above the bottom edge.
    const double y = bounds.bottom() - (bounds.height() + fussraum) / 2;
    const Kreis links = {{bounds.left() + bounds.width() / 4, y}, radius};
    const Kreis rechts = {{bounds.left() + 3 * bounds.width() / 4, y}, radius};

    maler.save();
    maler.setClipRect(bounds, Qt::IntersectClip);
    maler.setRenderHint(QPainter::Antialiasing);
    zeichneKreis(maler, links, m_soll);
    zeichneKreis(maler, rechts, m_ist);
    maler.restore();
}

QString NahrstoffraumView::beschreibung() const
{
    return anteileInWorten(
               QT_TRANSLATE_NOOP("Mahlberg", "Soll: Protein %1, Kohlenhydrate %2, Fett %3."),
               m_soll) +
           u' ' +
           anteileInWorten(
               QT_TRANSLATE_NOOP("Mahlberg", "Ist: Protein %1, Kohlenhydrate %2, Fett %3."), m_ist);
}

QSize NahrstoffraumView::sizeHint() const
{
    return {220, 190};
}

QSize NahrstoffraumView::minimumSizeHint() const
{
    return {100, 134};
}
