#include "Planurteil.h"

#include "Planzahlen.h"
#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>
#include <QStringList>

#include <array>
#include <cmath>
#include <optional>

namespace {

/// In the order of the faces' codes.
constexpr std::array<const char *, 3> gesichtsworte = {
    QT_TRANSLATE_NOOP("Mahlberg", "Ein guter Plan"),
    QT_TRANSLATE_NOOP("Mahlberg", "Ein Plan mit Lücken"),
    QT_TRANSLATE_NOOP("Mahlberg", "Ein unausgewogener Plan"),
};

constexpr const char *leererPlan = QT_TRANSLATE_NOOP("Mahlberg", "Der Plan ist leer");

/// A share as its field shows it, as short as it is.
QString prozenttext(double prozent)
{
    const double gezeigt = gezeigterProzentsatz(prozent);
    return std::isfinite(gezeigt)
               ? zahlenform().toString(gezeigt, 'f', QLocale::FloatingPointShortest) +
                     QChar(QChar::Nbsp) + u'%'
               : QStringLiteral("-"); // it ran over
}

} // namespace

QString planurteil(const Planauswertung &auswertung, bool leer)
{
    const char *worte =
        leer ? leererPlan : gesichtsworte.at(static_cast<std::size_t>(auswertung.gesicht - 1));
    return localizedString(QString::fromUtf8(worte));
}

QString punkteworte(const Planauswertung &auswertung)
{
    return localizedString(QStringLiteral("%1 von 21 Punkten")).arg(auswertung.punkte);
}

QString fehlendePunkte(const Planauswertung &auswertung)
{
    QStringList fehlende;
    for (const auto &zeile : naehrwerte) {
        const Plannaehrwert &naehrwert = auswertung.naehrwerte[stelle(zeile.wert)];
        if (!naehrwert.punkt) {
            fehlende << QStringLiteral("%1 (%2)").arg(
                localizedString(QString::fromUtf8(zeile.bezeichnung)),
                prozenttext(naehrwert.prozent));
        }
    }
    for (const auto &zeile : wertungen) {
        if (!auswertung.wertungen[stelle(zeile.wertung)].punkt) {
            fehlende << localizedString(QString::fromUtf8(zeile.bezeichnung));
        }
    }
    return fehlende.isEmpty() ? QString()
                              : localizedString(QStringLiteral("Es fehlen: %1"))
                                    .arg(fehlende.join(QStringLiteral(", ")));
}

QString mengenworte(const Planregel &regel, float summe, std::int32_t energiebedarf)
{
    const QString menge = naehrwertMitEinheit(regel.wert, static_cast<double>(summe));
    const std::optional<double> bedarf = planbedarf(regel.bezug, energiebedarf);
    return bedarf ? localizedString(QStringLiteral("%1 von %2"))
                        .arg(menge, naehrwertMitEinheit(regel.wert, *bedarf))
                  : localizedString(QStringLiteral("%1; der Energiebedarf ist noch nicht bekannt"))
                        .arg(menge);
}

QString energieworte(std::int32_t bedarf, std::int32_t unbereinigt)
{
    const auto kilokalorien = QString::number(bedarf) + QChar(QChar::Nbsp) + QStringLiteral("kcal");
    return bedarf == 0 ? localizedString(QStringLiteral(
                             "100 % der Energie: noch nicht bekannt (unter „Körper und Energie“)"))
           : bedarf < unbereinigt
               ? localizedString(QStringLiteral("100 % der Energie = %1 am Tag (zum Abnehmen)"))
                     .arg(kilokalorien)
               : localizedString(QStringLiteral("100 % der Energie = %1 am Tag")).arg(kilokalorien);
}
