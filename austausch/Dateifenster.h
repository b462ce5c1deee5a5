#pragma once

#include "Lebensmittelbestand.h"
#include "Lebensmitteldatei.h"
#include "Uebernahme.h"

#include <QDialog>

class Namensvergleich;
class QLabel;
class QPushButton;
class QTableView;
class Uebernahmetabelle;

/// Shows what a ".daten" file holds, and asks which of its foods come to the own foods. Nothing
/// changes before that is answered, and the file never does. Of a plan the rows are shown: it holds
/// names and amounts and no values that could be taken over.
class Dateifenster : public QDialog
{
    Q_OBJECT

public:
    /// A file that can be read; the stores as they are now.
    Dateifenster(const Lebensmitteldatei &datei, const Lebensmittelbestand &eigene,
                 const Lebensmittelverzeichnis &eingebaute, QWidget *parent);

Q_SIGNALS:
    /// The user wants these foods, and this for names that are taken. The window is closed then.
    void uebernehmen(const QList<Datenmodul> &lebensmittel, const Namenswahl &wahl);

private:
    QWidget *kopf();
    QWidget *plantafel(const Lebensmittelbestand &eigene,
                       const Lebensmittelverzeichnis &eingebaute);
    QWidget *lebensmitteltafel(const Lebensmittelbestand &eigene,
                               const Lebensmittelverzeichnis &eingebaute);
    QWidget *wahlknoepfe();
    QWidget *unterteil();
    void zeigeZeile();
    void zeigeErgebnis();
    void uebernimmGewaehltes();

    Lebensmitteldatei m_datei;
    Uebernahmetabelle *m_modell = nullptr; ///< null for a plan
    QTableView *m_tabelle = nullptr;
    Namensvergleich *m_vergleich = nullptr; ///< null while no name is taken
    QLabel *m_erklaerung = nullptr;
    QLabel *m_ergebnis = nullptr;
    QPushButton *m_nehmen = nullptr;
};
