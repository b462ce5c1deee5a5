#include "Bereichszeile.h"

#include "Rangworte.h"
#include "Textfeld.h"
#include "Umbruchzeile.h"
#include "Zeichenkettentabelle.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace {

constexpr int zahlbreite = 64;

Textfeld *zahlfeld(const char *name)
{
    auto *feld = new Textfeld;
    feld->setObjectName(QLatin1String(name));
    feld->setNurZahlen(true);
    feld->setEditable(true);
    feld->setAlignment(Qt::AlignRight);
    feld->setFixedWidth(zahlbreite);
    return feld;
}

QWidget *gruppe(const QList<QWidget *> &teile, QWidget *zeile)
{
    auto *eine = new QWidget(zeile);
    auto *anordnung = new QHBoxLayout(eine);
    anordnung->setContentsMargins(0, 0, 0, 0);
    for (QWidget *teil : teile) {
        anordnung->addWidget(teil);
    }
    return eine;
}

std::optional<double> zahl(const Textfeld &feld)
{
    return feld.stringValue().trimmed().isEmpty() ? std::nullopt
                                                  : std::optional(feld.doubleValue());
}

} // namespace

Bereichszeile::Bereichszeile(Kenngroesse groesse, QWidget *parent)
    : QWidget(parent)
    , m_groesse(new QComboBox)
    , m_bezug(new QComboBox)
    , m_vonWort(new QLabel)
    , m_von(zahlfeld("von"))
    , m_bisWort(new QLabel)
    , m_bis(zahlfeld("bis"))
    , m_einheit(new QLabel)
    , m_weg(new QToolButton)
{
    m_groesse->setObjectName(QStringLiteral("bereichsgroesse"));
    m_bezug->setObjectName(QStringLiteral("bereichsbezug"));
    m_weg->setObjectName(QStringLiteral("bereichweg"));
    for (QComboBox *wahl : {m_groesse, m_bezug}) {
        wahl->setSizeAdjustPolicy(QComboBox::AdjustToContents); // also to those of another language
    }
    m_weg->setText(QStringLiteral("×"));
    m_weg->setFocusPolicy(Qt::StrongFocus);
    baue();
    folgeSprache();
    m_groesse->setCurrentIndex(static_cast<int>(stelle(groesse)));
    benenne();
    for (QComboBox *wahl : {m_groesse, m_bezug}) {
        connect(wahl, &QComboBox::currentIndexChanged, this, [this] {
            benenne();
            Q_EMIT geaendert();
        });
    }
    for (const Textfeld *feld : {m_von, m_bis}) {
        connect(feld, &QLineEdit::textEdited, this, &Bereichszeile::geaendert);
    }
    connect(m_weg, &QToolButton::clicked, this, &Bereichszeile::wegGewuenscht);
}

void Bereichszeile::baue()
{
    auto *anordnung = new QHBoxLayout(this);
    anordnung->setContentsMargins(0, 0, 0, 0);
    auto *zeile = new Umbruchzeile;
    gruppe({m_groesse, m_bezug}, zeile);
    gruppe({m_vonWort, m_von, m_bisWort, m_bis, m_einheit, m_weg}, zeile);
    anordnung->addWidget(zeile);
}

void Bereichszeile::folgeSprache()
{
    Rangworte::fuelleGroessen(*m_groesse);
    Rangworte::fuelleBezuege(*m_bezug);
    m_vonWort->setText(localizedString(QStringLiteral("von")));
    m_bisWort->setText(localizedString(QStringLiteral("bis")));
    m_weg->setToolTip(localizedString(QStringLiteral("Diesen Bereich herausnehmen")));
    benenne();
}

/// Tells those who can't see the line of which figure each of its parts is.
void Bereichszeile::benenne()
{
    const QString name = nameVon(Rangworte::gewaehlteGroesse(*m_groesse));
    m_einheit->setText(einheitVon(Rangworte::gewaehlteGroesse(*m_groesse)));
    m_groesse->setAccessibleName(localizedString(QStringLiteral("Bereich: Angabe")));
    m_bezug->setAccessibleName(localizedString(QStringLiteral("Bereich für %1: Bezug")).arg(name));
    const QString einheit = m_einheit->text();
    m_von->setAccessibleName(localizedString(QStringLiteral("%1 von, in %2")).arg(name, einheit));
    m_bis->setAccessibleName(localizedString(QStringLiteral("%1 bis, in %2")).arg(name, einheit));
    m_weg->setAccessibleName(
        localizedString(QStringLiteral("Bereich für %1 herausnehmen")).arg(name));
}

Wertebereich Bereichszeile::bereich() const
{
    return {.groesse = Rangworte::gewaehlteGroesse(*m_groesse),
            .bezug = Rangworte::gewaehlterBezug(*m_bezug),
            .von = zahl(*m_von),
            .bis = zahl(*m_bis)};
}

bool Bereichszeile::fragtEtwas() const
{
    const Wertebereich einer = bereich();
    return einer.von || einer.bis;
}

QList<QWidget *> Bereichszeile::felder() const
{
    return {m_groesse, m_bezug, m_von, m_bis, m_weg};
}

QSize Bereichszeile::minimumSizeHint() const
{
    return {QWidget::minimumSizeHint().width(), heightForWidth(QWIDGETSIZE_MAX)};
}
