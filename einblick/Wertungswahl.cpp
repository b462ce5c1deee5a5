#include "Wertungswahl.h"

#include "Rezeptworte.h"
#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QComboBox>
#include <QLabel>
#include <QVBoxLayout>

namespace {

const QStringList zeichen = {QStringLiteral("+"), QStringLiteral("0"), QStringLiteral("-")};

Regelsprache bildschirmsprache()
{
    return QLocale().language() == QLocale::English ? Regelsprache::Englisch
                                                    : Regelsprache::Deutsch;
}

} // namespace

Wertungswahl::Wertungswahl(Wertung wertung, QWidget *parent)
    : QWidget(parent)
    , m_wertung(wertung)
    , m_name(new QLabel)
    , m_wahl(new QComboBox)
    , m_gruende(new QLabel)
{
    const QString kennung = QString::fromUtf8(beschreibung(wertung).kennung);
    m_name->setProperty("schriftstufe", QStringLiteral("ueberschrift"));
    m_name->setBuddy(m_wahl);
    m_wahl->setObjectName(kennung + QStringLiteral("wahl"));
    m_wahl->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_gruende->setObjectName(kennung + QStringLiteral("gruende"));
    m_gruende->setTextFormat(Qt::PlainText);
    m_gruende->setWordWrap(true);
    m_gruende->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *anordnung = new QVBoxLayout(this);
    anordnung->setContentsMargins(0, 0, 0, 0);
    anordnung->addWidget(m_name);
    anordnung->addWidget(m_wahl, 0, Qt::AlignLeft);
    anordnung->addWidget(m_gruende);
    connect(m_wahl, &QComboBox::currentIndexChanged, this, &Wertungswahl::geaendert);
    folgeSprache();
}

void Wertungswahl::folgeSprache()
{
    const QString name = localizedString(QString::fromUtf8(beschreibung(m_wertung).bezeichnung));
    m_name->setText(name);
    m_wahl->setAccessibleName(localizedString(QStringLiteral("Wertung für %1")).arg(name));
    fuelle(gewaehlte());
    begruende();
}

void Wertungswahl::schlageVor(const std::optional<Gerichtsgroessen> &gericht)
{
    m_gericht = gericht;
    fuelle(gewaehlte());
    begruende();
}

void Wertungswahl::waehle(const QString &urteil)
{
    fuelle(urteil);
}

QString Wertungswahl::gewaehlte() const
{
    return m_wahl->currentData().toString();
}

void Wertungswahl::fuelle(const QString &gewaehlte)
{
    const QSignalBlocker still(m_wahl);
    m_wahl->clear();
    QString vorschlag = localizedString(QStringLiteral("Wie vorgeschlagen"));
    if (m_gericht) {
        const Wertungsvorschlag einer = wertungsvorschlag(m_wertung, *m_gericht);
        vorschlag =
            (einer.istUnsicher() ? localizedString(QStringLiteral("Vorschlag, unsicher: %1"))
                                 : localizedString(QStringLiteral("Vorschlag: %1")))
                .arg(Rezeptworte::urteil(einer.urteil));
    }
    m_wahl->addItem(vorschlag);
    for (const QString &eines : zeichen) {
        m_wahl->addItem(Rezeptworte::urteil(eines), eines);
    }
    if (!gewaehlte.isNull() && !zeichen.contains(gewaehlte)) {
        m_wahl->addItem(gewaehlte, gewaehlte);
    }
    m_wahl->setCurrentIndex(gewaehlte.isNull() ? 0 : m_wahl->findData(gewaehlte));
}

void Wertungswahl::begruende()
{
    QStringList zeilen;
    if (m_gericht) {
        zeilen = begruendung(m_wertung, *m_gericht, bildschirmsprache(), zahlenform());
    }
    m_gruende->setText(zeilen.join(u'\n'));
    m_gruende->setVisible(!zeilen.isEmpty());
    m_wahl->setAccessibleDescription(zeilen.join(u' '));
}
