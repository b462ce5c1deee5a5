#include "Ablagenvergleich.h"

#include "Ampel.h"
#include "Planregeln.h"
#include "Plansummen.h"
#include "Planurteil.h"
#include "Planzahlen.h"
#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace {

using Worte = QString (*)(double);

/// A plan with all that is worked out of it.
struct Ausgewertetes
{
    qsizetype anzahl = 0;
    std::int32_t energiebedarf = 0;
    Planauswertung auswertung;
    Plansummen summen;

    double summe(Naehrwert wert) const
    {
        return static_cast<double>(auswertung.naehrwerte[stelle(wert)].summe);
    }
};

struct Verdikt
{
    int code;
    const char16_t *zeichen;
    const char *wort;
};

constexpr std::array<Verdikt, 3> verdikte = {{
    {Balkencode::gruen, u"✓", QT_TRANSLATE_NOOP("Mahlberg", "im Ziel")},
    {Balkencode::blau, u"≈", QT_TRANSLATE_NOOP("Mahlberg", "knapp daneben")},
    {Balkencode::rot, u"✗", QT_TRANSLATE_NOOP("Mahlberg", "verfehlt")},
}};

struct Siegerworte
{
    char16_t zeichen;
    const char *wort;
};

/// In the order of `Wertungssieger`.
constexpr std::array<Siegerworte, 3> siegerworte = {{
    {u'+', QT_TRANSLATE_NOOP("Mahlberg", "geeignet")},
    {u'0', QT_TRANSLATE_NOOP("Mahlberg", "neutral")},
    {u'-', QT_TRANSLATE_NOOP("Mahlberg", "ungeeignet")},
}};

/// The parts of a plan's energy, in the order of the command line and of the circle.
struct Energieteil
{
    Naehrwert wert;
    float Planauswertung::*anteil;
};

constexpr std::array<Energieteil, 3> energieteile = {{
    {Naehrwert::protein, &Planauswertung::proteinanteil},
    {Naehrwert::kh, &Planauswertung::khanteil},
    {Naehrwert::fett, &Planauswertung::fettanteil},
}};

Ausgewertetes werteAus(const Ablagenseite &seite)
{
    std::vector<Planzeile> zeilen;
    for (const Planposten &posten : seite.ablage.posten) {
        zeilen.push_back({posten.eintrag ? &*posten.eintrag : nullptr, posten.gramm});
    }
    const std::int32_t bedarf = seite.energiebedarf;
    return {seite.ablage.posten.size(), bedarf, planAuswerten(zeilen, bedarf, bedarf),
            plansummen(zeilen, bedarf)};
}

QString uebersetzt(const char *schluessel)
{
    return localizedString(QString::fromUtf8(schluessel));
}

/// In a narrow column no line ends within it.
QString unteilbar(QString text)
{
    return text.replace(u' ', QChar(QChar::Nbsp));
}

QString mitEinheit(const QString &zahl, const char *einheit)
{
    return unteilbar(zahl + u' ' + QLatin1String(einheit));
}

QString anzahlworte(double zahl)
{
    return QString::number(zahl, 'f', 0);
}

/// To the milligram: two amounts of single precision differ by more digits than anybody weighs.
QString grammworte(double zahl)
{
    constexpr double tausendstel = 1000;
    return mitEinheit(mengentext(static_cast<float>(std::round(zahl * tausendstel) / tausendstel)),
                      "g");
}

QString energieworte(double zahl)
{
    return mitEinheit(QString::number(zahl, 'f', 0), "kcal");
}

template <int nachkommastellen>
QString prozentworte(double zahl)
{
    return mitEinheit(zahlenform().toString(zahl, 'f', nachkommastellen), "%");
}

/// By how much a share differs; "+10 %" could be read as a tenth of it.
template <int nachkommastellen>
QString prozentpunktworte(double zahl)
{
    return unteilbar(localizedString(QStringLiteral("%1 %-Punkte"))
                         .arg(zahlenform().toString(zahl, 'f', nachkommastellen)));
}

QString punkteworte(double zahl)
{
    return localizedString(QStringLiteral("%1 von 21 Punkten")).arg(anzahlworte(zahl));
}

QString punktworte(double zahl)
{
    return zahl == 1 ? localizedString(QStringLiteral("1 Punkt"))
                     : localizedString(QStringLiteral("%1 Punkte")).arg(anzahlworte(zahl));
}

/// A figure that ran over is none.
QString inWorten(std::optional<double> zahl, Worte worte)
{
    return zahl && std::isfinite(*zahl) ? worte(*zahl) : QString();
}

Vergleichszeile zahlenzeile(const QString &beschriftung, std::optional<double> links,
                            std::optional<double> rechts, Worte worte, Worte unterschied)
{
    return {beschriftung, inWorten(links, worte), inWorten(rechts, worte),
            unterschiedsworte(links, rechts, unterschied)};
}

/// The share of a day's need as it is shown; absent while that is unknown.
std::optional<double> bedarfsanteil(const Ausgewertetes &plan, Naehrwert wert)
{
    if (!plan.summen.bedarf[stelle(wert)] || !std::isfinite(plan.summe(wert))) {
        return std::nullopt;
    }
    return gezeigterProzentsatz(plan.auswertung.naehrwerte[stelle(wert)].prozent);
}

/// The sign and the word of a bar's verdict; empty where it has none.
QString verdiktworte(const std::optional<Planbalken> &balken)
{
    for (const Verdikt &verdikt : verdikte) {
        if (balken && balken->code == verdikt.code) {
            const QString worte =
                QString::fromUtf16(verdikt.zeichen) + u' ' + uebersetzt(verdikt.wort);
            return u' ' + unteilbar(worte);
        }
    }
    return {};
}

QString naehrwertworte(const Ausgewertetes &plan, Naehrwert wert)
{
    const QString menge = naehrwertMitEinheit(wert, plan.summe(wert)) + QStringLiteral(", ");
    const QString anteil = inWorten(bedarfsanteil(plan, wert), prozentworte<1>);
    return menge + (anteil.isEmpty()
                        ? QStringLiteral("–")
                        : anteil + verdiktworte(plan.auswertung.naehrwerte[stelle(wert)].balken));
}

QString naehrwertunterschied(const Ausgewertetes &links, const Ausgewertetes &rechts,
                             Naehrwert wert)
{
    QStringList teile = {
        unterschiedsworte(links.summe(wert), rechts.summe(wert),
                          [wert](double zahl) { return naehrwertMitEinheit(wert, zahl); }),
        unterschiedsworte(bedarfsanteil(links, wert), bedarfsanteil(rechts, wert),
                          prozentpunktworte<1>)};
    teile.removeAll(QString());
    return teile.isEmpty() ? QString() : teile.join(QStringLiteral(", "));
}

std::optional<double> bekannt(std::int32_t energiebedarf)
{
    return energiebedarf != 0 ? std::optional<double>(energiebedarf) : std::nullopt;
}

Vergleichsabschnitt summenabschnitt(const Ausgewertetes &links, const Ausgewertetes &rechts)
{
    Vergleichsabschnitt abschnitt{localizedString(QStringLiteral("Summen")), {}};
    const auto zeile = [&abschnitt](const QString &beschriftung, std::optional<double> eine,
                                    std::optional<double> andere, Worte worte) {
        abschnitt.zeilen << zahlenzeile(beschriftung, eine, andere, worte, worte);
    };
    zeile(localizedString(QStringLiteral("Zahl der Lebensmittel")),
          static_cast<double>(links.anzahl), static_cast<double>(rechts.anzahl), anzahlworte);
    if (links.summen.ohneWerte != 0 || rechts.summen.ohneWerte != 0) {
        zeile(localizedString(QStringLiteral("Lebensmittel ohne Werte")), links.summen.ohneWerte,
              rechts.summen.ohneWerte, anzahlworte);
    }
    zeile(localizedString(QStringLiteral("Menge")), static_cast<double>(links.summen.menge),
          static_cast<double>(rechts.summen.menge), grammworte);
    zeile(localizedString(QStringLiteral("Energiebedarf am Tag")), bekannt(links.energiebedarf),
          bekannt(rechts.energiebedarf), energieworte);
    for (const auto &eine : naehrwerte) {
        abschnitt.zeilen << Vergleichszeile{
            uebersetzt(eine.bezeichnung), naehrwertworte(links, eine.wert),
            naehrwertworte(rechts, eine.wert), naehrwertunterschied(links, rechts, eine.wert)};
    }
    return abschnitt;
}

/// In whole per cent, as it is shown; of a plan without energy nothing is known.
std::optional<double> energieanteilVon(const Ausgewertetes &plan, const Energieteil &teil)
{
    return plan.summe(Naehrwert::kal) > 0
               ? std::optional(std::round(static_cast<double>(plan.auswertung.*teil.anteil)))
               : std::nullopt;
}

Vergleichsabschnitt anteilsabschnitt(const Ausgewertetes &links, const Ausgewertetes &rechts)
{
    Vergleichsabschnitt abschnitt{localizedString(QStringLiteral("Anteile an der Energie")), {}};
    for (const Energieteil &teil : energieteile) {
        abschnitt.zeilen << zahlenzeile(
            uebersetzt(beschreibung(teil.wert).bezeichnung), energieanteilVon(links, teil),
            energieanteilVon(rechts, teil), prozentworte<0>, prozentpunktworte<0>);
    }
    return abschnitt;
}

/// Which count leads, and all three of them; null where no food has this rating.
QString wertungsworte(const Planwertung &wertung)
{
    if (!wertung.sieger) {
        return {};
    }
    const Siegerworte &sieger = siegerworte[static_cast<std::size_t>(*wertung.sieger)];
    return QStringLiteral("%1 %2 (%3 / %4 / %5)")
        .arg(QChar(sieger.zeichen), uebersetzt(sieger.wort), QString::number(wertung.plus),
             QString::number(wertung.neutral), QString::number(wertung.minus));
}

QString wertungsunterschied(const Planwertung &links, const Planwertung &rechts)
{
    if (!links.sieger || !rechts.sieger) {
        return {};
    }
    QStringList zahlen;
    for (const auto zahl : {&Planwertung::plus, &Planwertung::neutral, &Planwertung::minus}) {
        zahlen << unterschiedsworte(links.*zahl, rechts.*zahl, anzahlworte);
    }
    return zahlen.join(QStringLiteral(" / "));
}

QString urteil(const Ausgewertetes &plan)
{
    return planurteil(plan.auswertung, plan.anzahl == 0);
}

/// Points that can't be earned without a requirement make no difference between two plans.
Vergleichszeile punktzeile(const Ausgewertetes &links, const Ausgewertetes &rechts)
{
    Vergleichszeile zeile =
        zahlenzeile(localizedString(QStringLiteral("Punkte")), links.auswertung.punkte,
                    rechts.auswertung.punkte, punkteworte, punktworte);
    if ((links.energiebedarf == 0) != (rechts.energiebedarf == 0)) {
        zeile.unterschied = QString();
    }
    return zeile;
}

Vergleichsabschnitt wertungsabschnitt(const Ausgewertetes &links, const Ausgewertetes &rechts)
{
    Vergleichsabschnitt abschnitt{
        localizedString(QStringLiteral("Bewertungen (geeignet / neutral / ungeeignet)")), {}};
    for (const auto &zeile : wertungen) {
        const Planwertung &eine = links.auswertung.wertungen[stelle(zeile.wertung)];
        const Planwertung &andere = rechts.auswertung.wertungen[stelle(zeile.wertung)];
        abschnitt.zeilen << Vergleichszeile{uebersetzt(zeile.bezeichnung), wertungsworte(eine),
                                            wertungsworte(andere),
                                            wertungsunterschied(eine, andere)};
    }
    abschnitt.zeilen << punktzeile(links, rechts)
                     << Vergleichszeile{localizedString(QStringLiteral("Beurteilung")),
                                        urteil(links),
                                        urteil(rechts),
                                        {}};
    return abschnitt;
}

/// How much of each food a plan has; one food may stand in several rows.
QHash<QString, double> mengen(const Planablage &ablage)
{
    QHash<QString, double> alle;
    for (const Planposten &posten : ablage.posten) {
        alle[posten.schluessel] += static_cast<double>(posten.gramm);
    }
    return alle;
}

QString lebensmittelworte(const QHash<QString, double> &mengen, const QString &schluessel)
{
    return mengen.contains(schluessel) ? grammworte(mengen.value(schluessel))
                                       : localizedString(QStringLiteral("nicht im Plan"));
}

/// In the order of the left plan's rows, then of the right one's.
Vergleichsabschnitt lebensmittelabschnitt(const Planablage &links, const Planablage &rechts)
{
    const QHash<QString, double> eine = mengen(links);
    const QHash<QString, double> andere = mengen(rechts);
    QSet<QString> gesehen;
    QList<Vergleichszeile> zeilen;
    for (const Planposten &posten : links.posten + rechts.posten) {
        const QString &name = posten.schluessel;
        const Vergleichszeile zeile = {
            localizedString(name), lebensmittelworte(eine, name), lebensmittelworte(andere, name),
            unterschiedsworte(eine.value(name), andere.value(name), grammworte)};
        if (!gesehen.contains(name) && zeile.links != zeile.rechts) {
            zeilen << zeile;
        }
        gesehen << name;
    }
    return {zeilen.isEmpty()
                ? localizedString(QStringLiteral("Lebensmittel: in beiden Plänen dieselben Mengen"))
                : localizedString(QStringLiteral("Andere Lebensmittel und Mengen")),
            zeilen};
}

} // namespace

QList<Vergleichsabschnitt> ablagenVergleichen(const Ablagenseite &links, const Ablagenseite &rechts)
{
    const Ausgewertetes eines = werteAus(links);
    const Ausgewertetes anderes = werteAus(rechts);
    return {summenabschnitt(eines, anderes), anteilsabschnitt(eines, anderes),
            wertungsabschnitt(eines, anderes), lebensmittelabschnitt(links.ablage, rechts.ablage)};
}
