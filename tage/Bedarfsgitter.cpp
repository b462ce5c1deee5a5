#include "Bedarfsgitter.h"

#include "Ampel.h"
#include "Planregeln.h"
#include "Planurteil.h"
#include "Textfeld.h"
#include "WertungView.h"
#include "Zeichenkettentabelle.h"

#include <QGridLayout>
#include <QLabel>

#include <cmath>

namespace {

// The sizes of the plan's own grid.
constexpr int zeilenJeSpalte = 9;
constexpr int spaltenabstand = 6;
constexpr int gruppenabstand = 26;
constexpr QSize balkengroesse(73, 18);

const QString breitesterAnteil = QStringLiteral("1000,0\u00a0%"); // none that is read is larger

/// A figure that ran over says nothing: a dash stands for it.
void zeigeZahl(Textfeld &feld, double zahl)
{
    if (std::isfinite(zahl)) {
        feld.setDoubleValue(zahl);
    } else {
        feld.setStringValue(QStringLiteral("-"));
    }
}

Textfeld *prozentfeld()
{
    auto *feld = new Textfeld;
    feld->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    feld->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    feld->setMuster(breitesterAnteil);
    feld->setDecimals(1);
    feld->setUnit(QStringLiteral("%"));
    return feld;
}

} // namespace

Bedarfsgitter::Bedarfsgitter(QWidget *parent) : QWidget(parent)
{
    auto *gitter = new QGridLayout(this);
    gitter->setContentsMargins(0, 0, 0, 0);
    gitter->setHorizontalSpacing(spaltenabstand);
    gitter->setVerticalSpacing(1);
    for (int i = 0; i < static_cast<int>(m_zeilen.size()); ++i) {
        Zeile &zeile = m_zeilen[static_cast<std::size_t>(i)];
        zeile = {new QLabel, prozentfeld(), new WertungView, new QLabel};
        zeile.balken->setFixedSize(balkengroesse);
        int spalte = i / zeilenJeSpalte * 4;
        for (QWidget *teil : std::initializer_list<QWidget *>{zeile.name, zeile.prozent,
                                                              zeile.balken, zeile.zeichen}) {
            gitter->addWidget(teil, i % zeilenJeSpalte, spalte++);
        }
    }
    gitter->setColumnMinimumWidth(3, gruppenabstand); // of the signs between the two halves
    gitter->setColumnMinimumWidth(7, gruppenabstand);
    gitter->setRowStretch(zeilenJeSpalte, 1);
    beschrifte();
}

void Bedarfsgitter::beschrifte()
{
    for (const Naehrwertbeschreibung &eine : naehrwerte) {
        const Zeile &zeile = m_zeilen[stelle(eine.wert)];
        const QString name = localizedString(QString::fromUtf8(eine.bezeichnung));
        zeile.name->setText(name);
        zeile.prozent->setAccessibleName(
            localizedString(QStringLiteral("%1, Anteil am Tagesbedarf")).arg(name));
        zeile.balken->setAccessibleName(localizedString(QStringLiteral("%1, Balken")).arg(name));
    }
}

void Bedarfsgitter::zeige(const Planauswertung &auswertung, std::int32_t energiebedarf)
{
    beschrifte();
    for (const Planregel &regel : planregeln) {
        const Zeile &zeile = m_zeilen[stelle(regel.wert)];
        const Plannaehrwert &naehrwert = auswertung.naehrwerte[stelle(regel.wert)];
        zeigeZahl(*zeile.prozent, naehrwert.prozent);
        const Planbalken balken =
            naehrwert.balken.value_or(Planbalken{Balkencode::unveraendert, 0});
        zeile.balken->drawaRect(Balkencode::blau); // a bar that was never told its colour
        zeile.balken->drawaRect(balken.code.value_or(Balkencode::unveraendert));
        zeile.balken->drawabalken(balken.laenge);
        zeile.zeichen->setText(zeile.balken->zeichen());
        const QString worte = mengenworte(regel, naehrwert.summe, energiebedarf);
        zeile.prozent->setToolTip(worte);
        zeile.prozent->setAccessibleDescription(worte);
    }
}
