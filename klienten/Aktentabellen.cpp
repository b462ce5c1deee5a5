#include "Aktentabellen.h"

#include "Feldworte.h"
#include "Lebensmitteltabelle.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

namespace {

QString uebersetzt(const char *text)
{
    return localizedString(QString::fromUtf8(text));
}

Csv::Zelle textzelle(const QString &text)
{
    return text.isEmpty() ? Csv::Zelle() : text;
}

/// Days stay as they are kept: a spreadsheet understands them in every country.
Csv::Zelle zelle(const char *spalte, const QVariant &wert)
{
    if (wert.metaType().id() == QMetaType::Double) {
        return wert.toDouble();
    }
    const QString text = wert.toString();
    const bool tag = QDate::fromString(text, Qt::ISODate).isValid();
    return textzelle(tag ? text : feldworte(spalte, wert));
}

template <typename Satz>
Csv::Zelle zelle(const Satz &satz, const Satzspalte<Satz> &spalte)
{
    return zelle(spalte.name, spalte.lies(satz));
}

Csv::Zelle zelle(const Planablage &plan, const Satzspalte<Planablage> &spalte)
{
    if (qstrcmp(spalte.name, "posten") == 0) {
        return static_cast<double>(plan.posten.size());
    }
    return zelle(spalte.name, spalte.lies(plan));
}

Csv::Zelle zelle(const Aufzeichnung &aufzeichnung, const Satzspalte<Aufzeichnung> &spalte)
{
    if (qstrcmp(spalte.name, "tage") == 0) {
        return static_cast<double>(aufzeichnung.tage.size());
    }
    return zelle(spalte.name, spalte.lies(aufzeichnung));
}

template <typename Satz>
Csv::Tabelle tabelle(const QList<Satz> &saetze)
{
    Csv::Tabelle tabelle;
    for (const Satzspalte<Satz> &spalte : spalten<Satz>()) {
        tabelle.spalten << spaltenkopf(spalte);
    }
    for (const Satz &satz : saetze) {
        QList<Csv::Zelle> zeile;
        for (const Satzspalte<Satz> &spalte : spalten<Satz>()) {
            zeile << zelle(satz, spalte);
        }
        tabelle.zeilen << zeile;
    }
    return tabelle;
}

QStringList planzeilenkoepfe()
{
    const QStringList koepfe = {
        localizedString(QStringLiteral("Plan")), localizedString(QStringLiteral("Datum")),
        localizedString(QStringLiteral("Lebensmittel")),
        mitEinheit(localizedString(QStringLiteral("Menge")), einheitszeichen(Einheit::Gramm))};
    return koepfe + wertekoepfe();
}

QStringList tageszeilenkoepfe()
{
    const QStringList koepfe = {
        localizedString(QStringLiteral("Aufzeichnung")),
        localizedString(QStringLiteral("Tag")),
        localizedString(QStringLiteral("Mahlzeit")),
        localizedString(QStringLiteral("Lebensmittel")),
        localizedString(QStringLiteral("Menge, wie gesagt")),
        mitEinheit(localizedString(QStringLiteral("Menge")), einheitszeichen(Einheit::Gramm))};
    return koepfe + wertekoepfe();
}

/// What there is to say of a row of a meal, behind the record, the day and the meal.
QList<Csv::Zelle> speisezellen(const Mahlzeitzeile &zeile)
{
    const QString name = zeile.schluessel.isNull() ? zeile.text : localizedString(zeile.schluessel);
    const QString oder = localizedString(QStringLiteral("oder %1")).arg(name);
    const QList<Csv::Zelle> zellen = {textzelle(zeile.oder ? oder : name), textzelle(zeile.angabe),
                                      zeile.gramm ? Csv::Zelle(*zeile.gramm) : Csv::Zelle()};
    constexpr qsizetype anzahlWerte = anzahlNaehrwerte + anzahlWertungen;
    return zellen + (zaehlt(zeile) ? wertezellen(*zeile.eintrag, *zeile.gramm / 100.0F)
                                   : QList<Csv::Zelle>(anzahlWerte));
}

/// Days of no date are told apart by their number.
Csv::Zelle tageszelle(const Aufzeichnung &aufzeichnung, int tag)
{
    const QDate datum = datumVon(aufzeichnung, tag);
    return datum.isValid() ? Csv::Zelle(datum.toString(Qt::ISODate))
                           : Csv::Zelle(static_cast<double>(tag + 1));
}

} // namespace

QString mitEinheit(const QString &name, const QString &einheit)
{
    return einheit.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, einheit);
}

QString spaltenkopf(const char *spalte, const char *beschriftung)
{
    return mitEinheit(uebersetzt(beschriftung), feldeinheit(spalte));
}

Csv::Tabelle personentabelle(const Person &person)
{
    Csv::Tabelle tabelle;
    tabelle.spalten = {localizedString(QStringLiteral("Angabe")),
                       localizedString(QStringLiteral("Wert"))};
    for (const Satzspalte<Person> &spalte : spalten<Person>()) {
        tabelle.zeilen << QList<Csv::Zelle>{spaltenkopf(spalte), zelle(person, spalte)};
    }
    return tabelle;
}

Csv::Tabelle besuchstabelle(const QList<Besuch> &besuche)
{
    return tabelle(besuche);
}

Csv::Tabelle plaenetabelle(const QList<Planablage> &plaene)
{
    return tabelle(plaene);
}

Csv::Tabelle planzeilentabelle(const QList<Planablage> &plaene)
{
    Csv::Tabelle tabelle;
    tabelle.spalten = planzeilenkoepfe();
    constexpr qsizetype anzahlWerte = anzahlNaehrwerte + anzahlWertungen;
    for (const Planablage &plan : plaene) {
        for (const Planposten &posten : plan.posten) {
            const QList<Csv::Zelle> eine = {textzelle(plan.titel),
                                            textzelle(plan.datum.toString(Qt::ISODate)),
                                            localizedString(posten.schluessel), posten.gramm};
            tabelle.zeilen << eine + (posten.eintrag
                                          ? wertezellen(*posten.eintrag, posten.gramm / 100.0F)
                                          : QList<Csv::Zelle>(anzahlWerte));
        }
    }
    return tabelle;
}

Csv::Tabelle aufzeichnungstabelle(const QList<Aufzeichnung> &aufzeichnungen)
{
    return tabelle(aufzeichnungen);
}

Csv::Tabelle tageszeilentabelle(const QList<Aufzeichnung> &aufzeichnungen)
{
    Csv::Tabelle tabelle;
    tabelle.spalten = tageszeilenkoepfe();
    for (const Aufzeichnung &eine : aufzeichnungen) {
        for (int tag = 0; tag < eine.tage.size(); ++tag) {
            for (qsizetype i = 0; i < eine.tage[tag].mahlzeiten.size(); ++i) {
                for (const Mahlzeitzeile &zeile : eine.tage[tag].mahlzeiten[i].zeilen) {
                    tabelle.zeilen
                        << QList<Csv::Zelle>{textzelle(eine.titel), tageszelle(eine, tag),
                                             mahlzeitname(eine.mahlzeiten[i])} +
                               speisezellen(zeile);
                }
            }
        }
    }
    return tabelle;
}
