#include "Tagesmodell.h"

#include "Planzahlen.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <array>

namespace {

/// The nutrients that the table shows beside the foods; all others stand in the sums.
constexpr std::array gezeigte = {Naehrwert::kal, Naehrwert::protein, Naehrwert::fett,
                                 Naehrwert::kh};

/// What marks a row that counts nothing though it is meant to.
constexpr auto fraglich = "? ";

/// What marks a row whose food is another one today.
constexpr auto geaendert = " *";

std::optional<Naehrwert> naehrwertIn(int spalte)
{
    const auto stelle = static_cast<std::size_t>(spalte - Tagesmodell::Energie);
    return spalte >= Tagesmodell::Energie && stelle < gezeigte.size()
               ? std::optional(gezeigte.at(stelle))
               : std::nullopt;
}

/// Heads that leave room for the names of the foods. A rating is known by its first letter.
constexpr std::array<const char *, Tagesmodell::Fest> koepfe = {
    QT_TRANSLATE_NOOP("Mahlberg", "Lebensmittel"),
    QT_TRANSLATE_NOOP("Mahlberg", "Menge"),
    QT_TRANSLATE_NOOP("Mahlberg", "g"),
    QT_TRANSLATE_NOOP("Mahlberg", "kcal"),
    QT_TRANSLATE_NOOP("Mahlberg", "Protein (g)"),
    QT_TRANSLATE_NOOP("Mahlberg", "Fett (g)"),
    QT_TRANSLATE_NOOP("Mahlberg", "KH (g)")};

QString wertungsname(int spalte)
{
    const Wertungsbeschreibung &wertung =
        wertungen.at(static_cast<std::size_t>(spalte - Tagesmodell::Fest));
    return localizedString(QString::fromUtf8(wertung.bezeichnung));
}

QString kurzerKopf(int spalte)
{
    return spalte < Tagesmodell::Fest
               ? localizedString(QString::fromUtf8(koepfe.at(static_cast<std::size_t>(spalte))))
               : wertungsname(spalte).left(1);
}

QString langerKopf(int spalte)
{
    if (spalte >= Tagesmodell::Fest) {
        return wertungsname(spalte);
    }
    const std::optional<Naehrwert> wert = naehrwertIn(spalte);
    if (!wert) {
        return kurzerKopf(spalte);
    }
    const Naehrwertbeschreibung &eines = beschreibung(*wert);
    return QStringLiteral("%1 (%2)").arg(localizedString(QString::fromUtf8(eines.bezeichnung)),
                                         einheitszeichen(eines.einheit));
}

QString speisename(const Mahlzeitzeile &zeile)
{
    return zeile.schluessel.isNull() ? zeile.text : localizedString(zeile.schluessel);
}

} // namespace

void Tagesmodell::zeige(const Aufzeichnung &aufzeichnung, int tag, bool aenderbar)
{
    beginResetModel();
    m_aufzeichnung = aufzeichnung;
    m_tag = tag;
    m_aenderbar = aenderbar;
    m_reihen.clear();
    m_summen.clear();
    if (tag >= 0 && tag < aufzeichnung.tage.size()) {
        const QList<Mahlzeit> &mahlzeiten = aufzeichnung.tage[tag].mahlzeiten;
        for (int i = 0; i < mahlzeiten.size(); ++i) {
            m_summen.push_back(plansummen(planzeilen(mahlzeiten[i]), 0));
            const auto anzahl = static_cast<int>(mahlzeiten[i].zeilen.size());
            m_reihen << Platz{Art::Mahlzeit, i, 0};
            for (int zeile = 0; zeile < anzahl; ++zeile) {
                m_reihen << Platz{Art::Speise, i, zeile};
            }
            if (aenderbar) {
                m_reihen << Platz{Art::Eingabe, i, anzahl};
            }
        }
    }
    endResetModel();
}

std::optional<Tagesmodell::Platz> Tagesmodell::platz(int reihe) const
{
    return reihe >= 0 && reihe < m_reihen.size() ? std::optional(m_reihen[reihe]) : std::nullopt;
}

int Tagesmodell::reihe(const Platz &platz) const
{
    return static_cast<int>(m_reihen.indexOf(platz));
}

const Mahlzeitzeile *Tagesmodell::zeile(int reihe) const
{
    const std::optional<Platz> hier = platz(reihe);
    return hier && hier->art == Art::Speise
               ? &m_aufzeichnung.tage[m_tag].mahlzeiten[hier->mahlzeit].zeilen[hier->zeile]
               : nullptr;
}

bool Tagesmodell::beschreibbar(int reihe, int spalte) const
{
    const std::optional<Platz> hier = platz(reihe);
    return m_aenderbar && hier &&
           (spalte == Name || (spalte == Angabe && hier->art == Art::Speise));
}

QString Tagesmodell::eingabetext(int reihe, int spalte) const
{
    const std::optional<Platz> hier = platz(reihe);
    if (!hier || hier->art == Art::Eingabe) {
        return {};
    }
    if (hier->art == Art::Mahlzeit) {
        return spalte == Name ? mahlzeitname(m_aufzeichnung.mahlzeiten[hier->mahlzeit]) : QString();
    }
    return spalte == Name     ? speisename(*zeile(reihe))
           : spalte == Angabe ? zeile(reihe)->angabe
                              : QString();
}

int Tagesmodell::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_reihen.size());
}

int Tagesmodell::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : anzahlSpalten;
}

QString Tagesmodell::mahlzeitText(int mahlzeit, int spalte) const
{
    if (spalte == Name) {
        return mahlzeitname(m_aufzeichnung.mahlzeiten[mahlzeit]);
    }
    const Plansummen &summen = m_summen[static_cast<std::size_t>(mahlzeit)];
    const std::optional<Naehrwert> wert = naehrwertIn(spalte);
    if (summen.menge <= 0 || (!wert && spalte != Gramm)) {
        return {};
    }
    return wert ? naehrwerttext(*wert, static_cast<double>(summen.summe[stelle(*wert)]))
                : mengentext(summen.menge);
}

QString Tagesmodell::speiseText(const Mahlzeitzeile &zeile, int spalte) const
{
    switch (spalte) {
    case Name: {
        const QString name = zeile.oder
                                 ? localizedString(QStringLiteral("oder %1")).arg(speisename(zeile))
                                 : speisename(zeile);
        const QString marke =
            seitdem(zeile).isEmpty() ? QString() : QString(QLatin1String(geaendert));
        return (zeile.eintrag ? name : QLatin1String(fraglich) + name) + marke;
    }
    case Angabe:
        return zeile.gramm ? zeile.angabe : QLatin1String(fraglich) + zeile.angabe;
    case Gramm:
        return zeile.gramm ? mengentext(*zeile.gramm) : QString();
    default:
        break;
    }
    if (const std::optional<Naehrwert> wert = naehrwertIn(spalte)) {
        const auto werte = zeilenwerte(zeile);
        return werte ? naehrwerttext(*wert, static_cast<double>((*werte)[stelle(*wert)]))
                     : QString();
    }
    return zeile.eintrag ? zeile.eintrag->wertung(static_cast<Wertung>(spalte - Fest)) : QString();
}

QString Tagesmodell::erklaerung(const Mahlzeitzeile &zeile) const
{
    QStringList saetze;
    if (!zeile.eintrag) {
        saetze << localizedString(
            QStringLiteral("Ein Lebensmittel dieses Namens gibt es nicht; die Zeile zählt nicht."));
    }
    if (!zeile.gramm) {
        saetze << localizedString(
            QStringLiteral("Die Menge ist nicht zu verstehen; die Zeile zählt nicht."));
    }
    if (zeile.oder) {
        saetze << localizedString(
            QStringLiteral("Eine Wahl statt der Zeile davor; sie zählt nicht."));
    }
    const QString seither = seitdem(zeile);
    if (!seither.isEmpty()) {
        saetze << seither;
    }
    return saetze.join(u' ');
}

/// What has become of the food since its row was entered; empty when it is as it was.
QString Tagesmodell::seitdem(const Mahlzeitzeile &zeile) const
{
    switch (m_heute ? zeilenstand(zeile, m_heute) : Zeilenstand::WieHeute) {
    case Zeilenstand::Veraendert:
        return zeile.eintrag
                   ? localizedString(QStringLiteral(
                         "Das Lebensmittel hat heute andere Werte; die Zeile rechnet mit "
                         "denen, mit denen es eingetragen wurde."))
                   : localizedString(QStringLiteral(
                         "Heute gibt es das Lebensmittel; als es eingetragen wurde, stand es "
                         "in keiner Tabelle."));
    case Zeilenstand::Fort:
        return localizedString(QStringLiteral(
            "Das Lebensmittel steht in keiner Tabelle mehr; die Zeile rechnet mit den Werten, "
            "mit denen es eingetragen wurde."));
    case Zeilenstand::WieHeute:
        break;
    }
    return {};
}

/// The rows of meals can be dragged elsewhere.
Qt::ItemFlags Tagesmodell::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags bisher = QAbstractTableModel::flags(index);
    return zeile(index.row()) != nullptr ? bisher | Qt::ItemIsDragEnabled : bisher;
}

QVariant Tagesmodell::data(const QModelIndex &index, int role) const
{
    const std::optional<Platz> hier = platz(index.row());
    if (!hier) {
        return {};
    }
    const Mahlzeitzeile *eine = zeile(index.row());
    if (role == Qt::TextAlignmentRole && index.column() >= Gramm) {
        return QVariant(index.column() < Fest ? Qt::AlignRight | Qt::AlignVCenter
                                              : Qt::AlignHCenter | Qt::AlignVCenter);
    }
    if (role == Qt::DisplayRole) {
        return hier->art == Art::Mahlzeit ? mahlzeitText(hier->mahlzeit, index.column())
               : eine != nullptr          ? speiseText(*eine, index.column())
               : index.column() == Name
                   ? localizedString(QStringLiteral("Lebensmittel eintippen …"))
                   : QString();
    }
    if (role == Qt::FontRole && hier->art == Art::Mahlzeit) {
        QFont schrift;
        schrift.setBold(true);
        return schrift;
    }
    if (role == Qt::BackgroundRole && hier->art == Art::Mahlzeit) {
        return QGuiApplication::palette().brush(QPalette::AlternateBase);
    }
    if (role == Qt::ForegroundRole &&
        (hier->art == Art::Eingabe || (eine != nullptr && !zaehlt(*eine)))) {
        return QGuiApplication::palette().brush(QPalette::PlaceholderText);
    }
    if ((role == Qt::ToolTipRole || role == Qt::AccessibleDescriptionRole) && eine != nullptr) {
        return erklaerung(*eine);
    }
    return {};
}

QVariant Tagesmodell::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) { // no head is seen beside a row; screen readers ask for it
        return role == Qt::DisplayRole ? data(index(section, Name), role) : QVariant();
    }
    if (section < 0 || section >= anzahlSpalten) {
        return {};
    }
    const QString kurz = kurzerKopf(section);
    const QString lang = langerKopf(section);
    return role == Qt::DisplayRole                                     ? QVariant(kurz)
           : role == Qt::ToolTipRole || role == Qt::AccessibleTextRole ? QVariant(lang)
                                                                       : QVariant();
}
