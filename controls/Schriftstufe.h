#pragma once

#include <QObject>

class QWidget;

/// The four steps of type in a window: what is larger or smaller than the text stays so in
/// proportion when the user sets the size of the text.
class Schriftstufe : public QObject
{
    Q_OBJECT

public:
    /// Gives every part of the window its step, as its property "schriftstufe" says: "klein",
    /// "ueberschrift" or "titel". A part without one is text.
    static void kleide(QWidget &fenster);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Stufe;
    Schriftstufe(QWidget *feld, const Stufe &stufe);
    void setze();

    QWidget *m_feld;
    const Stufe &m_stufe;
};
