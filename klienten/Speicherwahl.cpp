#include "Speicherwahl.h"

#include "Serverangabe.h"
#include "Sperrgrund.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QVBoxLayout>

#include <array>

namespace {

const QString schluessel = QStringLiteral("Klientenserver");

/// What is wrong with how the server is named, in the order of the faults.
constexpr std::array<const char *, 3> fehlerworte = {
    QT_TRANSLATE_NOOP("Mahlberg", "Hier fehlt, wie der Server heißt."),
    QT_TRANSLATE_NOOP("Mahlberg", "Ein Kennwort gehört nicht hierher; PostgreSQL liest es aus der "
                                  "Datei .pgpass."),
    QT_TRANSLATE_NOOP("Mahlberg", "Das ist weder der Name eines Dienstes noch eine Verbindung."),
};

} // namespace

QString klientenserver(const QSettings &einstellungen)
{
    return einstellungen.value(schluessel).toString().trimmed();
}

Speicherwahl::Speicherwahl(QSettings &einstellungen, Wechsel wechsle)
    : m_einstellungen(einstellungen)
    , m_wechsle(std::move(wechsle))
    , m_datei(new QRadioButton(localizedString(QStringLiteral("In einer Datei an diesem Pla&tz"))))
    , m_server(new QRadioButton(
          localizedString(QStringLiteral("Auf einem Ser&ver der Praxis (PostgreSQL)"))))
    , m_angabe(new QLineEdit(klientenserver(einstellungen)))
    , m_uebernehmen(new QPushButton(localizedString(QStringLiteral("Über&nehmen"))))
    , m_worte(new QLabel)
{
    m_datei->setObjectName(QStringLiteral("klientendatei"));
    m_server->setObjectName(QStringLiteral("klientenserver"));
    m_angabe->setObjectName(QStringLiteral("serverangabe"));
    m_angabe->setAccessibleName(localizedString(QStringLiteral("Server der Klienten")));
    m_angabe->setPlaceholderText(QStringLiteral("host=… dbname=…"));
    m_uebernehmen->setObjectName(QStringLiteral("speicheruebernehmen"));
    m_worte->setObjectName(QStringLiteral("speicherworte"));
    m_worte->setTextFormat(Qt::PlainText);
    m_worte->setWordWrap(true);
    new Sperrgrund(m_uebernehmen, localizedString(QStringLiteral("So ist es schon eingestellt.")));
    new Sperrgrund(m_angabe,
                   localizedString(QStringLiteral("Wählen Sie zuerst den Server der Praxis.")));
    auto *zeile = new QHBoxLayout;
    zeile->addWidget(m_angabe, 1);
    zeile->addWidget(m_uebernehmen);
    auto *aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->addWidget(m_datei);
    aufbau->addWidget(m_server);
    aufbau->addLayout(zeile);
    aufbau->addWidget(m_worte);
    (m_angabe->text().isEmpty() ? m_datei : m_server)->setChecked(true);
    connect(m_server, &QRadioButton::toggled, this, &Speicherwahl::folge);
    connect(m_angabe, &QLineEdit::textChanged, this, &Speicherwahl::folge);
    connect(m_angabe, &QLineEdit::returnPressed, m_uebernehmen, &QPushButton::click);
    connect(m_uebernehmen, &QPushButton::clicked, this, &Speicherwahl::uebernimm);
    folge();
}

/// Something else was chosen, and nothing is done yet.
void Speicherwahl::folge()
{
    m_angabe->setEnabled(m_server->isChecked());
    const QString gewaehlt = m_server->isChecked() ? m_angabe->text().trimmed() : QString();
    const bool unvollstaendig = m_server->isChecked() && gewaehlt.isEmpty();
    m_uebernehmen->setEnabled(!unvollstaendig && gewaehlt != klientenserver(m_einstellungen));
    m_worte->setText(QString());
}

void Speicherwahl::uebernimm()
{
    const QString gewaehlt = m_server->isChecked() ? m_angabe->text().trimmed() : QString();
    if (m_server->isChecked()) {
        if (const auto fehler = leseServerangabe(gewaehlt).fehler) {
            m_worte->setText(localizedString(
                QString::fromUtf8(fehlerworte.at(static_cast<std::size_t>(*fehler)))));
            return;
        }
    }
    const QString bisher = klientenserver(m_einstellungen);
    m_einstellungen.setValue(schluessel, gewaehlt);
    const std::optional<QString> hindernis = m_wechsle();
    if (!hindernis) {
        m_einstellungen.setValue(schluessel, bisher);
        m_worte->setText(localizedString(
            QStringLiteral("Es ist noch nicht alles gesichert; gewechselt wird erst danach.")));
        return;
    }
    m_uebernehmen->setEnabled(false);
    m_worte->setText(hindernis->isEmpty()
                         ? localizedString(QStringLiteral(
                               "Von jetzt an gelten die Klienten dort. Die bisherigen bleiben, wo "
                               "sie sind."))
                         : *hindernis);
}
