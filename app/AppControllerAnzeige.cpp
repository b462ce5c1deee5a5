// What is on display for the chosen food and amount: its values, its energy shares, and how it
// covers the needs of a day.

#include "AppController.h"

#include "Ampelfarbe.h"
#include "Bedarfsbeurteilung.h"
#include "Energieanteile.h"
#include "Relationen.h"
#include "Zeichenkettentabelle.h"

namespace {

/// Only values for 100 g may be saved as an own food.
constexpr int sicherbareMenge = 100;

} // namespace

void AppController::rausholen(const Datenmodul *lebensmittel)
{
    if (lebensmittel == nullptr) {
        return; // what stands on display stays
    }
    zeigeName(localizedString(lebensmittel->name()));
    unuebersetztername = lebensmittel->name();
    zeigeAnderes(lebensmittel);
    const Naehrwertreihe werte = skalieren(*lebensmittel, lebensmittelmenge->intValue());
    for (std::size_t i = 0; i < werte.size(); ++i) {
        zeigeWert(i, werte[i]);
    }
    proteinanzeige->setDoubleValue(static_cast<double>(lebensmittel->protein()));
    fettanzeige->setDoubleValue(static_cast<double>(lebensmittel->fett()));
    khanzeige->setDoubleValue(static_cast<double>(lebensmittel->kh()));
    for (const auto &zeile : wertungen) {
        m_wertungsfelder[stelle(zeile.wertung)]->setStringValue(
            lebensmittel->wertung(zeile.wertung));
    }
    zeigeErsteSchritte();
}

/// Shows the name of a food. The marked cell of the table bears it too.
void AppController::zeigeName(const QString &name)
{
    feldA->setStringValue(name);
    Tabelle->viewport()->update();
}

/// Shows one value, and hides it with its label when it is 0. Energy takes its kilojoules along.
void AppController::zeigeWert(std::size_t stelle, float zahl)
{
    Textfeld *feld = m_wertfelder[stelle];
    feld->setFloatValue(zahl);
    const std::optional<bool> sichtbar = sichtbarkeit(feld->floatValue());
    if (!sichtbar) {
        return;
    }
    feld->setVisible(*sichtbar);
    m_wertbeschriftungen[stelle]->setVisible(*sichtbar);
    if (feld == feldB) {
        joulefeld->setVisible(*sichtbar);
        joulefeldeinaus->setVisible(*sichtbar);
    }
}

void AppController::eintragen(Datenmodul &lebensmittel) const
{
    lebensmittel.setName(feldA->stringValue());
    const Naehrwertreihe werte = gezeigteWerte();
    for (const auto &zeile : naehrwerte) {
        lebensmittel.setWert(zeile.wert, werte[stelle(zeile.wert)]);
    }
    for (const auto &zeile : wertungen) {
        lebensmittel.setWertung(zeile.wertung,
                                m_wertungsfelder[stelle(zeile.wertung)]->stringValue());
    }
}

Naehrwertreihe AppController::gezeigteWerte() const
{
    Naehrwertreihe werte;
    for (std::size_t i = 0; i < werte.size(); ++i) {
        werte[i] = m_wertfelder[i]->floatValue();
    }
    return werte;
}

void AppController::wieviellebensmittel(const Wertehalter &sender)
{
    const int menge = sender.intValue();
    const QString text = sender.stringValue();
    sichernknopf->setEnabled(menge == sicherbareMenge);
    for (Schieber *regler : m_mengenregler) {
        regler->setIntValue(menge);
    }
    beschrifteMengen(text);
    if (lebensmittelmenge->intValue() == 1) {
        for (Textfeld *anzeige : m_mengenanzeigen) {
            anzeige->setStringValue(localizedString(QStringLiteral("Inhaltstoffe in 1 gramm")));
        }
    }
    const int zeile = Tabelle->selectedRow();
    const bool eigen = angeklickteSpalte == 1;
    rausholen(eigen ? eigenesLebensmittel(zeile) : eingebautesLebensmittel(zeile));
    zeigeJoule();
    rechnen();
    relationenrechnen();
}

void AppController::beschrifteMengen(const QString &menge)
{
    static const std::array<const char *, 3> anfaenge = {
        QT_TRANSLATE_NOOP("Mahlberg", "Inhaltstoffe in "),
        QT_TRANSLATE_NOOP("Mahlberg", "% der Zufuhr in "),
        QT_TRANSLATE_NOOP("Mahlberg", "BE und Relationen in "),
    };
    for (std::size_t i = 0; i < anfaenge.size(); ++i) {
        m_mengenanzeigen[i]->setStringValue(localizedString(QString::fromUtf8(anfaenge[i])) +
                                            menge + QStringLiteral(" gramm"));
    }
}

void AppController::zeigeJoule()
{
    joulefeld->setFloatValue(kilojoule(feldB->floatValue()));
}

void AppController::zeigeEnergieanteile()
{
    uebernimmEnergieanteile(
        energieanteile(proteinfeld->floatValue(), khfeld->floatValue(), fettfeld->floatValue()));
    nahrview->grammkreisMitProtein(0, 0, 0);
}

void AppController::zeigeEnergieanteileGanzzahlig()
{
    const int menge = lebensmittelmenge->intValue();
    const std::pair<CustomProgressIndicator *, Textfeld *> balken[] = {
        {proteinanzeige, proteinfeld}, {fettanzeige, fettfeld}, {khanzeige, khfeld}};
    for (const auto &[anzeige, feld] : balken) {
        anzeige->setDoubleValue(static_cast<double>(jeGramm(feld->floatValue(), menge)));
    }
    const int protein = proteinfeld->intValue();
    const int kh = khfeld->intValue();
    const int fett = fettfeld->intValue();
    uebernimmEnergieanteile(energieanteileGanzzahlig(protein, kh, fett));
    nahrview->grammkreisMitProtein(protein, kh, fett);
}

void AppController::uebernimmEnergieanteile(const Energieanteile &anteile)
{
    gesamtkal = anteile.gesamtkal;
    kalumrprot = anteile.kalumrprot;
    kalumrkh = anteile.kalumrkh;
    kalumrfett = anteile.kalumrfett;
    nahrview->wert1(kalumrprot);
    nahrview->wert2(kalumrkh);
    nahrview->wert3(kalumrfett);
}

/// What every selection ends with: all that is on display is about one food again.
void AppController::schliesseAuswahlAb()
{
    nimmGesichertesZurueck();
    LManzahl->setIntValue(static_cast<int>(Array.size()));
    zeigeJoule();
    faerbeWertungen();
    rechnen();
    relationenrechnen();
}

/// A rating that is none of the three takes the colour of the one before it.
void AppController::faerbeWertungen()
{
    Textfarbe farbe = Textfarbe::Standard;
    for (Textfeld *feld : m_wertungsfelder) {
        const QString text = feld->stringValue();
        if (text == QLatin1String("+")) {
            farbe = Textfarbe::Gruen;
        } else if (text == QLatin1String("-")) {
            farbe = Textfarbe::Rot;
        } else if (text == QLatin1String("0")) {
            farbe = Textfarbe::Blau;
        }
        feld->setTextColor(farbe);
    }
}

void AppController::rechnen()
{
    const Bedarfsbeurteilung urteil = bedarfBeurteilen(gezeigteWerte());
    for (std::size_t i = 0; i < urteil.zeilen.size(); ++i) {
        m_bedarfsfelder[i]->setTextColor(textfarbe(urteil.zeilen[i].farbe));
        m_bedarfsfelder[i]->setIntValue(urteil.zeilen[i].prozent);
        m_bedarfsbalken[i]->zeige(urteil.zeilen[i].prozent, textfarbe(urteil.zeilen[i].farbe));
    }
    if (urteil.boxtitel) {
        const QString titel = localizedString(*urteil.boxtitel);
        if (titel != beurteilungbox->title()) { // a title set anew lays the window out anew
            beurteilungbox->setTitle(titel);
        }
    }
    gesamtbeurteilungfeld->setVisible(urteil.gesamt.has_value());
    if (urteil.gesamt) {
        gesamtbeurteilungfeld->setTextColor(textfarbe(urteil.gesamt->farbe));
        gesamtbeurteilungfeld->setIntValue(urteil.gesamt->wert);
        aview->drawaRect(urteil.gesamt->balkencode);
    }
    zuWenigEnergie->setVisible(urteil.gesamt.has_value() && urteil.gesamt->zuWenigEnergie);
    aview->drawabalken(urteil.balkenlaenge);
}

void AppController::relationenrechnen()
{
    const Relationen relationen = relationenRechnen(gezeigteWerte());
    const struct
    {
        const Relation &relation;
        Textfeld *feld;
        WertungView *balken;
    } zeilen[] = {
        {relationen.natriumKalium, kanafeld, kanaview},
        {relationen.magnesiumCalcium, macafeld, macaview},
        {relationen.broteinheiten, befeld, beview},
    };
    for (const auto &[relation, feld, balken] : zeilen) {
        feld->setFloatValue(relation.wert);
        if (!relation.text.isNull()) {
            feld->setStringValue(relation.text);
        }
        if (relation.code) {
            balken->drawaRect(*relation.code);
        }
        balken->drawabalken(relation.laenge);
    }
    kaefeld->setFloatValue(relationen.kohlenhydrateinheiten);
}
