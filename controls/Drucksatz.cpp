#include "Drucksatz.h"

#include <QPainter>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

namespace {

constexpr Druckschrift normal = {};
constexpr Druckschrift fett = {normal.groesse, true};
constexpr Druckschrift kopfschrift = {8, true};
constexpr Druckschrift kolumnenschrift = {8, false};

// In points.
constexpr double spaltenabstand = 12;
constexpr double meisteDehnung = 60; ///< by which a column is wider than it asks for
constexpr double langesWort = 100;   ///< longer ones may be broken
constexpr double zeilenluft = 2.5;   ///< above and below the texts of a row
constexpr double vorDarunter = 1.5;
constexpr double feinerStrich = 0.3;
constexpr double strich = 0.8;
constexpr double einzug = 12;
constexpr double namensbreite = 130;
constexpr double unterKopftext = 10;
constexpr double kaumHoeher = 0.01; ///< what sums of heights are off by
constexpr double aufgerundet = 0.5; ///< what is just as wide as its text would break it

/// Neither its first nor its last line stands alone on a page.
Druckstreifenfolge ohneEinzelne(Druckstreifenfolge folge)
{
    constexpr qsizetype wenige = 3;
    if (folge.size() <= wenige) {
        return folge;
    }
    const Druckstreifen letzter = folge.takeLast();
    folge.last() = verbunden(folge.constLast(), letzter);
    const Druckstreifen erster = folge.takeFirst();
    folge.first() = verbunden(erster, folge.constFirst());
    return folge;
}

Druckstreifen ganz(const Druckstreifenfolge &folge)
{
    return std::accumulate(std::next(folge.begin()), folge.end(), folge.constFirst(), verbunden);
}

/// Neither the first nor the last row stands alone below a head.
QList<Druckstreifenfolge> ohneEinzelneReihen(QList<Druckstreifenfolge> reihen)
{
    if (reihen.size() > 1) {
        const Druckstreifenfolge erste = reihen.takeFirst();
        reihen.first() = erste + reihen.constFirst();
    }
    if (reihen.size() > 1) {
        const Druckstreifenfolge letzte = reihen.takeLast();
        reihen.last() += letzte;
    }
    return reihen;
}

/// A row with air around it and a line below.
Druckstreifenfolge gefasst(Druckstreifenfolge zeilen, double breite, double dicke)
{
    if (zeilen.isEmpty()) {
        zeilen << freiraum(0);
    }
    zeilen.first() = verbunden(freiraum(zeilenluft), zeilen.constFirst());
    zeilen.last() =
        verbunden(verbunden(zeilen.constLast(), freiraum(zeilenluft)), waagerechte(breite, dicke));
    return zeilen;
}

/// How a row is set, head or body.
struct Zeilenart
{
    Druckschrift schrift;
    double strich; ///< below it
};

Druckstreifenfolge tabellenzeile(const Drucktabelle &tabelle, const Drucktabelle::Zeile &zeile,
                                 const QList<double> &breiten, const Zeilenart &art)
{
    QList<Druckzelle> zellen;
    double links = 0;
    for (qsizetype i = 0; i < breiten.size(); ++i) {
        zellen << Druckzelle{.text = zeile.zellen.value(i),
                             .schrift = art.schrift,
                             .links = links,
                             .breite = breiten[i],
                             .amRechtenRand = tabelle.spalten[i].zahlen};
        links += breiten[i] + spaltenabstand;
    }
    const double breite = links - spaltenabstand;
    Druckstreifenfolge folge = gesetzt(zellen);
    if (!zeile.darunter.isEmpty()) {
        folge.last() = verbunden(folge.constLast(), freiraum(vorDarunter));
        folge << gesetzt({{.text = zeile.darunter, .links = einzug, .breite = breite - einzug}});
    }
    return gefasst(ohneEinzelne(folge), breite, art.strich);
}

/// What the texts of a column ask for.
struct Breitenwunsch
{
    double mindestens = 0; ///< for the longest word
    double gern = 0;       ///< for the longest line
};

Breitenwunsch wunsch(const Drucktabelle &tabelle, qsizetype spalte, double platz)
{
    Breitenwunsch wunsch{0, tabelle.spalten[spalte].mindestens};
    const auto beachte = [&](const QString &text, const Druckschrift &schrift) {
        wunsch.mindestens = std::max(wunsch.mindestens, wortbreite(text, schrift));
        wunsch.gern = std::max(wunsch.gern, textbreite(text, schrift));
    };
    beachte(tabelle.spalten[spalte].kopf, kopfschrift);
    for (const Drucktabelle::Zeile &zeile : tabelle.zeilen) {
        beachte(zeile.zellen.value(spalte), zeile.fett ? fett : normal);
    }
    return {std::min(wunsch.mindestens, langesWort) + aufgerundet,
            std::min(wunsch.gern, platz) + aufgerundet};
}

QList<Breitenwunsch> wuensche(const Drucktabelle &tabelle, double platz)
{
    QList<Breitenwunsch> alle;
    for (qsizetype i = 0; i < tabelle.spalten.size(); ++i) {
        alle << wunsch(tabelle, i, platz);
    }
    return alle;
}

double luecken(const Drucktabelle &tabelle)
{
    return spaltenabstand * static_cast<double>(tabelle.spalten.size() - 1);
}

/// Each column gets what it asks for and some of what is left; where that is not there, each gets
/// what its longest word needs and a part of the rest, and less when not even that is there.
QList<double> spaltenbreiten(const Drucktabelle &tabelle, double breite)
{
    const auto anzahl = static_cast<double>(tabelle.spalten.size());
    const double platz = breite - luecken(tabelle);
    const QList<Breitenwunsch> einzelne = wuensche(tabelle, platz);
    Breitenwunsch alle;
    for (const Breitenwunsch &einer : einzelne) {
        alle.mindestens += einer.mindestens;
        alle.gern += einer.gern;
    }
    QList<double> breiten;
    for (const Breitenwunsch &einer : einzelne) {
        if (alle.gern <= platz) {
            breiten << einer.gern + std::min(meisteDehnung, (platz - alle.gern) / anzahl);
        } else if (alle.mindestens <= platz) {
            const double anteil = (platz - alle.mindestens) / (alle.gern - alle.mindestens);
            breiten << einer.mindestens + anteil * (einer.gern - einer.mindestens);
        } else {
            breiten << einer.mindestens * platz / alle.mindestens;
        }
    }
    return breiten;
}

/// How many times as large a table is set: on narrow paper smaller, so that dates and numbers stay
/// whole, but never too small to be read.
double tabellenmass(const Drucktabelle &tabelle, double breite)
{
    constexpr double kleinstes = 0.6;
    double mindestens = luecken(tabelle);
    for (const Breitenwunsch &einer : wuensche(tabelle, breite)) {
        mindestens += einer.mindestens;
    }
    return std::clamp(breite / mindestens, kleinstes, 1.0);
}

Druckstreifenfolge verkleinert(const Druckstreifenfolge &folge, double mass)
{
    Druckstreifenfolge kleine;
    for (const Druckstreifen &streifen : folge) {
        kleine << Druckstreifen{streifen.hoehe * mass, [streifen, mass](QPainter &maler) {
                                    maler.scale(mass, mass);
                                    streifen.male(maler);
                                }};
    }
    return kleine;
}

} // namespace

Drucksatz::Drucksatz(const QSizeF &seite, const QString &kopftext)
    : m_seite(seite)
    , m_kopftext(kopftext)
    , m_seiten(1)
    , m_frei(seite.height())
{
}

void Drucksatz::absatz(const QString &text, const Druckschrift &schrift)
{
    setze(ohneEinzelne(gesetzt({{.text = text, .schrift = schrift, .breite = breite()}})));
}

void Drucksatz::vorspann(const QString &text)
{
    Druckstreifenfolge folge = ohneEinzelne(gesetzt({{.text = text, .breite = breite()}}));
    if (istLang(folge)) {
        const Druckstreifen ende = folge.takeLast();
        setze(folge);
        folge = {ende};
    }
    m_wartend << folge;
}

void Drucksatz::ueberschrift(const QString &text, const Druckschrift &schrift)
{
    abstand(schrift.groesse);
    m_wartend << gesetzt({{.text = text, .schrift = schrift, .breite = breite()}});
    abstand(schrift.groesse / 4);
}

void Drucksatz::angabe(const QString &name, const QString &inhalt)
{
    const double links = std::min(namensbreite, breite() / 3);
    setze(ohneEinzelne(gesetzt(
        {{.text = name, .schrift = fett, .breite = links - spaltenabstand},
         {.text = inhalt, .schrift = normal, .links = links, .breite = breite() - links}})));
    abstand(zeilenluft);
}

void Drucksatz::linie()
{
    setze({waagerechte(breite(), strich)});
    abstand(2 * zeilenluft);
}

/// It waits for what follows: at the top of a page nothing needs to be kept apart.
void Drucksatz::abstand(double hoehe)
{
    m_wartend << freiraum(hoehe);
}

void Drucksatz::tabelle(const Drucktabelle &tabelle)
{
    const double mass = tabellenmass(tabelle, breite());
    const QList<double> breiten = spaltenbreiten(tabelle, breite() / mass);
    Drucktabelle::Zeile koepfe;
    for (const Drucktabelle::Spalte &spalte : tabelle.spalten) {
        koepfe.zellen << spalte.kopf;
    }
    m_tabellenkopf =
        verkleinert(tabellenzeile(tabelle, koepfe, breiten, {kopfschrift, strich}), mass);
    m_wartend << m_tabellenkopf;
    QList<Druckstreifenfolge> reihen;
    bool haelt = false;
    for (const Drucktabelle::Zeile &zeile : tabelle.zeilen) {
        const Druckstreifenfolge reihe = verkleinert(
            tabellenzeile(tabelle, zeile, breiten, {zeile.fett ? fett : normal, feinerStrich}),
            mass);
        const Druckstreifenfolge neue = istLang(reihe) ? reihe : Druckstreifenfolge{ganz(reihe)};
        if (haelt) {
            reihen.last() += neue;
        } else {
            reihen << neue;
        }
        haelt = zeile.haelt;
    }
    for (const Druckstreifenfolge &gruppe : ohneEinzelneReihen(reihen)) {
        setze(gruppe);
    }
    m_tabellenkopf.clear();
}

bool Drucksatz::istLang(const Druckstreifenfolge &gruppe) const
{
    return hoehe(gruppe) > m_seite.height() / 4;
}

/// Puts what belongs together on one page, unless it is long: then its beginning stays with what
/// heads it, and the rest goes on behind.
void Drucksatz::setze(const Druckstreifenfolge &gruppe)
{
    const double beisammen = hoehe(m_wartend) + hoehe(istLang(gruppe) ? gruppe.first(1) : gruppe);
    if (!m_leer && beisammen > m_frei + kaumHoeher) {
        // A table that only begins brings its head itself.
        neueSeite(m_wartend.isEmpty() ? m_tabellenkopf : Druckstreifenfolge());
    }
    lege(std::exchange(m_wartend, {}), {});
    lege(gruppe, m_tabellenkopf);
}

/// `kopf`: what stands above it where it goes on on a new page.
void Drucksatz::lege(const Druckstreifenfolge &folge, const Druckstreifenfolge &kopf)
{
    for (const Druckstreifen &streifen : folge) {
        if (!m_leer && streifen.hoehe > m_frei + kaumHoeher) {
            neueSeite(kopf);
        }
        if (m_leer && !streifen.male) {
            continue;
        }
        m_seiten.last() << streifen;
        m_frei -= streifen.hoehe;
        m_leer = false;
    }
}

void Drucksatz::neueSeite(const Druckstreifenfolge &kopf)
{
    const QString text = gekuerzt(m_kopftext, kolumnenschrift, breite());
    Druckstreifenfolge seite =
        gesetzt({{.text = text, .schrift = kolumnenschrift, .breite = breite()}});
    seite << waagerechte(breite(), feinerStrich) << freiraum(unterKopftext) << kopf;
    m_frei = m_seite.height() - hoehe(seite);
    m_seiten << seite;
    m_leer = true;
}

void Drucksatz::male(QPainter &maler, const QPointF &ecke, int nummer) const
{
    maler.save();
    maler.translate(ecke);
    for (const Druckstreifen &streifen : m_seiten.at(nummer - 1)) {
        if (streifen.male) {
            maler.save();
            streifen.male(maler);
            maler.restore();
        }
        maler.translate(0, streifen.hoehe);
    }
    maler.restore();
}
