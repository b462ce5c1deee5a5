#pragma once

#include "Aufzeichnungsablage.h"
#include "Kartei.h"

/// The records of days of one client, in the cabinet.
class Klientenaufzeichnungen : public Aufzeichnungsablage
{
    Q_OBJECT

public:
    /// The cabinet outlives this object. `person` is the client's key.
    Klientenaufzeichnungen(Kartei &kartei, QString person);

    QList<Aufzeichnung> alle() override;
    /// What the store does not take now waits there, as all that is typed of a client does.
    Aufzeichnung sichere(const Aufzeichnung &neu) override;
    bool loesche(const Aufzeichnung &aufzeichnung) override;
    bool beschreibbar() const override { return m_kartei.beschreibbar(); }
    QString wessen() const override { return m_name; }

    const QString &person() const { return m_person; }

private:
    void liesNamen();

    Kartei &m_kartei;
    QString m_person;
    QString m_name;
};
