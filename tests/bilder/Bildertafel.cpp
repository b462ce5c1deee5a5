#include "Bildertafel.h"

#include "Probefenster.h"

#include <array>

namespace {

struct Zeile
{
    const char *name;
    std::array<double, anzahlNaehrwerte> werte; ///< per 100 g, in the record's order
    const char *urteile;                        ///< a sign for each rating, in the record's order
};

constexpr Zeile tafel[] = {
    {"Apfelmus, gezuckert",
     {89, 0.3, 0.3, 20.5, 1.9, 0, 3.6, 97, 4.4, 8.1, 3.6, 0.2, 0, 0.02, 0.02, 0.04, 2.3},
     "0-00"},
    {"Bananen, roh",
     {90, 1.1, 0.2, 19.7, 2.7, 0, 0, 320, 5.1, 29, 28, 0.2, 14, 0.05, 0.03, 0.25, 11.9},
     "+0++"},
    {"Brokkoli (Broccoli), gedämpft",
     {35, 3.3, 0.5, 2.9, 2.8, 0, 9.8, 320, 42, 73, 19, 0.7, 80, 0.08, 0.1, 0.17, 74.2},
     "++0+"},
    {"Haferflocken",
     {381, 13.5, 7.5, 59.5, 10.5, 0, 19, 390, 54, 440, 130, 3.5, 0, 0.34, 0.05, 0.09, 0},
     "++++"},
    {"Hähnchenbrustfilet (Hähnchenbrüste), gebraten",
     {128, 30.1, 0.8, 0, 0, 79, 38, 400, 4.1, 230, 27, 0.4, 6, 0.14, 0.14, 0.53, 0},
     "++-+"},
    {"Joghurt (Naturjoghurts), natur",
     {66, 3.9, 3.6, 4.5, 0, 11, 49, 170, 140, 110, 12, 0, 39, 0.02, 0.18, 0.04, 2},
     "0++0"},
    {"Kartoffeln (Erdäpfel), Pellkartoffeln, neu",
     {66, 1.8, 0.1, 13.6, 1.8, 0, 3, 380, 11, 44, 18, 0.6, 0, 0.13, 0.01, 0.13, 7},
     "+0++"},
    {"Kartoffeln (Erdäpfel, Erdapfel), Salzkartoffeln",
     {75, 2, 0.1, 15.6, 2.1, 0, 0.9, 350, 5, 50, 22, 0.2, 1, 0.07, 0.05, 0.12, 15.8},
     "+0++"},
    {"Kartoffelstärke",
     {336, 0.6, 0.1, 83.1, 0.1, 0, 8, 15, 35, 7, 6, 1.8, 0, 0.01, 0.01, 0.01, 0},
     "--++"},
    {"Konfitüren (Marmeladen)",
     {246, 0.5, 0.5, 58.7, 2.2, 0, 12, 100, 18, 7, 2, 1.4, 9, 0.02, 0.02, 0, 4},
     "--00"},
    {"Mandeln",
     {624, 25.6, 52.1, 7.8, 10.6, 0, 1.1, 740, 270, 510, 240, 3.3, 0, 0.15, 0.94, 0.13, 0},
     "-+++"},
    {"Milch, 1,5 % Fett (fettarme Milch, H-Milch)",
     {46, 3.2, 1.5, 4.8, 0, 5, 43, 170, 120, 89, 12, 0, 14, 0.04, 0.2, 0.05, 1.7},
     "++++"},
    {"Möhren (Karotten, Mohrrüben, Rüebli), gedämpft",
     {44, 0.7, 0.4, 8, 2.8, 0, 25, 210, 31, 24, 6.7, 0.1, 1384, 0.03, 0.02, 0.07, 2.8},
     "++++"},
    {"Nudeln (Pasta, Spaghetti), ohne Ei, roh",
     {353, 12.6, 1.2, 70.5, 5.1, 0, 5, 200, 22, 170, 56, 1.5, 0, 0.09, 0.06, 0.17, 0},
     "00++"},
    {"Quark (Topfen), mager (Magerquark)",
     {61, 10.6, 0.2, 4.2, 0, 0, 33, 140, 110, 150, 9.9, 0, 3, 0.01, 0.39, 0.04, 0.1},
     "++++"},
    {"Rapsöl (Speiseöle)", {900, 0, 100, 0, 0, 0, 0, 0, 0, 0, 0, 0, 3, 0, 0, 0, 0}, "-+++"},
    {"Reis (weißer Reis), roh",
     {352, 7.4, 0.9, 78, 1, 0, 0.5, 85, 5.8, 120, 24, 0.2, 0, 0.09, 0.04, 0.08, 0},
     "+0++"},
    {"Rinderbrust, gekocht",
     {254, 28.3, 15.6, 0, 0, 100, 36, 230, 5.3, 210, 18, 3.6, 8, 0.06, 0.24, 0.11, 0},
     "000-"},
    {"Walnussbrote",
     {331, 9.2, 17.9, 30.2, 6.4, 23, 490, 240, 31, 210, 67, 2.1, 41, 0.23, 0.1, 0.18, 0.1},
     "-0+0"},
};

} // namespace

Lebensmittelverzeichnis bildertafel()
{
    Lebensmittelverzeichnis alle;
    for (const Zeile &zeile : tafel) {
        Datenmodul speise;
        speise.setName(QString::fromUtf8(zeile.name));
        for (const auto &wert : naehrwerte) {
            speise.setWert(wert.wert, static_cast<float>(zeile.werte[stelle(wert.wert)]));
        }
        for (const auto &wertung : wertungen) {
            speise.setWertung(wertung.wertung,
                              QChar::fromLatin1(zeile.urteile[stelle(wertung.wertung)]));
        }
        alle.insert(speise.name(), speise);
    }
    return alle;
}

Lebensmittelverzeichnis bildertafelMitLeerzeile()
{
    Lebensmittelverzeichnis alle = bildertafel();
    Datenmodul leer;
    leer.setName(QStringLiteral("-"));
    for (const auto &wertung : wertungen) {
        leer.setWertung(wertung.wertung, QStringLiteral("0"));
    }
    alle.insert(leer.name(), leer);
    return alle;
}

Lebensmittelverzeichnis bildereigene()
{
    using enum Naehrwert;
    const QString null = QStringLiteral("0");
    return verzeichnis(
        {lebensmittel(QStringLiteral("Kartoffelsuppe"),
                      {{kal, 48}, {protein, 1.6F}, {fett, 1.9F}, {kh, 6.1F}, {na, 210}},
                      {null, null, null, null}),
         lebensmittel(QStringLiteral("Müsli vom Bäcker"),
                      {{kal, 350}, {protein, 9}, {fett, 8}, {kh, 58}, {bs, 7}})});
}

const QList<std::pair<QString, int>> &bildertag()
{
    static const QList<std::pair<QString, int>> tag = {
        {QStringLiteral("Haferflocken"), 50},
        {QStringLiteral("Milch, 1,5 % Fett (fettarme Milch, H-Milch)"), 250},
        {QStringLiteral("Mandeln"), 25},
        {QStringLiteral("Walnussbrote"), 30},
        {QStringLiteral("Konfitüren (Marmeladen)"), 120},
        {QStringLiteral("Joghurt (Naturjoghurts), natur"), 70},
        {QStringLiteral("Nudeln (Pasta, Spaghetti), ohne Ei, roh"), 150},
        {QStringLiteral("Hähnchenbrustfilet (Hähnchenbrüste), gebraten"), 125},
        {QStringLiteral("Brokkoli (Broccoli), gedämpft"), 80},
        {QStringLiteral("Möhren (Karotten, Mohrrüben, Rüebli), gedämpft"), 50},
        {QStringLiteral("Rapsöl (Speiseöle)"), 40},
        {QStringLiteral("Reis (weißer Reis), roh"), 30},
        {QStringLiteral("Quark (Topfen), mager (Magerquark)"), 80},
        {QStringLiteral("Apfelmus, gezuckert"), 50},
    };
    return tag;
}
