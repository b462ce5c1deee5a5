#pragma once

#include <QProgressDialog>

/// Says over a window how far something has come that is done piece by piece, when it takes long
/// enough to ask. The user can cancel it.
class Fortschrittsanzeige
{
public:
    /// `stand` says how far, as `seiten` does.
    Fortschrittsanzeige(const QString &titel, QString stand, QWidget *worueber);

    /// "Seite %1 von %2", in the language on screen.
    static QString seiten();

    /// So many pieces are done of so many. False when the user has cancelled it.
    bool zeige(int fertig, int gesamt);
    bool abgebrochen() const { return m_fenster.wasCanceled(); }

private:
    QProgressDialog m_fenster;
    QString m_stand;
};
