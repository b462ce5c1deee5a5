// Foods of the user's own: the entry sheet, the save box, changing by saving again, deleting.

#include "AppController.h"

#include "Dateihueter.h"
#include "Zeichenkettentabelle.h"

#include <algorithm>

namespace {

/// What is typed into the sheet is meant for this amount, in grams.
constexpr int eingegebeneMenge = 100;

} // namespace

void AppController::Fenster()
{
    const Datenmodul *gezeigt = gezeigtesLebensmittel();
    EingabeFensterabschreiben->setEnabled(gezeigt != nullptr);
    if (gezeigt != nullptr) {
        EingabeFensterabschreiben->setToolTip(localizedString(QStringLiteral("„%1“, je 100 g"))
                                                  .arg(localizedString(gezeigt->name())));
    }
    if (!einfenster->testAttribute(Qt::WA_Resized)) { // by itself it is two thirds of the screen
        einfenster->resize(einfenster->sizeHint());
    }
    EingabeFensterfeldA->setFocus();
    einfenster->open();
    veralteWertungsgruende();
}

void AppController::Fensterschliessen()
{
    einfenster->done(1);
}

void AppController::umschreibenDerEingabeFelder()
{
    if (EingabeFensterfeldA->stringValue().isEmpty()) {
        m_tueren.melde(einfenster, {QString(),
                                    localizedString(QStringLiteral("Bitte einen Namen eingeben")),
                                    {QStringLiteral("ok")}});
        EingabeFensterfeldA->setFocus();
        return;
    }
    for (Schieber *regler : m_mengenregler) {
        regler->setIntValue(eingegebeneMenge);
    }
    beschrifteMengen(QStringLiteral("100"));
    zeigeName(EingabeFensterfeldA->stringValue());
    for (std::size_t i = 0; i < m_wertfelder.size(); ++i) {
        m_wertfelder[i]->setFloatValue(m_eingabefelder[i]->floatValue());
    }
    for (std::size_t i = 0; i < m_wertungsfelder.size(); ++i) {
        m_wertungsfelder[i]->setStringValue(m_wertungseingaben[i]->stringValue());
    }
    zeigeJoule();
    const bool neu = !KundenDictionary.contains(feldA->stringValue());
    const bool gesichert = sichere();
    meldeUebernommenes(feldA->stringValue(), gesichert, neu);
}

bool AppController::istLeer(const Datenmodul &lebensmittel)
{
    return std::all_of(naehrwerte.begin(), naehrwerte.end(),
                       [&](const auto &zeile) { return lebensmittel.wert(zeile.wert) == 0; });
}

/// What stands in the entry sheet, as a record.
Datenmodul AppController::eingegebenesLebensmittel() const
{
    Datenmodul lebensmittel;
    lebensmittel.setName(EingabeFensterfeldA->stringValue());
    for (const auto &zeile : naehrwerte) {
        lebensmittel.setWert(zeile.wert, m_eingabefelder[stelle(zeile.wert)]->floatValue());
    }
    for (const auto &zeile : wertungen) {
        lebensmittel.setWertung(zeile.wertung,
                                m_wertungseingaben[stelle(zeile.wertung)]->stringValue());
    }
    return lebensmittel;
}

/// The record of what is on display; null when that was deleted, is of no list, or is the line
/// without values that the built-in table begins with.
const Datenmodul *AppController::gezeigtesLebensmittel() const
{
    if (zeigtEingebautes()) {
        const Datenmodul &eingebautes = *Dictionary.constFind(unuebersetztername);
        return istLeer(eingebautes) ? nullptr : &eingebautes;
    }
    for (const QString &name : {feldA->stringValue(), unuebersetztername}) {
        const auto eigenes = KundenDictionary.constFind(name);
        if (eigenes != KundenDictionary.constEnd()) {
            return &*eigenes;
        }
    }
    return nullptr;
}

/// Writes the food on display into the sheet, per 100 g, to be changed there. An own one keeps its
/// name: saving it is what changes it.
void AppController::schreibeAb()
{
    const Datenmodul *vorlage = gezeigtesLebensmittel();
    if (vorlage == nullptr) {
        return;
    }
    schreibeInsBlatt(*vorlage,
                     zeigtEingebautes() ? nameFuerAbschrift(vorlage->name()) : vorlage->name());
}

/// Writes the values of a food into the sheet under this name.
void AppController::schreibeInsBlatt(const Datenmodul &vorlage, const QString &name)
{
    EingabeFensterfeldA->setStringValue(name);
    for (const auto &zeile : naehrwerte) {
        m_eingabefelder[stelle(zeile.wert)]->setFloatValue(vorlage.wert(zeile.wert));
    }
    for (const auto &zeile : wertungen) {
        m_wertungseingaben[stelle(zeile.wertung)]->setStringValue(vorlage.wertung(zeile.wertung));
    }
    EingabeFensterfeldA->setFocus();
}

/// A name for an own food that is made from a built-in one; no other own food has it.
QString AppController::nameFuerAbschrift(const QString &name) const
{
    const QString gezeigt = localizedString(name);
    QString neuer = localizedString(QStringLiteral("%1 (eigen)")).arg(gezeigt);
    for (int zahl = 2; KundenDictionary.contains(neuer); ++zahl) {
        neuer =
            localizedString(QStringLiteral("%1 (eigen %2)")).arg(gezeigt, QString::number(zahl));
    }
    return neuer;
}

void AppController::SicherneigeneLM()
{
    const bool neu = !KundenDictionary.contains(feldA->stringValue());
    const bool gesichert = sichere();
    meldeGesichertes(feldA->stringValue(), gesichert, neu);
}

/// Saves the values on display. False when the file could not be written; the program then goes on
/// with what it holds in memory.
bool AppController::sichere()
{
    if (planmodul != nullptr) {
        planmodul->umschreibungMitName(eingegebenesLebensmittel());
    }
    const QString name = feldA->stringValue();
    const bool neu = !KundenDictionary.contains(name);
    if (neu) {
        KundenDictionary.insert(name, Datenmodul());
        KundenArray << name;
        Tabelle->reloadData();
        m_tueren.protokolliere(QStringLiteral("felda = %1").arg(name));
        m_tueren.protokolliere(
            QStringLiteral("array = (%1)").arg(KundenArray.join(QStringLiteral(", "))));
    }
    Datenmodul &eigenes = KundenDictionary[name];
    eintragen(eigenes);
    zeigeAnderes(&eigenes); // what is on display is the user's from now on
    const bool gesichert = schreibeEigeneLebensmittel();
    Q_EMIT eigeneGeaendert({neu ? Aenderungsart::Gesichert : Aenderungsart::Geaendert, name});
    return gesichert;
}

bool AppController::schreibeEigeneLebensmittel() const
{
    return m_tueren.dateien->schreiben(
        m_tueren.datenordner.pathForDataFile(QStringLiteral("customdaten")), KundenDictionary);
}

void AppController::SichernFensterAuf()
{
    const bool oeffnen = BoxAufZu == 0;
    sichernBox->setVisible(oeffnen);
    sichernaufzu->setChecked(oeffnen);
    if (oeffnen) {
        if (welcheTabelleAktiv != 0) {
            loeschenknopf->setEnabled(welcheTabelleAktiv == 2);
        }
        // What is 0 is hidden while one only looks; who saves wants to see every value.
        for (std::size_t i = 0; i < m_wertfelder.size(); ++i) {
            m_wertfelder[i]->show();
            m_wertbeschriftungen[i]->show();
        }
        joulefeld->show();
        joulefeldeinaus->show();
    }
    setzeAnzeigeBearbeitbar(oeffnen);
    BoxAufZu = oeffnen ? 1 : 0;
    veralteWertungsgruende();
}

/// While the save box is open, the displayed food can be changed where it is displayed.
void AppController::setzeAnzeigeBearbeitbar(bool bearbeitbar)
{
    feldA->setEditable(bearbeitbar);
    for (Textfeld *feld : m_wertfelder) {
        feld->setEditable(bearbeitbar);
    }
    for (Textfeld *feld : m_wertungsfelder) {
        feld->setEditable(bearbeitbar);
    }
}

void AppController::LoescheneigeneLM()
{
    const QString name = feldA->stringValue();
    if (!KundenArray.contains(name)) {
        m_tueren.melde(Hauptfenster,
                       {localizedString(QStringLiteral(
                            "Achtung !  Sie koennen nur eigene Lebensmittel loeschen !")),
                        localizedString(QStringLiteral(
                            "Bitte waehlen Sie zuerst ein eigenes Lebensmittel zum Loeschen aus ")),
                        {localizedString(QStringLiteral("ok"))}});
        return;
    }
    const int antwort = m_tueren.melde(
        Hauptfenster,
        {.text = localizedString(QStringLiteral("Achtung !")),
         .erklaerung = localizedString(QStringLiteral(
             "Moechten Sie dieses eigene Lebensmittel wirklich dauerhaft loeschen ?  ")),
         .knoepfe = {localizedString(QStringLiteral("Nein")),
                     localizedString(QStringLiteral("Ja"))},
         .gefahr = true,
         .gegenstand = localizedString(QStringLiteral("„%1“")).arg(kurzerName(name))});
    if (antwort == 0) {
        return;
    }
    KundenDictionary.remove(name);
    const bool gesichert = schreibeEigeneLebensmittel();
    // The list's entry is found by the selected row: the delete button is only enabled when the
    // food was chosen there.
    const int zeile = Tabelle->selectedRow();
    if (zeile >= 0 && zeile < KundenArray.size()) {
        KundenArray.removeAt(zeile);
    }
    Tabelle->reloadData();
    if (planmodul != nullptr) {
        planmodul->loeschenvonkundeneintraegen(name);
    }
    Q_EMIT eigeneGeaendert({Aenderungsart::Geloescht, name});
    meldeGeloeschtes(name, gesichert);
}

void AppController::uebernimmEigene(const Lebensmittelverzeichnis &eigene, const QStringList &namen)
{
    const QStringList vorher = KundenArray;
    KundenDictionary = eigene;
    KundenArray = namen;
    Tabelle->reloadData();
    folgeAuswahl(vorher);
    nimmGesichertesZurueck();
    if (planmodul != nullptr) {
        planmodul->uebernimmEigene(eigene);
    }
    schreibeEigeneLebensmittel();
}

/// Deleting takes the selected row out of the list, so the selection stays with the own food on
/// display when that has moved. One that is gone can't be selected, nor be deleted.
void AppController::folgeAuswahl(const QStringList &vorher)
{
    const bool eigenes = angeklickteSpalte > 0 && !unuebersetztername.isNull() &&
                         vorher.indexOf(unuebersetztername) == Tabelle->selectedRow();
    const auto zeile = static_cast<int>(KundenArray.indexOf(unuebersetztername));
    if (!eigenes || zeile == Tabelle->selectedRow()) {
        return;
    }
    if (zeile >= 0 && zeile < Tabelle->modell()->rowCount()) {
        Tabelle->selectRow(zeile);
    } else {
        Tabelle->clearSelection();
        loeschenknopf->setEnabled(false);
    }
}
