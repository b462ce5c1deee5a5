#include "Namensvergleich.h"

#include "Hinweisstreifen.h"
#include "Uebernahmetabelle.h"
#include "Zeichenkettentabelle.h"
#include "Zeilenhoehe.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <bit>
#include <cstdint>
#include <utility>

namespace {

constexpr int zeilenhoehe = 22;

enum Spalte { spalteWas, spalteEigenes, spalteZeichen, spalteNeues, anzahlSpalten };

constexpr std::pair<Namensgleich, const char *> moeglichkeiten[] = {
    {Namensgleich::Ueberspringen, QT_TRANSLATE_NOOP("Mahlberg", "Ihres behalten")},
    {Namensgleich::Ersetzen, QT_TRANSLATE_NOOP("Mahlberg", "Das der Datei nehmen")},
    {Namensgleich::NeuerName,
     QT_TRANSLATE_NOOP("Mahlberg", "Beide behalten, das der Datei mit neuem Namen")},
};

/// To the last bit, as the foods are compared: what is no number equals itself.
bool gleicheZahl(float eine, float andere)
{
    return std::bit_cast<std::uint32_t>(eine) == std::bit_cast<std::uint32_t>(andere);
}

} // namespace

Namensvergleich::Namensvergleich(QWidget *parent)
    : QWidget(parent)
    , m_titel(new QLabel)
    , m_wahl(new QComboBox)
    , m_alle(new QPushButton(localizedString(QStringLiteral("&Für alle so"))))
    , m_werte(new QTableWidget(static_cast<int>(anzahlNaehrwerte + anzahlWertungen), anzahlSpalten))
{
    m_titel->setObjectName(QStringLiteral("vergleichstitel"));
    m_titel->setTextFormat(Qt::PlainText);
    m_titel->setWordWrap(true);
    m_wahl->setObjectName(QStringLiteral("entscheidung"));
    m_wahl->setAccessibleName(localizedString(QStringLiteral("Welches der beiden gilt")));
    for (const auto &[was, text] : moeglichkeiten) {
        m_wahl->addItem(localizedString(QString::fromUtf8(text)), static_cast<int>(was));
    }
    m_alle->setObjectName(QStringLiteral("fueralle"));
    m_werte->setObjectName(QStringLiteral("vergleich"));
    m_werte->setAccessibleName(
        localizedString(QStringLiteral("Ihr Lebensmittel neben dem der Datei")));
    m_werte->setHorizontalHeaderLabels({localizedString(QStringLiteral("Wert")),
                                        localizedString(QStringLiteral("Ihres")),
                                        localizedString(QStringLiteral("Gleich?")),
                                        localizedString(QStringLiteral("Das der Datei"))});
    m_werte->setTabKeyNavigation(false);
    m_werte->verticalHeader()->hide();
    m_werte->verticalHeader()->setDefaultSectionSize(zeilenhoeheFuer(*m_werte, zeilenhoehe));
    m_werte->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_werte->horizontalHeader()->setSectionResizeMode(spalteWas, QHeaderView::Stretch);
    auto *zeile = new QHBoxLayout;
    zeile->addWidget(m_wahl);
    zeile->addWidget(m_alle);
    zeile->addStretch();
    auto *aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->addWidget(m_titel);
    aufbau->addLayout(zeile);
    aufbau->addWidget(m_werte, 1);
    connect(m_wahl, &QComboBox::activated, this, [this] { Q_EMIT entschieden(gewaehltes()); });
    connect(m_alle, &QPushButton::clicked, this,
            [this] { Q_EMIT fuerAlleEntschieden(gewaehltes()); });
}

Namensgleich Namensvergleich::gewaehltes() const
{
    return static_cast<Namensgleich>(m_wahl->currentData().toInt());
}

void Namensvergleich::zeige(const Datenmodul &eigenes, const Datenmodul &neues,
                            Namensgleich entscheidung)
{
    m_titel->setText(localizedString(QStringLiteral("„%1“ haben Sie schon, mit anderen Werten:"))
                         .arg(kurzerName(neues.name())));
    m_wahl->setCurrentIndex(m_wahl->findData(static_cast<int>(entscheidung)));
    m_wahl->setEnabled(true);
    m_alle->setEnabled(true);
    m_werte->setEnabled(true);
    int zeile = 0;
    for (const auto &eine : naehrwerte) {
        const float meins = eigenes.wert(eine.wert);
        const float seins = neues.wert(eine.wert);
        setze(zeile++, ueberschrift(eine), zahlwort(meins), zahlwort(seins),
              gleicheZahl(meins, seins));
    }
    for (const auto &eine : wertungen) {
        const QString &meins = eigenes.wertung(eine.wertung);
        const QString &seins = neues.wertung(eine.wertung);
        setze(zeile++, localizedString(QString::fromUtf8(eine.bezeichnung)), meins, seins,
              meins == seins && meins.isNull() == seins.isNull());
    }
}

void Namensvergleich::leere()
{
    m_titel->setText(localizedString(QStringLiteral("Bei dem gewählten Lebensmittel ist nichts zu "
                                                    "entscheiden.")));
    m_wahl->setEnabled(false);
    m_alle->setEnabled(false);
    m_werte->setEnabled(false);
    m_werte->clearContents();
}

void Namensvergleich::setze(int zeile, const QString &name, const QString &eigenes,
                            const QString &neues, bool gleich)
{
    const QString texte[] = {name, eigenes, gleich ? QStringLiteral("=") : QStringLiteral("≠"),
                             neues};
    for (int spalte = 0; spalte < anzahlSpalten; ++spalte) {
        auto *zelle = new QTableWidgetItem(texte[spalte]);
        zelle->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        zelle->setTextAlignment(spalte == spalteWas       ? Qt::AlignLeft | Qt::AlignVCenter
                                : spalte == spalteZeichen ? Qt::AlignCenter
                                                          : Qt::AlignRight | Qt::AlignVCenter);
        QFont schrift = m_werte->font();
        schrift.setBold(!gleich);
        zelle->setFont(schrift);
        m_werte->setItem(zeile, spalte, zelle);
    }
}
