#include "Ausgabefenster.h"

#include "Sperrgrund.h"
#include "Zeichenkettentabelle.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSettings>
#include <QStandardItemModel>

namespace {

const QString eigeneForm = QStringLiteral("Ausgabe/eigeneForm");
const QString trennung = QStringLiteral("Ausgabe/Trennzeichen");
const QString dezimal = QStringLiteral("Ausgabe/Dezimalzeichen");
const QString marke = QStringLiteral("Ausgabe/Marke");
const QString liste = QStringLiteral("Ausgabe/Liste");

struct Zeichenwahl
{
    const char *text;
    QChar zeichen;
};

const Zeichenwahl trennzeichen[] = {
    {QT_TRANSLATE_NOOP("Mahlberg", "Strichpunkt ;"), u';'},
    {QT_TRANSLATE_NOOP("Mahlberg", "Komma ,"), u','},
    {QT_TRANSLATE_NOOP("Mahlberg", "Tabulator"), u'\t'},
    {QT_TRANSLATE_NOOP("Mahlberg", "Senkrechter Strich |"), u'|'},
};

const Zeichenwahl dezimalzeichen[] = {
    {QT_TRANSLATE_NOOP("Mahlberg", "Komma ,"), u','},
    {QT_TRANSLATE_NOOP("Mahlberg", "Punkt ."), u'.'},
};

template <std::size_t anzahl>
QComboBox *zeichenwahl(const Zeichenwahl (&zeilen)[anzahl])
{
    auto *wahl = new QComboBox;
    for (const Zeichenwahl &zeile : zeilen) {
        wahl->addItem(localizedString(QString::fromUtf8(zeile.text)), zeile.zeichen);
    }
    return wahl;
}

/// A character of the settings' file, which may hold anything.
void waehleZeichen(QComboBox &wahl, QChar zeichen)
{
    wahl.setCurrentIndex(qMax(0, wahl.findData(zeichen)));
}

} // namespace

Ausgabefenster::Ausgabefenster(const QList<Ausgabeliste> &listen, QSettings &einstellungen,
                               QWidget *parent)
    : QDialog(parent)
    , m_listen(listen)
    , m_einstellungen(einstellungen)
    , m_liste(new QComboBox)
    , m_form(new QComboBox)
    , m_trennung(zeichenwahl(trennzeichen))
    , m_dezimal(zeichenwahl(dezimalzeichen))
    , m_marke(new QCheckBox(localizedString(QStringLiteral("Mit &Marke für UTF-8"))))
{
    setObjectName(QStringLiteral("ausgabe"));
    setWindowTitle(localizedString(QStringLiteral("Als Tabelle sichern")));
    auto *zeilen = new QFormLayout(this);
    fuelleListen();
    zeilen->addRow(localizedString(QStringLiteral("&Liste:")), m_liste);
    fuelleForm(*zeilen);
    auto *abbrechen = new QPushButton(localizedString(QStringLiteral("Abbrechen")));
    auto *sichern = new QPushButton(localizedString(QStringLiteral("&Sichern …")));
    sichern->setObjectName(QStringLiteral("sichern"));
    sichern->setDefault(true);
    auto *knoepfe = new QHBoxLayout;
    knoepfe->addStretch();
    knoepfe->addWidget(abbrechen);
    knoepfe->addWidget(sichern);
    zeilen->addRow(knoepfe);
    connect(sichern, &QPushButton::clicked, this, &Ausgabefenster::waehle);
    connect(abbrechen, &QPushButton::clicked, this, &QDialog::reject);
    stelleWiederHer();
}

/// A list without rows is seen, and can't be chosen.
void Ausgabefenster::fuelleListen()
{
    m_liste->setObjectName(QStringLiteral("liste"));
    for (int i = 0; i < m_listen.size(); ++i) {
        m_liste->addItem(QString());
        auto *eintrag = qobject_cast<QStandardItemModel *>(m_liste->model())->item(i);
        eintrag->setEnabled(m_listen[i].anzahl > 0);
    }
    beschrifteListen();
}

void Ausgabefenster::beschrifteListen()
{
    for (int i = 0; i < m_listen.size(); ++i) {
        m_liste->setItemText(i, QStringLiteral("%1 (%2)").arg(localizedString(m_listen[i].titel),
                                                              QString::number(m_listen[i].anzahl)));
    }
}

void Ausgabefenster::waehleListe(int stelle)
{
    if (m_listen[stelle].anzahl > 0) {
        m_liste->setCurrentIndex(stelle);
    }
}

/// Over the plan's window this one may be open while the main window changes the language: the
/// lists are called otherwise then, and the spreadsheet has other signs.
void Ausgabefenster::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        beschrifteListen();
        schalteForm();
    }
}

void Ausgabefenster::fuelleForm(QFormLayout &zeilen)
{
    m_form->setObjectName(QStringLiteral("form"));
    m_form->addItem(localizedString(QStringLiteral("Wie das Tabellenprogramm")));
    m_form->addItem(localizedString(QStringLiteral("Selbst gewählt")));
    zeilen.addRow(localizedString(QStringLiteral("&Form:")), m_form);
    const QString grund = localizedString(
        QStringLiteral("Das Tabellenprogramm hat seine eigenen Zeichen. Für andere wählen Sie bei "
                       "der Form „Selbst gewählt“."));
    const std::pair<const char *, QWidget *> felder[] = {
        {QT_TRANSLATE_NOOP("Mahlberg", "&Trennzeichen:"), m_trennung},
        {QT_TRANSLATE_NOOP("Mahlberg", "&Dezimalzeichen:"), m_dezimal},
    };
    for (const auto &[text, feld] : felder) {
        zeilen.addRow(localizedString(QString::fromUtf8(text)), feld);
        new Sperrgrund(feld, grund);
    }
    m_trennung->setObjectName(QStringLiteral("trennung"));
    m_dezimal->setObjectName(QStringLiteral("dezimal"));
    m_marke->setObjectName(QStringLiteral("marke"));
    m_marke->setToolTip(localizedString(QStringLiteral(
        "Daran erkennen Tabellenprogramme die Umlaute; manche andere Programme stört sie.")));
    new Sperrgrund(m_marke, grund);
    zeilen.addRow(m_marke);
    connect(m_form, &QComboBox::currentIndexChanged, this, &Ausgabefenster::schalteForm);
}

void Ausgabefenster::stelleWiederHer()
{
    const auto gemerkt = [this](const QString &schluessel, QChar sonst) {
        const QString text = m_einstellungen.value(schluessel).toString();
        return text.isEmpty() ? sonst : text.front();
    };
    const Csv::Form ueblich = Csv::formDesTabellenprogramms();
    waehleZeichen(*m_trennung, gemerkt(trennung, ueblich.trennung));
    waehleZeichen(*m_dezimal, gemerkt(dezimal, ueblich.dezimal));
    m_marke->setChecked(m_einstellungen.value(marke, true).toBool());
    m_form->setCurrentIndex(m_einstellungen.value(eigeneForm).toBool() ? 1 : 0);
    int erste = m_einstellungen.value(liste).toInt();
    if (erste < 0 || erste >= m_listen.size() || m_listen[erste].anzahl == 0) {
        erste = 0;
    }
    while (erste + 1 < m_listen.size() && m_listen[erste].anzahl == 0) {
        ++erste;
    }
    m_liste->setCurrentIndex(erste);
    schalteForm();
}

void Ausgabefenster::merke() const
{
    m_einstellungen.setValue(eigeneForm, m_form->currentIndex() == 1);
    m_einstellungen.setValue(trennung, QString(m_trennung->currentData().toChar()));
    m_einstellungen.setValue(dezimal, QString(m_dezimal->currentData().toChar()));
    m_einstellungen.setValue(marke, m_marke->isChecked());
    m_einstellungen.setValue(liste, m_liste->currentIndex());
}

/// Where the spreadsheet's form is chosen, the signs are seen that it has.
void Ausgabefenster::schalteForm()
{
    const bool selbst = m_form->currentIndex() == 1;
    for (QWidget *feld : std::initializer_list<QWidget *>{m_trennung, m_dezimal, m_marke}) {
        feld->setEnabled(selbst);
    }
    if (!selbst) {
        const Csv::Form ueblich = Csv::formDesTabellenprogramms();
        waehleZeichen(*m_trennung, ueblich.trennung);
        waehleZeichen(*m_dezimal, ueblich.dezimal);
        m_marke->setChecked(ueblich.marke);
    }
}

Csv::Form Ausgabefenster::form() const
{
    Csv::Form form = Csv::formDesTabellenprogramms();
    form.trennung = m_trennung->currentData().toChar();
    form.dezimal = m_dezimal->currentData().toChar();
    form.marke = m_marke->isChecked();
    return form;
}

void Ausgabefenster::waehle()
{
    merke();
    const Ausgabeliste gewollt = m_listen[m_liste->currentIndex()];
    accept();
    Q_EMIT gewaehlt(gewollt, form());
}
