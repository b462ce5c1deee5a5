#include "Referenzdatei.h"

#include "Feldzeilen.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

using namespace Qt::StringLiterals;

enum Spalte {
    Satz,
    Wert,
    Geschlecht,
    Von,
    Bis,
    Zustand,
    Phase,
    Pal,
    Art,
    Einheitswort,
    Unten,
    Oben,
    Vorbehalt,
    Quellen,
    NotizDe,
    NotizEn
};

const QStringList &spalten()
{
    static const QStringList namen = {
        u"set"_s,  u"nutrient"_s, u"sex"_s, u"from"_s, u"to"_s,    u"state"_s, u"phase"_s, u"pal"_s,
        u"kind"_s, u"unit"_s,     u"low"_s, u"high"_s, u"limit"_s, u"keys"_s,  u"de"_s,    u"en"_s};
    return namen;
}

/// A word of a column and what it stands for.
template <typename Bedeutung>
struct Wort
{
    const char *wort;
    Bedeutung bedeutung;
};

constexpr std::array<Wort<Referenzsatz>, 2> saetze = {{
    {"EFSA", Referenzsatz::Efsa},
    {"DACH", Referenzsatz::Dach},
}};
constexpr std::array<Wort<Referenzgeschlecht>, 2> geschlechter = {{
    {"m", Referenzgeschlecht::Mann},
    {"f", Referenzgeschlecht::Frau},
}};
constexpr std::array<Wort<Referenzzustand>, 3> zustaende = {{
    {"none", Referenzzustand::Keiner},
    {"pregnant", Referenzzustand::Schwanger},
    {"lactating", Referenzzustand::Stillend},
}};
constexpr std::array<Wort<Referenzphase>, 9> phasen = {{
    {"", Referenzphase::Immer},
    {"1st trimester", Referenzphase::Trimester1},
    {"2nd trimester", Referenzphase::Trimester2},
    {"3rd trimester", Referenzphase::Trimester3},
    {"from the 4th month", Referenzphase::AbTrimester2},
    {"first 6 months", Referenzphase::BisMonat6},
    {"after 6 months", Referenzphase::NachMonat6},
    {"before menopause", Referenzphase::VorMenopause},
    {"after menopause", Referenzphase::NachMenopause},
}};
constexpr std::array<Wort<Referenzart>, 8> arten = {{
    {"PRI", Referenzart::Empfehlung},
    {"AI", Referenzart::Schaetzwert},
    {"AR", Referenzart::Mittelwert},
    {"RI", Referenzart::Richtwert},
    {"UL", Referenzart::Obergrenze},
    {"SAFE", Referenzart::SichereZufuhr},
    {"no value", Referenzart::KeinWert},
    {"no UL", Referenzart::KeineObergrenze},
}};
constexpr std::array<Wort<Referenzvorbehalt>, 5> vorbehalte = {{
    {"", Referenzvorbehalt::Keiner},
    {"reference weight", Referenzvorbehalt::Referenzgewicht},
    {"retinol only", Referenzvorbehalt::NurRetinol},
    {"supplements only", Referenzvorbehalt::NurZusaetze},
    {"safe", Referenzvorbehalt::Sicher},
}};
/// Beside the nutrient's own unit.
constexpr std::array<Wort<Referenzeinheit>, 6> einheiten = {{
    {"", Referenzeinheit::Keine},
    {"µg RE", Referenzeinheit::Retinol},
    {"µg RAE", Referenzeinheit::Retinolwirkung},
    {"g/kg", Referenzeinheit::JeKilogramm},
    {"% of energy", Referenzeinheit::Energieanteil},
    {"mg/MJ", Referenzeinheit::JeMegajoule},
}};

bool ohneZahl(Referenzart art)
{
    return art == Referenzart::KeinWert || art == Referenzart::KeineObergrenze;
}

/// Reads the fields of one line and keeps what is wrong with them.
class Zeilenleser
{
public:
    Zeilenleser(int nummer, const QStringList &felder, Beanstandungen &beanstandungen)
        : m_nummer(nummer)
        , m_felder(felder)
        , m_beanstandungen(beanstandungen)
    {
    }

    Referenzzeile lies();

private:
    template <typename Bedeutung, std::size_t anzahl>
    Bedeutung wort(Spalte spalte, const std::array<Wort<Bedeutung>, anzahl> &woerter)
    {
        for (const Wort<Bedeutung> &eines : woerter) {
            if (m_felder.at(spalte) == QString::fromUtf8(eines.wort)) {
                return eines.bedeutung;
            }
        }
        unbekannt(spalte);
        return woerter.front().bedeutung;
    }

    std::optional<Naehrwert> naehrwert();
    Referenzeinheit einheit(Naehrwert wert);
    std::optional<int> jahre(Spalte spalte);
    std::optional<double> zahl(Spalte spalte);
    void pruefeZahlen(const Referenzzeile &zeile);

    void unbekannt(Spalte spalte)
    {
        beanstande(Feldzeilen::formregel, u"\"%1\" is unknown (column %2)"_s.arg(
                                              m_felder.at(spalte), spalten().at(spalte)));
    }
    void beanstande(const QString &regel, const QString &meldung)
    {
        m_beanstandungen.append({m_nummer, regel, meldung});
    }

    int m_nummer;
    const QStringList &m_felder;
    Beanstandungen &m_beanstandungen;
};

std::optional<Naehrwert> Zeilenleser::naehrwert()
{
    for (const Naehrwertbeschreibung &eine : naehrwerte) {
        if (m_felder.at(Wert) == QString::fromUtf8(eine.kennung)) {
            return eine.wert;
        }
    }
    unbekannt(Wert);
    return std::nullopt;
}

/// Vitamin A always says which equivalents it is counted in.
Referenzeinheit Zeilenleser::einheit(Naehrwert wert)
{
    const QString &feld = m_felder.at(Einheitswort);
    const QString eigene = einheitszeichen(beschreibung(wert).einheit);
    if (wert != Naehrwert::vita && feld == eigene) {
        return Referenzeinheit::AmTag;
    }
    return feld == eigene + u" added"_s ? Referenzeinheit::Zuschlag : wort(Einheitswort, einheiten);
}

/// Absent where the field is empty.
std::optional<int> Zeilenleser::jahre(Spalte spalte)
{
    if (m_felder.at(spalte).isEmpty()) {
        return std::nullopt;
    }
    bool gelungen = false;
    const int jahre = m_felder.at(spalte).toInt(&gelungen);
    if (!gelungen || jahre < 0) {
        beanstande(Feldzeilen::formregel, u"\"%1\" is no age (column %2)"_s.arg(
                                              m_felder.at(spalte), spalten().at(spalte)));
    }
    return jahre;
}

/// Absent where the field is empty.
std::optional<double> Zeilenleser::zahl(Spalte spalte)
{
    if (m_felder.at(spalte).isEmpty()) {
        return std::nullopt;
    }
    bool gelungen = false;
    const double zahl = m_felder.at(spalte).toDouble(&gelungen);
    if (!gelungen || !std::isfinite(zahl) || zahl <= 0) {
        beanstande(Feldzeilen::formregel, u"\"%1\" is no number above 0 (column %2)"_s.arg(
                                              m_felder.at(spalte), spalten().at(spalte)));
    }
    return zahl;
}

void Zeilenleser::pruefeZahlen(const Referenzzeile &zeile)
{
    if (m_felder.at(Von).isEmpty()) {
        beanstande(Referenzdatei::altersregel, u"There is no age to begin with"_s);
    } else if (zeile.bis && *zeile.bis < zeile.von) {
        beanstande(Referenzdatei::altersregel,
                   u"The ages end at %1, before %2"_s.arg(*zeile.bis).arg(zeile.von));
    }
    const bool leer = m_felder.at(Unten).isEmpty() && m_felder.at(Oben).isEmpty() &&
                      m_felder.at(Einheitswort).isEmpty();
    const bool ganz = zeile.unten && zeile.einheit != Referenzeinheit::Keine;
    if (ohneZahl(zeile.art) ? !leer : !ganz) {
        beanstande(Referenzdatei::spannenregel,
                   ohneZahl(zeile.art) ? u"A line without a value has a figure or a unit"_s
                                       : u"The figure or its unit is missing"_s);
    } else if (zeile.unten && zeile.oben && *zeile.oben < *zeile.unten) {
        beanstande(Referenzdatei::spannenregel,
                   u"The range ends at %1, before %2"_s.arg(*zeile.oben).arg(*zeile.unten));
    } else if (zeile.unten && !zeile.oben && zeile.art != Referenzart::Richtwert) {
        beanstande(Referenzdatei::spannenregel, u"Only a guiding value (RI) may lack its end"_s);
    }
}

Referenzzeile Zeilenleser::lies()
{
    const qsizetype bisher = m_beanstandungen.size();
    Referenzzeile zeile;
    zeile.zeile = m_nummer;
    zeile.satz = wort(Satz, saetze);
    if (const auto wert = naehrwert()) {
        zeile.wert = *wert;
        zeile.einheit = einheit(*wert);
    }
    zeile.geschlecht = wort(Geschlecht, geschlechter);
    zeile.von = jahre(Von).value_or(0);
    zeile.bis = jahre(Bis);
    zeile.zustand = wort(Zustand, zustaende);
    zeile.phase = wort(Phase, phasen);
    zeile.pal = zahl(Pal);
    zeile.art = wort(Art, arten);
    zeile.unten = zahl(Unten);
    zeile.oben = zahl(Oben);
    zeile.vorbehalt = wort(Vorbehalt, vorbehalte);
    zeile.quellen = m_felder.at(Quellen).split(u' ', Qt::SkipEmptyParts);
    zeile.notizDe = m_felder.at(NotizDe);
    zeile.notizEn = m_felder.at(NotizEn);
    if (m_beanstandungen.size() == bisher) {
        pruefeZahlen(zeile);
    }
    return zeile;
}

} // namespace

Referenzdatei::Ergebnis Referenzdatei::lesen(QByteArrayView bytes)
{
    const auto [zeilen, formfehler] = Feldzeilen::lesen(bytes, spalten());
    Ergebnis ergebnis = {{}, formfehler};
    for (const auto &[nummer, felder] : zeilen) {
        ergebnis.zeilen.append(Zeilenleser(nummer, felder, ergebnis.beanstandungen).lies());
    }
    if (!ergebnis.beanstandungen.isEmpty()) {
        ergebnis.zeilen.clear();
    }
    return ergebnis;
}

Referenzdatei::Ergebnis Referenzdatei::ausDatei(const QString &pfad)
{
    QFile datei(pfad);
    if (!pfad.isEmpty() && datei.open(QIODevice::ReadOnly)) {
        const QByteArray bytes = datei.readAll();
        if (datei.error() == QFileDevice::NoError) {
            return lesen(bytes);
        }
    }
    return {{}, {{0, Feldzeilen::formregel, datei.errorString()}}};
}
