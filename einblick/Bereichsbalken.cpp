#include "Bereichsbalken.h"

#include "Bildzugang.h"
#include "Einblickworte.h"
#include "Referenzworte.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <array>

namespace {

struct Verdikt
{
    const char16_t *zeichen;
    const char *wort; ///< key into the string table
    Textfarbe farbe;
};

/// In the order of `Bereichsurteil`.
constexpr std::array<Verdikt, 7> verdikte = {{
    {u"", "", Textfarbe::Standard},
    {u"✓", QT_TRANSLATE_NOOP("Mahlberg", "passt"), Textfarbe::Gruen},
    {u"?", QT_TRANSLATE_NOOP("Mahlberg", "passt, soweit bekannt"), Textfarbe::Blau},
    {u"≈", QT_TRANSLATE_NOOP("Mahlberg", "vielleicht zu wenig"), Textfarbe::Blau},
    {u"↓", QT_TRANSLATE_NOOP("Mahlberg", "zu wenig"), Textfarbe::Rot},
    {u"↑", QT_TRANSLATE_NOOP("Mahlberg", "zu viel"), Textfarbe::Rot},
    {u"‼", QT_TRANSLATE_NOOP("Mahlberg", "über der Obergrenze"), Textfarbe::Rot},
}};

constexpr int eng = 4;
constexpr int balkenhoehe = 6;
constexpr int klammerhoehe = 4; ///< above the bar
constexpr int kleinsterBalken = 24;
constexpr int gewohnterBalken = 120;
constexpr double luft = 1.25; ///< so far the bar goes beyond the last end of the range

const Verdikt &verdikt(Bereichsurteil urteil)
{
    return verdikte.at(static_cast<std::size_t>(urteil));
}

int breitestesZeichen(const QFontMetrics &schrift)
{
    int breite = 0;
    for (const Verdikt &eines : verdikte) {
        breite = std::max(breite, schrift.horizontalAdvance(QString::fromUtf16(eines.zeichen)));
    }
    return breite;
}

} // namespace

Bereichsurteil beurteile(const Zielbereich &ziel, double menge, double unbekannt)
{
    if (!ziel.unten && !ziel.oben && !ziel.obergrenze) {
        return Bereichsurteil::Keines;
    }
    switch (lage(ziel, menge)) {
    case Lage::ZuWenig:
        return unbekannt > 0 ? Bereichsurteil::VielleichtZuWenig : Bereichsurteil::ZuWenig;
    case Lage::ZuViel:
        return Bereichsurteil::ZuViel;
    case Lage::Ueberhoeht:
        return Bereichsurteil::Ueberhoeht;
    case Lage::Richtig:
        break;
    }
    const bool nachObenOffen = !ziel.oben && !ziel.obergrenze;
    return unbekannt > 0 && !nachObenOffen ? Bereichsurteil::VielleichtRichtig
                                           : Bereichsurteil::Richtig;
}

QString urteilswort(Bereichsurteil urteil)
{
    return urteil == Bereichsurteil::Keines
               ? QString()
               : localizedString(QString::fromUtf8(verdikt(urteil).wort));
}

Textfarbe urteilsfarbe(Bereichsurteil urteil)
{
    return verdikt(urteil).farbe;
}

Bereichsbalken::Bereichsbalken(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    QAccessible::installFactory(Bildzugang<Bereichsbalken>::zugangZu); // Qt keeps one entry for it
}

void Bereichsbalken::zeige(double menge, const Zielbereich &ziel, Bereichsurteil urteil)
{
    m_ziel = ziel;
    m_menge = menge;
    m_urteil = urteil;
    update();
}

void Bereichsbalken::zeigeBereich(const Zielbereich &ziel)
{
    m_ziel = ziel;
    m_menge.reset();
    m_urteil = Bereichsurteil::Keines;
    update();
}

void Bereichsbalken::leere()
{
    m_ziel.reset();
    m_menge.reset();
    m_urteil = Bereichsurteil::Keines;
    update();
}

QString Bereichsbalken::zeichen() const
{
    return QString::fromUtf16(verdikt(m_urteil).zeichen);
}

QString Bereichsbalken::beschreibung() const
{
    if (!m_ziel) {
        return {};
    }
    QStringList teile;
    if (m_menge) {
        teile << Einblickworte::menge(m_ziel->groesse, *m_menge);
    }
    if (m_urteil != Bereichsurteil::Keines) {
        teile << urteilswort(m_urteil);
    }
    const QString bereich = Referenzworte::bereich(*m_ziel);
    return teile.isEmpty()
               ? bereich
               : QStringLiteral("%1 (%2)").arg(teile.join(QStringLiteral(", ")), bereich);
}

double Bereichsbalken::ort(double menge) const
{
    if (!m_ziel) {
        return 0;
    }
    const double ende = luft * std::max({m_ziel->unten.value_or(0), m_ziel->oben.value_or(0),
                                         m_ziel->obergrenze.value_or(0)});
    return ende > 0 ? std::clamp(menge / ende, 0.0, 1.0) : 0;
}

QSize Bereichsbalken::groesse(int balkenbreite) const
{
    return {breitestesZeichen(fontMetrics()) + eng + balkenbreite,
            std::max(fontMetrics().height(), balkenhoehe + 2 * klammerhoehe)};
}

QSize Bereichsbalken::sizeHint() const
{
    return groesse(gewohnterBalken);
}

QSize Bereichsbalken::minimumSizeHint() const
{
    return groesse(kleinsterBalken);
}

void Bereichsbalken::paintEvent(QPaintEvent * /*event*/)
{
    if (!m_ziel) {
        return;
    }
    QPainter painter(this);
    const int links = breitestesZeichen(fontMetrics()) + eng;
    painter.setPen(farbeFuer(urteilsfarbe(m_urteil), QGuiApplication::palette()));
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter, zeichen());
    const int oben = (height() - balkenhoehe) / 2; // on a whole pixel
    const QRectF platz(links, oben, width() - links, balkenhoehe);
    maleBalken(painter, platz);
    maleBereich(painter, platz);
}

void Bereichsbalken::maleBalken(QPainter &painter, const QRectF &platz) const
{
    constexpr double rundung = balkenhoehe / 2.0;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QGuiApplication::palette().color(QPalette::Mid));
    painter.drawRoundedRect(platz, rundung, rundung);
    if (m_menge) {
        QRectF gefuellt = platz;
        gefuellt.setWidth(platz.width() * ort(*m_menge));
        painter.setBrush(farbeFuer(urteilsfarbe(m_urteil), QGuiApplication::palette()));
        painter.drawRoundedRect(gefuellt, rundung, rundung);
    }
    painter.restore();
}

/// The bracket is open to the right where more is not too much.
void Bereichsbalken::maleBereich(QPainter &painter, const QRectF &platz) const
{
    const QColor farbe = palette().color(QPalette::WindowText);
    const auto x = [&](double menge) {
        return platz.left() + platz.width() * ort(menge);
    };
    const auto strich = [&](double wo, double breite) {
        painter.fillRect(
            QRectF(wo, platz.top() - klammerhoehe, breite, platz.height() + klammerhoehe + 2),
            farbe);
    };
    const std::optional<double> ende = m_ziel->oben ? m_ziel->oben : m_ziel->obergrenze;
    if (m_ziel->unten || m_ziel->oben) {
        const double von = m_ziel->unten ? x(*m_ziel->unten) : platz.left();
        const double bis = ende ? x(*ende) : platz.right();
        painter.fillRect(QRectF(von, platz.top() - klammerhoehe, bis - von, 1), farbe);
    }
    if (m_ziel->unten) {
        strich(x(*m_ziel->unten), 1);
    }
    if (m_ziel->oben) {
        strich(x(*m_ziel->oben), 1);
    }
    if (m_ziel->obergrenze) {
        strich(x(*m_ziel->obergrenze), 3);
    }
}
