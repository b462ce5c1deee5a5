#include "Einstellungsfenster.h"

#include "Rollbereich.h"
#include "Zeichenkettentabelle.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QVBoxLayout>

Einstellungsfenster::Einstellungsfenster(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("einstellungen"));
    setWindowTitle(localizedString(QStringLiteral("Einstellungen")));
    auto *gruppen = new QWidget;
    m_gruppen = new QVBoxLayout(gruppen);
    m_gruppen->setContentsMargins(0, 0, 0, 0);
    auto *knoepfe = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *aufbau = new QVBoxLayout(this);
    aufbau->addWidget(new Rollbereich(gruppen), 1);
    aufbau->addWidget(knoepfe);
}

void Einstellungsfenster::nimmAuf(const QString &titel, QWidget *inhalt)
{
    auto *gruppe = new QGroupBox(titel);
    auto *aufbau = new QVBoxLayout(gruppe);
    aufbau->addWidget(inhalt);
    m_gruppen->addWidget(gruppe);
}
