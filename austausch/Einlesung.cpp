#include "Einlesung.h"

#include "Bedenkenworte.h"
#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QHash>

#include <algorithm>
#include <cmath>

using Art = Spaltensinn::Art;

namespace {

/// No food holds more of anything than it weighs, in the units of the record.
double hoechstens(Einheit einheit)
{
    return einheit == Einheit::Milligramm   ? 100e3
           : einheit == Einheit::Mikrogramm ? 100e6
           : einheit == Einheit::Gramm      ? 100
                                            : HUGE_VAL;
}

/// What somebody typed, short enough for a sentence.
QString zitat(const QString &text)
{
    constexpr int laengstes = 40;
    return text.size() > laengstes ? text.first(laengstes) + QStringLiteral("…") : text;
}

QString satz(const char *text)
{
    return localizedString(QString::fromUtf8(text));
}

bool istLeer(const Csv::Satz &zeile)
{
    return std::all_of(zeile.felder.begin(), zeile.felder.end(),
                       [](const QString &feld) { return feld.isEmpty(); });
}

/// Reads one file.
class Leser
{
public:
    Leser(const QList<Csv::Satz> &saetze, const Leseauftrag &auftrag,
          const QSet<QString> &eingebaute)
        : m_saetze(saetze)
        , m_auftrag(auftrag)
        , m_eingebaute(eingebaute)
    {
    }

    Einlesung lies();

private:
    void entscheideSchriften();
    void pruefeSpalten();
    void zeigeMehrdeutiges(qsizetype spalte);
    void liesZeile(const Csv::Satz &satz);
    void liesName(const QString &feld);
    void liesWert(const QString &feld, qsizetype spalte);
    void liesWertung(const QString &feld, const Spaltensinn &sinn);
    void pruefeLaenge(const Csv::Satz &satz);
    double liesPortion(const Csv::Satz &satz);
    void pruefeLebensmittel();
    void wende(Schwere schwere, const QString &text);
    Spaltensinn sinn(qsizetype spalte) const { return m_auftrag.spalten.value(spalte); }
    bool hat(Art art) const;
    QString ueberschrift(qsizetype spalte) const;

    const QList<Csv::Satz> &m_saetze;
    const Leseauftrag &m_auftrag;
    const QSet<QString> &m_eingebaute;
    Einlesung m_ergebnis;
    QHash<QString, int> m_namen; ///< the line in which a name stands first
    Lesezeile m_zeile;           ///< the one that is being read
    double m_portion = 100;      ///< grams that its values are for
    bool m_hatEnergie = false;   ///< else that it is missing is said once, not in each line
};

bool Leser::hat(Art art) const
{
    return std::any_of(m_auftrag.spalten.begin(), m_auftrag.spalten.end(),
                       [art](const Spaltensinn &eine) { return eine.art == art; });
}

QString Leser::ueberschrift(qsizetype spalte) const
{
    return m_auftrag.ueberschriften ? zitat(m_saetze.first().felder.value(spalte))
                                    : QString::number(spalte + 1);
}

void Leser::wende(Schwere schwere, const QString &text)
{
    m_zeile.fehlerhaft |= schwere == Schwere::Fehler;
    if (!m_zeile.ausgelassen) {
        m_ergebnis.einwaende << Einwand{schwere, m_zeile.zeile, text};
    }
}

void Leser::entscheideSchriften()
{
    QList<QStringList> spalten;
    for (qsizetype spalte = 0; spalte < m_auftrag.spalten.size(); ++spalte) {
        QStringList zellen;
        const bool zahlen = sinn(spalte).art == Art::Wert || sinn(spalte).art == Art::Portion;
        for (qsizetype i = m_auftrag.ueberschriften ? 1 : 0; zahlen && i < m_saetze.size(); ++i) {
            zellen << m_saetze[i].felder.value(spalte);
        }
        spalten << zellen;
    }
    m_ergebnis.schriften = zahlenschriften(spalten, m_auftrag.sonst);
    if (m_auftrag.schrift) {
        m_ergebnis.schriften.fill(*m_auftrag.schrift);
    }
    for (qsizetype spalte = 0; spalte < spalten.size(); ++spalte) {
        if (!spalten[spalte].isEmpty()) {
            zeigeMehrdeutiges(spalte);
        }
    }
}

/// A number that could be another one is shown as it was read.
void Leser::zeigeMehrdeutiges(qsizetype spalte)
{
    for (qsizetype i = m_auftrag.ueberschriften ? 1 : 0; i < m_saetze.size(); ++i) {
        const QString feld = m_saetze[i].felder.value(spalte);
        if (istMehrdeutig(feld)) {
            const double zahl = *doppelteZahl(feld, m_ergebnis.schriften[spalte]);
            wende(Schwere::Hinweis,
                  satz(QT_TRANSLATE_NOOP("Mahlberg", "Spalte „%1“: „%2“ ist als %3 gelesen."))
                      .arg(ueberschrift(spalte), feld.trimmed(),
                           zahlenform().toString(zahl, 'g', 9)));
            return;
        }
    }
}

/// What is wrong with the columns concerns every line.
void Leser::pruefeSpalten()
{
    if (!hat(Art::Name)) {
        wende(Schwere::Fehler,
              satz(QT_TRANSLATE_NOOP("Mahlberg", "Keine Spalte ist als „Lebensmittel“ gewählt.")));
    }
    if (!hat(Art::Wert)) {
        wende(Schwere::Fehler,
              satz(QT_TRANSLATE_NOOP("Mahlberg", "Keine Spalte ist als Nährwert gewählt.")));
    }
    QStringList fremde;
    for (qsizetype i = 0; i < m_auftrag.spalten.size(); ++i) {
        if (sinn(i).art == Art::Nichts) {
            fremde << ueberschrift(i);
        }
        for (qsizetype j = 0; j < i; ++j) {
            if (sinn(i).gleichesZiel(sinn(j))) {
                wende(Schwere::Fehler,
                      satz(QT_TRANSLATE_NOOP(
                               "Mahlberg", "Die Spalten „%1“ und „%2“ sind als dasselbe gewählt."))
                          .arg(ueberschrift(j), ueberschrift(i)));
            }
        }
    }
    if (!fremde.isEmpty()) {
        wende(Schwere::Hinweis,
              satz(QT_TRANSLATE_NOOP("Mahlberg", "Nicht übernommene Spalten: %1."))
                  .arg(fremde.join(QStringLiteral(", "))));
    }
    m_hatEnergie = std::any_of(m_auftrag.spalten.begin(), m_auftrag.spalten.end(),
                               [](const Spaltensinn &eine) {
                                   return eine.art == Art::Wert && eine.wert == Naehrwert::kal;
                               });
    if (!m_hatEnergie) {
        wende(Schwere::Hinweis,
              satz(QT_TRANSLATE_NOOP("Mahlberg",
                                     "Keine Spalte ist als Energie gewählt; sie gilt als 0.")));
    }
    if (m_auftrag.jePortion && !hat(Art::Portion) && !(m_auftrag.portion > 0)) {
        wende(Schwere::Fehler,
              satz(QT_TRANSLATE_NOOP("Mahlberg", "Das Gewicht der Portion fehlt.")));
    }
}

void Leser::pruefeLaenge(const Csv::Satz &zeile)
{
    const qsizetype soll = m_saetze.first().felder.size();
    const qsizetype ist = zeile.felder.size();
    if (ist > soll) {
        wende(Schwere::Fehler,
              satz(QT_TRANSLATE_NOOP("Mahlberg", "%1 Felder, in der ersten Zeile sind es %2."))
                  .arg(ist)
                  .arg(soll));
    } else if (ist < soll) {
        wende(Schwere::Warnung,
              satz(QT_TRANSLATE_NOOP("Mahlberg", "Nur %1 von %2 Feldern; die anderen sind leer."))
                  .arg(ist)
                  .arg(soll));
    }
}

void Leser::liesName(const QString &feld)
{
    if (feld.isEmpty()) {
        wende(Schwere::Fehler, satz(QT_TRANSLATE_NOOP("Mahlberg", "Der Name fehlt.")));
        return;
    }
    m_zeile.lebensmittel.setName(feld);
    if (m_zeile.ausgelassen) {
        return;
    }
    if (const int erste = m_namen.value(feld); erste != 0) {
        wende(Schwere::Fehler,
              satz(QT_TRANSLATE_NOOP("Mahlberg", "Der Name „%1“ steht schon in Zeile %2."))
                  .arg(zitat(feld), QString::number(erste)));
        return;
    }
    m_namen.insert(feld, m_zeile.zeile);
    if (m_eingebaute.contains(feld)) {
        wende(Schwere::Warnung,
              satz(QT_TRANSLATE_NOOP("Mahlberg", "„%1“ heißt wie ein eingebautes Lebensmittel; im "
                                                 "Plan zählt das eingebaute."))
                  .arg(zitat(feld)));
    }
}

void Leser::liesWert(const QString &feld, qsizetype spalte)
{
    if (feld.trimmed().isEmpty()) {
        return;
    }
    const Spaltensinn wertsinn = sinn(spalte);
    const auto zahl = doppelteZahl(feld, m_ergebnis.schriften[spalte]);
    const auto genau = einfacheZahl(feld, m_ergebnis.schriften[spalte]);
    if (!zahl || !genau) {
        const char *text =
            zahl ? QT_TRANSLATE_NOOP("Mahlberg", "%1: „%2“ ist zu groß oder zu klein.")
                 : QT_TRANSLATE_NOOP("Mahlberg", "%1: „%2“ ist keine Zahl.");
        wende(Schwere::Fehler, satz(text).arg(inWorten(wertsinn), zitat(feld)));
        return;
    }
    if (*zahl < 0) {
        wende(Schwere::Fehler, satz(QT_TRANSLATE_NOOP("Mahlberg", "%1: %2 ist weniger als nichts."))
                                   .arg(inWorten(wertsinn), zitat(feld)));
        return;
    }
    const bool genauSo = istEigenesMass(wertsinn) && !m_auftrag.jePortion;
    const double je100 = imEigenenMass(*zahl, wertsinn) * (genauSo ? 1 : 100 / m_portion);
    m_zeile.lebensmittel.setWert(wertsinn.wert, genauSo ? *genau : static_cast<float>(je100));
    const Naehrwertbeschreibung &held = beschreibung(wertsinn.wert);
    if (je100 > hoechstens(held.einheit)) {
        wende(Schwere::Warnung,
              satz(QT_TRANSLATE_NOOP("Mahlberg", "%1: %2 %3 in 100 g sind mehr als 100 g."))
                  .arg(inWorten(wertsinn), zahlenform().toString(je100, 'g', 9),
                       einheitszeichen(held.einheit)));
    }
}

void Leser::liesWertung(const QString &feld, const Spaltensinn &wertungssinn)
{
    QString wertung = feld;
    wertung.replace(QChar(0x2212), u'-').replace(QChar(0x2013), u'-');
    if (wertung.isEmpty() || wertung == u'+' || wertung == u'0' || wertung == u'-') {
        m_zeile.lebensmittel.setWertung(wertungssinn.wertung, wertung);
        return;
    }
    wende(Schwere::Fehler,
          satz(QT_TRANSLATE_NOOP("Mahlberg", "%1: „%2“ ist keine Wertung; es gibt +, 0 und -."))
              .arg(inWorten(wertungssinn), zitat(feld)));
}

/// The grams that the values of the line are for.
double Leser::liesPortion(const Csv::Satz &zeile)
{
    if (!m_auftrag.jePortion) {
        return 100;
    }
    for (qsizetype spalte = 0; spalte < m_auftrag.spalten.size(); ++spalte) {
        if (sinn(spalte).art != Art::Portion) {
            continue;
        }
        const QString feld = zeile.felder.value(spalte);
        const auto gramm = doppelteZahl(feld, m_ergebnis.schriften[spalte]);
        if (gramm && *gramm > 0) {
            return *gramm;
        }
        wende(Schwere::Fehler,
              satz(QT_TRANSLATE_NOOP("Mahlberg", "„%1“ ist kein Gewicht einer Portion."))
                  .arg(zitat(feld)));
        return 100;
    }
    return m_auftrag.portion > 0 ? m_auftrag.portion : 100;
}

void Leser::pruefeLebensmittel()
{
    if (m_zeile.fehlerhaft) {
        return;
    }
    for (const Bedenken &bedenken : bezweifeln(m_zeile.lebensmittel)) {
        if (m_hatEnergie || bedenken.zweifel != Zweifel::EnergieZuKlein) {
            wende(Schwere::Warnung, inWorten(bedenken));
        }
    }
}

void Leser::liesZeile(const Csv::Satz &zeile)
{
    m_zeile = {};
    m_zeile.zeile = zeile.zeile;
    m_zeile.ausgelassen = m_auftrag.ausgelassen.contains(zeile.zeile);
    pruefeLaenge(zeile);
    m_portion = liesPortion(zeile);
    for (qsizetype spalte = 0; spalte < m_auftrag.spalten.size(); ++spalte) {
        const QString feld = zeile.felder.value(spalte);
        switch (sinn(spalte).art) {
        case Art::Name:
            liesName(feld);
            break;
        case Art::Wert:
            liesWert(feld, spalte);
            break;
        case Art::Wertung:
            liesWertung(feld, sinn(spalte));
            break;
        case Art::Portion:
        case Art::Nichts:
            break;
        }
    }
    pruefeLebensmittel();
    m_ergebnis.zeilen << m_zeile;
}

Einlesung Leser::lies()
{
    if (m_saetze.isEmpty()) {
        return {};
    }
    pruefeSpalten();
    entscheideSchriften();
    for (qsizetype i = m_auftrag.ueberschriften ? 1 : 0; i < m_saetze.size(); ++i) {
        if (!istLeer(m_saetze[i])) {
            liesZeile(m_saetze[i]);
        }
    }
    if (m_ergebnis.zeilen.isEmpty()) {
        m_ergebnis.einwaende.prepend(
            {Schwere::Fehler, 0,
             satz(QT_TRANSLATE_NOOP("Mahlberg", "Unter den Überschriften steht nichts."))});
    }
    return m_ergebnis;
}

} // namespace

QList<Datenmodul> Einlesung::lebensmittel() const
{
    QList<Datenmodul> alle;
    for (const Lesezeile &zeile : zeilen) {
        if (!zeile.ausgelassen) {
            alle << zeile.lebensmittel;
        }
    }
    return alle;
}

qsizetype Einlesung::fehler() const
{
    return std::count_if(einwaende.begin(), einwaende.end(),
                         [](const Einwand &einwand) { return einwand.schwere == Schwere::Fehler; });
}

Einlesung liesEin(const QList<Csv::Satz> &saetze, const Leseauftrag &auftrag,
                  const QSet<QString> &eingebaute)
{
    return Leser(saetze, auftrag, eingebaute).lies();
}
