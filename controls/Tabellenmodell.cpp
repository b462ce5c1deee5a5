#include "Tabellenmodell.h"

Zellenbild Tabellenquelle::willDisplayCell(const QString &, int, const QString &wert)
{
    Zellenbild bild;
    bild.text = wert;
    return bild;
}

QString Tabellenquelle::writeRows(const QString &, int)
{
    return {};
}

Tabellenmodell::Tabellenmodell(QObject *parent) : QAbstractTableModel(parent) {}

void Tabellenquelle::setObjectValue(const QString &, int, const QString &) {}

std::optional<int> Tabellenquelle::validateDrop(int, bool)
{
    return std::nullopt;
}

void Tabellenquelle::acceptDrop(int, const QString &) {}

QString Tabellenquelle::zeilenname(int zeile)
{
    return QString::number(zeile + 1);
}

void Tabellenmodell::setQuelle(Tabellenquelle *quelle, const QList<Spalte> &spalten)
{
    beginResetModel();
    m_quelle = quelle;
    m_spalten = spalten;
    m_zeilen = 0;
    endResetModel();
    reloadData();
}

/// Rows come and go at the end, so the selection stays where it is.
void Tabellenmodell::reloadData()
{
    const int neu = m_quelle != nullptr ? m_quelle->numberOfRows() : 0;
    if (neu > m_zeilen) {
        beginInsertRows({}, m_zeilen, neu - 1);
        m_zeilen = neu;
        endInsertRows();
    } else if (neu < m_zeilen) {
        beginRemoveRows({}, neu, m_zeilen - 1);
        m_zeilen = neu;
        endRemoveRows();
    }
}

void Tabellenmodell::setTitel(const QString &kennung, const QString &titel,
                              const QString &kurztitel)
{
    const int stelle = spaltenstelle(kennung);
    if (stelle >= 0) {
        m_spalten[stelle].titel = titel;
        m_spalten[stelle].kurztitel = kurztitel;
        Q_EMIT headerDataChanged(Qt::Horizontal, stelle, stelle);
    }
}

void Tabellenmodell::beschrifteNeu(const std::function<QString(const QString &)> &worte)
{
    for (Spalte &spalte : m_spalten) {
        for (QString *text : {&spalte.titel, &spalte.kurztitel, &spalte.erklaerung}) {
            *text = worte(*text);
        }
    }
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

QString Tabellenmodell::kennung(int spalte) const
{
    return spalte >= 0 && spalte < m_spalten.size() ? m_spalten[spalte].kennung : QString();
}

int Tabellenmodell::spaltenstelle(const QString &kennung) const
{
    for (int i = 0; i < m_spalten.size(); ++i) {
        if (m_spalten[i].kennung == kennung) {
            return i;
        }
    }
    return -1;
}

Zellenbild Tabellenmodell::bild(const QModelIndex &index) const
{
    if (m_quelle == nullptr || !index.isValid()) {
        return {};
    }
    const QString spalte = kennung(index.column());
    return m_quelle->willDisplayCell(spalte, index.row(),
                                     m_quelle->objectValue(spalte, index.row()));
}

QString Tabellenmodell::ziehtext(int spalte, int zeile) const
{
    if (m_quelle == nullptr || zeile < 0 || zeile >= m_zeilen || kennung(spalte).isNull()) {
        return {};
    }
    return m_quelle->writeRows(kennung(spalte), zeile);
}

int Tabellenmodell::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_zeilen;
}

int Tabellenmodell::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_spalten.size());
}

/// What stands in the cell is what is painted there; what the user edits is the value behind it.
QVariant Tabellenmodell::data(const QModelIndex &index, int role) const
{
    if (m_quelle == nullptr || !index.isValid() || index.row() >= m_zeilen) {
        return {};
    }
    const QString spalte = kennung(index.column());
    if (role == Qt::DisplayRole || role == Qt::EditRole) {
        const QString wert = m_quelle->objectValue(spalte, index.row());
        if (wert.isNull()) {
            return {};
        }
        return role == Qt::EditRole ? wert
                                    : m_quelle->willDisplayCell(spalte, index.row(), wert).text;
    }
    if (role == Qt::ToolTipRole || role == Qt::AccessibleDescriptionRole) {
        const QString erklaerung = bild(index).erklaerung;
        return erklaerung.isNull() ? QVariant() : QVariant(erklaerung);
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(m_spalten[index.column()].ausrichtung);
    }
    return {};
}

bool Tabellenmodell::setData(const QModelIndex &index, const QVariant &wert, int role)
{
    if (role != Qt::EditRole || (flags(index) & Qt::ItemIsEditable) == 0) {
        return false;
    }
    m_quelle->setObjectValue(kennung(index.column()), index.row(), wert.toString());
    // One value moves others of its row with it.
    Q_EMIT dataChanged(index.siblingAtColumn(0), index.siblingAtColumn(columnCount() - 1));
    return true;
}

/// No row shows its name; a screen reader asks for it here.
QVariant Tabellenmodell::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical && role == Qt::DisplayRole && m_quelle != nullptr &&
        section >= 0 && section < m_zeilen) {
        return m_quelle->zeilenname(section);
    }
    if (orientation != Qt::Horizontal || section < 0 || section >= m_spalten.size()) {
        return {};
    }
    const Spalte &spalte = m_spalten[section];
    const auto wennVorhanden = [](const QString &text) {
        return text.isNull() ? QVariant() : QVariant(text);
    };
    switch (role) {
    case Qt::DisplayRole:
        return spalte.titel;
    case Qt::ToolTipRole:
        return wennVorhanden(spalte.erklaerung);
    case kurztitelrolle:
        return wennVorhanden(spalte.kurztitel);
    default:
        return {};
    }
}

Qt::ItemFlags Tabellenmodell::flags(const QModelIndex &index) const
{
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    const Qt::ItemFlags jede = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled;
    return m_spalten[index.column()].bearbeitbar ? jede | Qt::ItemIsEditable : jede;
}

QStringList Tabellenmodell::mimeTypes() const
{
    return {QStringLiteral("text/plain")};
}
