#include "Rangmodell.h"

#include "Balkenmaler.h"
#include "Einblickworte.h"
#include "Rangworte.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

constexpr int ohneRang = 0;

} // namespace

void Rangmodell::zeige(const Stand &stand)
{
    beginResetModel();
    m_stand = stand;
    m_hoechster = 0;
    for (const Rangplatz &platz : std::as_const(m_stand.liste.plaetze)) {
        m_hoechster = std::max(m_hoechster, platz.wert.wert);
    }
    ordne();
    endResetModel();
}

/// Ranked foods by the column, then the others, which may have a figure nonetheless: a range asks
/// for another.
void Rangmodell::ordne()
{
    m_zeilen = m_stand.liste.plaetze;
    if (m_spalte != Rang) {
        std::ranges::stable_sort(m_zeilen, [this](const Rangplatz &a, const Rangplatz &b) {
            return m_folge == Qt::AscendingOrder ? zahl(a) < zahl(b) : zahl(a) > zahl(b);
        });
    } else if (m_folge == Qt::DescendingOrder) {
        std::ranges::reverse(m_zeilen);
    }
    for (const qsizetype stelle : m_stand.liste.ohneAngabe + m_stand.liste.ohnePortion) {
        m_zeilen.append({.stelle = stelle,
                         .rang = ohneRang,
                         .wert = bezugswert(m_stand.kandidaten[stelle], m_stand.frage.groesse,
                                            m_stand.frage.bezug, m_stand.wissen)});
    }
}

/// By what a row is sorted.
double Rangmodell::zahl(const Rangplatz &platz) const
{
    switch (m_spalte) {
    case Name:
        return static_cast<double>(platz.stelle); // they stand in the order of their names
    case Portion:
        return m_stand.kandidaten[platz.stelle].portion.value_or(0);
    default:
        return platz.wert.wert;
    }
}

void Rangmodell::sort(int spalte, Qt::SortOrder folge)
{
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList vorher = persistentIndexList();
    QList<qsizetype> stellen;
    for (const QModelIndex &einer : vorher) {
        stellen << stelle(einer.row());
    }
    m_spalte = spalte;
    m_folge = folge;
    ordne();
    QModelIndexList nachher;
    for (qsizetype i = 0; i < vorher.size(); ++i) {
        nachher << index(reihe(stellen[i]), vorher[i].column());
    }
    changePersistentIndexList(vorher, nachher);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void Rangmodell::setzeGewaehlte(const QSet<qsizetype> &gewaehlte)
{
    m_gewaehlte = gewaehlte;
    if (!m_zeilen.isEmpty()) {
        Q_EMIT dataChanged(index(0, Name), index(rowCount() - 1, Name), {Qt::CheckStateRole});
    }
}

void Rangmodell::folgeSprache()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, AnzahlSpalten - 1);
    if (!m_zeilen.isEmpty()) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, AnzahlSpalten - 1));
    }
}

qsizetype Rangmodell::stelle(int reihe) const
{
    return reihe >= 0 && reihe < m_zeilen.size() ? m_zeilen[reihe].stelle : -1;
}

int Rangmodell::reihe(qsizetype stelle) const
{
    const auto zeile = std::ranges::find(m_zeilen, stelle, &Rangplatz::stelle);
    return zeile != m_zeilen.end() ? static_cast<int>(zeile - m_zeilen.begin()) : -1;
}

std::optional<std::pair<QString, bool>> Rangmodell::wer(int reihe) const
{
    if (reihe < 0 || reihe >= m_zeilen.size()) {
        return std::nullopt;
    }
    const Kandidat &einer = m_stand.kandidaten[m_zeilen[reihe].stelle];
    return std::pair(einer.schluessel, einer.eigen);
}

int Rangmodell::reiheVon(const std::pair<QString, bool> &wen) const
{
    int reihe = 0;
    while (reihe < m_zeilen.size() && wer(reihe) != wen) {
        ++reihe;
    }
    return reihe < m_zeilen.size() ? reihe : -1;
}

int Rangmodell::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_zeilen.size());
}

int Rangmodell::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : AnzahlSpalten;
}

bool Rangmodell::hatAnteil(const Rangplatz &platz) const
{
    return platz.rang != ohneRang && m_hoechster > 0;
}

QString Rangmodell::text(const Rangplatz &platz, int spalte) const
{
    switch (spalte) {
    case Rang:
        return platz.rang == ohneRang ? QStringLiteral("–") : QString::number(platz.rang);
    case Name:
        return localizedString(m_stand.kandidaten[platz.stelle].schluessel);
    case Portion:
        return Rangworte::portionsworte(m_stand.portionen[platz.stelle]);
    case Wert:
        return Rangworte::wert(m_stand.frage.groesse, platz.wert);
    default:
        return hatAnteil(platz) ? Einblickworte::anteil(platz.wert.wert / m_hoechster) : QString();
    }
}

/// What stands in the row, for those who can't see its bar and for names that are cut off.
QString Rangmodell::inWorten(const Rangplatz &platz) const
{
    QStringList teile = {platz.rang == ohneRang
                             ? localizedString(QStringLiteral("ohne Rang, eine Angabe fehlt"))
                             : localizedString(QStringLiteral("Rang %1")).arg(platz.rang),
                         text(platz, Wert)};
    if (m_stand.frage.bezug == Bezug::JePortion) {
        teile << text(platz, Portion);
    }
    if (m_gewaehlte.contains(platz.stelle)) {
        teile << localizedString(QStringLiteral("zum Vergleich angehakt"));
    }
    teile.removeAll(QString());
    return QStringLiteral("%1: %2").arg(text(platz, Name), teile.join(QStringLiteral(", ")));
}

QVariant Rangmodell::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const Rangplatz &platz = m_zeilen[index.row()];
    switch (role) {
    case Qt::DisplayRole:
        return text(platz, index.column());
    case Qt::AccessibleTextRole:
        return inWorten(platz);
    case Qt::ToolTipRole:
        return Einblickworte::hinweistext(inWorten(platz));
    case Qt::TextAlignmentRole:
        return QVariant(
            (index.column() == Name || index.column() == Portion ? Qt::AlignLeft : Qt::AlignRight) |
            Qt::AlignVCenter);
    case Qt::CheckStateRole:
        return index.column() == Name
                   ? QVariant(m_gewaehlte.contains(platz.stelle) ? Qt::Checked : Qt::Unchecked)
                   : QVariant();
    case Balkenmaler::anteilrolle:
        return index.column() == Anteil && hatAnteil(platz)
                   ? QVariant(platz.wert.wert / m_hoechster)
                   : QVariant();
    default:
        return {};
    }
}

/// Whoever takes foods for comparing decides whether there is room for one more.
bool Rangmodell::setData(const QModelIndex &index, const QVariant &wert, int role)
{
    if (!index.isValid() || role != Qt::CheckStateRole || index.column() != Name) {
        return false;
    }
    Q_EMIT wahlGewuenscht(m_zeilen[index.row()].stelle, wert.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags Rangmodell::flags(const QModelIndex &index) const
{
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    const Qt::ItemFlags jede = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return index.column() == Name ? jede | Qt::ItemIsUserCheckable : jede;
}

QVariant Rangmodell::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) { // no head is seen beside a row; screen readers ask for it
        return role == Qt::DisplayRole ? data(index(section, Name), role) : QVariant();
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    static constexpr std::array<const char *, AnzahlSpalten> koepfe = {
        QT_TRANSLATE_NOOP("Mahlberg", "Rang"), QT_TRANSLATE_NOOP("Mahlberg", "Lebensmittel"),
        QT_TRANSLATE_NOOP("Mahlberg", "Portion"), QT_TRANSLATE_NOOP("Mahlberg", "Gehalt"),
        QT_TRANSLATE_NOOP("Mahlberg", "vom Höchsten")};
    return localizedString(QString::fromUtf8(koepfe.at(static_cast<std::size_t>(section))));
}
