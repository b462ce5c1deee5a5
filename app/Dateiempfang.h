#pragma once

#include "Dateituer.h"
#include "Datenordner.h"
#include "Lebensmitteldatei.h"
#include "Meldung.h"
#include "Uebernahme.h"

#include <QList>
#include <QObject>
#include <QStringList>
#include <QUrl>

#include <memory>

class AppController;
class Dateihueter;

/// Receives the ".daten" files that the user opens, from the menu, the command line, the file
/// manager or with the mouse: shows what each holds, one after the other, and takes over what the
/// user wants of it. While another window asks something, they wait.
class Dateiempfang : public QObject
{
    Q_OBJECT

public:
    /// The controller outlives this object.
    Dateiempfang(AppController &controller, const Datenordner &ordner,
                 std::shared_ptr<Dateihueter> dateien, Meldungstuer melde, Dateituer frage);

    /// Asks for files and opens them.
    void frageNachDateien();
    /// Opens these files. What can't be opened is told at once, for all of them together.
    void oeffne(const QStringList &pfade);
    /// The same for what was dropped, which may lie somewhere else than on this machine.
    void oeffneAdressen(const QList<QUrl> &adressen);

private:
    void empfange(const QStringList &pfade, QStringList hindernisse);
    void sageHindernisse(const QStringList &hindernisse);
    void zeigeNaechste();
    void uebernimm(const QString &dateiname, const QList<Datenmodul> &lebensmittel,
                   const Namenswahl &wahl);
    void meldeUebernommenes(const QString &dateiname, const Uebernahme &was);
    bool istGesichert() const;
    QString pfad(const QString &name) const { return m_ordner.pathForDataFile(name); }

    AppController &m_controller;
    Datenordner m_ordner;
    std::shared_ptr<Dateihueter> m_dateien;
    Meldungstuer m_melde;
    Dateituer m_frage;
    QString m_zuletzt; ///< folder of the file that was opened last; empty before the first
    QList<Lebensmitteldatei> m_wartende;
    bool m_zeigt = false; ///< a file is shown, and the others wait
};
