#pragma once

#include "Zeichenansicht.h"

#include <QImage>
#include <QPainter>
#include <QTest>

/// The picture that a test looks at: a view drawn on a transparent ground. A test program keeps
/// one, draws into it, and saves it from its `cleanup()`, so that a failed test leaves its picture
/// behind.
class Bildprobe
{
public:
    /// Draws `ansicht` as if it had this size in logical points. Rows and columns of the picture
    /// are device pixels, `verhaeltnis` of them to a point.
    void male(const Zeichenansicht &ansicht, QSize groesse, int verhaeltnis = 1)
    {
        maleInnerhalb(ansicht, QRectF(QPointF(0, 0), groesse), groesse, verhaeltnis);
    }

    /// Draws `ansicht` into a part of a picture.
    void maleInnerhalb(const Zeichenansicht &ansicht, const QRectF &bounds, QSize groesse,
                       int verhaeltnis = 1)
    {
        m_bild = QImage(groesse * verhaeltnis, QImage::Format_ARGB32_Premultiplied);
        m_bild.setDevicePixelRatio(verhaeltnis);
        m_bild.fill(Qt::transparent);
        QPainter maler(&m_bild);
        ansicht.zeichnen(maler, bounds);
    }

    const QImage &bild() const { return m_bild; }
    QColor farbe(int x, int y) const { return m_bild.pixelColor(x, y); }
    int deckung(int x, int y) const { return m_bild.pixelColor(x, y).alpha(); }

    /// True where a rectangle of pixels was left as it was.
    bool istLeer(const QRect &pixel) const
    {
        for (int y = pixel.top(); y <= pixel.bottom(); ++y) {
            for (int x = pixel.left(); x <= pixel.right(); ++x) {
                if (deckung(x, y) != 0) {
                    return false;
                }
            }
        }
        return true;
    }
    bool istLeer() const { return istLeer(m_bild.rect()); }

    /// After a failed test: writes the picture into the current folder, named after test and row.
    void sichereNachFehler() const
    {
        if (!QTest::currentTestFailed() || m_bild.isNull()) {
            return;
        }
        const QString zeile = QString::fromUtf8(QTest::currentDataTag());
        QString name = QString::fromUtf8(QTest::currentTestFunction());
        if (!zeile.isEmpty()) {
            name += u'-' + zeile;
        }
        name = name.replace(u'/', u'-') + QStringLiteral(".png");
        if (m_bild.save(name)) {
            qInfo("The picture of the failed test is in %s", qPrintable(name));
        }
    }

private:
    QImage m_bild;
};
