#include "Menue.h"

#include "AppController.h"
#include "Erscheinungsbild.h"
#include "Ueber.h"
#include "Zeichenkettentabelle.h"

#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenuBar>
#include <QTextEdit>

namespace {

QAction *eintrag(QMenu &menue, const char *text, const QKeySequence &tasten,
                 const std::function<void()> &aktion)
{
    QAction *neu = menue.addAction(localizedString(QString::fromUtf8(text)));
    neu->setShortcut(tasten);
    QObject::connect(neu, &QAction::triggered, &menue, [aktion] { aktion(); });
    return neu;
}

/// Takes back or repeats what was typed into the field that has the keyboard. False when there is
/// nothing to take back in it: then the last change of foods or plan is meant.
bool bearbeiteGetipptes(const char *slot, bool (QLineEdit::*moeglich)() const)
{
    const auto *feld = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    return feld != nullptr && !feld->isReadOnly() && (feld->*moeglich)() &&
           QMetaObject::invokeMethod(QApplication::focusWidget(), slot);
}

QMenu &menue(AppController &controller, const char *titel)
{
    return *controller.Hauptfenster->menuBar()->addMenu(localizedString(QString::fromUtf8(titel)));
}

/// Runs an editing slot such as "copy" of the field that has the keyboard. In a table, copying
/// takes the text of the chosen cell.
void bearbeite(const char *slot)
{
    QWidget *feld = QApplication::focusWidget();
    if (feld == nullptr) {
        return;
    }
    if (qobject_cast<QLineEdit *>(feld) != nullptr || qobject_cast<QTextEdit *>(feld) != nullptr) {
        QMetaObject::invokeMethod(feld, slot);
    } else if (const auto *tabelle = qobject_cast<QAbstractItemView *>(feld);
               tabelle != nullptr && qstrcmp(slot, "copy") == 0 &&
               tabelle->currentIndex().isValid()) {
        QApplication::clipboard()->setText(tabelle->currentIndex().data().toString());
    }
}

void baueAblage(AppController &controller)
{
    QMenu &ablage = menue(controller, QT_TRANSLATE_NOOP("Mahlberg", "&Ablage"));
    eintrag(ablage, QT_TRANSLATE_NOOP("Mahlberg", "&Neues Lebensmittel …"), QKeySequence::New,
            [&controller] { controller.Fenster(); });
    eintrag(ablage, QT_TRANSLATE_NOOP("Mahlberg", "Eigenes Lebensmittel &sichern …"),
            QKeySequence::Save, [&controller] { controller.sichernaufzu->click(); });
    eintrag(ablage, QT_TRANSLATE_NOOP("Mahlberg", "Eigenes Lebensmittel &löschen …"), {},
            [&controller] { controller.LoescheneigeneLM(); });
    ablage.addSeparator();
    eintrag(ablage, QT_TRANSLATE_NOOP("Mahlberg", "Datei &öffnen …"), QKeySequence::Open,
            [&controller] { Q_EMIT controller.dateiGewuenscht(); });
    ablage.addSeparator();
    eintrag(ablage, QT_TRANSLATE_NOOP("Mahlberg", "In den Plan &geben"),
            QKeySequence(QStringLiteral("Ctrl+Return")), [&controller] { controller.gibInPlan(); });
    eintrag(ablage, QT_TRANSLATE_NOOP("Mahlberg", "In den Mahlzeiten&plan"), {},
            [&controller] { controller.toolbarlebensmittelweitergabe(); });
    ablage.addSeparator();
    eintrag(ablage, QT_TRANSLATE_NOOP("Mahlberg", "Lebensmittel &einlesen …"),
            QKeySequence(QStringLiteral("Ctrl+I")),
            [&controller] { Q_EMIT controller.einlesenGewuenscht(); });
    eintrag(ablage, QT_TRANSLATE_NOOP("Mahlberg", "Als &Tabelle sichern …"),
            QKeySequence(QStringLiteral("Ctrl+Shift+S")),
            [&controller] { Q_EMIT controller.ausgebenGewuenscht(); });
    ablage.addSeparator();
    eintrag(ablage, QT_TRANSLATE_NOOP("Mahlberg", "&Drucken …"),
            QKeySequence(QStringLiteral("Ctrl+P")), [&controller] { controller.drucken(); });
    eintrag(ablage, QT_TRANSLATE_NOOP("Mahlberg", "&Als PDF sichern …"),
            QKeySequence(QStringLiteral("Ctrl+Shift+P")),
            [&controller] { controller.alsPdfSichern(); });
    ablage.addSeparator();
    eintrag(ablage, QT_TRANSLATE_NOOP("Mahlberg", "&Frühere Stände …"), {},
            [&controller] { Q_EMIT controller.fruehereStaendeGewuenscht(); });
    ablage.addSeparator();
    // A key of its own, which not every desktop has for this; from the plan's window as well.
    eintrag(ablage, QT_TRANSLATE_NOOP("Mahlberg", "&Beenden"),
            QKeySequence(QStringLiteral("Ctrl+Q")),
            [&controller] { controller.Hauptfenster->close(); })
        ->setShortcutContext(Qt::ApplicationShortcut);
}

void baueBearbeiten(AppController &controller)
{
    QMenu &bearbeiten = menue(controller, QT_TRANSLATE_NOOP("Mahlberg", "&Bearbeiten"));
    QAction *zurueck = eintrag(bearbeiten, QT_TRANSLATE_NOOP("Mahlberg", "&Rückgängig"),
                               QKeySequence::Undo, [&controller] {
                                   if (!bearbeiteGetipptes("undo", &QLineEdit::isUndoAvailable)) {
                                       Q_EMIT controller.zuruecknehmenGewuenscht();
                                   }
                               });
    zurueck->setObjectName(QStringLiteral("aktionRueckgaengig"));
    QAction *wieder = eintrag(bearbeiten, QT_TRANSLATE_NOOP("Mahlberg", "&Wiederholen"),
                              QKeySequence(QStringLiteral("Ctrl+Shift+Z")), [&controller] {
                                  if (!bearbeiteGetipptes("redo", &QLineEdit::isRedoAvailable)) {
                                      Q_EMIT controller.wiederholenGewuenscht();
                                  }
                              });
    wieder->setObjectName(QStringLiteral("aktionWiederholen"));
    bearbeiten.addSeparator();
    const struct
    {
        const char *text;
        QKeySequence::StandardKey tasten;
        const char *slot;
        bool trennung;
    } zeilen[] = {
        {QT_TRANSLATE_NOOP("Mahlberg", "&Ausschneiden"), QKeySequence::Cut, "cut", false},
        {QT_TRANSLATE_NOOP("Mahlberg", "&Kopieren"), QKeySequence::Copy, "copy", false},
        {QT_TRANSLATE_NOOP("Mahlberg", "&Einfügen"), QKeySequence::Paste, "paste", true},
        {QT_TRANSLATE_NOOP("Mahlberg", "A&lles auswählen"), QKeySequence::SelectAll, "selectAll",
         false},
    };
    for (const auto &zeile : zeilen) {
        eintrag(bearbeiten, zeile.text, zeile.tasten, [slot = zeile.slot] { bearbeite(slot); });
        if (zeile.trennung) {
            bearbeiten.addSeparator();
        }
    }
    eintrag(bearbeiten, QT_TRANSLATE_NOOP("Mahlberg", "Als &Tabelle kopieren"),
            QKeySequence(QStringLiteral("Ctrl+Shift+C")),
            [&controller] { Q_EMIT controller.tabelleKopierenGewuenscht(); });
    bearbeiten.addSeparator();
    eintrag(bearbeiten, QT_TRANSLATE_NOOP("Mahlberg", "Lebensmittel &suchen"), QKeySequence::Find,
            [&controller] {
                controller.suchfeld->setFocus(Qt::ShortcutFocusReason);
                controller.suchfeld->selectAll();
            });
    eintrag(bearbeiten, QT_TRANSLATE_NOOP("Mahlberg", "&Nächster Treffer"),
            QKeySequence(QStringLiteral("F3")), [&controller] { controller.waehleTreffer(1); });
    eintrag(bearbeiten, QT_TRANSLATE_NOOP("Mahlberg", "&Vorheriger Treffer"),
            QKeySequence(QStringLiteral("Shift+F3")),
            [&controller] { controller.waehleTreffer(-1); });
    eintrag(bearbeiten, QT_TRANSLATE_NOOP("Mahlberg", "&Menge eingeben"),
            QKeySequence(QStringLiteral("Ctrl+G")), [&controller] { controller.gehZurMenge(); });
    eintrag(bearbeiten, QT_TRANSLATE_NOOP("Mahlberg", "&Profilsuche"),
            QKeySequence(QStringLiteral("Ctrl+Shift+F")),
            [&controller] { controller.profilaufzu->toggle(); });
    eintrag(bearbeiten, QT_TRANSLATE_NOOP("Mahlberg", "&Zuletzt gewählte Lebensmittel …"),
            QKeySequence(QStringLiteral("Ctrl+L")), [&controller] { controller.zeigeZuletzt(); });
    bearbeiten.addSeparator();
    eintrag(bearbeiten, QT_TRANSLATE_NOOP("Mahlberg", "E&instellungen …"),
            QKeySequence(QStringLiteral("Ctrl+,")),
            [&controller] { Q_EMIT controller.einstellungenGewuenscht(); });
}

void baueErscheinungsbild(QMenu &darstellung, AppController &controller)
{
    QMenu &auswahl = *darstellung.addMenu(localizedString(QStringLiteral("E&rscheinungsbild")));
    auto *gruppe = new QActionGroup(&auswahl);
    gruppe->setObjectName(QStringLiteral("erscheinungsbilder"));
    const std::pair<const char *, Erscheinungsbild> zeilen[] = {
        {QT_TRANSLATE_NOOP("Mahlberg", "Wie das &System"), Erscheinungsbild::System},
        {QT_TRANSLATE_NOOP("Mahlberg", "&Hell"), Erscheinungsbild::Hell},
        {QT_TRANSLATE_NOOP("Mahlberg", "&Dunkel"), Erscheinungsbild::Dunkel},
    };
    for (const auto &[text, bild] : zeilen) {
        QAction *wahl = eintrag(auswahl, text, {}, [&controller, bild = bild] {
            controller.waehleErscheinungsbild(bild);
        });
        wahl->setCheckable(true);
        wahl->setChecked(controller.erscheinungsbild() == bild);
        gruppe->addAction(wahl);
    }
}

void baueSprache(QMenu &darstellung, AppController &controller)
{
    QMenu &auswahl = *darstellung.addMenu(localizedString(QStringLiteral("S&prache")));
    auto *gruppe = new QActionGroup(&auswahl);
    gruppe->setObjectName(QStringLiteral("sprachen"));
    const std::pair<const char *, const char *> zeilen[] = {{"Deutsch", "de"}, {"English", "en"}};
    for (const auto &[text, sprache] : zeilen) {
        const QString kuerzel = QLatin1String(sprache);
        QAction *wahl = eintrag(auswahl, text, {},
                                [&controller, kuerzel] { controller.waehleSprache(kuerzel); });
        wahl->setCheckable(true);
        wahl->setChecked(QLocale().name().startsWith(kuerzel));
        gruppe->addAction(wahl);
    }
}

void baueDarstellung(AppController &controller)
{
    QMenu &darstellung = menue(controller, QT_TRANSLATE_NOOP("Mahlberg", "&Darstellung"));
    for (int i = 0; i < AppController::ansichten.size(); ++i) {
        QAction *wahl = darstellung.addAction(
            controller.DatenAnsicht->tabText(i), QKeySequence(QStringLiteral("Ctrl+%1").arg(i + 1)),
            &controller,
            [&controller, i] { controller.zeigeAnsicht(AppController::ansichten[i]); });
        wahl->setObjectName(QStringLiteral("ansicht ") + AppController::ansichten[i]);
    }
    eintrag(darstellung, QT_TRANSLATE_NOOP("Mahlberg", "&Nächste Ansicht"),
            QKeySequence(QStringLiteral("Ctrl+T")),
            [&controller] { controller.Ansichtdurchwechseln(); });
    eintrag(darstellung, QT_TRANSLATE_NOOP("Mahlberg", "&Eigenes Lebensmittel der Zeile zeigen"),
            QKeySequence(QStringLiteral("Ctrl+E")), [&controller] { controller.LadeneigeneLM(); });
    darstellung.addSeparator();
    QAction *leiste = controller.toolbar->toggleViewAction();
    leiste->setText(localizedString(QStringLiteral("Sy&mbolleiste zeigen")));
    darstellung.addAction(leiste);
    eintrag(darstellung, QT_TRANSLATE_NOOP("Mahlberg", "Symbolleiste &anpassen …"), {},
            [&controller] { controller.Leisteanpassen(); });
    eintrag(darstellung, QT_TRANSLATE_NOOP("Mahlberg", "&Trennlinie bewegen"),
            QKeySequence(QStringLiteral("F8")), [&controller] { controller.teiler->bewege(); });
    darstellung.addSeparator();
    baueErscheinungsbild(darstellung, controller);
    baueSprache(darstellung, controller);
}

void baueFenster(AppController &controller)
{
    QMenu &fenster = menue(controller, QT_TRANSLATE_NOOP("Mahlberg", "&Fenster"));
    QMainWindow *haupt = controller.Hauptfenster;
    eintrag(fenster, QT_TRANSLATE_NOOP("Mahlberg", "&Minimieren"),
            QKeySequence(QStringLiteral("Ctrl+M")), [haupt] { haupt->showMinimized(); });
    eintrag(fenster, QT_TRANSLATE_NOOP("Mahlberg", "Ma&ximieren"), {},
            [haupt] { haupt->setWindowState(haupt->windowState() ^ Qt::WindowMaximized); });
    eintrag(fenster, QT_TRANSLATE_NOOP("Mahlberg", "&Vollbild"),
            QKeySequence(QStringLiteral("F11")),
            [haupt] { haupt->setWindowState(haupt->windowState() ^ Qt::WindowFullScreen); });
    fenster.addSeparator();
    eintrag(fenster, QT_TRANSLATE_NOOP("Mahlberg", "Mahlzeiten&plan"),
            QKeySequence(QStringLiteral("Ctrl+0")),
            [&controller] { controller.Planmoduloeffnen(); });
}

void baueHilfe(AppController &controller)
{
    QMenu &hilfe = menue(controller, QT_TRANSLATE_NOOP("Mahlberg", "&Hilfe"));
    eintrag(hilfe, QT_TRANSLATE_NOOP("Mahlberg", "&Handbuch"), QKeySequence(QStringLiteral("F1")),
            [&controller] { Q_EMIT controller.hilfeGewuenscht(controller.Hauptfenster); });
    hilfe.addSeparator();
    eintrag(hilfe, QT_TRANSLATE_NOOP("Mahlberg", "&Über Mahlberg"), {},
            [&controller] { zeigeUeber(controller.Hauptfenster); });
    eintrag(hilfe, QT_TRANSLATE_NOOP("Mahlberg", "Über &Qt"), {}, &QApplication::aboutQt);
}

} // namespace

void baueMenueleiste(AppController &controller)
{
    baueAblage(controller);
    baueBearbeiten(controller);
    baueDarstellung(controller);
    baueFenster(controller);
    baueHilfe(controller);
}
