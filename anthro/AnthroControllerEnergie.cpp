// The energy of a day: activity, losing weight, age, and what sport adds.

#include "AnthroController.h"

#include "Energiebedarf.h"
#include "Geschlecht.h"
#include "Koerpermasse.h"
#include "Sportarten.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>
#include <QLabel>

namespace {

const QString keineAngabe = QStringLiteral("-");
const QString stunden = QStringLiteral(" h");

} // namespace

void AnthroController::arbeitAktion(int tag)
{
    arbeit->waehle(tag);
    arbeitauswahl = arbeitsfaktor(tag).value_or(arbeitauswahl);
    rechneEnergie();
    uebergibEnergie();
    rateEnergie();
    Q_EMIT angabeGeaendert();
}

void AnthroController::gewichtreduktion(int zustand)
{
    gewichtredu->setChecked(zustand != 0);
    rechneEnergie();
    zeigeReduktion();
    rateEnergie();
    merke("Gewichtredukt", static_cast<float>(zustand));
    uebergibEnergie();
    Q_EMIT angabeGeaendert();
}

void AnthroController::wiealt(const Wertehalter &sender)
{
    const int jahre = sender.intValue();
    alteranzeige->setIntValue(jahre);
    alter->setIntValue(jahre);
    if (const std::optional<bool> erlaubt = rechnerErlaubt(alteranzeige->intValue())) {
        erlaubeRechner(*erlaubt);
        if (*erlaubt) {
            zeigeMasseWieder();
        } else {
            verbirgMasse();
        }
    }
    Q_EMIT angabeGeaendert();
}

/// What can't be set for a child.
QWidgetList AnthroController::altersfelder() const
{
    return {arbeit, geschlechte, alkohol, zieher, groessen, gewichtn, taillen, hueftn};
}

void AnthroController::erlaubeRechner(bool erlaubt)
{
    for (QWidget *feld : altersfelder()) {
        feld->setEnabled(erlaubt);
    }
    altersworte->setVisible(!erlaubt);
}

/// What is computed from these fields from now on reads 0. That they are without a number is seen:
/// otherwise the numbers stand beside the sliders, and once is enough.
void AnthroController::verbirgMasse()
{
    for (Textfeld *feld :
         {gewicht, gewichtbmi, groesse, hueftumfang, resultatbmi, resultatwh, taillenumfang}) {
        feld->setStringValue(keineAngabe);
    }
    hueftumfang->show();
    taillenumfang->show();
    sageUrteile();
}

/// Says anew what the faces rest on; they stay as they are.
void AnthroController::sageUrteile()
{
    zeigeUrteil(*bmifaceview, *bmiworte, std::nullopt, fehlendeFuerBmi());
    zeigeUrteil(*whfaceview, *whworte, std::nullopt, fehlendeFuerVerhaeltnis());
    zeigeUrteil(*kalfaceview, *kalworte, std::nullopt, fehlendeFuerEnergie());
}

/// The faces stay as they are until the next measure is set, and so they are told again.
void AnthroController::zeigeMasseWieder()
{
    gewicht->setFloatValue(gewichtn->floatValue());
    gewichtbmi->setFloatValue(gewichtn->floatValue());
    groesse->setFloatValue(groessen->floatValue());
    hueftumfang->setFloatValue(hueftn->floatValue());
    taillenumfang->setFloatValue(taillen->floatValue());
    hueftumfang->hide();
    taillenumfang->hide();
    zeigeBmi();
    rechneEnergie();
    uebergibEnergie();
    zeigeVerhaeltnis();
    sageUrteile();
}

void AnthroController::welchersport(const Wertehalter &sender)
{
    sportname = sender.stringValue();
    const std::optional<std::int32_t> kilokalorien = sportkalorien(sportname);
    sportworte->setVisible(!kilokalorien);
    if (kilokalorien) {
        sportkal = *kilokalorien;
        resultatsportkal->setIntValue(sportenergieGanzeStunden(sportkal, sportmenge->intValue()));
        sportmenge->setEnabled(!sportname.isEmpty());
        if (sportname.isEmpty()) {
            sportmenge->setIntValue(0);
            sportstunden->setStringValue(sportmenge->stringValue() + stunden);
        }
    }
    rechneEnergie();
    merke("Sport", resultatsportkal->floatValue());
    uebergibEnergie();
    rateEnergie();
    Q_EMIT angabeGeaendert();
}

void AnthroController::wievielsport(const Wertehalter &sender)
{
    const float dauer = sender.floatValue();
    sportstunden->setStringValue(sender.stringValue() + stunden);
    sportmenge->setDoubleValue(sender.doubleValue());
    resultatsportkal->setIntValue(sportenergie(sportkal, dauer));
    merke("Sportm", dauer);
    merke("Sport", resultatsportkal->floatValue());
    rechneEnergie();
    uebergibEnergie();
    rateEnergie();
    Q_EMIT angabeGeaendert();
}

/// Every change of an input ends here.
void AnthroController::rechneEnergie()
{
    const Energiebedarf bedarf = energiebedarfRechnen({
        .gewicht = gewichtbmi->floatValue(),
        .arbeit = arbeitauswahl,
        .geschlecht = geschlechtauswahl,
        .sportkal = sportkal,
        .ganzeStunden = sportmenge->intValue(),
        .reduktion = gewichtredu->isChecked(),
    });
    kal = bedarf.kal;
    kalunbereinigt = bedarf.kalunbereinigt;
    resultatkal->setIntValue(kal);
}

void AnthroController::uebergibEnergie()
{
    plan->anthrouebergabe(kal);
    plan->anthrouebergabe2(kalunbereinigt);
}

void AnthroController::rateEnergie()
{
    zeigeUrteil(*kalfaceview, *kalworte, energieGesicht(kal), fehlendeFuerEnergie());
}

QString AnthroController::fehlendeFuerEnergie() const
{
    return fehlende({{gewichttext, *gewichtbmi}});
}

void AnthroController::zeigeReduktion()
{
    static const char *const aus = QT_TRANSLATE_NOOP("Mahlberg", "aus");
    static const char *const moderat = QT_TRANSLATE_NOOP("Mahlberg", "moderat ( -1/5 Kcal)");
    gewichtredu->setText(
        localizedString(QString::fromUtf8(gewichtredu->isChecked() ? moderat : aus)));
}
