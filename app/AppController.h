#pragma once

#include "Ampel.h"
#include "Bedarfsbalken.h"
#include "Datenmodul.h"
#include "Energieanteile.h"
#include "Erscheinungsbild.h"
#include "Feldauskunft.h"
#include "Namenssuche.h"
#include "Papierbild.h"
#include "Planmodul.h"
#include "Profilsuche.h"
#include "Skalierung.h"
#include "Tabellenmodell.h"
#include "Tagesbedarf.h"
#include "Tueren.h"
#include "Werkzeugleiste.h"
#include "Wertungsauskunft.h"
#include "ui_Eingabefenster.h"
#include "ui_Hauptfenster.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <array>
#include <functional>
#include <optional>

class Spaltenhinweis;

/// Runs the main window: holds the foods, shows the chosen one for an amount of grams, and judges
/// it. Its outlets are the objects of the two interface descriptions, under their names.
class AppController : public QObject,
                      public Ui::HauptfensterGestalt,
                      public Ui::EingabefensterGestalt,
                      private Tabellenquelle,
                      private Werkzeugquelle
{
    Q_OBJECT

public:
    /// Loads the stores and connects the window; nothing is on display yet.
    explicit AppController(Tueren tueren);
    ~AppController() override;

    /// Start-up: fills the window and shows the first food. Called once, after construction.
    void awakeFromNib();

    // The window that the outlets belong to, its sheet and its toolbar.
    QMainWindow *Hauptfenster;
    QDialog *einfenster;
    Werkzeugleiste *toolbar = nullptr;

    /// The meal plan; null until it is first wanted. What it is told while it is null goes nowhere.
    Planmodul *planmodul = nullptr;

    // The stores: from a food's name to its record, and the names in the order of display.
    Lebensmittelverzeichnis Dictionary;
    QStringList Array;
    Lebensmittelverzeichnis KundenDictionary;
    QStringList KundenArray;
    QStringList suchArray;
    QStringList suchArray2;

    QString unuebersetztername; ///< store key of the food on display; null before the first
    int BoxAufZu = 0;           ///< 1 while the save box is open
    int welcheTabelleAktiv = 0; ///< list of the food on display: 0 none, 1 built-in, 2 own
    int zaehlereinaus = 0;      ///< running index while the profile's switches are read; then 6
    float gesamtkal = 0;        ///< energy from protein, carbohydrate and fat, kcal
    float kalumrprot = 0;       ///< share of protein in it, percent
    float kalumrkh = 0;         ///< share of carbohydrate, percent
    float kalumrfett = 0;       ///< share of fat, percent

    /// The column in which the last selection was made: −1 not by a click, 0 "name", 1 "eigen",
    /// 2 "such". One for the whole process: every table and every action reads the same.
    static int angeklickteSpalte;

    /// The notice that tells which own food was saved or deleted.
    static const QString hinweisGesichert;
    /// The notice that tells which food was put into the plan, or why it was not.
    static const QString hinweisZugabe;
    /// The notice that tells what of a change of language waits for the next start.
    static const QString hinweisSprache;

    /// The tabs of `DatenAnsicht` in the order in which they are cycled.
    static const QStringList ansichten;

    // Actions
    void Laden();
    void LadeneigeneLM();
    void wieviellebensmittel(const Wertehalter &sender);
    void wieviellebensmittel2(const Wertehalter &sender) { wieviellebensmittel(sender); }
    void wieviellebensmittel3(const Wertehalter &sender) { wieviellebensmittel(sender); }
    void suchen(const Wertehalter &sender);
    void proteinsuche();
    void umschreibenDerEingabeFelder();
    void SicherneigeneLM();
    void LoescheneigeneLM();
    void Ansichtdurchwechseln();
    void Planmoduloeffnen();
    void toolbarlebensmittelweitergabe();
    void gibInPlan();
    void gehZurMenge();
    void waehleTreffer(int um);
    void zeigeTreffer();
    void zeigeTrefferInListe();
    void drucken();
    void alsPdfSichern();
    void zeigeAnsicht(const QString &kennung);
    void Fenster();
    void Fensterschliessen();
    void schreibeAb();
    void zeigeZuletzt();
    void SichernFensterAuf();
    void Leisteanpassen();
    void windowWillClose();
    void waehleErscheinungsbild(Erscheinungsbild bild);
    void waehleSprache(const QString &sprache);

    /// Makes these the own foods everywhere: in this window, in the plan and in the file. The names
    /// stand in the order of display.
    void uebernimmEigene(const Lebensmittelverzeichnis &eigene, const QStringList &namen);
    /// Chooses an own food as a click on its cell does; one that is in no row stays unchosen.
    void zeigeEigenes(const QString &name);

    /// The language was changed while the window is open, and its captions with it. What is held in
    /// the former language (the shown name, the results of a search) follows; the order of the
    /// foods stays.
    void folgeSprache();

    /// The foods whose name contains a text, see `namenSuchen`.
    Namenssuchergebnis sucheNamen(const QString &text) const;

    /// Whether a record is a line without values, such as the one that the built-in table begins
    /// with.
    static bool istLeer(const Datenmodul &lebensmittel);

    /// The plan, read if it was not yet; its window need not be shown.
    Planmodul &holePlan();

    /// Takes a food that was double-clicked in the table, named by its key. Absent, or where it
    /// answers false, the plan gets it.
    std::function<bool(const QString &schluessel)> zugabeziel;

    // What the actions are made of
    void rausholen(const Datenmodul *lebensmittel);
    void eintragen(Datenmodul &lebensmittel) const;
    void rechnen();
    void relationenrechnen();

    /// The display fields of the seventeen values, in the record's order.
    const std::array<Textfeld *, anzahlNaehrwerte> &wertfelder() const { return m_wertfelder; }
    /// The entry sheet's fields of the seventeen values, in the record's order.
    const std::array<Textfeld *, anzahlNaehrwerte> &eingabefelder() const
    {
        return m_eingabefelder;
    }
    /// The display fields of the four ratings, in the record's order.
    const std::array<Textfeld *, anzahlWertungen> &wertungsfelder() const
    {
        return m_wertungsfelder;
    }

    /// The appearance that the settings hold.
    Erscheinungsbild erscheinungsbild() const;

Q_SIGNALS:
    /// The main window was closed, and with it the program ends. Nothing is left to save: every
    /// change was written when it was made.
    void beendet();
    /// The user wants another language: "de" or "en".
    void spracheGewaehlt(const QString &sprache);
    /// A file of foods is to be opened.
    void dateiGewuenscht();
    /// The window of the settings is to be shown.
    void einstellungenGewuenscht();
    /// A file of foods is to be read.
    void einlesenGewuenscht();
    /// A list is to be saved as a table.
    void ausgebenGewuenscht();
    /// The list in which the keyboard is is to be put on the clipboard as a table.
    void tabelleKopierenGewuenscht();
    /// The copies of own foods and plan are to be shown.
    void fruehereStaendeGewuenscht();
    /// The own foods were changed and saved. It is not sent for what `uebernimmEigene` does.
    void eigeneGeaendert(const Aenderung &was);
    /// `planmodul` is there from now on.
    void planBereit();
    /// The last change of own foods or plan is to be taken back.
    void zuruecknehmenGewuenscht();
    /// What was taken back last is to be repeated.
    void wiederholenGewuenscht();
    /// The user of this window, the main one or the plan's, wants the handbook.
    void hilfeGewuenscht(const QWidget *fenster);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // Start-up
    void ladeBestaende();
    void findeFelder();
    void verbinde();
    void verbindeSuche();
    void verbindeEigene();
    void beschrifte();
    void setUpToolbar();

    // The main table
    int numberOfRows() const override;
    QString objectValue(const QString &spalte, int zeile) override;
    Zellenbild willDisplayCell(const QString &spalte, int zeile, const QString &wert) override;
    QString writeRows(const QString &spalte, int zeile) override;

    // The toolbar
    QStringList toolbarAllowedItemIdentifiers() const override;
    QStringList toolbarDefaultItemIdentifiers() const override;
    Werkzeug toolbarItem(const QString &kennung) override;
    std::function<void()> werkzeugaktion(const QString &kennung);

    // Searching
    class Suchanzeige;
    void zeigeTrefferzahl(std::optional<qsizetype> treffer);
    void schalteKriterien();
    Profil gewaehltesProfil() const;
    void sucheGetipptes();
    bool taste(int taste);

    // The way through what a search found
    void verbindeTreffer();
    int ersterTreffer() const;
    void folgeWahl();
    void folgeTreffer(const QString &schluessel);
    void zeigeTrefferleiste();

    // The foods that were chosen last
    void merkeGewaehltes();
    void zeigeWieder(const QString &name, bool eigen);
    bool hatGewaehlt() const;

    // What stands where nothing is yet, and why a control can't be used
    void verbindeLeeres();
    void zeigeLeeres();
    QString leereSuche() const;
    void zeigeErsteSchritte();
    void begruendeSperren();

    // What is on display, on paper
    std::optional<Druckauftrag> druckauftrag() const;
    QList<Papierwertung> papierwertungen() const;

    // The meal plan
    void stellePlanDaneben();
    void holePlanNachVorn();
    void verbindeZugabe();
    QString schluesselVon(const QModelIndex &zelle) const;
    QString gemeinterSchluessel() const;
    QString hindernis(const QString &schluessel) const;
    void gibHinein(const QString &schluessel);
    void meldeZugabe(const QString &schluessel, const Planliste &vorher);

    // The table's menu
    void zeigeTabellenmenue(const QModelIndex &zelle, const QPoint &ort);
    bool istEigenes(const QModelIndex &zelle) const;
    bool istLoeschbar(const QModelIndex &zelle) const;

    // Own foods
    Datenmodul eingegebenesLebensmittel() const;
    const Datenmodul *gezeigtesLebensmittel() const;

    void schreibeInsBlatt(const Datenmodul &vorlage, const QString &name);
    QString nameFuerAbschrift(const QString &name) const;
    bool sichere();
    bool schreibeEigeneLebensmittel() const;
    void folgeAuswahl(const QStringList &vorher);
    void setzeAnzeigeBearbeitbar(bool bearbeitbar);

    // Notices
    void meldeUebernommenes(const QString &name, bool gesichert, bool neu);
    void meldeGesichertes(const QString &name, bool gesichert, bool neu);
    void meldeGeloeschtes(const QString &name, bool gesichert);
    void nimmGesichertesZurueck();
    Hinweis mitRueckweg(const QString &text);

    // Why the ratings are what they are
    void verbindeWertungen();
    void zeigeAnderes(const Datenmodul *lebensmittel);
    void veralteWertungsgruende();
    bool zeigtEingebautes() const;
    QStringList wertungsgrund(Wertung wertung) const;

    // The steps of the selection action
    const Datenmodul *eingebautesLebensmittel(int zeile) const;
    const Datenmodul *eigenesLebensmittel(int zeile) const;
    const Datenmodul *gesuchtesLebensmittel(int zeile);
    const Datenmodul *waehleLebensmittel(int zeile);
    void setzeMengenregler(bool bedienbar);
    void zeigeAnteilsbalken(bool sichtbar);
    void zeigeDatenansicht(bool sichtbar);
    void zeigeEnergieanteile();
    void zeigeEnergieanteileGanzzahlig();
    void uebernimmEnergieanteile(const Energieanteile &anteile);
    void schliesseAuswahlAb();
    void zeigeJoule();
    void faerbeWertungen();
    void beschrifteMengen(const QString &menge);
    void zeigeName(const QString &name);
    void zeigeWert(std::size_t stelle, float zahl);
    Naehrwertreihe gezeigteWerte() const;

    Tueren m_tueren;
    QStringList m_uebersetzt; ///< the shown name of each entry of `Array`
    Wertungsauskunft m_auskunft;
    /// The record that is on display, or that the display was saved to. It may be gone since, and
    /// is never read: its address tells a built-in food from an own one of that name.
    const Datenmodul *m_gezeigtes = nullptr;
    /// A food that the user chose: its key, and whether it is an own one.
    struct Gewaehltes
    {
        QString name;
        bool eigen;
        bool operator==(const Gewaehltes &) const = default;
    };
    QList<Gewaehltes> m_zuletzt; ///< the newest first
    Spaltenhinweis *m_eigenhinweis = nullptr;
    Spaltenhinweis *m_suchhinweis = nullptr;
    QString m_vergeblich; ///< what to try after a search that found nothing; empty after others
    qsizetype m_trefferzahl = 0; ///< results of the latest search
    int m_treffer = -1;          ///< row of the chosen one in `suchArray`; −1 while none is
    QTimer m_tipppause;          ///< runs while the user types in the search box
    std::array<Textfeld *, anzahlNaehrwerte> m_wertfelder = {};
    std::array<QWidget *, anzahlNaehrwerte> m_wertbeschriftungen = {};
    std::array<Textfeld *, anzahlNaehrwerte> m_eingabefelder = {};
    std::array<Auswahlfeld *, anzahlWertungen> m_wertungseingaben = {};
    std::array<Textfeld *, anzahlWertungen> m_wertungsfelder = {};
    std::array<Feldauskunft *, anzahlWertungen> m_wertungsauskuenfte = {};
    std::array<Textfeld *, tagesbedarfe.size()> m_bedarfsfelder = {};
    std::array<Bedarfsbalken *, tagesbedarfe.size()> m_bedarfsbalken = {};
    std::array<Textfeld *, 3> m_mengenanzeigen = {};
    std::array<Schieber *, 3> m_mengenregler = {};
};
