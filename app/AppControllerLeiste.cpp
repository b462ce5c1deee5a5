// The main window's toolbar, and what its window keeps of the user's taste.

#include "AppController.h"

#include "Anpassungspalette.h"
#include "Einstellungen.h"
#include "Erscheinungsbild.h"
#include "Zeichenkettentabelle.h"

namespace {

struct Werkzeugzeile
{
    const char *kennung;
    const char *beschriftung;
    const char *palettenbeschriftung;
    const char *bild;
};

constexpr Werkzeugzeile werkzeuge[] = {
    {"plan1", QT_TRANSLATE_NOOP("Mahlberg", "Planmodul"), "Planmodul", "Planmodul"},
    {"drucken", QT_TRANSLATE_NOOP("Mahlberg", "Drucken"), "Drucken", "Drucken"},
    // No blank before "Planmodul": the label is as wide as its picture allows.
    {"export", QT_TRANSLATE_NOOP("Mahlberg", "LM anPlanmodul"),
     QT_TRANSLATE_NOOP("Mahlberg", "Lebensmittel an Planmodul"), "LM an Planmodul"},
    {"customize", QT_TRANSLATE_NOOP("Mahlberg", "Anpassen"),
     QT_TRANSLATE_NOOP("Mahlberg", "Toolbar anpassen"), "Anpassen"},
    {"bildschirm", QT_TRANSLATE_NOOP("Mahlberg", "Ansicht"), "Ansicht", "Ansicht2"},
    {"sport", QT_TRANSLATE_NOOP("Mahlberg", "Sport"), "Sport", "SportIcon"},
    {"neu", QT_TRANSLATE_NOOP("Mahlberg", "Neues LM"), "Neues LM", "Neues LM"},
    {"loeschen", QT_TRANSLATE_NOOP("Mahlberg", "LM loeschen"), "LM loeschen", "Papierkorb"},
};

} // namespace

QStringList AppController::toolbarAllowedItemIdentifiers() const
{
    return {QStringLiteral("plan1"),    Werkzeugleiste::space,         QStringLiteral("drucken"),
            QStringLiteral("export"),   QStringLiteral("bildschirm"),  QStringLiteral("neu"),
            QStringLiteral("loeschen"), Werkzeugleiste::flexibleSpace, QStringLiteral("customize")};
}

QStringList AppController::toolbarDefaultItemIdentifiers() const
{
    QStringList kennungen;
    for (const char *kennung : {"plan1", "drucken", "export", "bildschirm", "neu", "loeschen"}) {
        kennungen << QLatin1String(kennung) << Werkzeugleiste::space;
    }
    return kennungen << Werkzeugleiste::flexibleSpace << QStringLiteral("customize");
}

Werkzeug AppController::toolbarItem(const QString &kennung)
{
    Werkzeug werkzeug;
    werkzeug.kennung = kennung;
    for (const Werkzeugzeile &zeile : werkzeuge) {
        if (kennung == QLatin1String(zeile.kennung)) {
            werkzeug.beschriftung = localizedString(QString::fromUtf8(zeile.beschriftung));
            werkzeug.palettenbeschriftung =
                localizedString(QString::fromUtf8(zeile.palettenbeschriftung));
            werkzeug.bild = QIcon(QStringLiteral(":/bilder/%1.svg").arg(QLatin1String(zeile.bild)));
            werkzeug.aktion = werkzeugaktion(kennung);
        }
    }
    return werkzeug;
}

std::function<void()> AppController::werkzeugaktion(const QString &kennung)
{
    const std::pair<const char *, void (AppController::*)()> aktionen[] = {
        {"plan1", &AppController::Planmoduloeffnen},
        {"drucken", &AppController::drucken},
        {"export", &AppController::toolbarlebensmittelweitergabe},
        {"customize", &AppController::Leisteanpassen},
        {"bildschirm", &AppController::Ansichtdurchwechseln},
        {"neu", &AppController::Fenster},
    };
    for (const auto &[name, aktion] : aktionen) {
        if (kennung == QLatin1String(name)) {
            return [this, aktion = aktion] {
                (this->*aktion)();
            };
        }
    }
    if (kennung == QLatin1String("loeschen")) {
        return [this] {
            LoescheneigeneLM();
        };
    }
    return {};
}

void AppController::setUpToolbar()
{
    toolbar = new Werkzeugleiste(QStringLiteral("mainToolbar"), *this, *m_tueren.einstellungen,
                                 Hauptfenster);
    Hauptfenster->addToolBar(toolbar);
    connect(toolbar, &Werkzeugleiste::anpassenGewuenscht, this, &AppController::Leisteanpassen);
}

/// Opens the palette; while it is open, the item that opens it does nothing more.
void AppController::Leisteanpassen()
{
    if (toolbar->istAnpassbar()) {
        return;
    }
    toolbar->show();
    auto *palette = new Anpassungspalette(*toolbar, Hauptfenster);
    palette->setAttribute(Qt::WA_DeleteOnClose);
    palette->show();
}

Erscheinungsbild AppController::erscheinungsbild() const
{
    return gemerktesErscheinungsbild(*m_tueren.einstellungen);
}

void AppController::waehleErscheinungsbild(Erscheinungsbild bild)
{
    merkeErscheinungsbild(*m_tueren.einstellungen, bild);
    zeigeErscheinungsbild(bild);
}

void AppController::waehleSprache(const QString &sprache)
{
    m_tueren.einstellungen->setValue(QStringLiteral("Sprache"), sprache);
    m_tueren.einstellungen->sync();
    Q_EMIT spracheGewaehlt(sprache);
}
