// What the plan's window shows of a plan's rows and of their evaluation, as lines for a terminal.

#include "Planbericht.h"

#include "Einzeilig.h"
#include "Planregeln.h"
#include "Planurteil.h"
#include "Planzahlen.h"
#include "Tafel.h"
#include "Zahlworte.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

#include <cmath>

namespace {

QString ueberschrift(const QString &text)
{
    return u'\n' + text + u'\n';
}

QString einzelname(const QString &name)
{
    return einzeilig(localizedString(name));
}

QString bemerkung(const Planberichtszeile &zeile)
{
    if (zeile.bekannt) {
        return zeile.eigenes ? localizedString(QStringLiteral("eigenes Lebensmittel")) : QString();
    }
    return zeile.heutigerName.isNull()
               ? localizedString(QStringLiteral("steht in keiner Tabelle und zählt nicht mit"))
               : localizedString(QStringLiteral("heißt jetzt „%1“ und zählt nicht mit"))
                     .arg(einzelname(zeile.heutigerName));
}

QString zeilen(const Planbericht &bericht)
{
    QList<QStringList> tafel;
    for (const Planberichtszeile &zeile : bericht.zeilen) {
        tafel << QStringList{einzelname(zeile.name), mengentext(zeile.gramm) + QStringLiteral(" g"),
                             bemerkung(zeile)};
    }
    tafel << QStringList{localizedString(QStringLiteral("Summe")),
                         mengentext(bericht.summen.menge) + QStringLiteral(" g")};
    return localizedString(QStringLiteral("Lebensmittel")) + u'\n' +
           ausgerichtet(tafel, QLatin1String("lrl"));
}

/// What is left to the need of a day, or what is too much.
QString restwort(const Planbericht &bericht, Naehrwert wert)
{
    const std::optional<double> rest = bericht.summen.rest(wert);
    if (!rest || *rest == 0) {
        return {};
    }
    return (*rest < 0 ? localizedString(QStringLiteral("%1 zu viel"))
                      : localizedString(QStringLiteral("noch %1")))
        .arg(naehrwertMitEinheit(wert, std::abs(*rest)));
}

QStringList naehrwertzeile(const Planbericht &bericht, const Naehrwertbeschreibung &welcher)
{
    const Plannaehrwert &summe = bericht.auswertung.naehrwerte[stelle(welcher.wert)];
    QStringList menge = {uebersetzt(welcher.bezeichnung),
                         naehrwertMitEinheit(welcher.wert, static_cast<double>(summe.summe))};
    const auto &bedarf = bericht.summen.bedarf[stelle(welcher.wert)];
    if (!bedarf) {
        return menge;
    }
    return menge + QStringList{localizedString(QStringLiteral("von %1"))
                                   .arg(naehrwertMitEinheit(welcher.wert, *bedarf)),
                               prozentMitZeichen(gezeigterProzentsatz(summe.prozent), 1),
                               summe.balken ? verdiktwort(summe.balken->code) : QString(),
                               summe.punkt ? localizedString(QStringLiteral("1 Punkt")) : QString(),
                               restwort(bericht, welcher.wert)};
}

QString naehrwertsummen(const Planbericht &bericht)
{
    QList<QStringList> tafel;
    for (const auto &zeile : naehrwerte) {
        tafel << naehrwertzeile(bericht, zeile);
    }
    const QString energie =
        bericht.energiebedarf == 0
            ? localizedString(QStringLiteral("Ohne Energiebedarf (--energy) zählen Energie, "
                                             "Protein, Fett und Kohlenhydrate keine Punkte."))
            : QString();
    const double stoffe = static_cast<double>(bericht.summen.summe[stelle(Naehrwert::kal)]);
    return ueberschrift(localizedString(QStringLiteral("Anteile am Tagesbedarf"))) +
           ausgerichtet(tafel, QLatin1String("lrrrlll")) +
           (energie.isEmpty() ? QString() : QStringLiteral("  ") + energie + u'\n') +
           QStringLiteral("  ") +
           localizedString(QStringLiteral("Die Energie ist aus Protein, Kohlenhydraten und Fett "
                                          "errechnet; nach der Tabelle sind es %1."))
               .arg(naehrwertMitEinheit(Naehrwert::kal, stoffe)) +
           u'\n';
}

QString bewertungen(const Planbericht &bericht)
{
    QList<QStringList> tafel = {{QString(), wertungswort(QStringLiteral("+")),
                                 wertungswort(QStringLiteral("0")),
                                 wertungswort(QStringLiteral("-"))}};
    for (const auto &zeile : wertungen) {
        const Planwertung &gezaehlt = bericht.auswertung.wertungen[stelle(zeile.wertung)];
        tafel << QStringList{uebersetzt(zeile.bezeichnung), QString::number(gezaehlt.plus),
                             QString::number(gezaehlt.neutral), QString::number(gezaehlt.minus),
                             gezaehlt.punkt ? localizedString(QStringLiteral("1 Punkt"))
                                            : QString()};
    }
    return ueberschrift(localizedString(QStringLiteral("Bewertungen"))) +
           ausgerichtet(tafel, QLatin1String("lrrrl"));
}

QString anteile(const Planbericht &bericht)
{
    const auto zeile = [](Naehrwert wert, float prozent) {
        return QStringList{uebersetzt(beschreibung(wert).bezeichnung),
                           prozentMitZeichen(static_cast<double>(prozent), 0)};
    };
    return ueberschrift(localizedString(QStringLiteral("Anteile an der Energie"))) +
           ausgerichtet({zeile(Naehrwert::protein, bericht.auswertung.proteinanteil),
                         zeile(Naehrwert::kh, bericht.auswertung.khanteil),
                         zeile(Naehrwert::fett, bericht.auswertung.fettanteil)},
                        QLatin1String("lr"));
}

} // namespace

QString alsText(const Planbericht &bericht)
{
    return zeilen(bericht) + naehrwertsummen(bericht) + bewertungen(bericht) + anteile(bericht) +
           ueberschrift(localizedString(QStringLiteral("Beurteilung"))) + QStringLiteral("  ") +
           planurteil(bericht.auswertung, bericht.zeilen.isEmpty()) + QStringLiteral(", ") +
           localizedString(QStringLiteral("%1 von 21 Punkten")).arg(bericht.auswertung.punkte) +
           u'\n';
}
