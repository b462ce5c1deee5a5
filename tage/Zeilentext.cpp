#include "Zeilentext.h"

#include "Csvleser.h"
#include "Spaltenzahlen.h"
#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// No 1,000 rows are as long; what is longer need not be taken apart to be refused.
constexpr qsizetype meisteZeichen = 1'000'000;

/// Where the parts of a row stand; −1: nowhere.
struct Anordnung
{
    int mahlzeit = -1;
    int speise = 0;
    int angabe = 1;
    int gramm = -1;
};

/// How the columns may be headed, in either language.
struct Ueberschrift
{
    int Anordnung::*spalte;
    std::array<const char *, 4> worte;
};

constexpr std::array<Ueberschrift, 4> ueberschriften = {{
    {&Anordnung::mahlzeit, {"Mahlzeit", "Meal", "", ""}},
    {&Anordnung::speise, {"Lebensmittel", "Food", "Name", "Speise"}},
    {&Anordnung::angabe, {"Menge", "Amount", "Angabe", ""}},
    {&Anordnung::gramm, {"Gramm", "Grams", "g", ""}},
}};

/// The order in which `alsTabelle` writes.
constexpr Anordnung eigene = {.mahlzeit = 0, .speise = 1, .angabe = 2, .gramm = 3};

QString feld(const QStringList &felder, int stelle)
{
    return felder.value(stelle).simplified();
}

QList<QStringList> ohneAnfuehrung(const QString &text, QChar trennung)
{
    QList<QStringList> saetze;
    static const QRegularExpression ende(u"[\r\n]+"_s);
    for (const QString &zeile : text.split(ende, Qt::SkipEmptyParts)) {
        QStringList felder;
        for (const QString &eines : zeile.split(trennung)) {
            felder << Csv::ungeschuetzt(eines);
        }
        saetze << felder;
    }
    return saetze;
}

/// The fields of each line. Where a quote is never closed it is a sign like any other, and eats no
/// rows.
QList<QStringList> zerlegt(const QString &text)
{
    const QString ersteZeile = text.trimmed().section(u'\n', 0, 0);
    const bool tabelle = text.contains(u'\t') || ersteZeile.contains(u';');
    const QChar trennung = text.contains(u'\t') ? u'\t' : u';';
    const Csv::Saetze gelesen = Csv::zerlegen(text, trennung);
    if (!tabelle || gelesen.offeneZeile > 0) {
        return ohneAnfuehrung(text, tabelle ? trennung : QChar(u'\n'));
    }
    QList<QStringList> saetze;
    for (const Csv::Satz &satz : gelesen.saetze) {
        saetze << satz.felder;
    }
    return saetze;
}

/// The arrangement that a row of headings tells; absent when it is none.
std::optional<Anordnung> ausUeberschriften(const QStringList &felder)
{
    Anordnung anordnung{.mahlzeit = -1, .speise = -1, .angabe = -1, .gramm = -1};
    for (int stelle = 0; stelle < felder.size(); ++stelle) {
        for (const auto &[spalte, worte] : ueberschriften) {
            const bool heisstSo = std::any_of(worte.begin(), worte.end(), [&](const char *wort) {
                return feld(felder, stelle).compare(QLatin1String(wort), Qt::CaseInsensitive) == 0;
            });
            if (heisstSo && !feld(felder, stelle).isEmpty()) {
                anordnung.*spalte = stelle;
            }
        }
    }
    return anordnung.speise >= 0 && felder.size() > 1 ? std::optional(anordnung) : std::nullopt;
}

/// The usual meals under the names that records keep them by.
QString gemeinteMahlzeit(const QString &name)
{
    const auto *const eine = std::find_if(
        ueblicheMahlzeiten.begin(), ueblicheMahlzeiten.end(), [&](const char *uebliche) {
            return mahlzeitname(QString::fromUtf8(uebliche)).compare(name, Qt::CaseInsensitive) ==
                   0;
        });
    return eine != ueblicheMahlzeiten.end() ? QString::fromUtf8(*eine) : name;
}

/// Reads rows, one after the other.
class Zeilenleser
{
public:
    explicit Zeilenleser(const Speisequellen &quellen) : m_quellen(quellen) {}

    Zeilenablage lies(QList<QStringList> saetze)
    {
        Anordnung anordnung;
        if (const auto genannte = ausUeberschriften(saetze.constFirst())) {
            anordnung = *genannte;
            saetze.removeFirst();
        } else if (trefferIn(saetze, eigene.speise) > trefferIn(saetze, anordnung.speise)) {
            anordnung = eigene;
        }
        Zeilenablage ablage;
        QString mahlzeit;
        for (const QStringList &felder : std::as_const(saetze)) {
            const QString genannte = gemeinteMahlzeit(feld(felder, anordnung.mahlzeit));
            mahlzeit = genannte.isEmpty() ? mahlzeit : genannte;
            if (!felder.join(QString()).trimmed().isEmpty()) {
                fuegeHinzu(ablage, mahlzeit, zeileAus(felder, anordnung));
            }
        }
        return ablage;
    }

private:
    qsizetype trefferIn(const QList<QStringList> &saetze, int spalte) const
    {
        return std::count_if(saetze.begin(), saetze.end(), [&](const QStringList &felder) {
            return !schluesselVon(feld(felder, spalte)).isNull();
        });
    }

    QString schluesselVon(const QString &name) const
    {
        return name.isEmpty() ? QString() : m_quellen.schluessel(name);
    }

    static void fuegeHinzu(Zeilenablage &ablage, const QString &mahlzeit, Mahlzeitzeile zeile)
    {
        qsizetype stelle = ablage.mahlzeiten.indexOf(mahlzeit);
        if (stelle < 0 && ablage.mahlzeiten.size() < meisteMahlzeiten) {
            stelle = ablage.mahlzeiten.size();
            ablage.mahlzeiten << mahlzeit;
            ablage.inhalt.mahlzeiten << Mahlzeit();
        }
        QList<Mahlzeitzeile> &zeilen = stelle < 0 ? ablage.inhalt.mahlzeiten.last().zeilen
                                                  : ablage.inhalt.mahlzeiten[stelle].zeilen;
        zeile.oder = zeile.oder && !zeilen.isEmpty();
        zeilen << zeile;
    }

    Mahlzeitzeile zeileAus(const QStringList &felder, const Anordnung &anordnung) const
    {
        const QString name = feld(felder, anordnung.speise);
        const QString angabe = feld(felder, anordnung.angabe);
        const QString gramm = feld(felder, anordnung.gramm);
        if (name.isEmpty()) {
            return zeileFuer(felder.join(u' ').simplified(), {});
        }
        if (angabe.isEmpty() && gramm.isEmpty()) {
            return zeileAusSatz(name);
        }
        Mahlzeitzeile zeile = zeileFuer(name, angabe.isEmpty() ? gramm + u" g"_s : angabe);
        if (!zeile.gramm) {
            const bool komma = zahlenform().decimalPoint() == u","_s;
            zeile.gramm = einfacheZahl(gramm, komma ? Zahlenschrift::Komma : Zahlenschrift::Punkt);
            zeile.gramm = zeile.gramm && *zeile.gramm > 0 ? zeile.gramm : std::nullopt;
        }
        return zeile;
    }

    /// A row of a food's name and an amount, both as typed.
    Mahlzeitzeile zeileFuer(const QString &name, const QString &angabe) const
    {
        Mahlzeitzeile zeile;
        zeile.angabe = angabe;
        zeile.schluessel = schluesselVon(name);
        zeile.gramm = m_quellen.gramm(zeile.schluessel, angabe);
        const QString nachOder = name.section(u' ', 1);
        const QString erstes = name.section(u' ', 0, 0).toLower();
        if (zeile.schluessel.isNull() && (erstes == u"oder"_s || erstes == u"or"_s) &&
            !nachOder.isEmpty()) {
            zeile = zeileFuer(nachOder, angabe);
            zeile.oder = true;
            return zeile;
        }
        if (zeile.schluessel.isNull()) {
            zeile.text = name;
        } else if (const Datenmodul *speise = m_quellen.lebensmittel(zeile.schluessel)) {
            zeile.eintrag = *speise;
        }
        return zeile;
    }

    /// A row of a sentence. The longest part of it that is a food's name is the food; what stands
    /// before or behind it is the amount.
    Mahlzeitzeile zeileAusSatz(const QString &satz) const
    {
        Mahlzeitzeile beste = zeileFuer(satz, {});
        const QStringList worte = satz.split(u' ');
        for (qsizetype anzahl = 1; anzahl < worte.size() && beste.schluessel.isNull(); ++anzahl) {
            const auto vorn = worte.first(anzahl).join(u' ');
            const auto hinten = worte.last(anzahl).join(u' ');
            const auto rest = worte.size() - anzahl;
            const Mahlzeitzeile nachher = zeileFuer(worte.last(rest).join(u' '), vorn);
            const Mahlzeitzeile vorher = zeileFuer(worte.first(rest).join(u' '), hinten);
            const Mahlzeitzeile &eine = nachher.schluessel.isNull() ? vorher : nachher;
            beste = eine.schluessel.isNull() ? beste : eine;
        }
        return beste;
    }

    const Speisequellen &m_quellen;
};

} // namespace

Ablagelesung leseZeilentext(const QString &text, const Speisequellen &quellen)
{
    using Zustand = Ablagelesung::Zustand;
    if (text.size() > meisteZeichen) {
        return {Zustand::ZuViel};
    }
    const QList<QStringList> saetze = zerlegt(text);
    if (saetze.size() > meisteAblagezeilen + 1) { // the headings are no row
        return {Zustand::ZuViel};
    }
    if (saetze.isEmpty()) {
        return {Zustand::Leer};
    }
    const Zeilenablage ablage = Zeilenleser(quellen).lies(saetze);
    const int anzahl = zeilenzahl(ablage);
    return anzahl == 0                   ? Ablagelesung{Zustand::Leer}
           : anzahl > meisteAblagezeilen ? Ablagelesung{Zustand::ZuViel}
                                         : Ablagelesung{Zustand::Gelesen, ablage};
}

void bringeAufHeute(Zeilenablage &ablage, const Speisequellen &quellen)
{
    for (Mahlzeit &mahlzeit : ablage.inhalt.mahlzeiten) {
        for (Mahlzeitzeile &zeile : mahlzeit.zeilen) {
            const Datenmodul *speise =
                zeile.schluessel.isNull() ? nullptr : quellen.lebensmittel(zeile.schluessel);
            if (speise != nullptr) {
                zeile.eintrag = *speise;
                const std::optional<float> gramm = quellen.gramm(zeile.schluessel, zeile.angabe);
                zeile.gramm = gramm ? gramm : zeile.gramm;
            }
        }
    }
}
