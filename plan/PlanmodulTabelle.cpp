// The plan's table: its columns, what stands in its cells, typed amounts and drops.

#include "Planmodul.h"

#include "Ganzzahl.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace {

const QString spalteName = QStringLiteral("name");
const QString spalteMenge = QStringLiteral("menge");

// What the notices are about.
const QString alteAnsicht = QStringLiteral("alteAnsicht");
const QString falscheMenge = QStringLiteral("falscheMenge");

constexpr int breiteName = 230;
constexpr int breiteMenge = 84;
constexpr int mindestbreite = 58; ///< room for five digits, whatever the heading

/// Digits that a number of single precision keeps.
constexpr int bedeutsameStellen = 7;

/// Digits behind the comma of a value, in the record's order. All numbers of a column have as many,
/// so that they stand under each other.
constexpr std::array<int, anzahlNaehrwerte> nachkommastellen = {0, 1, 1, 1, 1, 0, 0, 0, 0,
                                                                0, 0, 1, 0, 2, 2, 2, 1};

/// Headings of narrow columns, in the record's order.
constexpr std::array<const char *, anzahlNaehrwerte> kurzeNaehrwerte = {
    QT_TRANSLATE_NOOP("Mahlberg", "En."),  QT_TRANSLATE_NOOP("Mahlberg", "Prot"),
    QT_TRANSLATE_NOOP("Mahlberg", "Fett"), QT_TRANSLATE_NOOP("Mahlberg", "KH"),
    QT_TRANSLATE_NOOP("Mahlberg", "BS"),   QT_TRANSLATE_NOOP("Mahlberg", "Chol"),
    QT_TRANSLATE_NOOP("Mahlberg", "Na"),   QT_TRANSLATE_NOOP("Mahlberg", "Ka"),
    QT_TRANSLATE_NOOP("Mahlberg", "Ca"),   QT_TRANSLATE_NOOP("Mahlberg", "Ph"),
    QT_TRANSLATE_NOOP("Mahlberg", "Mg"),   QT_TRANSLATE_NOOP("Mahlberg", "Fe"),
    QT_TRANSLATE_NOOP("Mahlberg", "VitA"), QT_TRANSLATE_NOOP("Mahlberg", "B1"),
    QT_TRANSLATE_NOOP("Mahlberg", "B2"),   QT_TRANSLATE_NOOP("Mahlberg", "B6"),
    QT_TRANSLATE_NOOP("Mahlberg", "VitC"),
};
constexpr std::array<const char *, anzahlWertungen> kurzeWertungen = {
    QT_TRANSLATE_NOOP("Mahlberg", "Gew."),
    QT_TRANSLATE_NOOP("Mahlberg", "Diab."),
    QT_TRANSLATE_NOOP("Mahlberg", "Gicht"),
    QT_TRANSLATE_NOOP("Mahlberg", "HKK"),
};

const Naehrwertbeschreibung *naehrwertVon(const QString &spalte)
{
    const auto *zeile =
        std::find_if(naehrwerte.begin(), naehrwerte.end(),
                     [&spalte](const auto &eine) { return spalte == QLatin1String(eine.kennung); });
    return zeile != naehrwerte.end() ? zeile : nullptr;
}

const Wertungsbeschreibung *wertungVon(const QString &spalte)
{
    const auto *zeile =
        std::find_if(wertungen.begin(), wertungen.end(),
                     [&spalte](const auto &eine) { return spalte == QLatin1String(eine.kennung); });
    return zeile != wertungen.end() ? zeile : nullptr;
}

QString mengentext(float gramm)
{
    return zahlenform().toString(static_cast<double>(gramm), 'g', bedeutsameStellen);
}

Spalte wertspalte(const Naehrwertbeschreibung &zeile)
{
    const QString titel = localizedString(QString::fromUtf8(zeile.bezeichnung));
    const QString kurz = localizedString(QString::fromUtf8(kurzeNaehrwerte[stelle(zeile.wert)]));
    const QString einheit = einheitszeichen(zeile.einheit);
    return {.kennung = QLatin1String(zeile.kennung),
            .titel = titel + u'\n' + einheit,
            .kurztitel = kurz + u'\n' + einheit,
            .erklaerung = titel + QStringLiteral(", ") + einheit,
            .ausrichtung = Qt::AlignRight | Qt::AlignVCenter};
}

Spalte wertungsspalte(const Wertungsbeschreibung &zeile)
{
    const QString titel = localizedString(QString::fromUtf8(zeile.bezeichnung));
    return {.kennung = QLatin1String(zeile.kennung),
            .titel = titel,
            .kurztitel = localizedString(QString::fromUtf8(kurzeWertungen[stelle(zeile.wertung)])),
            .erklaerung = titel,
            .ausrichtung = Qt::AlignCenter};
}

bool istWertespalte(const QString &spalte)
{
    return spalte != spalteName && spalte != spalteMenge;
}

} // namespace

void Planmodul::beschrifteTabelle()
{
    QList<Spalte> spalten = {
        {.kennung = spalteName, .titel = localizedString(QStringLiteral("Lebensmittel"))},
        {.kennung = spalteMenge,
         .titel = localizedString(QStringLiteral("Menge")) + QStringLiteral("\ng"),
         .erklaerung = localizedString(QStringLiteral(
             "Menge, g. Komma und Punkt trennen beide die Nachkommastellen: 12,5 oder 12.5")),
         .ausrichtung = Qt::AlignRight | Qt::AlignVCenter,
         .bearbeitbar = true},
    };
    std::transform(naehrwerte.begin(), naehrwerte.end(), std::back_inserter(spalten), wertspalte);
    std::transform(wertungen.begin(), wertungen.end(), std::back_inserter(spalten), wertungsspalte);
    PlanTabelle->setQuelle(this, spalten);

    QHeaderView *kopf = PlanTabelle->horizontalHeader();
    kopf->setMinimumSectionSize(1); // the size control sets every width that it offers
    for (int i = 0; i < spalten.size(); ++i) {
        kopf->resizeSection(i, spalten[i].kennung == spalteName ? breiteName
                               : spalten[i].kennung == spalteMenge
                                   ? breiteMenge
                                   : std::max(mindestbreite, kopf->sectionSizeHint(i)));
    }
}

/// Shows the rows as they are now. What changes in the lists without it is not seen before the next
/// time.
void Planmodul::reloadData()
{
    m_gezeigteNamen = PlanArray;
    m_gezeigteMengen = mengenarray;
    if (m_fenster != nullptr) {
        PlanTabelle->reloadData();
        hinweise->nimmZurueck(alteAnsicht);
    }
}

int Planmodul::numberOfRows() const
{
    return static_cast<int>(PlanArray.size());
}

/// The values are those of 100 g. Asking for any of a food that is not built in sees to it that the
/// own foods stand in their file as the plan knows them.
QString Planmodul::objectValue(const QString &spalte, int zeile)
{
    if (zeile < 0 || zeile >= m_gezeigteNamen.size()) {
        return {};
    }
    if (spalte == spalteMenge) {
        return mengentext(m_gezeigteMengen[zeile]);
    }
    const QString &name = m_gezeigteNamen[zeile];
    if (!Dictionary.contains(name)) {
        schreibeEigeneLebensmittel();
    }
    const Datenmodul *eintrag = lebensmittel(name);
    if (eintrag == nullptr) {
        return {};
    }
    if (spalte == spalteName) {
        return eintrag->name();
    }
    if (const auto *naehrwert = naehrwertVon(spalte)) {
        return QLocale::c().toString(eintrag->wert(naehrwert->wert), 'g', bedeutsameStellen);
    }
    const auto *wertung = wertungVon(spalte);
    return wertung != nullptr ? eintrag->wertung(wertung->wertung) : QString();
}

Zellenbild Planmodul::willDisplayCell(const QString &spalte, int zeile, const QString &wert)
{
    Zellenbild bild;
    bild.text = wert;
    if (wert.isNull()) {
        return bild;
    }
    if (spalte == spalteName) {
        bild.text = localizedString(wert);
    } else if (const auto *naehrwert = naehrwertVon(spalte)) {
        const Datenmodul *eintrag = lebensmittel(m_gezeigteNamen.value(zeile));
        const float zahl = eintrag != nullptr ? eintrag->wert(naehrwert->wert) *
                                                    (m_gezeigteMengen.value(zeile) / 100.0F)
                                              : 0.0F;
        bild.text = std::isfinite(zahl) ? wertText(static_cast<double>(zahl),
                                                   nachkommastellen[stelle(naehrwert->wert)])
                                        : QStringLiteral("-"); // it ran over
    }
    return bild;
}

QString Planmodul::writeRows(const QString & /*spalte*/, int zeile)
{
    return m_gezeigteNamen.value(zeile);
}

void Planmodul::setObjectValue(const QString &spalte, int zeile, const QString &text)
{
    const auto gramm = static_cast<float>(zahlAusText(text));
    if (spalte == spalteMenge && !std::isfinite(gramm)) {
        weiseMengeZurueck(zeile, text);
        return;
    }
    if (spalte != spalteMenge || !mengeAendern(zeile, gramm)) {
        return;
    }
    if (zeile < m_gezeigteNamen.size()) {
        m_gezeigteNamen[zeile] = PlanArray[zeile];
        m_gezeigteMengen[zeile] = mengenarray[zeile];
    }
    hinweise->nimmZurueck(falscheMenge);
    folgeAuswahl();
    schreibePlan();
    datenberechnen();
}

/// With an amount that no number can hold the whole plan would be infinite.
void Planmodul::weiseMengeZurueck(int zeile, const QString &text)
{
    constexpr int lesezeit = 10000; // milliseconds
    const QString satz =
        localizedString(QStringLiteral("„%1“ ist keine Menge. Es bleibt bei %2 g."));
    hinweise->zeige(
        {.kennung = falscheMenge,
         .text = satz.arg(kurzerName(text.trimmed()), mengentext(m_gezeigteMengen.value(zeile))),
         .dauer = lesezeit});
}

/// On a row means behind it.
std::optional<int> Planmodul::validateDrop(int zeile, bool auf)
{
    return auf ? zeile + 1 : zeile;
}

void Planmodul::acceptDrop(int zeile, const QString &text)
{
    beendeEingabe();
    if (einsetzen(text, zeile)) {
        uebernimmAenderung();
    } else {
        zeigeAnsichtshinweis();
    }
}

/// A drop that ended on its way has changed the rows, and the table does not show it. Whoever
/// removes or changes a row now has to know which food that is.
void Planmodul::zeigeAnsichtshinweis()
{
    if (m_gezeigteNamen == PlanArray && m_gezeigteMengen == mengenarray) {
        hinweise->nimmZurueck(alteAnsicht);
        return;
    }
    const int gewaehlt = PlanTabelle->selectedRow();
    const QString satz =
        gewaehlt < 0 ? localizedString(QStringLiteral("Die Zeilen stehen für andere Lebensmittel."))
        : gewaehlt < PlanArray.size()
            ? localizedString(QStringLiteral("Die ausgewählte Zeile steht für „%1“."))
                  .arg(kurzerName(localizedString(PlanArray[gewaehlt])))
            : localizedString(QStringLiteral("Die ausgewählte Zeile gibt es nicht mehr."));
    const QString anfang =
        localizedString(QStringLiteral("Die Tabelle zeigt den Plan vor dem letzten Verschieben."));
    hinweise->zeige({.kennung = alteAnsicht,
                     .text = anfang + u' ' + satz,
                     .knopf = localizedString(QStringLiteral("Plan neu zeigen")),
                     .aktion = [this] { reloadData(); },
                     .warnung = true});
}

/// A notice that the user has closed does not come back for another row.
void Planmodul::folgeAuswahl()
{
    if (hinweise->zeigt(alteAnsicht)) {
        zeigeAnsichtshinweis();
    }
}

void Planmodul::tabgroesseaendern(const Wertehalter &sender)
{
    if (m_fenster == nullptr) {
        return;
    }
    const int groesse = std::max(1, sender.intValue());
    PlanTabelle->setRowHeight(groesse);
    const Tabellenmodell &modell = *PlanTabelle->modell();
    for (int i = 0; i < modell.columnCount(); ++i) {
        if (istWertespalte(modell.kennung(i))) {
            PlanTabelle->setColumnWidth(i, groesse);
        }
    }
}
