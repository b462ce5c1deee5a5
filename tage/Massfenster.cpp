#include "Massfenster.h"

#include "Masszeile.h"
#include "Rollbereich.h"
#include "Schriftplatz.h"
#include "Schriftstufe.h"
#include "Tabellenkopie.h"
#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"
#include "Zeilenhoehe.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QScrollArea>

#include <algorithm>
#include <utility>

namespace {

constexpr int zeilenhoehe = 24;
constexpr int sichtbareZeilen = 5; // of the built-in measures; no food has many more

enum Eingebautspalte { Name, Gewicht, Quelle };

Regelsprache bildschirmsprache()
{
    return QLocale().language() == QLocale::English ? Regelsprache::Englisch
                                                    : Regelsprache::Deutsch;
}

QTableWidgetItem *zelle(const QString &text, Qt::Alignment ausrichtung = Qt::AlignLeft)
{
    auto *neu = new QTableWidgetItem(text);
    neu->setTextAlignment(ausrichtung | Qt::AlignVCenter);
    neu->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    return neu;
}

QString namensliste(const Mass &mass)
{
    const bool deutsch = bildschirmsprache() == Regelsprache::Deutsch;
    const QString &eines = deutsch ? mass.eines : mass.einesEn;
    const QString &viele = deutsch ? mass.viele : mass.vieleEn;
    return eines == viele ? eines : QStringLiteral("%1, %2").arg(eines, viele);
}

} // namespace

Massfenster::Massfenster(const Portionentabelle &eingebaute, EigeneMasse &eigene,
                         QString schluessel, QWidget *parent)
    : QDialog(parent)
    , m_eigene(eigene)
    , m_schluessel(std::move(schluessel))
{
    setupUi(this);
    lebensmittel->setText(localizedString(m_schluessel));
    zeigeEingebaute(eingebaute.masseFuer(m_schluessel));
    Rollbereich::fasse(*inhalt);
    baueEigene();
    connect(neuknopf, &QPushButton::clicked, this, [this] { geheZu(*m_zeilen.back()); });
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(&m_eigene, &EigeneMasse::sicherungGewechselt, this, &Massfenster::zeigeHindernis);
    Schriftstufe::kleide(*this);
    Schriftplatz::gib(*this);
    zeigeHindernis();
    beurteile();
    m_zeilen.front()->gehZu();
}

/// The field that one was typing into tells what stands there when the window goes away, and the
/// window must still be one then.
Massfenster::~Massfenster()
{
    hide();
}

void Massfenster::oeffne(const Portionentabelle &eingebaute, EigeneMasse &eigene,
                         const QString &schluessel, QWidget *parent)
{
    auto *fenster = new Massfenster(eingebaute, eigene, schluessel, parent);
    fenster->setAttribute(Qt::WA_DeleteOnClose);
    fenster->setModal(true); // a second one would not see what this one changes
    fenster->show();
}

void Massfenster::done(int ergebnis)
{
    nimmAn();
    QDialog::done(ergebnis);
}

/// What the program knows already; g and kg fit every food and need no line.
void Massfenster::zeigeEingebaute(const QList<Mass> &masse)
{
    eingebaut->setHorizontalHeaderLabels({localizedString(QStringLiteral("Maß")),
                                          localizedString(QStringLiteral("Gramm von einem")),
                                          localizedString(QStringLiteral("Quelle"))});
    eingebaut->setRowCount(static_cast<int>(masse.size()));
    for (int reihe = 0; reihe < eingebaut->rowCount(); ++reihe) {
        const Mass &mass = masse[reihe];
        eingebaut->setItem(reihe, Name, zelle(namensliste(mass)));
        eingebaut->setItem(reihe, Gewicht, zelle(alsEingabe(mass).gramm, Qt::AlignRight));
        eingebaut->setItem(reihe, Quelle, zelle(mass.quellen.join(u' ')));
    }
    const int hoehe = zeilenhoeheFuer(*eingebaut, zeilenhoehe);
    eingebaut->verticalHeader()->setDefaultSectionSize(hoehe);
    eingebaut->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    eingebaut->horizontalHeader()->setSectionResizeMode(Quelle, QHeaderView::Stretch);
    const int zeilen = std::min(eingebaut->rowCount(), sichtbareZeilen);
    eingebaut->setFixedHeight(eingebaut->horizontalHeader()->sizeHint().height() + zeilen * hoehe +
                              2 * eingebaut->frameWidth());
    eingebaut->setVisible(!masse.isEmpty());
    keineWorte->setVisible(masse.isEmpty());
    Tabellenkopie::ermoegliche(*eingebaut);
}

void Massfenster::baueEigene()
{
    m_anordnung = new QGridLayout(eigenteil);
    m_anordnung->setContentsMargins(0, 0, 0, 0);
    for (int spalte = Masszeile::Eines; spalte < Masszeile::AnzahlFelder; ++spalte) {
        auto *kopf = new QLabel(massspalte(static_cast<Masszeile::Spalte>(spalte)));
        kopf->setWordWrap(true);
        m_anordnung->addWidget(kopf, 0, spalte, Qt::AlignBottom);
        m_anordnung->setColumnStretch(spalte, 1);
    }
    for (const Mass &mass : m_eigene.masseFuer(m_schluessel)) {
        neueZeile().zeige(mass);
    }
    neueZeile();
}

Masszeile &Massfenster::neueZeile()
{
    constexpr int reihenJeZeile = 2;
    const int bisher = m_naechsteReihe / reihenJeZeile;
    auto *zeile = new Masszeile(*m_anordnung, m_naechsteReihe, bisher + 1, *eigenteil);
    m_naechsteReihe += reihenJeZeile;
    zeile->erlaube(!m_eigene.istGesperrt());
    connect(zeile, &Masszeile::getippt, this, &Massfenster::beurteile);
    connect(zeile, &Masszeile::eingegeben, this, &Massfenster::nimmAn);
    connect(zeile, &Masszeile::fertig, this, [this, zeile] { geheWeiter(*zeile); });
    connect(zeile, &Masszeile::herausnehmenGewuenscht, this, [this, zeile] { nimmHeraus(*zeile); });
    m_zeilen.push_back(zeile);
    ordneTasten();
    return *zeile;
}

/// Fields that came later stand before the buttons all the same.
void Massfenster::ordneTasten()
{
    QWidget *voriges = eingebaut;
    for (const Masszeile *zeile : m_zeilen) {
        for (QWidget *feld : zeile->felder()) {
            setTabOrder(voriges, feld);
            voriges = feld;
        }
    }
    setTabOrder(voriges, neuknopf);
    setTabOrder(neuknopf, knoepfe->button(QDialogButtonBox::Close));
}

QList<Mass> Massfenster::gehaltene(const Masszeile *ausser) const
{
    QList<Mass> masse;
    for (const Masszeile *zeile : m_zeilen) {
        if (zeile != ausser && zeile->gehalten) {
            masse << *zeile->gehalten;
        }
    }
    return masse;
}

/// Says below each row what is made of it, letter by letter.
void Massfenster::beurteile()
{
    for (Masszeile *zeile : m_zeilen) {
        const Masseingabe eingabe = zeile->eingabe();
        const Massbefund befund = pruefeMass(eingabe, gehaltene(zeile));
        if (eingabe.leer()) {
            zeile->sage({}, true);
        } else if (befund.mass) {
            zeile->sage(massbeispiel(*befund.mass, bildschirmsprache()), true);
        } else if (zeile->gehalten) {
            zeile->sage(
                localizedString(QStringLiteral("%1 Bis dahin gilt weiter: %2"))
                    .arg(befund.einwand, massbeispiel(*zeile->gehalten, bildschirmsprache())),
                false);
        } else {
            zeile->sage(befund.einwand, false);
        }
    }
    if (!m_zeilen.back()->eingabe().leer()) {
        neueZeile();
    }
}

/// Keeps what can be kept; a row that can't keeps what it was before.
void Massfenster::nimmAn()
{
    for (Masszeile *zeile : m_zeilen) {
        const Masseingabe eingabe = zeile->eingabe();
        const Massbefund befund = pruefeMass(eingabe, gehaltene(zeile));
        if (eingabe.leer() || befund.mass) {
            zeile->gehalten = befund.mass;
        }
    }
    m_eigene.setze(m_schluessel, gehaltene(nullptr));
    beurteile();
}

void Massfenster::nimmHeraus(Masszeile &zeile)
{
    const auto stelle = std::find(m_zeilen.begin(), m_zeilen.end(), &zeile);
    const auto danach = m_zeilen.erase(stelle);
    Masszeile *naechste = danach == m_zeilen.end() ? &neueZeile() : *danach;
    zeile.entferne();
    geheZu(*naechste);
    nimmAn();
}

void Massfenster::geheWeiter(const Masszeile &zeile)
{
    const auto naechste = std::find(m_zeilen.begin(), m_zeilen.end(), &zeile) + 1;
    if (naechste == m_zeilen.end()) {
        knoepfe->button(QDialogButtonBox::Close)->setFocus();
    } else {
        geheZu(**naechste);
    }
}

void Massfenster::geheZu(Masszeile &zeile)
{
    zeile.gehZu();
    // The page rolls by itself for Tab only.
    if (auto *bereich = inhalt->findChild<QScrollArea *>()) {
        bereich->ensureWidgetVisible(zeile.felder().constFirst());
    }
}

void Massfenster::zeigeHindernis()
{
    hindernis->setText(m_eigene.hindernis());
    hindernis->setVisible(!hindernis->text().isEmpty());
    neuknopf->setEnabled(!m_eigene.istGesperrt());
}
