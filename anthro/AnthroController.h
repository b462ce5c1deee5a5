#pragma once

#include "Alkohol.h"
#include "Planmodul.h"
#include "Wertehalter.h"
#include "ui_Koerper.h"
#include "ui_Lebensweise.h"

#include <QImage>
#include <QObject>
#include <QPointer>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

class QSettings;

/// The doors through which the calculator reaches the world outside of its pages.
struct Anthrotueren
{
    QSettings *einstellungen; ///< the user defaults; outlive the controller
    std::function<void(const QString &)> protokolliere;    ///< writes a line to the system log
    std::function<std::unique_ptr<Planmodul>()> neuerPlan; ///< makes a plan of its own
};

/// Runs the calculator: body measures with BMI and waist by hip, the energy requirement, alcohol
/// and sport. It reads its inputs back from its controls, shows each result in a control and hands
/// energy, weight and height to the meal plan. Its outlets are the objects of the two interface
/// descriptions, under their names; where an outlet and an action share a name (`geschlecht`,
/// `arbeit`), the outlet keeps it and the action is called `…Aktion`.
class AnthroController : public QObject, public Ui::KoerperGestalt, public Ui::LebensweiseGestalt
{
    Q_OBJECT

public:
    /// Years of age that the calculator begins with.
    static constexpr int startalter = 25;

    /// Makes the two pages; nothing is computed yet.
    explicit AnthroController(Anthrotueren tueren);
    ~AnthroController() override;

    /// Start-up: start values, then the stored settings, all results, and the hand-over to the
    /// plan. What was never stored reads as 0 and is shown so. Called once, after construction.
    void awakeFromNib();

    /// The page with body measures and energy, and the one with alcohol and sport. The controller
    /// deletes them unless the window that they were put into did so before.
    QPointer<QWidget> koerperseite;
    QPointer<QWidget> lebensweiseseite;

    /// The plan that is told about the client. Whoever connects one before the start keeps owning
    /// it; otherwise the controller makes one of its own at the start.
    Planmodul *plan = nullptr;

    QImage bilda; ///< the smiling face
    QImage bildb; ///< the neutral face
    QImage bildc; ///< the crying face

    float geschlechtauswahl = 0;     ///< factor of the gender: 1.2 man, 1.0 woman
    float arbeitauswahl = 0;         ///< factor of the activity: 1.1, 1.3 or 1.5
    std::int32_t kal = 0;            ///< energy requirement after any reduction, kcal per day
    std::int32_t kalunbereinigt = 0; ///< energy requirement before it
    float alk = 0;                   ///< alcohol of the drink, g in 100 ml; 0 before the first
    QString name;                    ///< the drink
    QString geschlechtname;          ///< the gender's word as last read from its field
    float zwischenvariable = 0;      ///< alcohol broken down, g per hour
    QString sportname;               ///< the sport as last chosen, known or not
    std::int32_t sportkal = 0;       ///< energy of the sport, kcal per hour

    /// The language was changed while the pages are open, and their captions with it: drinks and
    /// sports are offered in it, and the chosen ones called by their names in it.
    void folgeSprache();

    // Body measures. The sender holds kg, m or cm.
    void slidergewicht(const Wertehalter &sender);
    void slidergroesse(const Wertehalter &sender);
    void sliderhuefte(const Wertehalter &sender);
    void slidertaille(const Wertehalter &sender);
    /// The switch between metric (1) and imperial (0) display.
    void metrik(int zustand);
    /// The choice of gender: 0 man, 1 woman; any other tag leaves it.
    void geschlechtAktion(int tag);

    // Energy
    /// The choice of activity: 0, 1 or 2 in rising order; any other tag leaves it.
    void arbeitAktion(int tag);
    /// The switch for losing weight: 0 off, 1 a fifth less energy.
    void gewichtreduktion(int zustand);
    /// The sender holds the age in years. Below 10 the calculator refuses; above 10 it resumes with
    /// what its sliders hold; at exactly 10 all stays as it is.
    void wiealt(const Wertehalter &sender);

    // Alcohol
    /// A drink was chosen: its name stands in `alkohol`, its quantity in `zieher`.
    void welcheralkohol();
    /// The sender holds the quantity in ml of the drink that was chosen last.
    void wievielalkohol(const Wertehalter &sender);

    // Sport
    /// The sender holds the name of a sport; a name that is none keeps the previous sport.
    void welchersport(const Wertehalter &sender);
    /// The sender holds the hours of sport.
    void wievielsport(const Wertehalter &sender);

Q_SIGNALS:
    /// An action has set a measure, the gender, the activity, the reduction, the age or the sport.
    void angabeGeaendert();

private:
    // Start-up
    void fuelleAuswahlen();
    void bieteAn();
    void verbinde();
    void verbindeGruppe(const Matrix &gruppe, void (AnthroController::*aktion)(int));
    void ladeBilder();
    void setzeStartwerte();
    void begruendeSperren();
    void liesEinstellungen();

    // The settings
    float gemerkt(const char *schluessel) const;
    void merke(const char *schluessel, float zahl);

    // What the actions are made of
    void zeigeBmi();
    void zeigeVerhaeltnis();
    void rateBmi();
    void rateVerhaeltnis();
    void rateEnergie();
    /// A measure and its caption.
    struct Mass
    {
        const QLabel *beschriftung;
        const Textfeld &feld;
    };
    static QString fehlende(std::initializer_list<Mass> masse);
    QString fehlendeFuerBmi() const;
    QString fehlendeFuerVerhaeltnis() const;
    QString fehlendeFuerEnergie() const;
    void sageUrteile();
    void zeigeUrteil(FaceView &gesicht, QLabel &worte, std::optional<int> code,
                     const QString &fehlt = {});
    void zeigeImperial();
    void zeigeMasssystem(bool metrisch);
    void rechneEnergie();
    void uebergibEnergie();
    void zeigeReduktion();
    void zeigeGeschlecht();
    QWidgetList altersfelder() const;
    void erlaubeRechner(bool erlaubt);
    void verbirgMasse();
    void zeigeMasseWieder();
    void nimmGetraenk(Alkoholanlass anlass, std::int32_t milliliter);
    void faerbeAlkohol(Ampel darunter);
    static void zeigeFarbe(Textfeld &feld, QWidget &worte, std::optional<Ampel> farbe);

    Anthrotueren m_tueren;
    QString m_geltenderName; ///< the drink whose alcohol is in force; null before the first
    std::unique_ptr<Planmodul> m_eigenerPlan;
};
