#pragma once

#include <QPointer>
#include <QScrollArea>
#include <QSplitter>

/// Two parts of a window with a line between them, which is moved with the mouse or, after
/// `bewege`, with the arrow keys. It is no stop of the Tab key: one seldom wants there.
class Teiler : public QSplitter
{
    Q_OBJECT

public:
    explicit Teiler(QWidget *parent = nullptr);
    explicit Teiler(Qt::Orientation richtung, QWidget *parent = nullptr);

    /// Gives the keyboard to the first line and says how it is moved: arrow keys by a step, Home
    /// and End as far as the parts allow. Return and Esc give it back to where it was.
    void bewege();

    /// The second part rolls and stands below the first. Until the user has chosen a place for the
    /// line, it is as high as its page, but never higher than the first one.
    void goenneUnten(QScrollArea &unten);
    /// Puts the line where the user once wanted it: the second part gets so many pixels of all.
    void teileWieder(int ganz, int zweiter);

protected:
    void resizeEvent(QResizeEvent *event) override;
    QSplitterHandle *createHandle() override;

private:
    class Griff;

    void gibSeinen();

    QPointer<QWidget> m_vorher;    ///< what had the keyboard
    QPointer<QScrollArea> m_unten; ///< the part that gets what it needs
    bool m_gewaehlt = false;       ///< the user has said where the line stands
};
