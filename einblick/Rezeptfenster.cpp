#include "Rezeptfenster.h"

#include "Einblickworte.h"
#include "Hinweisstreifen.h"
#include "Portionendatei.h"
#include "Rezeptfolge.h"
#include "Rezeptworte.h"
#include "Wertungswahl.h"
#include "Zeichenkettentabelle.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>

#include <cmath>
#include <limits>
#include <utility>

namespace {

constexpr double unlesbar = std::numeric_limits<double>::quiet_NaN();

/// A number that was typed, with one of these measures behind it: absent where nothing stands, and
/// no number where it can't be read.
std::optional<double> gelesene(const QString &text, const QList<Mass> &masse = {})
{
    if (text.trimmed().isEmpty()) {
        return std::nullopt;
    }
    const Mengenergebnis ergebnis = leseMenge(text, masse);
    return ergebnis.angabe ? Rezeptworte::grammVon(*ergebnis.angabe) : unlesbar;
}

/// The word behind the number may be left out, which a fraction alone must not.
std::optional<double> gelesenePortionen(const QString &text)
{
    const Mass portion = {QStringLiteral("Portion"), QStringLiteral("Portionen"),
                          QStringLiteral("portion"), QStringLiteral("portions"), 1};
    const std::optional<double> allein = gelesene(text, {portion});
    const bool fehlt = allein && std::isnan(*allein);
    return fehlt ? gelesene(QStringLiteral("%1 %2").arg(text, portion.viele), {portion}) : allein;
}

/// A dish is reckoned before it has a name.
Rezept benannt(Rezept rezept)
{
    if (rezept.schluessel.isEmpty()) {
        rezept.schluessel = QStringLiteral("–");
    }
    return rezept;
}

/// What a portion weighs as a household measure, in g. Absent where nobody counts them, or one
/// weighs too much for a measure.
std::optional<double> massgramm(const Rezept &rezept)
{
    const std::optional<double> eine = portionsgramm(rezept);
    return eine && *eine <= Portionendatei::meisteGramm ? eine : std::nullopt;
}

} // namespace

void Rezeptfenster::zeigeRezept()
{
    m_name->setText(m_rezept.schluessel);
    m_zutaten->zeige(m_rezept.zutaten);
    m_gewicht->setText(m_rezept.fertiggewicht ? Rezeptworte::gramm(*m_rezept.fertiggewicht)
                                              : QString());
    m_portionen->setText(m_rezept.portionen ? Rezeptworte::anzahl(*m_rezept.portionen) : QString());
    m_folgt->setChecked(m_rezept.folgt);
    m_notiz->setPlainText(m_rezept.notiz);
    for (const Wertungsbeschreibung &eine : wertungen) {
        m_wertungen[stelle(eine.wertung)]->waehle(m_rezept.wertungen[stelle(eine.wertung)]);
    }
    fuelleGruppen();
    m_gruppe->setCurrentIndex(std::max(0, m_gruppe->findData(m_rezept.gruppe)));
    rechne();
}

void Rezeptfenster::folgeSpeisen(const Stoffwissen &wissen, const Rezepte &andere,
                                 const Lebensmittelverzeichnis &eingebaute,
                                 const Lebensmittelverzeichnis &eigene)
{
    m_zutaten->beendeEingabe();
    const bool unberuehrt = m_anfang && eingegebenes() == *m_anfang;
    m_wissen = wissen;
    m_andere = andere;
    const auto heutiges = andere.constFind(m_rezept.schluessel);
    if (heutiges != andere.cend()) {
        m_rezept.gegeben = heutiges->gegeben;
    }
    if (m_folgt->isChecked()) {
        m_zutaten->zeige(mitHeutigen(eingegebenes(), eingebaute, eigene).zutaten);
    }
    rechne();
    if (unberuehrt) {
        m_anfang = eingegebenes();
    }
}

Rezept Rezeptfenster::eingegebenes() const
{
    Rezept rezept = m_rezept;
    rezept.schluessel = m_name->text().trimmed();
    rezept.zutaten = m_zutaten->zutaten();
    rezept.fertiggewicht = gelesene(m_gewicht->text());
    rezept.portionen = gelesenePortionen(m_portionen->text());
    rezept.folgt = m_folgt->isChecked();
    rezept.gruppe = m_gruppe->currentData().toString();
    rezept.notiz = m_notiz->toPlainText();
    for (const Wertungsbeschreibung &eine : wertungen) {
        rezept.wertungen[stelle(eine.wertung)] = m_wertungen[stelle(eine.wertung)]->gewaehlte();
    }
    return rezept;
}

/// What keeps the dish from being kept; empty: nothing.
QString Rezeptfenster::einwandGegen(const Rezept &rezept) const
{
    if (!rezept.schluessel.isEmpty() && m_tueren.istEingebaut(rezept.schluessel)) {
        return localizedString(QStringLiteral(
            "So heißt ein eingebautes Lebensmittel. Das Gericht braucht einen anderen Namen."));
    }
    if (rezept.fertiggewicht && std::isnan(*rezept.fertiggewicht)) {
        const std::optional<Mengenangabe::Fehler> fehler = leseMenge(m_gewicht->text(), {}).fehler;
        return localizedString(QStringLiteral("Gewicht nach dem Garen: %1"))
            .arg(fehlertext(*fehler));
    }
    return mangeltext(rezeptmangel(rezept, m_wissen, m_andere));
}

void Rezeptfenster::rechne()
{
    const Rezept rezept = eingegebenes();
    const Rezept gericht = benannt(rezept);
    Rezeptergebnis ergebnis = rezeptwerte(gericht, m_wissen);
    if (ergebnis && enthaeltSich(gericht, m_andere)) {
        ergebnis.mangel = Rezeptmangel::Kreis;
    }
    std::optional<Gerichtsgroessen> gewertet;
    if (ergebnis) {
        gewertet = gerichtsgroessen(gericht, m_wissen, m_andere);
    }
    for (Wertungswahl *eine : m_wertungen) {
        eine->schlageVor(gewertet);
    }
    zeigeWerte(ergebnis);
    fuelleGruppen();
    zeigeWorte(rezept);
}

void Rezeptfenster::zeigeWerte(const Rezeptergebnis &ergebnis)
{
    for (const Kenngroessenbeschreibung &eine : kenngroessen) {
        const int reihe = static_cast<int>(stelle(eine.groesse));
        const Stoffangabe &angabe = ergebnis.angaben[stelle(eine.groesse)];
        QString wert;
        QString unbekannt;
        if (ergebnis) {
            wert = angabe.istUnbekannt() ? localizedString(QStringLiteral("unbekannt"))
                                         : Einblickworte::menge(eine.groesse, angabe.wert);
            unbekannt = angabe.unbekannt > 0 ? Einblickworte::anteil(angabe.unbekannt) : QString();
        }
        m_werte->item(reihe, 0)->setText(nameVon(eine.groesse));
        m_werte->item(reihe, 1)->setText(wert);
        m_werte->item(reihe, 2)->setText(unbekannt);
    }
}

void Rezeptfenster::zeigeWorte(const Rezept &rezept)
{
    const QString roh = Rezeptworte::gramm(rohgewicht(rezept));
    m_roh->setText(localizedString(QStringLiteral("Gewicht der Zutaten: %1")).arg(roh));
    m_gewicht->setPlaceholderText(localizedString(QStringLiteral("wie die Zutaten (%1)")).arg(roh));
    const QString wasser = Rezeptworte::wasserworte(rezept);
    m_wasser->setText(wasser);
    m_gewicht->setAccessibleDescription(wasser);
    const QString portion = Rezeptworte::portionsworte(rezept);
    m_jePortion->setText(portion);
    m_portionen->setAccessibleDescription(portion);
    // An empty window needs no reproach.
    const bool leer = rezept.schluessel.isEmpty() && rezept.zutaten.isEmpty();
    const QString einwand = leer ? QString() : einwandGegen(rezept);
    warne(einwand);
    m_sichern->setAccessibleDescription(einwand);
}

void Rezeptfenster::warne(const QString &worte)
{
    m_worte->setText(worte.isEmpty() ? QString() : QStringLiteral("⚠ ") + worte);
    m_worte->setVisible(!worte.isEmpty());
}

/// The proposed group follows the ingredients; a chosen one stays chosen.
void Rezeptfenster::fuelleGruppen()
{
    const QSignalBlocker still(m_gruppe);
    const int bisher = std::max(0, m_gruppe->currentIndex());
    const QString vorschlag =
        QString::fromUtf8(gruppenvorschlag(eingegebenes(), m_wissen, m_andere).name);
    m_gruppe->clear();
    m_gruppe->addItem(
        localizedString(QStringLiteral("Vorschlag: %1")).arg(localizedString(vorschlag)));
    for (const Lebensmittelgruppe &gruppe : lebensmittelgruppen()) {
        const QString name = QString::fromUtf8(gruppe.name);
        m_gruppe->addItem(localizedString(name), name);
    }
    m_gruppe->setCurrentIndex(bisher);
}

bool Rezeptfenster::darfErsetzen(const Rezept &rezept)
{
    const std::optional<Datenmodul> vorhandenes = m_tueren.eigenes(rezept.schluessel);
    if (!vorhandenes) {
        return true;
    }
    const bool gibtEs = !m_rezept.gegeben.name().isNull();
    const bool dasselbe = gibtEs && rezept.schluessel == m_rezept.schluessel;
    if (dasselbe && gleicherInhalt(*vorhandenes, m_rezept.gegeben)) {
        return true;
    }
    const Meldung frage = {
        .text = localizedString(QStringLiteral("Das eigene Lebensmittel ersetzen?")),
        .erklaerung =
            dasselbe ? localizedString(QStringLiteral(
                           "Es wurde von Hand geändert. Diese Änderungen gehen verloren."))
                     : localizedString(
                           QStringLiteral("Es gibt schon ein eigenes Lebensmittel dieses Namens.")),
        .knoepfe = {localizedString(QStringLiteral("Abbrechen")),
                    localizedString(QStringLiteral("Ersetzen"))},
        .gefahr = true,
        .gegenstand = rezept.schluessel};
    return m_tueren.melde(this, frage) == 1;
}

void Rezeptfenster::sichere()
{
    m_zutaten->beendeEingabe();
    Rezept rezept = eingegebenes();
    const std::optional<Datenmodul> satz = gerichtssatz(rezept, m_wissen, m_andere);
    const QString einwand = einwandGegen(rezept);
    if (!satz || !einwand.isEmpty()) {
        warne(einwand);
        if (rezept.schluessel.isEmpty() || m_tueren.istEingebaut(rezept.schluessel)) {
            m_name->setFocus(Qt::TabFocusReason);
        } else {
            m_seiten->setCurrentIndex(0);
        }
        return;
    }
    if (sagtUebersehenes() || !darfErsetzen(rezept)) {
        return;
    }
    rezept.gegeben = *satz;
    if (!m_tueren.sichere(rezept, *satz)) {
        warne(localizedString(QStringLiteral("Das Gericht ließ sich nicht sichern.")));
        return;
    }
    const std::optional<double> portion = massgramm(rezept);
    const std::optional<double> bisher =
        rezept.schluessel == m_rezept.schluessel ? massgramm(m_rezept) : std::nullopt;
    if (portion || bisher) {
        m_tueren.portion(rezept.schluessel, portion, bisher);
    }
    accept();
}

/// What was typed and did not come into the dish is told once: who saves again means it so.
bool Rezeptfenster::sagtUebersehenes()
{
    const QString angefangen = m_zutaten->nimmAngefangenes();
    QString worte;
    if (m_zutaten->nimmUnverstandenes()) {
        worte = localizedString(
            QStringLiteral("Eine Menge war nicht zu lesen und ist geblieben, wie sie war."));
    } else if (!angefangen.isEmpty()) {
        worte = localizedString(QStringLiteral("„%1“ ist noch keine Zutat."))
                    .arg(kurzerName(angefangen));
    }
    if (!worte.isEmpty()) {
        warne(worte);
        m_seiten->setCurrentIndex(0);
    }
    return !worte.isEmpty();
}

void Rezeptfenster::reject()
{
    m_zutaten->beendeEingabe();
    if (m_anfang && !(eingegebenes() == *m_anfang)) {
        const Meldung frage = {
            .text = localizedString(QStringLiteral("Die Änderungen am Rezept verwerfen?")),
            .erklaerung =
                localizedString(QStringLiteral("Was hier geändert wurde, ist nicht gesichert.")),
            .knoepfe = {localizedString(QStringLiteral("Weiter bearbeiten")),
                        localizedString(QStringLiteral("Verwerfen"))},
            .gefahr = true};
        if (m_tueren.melde(this, frage) != 1) {
            return;
        }
    }
    QDialog::reject();
}
