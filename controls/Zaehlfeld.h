#pragma once

#include "Textfarbe.h"
#include "Wertehalter.h"

#include <QLabel>

/// Shows a count whose first digit can stand out, in a colour and size of its own.
class Zaehlfeld : public QLabel, public Wertehalter
{
    Q_OBJECT

public:
    explicit Zaehlfeld(QWidget *parent = nullptr);

    /// How the first character of whatever is shown is written, from now on: its colour, and its
    /// size in points of the field's font.
    void setAnfang(Textfarbe farbe, int punkte);

    Textfarbe anfangsfarbe() const { return m_farbe; }
    /// 0 until it was set: as large as the rest.
    int anfangspunkte() const { return m_punkte; }

protected:
    void wertGesetzt() override;
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void zeigen();

    Textfarbe m_farbe = Textfarbe::Standard;
    int m_punkte = 0;
    bool m_veraltet = false; ///< the shown text is older than the held value or its looks
};
