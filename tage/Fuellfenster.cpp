#include "Fuellfenster.h"

#include "Sperrgrund.h"
#include "Zeichenkettentabelle.h"
#include "Zeilenablage.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr QSize fenstergroesse(420, 420);

/// Under which an entry of the list keeps which day it is.
constexpr int tagrolle = Qt::UserRole;

/// A day with notes alone holds something too.
bool hatInhalt(const Aufzeichnung &aufzeichnung, int tag)
{
    const Tag &einer = aufzeichnung.tage[tag];
    bool notizen = !einer.notiz.isEmpty();
    for (const Mahlzeit &mahlzeit : einer.mahlzeiten) {
        notizen = notizen || !mahlzeit.notiz.isEmpty();
    }
    return notizen || zeilenzahl(ablageDesTages(aufzeichnung, tag)) > 0;
}

} // namespace

Fuellfenster::Fuellfenster(const Aufzeichnung &aufzeichnung, int von, QWidget *parent)
    : QDialog(parent)
    , m_aufzeichnung(aufzeichnung)
    , m_tage(new QListWidget)
    , m_worte(new QLabel)
{
    setObjectName(QStringLiteral("fuellfenster"));
    setWindowTitle(localizedString(QStringLiteral("Tag in andere Tage füllen")));
    auto *frage = new QLabel(localizedString(QStringLiteral("%1 in diese &Tage füllen:"))
                                 .arg(tagesname(aufzeichnung, von)));
    frage->setBuddy(m_tage);
    m_tage->setObjectName(QStringLiteral("tage"));
    m_tage->setAccessibleName(localizedString(QStringLiteral("Tage, die gefüllt werden")));
    for (int tag = 0; tag < aufzeichnung.tage.size(); ++tag) {
        if (tag == von) {
            continue;
        }
        const QString name = tagesname(aufzeichnung, tag);
        auto *eintrag = new QListWidgetItem(
            hatInhalt(aufzeichnung, tag)
                ? localizedString(QStringLiteral("%1 (schon ausgefüllt)")).arg(name)
                : name,
            m_tage);
        eintrag->setData(tagrolle, tag);
        eintrag->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        eintrag->setCheckState(tag > von ? Qt::Checked : Qt::Unchecked);
    }
    m_tage->setCurrentRow(0);
    m_worte->setObjectName(QStringLiteral("worte"));
    m_worte->setTextFormat(Qt::PlainText);
    m_worte->setWordWrap(true);
    auto *knoepfe = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_fuellen = knoepfe->addButton(localizedString(QStringLiteral("&Füllen")),
                                   QDialogButtonBox::AcceptRole);
    m_fuellen->setObjectName(QStringLiteral("fuellen"));
    new Sperrgrund(m_fuellen, localizedString(QStringLiteral("Es ist kein Tag angekreuzt.")));
    auto *aufbau = new QVBoxLayout(this);
    aufbau->addWidget(frage);
    aufbau->addWidget(m_tage, 1);
    aufbau->addWidget(m_worte);
    aufbau->addWidget(knoepfe);
    resize(fenstergroesse);
    setTabOrder(m_fuellen, knoepfe->button(QDialogButtonBox::Cancel));
    connect(m_tage, &QListWidget::itemChanged, this, &Fuellfenster::folge);
    connect(knoepfe, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
    folge();
}

QList<int> Fuellfenster::gewaehlte() const
{
    QList<int> tage;
    for (int stelle = 0; stelle < m_tage->count(); ++stelle) {
        if (m_tage->item(stelle)->checkState() == Qt::Checked) {
            tage << m_tage->item(stelle)->data(tagrolle).toInt();
        }
    }
    return tage;
}

/// Says what goes.
void Fuellfenster::folge()
{
    QStringList namen;
    const QList<int> tage = gewaehlte();
    for (const int tag : tage) {
        if (hatInhalt(m_aufzeichnung, tag)) {
            namen << tagesname(m_aufzeichnung, tag);
        }
    }
    m_worte->setText(namen.isEmpty()
                         ? QString()
                         : localizedString(QStringLiteral("Ersetzt wird, was hier steht: %1. Mit "
                                                          "„Rückgängig“ kommt es zurück."))
                               .arg(namen.join(QStringLiteral(", "))));
    m_fuellen->setEnabled(!tage.isEmpty());
}
