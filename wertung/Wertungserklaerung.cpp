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
constexpr std::array<Zweisprachig, anzahlWertungen> wertungsnamen = {
    {{"Übergewicht", "Overweight"},
     {"Diabetes", "Diabetes"},
     {"Gicht", "Gout"},
     {"Herz und Kreislauf", "Heart and circulation"}}};
constexpr Zweisprachig bezeichnungen[] = {
    {"geeignet", "suitable"}, {"neutral", "neutral"}, {"ungeeignet", "unsuitable"}};
constexpr Zweisprachig klassen[] = {
    {"wenige", "few"}, {"mäßig viele", "moderate"}, {"viele", "many"}};
constexpr Zweisprachig ohneZahl = {"Purine: %1 (dafür ist keine Zahl veröffentlicht)",
                                   "purines: %1 (no figure is published for it)"};
constexpr Zweisprachig kopf = {"%1: „%2“ (%3), Regel %4", "%1: \"%2\" (%3), rule %4"};
constexpr Zweisprachig zumPlus = {"„+“ nur bei: %1", "\"+\" only with: %1"};
constexpr Zweisprachig ohneDieRegelPlus = {"Ohne diese Regel wäre es „+“.",
                                           "Without this rule it would be \"+\"."};
constexpr Zweisprachig zurNull = {"„0“ erst bei: %1", "\"0\" not before: %1"};
constexpr Zweisprachig zumMinus = {"„-“ erst bei: %1", "\"-\" not before: %1"};
constexpr Zweisprachig ohneMinus = {"Keine Regel gibt einem solchen Lebensmittel „-“.",
                                    "No rule gives such a food a \"-\"."};
constexpr Zweisprachig gegessen = {"Gerechnet je 100 g, wie gegessen: 100 g ergeben %1 g.",
                                   "Reckoned for 100 g as eaten: 100 g give %1 g."};
constexpr Zweisprachig purinquellen = {"Purine nach: %1", "Purines after: %1"};

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

/// One missed condition is enough to keep a worse rating away; the first one tells it.
std::vector<Bedingung> erstes(std::vector<Bedingung> liste)
{
    liste.resize(std::min<std::size_t>(liste.size(), 1));
    return liste;
}

} // namespace

Wertungserklaerung::Wertungserklaerung(Wertung wertung, const Tabellenzeile &zeile,
                                       Regelsprache sprache, QLocale zahlen,
                                       const Regelwerk &regeln)
    : m_wertung(wertung)
    , m_sprache(sprache)
    , m_zahlen(std::move(zahlen))
    , m_verzehrfertig(zeile.verzehrfertig)
    , m_purinquellen(zeile.purinquellen)
    , m_food(wertungsgroessen(zeile))
    , m_regel(entscheidendeRegel(wertung, m_food, regeln))
{
    m_zahlen.setNumberOptions(m_zahlen.numberOptions() | QLocale::OmitGroupSeparator);
    if (m_regel != nullptr) {
        sammle(regeln);
    }
}

void Wertungserklaerung::sammle(const Regelwerk &regeln)
{
    for (const Bedingung &bedingung : m_regel->bedingungen) {
        m_gruende.append(gehalten(bedingung));
    }
    const char eigenes = *m_regel->urteil;
    // A rule without limits takes what the others leave: theirs tell why the food is left.
    const bool rest = eigenes == '+' && m_regel->bedingungen.empty();
    bool davor = true; // the rules before the one that decides were tried and missed
    for (const Wertungsregel &regel : regeln) {
        davor = davor && &regel != m_regel;
        if (regel.wertung != m_wertung || &regel == m_regel || !betrifft(regel)) {
            continue;
        }
        const char anderes = *regel.urteil;
        if (eigenes == '0' && anderes == '+') {
            naehertPlus(verfehltes(regel));
        } else if (davor && anderes == '-' && (eigenes == '0' || rest)) {
            ergaenze(m_fehltZumMinus, erstes(verfehltes(regel)));
        } else if (davor && anderes == '0' && rest) {
            ergaenze(m_fehltZurNull, erstes(verfehltes(regel)));
        }
    }
}

/// Of several ways to "+" the one that misses least is the one to tell.
void Wertungserklaerung::naehertPlus(const Verfehltes &verfehlt)
{
    if (verfehlt.empty()) {
        m_sonstPlus = true;
        m_fehltZumPlus.clear();
    } else if (!m_sonstPlus &&
               (m_fehltZumPlus.empty() || verfehlt.size() < m_fehltZumPlus.size())) {
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

Wertungserklaerung::Verfehltes Wertungserklaerung::verfehltes(const Wertungsregel &regel) const
{
    Verfehltes liste;
    if (regel.verlangt.testFlag(Merkmal::Zuckerarm) &&
        !m_food.merkmale.testFlag(Merkmal::Zuckerarm)) {
        liste.push_back(
            {Groesse::FreierZucker, Vergleich::Hoechstens, zuckerarmgrenze(m_food.merkmale)});
    }
    std::copy_if(regel.bedingungen.begin(), regel.bedingungen.end(), std::back_inserter(liste),
                 [this](const Bedingung &bedingung) { return !haelt(bedingung, m_food); });
    return liste;
}

QString Wertungserklaerung::figur(Groesse groesse) const
{
    const auto &beschreibung = groessen[static_cast<std::size_t>(groesse)];
    const double zahl = m_food.zahl(groesse);
    if (std::isinf(zahl)) {
        return keineBallaststoffe.in(m_sprache);
    }
    return m_zahlen.toString(zahl, 'g', 4) + u' ' + QLatin1String(beschreibung.einheit);
}

QString Wertungserklaerung::grenze(const Bedingung &bedingung) const
{
    const auto &beschreibung = groessen[static_cast<std::size_t>(bedingung.groesse)];
    return vergleichswort(bedingung.vergleich, m_sprache) + u' ' +
           m_zahlen.toString(bedingung.grenze, 'g', 6) + u' ' + QLatin1String(beschreibung.einheit);
}

QString Wertungserklaerung::gehalten(const Bedingung &bedingung) const
{
    if (bedingung.groesse == Groesse::Harnsaeure && m_food.purinklasse) {
        return ohneZahl.in(m_sprache).arg(
            klassen[static_cast<std::size_t>(*m_food.purinklasse)].in(m_sprache));
    }
    const auto &beschreibung = groessen[static_cast<std::size_t>(bedingung.groesse)];
    return u"%1 %2 (%3)"_s.arg(beschreibung.name.in(m_sprache), figur(bedingung.groesse),
                               grenze(bedingung));
}

QString Wertungserklaerung::verfehlt(const Bedingung &bedingung) const
{
    if (bedingung.groesse == Groesse::Harnsaeure && m_food.purinklasse) {
        return gehalten(bedingung);
    }
    const auto &beschreibung = groessen[static_cast<std::size_t>(bedingung.groesse)];
    return hier.in(m_sprache).arg(beschreibung.name.in(m_sprache), grenze(bedingung),
                                  figur(bedingung.groesse));
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
    zeilen += m_gruende;
    const std::pair<const Zweisprachig &, QStringList> listen[] = {
        {zumPlus, fehltZumPlus()}, {zurNull, fehltZurNull()}, {zumMinus, fehltZumMinus()}};
    for (const auto &[vorn, liste] : listen) {
        if (!liste.isEmpty()) {
            zeilen.append(vorn.in(m_sprache).arg(liste.join(u", ")));
        }
    }
    if (m_sonstPlus) {
        zeilen.append(ohneDieRegelPlus.in(m_sprache));
    }
    if (*m_regel->urteil == '0' && m_fehltZumMinus.empty()) {
        zeilen.append(ohneMinus.in(m_sprache));
    }
    if (m_verzehrfertig > 100) {
        zeilen.append(gegessen.in(m_sprache).arg(m_zahlen.toString(m_verzehrfertig, 'g', 6)));
    }
    if (m_wertung == Wertung::gicht && !m_purinquellen.isEmpty()) {
        zeilen.append(purinquellen.in(m_sprache).arg(m_purinquellen));
    }
    return zeilen;
}
