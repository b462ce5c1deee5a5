#include "Messreihe.h"

#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <string_view>

namespace {

constexpr std::array messarten = {
    Messart{Messgroesse::Gewicht, &Besuch::gewicht, QT_TRANSLATE_NOOP("Mahlberg", "Gewicht"), "kg",
            1, QT_TRANSLATE_NOOP("Mahlberg", "Noch keine Messung.")},
    Messart{Messgroesse::Bmi, nullptr, QT_TRANSLATE_NOOP("Mahlberg", "BMI"), "kg/m²", 1,
            QT_TRANSLATE_NOOP("Mahlberg", "Noch keine Messung von Gewicht und Größe.")},
    Messart{Messgroesse::Taille, &Besuch::taille, QT_TRANSLATE_NOOP("Mahlberg", "Taille"), "cm", 1,
            QT_TRANSLATE_NOOP("Mahlberg", "Noch keine Messung.")},
};

struct Richtquelle
{
    std::string_view schluessel;
    const char *titel;
    const char *verlag;
    int jahr;
};

constexpr std::array richtquellen = {
    Richtquelle{"WHO-2000",
                "Obesity: preventing and managing the global epidemic. WHO Technical Report Series "
                "894",
                "World Health Organization", 2000},
    Richtquelle{"WHO-2007",
                "Development of a WHO growth reference for school-aged children and adolescents. "
                "Bulletin of the World Health Organization 85: 660-667",
                "World Health Organization", 2007},
    Richtquelle{"WHO-2011",
                "Waist circumference and waist-hip ratio: report of a WHO expert consultation, "
                "Geneva, 8-11 December 2008",
                "World Health Organization", 2011},
};

/// A limit that was published, for everyone or for one gender.
struct Richtwert
{
    Messgroesse was;
    std::optional<Personengeschlecht> geschlecht;
    Zielband band;
    std::string_view quelle;
};

constexpr std::array richtwerte = {
    // Published with one digit, as 18.5 to 24.9; overweight begins at 25.
    Richtwert{Messgroesse::Bmi, {}, {.von = 18.5, .bis = 25.0, .unterBis = true}, "WHO-2000"},
    Richtwert{Messgroesse::Taille, Personengeschlecht::Mann, {.von = {}, .bis = 94.0}, "WHO-2011"},
    Richtwert{Messgroesse::Taille, Personengeschlecht::Frau, {.von = {}, .bis = 80.0}, "WHO-2011"},
};

/// Up to here children and adolescents have a reference of their own.
constexpr struct
{
    int jahre;
    std::string_view quelle;
} erwachsen = {19, "WHO-2007"};

constexpr bool belegt(std::string_view schluessel)
{
    return std::any_of(
        richtquellen.begin(), richtquellen.end(),
        [schluessel](const Richtquelle &quelle) { return quelle.schluessel == schluessel; });
}
static_assert(belegt(erwachsen.quelle) &&
                  std::all_of(richtwerte.begin(), richtwerte.end(),
                              [](const Richtwert &wert) { return belegt(wert.quelle); }),
              "a figure has a source");

/// The limits of the weight are those of the body mass index, times the square of the height.
Messgroesse richtgroesse(Messgroesse was)
{
    return was == Messgroesse::Gewicht ? Messgroesse::Bmi : was;
}

const Richtwert *richtwertFuer(Messgroesse was, Personengeschlecht geschlecht)
{
    const auto *gefunden =
        std::find_if(richtwerte.begin(), richtwerte.end(), [&](const Richtwert &wert) {
            return wert.was == richtgroesse(was) &&
                   wert.geschlecht.value_or(geschlecht) == geschlecht;
        });
    return gefunden != richtwerte.end() ? gefunden : nullptr;
}

constexpr double groessterWert = 1e6; // an axis that goes further can't be read

using Mass = std::function<std::optional<double>(const Besuch &)>;

QList<Messpunkt> reihe(const QList<Besuch> &besuche, const Mass &mass)
{
    QList<Messpunkt> punkte;
    for (const Besuch &besuch : besuche) {
        const std::optional<double> wert = mass(besuch);
        if (besuch.datum.isValid() && wert && *wert >= 0 && *wert <= groessterWert) {
            punkte.append({besuch.datum, *wert});
        }
    }
    std::stable_sort(punkte.begin(), punkte.end(),
                     [](const Messpunkt &a, const Messpunkt &b) { return a.tag < b.tag; });
    return punkte;
}

/// A height that one can divide by.
std::optional<double> brauchbareGroesse(const Besuch &besuch)
{
    const double groesse = besuch.groesse.value_or(0);
    return groesse > 0 && groesse <= groessterWert ? besuch.groesse : std::nullopt;
}

/// The latest height on or before a day, or else the first one after it.
std::optional<double> groesseAm(const QDate &tag, const QList<Messpunkt> &groessen)
{
    if (groessen.isEmpty()) {
        return std::nullopt;
    }
    const auto danach = std::upper_bound(
        groessen.begin(), groessen.end(), tag,
        [](const QDate &einer, const Messpunkt &punkt) { return einer < punkt.tag; });
    return danach != groessen.begin() ? std::prev(danach)->wert : danach->wert;
}

std::optional<double> groesseZu(const Besuch &besuch, const QList<Messpunkt> &groessen)
{
    const std::optional<double> eigene = brauchbareGroesse(besuch);
    return eigene ? eigene : groesseAm(besuch.datum, groessen);
}

QList<Messpunkt> bmireihe(const QList<Besuch> &besuche)
{
    const QList<Messpunkt> groessen = reihe(besuche, brauchbareGroesse);
    return reihe(besuche, [&groessen](const Besuch &besuch) -> std::optional<double> {
        const std::optional<double> groesse = groesseZu(besuch, groessen);
        if (!besuch.gewicht || !groesse) {
            return std::nullopt;
        }
        return *besuch.gewicht / (*groesse * *groesse);
    });
}

std::optional<double> mal(const std::optional<double> &grenze, double faktor)
{
    return grenze ? std::optional(*grenze * faktor) : std::nullopt;
}

/// A limit without a 0 behind the comma.
QString grenzzahl(Messgroesse was, double grenze)
{
    return zahlenform().toString(gerundet(was, grenze), 'g', QLocale::FloatingPointShortest);
}

} // namespace

const Messart &messart(Messgroesse was)
{
    return *std::find_if(messarten.begin(), messarten.end(),
                         [was](const Messart &eine) { return eine.was == was; });
}

QString messgroessenname(Messgroesse was)
{
    return localizedString(QString::fromUtf8(messart(was).name));
}

double gerundet(Messgroesse was, double wert)
{
    const double feinheit = std::pow(10, messart(was).nachkommastellen);
    return std::round(wert * feinheit) / feinheit;
}

QString messzahl(Messgroesse was, double wert)
{
    return zahlenform().toString(gerundet(was, wert), 'f', messart(was).nachkommastellen);
}

QString messwert(Messgroesse was, double wert)
{
    return messzahl(was, wert) + QChar(QChar::Nbsp) + QString::fromUtf8(messart(was).einheit);
}

QList<Messpunkt> messreihe(const QList<Besuch> &besuche, Messgroesse was)
{
    const auto mass = messart(was).mass;
    return mass != nullptr ? reihe(besuche, std::mem_fn(mass)) : bmireihe(besuche);
}

std::optional<double> groesseBei(const Besuch &besuch, const QList<Besuch> &besuche)
{
    return groesseZu(besuch, reihe(besuche, brauchbareGroesse));
}

std::optional<Bandmangel> bandmangel(Messgroesse was, const Person &person,
                                     const QList<Besuch> &besuche, const QDate &heute)
{
    if (person.geburt.isValid() && heute < zielbandAb(person)) {
        return Bandmangel::Jugend;
    }
    if (person.umstand == Umstand::Schwanger && person.geschlecht != Personengeschlecht::Mann) {
        return Bandmangel::Schwangerschaft;
    }
    if (richtwertFuer(was, person.geschlecht) == nullptr) {
        return Bandmangel::OhneGeschlecht;
    }
    if (was == Messgroesse::Gewicht && reihe(besuche, brauchbareGroesse).isEmpty()) {
        return Bandmangel::OhneGroesse;
    }
    return std::nullopt;
}

QString ohneZielband(Bandmangel mangel)
{
    constexpr std::array saetze = {
        QT_TRANSLATE_NOOP("Mahlberg", "Unter 19 Jahren gilt der Zielbereich für Erwachsene nicht."),
        QT_TRANSLATE_NOOP("Mahlberg", "In der Schwangerschaft gilt kein Zielbereich."),
        QT_TRANSLATE_NOOP("Mahlberg",
                          "Ohne Angabe des Geschlechts gibt es keinen Zielbereich für die Taille."),
        QT_TRANSLATE_NOOP("Mahlberg",
                          "Ohne Angabe der Größe gibt es keinen Zielbereich für das Gewicht."),
    };
    return localizedString(QString::fromUtf8(saetze[static_cast<std::size_t>(mangel)]));
}

std::optional<Zielband> zielband(Messgroesse was, const Person &person,
                                 const QList<Besuch> &besuche, const QDate &heute)
{
    if (bandmangel(was, person, besuche, heute)) {
        return std::nullopt;
    }
    const Zielband band = richtwertFuer(was, person.geschlecht)->band;
    if (was != Messgroesse::Gewicht) {
        return band;
    }
    const double groesse = groesseAm(heute, reihe(besuche, brauchbareGroesse)).value_or(0);
    return Zielband{mal(band.von, groesse * groesse), mal(band.bis, groesse * groesse),
                    band.unterBis};
}

QDate zielbandAb(const Person &person)
{
    return person.geburt.addYears(erwachsen.jahre);
}

QString zielbandquelle(Messgroesse was)
{
    const auto *wert =
        std::find_if(richtwerte.begin(), richtwerte.end(),
                     [was](const Richtwert &einer) { return einer.was == richtgroesse(was); });
    const auto *quelle =
        std::find_if(richtquellen.begin(), richtquellen.end(),
                     [wert](const Richtquelle &eine) { return eine.schluessel == wert->quelle; });
    return QStringLiteral("%1. %2, %3.")
        .arg(QString::fromUtf8(quelle->titel), QString::fromUtf8(quelle->verlag),
             QString::number(quelle->jahr));
}

QString bandworte(Messgroesse was, const Zielband &band)
{
    if (band.von && band.bis) {
        return grenzzahl(was, *band.von) + u'–' + grenzzahl(was, *band.bis);
    }
    return band.von   ? localizedString(QStringLiteral("ab %1")).arg(grenzzahl(was, *band.von))
           : band.bis ? localizedString(QStringLiteral("bis %1")).arg(grenzzahl(was, *band.bis))
                      : QString();
}

Bandlage bandlage(Messgroesse was, double wert, const Zielband &band)
{
    const double gezeigt = gerundet(was, wert);
    if (band.von && gezeigt < gerundet(was, *band.von)) {
        return Bandlage::Darunter;
    }
    if (!band.bis) {
        return Bandlage::Darin;
    }
    const double bis = gerundet(was, *band.bis);
    return gezeigt > bis || (band.unterBis && gezeigt == bis) ? Bandlage::Darueber
                                                              : Bandlage::Darin;
}
