#pragma once

#include <QDialog>

class Werkzeugleiste;

/// The palette from which the toolbar is arranged: every allowed item as a tile to be dragged into
/// the bar (or put there with Return), the default set as one piece, and the way items are shown.
/// Nothing has to be confirmed: what is dropped is kept.
class Anpassungspalette : public QDialog
{
    Q_OBJECT

public:
    Anpassungspalette(Werkzeugleiste &leiste, QWidget *parent);

private:
    void erlaubeWechsel();
    QWidget *kacheln();
    QWidget *standardsatz();
    QWidget *fusszeile();

    Werkzeugleiste &m_leiste;
};
