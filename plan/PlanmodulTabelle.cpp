// The plan's table: its columns, what stands in its cells, typed amounts and drops.

#include "Planmodul.h"

#include "Ganzzahl.h"
#include "Planzahlen.h"
#include "Zeichenkettentabelle.h"
#include "Zeilenhoehe.h"
#include "Zellenmaler.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QLocale>
#include <QMenu>
#include <QScopedValueRollback>
#include <QSettings>
#include <QShortcut>
#include <QStyle>

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

// A column that the user has made this narrow can still be taken hold of.
constexpr int schmalste = 8;
constexpr int breiteste = 2000;

/// Digits that a number of single precision keeps.
constexpr int bedeutsameStellen = 7;

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

const Wertungsbeschreibung *wertungVon(const QString &spalte)
{
    const auto *zeile =
        std::find_if(wertungen.begin(), wertungen.end(),
                     [&spalte](const auto &eine) { return spalte == QLatin1String(eine.kennung); });
    return zeile != wertungen.end() ? zeile : nullptr;
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

/// Where the width is kept that the user has chosen for a column.
QString breitenschluessel(const QString &spalte)
{
    return QStringLiteral("Planspalten/") + spalte;
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
    for (Spalte &spalte : spalten) {
        spalte.bearbeitbar = false;
    }
    SummenTabelle->setQuelle(&m_summenzeilen, spalten);
    for (Breittabelle *tabelle : {PlanTabelle, SummenTabelle}) {
        tabelle->setRowHeight(zeilenhoeheFuer(*tabelle, tabelle->rowHeight()));
    }
    tabellengroesse->setIntValue(PlanTabelle->rowHeight());
    SummenTabelle->folge(*PlanTabelle);
    summenreihe->setContentsMargins(
        0, 0, PlanTabelle->style()->pixelMetric(QStyle::PM_ScrollBarExtent), 0);
    stelleBreiten();
}

/// As wide as the headings, until the user has chosen another width.
void Planmodul::stelleBreiten()
{
    QHeaderView *kopf = PlanTabelle->horizontalHeader();
    kopf->setMinimumSectionSize(1); // the size control sets every width that it offers
    for (int i = 0; i < kopf->count(); ++i) {
        const QString spalte = PlanTabelle->modell()->kennung(i);
        const int gewaehlt = m_tueren.einstellungen != nullptr
                                 ? m_tueren.einstellungen->value(breitenschluessel(spalte)).toInt()
                                 : 0;
        kopf->resizeSection(i, gewaehlt >= schmalste && gewaehlt <= breiteste ? gewaehlt
                               : spalte == spalteName                         ? breiteName
                               : spalte == spalteMenge
                                   ? breiteMenge
                                   : std::max(mindestbreite, kopf->sectionSizeHint(i)));
    }
    m_namenbreiteGewaehlt = kopf->sectionSize(0) != breiteName;
    m_merktBreiten = true;
    connect(kopf, &QHeaderView::sectionResized, this, &Planmodul::merkeBreite);
    connect(PlanTabelle, &Breittabelle::breiteGeaendert, this, &Planmodul::gibNamenPlatz);
}

/// On a wide screen the longest name is read whole, before the room beside the last column stays
/// empty, and a little before the last column is seen. Who has set the width keeps it. The table
/// itself isn't asked: that would write own foods.
void Planmodul::gibNamenPlatz()
{
    if (m_namenbreiteGewaehlt || m_fenster == nullptr) {
        return;
    }
    const QScopedValueRollback vonSelbst(m_merktBreiten, false);
    const int breit = PlanTabelle->viewport()->width();
    int frei = breit;
    for (int i = 1; i < PlanTabelle->modell()->columnCount(); ++i) {
        frei -= PlanTabelle->columnWidth(i);
    }
    const QFontMetrics schrift = PlanTabelle->fontMetrics();
    int bedarf = 0;
    for (int zeile = 0; zeile < m_gezeigteNamen.size(); ++zeile) {
        bedarf = std::max(bedarf, Zellenmaler::textbreite(zeilenname(zeile), schrift));
    }
    const int hoechstens = std::max(frei, breit / 6);
    PlanTabelle->setColumnWidth(0, std::max(breiteName, std::min(hoechstens, bedarf)));
}

/// The size control sets the widths for the time being; what was chosen column by column stays.
void Planmodul::merkeBreite(int spalte)
{
    m_namenbreiteGewaehlt |= m_merktBreiten && spalte == 0;
    if (m_merktBreiten && m_tueren.einstellungen != nullptr) {
        m_tueren.einstellungen->setValue(breitenschluessel(PlanTabelle->modell()->kennung(spalte)),
                                         PlanTabelle->columnWidth(spalte));
    }
}

void Planmodul::Spaltenanpassen()
{
    if (m_fenster != nullptr) {
        PlanTabelle->passeSpaltenAn();
    }
}

/// The menu key belongs to the row on which the keyboard works, wherever the mouse lies. Not every
/// desktop has such a key, and not every one takes Shift+F10 for it.
void Planmodul::verbindeTabellenmenue()
{
    QHeaderView *kopf = PlanTabelle->horizontalHeader();
    for (QWidget *flaeche : std::initializer_list<QWidget *>{PlanTabelle, kopf}) {
        flaeche->setContextMenuPolicy(Qt::CustomContextMenu);
    }
    connect(kopf, &QWidget::customContextMenuRequested, this, [this, kopf](QPoint ort) {
        zeigeTabellenmenue(-1, kopf->viewport()->mapToGlobal(ort));
    });
    connect(PlanTabelle, &QWidget::customContextMenuRequested, this, [this](QPoint ort) {
        zeigeTabellenmenue(PlanTabelle->rowAt(ort.y()), PlanTabelle->viewport()->mapToGlobal(ort));
    });
    for (const char *tasten : {"Menu", "Shift+F10"}) {
        auto *taste = new QShortcut(QKeySequence(QLatin1String(tasten)), PlanTabelle, nullptr,
                                    nullptr, Qt::WidgetShortcut);
        connect(taste, &QShortcut::activated, this, [this] {
            PlanTabelle->scrollTo(PlanTabelle->currentIndex());
            const QRect zelle = PlanTabelle->visualRect(PlanTabelle->currentIndex());
            zeigeTabellenmenue(PlanTabelle->currentIndex().row(),
                               PlanTabelle->viewport()->mapToGlobal(zelle.center()));
        });
    }
}

/// What can be done with the row, which is selected so that one sees which it is. Below all rows,
/// and on the headings, only what concerns the whole table.
void Planmodul::zeigeTabellenmenue(int zeile, const QPoint &ort)
{
    auto *menue = new QMenu(PlanTabelle);
    menue->setAttribute(Qt::WA_DeleteOnClose);
    if (zeile >= 0 && zeile < PlanTabelle->model()->rowCount()) {
        beendeEingabe();
        PlanTabelle->selectRow(zeile);
        menue->addActions({aktionMenge, aktionEntfernen});
        menue->addSeparator();
        if (zeile > 0) {
            menue->addAction(aktionHoch);
        }
        if (zeile + 1 < PlanTabelle->model()->rowCount()) {
            menue->addAction(aktionRunter);
        }
        menue->addSeparator();
    }
    menue->addAction(aktionSpalten);
    menue->popup(ort);
}

/// Shows the rows as they are now. What changes in the lists without it is not seen before the next
/// time.
void Planmodul::reloadData()
{
    m_gezeigteNamen = PlanArray;
    m_gezeigteMengen = mengenarray;
    if (m_fenster != nullptr) {
        PlanTabelle->reloadData();
        gibNamenPlatz();
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

/// The food's name, also of one that is in no table any more.
QString Planmodul::zeilenname(int zeile)
{
    return localizedString(m_gezeigteNamen.value(zeile));
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
        bild.text = naehrwerttext(naehrwert->wert, static_cast<double>(zahl));
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
    Q_EMIT geaendert({Aenderungsart::Menge, PlanArray[zeile]});
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
    Q_EMIT geaendert({Aenderungsart::Hinein, text});
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
    const QScopedValueRollback vonSelbst(m_merktBreiten, false);
    const int groesse = std::max(1, sender.intValue());
    PlanTabelle->setRowHeight(groesse);
    const Tabellenmodell &modell = *PlanTabelle->modell();
    for (int i = 0; i < modell.columnCount(); ++i) {
        if (istWertespalte(modell.kennung(i))) {
            PlanTabelle->setColumnWidth(i, groesse);
        }
    }
    gibNamenPlatz();
}
