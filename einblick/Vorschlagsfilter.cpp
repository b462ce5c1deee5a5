#include "Vorschlagsfilter.h"

#include "Satzfeld.h"
#include "Zeichenkettentabelle.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>

namespace {

/// In the order of `Wertungswunsch`.
constexpr std::array<const char *, 3> wunschworte = {
    QT_TRANSLATE_NOOP("Mahlberg", "beliebig"), QT_TRANSLATE_NOOP("Mahlberg", "nur geeignet"),
    QT_TRANSLATE_NOOP("Mahlberg", "nicht ungeeignet")};

QString wort(const char *schluessel)
{
    return localizedString(QString::fromUtf8(schluessel));
}

} // namespace

Vorschlagsfilter::Vorschlagsfilter(QWidget *parent)
    : QWidget(parent)
    , m_klappe(new QToolButton)
    , m_worte(neuesSatzfeld("auswahlworte"))
    , m_feld(new QWidget)
    , m_wertungskopf(neuesSatzfeld("wertungskopf"))
    , m_gruppenkopf(neuesSatzfeld("gruppenkopf"))
    , m_vorbehalt(neuesSatzfeld("vorbehalt"))
    , m_gestrichenenzeile(new QWidget)
    , m_gestrichenenkopf(new QLabel)
    , m_gestrichenenwahl(new QComboBox)
    , m_aufnehmen(new QPushButton)
{
    m_klappe->setObjectName(QStringLiteral("klappe"));
    m_klappe->setCheckable(true);
    m_klappe->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_klappe->setFocusPolicy(Qt::StrongFocus);
    m_gestrichenenwahl->setObjectName(QStringLiteral("gestrichene"));
    m_gestrichenenwahl->setMinimumContentsLength(8);
    m_gestrichenenwahl->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_gestrichenenkopf->setBuddy(m_gestrichenenwahl);
    m_aufnehmen->setObjectName(QStringLiteral("aufnehmen"));
    m_aufnehmen->setAutoDefault(false);

    auto *feld = new QVBoxLayout(m_feld);
    feld->setContentsMargins({});
    baueWertungen(*feld);
    baueGruppen(*feld);
    auto *gestrichen = new QHBoxLayout(m_gestrichenenzeile);
    gestrichen->setContentsMargins({});
    gestrichen->addWidget(m_gestrichenenkopf);
    gestrichen->addWidget(m_gestrichenenwahl, 1);
    gestrichen->addWidget(m_aufnehmen);
    auto *anordnung = new QVBoxLayout(this);
    anordnung->setContentsMargins({});
    anordnung->addWidget(m_klappe, 0, Qt::AlignLeft);
    anordnung->addWidget(m_worte);
    anordnung->addWidget(m_feld);
    anordnung->addWidget(m_gestrichenenzeile);
    connect(m_klappe, &QToolButton::toggled, this, &Vorschlagsfilter::klappe);
    connect(m_aufnehmen, &QPushButton::clicked, this, &Vorschlagsfilter::nimmWiederAuf);
    connect(this, &Vorschlagsfilter::geaendert, this, &Vorschlagsfilter::klappe);
    folgeSprache();
}

void Vorschlagsfilter::baueWertungen(QVBoxLayout &anordnung)
{
    anordnung.addWidget(m_wertungskopf);
    auto *gitter = new QGridLayout;
    gitter->setColumnStretch(1, 1);
    for (std::size_t i = 0; i < anzahlWertungen; ++i) {
        m_wertungsnamen[i] = new QLabel;
        m_wuensche[i] = new QComboBox;
        m_wuensche[i]->setObjectName(
            QStringLiteral("wunsch_%1").arg(QString::fromLatin1(wertungen[i].kennung)));
        for (const char *eines : wunschworte) {
            m_wuensche[i]->addItem(wort(eines));
        }
        m_wertungsnamen[i]->setBuddy(m_wuensche[i]);
        gitter->addWidget(m_wertungsnamen[i], static_cast<int>(i), 0);
        gitter->addWidget(m_wuensche[i], static_cast<int>(i), 1);
        connect(m_wuensche[i], &QComboBox::currentIndexChanged, this, &Vorschlagsfilter::geaendert);
    }
    anordnung.addLayout(gitter);
}

void Vorschlagsfilter::baueGruppen(QVBoxLayout &anordnung)
{
    anordnung.addWidget(m_gruppenkopf);
    for (std::size_t i = 0; i < weglassgruppen.size(); ++i) {
        m_gruppen[i] = new QCheckBox;
        m_gruppen[i]->setObjectName(
            QStringLiteral("ohne_%1").arg(QString::fromLatin1(weglassgruppen[i].kennung)));
        anordnung.addWidget(m_gruppen[i]);
        connect(m_gruppen[i], &QCheckBox::toggled, this, &Vorschlagsfilter::geaendert);
    }
    anordnung.addWidget(m_vorbehalt);
}

Vorschlagsbedingungen Vorschlagsfilter::bedingungen() const
{
    Vorschlagsbedingungen alle;
    for (std::size_t i = 0; i < anzahlWertungen; ++i) {
        alle.wertungen[i] = static_cast<Wertungswunsch>(m_wuensche[i]->currentIndex());
    }
    alle.ohne = weggelassene();
    alle.gestrichen = {m_gestrichene.cbegin(), m_gestrichene.cend()};
    return alle;
}

void Vorschlagsfilter::setzeWertungen(const std::array<Wertungswunsch, anzahlWertungen> &wuensche)
{
    for (std::size_t i = 0; i < anzahlWertungen; ++i) {
        const QSignalBlocker still(m_wuensche[i]);
        m_wuensche[i]->setCurrentIndex(static_cast<int>(wuensche[i]));
    }
    klappe();
}

Weglassgruppen Vorschlagsfilter::weggelassene() const
{
    Weglassgruppen alle;
    for (std::size_t i = 0; i < weglassgruppen.size(); ++i) {
        alle.setFlag(weglassgruppen[i].gruppe, m_gruppen[i]->isChecked());
    }
    return alle;
}

void Vorschlagsfilter::setzeWeggelassene(Weglassgruppen gruppen)
{
    for (std::size_t i = 0; i < weglassgruppen.size(); ++i) {
        const QSignalBlocker still(m_gruppen[i]);
        m_gruppen[i]->setChecked(gruppen.testFlag(weglassgruppen[i].gruppe));
    }
    klappe();
}

void Vorschlagsfilter::setzeGestrichene(const QStringList &schluessel)
{
    m_gestrichene = schluessel;
    m_gestrichene.removeDuplicates();
    fuelleGestrichene();
}

void Vorschlagsfilter::streiche(const QString &schluessel)
{
    setzeGestrichene(m_gestrichene + QStringList(schluessel));
    Q_EMIT geaendert();
}

/// The last one first: it is most likely the one that is wanted back.
void Vorschlagsfilter::fuelleGestrichene()
{
    m_gestrichenenwahl->clear();
    for (auto einer = m_gestrichene.crbegin(); einer != m_gestrichene.crend(); ++einer) {
        m_gestrichenenwahl->addItem(localizedString(*einer), *einer);
    }
    m_gestrichenenzeile->setVisible(!m_gestrichene.isEmpty());
}

void Vorschlagsfilter::nimmWiederAuf()
{
    if (m_gestrichene.removeOne(m_gestrichenenwahl->currentData().toString())) {
        fuelleGestrichene();
        if (m_gestrichene.isEmpty()) {
            m_klappe->setFocus(); // the button is gone
        }
        Q_EMIT geaendert();
    }
}

/// Unfolds the choices or folds them away, and says what is chosen.
void Vorschlagsfilter::klappe()
{
    const bool offen = m_klappe->isChecked();
    m_klappe->setArrowType(offen ? Qt::DownArrow : Qt::RightArrow);
    m_feld->setVisible(offen);
    m_worte->setText(worte());
    m_worte->setVisible(!offen && !m_worte->text().isEmpty());
    m_vorbehalt->setVisible(weggelassene() != Weglassgruppen());
}

/// "Nicht ungeeignet: Gicht. Ohne: Fisch und Meeresfrüchte."
QString Vorschlagsfilter::worte() const
{
    std::array<QStringList, wunschworte.size()> namen;
    for (std::size_t i = 0; i < anzahlWertungen; ++i) {
        const auto welcher = static_cast<std::size_t>(m_wuensche[i]->currentIndex());
        namen[welcher] << wort(wertungen[i].bezeichnung);
    }
    QStringList gruppen;
    for (const QCheckBox *eine : m_gruppen) {
        if (eine->isChecked()) {
            gruppen << eine->text();
        }
    }
    QStringList saetze;
    const auto sage = [&saetze](const char *satz, const QStringList &was) {
        if (!was.isEmpty()) {
            saetze << wort(satz).arg(was.join(QStringLiteral(", ")));
        }
    };
    sage(QT_TRANSLATE_NOOP("Mahlberg", "Nicht ungeeignet: %1."),
         namen[static_cast<std::size_t>(Wertungswunsch::NichtUngeeignet)]);
    sage(QT_TRANSLATE_NOOP("Mahlberg", "Geeignet: %1."),
         namen[static_cast<std::size_t>(Wertungswunsch::Geeignet)]);
    sage(QT_TRANSLATE_NOOP("Mahlberg", "Ohne: %1."), gruppen);
    return saetze.join(u' ');
}

void Vorschlagsfilter::folgeSprache()
{
    m_klappe->setText(localizedString(QStringLiteral("&Einschränken")));
    m_wertungskopf->setText(localizedString(QStringLiteral("Wertung der Vorschläge:")));
    m_gruppenkopf->setText(
        localizedString(QStringLiteral("Weglassen, auch wo es nur drin sein kann:")));
    m_vorbehalt->setText(localizedString(
        QStringLiteral("Das ersetzt keine Allergieberatung: Was drin ist, sagt das Etikett.")));
    for (std::size_t i = 0; i < anzahlWertungen; ++i) {
        m_wertungsnamen[i]->setText(wort(wertungen[i].bezeichnung));
        for (std::size_t j = 0; j < wunschworte.size(); ++j) {
            m_wuensche[i]->setItemText(static_cast<int>(j), wort(wunschworte[j]));
        }
    }
    for (std::size_t i = 0; i < weglassgruppen.size(); ++i) {
        m_gruppen[i]->setText(wort(weglassgruppen[i].bezeichnung));
    }
    m_gestrichenenkopf->setText(localizedString(QStringLiteral("Ge&strichen:")));
    m_aufnehmen->setText(localizedString(QStringLiteral("Wieder au&fnehmen")));
    fuelleGestrichene();
    klappe();
}
