// The main table: its three columns, the marks of the chosen cell, drags out of it, and the
// selection that puts a food on display.

#include "AppController.h"

#include "Energieanteile.h"
#include "Zeichenkettentabelle.h"

namespace {

const QString spalteName = QStringLiteral("name");
const QString spalteEigen = QStringLiteral("eigen");
const QString spalteSuch = QStringLiteral("such");

constexpr int geklicktEigen = 1;
constexpr int geklicktSuch = 2;

constexpr int ausBestandEingebaut = 1;
constexpr int ausBestandEigen = 2;

/// Rows of the built-in list that show the food of row 575: entries of one food under several
/// names, arranged so by whoever makes the table.
constexpr std::array<int, 3> zweitnamen = {576, 577, 604};
constexpr int hauptname = 575;

/// The table shows its foods up to the row before this one.
constexpr int ersteUngezeigteZeile = 1016;

/// Size of the first letter of the chosen built-in food, in points.
constexpr int markenpunkte = 14;

/// The record of a row. A row beyond the list has none, even when a food is kept without a name.
const Datenmodul *eintrag(const Lebensmittelverzeichnis &verzeichnis, const QStringList &liste,
                          int zeile)
{
    const QString name = liste.value(zeile);
    const auto gefunden = name.isNull() ? verzeichnis.constEnd() : verzeichnis.constFind(name);
    return gefunden == verzeichnis.constEnd() ? nullptr : &*gefunden;
}

} // namespace

int AppController::numberOfRows() const
{
    return static_cast<int>(Array.size());
}

QString AppController::objectValue(const QString &spalte, int zeile)
{
    if (spalte == spalteName) {
        return localizedString(Array.value(zeile));
    }
    if (spalte == spalteEigen) {
        return localizedString(KundenArray.value(zeile));
    }
    return localizedString(suchArray.value(zeile));
}

Zellenbild AppController::willDisplayCell(const QString &spalte, int zeile, const QString &wert)
{
    Zellenbild bild;
    bild.text = wert;
    const bool eigen = angeklickteSpalte == geklicktEigen;
    const bool such = angeklickteSpalte == geklicktSuch;
    const QString &markiert = eigen ? spalteEigen : such ? spalteSuch : spalteName;
    const QStringList &liste = eigen ? KundenArray : such ? suchArray : Array;
    if (spalte == markiert && zeile == Tabelle->selectedRow() && zeile < liste.size()) {
        bild.umrandet = true;
        bild.text = feldA->stringValue();
        bild.anfang = eigen || such ? Textfarbe::Rot : Textfarbe::Gruen;
        bild.anfangspunkte = eigen || such ? 0 : markenpunkte;
    }
    return bild;
}

QString AppController::writeRows(const QString &spalte, int zeile)
{
    if (spalte == spalteName) {
        return Array.value(zeile);
    }
    // The search column shows translated names and gives away the keys that belong to them.
    return spalte == spalteEigen ? KundenArray.value(zeile) : suchArray2.value(zeile);
}

void AppController::Laden()
{
    Tabelle->viewport()->update();
    loeschenknopf->setEnabled(false);
    int zeile = Tabelle->selectedRow();
    angeklickteSpalte = Tabelle->clickedColumn();
    if (zeile < 0) {
        if (Array.isEmpty()) {
            m_tueren.melde(Hauptfenster,
                           {localizedString(QStringLiteral("Keine Lebensmittel gefunden!")),
                            localizedString(QStringLiteral("Datenpaket könnte beschädigt sein")),
                            {localizedString(QStringLiteral("ok"))}});
        }
        return;
    }
    if (std::find(zweitnamen.begin(), zweitnamen.end(), zeile) != zweitnamen.end()) {
        zeile = hauptname;
    }
    zeigeAnteilsbalken(zeile != 0);

    const Datenmodul *lebensmittel = waehleLebensmittel(zeile);

    const bool gezeigt = Tabelle->selectedRow() < ersteUngezeigteZeile;
    zeigeDatenansicht(gezeigt);
    if (gezeigt) {
        if (Array.value(zeile) == QLatin1String("Mettwurst")) {
            return;
        }
        rausholen(lebensmittel);
        if (lebensmittel != nullptr && Tabelle->clickedColumn() >= 0) {
            merkeGewaehltes();
        }
    }
    zeigeEnergieanteile();
    schliesseAuswahlAb();
}

/// The food of the chosen row in the list of the clicked column; null when there is none, or when
/// a search result is only to be found in the table and not to be taken over.
const Datenmodul *AppController::waehleLebensmittel(int zeile)
{
    const bool such = angeklickteSpalte == geklicktSuch;
    setzeMengenregler(!such);
    for (Textfeld *anzeige : m_mengenanzeigen) {
        anzeige->setEnabled(!such);
    }
    if (such) {
        return gesuchtesLebensmittel(zeile);
    }
    const bool eigen = angeklickteSpalte == geklicktEigen;
    loeschenknopf->setEnabled(eigen);
    welcheTabelleAktiv = eigen ? ausBestandEigen : ausBestandEingebaut;
    return eigen ? eigenesLebensmittel(zeile) : eingebautesLebensmittel(zeile);
}

const Datenmodul *AppController::eingebautesLebensmittel(int zeile) const
{
    return eintrag(Dictionary, Array, zeile);
}

const Datenmodul *AppController::eigenesLebensmittel(int zeile) const
{
    return eintrag(KundenDictionary, KundenArray, zeile);
}

/// Moves the selection to the food that a search result stands for. The last match wins, and own
/// foods are looked through last.
const Datenmodul *AppController::gesuchtesLebensmittel(int zeile)
{
    const Datenmodul *gefunden = nullptr;
    const QString gesucht = suchArray.value(zeile);
    const auto treffer = [this](int stelle) {
        Tabelle->selectRow(stelle);
        Tabelle->scrollRowToVisible(stelle);
        return direkteuebernahme->isChecked();
    };
    for (int i = 0; !gesucht.isNull() && i < Array.size(); ++i) {
        if ((gesucht == Array[i] || gesucht == m_uebersetzt[i]) && treffer(i)) {
            gefunden = eingebautesLebensmittel(i);
        }
    }
    for (int j = 0; !gesucht.isNull() && j < KundenArray.size(); ++j) {
        if (gesucht == KundenArray[j] && treffer(j)) {
            gefunden = eigenesLebensmittel(j);
        }
    }
    return gefunden;
}

void AppController::LadeneigeneLM()
{
    Tabelle->viewport()->update();
    loeschenknopf->setEnabled(true);
    const int zeile = Tabelle->selectedRow();
    const bool gewaehlt = zeile >= 0;
    setzeMengenregler(gewaehlt);
    zeigeAnteilsbalken(gewaehlt);
    if (gewaehlt) {
        DatenAnsicht->show();
        zeigeAnsicht(QStringLiteral("zwei"));
    }
    const Datenmodul *lebensmittel = gewaehlt ? eigenesLebensmittel(zeile) : nullptr;
    rausholen(lebensmittel);
    if (lebensmittel != nullptr) {
        merkeGewaehltes();
    }
    zeigeEnergieanteileGanzzahlig();
    schliesseAuswahlAb();
    if (lebensmittel != nullptr) {
        folgeTreffer(lebensmittel->name());
    }
}

void AppController::setzeMengenregler(bool bedienbar)
{
    for (Schieber *regler : m_mengenregler) {
        regler->setEnabled(bedienbar);
    }
}

void AppController::zeigeAnteilsbalken(bool sichtbar)
{
    for (CustomProgressIndicator *balken : {proteinanzeige, fettanzeige, khanzeige}) {
        balken->setVisible(sichtbar);
    }
}

void AppController::zeigeDatenansicht(bool sichtbar)
{
    DatenAnsicht->setVisible(sichtbar);
    for (Textfeld *feld : m_wertungsfelder) {
        feld->setVisible(sichtbar);
    }
}
