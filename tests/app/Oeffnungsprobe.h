#pragma once

#include "Archivbau.h"
#include "Archivdatei.h"
#include "Dateifenster.h"
#include "Probefenster.h"
#include "Uebernahme.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>

/// A main window with two own foods, "Eintopf" with 60 kcal and "Müsli" with 350, and files that
/// are opened in it.
class Oeffnungsprobe
{
public:
    Oeffnungsprobe() { starte(); }

    /// Starts the program anew, with the doors that the home has now.
    void starte();

    Probeheim heim;

    /// Puts a file beside the home's own and gives its path.
    QString lege(const QString &name, const QByteArray &bytes) const;
    QString lege(const QString &name, const QList<Datenmodul> &lebensmittel) const
    {
        return lege(name, Archiver::write(verzeichnis(lebensmittel)));
    }
    void oeffne(const QStringList &pfade) { m_fenster->oberflaeche().empfang.oeffne(pfade); }

    /// The window that shows a file; null while there is none.
    Dateifenster *fenster() const { return haupt().findChild<Dateifenster *>(); }
    template <typename Teil>
    Teil &teil(const char *name) const
    {
        return *fenster()->findChild<Teil *>(QLatin1String(name));
    }
    QString worte(const char *name) const { return teil<QLabel>(name).text(); }
    void druecke(const char *name) const
    {
        QTest::mouseClick(&teil<QPushButton>(name), Qt::LeftButton);
    }
    /// Chooses with the keyboard what becomes of the chosen food.
    void entscheide(Namensgleich was) const;
    /// Closes the window without taking anything over.
    void schliesse() const;

    Probefenster &probefenster() const { return *m_fenster; }
    QMainWindow &haupt() const { return *controller().Hauptfenster; }
    AppController &controller() const { return m_fenster->controller(); }
    /// What the file of the own foods holds.
    Lebensmittelverzeichnis datei() const
    {
        return Archivdatei::lesen(heim.eigeneDatei()).archiv.verzeichnis;
    }
    /// The newest notice.
    QString hinweis() const { return controller().hinweise->hinweise().value(0).text; }

private:
    std::unique_ptr<Probefenster> m_fenster;
};

inline const QString eintopf = QStringLiteral("Eintopf");
inline const QString muesli = QStringLiteral("Müsli");
inline const QString suppe = QStringLiteral("Suppe");

/// A row of a plan as its file holds it.
Datenmodul ration(const QString &name, float gramm);
