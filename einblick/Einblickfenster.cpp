#include "Einblickfenster.h"

#include "Beitragsblatt.h"
#include "Referenzblatt.h"
#include "Schriftstufe.h"
#include "Vorschlagsblatt.h"
#include "Zahlenblatt.h"
#include "Zeichenkettentabelle.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QSettings>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

constexpr QSize fenstergroesse(500, 700); // suggestions with their effect and buttons
const QString satzschluessel = QStringLiteral("Einblick/Satz");

/// In the order of `Gegenstand`.
constexpr std::array<const char *, 4> gegenstaende = {
    QT_TRANSLATE_NOOP("Mahlberg", "Lebensmittel"), QT_TRANSLATE_NOOP("Mahlberg", "Plan"),
    QT_TRANSLATE_NOOP("Mahlberg", "Tag"), QT_TRANSLATE_NOOP("Mahlberg", "Mittel der Tage")};

/// In the order of `alleBlaetter`.
constexpr std::array<const char *, 4> reiter = {
    QT_TRANSLATE_NOOP("Mahlberg", "&Referenzwerte"), QT_TRANSLATE_NOOP("Mahlberg", "&Beiträge"),
    QT_TRANSLATE_NOOP("Mahlberg", "Was &hilft"), QT_TRANSLATE_NOOP("Mahlberg", "&Weitere Werte")};

/// How the settings call the sets, in the order of `Referenzsatz`.
constexpr std::array<const char *, 2> satznamen = {"EFSA", "D-A-CH"};

QString kennungVon(const std::optional<Referenzsatz> &satz)
{
    return satz ? QLatin1String(satznamen.at(static_cast<std::size_t>(*satz))) : QString();
}

/// Absent for anything else: the general needs.
std::optional<Referenzsatz> satzVon(const QString &kennung)
{
    for (const Referenzsatz satz : {Referenzsatz::Efsa, Referenzsatz::Dach}) {
        if (kennung == kennungVon(satz)) {
            return satz;
        }
    }
    return std::nullopt;
}

} // namespace

Einblickfenster::Einblickfenster(Einblicktueren tueren, QWidget *parent)
    : QDialog(parent, Qt::Window) // desktops put a dialog into the middle, over what it is about
    , personenwahl(new Personenwahl)
    , blaetter(new QTabWidget)
    , referenzblatt(new Referenzblatt)
    , beitragsblatt(new Beitragsblatt)
    , vorschlagsblatt(new Vorschlagsblatt(tueren.kandidaten))
    , zahlenblatt(new Zahlenblatt)
    , hinweise(new Hinweisstreifen)
    , m_tueren(std::move(tueren))
    , m_frage(new QLabel)
    , m_gegenstand(new QComboBox)
    , m_titel(new QLabel)
{
    setObjectName(QStringLiteral("einblickfenster"));
    baue();
    beschrifte();
    if (m_tueren.einstellungen != nullptr) {
        personenwahl->setSatz(satzVon(m_tueren.einstellungen->value(satzschluessel).toString()));
    }
    connect(m_gegenstand, &QComboBox::activated, this, &Einblickfenster::frischeAuf);
    connect(personenwahl, &Personenwahl::geaendert, this, [this] {
        if (m_tueren.einstellungen != nullptr) {
            m_tueren.einstellungen->setValue(satzschluessel, kennungVon(personenwahl->satz()));
        }
        zeigeStand();
    });
    for (Einblickblatt *blatt : alleBlaetter()) {
        connect(blatt, &Einblickblatt::zeileGewuenscht, this,
                [this](int ort) { Q_EMIT zeileGewuenscht(gegenstand(), ort); });
        connect(
            blatt, &Einblickblatt::aenderungGewuenscht, this,
            [this](const Speisenaenderung &was) { Q_EMIT aenderungGewuenscht(gegenstand(), was); });
    }
}

QList<Einblickblatt *> Einblickfenster::alleBlaetter() const
{
    return {referenzblatt, beitragsblatt, vorschlagsblatt, zahlenblatt};
}

void Einblickfenster::baue()
{
    m_gegenstand->setObjectName(QStringLiteral("gegenstand"));
    for (std::size_t i = 0; i < gegenstaende.size(); ++i) {
        m_gegenstand->addItem(QString());
    }
    m_frage->setBuddy(m_gegenstand);
    m_titel->setObjectName(QStringLiteral("titel"));
    m_titel->setTextFormat(Qt::PlainText);
    m_titel->setWordWrap(true);
    blaetter->setObjectName(QStringLiteral("blaetter"));
    blaetter->setUsesScrollButtons(true);
    for (Einblickblatt *blatt : alleBlaetter()) {
        blaetter->addTab(blatt, QString());
    }
    auto *kopf = new QHBoxLayout;
    kopf->addWidget(m_frage);
    kopf->addWidget(m_gegenstand, 1);
    auto *anordnung = new QVBoxLayout(this);
    anordnung->addLayout(kopf);
    anordnung->addWidget(m_titel);
    anordnung->addWidget(personenwahl);
    anordnung->addWidget(blaetter, 1);
    anordnung->addWidget(hinweise);
    resize(fenstergroesse);
    Schriftstufe::kleide(*this);
}

void Einblickfenster::beschrifte()
{
    setWindowTitle(localizedString(QStringLiteral("Einblick")));
    m_frage->setText(localizedString(QStringLiteral("Einb&lick in:")));
    for (int i = 0; i < m_gegenstand->count(); ++i) {
        m_gegenstand->setItemText(
            i, localizedString(QString::fromUtf8(gegenstaende.at(static_cast<std::size_t>(i)))));
    }
    for (int i = 0; i < blaetter->count(); ++i) {
        blaetter->setTabText(
            i, localizedString(QString::fromUtf8(reiter.at(static_cast<std::size_t>(i)))));
    }
}

Gegenstand Einblickfenster::gegenstand() const
{
    return static_cast<Gegenstand>(m_gegenstand->currentIndex());
}

void Einblickfenster::zeige(Gegenstand gegenstand)
{
    m_gegenstand->setCurrentIndex(static_cast<int>(gegenstand));
    frischeAuf();
    show();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

void Einblickfenster::frischeAuf()
{
    m_stand = m_tueren.stand(gegenstand());
    zeigeStand();
}

void Einblickfenster::setzeKlient(const Referenzperson &person,
                                  const std::array<bool, anzahlWertungen> &leiden)
{
    m_leiden = leiden;
    personenwahl->setPerson(person);
    zeigeStand();
}

void Einblickfenster::setzeLeiden(const std::array<bool, anzahlWertungen> &leiden)
{
    m_leiden = leiden;
    zeigeStand();
}

void Einblickfenster::folgePerson(const Referenzperson &bekannt, const Referenzperson &getippt)
{
    personenwahl->setPerson(bekannt, getippt);
    zeigeStand();
}

/// The sheets get what counts, and for whom.
void Einblickfenster::zeigeStand()
{
    const std::optional<Referenzsatz> satz = personenwahl->satz();
    // The general needs are nobody's: what was typed for a set is not to be seen beside them.
    m_stand.person = satz ? personenwahl->person() : personenwahl->bekannte();
    m_stand.leiden = m_leiden;
    m_stand.referenz =
        satz ? referenzwerte(m_tueren.referenz, *satz, m_stand.person) : Referenzwerte();
    m_stand.ziele = satz ? zielbereiche(m_stand.referenz) : m_tueren.allgemeineZiele();
    zeigeTitel();
    for (Einblickblatt *blatt : alleBlaetter()) {
        blatt->zeige(m_stand);
    }
}

/// What it is about, and what of it does not count.
void Einblickfenster::zeigeTitel()
{
    QStringList teile = {m_stand.titel};
    if (m_stand.ungezaehlt > 0) {
        teile << localizedString(QStringLiteral("Zeilen, die nicht zählen, weil Lebensmittel oder "
                                                "Menge unbekannt sind: %1."))
                     .arg(m_stand.ungezaehlt);
    }
    m_titel->setText(teile.join(u'\n'));
}

void Einblickfenster::folgeSprache()
{
    beschrifte();
    personenwahl->folgeSprache();
    for (Einblickblatt *blatt : alleBlaetter()) {
        blatt->folgeSprache();
    }
    frischeAuf();
}
