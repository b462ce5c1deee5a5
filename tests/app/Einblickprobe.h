#pragma once

#include "Klientenprobe.h"
#include "Sprache.h"
#include "Vorschlagsblatt.h"

#include <QTabWidget>
#include <QTableView>

/// A program with an apple, milk and toast, the insight and what it follows. An own food is called
/// as a test wishes; the plan's figures of a client are forgotten before and after each test.
class Einblickprobe
{
protected:
    void richteEin(const Lebensmittelverzeichnis &eigene, const QList<Datenmodul> &weitere = {})
    {
        using namespace Qt::StringLiterals;
        Planmodul::klient = {};
        m_heim = std::make_unique<Probeheim>();
        m_heim->schreibeTabelle(
            verzeichnis(QList<Datenmodul>{
                            lebensmittel(u"-"_s),
                            lebensmittel(u"Apfel"_s, {{Naehrwert::kal, 50}, {Naehrwert::vitc, 12}}),
                            lebensmittel(u"Milch"_s, {{Naehrwert::kal, 60}, {Naehrwert::ca, 120}}),
                            lebensmittel(u"Toast"_s, {{Naehrwert::kal, 200}})} +
                        weitere));
        m_heim->schreibeEigene(eigene);
    }
    void raeumeAuf()
    {
        m_probe.reset();
        m_heim.reset();
        Planmodul::klient = {};
    }
    void oeffne() { m_probe = std::make_unique<Klientenprobe>(*m_heim); }

    Probefenster &programm() const { return m_probe->programm(); }
    Einblickanschluss &anschluss() const { return programm().oberflaeche().einblick; }
    Einblickfenster &fenster() const { return anschluss().fenster(); }
    Tagefenster &tage() const { return programm().oberflaeche().tage.fenster(); }
    Planmodul &plan() const { return programm()->holePlan(); }

    void legePlan() const
    {
        programm()->Planmoduloeffnen();
        plan().gibHinein(QStringLiteral("Apfel"), 150);
        plan().gibHinein(QStringLiteral("Milch"), 200);
        ruhe();
    }
    QString imPlan() const
    {
        QStringList alle;
        for (qsizetype i = 0; i < plan().PlanArray.size(); ++i) {
            alle << QStringLiteral("%1 %2").arg(plan().PlanArray[i]).arg(plan().mengenarray[i]);
        }
        return alle.join(QStringLiteral(", "));
    }
    /// Shows the window, and waits until it has taken in what there is.
    void zeige(Gegenstand gegenstand) const
    {
        anschluss().oeffne(gegenstand);
        ruhe();
    }
    QString titel() const { return fenster().findChild<QLabel *>(QStringLiteral("titel"))->text(); }
    QStringList hinweise() const
    {
        QStringList alle;
        for (const Hinweis &einer : fenster().hinweise->hinweise()) {
            alle << einer.text;
        }
        return alle;
    }
    /// What the cells of a column of a table say.
    static QStringList spalte(const QWidget &wo, const QString &tabelle, int welche)
    {
        const QAbstractItemModel &modell = *wo.findChild<QTableView *>(tabelle)->model();
        QStringList alle;
        for (int zeile = 0; zeile < modell.rowCount(); ++zeile) {
            alle << modell.index(zeile, welche).data().toString();
        }
        return alle;
    }
    QStringList vorschlaege() const
    {
        return spalte(*fenster().vorschlagsblatt, QStringLiteral("vorschlaege"),
                      Vorschlagsmodell::Lebensmittel);
    }
    /// Opens the sheet of suggestions for a plan that lacks energy.
    void zeigeVorschlaege(std::int32_t bedarf = 2000) const
    {
        Planmodul::klient.bedarf = bedarf;
        zeige(Gegenstand::Plan);
        fenster().blaetter->setCurrentWidget(fenster().vorschlagsblatt);
        ruhe();
        fenster().vorschlagsblatt->waehleZiel(Kenngroesse::kal);
    }
    void nimm(const Speisenaenderung &was) const
    {
        Q_EMIT fenster().vorschlagsblatt->aenderungGewuenscht(was);
    }
    /// A client is entered; whoever has gout is named.
    QString klient(const QString &name, Personengeschlecht geschlecht, const QDate &geburt,
                   bool gicht = false) const
    {
        Person person;
        person.name = name;
        person.geschlecht = geschlecht;
        person.geburt = geburt;
        person.leiden[stelle(Wertung::gicht)] = gicht;
        return m_probe->kartei().sichere({QString(), person, {}});
    }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Klientenprobe> m_probe;
};
