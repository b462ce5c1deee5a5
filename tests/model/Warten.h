#pragma once

#include <QElapsedTimer>
#include <QThread>

/// Waits for a moment of a clock, in ns: asleep as long as that is exact enough, then awake. Who
/// oversleeps kills nobody any more.
inline void warteBis(const QElapsedTimer &uhr, quint64 moment)
{
    constexpr quint64 unruhe = 500'000; // ns that a sleep may take longer
    if (moment > unruhe) {
        QThread::usleep((moment - unruhe) / 1000);
    }
    while (static_cast<quint64>(uhr.nsecsElapsed()) < moment) {
    }
}
