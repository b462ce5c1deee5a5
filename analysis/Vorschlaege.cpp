#include "Vorschlaege.h"

#include "Namensstuecke.h"
#include "Speiseart.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <tuple>
#include <vector>

namespace {

/// A rating "-" weighs as much as this part of a gap: one portion of what does not suit is no harm
/// that outweighs a nutrient, but of two that help alike it comes second.
constexpr double abzugJeUngeeignet = 0.05;
/// What a food mends besides counts this part: of two that help alike the one comes first that
/// does other good.
constexpr double anteilNebenbei = 0.1;
/// When nothing is known of a food but the aim, this part of a gap.
constexpr double abzugUngewusst = 0.1;

/// What nobody is told to eat more of.
constexpr std::array nieZuWenig = {
    Kenngroesse::na,         Kenngroesse::salz,    Kenngroesse::chol,      Kenngroesse::zucker,
    Kenngroesse::gesaettigt, Kenngroesse::alkohol, Kenngroesse::harnsaeure};

/// The least that should be eaten; 0: there is no such end.
double untenVon(const Zielbereich &ziel)
{
    return std::ranges::find(nieZuWenig, ziel.groesse) == nieZuWenig.end() ? ziel.unten.value_or(0)
                                                                           : 0;
}

/// The most that should be eaten.
std::optional<double> obenVon(const Zielbereich &ziel)
{
    if (ziel.oben) {
        return ziel.oben;
    }
    if (ziel.groesse == Kenngroesse::kal && ziel.unten) {
        return ziel.unten;
    }
    return ziel.obergrenze;
}

double alsTeil(double menge, double ende)
{
    return ende > 0 ? menge / ende : menge;
}

/// How much is missing of something; below 0: how much is too much.
double fehlbetrag(const Zielbereich &ziel, double wert)
{
    if (wert < untenVon(ziel)) {
        return untenVon(ziel) - wert;
    }
    return std::min(0.0, obenVon(ziel).value_or(wert) - wert);
}

using Angaben = std::vector<Stoffangabe>; ///< of each aim, in their order

Angaben angabenVon(const Vorschlagsgrundlage &grundlage, const QString &schluessel,
                   const Datenmodul &lebensmittel)
{
    Angaben angaben;
    angaben.reserve(static_cast<std::size_t>(grundlage.ziele.size()));
    for (const Zielbereich &ziel : grundlage.ziele) {
        angaben.push_back(grundlage.wissen.je100g(schluessel, lebensmittel, ziel.groesse));
    }
    return angaben;
}

const Lebensmittelgruppe *gruppeVon(const Stoffwissen &wissen, const QString &schluessel)
{
    const Zusatzwerte *zusatz = wissen.zusatz(schluessel);
    return zusatz != nullptr ? zusatz->gruppe : nullptr;
}

/// What foods must have in common so that one can take the other's place, gram for gram: raw meat
/// and dry rice weigh something else than what comes to the table.
struct Platz
{
    std::string_view art;
    bool roh = false;
    bool trocken = false;

    bool operator==(const Platz &) const = default;
};

Platz platzVon(const Stoffwissen &wissen, const QString &schluessel, const Speiseart &speiseart)
{
    const Zusatzwerte *zusatz = wissen.zusatz(schluessel);
    static const Namensstuecke ungegart(", roh|, tiefgekühlt");
    return {speiseart.art, ungegart.kommtVorIn(schluessel),
            zusatz != nullptr && zusatz->verzehrfertig > 100};
}

/// How many ratings turn to "-" when a food comes in, in place of another or besides.
int neuUngeeignet(const Datenmodul &neu, const Datenmodul *alt)
{
    return static_cast<int>(std::ranges::count_if(wertungen, [&](const auto &eine) {
        const QString minus = QStringLiteral("-");
        return neu.wertung(eine.wertung) == minus &&
               (alt == nullptr || alt->wertung(eine.wertung) != minus);
    }));
}

/// A food that the conditions allow, with all that is asked of it.
struct Zugelassener
{
    const Vorschlagskandidat *kandidat;
    const Lebensmittelgruppe *gruppe;
    Platz platz;
    Angaben je100g;
};

/// A suggestion and where it comes from.
struct Fund
{
    Vorschlag vorschlag;
    const Zugelassener *woher;
};

/// Works out what is eaten once, and then what each food would change.
class Vorschlagsrechnung
{
public:
    Vorschlagsrechnung(const Vorschlagsgrundlage &grundlage, std::optional<Kenngroesse> ziel);

    /// Absent: there is no such aim.
    std::optional<std::size_t> zielstelle() const { return m_ziel; }
    double vorher(std::size_t stelle) const { return m_vorher[stelle]; }

    /// The foods that may come in addition, or in place of one of these rows.
    void lasseZu(const Kandidaten &kandidaten, const Vorschlagsbedingungen &bedingungen,
                 const std::optional<QList<int>> &stattZeilen);
    void gibDazu();
    void ersetze(int zeile);
    Vorschlagsliste ergebnis();

private:
    bool istErlaubt(const Vorschlagskandidat &kandidat, const Lebensmittelgruppe *gruppe,
                    const Vorschlagsbedingungen &bedingungen);
    std::optional<Platz> platzDer(int zeile) const;
    Stoffangabe aenderung(const Zugelassener &einer, double gramm, const Angaben *statt,
                          std::size_t stelle) const;
    void pruefe(const Zugelassener &einer, double gramm, int zeile, const Angaben *statt);
    bool ueberschreitet(std::size_t stelle, double nachher) const;

    const Vorschlagsgrundlage &m_grundlage;
    std::optional<std::size_t> m_ziel;
    std::vector<double> m_vorher;  ///< of each aim
    std::vector<double> m_abstand; ///< the same, as `abstand` has it
    std::vector<bool> m_bekannt;   ///< whether anything is known of it
    std::vector<Zugelassener> m_zugelassene;
    std::vector<Fund> m_funde;
    Vorschlagsliste m_ergebnis;
};

Vorschlagsrechnung::Vorschlagsrechnung(const Vorschlagsgrundlage &grundlage,
                                       std::optional<Kenngroesse> ziel)
    : m_grundlage(grundlage)
{
    for (const Zielbereich &eines : grundlage.ziele) {
        if (eines.groesse == ziel && !m_ziel) {
            m_ziel = m_vorher.size();
        }
        const Stoffsumme summe = summiere(grundlage.speisen, eines.groesse, grundlage.wissen);
        m_vorher.push_back(summe.wert);
        m_abstand.push_back(abstand(eines, m_vorher.back()));
        m_bekannt.push_back(summe.unbekannt < 1);
    }
}

bool Vorschlagsrechnung::istErlaubt(const Vorschlagskandidat &kandidat,
                                    const Lebensmittelgruppe *gruppe,
                                    const Vorschlagsbedingungen &bedingungen)
{
    if (bedingungen.gestrichen.contains(kandidat.schluessel)) {
        return false;
    }
    for (const Wertungsbeschreibung &eine : wertungen) {
        if (!istErfuellt(bedingungen.wertungen[stelle(eine.wertung)],
                         kandidat.lebensmittel.wertung(eine.wertung))) {
            return false;
        }
    }
    if (!bedingungen.ohne) {
        return true;
    }
    if (gruppe == nullptr) {
        ++m_ergebnis.unbeurteilt;
        return false;
    }
    return !(kannEnthalten(gruppe, kandidat.schluessel) & bedingungen.ohne);
}

/// What can stand in place of a row; absent where nothing can.
std::optional<Platz> Vorschlagsrechnung::platzDer(int zeile) const
{
    const Speise &speise = m_grundlage.speisen[zeile];
    const Speiseart art =
        speiseart(gruppeVon(m_grundlage.wissen, speise.schluessel), speise.schluessel);
    const Platz platz = platzVon(m_grundlage.wissen, speise.schluessel, art);
    return speise.lebensmittel && !platz.art.empty() ? std::optional(platz) : std::nullopt;
}

/// Keeps the foods that may be suggested and have a figure for the aim. What could stand nowhere is
/// not missed for want of one.
void Vorschlagsrechnung::lasseZu(const Kandidaten &kandidaten,
                                 const Vorschlagsbedingungen &bedingungen,
                                 const std::optional<QList<int>> &stattZeilen)
{
    const Eignung mindestens = stattZeilen ? Eignung::Ersatz : Eignung::Zugabe;
    std::vector<std::optional<Platz>> plaetze;
    for (const int zeile : stattZeilen.value_or(QList<int>())) {
        plaetze.push_back(platzDer(zeile));
    }
    const std::optional<Kenngroesse> ziel =
        m_ziel ? std::optional(m_grundlage.ziele[static_cast<qsizetype>(*m_ziel)].groesse)
               : std::nullopt;
    const bool nuetztNicht = ziel == Kenngroesse::ca || ziel == Kenngroesse::fe;
    for (const Vorschlagskandidat &kandidat : kandidaten) {
        const Lebensmittelgruppe *gruppe = gruppeVon(m_grundlage.wissen, kandidat.schluessel);
        const Speiseart art = speiseart(gruppe, kandidat.schluessel);
        const Platz platz = platzVon(m_grundlage.wissen, kandidat.schluessel, art);
        const bool findetPlatz =
            stattZeilen ? std::ranges::find(plaetze, platz) != plaetze.end() : kandidat.gramm > 0;
        if (art.eignung < mindestens || (nuetztNicht && art.oxalsaeure) || !findetPlatz ||
            !istErlaubt(kandidat, gruppe, bedingungen)) {
            continue;
        }
        Angaben angaben = angabenVon(m_grundlage, kandidat.schluessel, kandidat.lebensmittel);
        if (m_ziel && angaben[*m_ziel].istUnbekannt()) {
            ++m_ergebnis.ohneAngabe;
            continue;
        }
        m_zugelassene.push_back({&kandidat, gruppe, platz, std::move(angaben)});
    }
}

void Vorschlagsrechnung::gibDazu()
{
    for (const Zugelassener &einer : m_zugelassene) {
        pruefe(einer, einer.kandidat->gramm, -1, nullptr);
    }
}

void Vorschlagsrechnung::ersetze(int zeile)
{
    const Speise &speise = m_grundlage.speisen[zeile];
    const double gramm = zaehlendeGramm(speise);
    const std::optional<Platz> platz = platzDer(zeile);
    if (!platz) {
        return;
    }
    const Angaben statt = angabenVon(m_grundlage, speise.schluessel, *speise.lebensmittel);
    for (const Zugelassener &einer : m_zugelassene) {
        if (einer.platz == platz && einer.kandidat->schluessel != speise.schluessel) {
            pruefe(einer, gramm, zeile, &statt);
        }
    }
}

/// By how much a food changes an aim. Where nothing is known of it, or of the one whose place it
/// takes, nobody knows: it counts as unchanged.
Stoffangabe Vorschlagsrechnung::aenderung(const Zugelassener &einer, double gramm,
                                          const Angaben *statt, std::size_t stelle) const
{
    const Stoffangabe &neu = einer.je100g[stelle];
    const Stoffangabe alt = statt != nullptr ? (*statt)[stelle] : Stoffangabe();
    if (neu.istUnbekannt() || alt.istUnbekannt()) {
        return {.wert = 0, .unbekannt = 1};
    }
    return {(neu.wert - alt.wert) * gramm / 100, neu.unbekannt};
}

bool Vorschlagsrechnung::ueberschreitet(std::size_t stelle, double nachher) const
{
    const auto &grenze = m_grundlage.ziele[static_cast<qsizetype>(stelle)].obergrenze;
    return grenze && m_vorher[stelle] <= *grenze && nachher > *grenze;
}

/// Keeps a food as a suggestion when it helps more than it harms.
void Vorschlagsrechnung::pruefe(const Zugelassener &einer, double gramm, int zeile,
                                const Angaben *statt)
{
    const Speise *alt = zeile >= 0 ? &m_grundlage.speisen[zeile] : nullptr;
    const int ungeeignet =
        neuUngeeignet(einer.kandidat->lebensmittel, alt != nullptr ? &*alt->lebensmittel : nullptr);
    double punkte = -abzugJeUngeeignet * ungeeignet;
    const double abzug = abzugUngewusst / static_cast<double>(m_vorher.size());
    for (std::size_t stelle = 0; stelle < m_vorher.size(); ++stelle) {
        const Stoffangabe eine = aenderung(einer, gramm, statt, stelle);
        const double nachher = m_vorher[stelle] + eine.wert;
        if (ueberschreitet(stelle, nachher)) {
            return;
        }
        const double besser =
            m_abstand[stelle] - abstand(m_grundlage.ziele[static_cast<qsizetype>(stelle)], nachher);
        punkte -= abzug * eine.unbekannt;
        if (stelle != m_ziel && m_bekannt[stelle]) {
            punkte += m_ziel && besser > 0 ? anteilNebenbei * besser : besser;
        }
    }
    Vorschlag neuer = {.speise = {einer.kandidat->schluessel, einer.kandidat->lebensmittel, gramm,
                                  alt != nullptr ? alt->ort : -1},
                       .angabe = alt != nullptr ? QString() : einer.kandidat->angabe,
                       .zeile = zeile};
    if (m_ziel) {
        const Stoffangabe eine = aenderung(einer, gramm, statt, *m_ziel);
        const double nachher = m_vorher[*m_ziel] + eine.wert;
        const double rest = abstand(m_grundlage.ziele[static_cast<qsizetype>(*m_ziel)], nachher);
        neuer.aenderung = eine.wert;
        neuer.unbekannt = eine.unbekannt;
        neuer.geschlossen = m_abstand[*m_ziel] > 0 ? 1 - rest / m_abstand[*m_ziel] : 0;
        punkte += neuer.geschlossen;
    }
    neuer.punkte = punkte;
    if (punkte > 0 && (m_ziel ? neuer.geschlossen : punkte) >= mindestensGeschlossen) {
        m_funde.push_back({std::move(neuer), &einer});
    }
}

/// What a food is called without its preparation: "Spinat" of "Spinat, roh".
QStringView grundname(const QString &schluessel)
{
    const qsizetype komma = schluessel.indexOf(u',');
    return QStringView(schluessel).left(komma >= 0 ? komma : schluessel.size());
}

/// Whether two suggestions come to the same: in place of the same row the same food, prepared or
/// called in another way.
bool istDasselbe(const Vorschlag &einer, const Vorschlag &anderer)
{
    return einer.zeile == anderer.zeile &&
           (grundname(einer.speise.schluessel) == grundname(anderer.speise.schluessel) ||
            gleicherInhalt(*einer.speise.lebensmittel, *anderer.speise.lebensmittel));
}

/// The best of what was found: each food once, and of each group only so many.
Vorschlagsliste Vorschlagsrechnung::ergebnis()
{
    std::ranges::sort(m_funde, [](const Fund &einer, const Fund &anderer) {
        const Vorschlag &a = einer.vorschlag;
        const Vorschlag &b = anderer.vorschlag;
        return std::tie(b.punkte, a.speise.schluessel, a.zeile) <
               std::tie(a.punkte, b.speise.schluessel, b.zeile);
    });
    std::vector<const Fund *> gewaehlte;
    for (const Fund &fund : m_funde) {
        const auto gleich = [&fund](const Fund *anderer) {
            return istDasselbe(anderer->vorschlag, fund.vorschlag);
        };
        const auto verwandt = [&fund](const Fund *anderer) {
            return fund.woher->gruppe != nullptr && anderer->woher->gruppe == fund.woher->gruppe &&
                   anderer->vorschlag.zeile == fund.vorschlag.zeile;
        };
        if (std::ranges::none_of(gewaehlte, gleich) &&
            std::ranges::count_if(gewaehlte, verwandt) < hoechstensJeGruppe) {
            gewaehlte.push_back(&fund);
            m_ergebnis.vorschlaege.append(fund.vorschlag);
        }
        if (m_ergebnis.vorschlaege.size() == hoechstensVorschlaege) {
            break;
        }
    }
    return m_ergebnis;
}

} // namespace

double abstand(const Zielbereich &ziel, double wert)
{
    const double fehlt = fehlbetrag(ziel, wert);
    return fehlt > 0 ? alsTeil(fehlt, untenVon(ziel)) : alsTeil(-fehlt, obenVon(ziel).value_or(0));
}

QList<Abweichung> abweichungen(const Vorschlagsgrundlage &grundlage)
{
    QList<Abweichung> alle;
    for (const Zielbereich &ziel : grundlage.ziele) {
        const Stoffsumme summe = summiere(grundlage.speisen, ziel.groesse, grundlage.wissen);
        const double anteil = abstand(ziel, summe.wert);
        if (anteil > 0 && summe.unbekannt < 1) { // else nobody knows
            const double fehlt = fehlbetrag(ziel, summe.wert);
            const bool ueberhoeht = ziel.obergrenze && summe.wert > *ziel.obergrenze;
            const Lage zuViel = ueberhoeht ? Lage::Ueberhoeht : Lage::ZuViel;
            alle.append({ziel, summe.wert, summe.unbekannt, fehlt > 0 ? Lage::ZuWenig : zuViel,
                         fehlt, anteil});
        }
    }
    std::ranges::stable_sort(alle, std::greater(), &Abweichung::anteil);
    return alle;
}

Vorschlagsliste vorschlaege(const Vorschlagsgrundlage &grundlage, Kenngroesse ziel,
                            const Kandidaten &kandidaten, const Vorschlagsbedingungen &bedingungen)
{
    Vorschlagsrechnung rechnung(grundlage, ziel);
    const auto stelle = rechnung.zielstelle();
    if (!stelle) {
        return {};
    }
    const double fehlt =
        fehlbetrag(grundlage.ziele[static_cast<qsizetype>(*stelle)], rechnung.vorher(*stelle));
    if (fehlt > 0) {
        rechnung.lasseZu(kandidaten, bedingungen, std::nullopt);
        rechnung.gibDazu();
    } else if (fehlt < 0) {
        QList<int> zeilen(grundlage.speisen.size());
        std::iota(zeilen.begin(), zeilen.end(), 0);
        rechnung.lasseZu(kandidaten, bedingungen, zeilen);
        std::ranges::for_each(zeilen, [&](int zeile) { rechnung.ersetze(zeile); });
    }
    return rechnung.ergebnis();
}

Vorschlagsliste stattZeile(const Vorschlagsgrundlage &grundlage, int zeile,
                           std::optional<Kenngroesse> ziel, const Kandidaten &kandidaten,
                           const Vorschlagsbedingungen &bedingungen)
{
    Vorschlagsrechnung rechnung(grundlage, ziel);
    if (zeile < 0 || zeile >= grundlage.speisen.size() || (ziel && !rechnung.zielstelle())) {
        return {};
    }
    rechnung.lasseZu(kandidaten, bedingungen, QList<int>{zeile});
    rechnung.ersetze(zeile);
    return rechnung.ergebnis();
}

QList<Wirkung> wirkung(const Vorschlagsgrundlage &grundlage, const Vorschlag &vorschlag)
{
    QList<Wirkung> alle;
    const bool ersetzt = vorschlag.zeile >= 0 && vorschlag.zeile < grundlage.speisen.size();
    for (const Zielbereich &ziel : grundlage.ziele) {
        Wirkung eine = {.ziel = ziel};
        const Stoffsumme summe = summiere(grundlage.speisen, ziel.groesse, grundlage.wissen);
        eine.vorher = summe.wert;
        eine.vorherUnbekannt = summe.unbekannt;
        const Stoffangabe neu = stoffangabe(vorschlag.speise, ziel.groesse, grundlage.wissen);
        const Stoffangabe alt = ersetzt ? stoffangabe(grundlage.speisen[vorschlag.zeile],
                                                      ziel.groesse, grundlage.wissen)
                                        : Stoffangabe();
        const bool offen = neu.istUnbekannt() || alt.istUnbekannt();
        eine.unbekannt = offen ? 1 : neu.unbekannt;
        eine.nachher = offen ? eine.vorher : eine.vorher + neu.wert - alt.wert;
        const double besser = abstand(ziel, eine.vorher) - abstand(ziel, eine.nachher);
        if (std::abs(besser) >= mindestensSpuerbar && summe.unbekannt < 1) {
            eine.richtung = besser > 0 ? Wirkung::Richtung::Besser : Wirkung::Richtung::Schlechter;
        }
        alle.append(eine);
    }
    return alle;
}
