#include "Befehle.h"
#include "Einstellungen.h"
#include "Erscheinungsbild.h"
#include "Fensterplatz.h"
#include "Fokusstil.h"
#include "Oberflaeche.h"
#include "Pdftuer.h"
#include "Postfach.h"
#include "Rundgang.h"
#include "Schreibtisch.h"
#include "Sprache.h"
#include "Startsperre.h"
#include "Zeichenkettentabelle.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <cstdio>
#include <memory>

namespace {

/// Lines for those who look after the program, off until QT_LOGGING_RULES turns them on
/// ("mahlberg.debug=true"): a search may write one for every food.
Q_LOGGING_CATEGORY(protokoll, "mahlberg", QtInfoMsg)

/// How long the program that is at work may take to notice a file, in milliseconds.
constexpr int wartezeit = 5000;

/// Lets files be seen in the window that is there already, whichever is in front.
void oeffne(Oberflaeche &oberflaeche, const QStringList &dateien)
{
    QMainWindow *haupt = oberflaeche.hauptfenster.Hauptfenster;
    haupt->setWindowState(haupt->windowState() & ~Qt::WindowMinimized);
    haupt->raise();
    haupt->activateWindow();
    oberflaeche.empfang.oeffne(dateien);
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

QStringList argumente(int argc, char **argv)
{
    QStringList texte;
    for (int i = 0; i < argc; ++i) {
        texte << QString::fromLocal8Bit(argv[i]);
    }
    return texte;
}

/// Prints an answer. False when what was asked for can't be written.
bool drucke(const Antwort &antwort)
{
    if (!antwort.meldung.isNull()) {
        std::fputs(("mahlberg: " + antwort.meldung.toUtf8() + '\n').constData(), stderr);
    }
    const auto anzahl = static_cast<std::size_t>(antwort.ausgabe.size());
    return std::fwrite(antwort.ausgabe.constData(), 1, anzahl, stdout) == anzahl &&
           std::fflush(stdout) == 0;
}

/// Answers on the terminal. There may be no display, so nothing of windows is begun.
int antworteOhneFenster(int &argc, char **argv, const Aufruf &aufruf)
{
    // What Qt remarks on the locale belongs into no answer; texts are in UTF-8 all the same.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    const QCoreApplication app(argc, argv);
    const QString &gewuenscht = aufruf.auftrag.sprache;
    const Sprache sprache(
        gewuenscht.isNull() ? QSettings().value(QStringLiteral("Sprache")).toString() : gewuenscht);
    const Antwort antwort =
        antworte(aufruf, {.eingebauteTabelle = QStringLiteral(":/DatabaseIII.daten"),
                          .englischeNamen = QStringLiteral(":/uebersetzungen/lebensmittel_en.qm"),
                          .namenswechsel = QStringLiteral(":/Umbenannt.csv")});
    if (drucke(antwort)) {
        return antwort.ausgang;
    }
    drucke({{},
            localizedString(QStringLiteral("Die Ausgabe ließ sich nicht schreiben.")),
            Misslungen});
    return Misslungen;
}

int zeigeFenster(int &argc, char **argv, const Auftrag &auftrag, const Datenordner &eigenerOrdner)
{
    QApplication::setStyle(new Fokusstil);
    QApplication app(argc, argv);
    // Desktops find the program's icon and its entry in their menus by this name.
    QApplication::setDesktopFileName(QStringLiteral("org.mahlberg.Mahlberg"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/bilder/Mahlberg.svg")));
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

    const Datenordner datenordner = eigenesHeim ? Datenordner(eigenesHeim->path()) : eigenerOrdner;
    const QString dateiordner =
        QFileInfo(datenordner.pathForDataFile(QStringLiteral("customdaten"))).path();
    Startsperre sperre(dateiordner);
    const bool uebergeben = sperre.besetzt() && !auftrag.dateien.isEmpty() &&
                            Postfach::gibAb(dateiordner, auftrag.dateien, wartezeit);
    if (uebergeben || (sperre.besetzt() && !trotzdemOeffnen())) {
        return 0;
    }

    // On the tour nobody is there to press a button: messages go into its summary.
    QStringList ungelesen;
    const Meldungstuer niemand = [&ungelesen](QWidget *, const Meldung &meldung) {
        ungelesen << (QStringList{meldung.text, meldung.erklaerung} + meldung.knoepfe)
                         .join(QStringLiteral(" | "));
        return 0;
    };

    const Pdftuer alsPdf = systempdftuer(*einstellungen, zeigeMeldung, frageNachDatei);
    Oberflaeche oberflaeche({
        .eingebauteTabelle = QStringLiteral(":/DatabaseIII.daten"),
        .datenordner = datenordner,
        .melde = eigenesHeim ? niemand : Meldungstuer(zeigeMeldung),
        .protokolliere = [](const QString &zeile) { qCDebug(protokoll).noquote() << zeile; },
        .einstellungen = einstellungen.get(),
        .wertungstabelle = QStringLiteral(":/Lebensmittel.csv"),
        .drucke = eigenesHeim ? Drucktuer() : systemdrucktuer(*einstellungen, zeigeMeldung, alsPdf),
        .alsPdf = eigenesHeim ? Pdftuer() : alsPdf,
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
    std::optional<Postfach> postfach;
    if (!sperre.besetzt()) { // else it is the other one's
        postfach.emplace(dateiordner);
        QObject::connect(
            &*postfach, &Postfach::eingetroffen, &app,
            [&oberflaeche](const QStringList &dateien) { oeffne(oberflaeche, dateien); });
    }
    QMetaObject::invokeMethod(
        &oberflaeche.empfang,
        [&oberflaeche, &auftrag] { oberflaeche.empfang.oeffne(auftrag.dateien); },
        Qt::QueuedConnection);
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    // Settings and file dialogs look for the home folder by themselves: it shall be the same one.
    qputenv("HOME", QFile::encodeName(heimatordner()));
    QCoreApplication::setApplicationName(QStringLiteral("Mahlberg"));
    QCoreApplication::setOrganizationName(QStringLiteral("Mahlberg"));
    QCoreApplication::setApplicationVersion(QStringLiteral(MAHLBERG_VERSION));
    const Aufruf aufruf = leseAufruf(argumente(argc, argv));
    if (aufruf.fehler || aufruf.auftrag.befehl != Befehl::Fenster) {
        return antworteOhneFenster(argc, argv, aufruf);
    }
    const std::optional<Datenordner> datenordner = datenordnerVon(aufruf.auftrag);
    return datenordner ? zeigeFenster(argc, argv, aufruf.auftrag, *datenordner)
                       : antworteOhneFenster(argc, argv, aufruf);
}
