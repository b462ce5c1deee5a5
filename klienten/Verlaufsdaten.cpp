#include "Verlaufsdaten.h"

#include "Zeichenkettentabelle.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <array>
#include <cmath>

namespace {

QString tagestext(const QDate &tag)
{
    return QLocale().toString(tag, QLocale::ShortFormat);
}

/// From the first measure to the last one, by the digits that are shown of both.
QString veraenderung(Messgroesse was, double zuerst, double zuletzt)
{
    const double mehr = gerundet(was, zuletzt) - gerundet(was, zuerst);
    const double betrag = gerundet(was, std::abs(mehr));
    if (betrag == 0) {
        return localizedString(QStringLiteral("unverändert"));
    }
    return (mehr > 0 ? localizedString(QStringLiteral("%1 mehr"))
                     : localizedString(QStringLiteral("%1 weniger")))
        .arg(messwert(was, betrag));
}

QString messungen(const Verlaufsdaten &daten)
{
    const QString name = messgroessenname(daten.was);
    const Messpunkt &erster = daten.punkte.first();
    const Messpunkt &letzter = daten.punkte.last();
    const QString wert = messwert(daten.was, letzter.wert);
    const QString tag = tagestext(letzter.tag);
    if (daten.punkte.size() == 1) {
        return localizedString(QStringLiteral("%1: eine Messung, %2 am %3.")).arg(name, wert, tag);
    }
    return localizedString(
               QStringLiteral("%1: %2 Messungen, zuerst %3 am %4, zuletzt %5 am %6, %7."))
        .arg(name, QString::number(daten.punkte.size()), messwert(daten.was, erster.wert),
             tagestext(erster.tag), wert, tag, veraenderung(daten.was, erster.wert, letzter.wert));
}

QString lageInWorten(const Verlaufsdaten &daten, const Zielband &band)
{
    constexpr std::array saetze = {
        QT_TRANSLATE_NOOP("Mahlberg", "Der letzte Wert liegt unter dem Zielbereich (%1)."),
        QT_TRANSLATE_NOOP("Mahlberg", "Der letzte Wert liegt im Zielbereich (%1)."),
        QT_TRANSLATE_NOOP("Mahlberg", "Der letzte Wert liegt über dem Zielbereich (%1)."),
    };
    const Bandlage lage = bandlage(daten.was, daten.punkte.last().wert, band);
    return localizedString(QString::fromUtf8(saetze[static_cast<std::size_t>(lage)]))
        .arg(bandworte(daten.was, band) + QChar(QChar::Nbsp) +
             QString::fromUtf8(messart(daten.was).einheit));
}

} // namespace

Verlaufsdaten verlaufsdaten(const Person &person, const QList<Besuch> &besuche, Messgroesse was,
                            const QDate &heute)
{
    Verlaufsdaten daten;
    daten.was = was;
    daten.punkte = messreihe(besuche, was);
    daten.bandAb = zielbandAb(person);
    daten.mangel = bandmangel(was, person, besuche, heute);
    if (!daten.mangel && daten.bandAb.isValid() && !daten.punkte.isEmpty() &&
        daten.punkte.last().tag < daten.bandAb) {
        daten.mangel = Bandmangel::Jugend;
    }
    if (!daten.mangel) {
        daten.band = zielband(was, person, besuche, heute);
    }
    return daten;
}

QString verlaufInWorten(const Verlaufsdaten &daten)
{
    if (daten.punkte.isEmpty()) {
        return localizedString(QString::fromUtf8(messart(daten.was).leer));
    }
    return messungen(daten) + u' ' +
           (daten.band ? lageInWorten(daten, *daten.band) : bandInWorten(daten));
}

QString bandInWorten(const Verlaufsdaten &daten)
{
    if (daten.band) {
        return localizedString(QStringLiteral("Zielbereich %1"))
            .arg(bandworte(daten.was, *daten.band));
    }
    return daten.mangel ? ohneZielband(*daten.mangel) : QString();
}
