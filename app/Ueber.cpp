#include "Ueber.h"

#include "Zeichenkettentabelle.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QIcon>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int bildgroesse = 96;
constexpr int textbreite = 420;

const char *const worueber = QT_TRANSLATE_NOOP(
    "Mahlberg", "Ernährungsberatung und Diätplanung: Lebensmittel, ihre Nährwerte und ihre "
                "Eignung, Mahlzeitenpläne und der Energiebedarf.");

/// The acknowledgement that the publisher of the figures asks for.
const char *const quelle = QT_TRANSLATE_NOOP(
    "Mahlberg",
    "Nährwerte: Schweizer Nährwertdatenbank, generische Lebensmittel, Version 7.0 vom 1. Juli "
    "2025. Herausgeber: Bundesamt für Lebensmittelsicherheit und Veterinärwesen BLV, Schweiz. "
    "Freie Nutzung mit Angabe der Quelle. Namen, Auswahl und Bewertungen der Lebensmittel sind "
    "von Mahlberg.");

QLabel *absatz(const QString &text)
{
    auto *zeile = new QLabel(text);
    zeile->setWordWrap(true);
    zeile->setFixedWidth(textbreite);
    zeile->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return zeile;
}

} // namespace

void zeigeUeber(QWidget *fenster)
{
    auto *kasten = new QDialog(fenster);
    kasten->setObjectName(QStringLiteral("ueber"));
    kasten->setAttribute(Qt::WA_DeleteOnClose);
    kasten->setWindowTitle(localizedString(QStringLiteral("Über Mahlberg")));
    auto *aufbau = new QHBoxLayout(kasten);
    aufbau->setContentsMargins(24, 24, 24, 16);
    aufbau->setSpacing(24);
    auto *bild = new QLabel;
    bild->setPixmap(QIcon(QStringLiteral(":/bilder/Mahlberg.svg")).pixmap(bildgroesse));
    aufbau->addWidget(bild, 0, Qt::AlignTop);

    auto *text = new QVBoxLayout;
    auto *name = new QLabel(QStringLiteral("Mahlberg"));
    QFont gross = name->font();
    gross.setPointSizeF(gross.pointSizeF() * 1.8);
    gross.setBold(true);
    name->setFont(gross);
    text->addWidget(name);
    text->addWidget(absatz(
        localizedString(QStringLiteral("Version %1")).arg(QCoreApplication::applicationVersion())));
    text->addWidget(absatz(localizedString(QString::fromUtf8(worueber))));
    text->addWidget(absatz(localizedString(QString::fromUtf8(quelle))));
    text->addWidget(absatz(localizedString(QStringLiteral(
        "Eine Hilfe für die Beratung; sie ersetzt kein ärztliches Urteil. Lizenz: MIT."))));
    auto *knoepfe = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(knoepfe, &QDialogButtonBox::rejected, kasten, &QDialog::reject);
    text->addWidget(knoepfe);
    aufbau->addLayout(text);
    kasten->open();
}
