#pragma once

#include "Vorschlaege.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QToolButton;
class QVBoxLayout;

/// What may be suggested: what each rating must be, which groups are left out, and which foods are
/// crossed out. The choices fold away, and what is chosen is then said in a line.
class Vorschlagsfilter : public QWidget
{
    Q_OBJECT

public:
    explicit Vorschlagsfilter(QWidget *parent = nullptr);

    Vorschlagsbedingungen bedingungen() const;

    void setzeWertungen(const std::array<Wertungswunsch, anzahlWertungen> &wuensche);
    Weglassgruppen weggelassene() const;
    void setzeWeggelassene(Weglassgruppen gruppen);
    /// The keys of the foods that are crossed out, in the order in which they were.
    const QStringList &gestrichene() const { return m_gestrichene; }
    void setzeGestrichene(const QStringList &schluessel);
    void streiche(const QString &schluessel);

    /// Another language is spoken.
    void folgeSprache();

Q_SIGNALS:
    /// The user, or `streiche`, has changed what may be suggested.
    void geaendert();

private:
    void baueWertungen(QVBoxLayout &anordnung);
    void baueGruppen(QVBoxLayout &anordnung);
    void fuelleGestrichene();
    void nimmWiederAuf();
    void klappe();
    QString worte() const;

    QToolButton *m_klappe;
    QLabel *m_worte;
    QWidget *m_feld;
    QLabel *m_wertungskopf;
    QLabel *m_gruppenkopf;
    QLabel *m_vorbehalt;
    std::array<QLabel *, anzahlWertungen> m_wertungsnamen = {};
    std::array<QComboBox *, anzahlWertungen> m_wuensche = {};
    std::array<QCheckBox *, weglassgruppen.size()> m_gruppen = {};
    QWidget *m_gestrichenenzeile;
    QLabel *m_gestrichenenkopf;
    QComboBox *m_gestrichenenwahl;
    QPushButton *m_aufnehmen;
    QStringList m_gestrichene;
};
