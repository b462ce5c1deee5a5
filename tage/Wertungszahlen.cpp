#include "Wertungszahlen.h"

#include "Zeichenkettentabelle.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>

namespace {

constexpr int jeGruppe = 3;
constexpr int spaltenabstand = 6;
constexpr int gruppenabstand = 14;
constexpr int ersteZahlenzeile = 2; // below the names of the groups and the signs

/// The signs of the foods' ratings, and what they mean.
struct Zeichen
{
    const char *zeichen;
    const char *wort;
    int Planwertung::*zahl;
    Wertungssieger sieger;
};

constexpr std::array<Zeichen, jeGruppe> zeichen = {
    {{"+", QT_TRANSLATE_NOOP("Mahlberg", "geeignet"), &Planwertung::plus, Wertungssieger::Plus},
     {"0", QT_TRANSLATE_NOOP("Mahlberg", "neutral"), &Planwertung::neutral,
      Wertungssieger::Neutral},
     {"−", QT_TRANSLATE_NOOP("Mahlberg", "ungeeignet"), &Planwertung::minus,
      Wertungssieger::Minus}}};

constexpr std::array<const char *, 2> gruppen = {QT_TRANSLATE_NOOP("Mahlberg", "Tag"),
                                                 QT_TRANSLATE_NOOP("Mahlberg", "Mittel")};

QString wort(const char *eines)
{
    return localizedString(QString::fromUtf8(eines));
}

/// The column of the grid for one of the six counts; before each group one is left free.
int spalteIn(int zahl)
{
    return 2 + zahl + zahl / jeGruppe;
}

QLabel *zahlfeld()
{
    auto *feld = new QLabel;
    feld->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return feld;
}

} // namespace

Wertungszahlen::Wertungszahlen(QWidget *parent) : QWidget(parent)
{
    auto *gitter = new QGridLayout(this);
    gitter->setContentsMargins(0, 0, 0, 0);
    gitter->setHorizontalSpacing(spaltenabstand);
    gitter->setVerticalSpacing(0);
    for (int gruppe = 0; gruppe < static_cast<int>(m_gruppen.size()); ++gruppe) {
        QLabel *&feld = m_gruppen[static_cast<std::size_t>(gruppe)];
        feld = new QLabel;
        feld->setAlignment(Qt::AlignCenter);
        gitter->setColumnMinimumWidth(spalteIn(gruppe * jeGruppe) - 1, gruppenabstand);
        gitter->addWidget(feld, 0, spalteIn(gruppe * jeGruppe), 1, jeGruppe);
    }
    for (std::size_t spalte = 0; spalte < spalten; ++spalte) {
        m_koepfe[spalte] = zahlfeld();
        gitter->addWidget(m_koepfe[spalte], 1, spalteIn(static_cast<int>(spalte)));
    }
    for (std::size_t zeile = 0; zeile < anzahlWertungen; ++zeile) {
        const int reihe = ersteZahlenzeile + static_cast<int>(zeile);
        m_namen[zeile] = new QLabel;
        gitter->addWidget(m_namen[zeile], reihe, 0);
        for (std::size_t spalte = 0; spalte < spalten; ++spalte) {
            m_zahlen[zeile][spalte] = zahlfeld();
            gitter->addWidget(m_zahlen[zeile][spalte], reihe, spalteIn(static_cast<int>(spalte)));
        }
    }
    beschrifte();
}

void Wertungszahlen::beschrifte()
{
    for (std::size_t gruppe = 0; gruppe < m_gruppen.size(); ++gruppe) {
        m_gruppen[gruppe]->setText(wort(gruppen[gruppe]));
    }
    for (std::size_t spalte = 0; spalte < spalten; ++spalte) {
        const Zeichen &eines = zeichen[spalte % jeGruppe];
        m_koepfe[spalte]->setText(QString::fromUtf8(eines.zeichen));
        m_koepfe[spalte]->setToolTip(wort(eines.wort));
        m_koepfe[spalte]->setAccessibleName(wort(eines.wort));
    }
    for (const Wertungsbeschreibung &eine : wertungen) {
        m_namen[stelle(eine.wertung)]->setText(wort(eine.bezeichnung));
    }
}

void Wertungszahlen::zeige(const Tagesrechnung &tag, const Tagesrechnung &mittel)
{
    beschrifte();
    for (std::size_t zeile = 0; zeile < anzahlWertungen; ++zeile) {
        zeigeZahlen(zeile, tag, false);
        zeigeZahlen(zeile, mittel, true);
    }
}

void Wertungszahlen::zeigeZahlen(std::size_t zeile, const Tagesrechnung &rechnung, bool mittel)
{
    const Planwertung &wertung = rechnung.auswertung.wertungen[zeile];
    for (std::size_t i = 0; i < zeichen.size(); ++i) {
        QLabel &feld = *m_zahlen[zeile][i + (mittel ? zeichen.size() : 0)];
        feld.setText(rechnung.tage > 0 ? QString::number(wertung.*zeichen[i].zahl) : QString());
        QFont schrift = feld.font();
        schrift.setBold(rechnung.tage > 0 && wertung.sieger == zeichen[i].sieger);
        feld.setFont(schrift);
    }
    const QString gesagt = worte(static_cast<Wertung>(zeile), mittel);
    for (std::size_t i = 0; i < zeichen.size(); ++i) {
        QLabel &feld = *m_zahlen[zeile][i + (mittel ? zeichen.size() : 0)];
        feld.setToolTip(gesagt);
        feld.setAccessibleName(gesagt);
    }
}

QString Wertungszahlen::worte(Wertung wertung, bool mittel) const
{
    const std::size_t erste = mittel ? zeichen.size() : 0;
    QStringList zahlen;
    for (std::size_t i = 0; i < zeichen.size(); ++i) {
        const QString zahl = m_zahlen[stelle(wertung)][erste + i]->text();
        if (zahl.isEmpty()) {
            return {};
        }
        zahlen << zahl + u' ' + wort(zeichen[i].wort);
    }
    return QStringLiteral("%1, %2: %3")
        .arg(wort(beschreibung(wertung).bezeichnung), wort(gruppen[mittel ? 1 : 0]),
             zahlen.join(QStringLiteral(", ")));
}
