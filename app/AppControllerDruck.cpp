// What is on display, on paper.

#include "AppController.h"

#include "Druckfuss.h"
#include "Papierbild.h"
#include "Rollbereich.h"
#include "Zeichenkettentabelle.h"

void AppController::drucken()
{
    const std::optional<Druckauftrag> auftrag = druckauftrag();
    if (auftrag && m_tueren.drucke) {
        m_tueren.drucke(Hauptfenster, *auftrag);
    }
}

void AppController::alsPdfSichern()
{
    const std::optional<Druckauftrag> auftrag = druckauftrag();
    if (auftrag && m_tueren.alsPdf) {
        m_tueren.alsPdf(Hauptfenster, *auftrag, [] {});
    }
}

/// The view in front as it looks, with the food, its amount and its ratings above it. The
/// calculator's views are about no food. Nothing is on display: that is said.
std::optional<Druckauftrag> AppController::druckauftrag() const
{
    if (DatenAnsicht->isHidden()) {
        m_tueren.melde(Hauptfenster,
                       {localizedString(QStringLiteral("Es wird nichts angezeigt, das gedruckt "
                                                       "werden könnte.")),
                        {},
                        {localizedString(QStringLiteral("ok"))}});
        return {};
    }
    QWidget *ansicht = DatenAnsicht->currentWidget();
    // Of a view that rolls only a part may be seen; it is printed whole.
    const auto *rollbereich = ansicht->findChild<Rollbereich *>();
    QWidget &seite = rollbereich != nullptr ? *rollbereich->widget() : *ansicht;
    const QString reiter = DatenAnsicht->tabText(DatenAnsicht->currentIndex());
    const QString name = feldA->textAufPapier();
    const bool vomLebensmittel = ansicht != tabVier && ansicht != tabFuenf && !name.isEmpty();
    Druckauftrag auftrag = vomLebensmittel
                               ? bildauftrag({name, reiter + QStringLiteral(", ") +
                                                        lebensmittelmenge->textAufPapier()},
                                             seite, papierwertungen())
                               : bildauftrag({reiter}, seite);
    auftrag.form = vomLebensmittel ? reiter : QString();
    return mitFuss(auftrag);
}

/// The ratings of the food on display, as they stand above its print.
QList<Papierwertung> AppController::papierwertungen() const
{
    QList<Papierwertung> ergebnis;
    for (const auto &zeile : wertungen) {
        const Textfeld &feld = *m_wertungsfelder[stelle(zeile.wertung)];
        const QString zeichen = feld.textAufPapier();
        if (!zeichen.isEmpty()) {
            const QString wort = Wertungswort::wortFuer(zeichen);
            ergebnis << Papierwertung{.bezeichnung =
                                          localizedString(QString::fromUtf8(zeile.bezeichnung)),
                                      .urteil = wort.isEmpty() ? zeichen : zeichen + u' ' + wort,
                                      .farbe = feld.textColor()};
        }
    }
    return ergebnis;
}
