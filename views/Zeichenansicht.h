#pragma once

#include <QString>
#include <QWidget>

class QPainter;

/// A view that holds a few values and draws them. Giving it a value only stores it and asks for a
/// repaint, so that an action may set it a thousand times before the next frame. Where nothing is
/// drawn the parent's background shows; in a dark window that is a light card for those views that
/// draw in black and pure blue.
class Zeichenansicht : public QWidget
{
    Q_OBJECT

public:
    /// Draws the view as if it filled `bounds`; the painter comes back as it was. Screen, picture
    /// and paper all go through here.
    virtual void zeichnen(QPainter &maler, const QRectF &bounds) const = 0;

    /// What the view shows, in a few words of the user's language, for those who can't see it. An
    /// assistive tool gets it as the view's description, asked for when it is wanted, unless the
    /// view was given a description of its own.
    virtual QString beschreibung() const = 0;

protected:
    explicit Zeichenansicht(QWidget *parent);

    /// True while the view shows something that can't be told from a dark ground. It then lies on
    /// a light card in a dark window; pictures and paper have none.
    virtual bool brauchtHellenGrund() const { return false; }

    void paintEvent(QPaintEvent *event) override;
};
