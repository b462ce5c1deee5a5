#pragma once

#include "Aufzeichnungsablage.h"

/// A place that keeps records in memory, and can be told to fail.
class Probeablage : public Aufzeichnungsablage
{
    Q_OBJECT

public:
    QList<Aufzeichnung> alle() override { return aufzeichnungen; }
    Aufzeichnung sichere(const Aufzeichnung &neu) override
    {
        Aufzeichnung eine = neu;
        ++eine.fassung;
        eine.titel = anderswo.isNull() ? eine.titel : anderswo;
        if (eine.kennung.isNull()) {
            eine.kennung = QStringLiteral("neu%1").arg(aufzeichnungen.size());
            aufzeichnungen << eine;
        }
        for (Aufzeichnung &andere : aufzeichnungen) {
            if (andere.kennung == eine.kennung) {
                andere = eine;
            }
        }
        gesichert << eine;
        Q_EMIT geaendert(); // as a store does, whoever it was
        return eine;
    }
    bool loesche(const Aufzeichnung &aufzeichnung) override
    {
        if (laesstLoeschen) {
            aufzeichnungen.removeIf(
                [&](const Aufzeichnung &eine) { return eine.kennung == aufzeichnung.kennung; });
            Q_EMIT geaendert();
        }
        return laesstLoeschen;
    }
    bool beschreibbar() const override { return laesstSchreiben; }
    QString wessen() const override { return {}; }

    QList<Aufzeichnung> aufzeichnungen;
    QList<Aufzeichnung> gesichert; ///< in the order in which they came
    QString anderswo;              ///< the title that another desk has given the record meanwhile
    bool laesstSchreiben = true;
    bool laesstLoeschen = true;
};
