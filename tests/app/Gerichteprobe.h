#pragma once

#include "Klientenprobe.h"
#include "Zutatenliste.h"

/// A program with lentils, carrots, water and an own broth, of which dishes are made.
class Gerichteprobe
{
protected:
    void richteEin(const QList<Datenmodul> &weitere = {})
    {
        using namespace Qt::StringLiterals;
        m_heim = std::make_unique<Probeheim>();
        m_heim->schreibeTabelle(
            verzeichnis(QList<Datenmodul>{lebensmittel(u"-"_s),
                                          lebensmittel(u"Linsen"_s, {{Naehrwert::kal, 120}}),
                                          lebensmittel(u"Möhren"_s, {{Naehrwert::kal, 40}}),
                                          lebensmittel(u"Wasser"_s, {{Naehrwert::na, 1}})} +
                        weitere));
        m_heim->schreibeEigene(verzeichnis({lebensmittel(u"Brühe"_s, {{Naehrwert::kal, 40}})}));
    }
    void raeumeAuf()
    {
        m_probe.reset();
        m_heim.reset();
    }
    void oeffne() { m_probe = std::make_unique<Klientenprobe>(*m_heim); }

    Probefenster &programm() const { return m_probe->programm(); }
    Rezeptanschluss &anschluss() const { return programm().oberflaeche().einblick.rezepte; }
    Tageanschluss &tage() const { return programm().oberflaeche().tage; }
    Planmodul &plan() const { return programm()->holePlan(); }

    /// A file that lies beside that of the own foods.
    QString pfad(const QString &name) const
    {
        return QFileInfo(m_heim->eigeneDatei()).dir().filePath(name);
    }
    static QAction *eintrag(const QWidget *fenster)
    {
        return fenster->findChild<QAction *>(QStringLiteral("aktionRezept"));
    }
    template <typename Teil>
    Teil *teil(const QString &name) const
    {
        return anschluss().offenes()->findChild<Teil *>(name);
    }
    /// The ingredients in the open window, with the grams of each.
    QStringList zutaten() const
    {
        QStringList alle;
        for (const Rezeptzutat &eine : teil<Zutatenliste>({})->zutaten()) {
            alle << QStringLiteral("%1 %2").arg(eine.schluessel).arg(eine.gramm);
        }
        return alle;
    }
    /// Names the dish in the open window, with so many portions, and keeps it.
    void sichereAls(const QString &name, const QString &portionen = {}) const
    {
        auto *feld = teil<QLineEdit>(QStringLiteral("rezeptname"));
        QVERIFY(feld != nullptr);
        feld->setText(name);
        teil<QLineEdit>(QStringLiteral("portionen"))->setText(portionen);
        anschluss().offenes()->sichere();
        ruhe();
    }
    /// Saves the broth with these values, as the sheet for own foods does.
    void setzeBruehe(const Wertliste &werte) const
    {
        Lebensmittelverzeichnis eigene = programm()->KundenDictionary;
        eigene[QStringLiteral("Brühe")] = lebensmittel(QStringLiteral("Brühe"), werte);
        programm()->uebernimmEigene(eigene, programm()->KundenArray);
        Q_EMIT programm()->eigeneGeaendert({Aenderungsart::Geaendert, QStringLiteral("Brühe")});
        ruhe();
    }
    float kal(const QString &name) const { return programm()->KundenDictionary.value(name).kal(); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Klientenprobe> m_probe;
};
