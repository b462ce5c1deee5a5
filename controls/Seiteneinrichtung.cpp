#include "Seiteneinrichtung.h"

#include <QLocale>
#include <QRectF>
#include <QSettings>

#include <cmath>

namespace {

const QString breite = QStringLiteral("Seite/Breite");
const QString hoehe = QStringLiteral("Seite/Hoehe");
const QString querformat = QStringLiteral("Seite/Querformat");
const QString raender = QStringLiteral("Seite/Raender");

/// Half a metre is more paper than any printer on a desk takes; in millimetres.
constexpr double groesstes = 5000;

double millimeter(const QVariant &wert)
{
    bool lesbar = false;
    const double zahl = wert.toDouble(&lesbar);
    return lesbar && std::isfinite(zahl) && zahl >= 0 && zahl < groesstes ? zahl : 0;
}

QPageSize landesuebliches()
{
    const bool us = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
    return QPageSize(us ? QPageSize::Letter : QPageSize::A4);
}

/// A paper is kept by its measures. Qt finds the name of a known size again.
QPageSize gemerktesPapier(const QSettings &einstellungen)
{
    const QSizeF mass(millimeter(einstellungen.value(breite)),
                      millimeter(einstellungen.value(hoehe)));
    return mass.isEmpty() ? landesuebliches() : QPageSize(mass, QPageSize::Millimeter);
}

QMarginsF gemerkteRaender(const QSettings &einstellungen)
{
    const QVariantList werte = einstellungen.value(raender).toList();
    return {millimeter(werte.value(0)), millimeter(werte.value(1)), millimeter(werte.value(2)),
            millimeter(werte.value(3))};
}

} // namespace

QPageLayout gemerkteSeite(const QSettings &einstellungen)
{
    const auto lage =
        einstellungen.value(querformat).toBool() ? QPageLayout::Landscape : QPageLayout::Portrait;
    QPageLayout seite(gemerktesPapier(einstellungen), lage, gemerkteRaender(einstellungen),
                      QPageLayout::Millimeter);
    const QSizeF platz = seite.paintRect().size();
    if (platz.isEmpty()) {
        seite.setMargins({});
    }
    return seite;
}

void merkeSeite(QSettings &einstellungen, const QPageLayout &seite)
{
    const QSizeF papier = seite.pageSize().size(QPageSize::Millimeter);
    const QMarginsF rand = seite.margins(QPageLayout::Millimeter);
    einstellungen.setValue(breite, papier.width());
    einstellungen.setValue(hoehe, papier.height());
    einstellungen.setValue(querformat, seite.orientation() == QPageLayout::Landscape);
    einstellungen.setValue(raender,
                           QVariantList{rand.left(), rand.top(), rand.right(), rand.bottom()});
}
