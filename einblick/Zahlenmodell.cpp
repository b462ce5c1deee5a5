#include "Zahlenmodell.h"

#include "Einblickworte.h"
#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

#include <array>

namespace {

QString wort(const char *schluessel)
{
    return localizedString(QString::fromUtf8(schluessel));
}

/// The word for a value of an enumeration. The first one says that there is nothing to tell, and
/// has none.
template <typename Art, std::size_t anzahl>
QString wortFuer(Art welche, const std::array<const char *, anzahl> &worte)
{
    const auto stelle = static_cast<std::size_t>(welche);
    return stelle == 0 ? QString() : wort(worte.at(stelle));
}

QString menge(Tagesgroesse groesse, double wert)
{
    return QStringLiteral("%1 %2").arg(wertText(wert, beschreibung(groesse).stellen),
                                       einheitVon(groesse));
}

/// A limit is written with the digits that it was published with, and never apart from its unit.
QString grenzmenge(const Grenzwert &grenze)
{
    return zahlenform().toString(grenze.wert, 'g', QLocale::FloatingPointShortest) +
           QChar(QChar::Nbsp) + einheitVon(grenze.groesse);
}

QString name(const Tageszahl &zahl)
{
    return zahl.mahlzeit.isNull()
               ? nameVon(zahl.groesse)
               : QStringLiteral("%1: %2").arg(nameVon(zahl.groesse), zahl.mahlzeit);
}

QString wert(const Tageszahl &zahl)
{
    if (zahl.wert) {
        return menge(zahl.groesse, *zahl.wert);
    }
    return zahl.unbekannt > 0 ? localizedString(QStringLiteral("unbekannt")) : QStringLiteral("–");
}

/// "höchstens 300 mg (streng purinarm)"
QString grenztext(const Grenzwert &grenze)
{
    static constexpr std::array<const char *, 3> arten = {
        QT_TRANSLATE_NOOP("Mahlberg", "höchstens %1 (%2)"),
        QT_TRANSLATE_NOOP("Mahlberg", "unter %1 (%2)"),
        QT_TRANSLATE_NOOP("Mahlberg", "mindestens %1 (%2)")};
    const QString wofuer = wort(grenze.worte);
    if (grenze.wert == 0) {
        return localizedString(QStringLiteral("gar nichts (%1)")).arg(wofuer);
    }
    return wort(arten.at(static_cast<std::size_t>(grenze.art))).arg(grenzmenge(grenze), wofuer);
}

QString urteilswort(Grenzurteil urteil)
{
    static constexpr std::array<const char *, 4> worte = {
        "", QT_TRANSLATE_NOOP("Mahlberg", "eingehalten"),
        QT_TRANSLATE_NOOP("Mahlberg", "nicht eingehalten"),
        QT_TRANSLATE_NOOP("Mahlberg", "offen, weil nicht alles bekannt ist")};
    return wortFuer(urteil, worte);
}

/// Why there is no limit.
QString mangelwort(Grenzmangel mangel)
{
    static constexpr std::array<const char *, 4> worte = {
        "", QT_TRANSLATE_NOOP("Mahlberg", "Eine Grenze hat niemand veröffentlicht."),
        QT_TRANSLATE_NOOP("Mahlberg", "Die Grenze hängt vom Geschlecht ab, und das fehlt."),
        QT_TRANSLATE_NOOP("Mahlberg", "Für dieses Alter ist keine Grenze veröffentlicht.")};
    return wortFuer(mangel, worte);
}

/// What a figure counts, where its name does not say it. In the order of `Tagesgroesse`.
constexpr std::array<const char *, anzahlTagesgroessen> erklaerungen = {
    QT_TRANSLATE_NOOP("Mahlberg", "So viel Harnsäure entsteht aus den Purinen."),
    QT_TRANSLATE_NOOP("Mahlberg", "Eine Broteinheit sind 12 g verwertbare Kohlenhydrate."),
    "",
    QT_TRANSLATE_NOOP("Mahlberg", "So viel wäre es an sieben solchen Tagen."),
    QT_TRANSLATE_NOOP("Mahlberg", "Das Wasser in Getränken und Speisen zusammen."),
    "",
    "",
    QT_TRANSLATE_NOOP("Mahlberg", "Aus dem Natrium: das 2,5-Fache."),
    QT_TRANSLATE_NOOP("Mahlberg", "Alles außer Getränken; Milch zählt als Speise."),
    "",
    QT_TRANSLATE_NOOP("Mahlberg", "Aller Zucker, auch der in Obst und Milch."),
    QT_TRANSLATE_NOOP("Mahlberg",
                      "Ohne den Zucker, den Obst, Gemüse und Milch von Natur aus enthalten. Der "
                      "Anteil ist aus der Art der Lebensmittel geschätzt."),
};

QString purinwort(Purinklasse klasse)
{
    static constexpr std::array<const char *, 3> worte = {
        QT_TRANSLATE_NOOP("Mahlberg", "%1 (wenig Purine)"),
        QT_TRANSLATE_NOOP("Mahlberg", "%1 (mäßig viele Purine)"),
        QT_TRANSLATE_NOOP("Mahlberg", "%1 (viele Purine)")};
    return wort(worte.at(static_cast<std::size_t>(klasse)));
}

/// A figure's name, its limits, and of how much it is unknown.
QList<Zahlenmodell::Zeile> angabe(const Tageszahl &zahl)
{
    QList<Zahlenmodell::Zeile> zeilen = {{.text = name(zahl)}};
    for (const Grenzvergleich &einer : zahl.grenzen) {
        zeilen << Zahlenmodell::Zeile{grenztext(*einer.grenze), true, einer.urteil};
    }
    if (zahl.wert && zahl.unbekannt > 0) {
        zeilen << Zahlenmodell::Zeile{.text = Einblickworte::unbekanntes(zahl.unbekannt)};
    }
    return zeilen;
}

QList<Zahlenmodell::Zeile> zeilen(const Tageszahl &zahl, int spalte)
{
    return spalte == Zahlenmodell::Angabe ? angabe(zahl)
                                          : QList<Zahlenmodell::Zeile>{{.text = wert(zahl)}};
}

/// The same for those who can't see signs and colours.
QString inWorten(const QList<Zahlenmodell::Zeile> &zeilen)
{
    QStringList teile;
    for (const Zahlenmodell::Zeile &eine : zeilen) {
        const QString urteil = urteilswort(eine.urteil);
        teile << (urteil.isEmpty() ? eine.text : QStringLiteral("%1: %2").arg(eine.text, urteil));
    }
    return teile.join(QStringLiteral("; "));
}

} // namespace

void Zahlenmodell::zeige(const QList<Tageszahl> &zahlen, const Stoffwissen &wissen)
{
    beginResetModel();
    m_zahlen = zahlen;
    m_wissen = wissen;
    endResetModel();
}

int Zahlenmodell::zeileVon(const QString &name) const
{
    const QModelIndexList gefunden = match(index(0, Angabe), Qt::DisplayRole, name, 1,
                                           Qt::MatchExactly | Qt::MatchCaseSensitive);
    return gefunden.isEmpty() ? -1 : gefunden.first().row();
}

void Zahlenmodell::folgeSprache()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, AnzahlSpalten - 1);
    if (!m_zahlen.isEmpty()) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, AnzahlSpalten - 1));
    }
}

int Zahlenmodell::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_zahlen.size());
}

int Zahlenmodell::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : AnzahlSpalten;
}

/// The foods that have no figure, all of them.
QString Zahlenmodell::unbekannte(const Tageszahl &zahl) const
{
    QStringList namen;
    for (const QString &schluessel : zahl.unbekannte) {
        const Zusatzwerte *const zusatz = m_wissen.zusatz(schluessel);
        const QString name = localizedString(schluessel);
        const bool mitKlasse =
            zahl.groesse == Tagesgroesse::Purine && zusatz != nullptr && zusatz->purinklasse;
        namen << (mitKlasse ? purinwort(*zusatz->purinklasse).arg(name) : name);
    }
    return namen.join(QStringLiteral("; "));
}

QString Zahlenmodell::einzelheiten(const Tageszahl &zahl) const
{
    QStringList zeilen = {QStringLiteral("%1: %2").arg(name(zahl), wert(zahl))};
    const char *erklaerung = erklaerungen.at(static_cast<std::size_t>(zahl.groesse));
    if (*erklaerung != '\0') {
        zeilen << wort(erklaerung);
    }
    for (const Grenzvergleich &einer : zahl.grenzen) {
        const QString urteil = urteilswort(einer.urteil);
        const QString quelle = QString::fromUtf8(grenzquelle(einer.grenze->schluessel)->angabe);
        const QString grenze = grenztext(*einer.grenze);
        zeilen << localizedString(QStringLiteral("Grenze: %1"))
                      .arg(urteil.isEmpty() ? grenze : QStringLiteral("%1, %2").arg(grenze, urteil))
               << localizedString(QStringLiteral("Quelle: %1")).arg(quelle);
    }
    if (zahl.mangel != Grenzmangel::Keiner) {
        zeilen << mangelwort(zahl.mangel);
    }
    if (zahl.unbekannt > 0) {
        zeilen << localizedString(QStringLiteral("Unbekannt bei %1 der Menge: %2"))
                      .arg(Einblickworte::anteil(zahl.unbekannt), unbekannte(zahl));
    }
    return zeilen.join(u'\n');
}

QVariant Zahlenmodell::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const Tageszahl &zahl = m_zahlen[index.row()];
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == Angabe ? name(zahl) : wert(zahl);
    case Qt::AccessibleTextRole:
        return inWorten(zeilen(zahl, index.column()));
    case Qt::ToolTipRole:
        return Einblickworte::hinweistext(einzelheiten(zahl));
    case einzelheitenrolle:
        return einzelheiten(zahl);
    case zeilenrolle:
        return QVariant::fromValue(zeilen(zahl, index.column()));
    default:
        return {};
    }
}

QVariant Zahlenmodell::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) { // no head is seen beside a row; screen readers ask for it
        return role == Qt::DisplayRole ? data(index(section, Angabe), role) : QVariant();
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    static constexpr std::array<const char *, AnzahlSpalten> koepfe = {
        QT_TRANSLATE_NOOP("Mahlberg", "Wert"), QT_TRANSLATE_NOOP("Mahlberg", "Menge")};
    return wort(koepfe.at(static_cast<std::size_t>(section)));
}
