#include "Besuchsvergleich.h"

#include "Angabenpruefung.h"
#include "Bmi.h"
#include "Energiebedarf.h"
#include "Feldworte.h"
#include "Ganzzahl.h"
#include "Geschlecht.h"
#include "Koerpermasse.h"
#include "Messreihe.h"
#include "Sportarten.h"
#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

#include <array>
#include <cmath>

namespace {

/// Whether the calculator answers for a person of that age; of one whose birth is not known, yes.
bool istAltGenug(const Person &person, const Besuch &besuch)
{
    const std::optional<int> alter = alterAm(besuch.datum, person.geburt);
    return !alter || rechnerErlaubt(*alter).value_or(true);
}

/// The calculator's tags begin with the man.
std::optional<float> faktorVon(Personengeschlecht geschlecht)
{
    return geschlechtsfaktor(static_cast<int>(geschlecht) -
                             static_cast<int>(Personengeschlecht::Mann));
}

std::optional<double> bodyMassIndex(const Klientenakte &akte, const Besuch &besuch)
{
    const std::optional<double> groesse = groesseBei(besuch, akte.besuche);
    if (!besuch.gewicht || !groesse) {
        return std::nullopt;
    }
    return static_cast<double>(
        bmi(static_cast<float>(*besuch.gewicht), static_cast<float>(*groesse)));
}

std::optional<double> tailleZuHuefte(const Klientenakte & /*akte*/, const Besuch &besuch)
{
    const double huefte = besuch.huefte.value_or(0);
    if (!besuch.taille || huefte <= 0) {
        return std::nullopt;
    }
    return static_cast<double>(
        taillenHueftVerhaeltnis(static_cast<float>(*besuch.taille), static_cast<float>(huefte)));
}

std::optional<double> energiebedarf(const Klientenakte &akte, const Besuch &besuch)
{
    return energiebedarfBei(akte.person, besuch);
}

/// A figure that follows from what was measured.
struct Folgezahl
{
    const char *nach; ///< the column behind which it stands
    const char *beschriftung;
    std::optional<double> (*rechne)(const Klientenakte &, const Besuch &);
    int nachkommastellen;
    const char *einheit = "";
};

constexpr std::array folgezahlen = {
    Folgezahl{"groesse", QT_TRANSLATE_NOOP("Mahlberg", "BMI"), bodyMassIndex, 1, "kg/m²"},
    Folgezahl{"huefte", QT_TRANSLATE_NOOP("Mahlberg", "Taille zu Hüfte"), tailleZuHuefte, 2},
    Folgezahl{"sportdauer", QT_TRANSLATE_NOOP("Mahlberg", "Energiebedarf am Tag"), energiebedarf, 0,
              "kcal"},
};

/// Rounded to what is shown of it: a difference is that of the figures that one reads.
std::optional<double> gezeigteZahl(const Folgezahl &art, const Klientenakte &akte,
                                   const Besuch &besuch)
{
    const double stellen = std::pow(10, art.nachkommastellen);
    const std::optional<double> zahl = art.rechne(akte, besuch);
    return zahl ? std::optional(std::round(*zahl * stellen) / stellen) : std::nullopt;
}

QString inWorten(const Folgezahl &art, std::optional<double> zahl)
{
    if (!zahl) {
        return {};
    }
    const QString worte = zahlenform().toString(*zahl, 'f', art.nachkommastellen);
    return *art.einheit == '\0' ? worte : worte + u' ' + QString::fromUtf8(art.einheit);
}

/// Days; from a week on they are told in weeks as well, by which people count how they get on.
QString zeitspanne(double tage)
{
    constexpr double woche = 7;
    constexpr double zehntel = 10;
    const QString zahl = zahlenform().toString(tage, 'f', 0);
    if (tage < woche) {
        return tage == 1 ? localizedString(QStringLiteral("1 Tag"))
                         : localizedString(QStringLiteral("%1 Tage")).arg(zahl);
    }
    const double wochen = std::round(tage / woche * zehntel) / zehntel;
    return tage == woche
               ? localizedString(QStringLiteral("7 Tage (1 Woche)"))
               : localizedString(QStringLiteral("%1 Tage (%2 Wochen)"))
                     .arg(zahl, zahlenform().toString(wochen, 'f', QLocale::FloatingPointShortest));
}

QString zeitunterschied(const QDate &von, const QDate &bis)
{
    if (!von.isValid() || !bis.isValid()) {
        return {};
    }
    return unterschiedsworte(0.0, static_cast<double>(von.daysTo(bis)), zeitspanne);
}

/// Only of days and of measures there is a difference.
QString feldunterschied(const Satzspalte<Besuch> &spalte, const Besuch &links, const Besuch &rechts)
{
    if (qstrcmp(spalte.name, "datum") == 0) {
        return zeitunterschied(links.datum, rechts.datum);
    }
    const QVariant eines = spalte.lies(links);
    const QVariant anderes = spalte.lies(rechts);
    const int mass = QMetaType::Double;
    if (eines.typeId() != mass || anderes.typeId() != mass) {
        return {};
    }
    return unterschiedsworte(eines.toDouble(), anderes.toDouble(),
                             [&spalte](double zahl) { return feldworte(spalte.name, zahl); });
}

/// What a field says; null for nothing.
QString gesagt(const Besuch &besuch, const Satzspalte<Besuch> &spalte)
{
    const QString worte = feldworte(besuch, spalte);
    return worte.isEmpty() ? QString() : worte;
}

Vergleichszeile zeileFuer(const Folgezahl &art, const Klientenakte &akte, const Besuch &links,
                          const Besuch &rechts)
{
    const std::optional<double> eine = gezeigteZahl(art, akte, links);
    const std::optional<double> andere = gezeigteZahl(art, akte, rechts);
    return {localizedString(QString::fromUtf8(art.beschriftung)), inWorten(art, eine),
            inWorten(art, andere),
            unterschiedsworte(eine, andere, [&art](double zahl) { return inWorten(art, zahl); })};
}

} // namespace

std::optional<std::int32_t> energiebedarfBei(const Person &person, const Besuch &besuch)
{
    const std::optional<float> geschlecht = faktorVon(person.geschlecht);
    const std::optional<float> arbeit =
        besuch.aktivitaet ? arbeitsfaktor(static_cast<int>(*besuch.aktivitaet)) : std::nullopt;
    if (!besuch.gewicht || !arbeit || !geschlecht || !istAltGenug(person, besuch)) {
        return std::nullopt;
    }
    const Energieeingaben eingaben = {
        .gewicht = static_cast<float>(*besuch.gewicht),
        .arbeit = *arbeit,
        .geschlecht = *geschlecht,
        .sportkal = sportkalorien(besuch.sport.value_or(QString())).value_or(0),
        .ganzeStunden = ganzzahl(besuch.sportdauer.value_or(0)),
        .reduktion = besuch.reduktion.value_or(false),
    };
    return energiebedarfRechnen(eingaben).kal;
}

std::int32_t energiebedarfAm(const QDate &tag, const Klientenakte &akte)
{
    const Besuch *letzter = nullptr;
    for (const Besuch &besuch : akte.besuche) {
        if (besuch.datum <= tag) {
            letzter = &besuch;
        }
    }
    return letzter != nullptr ? energiebedarfBei(akte.person, *letzter).value_or(0) : 0;
}

QList<Vergleichszeile> besucheVergleichen(const Klientenakte &akte, const Besuch &links,
                                          const Besuch &rechts)
{
    QList<Vergleichszeile> zeilen;
    for (const Satzspalte<Besuch> &spalte : spalten<Besuch>()) {
        zeilen << Vergleichszeile{localizedString(QString::fromUtf8(spalte.beschriftung)),
                                  gesagt(links, spalte), gesagt(rechts, spalte),
                                  feldunterschied(spalte, links, rechts)};
        for (const Folgezahl &art : folgezahlen) {
            if (qstrcmp(art.nach, spalte.name) == 0) {
                zeilen << zeileFuer(art, akte, links, rechts);
            }
        }
    }
    return zeilen;
}
