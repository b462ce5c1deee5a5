#pragma once

#include "Probefenster.h"
#include "Sprache.h"

#include <functional>

/// All windows of the program, one after the other, in one language: the main window with each of
/// its tabs, with the box for saving and with the profile, the sheet for own foods, the plan, the
/// former states, the settings, a file that is opened, what goes out and comes in as a table, the
/// palette of the toolbar, the one about the program, the question before a print, the window of
/// the days with those that it opens, the insight with each of its sheets and what folds out there,
/// the ranking, and a recipe.
class Fensterrunde
{
public:
    /// "de" or "en". There are five foods, one own food, and a plan of three rows.
    explicit Fensterrunde(const QString &sprache);

    /// Shows each window and runs `besuch` with it and with what to call it.
    void gehe(const std::function<void(const QString &name, QWidget &fenster)> &besuch);

    Probefenster &fenster() { return *m_fenster; }
    Probeheim &heim() { return m_heim; }

private:
    using Besuch = std::function<void(const QString &name, QWidget &fenster)>;
    void geheDurchsHauptfenster(const Besuch &besuch);
    void geheDurchDieTage(const Besuch &besuch);
    void geheDurchDenEinblick(const Besuch &besuch);
    void geheDurchDieRangliste(const Besuch &besuch);
    void geheDurchDasRezept(const Besuch &besuch);
    void schreibeTabellendatei() const;
    void oeffne(const char *klasse, const QString &name, const std::function<void()> &oeffner,
                const Besuch &besuch);

    Probeheim m_heim;
    Sprache m_sprache;
    std::unique_ptr<Probefenster> m_fenster;
};

/// A child of a window that Qt has made for itself: scroll bars, the arrows of tabs, buttons in
/// fields.
bool istVonQt(const QWidget &widget);

/// A widget in words: its class and name.
QString bezeichne(const QWidget &widget);
