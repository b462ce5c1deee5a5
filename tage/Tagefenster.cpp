#include "Tagefenster.h"

#include "Aufzeichnungsaenderung.h"
#include "Rollbereich.h"
#include "Schriftplatz.h"
#include "Schriftstufe.h"
#include "Tabellenkopie.h"
#include "Tagesauswertungsfenster.h"
#include "Zeichenkettentabelle.h"
#include "Zeilenhoehe.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QScopedValueRollback>

#include <array>
#include <utility>

namespace {

constexpr int breiterAlsJederSchirm = 10000;

const QString hinweisNeuere = QStringLiteral("neuere");

constexpr int zeilenhoehe = 24;
constexpr int summenluft = 3; // above and below the letters of a row of sums, together
// How many digits are as wide as the widest that stands in a column.
constexpr int ziffern = 7;
constexpr int zeichenEinerAngabe = 16;
constexpr int zeichenEinerWertung = 3;
constexpr int zeichenEinesAnteils = 5;
/// No client was recorded before it; stands for days of no certain date.
const QDate ohneDatum(1900, 1, 1);

/// The two kinds, in their order.
constexpr std::array<const char *, 2> arten = {QT_TRANSLATE_NOOP("Mahlberg", "Protokoll"),
                                               QT_TRANSLATE_NOOP("Mahlberg", "Wochenplan")};

/// Who types in the middle of a text goes on there.
void schreibe(QLineEdit &feld, const QString &text)
{
    if (feld.text() != text) {
        feld.setText(text);
    }
}

/// How a record is called in the list of all.
QString aufzeichnungsname(const Aufzeichnung &eine)
{
    const QString art =
        localizedString(QString::fromUtf8(arten.at(static_cast<std::size_t>(eine.art))));
    const QString titel = eine.titel.trimmed().isEmpty() ? art : eine.titel.trimmed();
    return eine.datum.isValid() ? QStringLiteral("%1, %2").arg(
                                      titel, QLocale().toString(eine.datum, QLocale::ShortFormat))
                                : titel;
}

} // namespace

Tagefenster::Tagefenster(Aufzeichnungsablage &ablage, Tagetueren tueren)
    : TagefensterGestalt()
    , buch(ablage)
    , m_tueren(std::move(tueren))
{
    setupUi(this);
    for (const char *eine : arten) {
        art->addItem(localizedString(QString::fromUtf8(eine)));
    }
    datum->setMinimumDate(ohneDatum);
    // Qt leaves no room for the words beside the arrow.
    datum->setMinimumWidth(datum->sizeHint().width() + 2 * fontMetrics().averageCharWidth());
    tagezahl->setMaximum(meisteTage);
    baueTabellen();
    baueMenue();
    begruendeSperren();
    teiler->setStretchFactor(0, 1); // the names of the foods get what there is room for
    teiler->setSizes({breiterAlsJederSchirm, 1});
    fusszeile->setMinimumHeight(hinweise->zweizeilig());
    hinweise->vertritt(fusszeile);
    verbinde();
    Schriftstufe::kleide(*this);
    Schriftplatz::gib(*this);
    zeigeAuswahl();
}

Tagefenster::~Tagefenster()
{
    sichere();
}

void Tagefenster::baueTabellen()
{
    ansicht->setVorschlaege([this](int reihe, int spalte, const QString &text) {
        return vorschlaege(reihe, spalte, text);
    });
    ansicht->verticalHeader()->setDefaultSectionSize(zeilenhoeheFuer(*ansicht, zeilenhoehe));
    summen->setModel(&m_summen);
    summen->setSelectionMode(QAbstractItemView::NoSelection);
    // As low as its letters, so that all values are seen on a small screen with the pictures below.
    const int niedrig = summen->verticalHeader()->fontMetrics().height() + summenluft;
    summen->verticalHeader()->setMinimumSectionSize(niedrig);
    summen->verticalHeader()->setDefaultSectionSize(niedrig);
    summen->horizontalHeader()->setHighlightSections(false);
    Tabellenkopie::ermoegliche(*summen);
    messeSpalten();
    Rollbereich::fasse(*rechteSeite);
}

/// Each column holds its head and its widest number, and nothing moves while one types.
void Tagefenster::messeSpalten()
{
    const int ziffer = fontMetrics().horizontalAdvance(u'0');
    QHeaderView &kopf = *ansicht->horizontalHeader();
    kopf.setMinimumSectionSize(ziffer);
    for (int spalte = Tagesmodell::Angabe; spalte < Tagesmodell::anzahlSpalten; ++spalte) {
        const int zeichen = spalte == Tagesmodell::Angabe ? zeichenEinerAngabe
                            : spalte < Tagesmodell::Fest  ? ziffern
                                                          : zeichenEinerWertung;
        kopf.resizeSection(spalte, std::max(kopf.sectionSizeHint(spalte), zeichen * ziffer));
    }
    kopf.setSectionResizeMode(Tagesmodell::Name, QHeaderView::Stretch);
    QHeaderView &summenkopf = *summen->horizontalHeader();
    summenkopf.setMinimumSectionSize(ziffer);
    int breite = summen->verticalHeader()->sizeHint().width() + 2 * summen->frameWidth();
    for (int spalte = 0; spalte < Summenmodell::AnzahlSpalten; ++spalte) {
        const int zeichen = Summenmodell::istAnteil(spalte) ? zeichenEinesAnteils : ziffern;
        summenkopf.resizeSection(spalte,
                                 std::max(summenkopf.sectionSizeHint(spalte), zeichen * ziffer));
        breite += summenkopf.sectionSize(spalte);
    }
    summen->setMinimumWidth(breite);
}

void Tagefenster::verbinde()
{
    verbindeUmzug();
    connect(&buch, &Tagebuch::gewechselt, this, &Tagefenster::zeigeAuswahl);
    connect(&buch, &Tagebuch::geaendert, this, &Tagefenster::zeigeKopf);
    connect(&buch, &Tagebuch::tagGewechselt, this, &Tagefenster::zeigeTag);
    connect(ansicht, &Tagesansicht::getippt, this, &Tagefenster::nimmAn);
    connect(ansicht, &Tagesansicht::loeschenGewuenscht, this, &Tagefenster::loescheZeilen);
    connect(ansicht->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        zeigeNotizen();
        zeigeSummen();
    });
    connect(auswahl, &QComboBox::activated, this, [this](int stelle) { buch.waehle(stelle); });
    connect(neuknopf, &QPushButton::clicked, this, &Tagefenster::neuesProtokoll);
    connect(tage, &QTabBar::currentChanged, this, [this](int tag) {
        if (!m_zeigt) {
            ansicht->beende();
            buch.waehleTag(tag);
        }
    });
    verbindeKopf();
    verbindeNotizen();
}

void Tagefenster::verbindeKopf()
{
    connect(titel, &QLineEdit::textEdited, this, [this](const QString &text) {
        aendere(
            QT_TRANSLATE_NOOP("Mahlberg", "Titel ändern"),
            [&](Aufzeichnung &eine) {
                eine.titel = text;
                return true;
            },
            QStringLiteral("titel"));
    });
    connect(art, &QComboBox::activated, this, [this](int stelle) {
        aendere(QT_TRANSLATE_NOOP("Mahlberg", "Art ändern"), [stelle](Aufzeichnung &eine) {
            eine.art = static_cast<Aufzeichnungsart>(stelle);
            return true;
        });
    });
    connect(datum, &QDateEdit::dateChanged, this, [this](const QDate &neues) {
        aendere(QT_TRANSLATE_NOOP("Mahlberg", "Ersten Tag ändern"), [neues](Aufzeichnung &eine) {
            eine.datum = neues == ohneDatum ? QDate() : neues;
            return true;
        });
    });
    connect(tagezahl, &QSpinBox::valueChanged, this, &Tagefenster::setzeTagezahl);
}

/// Notes are kept letter by letter; whoever turns to another day has lost nothing.
void Tagefenster::verbindeNotizen()
{
    connect(mahlzeitnotiz, &QLineEdit::textEdited, this, [this](const QString &text) {
        if (const auto platz = ansicht->platz()) {
            const int tag = buch.tag();
            const int mahlzeit = platz->mahlzeit;
            aendere(
                QT_TRANSLATE_NOOP("Mahlberg", "Notiz ändern"),
                [&](Aufzeichnung &eine) {
                    eine.tage[tag].mahlzeiten[mahlzeit].notiz = text;
                    return true;
                },
                QStringLiteral("notiz %1 %2").arg(tag).arg(mahlzeit));
        }
    });
    connect(tagesnotiz, &QLineEdit::textEdited, this, [this](const QString &text) {
        const int tag = buch.tag();
        aendere(
            QT_TRANSLATE_NOOP("Mahlberg", "Notiz ändern"),
            [&](Aufzeichnung &eine) {
                eine.tage[tag].notiz = text;
                return true;
            },
            QStringLiteral("notiz %1").arg(tag));
    });
    connect(imMittel, &QCheckBox::clicked, this, [this](bool ja) {
        aendere(QT_TRANSLATE_NOOP("Mahlberg", "Tag im Mittel"), [this, ja](Aufzeichnung &eine) {
            eine.tage[buch.tag()].imMittel = ja;
            return true;
        });
    });
}

/// Nothing is changed while the controls are only told what there is.
bool Tagefenster::aendere(const char *was, const Tagebuch::Tat &tat, const QString &feld)
{
    return !m_zeigt && buch.aendere(localizedString(QString::fromUtf8(was)), tat, feld);
}

void Tagefenster::zeige()
{
    show();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
    (buch.jetzige() ? static_cast<QWidget *>(ansicht) : neuknopf)->setFocus();
}

void Tagefenster::sichere()
{
    ansicht->beende();
    buch.sichere();
}

void Tagefenster::setzeAblage(Aufzeichnungsablage &ablage)
{
    sichere();
    buch.setzeAblage(ablage);
}

void Tagefenster::frischeAuf()
{
    zeigeSummen();
}

/// Which records there are, and all of the one that is worked at.
void Tagefenster::zeigeAuswahl()
{
    const QScopedValueRollback zeigt(m_zeigt, true);
    auswahl->clear();
    for (const Aufzeichnung &eine : buch.alle()) {
        auswahl->addItem(aufzeichnungsname(eine));
    }
    auswahl->setCurrentIndex(buch.stelle());
    auswahl->setEnabled(auswahl->count() > 0);
    neuknopf->setEnabled(buch.ablage().beschreibbar());
    sageObLesbar();
    const QString wer = buch.ablage().wessen();
    fusszeile->setText(
        wer.isEmpty()
            ? localizedString(QStringLiteral(
                  "Ohne Klienten am Schreibtisch: Die Aufzeichnungen stehen in einer Datei "
                  "an diesem Platz, die nur Sie lesen können."))
            : localizedString(QStringLiteral("Aufzeichnungen von %1.")).arg(wer));
    leerworte->setText(localizedString(
        QStringLiteral("Noch keine Aufzeichnung. Mit „Neu“ beginnen Sie ein Protokoll.")));
    zeigeKopf();
}

/// A record of a newer version holds what this one does not know.
void Tagefenster::sageObLesbar()
{
    const std::optional<Aufzeichnung> eine = buch.jetzige();
    if (eine && !eine->neuererText.isEmpty()) {
        hinweise->zeige(
            {.kennung = hinweisNeuere,
             .text = localizedString(QStringLiteral(
                 "Diese Aufzeichnung ist von einer neueren Version; sie ist hier nur zu lesen."))});
    } else {
        hinweise->nimmZurueck(hinweisNeuere);
    }
}

void Tagefenster::zeigeKopf()
{
    const QScopedValueRollback zeigt(m_zeigt, true);
    const std::optional<Aufzeichnung> eine = buch.jetzige();
    const bool aenderbar = buch.aenderbar();
    seiten->setCurrentWidget(eine ? arbeitsseite : leerseite);
    for (QWidget *feld : std::initializer_list<QWidget *>{titel, art, datum, tagezahl,
                                                          mahlzeitnotiz, tagesnotiz, imMittel}) {
        feld->setEnabled(aenderbar);
    }
    const Aufzeichnung gezeigte =
        eine.value_or(neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 1));
    schreibe(*titel, gezeigte.titel);
    art->setCurrentIndex(static_cast<int>(gezeigte.art));
    datum->setDate(gezeigte.datum.isValid() ? gezeigte.datum : ohneDatum);
    tagezahl->setValue(static_cast<int>(gezeigte.tage.size()));
    if (eine && buch.stelle() < auswahl->count()) {
        auswahl->setItemText(buch.stelle(), aufzeichnungsname(*eine));
    }
    zeigeTage();
    zeigeTag();
}

/// A tab for each day.
void Tagefenster::zeigeTage()
{
    const Aufzeichnung eine = buch.jetzige().value_or(Aufzeichnung());
    const auto anzahl = static_cast<int>(eine.tage.size());
    while (tage->count() > anzahl) {
        tage->removeTab(tage->count() - 1);
    }
    for (int tag = 0; tag < anzahl; ++tag) {
        const QString name = tagesname(eine, tag);
        if (tag < tage->count()) {
            tage->setTabText(tag, name);
        } else {
            tage->addTab(name);
        }
    }
    tage->updateGeometry(); // before it is shown, a bar does not tell of its tabs
}

void Tagefenster::zeigeTag()
{
    const QScopedValueRollback zeigt(m_zeigt, true);
    const Aufzeichnung eine = buch.jetzige().value_or(Aufzeichnung());
    tage->setCurrentIndex(buch.tag());
    ansicht->zeige(eine, buch.tag(), buch.aenderbar());
    zeigeNotizen();
    zeigeSummen();
}

void Tagefenster::zeigeNotizen()
{
    const QScopedValueRollback zeigt(m_zeigt, true);
    const std::optional<Aufzeichnung> eine = buch.jetzige();
    const std::optional<Tagesmodell::Platz> platz = ansicht->platz();
    const Tag tag = eine ? eine->tage[buch.tag()] : Tag();
    schreibe(*tagesnotiz, tag.notiz);
    imMittel->setChecked(tag.imMittel);
    const bool mitMahlzeit = platz && platz->mahlzeit < tag.mahlzeiten.size();
    schreibe(*mahlzeitnotiz, mitMahlzeit ? tag.mahlzeiten[platz->mahlzeit].notiz : QString());
    mahlzeitnotiz->setEnabled(mitMahlzeit && buch.aenderbar());
}

void Tagefenster::zeigeSummen()
{
    const Aufzeichnung eine = buch.jetzige().value_or(Aufzeichnung());
    const Energiebedarf bedarf = m_tueren.bedarf();
    Summenmodell::Stand stand;
    stand.tag = rechneTag(eine, buch.tag(), bedarf);
    stand.mittel = rechneMittel(eine, bedarf);
    stand.mitBedarf = bedarf.bedarf > 0;
    if (const std::optional<Tagesmodell::Platz> platz = ansicht->platz()) {
        stand.mahlzeit = stand.tag.mahlzeiten.at(static_cast<std::size_t>(platz->mahlzeit));
        if (const Mahlzeitzeile *zeile =
                ansicht->tagesmodell().zeile(ansicht->currentIndex().row())) {
            stand.zeile = zeilenwerte(*zeile);
        }
    }
    zeigeAuswertung(eine, stand);
    const int imMittelGezaehlt = stand.mittel.tage;
    const int unverstanden = stand.tag.unverstanden;
    m_summen.zeige(std::move(stand));
    QStringList saetze = {
        localizedString(QStringLiteral("Tage im Mittel: %1.")).arg(imMittelGezaehlt)};
    if (unverstanden > 0) {
        saetze << localizedString(QStringLiteral("Zeilen dieses Tages, die nicht zählen: %1."))
                      .arg(unverstanden);
    }
    mittelworte->setText(saetze.join(u' '));
}

void Tagefenster::folgeSprache()
{
    for (int stelle = 0; stelle < art->count(); ++stelle) {
        art->setItemText(
            stelle, localizedString(QString::fromUtf8(arten.at(static_cast<std::size_t>(stelle)))));
    }
    if (m_auswertung != nullptr) {
        m_auswertung->folgeSprache();
    }
    messeSpalten();
    zeigeAuswahl();
}
