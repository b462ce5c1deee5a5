#include "Papierbild.h"

#include "Papierteile.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QPalette>
#include <QWidget>

#include <algorithm>
#include <array>

namespace {

/// Pictures within the part are kept with this many pixels for each point of the layout.
constexpr int feinheit = 8;

/// A part of a window has no margin of its own; half an inch, in points.
constexpr double kleinsterRand = 36;

// The lines above the picture, in points.
constexpr std::array<double, 2> schriftgroessen = {16, 11};
constexpr double zeilenabstand = 1.3;
constexpr double luecke = 10;
constexpr double bezeichnungsgroesse = 8; // of a rating
constexpr double urteilsgroesse = 11;

QPalette papierpalette()
{
    QPalette palette;
    for (const auto rolle : {QPalette::Window, QPalette::Base, QPalette::AlternateBase,
                             QPalette::Button, QPalette::Light, QPalette::Midlight}) {
        palette.setColor(rolle, Qt::white);
    }
    for (const auto rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(rolle, Qt::black);
        palette.setColor(QPalette::Disabled, rolle, QColor(0x55, 0x55, 0x55));
    }
    palette.setColor(QPalette::PlaceholderText, QColor(0x55, 0x55, 0x55));
    palette.setColor(QPalette::Mid, QColor(0xaa, 0xaa, 0xaa));
    palette.setColor(QPalette::Dark, QColor(0x88, 0x88, 0x88));
    palette.setColor(QPalette::Shadow, QColor(0x66, 0x66, 0x66));
    // What is selected on the screen is nothing special on paper.
    palette.setColor(QPalette::Highlight, Qt::white);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    return palette;
}

/// Dresses a part of a window for paper while it lives. A colour that carries a verdict is chosen
/// for the program's palette, so a palette for the part alone would not do. Nothing of this is
/// seen: the windows are painted again when everything is as it was.
class Papierkleid
{
public:
    explicit Papierkleid(QWidget &flaeche)
        : m_flaeche(flaeche)
        , m_schrift(flaeche.testAttribute(Qt::WA_SetFont) ? flaeche.font() : QFont())
        , m_teile(flaeche)
    {
        trage(papierpalette());
        // Letters that are set apart, however little, are not joined: under a joined ff a search of
        // the PDF finds no "Stoffe".
        constexpr double kaumSichtbar = 0.02; // pixels
        QFont schrift = m_schrift;
        schrift.setLetterSpacing(QFont::AbsoluteSpacing, kaumSichtbar);
        m_flaeche.setFont(schrift);
    }
    ~Papierkleid()
    {
        m_flaeche.setFont(m_schrift);
        trage(m_vorher);
    }
    Papierkleid(const Papierkleid &) = delete;
    Papierkleid &operator=(const Papierkleid &) = delete;

private:
    void trage(const QPalette &palette)
    {
        QApplication::setPalette(palette);
        QEvent jetzt(QEvent::ApplicationPaletteChange); // windows hear of it later otherwise
        QCoreApplication::sendEvent(m_flaeche.window(), &jetzt);
    }

    QWidget &m_flaeche;
    QFont m_schrift;
    Papierteile m_teile;
    QPalette m_vorher = QApplication::palette();
};

QFont helvetica(double groesse)
{
    QFont schrift(QStringLiteral("Helvetica"));
    schrift.setPixelSize(static_cast<int>(groesse));
    return schrift;
}

/// Writes the lines from the top of `platz` down and returns the height that they take.
double maleUeberschriften(QPainter &maler, const QRectF &platz, const QStringList &zeilen)
{
    double unten = platz.top();
    for (qsizetype i = 0; i < zeilen.size(); ++i) {
        const double groesse = schriftgroessen[i == 0 ? 0 : 1];
        maler.setFont(helvetica(groesse));
        maler.setPen(Qt::black);
        unten += groesse * zeilenabstand;
        maler.drawText(QPointF(platz.left(), unten - groesse * (zeilenabstand - 1)), zeilen[i]);
    }
    return zeilen.isEmpty() ? 0 : unten - platz.top() + luecke;
}

/// Writes the ratings side by side from the top of `platz` down and returns the height that they
/// take. A verdict that is wider than its share ends in dots.
double maleWertungen(QPainter &maler, const QRectF &platz, const QList<Papierwertung> &wertungen)
{
    if (wertungen.isEmpty()) {
        return 0;
    }
    const double breite = platz.width() / static_cast<double>(wertungen.size());
    const double oben = platz.top() + bezeichnungsgroesse;
    const double unten = oben + urteilsgroesse * zeilenabstand;
    double links = platz.left();
    for (const Papierwertung &wertung : wertungen) {
        maler.setFont(helvetica(bezeichnungsgroesse));
        maler.setPen(Qt::black);
        maler.drawText(QPointF(links, oben), wertung.bezeichnung);
        maler.setFont(helvetica(urteilsgroesse));
        maler.setPen(farbeFuer(wertung.farbe, papierpalette()));
        const QFontMetricsF masse(maler.font(), maler.device());
        maler.drawText(QPointF(links, unten),
                       masse.elidedText(wertung.urteil, Qt::ElideRight, breite - luecke));
        links += breite;
    }
    return unten - platz.top() + luecke;
}

/// Where a page has room for a picture of a window.
QRectF platzAuf(const QPageLayout &seite)
{
    const QRectF papier = seite.fullRect(QPageLayout::Point);
    const QMarginsF rand(kleinsterRand, kleinsterRand, kleinsterRand, kleinsterRand);
    return papier.marginsRemoved(seite.margins(QPageLayout::Point) | rand);
}

} // namespace

Papierbild::Papierbild(QWidget &flaeche) : m_groesse(flaeche.size())
{
    const Papierkleid kleid(flaeche);
    QPainter maler(&m_bild);
    maler.scale(feinheit, feinheit);
    flaeche.render(&maler, QPoint(), QRegion(), QWidget::DrawChildren);
}

double Papierbild::vergroesserung(const QSizeF &platz) const
{
    return passmass(m_groesse, platz);
}

void Papierbild::male(QPainter &maler, const QRectF &ziel) const
{
    maler.save();
    passeEin(maler, QRectF(QPointF(), m_groesse), ziel);
    // A picture enlarges itself by the resolution of what it is drawn on.
    maler.scale(1.0 * m_bild.logicalDpiX() / maler.device()->logicalDpiX() / feinheit,
                1.0 * m_bild.logicalDpiY() / maler.device()->logicalDpiY() / feinheit);
    maler.drawPicture(0, 0, m_bild);
    maler.restore();
}

Druckauftrag bildauftrag(const QStringList &ueberschriften, QWidget &flaeche,
                         const QList<Papierwertung> &wertungen)
{
    return bildauftrag(ueberschriften, QList{Papierbild(flaeche)}, wertungen);
}

Druckauftrag bildauftrag(const QStringList &ueberschriften, const QList<Papierbild> &bilder,
                         const QList<Papierwertung> &wertungen)
{
    return {ueberschriften.value(0), [](const QPageLayout &) { return 1; },
            [ueberschriften, wertungen, bilder](QPainter &maler, const QPageLayout &seite, int) {
                QRectF platz = platzAuf(seite);
                platz.setTop(platz.top() + maleUeberschriften(maler, platz, ueberschriften));
                platz.setTop(platz.top() + maleWertungen(maler, platz, wertungen));
                const auto groesstes = std::max_element(
                    bilder.begin(), bilder.end(), [&](const auto &a, const auto &b) {
                        return a.vergroesserung(platz.size()) < b.vergroesserung(platz.size());
                    });
                groesstes->male(maler, platz);
            }};
}
