#include "Rezept.h"

#include "Zeichenkettentabelle.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace {

using enum Rezeptmangel;

/// Nothing of these leaves the pot as steam.
constexpr std::array festes = {Kenngroesse::protein, Kenngroesse::fett, Kenngroesse::kh,
                               Kenngroesse::bs};

/// What is said of each, in the order of the enumeration.
constexpr std::array<const char *, 12> worte = {
    "",
    QT_TRANSLATE_NOOP("Mahlberg", "Das Gericht braucht einen Namen."),
    QT_TRANSLATE_NOOP("Mahlberg", "Das Rezept hat keine Zutaten."),
    QT_TRANSLATE_NOOP("Mahlberg", "Ein Rezept kann höchstens 100 Zutaten haben."),
    QT_TRANSLATE_NOOP("Mahlberg", "Eine Zutat hat keinen Namen."),
    QT_TRANSLATE_NOOP("Mahlberg", "Jede Zutat braucht eine Menge über 0 g."),
    QT_TRANSLATE_NOOP("Mahlberg", "Eine Zutat kann höchstens 100 kg wiegen."),
    QT_TRANSLATE_NOOP("Mahlberg", "Das fertige Gericht muss mindestens 1 g wiegen."),
    QT_TRANSLATE_NOOP("Mahlberg", "Ein Gericht kann höchstens 100 kg wiegen."),
    QT_TRANSLATE_NOOP("Mahlberg", "Fertig kann das Gericht nicht weniger wiegen als Protein, Fett, "
                                  "Kohlenhydrate und Ballaststoffe der Zutaten zusammen."),
    QT_TRANSLATE_NOOP("Mahlberg", "Die Zahl der Portionen muss zwischen 0,1 und 1000 liegen."),
    QT_TRANSLATE_NOOP("Mahlberg", "Das Gericht kann nicht seine eigene Zutat sein, auch nicht auf "
                                  "dem Weg über andere Rezepte."),
};
static_assert(worte.size() == static_cast<std::size_t>(Kreis) + 1);

bool gleich(const Datenmodul &eines, const Datenmodul &anderes)
{
    return eines.name() == anderes.name() && gleicherInhalt(eines, anderes);
}

bool sindZaehlbar(double portionen)
{
    return portionen >= wenigstePortionen && portionen <= meistePortionen;
}

Rezeptmangel zutatenmangel(const Rezept &rezept)
{
    if (rezept.zutaten.isEmpty()) {
        return OhneZutaten;
    }
    if (rezept.zutaten.size() > meisteZutaten) {
        return ZuVieleZutaten;
    }
    for (const Rezeptzutat &zutat : rezept.zutaten) {
        if (zutat.schluessel.trimmed().isEmpty()) {
            return ZutatOhneName;
        }
        if (!std::isfinite(zutat.gramm) || zutat.gramm <= 0) {
            return ZutatOhneMenge;
        }
        if (zutat.gramm > meisteRezeptgramm) {
            return ZutatZuSchwer;
        }
    }
    return Keiner;
}

/// What is in the pot besides water can't be boiled away. Where nothing is said to be gone, a
/// record whose parts weigh more than the food is no reason to refuse the dish.
Rezeptmangel gewichtsmangel(const Rezept &rezept, const Stoffwissen &wissen)
{
    const double fertig = fertiggewicht(rezept);
    if (!std::isfinite(fertig) || fertig < wenigsteRezeptgramm) {
        return OhneGewicht;
    }
    if (fertig > meisteRezeptgramm) {
        return ZuSchwer;
    }
    const Speisen speisen = zutatenAlsSpeisen(rezept);
    double fest = 0;
    for (const Kenngroesse groesse : festes) {
        fest += summiere(speisen, groesse, wissen).wert;
    }
    return fertig < std::min(fest, rohgewicht(rezept)) ? ZuLeicht : Keiner;
}

bool fuehrtZu(const QString &ziel, const Rezept &rezept, const Rezepte &rezepte,
              QSet<QString> &besucht)
{
    return std::ranges::any_of(rezept.zutaten, [&](const Rezeptzutat &zutat) {
        if (zutat.schluessel == ziel) {
            return true;
        }
        const auto naechstes = rezepte.constFind(zutat.schluessel);
        if (naechstes == rezepte.cend() || besucht.contains(zutat.schluessel)) {
            return false;
        }
        besucht.insert(zutat.schluessel);
        return fuehrtZu(ziel, *naechstes, rezepte, besucht);
    });
}

void reiheEin(const QString &schluessel, const Rezepte &rezepte, QSet<QString> &besucht,
              QStringList &folge)
{
    const auto rezept = rezepte.constFind(schluessel);
    if (rezept == rezepte.cend() || besucht.contains(schluessel)) {
        return;
    }
    besucht.insert(schluessel);
    for (const Rezeptzutat &zutat : rezept->zutaten) {
        reiheEin(zutat.schluessel, rezepte, besucht, folge);
    }
    if (!enthaeltSich(*rezept, rezepte)) {
        folge << schluessel;
    }
}

} // namespace

bool Rezeptzutat::operator==(const Rezeptzutat &andere) const
{
    return schluessel == andere.schluessel && gramm == andere.gramm && gleich(satz, andere.satz);
}

bool Rezept::operator==(const Rezept &anderes) const
{
    return schluessel == anderes.schluessel && zutaten == anderes.zutaten &&
           fertiggewicht == anderes.fertiggewicht && portionen == anderes.portionen &&
           folgt == anderes.folgt && gruppe == anderes.gruppe && wertungen == anderes.wertungen &&
           notiz == anderes.notiz && gleich(gegeben, anderes.gegeben);
}

Rezeptergebnis rezeptwerte(const Rezept &rezept, const Stoffwissen &wissen)
{
    Rezeptergebnis ergebnis;
    ergebnis.mangel = rezeptmangel(rezept, wissen);
    if (!ergebnis) {
        return ergebnis;
    }
    ergebnis.rohgewicht = rohgewicht(rezept);
    ergebnis.fertiggewicht = fertiggewicht(rezept);
    ergebnis.satz.setName(rezept.schluessel);
    const double wasserzuwachs = ergebnis.fertiggewicht - ergebnis.rohgewicht;
    const Speisen speisen = zutatenAlsSpeisen(rezept);
    for (const Kenngroessenbeschreibung &eine : kenngroessen) {
        const Stoffsumme summe = summiere(speisen, eine.groesse, wissen);
        const double wert = eine.groesse == Kenngroesse::wasser
                                ? std::max(0.0, summe.wert + wasserzuwachs)
                                : summe.wert;
        const double je100g = wert / ergebnis.fertiggewicht * 100;
        ergebnis.angaben[stelle(eine.groesse)] = {je100g, summe.unbekannt};
        if (const auto wertImSatz = naehrwert(eine.groesse)) {
            ergebnis.satz.setWert(*wertImSatz, static_cast<float>(je100g));
        }
    }
    for (const Wertungsbeschreibung &eine : wertungen) {
        ergebnis.satz.setWertung(eine.wertung, rezept.wertungen[stelle(eine.wertung)]);
    }
    return ergebnis;
}

Rezeptmangel rezeptmangel(const Rezept &rezept, const Stoffwissen &wissen, const Rezepte &andere)
{
    if (rezept.schluessel.trimmed().isEmpty()) {
        return OhneName;
    }
    if (const Rezeptmangel mangel = zutatenmangel(rezept); mangel != Keiner) {
        return mangel;
    }
    if (enthaeltSich(rezept, andere)) {
        return Kreis;
    }
    if (const Rezeptmangel mangel = gewichtsmangel(rezept, wissen); mangel != Keiner) {
        return mangel;
    }
    return sindZaehlbar(rezept.portionen.value_or(1)) ? Keiner : PortionenUnmoeglich;
}

QString mangeltext(Rezeptmangel mangel)
{
    return mangel == Keiner
               ? QString()
               : localizedString(QString::fromUtf8(worte.at(static_cast<std::size_t>(mangel))));
}

double rohgewicht(const Rezept &rezept)
{
    double summe = 0;
    for (const Speise &eine : zutatenAlsSpeisen(rezept)) {
        summe += zaehlendeGramm(eine);
    }
    return summe;
}

double fertiggewicht(const Rezept &rezept)
{
    return rezept.fertiggewicht.value_or(rohgewicht(rezept));
}

std::optional<double> portionsgramm(const Rezept &rezept)
{
    const double fertig = fertiggewicht(rezept);
    const bool gewogen = fertig >= wenigsteRezeptgramm && fertig <= meisteRezeptgramm;
    if (!gewogen || !rezept.portionen || !sindZaehlbar(*rezept.portionen)) {
        return std::nullopt;
    }
    return fertig / *rezept.portionen;
}

Speisen zutatenAlsSpeisen(const Rezept &rezept)
{
    Speisen speisen;
    for (const Rezeptzutat &zutat : rezept.zutaten) {
        speisen << Speise{zutat.schluessel, zutat.satz, zutat.gramm,
                          static_cast<int>(speisen.size())};
    }
    return speisen;
}

bool enthaeltSich(const Rezept &rezept, const Rezepte &andere)
{
    QSet<QString> besucht;
    return fuehrtZu(rezept.schluessel, rezept, andere, besucht);
}

QStringList kochfolge(const Rezepte &rezepte)
{
    QSet<QString> besucht;
    QStringList folge;
    for (const QString &schluessel : rezepte.keys()) {
        reiheEin(schluessel, rezepte, besucht, folge);
    }
    return folge;
}

Rezepte geltendeRezepte(const Rezepte &rezepte, const Lebensmittelverzeichnis &eigene)
{
    Rezepte geltende;
    for (const Rezept &rezept : rezepte) {
        const auto lebensmittel = eigene.constFind(rezept.schluessel);
        if (lebensmittel != eigene.cend() && gleicheWerte(rezept.gegeben, *lebensmittel)) {
            geltende.insert(rezept.schluessel, rezept);
        }
    }
    return geltende;
}

QHash<QString, Rezeptangaben> rezeptangaben(const Rezepte &rezepte, Stoffwissen wissen)
{
    QHash<QString, Rezeptangaben> alle;
    for (const QString &schluessel : kochfolge(rezepte)) {
        if (const Rezeptergebnis ergebnis = rezeptwerte(rezepte[schluessel], wissen)) {
            alle.insert(schluessel, ergebnis.angaben);
            wissen.setzeRezepte(alle);
        }
    }
    return alle;
}
