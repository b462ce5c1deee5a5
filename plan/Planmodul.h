#pragma once

#include "Datenmodul.h"
#include "Datenordner.h"
#include "Meldung.h"
#include "Tabellenmodell.h"
#include "ui_Planmodul1.h"

#include <QList>
#include <QObject>
#include <QStringList>

#include <cstdint>

/// The doors through which a plan reaches the world outside of its window.
struct Plantueren
{
    QString eingebauteTabelle; ///< path of the built-in food table, a file or a resource
    Datenordner datenordner;   ///< the user's data folder
    Meldungstuer melde;        ///< shows a message and waits for its answer
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
class Planmodul : public QObject, public Ui::PlanmodulGestalt, private Tabellenquelle
{
    Q_OBJECT

public:
    /// Reads the foods and the plan; the window comes later.
    explicit Planmodul(Plantueren tueren);
    ~Planmodul() override;

    static Klient klient;

    // The plan, row by row, and the foods that it names.
    Lebensmittelverzeichnis Dictionary;
    Lebensmittelverzeichnis KundenDictionary;
    /// From a food's name to a record of that name that carries the amount of grams in `kal`, and
    /// nothing else: the form of the plan file.
    Lebensmittelverzeichnis plansavedictionary;
    QStringList PlanArray;
    QList<float> mengenarray; ///< grams of each row

    /// The window; made and filled when it is first asked for.
    QMainWindow *window();
    /// Shows the window, in front of others.
    virtual void showWindow();

    // What the calculator says. Nothing is drawn anew before the next evaluation but the BMI.
    virtual void anthrouebergabe(int kilokalorien);
    virtual void anthrouebergabe2(int kilokalorien);
    virtual void anthrouebergabegewicht(float kilogramm);
    virtual void anthrouebergabegroesse(float meter);

    // What the main window says.
    /// An own food was saved, with these values and ratings under this name.
    virtual void umschreibungMitName(const Datenmodul &lebensmittel);
    /// The own food of this name was deleted.
    virtual void loeschenvonkundeneintraegen(const QString &name);
    /// A food is wanted in the plan, named by its key.
    virtual void nameimportvontoolbar(const QString &name);

    /// The record of a food: from the built-in table or else from the own foods; null when neither
    /// has it.
    const Datenmodul *lebensmittel(const QString &name) const;

    /// Evaluates the plan and shows the result.
    void datenberechnen();

private:
    int numberOfRows() const override;
    QString objectValue(const QString &spalte, int zeile) override;

    Plantueren m_tueren;
    QMainWindow *m_fenster = nullptr;
};
