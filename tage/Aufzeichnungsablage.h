#pragma once

#include "Aufzeichnung.h"

#include <QList>
#include <QObject>

/// Where records of days are kept: under the client at the desk, or in a file of the desk.
class Aufzeichnungsablage : public QObject
{
    Q_OBJECT

public:
    /// All that are kept here, the newest last.
    virtual QList<Aufzeichnung> alle() = 0;
    /// Keeps a record as it is now. A new one gets its key. What was made of it, as it is to be
    /// gone on with: its count of writes has gone up.
    virtual Aufzeichnung sichere(const Aufzeichnung &neu) = 0;
    /// Takes a record away. False when that failed, and then it is still there.
    virtual bool loesche(const Aufzeichnung &aufzeichnung) = 0;
    /// Whether anything can be kept here now.
    virtual bool beschreibbar() const = 0;
    /// Whose records these are; empty while nobody sits at the desk.
    virtual QString wessen() const = 0;

Q_SIGNALS:
    /// Other records are kept here now, or one of them was changed elsewhere.
    void geaendert();
};
