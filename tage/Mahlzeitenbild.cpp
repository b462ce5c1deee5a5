#include "Mahlzeitenbild.h"

#include "Zeichenkettentabelle.h"

#include <QFontMetricsF>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace {

// Parts of the height of a line.
constexpr double balkenhoehe = 0.6;
constexpr double strichbreite = 0.12;
constexpr double spaltenabstand = 0.5;

// Widths in letters.
constexpr int kuerzesterName = 6;
constexpr int kuerzesterBalken = 5;
constexpr int ueblicherName = 12;
constexpr int ueblicherBalken = 12;

/// Between the colour of the text and its ground: seen on both, and no verdict.
QColor balkenfarbe(const QPalette &farben)
{
    const QColor schrift = farben.color(QPalette::WindowText);
    const QColor grund = farben.color(QPalette::Window);
    const auto mitte = [](int a, int b) {
        return (a + b) / 2;
    };
    return {mitte(schrift.red(), grund.red()), mitte(schrift.green(), grund.green()),
            mitte(schrift.blue(), grund.blue())};
}

/// The mark of the mean, higher than the bar so that it is seen where the bar ends.
void maleStrich(QPainter &maler, const QRectF &zeile, double x)
{
    const double dicke = std::max(2.0, std::round(strichbreite * zeile.height()));
    maler.fillRect(QRectF(std::round(x - dicke / 2), zeile.top() + 1, dicke, zeile.height() - 2),
                   maler.pen().color());
}

} // namespace

Mahlzeitenbild::Mahlzeitenbild(QWidget *parent) : Zeichenansicht(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Mahlzeitenbild::zeige(const QList<Mahlzeitenanteil> &anteile)
{
    setAccessibleName(localizedString(QStringLiteral("Energie der Mahlzeiten")));
    m_anteile = anteile;
    m_breiten.reset();
    updateGeometry();
    update();
}

void Mahlzeitenbild::zeichnen(QPainter &maler, const QRectF &bounds) const
{
    maler.save();
    maler.setFont(font());
    maler.setPen(palette().color(QPalette::WindowText));
    QRectF zeile(bounds.topLeft(), QSizeF(bounds.width(), zeilenhoehe()));
    maleKopf(maler, zeile);
    const Mahlzeitenspalten spalten = mahlzeitenspalten(bounds.width(), breiten());
    for (const Mahlzeitenanteil &einer : m_anteile) {
        zeile.translate(0, zeile.height());
        maleZeile(maler, zeile, spalten, einer);
    }
    maler.restore();
}

void Mahlzeitenbild::maleKopf(QPainter &maler, const QRectF &zeile) const
{
    const bool mitMittel =
        std::any_of(m_anteile.begin(), m_anteile.end(),
                    [](const Mahlzeitenanteil &einer) { return einer.mittel.has_value(); });
    const QString titel = localizedString(QStringLiteral("Energie der Mahlzeiten"));
    const QFontMetricsF masse(font());
    maler.drawText(zeile, Qt::AlignLeft | Qt::AlignVCenter,
                   masse.elidedText(titel, Qt::ElideRight, zeile.width()));
    const QString worte = localizedString(QStringLiteral("Strich: Mittel"));
    const double platz = masse.horizontalAdvance(worte);
    if (mitMittel && masse.horizontalAdvance(titel) + masse.height() + platz <= zeile.width()) {
        maler.drawText(zeile, Qt::AlignRight | Qt::AlignVCenter, worte);
    }
}

void Mahlzeitenbild::maleZeile(QPainter &maler, const QRectF &zeile,
                               const Mahlzeitenspalten &spalten,
                               const Mahlzeitenanteil &einer) const
{
    const auto platz = [&zeile](double links, double breite) {
        return QRectF(zeile.left() + links, zeile.top(), breite, zeile.height());
    };
    maler.drawText(
        platz(0, spalten.namensbreite), Qt::AlignLeft | Qt::AlignVCenter,
        QFontMetricsF(font()).elidedText(einer.name, Qt::ElideRight, spalten.namensbreite));
    const double voll = vollausschlag(m_anteile);
    const QRectF feld = platz(spalten.balken, spalten.balkenbreite);
    const double rand = std::round(zeile.height() * (1 - balkenhoehe) / 2);
    QRectF balken = feld.adjusted(0, rand, 0, -rand);
    balken.setWidth(feld.width() * fuellung(einer.energie, voll));
    maler.fillRect(balken, balkenfarbe(palette()));
    if (einer.mittel) {
        maleStrich(maler, zeile, feld.left() + feld.width() * fuellung(einer.mittel, voll));
    }
    const Mahlzeitenbreiten breite = breiten();
    maler.drawText(platz(spalten.energie, breite.energie), Qt::AlignRight | Qt::AlignVCenter,
                   energietext(einer));
    maler.drawText(platz(spalten.prozent, breite.prozent), Qt::AlignRight | Qt::AlignVCenter,
                   anteilstext(einer));
}

QString Mahlzeitenbild::beschreibung() const
{
    QStringList saetze;
    for (const Mahlzeitenanteil &einer : m_anteile) {
        saetze << mahlzeitInWorten(einer);
    }
    return saetze.join(u' ');
}

QString Mahlzeitenbild::hinweisBei(const QPoint &ort) const
{
    const int zeile = ort.y() / zeilenhoehe() - 1;
    return zeile >= 0 && zeile < m_anteile.size() ? mahlzeitInWorten(m_anteile[zeile]) : QString();
}

/// A tool tip that the view keeps would be read out in place of its description.
bool Mahlzeitenbild::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *frage = static_cast<QHelpEvent *>(event);
        QToolTip::showText(frage->globalPos(), hinweisBei(frage->pos()).toHtmlEscaped(), this);
        return true;
    }
    if (event->type() == QEvent::FontChange) {
        m_breiten.reset();
        updateGeometry();
    }
    return Zeichenansicht::event(event);
}

int Mahlzeitenbild::zeilenhoehe() const
{
    return fontMetrics().height();
}

/// The figures have room for any usual meal, so that nothing moves while the day is typed.
/// Layouts ask for them again and again.
const Mahlzeitenbreiten &Mahlzeitenbild::breiten() const
{
    if (!m_breiten) {
        m_breiten = messe();
    }
    return *m_breiten;
}

Mahlzeitenbreiten Mahlzeitenbild::messe() const
{
    const Mahlzeitenanteil ueblicher = {.energie = 8888.0, .prozent = 100};
    const QFontMetricsF masse(font());
    const auto breite = [&masse](const QString &text) {
        return std::ceil(masse.horizontalAdvance(text));
    };
    Mahlzeitenbreiten breiten;
    breiten.energie = breite(energietext(ueblicher));
    breiten.prozent = breite(anteilstext(ueblicher));
    for (const Mahlzeitenanteil &einer : m_anteile) {
        breiten.name = std::max(breiten.name, breite(einer.name));
        breiten.energie = std::max(breiten.energie, breite(energietext(einer)));
        breiten.prozent = std::max(breiten.prozent, breite(anteilstext(einer)));
    }
    breiten.abstand = spaltenabstand * masse.height();
    breiten.balken = kuerzesterBalken * masse.averageCharWidth();
    return breiten;
}

QSize Mahlzeitenbild::groesse(double namensbreite, double balkenbreite) const
{
    const Mahlzeitenbreiten wunsch = breiten();
    const double breite =
        namensbreite + balkenbreite + wunsch.energie + wunsch.prozent + 3 * wunsch.abstand;
    return {static_cast<int>(std::ceil(breite)),
            static_cast<int>(m_anteile.size() + 1) * zeilenhoehe()};
}

QSize Mahlzeitenbild::sizeHint() const
{
    const int buchstabe = fontMetrics().averageCharWidth();
    return groesse(ueblicherName * buchstabe, ueblicherBalken * buchstabe);
}

QSize Mahlzeitenbild::minimumSizeHint() const
{
    return groesse(kuerzesterName * fontMetrics().averageCharWidth(), breiten().balken);
}
