#include "Verlaufsmaler.h"

#include "Textfarbe.h"
#include "Verlaufsskala.h"
#include "Zeichenkettentabelle.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPalette>

#include <algorithm>

namespace {

constexpr double kleineStufe = 0.9; // of the four steps of type

// All lengths are parts of the height of a line of text.
constexpr double strich = 0.08;
constexpr double kurvenstrich = 0.1;
constexpr double markenradius = 0.25;
constexpr double strichlaenge = 0.2; // of the marks on the axis of time
constexpr double eng = 0.3;
constexpr double nah = 0.5;
constexpr double getrennt = 1.5; // what is not to be read as one
constexpr double tagesabstand = 2;
constexpr double stufenabstand = 1.7;
constexpr double kleinsteHoehe = 2.5;
constexpr double kleinsteBreite = 4;
constexpr int meisteStufen = 8;

// How much of a colour is mixed into the ground.
constexpr double bandton = 0.16;
constexpr double gitterton = 0.15;
constexpr double achsenton = 0.55;

QColor mische(const QColor &farbe, const QColor &grund, double anteil)
{
    const auto gemischt = [anteil](int oben, int unten) {
        return qRound(unten + (oben - unten) * anteil);
    };
    return {gemischt(farbe.red(), grund.red()), gemischt(farbe.green(), grund.green()),
            gemischt(farbe.blue(), grund.blue())};
}

struct Farben
{
    explicit Farben(const QPalette &palette)
        : schrift(palette.color(QPalette::WindowText))
        , bandrand(farbeFuer(Textfarbe::Gruen, palette))
        , band(mische(bandrand, palette.color(QPalette::Window), bandton))
        , gitter(mische(schrift, palette.color(QPalette::Window), gitterton))
        , achse(mische(schrift, palette.color(QPalette::Window), achsenton))
    {
    }
    QColor schrift;
    QColor bandrand;
    QColor band;
    QColor gitter;
    QColor achse;
};

QFont kleinere(QFont schrift)
{
    if (schrift.pointSizeF() > 0) {
        schrift.setPointSizeF(schrift.pointSizeF() * kleineStufe);
    } else {
        schrift.setPixelSize(std::max(1, qRound(schrift.pixelSize() * kleineStufe)));
    }
    return schrift;
}

QFont fettere(QFont schrift)
{
    schrift.setWeight(QFont::DemiBold);
    return schrift;
}

/// What the axis of values shows, as in "Gewicht, kg".
QString achsentitel(Messgroesse was)
{
    return messgroessenname(was) + QStringLiteral(", ") + QString::fromUtf8(messart(was).einheit);
}

/// Letters of one size, and how much room they take where they are painted.
struct Schrift
{
    Schrift(const QFont &art, QPaintDevice *blatt) : font(art), masse(art, blatt) {}
    double breite(const QString &text) const { return masse.horizontalAdvance(text); }

    QFont font;
    QFontMetricsF masse;
};

/// Lays one picture out and draws it.
class Verlaufsmaler
{
public:
    Verlaufsmaler(QPainter &maler, const QRectF &platz, const Verlaufsdaten &daten,
                  const QPalette &palette);
    void male();

private:
    void schreibeMitte(const QString &text);
    void schreibe(const Schrift &schrift, const QRectF &platz, int ausrichtung,
                  const QString &text);
    void ordneAn();
    double ordneKopf();
    void ordneSkala(double oben, double unten);
    double x(const QDate &tag) const;
    double y(double wert) const;
    double radius() const;

    void ziehe(const QColor &farbe, const QPointF &von, const QPointF &bis);
    void maleKopf();
    QRectF bandplatz(const Zielband &band) const;
    void maleBandrand(const Zielband &band, const QRectF &platz);
    void maleWerteachse();
    void maleZeitachse();
    QRectF platzFuer(const Zeitstrich &einer) const;
    bool passen(const QList<Zeitstrich> &striche) const;
    void maleKurve();
    void maleLetzten();

    QPainter &m_maler;
    QRectF m_platz;
    const Verlaufsdaten &m_daten;
    Farben m_farben;
    Schrift m_text;
    Schrift m_klein;
    Schrift m_fett;
    double m_zeile;   ///< height of a line of text
    QRectF m_legende; ///< empty: there is no room for it
    QRectF m_feld;    ///< between the axes
    Werteskala m_skala;
};

Verlaufsmaler::Verlaufsmaler(QPainter &maler, const QRectF &platz, const Verlaufsdaten &daten,
                             const QPalette &palette)
    : m_maler(maler)
    , m_platz(platz)
    , m_daten(daten)
    , m_farben(palette)
    , m_text(maler.font(), maler.device())
    , m_klein(kleinere(maler.font()), maler.device())
    , m_fett(fettere(maler.font()), maler.device())
    , m_zeile(m_text.masse.height())
{
}

void Verlaufsmaler::male()
{
    m_maler.setRenderHint(QPainter::Antialiasing);
    if (m_daten.punkte.isEmpty()) {
        schreibeMitte(localizedString(QString::fromUtf8(messart(m_daten.was).leer)));
        return;
    }
    ordneAn();
    if (m_feld.width() < kleinsteBreite * m_zeile || m_feld.height() < kleinsteHoehe * m_zeile) {
        schreibeMitte(messwert(m_daten.was, m_daten.punkte.last().wert));
        return;
    }
    if (m_daten.band) {
        m_maler.fillRect(bandplatz(*m_daten.band), m_farben.band);
    }
    maleWerteachse();
    if (m_daten.band) {
        maleBandrand(*m_daten.band, bandplatz(*m_daten.band)); // a limit may be a round figure
    }
    maleZeitachse();
    maleKurve();
    maleLetzten();
    maleKopf();
}

void Verlaufsmaler::schreibeMitte(const QString &text)
{
    schreibe(m_text, m_platz, Qt::AlignCenter | Qt::TextWordWrap, text);
}

void Verlaufsmaler::schreibe(const Schrift &schrift, const QRectF &platz, int ausrichtung,
                             const QString &text)
{
    m_maler.setFont(schrift.font);
    m_maler.setPen(m_farben.schrift);
    m_maler.drawText(platz, ausrichtung, text);
}

void Verlaufsmaler::ordneAn()
{
    const double oben = ordneKopf() + nah * m_zeile;
    const double unten = m_platz.bottom() - m_klein.masse.height() - nah * m_zeile;
    ordneSkala(oben, unten);
    double beschriftung = 0;
    for (const double stufe : m_skala.stufen()) {
        beschriftung = std::max(beschriftung, m_klein.breite(m_skala.beschriftung(stufe)));
    }
    const double letzter =
        m_fett.breite(messzahl(m_daten.was, m_daten.punkte.last().wert)) + eng * m_zeile;
    m_feld = QRectF(QPointF(m_platz.left() + beschriftung + eng * m_zeile, oben),
                    QPointF(m_platz.right() - letzter, unten));
}

/// The legend stands beside the caption where both have room, and below it otherwise. Returns where
/// both end.
double Verlaufsmaler::ordneKopf()
{
    const QString legende = bandInWorten(m_daten);
    const double unten = m_platz.top() + m_zeile;
    if (legende.isEmpty()) {
        return unten;
    }
    const double muster = m_daten.band ? getrennt * m_zeile : 0;
    const double breite = muster + m_klein.breite(legende) + 1; // rounding breaks no line
    const double titel = m_text.breite(achsentitel(m_daten.was));
    if (titel + getrennt * m_zeile + breite <= m_platz.width()) {
        m_legende = QRectF(m_platz.right() - breite, m_platz.top(), breite, m_zeile);
        return unten;
    }
    const QRectF frei(m_platz.left() + muster, unten, m_platz.width() - muster, m_platz.height());
    const QRectF text = m_klein.masse.boundingRect(frei, Qt::TextWordWrap, legende);
    // Why there is no band is said in words too; the picture comes first.
    if (!m_daten.band && m_platz.bottom() - text.bottom() < 2 * kleinsteHoehe * m_zeile) {
        return unten;
    }
    m_legende = QRectF(m_platz.left(), unten, m_platz.width(), text.height());
    return m_legende.bottom();
}

void Verlaufsmaler::ordneSkala(double oben, double unten)
{
    const auto [kleinster, groesster] =
        std::minmax_element(m_daten.punkte.begin(), m_daten.punkte.end(),
                            [](const Messpunkt &a, const Messpunkt &b) { return a.wert < b.wert; });
    double von = kleinster->wert;
    double bis = groesster->wert;
    if (m_daten.band) {
        von = std::min({von, m_daten.band->von.value_or(von), m_daten.band->bis.value_or(von)});
        bis = std::max({bis, m_daten.band->von.value_or(bis), m_daten.band->bis.value_or(bis)});
    }
    const double stufen = (unten - oben) / (stufenabstand * m_klein.masse.height());
    m_skala = werteskala(von, bis, static_cast<int>(std::clamp(stufen, 0.0, 1.0 * meisteStufen)));
}

/// A course of one day stands in the middle.
double Verlaufsmaler::x(const QDate &tag) const
{
    const QDate erster = m_daten.punkte.first().tag;
    const auto ganz = static_cast<double>(erster.daysTo(m_daten.punkte.last().tag));
    constexpr double mitte = 0.5;
    const double anteil = ganz > 0 ? static_cast<double>(erster.daysTo(tag)) / ganz : mitte;
    const double rand = nah * m_zeile;
    return m_feld.left() + rand + anteil * (m_feld.width() - 2 * rand);
}

double Verlaufsmaler::y(double wert) const
{
    return m_feld.bottom() - (wert - m_skala.von) / (m_skala.bis - m_skala.von) * m_feld.height();
}

/// Where measures stand close together, their marks are smaller; in the end the line alone is seen.
double Verlaufsmaler::radius() const
{
    const double abstand = m_feld.width() / static_cast<double>(m_daten.punkte.size());
    return std::clamp(abstand / 3, kurvenstrich / 2 * m_zeile, markenradius * m_zeile);
}

void Verlaufsmaler::maleKopf()
{
    schreibe(m_text, QRectF(m_platz.topLeft(), QSizeF(m_platz.width(), m_zeile)), Qt::AlignLeft,
             achsentitel(m_daten.was));
    QRectF text = m_legende;
    if (text.isEmpty()) {
        return;
    }
    if (m_daten.band) {
        const QRectF muster(m_legende.left(), m_legende.top() + eng * m_zeile / 2, m_zeile,
                            m_zeile - eng * m_zeile);
        m_maler.fillRect(muster, m_farben.band);
        maleBandrand(*m_daten.band, muster);
        text.setLeft(text.left() + getrennt * m_zeile);
    }
    schreibe(m_klein, text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap,
             bandInWorten(m_daten));
}

QRectF Verlaufsmaler::bandplatz(const Zielband &band) const
{
    const bool immer = !m_daten.bandAb.isValid() || m_daten.bandAb <= m_daten.punkte.first().tag;
    return {QPointF(immer ? m_feld.left() : x(m_daten.bandAb), y(band.bis.value_or(m_skala.bis))),
            QPointF(m_feld.right(), y(band.von.value_or(m_skala.von)))};
}

/// On whole pixels a straight line is sharp, and has all of its colour.
void Verlaufsmaler::ziehe(const QColor &farbe, const QPointF &von, const QPointF &bis)
{
    m_maler.setRenderHint(QPainter::Antialiasing, false);
    m_maler.setPen(QPen(farbe, strich * m_zeile));
    m_maler.drawLine(von, bis);
    m_maler.setRenderHint(QPainter::Antialiasing);
}

void Verlaufsmaler::maleBandrand(const Zielband &band, const QRectF &platz)
{
    if (band.von) {
        ziehe(m_farben.bandrand, platz.bottomLeft(), platz.bottomRight());
    }
    if (band.bis) {
        ziehe(m_farben.bandrand, platz.topLeft(), platz.topRight());
    }
}

void Verlaufsmaler::maleWerteachse()
{
    const double hoehe = m_klein.masse.height();
    for (const double stufe : m_skala.stufen()) {
        const double dort = y(stufe);
        ziehe(m_farben.gitter, QPointF(m_feld.left(), dort), QPointF(m_feld.right(), dort));
        const QRectF links(m_platz.left(), dort - hoehe / 2,
                           m_feld.left() - eng * m_zeile - m_platz.left(), hoehe);
        schreibe(m_klein, links, Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip,
                 m_skala.beschriftung(stufe));
    }
    ziehe(m_farben.achse, m_feld.topLeft(), m_feld.bottomLeft());
}

void Verlaufsmaler::maleZeitachse()
{
    ziehe(m_farben.achse, m_feld.bottomLeft(), m_feld.bottomRight());
    for (const Zeitstrich &einer :
         zeitstriche(m_daten.punkte.first().tag, m_daten.punkte.last().tag,
                     [this](const QList<Zeitstrich> &alle) { return passen(alle); })) {
        const QPointF dort(x(einer.tag), m_feld.bottom());
        ziehe(m_farben.achse, dort, dort + QPointF(0, strichlaenge * m_zeile));
        schreibe(m_klein, platzFuer(einer), Qt::AlignCenter | Qt::TextDontClip, einer.text);
    }
}

/// Below its mark, as far as the picture goes.
QRectF Verlaufsmaler::platzFuer(const Zeitstrich &einer) const
{
    const double breite = m_klein.breite(einer.text);
    const double links =
        std::max(m_platz.left(), std::min(x(einer.tag) - breite / 2, m_platz.right() - breite));
    return {links, m_feld.bottom() + nah * m_zeile, breite, m_klein.masse.height()};
}

bool Verlaufsmaler::passen(const QList<Zeitstrich> &striche) const
{
    double frei = m_platz.left() - tagesabstand * m_zeile;
    for (const Zeitstrich &einer : striche) {
        const QRectF platz = platzFuer(einer);
        if (platz.left() < frei + tagesabstand * m_zeile) {
            return false;
        }
        frei = platz.right();
    }
    return true;
}

void Verlaufsmaler::maleKurve()
{
    QPolygonF kurve;
    kurve.reserve(m_daten.punkte.size());
    for (const Messpunkt &punkt : m_daten.punkte) {
        kurve << QPointF(x(punkt.tag), y(punkt.wert));
    }
    m_maler.setPen(
        QPen(m_farben.schrift, kurvenstrich * m_zeile, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    // Line by line: where they lie close, the outline of all at once takes the painter long.
    for (qsizetype i = 1; i < kurve.size(); ++i) {
        m_maler.drawLine(kurve[i - 1], kurve[i]);
    }
    m_maler.setPen(Qt::NoPen);
    m_maler.setBrush(m_farben.schrift);
    for (const QPointF &mitte : std::as_const(kurve)) {
        m_maler.drawEllipse(mitte, radius(), radius());
    }
}

/// The last measure is the one that is asked for: its mark keeps its size, and its value stands
/// beside it.
void Verlaufsmaler::maleLetzten()
{
    const Messpunkt &letzter = m_daten.punkte.last();
    const QPointF mitte(x(letzter.tag), y(letzter.wert));
    m_maler.setPen(Qt::NoPen);
    m_maler.setBrush(m_farben.schrift);
    m_maler.drawEllipse(mitte, markenradius * m_zeile, markenradius * m_zeile);
    const QString wert = messzahl(m_daten.was, letzter.wert);
    const double hoehe = m_fett.masse.height();
    schreibe(m_fett,
             QRectF(mitte.x() + (markenradius + eng) * m_zeile, mitte.y() - hoehe / 2,
                    m_fett.breite(wert), hoehe),
             Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, wert);
}

} // namespace

void maleVerlauf(QPainter &maler, const QRectF &platz, const Verlaufsdaten &daten,
                 const QPalette &farben)
{
    maler.save();
    maler.setClipRect(platz, Qt::IntersectClip);
    Verlaufsmaler(maler, platz, daten, farben).male();
    maler.restore();
}
