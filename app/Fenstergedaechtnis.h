#pragma once

#include <QObject>

class AppController;
class Einstellungen;

/// Remembers how the user has arranged the windows. Of the main window: where it stands, where the
/// line between its halves is, how wide the columns of the table were drawn, whether the profile
/// search is open, and which view is in front. Of the plan: where it stands, where the line above
/// its evaluation is and how high its rows are. Of the sheet for own foods: its size. Only what was
/// changed is kept; all else stays as the program would have it.
class Fenstergedaechtnis : public QObject
{
    Q_OBJECT

public:
    /// Both outlive it.
    Fenstergedaechtnis(AppController &controller, Einstellungen &einstellungen);

    /// Brings back what is kept, and from then on keeps every change. Called once, after the
    /// window's start-up and before it is shown.
    void beginne();

private:
    void stelleWiederHer();
    void beachteAenderungen();
    void bereitePlan();

    AppController &m_controller;
    Einstellungen &m_einstellungen;
};
