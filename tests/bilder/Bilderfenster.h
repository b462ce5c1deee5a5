#pragma once

#include "Bilderrahmen.h"
#include "Bildertafel.h"
#include "Probefenster.h"
#include "Sprache.h"

/// The main window of the pictures: as large as on an ordinary screen, over the foods of the
/// pictures, in one language and in the light until a test says otherwise.
class Bilderfenster
{
public:
    enum class Eigene { Ohne, Mit };

    /// "de" or "en"; without foods of the user's own it is as after the first start.
    explicit Bilderfenster(const QString &sprache = QStringLiteral("de"),
                           Eigene eigene = Eigene::Mit);
    ~Bilderfenster();

    AppController *operator->() const { return &m_fenster->controller(); }
    AppController &controller() const { return m_fenster->controller(); }
    AnthroController &rechner() const { return m_fenster->rechner(); }
    Oberflaeche &oberflaeche() const { return m_fenster->oberflaeche(); }
    Planmodul &plan() const { return *controller().planmodul; }
    Probeheim &heim() { return m_heim; }

    /// The door that prints; nothing does while there is none.
    Drucktuer drucke;

    /// Chooses a built-in food as a click on its name does.
    void waehle(const QString &name) const;
    /// Types a word into the search box, and Return.
    void suche(const QString &wort) const { m_fenster->suche(wort); }
    /// Fills both pages of the calculator in for a client.
    void rechne() const;
    /// Opens the plan, as large as the main window.
    void oeffnePlan() const;
    /// Opens the plan, and plans a day in it.
    void plane() const;

    /// Compares what the main window looks like.
    void pruefe(const QString &name) const;

private:
    Probeheim m_heim;
    Sprache m_sprache;
    std::unique_ptr<Probefenster> m_fenster;
};
