#include "Beitragsmodell.h"

#include "Balkenmaler.h"
#include "Einblickworte.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

void Beitragsmodell::zeige(const Beitraege &alle, Kenngroesse groesse)
{
    beginResetModel();
    m_zeilen = alle.bekannte + alle.unbekannte;
    m_groesse = groesse;
    endResetModel();
}

void Beitragsmodell::zeige(const QList<Ungeeignetes> &alle)
{
    beginResetModel();
    m_zeilen.clear();
    for (const Ungeeignetes &eines : alle) {
        m_zeilen << Beitrag{eines.schluessel, eines.gramm, {}, eines.anteil, eines.orte};
    }
    m_groesse.reset();
    endResetModel();
}

int Beitragsmodell::zeileVon(const QString &schluessel) const
{
    const auto gesuchte = std::ranges::find(m_zeilen, schluessel, &Beitrag::schluessel);
    return gesuchte != m_zeilen.end() ? static_cast<int>(gesuchte - m_zeilen.begin()) : -1;
}

int Beitragsmodell::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_zeilen.size());
}

int Beitragsmodell::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : AnzahlSpalten;
}

QString Beitragsmodell::text(const Beitrag &zeile, int spalte) const
{
    switch (spalte) {
    case Name:
        return localizedString(zeile.schluessel);
    case Gramm:
        return Einblickworte::gramm(zeile.gramm);
    case Menge:
        return !m_groesse                    ? QString()
               : zeile.angabe.istUnbekannt() ? localizedString(QStringLiteral("unbekannt"))
                                             : Einblickworte::menge(*m_groesse, zeile.angabe.wert);
    default:
        return zeile.angabe.istUnbekannt() ? QString() : Einblickworte::anteil(zeile.anteil);
    }
}

/// What stands in the row, for those who can't see its bar and for names that are cut off.
QString Beitragsmodell::inWorten(const Beitrag &zeile) const
{
    QStringList teile = {text(zeile, Gramm)};
    if (m_groesse) {
        teile << text(zeile, Menge);
    }
    if (!zeile.angabe.istUnbekannt()) {
        teile << text(zeile, Anteil);
    }
    if (zeile.angabe.unbekannt > 0 && !zeile.angabe.istUnbekannt()) {
        teile << Einblickworte::unbekanntes(zeile.angabe.unbekannt);
    }
    return QStringLiteral("%1: %2").arg(text(zeile, Name), teile.join(QStringLiteral(", ")));
}

QVariant Beitragsmodell::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const Beitrag &zeile = m_zeilen[index.row()];
    switch (role) {
    case Qt::DisplayRole:
        return text(zeile, index.column());
    case Qt::AccessibleTextRole:
        return inWorten(zeile);
    case Qt::ToolTipRole:
        return Einblickworte::hinweistext(inWorten(zeile));
    case Qt::TextAlignmentRole:
        return QVariant((index.column() == Name ? Qt::AlignLeft : Qt::AlignRight) |
                        Qt::AlignVCenter);
    case Balkenmaler::anteilrolle:
        return index.column() == Anteil && !zeile.angabe.istUnbekannt() ? QVariant(zeile.anteil)
                                                                        : QVariant();
    default:
        return {};
    }
}

QVariant Beitragsmodell::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) { // no head is seen beside a row; screen readers ask for it
        return role == Qt::DisplayRole ? data(index(section, Name), role) : QVariant();
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    static constexpr std::array<const char *, AnzahlSpalten> koepfe = {
        QT_TRANSLATE_NOOP("Mahlberg", "Lebensmittel"), QT_TRANSLATE_NOOP("Mahlberg", "Menge"),
        QT_TRANSLATE_NOOP("Mahlberg", "Beitrag"), QT_TRANSLATE_NOOP("Mahlberg", "Anteil")};
    return localizedString(QString::fromUtf8(koepfe.at(static_cast<std::size_t>(section))));
}
