#include "Summenmodell.h"

#include "Planzahlen.h"
#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

#include <array>
#include <utility>

void Summenmodell::zeige(Stand stand)
{
    m_stand = std::move(stand);
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, AnzahlSpalten - 1));
}

int Summenmodell::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(anzahlNaehrwerte);
}

int Summenmodell::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : AnzahlSpalten;
}

std::optional<double> Summenmodell::zahl(Naehrwert wert, int spalte) const
{
    const auto summe = [wert](const Plansummen &summen) {
        return static_cast<double>(summen.summe[stelle(wert)]);
    };
    const Tagesrechnung &rechnung = spalte < Mittel ? m_stand.tag : m_stand.mittel;
    switch (spalte) {
    case Zeile:
        return m_stand.zeile ? std::optional<double>((*m_stand.zeile)[stelle(wert)]) : std::nullopt;
    case Mahlzeit:
        return m_stand.mahlzeit ? std::optional(summe(*m_stand.mahlzeit)) : std::nullopt;
    case Tag:
    case Mittel:
        return rechnung.tage > 0 ? std::optional(summe(rechnung.summen)) : std::nullopt;
    default:
        return rechnung.tage > 0 && m_stand.mitBedarf
                   ? std::optional(rechnung.auswertung.naehrwerte[stelle(wert)].prozent)
                   : std::nullopt;
    }
}

QVariant Summenmodell::data(const QModelIndex &index, int role) const
{
    if (role == Qt::TextAlignmentRole) {
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    }
    if (!index.isValid() || role != Qt::DisplayRole) {
        return {};
    }
    const Naehrwert wert = naehrwerte.at(static_cast<std::size_t>(index.row())).wert;
    const std::optional<double> eine = zahl(wert, index.column());
    if (!eine) {
        return QString();
    }
    return istAnteil(index.column()) ? wertText(*eine, 0) : naehrwerttext(wert, *eine);
}

QVariant Summenmodell::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole) {
        return {};
    }
    if (orientation == Qt::Vertical) {
        const Naehrwertbeschreibung &eine = naehrwerte.at(static_cast<std::size_t>(section));
        return QStringLiteral("%1 (%2)").arg(localizedString(QString::fromUtf8(eine.bezeichnung)),
                                             einheitszeichen(eine.einheit));
    }
    static constexpr std::array<const char *, AnzahlSpalten> koepfe = {
        QT_TRANSLATE_NOOP("Mahlberg", "Zeile"),  QT_TRANSLATE_NOOP("Mahlberg", "Mahlzeit"),
        QT_TRANSLATE_NOOP("Mahlberg", "Tag"),    "%",
        QT_TRANSLATE_NOOP("Mahlberg", "Mittel"), "%"};
    return localizedString(QString::fromUtf8(koepfe.at(static_cast<std::size_t>(section))));
}
