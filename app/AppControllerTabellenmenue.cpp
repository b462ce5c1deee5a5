// The menu of the main table. It is about the cell under the mouse, and chooses nothing.

#include "AppController.h"

#include "Zeichenkettentabelle.h"

#include <QMenu>

namespace {

const QString spalteEigen = QStringLiteral("eigen");

/// The entry shows the key, which belongs to the entry of the menu bar.
QString mitTaste(const QString &text, const char *taste)
{
    return text + u'\t' + QKeySequence(QLatin1String(taste)).toString(QKeySequence::NativeText);
}

} // namespace

void AppController::zeigeTabellenmenue(const QModelIndex &zelle, const QPoint &ort)
{
    const QString schluessel = schluesselVon(zelle);
    auto *menue = new QMenu(Tabelle);
    menue->setObjectName(QStringLiteral("tabellenmenue"));
    menue->setAttribute(Qt::WA_DeleteOnClose);
    const auto eintrag = [&](const QString &text, const std::function<void()> &aktion) {
        QAction *neu = menue->addAction(text);
        connect(neu, &QAction::triggered, this, aktion);
        return neu;
    };
    eintrag(mitTaste(localizedString(QStringLiteral("In den Plan &geben")), "Ctrl+Return"),
            [this, schluessel] { gibHinein(schluessel); })
        ->setEnabled(hindernis(schluessel).isEmpty());
    if (m_trefferzahl > 0) {
        eintrag(mitTaste(localizedString(QStringLiteral("&Nächster Treffer")), "F3"),
                [this] { waehleTreffer(1); });
    }
    if (istEigenes(zelle)) {
        eintrag(localizedString(QStringLiteral("&Werte als neues Lebensmittel abschreiben …")),
                [this, schluessel] {
                    Fenster();
                    schreibeInsBlatt(KundenDictionary.value(schluessel),
                                     nameFuerAbschrift(schluessel));
                    // The field shows the name with its next event, and is marked after that.
                    QMetaObject::invokeMethod(EingabeFensterfeldA, &QLineEdit::selectAll,
                                              Qt::QueuedConnection);
                });
    }
    if (istLoeschbar(zelle)) {
        eintrag(localizedString(QStringLiteral("&Löschen …")), [this] { LoescheneigeneLM(); });
    }
    menue->addSeparator();
    eintrag(localizedString(QStringLiteral("&Spalten anpassen")),
            [this] { Tabelle->vergissBreiten(); });
    menue->popup(ort);
}

/// Whether a cell of the own foods or of the results stands for an own food.
bool AppController::istEigenes(const QModelIndex &zelle) const
{
    const QString spalte = Tabelle->modell()->kennung(zelle.column());
    return spalte != QLatin1String("name") && KundenDictionary.contains(schluesselVon(zelle));
}

/// Deleting is about the own food that was chosen in its column and is on display.
bool AppController::istLoeschbar(const QModelIndex &zelle) const
{
    return Tabelle->modell()->kennung(zelle.column()) == spalteEigen &&
           Tabelle->modell()->kennung(angeklickteSpalte) == spalteEigen &&
           zelle.row() == Tabelle->selectedRow() && loeschenknopf->isEnabled() &&
           !schluesselVon(zelle).isNull() && schluesselVon(zelle) == feldA->stringValue();
}
