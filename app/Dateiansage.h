#pragma once

#include "Dateihueter.h"
#include "Datenordner.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

class AppController;
class Einstellungen;
class Hinweisstreifen;

/// Tells the user what becomes of their files, without asking for an answer: what could not be read
/// or written, what was put aside, and when the file of the own foods came to hold others than the
/// main window does. Brings earlier states of own foods and plan back.
class Dateiansage : public QObject
{
    Q_OBJECT

public:
    /// Nothing is told before `beginne`. The controller outlives this object.
    Dateiansage(AppController &controller, const Datenordner &ordner,
                std::shared_ptr<Dateihueter> dateien);

    /// Tells what is known from the start, and listens from now on.
    void beginne();

    /// Tells when these settings can't be kept.
    void beachte(const Einstellungen &einstellungen);

    /// Opens the window with the copies of own foods and plan, those of this file in front.
    void zeigeFruehereStaende(const QString &path = {});

private:
    QString pfad(const QString &name) const { return m_ordner.pathForDataFile(name); }
    Hinweisstreifen &streifenFuer(const QString &path) const;
    Hinweisstreifen *streifenDesPlans() const;
    void zeige(const Dateimeldung &meldung);
    void zeigeUngeloestes();
    void fuehreAus(const Dateimeldung &meldung);
    void nimmErledigtesZurueck(const QString &path);
    void sichereNochmals(const QString &path);

    void merkeGeschriebenes(const QString &path, const Lebensmittelverzeichnis &inhalt);
    void vergleiche();
    void setzeEigene(const Lebensmittelverzeichnis &eigene, const QStringList &namen);

    void holeEigeneZurueck(const Lebensmittelverzeichnis &stand);
    void holePlanZurueck(const Lebensmittelverzeichnis &stand);
    void meldeZurueckgeholtes(const QString &path, const Lebensmittelverzeichnis &stand,
                              const std::function<void()> &rueckgaengig);
    void nimmZurueckgeholtesZurueck();

    AppController &m_controller;
    Datenordner m_ordner;
    std::shared_ptr<Dateihueter> m_dateien;

    /// What the file of the own foods was last written with; absent: it is compared already.
    std::optional<Lebensmittelverzeichnis> m_geschriebeneEigene;

    /// The earlier state that was brought back last; taking that back is offered until the file
    /// holds another one.
    struct Zurueckgeholtes
    {
        QString path;
        Lebensmittelverzeichnis stand;
    };
    std::optional<Zurueckgeholtes> m_zurueckgeholt;
};
