#include "Mahlzeitenanteil.h"

#include "Planzahlen.h"
#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <algorithm>
#include <cmath>

namespace {

bool zaehltEtwas(const Tag &tag, qsizetype mahlzeit)
{
    const QList<Mahlzeitzeile> &zeilen = tag.mahlzeiten[mahlzeit].zeilen;
    return std::any_of(zeilen.begin(), zeilen.end(), zaehlt);
}

bool zaehltImMittel(const Aufzeichnung &aufzeichnung, qsizetype mahlzeit)
{
    return std::any_of(
        aufzeichnung.tage.begin(), aufzeichnung.tage.end(),
        [mahlzeit](const Tag &tag) { return tag.imMittel && zaehltEtwas(tag, mahlzeit); });
}

double energieVon(const Tagesrechnung &rechnung, qsizetype mahlzeit)
{
    return static_cast<double>(
        rechnung.mahlzeiten[static_cast<std::size_t>(mahlzeit)].summe[stelle(Naehrwert::kal)]);
}

QString kilokalorien(double energie)
{
    return naehrwertMitEinheit(Naehrwert::kal, energie);
}

} // namespace

QList<Mahlzeitenanteil> mahlzeitenanteile(const Aufzeichnung &aufzeichnung, int tag,
                                          const Tagesrechnung &rechnung,
                                          const Tagesrechnung &mittel)
{
    const bool da = tag >= 0 && tag < aufzeichnung.tage.size();
    const std::vector<double> prozente = energieanteile(rechnung);
    QList<Mahlzeitenanteil> alle;
    for (qsizetype i = 0; i < aufzeichnung.mahlzeiten.size(); ++i) {
        Mahlzeitenanteil einer;
        einer.name = mahlzeitname(aufzeichnung.mahlzeiten[i]);
        if (da) {
            einer.unverstanden = unverstandene(aufzeichnung.tage[tag].mahlzeiten[i]);
        }
        if (da && zaehltEtwas(aufzeichnung.tage[tag], i)) {
            einer.energie = energieVon(rechnung, i);
            einer.prozent = prozente[static_cast<std::size_t>(i)];
        }
        if (zaehltImMittel(aufzeichnung, i)) {
            einer.mittel = energieVon(mittel, i);
        }
        alle << einer;
    }
    return alle;
}

double vollausschlag(const QList<Mahlzeitenanteil> &alle)
{
    double groesste = 0;
    for (const Mahlzeitenanteil &einer : alle) {
        for (const std::optional<double> &energie : {einer.energie, einer.mittel}) {
            if (energie && std::isfinite(*energie)) {
                groesste = std::max(groesste, *energie);
            }
        }
    }
    return groesste;
}

double fuellung(const std::optional<double> &energie, double voll)
{
    if (!energie || !(*energie > 0)) {
        return 0;
    }
    return *energie < voll ? *energie / voll : 1;
}

QString energietext(const Mahlzeitenanteil &einer)
{
    return einer.energie            ? kilokalorien(*einer.energie)
           : einer.unverstanden > 0 ? QStringLiteral("?")
                                    : QStringLiteral("–");
}

QString anteilstext(const Mahlzeitenanteil &einer)
{
    return einer.energie && *einer.energie > 0 && std::isfinite(einer.prozent)
               ? wertText(einer.prozent, 0) + QChar(QChar::Nbsp) + u'%'
               : QString();
}

QString mahlzeitInWorten(const Mahlzeitenanteil &einer)
{
    const QString anteil = anteilstext(einer);
    const QString energie = einer.energie            ? energietext(einer)
                            : einer.unverstanden > 0 ? localizedString(QStringLiteral("unbekannt"))
                                                     : localizedString(QStringLiteral("nichts"));
    QStringList teile = {QStringLiteral("%1: %2").arg(
        einer.name, anteil.isEmpty() ? energie : energie + QStringLiteral(", ") + anteil)};
    if (einer.mittel) {
        teile << localizedString(QStringLiteral("im Mittel %1")).arg(kilokalorien(*einer.mittel));
    }
    if (einer.unverstanden > 0) {
        teile << localizedString(QStringLiteral("Zeilen, die nicht zählen: %1"))
                     .arg(einer.unverstanden);
    }
    return teile.join(QStringLiteral("; ")) + u'.';
}

Mahlzeitenspalten mahlzeitenspalten(double breite, const Mahlzeitenbreiten &wunsch)
{
    Mahlzeitenspalten spalten;
    spalten.prozent = breite - wunsch.prozent;
    spalten.energie = spalten.prozent - wunsch.abstand - wunsch.energie;
    const double rest = std::max(0.0, spalten.energie - 2 * wunsch.abstand);
    const double namensplatz = std::max(0.0, std::min(rest / 2, rest - wunsch.balken));
    spalten.namensbreite = std::min(wunsch.name, namensplatz);
    spalten.balken = spalten.namensbreite + wunsch.abstand;
    spalten.balkenbreite = rest - spalten.namensbreite;
    return spalten;
}
