#pragma once

#include "Einblickfenster.h"
#include "Platzgedaechtnis.h"
#include "Ranglistenfenster.h"
#include "Rezeptanschluss.h"
#include "Tueren.h"
#include "Zusatzquelle.h"

#include <QObject>
#include <QTimer>

#include <memory>

class AnthroController;
class AppController;
class Klientenanschluss;
class Tageanschluss;

/// Joins the insight to the desk and the days: the ways to its windows in the menus, what it shows
/// and for whom, and what the user wants done there. The desk itself knows nothing of it.
class Einblickanschluss : public QObject
{
    Q_OBJECT

public:
    /// All of them outlive this object.
    Einblickanschluss(AppController &hauptfenster, AnthroController &rechner,
                      Klientenanschluss &klienten, Tageanschluss &tage, Tueren tueren);
    ~Einblickanschluss() override;

    /// Joins from now on. No table is read before a window is first opened.
    void beginne();

    /// The window of the insight; made when it is first asked for.
    Einblickfenster &fenster();
    /// Shows it, about this. Where it has no place of its own yet, it comes beside this window;
    /// null: the main one.
    void oeffne(Gegenstand gegenstand, const QWidget *neben = nullptr);
    /// The window in which foods are ranked and compared; made when it is first asked for.
    Ranglistenfenster &rangliste();

    /// A change of plan or own foods was taken back or repeated.
    void folgeVerlauf();
    /// Another language is spoken.
    void folgeSprache();

    Rezeptanschluss rezepte;

private:
    // What leads here
    void baueMenue();
    void bereitePlan();
    void bereiteTage();

    // What is shown
    Einblickstand stand(Gegenstand gegenstand);
    Einblickstand nackterStand(Gegenstand gegenstand);
    bool zeigtEigenes() const;
    const Stoffwissen &wissen();
    const Kandidaten &kandidaten();
    void zeigeBald();
    void frischeAuf();
    void folgeKlient();
    void folgeRechner();
    void vergissSpeisen();
    void vergissRueckweg();
    Referenzperson person() const;
    void stelleNeben(const QWidget &anderes);
    void merkeWeggelassenes();
    void holeWeggelassenes();
    QString merkname(const char *was) const;

    // What the user wants done
    void geheZuZeile(Gegenstand gegenstand, int ort);
    void aendere(Gegenstand gegenstand, const Speisenaenderung &aenderung);
    void zeigeLebensmittel(const QString &schluessel);
    void sage(const QString &text, const std::function<void()> &zurueck);

    AppController &m_hauptfenster;
    AnthroController &m_rechner;
    Klientenanschluss &m_klienten;
    Tageanschluss &m_tage;
    Tueren m_tueren;
    Zusatzquelle m_zusatz;
    std::optional<Stoffwissen> m_wissen;     ///< absent until asked for
    std::optional<Kandidaten> m_kandidaten;  ///< the same
    QString m_kennung;                       ///< of the client whose person is shown
    std::optional<Referenzperson> m_vorgabe; ///< what is known of them; absent before the window
    QTimer m_gleich;                         ///< what has changed is shown once it rests
    bool m_veraltet = false;                 ///< the window has not heard of other rows yet
    bool m_listeVeraltet = false;            ///< the ranking has not heard of other foods yet
    std::unique_ptr<Einblickfenster> m_fenster;
    std::unique_ptr<Platzgedaechtnis> m_platz; ///< of that window; goes before it
    std::unique_ptr<Ranglistenfenster> m_rangliste;
    std::unique_ptr<Platzgedaechtnis> m_listenplatz; ///< of that window; goes before it
};
