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

/// Where the program keeps what it is told.
struct Heim
{
    std::unique_ptr<QTemporaryDir> ordner; ///< null: the user's own home
    std::unique_ptr<Einstellungen> einstellungen;
};

/// The tour leaves the user's own foods and settings alone: it has a home of its own.
Heim heimFuer(const Auftrag &auftrag)
{
    if (auftrag.rundgang.isNull()) {
        return {nullptr, std::make_unique<Einstellungen>()};
    }
    auto ordner = std::make_unique<QTemporaryDir>();
    auto einstellungen = std::make_unique<Einstellungen>(
        ordner->filePath(QStringLiteral("Mahlberg.conf")), QSettings::IniFormat);
    return {std::move(ordner), std::move(einstellungen)};
}

/// The doors that a tour has as well. On it nobody is there to press a button or to choose a file.
Tueren tuerenFuerAlle(Einstellungen &einstellungen, const Datenordner &datenordner,
                      Sprache &sprache)
{
    return {
        .eingebauteTabelle = QStringLiteral(":/DatabaseIII.daten"),
        .datenordner = datenordner,
        .melde = {},
        .protokolliere = [](const QString &zeile) { qCDebug(protokoll).noquote() << zeile; },
        .einstellungen = &einstellungen,
        .wertungstabelle = QStringLiteral(":/Lebensmittel.csv"),
        .sprich = [&sprache](const QString &kuerzel) { sprache.sprich(kuerzel); },
    };
}

/// Goes through the windows and leaves their pictures; messages go into the summary.
int geheRundgang(const QString &ordner, Tueren tueren)
{
    QStringList ungelesen;
    tueren.melde = [&ungelesen](QWidget *, const Meldung &meldung) {
        ungelesen << (QStringList{meldung.text, meldung.erklaerung} + meldung.knoepfe)
                         .join(QStringLiteral(" | "));
        return 0;
    };
    Oberflaeche oberflaeche(tueren);
    oberflaeche.awakeFromNib();
    return Rundgang(oberflaeche, QDir(ordner), &ungelesen).gehen() ? 0 : 1;
}

/// Whether the program is at work on the same files already, and this one is to leave it at that:
/// it has taken over the files that were to be opened, or the user wants it so.
bool ueberlaesstEsDemAnderen(const Startsperre &sperre, const QString &dateiordner,
                             const QStringList &dateien)
{
    if (!sperre.besetzt()) {
        return false;
    }
    return (!dateien.isEmpty() && Postfach::gibAb(dateiordner, dateien, wartezeit)) ||
           !trotzdemOeffnen();
}

/// Shows the windows until the main one is closed.
int arbeite(const QStringList &dateien, Tueren tueren, Schreibtisch &schreibtisch)
{
    const QString dateiordner =
        QFileInfo(tueren.datenordner.pathForDataFile(QStringLiteral("customdaten"))).path();
    const Startsperre sperre(dateiordner);
    if (ueberlaesstEsDemAnderen(sperre, dateiordner, dateien)) {
        return 0;
    }
    tueren.melde = zeigeMeldung;
    tueren.waehleDatei = frageNachDatei;
    tueren.alsPdf = systempdftuer(*tueren.einstellungen, zeigeMeldung, frageNachDatei);
    tueren.drucke = systemdrucktuer(*tueren.einstellungen, zeigeMeldung, tueren.alsPdf);
    Oberflaeche oberflaeche(tueren);
    oberflaeche.awakeFromNib();
    schreibtisch.frage(Schreibtisch::sitzungsbus());
    QObject::connect(&oberflaeche.hauptfenster, &AppController::beendet, qApp, &QApplication::quit);
    oberflaeche.hauptfenster.Hauptfenster->show();
    std::optional<Postfach> postfach;
    if (!sperre.besetzt()) { // else it is the other one's
        postfach.emplace(dateiordner);
        QObject::connect(&*postfach, &Postfach::eingetroffen, qApp,
                         [&oberflaeche](const QStringList &neue) { oeffne(oberflaeche, neue); });
    }
    QMetaObject::invokeMethod(
        &oberflaeche.empfang, [&oberflaeche, &dateien] { oberflaeche.empfang.oeffne(dateien); },
        Qt::QueuedConnection);
    return QApplication::exec();
}

int zeigeFenster(int &argc, char **argv, const Auftrag &auftrag, const Datenordner &eigenerOrdner)
{
    QApplication::setStyle(new Fokusstil);
    const QApplication app(argc, argv);
    // Desktops find the program's icon and its entry in their menus by this name.
    QApplication::setDesktopFileName(QStringLiteral("org.mahlberg.Mahlberg"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/bilder/Mahlberg.svg")));
    const Fensterplatz::Schirmwaechter schirmwaechter;

    const Heim heim = heimFuer(auftrag);
    Sprache sprache(auftrag.sprache.isEmpty()
                        ? heim.einstellungen->value(QStringLiteral("Sprache")).toString()
                        : auftrag.sprache);
    zeigeErscheinungsbild(gemerktesErscheinungsbild(*heim.einstellungen));
    Schreibtisch schreibtisch;
    folgeSchreibtisch(schreibtisch);

    const Datenordner ordner = heim.ordner ? Datenordner(heim.ordner->path()) : eigenerOrdner;
    const Tueren tueren = tuerenFuerAlle(*heim.einstellungen, ordner, sprache);
    return heim.ordner ? geheRundgang(auftrag.rundgang, tueren)
                       : arbeite(auftrag.dateien, tueren, schreibtisch);
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
