#pragma once

#include "Mass.h"
#include "Rangmodell.h"

#include <QDialog>

#include <functional>
#include <optional>

class QComboBox;
class QLabel;
class QPushButton;
class QStackedWidget;
class QTabWidget;
class QToolButton;
class Rangansicht;
class Rangfilter;
class Rollbereich;
class Vergleichsblatt;

/// The doors through which the window reaches the foods.
struct Ranglistentueren
{
    /// All foods, own ones and built-in ones, in any order; the window looks for their portions.
    std::function<QList<Kandidat>()> lebensmittel;
    /// The household measures of the food of that key.
    std::function<QList<Mass>(const QString &schluessel)> masse;
    /// What is known of the foods.
    std::function<Stoffwissen()> wissen;
};

/// Ranks all foods by a figure, as far as they are not left out, and sets a few of them side by
/// side. The window stands beside the main one and changes nothing there by itself.
class Ranglistenfenster : public QDialog
{
    Q_OBJECT

public:
    Ranglistenfenster(Ranglistentueren tueren, QWidget *parent);

    /// Reads the foods anew and shows the window in front of others; with a figure, by this one.
    void zeige(std::optional<Kenngroesse> groesse = {});
    /// The foods, their measures or what is known of them have changed.
    void frischeAuf();
    /// Another language is spoken.
    void folgeSprache();

Q_SIGNALS:
    /// The user wants to see this food in the main window.
    void lebensmittelGewuenscht(const QString &schluessel);
    /// The user wants this food in the plan.
    void planGewuenscht(const QString &schluessel);

private:
    void benenneTeile();
    void baue();
    QWidget *baueRangseite();
    QLayout *baueVergleichszeile();
    void verbinde();
    void beschrifte();
    void lies();
    void ordne();
    Rangfrage frage() const;
    void zeigeWorte(const Rangliste &liste, const Rangfrage &frage);
    QString leerWorte(const Rangfrage &frage) const;
    void zeigeFilterzahl();
    void waehle(qsizetype stelle, bool ja);
    void leereWahl();
    void zeigeWahl();
    void vergleiche();
    void zeigeMenue(const QPoint &ort);
    QString schluessel(qsizetype stelle) const { return m_kandidaten[stelle].schluessel; }

    Ranglistentueren m_tueren;
    QList<Kandidat> m_kandidaten; ///< in the order of their names
    QList<std::optional<Mass>> m_portionen;
    Stoffwissen m_wissen;
    QList<qsizetype> m_gewaehlte; ///< taken for comparing, in the order in which they were
    bool m_zuViele = false;       ///< one more was to be taken than there is room for

    QTabWidget *m_seiten;
    QLabel *m_frage;
    QComboBox *m_groesse;
    QComboBox *m_bezug;
    QComboBox *m_folge;
    QToolButton *m_eingrenzen;
    QPushButton *m_aufheben;
    Rangfilter *m_filter;
    Rollbereich *m_filterbereich;
    QStackedWidget *m_liste;
    Rangansicht *m_tabelle;
    QLabel *m_leer;
    QLabel *m_worte;
    QLabel *m_wahl;
    QPushButton *m_vergleichen;
    QPushButton *m_leeren;
    Vergleichsblatt *m_vergleich;
};
