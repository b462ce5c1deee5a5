#include "Zusatzdatei.h"

#include "Feldzeilen.h"
#include "Tabellenworte.h"

#include <QLocale>

#include <cmath>

namespace {

using namespace Qt::StringLiterals;

enum Spalte {
    Name,
    Gruppe,
    Zucker,
    Gesaettigt,
    Alkohol,
    Wasser,
    Dichte,
    Harnsaeure,
    Klasse,
    Verzehrfertig,
    Marken,
    Zuckersorte,
    Unbestimmt
};

const QStringList &namen()
{
    static const QStringList liste = {
        u"name"_s,  u"group"_s,      u"sugars"_s,    u"saturated"_s,    u"alcohol"_s,
        u"water"_s, u"density"_s,    u"uric_acid"_s, u"purine_class"_s, u"ready_g"_s,
        u"marks"_s, u"sugar_kind"_s, u"unknown"_s};
    return liste;
}

/// Where the figures stand that may be absent.
struct Zahlenspalte
{
    Spalte spalte;
    std::optional<double> Zusatzwerte::*wert;
};
constexpr std::array<Zahlenspalte, 6> zahlenspalten = {{
    {Zucker, &Zusatzwerte::zucker},
    {Gesaettigt, &Zusatzwerte::gesaettigt},
    {Alkohol, &Zusatzwerte::alkohol},
    {Wasser, &Zusatzwerte::wasser},
    {Dichte, &Zusatzwerte::dichte},
    {Harnsaeure, &Zusatzwerte::harnsaeure},
}};

const QString bemerkungen =
    u"# What is known of the built-in foods beside their records, per 100 g edible portion. The "
    u"build\n"
    "# makes this file. An empty field: not published. \"unknown\" names the values of the record "
    "that\n"
    "# the source does not give. Sugars, saturated fat, alcohol and water are in g, the density in "
    "g per\n"
    "# ml, uric acid from purines in mg; the publications of the purines are listed in "
    "docs/ratings.md.\n"
    "# Source: Swiss Food Composition Database, version 7.0 of 1 July 2025, Federal Food Safety "
    "and\n"
    "# Veterinary Office FSVO. Free use subject to this acknowledgment of the source.\n"_s;

QString zahlentext(std::optional<double> wert)
{
    return wert ? QString::number(*wert, 'g', QLocale::FloatingPointShortest) : QString();
}

/// Takes the fields of one line apart.
class Zeilenleser
{
public:
    explicit Zeilenleser(const QStringList &felder) : m_felder(felder) {}

    /// What is wrong; empty when all could be read.
    QStringList lesen(Zusatzwerte &ziel);

private:
    /// What can't be read in this column.
    void beanstande(Spalte spalte, const QString &was)
    {
        m_fehler.append(
            u"\"%1\" %2 (column %3)"_s.arg(m_felder.at(spalte), was, namen().at(spalte)));
    }
    std::optional<double> zahl(Spalte spalte);
    template <typename Wert>
    Wert auswahl(Spalte spalte, const Tabellenworte::Worte<Wert> &worte);
    std::array<bool, anzahlNaehrwerte> unbestimmt();

    const QStringList &m_felder;
    QStringList m_fehler;
};

std::optional<double> Zeilenleser::zahl(Spalte spalte)
{
    const QString &feld = m_felder.at(spalte);
    if (feld.isEmpty()) {
        return std::nullopt;
    }
    bool gelungen = false;
    const double wert = feld.toDouble(&gelungen);
    if (!gelungen || !std::isfinite(wert)) {
        beanstande(spalte, u"is no number"_s);
        return std::nullopt;
    }
    const bool teiler = spalte == Dichte || spalte == Verzehrfertig;
    if (wert < 0 || (teiler && wert == 0)) {
        beanstande(spalte, u"is too little"_s);
    }
    return wert;
}

template <typename Wert>
Wert Zeilenleser::auswahl(Spalte spalte, const Tabellenworte::Worte<Wert> &worte)
{
    const auto wert = Tabellenworte::wert(worte, m_felder.at(spalte));
    if (!wert) {
        beanstande(spalte, u"is unknown"_s);
    }
    return wert.value_or(worte.first().second);
}

std::array<bool, anzahlNaehrwerte> Zeilenleser::unbestimmt()
{
    QStringList kennungen = m_felder.at(Unbestimmt).split(u' ', Qt::SkipEmptyParts);
    std::array<bool, anzahlNaehrwerte> liste = {};
    for (const auto &zeile : naehrwerte) {
        liste[stelle(zeile.wert)] = kennungen.removeAll(QLatin1String(zeile.kennung)) > 0;
    }
    if (!kennungen.isEmpty()) {
        beanstande(Unbestimmt, u"names what is no value"_s);
    }
    return liste;
}

QStringList Zeilenleser::lesen(Zusatzwerte &ziel)
{
    if (m_felder.at(Name).isEmpty()) {
        m_fehler.append(u"The food has no name"_s);
    }
    ziel.gruppe = lebensmittelgruppe(m_felder.at(Gruppe));
    if (ziel.gruppe == nullptr) {
        beanstande(Gruppe, u"is unknown"_s);
    }
    for (const auto &[spalte, wert] : zahlenspalten) {
        ziel.*wert = zahl(spalte);
    }
    ziel.purinklasse = auswahl(Klasse, Tabellenworte::purinklassen());
    if (ziel.purinklasse && ziel.harnsaeure) {
        beanstande(Klasse, u"stands beside a figure"_s);
    }
    ziel.verzehrfertig = zahl(Verzehrfertig).value_or(ziel.verzehrfertig);
    ziel.merkmale = auswahl(Marken, Tabellenworte::merkmale());
    ziel.zuckerart = auswahl(Zuckersorte, Tabellenworte::zuckerarten());
    ziel.unbestimmt = unbestimmt();
    return m_fehler;
}

QString zeile(const QString &name, const Zusatzwerte &werte)
{
    QStringList unbestimmt;
    for (const auto &wert : naehrwerte) {
        if (werte.unbestimmt[stelle(wert.wert)]) {
            unbestimmt.append(QString::fromLatin1(wert.kennung));
        }
    }
    QStringList felder(namen().size());
    felder[Name] = name;
    felder[Gruppe] = QString::fromUtf8(werte.gruppe->name);
    for (const auto &[spalte, wert] : zahlenspalten) {
        felder[spalte] = zahlentext(werte.*wert);
    }
    felder[Klasse] = Tabellenworte::wort(Tabellenworte::purinklassen(), werte.purinklasse);
    if (werte.verzehrfertig != Zusatzwerte().verzehrfertig) {
        felder[Verzehrfertig] = zahlentext(werte.verzehrfertig);
    }
    felder[Marken] = Tabellenworte::wort(Tabellenworte::merkmale(), werte.merkmale);
    felder[Zuckersorte] = Tabellenworte::wort(Tabellenworte::zuckerarten(), werte.zuckerart);
    felder[Unbestimmt] = unbestimmt.join(u' ');
    return felder.join(u';') + u'\n';
}

} // namespace

QStringList Zusatzdatei::spalten()
{
    return namen();
}

Zusatzdatei::Ergebnis Zusatzdatei::lesen(QByteArrayView bytes)
{
    const auto [zeilen, formfehler] = Feldzeilen::lesen(bytes, namen());
    Ergebnis ergebnis = {{}, formfehler};
    ergebnis.tabelle.reserve(zeilen.size());
    for (const auto &[nummer, felder] : zeilen) {
        Zusatzwerte gelesen;
        QStringList fehler = Zeilenleser(felder).lesen(gelesen);
        const QString &name = felder.at(Name);
        if (ergebnis.tabelle.contains(name)) {
            fehler.append(u"\"%1\" stands twice"_s.arg(name));
        }
        for (const QString &meldung : fehler) {
            ergebnis.beanstandungen.append({nummer, Feldzeilen::formregel, meldung});
        }
        if (fehler.isEmpty()) {
            ergebnis.tabelle.insert(name, gelesen);
        }
    }
    return ergebnis;
}

QByteArray Zusatzdatei::text(const Zusatztabelle &tabelle)
{
    QStringList schluessel = tabelle.keys();
    schluessel.sort();
    QString text = bemerkungen + namen().join(u';') + u'\n';
    for (const QString &name : schluessel) {
        text += zeile(name, tabelle[name]);
    }
    return text.toUtf8();
}
