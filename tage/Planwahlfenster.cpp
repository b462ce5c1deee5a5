#include "Planwahlfenster.h"

#include "Planzahlen.h"
#include "Zeichenkettentabelle.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr QSize fenstergroesse(460, 480);

QString planname(const Vorratsplan &plan)
{
    const QString titel =
        plan.titel.isEmpty() ? localizedString(QStringLiteral("Mahlzeitenplan")) : plan.titel;
    return plan.datum.isValid() ? QStringLiteral("%1, %2").arg(
                                      titel, QLocale().toString(plan.datum, QLocale::ShortFormat))
                                : titel;
}

} // namespace

Planwahlfenster::Planwahlfenster(const QList<Vorratsplan> &plaene, QWidget *parent)
    : QDialog(parent)
    , m_plaene(plaene)
    , m_liste(new QListWidget)
    , m_posten(new QListWidget)
{
    setObjectName(QStringLiteral("planwahlfenster"));
    setWindowTitle(localizedString(QStringLiteral("Abgelegte Pläne")));
    auto *listenwort = new QLabel(localizedString(QStringLiteral("Abgelegte &Pläne:")));
    listenwort->setBuddy(m_liste);
    m_liste->setObjectName(QStringLiteral("plaene"));
    m_liste->setAccessibleName(windowTitle());
    for (const Vorratsplan &plan : std::as_const(m_plaene)) {
        m_liste->addItem(planname(plan));
    }
    auto *postenwort = new QLabel(localizedString(QStringLiteral("&Lebensmittel dieses Plans:")));
    postenwort->setBuddy(m_posten);
    m_posten->setObjectName(QStringLiteral("posten"));
    m_posten->setAccessibleName(localizedString(QStringLiteral("Lebensmittel dieses Plans")));
    m_posten->setSelectionMode(QAbstractItemView::NoSelection);
    auto *knoepfe = new QDialogButtonBox(QDialogButtonBox::Cancel);
    auto *nehmen = knoepfe->addButton(localizedString(QStringLiteral("&Übernehmen")),
                                      QDialogButtonBox::AcceptRole);
    nehmen->setObjectName(QStringLiteral("uebernehmen"));
    auto *aufbau = new QVBoxLayout(this);
    aufbau->addWidget(listenwort);
    aufbau->addWidget(m_liste, 1);
    aufbau->addWidget(postenwort);
    aufbau->addWidget(m_posten, 2);
    aufbau->addWidget(knoepfe);
    resize(fenstergroesse);
    setTabOrder(nehmen, knoepfe->button(QDialogButtonBox::Cancel));
    connect(m_liste, &QListWidget::currentRowChanged, this, &Planwahlfenster::zeigePlan);
    connect(m_liste, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    connect(knoepfe, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_liste->setCurrentRow(0);
}

int Planwahlfenster::gewaehlter() const
{
    return std::max(0, m_liste->currentRow());
}

void Planwahlfenster::zeigePlan(int stelle)
{
    m_posten->clear();
    if (stelle >= 0) {
        for (const Planmenge &eine : m_plaene[stelle].posten) {
            m_posten->addItem(QStringLiteral("%1, %2 g")
                                  .arg(localizedString(eine.schluessel), mengentext(eine.gramm)));
        }
    }
}
