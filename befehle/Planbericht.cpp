#include "Planbericht.h"

#include "Planregeln.h"
#include "Planzeilen.h"
#include "Programmform.h"

using namespace Programmform;
using namespace Programmform::Feld;

namespace {

const QString balken = QStringLiteral("bar");
const QString punkt = QStringLiteral("point");
const QString spaltensumme = QStringLiteral("column_sum");
const QString rest = QStringLiteral("left");
const QString gramm = QStringLiteral("grams");
const QString bekannt = QStringLiteral("known");
const QString eigenes = QStringLiteral("own");
const QString heutigerName = QStringLiteral("renamed_to");
const QString geeignet = QStringLiteral("suitable");
const QString neutral = QStringLiteral("neutral");
const QString ungeeignet = QStringLiteral("unsuitable");
const QString fuehrend = QStringLiteral("leading");

QJsonValue gesicht(int code)
{
    return code == Gesichtscode::lachend   ? QStringLiteral("smile")
           : code == Gesichtscode::neutral ? QStringLiteral("neutral")
                                           : QStringLiteral("cry");
}

Abschnitt kopf(const Planbericht &bericht)
{
    const std::int32_t bedarf = bericht.energiebedarf;
    return {QStringLiteral("plan"),
            {einfach("rows", bericht.zeilen.size()),
             einfach("rows_unknown", bericht.summen.ohneWerte),
             einfach("grams", zahl(bericht.summen.menge)),
             einfach("energy_need", bedarf != 0 ? QJsonValue(bedarf) : QJsonValue()),
             einfach("points", bericht.auswertung.punkte), einfach("points_at_most", 21),
             einfach("face", gesicht(bericht.auswertung.gesicht))}};
}

Abschnitt zeilen(const Planbericht &bericht)
{
    Abschnitt abschnitt{QStringLiteral("rows"), {}, QStringLiteral("food")};
    for (const Planberichtszeile &zeile : bericht.zeilen) {
        abschnitt.posten << Posten{zeile.name,
                                   {{gramm, zahl(zeile.gramm)},
                                    {bekannt, zeile.bekannt},
                                    {eigenes, zeile.eigenes},
                                    {heutigerName, text(zeile.heutigerName)}}};
    }
    return abschnitt;
}

/// A percentage is a whole number or one of single precision.
QJsonValue prozentzahl(double anteil)
{
    const auto einzeln = static_cast<float>(anteil);
    return static_cast<double>(einzeln) == anteil ? zahl(einzeln) : zahl(anteil);
}

/// Where nothing is known of what a total is measured against, neither percentage nor verdict is
/// told, though the window fills its fields with 0.
Posten naehrwert(const Planbericht &bericht, Naehrwert welcher)
{
    const Plannaehrwert &summe = bericht.auswertung.naehrwerte[stelle(welcher)];
    const auto &bedarf = bericht.summen.bedarf[stelle(welcher)];
    const auto restlich = bericht.summen.rest(welcher);
    const auto laenge = summe.balken ? QJsonValue(summe.balken->laenge) : QJsonValue();
    const auto farbe = summe.balken ? urteil(summe.balken->code) : QJsonValue();
    return {kennung(welcher),
            {{wert, zahl(summe.summe)},
             {einheit, einheitszeichen(beschreibung(welcher).einheit)},
             {bezug, bedarf ? zahl(*bedarf) : QJsonValue()},
             {prozent, bedarf ? prozentzahl(summe.prozent) : QJsonValue()},
             {verdikt, bedarf ? farbe : QJsonValue()},
             {balken, bedarf ? laenge : QJsonValue()},
             {punkt, summe.punkt},
             {spaltensumme, zahl(bericht.summen.summe[stelle(welcher)])},
             {rest, restlich ? zahl(*restlich) : QJsonValue()}}};
}

Abschnitt naehrwertsummen(const Planbericht &bericht)
{
    Abschnitt abschnitt{QStringLiteral("nutrients"), {}};
    for (const auto &zeile : naehrwerte) {
        abschnitt.posten << naehrwert(bericht, zeile.wert);
    }
    return abschnitt;
}

QJsonValue sieger(const std::optional<Wertungssieger> &wer)
{
    if (!wer) {
        return {};
    }
    return *wer == Wertungssieger::Plus      ? geeignet
           : *wer == Wertungssieger::Neutral ? neutral
                                             : ungeeignet;
}

Abschnitt bewertungen(const Planbericht &bericht)
{
    Abschnitt abschnitt{QStringLiteral("ratings"), {}};
    for (const auto &zeile : wertungen) {
        const Planwertung &gezaehlt = bericht.auswertung.wertungen[stelle(zeile.wertung)];
        abschnitt.posten << Posten{kennung(zeile.wertung),
                                   {{geeignet, gezaehlt.plus},
                                    {neutral, gezaehlt.neutral},
                                    {ungeeignet, gezaehlt.minus},
                                    {fuehrend, sieger(gezaehlt.sieger)},
                                    {punkt, gezaehlt.punkt}}};
    }
    return abschnitt;
}

Abschnitt anteile(const Planbericht &bericht)
{
    const auto posten = [](Naehrwert welcher, float anteil) {
        return Posten{kennung(welcher), {{prozent, zahl(anteil)}}};
    };
    return {QStringLiteral("energy_shares"),
            {posten(Naehrwert::protein, bericht.auswertung.proteinanteil),
             posten(Naehrwert::kh, bericht.auswertung.khanteil),
             posten(Naehrwert::fett, bericht.auswertung.fettanteil)}};
}

QList<Abschnitt> abschnitte(const Planbericht &bericht)
{
    return {kopf(bericht), zeilen(bericht), naehrwertsummen(bericht), bewertungen(bericht),
            anteile(bericht)};
}

} // namespace

Planbericht planbericht(const Planliste &plan, const Bestaende &bestaende,
                        const Namenswechsel &wechsel, std::int32_t energiebedarf)
{
    const std::vector<Planzeile> alle = planzeilen(plan, bestaende.eingebaute, bestaende.eigene);
    Planbericht bericht;
    for (qsizetype i = 0; i < plan.PlanArray.size(); ++i) {
        const QString &name = plan.PlanArray[i];
        const bool gefunden = alle[static_cast<std::size_t>(i)].lebensmittel != nullptr;
        bericht.zeilen << Planberichtszeile{
            .name = name,
            .gramm = plan.mengenarray[i],
            .bekannt = gefunden,
            .eigenes = gefunden && !bestaende.eingebaute.contains(name),
            .heutigerName = gefunden ? QString() : wechsel.value(name)};
    }
    bericht.energiebedarf = energiebedarf;
    bericht.auswertung = planAuswerten(alle, energiebedarf, energiebedarf);
    bericht.summen = plansummen(alle, energiebedarf);
    return bericht;
}

QByteArray alsJson(const Planbericht &bericht)
{
    return Programmform::alsJson(abschnitte(bericht));
}

QByteArray alsCsv(const Planbericht &bericht)
{
    return Programmform::alsCsv(abschnitte(bericht),
                                {wert, gramm, bekannt, eigenes, heutigerName, einheit, bezug,
                                 prozent, verdikt, balken, punkt, spaltensumme, rest, geeignet,
                                 neutral, ungeeignet, fuehrend});
}
