#include "Handzettelfenster.h"

#include "Druckworte.h"
#include "Zeichenkettentabelle.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QVBoxLayout>

#include <utility>

namespace {

const QString spracheGemerkt = QStringLiteral("Handzettel/Sprache");
const QString zahlenGemerkt = QStringLiteral("Handzettel/Zahlen");
const QString grossGemerkt = QStringLiteral("Handzettel/Grossdruck");

/// The choices of which one holds, numbered in their order, in a box with a name.
QGroupBox *wahl(const QString &titel, QButtonGroup &gruppe, const QStringList &texte, int gewaehlt)
{
    auto *kasten = new QGroupBox(titel);
    auto *aufbau = new QVBoxLayout(kasten);
    for (int i = 0; i < texte.size(); ++i) {
        auto *knopf = new QRadioButton(texte[i]);
        gruppe.addButton(knopf, i);
        aufbau->addWidget(knopf);
    }
    gruppe.button(gewaehlt)->setChecked(true);
    for (QAbstractButton *knopf : gruppe.buttons()) { // Tab stops at the one that is chosen
        knopf->setFocusPolicy(knopf->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
    }
    return kasten;
}

QLabel *hinweis(const QString &text)
{
    auto *worte = new QLabel(text);
    worte->setObjectName(QStringLiteral("hinweis"));
    worte->setTextFormat(Qt::PlainText);
    worte->setWordWrap(true);
    return worte;
}

} // namespace

Handzettelwunsch gemerkterHandzettelwunsch(const QSettings &einstellungen)
{
    const QString fenster =
        Druckworte::derFenster() == Regelsprache::Englisch ? QStringLiteral("en") : QString();
    const QString sprache = einstellungen.value(spracheGemerkt, fenster).toString();
    return {.zahlen = einstellungen.value(zahlenGemerkt).toBool(),
            .gross = einstellungen.value(grossGemerkt).toBool(),
            .sprache =
                sprache == QStringLiteral("en") ? Regelsprache::Englisch : Regelsprache::Deutsch};
}

void merkeHandzettelwunsch(QSettings &einstellungen, const Handzettelwunsch &wunsch)
{
    const bool englisch = wunsch.sprache == Regelsprache::Englisch;
    einstellungen.setValue(spracheGemerkt, englisch ? QStringLiteral("en") : QStringLiteral("de"));
    einstellungen.setValue(zahlenGemerkt, wunsch.zahlen);
    einstellungen.setValue(grossGemerkt, wunsch.gross);
}

Handzettelfenster::Handzettelfenster(const Lage &lage, QWidget *parent)
    : QDialog(parent)
    , m_tag(lage.tag)
    , m_tage(new QButtonGroup(this))
    , m_sprachen(new QButtonGroup(this))
    , m_zahlen(new QCheckBox(localizedString(QStringLiteral("Mit &Energie und Nährstoffen"))))
    , m_gross(new QCheckBox(localizedString(QStringLiteral("&Große Schrift"))))
{
    setObjectName(QStringLiteral("handzettel"));
    setWindowTitle(localizedString(QStringLiteral("Handzettel")));
    m_zahlen->setObjectName(QStringLiteral("zahlen"));
    m_zahlen->setChecked(lage.wunsch.zahlen);
    m_gross->setObjectName(QStringLiteral("gross"));
    m_gross->setChecked(lage.wunsch.gross);
    auto *aufbau = new QVBoxLayout(this);
    aufbau->addWidget(wahl(localizedString(QStringLiteral("Welche Tage")), *m_tage,
                           {localizedString(QStringLiteral("&Alle Tage")),
                            localizedString(QStringLiteral("&Nur der gezeigte: %1"))
                                .arg(QString(lage.tagesname).replace(u'&', QStringLiteral("&&")))},
                           lage.wunsch.tag ? 1 : 0));
    aufbau->addWidget(wahl(localizedString(QStringLiteral("Sprache des Handzettels")), *m_sprachen,
                           {QStringLiteral("De&utsch"), QStringLiteral("Eng&lish")},
                           lage.wunsch.sprache == Regelsprache::Englisch ? 1 : 0));
    aufbau->addWidget(m_zahlen);
    aufbau->addWidget(m_gross);
    if (lage.logoFehlt) {
        aufbau->addWidget(hinweis(localizedString(
            QStringLiteral("Das Logo ist nicht zu lesen; gedruckt wird ohne. Wählen Sie es in den "
                           "Einstellungen neu."))));
    }
    aufbau->addStretch();
    auto *knoepfe = new QDialogButtonBox;
    aufbau->addWidget(knoepfe); // a button is the default of the window in which it stands
    for (const auto &[text, weg] :
         {std::pair(localizedString(QStringLiteral("&Drucken …")), Weg::Drucken),
          {localizedString(QStringLiteral("Als &PDF …")), Weg::AlsPdf}}) {
        QPushButton *knopf = knoepfe->addButton(text, QDialogButtonBox::AcceptRole);
        knopf->setObjectName(weg == Weg::Drucken ? QStringLiteral("drucken")
                                                 : QStringLiteral("alspdf"));
        knopf->setDefault(weg == lage.weg);
        connect(knopf, &QPushButton::clicked, this, [this, weg = weg] { schliesseAb(weg); });
    }
    auto *alsPdf = findChild<QPushButton *>(QStringLiteral("alspdf"));
    setTabOrder(findChild<QPushButton *>(QStringLiteral("drucken")), alsPdf);
    setTabOrder(alsPdf, knoepfe->addButton(QDialogButtonBox::Cancel));
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

Handzettelwunsch Handzettelfenster::wunsch() const
{
    return {.tag = m_tage->checkedId() == 1 ? std::optional(m_tag) : std::nullopt,
            .zahlen = m_zahlen->isChecked(),
            .gross = m_gross->isChecked(),
            .sprache =
                m_sprachen->checkedId() == 1 ? Regelsprache::Englisch : Regelsprache::Deutsch};
}

void Handzettelfenster::schliesseAb(Weg weg)
{
    const Handzettelwunsch gewaehlt = wunsch();
    accept();
    Q_EMIT gewuenscht(gewaehlt, weg);
}
