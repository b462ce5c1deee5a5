#pragma once

#include "Befehle.h"

#include <QJsonObject>
#include <QTemporaryDir>

#include <memory>

using Werte = QList<std::pair<Naehrwert, float>>;

Datenmodul speise(const QString &name, const Werte &werte = {}, const QStringList &urteile = {});

/// What an answer holds that is in JSON.
QJsonObject objekt(const Antwort &antwort);

/// A folder with a table of four foods, to which own foods and a plan can be put, and the commands
/// that read them.
class Befehlsprobe
{
protected:
    void richteEin();
    QString pfad(const QString &name) const { return m_ordner->filePath(name); }
    void schreibe(const QString &name, const QList<Datenmodul> &lebensmittel) const;
    void schreibePlan(const QList<std::pair<QString, float>> &zeilen) const;
    void schreibeRoh(const QString &name, const QByteArray &bytes) const;
    Antwort schlageNach(const QString &name, float gramm = 100, bool eigenes = false,
                        Ausgabeform form = Ausgabeform::Json) const;
    Antwort werteAus(Ausgabeform form, std::int32_t energie = 0,
                     const QString &datei = QStringLiteral("Plan.daten")) const;
    Antwort frage(Aufruf aufruf) const;

private:
    std::unique_ptr<QTemporaryDir> m_ordner;
};
