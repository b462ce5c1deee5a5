#pragma once

#include "Briefkopfablage.h"
#include "Klientenaufzeichnungen.h"
#include "Massquelle.h"
#include "Platzgedaechtnis.h"
#include "Tagefenster.h"
#include "Tagesdatei.h"
#include "Tueren.h"

#include <QObject>

#include <memory>

class AnthroController;
class AppController;
class Klientenanschluss;

/// Joins the records of days to the desk: the way to their window in the menus, the foods and their
/// measures, what the calculator says of the need, and whose records they are: those of the client
/// at the desk, or of nobody. The desk itself knows nothing of days.
class Tageanschluss : public QObject
{
    Q_OBJECT

public:
    /// All of them outlive this object.
    Tageanschluss(AppController &hauptfenster, AnthroController &rechner,
                  Klientenanschluss &klienten, Tueren tueren);
    ~Tageanschluss() override;

    /// Joins from now on. No record is read before the window is first opened.
    void beginne();

    /// The window of the days; made when it is first asked for.
    Tagefenster &fenster();
    /// The same, null as long as nobody has asked.
    Tagefenster *offenes() const { return m_fenster.get(); }

    /// Shows the household measures of a food in front of a window, to add own ones.
    void zeigeMasse(QWidget *fenster, const QString &schluessel);

    /// The record of what can be eaten; null for a key that no store has, and for a line that
    /// stands for no food.
    const Datenmodul *speise(const QString &schluessel) const;
    /// The foods whose name contains a text, without the lines that stand for none.
    Namenssuchergebnis suche(const QString &text) const;
    /// The household measures of a food, the best first.
    QList<Mass> masse(const QString &schluessel) const { return m_masse->masseFuer(schluessel); }
    /// Those that the user gave.
    EigeneMasse &eigeneMasse() { return *m_eigeneMasse; }
    /// The rows of the plan on the desk.
    QList<Planmenge> planVomTisch();
    /// Whose records they are; empty: nobody's.
    QString klient() const
    {
        return m_desKlienten != nullptr ? m_desKlienten->wessen() : QString();
    }

    /// Another language is spoken.
    void folgeSprache();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The user of the window wants the handbook.
    void hilfeGewuenscht(const QWidget *fenster);
    /// The window is there from now on.
    void fensterBereit();

private:
    void beginneMasse();
    void bereitePlan();
    QAction *eintrag(QObject *menue);
    bool nimmSpeise(const QString &schluessel);
    void folgeKlient();
    void betitle();
    void sageZustand();
    QString pfad(const char *datei) const;
    Tagetueren fenstertueren();
    QString schluesselVon(const QString &name);
    bool legeAufTisch(const QList<Planmenge> &posten);
    QList<Vorratsplan> abgelegtePlaene() const;

    AppController &m_hauptfenster;
    AnthroController &m_rechner;
    Klientenanschluss &m_klienten;
    Tueren m_tueren;
    Portionentabelle m_portionen;
    std::unique_ptr<EigeneMasse> m_eigeneMasse; ///< these two from the start of joining on
    std::unique_ptr<Massquelle> m_masse;
    QHash<QString, QString>
        m_schluessel; ///< of the built-in foods, by their names in small letters
    Tagesdatei m_ohneKlient;
    std::unique_ptr<Klientenaufzeichnungen> m_desKlienten; ///< null while nobody is at the desk
    std::unique_ptr<Tagefenster> m_fenster;
    std::unique_ptr<Platzgedaechtnis> m_platz; ///< of that window; goes before it
    bool m_zuletztVorn = false; ///< the user was in that window later than in the plan's
};
