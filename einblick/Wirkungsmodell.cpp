#include "Wirkungsmodell.h"

#include "Einblickworte.h"
#include "Textfarbe.h"
#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QApplication>
#include <QPalette>

namespace {

/// Of the suggested food, or of all that is eaten, nobody knows it.
bool istUnbekannt(const Wirkung &wirkung)
{
    return wirkung.unbekannt >= 1 || wirkung.vorherUnbekannt >= 1;
}

/// "8,2 → 12,2 mg"; of what is unknown only what is there now, as far as it is known.
QString menge(const Wirkung &wirkung)
{
    const Kenngroesse groesse = wirkung.ziel.groesse;
    if (wirkung.vorherUnbekannt >= 1) {
        return localizedString(QStringLiteral("unbekannt"));
    }
    if (wirkung.unbekannt >= 1) {
        return QStringLiteral("%1 → ?").arg(Einblickworte::menge(groesse, wirkung.vorher));
    }
    return QStringLiteral("%1 → %2").arg(wertText(wirkung.vorher, beschreibung(groesse).stellen),
                                         Einblickworte::menge(groesse, wirkung.nachher));
}

QString urteil(const Wirkung &wirkung)
{
    if (istUnbekannt(wirkung)) {
        return QStringLiteral("? ") + localizedString(QStringLiteral("unbekannt"));
    }
    switch (wirkung.richtung) {
    case Wirkung::Richtung::Besser:
        return QStringLiteral("✓ ") + localizedString(QStringLiteral("besser"));
    case Wirkung::Richtung::Schlechter:
        return QStringLiteral("✗ ") + localizedString(QStringLiteral("schlechter"));
    case Wirkung::Richtung::Gleich:
        break;
    }
    return {};
}

/// The verdict's colour on what windows look like now; absent: the text's own.
std::optional<QColor> farbe(const Wirkung &wirkung)
{
    if (istUnbekannt(wirkung) || wirkung.richtung == Wirkung::Richtung::Gleich) {
        return std::nullopt;
    }
    const bool besser = wirkung.richtung == Wirkung::Richtung::Besser;
    return farbeFuer(besser ? Textfarbe::Gruen : Textfarbe::Rot, QApplication::palette());
}

} // namespace

void Wirkungsmodell::zeige(const QList<Wirkung> &wirkungen)
{
    beginResetModel();
    m_wirkungen = wirkungen;
    endResetModel();
}

int Wirkungsmodell::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_wirkungen.size());
}

int Wirkungsmodell::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : AnzahlSpalten;
}

QVariant Wirkungsmodell::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const Wirkung &wirkung = m_wirkungen[index.row()];
    if (role == Qt::TextAlignmentRole) {
        return QVariant(index.column() == Ziel ? Qt::AlignLeft | Qt::AlignVCenter
                                               : Qt::AlignRight | Qt::AlignVCenter);
    }
    if (role == Qt::ForegroundRole && index.column() == Urteil) {
        const std::optional<QColor> eine = farbe(wirkung);
        return eine ? QVariant(*eine) : QVariant();
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (index.column()) {
    case Ziel:
        return nameVon(wirkung.ziel.groesse);
    case Menge:
        return menge(wirkung);
    default:
        return urteil(wirkung);
    }
}

QVariant Wirkungsmodell::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) { // no head is seen beside a row; screen readers ask for it
        return role == Qt::DisplayRole ? data(index(section, Ziel), role) : QVariant();
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    static constexpr std::array<const char *, AnzahlSpalten> koepfe = {
        QT_TRANSLATE_NOOP("Mahlberg", "Ziel"), QT_TRANSLATE_NOOP("Mahlberg", "vorher → nachher"),
        QT_TRANSLATE_NOOP("Mahlberg", "Wirkung")};
    return localizedString(QString::fromUtf8(koepfe.at(static_cast<std::size_t>(section))));
}
