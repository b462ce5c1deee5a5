#include "Klientenmodell.h"

#include "Zeichenkettentabelle.h"

#include <algorithm>

namespace {

enum Spalte { spalteName, spalteNummer, anzahlSpalten };

/// Who is out of the daily list is told from the others in words.
QString namensworte(const Personenzeile &person)
{
    return person.archiviert ? localizedString(QStringLiteral("%1 (archiviert)")).arg(person.name)
                             : person.name;
}

} // namespace

void Klientenmodell::setze(const QList<Personenzeile> &personen)
{
    beginResetModel();
    m_personen = personen;
    endResetModel();
}

QString Klientenmodell::kennung(int zeile) const
{
    return zeile >= 0 && zeile < m_personen.size() ? m_personen[zeile].kennung : QString();
}

int Klientenmodell::zeileVon(const QString &kennung) const
{
    const auto stelle =
        std::find_if(m_personen.begin(), m_personen.end(),
                     [&](const Personenzeile &person) { return person.kennung == kennung; });
    return stelle != m_personen.end() ? static_cast<int>(stelle - m_personen.begin()) : -1;
}

int Klientenmodell::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_personen.size());
}

int Klientenmodell::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : anzahlSpalten;
}

QVariant Klientenmodell::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_personen.size()) {
        return {};
    }
    const Personenzeile &person = m_personen[index.row()];
    const bool name = index.column() == spalteName;
    if (role == Qt::DisplayRole) {
        return name ? namensworte(person) : person.nummer;
    }
    if (role == Qt::ToolTipRole && name) {
        return person.name.toHtmlEscaped(); // a long one is cut off in the list
    }
    return {};
}

QVariant Klientenmodell::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return section == spalteName ? localizedString(QStringLiteral("Name"))
                                 : localizedString(QStringLiteral("Nummer"));
}
