#pragma once

#include "Meldung.h"
#include "Rezeptwertung.h"
#include "Zutatenliste.h"

#include <QDialog>

#include <array>
#include <functional>
#include <optional>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTabWidget;
class QTableWidget;
class Wertungswahl;

/// What the window of a recipe asks of the program.
struct Rezepttueren
{
    Zutatentueren zutaten = {};
    /// Whether a built-in food is called so: an own one of that name would never be found.
    std::function<bool(const QString &name)> istEingebaut = {};
    /// The own food of that name; absent where there is none.
    std::function<std::optional<Datenmodul>(const QString &name)> eigenes = {};
    /// Keeps the recipe, and the food that it gives. False: that could not be done, and the window
    /// stays as it is.
    std::function<bool(const Rezept &rezept, const Datenmodul &satz)> sichere = {};
    /// Makes a portion of so many g a household measure of the food, after it was kept, or takes
    /// the one of before back where nobody counts them any more. Absent: no measure.
    std::function<void(const QString &schluessel, std::optional<double> gramm,
                       std::optional<double> bisher)>
        portion = {};
    Meldungstuer melde = zeigeMeldung;
};

/// A dish is put together from its ingredients and becomes an own food, or a dish that there is
/// gets changed. What it comes to is reckoned with every change; nothing is kept before "Sichern".
class Rezeptfenster : public QDialog
{
    Q_OBJECT

public:
    /// `rezept` is shown as it is: of a new one the name may be missing. `wissen` knows the other
    /// dishes, see `Stoffwissen::setzeRezepte`; `andere` are their recipes. A dish that has a
    /// record that it gave is one that there is.
    Rezeptfenster(Rezept rezept, Stoffwissen wissen, Rezepte andere, Rezepttueren tueren,
                  QWidget *parent = nullptr);

    /// Another language is spoken: all texts anew.
    void folgeSprache();

    /// Keeps the dish and closes the window, unless something is in the way: that is told.
    void sichere();
    /// Foods or other dishes have changed: what is reckoned here goes by them as they are now, the
    /// ingredients of a dish that follows among them.
    void folgeSpeisen(const Stoffwissen &wissen, const Rezepte &andere,
                      const Lebensmittelverzeichnis &eingebaute,
                      const Lebensmittelverzeichnis &eigene);

    /// Closes the window without keeping anything, after a question where something was changed.
    void reject() override;

private:
    void baue();
    QWidget *baueZutatenseite();
    QWidget *baueWertungsseite();
    void baueWerte();
    void verbinde();
    void beschrifte();
    void fuelleGruppen();
    void zeigeRezept();
    void rechne();
    void zeigeWerte(const Rezeptergebnis &ergebnis);
    void zeigeWorte(const Rezept &rezept);
    Rezept eingegebenes() const;
    QString einwandGegen(const Rezept &rezept) const;
    void warne(const QString &worte);
    bool sagtUebersehenes();
    bool darfErsetzen(const Rezept &rezept);

    Rezept m_rezept; ///< as it was opened
    Stoffwissen m_wissen;
    Rezepte m_andere;
    Rezepttueren m_tueren;
    std::optional<Rezept> m_anfang; ///< as the fields had it at first

    QLabel *m_namenswort;
    QLineEdit *m_name;
    QTabWidget *m_seiten;
    Zutatenliste *m_zutaten;
    QLabel *m_roh;
    QLabel *m_gewichtswort;
    QLineEdit *m_gewicht;
    QLabel *m_wasser;
    QLabel *m_portionswort;
    QLineEdit *m_portionen;
    QLabel *m_jePortion;
    QTableWidget *m_werte;
    QLabel *m_gruppenwort;
    QComboBox *m_gruppe;
    std::array<Wertungswahl *, anzahlWertungen> m_wertungen = {};
    QPlainTextEdit *m_notiz;
    QCheckBox *m_folgt;
    QLabel *m_verluste;
    QLabel *m_worte;
    QPushButton *m_sichern;
    QPushButton *m_abbrechen;
};
