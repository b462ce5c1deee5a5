#include "GewichtsverlaufView.h"

#include "Zahlenform.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPainterPath>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <optional>

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

QString uebersetzt(const char *text)
{
    return QCoreApplication::translate("Mahlberg", text);
}

/// No line ends between the number and its unit.
const QString kilogrammzeichen = QChar(QChar::Nbsp) + QStringLiteral("kg");

/// Less than a scale shows is no change worth a word, so small values get no more digits.
QString kilogramm(float wert)
{
    return zahlenform().toString(wert, 'f', 1) + kilogrammzeichen;
}

/// As it was entered, without a digit more.
QString genaueKilogramm(float wert)
{
    constexpr int bedeutsameStellen = 7; // of single precision
    return zahlenform().toString(wert, 'g', bedeutsameStellen) + kilogrammzeichen;
}

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

/// What of a line lies in the chart or so near to it that it can be seen; absent when nothing does.
/// A line that is ever so long takes the painter ever so much time.
std::optional<QLineF> sichtbar(const QLineF &linie)
{
    constexpr double umgebung = 20; // more than a corner of the curve reaches beyond its weight
    const double unten = flaeche.top() - umgebung;
    const double oben = flaeche.bottom() + umgebung;
    if (std::max(linie.y1(), linie.y2()) < unten || std::min(linie.y1(), linie.y2()) > oben) {
        return std::nullopt;
    }
    const auto gekuerzt = [&linie, unten, oben](const QPointF &ende) {
        const double y = std::clamp(ende.y(), unten, oben);
        return y == ende.y()
                   ? ende
                   : QPointF(linie.x1() + linie.dx() * ((y - linie.y1()) / linie.dy()), y);
    };
    return QLineF(gekuerzt(linie.p1()), gekuerzt(linie.p2()));
}

/// Draws the curve on, or begins it anew where it comes back into the chart.
void fuegeAn(QPainterPath &kurve, const QLineF &linie)
{
    const std::optional<QLineF> stueck = sichtbar(linie);
    if (!stueck) {
        return;
    }
    if (kurve.isEmpty() || kurve.currentPosition() != stueck->p1()) {
        kurve.moveTo(stueck->p1());
    }
    kurve.lineTo(stueck->p2());
}

} // namespace

GewichtsverlaufView::GewichtsverlaufView(QWidget *parent) : Zeichenansicht(parent) {}

void GewichtsverlaufView::wert1(int kilogramm)
{
    m_gewicht = static_cast<float>(kilogramm);
    m_gewichtHeute = m_gewicht;
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
    QPainterPath kurve;
    for (std::size_t woche = 1; woche < m_wochengewichte.size(); ++woche) {
        const QPointF von(wochenstellen[woche - 1], m_wochengewichte[woche - 1]);
        const QPointF bis(wochenstellen[woche], m_wochengewichte[woche]);
        if (!std::isfinite(von.y()) || !std::isfinite(bis.y())) {
            break;
        }
        fuegeAn(kurve, QLineF(von, bis));
    }
    maler.setPen(stift(Qt::blue, kurvenstrich));
    maler.setBrush(Qt::NoBrush);
    maler.drawPath(kurve);
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
    QStringList saetze;
    if (m_gewicht != 0.0F) {
        saetze << uebersetzt(QT_TRANSLATE_NOOP("Mahlberg",
                                               "Gewicht heute %1, nach einer Woche %2, nach zwei "
                                               "%3, nach drei %4, nach vier %5."))
                      .arg(genaueKilogramm(m_gewichtHeute), veraenderung(b()), veraenderung(c()),
                           veraenderung(d()), veraenderung(e()));
    }
    if (m_groesse != 0.0F) {
        saetze << uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Gesund sind %1 bis %2."))
                      .arg(kilogramm(m_unteresbmigewicht), kilogramm(m_oberesbmigewicht));
    }
    return saetze.isEmpty() ? uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Noch kein Verlauf."))
                            : saetze.join(u' ');
}

/// How much a week's weight differs from the chart's first one. The chart leaves out today's
/// fraction of a kilogram: that would be missing in every weight, but not in what is lost or
/// gained.
QString GewichtsverlaufView::veraenderung(float gewicht) const
{
    const float mehr = gewicht - a();
    if (!std::isfinite(mehr)) {
        return uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "unbekannt"));
    }
    const QString betrag = kilogramm(std::fabs(mehr));
    if (betrag == kilogramm(0)) {
        return uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "unverändert"));
    }
    return (mehr > 0 ? uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "%1 mehr"))
                     : uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "%1 weniger")))
        .arg(betrag);
}

QSize GewichtsverlaufView::sizeHint() const
{
    return {static_cast<int>(flaeche.width()), static_cast<int>(flaeche.height())};
}

QSize GewichtsverlaufView::minimumSizeHint() const
{
    return sizeHint();
}
