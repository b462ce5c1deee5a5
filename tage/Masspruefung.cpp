#include "Masspruefung.h"

#include "Mengenangabe.h"
#include "Portionendatei.h"
#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <algorithm>

namespace {

constexpr double beispielgramm = 62.5;

QStringList namenVon(const Mass &mass)
{
    return {mass.eines, mass.viele, mass.einesEn, mass.vieleEn};
}

/// The first text that is not empty.
QString ersterVon(const QStringList &texte)
{
    const auto erster = std::find_if_not(texte.begin(), texte.end(),
                                         [](const QString &text) { return text.isEmpty(); });
    return erster == texte.end() ? QString() : *erster;
}

/// The names with what was left open; no weight.
Mass benannt(const Masseingabe &eingabe)
{
    const QString eines = eingabe.eines.simplified();
    const QString viele = eingabe.viele.simplified();
    const QString einesEn = eingabe.einesEn.simplified();
    const QString vieleEn = eingabe.vieleEn.simplified();
    Mass mass;
    mass.eines = eines;
    mass.viele = ersterVon({viele, eines});
    mass.einesEn = ersterVon({einesEn, eines});
    mass.vieleEn = ersterVon({vieleEn, einesEn, mass.viele});
    return mass;
}

bool hatSteuerzeichen(const QString &name)
{
    return std::any_of(name.begin(), name.end(), [](QChar zeichen) {
        return zeichen.category() == QChar::Other_Control ||
               zeichen.category() == QChar::Other_Format;
    });
}

/// Why a name can't be one, whatever else is typed; empty when it can.
QString namenseinwand(const QString &name)
{
    if (name.size() > meisteZeichen) {
        return localizedString(QStringLiteral("Ein Name hat höchstens %1 Zeichen."))
            .arg(meisteZeichen);
    }
    return hatSteuerzeichen(name)
               ? localizedString(QStringLiteral("Ein Name hat keine unsichtbaren Zeichen."))
               : QString();
}

/// Reads the grams of one. Empty when they are a weight that a measure may have.
QString grammeinwand(const QString &text, double &gramm)
{
    if (text.trimmed().isEmpty()) {
        return localizedString(QStringLiteral("Wie viel Gramm wiegt eines?"));
    }
    const Mengenergebnis gelesen = leseMenge(text, {});
    using Fehler = Mengenangabe::Fehler;
    if (gelesen.fehler == Fehler::KeineZahl || gelesen.fehler == Fehler::MassUnbekannt) {
        return localizedString(QStringLiteral("Das sind keine Gramm wie %1."))
            .arg(zahlenform().toString(beispielgramm));
    }
    gramm = gelesen.angabe ? gelesen.angabe->anzahl : 0;
    return gramm > 0 && gramm <= Portionendatei::meisteGramm
               ? QString()
               : localizedString(QStringLiteral("Ein Maß wiegt mehr als 0 und höchstens %1 g."))
                     .arg(zahlenform().toString(Portionendatei::meisteGramm, 'f', 0));
}

/// Whether the name is read as one of this measure, alone and behind a number.
bool bedeutetEines(const QString &name, const Mass &mass)
{
    const auto eines = [&mass](const QString &text) {
        const std::optional<Mengenangabe> gelesen = leseMenge(text, {mass}).angabe;
        return gelesen && gelesen->anzahl == 1 && gelesen->mass == mass;
    };
    return eines(name) && eines(QStringLiteral("1 ") + name);
}

/// Why a measure with names and a weight can't be one of these; empty when it can.
QString lesbarkeitseinwand(const Mass &mass, const QList<Mass> &andere)
{
    for (const QString &name : namenVon(mass)) {
        if (!bedeutetEines(name, mass)) {
            return localizedString(
                       QStringLiteral("„%1“ wird schon anders gelesen, als Zahl oder Einheit."))
                .arg(name);
        }
    }
    const bool doppelt = std::any_of(andere.begin(), andere.end(), [&mass](const Mass &anderes) {
        return gleichBenannt(mass, anderes);
    });
    return doppelt ? localizedString(
                         QStringLiteral("So heißt schon ein anderes Maß dieses Lebensmittels."))
                   : QString();
}

} // namespace

bool Masseingabe::leer() const
{
    const QStringList felder = {eines, viele, einesEn, vieleEn, gramm};
    return std::all_of(felder.begin(), felder.end(),
                       [](const QString &text) { return text.trimmed().isEmpty(); });
}

Masseingabe alsEingabe(const Mass &mass)
{
    return {mass.eines, mass.viele, mass.einesEn, mass.vieleEn,
            zahlenform().toString(mass.gramm, 'g', QLocale::FloatingPointShortest)};
}

Massbefund pruefeMass(const Masseingabe &eingabe, const QList<Mass> &andere)
{
    Mass mass = benannt(eingabe);
    QStringList einwaende;
    if (mass.eines.isEmpty()) {
        einwaende << localizedString(QStringLiteral("Wie heißt das Maß?"));
    }
    for (const QString &name : namenVon(mass)) {
        einwaende << namenseinwand(name);
    }
    einwaende << grammeinwand(eingabe.gramm, mass.gramm);
    QString einwand = ersterVon(einwaende);
    if (einwand.isEmpty()) {
        einwand = lesbarkeitseinwand(mass, andere);
    }
    return einwand.isEmpty() ? Massbefund{mass, {}} : Massbefund{{}, einwand};
}

bool gleichBenannt(const Mass &eines, const Mass &anderes)
{
    const QStringList namen = namenVon(eines);
    return std::any_of(namen.begin(), namen.end(), [&](const QString &name) {
        return leseMenge(QStringLiteral("1 ") + name, {eines, anderes}).fehler ==
               Mengenangabe::Fehler::MassMehrdeutig;
    });
}

QString massbeispiel(const Mass &mass, Regelsprache sprache)
{
    constexpr int anzahl = 2;
    const double gramm = anzahl * mass.gramm;
    return QStringLiteral("%1 = %2").arg(
        mengentext({anzahl, mass, static_cast<float>(gramm)}, sprache),
        mengentext({gramm, {}, static_cast<float>(gramm)}, sprache));
}
