#pragma once

#include "Zeichenansicht.h"

#include <QImage>

#include <array>
#include <cstddef>
#include <optional>

/// One of three faces for a verdict in three steps. The pictures are the owner's; they are expected
/// to be of one size and are stretched over the whole view.
class FaceView : public Zeichenansicht
{
    Q_OBJECT

public:
    explicit FaceView(QWidget *parent = nullptr);

    /// The smiling face, for code 1. While it is absent nothing is drawn, whatever the code.
    void setImage(const QImage &bild);
    /// The neutral face, for code 2.
    void setImage2(const QImage &bild);
    /// The crying face, for code 3.
    void setImage3(const QImage &bild);
    /// Chooses the face: 1, 2 or 3; any other code draws nothing.
    void entscheidung(int code);

    const QImage &bild() const { return m_bilder[0]; }
    const QImage &bild2() const { return m_bilder[1]; }
    const QImage &bild3() const { return m_bilder[2]; }
    /// The code given last, 0 at first.
    int entscheidungszahl() const { return m_entscheidungszahl; }

    /// The part of a picture that is shown always has the first picture's size and begins at the
    /// picture's bottom left corner; where a picture is smaller than that, the rest stays empty.
    void zeichnen(QPainter &maler, const QRectF &bounds) const override;
    QString beschreibung() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    void setzeBild(std::size_t stelle, const QImage &bild);
    /// The place of the picture for the code; empty where nothing is to be drawn.
    std::optional<std::size_t> gewaehlt() const;

    std::array<QImage, 3> m_bilder; ///< smiling, neutral, crying
    int m_entscheidungszahl = 0;
};
