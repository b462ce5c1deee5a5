#include "Wertungserklaerung.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <utility>

namespace {

using namespace Qt::StringLiterals;

/// Marks that no figure can give a food: it is a drink or a seasoning, or it is not.
constexpr Merkmale ausZahlen = Merkmal::Zuckerarm;

constexpr Zweisprachig hier = {"%1 %2 (hier %3)", "%1 %2 (here %3)"};
constexpr Zweisprachig keineBallaststoffe = {"keine Ballaststoffe", "no fibre"};
constexpr Zweisprachig und = {" und ", " and "};
constexpr Zweisprachig oder = {" oder ", " or "};
constexpr std::array<Zweisprachig, anzahlWertungen> wertungsnamen = {
    {{"Übergewicht", "Overweight"},
     {"Diabetes", "Diabetes"},
     {"Gicht", "Gout"},
     {"Herz und Kreislauf", "Heart and circulation"}}};
constexpr Zweisprachig bezeichnungen[] = {
    {"geeignet", "suitable"}, {"neutral", "neutral"}, {"ungeeignet", "unsuitable"}};
constexpr Zweisprachig klassen[] = {
    {"wenige", "low"}, {"mäßig viele", "moderate"}, {"viele", "high"}};
constexpr Zweisprachig klasse = {"Purine: %1", "purines: %1"};
constexpr Zweisprachig andereKlasse = {"%1 Purine (hier %2)", "%1 in purines (here %2)"};
constexpr Zweisprachig kopf = {"%1: „%2“ (%3), Regel %4", "%1: \"%2\" (%3), rule %4"};
constexpr Zweisprachig nullAuchNach = {"„0“ auch nach Regel %1: %2",
                                       "\"0\" by rule %1 as well: %2"};
constexpr Zweisprachig zumPlus = {"Nächster Weg zu „+“: %1", "Nearest way to \"+\": %1"};
constexpr Zweisprachig zumPlusAusserdem = {"Für „+“ wäre außerdem nötig: %1",
                                           "Also needed for \"+\": %1"};
constexpr Zweisprachig ohneDieRegelPlus = {"Ohne diese Regel wäre es „+“.",
                                           "Without this rule it would be \"+\"."};
constexpr Zweisprachig ohneDieRegelnPlus = {"Ohne diese Regeln wäre es „+“.",
                                            "Without these rules it would be \"+\"."};
constexpr Zweisprachig zurNull = {"„0“ erst bei: %1", "\"0\" not before: %1"};
constexpr Zweisprachig zumMinus = {"„-“ erst bei: %1", "\"-\" not before: %1"};
constexpr Zweisprachig ohneMinus = {"Keine Regel gibt einem solchen Lebensmittel „-“.",
                                    "No rule gives such a food a \"-\"."};
constexpr Zweisprachig gegessen = {"Gerechnet je 100 g, wie gegessen: 100 g ergeben %1 g.",
                                   "Reckoned for 100 g as eaten: 100 g give %1 g."};
constexpr Zweisprachig purinquellen = {"Purinwerte nach: %1", "Purine figures from: %1"};
constexpr Zweisprachig keinPurinwert = {"Eine Zahl für die Purine ist nicht veröffentlicht.",
                                        "No figure is published for the purines."};

const Zweisprachig &bezeichnung(const char *urteil)
{
    switch (*urteil) {
    case '+':
        return bezeichnungen[0];
    case '-':
        return bezeichnungen[2];
    default:
        return bezeichnungen[1];
    }
}

/// The lowest class that is over a limit for uric acid.
Purinklasse klasseUeber(double grenze)
{
    return grenze < 100 ? Purinklasse::Mittel : Purinklasse::Hoch;
}

/// Whether a rule decides for all foods that no other decides for.
bool nimmtRest(const Wertungsregel &regel)
{
    return regel.bedingungen.empty() && !regel.verlangt;
}

QString aufzaehlung(QStringList teile, const Zweisprachig &bindewort, Regelsprache sprache)
{
    const QString letzter = teile.takeLast();
    return teile.isEmpty() ? letzter : teile.join(u", ") + bindewort.in(sprache) + letzter;
}

/// The longest list that can be read in one line.
constexpr qsizetype langeListe = 3;

/// One missed condition is enough to keep a worse rating away; the first one tells it.
std::vector<Bedingung> erstes(std::vector<Bedingung> liste)
{
    if (liste.size() > 1) {
        liste.erase(std::next(liste.begin()), liste.end());
    }
    return liste;
}

} // namespace

Wertungserklaerung::Wertungserklaerung(Wertung wertung, const Tabellenzeile &zeile,
                                       Regelsprache sprache, const QLocale &zahlen,
                                       const Regelwerk &regeln)
    : Wertungserklaerung(wertung, wertungsgroessen(zeile), sprache, zahlen, regeln)
{
    m_verzehrfertig = zeile.verzehrfertig;
    m_purinquellen = zeile.purinquellen;
}

Wertungserklaerung::Wertungserklaerung(Wertung wertung, const Wertungsgroessen &food,
                                       Regelsprache sprache, const QLocale &zahlen,
                                       const Regelwerk &regeln)
    : m_wertung(wertung)
    , m_sprache(sprache)
    , m_zahlen(zahlen)
    , m_food(food)
    , m_regel(entscheidendeRegel(wertung, m_food, regeln))
{
    m_zahlen.setNumberOptions(m_zahlen.numberOptions() | QLocale::OmitGroupSeparator);
    if (m_regel != nullptr) {
        sammle(regeln);
    }
}

void Wertungserklaerung::sammle(const Regelwerk &regeln)
{
    m_gruende = gehaltenes(*m_regel);
    const bool null = *m_regel->urteil == '0';
    const bool rest = bleibtPlus();
    if (!null && !rest) {
        return;
    }
    for (const Wertungsregel &regel : regeln) {
        if (&regel == m_regel) {
            break; // the rules before the one that decides were tried and missed
        }
        if (regel.wertung != m_wertung || !betrifft(regel)) {
            continue;
        }
        if (*regel.urteil == '-') {
            ergaenze(m_fehltZumMinus, erstes(verfehltes(regel)));
        } else if (*regel.urteil == '0' && rest) {
            ergaenze(m_fehltZurNull, erstes(verfehltes(regel)));
        } else if (*regel.urteil == '+' && null) {
            naehertPlus(verfehltes(regel));
        }
    }
    if (null && m_fehltZumPlus.empty()) {
        sammleOhneRegel(regeln);
    }
}

/// A "+" without limits takes what the other rules leave: theirs tell why the food is left.
bool Wertungserklaerung::bleibtPlus() const
{
    return *m_regel->urteil == '+' && m_regel->bedingungen.empty();
}

/// What the rules after the one that decides would say if it were not there.
void Wertungserklaerung::sammleOhneRegel(const Regelwerk &regeln)
{
    const auto naechste = std::next(regeln.begin(), m_regel - regeln.data() + 1);
    for (auto regel = naechste; regel != regeln.end(); ++regel) {
        if (regel->wertung != m_wertung || !betrifft(*regel)) {
            continue;
        }
        const bool gegeben = gilt(*regel, m_food);
        if (*regel->urteil == '+' && !gegeben) {
            naehertPlus(verfehltes(*regel));
        } else if (gegeben && (*regel->urteil != '0' || nimmtRest(*regel))) {
            m_sonstPlus = *regel->urteil == '+';
            break;
        } else if (gegeben) {
            m_auchNull.append(nullAuchNach.in(m_sprache).arg(QLatin1String(regel->kennung),
                                                             grundOderSatz(*regel)));
        }
    }
    m_plusErstOhneRegel = true;
    if (m_sonstPlus) {
        m_fehltZumPlus.clear();
    }
}

/// Of several ways to "+" the one that misses least is the one to tell: the fewest limits, and
/// among as few the nearest.
void Wertungserklaerung::naehertPlus(const Verfehltes &verfehlt)
{
    const auto weg = [this](const Verfehltes &liste) {
        double summe = 0;
        for (const Bedingung &bedingung : liste) {
            summe += std::abs(m_food.zahl(bedingung.groesse) / bedingung.grenze - 1);
        }
        return std::pair(liste.size(), summe);
    };
    if (m_fehltZumPlus.empty() || weg(verfehlt) < weg(m_fehltZumPlus)) {
        m_fehltZumPlus = verfehlt;
    }
}

/// Where several rules have a limit for one figure, the one that is nearest to the food's tells
/// most.
void Wertungserklaerung::ergaenze(Verfehltes &liste, const Verfehltes &neue) const
{
    const auto abstand = [this](const Bedingung &bedingung) {
        return std::abs(bedingung.grenze - m_food.zahl(bedingung.groesse));
    };
    for (const Bedingung &eine : neue) {
        const auto gleiche = std::find_if(liste.begin(), liste.end(), [&](const Bedingung &andere) {
            return andere.groesse == eine.groesse;
        });
        if (gleiche == liste.end()) {
            liste.push_back(eine);
        } else if (abstand(eine) < abstand(*gleiche)) {
            *gleiche = eine;
        }
    }
}

QStringList Wertungserklaerung::texte(const Verfehltes &liste) const
{
    QStringList texte;
    for (const Bedingung &bedingung : liste) {
        texte.append(verfehlt(bedingung));
    }
    return texte;
}

/// A rule for drinks says nothing about bread.
bool Wertungserklaerung::betrifft(const Wertungsregel &regel) const
{
    const Merkmale verlangt = regel.verlangt & ~ausZahlen;
    return (m_food.merkmale & verlangt) == verlangt && !(m_food.merkmale & regel.verboten);
}

/// Free sugars are held against a limit of their own, which a mark stands for in the rules.
Bedingung Wertungserklaerung::zuckerarm() const
{
    return {Groesse::FreierZucker, Vergleich::Hoechstens, zuckerarmgrenze(m_food.merkmale)};
}

Wertungserklaerung::Verfehltes Wertungserklaerung::verfehltes(const Wertungsregel &regel) const
{
    Verfehltes liste;
    if (regel.verlangt.testFlag(Merkmal::Zuckerarm) &&
        !m_food.merkmale.testFlag(Merkmal::Zuckerarm)) {
        liste.push_back(zuckerarm());
    }
    std::copy_if(regel.bedingungen.begin(), regel.bedingungen.end(), std::back_inserter(liste),
                 [this](const Bedingung &bedingung) { return !haelt(bedingung, m_food); });
    return liste;
}

QStringList Wertungserklaerung::gehaltenes(const Wertungsregel &regel) const
{
    QStringList texte;
    if (regel.verlangt.testFlag(Merkmal::Zuckerarm)) {
        texte.append(gehalten(zuckerarm()));
    }
    for (const Bedingung &bedingung : regel.bedingungen) {
        texte.append(gehalten(bedingung));
    }
    return texte;
}

QString Wertungserklaerung::grundOderSatz(const Wertungsregel &regel) const
{
    const QStringList gruende = gehaltenes(regel);
    return gruende.isEmpty() ? regel.satz.in(m_sprache) : aufzaehlung(gruende, und, m_sprache);
}

/// A figure in few digits, but in as many as it takes to see on which side of the limit it is.
QString Wertungserklaerung::figur(const Bedingung &bedingung) const
{
    const double zahl = m_food.zahl(bedingung.groesse);
    if (std::isinf(zahl)) {
        return keineBallaststoffe.in(m_sprache);
    }
    Wertungsgroessen gerundet = m_food;
    double &gezeigt = gerundet.zahlen[static_cast<std::size_t>(bedingung.groesse)];
    for (int stellen = zahl < 10 ? 2 : 1; stellen < 10; ++stellen) {
        const double zehner = std::pow(10, stellen);
        gezeigt = std::round(zahl * zehner) / zehner;
        if (haelt(bedingung, gerundet) == haelt(bedingung, m_food)) {
            break;
        }
    }
    return mitEinheit(gezeigt, bedingung.groesse);
}

QString Wertungserklaerung::mitEinheit(double zahl, Groesse groesse) const
{
    const auto &beschreibung = groessen[static_cast<std::size_t>(groesse)];
    return m_zahlen.toString(zahl, 'f', QLocale::FloatingPointShortest) + u' ' +
           QLatin1String(beschreibung.einheit);
}

QString Wertungserklaerung::grenze(const Bedingung &bedingung) const
{
    return vergleichswort(bedingung.vergleich, m_sprache) + u' ' +
           mitEinheit(bedingung.grenze, bedingung.groesse);
}

QString Wertungserklaerung::gehalten(const Bedingung &bedingung) const
{
    if (bedingung.groesse == Groesse::Harnsaeure && m_food.purinklasse) {
        return klasse.in(m_sprache).arg(klassenwort(*m_food.purinklasse));
    }
    if (std::isinf(m_food.zahl(bedingung.groesse))) {
        return verfehlt(bedingung);
    }
    const auto &beschreibung = groessen[static_cast<std::size_t>(bedingung.groesse)];
    return u"%1 %2 (%3)"_s.arg(beschreibung.name.in(m_sprache), figur(bedingung),
                               grenze(bedingung));
}

QString Wertungserklaerung::verfehlt(const Bedingung &bedingung) const
{
    if (bedingung.groesse == Groesse::Harnsaeure && m_food.purinklasse) {
        return andereKlasse.in(m_sprache).arg(klassenwort(klasseUeber(bedingung.grenze)),
                                              klassenwort(*m_food.purinklasse));
    }
    const auto &beschreibung = groessen[static_cast<std::size_t>(bedingung.groesse)];
    return hier.in(m_sprache).arg(beschreibung.name.in(m_sprache), grenze(bedingung),
                                  figur(bedingung));
}

QString Wertungserklaerung::klassenwort(Purinklasse purinklasse) const
{
    return klassen[static_cast<std::size_t>(purinklasse)].in(m_sprache);
}

QStringList Wertungserklaerung::zeilen() const
{
    if (m_regel == nullptr) {
        return {};
    }
    QStringList zeilen = {kopf.in(m_sprache).arg(wertungsnamen[stelle(m_wertung)].in(m_sprache),
                                                 QLatin1String(m_regel->urteil),
                                                 bezeichnung(m_regel->urteil).in(m_sprache),
                                                 QLatin1String(m_regel->kennung)),
                          m_regel->satz.in(m_sprache)};
    zeilen += m_gruende + m_auchNull;
    zeilen +=
        bedingungszeilen(m_plusErstOhneRegel ? zumPlusAusserdem : zumPlus, fehltZumPlus(), und);
    zeilen += bedingungszeilen(zurNull, fehltZurNull(), oder);
    zeilen += bedingungszeilen(zumMinus, fehltZumMinus(), oder);
    if (m_sonstPlus) {
        const Zweisprachig &satz = m_auchNull.isEmpty() ? ohneDieRegelPlus : ohneDieRegelnPlus;
        zeilen.append(satz.in(m_sprache));
    }
    return zeilen + schlusszeilen();
}

/// A list of limits in one line, or in two where it would be too long for one.
QStringList Wertungserklaerung::bedingungszeilen(const Zweisprachig &vorn, const QStringList &liste,
                                                 const Zweisprachig &bindewort) const
{
    if (liste.isEmpty()) {
        return {};
    }
    if (liste.size() <= langeListe) {
        return {vorn.in(m_sprache).arg(aufzaehlung(liste, bindewort, m_sprache))};
    }
    const qsizetype haelfte = liste.size() / 2;
    return {vorn.in(m_sprache).arg(liste.first(haelfte).join(u", ")) + u',',
            aufzaehlung(liste.sliced(haelfte), bindewort, m_sprache)};
}

/// Whether the purines are among what decided.
bool Wertungserklaerung::nenntPurine() const
{
    const auto enthalten = [](const Verfehltes &liste) {
        return std::any_of(liste.begin(), liste.end(), [](const Bedingung &bedingung) {
            return bedingung.groesse == Groesse::Harnsaeure;
        });
    };
    return enthalten(m_regel->bedingungen) || enthalten(m_fehltZurNull) ||
           enthalten(m_fehltZumMinus);
}

/// What is true of the whole explanation: that there is no worse rating, and whence the figures.
QStringList Wertungserklaerung::schlusszeilen() const
{
    QStringList zeilen;
    if ((*m_regel->urteil == '0' || bleibtPlus()) && m_fehltZumMinus.empty()) {
        zeilen.append(ohneMinus.in(m_sprache));
    }
    if (m_verzehrfertig > 100) {
        zeilen.append(gegessen.in(m_sprache).arg(
            m_zahlen.toString(m_verzehrfertig, 'f', QLocale::FloatingPointShortest)));
    }
    if (nenntPurine() && m_food.purinklasse) {
        zeilen.append(keinPurinwert.in(m_sprache));
    } else if (nenntPurine() && !m_purinquellen.isEmpty()) {
        zeilen.append(purinquellen.in(m_sprache).arg(m_purinquellen.split(u' ').join(u", ")));
    }
    return zeilen;
}
