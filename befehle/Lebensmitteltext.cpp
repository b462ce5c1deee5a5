// What the main window shows of a food, as lines for a terminal.

#include "Lebensmittelbericht.h"

#include "Einzeilig.h"
#include "Tafel.h"
#include "Zahlenform.h"
#include "Zahlworte.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

/// In the order of the bars' codes.
constexpr std::array<const char *, 3> beurteilungsworte = {
    QT_TRANSLATE_NOOP("Mahlberg", "gering"),
    QT_TRANSLATE_NOOP("Mahlberg", "mittel"),
    QT_TRANSLATE_NOOP("Mahlberg", "gut"),
};

QString ueberschrift(const QString &text)
{
    return u'\n' + text + u'\n';
}

QString kopf(const Lebensmittelbericht &bericht)
{
    const QString menge =
        zahlenform().toString(static_cast<double>(bericht.gramm), 'g', 7) + QStringLiteral(" g");
    const QString name =
        einzeilig(bericht.eigenes ? bericht.schluessel : localizedString(bericht.schluessel));
    return name + QStringLiteral(", ") + menge +
           (bericht.eigenes ? u' ' + localizedString(QStringLiteral("(eigenes Lebensmittel)"))
                            : QString()) +
           u'\n';
}

/// The judgement of a nutrient against the needs of a day stands beside its amount.
QStringList bedarfszellen(const Lebensmittelbericht &bericht, Naehrwert wert)
{
    const auto &zeilen = bericht.bedarf.zeilen;
    const auto *zeile =
        std::find_if(zeilen.begin(), zeilen.end(),
                     [wert](const Bedarfszeile &eine) { return eine.wert == wert; });
    if (zeile == zeilen.end()) {
        return {};
    }
    return {prozentMitZeichen(zeile->prozent, 0), verdiktwort(zeile->farbe)};
}

QString inhaltsstoffe(const Lebensmittelbericht &bericht)
{
    QList<QStringList> zeilen;
    for (const auto &zeile : naehrwerte) {
        const auto zahl = static_cast<double>(bericht.werte[stelle(zeile.wert)]);
        zeilen << QStringList{uebersetzt(zeile.bezeichnung), wertMitEinheit(zeile.wert, zahl)} +
                      bedarfszellen(bericht, zeile.wert);
        if (zeile.wert == Naehrwert::kal) {
            const auto joule = static_cast<double>(bericht.kilojoule);
            zeilen << QStringList{
                localizedString(QStringLiteral("Energie in Kilojoule")),
                (std::isfinite(joule) ? wertText(joule, 0) : QStringLiteral("-")) +
                    QStringLiteral(" kJ")};
        }
    }
    return ueberschrift(localizedString(QStringLiteral("Inhaltsstoffe, Anteil am Tagesbedarf"))) +
           ausgerichtet(zeilen, QLatin1String("lrrl"));
}

QString anteile(const Lebensmittelbericht &bericht)
{
    const auto zeile = [](Naehrwert wert, float prozent) {
        return QStringList{uebersetzt(beschreibung(wert).bezeichnung),
                           prozentMitZeichen(static_cast<double>(prozent), 0)};
    };
    return ueberschrift(localizedString(QStringLiteral("Anteile an der Energie"))) +
           ausgerichtet({zeile(Naehrwert::protein, bericht.anteile.kalumrprot),
                         zeile(Naehrwert::kh, bericht.anteile.kalumrkh),
                         zeile(Naehrwert::fett, bericht.anteile.kalumrfett)},
                        QLatin1String("lr"));
}

QString beurteilungssatz(const Bedarfsbeurteilung &bedarf)
{
    if (!bedarf.gesamt) {
        return localizedString(QStringLiteral("keine Beurteilung möglich"));
    }
    const QString zahl = QString::number(bedarf.gesamt->wert);
    if (bedarf.gesamt->zuWenigEnergie) {
        return zahl + QStringLiteral(" (") +
               localizedString(QStringLiteral("unter 100 kcal sagt die 0 nichts aus")) + u')';
    }
    const int code = bedarf.gesamt->balkencode;
    return code == Balkencode::unveraendert
               ? zahl
               : zahl + QStringLiteral(", ") +
                     uebersetzt(beurteilungsworte.at(static_cast<std::size_t>(code - 1)));
}

QStringList relationszeile(const char *name, const Relation &relation, int nachkommastellen,
                           const QString &einheit = {})
{
    const auto wert = static_cast<double>(relation.wert);
    const bool fehlt = !relation.text.isNull() || !std::isfinite(wert);
    const QString urteil = fehlt || !relation.code ? QString()
                           : relation.code == Balkencode::gruen
                               ? localizedString(QStringLiteral("günstig"))
                               : localizedString(QStringLiteral("ungünstig"));
    return {uebersetzt(name),
            fehlt ? QStringLiteral("-") : wertText(wert, nachkommastellen) + einheit, urteil};
}

QString relationen(const Lebensmittelbericht &bericht)
{
    const Relationen &alle = bericht.relationen;
    Relation kohlenhydrateinheiten;
    kohlenhydrateinheiten.wert = alle.kohlenhydrateinheiten;
    return ueberschrift(localizedString(QStringLiteral("BE und Relationen"))) +
           ausgerichtet({relationszeile(QT_TRANSLATE_NOOP("Mahlberg", "Natrium zu Kalium"),
                                        alle.natriumKalium, 2),
                         relationszeile(QT_TRANSLATE_NOOP("Mahlberg", "Magnesium zu Calcium"),
                                        alle.magnesiumCalcium, 2),
                         relationszeile(QT_TRANSLATE_NOOP("Mahlberg", "Broteinheiten"),
                                        alle.broteinheiten, 1, QStringLiteral(" BE")),
                         relationszeile(QT_TRANSLATE_NOOP("Mahlberg", "Kohlenhydrateinheiten"),
                                        kohlenhydrateinheiten, 1, QStringLiteral(" KE"))},
                        QLatin1String("lrl"));
}

QString bewertungen(const Lebensmittelbericht &bericht)
{
    QList<QStringList> zeilen;
    for (const auto &zeile : wertungen) {
        const QString &zeichen = bericht.wertungen[stelle(zeile.wertung)];
        zeilen << QStringList{uebersetzt(zeile.bezeichnung), einzeilig(zeichen),
                              wertungswort(zeichen)};
    }
    return ueberschrift(localizedString(QStringLiteral("Bewertungen"))) +
           ausgerichtet(zeilen, QLatin1String("lll"));
}

} // namespace

QString alsText(const Lebensmittelbericht &bericht)
{
    return kopf(bericht) + inhaltsstoffe(bericht) + anteile(bericht) +
           ueberschrift(localizedString(QStringLiteral(
               "Gesamtbeurteilung: mittlere Deckung des Tagesbedarfs je 100 kcal, in %"))) +
           QStringLiteral("  ") + beurteilungssatz(bericht.bedarf) + u'\n' + relationen(bericht) +
           bewertungen(bericht);
}
