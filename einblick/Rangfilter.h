#pragma once

#include "Rangliste.h"

#include <QWidget>

#include <array>

class Bereichszeile;
class QComboBox;
class QLabel;
class QPushButton;
class QVBoxLayout;

/// Where the user says which foods are to be ranked: by group, by ratings and by ranges of figures.
class Rangfilter : public QWidget
{
    Q_OBJECT

public:
    explicit Rangfilter(QWidget *parent = nullptr);

    /// Writes what is chosen here into the question.
    void trageEin(Rangfrage &frage) const;
    /// How many of the choices leave foods out.
    int zahl() const;
    /// Nothing leaves foods out any more.
    void leere();
    /// The figure that a new range is about.
    void setzeVorgabe(Kenngroesse groesse) { m_vorgabe = groesse; }
    /// Another language is spoken.
    void folgeSprache();

Q_SIGNALS:
    /// Other foods are to be ranked.
    void geaendert();

private:
    void baueWertungen(QVBoxLayout &anordnung);
    void fuelleGruppen();
    void neuerBereich();
    void entferne(Bereichszeile *zeile);
    void ordneTasten();

    QLabel *m_gruppenwort;
    QComboBox *m_gruppe;
    std::array<QLabel *, anzahlWertungen> m_wertungsworte = {};
    std::array<QComboBox *, anzahlWertungen> m_wertungen = {};
    QVBoxLayout *m_bereichsordnung;
    QList<Bereichszeile *> m_bereiche;
    QPushButton *m_neu;
    Kenngroesse m_vorgabe = Kenngroesse::kal;
};
