#pragma once

#include <QPointer>
#include <QSplitter>

/// Two parts of a window with a line between them, which is moved with the mouse or, after
/// `bewege`, with the arrow keys. It is no stop of the Tab key: one seldom wants there.
class Teiler : public QSplitter
{
    Q_OBJECT

public:
    using QSplitter::QSplitter;

    /// Gives the keyboard to the first line and says how it is moved: arrow keys by a step, Home
    /// and End as far as the parts allow. Return and Esc give it back to where it was.
    void bewege();

protected:
    QSplitterHandle *createHandle() override;

private:
    class Griff;

    QPointer<QWidget> m_vorher; ///< what had the keyboard
};
