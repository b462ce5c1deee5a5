#include "Tabellenpruefung.h"

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

constexpr std::array<Naehrwert, anzahlVitamine> vitamine = {
    Naehrwert::vita, Naehrwert::b1, Naehrwert::b2, Naehrwert::b6, Naehrwert::vitc};

/// A failed check that a listed exception may excuse.
using Befund = std::pair<QString, QString>;

QString zahl(double wert)
{
    return QString::number(wert, 'g', 6);
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
    for (std::size_t i = 0; i < vitamine.size(); ++i) {
        const double grenze = zeile.gruppe->vitamingrenzen[i];
        const double wert = zeile.wert(vitamine[i]);
        if (wert > grenze) {
            const QString meldung = u"%1 is more than the %2 that \"%3\" can hold"_s;
            befunde.append(
                {QString::fromLatin1(beschreibung(vitamine[i]).kennung),
                 meldung.arg(zahl(wert), zahl(grenze), QString::fromUtf8(zeile.gruppe->name))});
        }
    }
    return befunde;
}

bool istNamenszeichen(QChar zeichen)
{
    static const QString satzzeichen = u" ,.()%-/'&"_s;
    return zeichen.isLetterOrNumber() || satzzeichen.contains(zeichen);
}

QStringList namensfehler(const QString &name)
{
    QStringList fehler;
    if (name.isEmpty() || !name.front().isUpper()) {
        fehler.append(u"must begin with a capital letter"_s);
    }
    if (name.size() > Tabellenpruefung::laengsterName) {
        fehler.append(u"has %1 characters, more than 48"_s.arg(name.size()));
    }
    if (name != name.simplified()) {
        fehler.append(u"has a blank too many"_s);
    }
    if (!std::all_of(name.begin(), name.end(), istNamenszeichen)) {
        fehler.append(u"holds a character that no name needs"_s);
    }
    // The selection of a food of this very name shows nothing.
    if (name.compare(u"Mettwurst"_s, Qt::CaseInsensitive) == 0) {
        fehler.append(u"can't be shown under this name alone"_s);
    }
    return fehler;
}

Beanstandungen namePruefen(const Tabellenzeile &zeile)
{
    Beanstandungen liste;
    for (const QString &name : {zeile.nameDe, zeile.nameEn}) {
        for (const QString &fehler : namensfehler(name)) {
            liste.append({zeile.zeile, u"name"_s, u"\"%1\" %2"_s.arg(name, fehler)});
        }
    }
    return liste;
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

Beanstandungen gleicheNamen(const Tabelle &tabelle)
{
    Beanstandungen liste;
    for (QString Tabellenzeile::*const name : {&Tabellenzeile::nameDe, &Tabellenzeile::nameEn}) {
        QHash<QString, int> gesehen;
        for (const Tabellenzeile &zeile : tabelle) {
            const QString gefaltet = (zeile.*name).toCaseFolded();
            if (const auto erste = gesehen.constFind(gefaltet); erste != gesehen.cend()) {
                const QString meldung = u"\"%1\" is already the name in line %2"_s;
                liste.append(
                    {zeile.zeile, u"alike"_s, meldung.arg(zeile.*name).arg(erste.value())});
            } else {
                gesehen.insert(gefaltet, zeile.zeile);
            }
        }
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

Beanstandungen Tabellenpruefung::zeilePruefen(const Tabellenzeile &zeile)
{
    return namePruefen(zeile) + grenzenPruefen(zeile) + figurenPruefen(zeile);
}

Beanstandungen Tabellenpruefung::zusammenhangPruefen(const Tabelle &tabelle)
{
    return gleicheNamen(tabelle) + synonyme(tabelle);
}

Beanstandungen Tabellenpruefung::pruefen(const Tabelle &tabelle)
{
    Beanstandungen liste;
    for (const Tabellenzeile &zeile : tabelle) {
        liste += zeilePruefen(zeile);
    }
    return liste + zusammenhangPruefen(tabelle);
}
