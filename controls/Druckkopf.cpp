#include "Druckkopf.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace {

// In points.
constexpr double schriftgroesse = 10;
constexpr double hoehe = 22;      ///< of the line, with what stays free below it
constexpr double obererRand = 18; ///< no printer needs more
constexpr double seitenrand = 36;

double obenFrei(const QPageLayout &seite)
{
    return std::max(seite.margins(QPageLayout::Point).top(), obererRand);
}

/// The page with an upper margin that holds the head.
QPageLayout unterDemKopf(const QPageLayout &seite)
{
    QPageLayout darunter = seite;
    darunter.setUnits(QPageLayout::Point);
    QMarginsF raender = darunter.margins();
    raender.setTop(obenFrei(seite) + hoehe);
    darunter.setMargins(raender);
    return darunter;
}

void maleKopf(QPainter &maler, const QPageLayout &seite, const QString &text)
{
    const QMarginsF raender =
        seite.margins(QPageLayout::Point) | QMarginsF(seitenrand, 0, seitenrand, 0);
    const QRectF zeile(
        raender.left(), obenFrei(seite),
        seite.fullRect(QPageLayout::Point).width() - raender.left() - raender.right(), hoehe);
    QFont schrift(QStringLiteral("Helvetica"));
    schrift.setPixelSize(static_cast<int>(schriftgroesse));
    schrift.setBold(true);
    maler.setFont(schrift);
    maler.setPen(Qt::black);
    maler.drawText(
        zeile, Qt::AlignLeft | Qt::AlignTop,
        QFontMetricsF(schrift, maler.device()).elidedText(text, Qt::ElideMiddle, zeile.width()));
}

} // namespace

Druckauftrag mitKopf(const Druckauftrag &auftrag, const QString &fuerWen)
{
    if (fuerWen.isEmpty()) {
        return auftrag;
    }
    Druckauftrag ganzer = auftrag;
    ganzer.seitenzahl = [auftrag](const QPageLayout &seite) {
        return auftrag.seitenzahl(unterDemKopf(seite));
    };
    ganzer.male = [auftrag, fuerWen](QPainter &maler, const QPageLayout &seite, int nummer) {
        maler.save();
        auftrag.male(maler, unterDemKopf(seite), nummer);
        maler.restore();
        maleKopf(maler, seite, fuerWen);
    };
    return ganzer;
}
