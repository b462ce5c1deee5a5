#include "Einstellungen.h"
#include "Erscheinungsbild.h"
#include "Fensterplatz.h"
#include "Fokusstil.h"
#include "Oberflaeche.h"
#include "Pdftuer.h"
#include "Rundgang.h"
#include "Schreibtisch.h"
#include "Sprache.h"
#include "Startsperre.h"
#include "Zeichenkettentabelle.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <memory>

namespace {

/// Lines for those who look after the program, off until QT_LOGGING_RULES turns them on
/// ("mahlberg.debug=true"): a search may write one for every food.
Q_LOGGING_CATEGORY(protokoll, "mahlberg", QtInfoMsg)

/// What was asked for on the command line.
struct Auftrag
{
    QString rundgang; ///< folder for the pictures of the tour; null: an ordinary start
    QString sprache;  ///< "de" or "en"; null: as kept in the settings or as the desktop has it
};

Auftrag leseAuftrag(const QApplication &app)
{
    QCommandLineParser leser;
    leser.addHelpOption();
    leser.addVersionOption();
    const QCommandLineOption rundgang(
        QStringLiteral("tour"), QStringLiteral("Take the tour, leave its pictures in <folder>."),
        QStringLiteral("folder"));
    const QCommandLineOption sprache(QStringLiteral("language"),
                                     QStringLiteral("Language of the windows: de or en."),
                                     QStringLiteral("language"));
    leser.addOptions({rundgang, sprache});
    leser.process(app);
    return {leser.value(rundgang), leser.value(sprache)};
}

/// Asks whether to go on although the program is already at work on the same files.
bool trotzdemOeffnen()
{
    return zeigeMeldung(nullptr,
                        {.text = localizedString(QStringLiteral("Mahlberg ist schon geöffnet.")),
                         .erklaerung = localizedString(
                             QStringLiteral("Zweimal zugleich geöffnet, überschreibt das eine "
                                            "die Lebensmittel und den Plan des anderen.")),
                         .knoepfe = {localizedString(QStringLiteral("Beenden")),
                                     localizedString(QStringLiteral("Trotzdem öffnen"))},
                         .gefahr = true}) == 1;
}

} // namespace

int main(int argc, char **argv)
{
    // Settings and file dialogs look for the home folder by themselves: it shall be the same one.
    qputenv("HOME", QFile::encodeName(heimatordner()));
    QApplication::setStyle(new Fokusstil);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Mahlberg"));
    QApplication::setOrganizationName(QStringLiteral("Mahlberg"));
    QApplication::setApplicationVersion(QStringLiteral(MAHLBERG_VERSION));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/bilder/Mahlberg.svg")));
    const Auftrag auftrag = leseAuftrag(app);
    const Fensterplatz::Schirmwaechter schirmwaechter;

    // The tour leaves the user's own foods and settings alone: it has a home of its own.
    std::unique_ptr<QTemporaryDir> eigenesHeim;
    std::unique_ptr<Einstellungen> einstellungen;
    if (auftrag.rundgang.isNull()) {
        einstellungen = std::make_unique<Einstellungen>();
    } else {
        eigenesHeim = std::make_unique<QTemporaryDir>();
        einstellungen = std::make_unique<Einstellungen>(
            eigenesHeim->filePath(QStringLiteral("Mahlberg.conf")), QSettings::IniFormat);
    }
    Sprache sprache(auftrag.sprache.isEmpty()
                        ? einstellungen->value(QStringLiteral("Sprache")).toString()
                        : auftrag.sprache);
    zeigeErscheinungsbild(gemerktesErscheinungsbild(*einstellungen));
    Schreibtisch schreibtisch;
    folgeSchreibtisch(schreibtisch);

    const Datenordner datenordner = eigenesHeim ? Datenordner(eigenesHeim->path()) : Datenordner();
    Startsperre sperre(
        QFileInfo(datenordner.pathForDataFile(QStringLiteral("customdaten"))).path());
    if (sperre.besetzt() && !trotzdemOeffnen()) {
        return 0;
    }

    // On the tour nobody is there to press a button: messages go into its summary.
    QStringList ungelesen;
    const Meldungstuer niemand = [&ungelesen](QWidget *, const Meldung &meldung) {
        ungelesen << (QStringList{meldung.text, meldung.erklaerung} + meldung.knoepfe)
                         .join(QStringLiteral(" | "));
        return 0;
    };

    const Pdftuer alsPdf = systempdftuer(*einstellungen, zeigeMeldung, frageNachDateien);
    Oberflaeche oberflaeche({
        .eingebauteTabelle = QStringLiteral(":/DatabaseIII.daten"),
        .datenordner = datenordner,
        .melde = eigenesHeim ? niemand : Meldungstuer(zeigeMeldung),
        .protokolliere = [](const QString &zeile) { qCDebug(protokoll).noquote() << zeile; },
        .einstellungen = einstellungen.get(),
        .wertungstabelle = QStringLiteral(":/Lebensmittel.csv"),
        .drucke = eigenesHeim ? Drucktuer() : systemdrucktuer(*einstellungen, zeigeMeldung, alsPdf),
        .alsPdf = eigenesHeim ? Pdftuer() : alsPdf,
        .frageNachDateien = eigenesHeim ? Dateituer() : frageNachDateien,
        .dateien = {},
        .sprich = [&sprache](const QString &kuerzel) { sprache.sprich(kuerzel); },
    });
    oberflaeche.awakeFromNib();
    if (!auftrag.rundgang.isNull()) {
        return Rundgang(oberflaeche, QDir(auftrag.rundgang), &ungelesen).gehen() ? 0 : 1;
    }
    schreibtisch.frage(Schreibtisch::sitzungsbus());
    QObject::connect(&oberflaeche.hauptfenster, &AppController::beendet, &app, &QApplication::quit);
    oberflaeche.hauptfenster.Hauptfenster->show();
    return QApplication::exec();
}
