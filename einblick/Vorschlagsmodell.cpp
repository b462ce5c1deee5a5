#include "Vorschlagsmodell.h"

#include "Einblickworte.h"
#include "Hinweisstreifen.h"
#include "Wertungswort.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

#include <cmath>

namespace {

QString zeichen(const Datenmodul &lebensmittel, Wertung wertung)
{
    const QString eines = lebensmittel.wertung(wertung);
    return eines.isEmpty() ? QStringLiteral("?") : eines;
}

/// "+ 0 - +"
QString wertungszeichen(const Datenmodul &lebensmittel)
{
    QStringList alle;
    for (const Wertungsbeschreibung &eine : wertungen) {
        alle << zeichen(lebensmittel, eine.wertung);
    }
    return alle.join(QChar(QChar::Nbsp));
}

/// The same in words: "Übergewicht: geeignet; Diabetes: neutral".
QString wertungsworte(const Datenmodul &lebensmittel)
{
    QStringList alle;
    for (const Wertungsbeschreibung &eine : wertungen) {
        const QString wort = Wertungswort::wortFuer(lebensmittel.wertung(eine.wertung));
        alle << QStringLiteral("%1: %2").arg(
            localizedString(QString::fromUtf8(eine.bezeichnung)),
            wort.isEmpty() ? localizedString(QStringLiteral("unbekannt")) : wort);
    }
    return alle.join(QStringLiteral("; "));
}

} // namespace

void Vorschlagsmodell::zeige(const QList<Vorschlag> &vorschlaege, const Speisen &speisen,
                             std::optional<Kenngroesse> ziel)
{
    beginResetModel();
    m_vorschlaege = vorschlaege;
    m_speisen = speisen;
    m_ziel = ziel;
    endResetModel();
}

int Vorschlagsmodell::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_vorschlaege.size());
}

int Vorschlagsmodell::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : AnzahlSpalten;
}

/// The name, and below it how much, or whose place it takes.
QString Vorschlagsmodell::lebensmittel(const Vorschlag &vorschlag) const
{
    const QString name = localizedString(vorschlag.speise.schluessel);
    const QString gramm = Einblickworte::gramm(vorschlag.speise.gramm);
    if (vorschlag.zeile >= 0 && vorschlag.zeile < m_speisen.size()) {
        return QStringLiteral("%1\n%2").arg(
            name,
            localizedString(QStringLiteral("%1 statt %2"))
                .arg(gramm, kurzerName(localizedString(m_speisen[vorschlag.zeile].schluessel))));
    }
    return vorschlag.angabe.isEmpty()
               ? QStringLiteral("%1\n%2").arg(name, gramm)
               : QStringLiteral("%1\n%2 (%3)").arg(name, vorschlag.angabe, gramm);
}

/// "+4,0 mg", and below it "hilft zu 80 %".
QString Vorschlagsmodell::bringt(const Vorschlag &vorschlag) const
{
    if (!m_ziel) {
        return {};
    }
    const QString vorzeichen = vorschlag.aenderung < 0 ? QStringLiteral("−") : QStringLiteral("+");
    const QString anteil =
        Einblickworte::anteil(vorschlag.geschlossen).replace(u' ', QChar(QChar::Nbsp));
    QStringList zeilen = {vorzeichen + Einblickworte::menge(*m_ziel, std::abs(vorschlag.aenderung)),
                          localizedString(QStringLiteral("hilft zu %1")).arg(anteil)};
    if (vorschlag.unbekannt > 0) {
        zeilen << Einblickworte::unbekanntes(vorschlag.unbekannt);
    }
    return zeilen.join(u'\n');
}

QVariant Vorschlagsmodell::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const Vorschlag &vorschlag = m_vorschlaege[index.row()];
    const bool gesprochen = role == Qt::AccessibleTextRole || role == Qt::ToolTipRole;
    if (role == Qt::TextAlignmentRole) {
        return QVariant(index.column() == Lebensmittel ? Qt::AlignLeft | Qt::AlignVCenter
                                                       : Qt::AlignRight | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole && !gesprochen) {
        return {};
    }
    switch (index.column()) {
    case Lebensmittel: {
        const QString text = lebensmittel(vorschlag);
        return role == Qt::ToolTipRole ? Einblickworte::hinweistext(text) : text;
    }
    case Bringt:
        return bringt(vorschlag);
    default:
        return gesprochen ? wertungsworte(*vorschlag.speise.lebensmittel)
                          : wertungszeichen(*vorschlag.speise.lebensmittel);
    }
}

QVariant Vorschlagsmodell::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) { // no head is seen beside a row; screen readers ask for it
        return role == Qt::DisplayRole ? data(index(section, Lebensmittel), role) : QVariant();
    }
    if (role == Qt::ToolTipRole && section == Wertungszeichen) {
        return localizedString(QStringLiteral("Übergewicht, Diabetes, Gicht, Herz und Kreislauf: + "
                                              "geeignet, 0 neutral, - ungeeignet"));
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    static constexpr std::array<const char *, AnzahlSpalten> koepfe = {
        QT_TRANSLATE_NOOP("Mahlberg", "Lebensmittel"), QT_TRANSLATE_NOOP("Mahlberg", "Bringt"),
        QT_TRANSLATE_NOOP("Mahlberg", "Wertung")};
    return localizedString(QString::fromUtf8(koepfe.at(static_cast<std::size_t>(section))));
}
