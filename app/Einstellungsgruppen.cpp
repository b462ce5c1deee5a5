#include "Einstellungsgruppen.h"

#include "Pdftuer.h"
#include "Sperrgrund.h"
#include "Zeichenkettentabelle.h"

#include <QActionGroup>
#include <QDir>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QVBoxLayout>

QWidget *menuewahl(const QActionGroup &eintraege)
{
    auto *wahl = new QWidget;
    auto *aufbau = new QVBoxLayout(wahl);
    aufbau->setContentsMargins(0, 0, 0, 0);
    for (QAction *eintrag : eintraege.actions()) {
        auto *knopf = new QRadioButton(eintrag->text());
        knopf->setChecked(eintrag->isChecked());
        QObject::connect(eintrag, &QAction::toggled, knopf, &QRadioButton::setChecked);
        QObject::connect(knopf, &QRadioButton::toggled, eintrag, [eintrag](bool an) {
            if (an && !eintrag->isChecked()) {
                eintrag->trigger();
            }
        });
        aufbau->addWidget(knopf);
    }
    return wahl;
}

Pdfordnerwahl::Pdfordnerwahl(QSettings &einstellungen, Dateituer frage)
    : m_einstellungen(einstellungen)
    , m_frage(std::move(frage))
    , m_ordner(new QLineEdit)
    , m_wieSystem(new QPushButton(localizedString(QStringLiteral("Wie das System: D&okumente"))))
{
    m_ordner->setObjectName(QStringLiteral("pdfordner"));
    m_ordner->setAccessibleName(localizedString(QStringLiteral("Ordner für PDF")));
    m_ordner->setReadOnly(true);
    auto *waehlen = new QPushButton(localizedString(QStringLiteral("Ordner &wählen …")));
    waehlen->setObjectName(QStringLiteral("ordnerwaehlen"));
    m_wieSystem->setObjectName(QStringLiteral("wiesystem"));
    new Sperrgrund(m_wieSystem, localizedString(QStringLiteral("So ist es schon eingestellt.")));
    auto *knoepfe = new QHBoxLayout;
    knoepfe->addWidget(waehlen);
    knoepfe->addWidget(m_wieSystem);
    knoepfe->addStretch();
    auto *aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->addWidget(m_ordner);
    aufbau->addLayout(knoepfe);
    connect(waehlen, &QPushButton::clicked, this, &Pdfordnerwahl::waehle);
    connect(m_wieSystem, &QPushButton::clicked, this, [this] { merke(QString()); });
    zeige();
}

void Pdfordnerwahl::waehle()
{
    if (!m_frage) {
        return;
    }
    m_frage(this,
            {.titel = localizedString(QStringLiteral("Ordner für PDF")),
             .vorschlag = pdfordner(m_einstellungen),
             .zweck = Dateifrage::Zweck::Ordner},
            [this](const QString &ordner) { merke(ordner); });
}

void Pdfordnerwahl::merke(const QString &ordner)
{
    merkePdfordner(m_einstellungen, ordner);
    zeige();
}

void Pdfordnerwahl::zeige()
{
    const QString ordner = QDir::toNativeSeparators(pdfordner(m_einstellungen));
    m_ordner->setText(ordner);
    m_ordner->setToolTip(ordner);
    m_ordner->setCursorPosition(0);
    m_wieSystem->setEnabled(!gewaehlterPdfordner(m_einstellungen).isEmpty());
}
