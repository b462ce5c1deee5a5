#include "Referenzworte.h"

#include "Einblickworte.h"
#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>
#include <QLocale>

#include <array>

namespace {

/// In the order of `Referenzart`, which goes on with what is no value.
constexpr std::array<const char *, 4> arten = {
    QT_TRANSLATE_NOOP("Mahlberg", "Empfehlung"),
    QT_TRANSLATE_NOOP("Mahlberg", "Schätzwert"),
    QT_TRANSLATE_NOOP("Mahlberg", "Durchschnittsbedarf"),
    QT_TRANSLATE_NOOP("Mahlberg", "Richtwert"),
};

/// In the order of `Referenzmangel`.
constexpr std::array<const char *, 14> maengel = {
    "",
    QT_TRANSLATE_NOOP("Mahlberg", "Es ist keiner festgelegt"),
    QT_TRANSLATE_NOOP("Mahlberg", "Das Alter fehlt"),
    QT_TRANSLATE_NOOP("Mahlberg", "Für dieses Alter ist keiner angegeben"),
    QT_TRANSLATE_NOOP("Mahlberg", "Das Geschlecht fehlt"),
    QT_TRANSLATE_NOOP("Mahlberg", "Für Schwangerschaft oder Stillzeit ist in diesem Alter keiner "
                                  "angegeben"),
    QT_TRANSLATE_NOOP("Mahlberg", "Das Trimester fehlt"),
    QT_TRANSLATE_NOOP("Mahlberg", "Der Monat der Stillzeit fehlt"),
    QT_TRANSLATE_NOOP("Mahlberg", "Für diesen Monat der Stillzeit ist keiner angegeben"),
    QT_TRANSLATE_NOOP("Mahlberg", "Er hängt von der Menopause ab; die Angabe fehlt"),
    QT_TRANSLATE_NOOP("Mahlberg", "Der PAL-Wert fehlt"),
    QT_TRANSLATE_NOOP("Mahlberg", "Für einen PAL-Wert in der Nähe ist keiner angegeben"),
    QT_TRANSLATE_NOOP("Mahlberg", "Das Gewicht fehlt"),
    QT_TRANSLATE_NOOP("Mahlberg", "Er ist ein Anteil der Energie, und deren Wert fehlt"),
};

QString wort(const char *deutsch)
{
    return localizedString(QString::fromUtf8(deutsch));
}

/// As short as it is: "0,83", "35".
QString kurz(double zahl)
{
    return zahlenform().toString(zahl, 'g', QLocale::FloatingPointShortest);
}

/// "47,2–82,6 g"; one figure where both are the same.
QString spanne(Kenngroesse groesse, double unten, double oben)
{
    const QString ende = Einblickworte::menge(groesse, oben);
    return unten == oben
               ? ende
               : QStringLiteral("%1–%2").arg(wertText(unten, beschreibung(groesse).stellen), ende);
}

QString mindestens(const QString &menge)
{
    return localizedString(QStringLiteral("mind. %1")).arg(menge);
}

QString ueber(const QString &menge)
{
    return localizedString(QStringLiteral("über %1")).arg(menge);
}

QString hoechstens(const QString &menge)
{
    return localizedString(QStringLiteral("höchstens %1")).arg(menge);
}

QString etwa(const QString &menge)
{
    return localizedString(QStringLiteral("etwa %1")).arg(menge);
}

/// "20–35 % der Energie", "über 50 % der Energie".
QString energieanteil(const Referenzwert &wert)
{
    const QString unten = kurz(*wert.gedrucktUnten);
    const QString zahl = wert.gedrucktOben && wert.gedrucktOben != wert.gedrucktUnten
                             ? QStringLiteral("%1–%2").arg(unten, kurz(*wert.gedrucktOben))
                             : unten;
    const QString anteil = localizedString(QStringLiteral("%1 % der Energie")).arg(zahl);
    return wert.gedrucktOben ? anteil : ueber(anteil);
}

/// The amount of the day alone.
QString mengenbereich(const Referenzwert &wert)
{
    const Kenngroesse groesse = kenngroesse(wert.wert);
    const QString unten = Einblickworte::menge(groesse, *wert.unten);
    if (!wert.oben) {
        return ueber(unten);
    }
    if (wert.wert == Naehrwert::na) {
        return unten; // nobody is told to eat as much salt
    }
    const bool richtwert =
        wert.art == Referenzart::Mittelwert || wert.art == Referenzart::Richtwert;
    if (!richtwert) {
        return mindestens(unten);
    }
    return wert.unten == wert.oben ? etwa(unten) : spanne(groesse, *wert.unten, *wert.oben);
}

/// How the amount was worked out; empty where it was printed.
QStringList rechnung(const Referenzwert &wert)
{
    QStringList zeilen;
    if (wert.einheit == Referenzeinheit::JeKilogramm && wert.gewicht) {
        zeilen << localizedString(QStringLiteral("%1 g je kg Körpergewicht bei %2 kg"))
                      .arg(kurz(*wert.gedrucktUnten), kurz(*wert.gewicht));
    }
    if (wert.einheit == Referenzeinheit::JeMegajoule) {
        zeilen << localizedString(QStringLiteral("%1 mg je MJ der Energie"))
                      .arg(kurz(*wert.gedrucktUnten));
    }
    if (wert.energie) {
        const QString energie = Einblickworte::menge(Kenngroesse::kal, *wert.energie);
        zeilen << (wert.eigeneEnergie
                       ? localizedString(QStringLiteral("Gerechnet mit dem eigenen Bedarf: %1"))
                       : localizedString(QStringLiteral("Gerechnet mit der Energie dieser "
                                                        "Referenzwerte: %1")))
                      .arg(energie);
    }
    if (wert.vorbehalt == Referenzvorbehalt::Referenzgewicht) {
        zeilen << localizedString(QStringLiteral("Für das Referenzgewicht dieses Alters, weil das "
                                                 "Gewicht fehlt"));
    }
    if (wert.zuschlag) {
        zeilen << localizedString(QStringLiteral("Darin für Schwangerschaft oder Stillzeit: %1"))
                      .arg(Einblickworte::menge(kenngroesse(wert.wert), *wert.zuschlag));
    }
    return zeilen;
}

/// For what activity and what part of pregnancy it was printed, where that is another one.
QStringList naeherungen(const Referenzwert &wert)
{
    QStringList zeilen;
    if (wert.palGenaehert) {
        zeilen << localizedString(
                      QStringLiteral("Angegeben für PAL %1, den nächsten zum gewählten"))
                      .arg(kurz(*wert.pal));
    }
    if (wert.zuschlagspal) {
        zeilen << localizedString(QStringLiteral("Der Zuschlag ist für PAL %1 angegeben"))
                      .arg(kurz(*wert.zuschlagspal));
    }
    if (wert.wieNichtSchwanger) {
        zeilen << localizedString(QStringLiteral("Wert ohne Schwangerschaft: Für sie ist erst ab "
                                                 "einem späteren Monat einer angegeben"));
    }
    return zeilen;
}

/// What the program makes of it that no publication says.
QStringList eigeneWahl(const Referenzwert &wert)
{
    QStringList zeilen;
    if (wert.einheit == Referenzeinheit::Retinol) {
        zeilen << localizedString(QStringLiteral("In Retinoläquivalenten, wie in der "
                                                 "Lebensmitteltabelle: 6 µg Betacarotin zählen 1"));
    } else if (wert.einheit == Referenzeinheit::Retinolwirkung) {
        zeilen << localizedString(QStringLiteral(
            "In Retinolaktivitätsäquivalenten: 12 µg Betacarotin zählen 1, in der "
            "Lebensmitteltabelle schon 6. Carotin aus Gemüse zählt in der Menge also "
            "doppelt"));
    }
    if (wert.wert == Naehrwert::na && wert.art) {
        zeilen << (wert.vorbehalt == Referenzvorbehalt::Sicher
                       ? localizedString(QStringLiteral("Weniger gilt hier nicht als Mangel, mehr "
                                                        "als zu viel"))
                       : localizedString(QStringLiteral("Wird hier nicht als Ziel beurteilt")));
    } else if (wert.art && wert.unten == wert.oben &&
               (wert.art == Referenzart::Mittelwert || wert.art == Referenzart::Richtwert)) {
        zeilen << localizedString(QStringLiteral("Bis zu 10 % daneben gelten hier als richtig"));
    }
    return zeilen;
}

QStringList grenzauskunft(const Referenzwert &wert)
{
    if (!wert.grenzart) {
        return {};
    }
    QStringList zeilen;
    if (wert.grenzart == Referenzart::KeineObergrenze) {
        return {localizedString(QStringLiteral("Keine Obergrenze festgelegt; das heißt nicht, dass "
                                               "jede Menge unbedenklich ist"))};
    }
    const QString menge = Einblickworte::menge(kenngroesse(wert.wert), *wert.grenze);
    zeilen << (wert.grenzart == Referenzart::SichereZufuhr
                   ? localizedString(QStringLiteral("Sicher bis %1; eine Obergrenze ist das nicht"))
                   : localizedString(QStringLiteral("Obergrenze: %1")))
                  .arg(menge);
    if (wert.grenzvorbehalt == Referenzvorbehalt::NurRetinol) {
        zeilen << localizedString(QStringLiteral("Sie gilt nur für Retinol, nicht für Carotin; die "
                                                 "Menge wird daran nicht gemessen"));
    } else if (wert.grenzvorbehalt == Referenzvorbehalt::NurZusaetze) {
        zeilen << localizedString(QStringLiteral("Sie gilt nur für Ergänzungsmittel und Zusätze; "
                                                 "die Menge wird daran nicht gemessen"));
    }
    return zeilen;
}

QString zustandsworte(const Referenzperson &person)
{
    if (person.zustand == Referenzzustand::Schwanger) {
        return person.trimester ? localizedString(QStringLiteral("schwanger (%1. Trimester)"))
                                      .arg(*person.trimester)
                                : localizedString(QStringLiteral("schwanger"));
    }
    constexpr int sechsMonate = 6;
    if (!person.stillmonat) {
        return localizedString(QStringLiteral("stillend"));
    }
    return *person.stillmonat <= sechsMonate
               ? localizedString(QStringLiteral("stillend (bis 6. Monat)"))
               : localizedString(QStringLiteral("stillend (ab 7. Monat)"));
}

} // namespace

QString Referenzworte::satz(std::optional<Referenzsatz> welcher)
{
    if (!welcher) {
        return localizedString(QStringLiteral("Allgemeiner Tagesbedarf"));
    }
    return *welcher == Referenzsatz::Efsa ? QStringLiteral("EFSA") : QStringLiteral("D-A-CH");
}

QString Referenzworte::kurzfassung(std::optional<Referenzsatz> welcher,
                                   const Referenzperson &person)
{
    if (!welcher) {
        return satz(welcher);
    }
    QStringList teile;
    if (!person.geschlecht) {
        teile << localizedString(QStringLiteral("Geschlecht unbekannt"));
    } else {
        teile << (*person.geschlecht == Referenzgeschlecht::Frau
                      ? localizedString(QStringLiteral("Frau"))
                      : localizedString(QStringLiteral("Mann")));
    }
    if (!person.alter) {
        teile << localizedString(QStringLiteral("Alter unbekannt"));
    } else {
        teile << (*person.alter == 1
                      ? localizedString(QStringLiteral("1 Jahr"))
                      : localizedString(QStringLiteral("%1 Jahre")).arg(*person.alter));
    }
    if (person.zustand != Referenzzustand::Keiner) {
        teile << zustandsworte(person);
    }
    if (person.nachMenopause) {
        teile << (*person.nachMenopause ? localizedString(QStringLiteral("nach der Menopause"))
                                        : localizedString(QStringLiteral("vor der Menopause")));
    }
    teile << (person.pal ? QStringLiteral("PAL %1").arg(zahlenform().toString(*person.pal, 'f', 1))
                         : localizedString(QStringLiteral("PAL unbekannt")));
    teile << (person.gewicht ? QStringLiteral("%1 kg").arg(kurz(*person.gewicht))
                             : localizedString(QStringLiteral("Gewicht unbekannt")));
    return QStringLiteral("%1 · %2").arg(satz(welcher), teile.join(QStringLiteral(", ")));
}

QString Referenzworte::art(Referenzart welche)
{
    return wort(arten.at(static_cast<std::size_t>(welche)));
}

QString Referenzworte::mangel(Referenzmangel welcher)
{
    return welcher == Referenzmangel::Keiner ? QString()
                                             : wort(maengel.at(static_cast<std::size_t>(welcher)));
}

QString Referenzworte::bereich(const Referenzwert &wert)
{
    const bool anteil =
        wert.einheit == Referenzeinheit::Energieanteil && wert.gedrucktUnten.has_value();
    if (!wert.unten) {
        return anteil ? energieanteil(wert) : QString();
    }
    return anteil ? QStringLiteral("%1 = %2").arg(energieanteil(wert), mengenbereich(wert))
                  : mengenbereich(wert);
}

QString Referenzworte::grenze(const Referenzwert &wert)
{
    if (!wert.grenze) {
        return {};
    }
    const QString menge = Einblickworte::menge(kenngroesse(wert.wert), *wert.grenze);
    if (wert.grenzart == Referenzart::SichereZufuhr) {
        return localizedString(QStringLiteral("sicher bis %1")).arg(menge);
    }
    switch (wert.grenzvorbehalt) {
    case Referenzvorbehalt::NurRetinol:
        return localizedString(QStringLiteral("Retinol höchstens %1")).arg(menge);
    case Referenzvorbehalt::NurZusaetze:
        return localizedString(QStringLiteral("aus Zusätzen höchstens %1")).arg(menge);
    default:
        return hoechstens(menge);
    }
}

QString Referenzworte::bereich(const Zielbereich &ziel)
{
    const auto menge = [&](double wert) {
        return Einblickworte::menge(ziel.groesse, wert);
    };
    QStringList teile;
    if (ziel.unten && ziel.oben) {
        teile << spanne(ziel.groesse, *ziel.unten, *ziel.oben);
    } else if (ziel.unten) {
        teile << mindestens(menge(*ziel.unten));
    } else if (ziel.oben) {
        teile << hoechstens(menge(*ziel.oben));
    }
    if (ziel.obergrenze) {
        teile << hoechstens(menge(*ziel.obergrenze));
    }
    return teile.join(QStringLiteral(" · "));
}

QStringList Referenzworte::auskunft(const Referenzwert &wert)
{
    const QString was = bereich(wert);
    QStringList zeilen;
    if (wert.art) {
        zeilen << QStringLiteral("%1: %2").arg(art(*wert.art), was);
    } else {
        zeilen << localizedString(QStringLiteral("Kein Wert: %1")).arg(mangel(wert.mangel));
        if (!was.isEmpty()) {
            zeilen << was;
        }
    }
    zeilen << rechnung(wert) << naeherungen(wert) << grenzauskunft(wert) << eigeneWahl(wert);
    zeilen << (QLocale().language() == QLocale::English ? wert.notizenEn : wert.notizenDe);
    QStringList quellen = wert.quellen + wert.grenzquellen;
    quellen.removeDuplicates();
    if (!quellen.isEmpty()) {
        zeilen << localizedString(QStringLiteral("Quelle: %1"))
                      .arg(quellen.join(QStringLiteral(", ")));
    }
    return zeilen;
}
