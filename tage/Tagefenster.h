#pragma once

#include "Drucktuer.h"
#include "Handzettel.h"
#include "Mass.h"
#include "Meldung.h"
#include "Namenssuche.h"
#include "Planumwandlung.h"
#include "Summenmodell.h"
#include "Tagebuch.h"
#include "Zeilentext.h"
#include "ui_Tagefenster.h"

#include <QMainWindow>

#include <functional>
#include <optional>

class QMenu;
class QMimeData;
class QSettings;
class Tagesauswertungsfenster;

/// The doors through which the window of the days reaches the foods and the rest of the program.
struct Tagetueren
{
    Meldungstuer melde; ///< shows a message and waits for its answer
    /// The foods whose name contains a text, as the search by name finds them.
    std::function<Namenssuchergebnis(const QString &text)> suche;
    /// The record of a food; null when it is in no store.
    std::function<const Datenmodul *(const QString &schluessel)> lebensmittel;
    /// The household measures of a food, the best first; none where it has none.
    std::function<QList<Mass>(const QString &schluessel)> masse;
    /// What the days are measured against.
    std::function<Energiebedarf()> bedarf;
    /// The key of the food that is called so, in German or English; null where none is. While it is
    /// absent, foods are known by their keys and by how they are called on screen.
    std::function<QString(const QString &name)> schluessel = {};
    /// Puts these rows in place of those of the plan on the desk, which can be taken back there;
    /// false when that fails. While it is absent, no day becomes a plan.
    std::function<bool(const QList<Planmenge> &posten)> legeAufTisch = {};
    /// The rows of the plan on the desk; while it is absent, no plan becomes rows of a day.
    std::function<QList<Planmenge>()> planVomTisch = {};
    /// The plans that are kept under the client at the desk, as they are to be listed.
    std::function<QList<Vorratsplan>()> abgelegtePlaene = {};
    std::function<QDate()> heute = [] {
        return QDate::currentDate();
    };
    /// Shows the household measures of a food in front of the window, to add own ones; empty: they
    /// can't be shown.
    std::function<void(QWidget *fenster, const QString &schluessel)> massfenster = {};
    Drucktuer drucke = {}; ///< prints; while it is absent, nothing does
    Pdftuer alsPdf = {};   ///< saves a print as a PDF; while it is absent, nothing does
    std::function<Briefkopf()> briefkopf = {}; ///< of the practice; absent: none
    std::function<QString()> klient = {};      ///< whose records they are; empty: nobody's
    /// Where the last choice of how to print is kept; outlives the window. Null: nowhere.
    QSettings *einstellungen = nullptr;
};

/// The window in which days are recorded and planned, meal by meal. Nothing needs a hand on the
/// mouse: a food's name, Return, its amount, Return, the next.
class Tagefenster : public QMainWindow, public Ui::TagefensterGestalt
{
    Q_OBJECT

public:
    /// The records are kept in `ablage`, which outlives the window.
    Tagefenster(Aufzeichnungsablage &ablage, Tagetueren tueren);
    ~Tagefenster() override;

    Tagebuch buch;

    /// Shows the window, in front of others.
    void zeige();
    /// Other records from now on: somebody else sits at the desk.
    void setzeAblage(Aufzeichnungsablage &ablage);
    /// Keeps what is still being typed.
    void sichere();
    /// Puts a food at the end of the meal with the cursor, with one of its first measure, or 100 g.
    /// Where it stands now, in words; null where nothing could be put in.
    QString gibHinein(const QString &schluessel);
    /// Takes the user to a row: its day is shown, the row is chosen. Where there is none, nothing
    /// happens.
    void zeigeZeile(const Aufzeichnungsaenderung::Stelle &stelle);
    /// Puts a food in place of a row, or, where `statt` is absent, at the end of the meal with the
    /// cursor; one step of undo. `angabe` is the amount as it is said, such as "1 Scheibe"; where
    /// it is not understood of this food, `gramm` count. False: nothing was changed.
    bool nimmVorschlag(const QString &schluessel, double gramm, const QString &angabe,
                       const std::optional<Aufzeichnungsaenderung::Stelle> &statt);
    /// What the days are measured against has changed.
    void frischeAuf();
    /// Another language is spoken.
    void folgeSprache();
    /// The evaluation of the day and of the mean, a window of its own that goes with this one; made
    /// when it is first asked for.
    Tagesauswertungsfenster &auswertungsfenster();

    // What the menu does. Where there is nothing to do it to, nothing happens.
    void neuesProtokoll();
    void neuerWochenplan();
    void loescheAufzeichnung();
    void handzettelDrucken() { frageNachHandzettel(false); }
    void handzettelAlsPdf() { frageNachHandzettel(true); }
    void aktenformDrucken() { gibAktenformAus(false); }
    void aktenformAlsPdf() { gibAktenformAus(true); }
    void loescheZeilen();
    void wechsleOder();
    /// Shows the household measures of the food of the row with the cursor.
    void zeigeMasse();
    void fuelleTage();
    void leereTag();
    void neueMahlzeit();
    void loescheMahlzeit();
    void mahlzeitHinauf() { verschiebeMahlzeit(-1); }
    void mahlzeitHinunter() { verschiebeMahlzeit(1); }
    void naechsterTag() { buch.waehleTag(buch.tag() + 1); }
    void vorigerTag() { buch.waehleTag(buch.tag() - 1); }
    void zeigeAuswertungsfenster();

    // Moving rows, meals and days about
    void schneideAus();
    void kopiere();
    void fuegeEin();
    void schneideTagAus();
    void kopiereTag();
    void fuegeTagEin();
    void zeilenHinauf() { rueckeZeilen(false); }
    void zeilenHinunter() { rueckeZeilen(true); }
    void fuelleGewaehlteTage();
    void uebernimmHeute();
    void legePlanAufTisch();
    void nimmPlanVomTisch();
    void nimmAbgelegtenPlan();
    /// What a drag of the chosen rows carries; whoever asks owns it. Null without a row.
    QMimeData *ziehdaten() const;

Q_SIGNALS:
    /// The user of the window wants the handbook.
    void hilfeGewuenscht();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void baueMenue();
    void begruendeSperren();
    void baueTabellen();
    void messeSpalten();
    void verbinde();
    void zeigeAuswahl();
    void sageObLesbar();
    void zeigeKopf();
    void zeigeTage();
    void zeigeTag();
    void zeigeNotizen();
    void zeigeSummen();
    void zeigeAuswertung(const Aufzeichnung &eine, const Summenmodell::Stand &stand);
    void verschiebeMahlzeit(int um);
    void frageNachHandzettel(bool alsPdf);
    void gibAktenformAus(bool alsPdf);
    void gibAus(const Druckauftrag &auftrag, bool alsPdf);
    Druckangaben druckangaben() const;
    void setzeTagezahl(int zahl);
    void sageMitRueckweg(const QString &text);
    void verbindeKopf();
    void verbindeNotizen();
    bool aendere(const char *was, const Tagebuch::Tat &tat, const QString &feld = {});

    // What was typed into the table
    void nimmAn(const Tagesmodell::Platz &platz, int spalte, const QString &text,
                const QString &schluessel, bool weiter);
    void nimmNamen(const Tagesmodell::Platz &platz, const QString &text, const QString &schluessel,
                   bool weiter);
    void nimmAngabe(const Tagesmodell::Platz &platz, const QString &text, bool weiter);
    void geheZuMahlzeit(int mahlzeit);
    void geheZuNaechster(const Tagesmodell::Platz &platz);
    Mahlzeitzeile zeileFuer(const QString &text, const QString &schluessel) const;
    void setzeAngabe(Mahlzeitzeile &zeile, const QString &text) const;
    QList<Vorschlagsfeld::Vorschlag> vorschlaege(int reihe, int spalte, const QString &text) const;
    void sageUnverstandenes(const Mahlzeitzeile &zeile);
    Mahlzeitzeile uebliche(const QString &schluessel) const;

    // Moving rows, meals and days about
    void baueUmzug(QMenu &bearbeiten, QMenu &tag);
    void verbindeUmzug();
    bool darfUmziehen();
    void sageUmzug(const QString &text, bool rueckweg);
    Speisequellen speisequellen() const;
    Aufzeichnungsaenderung::Stelle einfuegestelle() const;
    QList<Aufzeichnungsaenderung::Stelle> gewaehlteStellen() const;
    void waehleStellen(const QList<Aufzeichnungsaenderung::Stelle> &stellen);
    std::optional<Zeilenablage> gewaehlteAblage() const;
    static void legeAb(const Zeilenablage &ablage);
    Ablagelesung lies(const QMimeData *daten) const;
    void bringeEin(const char *was, const Zeilenablage &ablage,
                   const Aufzeichnungsaenderung::Stelle &hier, const QString &worte);
    void fuegeGelesenesEin(const Ablagelesung &gelesen);
    void rueckeZeilen(bool hinunter);
    bool nimmt(const QMimeData &daten) const;
    QList<Aufzeichnungsaenderung::Stelle> herkunft(const QMimeData &daten) const;
    void nimmAbwurf(const QMimeData *daten, const Tagesmodell::Platz &vor, bool kopie);
    void bringePlanEin(const QList<Planmenge> &posten, const char *worte);

    Tagetueren m_tueren;
    Summenmodell m_summen;
    Tagesauswertungsfenster *m_auswertung = nullptr;
    bool m_zeigt = false; ///< the controls are being set, and not by the user
};
