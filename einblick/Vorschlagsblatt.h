#pragma once

#include "Einblickblatt.h"
#include "Vorschlagsmodell.h"
#include "Wirkungsmodell.h"

#include <functional>

class QComboBox;
class QLabel;
class QPushButton;
class QTableView;
class Vorschlagsfilter;

/// What would help: foods that mend what is short or too much, or that do better than one of the
/// rows, with all that they would change. Nothing is taken before the user says so.
class Vorschlagsblatt : public Einblickblatt
{
    Q_OBJECT

public:
    /// Gives the foods that may be suggested. It is asked whenever the sheet is seen and something
    /// has changed, and never before.
    using Kandidatentuer = std::function<const Kandidaten &()>;

    explicit Vorschlagsblatt(Kandidatentuer kandidaten, QWidget *parent = nullptr);

    void zeige(const Einblickstand &stand) override;
    void folgeSprache() override;

    /// Chooses an aim, if it is missed.
    void waehleZiel(Kenngroesse ziel);
    /// Chooses the row that gives up its place, by `Speise::ort`; -1: none.
    void waehleZeile(int ort);

    /// What is left out, for whoever keeps it for the client.
    Weglassgruppen weggelassene() const;
    void setzeWeggelassene(Weglassgruppen gruppen);
    /// The keys of the foods that are crossed out, likewise.
    QStringList gestrichene() const;
    void setzeGestrichene(const QStringList &schluessel);
    /// Somebody else is advised: which ratings were wanted goes by their conditions again, with
    /// what is shown next.
    void vergissWuensche();

Q_SIGNALS:
    /// The user has changed what is left out or crossed out.
    void auswahlGeaendert();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void baueAufbau();
    void fuelleZiele();
    void fuelleZeilen();
    void erneuere();
    void zeigeVorschlaege();
    void zeigeWirkung();
    void zeigeMenue(const QPoint &ort);
    void nimm();
    void streiche();
    void stelleSpalten();
    std::optional<Kenngroesse> ziel() const;
    int zeile() const;
    const Vorschlag *gewaehlter() const;
    QString leerWorte() const;
    QString randnotiz(const Vorschlagsliste &liste) const;
    QString hindernis() const;

    Kandidatentuer m_kandidaten;
    Einblickstand m_stand;
    QList<Abweichung> m_abweichungen;
    std::optional<int> m_gewuenschtesZiel; ///< as the chooser holds it; absent until one is chosen
    bool m_veraltet = true;                ///< what is shown is not what counts
    Vorschlagsmodell m_modell;
    Wirkungsmodell m_wirkung;
    QWidget *m_kopf;
    QLabel *m_zielkopf;
    QComboBox *m_ziel;
    QLabel *m_zeilenkopf;
    QComboBox *m_zeile;
    Vorschlagsfilter *m_filter;
    QTableView *m_liste;
    QLabel *m_leer;
    QLabel *m_randnotiz;
    QLabel *m_wirkungskopf;
    QTableView *m_wirkungsliste;
    QPushButton *m_nehmen;
    QPushButton *m_streichen;
};
