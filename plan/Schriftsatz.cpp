#include "Schriftsatz.h"

#include <QPainter>
#include <QRectF>

#include <algorithm>
#include <memory>

namespace {

/// A font made this much larger and shrunk by the painter has its true widths on every device.
constexpr int feinheit = 100;

QFont schrift(int groesse)
{
    QFont helvetica(QStringLiteral("Helvetica"));
    helvetica.setPixelSize(groesse * feinheit);
    helvetica.setStyleStrategy(QFont::PreferOutline);
    return helvetica;
}

qsizetype laengeOhneEnde(const QString &text)
{
    qsizetype laenge = text.size();
    while (laenge > 0 && text[laenge - 1] == u' ') {
        --laenge;
    }
    return laenge;
}

} // namespace

const Schriftsatz::Zeile &Schriftsatz::gesetzt(int groesse, const QString &text)
{
    const std::pair<int, QString> schluessel(groesse, text);
    if (const Zeile *bekannt = m_zeilen.object(schluessel)) {
        return *bekannt;
    }
    constexpr double einzeilig = 1e6; // wider than any paper
    auto zeile = std::make_unique<Zeile>();
    zeile->satz.setText(text);
    zeile->satz.setFont(schrift(groesse));
    zeile->satz.setCacheEnabled(true);
    zeile->satz.beginLayout();
    QTextLine linie = zeile->satz.createLine();
    linie.setLineWidth(einzeilig);
    linie.setPosition({0, -linie.ascent()}); // it is drawn from the line that it stands on
    zeile->satz.endLayout();
    zeile->breite = linie.cursorToX(static_cast<int>(laengeOhneEnde(text))) / feinheit;
    const Zeile &neu = *zeile;
    m_zeilen.insert(schluessel, zeile.release());
    return neu;
}

void Schriftsatz::zeichne(QPainter &maler, const QRectF &platz, int groesse, const QString &text)
{
    // How far letters reach above and below their line, in sizes: Ä and g of Helvetica.
    constexpr double hinauf = 0.92;
    constexpr double hinab = 0.23;
    constexpr double spalt = 0.2; // what stays free before the neighbour

    if (laengeOhneEnde(text) == 0) {
        return;
    }
    const Zeile &zeile = gesetzt(groesse, text);
    const double frei = platz.width() - spalt * groesse;
    const double stauchung = frei > 0 && frei < zeile.breite ? frei / zeile.breite : 1;
    const double linie = std::min(hinauf * groesse, platz.height() - hinab * groesse);

    maler.save();
    maler.translate(platz.left(), platz.top() + linie);
    maler.scale(stauchung / feinheit, 1.0 / feinheit);
    zeile.satz.draw(&maler, QPointF(0, 0));
    maler.restore();
}
