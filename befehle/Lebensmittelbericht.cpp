#include "Lebensmittelbericht.h"

#include "Programmform.h"

using namespace Programmform;
using namespace Programmform::Feld;

namespace {

const QString bedeutung = QStringLiteral("meaning");

Abschnitt kopf(const Lebensmittelbericht &bericht)
{
    return {QStringLiteral("food"),
            {einfach("name", text(bericht.schluessel)),
             einfach("english_name", text(bericht.englisch)), einfach("own", bericht.eigenes),
             einfach("grams", zahl(bericht.gramm))}};
}

Abschnitt inhaltsstoffe(const Lebensmittelbericht &bericht)
{
    Abschnitt abschnitt{QStringLiteral("nutrients"), {}};
    for (const auto &zeile : naehrwerte) {
        abschnitt.posten << Posten{kennung(zeile.wert),
                                   {{wert, zahl(bericht.werte[stelle(zeile.wert)])},
                                    {einheit, einheitszeichen(zeile.einheit)}}};
    }
    abschnitt.posten << Posten{QStringLiteral("energy_kj"),
                               {{wert, zahl(bericht.kilojoule)}, {einheit, QStringLiteral("kJ")}}};
    return abschnitt;
}

Abschnitt anteile(const Lebensmittelbericht &bericht)
{
    const auto posten = [](Naehrwert naehrwert, float anteil) {
        return Posten{kennung(naehrwert), {{prozent, zahl(anteil)}}};
    };
    return {QStringLiteral("energy_shares"),
            {posten(Naehrwert::protein, bericht.anteile.kalumrprot),
             posten(Naehrwert::kh, bericht.anteile.kalumrkh),
             posten(Naehrwert::fett, bericht.anteile.kalumrfett)}};
}

Abschnitt tagesbedarf(const Lebensmittelbericht &bericht)
{
    Abschnitt abschnitt{QStringLiteral("daily_need"), {}};
    for (std::size_t i = 0; i < tagesbedarfe.size(); ++i) {
        const Bedarfszeile &zeile = bericht.bedarf.zeilen[i];
        abschnitt.posten << Posten{kennung(zeile.wert),
                                   {{bezug, zahl(tagesbedarfe[i].bedarf)},
                                    {einheit, einheitszeichen(beschreibung(zeile.wert).einheit)},
                                    {prozent, zeile.prozent},
                                    {verdikt, urteil(zeile.farbe)}}};
    }
    return abschnitt;
}

/// Below seven values there is no judgement. One at exactly the limit has no verdict.
Abschnitt beurteilung(const Lebensmittelbericht &bericht)
{
    const auto &gesamt = bericht.bedarf.gesamt;
    return {
        QStringLiteral("judgement"),
        {Posten{QStringLiteral("coverage_per_100_kcal"),
                {{wert, gesamt ? QJsonValue(gesamt->wert) : QJsonValue()},
                 {verdikt, gesamt ? urteil(gesamt->balkencode) : QJsonValue()}}},
         einfach("too_little_energy", gesamt ? QJsonValue(gesamt->zuWenigEnergie) : QJsonValue()),
         einfach("counted", bericht.bedarf.vorhanden)}};
}

/// A relation to nothing is absent, though the window's bar is green then.
Abschnitt relationen(const Lebensmittelbericht &bericht)
{
    const auto posten = [](const char *name, const Relation &relation) {
        const bool fehlt = !relation.text.isNull();
        return Posten{QLatin1String(name),
                      {{wert, fehlt ? QJsonValue() : zahl(relation.wert)},
                       {verdikt, fehlt ? QJsonValue() : urteil(relation.code)}}};
    };
    const Relationen &alle = bericht.relationen;
    return {QStringLiteral("relations"),
            {posten("sodium_potassium", alle.natriumKalium),
             posten("magnesium_calcium", alle.magnesiumCalcium),
             posten("bread_units", alle.broteinheiten),
             einfach("carbohydrate_units", zahl(alle.kohlenhydrateinheiten))}};
}

QJsonValue wertungsbedeutung(const QString &zeichen)
{
    return zeichen == QLatin1String("+")   ? QJsonValue(QStringLiteral("suitable"))
           : zeichen == QLatin1String("0") ? QJsonValue(QStringLiteral("neutral"))
           : zeichen == QLatin1String("-") ? QJsonValue(QStringLiteral("unsuitable"))
                                           : QJsonValue();
}

Abschnitt bewertungen(const Lebensmittelbericht &bericht)
{
    Abschnitt abschnitt{QStringLiteral("ratings"), {}};
    for (const auto &zeile : wertungen) {
        const QString &zeichen = bericht.wertungen[stelle(zeile.wertung)];
        abschnitt.posten << Posten{
            kennung(zeile.wertung),
            {{wert, text(zeichen)}, {bedeutung, wertungsbedeutung(zeichen)}}};
    }
    return abschnitt;
}

QList<Abschnitt> abschnitte(const Lebensmittelbericht &bericht)
{
    return {kopf(bericht),        inhaltsstoffe(bericht), anteile(bericht),    tagesbedarf(bericht),
            beurteilung(bericht), relationen(bericht),    bewertungen(bericht)};
}

} // namespace

Lebensmittelbericht lebensmittelbericht(const Lebensmittelwahl &wahl, const Bestaende &bestaende,
                                        float gramm)
{
    const Datenmodul &lebensmittel = *wahl.lebensmittel;
    Lebensmittelbericht bericht;
    bericht.schluessel = wahl.schluessel;
    bericht.englisch = wahl.eigenes ? QString() : bestaende.englisch.value(wahl.schluessel);
    bericht.eigenes = wahl.eigenes;
    bericht.gramm = gramm;
    bericht.werte = skalieren(lebensmittel, gramm);
    const Naehrwertreihe &werte = bericht.werte;
    bericht.kilojoule = kilojoule(werte[stelle(Naehrwert::kal)]);
    bericht.anteile = energieanteile(werte[stelle(Naehrwert::protein)],
                                     werte[stelle(Naehrwert::kh)], werte[stelle(Naehrwert::fett)]);
    bericht.bedarf = bedarfBeurteilen(werte);
    bericht.relationen = relationenRechnen(werte);
    for (const auto &zeile : wertungen) {
        bericht.wertungen[stelle(zeile.wertung)] = lebensmittel.wertung(zeile.wertung);
    }
    return bericht;
}

QByteArray alsJson(const Lebensmittelbericht &bericht)
{
    return Programmform::alsJson(abschnitte(bericht));
}

QByteArray alsCsv(const Lebensmittelbericht &bericht)
{
    return Programmform::alsCsv(abschnitte(bericht),
                                {wert, einheit, bezug, prozent, verdikt, bedeutung});
}
