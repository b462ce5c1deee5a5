#include "Bedarfsbalken.h"

#include "Bildzugang.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <array>

namespace {

struct Verdikt
{
    Textfarbe farbe;
    const char16_t *zeichen;
    const char *wort; ///< key into the string table
};

constexpr std::array<Verdikt, 3> verdikte = {{
    {Textfarbe::Gruen, u"✓", QT_TRANSLATE_NOOP("Mahlberg", "im Ziel")},
    {Textfarbe::Blau, u"≈", QT_TRANSLATE_NOOP("Mahlberg", "knapp daneben")},
    {Textfarbe::Rot, u"✗", QT_TRANSLATE_NOOP("Mahlberg", "verfehlt")},
}};

constexpr int eng = 4;
constexpr int nah = 8;
constexpr int balkenhoehe = 6;
constexpr int kleinsterBalken = 32;
constexpr int gewohnterBalken = 64;
constexpr double kleineStufe = 0.9;

const Verdikt *verdiktIn(Textfarbe farbe)
{
    const auto *gefunden =
        std::find_if(verdikte.begin(), verdikte.end(),
                     [farbe](const Verdikt &verdikt) { return verdikt.farbe == farbe; });
    return gefunden == verdikte.end() ? nullptr : gefunden;
}

int breitestesZeichen(const QFontMetrics &schrift)
{
    int breite = 0;
    for (const Verdikt &verdikt : verdikte) {
        breite = std::max(breite, schrift.horizontalAdvance(QString::fromUtf16(verdikt.zeichen)));
    }
    return breite;
}

} // namespace

Bedarfsbalken::Bedarfsbalken(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    QAccessible::installFactory(Bildzugang<Bedarfsbalken>::zugangZu); // Qt keeps one entry for it
}

void Bedarfsbalken::setGrenze(int prozent)
{
    m_grenze = prozent;
    updateGeometry();
    update();
}

void Bedarfsbalken::zeige(int prozent, Textfarbe farbe)
{
    m_farbe = farbe;
    m_prozent = prozent;
    update();
}

double Bedarfsbalken::fuellung() const
{
    return std::clamp(m_prozent, 0, 100) / 100.0;
}

QString Bedarfsbalken::zeichen() const
{
    const Verdikt *verdikt = verdiktIn(m_farbe);
    return verdikt != nullptr ? QString::fromUtf16(verdikt->zeichen) : QString();
}

QString Bedarfsbalken::grenztext() const
{
    return QCoreApplication::translate("Mahlberg", "ab %1 %").arg(m_grenze);
}

QString Bedarfsbalken::beschreibung() const
{
    const Verdikt *verdikt = verdiktIn(m_farbe);
    const QString anteil = QStringLiteral("%1 %").arg(m_prozent);
    return verdikt == nullptr
               ? anteil
               : QStringLiteral("%1, %2 (%3)")
                     .arg(anteil, QCoreApplication::translate("Mahlberg", verdikt->wort),
                          grenztext());
}

QFont Bedarfsbalken::kleineSchrift() const
{
    QFont schrift = font();
    schrift.setPointSizeF(schrift.pointSizeF() * kleineStufe);
    return schrift;
}

QSize Bedarfsbalken::groesse(int balkenbreite) const
{
    const int grenze = QFontMetrics(kleineSchrift()).horizontalAdvance(grenztext());
    return {breitestesZeichen(fontMetrics()) + eng + balkenbreite + nah + grenze,
            fontMetrics().height()};
}

QSize Bedarfsbalken::sizeHint() const
{
    return groesse(gewohnterBalken);
}

QSize Bedarfsbalken::minimumSizeHint() const
{
    return groesse(kleinsterBalken);
}

void Bedarfsbalken::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const int links = breitestesZeichen(fontMetrics()) + eng;
    painter.setPen(farbeFuer(m_farbe, QGuiApplication::palette()));
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter, zeichen());

    painter.setFont(kleineSchrift());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter, grenztext());
    const int rechts = width() - painter.fontMetrics().horizontalAdvance(grenztext()) - nah;
    const int oben = (height() - balkenhoehe) / 2; // on a whole pixel
    maleBalken(painter, QRectF(links, oben, rechts - links, balkenhoehe));
}

void Bedarfsbalken::maleBalken(QPainter &painter, const QRectF &platz) const
{
    constexpr double rundung = balkenhoehe / 2.0;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QGuiApplication::palette().color(QPalette::Mid));
    painter.drawRoundedRect(platz, rundung, rundung);
    QRectF gefuellt = platz;
    gefuellt.setWidth(platz.width() * fuellung());
    painter.setBrush(farbeFuer(m_farbe, QGuiApplication::palette()));
    painter.drawRoundedRect(gefuellt, rundung, rundung);
    // The mark stands out above and below, so that it is seen in a full bar too.
    const double x = platz.left() + platz.width() * m_grenze / 100;
    painter.fillRect(QRectF(x, platz.top() - 2, 1, platz.height() + 4),
                     palette().color(QPalette::WindowText));
}
