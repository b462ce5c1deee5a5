#include "Vorschlagsblatt.h"

#include "Einblickworte.h"
#include "Hinweisstreifen.h"
#include "Rollbereich.h"
#include "Satzfeld.h"
#include "Vorschlagsfilter.h"
#include "Worttabelle.h"
#include "Zeichenkettentabelle.h"

#include <QComboBox>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace {

/// Behind the aims that are missed stands the one for all of them together.
constexpr int alleZiele = -1;
/// So many lines of each table are to be seen without rolling, with the headings.
constexpr int listenzeilen = 10;
constexpr int wirkungszeilen = 7;

QComboBox *auswahl(const char *name)
{
    auto *eine = new QComboBox;
    eine->setObjectName(QLatin1String(name));
    eine->setMaxVisibleItems(30);
    eine->setMinimumContentsLength(12);
    eine->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    return eine;
}

/// "Eisen: 6,8 mg zu wenig"; of what is known in part only, how far it may go.
QString abweichungswort(const Abweichung &eine)
{
    const QString menge = Einblickworte::menge(eine.ziel.groesse, std::abs(eine.fehlt));
    const bool ganzBekannt = !(eine.unbekannt > 0);
    const QString satz =
        eine.fehlt > 0
            ? (ganzBekannt ? localizedString(QStringLiteral("%1: %2 zu wenig"))
                           : localizedString(QStringLiteral("%1: bis zu %2 zu wenig")))
            : (ganzBekannt ? localizedString(QStringLiteral("%1: %2 zu viel"))
                           : localizedString(QStringLiteral("%1: mindestens %2 zu viel")));
    return satz.arg(nameVon(eine.ziel.groesse), menge);
}

} // namespace

Vorschlagsblatt::Vorschlagsblatt(Kandidatentuer kandidaten, QWidget *parent)
    : Einblickblatt(parent)
    , m_kandidaten(std::move(kandidaten))
    , m_kopf(new QWidget)
    , m_zielkopf(new QLabel)
    , m_ziel(auswahl("ziel"))
    , m_zeilenkopf(new QLabel)
    , m_zeile(auswahl("zeile"))
    , m_filter(new Vorschlagsfilter)
    , m_liste(Worttabelle::neue("vorschlaege", m_modell))
    , m_leer(neuesAbschreibfeld("leer"))
    , m_randnotiz(neuesAbschreibfeld("randnotiz"))
    , m_wirkungskopf(neuesAbschreibfeld("wirkungskopf"))
    , m_wirkungsliste(Worttabelle::neue("wirkung", m_wirkung))
    , m_nehmen(new QPushButton)
    , m_streichen(new QPushButton)
{
    m_zielkopf->setBuddy(m_ziel);
    m_zeilenkopf->setBuddy(m_zeile);
    m_nehmen->setObjectName(QStringLiteral("nehmen"));
    m_streichen->setObjectName(QStringLiteral("streichen"));
    for (QPushButton *knopf : {m_nehmen, m_streichen}) {
        knopf->setAutoDefault(false);
    }
    m_liste->installEventFilter(this);
    m_liste->viewport()->installEventFilter(this);
    m_wirkungsliste->viewport()->installEventFilter(this);
    m_liste->setContextMenuPolicy(Qt::CustomContextMenu);
    baueAufbau();
    connect(m_ziel, &QComboBox::currentIndexChanged, this, [this] {
        m_gewuenschtesZiel = m_ziel->currentData().toInt();
        zeigeVorschlaege();
    });
    connect(m_zeile, &QComboBox::currentIndexChanged, this, &Vorschlagsblatt::zeigeVorschlaege);
    connect(m_filter, &Vorschlagsfilter::geaendert, this, [this] {
        erneuere();
        Q_EMIT auswahlGeaendert();
    });
    connect(m_liste->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &Vorschlagsblatt::zeigeWirkung);
    connect(m_liste, &QTableView::doubleClicked, this, &Vorschlagsblatt::nimm);
    connect(m_liste, &QWidget::customContextMenuRequested, this, &Vorschlagsblatt::zeigeMenue);
    connect(m_nehmen, &QPushButton::clicked, this, &Vorschlagsblatt::nimm);
    connect(m_streichen, &QPushButton::clicked, this, &Vorschlagsblatt::streiche);
    folgeSprache();
}

void Vorschlagsblatt::baueAufbau()
{
    auto *fragen = new QFormLayout(m_kopf);
    fragen->setContentsMargins({});
    fragen->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    fragen->setRowWrapPolicy(QFormLayout::WrapLongRows);
    fragen->addRow(m_zielkopf, m_ziel);
    fragen->addRow(m_zeilenkopf, m_zeile);
    fragen->addRow(m_filter);
    auto *knoepfe = new QHBoxLayout;
    knoepfe->addWidget(m_nehmen);
    knoepfe->addWidget(m_streichen);
    knoepfe->addStretch();
    auto *seite = new QWidget;
    auto *anordnung = new QVBoxLayout(seite);
    anordnung->addWidget(m_kopf);
    anordnung->addWidget(m_leer);
    anordnung->addWidget(m_liste, 3);
    anordnung->addWidget(m_randnotiz);
    anordnung->addWidget(m_wirkungskopf);
    anordnung->addWidget(m_wirkungsliste, 2);
    anordnung->addLayout(knoepfe);
    anordnung->addStretch();
    Rollbereich::fuelle(*this, seite);
}

void Vorschlagsblatt::folgeSprache()
{
    m_zielkopf->setText(localizedString(QStringLiteral("&Ziel:")));
    m_zeilenkopf->setText(localizedString(QStringLiteral("&Tausch:")));
    m_liste->setAccessibleName(localizedString(QStringLiteral("Vorschläge")));
    m_liste->setAccessibleDescription(localizedString(QStringLiteral(
        "Die Eingabetaste nimmt den Vorschlag an, Entf streicht das Lebensmittel.")));
    m_wirkungsliste->setAccessibleName(
        localizedString(QStringLiteral("Wirkung des gewählten Vorschlags")));
    m_streichen->setText(localizedString(QStringLiteral("Nicht &vorschlagen")));
    m_filter->folgeSprache();
    zeige(Einblickstand(m_stand));
}

void Vorschlagsblatt::zeige(const Einblickstand &stand)
{
    if (stand.leiden != m_stand.leiden) {
        std::array<Wertungswunsch, anzahlWertungen> wuensche = {};
        std::ranges::transform(stand.leiden, wuensche.begin(), [](bool leidet) {
            return leidet ? Wertungswunsch::NichtUngeeignet : Wertungswunsch::Egal;
        });
        m_filter->setzeWertungen(wuensche);
    }
    m_stand = stand;
    erneuere();
}

/// Works everything out anew, or leaves it until the sheet is seen.
void Vorschlagsblatt::erneuere()
{
    m_veraltet = !isVisible();
    if (m_veraltet) {
        return;
    }
    m_abweichungen = m_stand.gegenstand == Gegenstand::Lebensmittel
                         ? QList<Abweichung>()
                         : abweichungen({m_stand.speisen, m_stand.ziele, m_stand.wissen});
    fuelleZiele();
    fuelleZeilen();
    zeigeVorschlaege();
}

/// What the user chose is chosen whenever it is missed, else what is missed most.
void Vorschlagsblatt::fuelleZiele()
{
    const QSignalBlocker still(m_ziel);
    m_ziel->clear();
    for (const Abweichung &eine : std::as_const(m_abweichungen)) {
        m_ziel->addItem(abweichungswort(eine), static_cast<int>(stelle(eine.ziel.groesse)));
    }
    m_ziel->addItem(localizedString(QStringLiteral("Alle Ziele zusammen")), alleZiele);
    m_ziel->setCurrentIndex(
        std::max(0, m_gewuenschtesZiel ? m_ziel->findData(*m_gewuenschtesZiel) : 0));
}

void Vorschlagsblatt::fuelleZeilen()
{
    const int bisher = zeile();
    const QString schluessel = m_zeile->currentData(Qt::UserRole + 1).toString();
    const QSignalBlocker still(m_zeile);
    m_zeile->clear();
    m_zeile->addItem(localizedString(QStringLiteral("keine bestimmte Zeile")), -1);
    for (int i = 0; i < m_stand.speisen.size(); ++i) {
        const Speise &eine = m_stand.speisen[i];
        m_zeile->addItem(QStringLiteral("%1, %2").arg(kurzerName(localizedString(eine.schluessel)),
                                                      Einblickworte::gramm(eine.gramm)),
                         i);
        m_zeile->setItemData(m_zeile->count() - 1, eine.schluessel, Qt::UserRole + 1);
    }
    const int neu = m_zeile->findData(bisher);
    const bool nochDa = neu > 0 && m_zeile->itemData(neu, Qt::UserRole + 1) == schluessel;
    m_zeile->setCurrentIndex(nochDa ? neu : 0);
}

std::optional<Kenngroesse> Vorschlagsblatt::ziel() const
{
    const int welches = m_ziel->currentData().toInt();
    return m_ziel->currentIndex() < 0 || welches == alleZiele
               ? std::nullopt
               : std::optional(static_cast<Kenngroesse>(welches));
}

/// Which of the foods is to give up its place, counted from 0; -1: none of them.
int Vorschlagsblatt::zeile() const
{
    return m_zeile->currentIndex() > 0 ? m_zeile->currentData().toInt() : -1;
}

void Vorschlagsblatt::zeigeVorschlaege()
{
    const Vorschlagsgrundlage grundlage = {m_stand.speisen, m_stand.ziele, m_stand.wissen};
    const bool fragbar = m_stand.gegenstand != Gegenstand::Lebensmittel && !m_stand.ziele.isEmpty();
    Vorschlagsliste liste;
    if (fragbar && zeile() >= 0) {
        liste = stattZeile(grundlage, zeile(), ziel(), m_kandidaten(), m_filter->bedingungen());
    } else if (fragbar && ziel()) {
        liste = vorschlaege(grundlage, *ziel(), m_kandidaten(), m_filter->bedingungen());
    }
    m_modell.zeige(liste.vorschlaege, m_stand.speisen, ziel());
    const bool leer = liste.vorschlaege.isEmpty();
    m_kopf->setVisible(fragbar);
    m_leer->setText(leer ? leerWorte() : QString());
    m_leer->setVisible(leer);
    m_liste->setColumnHidden(Vorschlagsmodell::Bringt, !ziel());
    m_randnotiz->setText(randnotiz(liste));
    m_randnotiz->setVisible(!m_randnotiz->text().isEmpty());
    const std::initializer_list<QWidget *> teile = {m_liste, m_wirkungskopf, m_wirkungsliste,
                                                    m_nehmen, m_streichen};
    // Else the keyboard would go to the next button that there is, and that one takes back.
    if (leer && std::ranges::any_of(teile, &QWidget::hasFocus)) {
        m_ziel->setFocus();
    }
    for (QWidget *teil : teile) {
        teil->setVisible(!leer);
    }
    m_liste->selectRow(leer ? -1 : 0);
    zeigeWirkung();
    stelleSpalten();
}

const Vorschlag *Vorschlagsblatt::gewaehlter() const
{
    const int welcher = m_liste->currentIndex().row();
    return welcher >= 0 ? &m_modell.vorschlaege()[welcher] : nullptr;
}

void Vorschlagsblatt::zeigeWirkung()
{
    const Vorschlag *einer = gewaehlter();
    m_wirkung.zeige(einer != nullptr
                        ? wirkung({m_stand.speisen, m_stand.ziele, m_stand.wissen}, *einer)
                        : QList<Wirkung>());
    m_nehmen->setText(einer != nullptr && einer->zeile >= 0
                          ? localizedString(QStringLiteral("Ersetze&n"))
                          : localizedString(QStringLiteral("Hi&nzufügen")));
    m_wirkungskopf->setText(einer == nullptr
                                ? QString()
                                : localizedString(QStringLiteral("Was „%1“ ändert:"))
                                      .arg(kurzerName(localizedString(einer->speise.schluessel))));
    const QString grund = hindernis();
    m_nehmen->setEnabled(einer != nullptr && grund.isNull());
    m_nehmen->setToolTip(grund);
    m_nehmen->setAccessibleDescription(grund);
    Worttabelle::verteile(*m_wirkungsliste);
}

/// Why the chosen suggestion can't be taken; null: it can.
QString Vorschlagsblatt::hindernis() const
{
    if (m_stand.gegenstand == Gegenstand::Mittel) {
        return localizedString(
            QStringLiteral("Im Mittel lässt sich nichts ändern. Wählen Sie einen Tag."));
    }
    const Vorschlag *einer = gewaehlter();
    return einer != nullptr && einer->zeile >= 0 && einer->speise.ort < 0
               ? localizedString(QStringLiteral("Diese Zeile lässt sich hier nicht ersetzen."))
               : QString();
}

QString Vorschlagsblatt::leerWorte() const
{
    if (m_stand.gegenstand == Gegenstand::Lebensmittel) {
        return localizedString(QStringLiteral(
            "Vorschläge gibt es zu einem Plan, einem Tag oder dem Mittel der Tage."));
    }
    if (m_stand.ziele.isEmpty()) {
        return localizedString(
            QStringLiteral("Dafür muss bekannt sein, was ein Tag enthalten soll, und das fehlt."));
    }
    if (m_abweichungen.isEmpty() && zeile() < 0) {
        const bool ganzBekannt =
            std::ranges::none_of(m_stand.ziele, [this](const Zielbereich &eines) {
                return summiere(m_stand.speisen, eines.groesse, m_stand.wissen).unbekannt > 0;
            });
        return ganzBekannt ? localizedString(QStringLiteral("Alles ist im Zielbereich."))
                           : localizedString(QStringLiteral(
                                 "Alles ist im Zielbereich, soweit es bekannt ist."));
    }
    if (!ziel() && zeile() < 0) {
        return localizedString(
            QStringLiteral("Für alle Ziele zusammen wählen Sie beim Tausch eine Zeile."));
    }
    return localizedString(
        QStringLiteral("Hier hilft kein Lebensmittel, ohne mehr zu schaden als zu nützen."));
}

/// What was left out, so that nobody misses it in the list.
QString Vorschlagsblatt::randnotiz(const Vorschlagsliste &liste) const
{
    QStringList saetze;
    if (liste.ohneAngabe > 0 && ziel()) {
        saetze << localizedString(QStringLiteral("Ohne Angabe zu %1 und nicht dabei: %2."))
                      .arg(nameVon(*ziel()), QString::number(liste.ohneAngabe));
    }
    if (liste.unbeurteilt > 0) {
        saetze << localizedString(
                      QStringLiteral("Eigene Lebensmittel, von denen niemand weiß, ob sie das "
                                     "Weggelassene enthalten, und nicht dabei: %1."))
                      .arg(QString::number(liste.unbeurteilt));
    }
    return saetze.join(u' ');
}

void Vorschlagsblatt::nimm()
{
    const Vorschlag *einer = gewaehlter();
    if (einer == nullptr || !m_nehmen->isEnabled()) {
        return;
    }
    Q_EMIT aenderungGewuenscht({.ort = einer->speise.ort,
                                .schluessel = einer->speise.schluessel,
                                .gramm = einer->speise.gramm,
                                .angabe = einer->angabe});
}

void Vorschlagsblatt::streiche()
{
    const Vorschlag *einer = gewaehlter();
    if (einer == nullptr) {
        return;
    }
    const int welcher = m_liste->currentIndex().row();
    m_filter->streiche(QString(einer->speise.schluessel));
    m_liste->selectRow(std::min(welcher, m_modell.rowCount() - 1));
}

void Vorschlagsblatt::zeigeMenue(const QPoint &ort)
{
    if (!m_liste->indexAt(ort).isValid()) {
        return;
    }
    auto *menue = new QMenu(this);
    menue->setAttribute(Qt::WA_DeleteOnClose);
    QAction *nehmen = menue->addAction(m_nehmen->text(), this, &Vorschlagsblatt::nimm);
    nehmen->setEnabled(m_nehmen->isEnabled());
    menue->addAction(m_streichen->text(), this, &Vorschlagsblatt::streiche);
    menue->popup(m_liste->viewport()->mapToGlobal(ort));
}

void Vorschlagsblatt::waehleZiel(Kenngroesse ziel)
{
    m_ziel->setCurrentIndex(std::max(0, m_ziel->findData(static_cast<int>(stelle(ziel)))));
}

void Vorschlagsblatt::waehleZeile(int ort)
{
    const auto gesucht = std::ranges::find(m_stand.speisen, ort, &Speise::ort);
    const bool da = ort >= 0 && gesucht != m_stand.speisen.end();
    m_zeile->setCurrentIndex(
        da ? 1 + static_cast<int>(std::distance(m_stand.speisen.begin(), gesucht)) : 0);
}

Weglassgruppen Vorschlagsblatt::weggelassene() const
{
    return m_filter->weggelassene();
}

void Vorschlagsblatt::setzeWeggelassene(Weglassgruppen gruppen)
{
    m_filter->setzeWeggelassene(gruppen);
    erneuere();
}

QStringList Vorschlagsblatt::gestrichene() const
{
    return m_filter->gestrichene();
}

void Vorschlagsblatt::setzeGestrichene(const QStringList &schluessel)
{
    m_filter->setzeGestrichene(schluessel);
    erneuere();
}

void Vorschlagsblatt::vergissWuensche()
{
    m_stand.leiden = {};
    m_filter->setzeWertungen({});
}

/// A key that is held down would take one suggestion after the other, which nobody has read.
bool Vorschlagsblatt::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_liste && event->type() == QEvent::KeyPress) {
        const auto *taste = static_cast<QKeyEvent *>(event);
        const bool nimmt = taste->key() == Qt::Key_Return || taste->key() == Qt::Key_Enter;
        if (nimmt || taste->key() == Qt::Key_Delete) {
            if (!taste->isAutoRepeat()) {
                nimmt ? nimm() : streiche();
            }
            return true;
        }
    }
    if (event->type() == QEvent::Resize) {
        Worttabelle::verteile(watched == m_liste->viewport() ? *m_liste : *m_wirkungsliste);
    }
    return Einblickblatt::eventFilter(watched, event);
}

void Vorschlagsblatt::stelleSpalten()
{
    const int zeile = m_liste->fontMetrics().lineSpacing();
    m_liste->setMinimumHeight(listenzeilen * zeile);
    m_wirkungsliste->setMinimumHeight(wirkungszeilen * zeile);
    Worttabelle::verteile(*m_liste);
    Worttabelle::verteile(*m_wirkungsliste);
}

void Vorschlagsblatt::showEvent(QShowEvent *event)
{
    Einblickblatt::showEvent(event);
    if (m_veraltet) {
        erneuere();
    }
    stelleSpalten();
}

/// Another size of type needs other widths, another palette other colours.
void Vorschlagsblatt::changeEvent(QEvent *event)
{
    Einblickblatt::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange) {
        stelleSpalten();
    }
}
