// Makes the file of a picture smaller that shows a window: such a picture has few colours, and the
// 256 that most of it is made of are enough.

#include <QCoreApplication>
#include <QHash>
#include <QImage>
#include <QTextStream>

#include <algorithm>

namespace {

constexpr qsizetype farbenzahl = 256;

/// The colours of which the picture is made, the most frequent ones first.
QList<QRgb> haeufigsteFarben(const QImage &bild)
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
    return farben.first(std::min(farben.size(), farbenzahl));
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
    const QImage kleiner = bild.convertToFormat(QImage::Format_Indexed8, haeufigsteFarben(bild),
                                                Qt::ThresholdDither | Qt::AvoidDither);
    if (!kleiner.save(angaben[2], "PNG", 0)) { // 0: as small as it gets
        fehler << angaben[2] << ": can't be written" << Qt::endl;
        return 1;
    }
    return 0;
}
