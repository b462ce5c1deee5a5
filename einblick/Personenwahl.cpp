#include "Personenwahl.h"

#include "Referenzworte.h"
#include "Rollbereich.h"

#include "Zahlenform.h"
#include "Zahlenzeile.h"
#include "Zeichenkettentabelle.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QLabel>
#include <QRegularExpression>
#include <QToolButton>

#include <array>
#include <cmath>

namespace {

constexpr int hoechstesAlter = 120;
constexpr double hoechstesGewicht = 500; // kg
constexpr int ersterMonatDanach = 7;     // of lactation, after the first six
constexpr int zahlbreite = 8;            // letters
constexpr int wenigstens = 110;          // px of the fields that are seen at once

/// Between these ages, both included, menopause tells the values of a set apart.
constexpr int efsaVon = 18;
constexpr int dachVon = 19;
constexpr int dachBis = 64;

/// What stands in the choosers, in their order; the first one of most is that it is not known.
constexpr std::array<const char *, 3> geschlechter = {QT_TRANSLATE_NOOP("Mahlberg", "unbekannt"),
                                                      QT_TRANSLATE_NOOP("Mahlberg", "Frau"),
                                                      QT_TRANSLATE_NOOP("Mahlberg", "Mann")};
constexpr std::array<const char *, 3> zustaende = {QT_TRANSLATE_NOOP("Mahlberg", "keiner"),
                                                   QT_TRANSLATE_NOOP("Mahlberg", "schwanger"),
                                                   QT_TRANSLATE_NOOP("Mahlberg", "stillend")};
constexpr std::array<const char *, 4> trimester = {
    QT_TRANSLATE_NOOP("Mahlberg", "unbekannt"), QT_TRANSLATE_NOOP("Mahlberg", "1. Trimester"),
    QT_TRANSLATE_NOOP("Mahlberg", "2. Trimester"), QT_TRANSLATE_NOOP("Mahlberg", "3. Trimester")};
constexpr std::array<const char *, 3> stillmonate = {QT_TRANSLATE_NOOP("Mahlberg", "unbekannt"),
                                                     QT_TRANSLATE_NOOP("Mahlberg", "1.–6. Monat"),
                                                     QT_TRANSLATE_NOOP("Mahlberg", "ab 7. Monat")};
constexpr std::array<const char *, 3> menopausen = {QT_TRANSLATE_NOOP("Mahlberg", "unbekannt"),
                                                    QT_TRANSLATE_NOOP("Mahlberg", "noch nicht"),
                                                    QT_TRANSLATE_NOOP("Mahlberg", "vorüber")};

/// The printed activities, each with our word for it.
struct Aktivitaetsstufe
{
    double pal;
    const char *wort;       ///< key into the string table
    const char *erklaerung; ///< key as well
};
constexpr std::array<Aktivitaetsstufe, 4> stufen = {{
    {1.4, QT_TRANSLATE_NOOP("Mahlberg", "sitzend"), QT_TRANSLATE_NOOP("Mahlberg", "Meist sitzend")},
    {1.6, QT_TRANSLATE_NOOP("Mahlberg", "gemischt"),
     QT_TRANSLATE_NOOP("Mahlberg", "Sitzend, auch gehend und stehend")},
    {1.8, QT_TRANSLATE_NOOP("Mahlberg", "gehend"),
     QT_TRANSLATE_NOOP("Mahlberg", "Meist gehend oder stehend")},
    {2.0, QT_TRANSLATE_NOOP("Mahlberg", "schwer"),
     QT_TRANSLATE_NOOP("Mahlberg", "Körperlich schwere Arbeit")},
}};

template <std::size_t anzahl>
void fuelle(QComboBox &wahl, const std::array<const char *, anzahl> &worte)
{
    const int bisher = std::max(0, wahl.currentIndex());
    wahl.clear();
    for (const char *eines : worte) {
        wahl.addItem(localizedString(QString::fromUtf8(eines)));
    }
    wahl.setCurrentIndex(bisher);
}

QString zahltext(double zahl)
{
    return zahlenform().toString(zahl, 'g', QLocale::FloatingPointShortest);
}

/// What was typed: nothing, a number with a comma or a point, or something that is none.
struct Eingabe
{
    bool lesbar = true;
    std::optional<double> zahl = {};
};

Eingabe lies(const QLineEdit &feld)
{
    static const QRegularExpression zahl(
        QRegularExpression::anchoredPattern(QStringLiteral("[0-9]{1,5}([.,][0-9]{1,2})?")));
    QString text = feld.text().trimmed();
    if (text.isEmpty()) {
        return {};
    }
    if (!zahl.match(text).hasMatch()) {
        return {.lesbar = false};
    }
    return {.zahl = text.replace(u',', u'.').toDouble()};
}

bool istAlter(const Eingabe &eingabe)
{
    return eingabe.lesbar && (!eingabe.zahl || (*eingabe.zahl <= hoechstesAlter &&
                                                *eingabe.zahl == std::floor(*eingabe.zahl)));
}

bool istGewicht(const Eingabe &eingabe)
{
    return eingabe.lesbar &&
           (!eingabe.zahl || (*eingabe.zahl > 0 && *eingabe.zahl <= hoechstesGewicht));
}

} // namespace

Personenwahl::Personenwahl(QWidget *parent)
    : QWidget(parent)
    , m_kurz(new QLabel)
    , m_oeffner(new QToolButton)
    , m_formular(new QWidget)
    , m_zeilen(new QFormLayout(m_formular))
    , m_satz(neueWahl("satz"))
    , m_geschlecht(neueWahl("geschlecht"))
    , m_alter(neuesZahlfeld("alter"))
    , m_zustand(neueWahl("zustand"))
    , m_trimester(neueWahl("trimester"))
    , m_stillmonat(neueWahl("stillmonat"))
    , m_pal(neueWahl("pal"))
    , m_gewicht(neuesZahlfeld("gewicht"))
    , m_menopause(neueWahl("menopause"))
    , m_einwand(new QLabel)
    , m_zurueck(new QToolButton)
{
    baue();
    folgeSprache();
    oeffne(false);
}

QComboBox *Personenwahl::neueWahl(const char *name)
{
    auto *wahl = new QComboBox;
    wahl->setObjectName(QLatin1String(name));
    wahl->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    wahl->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(wahl, &QComboBox::activated, this, &Personenwahl::uebernimm);
    return wahl;
}

QLineEdit *Personenwahl::neuesZahlfeld(const char *name)
{
    auto *feld = new Zahlenzeile;
    feld->setObjectName(QLatin1String(name));
    feld->setMaximumWidth(zahlbreite * feld->fontMetrics().averageCharWidth() * 2);
    connect(feld, &QLineEdit::textEdited, this, &Personenwahl::pruefe);
    connect(feld, &QLineEdit::editingFinished, this, [this, feld] {
        if (feld->isModified()) {
            feld->setModified(false);
            uebernimm();
        }
    });
    return feld;
}

void Personenwahl::baue()
{
    m_kurz->setObjectName(QStringLiteral("kurz"));
    m_kurz->setTextFormat(Qt::PlainText);
    m_kurz->setWordWrap(true);
    m_oeffner->setObjectName(QStringLiteral("oeffner"));
    m_oeffner->setCheckable(true);
    m_oeffner->setFocusPolicy(Qt::StrongFocus);
    m_formular->setObjectName(QStringLiteral("formular"));
    m_einwand->setObjectName(QStringLiteral("einwand"));
    m_einwand->setTextFormat(Qt::PlainText);
    m_einwand->setWordWrap(true);
    m_zurueck->setObjectName(QStringLiteral("zurueck"));
    m_zurueck->setFocusPolicy(Qt::StrongFocus);
    m_zeilen->setContentsMargins(0, 0, 0, 0);
    m_zeilen->addRow(m_satz);
    for (QWidget *feld :
         std::initializer_list<QWidget *>{m_geschlecht, m_alter, m_zustand, m_trimester,
                                          m_stillmonat, m_pal, m_gewicht, m_menopause}) {
        m_zeilen->addRow(QStringLiteral("-"), feld);
    }
    m_zeilen->addRow(m_einwand);
    m_zeilen->addRow(m_zurueck);
    m_bereich = new Rollbereich(m_formular);
    m_bereich->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    auto *kopf = new QHBoxLayout;
    kopf->addWidget(m_kurz, 1);
    kopf->addWidget(m_oeffner, 0, Qt::AlignTop);
    auto *anordnung = new QVBoxLayout(this);
    anordnung->setContentsMargins(0, 0, 0, 0);
    anordnung->addLayout(kopf);
    anordnung->addWidget(m_bereich);
    connect(m_oeffner, &QToolButton::toggled, this, &Personenwahl::oeffne);
    connect(m_zurueck, &QToolButton::clicked, this, [this] {
        setPerson(m_vorgabe);
        m_geschlecht->setFocus();
        Q_EMIT geaendert();
    });
}

void Personenwahl::folgeSprache()
{
    const auto benenne = [this](QWidget *feld, const QString &text) {
        auto *beschriftung = qobject_cast<QLabel *>(m_zeilen->labelForField(feld));
        beschriftung->setText(text);
        beschriftung->setBuddy(feld);
    };
    m_satz->setAccessibleName(localizedString(QStringLiteral("Maßstab")));
    benenne(m_geschlecht, localizedString(QStringLiteral("&Geschlecht:")));
    benenne(m_alter, localizedString(QStringLiteral("&Alter (Jahre):")));
    benenne(m_zustand, localizedString(QStringLiteral("Zustan&d:")));
    benenne(m_trimester, localizedString(QStringLiteral("Tr&imester:")));
    benenne(m_stillmonat, localizedString(QStringLiteral("St&illzeit:")));
    benenne(m_pal, localizedString(QStringLiteral("A&ktivität (PAL):")));
    benenne(m_gewicht, localizedString(QStringLiteral("Gewi&cht (kg):")));
    benenne(m_menopause, localizedString(QStringLiteral("Men&opause:")));
    m_zurueck->setText(localizedString(QStringLiteral("Angaben z&urücksetzen")));
    m_zurueck->setToolTip(
        localizedString(QStringLiteral("Wieder so, wie sie vom Klienten und Rechner kommen")));
    fuelleWahlen();
    zeigePerson();
    oeffne(m_oeffner->isChecked());
}

void Personenwahl::fuelleWahlen()
{
    const int gewaehlt = std::max(0, m_satz->currentIndex());
    m_satz->clear();
    m_satz->addItem(Referenzworte::satz({}));
    for (const Referenzsatz einer : {Referenzsatz::Efsa, Referenzsatz::Dach}) {
        m_satz->addItem(Referenzworte::satz(einer));
    }
    m_satz->setItemData(1,
                        localizedString(QStringLiteral("Europäische Behörde für "
                                                       "Lebensmittelsicherheit")),
                        Qt::ToolTipRole);
    m_satz->setItemData(
        2,
        localizedString(QStringLiteral("Fachgesellschaften in Deutschland, Österreich und der "
                                       "Schweiz")),
        Qt::ToolTipRole);
    m_satz->setCurrentIndex(gewaehlt);
    fuelle(*m_geschlecht, geschlechter);
    fuelle(*m_zustand, zustaende);
    fuelle(*m_trimester, trimester);
    fuelle(*m_stillmonat, stillmonate);
    fuelle(*m_menopause, menopausen);
}

/// The printed activities, and that of the person where it is another one.
void Personenwahl::zeigePal()
{
    m_pal->clear();
    m_pal->addItem(localizedString(QStringLiteral("unbekannt")));
    for (const Aktivitaetsstufe &stufe : stufen) {
        m_pal->addItem(
            QStringLiteral("%1 – %2").arg(zahlenform().toString(stufe.pal, 'f', 1),
                                          localizedString(QString::fromUtf8(stufe.wort))),
            stufe.pal);
        m_pal->setItemData(m_pal->count() - 1, localizedString(QString::fromUtf8(stufe.erklaerung)),
                           Qt::ToolTipRole);
    }
    if (!m_person.pal) {
        return;
    }
    if (m_pal->findData(*m_person.pal) < 0) {
        m_pal->addItem(zahltext(*m_person.pal), *m_person.pal);
    }
    m_pal->setCurrentIndex(m_pal->findData(*m_person.pal));
}

void Personenwahl::setPerson(const Referenzperson &bekannt, const Referenzperson &getippt)
{
    m_vorgabe = bekannt;
    m_person = getippt;
    zeigePerson();
}

std::optional<Referenzsatz> Personenwahl::satz() const
{
    const int stelle = m_satz->currentIndex();
    return stelle > 0 ? std::optional(static_cast<Referenzsatz>(stelle - 1)) : std::nullopt;
}

void Personenwahl::setSatz(std::optional<Referenzsatz> satz)
{
    m_satz->setCurrentIndex(satz ? static_cast<int>(*satz) + 1 : 0);
    stelleZeilen();
    sagWas();
}

void Personenwahl::zeigePerson()
{
    m_geschlecht->setCurrentIndex(!m_person.geschlecht                               ? 0
                                  : *m_person.geschlecht == Referenzgeschlecht::Frau ? 1
                                                                                     : 2);
    m_alter->setText(m_person.alter ? QString::number(*m_person.alter) : QString());
    m_zustand->setCurrentIndex(static_cast<int>(m_person.zustand));
    m_trimester->setCurrentIndex(m_person.trimester.value_or(0));
    m_stillmonat->setCurrentIndex(!m_person.stillmonat                       ? 0
                                  : *m_person.stillmonat < ersterMonatDanach ? 1
                                                                             : 2);
    zeigePal();
    m_gewicht->setText(m_person.gewicht ? zahltext(*m_person.gewicht) : QString());
    m_menopause->setCurrentIndex(!m_person.nachMenopause ? 0 : *m_person.nachMenopause ? 2 : 1);
    pruefe();
    stelleZeilen();
    sagWas();
}

/// What the fields say; a field in which something stands that can't be leaves what was before.
Referenzperson Personenwahl::gelesene() const
{
    Referenzperson person = m_person;
    person.energiebedarf.reset();
    person.geschlecht.reset();
    if (m_geschlecht->currentIndex() > 0) {
        person.geschlecht =
            m_geschlecht->currentIndex() == 1 ? Referenzgeschlecht::Frau : Referenzgeschlecht::Mann;
    }
    if (const Eingabe alter = lies(*m_alter); istAlter(alter)) {
        person.alter = alter.zahl ? std::optional(static_cast<int>(*alter.zahl)) : std::nullopt;
    }
    if (const Eingabe gewicht = lies(*m_gewicht); istGewicht(gewicht)) {
        person.gewicht = gewicht.zahl;
    }
    const bool mann = person.geschlecht == Referenzgeschlecht::Mann;
    person.zustand =
        mann ? Referenzzustand::Keiner : static_cast<Referenzzustand>(m_zustand->currentIndex());
    person.trimester.reset();
    if (person.zustand == Referenzzustand::Schwanger && m_trimester->currentIndex() > 0) {
        person.trimester = m_trimester->currentIndex();
    }
    const int gruppe =
        person.zustand == Referenzzustand::Stillend ? m_stillmonat->currentIndex() : 0;
    const bool bisher = gruppe > 0 && m_person.stillmonat &&
                        (*m_person.stillmonat < ersterMonatDanach) == (gruppe == 1);
    if (!bisher) {
        person.stillmonat = gruppe == 0   ? std::nullopt
                            : gruppe == 1 ? std::optional(1)
                                          : std::optional(ersterMonatDanach);
    }
    const QVariant pal = m_pal->currentData();
    person.pal = pal.isValid() ? std::optional(pal.toDouble()) : std::nullopt;
    person.nachMenopause.reset();
    if (!mann && m_menopause->currentIndex() > 0) {
        person.nachMenopause = m_menopause->currentIndex() == 2;
    }
    return person;
}

/// What was worked out for the client holds only for the client.
void Personenwahl::uebernimm()
{
    Referenzperson vorgabe = m_vorgabe;
    vorgabe.energiebedarf.reset();
    m_person = gelesene();
    if (m_person == vorgabe) {
        m_person.energiebedarf = m_vorgabe.energiebedarf;
    }
    pruefe();
    stelleZeilen();
    sagWas();
    Q_EMIT geaendert();
}

bool Personenwahl::fragtMenopause() const
{
    if (!satz() || !m_person.alter || m_person.geschlecht != Referenzgeschlecht::Frau ||
        m_person.zustand != Referenzzustand::Keiner) {
        return false;
    }
    return *satz() == Referenzsatz::Efsa ? *m_person.alter >= efsaVon
                                         : *m_person.alter >= dachVon && *m_person.alter <= dachBis;
}

/// Only what is asked for by what stands in the other fields.
void Personenwahl::stelleZeilen()
{
    const bool mitPerson = satz().has_value();
    const bool mann = m_person.geschlecht == Referenzgeschlecht::Mann;
    for (QWidget *feld :
         std::initializer_list<QWidget *>{m_geschlecht, m_alter, m_pal, m_gewicht}) {
        m_zeilen->setRowVisible(feld, mitPerson);
    }
    m_zeilen->setRowVisible(m_zustand, mitPerson && !mann);
    m_zeilen->setRowVisible(m_trimester,
                            mitPerson && m_person.zustand == Referenzzustand::Schwanger);
    m_zeilen->setRowVisible(m_stillmonat,
                            mitPerson && m_person.zustand == Referenzzustand::Stillend);
    m_zeilen->setRowVisible(m_menopause, fragtMenopause());
    m_zeilen->setRowVisible(m_einwand, mitPerson && !m_einwand->text().isEmpty());
    m_zeilen->setRowVisible(m_zurueck, mitPerson && !(m_person == m_vorgabe));
    // With large letters on a small screen many fields roll; the chooser alone takes its own room.
    m_bereich->setMinimumHeight(mitPerson ? wenigstens : 0);
}

void Personenwahl::sagWas()
{
    m_kurz->setText(Referenzworte::kurzfassung(satz(), m_person));
}

/// Says letter by letter what can't be, and what holds meanwhile.
void Personenwahl::pruefe()
{
    QStringList saetze;
    if (!istAlter(lies(*m_alter))) {
        saetze << localizedString(QStringLiteral("⚠ Das Alter ist eine ganze Zahl von 0 bis %1."))
                      .arg(hoechstesAlter);
    }
    if (!istGewicht(lies(*m_gewicht))) {
        saetze << localizedString(
                      QStringLiteral("⚠ Das Gewicht liegt über 0 und bis %1 kg, etwa 64,5."))
                      .arg(hoechstesGewicht);
    }
    if (!saetze.isEmpty()) {
        saetze << localizedString(QStringLiteral("Bis dahin gilt, was oben steht."));
    }
    m_einwand->setText(saetze.join(u'\n'));
    m_alter->setAccessibleDescription(m_einwand->text());
    m_gewicht->setAccessibleDescription(m_einwand->text());
    m_zeilen->setRowVisible(m_einwand, satz() && !saetze.isEmpty());
}

void Personenwahl::oeffne(bool offen)
{
    m_bereich->setVisible(offen);
    m_oeffner->setChecked(offen);
    m_oeffner->setArrowType(offen ? Qt::UpArrow : Qt::DownArrow);
    m_oeffner->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_oeffner->setText(offen ? localizedString(QStringLiteral("Einklappen"))
                             : localizedString(QStringLiteral("Ändern")));
    m_oeffner->setAccessibleName(localizedString(QStringLiteral("Maßstab und Person ändern")));
}
