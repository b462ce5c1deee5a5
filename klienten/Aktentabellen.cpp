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
