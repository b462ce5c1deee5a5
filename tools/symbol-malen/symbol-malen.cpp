// Paints a drawing as a square picture of a given size, on a clear ground.

#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    const QStringList angaben = QCoreApplication::arguments();
    QTextStream fehler(stderr);
    const int groesse = angaben.size() == 4 ? angaben[2].toInt() : 0;
    if (groesse < 1 || groesse > 1024) {
        fehler << "usage: symbol-malen DRAWING.svg SIZE PICTURE.png" << Qt::endl;
        return 2;
    }
    QSvgRenderer zeichnung(angaben[1]);
    if (!zeichnung.isValid()) {
        fehler << angaben[1] << ": no drawing" << Qt::endl;
        return 1;
    }
    QImage bild(groesse, groesse, QImage::Format_ARGB32_Premultiplied);
    bild.fill(Qt::transparent);
    QPainter maler(&bild);
    maler.setRenderHint(QPainter::Antialiasing);
    zeichnung.render(&maler);
    maler.end();
    if (!bild.save(angaben[3], "PNG", 0)) { // 0: as small as it gets
        fehler << angaben[3] << ": can't be written" << Qt::endl;
        return 1;
    }
    return 0;
}
