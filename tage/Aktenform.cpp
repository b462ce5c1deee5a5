#include "Aktenform.h"

#include "Druckfuss.h"
#include "Drucksatz.h"
#include "Druckworte.h"
#include "Papiersatz.h"
#include "Planregeln.h"
#include "Planurteil.h"
#include "Planzahlen.h"
#include "Wertungswort.h"
#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr Druckschrift titelschrift = {18, true};
constexpr Druckschrift kapitelschrift = {13, true};

// In points.
constexpr double unterNotiz = 4;
constexpr double unterTabelle = 10;

/// What stands beside each row; all seventeen stand in the sums.
constexpr std::array<Naehrwert, 5> hauptwerte = {Naehrwert::kal, Naehrwert::protein,
                                                 Naehrwert::fett, Naehrwert::kh, Naehrwert::bs};
/// The sums are two tables below each other, the second with the minerals and vitamins.
constexpr std::size_t ersteHaelfte = 8;

QString uebersetzt(const char *text)
{
    return localizedString(QString::fromUtf8(text));
}

QString mitEinheit(const QString &name, Einheit einheit)
{
    return QStringLiteral("%1 (%2)").arg(name, einheitszeichen(einheit));
}

QString spaltenkopf(Naehrwert wert)
{
    const Naehrwertbeschreibung &eine = beschreibung(wert);
    return mitEinheit(uebersetzt(eine.bezeichnung), eine.einheit);
}

QString prozentworte(double prozent)
{
    const double gezeigt = gezeigterProzentsatz(prozent);
    return std::isfinite(gezeigt) ? wertText(gezeigt, 1) : QStringLiteral("-");
}

/// The record and what is measured.
struct Akte
{
    Aufzeichnung aufzeichnung;
    Energiebedarf bedarf;
    Druckangaben angaben;
    Druckworte worte = Druckworte(Druckworte::derFenster());

    QString titel() const { return titelworte(aufzeichnung, worte); }
    QString titelMitNamen() const
    {
        return angaben.klient.isEmpty() ? titel()
                                        : QStringLiteral("%1, %2").arg(angaben.klient, titel());
    }
    QString mahlzeit(qsizetype stelle) const
    {
        return mahlzeitworte(aufzeichnung.mahlzeiten.value(stelle), worte);
    }
};

/// From when to when, or how many days of no certain date.
QString zeitraum(const Aufzeichnung &aufzeichnung)
{
    const auto letzter = static_cast<int>(aufzeichnung.tage.size()) - 1;
    const auto tag = [&](int nummer) {
        return QLocale().toString(datumVon(aufzeichnung, nummer), QLocale::LongFormat);
    };
    return !aufzeichnung.datum.isValid()
               ? localizedString(QStringLiteral("%1 ohne Datum")).arg(letzter + 1)
           : letzter == 0 ? tag(0)
                          : localizedString(QStringLiteral("%1 bis %2")).arg(tag(0), tag(letzter));
}

void setzeKopf(Drucksatz &satz, const Akte &akte)
{
    satz.absatz(akte.titel(), titelschrift);
    satz.linie();
    const Energiebedarf &bedarf = akte.bedarf;
    const std::pair<const char *, QString> angaben[] = {
        {QT_TRANSLATE_NOOP("Mahlberg", "Klient"), akte.angaben.klient},
        {QT_TRANSLATE_NOOP("Mahlberg", "Art"), artworte(akte.aufzeichnung.art, akte.worte)},
        {QT_TRANSLATE_NOOP("Mahlberg", "Tage"), zeitraum(akte.aufzeichnung)},
        {QT_TRANSLATE_NOOP("Mahlberg", "Bedarf"), energieworte(bedarf.bedarf, bedarf.unbereinigt)}};
    for (const auto &[name, inhalt] : angaben) {
        if (!inhalt.isEmpty()) {
            satz.angabe(uebersetzt(name), inhalt);
        }
    }
}

/// A meal in front of its rows, with what they come to.
Drucktabelle::Zeile mahlzeitenzeile(const QString &name, const Mahlzeit &mahlzeit,
                                    const Plansummen &summen)
{
    const bool zaehltEtwas = std::any_of(mahlzeit.zeilen.begin(), mahlzeit.zeilen.end(), zaehlt);
    Drucktabelle::Zeile zeile{{name, QString()}, mahlzeit.notiz.trimmed(), true};
    zeile.haelt = !mahlzeit.zeilen.isEmpty();
    if (zaehltEtwas) {
        zeile.zellen << mengentext(summen.menge);
        for (const Naehrwert wert : hauptwerte) {
            const float summe = summen.summe[stelle(wert)];
            zeile.zellen << naehrwerttext(wert, static_cast<double>(summe));
        }
    }
    return zeile;
}

/// An alternative counts nothing, and so does what was not understood: its figures stay empty.
Drucktabelle::Zeile speisenzeile(const Mahlzeitzeile &eine, const Druckworte &worte)
{
    const QString name = speisenworte(eine, worte);
    Drucktabelle::Zeile zeile{
        {eine.oder ? localizedString(QStringLiteral("oder %1")).arg(name) : name,
         beisammen(eine.angabe.trimmed())}};
    zeile.zellen << (eine.gramm ? mengentext(*eine.gramm) : QString());
    if (const auto werte = zeilenwerte(eine)) {
        for (const Naehrwert wert : hauptwerte) {
            zeile.zellen << naehrwerttext(wert, static_cast<double>((*werte)[stelle(wert)]));
        }
    }
    return zeile;
}

void setzeSpeisen(Drucksatz &satz, const Akte &akte, const Tag &tag, const Tagesrechnung &rechnung)
{
    Drucktabelle tabelle;
    tabelle.spalten = {{localizedString(QStringLiteral("Lebensmittel"))},
                       {localizedString(QStringLiteral("Menge"))},
                       {localizedString(QStringLiteral("Gramm")), true}};
    for (const Naehrwert wert : hauptwerte) {
        tabelle.spalten << Drucktabelle::Spalte{spaltenkopf(wert), true};
    }
    for (qsizetype i = 0; i < tag.mahlzeiten.size(); ++i) {
        const Mahlzeit &mahlzeit = tag.mahlzeiten[i];
        if (!mahlzeit.zeilen.isEmpty() || !mahlzeit.notiz.trimmed().isEmpty()) {
            tabelle.zeilen << mahlzeitenzeile(akte.mahlzeit(i), mahlzeit,
                                              rechnung.mahlzeiten.at(static_cast<std::size_t>(i)));
        }
        for (const Mahlzeitzeile &zeile : mahlzeit.zeilen) {
            tabelle.zeilen << speisenzeile(zeile, akte.worte);
        }
    }
    if (!tabelle.zeilen.isEmpty()) {
        satz.tabelle(tabelle);
        satz.abstand(unterTabelle);
    }
}

/// The sums of some of the values by meal, the whole, what a day needs, and what it is of that.
Drucktabelle summentabelle(const Akte &akte, const Tagesrechnung &rechnung, std::size_t von,
                           std::size_t bis)
{
    Drucktabelle tabelle;
    tabelle.spalten = {{localizedString(QStringLiteral("Mahlzeit"))}};
    for (std::size_t i = von; i < bis; ++i) {
        tabelle.spalten << Drucktabelle::Spalte{spaltenkopf(naehrwerte[i].wert), true};
    }
    const auto zeile = [&](const QString &name, bool fett, const auto &zelle) {
        Drucktabelle::Zeile neue{{name}, {}, fett};
        for (std::size_t i = von; i < bis; ++i) {
            neue.zellen << zelle(i);
        }
        tabelle.zeilen << neue;
    };
    const auto summen = [](const Plansummen &eine) {
        return [&eine](std::size_t i) {
            return naehrwerttext(naehrwerte[i].wert, static_cast<double>(eine.summe[i]));
        };
    };
    for (std::size_t i = 0; i < rechnung.mahlzeiten.size(); ++i) {
        if (rechnung.mahlzeiten[i].menge > 0) {
            zeile(akte.mahlzeit(static_cast<qsizetype>(i)), false, summen(rechnung.mahlzeiten[i]));
        }
    }
    const auto &bedarf = rechnung.summen.bedarf;
    zeile(localizedString(QStringLiteral("Gesamt")), true, summen(rechnung.summen));
    zeile(localizedString(QStringLiteral("Bedarf")), false, [&](std::size_t i) {
        return bedarf[i] ? naehrwerttext(naehrwerte[i].wert, *bedarf[i]) : QString();
    });
    zeile(beisammen(localizedString(QStringLiteral("% des Bedarfs"))), false, [&](std::size_t i) {
        return bedarf[i] ? prozentworte(rechnung.auswertung.naehrwerte[i].prozent) : QString();
    });
    return tabelle;
}

Drucktabelle wertungstabelle(const Planauswertung &auswertung)
{
    Drucktabelle tabelle;
    tabelle.spalten = {{localizedString(QStringLiteral("Wertung"))}};
    for (const char16_t zeichen : {u'+', u'0', u'-'}) {
        tabelle.spalten << Drucktabelle::Spalte{Wertungswort::wortFuer(QString(zeichen)), true};
    }
    for (const Wertungsbeschreibung &eine : wertungen) {
        const Planwertung &wertung = auswertung.wertungen[stelle(eine.wertung)];
        tabelle.zeilen << Drucktabelle::Zeile{
            {uebersetzt(eine.bezeichnung), QString::number(wertung.plus),
             QString::number(wertung.neutral), QString::number(wertung.minus)}};
    }
    return tabelle;
}

/// What comes out for a day or for the mean.
void setzeErgebnis(Drucksatz &satz, const Akte &akte, const Tagesrechnung &rechnung)
{
    if (rechnung.unverstanden > 0) {
        satz.absatz(localizedString(QStringLiteral("Zeilen, die nicht zählen: %1."))
                        .arg(rechnung.unverstanden));
        satz.abstand(unterNotiz);
    }
    if (rechnung.tage == 0) {
        return;
    }
    const Planauswertung &auswertung = rechnung.auswertung;
    satz.tabelle(summentabelle(akte, rechnung, 0, ersteHaelfte));
    satz.abstand(unterTabelle);
    satz.tabelle(summentabelle(akte, rechnung, ersteHaelfte, anzahlNaehrwerte));
    satz.abstand(unterTabelle);
    satz.tabelle(wertungstabelle(auswertung));
    satz.abstand(unterTabelle);
    const QString anteile =
        localizedString(
            QStringLiteral("Von der Energie: Protein %1 %, Kohlenhydrate %2 %, Fett %3 %."))
            .arg(prozentworte(static_cast<double>(auswertung.proteinanteil)),
                 prozentworte(static_cast<double>(auswertung.khanteil)),
                 prozentworte(static_cast<double>(auswertung.fettanteil)));
    const QString urteil =
        QStringLiteral("%1, %2").arg(planurteil(auswertung, false), punkteworte(auswertung));
    QStringList saetze = {urteil, fehlendePunkte(auswertung), anteile};
    saetze.removeAll(QString());
    satz.angabe(localizedString(QStringLiteral("Beurteilung")), saetze.join(u'\n'));
}

void setzeMittel(Drucksatz &satz, const Akte &akte)
{
    const Tagesrechnung mittel = rechneMittel(akte.aufzeichnung, akte.bedarf);
    satz.ueberschrift(localizedString(QStringLiteral("Mittel der Tage")), kapitelschrift);
    satz.absatz(localizedString(QStringLiteral("Tage im Mittel: %1.")).arg(mittel.tage));
    satz.abstand(unterNotiz);
    setzeErgebnis(satz, akte, mittel);
}

void setzeTag(Drucksatz &satz, const Akte &akte, int nummer)
{
    const Tag &tag = akte.aufzeichnung.tage[nummer];
    const bool leer =
        tag.notiz.trimmed().isEmpty() &&
        std::all_of(tag.mahlzeiten.begin(), tag.mahlzeiten.end(), [](const Mahlzeit &mahlzeit) {
            return mahlzeit.zeilen.isEmpty() && mahlzeit.notiz.trimmed().isEmpty();
        });
    if (leer) {
        return;
    }
    const Tagesrechnung rechnung = rechneTag(akte.aufzeichnung, nummer, akte.bedarf);
    const QString name = tagesworte(akte.aufzeichnung, nummer, akte.worte);
    satz.ueberschrift(
        tag.imMittel ? name : localizedString(QStringLiteral("%1 (nicht im Mittel)")).arg(name),
        kapitelschrift);
    if (!tag.notiz.trimmed().isEmpty()) {
        satz.vorspann(tag.notiz.trimmed());
        satz.abstand(unterNotiz);
    }
    setzeSpeisen(satz, akte, tag, rechnung);
    setzeErgebnis(satz, akte, rechnung);
}

} // namespace

Druckauftrag aktenform(const Aufzeichnung &aufzeichnung, const Energiebedarf &bedarf,
                       const Druckangaben &angaben)
{
    const Akte akte{aufzeichnung, bedarf, angaben};
    return mitFuss(gesetzterAuftrag<Drucksatz>(
        akte.titelMitNamen(), localizedString(QStringLiteral("Aktenform")), angaben.heute,
        [akte](const QSizeF &seite) {
            Drucksatz satz(seite, akte.titelMitNamen());
            setzeKopf(satz, akte);
            setzeMittel(satz, akte);
            for (int tag = 0; tag < akte.aufzeichnung.tage.size(); ++tag) {
                setzeTag(satz, akte, tag);
            }
            return satz;
        }));
}
