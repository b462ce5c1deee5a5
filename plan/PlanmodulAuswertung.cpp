// What the plan window shows about its rows: shares of the day's needs, counted ratings, the
// circle, the face, and what becomes of the weight.

#include "Planmodul.h"

#include "Ampelfarbe.h"
#include "Bmi.h"
#include "Ganzzahl.h"
#include "Planregeln.h"
#include "Planurteil.h"
#include "Planzeilen.h"
#include "Prognose.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

#include <cmath>
#include <utility>

namespace {

using Gestalt = Ui::PlanmodulGestalt;

/// The outlets of a nutrient's share, in the record's order.
struct Naehrwertfelder
{
    Textfeld *Gestalt::*prozent;
    WertungView *Gestalt::*balken;
};

constexpr std::array<Naehrwertfelder, anzahlNaehrwerte> naehrwertfelder = {{
    {&Gestalt::gesamtkal, &Gestalt::gesamtkalview},
    {&Gestalt::gesamtprotein, &Gestalt::gesamtproteinview},
    {&Gestalt::gesamtfett, &Gestalt::gesamtfettview},
    {&Gestalt::gesamtkohlenhydrate, &Gestalt::gesamtkohlenhydrateview},
    {&Gestalt::gesamtballaststoffe, &Gestalt::gesamtballaststoffeview},
    {&Gestalt::gesamtcholesterin, &Gestalt::gesamtcholesterinview},
    {&Gestalt::gesamtnatrium, &Gestalt::gesamtnatriumview},
    {&Gestalt::gesamtkalium, &Gestalt::gesamtkaliumview},
    {&Gestalt::gesamtcalcium, &Gestalt::gesamtcalciumview},
    {&Gestalt::gesamtphosphor, &Gestalt::gesamtphosphorview},
    {&Gestalt::gesamtmagnesium, &Gestalt::gesamtmagnesiumview},
    {&Gestalt::gesamteisen, &Gestalt::gesamteisenview},
    {&Gestalt::gesamtvitamina, &Gestalt::gesamtvitaminaview},
    {&Gestalt::gesamtvitaminb1, &Gestalt::gesamtvitaminb1view},
    {&Gestalt::gesamtvitaminb2, &Gestalt::gesamtvitaminb2view},
    {&Gestalt::gesamtvitaminb6, &Gestalt::gesamtvitaminb6view},
    {&Gestalt::gesamtvitaminc, &Gestalt::gesamtvitamincview},
}};

/// The outlets of a rating's counts, in the record's order.
struct Wertungsfelder
{
    Zaehlfeld *Gestalt::*plus;
    Zaehlfeld *Gestalt::*neutral;
    Zaehlfeld *Gestalt::*minus;
};

constexpr std::array<Wertungsfelder, anzahlWertungen> wertungsfelder = {{
    {&Gestalt::uebergewichtpos, &Gestalt::uebergewichtneutral, &Gestalt::uebergewichtneg},
    {&Gestalt::diabetespos, &Gestalt::diabetesneutral, &Gestalt::diabetesneg},
    {&Gestalt::gichtpos, &Gestalt::gichtneutral, &Gestalt::gichtneg},
    {&Gestalt::hkkpos, &Gestalt::hkkneutral, &Gestalt::hkkneg},
}};

void setzeStil(Zaehlfeld &feld, const Zeichenstil &stil)
{
    feld.setAnfang(textfarbe(stil.farbe), stil.punktgroesse);
}

/// What the change of the weight is called, and how it is read out.
using Aenderungsworte = std::pair<const char *, const char *>;

constexpr Aenderungsworte zunahmeworte = {
    QT_TRANSLATE_NOOP("Mahlberg", "Zunahme"),
    QT_TRANSLATE_NOOP("Mahlberg", "Zunahme des Gewichts in diesem Zeitraum")};
constexpr Aenderungsworte abnahmeworte = {
    QT_TRANSLATE_NOOP("Mahlberg", "Abnahme"),
    QT_TRANSLATE_NOOP("Mahlberg", "Abnahme des Gewichts in diesem Zeitraum")};
constexpr Aenderungsworte gleichworte = {
    QT_TRANSLATE_NOOP("Mahlberg", "Änderung"),
    QT_TRANSLATE_NOOP("Mahlberg", "Änderung des Gewichts in diesem Zeitraum")};

/// A figure that ran over says nothing: a dash stands for it, as before anything was worked out.
void zeigeZahl(Textfeld &feld, double zahl)
{
    if (std::isfinite(zahl)) {
        feld.setDoubleValue(zahl);
    } else {
        feld.setStringValue(QStringLiteral("-"));
    }
}

/// What is missing of the client for the course of the weight; null when nothing is.
QString fehlendes(const Klient &klient)
{
    const bool gewicht = klient.gewicht > 0;
    const bool groesse = klient.groesse > 0;
    if (gewicht && groesse) {
        return {};
    }
    return gewicht ? localizedString(QStringLiteral(
                         "Ohne Größe (unter „Körper und Energie“) sagen die Farben nichts."))
           : groesse
               ? localizedString(QStringLiteral(
                     "Für den Verlauf fehlt das Gewicht (unter „Körper und Energie“)."))
               : localizedString(QStringLiteral(
                     "Für den Verlauf fehlen Gewicht und Größe (unter „Körper und Energie“)."));
}

} // namespace

std::vector<Planzeile> Planmodul::zeilen() const
{
    return planzeilen(*this, Dictionary, KundenDictionary);
}

void Planmodul::datenberechnen()
{
    if (m_fenster == nullptr) {
        return;
    }
    const std::vector<Planzeile> alle = zeilen();
    const Planauswertung auswertung = planAuswerten(alle, klient.bedarf, klient.unbereinigt);
    zeigeBedarf();
    zeigeNaehrwerte(auswertung);
    zeigeMengen(auswertung);
    zeigeSummen(auswertung, alle);
    zeigeWertungen(auswertung);
    if (auswertung.energie) {
        Kalorienbedarf->setIntValue(auswertung.energie->bedarf);
        Kalorienerrechnet->setIntValue(auswertung.energie->errechnet);
        verlustberechnen();
    }
    kreisansicht->wert1(auswertung.proteinanteil);
    kreisansicht->wert2(auswertung.khanteil);
    kreisansicht->wert3(auswertung.fettanteil);
    kreisworte->setText(kreisansicht->beschreibung());
    zeigeBeurteilung(auswertung);
}

/// Beside each bar stands a sign of its verdict: for those who can't tell the colours apart, and
/// for a printer that knows only black.
void Planmodul::stelleZeichenDazu()
{
    int zeichenbreite = 0;
    for (const char *zeichen : {"✓", "≈", "✗"}) {
        const QLabel probe(QString::fromUtf8(zeichen));
        zeichenbreite = std::max(zeichenbreite, probe.minimumSizeHint().width());
    }
    for (std::size_t i = 0; i < anzahlNaehrwerte; ++i) {
        int zeile = 0;
        int spalte = 0;
        int hoch = 0;
        int breit = 0;
        anteilsgitter->getItemPosition(anteilsgitter->indexOf(this->*naehrwertfelder[i].balken),
                                       &zeile, &spalte, &hoch, &breit);
        m_zeichen[i] = new QLabel(boxinhalt);
        m_zeichen[i]->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // none moves
        m_zeichen[i]->setMinimumWidth(zeichenbreite);
        anteilsgitter->addWidget(m_zeichen[i], zeile, spalte + 1);
    }
}

void Planmodul::zeigeNaehrwerte(const Planauswertung &auswertung)
{
    for (std::size_t i = 0; i < anzahlNaehrwerte; ++i) {
        const Plannaehrwert &naehrwert = auswertung.naehrwerte[i];
        zeigeZahl(*(this->*naehrwertfelder[i].prozent), naehrwert.prozent);
        WertungView &balken = *(this->*naehrwertfelder[i].balken);
        if (naehrwert.balken) {
            if (naehrwert.balken->code) {
                balken.drawaRect(*naehrwert.balken->code);
            }
            balken.drawabalken(naehrwert.balken->laenge);
        }
        m_zeichen[i]->setText(balken.zeichen());
    }
}

/// The amounts behind the percentages.
void Planmodul::zeigeMengen(const Planauswertung &auswertung)
{
    for (const Planregel &regel : planregeln) {
        const QString worte =
            mengenworte(regel, auswertung.naehrwerte[stelle(regel.wert)].summe, klient.bedarf);
        Textfeld &feld = *(this->*naehrwertfelder[stelle(regel.wert)].prozent);
        feld.setToolTip(worte);
        feld.setAccessibleDescription(worte);
    }
}

/// Below the table, what its columns add up to.
void Planmodul::zeigeSummen(const Planauswertung &auswertung, std::span<const Planzeile> zeilen)
{
    const float energie = auswertung.naehrwerte[stelle(Naehrwert::kal)].summe;
    m_summenzeilen.setzeSummen(plansummen(zeilen, klient.bedarf), static_cast<double>(energie));
    SummenTabelle->reloadData();
}

void Planmodul::zeigeWertungen(const Planauswertung &auswertung)
{
    for (std::size_t i = 0; i < anzahlWertungen; ++i) {
        const Planwertung &wertung = auswertung.wertungen[i];
        Zaehlfeld &plus = *(this->*wertungsfelder[i].plus);
        Zaehlfeld &neutral = *(this->*wertungsfelder[i].neutral);
        Zaehlfeld &minus = *(this->*wertungsfelder[i].minus);
        plus.setIntValue(wertung.plus);
        neutral.setIntValue(wertung.neutral);
        minus.setIntValue(wertung.minus);
        if (wertung.sieger) {
            const Wertungsstil stil = wertungsstil(*wertung.sieger);
            setzeStil(plus, stil.plus);
            setzeStil(neutral, stil.neutral);
            setzeStil(minus, stil.minus);
        }
    }
}

void Planmodul::zeigeBeurteilung(const Planauswertung &auswertung)
{
    planbeurteilungfaceview->entscheidung(auswertung.gesicht);
    planworte->setText(planurteil(auswertung, PlanArray.isEmpty()) + u'\n' +
                       punkteworte(auswertung));
    zeigeFehlendePunkte(auswertung);
}

/// Which points a plan lacks: nutrients with the share that earns none, and ratings.
void Planmodul::zeigeFehlendePunkte(const Planauswertung &auswertung)
{
    const QString worte = PlanArray.isEmpty() ? QString() : fehlendePunkte(auswertung);
    for (QWidget *teil : std::initializer_list<QWidget *>{planworte, planbeurteilungfaceview}) {
        // As rich text a long list is broken into lines.
        teil->setToolTip(
            worte.isEmpty() ? worte : QStringLiteral("<qt>%1</qt>").arg(worte.toHtmlEscaped()));
        teil->setAccessibleDescription(worte);
    }
}

/// What 100 % of the energy are, as they were when the shares were worked out.
void Planmodul::zeigeBedarf()
{
    bedarfsworte->setText(energieworte(klient.bedarf, klient.unbereinigt));
}

void Planmodul::zeigeKlient()
{
    if (m_fenster != nullptr) {
        zeigeZahl(*BMI, static_cast<double>(bmi(klient.gewicht, klient.groesse)));
        zeigeVerlaufworte();
    }
}

/// The field shows a loss with its sign and a gain without one; the word before it says which of
/// the two it is.
void Planmodul::zeigeAenderung(float kilogramm)
{
    Gewichtsverlust->setFloatValue(kilogramm);
    const auto &[wort, vorgelesen] = kilogramm > 0   ? zunahmeworte
                                     : kilogramm < 0 ? abnahmeworte
                                                     : gleichworte;
    aenderungswort->setText(localizedString(QString::fromUtf8(wort)));
    Gewichtsverlust->setAccessibleName(localizedString(QString::fromUtf8(vorgelesen)));
}

/// A loss that is wished for, and that this plan can't bring: the days beside it are none in which
/// it would come.
void Planmodul::zeigeWunschworte()
{
    const int bedarf = Kalorienbedarf->intValue();
    const int errechnet = Kalorienerrechnet->intValue();
    const bool erreichbar = wunschverlust->floatValue() <= 0 || bedarf > errechnet;
    const QString worte =
        erreichbar    ? QString()
        : bedarf <= 0 ? localizedString(QStringLiteral(
                            "Ob der Wunsch erreicht wird, ist ohne Energiebedarf nicht bekannt."))
        : bedarf == errechnet
            ? localizedString(QStringLiteral("Mit diesem Plan nicht zu erreichen: Er hat so viel "
                                             "Energie, wie gebraucht wird."))
            : localizedString(QStringLiteral("Mit diesem Plan nicht zu erreichen: Er hat mehr "
                                             "Energie, als gebraucht wird."));
    wunschworte->setText(worte);
    wunschworte->setVisible(!worte.isEmpty());
    for (Textfeld *feld : {Tage, wunschverlust}) {
        feld->setAccessibleDescription(worte);
    }
}

/// Before the first projection the window's own words stay. The course of another weight or height
/// is not told any more.
void Planmodul::zeigeVerlaufworte()
{
    if (!m_projiziert) {
        return;
    }
    const bool veraltet =
        klient.gewicht != m_projiziert->gewicht || klient.groesse != m_projiziert->groesse;
    const bool unbekannt = klient.gewicht == 0 && klient.groesse == 0;
    QStringList saetze = {unbekannt  ? QString()
                          : veraltet ? localizedString(QStringLiteral(
                                           "Gewicht oder Größe sind neu: Der Verlauf folgt "
                                           "mit der nächsten Änderung am Plan."))
                                     : gewichtview->beschreibung(),
                          fehlendes(klient)};
    saetze.removeAll(QString());
    verlaufworte->setText(saetze.join(u' '));
}

void Planmodul::verlustberechnen()
{
    if (m_fenster == nullptr) {
        return;
    }
    const Prognose::Verlauf verlauf =
        Prognose::verlustberechnen({.tage = Tage->floatValue(),
                                    .bedarf = Kalorienbedarf->intValue(),
                                    .errechnet = Kalorienerrechnet->intValue(),
                                    .gewicht = klient.gewicht,
                                    .groesse = klient.groesse});
    if (verlauf.tage) {
        Tage->setFloatValue(*verlauf.tage);
    }
    zeigeAenderung(verlauf.gewichtsverlust);
    zeigeZahl(*BMI, static_cast<double>(verlauf.bmi));
    zeigeZahl(*BMIneu, static_cast<double>(verlauf.bmiNeu));
    gewichtview->wert1(ganzzahl(static_cast<double>(klient.gewicht)));
    gewichtview->setGewichtHeute(klient.gewicht);
    gewichtview->wert2(Kalorienbedarf->intValue());
    gewichtview->wert3(Kalorienerrechnet->intValue());
    gewichtview->wert4(klient.groesse);
    m_projiziert = klient;
    zeigeVerlaufworte();
    zeigeWunschworte();
    zeigeVerlauf(klient.gewicht > 0 || klient.groesse > 0);
}

/// Before anything was projected, or when nothing is known, the chart would be nothing but a red
/// field.
void Planmodul::zeigeVerlauf(bool sichtbar)
{
    for (QWidget *teil : {static_cast<QWidget *>(gewichtview), kiloskala, wochenskala}) {
        teil->setVisible(sichtbar);
    }
}

void Planmodul::tageberechnen(const Wertehalter &sender)
{
    if (m_fenster == nullptr) {
        return;
    }
    Tage->setFloatValue(Prognose::tageberechnen(sender.floatValue(), Kalorienbedarf->intValue(),
                                                Kalorienerrechnet->intValue()));
    verlustberechnen();
}
