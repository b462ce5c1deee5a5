#include "Druckfuss.h"

#include <QCoreApplication>
#include <QFont>
#include <QPainter>

#include <algorithm>

namespace {

// In points.
constexpr double schriftgroesse = 8;
constexpr double hoehe = 16;     ///< of the line, with what stays free above it
constexpr double linieDarin = 3; ///< from the lower edge of the line up to where its letters stand
constexpr double untererRand = 18; ///< no printer needs more
constexpr double seitenrand = 36;

double untenFrei(const QPageLayout &seite)
{
    return std::max(seite.margins(QPageLayout::Point).bottom(), untererRand);
}

/// The page with a lower margin that holds the foot.
QPageLayout ueberDemFuss(const QPageLayout &seite)
{
    QPageLayout darueber = seite;
    darueber.setUnits(QPageLayout::Point);
    QMarginsF raender = darueber.margins();
    raender.setBottom(untenFrei(seite) + hoehe);
    darueber.setMargins(raender);
    return darueber;
}

void maleFuss(QPainter &maler, const QPageLayout &seite, const QString &tag, const QString &nummer)
{
    const QMarginsF raender =
        seite.margins(QPageLayout::Point) | QMarginsF(seitenrand, 0, seitenrand, 0);
    const QRectF papier = seite.fullRect(QPageLayout::Point);
    const QRectF zeile(raender.left(), papier.height() - untenFrei(seite) - hoehe,
                       papier.width() - raender.left() - raender.right(), hoehe - linieDarin);
    QFont schrift(QStringLiteral("Helvetica"));
    schrift.setPixelSize(static_cast<int>(schriftgroesse));
    maler.setFont(schrift);
    maler.setPen(Qt::black);
    maler.drawText(zeile, Qt::AlignLeft | Qt::AlignBottom, tag);
    maler.drawText(zeile, Qt::AlignHCenter | Qt::AlignBottom, nummer);
    maler.drawText(zeile, Qt::AlignRight | Qt::AlignBottom, QStringLiteral("Mahlberg"));
}

} // namespace

Druckauftrag mitFuss(const Druckauftrag &auftrag)
{
    return mitFuss(auftrag, QCoreApplication::translate("Mahlberg", "Seite %1 von %2"), QLocale());
}

Druckauftrag mitFuss(const Druckauftrag &auftrag, const QString &seitenworte, const QLocale &land)
{
    Druckauftrag ganzer = auftrag;
    ganzer.seitenzahl = [auftrag](const QPageLayout &seite) {
        return auftrag.seitenzahl(ueberDemFuss(seite));
    };
    ganzer.male = [auftrag, seitenworte, land](QPainter &maler, const QPageLayout &seite,
                                               int nummer) {
        const QPageLayout darueber = ueberDemFuss(seite);
        maler.save();
        auftrag.male(maler, darueber, nummer);
        maler.restore();
        maleFuss(maler, seite, land.toString(auftrag.tag, QLocale::LongFormat),
                 seitenworte.arg(nummer).arg(auftrag.seitenzahl(darueber)));
    };
    return ganzer;
}
