#include "Handzettel.h"

#include "Druckfuss.h"
#include "Druckworte.h"
#include "Papiersatz.h"
#include "Spaltensatz.h"
#include "Tagesrechnung.h"
#include "Zahlenform.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <utility>

namespace {

/// The letters of a handout and the room between them, in points.
struct Gestalt
{
    Druckschrift titel;
    Druckschrift untertitel;
    Druckschrift tag;
    Druckschrift name; ///< of a meal
    Druckschrift text;
    Druckschrift notiz;
    double luft; ///< between meals
    double schmalsteSpalte;
};

constexpr Gestalt gewoehnlich = {{18, true}, {10}, {11, true}, {9, true}, {9}, {8}, 4, 240};
/// Sixteen points are read by many whose eyes are too weak for a newspaper.
constexpr Gestalt grossdruck = {{24, true}, {16}, {18, true}, {16, true}, {16}, {14}, 7, 400};

// In points.
constexpr double spaltenabstand = 24;
constexpr double feinerStrich = 0.4;
constexpr double einzug = 10; ///< of an alternative, and of what goes on in a second line
constexpr double nebenNamen = 8;
constexpr double hoechsterNamensanteil = 0.32; ///< of a column, for the names of the meals
constexpr Druckschrift kolumnenschrift = {8};

/// What a day comes to, where that is wanted.
constexpr std::array<Naehrwert, 5> hauptwerte = {Naehrwert::kal, Naehrwert::protein,
                                                 Naehrwert::fett, Naehrwert::kh, Naehrwert::bs};

/// What is on the sheet, in its language.
class Zettel
{
public:
    Zettel(const Aufzeichnung &aufzeichnung, const Handzettelwunsch &wunsch,
           const Druckangaben &angaben)
        : m_aufzeichnung(aufzeichnung)
        , m_wunsch(wunsch)
        , m_angaben(angaben)
        , m_worte(wunsch.sprache)
        , m_gestalt(wunsch.gross ? grossdruck : gewoehnlich)
    {
    }

    const Druckworte &worte() const { return m_worte; }
    QString uebersetzt(const char *text) const { return m_worte(QString::fromUtf8(text)); }
    QString titel() const { return titelworte(m_aufzeichnung, m_worte); }
    QString titelMitNamen() const;
    Spaltensatz gesetztAuf(const QSizeF &seite) const;

private:
    Spaltensatz inSpalten(const QSizeF &seite, int spalten, bool ganze) const;
    QList<int> tage() const;
    Druckstreifenfolge kopf(double breite) const;
    Druckstreifenfolge seitenkopf(double breite) const;
    Spaltenblock tagesblock(int tag, double breite, double namensbreite) const;
    Druckstreifenfolge tagesname(const QString &name, double breite) const;
    Druckstreifenfolge mahlzeit(const QString &name, const Mahlzeit &mahlzeit, double breite,
                                double namensbreite) const;
    Druckstreifenfolge zeile(const Mahlzeitzeile &zeile, double links, double breite) const;
    QString zeilentext(const Mahlzeitzeile &zeile) const;
    QString tageszahlen(int tag) const;
    double namensbreite(double breite) const;

    Aufzeichnung m_aufzeichnung;
    Handzettelwunsch m_wunsch;
    Druckangaben m_angaben;
    Druckworte m_worte;
    Gestalt m_gestalt;
};

bool istLeer(const Mahlzeitzeile &zeile)
{
    return zeile.schluessel.trimmed().isEmpty() && zeile.text.trimmed().isEmpty() &&
           zeile.angabe.trimmed().isEmpty();
}

bool istLeer(const Mahlzeit &mahlzeit)
{
    return mahlzeit.notiz.trimmed().isEmpty() &&
           std::all_of(mahlzeit.zeilen.begin(), mahlzeit.zeilen.end(),
                       [](const Mahlzeitzeile &zeile) { return istLeer(zeile); });
}

bool istLeer(const Tag &tag)
{
    return tag.notiz.trimmed().isEmpty() &&
           std::all_of(tag.mahlzeiten.begin(), tag.mahlzeiten.end(),
                       [](const Mahlzeit &mahlzeit) { return istLeer(mahlzeit); });
}

QString Zettel::titelMitNamen() const
{
    return m_angaben.klient.isEmpty() ? titel()
                                      : QStringLiteral("%1, %2").arg(m_angaben.klient, titel());
}

QList<int> Zettel::tage() const
{
    QList<int> gemeinte;
    for (int tag = 0; tag < m_aufzeichnung.tage.size(); ++tag) {
        if (m_wunsch.tag.value_or(tag) == tag && !istLeer(m_aufzeichnung.tage[tag])) {
            gemeinte << tag;
        }
    }
    return gemeinte;
}

/// The letterhead, what it is, for whom and of which day.
Druckstreifenfolge Zettel::kopf(double breite) const
{
    const auto text = [breite](const QString &worte, const Druckschrift &schrift) {
        return gesetzt({{.text = worte, .schrift = schrift, .breite = breite}});
    };
    const QString heute = m_worte.land().toString(m_angaben.heute, QLocale::LongFormat);
    const QString fuer = uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Für %1, %2"));
    Druckstreifenfolge folge = gesetzt(m_angaben.briefkopf, breite);
    folge << text(titel(), m_gestalt.titel) << freiraum(2)
          << text(m_angaben.klient.isEmpty() ? heute : fuer.arg(m_angaben.klient, heute),
                  m_gestalt.untertitel)
          << freiraum(m_gestalt.titel.groesse * 0.8);
    if (tage().isEmpty()) {
        folge << text(uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Noch nichts aufgezeichnet.")),
                      m_gestalt.text);
    }
    return folge;
}

/// What stands at the top of further pages.
Druckstreifenfolge Zettel::seitenkopf(double breite) const
{
    const QString text = gekuerzt(titelMitNamen(), kolumnenschrift, breite);
    return gesetzt({{.text = text, .schrift = kolumnenschrift, .breite = breite}})
           << freiraum(2) << waagerechte(breite, feinerStrich) << freiraum(10);
}

Druckstreifenfolge Zettel::tagesname(const QString &name, double breite) const
{
    return gesetzt({{.text = name, .schrift = m_gestalt.tag, .breite = breite}})
           << freiraum(2) << waagerechte(breite, feinerStrich) << freiraum(m_gestalt.luft);
}

/// All meals of all days have their foods in the same place.
double Zettel::namensbreite(double breite) const
{
    double breitester = 0;
    for (const QString &name : m_aufzeichnung.mahlzeiten) {
        breitester = std::max(breitester, textbreite(mahlzeitworte(name, m_worte), m_gestalt.name));
    }
    return std::min(breitester + 1, breite * hoechsterNamensanteil);
}

Spaltenblock Zettel::tagesblock(int tag, double breite, double namensbreite) const
{
    const Tag &dieser = m_aufzeichnung.tage[tag];
    const QString name = tagesworte(m_aufzeichnung, tag, m_worte);
    const QString weiter = uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "%1 (Fortsetzung)"));
    Spaltenblock block = {tagesname(name, breite), tagesname(weiter.arg(name), breite), {}};
    for (qsizetype i = 0; i < dieser.mahlzeiten.size(); ++i) {
        if (!istLeer(dieser.mahlzeiten[i])) {
            block.teile << mahlzeit(mahlzeitworte(m_aufzeichnung.mahlzeiten.value(i), m_worte),
                                    dieser.mahlzeiten[i], breite, namensbreite);
        }
    }
    for (const QString &text : {dieser.notiz.trimmed(), tageszahlen(tag)}) {
        if (!text.isEmpty()) {
            block.teile << gesetzt({{.text = text, .schrift = m_gestalt.notiz, .breite = breite}});
            block.teile.last() << freiraum(m_gestalt.luft);
        }
    }
    return block;
}

/// The name at the left, and beside it the foods one below the other.
Druckstreifenfolge Zettel::mahlzeit(const QString &name, const Mahlzeit &mahlzeit, double breite,
                                    double namensbreite) const
{
    const double links = namensbreite + nebenNamen;
    Druckstreifenfolge speisen;
    for (const Mahlzeitzeile &eine : mahlzeit.zeilen) {
        if (!istLeer(eine)) {
            speisen << zeile(eine, links, breite - links);
        }
    }
    if (const QString notiz = mahlzeit.notiz.trimmed(); !notiz.isEmpty()) {
        speisen << gesetzt({{.text = notiz,
                             .schrift = speisen.isEmpty() ? m_gestalt.text : m_gestalt.notiz,
                             .links = links,
                             .breite = breite - links}});
    }
    return nebeneinander(
               gesetzt({{.text = name, .schrift = m_gestalt.name, .breite = namensbreite}}),
               speisen)
           << freiraum(m_gestalt.luft);
}

/// What goes on in a second line stands a little to the right there, so that each food begins where
/// the eye looks for it.
Druckstreifenfolge Zettel::zeile(const Mahlzeitzeile &zeile, double links, double breite) const
{
    const double anfang = links + (zeile.oder ? einzug : 0);
    return gesetzt({{.text = zeilentext(zeile),
                     .schrift = m_gestalt.text,
                     .links = anfang,
                     .breite = links + breite - anfang,
                     .haengend = einzug}});
}

QString Zettel::zeilentext(const Mahlzeitzeile &zeile) const
{
    const bool bekannt = m_angaben.masse && !zeile.schluessel.isEmpty();
    const QList<Mass> masse = bekannt ? m_angaben.masse(zeile.schluessel) : QList<Mass>();
    return zeilenworte(zeile, masse, m_worte);
}

/// The main values of a day; empty where they are not wanted or nothing counts.
QString Zettel::tageszahlen(int tag) const
{
    const Tagesrechnung rechnung = rechneTag(m_aufzeichnung, tag, {});
    if (!m_wunsch.zahlen || rechnung.tage == 0) {
        return {};
    }
    QStringList werte;
    for (const Naehrwert wert : hauptwerte) {
        const Naehrwertbeschreibung &eine = beschreibung(wert);
        const auto summe = static_cast<double>(rechnung.summen.summe[stelle(wert)]);
        werte << uebersetzt(eine.bezeichnung) + QChar(QChar::Nbsp) +
                     wertText(summe, 0, m_worte.land()) + QChar(QChar::Nbsp) +
                     einheitszeichen(eine.einheit);
    }
    return werte.join(QStringLiteral(", "));
}

Spaltensatz Zettel::inSpalten(const QSizeF &seite, int spalten, bool ganze) const
{
    Spaltensatz satz({seite, spalten, spaltenabstand, m_gestalt.tag.groesse},
                     seitenkopf(seite.width()));
    satz.oben(kopf(seite.width()));
    const double breite = satz.spaltenbreite();
    QList<Spaltenblock> bloecke;
    for (const int tag : tage()) {
        bloecke << tagesblock(tag, breite, namensbreite(breite));
    }
    satz.setze(bloecke, ganze);
    return satz;
}

/// As few columns as give as few pages, and days that are not divided where that costs no page.
Spaltensatz Zettel::gesetztAuf(const QSizeF &seite) const
{
    const auto passen = static_cast<int>((seite.width() + spaltenabstand) /
                                         (m_gestalt.schmalsteSpalte + spaltenabstand));
    Spaltensatz bester = inSpalten(seite, 1, true);
    for (const bool ganze : {true, false}) {
        for (int spalten = 1; spalten <= std::max(1, passen) && bester.seiten() > 1; ++spalten) {
            Spaltensatz satz = inSpalten(seite, spalten, ganze);
            if (satz.seiten() < bester.seiten()) {
                bester = std::move(satz);
            }
        }
    }
    return bester;
}

} // namespace

Druckauftrag handzettel(const Aufzeichnung &aufzeichnung, const Handzettelwunsch &wunsch,
                        const Druckangaben &angaben)
{
    const Zettel zettel(aufzeichnung, wunsch, angaben);
    return mitFuss(
        gesetzterAuftrag<Spaltensatz>(
            zettel.titelMitNamen(), zettel.uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Handzettel")),
            angaben.heute, [zettel](const QSizeF &seite) { return zettel.gesetztAuf(seite); }),
        zettel.uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Seite %1 von %2")), zettel.worte().land());
}
