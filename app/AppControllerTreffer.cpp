// The way through what a search found: which result is chosen, the next one, and back to them all.

#include "AppController.h"

#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QLabel>
#include <QPushButton>

namespace {

const QString spalteSuch = QStringLiteral("such");

QString tastenname(const char *taste)
{
    return QKeySequence(QLatin1String(taste)).toString(QKeySequence::NativeText);
}

} // namespace

void AppController::verbindeTreffer()
{
    connect(Tabelle, &Tabellenansicht::betaetigt, this, &AppController::folgeWahl);
    connect(treffersprung, &QPushButton::clicked, this, &AppController::zeigeTreffer);
    connect(trefferweiter, &QPushButton::clicked, this, [this] { waehleTreffer(1); });
    connect(trefferinliste, &QPushButton::clicked, this, &AppController::zeigeTrefferInListe);
    zeigeTrefferleiste();
}

/// Row of the first result: a search for a name puts a line in front of what it finds.
int AppController::ersterTreffer() const
{
    return static_cast<int>(suchArray.size() - m_trefferzahl);
}

/// The user has chosen a cell, and all that follows from that is done.
void AppController::folgeWahl()
{
    const QModelIndex zelle = Tabelle->currentIndex();
    const int spalte = Tabelle->clickedColumn();
    if (Tabelle->modell()->kennung(spalte) == spalteSuch) {
        const bool treffer = zelle.row() >= ersterTreffer() && zelle.row() < suchArray.size();
        m_treffer = treffer ? zelle.row() : -1;
        zeigeTrefferleiste();
    } else if (spalte >= 0) {
        folgeTreffer(schluesselVon(zelle));
    }
}

/// A food was chosen elsewhere: a result stays chosen as long as it is that food.
void AppController::folgeTreffer(const QString &schluessel)
{
    if (schluessel != suchArray2.value(m_treffer)) {
        m_treffer = -1;
    }
    zeigeTrefferleiste();
}

/// While there are results the strip keeps its place below the table: who clicks one of the last
/// rows twice must not meet a button with the second click.
void AppController::zeigeTrefferleiste()
{
    QSizePolicy platz = trefferleiste->sizePolicy();
    platz.setRetainSizeWhenHidden(m_trefferzahl > 0);
    trefferleiste->setSizePolicy(platz);
    const bool gewaehlt = m_treffer >= 0;
    const int stelle = gewaehlt ? m_treffer - ersterTreffer() + 1 : 1;
    trefferstelle->setText(
        localizedString(QStringLiteral("Treffer %1 von %2"))
            .arg(zahlenform().toString(stelle), zahlenform().toString(m_trefferzahl)));
    const bool einstellbar = gewaehlt && lebensmittelmenge->isEnabled();
    treffermenge->setText(einstellbar ? localizedString(QStringLiteral("Menge: rechts einstellen."))
                                      : localizedString(QStringLiteral("Menge ändern: zuerst")));
    trefferinliste->setVisible(!einstellbar);
    trefferinliste->setToolTip(localizedString(
        QStringLiteral("Die Menge lässt sich einstellen, sobald das Lebensmittel in der Spalte "
                       "„Lebensmittel“ oder „Eigene“ angeklickt ist.")));
    trefferweiter->setToolTip(localizedString(QStringLiteral("Nächster: %1, vorheriger: %2"))
                                  .arg(tastenname("F3"), tastenname("Shift+F3")));
    trefferleiste->setVisible(gewaehlt);
}

/// Chooses a result as a click on it does: so many further on than the chosen one, or the first or
/// last one while none is. Behind the last one comes the first.
void AppController::waehleTreffer(int um)
{
    if (m_tipppause.isActive()) {
        sucheGetipptes();
    }
    const int erster = ersterTreffer();
    const int zeilen = std::min(static_cast<int>(suchArray.size()), Tabelle->modell()->rowCount());
    const int anzahl = zeilen - erster;
    if (m_trefferzahl == 0 || anzahl <= 0) {
        return;
    }
    const int vorher = m_treffer >= 0 ? m_treffer - erster : um > 0 ? -1 : 0;
    Tabelle->waehle(erster + (vorher + um + anzahl) % anzahl, spalteSuch);
}

/// Goes back to the chosen result in its column; choosing it has rolled to its food.
void AppController::zeigeTreffer()
{
    Tabelle->setFocus(Qt::OtherFocusReason);
    Tabelle->setzeSchreibmarke(m_treffer, spalteSuch);
}

/// Chooses the food of the chosen result in its own column, where its amount can be set.
void AppController::zeigeTrefferInListe()
{
    zeigeWieder(suchArray2.value(m_treffer), KundenArray.contains(suchArray.value(m_treffer)));
    Tabelle->setFocus(Qt::OtherFocusReason);
}
