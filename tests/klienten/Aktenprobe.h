#pragma once

#include "Klientendaten.h"
#include "Probesprache.h"

/// A client of whom something is known, with two visits and a plan. What is worked out of it is
/// worked out by hand where it is asked for.
namespace Aktenprobe {

inline const QDate heute(2026, 11, 23);

inline Datenmodul speise(const QString &name, float kal, float protein)
{
    Datenmodul eine;
    eine.setName(name);
    eine.setkal(kal);
    eine.setprotein(protein);
    eine.setdiabetes(QStringLiteral("+"));
    return eine;
}

inline Person person()
{
    Person eine;
    eine.kennung = QStringLiteral("p");
    eine.fassung = 3;
    eine.name = QStringLiteral("Anna Muster");
    eine.nummer = QStringLiteral("A-17");
    eine.geburt = QDate(1980, 4, 3);
    eine.geschlecht = Personengeschlecht::Frau;
    eine.leiden[stelle(Wertung::diabetes)] = true;
    eine.notizen = QStringLiteral("Isst gern <b>Brot</b>.\nVerträgt keine Farbstoffe.");
    return eine;
}

inline QList<Besuch> besuche()
{
    Besuch erster;
    erster.kennung = QStringLiteral("b1");
    erster.fassung = 1;
    erster.datum = QDate(2026, 9, 1);
    erster.gewicht = 82.5;
    erster.groesse = 1.68;
    erster.taille = 98;
    erster.aktivitaet = Aktivitaet::Mittel;
    erster.notiz = QStringLiteral("Erstes Gespräch");
    Besuch zweiter;
    zweiter.kennung = QStringLiteral("b2");
    zweiter.fassung = 2;
    zweiter.datum = QDate(2026, 10, 6);
    zweiter.gewicht = 80.9;
    zweiter.taille = 95.5;
    zweiter.reduktion = true;
    zweiter.sport = QStringLiteral("Radfahren");
    zweiter.sportdauer = 0.5;
    return {erster, zweiter};
}

inline Planablage plan()
{
    Planablage einer;
    einer.kennung = QStringLiteral("l");
    einer.fassung = 1;
    einer.titel = QStringLiteral("Erste Woche");
    einer.datum = QDate(2026, 9, 2);
    einer.notiz = QStringLiteral("Abends warm");
    einer.posten = {
        {QStringLiteral("Äpfel, roh"), 150, speise(QStringLiteral("Äpfel, roh"), 52, 0.3F)},
        {QStringLiteral("Weißbrot"), 60.9F, speise(QStringLiteral("Weißbrot"), 255, 8)},
        {QStringLiteral("Vergessenes"), 80, {}},
    };
    return einer;
}

/// Two days, of which the first has bread by the slice, an alternative and something unknown.
inline Aufzeichnung tage()
{
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, QDate(2026, 9, 7), 2);
    eine.kennung = QStringLiteral("t");
    eine.fassung = 1;
    eine.titel = QStringLiteral("Zwei Tage");
    const Mahlzeitzeile brot{.schluessel = QStringLiteral("Weißbrot"),
                             .angabe = QStringLiteral("2 Scheiben"),
                             .gramm = 50,
                             .eintrag = speise(QStringLiteral("Weißbrot"), 255, 8)};
    Mahlzeitzeile apfel{.schluessel = QStringLiteral("Äpfel, roh"),
                        .angabe = QStringLiteral("150"),
                        .gramm = 150,
                        .eintrag = speise(QStringLiteral("Äpfel, roh"), 52, 0.3F)};
    eine.tage[1].mahlzeiten[2].zeilen = {apfel};
    apfel.oder = true;
    eine.tage[0].mahlzeiten[0].zeilen = {
        brot,
        apfel,
        {.text = QStringLiteral("Omas Auflauf"), .angabe = QStringLiteral("1 Teller")}};
    return eine;
}

inline Klientenakte akte()
{
    return {person(), besuche(), {plan()}};
}

/// So many visits, a week apart from the first of January 2025, with 90 kg at first and 0.1 kg less
/// each time.
inline QList<Besuch> viele(int anzahl)
{
    QList<Besuch> alle;
    for (int i = 0; i < anzahl; ++i) {
        Besuch einer;
        einer.kennung = QStringLiteral("b%1").arg(i);
        einer.fassung = 1;
        einer.datum = QDate(2025, 1, 1).addDays(7LL * i);
        einer.gewicht = 90 - 0.1 * i;
        alle << einer;
    }
    return alle;
}

} // namespace Aktenprobe
