#include "Vergleichsmodell.h"

#include "Einblickworte.h"
#include "Rangworte.h"
#include "Textfarbe.h"
#include "Wertungswort.h"
#include "Zeichenkettentabelle.h"

#include <QFont>
#include <QGuiApplication>

namespace {

const QString zeichenFuerBesser = QStringLiteral("✓ ");

/// The sign with its word; any text that an own food may hold instead stands as it is.
QString wertungstext(const QString &zeichen)
{
    const QString wort = Wertungswort::wortFuer(zeichen);
    return wort.isEmpty() ? zeichen : QStringLiteral("%1 %2").arg(zeichen, wort);
}

} // namespace

void Vergleichsmodell::zeige(const Stand &stand)
{
    beginResetModel();
    m_stand = stand;
    m_reihen = vergleiche(stand.kandidaten, stand.bezug, stand.wissen);
    endResetModel();
}

void Vergleichsmodell::folgeSprache()
{
    Q_EMIT headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
    if (columnCount() > 0) {
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    }
}

Vergleichsmodell::Zeile Vergleichsmodell::zeile(int reihe) const
{
    const int portionen = m_stand.bezug == Bezug::JePortion ? 1 : 0;
    if (reihe < portionen) {
        return {Art::Portion, 0};
    }
    const auto stelle = static_cast<std::size_t>(reihe - portionen);
    return stelle < anzahlKenngroessen ? Zeile{Art::Zahl, stelle}
                                       : Zeile{Art::Wertung, stelle - anzahlKenngroessen};
}

int Vergleichsmodell::rowCount(const QModelIndex &parent) const
{
    const int portionen = m_stand.bezug == Bezug::JePortion ? 1 : 0;
    return parent.isValid() ? 0
                            : portionen + static_cast<int>(anzahlKenngroessen + anzahlWertungen);
}

int Vergleichsmodell::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_stand.kandidaten.size());
}

QString Vergleichsmodell::kopf(const Zeile &zeile) const
{
    switch (zeile.art) {
    case Art::Portion:
        return localizedString(QStringLiteral("Portion"));
    case Art::Zahl:
        return nameVon(kenngroessen.at(zeile.stelle).groesse);
    case Art::Wertung:
        return localizedString(QString::fromUtf8(wertungen.at(zeile.stelle).bezeichnung));
    }
    Q_UNREACHABLE();
}

bool Vergleichsmodell::istBesser(const Zeile &zeile, int spalte) const
{
    return zeile.art == Art::Zahl &&
           m_reihen[static_cast<qsizetype>(zeile.stelle)].zahlen[spalte].besser;
}

QString Vergleichsmodell::text(const Zeile &zeile, int spalte) const
{
    switch (zeile.art) {
    case Art::Portion:
        return Rangworte::portionsworte(m_stand.portionen[spalte]);
    case Art::Zahl: {
        const Vergleichsreihe &reihe = m_reihen[static_cast<qsizetype>(zeile.stelle)];
        return Rangworte::wert(reihe.groesse, reihe.zahlen[spalte].wert);
    }
    case Art::Wertung:
        return wertungstext(
            m_stand.kandidaten[spalte].satz.wertung(wertungen.at(zeile.stelle).wertung));
    }
    Q_UNREACHABLE();
}

QString Vergleichsmodell::inWorten(const Zeile &zeile, int spalte) const
{
    const QString worte = QStringLiteral("%1, %2: %3")
                              .arg(localizedString(m_stand.kandidaten[spalte].schluessel),
                                   kopf(zeile), text(zeile, spalte));
    return istBesser(zeile, spalte)
               ? QStringLiteral("%1, %2").arg(worte, localizedString(QStringLiteral("besser")))
               : worte;
}

QVariant Vergleichsmodell::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const Zeile diese = zeile(index.row());
    const bool besser = istBesser(diese, index.column());
    switch (role) {
    case Qt::DisplayRole:
        return besser ? zeichenFuerBesser + text(diese, index.column())
                      : text(diese, index.column());
    case Qt::AccessibleTextRole:
        return inWorten(diese, index.column());
    case Qt::ToolTipRole:
        return Einblickworte::hinweistext(inWorten(diese, index.column()));
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::ForegroundRole:
        return besser ? QVariant(farbeFuer(Textfarbe::Gruen, QGuiApplication::palette()))
                      : QVariant();
    case Qt::FontRole: {
        QFont fett;
        fett.setBold(true);
        return besser ? QVariant(fett) : QVariant();
    }
    default:
        return {};
    }
}

QVariant Vergleichsmodell::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::TextAlignmentRole && orientation == Qt::Vertical) {
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) {
        return {};
    }
    if (orientation == Qt::Vertical) {
        return kopf(zeile(section));
    }
    const QString name = localizedString(m_stand.kandidaten[section].schluessel);
    return role == Qt::ToolTipRole ? Einblickworte::hinweistext(name) : name;
}
