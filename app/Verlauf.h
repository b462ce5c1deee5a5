#pragma once

#include "Aenderung.h"
#include "Datenmodul.h"
#include "Planliste.h"

#include <QObject>
#include <QStringList>
#include <QUndoStack>

#include <optional>

class AppController;
class Hinweisstreifen;

/// What the user has changed in own foods and plan since the program was started, so that it can be
/// taken back and repeated, the files following. There is one line of changes for both windows:
/// deleting an own food takes a row out of the plan, and both come back together.
class Verlauf : public QObject
{
    Q_OBJECT

public:
    /// The controller outlives this object.
    explicit Verlauf(AppController &controller);

    /// Remembers from now on; what stands there now is where taking back ends.
    void beginne();

Q_SIGNALS:
    /// A step was taken back or repeated, which is told by nothing else.
    void gestellt();

private:
    class Schritt;

    /// Everything that a change may concern. The lists share their data with those on the desk.
    struct Stand
    {
        Lebensmittelverzeichnis eigene;
        QStringList namen;
        std::optional<Planliste> plan; ///< absent before the plan was opened
    };

    Stand jetzt() const;
    static bool planGleich(const Stand &einer, const Stand &anderer);
    static bool eigeneGleich(const Stand &einer, const Stand &anderer);

    void hoerePlan();
    void merke(const Aenderung &was);
    void stelle(const Stand &von, const Stand &nach);
    void zeigeGeaenderte(const Stand &von, const Stand &nach);
    void nimmZurueck();
    void wiederhole();
    void sage(const QString &text, const QString &knopf, const std::function<void()> &aktion);
    void nimmHinweiseZurueck();
    void beschrifte();

    AppController &m_controller;
    QUndoStack m_schritte;
    Stand m_stand;         ///< after the last change
    bool m_stellt = false; ///< what changes now is a step taken back or repeated
};
