#pragma once

#include "Probefenster.h"

#include <QObject>
#include <QStringList>

#include <memory>

inline const QString a = QStringLiteral("A");
inline const QString b = QStringLiteral("B");
inline const QString c = QStringLiteral("C");
inline const QString d = QStringLiteral("D");
inline const QString brei = QStringLiteral("brei");

/// A program with four foods and one own food, and the hands of a user who changes own foods and
/// plan, takes that back and repeats it.
class Verlaufsprobe : public QObject
{
    Q_OBJECT

public:
    /// A, B and C with 100 g each, the plan's window in front.
    void oeffnePlan() const;
    /// The key that takes back in the plan's window; with Shift, the one that repeats.
    void imPlan(Qt::KeyboardModifiers dazu = {}) const;
    /// The same in the main window.
    void imHauptfenster(Qt::KeyboardModifiers dazu = {}) const;
    void sichere(const QString &name, const QString &energie) const;
    void wirfAb(const QString &name, int zeile) const;
    /// What the plan holds: QStringLiteral("A 100").
    QStringList zeilen() const;
    /// The same from the file, which knows no order.
    QStringList planInDerDatei() const;
    QStringList eigeneInDerDatei() const;
    /// The newest notice of the window in front.
    QString hinweis() const;
    QString plandatei() const;
    AppController &controller() const { return m_fenster->controller(); }
    Planmodul &plan() const { return *controller().planmodul; }

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};
