#include "Tagesauswertungsfenster.h"

#include "Ampelfarbe.h"
#include "Planurteil.h"
#include "Schriftplatz.h"
#include "Schriftstufe.h"
#include "Spaltenumbruch.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>
#include <QEvent>
#include <QImage>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace {

constexpr int zaehlhoehe = 22;
constexpr int zaehlbreite = 84;
constexpr int kreisbreite = 244;

/// How the counts of a rating are read out, from the suitable ones on.
constexpr std::array<const char *, 3> zaehlworte = {
    QT_TRANSLATE_NOOP("Mahlberg", "%1, geeignete Lebensmittel"),
    QT_TRANSLATE_NOOP("Mahlberg", "%1, neutrale Lebensmittel"),
    QT_TRANSLATE_NOOP("Mahlberg", "%1, ungeeignete Lebensmittel")};

QImage gesicht(const char *name)
{
    return QImage(QStringLiteral(":/bilder/%1.png").arg(QLatin1String(name)));
}

/// Where none of the three ever led, they look as if nothing had been counted.
std::array<std::pair<Textfarbe, int>, 3> aussehen(const Planwertung &wertung)
{
    if (!wertung.sieger) {
        return {};
    }
    const auto vom = [](const Zeichenstil &stil) {
        return std::pair(textfarbe(stil.farbe), stil.punktgroesse);
    };
    const Wertungsstil stil = wertungsstil(*wertung.sieger);
    return {vom(stil.plus), vom(stil.neutral), vom(stil.minus)};
}

} // namespace

Tagesauswertungsfenster::Tagesauswertungsfenster(QWidget *parent)
    : QDialog(parent)
    , TagesauswertungsfensterGestalt()
{
    setupUi(this);
    baueWertungen();
    ladeBilder();
    for (const QRadioButton *knopf : {tagknopf, mittelknopf}) {
        connect(knopf, &QRadioButton::toggled, this, [this](bool ja) {
            if (ja) {
                zeigeGewaehltes();
            }
        });
    }
    Schriftstufe::kleide(*this);
    Schriftplatz::gib(*this);
    new Spaltenumbruch(*rollseite, *spalten, *rechteSpalten);
    folgeSprache();
    const QMargins rand = anordnung->contentsMargins();
    const int breite = bedarfsgitter->minimumSizeHint().width() + rand.left() + rand.right() +
                       rollseite->verticalScrollBar()->sizeHint().width();
    resize(std::max(breite, width()), height());
}

/// The grid of the counts: a line for each of the four ratings.
void Tagesauswertungsfenster::baueWertungen()
{
    for (std::size_t zeile = 0; zeile < anzahlWertungen; ++zeile) {
        const int reihe = static_cast<int>(zeile) + 1; // below the words
        m_wertungsnamen[zeile] = new QLabel;
        wertungsgitter->addWidget(m_wertungsnamen[zeile], reihe, 0);
        for (std::size_t spalte = 0; spalte < m_zaehlungen[zeile].size(); ++spalte) {
            auto *feld = new Zaehlfeld;
            feld->setAlignment(Qt::AlignCenter);
            feld->setMinimumSize(zaehlbreite, zaehlhoehe);
            wertungsgitter->addWidget(feld, reihe, static_cast<int>(spalte) + 1);
            m_zaehlungen[zeile][spalte] = feld;
        }
    }
}

void Tagesauswertungsfenster::ladeBilder()
{
    gesichtsbild->setImage(gesicht("smile"));
    gesichtsbild->setImage2(gesicht("nocrie-nosmile"));
    gesichtsbild->setImage3(gesicht("crie"));
}

void Tagesauswertungsfenster::folgeSprache()
{
    beschrifte();
    zeigeGewaehltes();
}

void Tagesauswertungsfenster::beschrifte()
{
    kreisfarben->setEintraege({
        {QColor(0, 255, 0), localizedString(QStringLiteral("Protein"))},
        {QColor(0, 0, 255), localizedString(QStringLiteral("Kohlenhydrate"))},
        {QColor(255, 255, 0), localizedString(QStringLiteral("Fett"))},
    });
    for (const Wertungsbeschreibung &eine : wertungen) {
        const QString name = localizedString(QString::fromUtf8(eine.bezeichnung));
        m_wertungsnamen[stelle(eine.wertung)]->setText(name);
        for (std::size_t i = 0; i < zaehlworte.size(); ++i) {
            m_zaehlungen[stelle(eine.wertung)][i]->setAccessibleDescription(
                localizedString(QString::fromUtf8(zaehlworte[i])).arg(name));
        }
    }
}

void Tagesauswertungsfenster::zeige(const Stand &stand)
{
    m_stand = stand;
    zeigeGewaehltes();
}

void Tagesauswertungsfenster::zeigeGewaehltes()
{
    const Tagesrechnung &rechnung = mittelknopf->isChecked() ? m_stand.mittel : m_stand.tag;
    gegenstandsworte->setText(gegenstand(rechnung));
    const std::int32_t bedarf = m_stand.bedarf.bedarf;
    bedarfsworte->setText(
        bedarf > 0 ? energieworte(bedarf, m_stand.bedarf.unbereinigt)
                   : localizedString(QStringLiteral(
                         "Der Rechner kennt den Bedarf noch nicht: Was an der Energie gemessen "
                         "wird, hat keinen Anteil. Er steht unter „Körper und Energie“.")));
    unverstandenworte->setText(
        rechnung.unverstanden > 0
            ? localizedString(QStringLiteral("Zeilen, die nicht zählen, weil Lebensmittel oder "
                                             "Menge unbekannt sind: %1."))
                  .arg(rechnung.unverstanden)
            : QString());
    unverstandenworte->setVisible(rechnung.unverstanden > 0);
    leerworte->setText(leerWorte());
    seiten->setCurrentWidget(rechnung.tage > 0 ? static_cast<QWidget *>(rollseite) : leerseite);
    if (rechnung.tage > 0) {
        bedarfsgitter->zeige(rechnung.auswertung, bedarf);
        zeigeWertungen(rechnung.auswertung);
        zeigeKreise(rechnung.auswertung);
        zeigeBeurteilung(rechnung.auswertung);
    }
}

QString Tagesauswertungsfenster::gegenstand(const Tagesrechnung &rechnung) const
{
    return mittelknopf->isChecked()
               ? localizedString(QStringLiteral("Tage im Mittel: %1.")).arg(rechnung.tage)
               : m_stand.tagesname;
}

/// Why there is nothing to see, where there is nothing.
QString Tagesauswertungsfenster::leerWorte() const
{
    return m_stand.tagesname.isNull()
               ? localizedString(QStringLiteral("Keine Aufzeichnung ist geöffnet."))
           : mittelknopf->isChecked()
               ? localizedString(QStringLiteral("Kein Tag zählt im Mittel."))
               : localizedString(QStringLiteral("An diesem Tag zählt noch nichts."));
}

void Tagesauswertungsfenster::zeigeWertungen(const Planauswertung &auswertung)
{
    for (std::size_t i = 0; i < anzahlWertungen; ++i) {
        const Planwertung &wertung = auswertung.wertungen[i];
        const std::array<int, 3> zahlen = {wertung.plus, wertung.neutral, wertung.minus};
        const auto wie = aussehen(wertung);
        for (std::size_t j = 0; j < zahlen.size(); ++j) {
            m_zaehlungen[i][j]->setAnfang(wie[j].first, wie[j].second);
            m_zaehlungen[i][j]->setIntValue(zahlen[j]);
        }
    }
}

void Tagesauswertungsfenster::zeigeKreise(const Planauswertung &auswertung)
{
    kreisansicht->wert1(auswertung.proteinanteil);
    kreisansicht->wert2(auswertung.khanteil);
    kreisansicht->wert3(auswertung.fettanteil);
    kreisworte->setText(kreisansicht->beschreibung());
    istwort->setText(mittelknopf->isChecked() ? localizedString(QStringLiteral("Mittel"))
                                              : localizedString(QStringLiteral("Tag")));
    rueckeKreisworte();
}

void Tagesauswertungsfenster::zeigeBeurteilung(const Planauswertung &auswertung)
{
    gesichtsbild->entscheidung(auswertung.gesicht);
    urteilsworte->setText(planurteil(auswertung, false) + u'\n' + punkteworte(auswertung));
    const QString worte = fehlendePunkte(auswertung);
    fehlworte->setText(worte);
    gesichtsbild->setAccessibleDescription(planurteil(auswertung, false));
}

/// The words begin where the circles end, also where larger letters make the picture wider: there a
/// circle's radius is a fifth of the width, and its centre lies 45 points above the middle.
void Tagesauswertungsfenster::rueckeKreisworte()
{
    constexpr int fussraum = 90;
    const int breite = std::max(kreisbreite, kreisfarben->minimumSizeHint().width());
    const int durchmesser = 2 * breite / 5;
    const int worte = istwort->sizeHint().height() + kreisfarben->sizeHint().height() +
                      kreisworte->heightForWidth(breite) + 3 * kreisordnung->spacing();
    const int platz = std::max(worte - fussraum, fussraum - worte) + durchmesser;
    kreisluft->changeSize(0, platz, QSizePolicy::Minimum, QSizePolicy::Fixed);
    kreisordnung->invalidate();
    kreisansicht->setFixedSize(breite, platz + worte);
}

void Tagesauswertungsfenster::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        rueckeKreisworte();
    }
}
