#include "Tabellenpruefung.h"

#include "Gruppengrenzen.h"
#include "Namenspruefung.h"
#include "Siegel.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

using namespace Qt::StringLiterals;

/// Regulation (EU) No 1169/2011, Annex XIV: kcal per g.
constexpr double kcalJeProtein = 4;
constexpr double kcalJeFett = 9;
constexpr double kcalJeKohlenhydrat = 4;
constexpr double kcalJeBallaststoff = 2;
constexpr double kcalJeAlkohol = 7;

/// Rounded figures alone make a difference of 3 kcal; beyond that a twentieth of a nutrient already
/// shows at 3 percent.
constexpr double energieSpielraum = 3;
constexpr double energieSpielraumAnteil = 0.03;

/// The parts of 100 g, each rounded, may add up to a little more.
constexpr double groessteSumme = 102;
constexpr double salzJeNatrium = 2.54;
constexpr double rundung = 0.051;

const QString energieRegel = u"energy"_s;
const QString summenRegel = u"sum"_s;

/// A failed check that a listed exception may excuse.
using Befund = std::pair<QString, QString>;

QString zahl(double wert)
{
    return QString::number(wert, 'g', 6);
}

/// More of something than foods of the group can hold.
QList<Befund> gruppenbefunde(const Tabellenzeile &zeile)
{
    QList<Befund> befunde;
    const auto vergleichen = [&](const QString &kennung, double wert, double grenze) {
        if (wert > grenze) {
            const QString meldung = u"%1 %2 is more than the %3 that \"%4\" can hold"_s;
            befunde.append({kennung, meldung.arg(kennung, zahl(wert), zahl(grenze),
                                                 QString::fromUtf8(zeile.gruppe->name))});
        }
    };
    const Gruppengrenzen &grenzen = gruppengrenzen(*zeile.gruppe);
    for (const auto &wert : naehrwerte) {
        if (wert.wert >= ersterBegrenzter) {
            vergleichen(QString::fromLatin1(wert.kennung), zeile.wert(wert.wert),
                        grenzen.grenze(wert.wert));
        }
    }
    vergleichen(u"alcohol"_s, zeile.alkohol, grenzen.alkohol);
    return befunde;
}

QList<Befund> figurenbefunde(const Tabellenzeile &zeile)
{
    QList<Befund> befunde;
    const double energie = Tabellenpruefung::energieAusNaehrstoffen(zeile);
    const double angabe = zeile.wert(Naehrwert::kal);
    if (std::abs(angabe - energie) > energieSpielraum + energieSpielraumAnteil * angabe) {
        const QString meldung = u"%1 kcal are given, its nutrients give %2"_s;
        befunde.append({energieRegel, meldung.arg(zahl(angabe), zahl(energie))});
    }
    const double summe = zeile.wert(Naehrwert::protein) + zeile.wert(Naehrwert::fett) +
                         zeile.wert(Naehrwert::kh) + zeile.wert(Naehrwert::bs) + zeile.alkohol +
                         zeile.wert(Naehrwert::na) * salzJeNatrium / 1000;
    if (summe > groessteSumme) {
        befunde.append({summenRegel, u"its parts add up to %1 g in 100 g"_s.arg(zahl(summe))});
    }
    return befunde + gruppenbefunde(zeile);
}

Beanstandungen grenzenPruefen(const Tabellenzeile &zeile)
{
    Beanstandungen liste;
    const auto beanstanden = [&](const QString &regel, const QString &meldung) {
        liste.append({zeile.zeile, regel, zeile.nameDe + u": "_s + meldung});
    };
    for (const auto &wert : naehrwerte) {
        if (zeile.wert(wert.wert) < 0) {
            beanstanden(u"value"_s, u"%1 is negative"_s.arg(QLatin1String(wert.kennung)));
        }
    }
    if (std::min({zeile.zucker, zeile.gesaettigt, zeile.alkohol}) < 0) {
        beanstanden(u"value"_s, u"sugars, saturated fat or alcohol is negative"_s);
    }
    if (zeile.zucker > zeile.wert(Naehrwert::kh) + rundung) {
        beanstanden(u"value"_s, u"more sugars than carbohydrate"_s);
    }
    if (zeile.gesaettigt > zeile.wert(Naehrwert::fett) + rundung) {
        beanstanden(u"value"_s, u"more saturated fat than fat"_s);
    }
    if (zeile.verzehrfertig < 100) {
        beanstanden(u"mark"_s, u"less than 100 g ready to eat from 100 g"_s);
    }
    if (zeile.quelle.isEmpty()) {
        beanstanden(u"mark"_s, u"the source's id is missing"_s);
    }
    const bool markiert = zeile.purinklasse || zeile.merkmale ||
                          zeile.zuckerart != Zuckerart::Ueblich || zeile.verzehrfertig > 100 ||
                          !zeile.ausnahmen.isEmpty();
    if (markiert && zeile.notiz.isEmpty()) {
        beanstanden(u"mark"_s, u"a mark or an exception needs its reason in the note"_s);
    }
    return liste;
}

Beanstandungen figurenPruefen(const Tabellenzeile &zeile)
{
    Beanstandungen liste;
    QStringList unnoetig = zeile.ausnahmen;
    for (const auto &[regel, meldung] : figurenbefunde(zeile)) {
        unnoetig.removeAll(regel);
        if (!zeile.ausnahmen.contains(regel)) {
            liste.append({zeile.zeile, regel, zeile.nameDe + u": "_s + meldung});
        }
    }
    for (const QString &regel : unnoetig) {
        const QString meldung = u"%1: needs no exception from \"%2\""_s.arg(zeile.nameDe, regel);
        liste.append({zeile.zeile, u"exception"_s, meldung});
    }
    return liste;
}

bool gleichesLebensmittel(const Tabellenzeile &a, const Tabellenzeile &b)
{
    return a.gruppe == b.gruppe && a.quelle == b.quelle && a.werte == b.werte &&
           a.zucker == b.zucker && a.gesaettigt == b.gesaettigt && a.alkohol == b.alkohol &&
           a.verzehrfertig == b.verzehrfertig && a.harnsaeure == b.harnsaeure &&
           a.purinherkunft == b.purinherkunft && a.purinklasse == b.purinklasse &&
           a.merkmale == b.merkmale && a.zuckerart == b.zuckerart;
}

Beanstandungen synonyme(const Tabelle &tabelle)
{
    Beanstandungen liste;
    QHash<QString, const Tabellenzeile *> eigene;
    QSet<QString> quellen;
    for (const Tabellenzeile &zeile : tabelle) {
        if (!zeile.synonymVon.isEmpty()) {
            continue;
        }
        eigene.insert(zeile.nameDe, &zeile);
        if (quellen.contains(zeile.quelle)) {
            const QString meldung = u"%1: source %2 stands twice and is not marked as a synonym"_s;
            liste.append({zeile.zeile, u"synonym"_s, meldung.arg(zeile.nameDe, zeile.quelle)});
        }
        quellen.insert(zeile.quelle);
    }
    for (const Tabellenzeile &zeile : tabelle) {
        if (zeile.synonymVon.isEmpty()) {
            continue;
        }
        const Tabellenzeile *const eigen = eigene.value(zeile.synonymVon);
        if (eigen == nullptr) {
            const QString meldung = u"%1: there is no food \"%2\""_s;
            liste.append({zeile.zeile, u"synonym"_s, meldung.arg(zeile.nameDe, zeile.synonymVon)});
        } else if (!gleichesLebensmittel(zeile, *eigen)) {
            const QString meldung = u"%1: differs from \"%2\", whose synonym it is"_s;
            liste.append({zeile.zeile, u"synonym"_s, meldung.arg(zeile.nameDe, zeile.synonymVon)});
        }
    }
    return liste;
}

} // namespace

double Tabellenpruefung::energieAusNaehrstoffen(const Tabellenzeile &zeile)
{
    return kcalJeProtein * zeile.wert(Naehrwert::protein) +
           kcalJeFett * zeile.wert(Naehrwert::fett) +
           kcalJeKohlenhydrat * zeile.wert(Naehrwert::kh) +
           kcalJeBallaststoff * zeile.wert(Naehrwert::bs) + kcalJeAlkohol * zeile.alkohol;
}

Beanstandungen Tabellenpruefung::zeilePruefen(const Tabellenzeile &zeile,
                                              const Vergleichswerte &vergleich)
{
    return Namenspruefung::zeilePruefen(zeile, vergleich.quelle) + grenzenPruefen(zeile) +
           figurenPruefen(zeile) + Quellenvergleich::pruefen(zeile, vergleich.quelle) +
           Purinpruefung::pruefen(zeile, vergleich.purine);
}

Beanstandungen Tabellenpruefung::zusammenhangPruefen(const Tabelle &tabelle)
{
    return Namenspruefung::gleicheNamen(tabelle) + synonyme(tabelle);
}

Beanstandungen Tabellenpruefung::pruefen(const Tabelle &tabelle, const Vergleichswerte &vergleich)
{
    Beanstandungen liste;
    for (const Tabellenzeile &zeile : tabelle) {
        liste += zeilePruefen(zeile, vergleich);
    }
    return liste + zusammenhangPruefen(tabelle);
}

Tabellendatei::Ergebnis Tabellenpruefung::dateiPruefen(QByteArrayView bytes,
                                                       const Vergleichswerte &vergleich,
                                                       Siegelpflicht siegelpflicht)
{
    Tabellendatei::Ergebnis ergebnis = Tabellendatei::lesen(bytes);
    if (!ergebnis.beanstandungen.isEmpty()) {
        return ergebnis;
    }
    ergebnis.beanstandungen = pruefen(ergebnis.tabelle, vergleich);
    if (siegelpflicht == Siegelpflicht::Ja) {
        ergebnis.beanstandungen += Siegel::pruefen(bytes);
    }
    return ergebnis;
}
