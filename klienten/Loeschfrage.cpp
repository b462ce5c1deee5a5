#include "Loeschfrage.h"

#include "Sperrgrund.h"
#include "Zeichenkettentabelle.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int breite = 460;

} // namespace

Loeschfrage::Loeschfrage(const QString &name, const QString &kopien, QWidget *parent)
    : QDialog(parent)
    , m_name(name.simplified())
    , m_eingabe(new QLineEdit)
{
    setObjectName(QStringLiteral("loeschfrage"));
    setWindowTitle(localizedString(QStringLiteral("Klient löschen")));
    QStringList saetze = {
        localizedString(QStringLiteral("„%1“ wird mit allen Besuchen und Plänen gelöscht."))
            .arg(name),
        localizedString(
            QStringLiteral("Bis dieses Fenster der Klienten geschlossen wird, können Sie "
                           "es zurücknehmen; danach ist es aus der Datei getilgt.")),
    };
    if (!kopien.isEmpty()) {
        saetze << kopien;
    }
    auto *text = new QLabel(saetze.join(QStringLiteral("\n\n")));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    auto *frage = new QLabel(localizedString(QStringLiteral("Zum Löschen den &Namen eintippen:")));
    frage->setBuddy(m_eingabe);
    m_eingabe->setObjectName(QStringLiteral("name"));
    auto *knoepfe = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_loeschen = knoepfe->addButton(localizedString(QStringLiteral("&Löschen")),
                                    QDialogButtonBox::DestructiveRole);
    m_loeschen->setObjectName(QStringLiteral("loeschen"));
    m_loeschen->setAutoDefault(false);
    knoepfe->button(QDialogButtonBox::Cancel)->setDefault(true);
    new Sperrgrund(m_loeschen,
                   localizedString(QStringLiteral("Der Name steht noch nicht im Feld.")));
    auto *aufbau = new QVBoxLayout(this);
    aufbau->addWidget(text);
    aufbau->addWidget(frage);
    aufbau->addWidget(m_eingabe);
    aufbau->addWidget(knoepfe);
    setMinimumWidth(breite);
    connect(m_eingabe, &QLineEdit::textChanged, this, &Loeschfrage::folge);
    connect(m_loeschen, &QPushButton::clicked, this, &QDialog::accept);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
    folge({});
}

/// Capitals and blanks are no matter: it is the name that counts.
void Loeschfrage::folge(const QString &text)
{
    m_loeschen->setEnabled(text.simplified().compare(m_name, Qt::CaseInsensitive) == 0);
}
