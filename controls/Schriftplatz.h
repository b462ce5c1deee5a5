#pragma once

#include <QObject>
#include <QSize>

class QWidget;

/// The fixed sizes of a window's description are meant for letters of the usual size. Where larger
/// letters, or longer words, need more room than that, the part gets it.
class Schriftplatz : public QObject
{
    Q_OBJECT

public:
    /// Looks after every part of the window whose size is limited, from now on.
    static void gib(QWidget &fenster);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit Schriftplatz(QWidget *feld);
    void stelle();

    QWidget *m_feld;
    const QSize m_mindestens;
    const QSize m_hoechstens;
};
