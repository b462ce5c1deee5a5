#pragma once

#include "Aenderung.h"
#include "Datenmodul.h"
#include "Datenordner.h"
#include "Drucktuer.h"
#include "Meldung.h"
#include "Namenswechsel.h"
#include "Planauswertung.h"
#include "Planliste.h"
#include "Planuebergabe.h"
#include "Summenzeilen.h"
#include "Tabellenmodell.h"
#include "ui_Planmodul1.h"

#include <QObject>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

class Dateihueter;
class QSettings;
class Spaltenumbruch;

/// The doors through which a plan reaches the world outside of its window.
struct Plantueren
{
    QString eingebauteTabelle; ///< path of the built-in food table, a file or a resource
    Datenordner datenordner;   ///< the user's data folder
    Meldungstuer melde;        ///< shows a message and waits for its answer
    Drucktuer drucke = {};     ///< prints; while it is absent, nothing does
    Pdftuer alsPdf = {};       ///< saves a print as a PDF; while it is absent, nothing does
    /// Reads and writes the user's files, for all windows of the program; a plan that gets none
    /// makes one of its own.
    std::shared_ptr<Dateihueter> dateien = {};
    /// The user defaults, which outlive the plan; without them no width of a column is remembered.
    QSettings *einstellungen = nullptr;
    /// Path of the names that built-in foods once had, a file or a resource.
    QString namenswechsel = QStringLiteral(":/Umbenannt.csv");
};

/// What the calculator told about the client. There is one client at a time, so every plan window
/// of the program shares it, and it outlives them all. 0 until it was told.
struct Klient
{
    std::int32_t bedarf = 0;      ///< kcal per day that the plan is measured against
    std::int32_t unbereinigt = 0; ///< kcal per day before any reduction
    float gewicht = 0;            ///< kg
    float groesse = 0;            ///< m
};

/// Runs the meal plan: a list of foods with an amount of grams each, kept in a file that is written
/// after every change, and the window that shows and evaluates it. Its outlets are the objects of
/// the interface description, under their names. They exist from the first `window()` or
/// `showWindow()` on and are null before; until then the lists and files are kept all the same.
class Planmodul : public QObject,
                  public Planliste,
                  public Planuebergabe,
                  public Ui::PlanmodulGestalt,
                  private Tabellenquelle
{
    Q_OBJECT

public:
    /// Reads the foods and the plan; the window comes later.
    explicit Planmodul(Plantueren tueren);
    ~Planmodul() override;

    static Klient klient;

    Lebensmittelverzeichnis Dictionary;       ///< the built-in foods
    Lebensmittelverzeichnis KundenDictionary; ///< a copy of the user's own foods

    /// The window; made and filled when it is first asked for.
    QMainWindow *window();
    /// Shows the window, in front of others.
    virtual void showWindow();

    // What the calculator says, to whichever plan: every plan's window hears of it. Nothing is
    // drawn anew before the next evaluation but the BMI and the words about a missing weight or
    // height.
    virtual void anthrouebergabe(int kilokalorien);
    virtual void anthrouebergabe2(int kilokalorien);
    virtual void anthrouebergabegewicht(float kilogramm);
    virtual void anthrouebergabegroesse(float meter);

    // What the main window says.
    /// An own food was saved, with these values and ratings under this name. The table shows it the
    /// next time that it asks; nothing is evaluated.
    virtual void umschreibungMitName(const Datenmodul &lebensmittel);
    /// The own food of this name was deleted; its first row in the plan goes with it.
    virtual void loeschenvonkundeneintraegen(const QString &name);
    /// A food is wanted in the plan, named by its key. It comes last, with 100 g.
    virtual void nameimportvontoolbar(const QString &name);
    /// A food is wanted in the plan with so many grams, named by its key. It comes last, and where
    /// it stood before it is gone. The window stays as it is, shown or not.
    virtual void gibHinein(const QString &name, float gramm);

    // Bringing back what was kept
    /// Takes these own foods as the copy to work with from now on. The file is left to the caller.
    void uebernimmEigene(const Lebensmittelverzeichnis &eigene);
    /// Takes over these rows in place of those that are there, saves and shows them, and tells of
    /// foods that have another name now or none any more. Taking back says what it was.
    void uebernimmPlan(const Planliste &zeilen, const Aenderung &was = {Aenderungsart::Planstand});
    /// Takes back or repeats a change: these rows come in place of those that are there, and are
    /// saved and shown. The first one that has changed is selected.
    void setzePlan(const Planliste &zeilen);

    // Actions of the window; without one they do nothing
    /// Takes the selected row out of the plan; without one, nothing happens.
    void Lebensmittelentfernen();
    /// Moves the selected row so many places down, or up when it is below 0, with its amount; it
    /// stays selected. Where it would leave the plan, nothing happens.
    void Lebensmittelverschieben(int um);
    /// Makes all columns of the table as wide as what stands in them.
    void Spaltenanpassen();
    /// Projects the weight from what stands in the window's fields.
    void verlustberechnen();
    /// Writes into `Tage` how long it takes to lose the kilograms of the sender.
    void tageberechnen(const Wertehalter &sender);
    /// Makes the rows as high, and the columns of values and ratings as wide, as the sender says.
    void tabgroesseaendern(const Wertehalter &sender);

    // Printing
    /// Asks which of the three forms is wanted, and prints it.
    void druckenentscheidung();
    /// Asks which of the three forms is wanted, and saves it as a PDF.
    void alsPdfSichern();
    /// Prints the simple list: foods, grams and kilocalories, and the day's requirement.
    void drucken();
    /// Prints the evaluation as the window shows it.
    void drucken2();
    /// Prints the detailed list: all values and ratings of the foods.
    void drucken3();

    /// Evaluates the plan and shows the result.
    void datenberechnen();

    /// The record of a food: from the built-in table or else from the own foods; null when neither
    /// has it.
    const Datenmodul *lebensmittel(const QString &name) const;

Q_SIGNALS:
    /// The rows were changed, saved and shown; one that ended on its way was neither saved nor
    /// shown. It is not sent for what `setzePlan` does.
    void geaendert(const Aenderung &was);
    /// The last change is to be taken back.
    void zuruecknehmenGewuenscht();
    /// What was taken back last is to be repeated.
    void wiederholenGewuenscht();
    /// The user of the window wants the handbook.
    void hilfeGewuenscht();

private:
    void awakeFromNib();
    void verbinde();
    void ladeBilder();
    void bearbeiteMenge(const QModelIndex &zelle);
    void beendeEingabe();
    void waehleTastaturzeile();

    // The table
    void beschrifteTabelle();
    void stelleBreiten();
    void merkeBreite(int spalte);
    void gibNamenPlatz();
    void verbindeTabellenmenue();
    void zeigeTabellenmenue(int zeile, const QPoint &ort);
    void reloadData();
    int numberOfRows() const override;
    QString objectValue(const QString &spalte, int zeile) override;
    QString zeilenname(int zeile) override;
    Zellenbild willDisplayCell(const QString &spalte, int zeile, const QString &wert) override;
    QString writeRows(const QString &spalte, int zeile) override;
    void setObjectValue(const QString &spalte, int zeile, const QString &text) override;
    std::optional<int> validateDrop(int zeile, bool auf) override;
    void acceptDrop(int zeile, const QString &text) override;

    // The files
    void schreibePlan() const;
    void schreibeEigeneLebensmittel() const;
    void uebernimmAenderung();
    void uebernimmLetzte();

    // The notices
    void zeigeAnsichtshinweis();
    void folgeAuswahl();
    void weiseMengeZurueck(int zeile, const QString &text);

    // The foods' names
    Namensbefund namensbefund() const;
    void ladeNamenswechsel();
    void pruefePlannamen();
    void folgePlannamen();
    void zeigeUmbenannte(const QStringList &namen);
    void zeigeFehlende(const Namensbefund &befund);
    void uebernimmNeueNamen();

    // The evaluation
    std::vector<Planzeile> zeilen() const;
    void zeigeSummen(const Planauswertung &auswertung, std::span<const Planzeile> zeilen);
    void zeigeMengen(const Planauswertung &auswertung);
    void zeigeNaehrwerte(const Planauswertung &auswertung);
    void zeigeWertungen(const Planauswertung &auswertung);
    void zeigeBeurteilung(const Planauswertung &auswertung);
    void zeigeFehlendePunkte(const Planauswertung &auswertung);
    void zeigeBedarf();
    void zeigeKlient();
    static void zeigeUeberall();
    void zeigeAenderung(float kilogramm);
    void zeigeVerlaufworte();
    void zeigeWunschworte();
    void stelleZeichenDazu();
    void zeigeVerlauf(bool sichtbar);

    // The three forms on paper
    int frageNachForm(const QString &text, const QString &erklaerung) const;
    Druckauftrag einfacheListe();
    Druckauftrag detaillierteListe();
    Druckauftrag grafischeDarstellung();
    void drucke(const Druckauftrag &auftrag);

    Plantueren m_tueren;
    QMainWindow *m_fenster = nullptr;
    Spaltenumbruch *m_spaltenumbruch = nullptr; ///< of the evaluation
    Summenzeilen m_summenzeilen;
    Namenswechsel m_namenswechsel;                         ///< empty before the window is made
    std::array<QLabel *, anzahlNaehrwerte> m_zeichen = {}; ///< the verdicts beside the bars
    std::optional<Klient>
        m_projiziert; ///< whom the chart shows; absent before the first projection

    bool m_merktBreiten = false; ///< a width that changes now is the user's choice
    bool m_namenbreiteGewaehlt = false;

    // What the table shows: the rows of the last reload, and the amounts typed since.
    QStringList m_gezeigteNamen;
    QList<float> m_gezeigteMengen;
};
