#pragma once

#include <QProgressDialog>

/// Says over a window how many pages of a print are done, when they take long enough to ask. The
/// user can cancel it.
class Seitenanzeige
{
public:
    Seitenanzeige(const QString &titel, QWidget *worueber);

    /// So many pages are done of so many. False when the user has cancelled it.
    bool zeige(int fertig, int gesamt);
    bool abgebrochen() const { return m_fenster.wasCanceled(); }

private:
    QProgressDialog m_fenster;
};
