#include "Kollisionsfenster.h"

#include "Feldworte.h"
#include "Rollbereich.h"
#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <type_traits>

namespace {

constexpr QSize fenstergroesse(760, 420);

QString postenworte(const QList<Planposten> &posten)
{
    QStringList zeilen;
    for (const Planposten &einer : posten) {
        zeilen << localizedString(einer.schluessel) + QStringLiteral(", ") +
                      wertText(static_cast<double>(einer.gramm), 0) + QStringLiteral(" g");
    }
    return zeilen.join(u'\n');
}

QString mahlzeitworte(const QString &name, const Mahlzeit &mahlzeit)
{
    QStringList zeilen;
    for (const Mahlzeitzeile &zeile : mahlzeit.zeilen) {
        const QString speise =
            zeile.schluessel.isNull() ? zeile.text : localizedString(zeile.schluessel);
        zeilen << QStringLiteral("%1, %2").arg(speise, zeile.angabe);
    }
    if (!mahlzeit.notiz.isEmpty()) {
        zeilen << mahlzeit.notiz;
    }
    return mahlzeitname(name) + QStringLiteral(": ") + zeilen.join(QStringLiteral("; "));
}

/// Each day with the meals in which something stands.
QString tageworte(const Aufzeichnung &aufzeichnung)
{
    QStringList zeilen;
    for (int tag = 0; tag < aufzeichnung.tage.size(); ++tag) {
        const Tag &einer = aufzeichnung.tage[tag];
        zeilen << tagesname(aufzeichnung, tag);
        if (!einer.notiz.isEmpty()) {
            zeilen << einer.notiz;
        }
        for (qsizetype i = 0; i < einer.mahlzeiten.size(); ++i) {
            if (einer.mahlzeiten[i] != Mahlzeit()) {
                zeilen << mahlzeitworte(aufzeichnung.mahlzeiten[i], einer.mahlzeiten[i]);
            }
        }
    }
    return zeilen.join(u'\n');
}

/// What a field holds, whole: of a plan every row, of a record every day.
template <typename Art>
QString ganzeWorte(const Art &satz, const Satzspalte<Art> &spalte)
{
    QString worte = feldworte(satz, spalte);
    if constexpr (std::is_same_v<Art, Planablage>) {
        worte = qstrcmp(spalte.name, "posten") == 0 ? postenworte(satz.posten) : worte;
    } else if constexpr (std::is_same_v<Art, Aufzeichnung>) {
        worte = qstrcmp(spalte.name, "tage") == 0 ? tageworte(satz) : worte;
    }
    return worte.isEmpty() ? localizedString(QStringLiteral("(keine Angabe)")) : worte;
}

QLabel *worte(const QString &text)
{
    auto *neu = new QLabel(text);
    neu->setTextFormat(Qt::PlainText); // a note may say anything
    neu->setWordWrap(true);
    neu->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return neu;
}

} // namespace

Kollisionsfenster::Kollisionsfenster(const Kollision &kollision, const QString &klient,
                                     QWidget *parent)
    : QDialog(parent)
    , m_kollision(kollision)
{
    setObjectName(QStringLiteral("kollision"));
    setWindowTitle(localizedString(QStringLiteral("An zwei Plätzen geändert")));
    auto *aufbau = new QVBoxLayout(this);
    aufbau->addWidget(worte(
        localizedString(
            QStringLiteral("Ein anderer Platz hat %1 geändert, während Sie dabei waren. Es ist "
                           "noch nichts überschrieben: Wählen Sie, was gelten soll."))
            .arg(klient)));
    auto *felder = new QWidget;
    m_felder = new QGridLayout(felder);
    m_felder->setColumnStretch(1, 1);
    m_felder->setColumnStretch(2, 1);
    m_felder->addWidget(worte(localizedString(QStringLiteral("Ihre Angabe"))), 0, 1);
    m_felder->addWidget(worte(localizedString(QStringLiteral("Anderer Platz"))), 0, 2);
    std::visit(
        [this](const auto &meines) {
            using Art = std::decay_t<decltype(meines)>;
            const std::optional<Satz> &alt = m_kollision.meines.alt;
            baue(meines, std::get<Art>(m_kollision.anderes),
                 alt ? std::get_if<Art>(&*alt) : nullptr);
        },
        m_kollision.meines.neu);
    m_felder->setRowStretch(m_felder->rowCount(), 1);
    aufbau->addWidget(new Rollbereich(felder), 1);
    auto *knoepfe = new QDialogButtonBox(QDialogButtonBox::Save);
    knoepfe->button(QDialogButtonBox::Save)
        ->setText(localizedString(QStringLiteral("So &sichern")));
    QPushButton *verwerfen = knoepfe->addButton(
        localizedString(QStringLiteral("Meine Änderung &verwerfen")), QDialogButtonBox::ActionRole);
    aufbau->addWidget(knoepfe);
    connect(knoepfe, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(verwerfen, &QPushButton::clicked, this, [this] { done(Rejected); });
    resize(fenstergroesse);
}

template <typename Art>
void Kollisionsfenster::baue(const Art &meines, const Art &anderes, const Art *grundlage)
{
    qsizetype stelle = 0;
    for (const Satzspalte<Art> &spalte : spalten<Art>()) {
        if (spalte.lies(meines) != spalte.lies(anderes)) {
            const bool vonMirGeaendert =
                grundlage == nullptr || spalte.lies(meines) != spalte.lies(*grundlage);
            fuegeZeileHinzu(localizedString(QString::fromUtf8(spalte.beschriftung)),
                            ganzeWorte(meines, spalte), ganzeWorte(anderes, spalte),
                            vonMirGeaendert);
            m_zeilen.last().spalte = stelle;
        }
        ++stelle;
    }
}

void Kollisionsfenster::fuegeZeileHinzu(const QString &name, const QString &meines,
                                        const QString &anderes, bool meinesZuerst)
{
    const int zeile = m_felder->rowCount();
    m_felder->addWidget(new QLabel(name), zeile, 0, Qt::AlignTop);
    auto *gruppe = new QButtonGroup(this);
    QRadioButton *wahl[2] = {};
    const QString seiten[] = {localizedString(QStringLiteral("Ihre Angabe")),
                              localizedString(QStringLiteral("Anderer Platz"))};
    const QString texte[] = {meines, anderes};
    for (int seite = 0; seite < 2; ++seite) {
        auto *knopf = new QRadioButton;
        knopf->setAccessibleName(name + QStringLiteral(", ") + seiten[seite] +
                                 QStringLiteral(": ") + texte[seite]);
        gruppe->addButton(knopf);
        wahl[seite] = knopf;
        auto *platz = new QHBoxLayout;
        platz->addWidget(knopf, 0, Qt::AlignTop);
        platz->addWidget(worte(texte[seite]), 1, Qt::AlignTop);
        m_felder->addLayout(platz, zeile, seite + 1);
    }
    wahl[meinesZuerst ? 0 : 1]->setChecked(true);
    m_zeilen.append({0, wahl[0]});
}

Satz Kollisionsfenster::entschieden() const
{
    return std::visit(
        [this](const auto &meines) -> Satz {
            using Art = std::decay_t<decltype(meines)>;
            Art ergebnis = std::get<Art>(m_kollision.anderes);
            for (const Zeile &zeile : m_zeilen) {
                if (zeile.meines->isChecked()) {
                    const Satzspalte<Art> &spalte =
                        spalten<Art>()[static_cast<std::size_t>(zeile.spalte)];
                    spalte.setze(ergebnis, spalte.lies(meines));
                }
            }
            return ergebnis;
        },
        m_kollision.meines.neu);
}
