// The body: its measures, what they say, and how they are shown.

#include "AnthroController.h"

#include "Bmi.h"
#include "Geschlecht.h"
#include "Koerpermasse.h"

#include <QCoreApplication>

#include <array>

namespace {

/// The words that the gender's field shows in the language of the windows. It holds the German one,
/// which the rules read back; the string table finds both here.
[[maybe_unused]] constexpr std::array geschlechtsworte = {QT_TRANSLATE_NOOP("Mahlberg", "Mann"),
                                                          QT_TRANSLATE_NOOP("Mahlberg", "Frau")};

} // namespace

void AnthroController::slidergewicht(const Wertehalter &sender)
{
    const float kilogramm = sender.floatValue();
    gewicht->setFloatValue(kilogramm);
    gewichtn->setFloatValue(kilogramm);
    gewichtbmi->setFloatValue(kilogramm);
    merke("Gewicht", gewicht->floatValue());
    zeigeBmi();
    zeigeImperial();
    rechneEnergie();
    uebergibEnergie();
    plan->anthrouebergabegewicht(kilogramm);
    rateBmi();
    rateEnergie();
    gewicht2->setFloatValue(gewicht->floatValue());
    Q_EMIT angabeGeaendert();
}

/// The energy requirement does not depend on the height.
void AnthroController::slidergroesse(const Wertehalter &sender)
{
    const float meter = sender.floatValue();
    groesse->setFloatValue(meter);
    groessen->setFloatValue(meter);
    plan->anthrouebergabegroesse(meter);
    merke("Groesse", groesse->floatValue());
    zeigeImperial();
    zeigeBmi();
    rateBmi();
    Q_EMIT angabeGeaendert();
}

void AnthroController::sliderhuefte(const Wertehalter &sender)
{
    const float zentimeter = sender.floatValue();
    hueftumfang->setFloatValue(zentimeter);
    hueftn->setFloatValue(zentimeter);
    merke("Huefte", hueftumfang->floatValue());
    zeigeVerhaeltnis();
    rateVerhaeltnis();
    Q_EMIT angabeGeaendert();
}

void AnthroController::slidertaille(const Wertehalter &sender)
{
    const float zentimeter = sender.floatValue();
    taillenumfang->setFloatValue(zentimeter);
    taillen->setFloatValue(zentimeter);
    merke("Taille", taillenumfang->floatValue());
    zeigeVerhaeltnis();
    rateVerhaeltnis();
    Q_EMIT angabeGeaendert();
}

void AnthroController::metrik(int zustand)
{
    metrikeinaus->setChecked(zustand != 0);
    zeigeMasssystem(metrikeinaus->isChecked());
    merke("metrik", static_cast<float>(zustand));
}

void AnthroController::geschlechtAktion(int tag)
{
    geschlechte->waehle(tag);
    geschlechtauswahl = geschlechtsfaktor(tag).value_or(geschlechtauswahl);
    rechneEnergie();
    uebergibEnergie();
    rateEnergie();
    zeigeGeschlecht();
    faerbeAlkohol(Ampel::Gruen);
    Q_EMIT angabeGeaendert();
}

void AnthroController::zeigeBmi()
{
    resultatbmi->setFloatValue(bmi(gewicht->floatValue(), groesse->floatValue()));
}

void AnthroController::zeigeVerhaeltnis()
{
    resultatwh->setFloatValue(
        taillenHueftVerhaeltnis(taillenumfang->floatValue(), hueftumfang->floatValue()));
}

void AnthroController::zeigeImperial()
{
    const ImperialeMasse masse = imperialeMasse(groesse->floatValue(), gewicht->floatValue());
    feet->setIntValue(masse.fuss);
    inch->setIntValue(masse.zoll);
    lbs->setFloatValue(masse.pfund);
}

void AnthroController::zeigeMasssystem(bool metrisch)
{
    for (QWidget *feld : std::initializer_list<QWidget *>{groessedeutscheinaus,
                                                          gewichtdeutscheinaus, gewicht, groesse}) {
        feld->setVisible(metrisch);
    }
    for (QWidget *feld : std::initializer_list<QWidget *>{feeteinaus, lbseinaus, feet, inch, lbs}) {
        feld->setVisible(!metrisch);
    }
}

void AnthroController::zeigeGeschlecht()
{
    const QString wort = geschlechtswort(geschlechtauswahl);
    if (!wort.isNull()) {
        geschlecht->setStringValue(wort);
    }
}

void AnthroController::rateBmi()
{
    zeigeUrteil(*bmifaceview, *bmiworte, bmiGesicht(resultatbmi->floatValue()), fehlendeFuerBmi());
}

QString AnthroController::fehlendeFuerBmi() const
{
    return fehlende({{gewichttext, *gewicht}, {groessetext, *groesse}});
}

void AnthroController::rateVerhaeltnis()
{
    zeigeUrteil(*whfaceview, *whworte, verhaeltnisGesicht(resultatwh->floatValue()),
                fehlendeFuerVerhaeltnis());
}

QString AnthroController::fehlendeFuerVerhaeltnis() const
{
    return fehlende({{taillentext, *taillenumfang}, {huefttext, *hueftumfang}});
}
