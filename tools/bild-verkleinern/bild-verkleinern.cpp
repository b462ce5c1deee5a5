// Makes the file of a picture smaller that shows a window: most of such a picture is made of a few
// colours, and for the others one that is near is good enough.

#include <QCoreApplication>
#include <QHash>
#include <QImage>
#include <QTextStream>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr qsizetype farbenzahl = 256;

/// So many of the most frequent colours stay as they are: those of the large areas, on which the
/// eye would see the slightest tinge.
constexpr qsizetype unveraendert = 64;

/// All colours of the picture, the most frequent ones first.
QList<QRgb> alleFarben(const QImage &bild)
{
    QHash<QRgb, int> anzahl;
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            ++anzahl[bild.pixel(x, y)];
        }
    }
    QList<QRgb> farben = anzahl.keys();
    std::sort(farben.begin(), farben.end(), [&anzahl](QRgb eine, QRgb andere) {
        return std::pair(-anzahl[eine], eine) < std::pair(-anzahl[andere], andere);
    });
    return farben;
}

int abstand(QRgb eine, QRgb andere)
{
    return std::max({std::abs(qRed(eine) - qRed(andere)), std::abs(qGreen(eine) - qGreen(andere)),
                     std::abs(qBlue(eine) - qBlue(andere))});
}

/// The first ones of these colours, and so many of the others that none is further than this from
/// one of them.
QList<QRgb> vertreter(const QList<QRgb> &farben, int hoechstens)
{
    QList<QRgb> gewaehlt = farben.first(std::min(farben.size(), unveraendert));
    for (const QRgb farbe : farben.sliced(gewaehlt.size())) {
        const bool vertreten =
            std::any_of(gewaehlt.begin(), gewaehlt.end(), [farbe, hoechstens](QRgb andere) {
                return abstand(farbe, andere) <= hoechstens;
            });
        if (!vertreten) {
            gewaehlt << farbe;
        }
        if (gewaehlt.size() > farbenzahl) {
            break;
        }
    }
    return gewaehlt;
}

/// As many colours as the file can tell apart, the frequent ones among them, and the others as near
/// to one of them as can be.
QList<QRgb> farbtafel(const QImage &bild)
{
    const QList<QRgb> farben = alleFarben(bild);
    QList<QRgb> tafel = farben;
    for (int hoechstens = 0; tafel.size() > farbenzahl; ++hoechstens) {
        tafel = vertreter(farben, hoechstens);
    }
    return tafel;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    const QStringList angaben = QCoreApplication::arguments();
    QTextStream fehler(stderr);
    if (angaben.size() != 3) {
        fehler << "usage: bild-verkleinern PICTURE SMALLER-PICTURE" << Qt::endl;
        return 2;
    }
    const QImage bild = QImage(angaben[1]).convertToFormat(QImage::Format_RGB32);
    if (bild.isNull()) {
        fehler << angaben[1] << ": no picture" << Qt::endl;
        return 1;
    }
    const QImage kleiner = bild.convertToFormat(QImage::Format_Indexed8, farbtafel(bild),
                                                Qt::ThresholdDither | Qt::AvoidDither);
    if (!kleiner.save(angaben[2], "PNG", 0)) { // 0: as small as it gets
        fehler << angaben[2] << ": can't be written" << Qt::endl;
        return 1;
    }
    return 0;
}
