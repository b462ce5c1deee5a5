#include "Summenzeilen.h"

#include "Planzahlen.h"
#include "Zeichenkettentabelle.h"

#include <cmath>

namespace {

constexpr int summenzeile = 0;
constexpr int zeilenzahl = 2; // the sums, and what is left below them

} // namespace

void Summenzeilen::setzeSummen(const Plansummen &summen, double errechnet)
{
    m_summen = summen;
    m_errechnet = errechnet;
}

int Summenzeilen::numberOfRows() const
{
    return zeilenzahl;
}

QString Summenzeilen::objectValue(const QString &spalte, int zeile)
{
    if (spalte == QLatin1String("name")) {
        return zeile == summenzeile ? summenwort()
                                    : localizedString(QStringLiteral("Bis zum Tagesbedarf"));
    }
    if (spalte == QLatin1String("menge")) {
        return zeile == summenzeile ? mengentext(m_summen.menge) : QString();
    }
    const auto *naehrwert = naehrwertVon(spalte);
    if (naehrwert == nullptr) {
        return {};
    }
    if (zeile == summenzeile) {
        const float summe = m_summen.summe[stelle(naehrwert->wert)];
        return naehrwerttext(naehrwert->wert, static_cast<double>(summe));
    }
    const std::optional<double> rest = m_summen.rest(naehrwert->wert);
    return rest ? naehrwerttext(naehrwert->wert, *rest) : QStringLiteral("-");
}

Zellenbild Summenzeilen::willDisplayCell(const QString &spalte, int zeile, const QString &wert)
{
    Zellenbild bild;
    bild.text = wert;
    bild.erklaerung = erklaerung(spalte, zeile);
    return bild;
}

QString Summenzeilen::zeilenname(int zeile)
{
    return objectValue(QStringLiteral("name"), zeile);
}

QString Summenzeilen::summenwort() const
{
    const QString summe = localizedString(QStringLiteral("Summe"));
    return m_summen.ohneWerte == 0 ? summe
           : m_summen.ohneWerte == 1
               ? localizedString(QStringLiteral("Summe (1 zählt nicht mit)"))
               : localizedString(QStringLiteral("Summe (%1 zählen nicht mit)"))
                     .arg(m_summen.ohneWerte);
}

/// What is left, or what is too much.
QString Summenzeilen::restwort(Naehrwert wert) const
{
    const std::optional<double> rest = m_summen.rest(wert);
    if (!rest) {
        return localizedString(QStringLiteral(
            "Der Energiebedarf ist noch nicht bekannt (unter „Körper und Energie“)."));
    }
    QString von =
        localizedString(QStringLiteral("%1 von %2"))
            .arg(naehrwertMitEinheit(wert, static_cast<double>(m_summen.summe[stelle(wert)])),
                 naehrwertMitEinheit(wert, *m_summen.bedarf[stelle(wert)]));
    if (*rest == 0) {
        return von;
    }
    const QString satz = *rest < 0 ? localizedString(QStringLiteral("%1 zu viel (%2)"))
                                   : localizedString(QStringLiteral("noch %1 (%2)"));
    return satz.arg(naehrwertMitEinheit(wert, std::abs(*rest)), von);
}

QString Summenzeilen::erklaerung(const QString &spalte, int zeile) const
{
    const auto *naehrwert = naehrwertVon(spalte);
    if (naehrwert != nullptr && zeile != summenzeile) {
        return localizedString(QString::fromUtf8(naehrwert->bezeichnung)) + QStringLiteral(": ") +
               restwort(naehrwert->wert);
    }
    if (naehrwert != nullptr && naehrwert->wert == Naehrwert::kal) {
        return localizedString(QStringLiteral("Anteile und Gewichtsverlauf rechnen mit %1: der "
                                              "Energie aus Protein, Kohlenhydraten und Fett."))
            .arg(naehrwertMitEinheit(Naehrwert::kal, m_errechnet));
    }
    if (spalte == QLatin1String("name") && zeile == summenzeile && m_summen.ohneWerte > 0) {
        return localizedString(QStringLiteral("Ein Lebensmittel, das in keiner Tabelle steht, "
                                              "zählt nicht mit, auch nicht seine Menge."));
    }
    return {};
}
