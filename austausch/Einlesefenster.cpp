#include "Einlesefenster.h"

#include "Einwandliste.h"
#include "Rollbereich.h"
#include "Sperrgrund.h"
#include "Tabellenkopie.h"
#include "Vorschautabelle.h"
#include "Zeichenkettentabelle.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr QSize fenstergroesse(900, 640);
constexpr int vorschauhoehe = 200;
constexpr int einwandhoehe = 110;
constexpr double schwerstePortion = 10'000; // g

enum Dezimalwahl { jeSpalte, komma, punkt };
enum Bezugswahl { hundertGramm, portion };

QString satz(const char *text)
{
    return localizedString(QString::fromUtf8(text));
}

QComboBox *auswahl(const QString &name, const QStringList &eintraege)
{
    auto *neue = new QComboBox;
    neue->setObjectName(name);
    neue->addItems(eintraege);
    return neue;
}

/// A caption with its field behind it, and the letter that leads there.
void stelle(QBoxLayout &reihe, const QString &text, QWidget *feld)
{
    auto *beschriftung = new QLabel(text);
    beschriftung->setBuddy(feld);
    reihe.addWidget(beschriftung);
    reihe.addWidget(feld);
}

/// Where the first row holds a number, it is a food and no heading.
bool hatUeberschriften(const QList<Csv::Satz> &saetze)
{
    const QStringList erste = saetze.isEmpty() ? QStringList() : saetze.first().felder;
    return std::none_of(erste.begin(), erste.end(), [](const QString &feld) {
        return doppelteZahl(feld, Zahlenschrift::Komma) || doppelteZahl(feld, Zahlenschrift::Punkt);
    });
}

/// Spreadsheets that part fields with semicolons have commas before the decimals.
Zahlenschrift schriftZu(QChar trennung)
{
    const bool komma = trennung == u';' || (trennung != u',' && QLocale().decimalPoint() == u',');
    return komma ? Zahlenschrift::Komma : Zahlenschrift::Punkt;
}

} // namespace

Einlesefenster::Einlesefenster(const Einlesevorgabe &vorgabe, QWidget *parent)
    : QDialog(parent)
    , m_vorgabe(vorgabe)
{
    setObjectName(QStringLiteral("einlesen"));
    setWindowTitle(satz(QT_TRANSLATE_NOOP("Mahlberg", "Lebensmittel einlesen")));
    auto *aufbau = new QVBoxLayout(this);
    aufbau->addWidget(formteil());
    m_vorschau = new Vorschautabelle;
    m_vorschau->setMinimumHeight(vorschauhoehe);
    Tabellenkopie::ermoegliche(*m_vorschau);
    aufbau->addWidget(m_vorschau, 2);
    aufbau->addWidget(unterteil(), 1);
    Rollbereich::fasse(*this);
    m_uebernehmen->setDefault(true); // only now it is the window's: else Return would cancel
    resize(fenstergroesse);
    m_trennung->setCurrentIndex(static_cast<int>(
        qMax(0, Csv::trennungen().indexOf(Csv::geratenesTrennzeichen(vorgabe.text.text)))));
    zerlege();
    verbinde();
}

QWidget *Einlesefenster::formteil()
{
    auto *teil = new QWidget;
    auto *zeilen = new QVBoxLayout(teil);
    zeilen->setContentsMargins(0, 0, 0, 0);
    auto *datei =
        new QLabel(QStringLiteral("%1 (%2)").arg(m_vorgabe.datei, m_vorgabe.text.zeichensatz));
    datei->setObjectName(QStringLiteral("datei"));
    datei->setTextFormat(Qt::PlainText); // a file may be called anything
    datei->setWordWrap(true);
    zeilen->addWidget(datei);
    auto *erste = new QHBoxLayout;
    auto *zweite = new QHBoxLayout;
    fuelleForm(*erste, *zweite);
    for (QHBoxLayout *reihe : {erste, zweite}) {
        reihe->addStretch();
        zeilen->addLayout(reihe);
    }
    return teil;
}

void Einlesefenster::fuelleForm(QBoxLayout &erste, QBoxLayout &zweite)
{
    m_trennung = auswahl(QStringLiteral("trennung"),
                         {satz(QT_TRANSLATE_NOOP("Mahlberg", "Strichpunkt ;")),
                          satz(QT_TRANSLATE_NOOP("Mahlberg", "Komma ,")),
                          satz(QT_TRANSLATE_NOOP("Mahlberg", "Tabulator")),
                          satz(QT_TRANSLATE_NOOP("Mahlberg", "Senkrechter Strich |"))});
    m_dezimal = auswahl(QStringLiteral("dezimal"),
                        {satz(QT_TRANSLATE_NOOP("Mahlberg", "je Spalte erkannt")),
                         satz(QT_TRANSLATE_NOOP("Mahlberg", "Komma ,")),
                         satz(QT_TRANSLATE_NOOP("Mahlberg", "Punkt ."))});
    m_ueberschriften =
        new QCheckBox(satz(QT_TRANSLATE_NOOP("Mahlberg", "&Erste Zeile sind Überschriften")));
    m_ueberschriften->setObjectName(QStringLiteral("ueberschriften"));
    m_bezug =
        auswahl(QStringLiteral("bezug"), {satz(QT_TRANSLATE_NOOP("Mahlberg", "100 g")),
                                          satz(QT_TRANSLATE_NOOP("Mahlberg", "eine Portion"))});
    m_portion = new QDoubleSpinBox;
    m_portion->setObjectName(QStringLiteral("portion"));
    m_portion->setRange(0, schwerstePortion);
    m_portion->setDecimals(1);
    m_portion->setSuffix(QStringLiteral(" g"));
    stelle(erste, satz(QT_TRANSLATE_NOOP("Mahlberg", "&Trennzeichen:")), m_trennung);
    stelle(erste, satz(QT_TRANSLATE_NOOP("Mahlberg", "&Dezimalzeichen:")), m_dezimal);
    erste.addWidget(m_ueberschriften);
    stelle(zweite, satz(QT_TRANSLATE_NOOP("Mahlberg", "&Werte gelten für:")), m_bezug);
    stelle(zweite, satz(QT_TRANSLATE_NOOP("Mahlberg", "&Gewicht der Portion:")), m_portion);
    new Sperrgrund(m_portion,
                   satz(QT_TRANSLATE_NOOP("Mahlberg", "Nur für Werte einer Portion, deren Gewicht "
                                                      "in keiner Spalte steht.")));
}

QWidget *Einlesefenster::unterteil()
{
    auto *teil = new QWidget;
    auto *zeilen = new QVBoxLayout(teil);
    zeilen->setContentsMargins(0, 0, 0, 0);
    m_namensteil = new QWidget;
    auto *namen = new QHBoxLayout(m_namensteil);
    namen->setContentsMargins(0, 0, 0, 0);
    m_namenswahl = auswahl(QStringLiteral("namenswahl"),
                           {satz(QT_TRANSLATE_NOOP("Mahlberg", "eigene ersetzen")),
                            satz(QT_TRANSLATE_NOOP("Mahlberg", "überspringen")),
                            satz(QT_TRANSLATE_NOOP("Mahlberg", "unter neuem Namen dazu"))});
    m_namenswahl->setCurrentIndex(static_cast<int>(Namensgleich::Ueberspringen));
    m_namensworte = new QLabel;
    m_namensworte->setObjectName(QStringLiteral("namensworte"));
    m_namensworte->setTextFormat(Qt::PlainText);
    m_namensworte->setBuddy(m_namenswahl);
    namen->addWidget(m_namensworte);
    namen->addWidget(m_namenswahl);
    namen->addStretch();
    zeilen->addWidget(m_namensteil);
    m_worte = new QLabel;
    m_worte->setObjectName(QStringLiteral("worte"));
    m_worte->setWordWrap(true);
    zeilen->addWidget(m_worte);
    m_einwaende = new Einwandliste;
    m_einwaende->setMinimumHeight(einwandhoehe);
    zeilen->addWidget(m_einwaende, 1);
    zeilen->addLayout(knoepfe());
    return teil;
}

QBoxLayout *Einlesefenster::knoepfe()
{
    m_weglassen =
        new QPushButton(satz(QT_TRANSLATE_NOOP("Mahlberg", "&Fehlerhafte Zeilen weglassen")));
    m_weglassen->setObjectName(QStringLiteral("weglassen"));
    m_weglassen->setAutoDefault(false); // Return in a field is no wish to lose lines
    new Sperrgrund(m_weglassen, satz(QT_TRANSLATE_NOOP("Mahlberg", "Keine Zeile ist fehlerhaft.")));
    m_abbrechen = new QPushButton(satz(QT_TRANSLATE_NOOP("Mahlberg", "Abbrechen")));
    m_uebernehmen = new QPushButton;
    m_uebernehmen->setObjectName(QStringLiteral("uebernehmen"));
    auto *reihe = new QHBoxLayout;
    reihe->addWidget(m_weglassen);
    reihe->addStretch();
    reihe->addWidget(m_abbrechen);
    reihe->addWidget(m_uebernehmen);
    connect(m_uebernehmen, &QPushButton::clicked, this, &Einlesefenster::uebernimm);
    connect(m_abbrechen, &QPushButton::clicked, this, &QDialog::reject);
    return reihe;
}

void Einlesefenster::verbinde()
{
    connect(m_trennung, &QComboBox::currentIndexChanged, this, &Einlesefenster::zerlege);
    connect(m_ueberschriften, &QCheckBox::toggled, this, &Einlesefenster::deute);
    connect(m_vorschau, &Vorschautabelle::gewaehlt, this, &Einlesefenster::lies);
    for (const QComboBox *wahl : {m_dezimal, m_bezug}) {
        connect(wahl, &QComboBox::currentIndexChanged, this, &Einlesefenster::lies);
    }
    connect(m_portion, &QDoubleSpinBox::valueChanged, this, &Einlesefenster::lies);
    connect(m_namenswahl, &QComboBox::currentIndexChanged, this, &Einlesefenster::zeigeAnzahl);
    connect(m_einwaende, &Einwandliste::ausgelassen, this, &Einlesefenster::lasseAus,
            Qt::QueuedConnection); // the list is filled anew, and the entry is gone then
    connect(m_weglassen, &QPushButton::clicked, this, &Einlesefenster::lasseFehlerhafteAus);
}

/// Another separator makes other columns.
void Einlesefenster::zerlege()
{
    m_saetze = Csv::zerlegen(m_vorgabe.text.text, Csv::trennungen().at(m_trennung->currentIndex()));
    m_ausgelassen.clear();
    const QSignalBlocker still(m_ueberschriften);
    m_ueberschriften->setChecked(hatUeberschriften(m_saetze.saetze));
    deute();
}

void Einlesefenster::deute()
{
    const QStringList erste =
        m_saetze.saetze.isEmpty() ? QStringList() : m_saetze.saetze.first().felder;
    const Spaltendeutung deutung = deuteUeberschriften(erste);
    const bool kopf = m_ueberschriften->isChecked();
    const QSignalBlocker still(m_bezug);
    m_bezug->setCurrentIndex(kopf && deutung.jePortion ? portion : hundertGramm);
    m_vorschau->setSpalten(kopf ? erste : QStringList(),
                           kopf ? deutung.spalten : QList<Spaltensinn>(erste.size()));
    ordneTasten();
    lies();
}

/// The choosers of the columns come and go; the keyboard finds them above the rows.
void Einlesefenster::ordneTasten()
{
    QWidgetList folge = {m_trennung, m_dezimal, m_ueberschriften, m_bezug, m_portion};
    for (QComboBox *wahl : m_vorschau->wahlen()) {
        folge << wahl;
    }
    folge << m_vorschau << m_namenswahl << m_einwaende << m_weglassen << m_abbrechen
          << m_uebernehmen;
    for (qsizetype i = 1; i < folge.size(); ++i) {
        setTabOrder(folge[i - 1], folge[i]);
    }
}

Leseauftrag Einlesefenster::auftrag() const
{
    Leseauftrag auftrag;
    auftrag.ueberschriften = m_ueberschriften->isChecked();
    auftrag.spalten = m_vorschau->spalten();
    if (m_dezimal->currentIndex() != jeSpalte) {
        auftrag.schrift =
            m_dezimal->currentIndex() == komma ? Zahlenschrift::Komma : Zahlenschrift::Punkt;
    }
    auftrag.sonst = schriftZu(Csv::trennungen().at(m_trennung->currentIndex()));
    auftrag.jePortion = m_bezug->currentIndex() == portion;
    auftrag.portion = m_portion->value();
    auftrag.ausgelassen = m_ausgelassen;
    return auftrag;
}

void Einlesefenster::lies()
{
    m_einlesung = liesEin(m_saetze.saetze, auftrag(), m_vorgabe.eingebaute);
    QList<Einwand> &alle = m_einlesung.einwaende;
    if (m_saetze.fehler == Csv::Lesefehler::ZuVieleZeilen) {
        alle.prepend({Schwere::Fehler, 0,
                      satz(QT_TRANSLATE_NOOP("Mahlberg", "Die Datei hat mehr als %1 Zeilen."))
                          .arg(Csv::meisteZeilen)});
    }
    if (m_saetze.offeneZeile > 0) {
        alle.prepend({Schwere::Fehler, 0,
                      satz(QT_TRANSLATE_NOOP("Mahlberg", "In Zeile %1 beginnt ein "
                                                         "Anführungszeichen, das nicht endet."))
                          .arg(m_saetze.offeneZeile)});
    }
    zeige();
}

void Einlesefenster::zeige()
{
    const Leseauftrag gelesen = auftrag();
    const bool spalte =
        std::any_of(gelesen.spalten.begin(), gelesen.spalten.end(),
                    [](const Spaltensinn &sinn) { return sinn.art == Spaltensinn::Art::Portion; });
    m_portion->setEnabled(gelesen.jePortion && !spalte);
    m_vorschau->zeige(m_saetze.saetze, gelesen, m_einlesung);
    m_einwaende->zeige(m_einlesung.einwaende, m_ausgelassen);
    m_weglassen->setEnabled(
        std::any_of(m_einlesung.zeilen.begin(), m_einlesung.zeilen.end(),
                    [](const Lesezeile &zeile) { return zeile.fehlerhaft && !zeile.ausgelassen; }));
    zeigeNamen();
    zeigeAnzahl();
}

/// The choice is there as long as there is something to choose.
void Einlesefenster::zeigeNamen()
{
    const QStringList namen =
        vergebeneNamen(m_vorgabe.eigene.verzeichnis, m_einlesung.lebensmittel());
    if (!namen.isEmpty()) { // its place stays when it goes: what is ticked below must not move
        QSizePolicy platz = m_namensteil->sizePolicy();
        platz.setRetainSizeWhenHidden(true);
        m_namensteil->setSizePolicy(platz);
    }
    m_namensteil->setVisible(!namen.isEmpty());
    m_namensworte->setText(
        namen.size() == 1
            ? satz(QT_TRANSLATE_NOOP("Mahlberg", "1 &Name ist unter den eigenen schon vergeben:"))
            : satz(
                  QT_TRANSLATE_NOOP("Mahlberg", "%1 &Namen sind unter den eigenen schon vergeben:"))
                  .arg(namen.size()));
    constexpr qsizetype gezeigt = 20;
    m_namensworte->setToolTip((namen.first(qMin(namen.size(), gezeigt)).join(u'\n') +
                               (namen.size() > gezeigt ? QStringLiteral("\n…") : QString()))
                                  .toHtmlEscaped()
                                  .replace(u'\n', QLatin1String("<br>")));
}

Uebernahme Einlesefenster::uebernahme() const
{
    return ::uebernimm(m_vorgabe.eigene, m_einlesung.lebensmittel(),
                       {.sonst = static_cast<Namensgleich>(m_namenswahl->currentIndex())});
}

/// What the button would do, or why it can't.
void Einlesefenster::zeigeAnzahl()
{
    const qsizetype fehler = m_einlesung.fehler();
    const Uebernahme was = uebernahme();
    const qsizetype anzahl = was.anzahl();
    QStringList worte = {satz(QT_TRANSLATE_NOOP("Mahlberg", "Neu: %1, ersetzt: %2, übersprungen: "
                                                            "%3, schon vorhanden: %4."))
                             .arg(was.neu.size())
                             .arg(was.ersetzt.size())
                             .arg(was.uebersprungen.size())
                             .arg(was.gleich.size())};
    if (fehler > 0) {
        worte = QStringList{
            satz(QT_TRANSLATE_NOOP("Mahlberg", "Fehler: %1. Solange einer da ist, wird nichts "
                                               "übernommen. Wählen Sie die Spalte anders, oder "
                                               "kreuzen Sie die Zeile an, damit sie wegbleibt."))
                .arg(fehler)};
    } else if (anzahl == 0) {
        worte << satz(QT_TRANSLATE_NOOP("Mahlberg", "Es gibt nichts zu übernehmen."));
    }
    m_worte->setText(worte.join(u' '));
    m_uebernehmen->setText(
        anzahl == 1
            ? satz(QT_TRANSLATE_NOOP("Mahlberg", "1 Lebensmittel &übernehmen"))
            : satz(QT_TRANSLATE_NOOP("Mahlberg", "%1 Lebensmittel &übernehmen")).arg(anzahl));
    m_uebernehmen->setEnabled(fehler == 0 && anzahl > 0);
    const QString grund = m_uebernehmen->isEnabled() ? QString() : m_worte->text();
    m_uebernehmen->setToolTip(grund);
    m_uebernehmen->setAccessibleDescription(grund);
}

void Einlesefenster::lasseAus(int zeile, bool weg)
{
    if (weg) {
        m_ausgelassen.insert(zeile);
    } else {
        m_ausgelassen.remove(zeile);
    }
    lies();
}

void Einlesefenster::lasseFehlerhafteAus()
{
    for (const Lesezeile &zeile : std::as_const(m_einlesung.zeilen)) {
        if (zeile.fehlerhaft) {
            m_ausgelassen.insert(zeile.zeile);
        }
    }
    lies();
}

void Einlesefenster::uebernimm()
{
    const Uebernahme was = uebernahme();
    accept();
    Q_EMIT uebernommen(was);
}
