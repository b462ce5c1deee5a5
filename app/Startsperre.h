#pragma once

#include "Dateisperre.h"

#include <QTimer>

/// Tells a program that it is the only one at work on a user's files: two at once would overwrite
/// each other's foods and plans. The sign is a file beside them, which goes with this object. A
/// sign that a program left when it was killed counts for nothing.
class Startsperre
{
public:
    /// `ordner` is the folder of the user's files.
    explicit Startsperre(const QString &ordner);

    /// Whether another program is at work there. Where no sign can be left there is none to be
    /// seen, so the answer is no. As soon as the other one has ended, the sign passes to this one,
    /// so that a third notices it.
    bool besetzt() const { return m_besetzt; }

private:
    void sieNach();

    Dateisperre m_zeichen;
    bool m_besetzt;
    QTimer m_wieder; ///< looks after the other program while there is one
};
