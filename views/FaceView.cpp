#include "FaceView.h"

#include <QCoreApplication>
#include <QPainter>

namespace {

/// Keys into the string table, in the order of the pictures.
constexpr std::array<const char *, 3> namen = {
    QT_TRANSLATE_NOOP("Mahlberg", "lächelndes Gesicht"),
    QT_TRANSLATE_NOOP("Mahlberg", "neutrales Gesicht"),
    QT_TRANSLATE_NOOP("Mahlberg", "weinendes Gesicht"),
};

/// The part of `bild` that has this size and begins at the bottom left corner; what the picture
/// lacks of it is transparent.
QImage ausschnitt(const QImage &bild, QSize groesse)
{
    if (bild.size() == groesse) {
        return bild;
    }
    const QPoint links(0, bild.height() - groesse.height());
    return bild.convertToFormat(QImage::Format_ARGB32_Premultiplied).copy({links, groesse});
}

} // namespace

FaceView::FaceView(QWidget *parent) : Zeichenansicht(parent) {}

void FaceView::setzeBild(std::size_t stelle, const QImage &bild)
{
    m_bilder[stelle] = bild;
    update();
}

void FaceView::setImage(const QImage &bild)
{
    setzeBild(0, bild);
}

void FaceView::setImage2(const QImage &bild)
{
    setzeBild(1, bild);
}

void FaceView::setImage3(const QImage &bild)
{
    setzeBild(2, bild);
}

void FaceView::entscheidung(int code)
{
    m_entscheidungszahl = code;
    update();
}

std::optional<std::size_t> FaceView::gewaehlt() const
{
    if (m_entscheidungszahl < 1 || m_entscheidungszahl > 3) {
        return {};
    }
    const auto stelle = static_cast<std::size_t>(m_entscheidungszahl - 1);
    if (bild().isNull() || m_bilder[stelle].isNull()) {
        return {};
    }
    return stelle;
}

void FaceView::zeichnen(QPainter &maler, const QRectF &bounds) const
{
    const auto stelle = gewaehlt();
    if (!stelle) {
        return;
    }
    QImage gesicht = ausschnitt(m_bilder[*stelle], bild().size());
    // The painter looks at four neighbouring pixels only, which frays a picture made much smaller.
    const QSize ziel = maler.deviceTransform().mapRect(bounds).size().toSize();
    if (!ziel.isEmpty() && ziel.width() < gesicht.width() && ziel.height() < gesicht.height()) {
        gesicht = gesicht.scaled(ziel, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    maler.save();
    maler.setRenderHint(QPainter::SmoothPixmapTransform);
    maler.drawImage(bounds, gesicht);
    maler.restore();
}

QString FaceView::beschreibung() const
{
    const auto stelle = gewaehlt();
    return QCoreApplication::translate(
        "Mahlberg", stelle ? namen[*stelle] : QT_TRANSLATE_NOOP("Mahlberg", "kein Gesicht"));
}

QSize FaceView::sizeHint() const
{
    return {64, 64};
}

QSize FaceView::minimumSizeHint() const
{
    return {24, 24};
}
