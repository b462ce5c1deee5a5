#pragma once

#include "Aufzeichnungsablage.h"
#include "Tagebuchdatei.h"

/// The records of days that belong to no client, in the file of the desk. They are read when they
/// are first asked for.
class Tagesdatei : public Aufzeichnungsablage
{
    Q_OBJECT

public:
    explicit Tagesdatei(const QString &path) : m_datei(path) {}

    QList<Aufzeichnung> alle() override;
    Aufzeichnung sichere(const Aufzeichnung &neu) override;
    bool loesche(const Aufzeichnung &aufzeichnung) override;
    bool beschreibbar() const override { return !m_datei.istGesperrt(); }
    QString wessen() const override { return {}; }

    /// Whether the last state could be kept on the disk.
    bool istGesichert() const { return m_gesichert; }
    const Tagebuchdatei &datei() const { return m_datei; }

Q_SIGNALS:
    /// The state of today can't be kept on the disk any more, or can again.
    void sicherungGewechselt();

private:
    bool schreibe(const QList<Aufzeichnung> &neue);

    Tagebuchdatei m_datei;
    QList<Aufzeichnung> m_alle;
    bool m_gelesen = false;
    bool m_gesichert = true;
};
