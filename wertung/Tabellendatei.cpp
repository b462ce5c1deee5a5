#include "Tabellendatei.h"

#include "Feldzeilen.h"
#include "Tabellenworte.h"

#include <cmath>

namespace {

using namespace Qt::StringLiterals;

/// The columns around the seventeen values.
const QStringList &vorneweg()
{
    static const QStringList namen = {u"name_de"_s, u"name_en"_s, u"group"_s, u"source_id"_s};
    return namen;
}

const QStringList &hinterher()
{
    static const QStringList namen = {
        u"sugars"_s,      u"saturated"_s,   u"alcohol"_s,      u"ready_g"_s, u"uric_acid"_s,
        u"purine_keys"_s, u"purine_from"_s, u"purine_class"_s, u"marks"_s,   u"sugar_kind"_s,
        u"synonym"_s,     u"exception"_s,   u"note"_s,         u"check"_s};
    return namen;
}

/// Takes the fields of one line apart, from left to right.
class Zeilenleser
{
public:
    Zeilenleser(const QStringList &felder, Tabellenzeile &ziel) : m_felder(felder), m_ziel(ziel) {}

    /// What is wrong; empty when all could be read.
    QStringList lesen();

private:
    QString text() { return m_felder.at(m_feld++); }
    double zahl();
    std::optional<double> freieZahl();
    template <typename Wert>
    Wert auswahl(const Tabellenworte::Worte<Wert> &worte);

    const QStringList &m_felder;
    Tabellenzeile &m_ziel;
    qsizetype m_feld = 0;
    QStringList m_fehler;
};

double Zeilenleser::zahl()
{
    const QString spalte = Tabellendatei::spalten().at(m_feld);
    const QString feld = text();
    bool gelungen = false;
    const double wert = feld.toDouble(&gelungen);
    if (!gelungen || !std::isfinite(wert)) {
        m_fehler.append(u"\"%1\" is no number (column %2)"_s.arg(feld, spalte));
        return 0;
    }
    return wert;
}

/// A number that may be left out.
std::optional<double> Zeilenleser::freieZahl()
{
    if (m_felder.at(m_feld).isEmpty()) {
        ++m_feld;
        return std::nullopt;
    }
    return zahl();
}

template <typename Wert>
Wert Zeilenleser::auswahl(const Tabellenworte::Worte<Wert> &worte)
{
    const QString spalte = Tabellendatei::spalten().at(m_feld);
    const QString feld = text();
    const auto wert = Tabellenworte::wert(worte, feld);
    if (!wert) {
        m_fehler.append(u"\"%1\" is unknown (column %2)"_s.arg(feld, spalte));
    }
    return wert.value_or(worte.first().second);
}

QStringList Zeilenleser::lesen()
{
    m_ziel.nameDe = text();
    m_ziel.nameEn = text();
    const QString gruppe = text();
    m_ziel.gruppe = lebensmittelgruppe(gruppe);
    if (m_ziel.gruppe == nullptr) {
        m_fehler.append(u"\"%1\" is unknown (column group)"_s.arg(gruppe));
    }
    m_ziel.quelle = text();
    for (double &wert : m_ziel.werte) {
        wert = zahl();
    }
    for (double *wert : {&m_ziel.zucker, &m_ziel.gesaettigt, &m_ziel.alkohol}) {
        *wert = zahl();
    }
    m_ziel.verzehrfertig = freieZahl().value_or(m_ziel.verzehrfertig);
    m_ziel.harnsaeure = freieZahl();
    m_ziel.purinquellen = text();
    m_ziel.purinherkunft = text();
    m_ziel.purinklasse = auswahl(Tabellenworte::purinklassen());
    m_ziel.merkmale = auswahl(Tabellenworte::merkmale());
    m_ziel.zuckerart = auswahl(Tabellenworte::zuckerarten());
    m_ziel.synonymVon = text();
    m_ziel.ausnahmen = text().split(u',', Qt::SkipEmptyParts);
    m_ziel.notiz = text();
    m_ziel.pruefzeichen = text();
    return m_fehler;
}

} // namespace

QStringList Tabellendatei::spalten()
{
    static const QStringList namen = [] {
        QStringList liste = vorneweg();
        for (const auto &zeile : naehrwerte) {
            liste.append(QString::fromLatin1(zeile.kennung));
        }
        return liste + hinterher();
    }();
    return namen;
}

Tabellendatei::Ergebnis Tabellendatei::lesen(QByteArrayView bytes)
{
    const auto [zeilen, formfehler] = Feldzeilen::lesen(bytes, spalten());
    Ergebnis ergebnis = {{}, formfehler};
    for (const auto &[nummer, felder] : zeilen) {
        Tabellenzeile gelesen;
        gelesen.zeile = nummer;
        const QStringList fehler = Zeilenleser(felder, gelesen).lesen();
        for (const QString &meldung : fehler) {
            ergebnis.beanstandungen.append({nummer, Feldzeilen::formregel, meldung});
        }
        if (fehler.isEmpty()) {
            ergebnis.tabelle.append(gelesen);
        }
    }
    return ergebnis;
}
