#pragma once

#include "Mahlzeitenbild.h"
#include "Wertungszahlen.h"

#include <QWidget>

/// What a day comes to at a glance: the energy of its meals and its counted ratings, beside one
/// another where there is room, else one below the other.
class Tagesbilder : public QWidget
{
    Q_OBJECT

public:
    explicit Tagesbilder(QWidget *parent = nullptr);

    void zeige(const Aufzeichnung &aufzeichnung, int tag, const Tagesrechnung &rechnung,
               const Tagesrechnung &mittel);

    Mahlzeitenbild *const mahlzeiten;
    Wertungszahlen *const wertungszahlen;

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int breite) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QSize bedarf(bool nebeneinander) const;
    bool passtNebeneinander(int breite) const;
    void ordne();
};
