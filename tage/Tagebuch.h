#pragma once

#include "Aufzeichnungsablage.h"

#include <QTimer>
#include <QUndoStack>

#include <functional>
#include <optional>

/// The records of days that are at hand, and the one that is worked at. Whatever is changed can be
/// taken back, and is kept as soon as it stands on the screen: a place that is slow must not hold
/// up the picture.
class Tagebuch : public QObject
{
    Q_OBJECT

public:
    /// What is done to a record; false: nothing was.
    using Tat = std::function<bool(Aufzeichnung &)>;

    /// The place outlives this object, or `setzeAblage` is called before it goes.
    explicit Tagebuch(Aufzeichnungsablage &ablage);
    ~Tagebuch() override;

    /// Other records from now on; what was done to those before can't be taken back any more.
    void setzeAblage(Aufzeichnungsablage &ablage);
    Aufzeichnungsablage &ablage() const { return *m_ablage; }

    const QList<Aufzeichnung> &alle() const { return m_alle; }
    /// The record that is worked at; absent while there is none.
    std::optional<Aufzeichnung> jetzige() const;
    /// Its place among all; −1 while there is none.
    int stelle() const { return m_stelle; }
    void waehle(int stelle);

    /// Whether the record can be changed: it is not of a newer version, and its place takes it.
    bool aenderbar() const;

    /// The day on display, counted from 0.
    int tag() const { return m_tag; }
    void waehleTag(int tag);

    /// Begins a record, which is worked at from now on.
    void beginne(const Aufzeichnung &neue);
    /// Takes the record away. It can't be taken back; who calls this has asked.
    bool loesche();
    /// Changes the record, keeps it and remembers how it was. `was` says in a few words what was
    /// done, for "Rückgängig: …". Changes of one `feld` that follow each other are one step: each
    /// letter that is typed is kept, but nobody takes back single letters. False: nothing was
    /// changed.
    bool aendere(const QString &was, const Tat &tat, const QString &feld = {});

    /// Keeps now what was changed and is not kept yet.
    void sichere();

    QUndoStack schritte; ///< of the record that is worked at

Q_SIGNALS:
    /// Another record is worked at, or none, or there are others to choose from.
    void gewechselt();
    /// The record says something else now.
    void geaendert();
    /// Another day is on display.
    void tagGewechselt();

private:
    class Schritt;

    void liesNeu();
    void stelleHer(const Aufzeichnung &stand);

    Aufzeichnungsablage *m_ablage;
    QList<Aufzeichnung> m_alle;
    int m_stelle = -1;
    int m_tag = 0;
    QTimer m_pause;         ///< until what was changed is kept
    bool m_offen = false;   ///< the record that is worked at is not kept as it is now
    bool m_sichert = false; ///< what the place tells now comes from here
};
