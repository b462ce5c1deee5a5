// What stands where nothing is yet: first steps, empty lists, searches without a result, and the
// reasons of controls that can't be used.

#include "AppController.h"

#include "Spaltenhinweis.h"
#include "Sperrgrund.h"
#include "Zeichenkettentabelle.h"

#include <QAccessible>
#include <QDoubleSpinBox>
#include <QSlider>

#include <algorithm>

void AppController::verbindeLeeres()
{
    m_eigenhinweis = new Spaltenhinweis(*Tabelle, QStringLiteral("eigen"));
    m_suchhinweis = new Spaltenhinweis(*Tabelle, QStringLiteral("such"));
    connect(Tabelle, &Tabellenansicht::neuGelesen, this, &AppController::zeigeLeeres);
    begruendeSperren();
}

/// Brings the words over the empty columns up to date.
void AppController::zeigeLeeres()
{
    const bool leer = KundenArray.isEmpty() && !Array.isEmpty();
    const QString neu = QKeySequence(QKeySequence::New).toString(QKeySequence::NativeText);
    m_eigenhinweis->zeige(
        leer ? localizedString(QStringLiteral("Noch keine.\nNeu: %1")).arg(neu) : QString(), 0);
    zeigeErsteSchritte();
    const QString vorher = m_suchhinweis->text();
    m_suchhinweis->zeige(leereSuche(), static_cast<int>(suchArray.size()));
    if (!m_vergeblich.isEmpty() && m_suchhinweis->text() != vorher) {
        QAccessibleEvent vorlesen(m_suchhinweis, QAccessible::Alert);
        QAccessible::updateAccessibility(&vorlesen);
    }
}

/// What to try when a search found nothing; empty while there are results.
QString AppController::leereSuche() const
{
    return suchArray.size() > 1 || Array.isEmpty() ? QString() : m_vergeblich;
}

/// The way through the program stands where the values will be, until the user has chosen a food.
void AppController::zeigeErsteSchritte()
{
    const bool leer = !hatGewaehlt() && !Array.isEmpty() &&
                      std::all_of(m_wertfelder.begin(), m_wertfelder.end(),
                                  [](const Textfeld *feld) { return feld->isHidden(); });
    if (leer) {
        const QString taste =
            QKeySequence(QStringLiteral("Ctrl+Return")).toString(QKeySequence::NativeText);
        ersteSchritte->setText(
            localizedString(QStringLiteral("So geht es los:\n"
                                           "1. Links oben einen Namen suchen.\n"
                                           "2. Ein Lebensmittel anklicken.\n"
                                           "3. Hier oben die Menge einstellen.\n"
                                           "4. Mit %1 in den Mahlzeitenplan geben."))
                .arg(taste));
    }
    ersteSchritte->setVisible(leer);
}

void AppController::begruendeSperren()
{
    const QString menge = localizedString(
        QStringLiteral("Die Menge lässt sich einstellen, sobald das Lebensmittel in der Spalte "
                       "„Lebensmittel“ oder „Eigene“ angeklickt ist."));
    for (const Schieber *regler : m_mengenregler) {
        new Sperrgrund(regler->regler(), menge);
        new Sperrgrund(regler->eingabe(), menge);
    }
    new Sperrgrund(sichernknopf,
                   localizedString(QStringLiteral("Gesichert werden Werte für 100 g: Stellen Sie "
                                                  "zuerst die Menge auf 100 g.")));
    new Sperrgrund(loeschenknopf, localizedString(QStringLiteral(
                                      "Wählen Sie zuerst ein Lebensmittel in der Spalte "
                                      "„Eigene“.")));
    new Sperrgrund(EingabeFensterabschreiben,
                   localizedString(QStringLiteral("Es ist kein Lebensmittel zu sehen.")));
    const QString kriterium = localizedString(
        QStringLiteral("Schalten Sie das Kriterium davor ein, um es einzustellen."));
    for (QWidget *feld : std::initializer_list<QWidget *>{
             proteingroesserkleiner, proteineingabe, uebergewichtprofil, diabetesprofil,
             gichtprofil, hkkprofil, kaloriengroesserkleiner, kalorieneingabe}) {
        new Sperrgrund(feld, kriterium);
    }
}
