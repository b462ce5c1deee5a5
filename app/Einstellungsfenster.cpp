#include "Einstellungsfenster.h"

#include "Rollbereich.h"
#include "Zeichenkettentabelle.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QShowEvent>
#include <QVBoxLayout>

namespace {

/// What is chosen in a group; null where nothing can be.
QWidget *gewaehltes(const QWidget &gruppe)
{
    for (auto *knopf : gruppe.findChildren<QRadioButton *>()) {
        if (knopf->isChecked()) {
            return knopf;
        }
    }
    return nullptr;
}

} // namespace

Einstellungsfenster::Einstellungsfenster(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("einstellungen"));
    setWindowTitle(localizedString(QStringLiteral("Einstellungen")));
    auto *gruppen = new QWidget;
    m_gruppen = new QVBoxLayout(gruppen);
    m_gruppen->setContentsMargins(0, 0, 0, 0);
    auto *knoepfe = new QDialogButtonBox(QDialogButtonBox::Close);
    m_schliessen = knoepfe->button(QDialogButtonBox::Close);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *aufbau = new QVBoxLayout(this);
    aufbau->addWidget(new Rollbereich(gruppen), 1);
    aufbau->addWidget(knoepfe);
    m_schliessen->setDefault(true);
}

void Einstellungsfenster::nimmAuf(const QString &titel, QWidget *inhalt)
{
    auto *gruppe = new QGroupBox(titel);
    auto *aufbau = new QVBoxLayout(gruppe);
    aufbau->addWidget(inhalt);
    m_gruppen->addWidget(gruppe);
    for (QWidget *feld : inhalt->findChildren<QWidget *>()) {
        if (feld->focusPolicy() != Qt::NoFocus) {
            setTabOrder(feld, m_schliessen); // which was there first, and stands below
        }
    }
    QWidget *anfang = gewaehltes(*inhalt);
    if (focusWidget() == nullptr && anfang != nullptr) {
        anfang->setFocus();
    }
}

/// All groups are seen where the screen has room for them: Qt would open two thirds of it.
void Einstellungsfenster::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous()) {
        resize(sizeHint().boundedTo(screen()->availableSize() * 9 / 10));
    }
}
