#include "Rangfilter.h"

#include "Bereichszeile.h"
#include "Rangworte.h"
#include "Rollbereich.h"
#include "Zeichenkettentabelle.h"

#include <QApplication>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// The first entries of the chooser of groups; the groups follow in their order.
enum Gruppeneintrag { AlleGruppen, EigeneLebensmittel, ErsteGruppe };

/// In the order of `Wertungswunsch`.
constexpr std::array<const char *, 3> wuensche = {QT_TRANSLATE_NOOP("Mahlberg", "beliebig"), "+",
                                                  QT_TRANSLATE_NOOP("Mahlberg", "+ oder 0")};

QString worte(const char *text)
{
    return localizedString(QString::fromUtf8(text));
}

/// The wheel rolls the page over choosers that came later as well.
void uebergibRad(const QWidget &neues)
{
    for (QWidget *oben = neues.parentWidget(); oben != nullptr; oben = oben->parentWidget()) {
        if (auto *bereich = qobject_cast<Rollbereich *>(oben)) {
            for (QComboBox *wahl : neues.findChildren<QComboBox *>()) {
                wahl->setFocusPolicy(Qt::StrongFocus);
                wahl->installEventFilter(bereich);
            }
            return;
        }
    }
}

} // namespace

Rangfilter::Rangfilter(QWidget *parent)
    : QWidget(parent)
    , m_gruppenwort(new QLabel)
    , m_gruppe(new QComboBox)
    , m_bereichsordnung(new QVBoxLayout)
    , m_neu(new QPushButton)
{
    m_gruppe->setObjectName(QStringLiteral("gruppe"));
    m_gruppe->setMaxVisibleItems(25);
    m_gruppe->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_gruppenwort->setBuddy(m_gruppe);
    m_neu->setObjectName(QStringLiteral("neuerbereich"));
    m_neu->setAutoDefault(false);
    auto *anordnung = new QVBoxLayout(this);
    anordnung->setContentsMargins(0, 0, 0, 0);
    auto *gruppenzeile = new QHBoxLayout;
    gruppenzeile->addWidget(m_gruppenwort);
    gruppenzeile->addWidget(m_gruppe, 1);
    anordnung->addLayout(gruppenzeile);
    baueWertungen(*anordnung);
    anordnung->addLayout(m_bereichsordnung);
    anordnung->addWidget(m_neu, 0, Qt::AlignLeft);
    anordnung->addStretch(1);
    connect(m_gruppe, &QComboBox::currentIndexChanged, this, &Rangfilter::geaendert);
    connect(m_neu, &QPushButton::clicked, this, &Rangfilter::neuerBereich);
    folgeSprache();
}

/// Beside one another, each below its name, so that they fit into a narrow window.
void Rangfilter::baueWertungen(QVBoxLayout &anordnung)
{
    auto *gitter = new QGridLayout;
    for (const Wertungsbeschreibung &eine : wertungen) {
        auto *wort = new QLabel;
        wort->setWordWrap(true);
        auto *wahl = new QComboBox;
        wahl->setObjectName(QStringLiteral("wertung%1").arg(QLatin1String(eine.kennung)));
        wahl->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        wort->setBuddy(wahl);
        const int spalte = static_cast<int>(stelle(eine.wertung));
        gitter->addWidget(wort, 0, spalte, Qt::AlignBottom);
        gitter->addWidget(wahl, 1, spalte);
        gitter->setColumnStretch(spalte, 1);
        connect(wahl, &QComboBox::currentIndexChanged, this, &Rangfilter::geaendert);
        m_wertungsworte[stelle(eine.wertung)] = wort;
        m_wertungen[stelle(eine.wertung)] = wahl;
    }
    anordnung.addLayout(gitter);
}

void Rangfilter::folgeSprache()
{
    m_gruppenwort->setText(localizedString(QStringLiteral("&Gruppe:")));
    fuelleGruppen();
    for (const Wertungsbeschreibung &eine : wertungen) {
        m_wertungsworte[stelle(eine.wertung)]->setText(worte(eine.bezeichnung));
        QComboBox &wahl = *m_wertungen[stelle(eine.wertung)];
        wahl.setAccessibleName(
            localizedString(QStringLiteral("Bewertung: %1")).arg(worte(eine.bezeichnung)));
        QStringList namen;
        for (const char *wunsch : wuensche) {
            namen << worte(wunsch);
        }
        Rangworte::fuelle(wahl, namen);
    }
    for (Bereichszeile *zeile : std::as_const(m_bereiche)) {
        zeile->folgeSprache();
    }
    m_neu->setText(localizedString(QStringLiteral("&Bereich hinzufügen")));
}

/// Foods that the user entered belong to no group.
void Rangfilter::fuelleGruppen()
{
    QStringList namen = {localizedString(QStringLiteral("Alle Gruppen")),
                         localizedString(QStringLiteral("Eigene Lebensmittel"))};
    for (const Lebensmittelgruppe &gruppe : lebensmittelgruppen()) {
        namen << worte(gruppe.name);
    }
    Rangworte::fuelle(*m_gruppe, namen);
}

void Rangfilter::trageEin(Rangfrage &frage) const
{
    const int gruppe = m_gruppe->currentIndex();
    frage.nurEigene = gruppe == EigeneLebensmittel;
    frage.gruppe = gruppe >= ErsteGruppe
                       ? &lebensmittelgruppen().at(static_cast<std::size_t>(gruppe - ErsteGruppe))
                       : nullptr;
    for (std::size_t i = 0; i < anzahlWertungen; ++i) {
        frage.wertungen[i] = static_cast<Wertungswunsch>(m_wertungen[i]->currentIndex());
    }
    frage.bereiche.clear();
    for (const Bereichszeile *zeile : m_bereiche) {
        frage.bereiche << zeile->bereich();
    }
}

int Rangfilter::zahl() const
{
    const auto waehlt = [](const QComboBox *wahl) {
        return wahl->currentIndex() > 0;
    };
    return static_cast<int>(waehlt(m_gruppe) + std::ranges::count_if(m_wertungen, waehlt) +
                            std::ranges::count_if(m_bereiche, &Bereichszeile::fragtEtwas));
}

void Rangfilter::leere()
{
    {
        const QSignalBlocker still(this); // it is one change
        m_gruppe->setCurrentIndex(AlleGruppen);
        for (QComboBox *wahl : m_wertungen) {
            wahl->setCurrentIndex(0);
        }
        while (!m_bereiche.isEmpty()) {
            entferne(m_bereiche.last());
        }
    }
    Q_EMIT geaendert();
}

void Rangfilter::neuerBereich()
{
    auto *zeile = new Bereichszeile(m_vorgabe, this);
    m_bereichsordnung->addWidget(zeile);
    m_bereiche << zeile;
    uebergibRad(*zeile);
    connect(zeile, &Bereichszeile::geaendert, this, &Rangfilter::geaendert);
    connect(zeile, &Bereichszeile::wegGewuenscht, this, [this, zeile] { entferne(zeile); });
    ordneTasten();
    zeile->felder().constFirst()->setFocus();
    Q_EMIT geaendert();
}

/// The keyboard goes on to the next range, or to where one is added.
void Rangfilter::entferne(Bereichszeile *zeile)
{
    const qsizetype stelle = m_bereiche.indexOf(zeile);
    m_bereiche.removeAt(stelle);
    if (zeile->isAncestorOf(QApplication::focusWidget())) {
        QWidget *naechstes = stelle < m_bereiche.size() ? m_bereiche[stelle]->felder().constLast()
                                                        : static_cast<QWidget *>(m_neu);
        naechstes->setFocus();
    }
    zeile->hide();
    zeile->deleteLater();
    Q_EMIT geaendert();
}

/// Ranges that came later stand before the button all the same.
void Rangfilter::ordneTasten()
{
    QWidget *voriges = m_wertungen.back();
    for (const Bereichszeile *zeile : std::as_const(m_bereiche)) {
        for (QWidget *feld : zeile->felder()) {
            setTabOrder(voriges, feld);
            voriges = feld;
        }
    }
    setTabOrder(voriges, m_neu);
}
