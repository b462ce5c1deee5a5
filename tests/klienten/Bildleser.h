#pragma once

#include <QColor>
#include <QHash>
#include <QImage>
#include <QList>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <algorithm>
#include <cmath>

// What tests see of a picture: its texts with their places, its marks, and its colours.

/// A text with its place.
struct Textstelle
{
    QString text;
    QRectF platz;
};

/// Takes note of the texts that are painted, and of nothing else.
class Textspion : public QPaintEngine
{
public:
    Textspion() : QPaintEngine(AllFeatures) {}
    bool begin(QPaintDevice * /*blatt*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState & /*stand*/) override {}
    void drawPixmap(const QRectF & /*ziel*/, const QPixmap & /*bild*/,
                    const QRectF & /*teil*/) override
    {
    }
    void drawPath(const QPainterPath & /*weg*/) override {}
    void drawPolygon(const QPointF * /*ecken*/, int /*anzahl*/, PolygonDrawMode /*art*/) override {}
    void drawTextItem(const QPointF &ort, const QTextItem &text) override
    {
        texte.append({text.text(), QRectF(ort.x(), ort.y() - text.ascent(), text.width(),
                                          text.ascent() + text.descent())});
    }
    Type type() const override { return User; }

    QList<Textstelle> texte;
};

class Spionblatt : public QPaintDevice
{
public:
    Spionblatt(QSize groesse, int aufloesung) : m_groesse(groesse), m_aufloesung(aufloesung) {}
    QPaintEngine *paintEngine() const override { return &m_spion; }
    const QList<Textstelle> &texte() const { return m_spion.texte; }

protected:
    int metric(PaintDeviceMetric was) const override
    {
        switch (was) {
        case PdmWidth:
            return m_groesse.width();
        case PdmHeight:
            return m_groesse.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return m_aufloesung;
        case PdmDevicePixelRatioScaled:
            return QPaintDevice::metric(was);
        default:
            return 1;
        }
    }

private:
    QSize m_groesse;
    int m_aufloesung;
    mutable Textspion m_spion;
};

/// Where nothing thinner than a mark is black: the middles of the marks, from left to right.
inline QList<QPointF> marken(const QImage &bild)
{
    constexpr int rand = 2; // nothing in letters and lines holds a disc of five pixels
    constexpr int radiusquadrat = 5;
    const auto voll = [&bild](int x, int y) {
        for (int dy = -rand; dy <= rand; ++dy) {
            for (int dx = -rand; dx <= rand; ++dx) {
                if (dx * dx + dy * dy <= radiusquadrat && qGray(bild.pixel(x + dx, y + dy)) > 60) {
                    return false;
                }
            }
        }
        return true;
    };
    QList<QRect> flecken;
    for (int x = rand; x < bild.width() - rand; ++x) {
        for (int y = rand; y < bild.height() - rand; ++y) {
            if (!voll(x, y)) {
                continue;
            }
            const auto nahe =
                std::find_if(flecken.begin(), flecken.end(), [x, y](const QRect &fleck) {
                    return fleck.adjusted(-3, -3, 3, 3).contains(x, y);
                });
            if (nahe == flecken.end()) {
                flecken << QRect(x, y, 1, 1);
            } else {
                *nahe |= QRect(x, y, 1, 1);
            }
        }
    }
    QList<QPointF> mitten;
    for (const QRect &fleck : std::as_const(flecken)) {
        mitten << QRectF(fleck).center();
    }
    return mitten;
}

/// The rows of a column that have a colour.
inline QList<int> zeilenMit(const QImage &bild, int x, const QColor &farbe)
{
    QList<int> zeilen;
    for (int y = 0; y < bild.height(); ++y) {
        if (bild.pixelColor(x, y) == farbe) {
            zeilen << y;
        }
    }
    return zeilen;
}

/// Black on white is 21, no difference is 1.
inline double kontrast(const QColor &eine, const QColor &andere)
{
    const auto helligkeit = [](const QColor &farbe) {
        const auto linear = [](double anteil) {
            return anteil <= 0.04045 ? anteil / 12.92 : std::pow((anteil + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(farbe.redF()) + 0.7152 * linear(farbe.greenF()) +
               0.0722 * linear(farbe.blueF());
    };
    const auto [dunkle, helle] = std::minmax({helligkeit(eine), helligkeit(andere)});
    return (helle + 0.05) / (dunkle + 0.05);
}

/// The colour of most pixels besides the ground, which is that of the lower left corner: of a
/// picture with a band the band's.
inline QColor haeufigsteFarbe(const QImage &bild)
{
    QHash<QRgb, int> anzahl;
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            ++anzahl[bild.pixel(x, y)];
        }
    }
    anzahl.remove(bild.pixel(0, bild.height() - 1));
    const auto meiste = std::max_element(anzahl.begin(), anzahl.end());
    return QColor::fromRgb(meiste.key());
}
