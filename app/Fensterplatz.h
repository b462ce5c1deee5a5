#pragma once

#include <QList>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QSize>

class QBoxLayout;
class QWidget;

/// How windows fit the screen that they are on. Sizes and places are in points of the layout, so
/// that a screen at twice the scale has half as many.
namespace Fensterplatz {

/// What the desktop puts above and beside a window, about; how much it really is shows only when
/// the window is there.
inline constexpr int titelleiste = 32;
inline constexpr int rahmen = 4;

/// Where a window opens that would like to be so large: within the part of the screen that the
/// desktop leaves free, its title bar included, and no larger than that. `ort` is where its content
/// would like to begin.
QRect imSchirm(const QRect &schirm, const QPoint &ort, const QSize &wunsch);

/// Where a window opens that stood here the last time: on the one of these screens where most of it
/// was, on the first one when that screen is gone. No screen at all leaves it where it was.
QRect wiederImSchirm(const QList<QRect> &schirme, const QRect &platz);

/// Brings a window within its screen before it is shown: no larger than it, and whole on it.
void bringeInDenSchirm(QWidget &fenster);

/// Does that for every window of the program, messages and previews included, when it is shown.
/// Lives as long as the program.
class Schirmwaechter : public QObject
{
    Q_OBJECT

public:
    Schirmwaechter();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

/// Lets the content of a window roll in both directions where the window is smaller than it: on a
/// small screen at twice the scale nothing else fits. `inhalt` lies in `anordnung`.
void lasseRollen(QBoxLayout &anordnung, QWidget &inhalt);

/// What the plan's place depends on, all but the sizes in coordinates of the screen.
struct Planlage
{
    QRect schirm;     ///< what the desktop leaves free
    QRect haupt;      ///< the main window with its frame
    QRect tabelle;    ///< the table that foods are dragged from
    QSize wunsch;     ///< how large the plan would like to be
    QSize mindestens; ///< how small it can be
};

/// Where the plan's content stands. Foods are dragged from the main window's table, so the plan
/// covers no part of it as far as there is room: it stands beside the main window; else, narrower
/// when it has to, right of the table over what else the main window shows; else at the lower edge
/// of the screen, as flat as it can be.
QRect planplatz(const Planlage &lage);

} // namespace Fensterplatz
