#include "GewichtsverlaufView.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {

// Points from the bottom left corner; upwards they are kilograms.
constexpr QRectF flaeche(0, 0, 330, 240);
constexpr double achse = 2;
constexpr double breite = 320;
constexpr double hoehe = 230;
constexpr std::array<double, 5> wochenstellen = {2, 80, 160, 240, 320};

constexpr double achsenstrich = 2.3;
constexpr double wochenstrich = 0.3;
constexpr double kurvenstrich = 3.5;

QPen stift(Qt::GlobalColor farbe, double strichbreite)
{
    return {farbe, strichbreite, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

/// Fills the band between two weights, as far as it lies below the chart's top.
void zeichneBand(QPainter &maler, double von, double bis, Qt::GlobalColor farbe)
{
    const double oben = std::min(bis, hoehe);
    if (oben > von) {
        maler.fillRect(QRectF(achse, von, breite, oben - von), farbe);
    }
}

void zeichneWaagerechteAchse(QPainter &maler)
{
    maler.setPen(stift(Qt::black, achsenstrich));
    maler.drawLine(QLineF(achse, achse, breite, achse));
}

void zeichneWochenstriche(QPainter &maler)
{
    // Each ends one point to the right of where it starts.
    maler.setPen(stift(Qt::black, wochenstrich));
    for (const double x : {80, 160, 240}) {
        maler.drawLine(QLineF(x, achse, x + 1, 190));
    }
}

void zeichneSenkrechteAchseUndPfeile(QPainter &maler)
{
    maler.setPen(stift(Qt::black, achsenstrich));
    maler.drawLine(QLineF(achse, achse, achse, hoehe));
    maler.drawLine(QLineF(breite, achse, 313, 9));
    maler.drawLine(QLineF(achse, hoehe, 9, 227));
}

} // namespace

GewichtsverlaufView::GewichtsverlaufView(QWidget *parent) : Zeichenansicht(parent) {}

void GewichtsverlaufView::wert1(int kilogramm)
{
    m_gewicht = static_cast<float>(kilogramm);
    m_wochengewichte[0] = m_gewicht;
}

void GewichtsverlaufView::wert2(int kilokalorien)
{
    m_kalorienbedarf = kilokalorien;
}

void GewichtsverlaufView::wert3(int kilokalorien)
{
    m_kalorienerrechnet = kilokalorien;
    m_wochengewichte = gewichtsverlauf(m_gewicht, m_kalorienbedarf, m_kalorienerrechnet);
    update();
}

void GewichtsverlaufView::wert4(float meter)
{
    m_groesse = meter;
    m_oberesbmigewicht = gewichtBeiBmi(25.0F, meter);
    m_unteresbmigewicht = gewichtBeiBmi(20.0F, meter);
    update();
}

void GewichtsverlaufView::zeichneBaender(QPainter &maler) const
{
    const double unten = m_unteresbmigewicht;
    const double oben = m_oberesbmigewicht;
    // Straight edges without a blended row, so that no background shines through between two bands.
    maler.setRenderHint(QPainter::Antialiasing, false);
    zeichneBand(maler, oben, hoehe, Qt::red);
    zeichneBand(maler, achse, achse + unten, Qt::red);
    zeichneBand(maler, unten, oben, Qt::green);
    maler.setRenderHint(QPainter::Antialiasing);
}

void GewichtsverlaufView::zeichneKurve(QPainter &maler) const
{
    // Nobody weighs three tonnes; a line that is longer still takes the painter ever more time.
    constexpr double schwerstes = 3000;
    QPolygonF kurve;
    for (std::size_t woche = 0; woche < m_wochengewichte.size(); ++woche) {
        const double kilogramm = m_wochengewichte[woche];
        if (std::isnan(kilogramm)) {
            break;
        }
        kurve << QPointF(wochenstellen[woche], std::clamp(kilogramm, -schwerstes, schwerstes));
    }
    maler.setPen(stift(Qt::blue, kurvenstrich));
    maler.drawPolyline(kurve);
}

void GewichtsverlaufView::zeichnen(QPainter &maler, const QRectF &bounds) const
{
    maler.save();
    maler.setClipRect(bounds, Qt::IntersectClip);
    maler.translate(bounds.left(), bounds.bottom());
    maler.scale(1, -1);
    maler.setClipRect(flaeche, Qt::IntersectClip);
    zeichneBaender(maler);
    zeichneKurve(maler);
    zeichneWaagerechteAchse(maler);
    zeichneWochenstriche(maler);
    zeichneSenkrechteAchseUndPfeile(maler);
    maler.restore();
}

QString GewichtsverlaufView::beschreibung() const
{
    const auto kilogramm = [](float wert) {
        return QLocale().toString(wert, 'f', 1) + QChar(QChar::Nbsp) + QStringLiteral("kg");
    }; // no line ends between a number and its unit
    QString verlauf =
        QCoreApplication::translate("Mahlberg", "Gewicht heute %1, nach einer Woche %2, nach zwei "
                                                "%3, nach drei %4, nach vier %5.")
            .arg(kilogramm(a()), kilogramm(b()), kilogramm(c()), kilogramm(d()), kilogramm(e()));
    if (m_groesse == 0.0F) {
        return verlauf;
    }
    return verlauf + u' ' +
           QCoreApplication::translate("Mahlberg", "Gesund sind %1 bis %2.")
               .arg(kilogramm(m_unteresbmigewicht), kilogramm(m_oberesbmigewicht));
}

QSize GewichtsverlaufView::sizeHint() const
{
    return {static_cast<int>(flaeche.width()), static_cast<int>(flaeche.height())};
}

QSize GewichtsverlaufView::minimumSizeHint() const
{
    return sizeHint();
}
