#include "Briefkopfwahl.h"

#include "Sperrgrund.h"
#include "Zeichenkettentabelle.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr QSize bildgroesse(170, 56); // as on paper
constexpr int anschriftzeilen = 3;

} // namespace

Briefkopfwahl::Briefkopfwahl(Briefkopfablage ablage, Dateituer frage)
    : m_ablage(std::move(ablage))
    , m_frage(std::move(frage))
    , m_name(new QLineEdit(this))
    , m_anschrift(new QPlainTextEdit(this))
    , m_bild(new QLabel)
    , m_worte(new QLabel)
    , m_entfernen(new QPushButton(localizedString(QStringLiteral("&Entfernen")), this))
{
    m_name->setObjectName(QStringLiteral("praxisname"));
    m_name->setText(m_ablage.lies().name);
    m_anschrift->setObjectName(QStringLiteral("praxisanschrift"));
    m_anschrift->setPlainText(m_ablage.anschrift());
    m_anschrift->setTabChangesFocus(true);
    m_anschrift->setFixedHeight(m_anschrift->fontMetrics().lineSpacing() * anschriftzeilen +
                                2 * m_anschrift->frameWidth() +
                                static_cast<int>(2 * m_anschrift->document()->documentMargin()));
    m_worte->setObjectName(QStringLiteral("logoworte"));
    m_worte->setTextFormat(Qt::PlainText);
    m_worte->setWordWrap(true);
    auto *felder = new QFormLayout;
    felder->addRow(localizedString(QStringLiteral("Name der &Praxis:")), m_name);
    felder->addRow(localizedString(QStringLiteral("Ans&chrift:")), m_anschrift);
    auto *reihe = new QHBoxLayout;
    reihe->addLayout(felder, 1);
    reihe->addWidget(baueLogo());
    auto *aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->addLayout(reihe);
    aufbau->addWidget(m_worte);
    connect(m_name, &QLineEdit::textEdited, this,
            [this](const QString &text) { m_ablage.setzeName(text); });
    connect(m_anschrift, &QPlainTextEdit::textChanged, this,
            [this] { m_ablage.setzeAnschrift(m_anschrift->toPlainText()); });
    zeigeLogo();
}

QWidget *Briefkopfwahl::baueLogo()
{
    m_bild->setObjectName(QStringLiteral("logobild"));
    m_bild->setFixedSize(bildgroesse);
    m_bild->setAlignment(Qt::AlignCenter);
    auto *waehlen = new QPushButton(localizedString(QStringLiteral("&Logo wählen …")));
    waehlen->setObjectName(QStringLiteral("logowaehlen"));
    m_entfernen->setObjectName(QStringLiteral("logoentfernen"));
    new Sperrgrund(m_entfernen, localizedString(QStringLiteral("Es ist kein Logo gewählt.")));
    connect(waehlen, &QPushButton::clicked, this, &Briefkopfwahl::waehle);
    connect(m_entfernen, &QPushButton::clicked, this, &Briefkopfwahl::entferne);
    auto *logo = new QWidget(this);
    auto *aufbau = new QGridLayout(logo);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->addWidget(m_bild, 0, 0, 1, 2, Qt::AlignCenter);
    aufbau->addWidget(waehlen, 1, 0);
    aufbau->addWidget(m_entfernen, 1, 1);
    aufbau->setRowStretch(0, 1);
    setTabOrder(m_anschrift, waehlen);
    setTabOrder(waehlen, m_entfernen);
    return logo;
}

void Briefkopfwahl::waehle()
{
    if (m_frage) {
        m_frage(this,
                {.titel = localizedString(QStringLiteral("Logo der Praxis")),
                 .arten = localizedString(QStringLiteral("Bilder (*.png *.jpg *.jpeg *.svg)"))},
                [this](const QString &path) { uebernimm(path); });
    }
}

void Briefkopfwahl::uebernimm(const QString &path)
{
    const std::optional<Briefkopfablage::Hindernis> hindernis = m_ablage.uebernimmLogo(path);
    zeigeLogo(hindernis ? inWorten(*hindernis) : QString());
}

void Briefkopfwahl::entferne()
{
    zeigeLogo(m_ablage.entferneLogo()
                  ? QString()
                  : localizedString(QStringLiteral("Das Logo ließ sich nicht entfernen.")));
}

/// Whatever can't be done is told below the picture, also to those who can't see it.
void Briefkopfwahl::zeigeLogo(const QString &hindernis)
{
    const Briefkopf kopf = m_ablage.lies();
    const QSizeF platz = QSizeF(bildgroesse) * devicePixelRatioF();
    QPixmap bild;
    if (!kopf.logo.isNull()) {
        bild = QPixmap::fromImage(
            kopf.logo.scaled(platz.toSize(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
        bild.setDevicePixelRatio(devicePixelRatioF());
    }
    m_bild->setPixmap(bild);
    m_bild->setAccessibleName(kopf.logo.isNull()
                                  ? localizedString(QStringLiteral("Kein Logo"))
                                  : localizedString(QStringLiteral("Das Logo, wie es gedruckt "
                                                                   "wird")));
    const QString worte =
        !hindernis.isEmpty() ? hindernis
        : kopf.logoFehlt
            ? localizedString(QStringLiteral("Das gesicherte Logo ist nicht mehr zu lesen; "
                                             "gedruckt wird ohne."))
            : QString();
    m_worte->setText(worte);
    m_worte->setVisible(!worte.isEmpty());
    m_entfernen->setEnabled(m_ablage.hatLogo());
}
