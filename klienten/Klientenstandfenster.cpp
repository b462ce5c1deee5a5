#include "Klientenstandfenster.h"

#include "Klientenstand.h"
#include "Sperrgrund.h"
#include "Zeichenkettentabelle.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr QSize fenstergroesse(480, 360);

} // namespace

Klientenstandfenster::Klientenstandfenster(const QString &datei, QWidget *parent)
    : QDialog(parent)
    , m_kopien(Sicherungen::alle(datei))
    , m_tage(new QListWidget)
    , m_worte(new QLabel)
{
    setObjectName(QStringLiteral("klientenstaende"));
    setWindowTitle(localizedString(QStringLiteral("Frühere Stände der Klienten")));
    m_tage->setObjectName(QStringLiteral("tage"));
    m_tage->setAccessibleName(localizedString(QStringLiteral("Stände, der jüngste zuerst")));
    for (const Sicherungen::Sicherung &eine : std::as_const(m_kopien)) {
        m_tage->addItem(eine.moment.isValid()
                            ? localizedString(QStringLiteral("beiseitegelegt am %1"))
                                  .arg(QLocale().toString(eine.moment, QLocale::ShortFormat))
                            : QLocale().toString(eine.tag, QLocale::LongFormat));
    }
    m_worte->setObjectName(QStringLiteral("worte"));
    m_worte->setTextFormat(Qt::PlainText);
    m_worte->setWordWrap(true);
    auto *knoepfe = new QDialogButtonBox(QDialogButtonBox::Close);
    m_zurueck = knoepfe->addButton(localizedString(QStringLiteral("&Zurückholen")),
                                   QDialogButtonBox::ActionRole);
    m_zurueck->setObjectName(QStringLiteral("zurueckholen"));
    new Sperrgrund(m_zurueck, localizedString(QStringLiteral(
                                  "Es gibt keinen Stand, der zurückgeholt werden kann.")));
    auto *aufbau = new QVBoxLayout(this);
    aufbau->addWidget(m_tage, 1);
    aufbau->addWidget(m_worte);
    aufbau->addWidget(knoepfe);
    resize(fenstergroesse);
    connect(m_tage, &QListWidget::currentRowChanged, this, &Klientenstandfenster::zeigeStand);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_zurueck, &QPushButton::clicked, this, [this] {
        const QString kopie = m_kopien[m_tage->currentRow()].path;
        accept();
        Q_EMIT gewuenscht(kopie);
    });
    m_tage->setCurrentRow(0);
    zeigeStand(m_tage->currentRow());
}

void Klientenstandfenster::zeigeStand(int stelle)
{
    m_zurueck->setEnabled(false);
    if (stelle < 0) {
        m_worte->setText(localizedString(QStringLiteral(
            "Es gibt noch keine früheren Stände. An jedem Tag, an dem sich etwas ändert, wird der "
            "Stand davor aufgehoben; die letzten zehn bleiben.")));
        return;
    }
    const std::optional<int> anzahl = klientenIn(m_kopien[stelle].path);
    m_zurueck->setEnabled(anzahl.has_value());
    m_worte->setText(
        anzahl ? localizedString(QStringLiteral("In diesem Stand: %1 Klienten. Was jetzt da ist, "
                                                "wird beim Zurückholen aufgehoben."))
                     .arg(*anzahl)
               : localizedString(QStringLiteral("Diese Datei lässt sich nicht lesen: %1"))
                     .arg(m_kopien[stelle].path));
}
