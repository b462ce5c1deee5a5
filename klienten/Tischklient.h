#pragma once

#include "Hinweisstreifen.h"
#include "Kartei.h"

#include <QDate>
#include <QObject>
#include <QTimer>

#include <functional>
#include <optional>

class AnthroController;
class Planmodul;
class QSettings;

/// The doors through which the client at the desk reaches the desk.
struct Tischtueren
{
    AnthroController &rechner;
    /// The plan; with `true` it is opened where that was not done yet, otherwise it is null then.
    std::function<Planmodul *(bool oeffnen)> plan;
    std::function<void(const Hinweis &)> sage; ///< tells something in the main window
    QSettings &einstellungen;                  ///< outlive the client
    std::function<QDate()> heute = [] {
        return QDate::currentDate();
    };
};

/// The client who sits at the desk. Whoever takes a place there sets the calculator, and what is
/// measured with it becomes the visit of the day; the plan can be kept under the client and a kept
/// one brought back. Nothing on the desk is emptied when they leave. The calculator and the plan
/// know nothing of it: they are moved by what they can do anyway.
class Tischklient : public QObject
{
    Q_OBJECT

public:
    /// The cabinet and what the doors lead to outlive this object.
    Tischklient(Kartei &kartei, Tischtueren tueren);

    /// Takes a client to the desk. Whoever sat there leaves first. False when the store can't be
    /// read or has no such client.
    bool nimm(const QString &kennung);
    /// The client leaves the desk; everything stays as it is, and what is not kept yet is kept.
    void verlasse();

    /// What is kept of the client at the desk; absent while nobody sits there.
    const std::optional<Klientenakte> &akte() const { return m_akte; }
    bool ist(const QString &kennung) const;

    /// Keeps the plan as it is now under the client. Empty plans are not kept.
    void legePlanAb();
    /// Brings a kept plan to the desk. What stands there is kept first when it is not yet.
    void holePlan(const Planablage &plan);

    /// What was measured last is kept now.
    void sichere();

Q_SIGNALS:
    /// Somebody else sits at the desk now, or nobody, or they are called otherwise.
    void gewechselt();

private:
    Besuch vomRechner() const;
    void stelleRechner();
    void stelleMasse(const Besuch &letzter);
    void stelleSport(const Besuch &letzter);
    void sageUnbekanntes(const Besuch &letzter);
    void frischeAuf(const QString &kennung);
    void frageNach(const Besuch &besuch);
    QList<Planposten> postenAmTisch() const;
    bool istAbgelegt(const QList<Planposten> &posten) const;
    void merkeAbgelegtes(const QList<Planposten> &posten);
    bool bewahrePlan();

    Kartei &m_kartei;
    Tischtueren m_tueren;
    std::optional<Klientenakte> m_akte;
    Besuch m_gestellt;     ///< what the calculator said when it was last listened to
    QTimer m_pause;        ///< behind the last move of a slider
    bool m_stellt = false; ///< the calculator is being set, and not by the user
};
