#include "Briefkopf.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr Druckschrift namensschrift = {12, true};
constexpr Druckschrift anschriftschrift = {9};

// In points.
constexpr QSizeF groesstesLogo(170, 56);
constexpr double abstand = 16; ///< between the logo and what stands beside it
constexpr double ueberStrich = 8;
constexpr double strich = 0.8;
constexpr double unterStrich = 14;

/// As large as its place lets it be; on narrow paper the name has its place too.
QSizeF logogroesse(const QImage &logo, double breite)
{
    const QSizeF platz(std::min(groesstesLogo.width(), breite / 3), groesstesLogo.height());
    return QSizeF(logo.size()).scaled(platz, Qt::KeepAspectRatio);
}

} // namespace

Druckstreifenfolge gesetzt(const Briefkopf &kopf, double breite)
{
    if (kopf.istLeer()) {
        return {};
    }
    const QSizeF logo = kopf.logo.isNull() ? QSizeF(0, 0) : logogroesse(kopf.logo, breite);
    const double textbreite = kopf.logo.isNull() ? breite : breite - logo.width() - abstand;
    Druckstreifenfolge folge;
    if (!kopf.name.isEmpty()) {
        folge << gesetzt({{.text = kopf.name, .schrift = namensschrift, .breite = textbreite}});
    }
    if (!kopf.anschrift.isEmpty()) {
        folge << gesetzt({{.text = kopf.anschrift.join(u'\n'),
                           .schrift = anschriftschrift,
                           .breite = textbreite}});
    }
    if (!kopf.logo.isNull()) {
        folge.prepend({0, [bild = kopf.logo, logo, breite](QPainter &maler) {
                           maler.setRenderHint(QPainter::SmoothPixmapTransform);
                           maler.drawImage(QRectF({breite - logo.width(), 0}, logo), bild);
                       }});
        folge << freiraum(std::max(0.0, logo.height() - hoehe(folge)));
    }
    folge << freiraum(ueberStrich) << waagerechte(breite, strich) << freiraum(unterStrich);
    return folge;
}
