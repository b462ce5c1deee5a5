#include "Uebernahmetabelle.h"

#include "Bedenkenworte.h"
#include "Bestandsvergleich.h"
#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QStringList>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

namespace {

constexpr int anzahlWerte = static_cast<int>(anzahlNaehrwerte);
constexpr int anzahlUrteile = static_cast<int>(anzahlWertungen);

bool waehlbar(Uebernahmetabelle::Lage lage)
{
    return lage == Uebernahmetabelle::Lage::Neu || lage == Uebernahmetabelle::Lage::Vergeben;
}

} // namespace

QString zahlwort(float zahl)
{
    constexpr int stellen = 6;
    return std::isfinite(zahl) ? zahlenform().toString(static_cast<double>(zahl), 'g', stellen)
                               : localizedString(QStringLiteral("keine Zahl"));
}

QString ueberschrift(const Naehrwertbeschreibung &zeile)
{
    return QStringLiteral("%1 (%2)").arg(localizedString(QString::fromUtf8(zeile.bezeichnung)),
                                         einheitszeichen(zeile.einheit));
}

Uebernahmetabelle::Uebernahmetabelle(QList<Datenmodul> lebensmittel, Lebensmittelbestand eigene,
                                     const Lebensmittelverzeichnis &eingebaute, QObject *parent)
    : QAbstractTableModel(parent)
    , m_eigene(std::move(eigene))
{
    for (const Datenmodul &eines : std::as_const(lebensmittel)) {
        m_zeilen << zeileFuer(eines, eingebaute);
    }
    rechneNeu();
}

Uebernahmetabelle::Zeile
Uebernahmetabelle::zeileFuer(const Datenmodul &eines,
                             const Lebensmittelverzeichnis &eingebaute) const
{
    Zeile zeile = {.lebensmittel = eines};
    const auto vorhanden = m_eigene.verzeichnis.constFind(eines.name());
    if (eines.name().isEmpty()) {
        zeile.lage = Lage::OhneNamen;
    } else if (vorhanden != m_eigene.verzeichnis.constEnd()) {
        zeile.lage = gleich(*vorhanden, eines) ? Lage::SchonDa : Lage::Vergeben;
    }
    zeile.gewaehlt = waehlbar(zeile.lage);
    zeile.wieEingebautes = eingebaute.contains(eines.name());
    QStringList saetze;
    for (const Bedenken &bedenken : bezweifeln(eines)) {
        saetze << inWorten(bedenken);
    }
    zeile.zweifel = saetze.join(u' ');
    return zeile;
}

int Uebernahmetabelle::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_zeilen.size());
}

int Uebernahmetabelle::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : spalteWerte + anzahlWerte + anzahlUrteile;
}

/// What becomes of a food, in a word or two.
QString Uebernahmetabelle::lagewort(const Zeile &zeile) const
{
    switch (zeile.lage) {
    case Lage::OhneNamen:
        return localizedString(QStringLiteral("ohne Namen: bleibt draußen"));
    case Lage::SchonDa:
        return localizedString(QStringLiteral("schon da"));
    case Lage::Neu:
        return zeile.gewaehlt ? localizedString(QStringLiteral("neu"))
                              : localizedString(QStringLiteral("bleibt draußen"));
    case Lage::Vergeben:
        break;
    }
    if (!zeile.gewaehlt) {
        return localizedString(QStringLiteral("Name vergeben: bleibt draußen"));
    }
    switch (m_wahl.fuer(zeile.lebensmittel.name())) {
    case Namensgleich::Ersetzen:
        return localizedString(QStringLiteral("Name vergeben: ersetzt Ihres"));
    case Namensgleich::NeuerName:
        return localizedString(QStringLiteral("Name vergeben: beide bleiben"));
    case Namensgleich::Ueberspringen:
        break;
    }
    return localizedString(QStringLiteral("Name vergeben: Ihres bleibt"));
}

QString Uebernahmetabelle::erklaerung(int zeile) const
{
    const Zeile &eine = m_zeilen[zeile];
    QStringList saetze;
    if (eine.wieEingebautes) {
        saetze << localizedString(
            QStringLiteral("Ein eingebautes Lebensmittel heißt ebenso. Im Plan gelten dessen "
                           "Werte."));
    }
    if (!eine.zweifel.isEmpty()) {
        saetze << eine.zweifel;
    }
    return saetze.join(u' ');
}

bool Uebernahmetabelle::erklaertEtwas() const
{
    return std::any_of(m_zeilen.begin(), m_zeilen.end(), [](const Zeile &zeile) {
        return zeile.wieEingebautes || !zeile.zweifel.isEmpty();
    });
}

QString Uebernahmetabelle::text(int zeile, int spalte) const
{
    const Zeile &eine = m_zeilen[zeile];
    if (spalte == spalteName) {
        return eine.lebensmittel.name().isEmpty() ? localizedString(QStringLiteral("(ohne Namen)"))
                                                  : localizedString(eine.lebensmittel.name());
    }
    if (spalte == spalteLage) {
        const QString wort = lagewort(eine);
        return erklaerung(zeile).isEmpty()
                   ? wort
                   : localizedString(QStringLiteral("%1, siehe unten")).arg(wort);
    }
    if (spalte < spalteWerte + anzahlWerte) {
        const auto stelle = static_cast<std::size_t>(spalte - spalteWerte);
        return zahlwort(eine.lebensmittel.wert(naehrwerte.at(stelle).wert));
    }
    const auto stelle = static_cast<std::size_t>(spalte - spalteWerte - anzahlWerte);
    return eine.lebensmittel.wertung(wertungen.at(stelle).wertung);
}

QVariant Uebernahmetabelle::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const Zeile &zeile = m_zeilen[index.row()];
    switch (role) {
    case Qt::DisplayRole:
        return text(index.row(), index.column());
    case Qt::TextAlignmentRole:
        return QVariant(index.column() < spalteWerte ? Qt::AlignLeft | Qt::AlignVCenter
                        : index.column() < spalteWerte + anzahlWerte
                            ? Qt::AlignRight | Qt::AlignVCenter
                            : Qt::AlignCenter);
    case Qt::CheckStateRole:
        return index.column() == spalteName && waehlbar(zeile.lage)
                   ? QVariant(zeile.gewaehlt ? Qt::Checked : Qt::Unchecked)
                   : QVariant();
    case Qt::ToolTipRole: // a long name is cut off in its cell
        return index.column() == spalteName
                   ? QVariant(Qt::convertFromPlainText(text(index.row(), spalteName)))
                   : QVariant();
    case Qt::AccessibleDescriptionRole:
        return index.column() <= spalteLage ? QVariant(erklaerung(index.row())) : QVariant();
    default:
        return {};
    }
}

QVariant Uebernahmetabelle::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    if (section == spalteName) {
        return localizedString(QStringLiteral("Lebensmittel"));
    }
    if (section == spalteLage) {
        return localizedString(QStringLiteral("Was daraus wird"));
    }
    if (section < spalteWerte + anzahlWerte) {
        return ueberschrift(naehrwerte.at(static_cast<std::size_t>(section - spalteWerte)));
    }
    const auto stelle = static_cast<std::size_t>(section - spalteWerte - anzahlWerte);
    return localizedString(QString::fromUtf8(wertungen.at(stelle).bezeichnung));
}

Qt::ItemFlags Uebernahmetabelle::flags(const QModelIndex &index) const
{
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    Qt::ItemFlags merkmale = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (index.column() == spalteName && waehlbar(m_zeilen[index.row()].lage)) {
        merkmale |= Qt::ItemIsUserCheckable;
    }
    return merkmale;
}

bool Uebernahmetabelle::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !flags(index).testFlag(Qt::ItemIsUserCheckable)) {
        return false;
    }
    m_zeilen[index.row()].gewaehlt = value.toInt() == Qt::Checked;
    rechneNeu();
    return true;
}

const Datenmodul *Uebernahmetabelle::eigenes(int zeile) const
{
    const auto vorhanden = m_eigene.verzeichnis.constFind(m_zeilen[zeile].lebensmittel.name());
    return vorhanden == m_eigene.verzeichnis.constEnd() ? nullptr : &*vorhanden;
}

int Uebernahmetabelle::ersterVergebener() const
{
    for (int zeile = 0; zeile < rowCount(); ++zeile) {
        if (lage(zeile) == Lage::Vergeben) {
            return zeile;
        }
    }
    return -1;
}

void Uebernahmetabelle::waehleAlle(bool an)
{
    for (Zeile &zeile : m_zeilen) {
        zeile.gewaehlt = an && waehlbar(zeile.lage);
    }
    rechneNeu();
}

void Uebernahmetabelle::entscheide(int zeile, Namensgleich was)
{
    m_wahl.einzeln[m_zeilen[zeile].lebensmittel.name()] = was;
    rechneNeu();
}

void Uebernahmetabelle::entscheideAlle(Namensgleich was)
{
    m_wahl = {.sonst = was};
    rechneNeu();
}

Namensgleich Uebernahmetabelle::entscheidung(int zeile) const
{
    return m_wahl.fuer(m_zeilen[zeile].lebensmittel.name());
}

QList<Datenmodul> Uebernahmetabelle::gewaehlte() const
{
    QList<Datenmodul> alle;
    for (const Zeile &zeile : m_zeilen) {
        if (zeile.gewaehlt) {
            alle << zeile.lebensmittel;
        }
    }
    return alle;
}

void Uebernahmetabelle::rechneNeu()
{
    m_ergebnis = uebernimm(m_eigene, gewaehlte(), m_wahl);
    if (!m_zeilen.isEmpty()) {
        Q_EMIT dataChanged(index(0, spalteName), index(rowCount() - 1, spalteLage));
    }
    Q_EMIT umentschieden();
}
