#pragma once

#include "Einlesung.h"
#include "Uebernahme.h"

#include <QDialog>
#include <QSet>

class Einwandliste;
class QBoxLayout;
class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QPushButton;
class Vorschautabelle;

/// A file of foods, and what it meets.
struct Einlesevorgabe
{
    QString datei;              ///< its name, as the window calls it
    Csv::Rohtext text;          ///< what stands in it, readable
    Lebensmittelbestand eigene; ///< the own foods as they are
    QSet<QString> eingebaute;   ///< the names of the built-in foods
};

/// Shows how a file of foods is understood, lets the user change it, says what is wrong in which
/// line, and hands on the own foods as they will be. Nothing changes before that is asked for, and
/// as long as a line that is wanted has a mistake, nothing can be taken over.
class Einlesefenster : public QDialog
{
    Q_OBJECT

public:
    Einlesefenster(const Einlesevorgabe &vorgabe, QWidget *parent);

Q_SIGNALS:
    /// The user takes the foods over. The window is closed then.
    void uebernommen(const Uebernahme &uebernahme);

private:
    QWidget *formteil();
    QWidget *unterteil();
    void fuelleForm(QBoxLayout &erste, QBoxLayout &zweite);
    void verbinde();
    void zerlege();
    void deute();
    void lies();
    void zeige();
    void zeigeNamen();
    void zeigeAnzahl();
    void lasseAus(int zeile, bool weg);
    void lasseFehlerhafteAus();
    void uebernimm();
    Leseauftrag auftrag() const;
    Uebernahme uebernahme() const;

    Einlesevorgabe m_vorgabe;
    Csv::Saetze m_saetze;
    Einlesung m_einlesung;
    QSet<int> m_ausgelassen;
    QComboBox *m_trennung = nullptr;
    QComboBox *m_dezimal = nullptr;
    QCheckBox *m_ueberschriften = nullptr;
    QComboBox *m_bezug = nullptr;
    QDoubleSpinBox *m_portion = nullptr;
    Vorschautabelle *m_vorschau = nullptr;
    QWidget *m_namensteil = nullptr;
    QLabel *m_namensworte = nullptr;
    QComboBox *m_namenswahl = nullptr;
    QLabel *m_worte = nullptr;
    Einwandliste *m_einwaende = nullptr;
    QPushButton *m_weglassen = nullptr;
    QPushButton *m_uebernehmen = nullptr;
};
