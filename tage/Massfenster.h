#pragma once

#include "EigeneMasse.h"
#include "Portionentabelle.h"
#include "ui_Massfenster.h"

#include <QDialog>

#include <vector>

class Masszeile;
class QGridLayout;

/// The household measures of one food: the built-in ones to look at, and below them those that the
/// user gives it. What is typed is kept at once; what can't be kept stays in its fields, with a
/// word below them.
class Massfenster : public QDialog, public Ui::MassfensterGestalt
{
    Q_OBJECT

public:
    /// Both sources outlive the window.
    Massfenster(const Portionentabelle &eingebaute, EigeneMasse &eigene, QString schluessel,
                QWidget *parent);
    ~Massfenster() override;

    /// Shows the measures of the food with that key in front of all other windows. The window goes
    /// by itself when it is closed.
    static void oeffne(const Portionentabelle &eingebaute, EigeneMasse &eigene,
                       const QString &schluessel, QWidget *parent);

    /// Closes the window; what could not be written before is tried once more.
    void done(int ergebnis) override;

private:
    void baueEigene();
    void zeigeEingebaute(const QList<Mass> &masse);
    Masszeile &neueZeile();
    void ordneTasten();
    void beurteile();
    void nimmAn();
    void nimmHeraus(Masszeile &zeile);
    void geheWeiter(const Masszeile &zeile);
    void geheZu(Masszeile &zeile);
    void zeigeHindernis();
    QList<Mass> gehaltene(const Masszeile *ausser) const;

    EigeneMasse &m_eigene;
    QString m_schluessel;
    QGridLayout *m_anordnung = nullptr; ///< of the rows into which one types
    std::vector<Masszeile *> m_zeilen;  ///< the last one is empty; the page owns them
    int m_naechsteReihe = 1;            ///< of the layout; rows are not used twice
};
