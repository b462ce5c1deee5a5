#include "Tabellenaustausch.h"

#include "AppController.h"
#include "Archivdatei.h"
#include "Druckname.h"
#include "Eigenuebernahme.h"
#include "Einlesefenster.h"
#include "Einstellungen.h"
#include "Tabellenkopie.h"
#include "Zeichenkettentabelle.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <utility>

namespace {

const QString gemerkterOrdner = QStringLiteral("Tabellen/Ordner");

// What the notices are about.
const QString eingelesen = QStringLiteral("eingelesen");
const QString ausgegeben = QStringLiteral("ausgegeben");
const QString kopiert = QStringLiteral("kopiert");

/// A notice about what was copied is read and done with.
constexpr int lesezeit = 8000; // milliseconds

/// Where the plan stands among the lists that can go out.
constexpr int planstelle = 3;

QString satz(const char *text)
{
    return localizedString(QString::fromUtf8(text));
}

/// Why a file is no table, for the user.
QString grundFuer(Csv::Lesefehler fehler)
{
    switch (fehler) {
    case Csv::Lesefehler::Leer:
        return satz(QT_TRANSLATE_NOOP("Mahlberg", "Sie ist leer."));
    case Csv::Lesefehler::ZuGross:
        return satz(QT_TRANSLATE_NOOP("Mahlberg", "Sie ist größer als 50 MB."));
    case Csv::Lesefehler::KeinText:
        return satz(QT_TRANSLATE_NOOP(
            "Mahlberg", "Sie ist kein Text. Tabellenprogramme sichern eine Tabelle als CSV."));
    case Csv::Lesefehler::ZuVieleZeilen: // told in the window, beside what can be seen there
    case Csv::Lesefehler::Keiner:
        break;
    }
    return {};
}

QSet<QString> menge(const QStringList &namen)
{
    return {namen.begin(), namen.end()};
}

} // namespace

Tabellenaustausch::Tabellenaustausch(AppController &controller, Tueren tueren)
    : m_controller(controller)
    , m_tueren(std::move(tueren))
{
    connect(&controller, &AppController::einlesenGewuenscht, this,
            &Tabellenaustausch::frageNachQuelle);
    connect(&controller, &AppController::ausgebenGewuenscht, this,
            [this] { frageNachListe(m_controller.Hauptfenster); });
    connect(&controller, &AppController::tabelleKopierenGewuenscht, this,
            &Tabellenaustausch::kopiere);
    connect(&controller, &AppController::planBereit, this, &Tabellenaustausch::bereitePlan);
}

/// The plan's window has the same two entries for its own lists.
void Tabellenaustausch::bereitePlan()
{
    Planmodul &plan = *m_controller.planmodul;
    QMainWindow *fenster = plan.window();
    auto *sichern =
        new QAction(satz(QT_TRANSLATE_NOOP("Mahlberg", "Als &Tabelle sichern …")), fenster);
    sichern->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+S")));
    plan.menueAblage->insertAction(plan.aktionDrucken, sichern);
    connect(sichern, &QAction::triggered, this, [this, fenster] { frageNachListe(fenster); });
    auto *kopieren =
        new QAction(satz(QT_TRANSLATE_NOOP("Mahlberg", "Als &Tabelle kopieren")), fenster);
    kopieren->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+C")));
    plan.menueBearbeiten->addSeparator();
    plan.menueBearbeiten->addAction(kopieren);
    connect(kopieren, &QAction::triggered, this, &Tabellenaustausch::kopierePlan);
}

Hinweisstreifen &Tabellenaustausch::streifenVon(const QWidget *fenster) const
{
    return fenster == m_controller.Hauptfenster ? *m_controller.hinweise
                                                : *m_controller.planmodul->hinweise;
}

/// Where the user's last table lay; the documents before the first.
QString Tabellenaustausch::ordner() const
{
    const QString gemerkt = m_tueren.einstellungen->value(gemerkterOrdner).toString();
    return !gemerkt.isEmpty() && QFileInfo(gemerkt).isDir() ? gemerkt : dokumentenordner();
}

void Tabellenaustausch::merkeOrdner(const QString &path)
{
    m_tueren.einstellungen->setValue(gemerkterOrdner, QFileInfo(path).absolutePath());
}

void Tabellenaustausch::frageNachQuelle()
{
    if (!m_tueren.waehleDatei) {
        return;
    }
    m_tueren.waehleDatei(m_controller.Hauptfenster,
                         {.titel = satz(QT_TRANSLATE_NOOP("Mahlberg", "Lebensmittel einlesen")),
                          .vorschlag = QDir(ordner()).filePath(QStringLiteral("x")),
                          .arten = satz(QT_TRANSLATE_NOOP(
                              "Mahlberg", "Tabellen (*.csv *.tsv *.txt);;Alle Dateien (*)"))},
                         [this](const QString &path) { liesDatei(path); });
}

void Tabellenaustausch::liesDatei(const QString &path)
{
    QFile datei(path);
    if (datei.size() > Csv::groessteDatei) {
        meldeUnlesbares(path, grundFuer(Csv::Lesefehler::ZuGross));
        return;
    }
    if (!datei.open(QIODevice::ReadOnly)) {
        meldeUnlesbares(path, datei.errorString());
        return;
    }
    const Csv::Rohtext text = Csv::entschluesseln(datei.readAll());
    if (text.fehler != Csv::Lesefehler::Keiner) {
        meldeUnlesbares(path, grundFuer(text.fehler));
        return;
    }
    merkeOrdner(path);
    zeigeEinlesung(path, text);
}

void Tabellenaustausch::meldeUnlesbares(const QString &path, const QString &grund)
{
    m_controller.hinweise->zeige(
        {.kennung = eingelesen,
         .text = satz(QT_TRANSLATE_NOOP("Mahlberg", "„%1“ lässt sich nicht einlesen. %2"))
                     .arg(kurzerName(QFileInfo(path).fileName()), grund)});
}

void Tabellenaustausch::zeigeEinlesung(const QString &path, const Csv::Rohtext &text)
{
    m_controller.hinweise->nimmZurueck(eingelesen);
    auto *fenster =
        new Einlesefenster({.datei = QFileInfo(path).fileName(),
                            .text = text,
                            .eigene = {m_controller.KundenDictionary, m_controller.KundenArray},
                            .eingebaute = menge(m_controller.Array)},
                           m_controller.Hauptfenster);
    fenster->setAttribute(Qt::WA_DeleteOnClose);
    connect(fenster, &Einlesefenster::uebernommen, this, &Tabellenaustausch::uebernimm);
    fenster->open();
}

/// One step: all foods and the file at once.
void Tabellenaustausch::uebernimm(const Uebernahme &uebernahme)
{
    uebernimmInEigene(m_controller, uebernahme);
    const qsizetype anzahl = uebernahme.anzahl();
    m_controller.hinweise->zeige(
        {.kennung = AppController::hinweisGesichert,
         .text = anzahl == 1
                     ? satz(QT_TRANSLATE_NOOP("Mahlberg", "1 Lebensmittel ist übernommen."))
                     : satz(QT_TRANSLATE_NOOP("Mahlberg", "%1 Lebensmittel sind übernommen."))
                           .arg(anzahl),
         .knopf = satz(QT_TRANSLATE_NOOP("Mahlberg", "Rückgängig")),
         .aktion = [this] {
             Q_EMIT m_controller.zuruecknehmenGewuenscht();
         }});
}

const Datenmodul *Tabellenaustausch::lebensmittel(const QString &name) const
{
    for (const auto *verzeichnis : {&m_controller.Dictionary, &m_controller.KundenDictionary}) {
        const auto gefunden = verzeichnis->constFind(name);
        if (gefunden != verzeichnis->constEnd()) {
            return &*gefunden;
        }
    }
    return nullptr;
}

QList<Datenmodul> Tabellenaustausch::eigene() const
{
    QList<Datenmodul> alle;
    for (const QString &name : std::as_const(m_controller.KundenArray)) {
        alle << m_controller.KundenDictionary.value(name);
    }
    return alle;
}

QList<Datenmodul> Tabellenaustausch::eingebaute() const
{
    QList<Datenmodul> alle;
    for (const QString &name : std::as_const(m_controller.Array)) {
        alle << m_controller.Dictionary.value(name);
    }
    return alle;
}

/// A result may be an own food that was deleted since.
QList<Datenmodul> Tabellenaustausch::gefundene() const
{
    QList<Datenmodul> alle;
    for (const QString &name : std::as_const(m_controller.suchArray2)) {
        if (const Datenmodul *eines = lebensmittel(name)) {
            alle << *eines;
        }
    }
    return alle;
}

/// The plan as it is, or as it would be opened.
Planliste Tabellenaustausch::plan() const
{
    if (m_controller.planmodul != nullptr) {
        return *m_controller.planmodul;
    }
    Planliste zeilen;
    zeilen.laden(
        Archivdatei::lesen(m_tueren.datenordner.pathForDataFile(QStringLiteral("plandaten")))
            .archiv.verzeichnis);
    return zeilen;
}

Csv::Tabelle Tabellenaustausch::tabelleDesPlans() const
{
    const Planliste zeilen = plan();
    QList<Plantabellenzeile> posten;
    for (qsizetype i = 0; i < zeilen.PlanArray.size(); ++i) {
        posten << Plantabellenzeile{zeilen.PlanArray[i], zeilen.mengenarray[i],
                                    lebensmittel(zeilen.PlanArray[i])};
    }
    return plantabelle(posten);
}

QList<Ausgabeliste> Tabellenaustausch::listen() const
{
    const auto foods = [this](const char *titel,
                              QList<Datenmodul> (Tabellenaustausch::*liste)() const) {
        return Ausgabeliste{.titel = QString::fromUtf8(titel),
                            .anzahl = static_cast<int>((this->*liste)().size()),
                            .tabelle = [this, liste] {
                                return lebensmitteltabelle((this->*liste)());
                            }};
    };
    return {foods(QT_TRANSLATE_NOOP("Mahlberg", "Eigene Lebensmittel"), &Tabellenaustausch::eigene),
            foods(QT_TRANSLATE_NOOP("Mahlberg", "Eingebaute Lebensmittel"),
                  &Tabellenaustausch::eingebaute),
            foods(QT_TRANSLATE_NOOP("Mahlberg", "Suchergebnis"), &Tabellenaustausch::gefundene),
            {.titel = QString::fromUtf8(QT_TRANSLATE_NOOP("Mahlberg", "Mahlzeitenplan")),
             .anzahl = static_cast<int>(plan().PlanArray.size()),
             .tabelle = [this] {
                 return tabelleDesPlans();
             }}};
}

void Tabellenaustausch::frageNachListe(QWidget *fenster)
{
    if (!m_tueren.waehleDatei) {
        return;
    }
    auto *frage = new Ausgabefenster(listen(), *m_tueren.einstellungen, fenster);
    frage->setAttribute(Qt::WA_DeleteOnClose);
    connect(frage, &Ausgabefenster::gewaehlt, this,
            [this, fenster](const Ausgabeliste &liste, const Csv::Form &form) {
                frageNachZiel(fenster, liste, form);
            });
    if (fenster != m_controller.Hauptfenster) { // who asks there means the plan
        frage->waehleListe(planstelle);
    }
    frage->open();
}

void Tabellenaustausch::frageNachZiel(QWidget *fenster, const Ausgabeliste &liste,
                                      const Csv::Form &form)
{
    m_tueren.waehleDatei(
        fenster,
        {.titel = satz(QT_TRANSLATE_NOOP("Mahlberg", "Als Tabelle sichern")),
         .vorschlag =
             QDir(ordner()).filePath(localizedString(liste.titel) + QStringLiteral(".csv")),
         .arten = satz(QT_TRANSLATE_NOOP("Mahlberg", "Tabellen (*.csv);;Alle Dateien (*)")),
         .endung = QStringLiteral("csv"),
         .zweck = Dateifrage::Zweck::Schreiben},
        [this, fenster, liste, form](const QString &path) {
            schreibe(fenster, path, Csv::schreiben(liste.tabelle(), form));
        });
}

/// The file may be read by whom the folder's other files may be: it is made to be handed on.
void Tabellenaustausch::schreibe(QWidget *fenster, const QString &path, const QByteArray &bytes)
{
    QSaveFile datei(path);
    // Unbuffered: else a disk that becomes full on the way goes unnoticed.
    const bool geschrieben = datei.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                             datei.write(bytes) == bytes.size() && datei.commit();
    if (geschrieben) {
        merkeOrdner(path);
    }
    const QString worte =
        geschrieben
            ? satz(QT_TRANSLATE_NOOP("Mahlberg", "Die Tabelle ist gesichert: %1"))
                  .arg(QDir::toNativeSeparators(path))
            : satz(QT_TRANSLATE_NOOP("Mahlberg", "Die Tabelle ist nicht gesichert: %1 (%2)"))
                  .arg(QDir::toNativeSeparators(path), datei.errorString());
    streifenVon(fenster).zeige({.kennung = ausgegeben, .text = worte, .warnung = !geschrieben});
}

/// The list of the column in which the keyboard is, with all that is known of its foods.
Csv::Tabelle Tabellenaustausch::listeDerSpalte() const
{
    const Tabellenansicht &tabelle = *m_controller.Tabelle;
    const QString spalte = tabelle.modell()->kennung(tabelle.currentIndex().column());
    return lebensmitteltabelle(spalte == QLatin1String("eigen")  ? eigene()
                               : spalte == QLatin1String("such") ? gefundene()
                                                                 : eingebaute());
}

void Tabellenaustausch::kopiere()
{
    lege(listeDerSpalte(), *m_controller.hinweise);
}

void Tabellenaustausch::kopierePlan()
{
    const Planmodul &plan = *m_controller.planmodul;
    const Tabellenansicht &liste =
        plan.SummenTabelle->hasFocus() ? *plan.SummenTabelle : *plan.PlanTabelle;
    lege(Tabellenkopie::ausModell(*liste.model()), *plan.hinweise);
}

void Tabellenaustausch::lege(const Csv::Tabelle &tabelle, Hinweisstreifen &streifen)
{
    const qsizetype zeilen = tabelle.zeilen.size();
    if (zeilen > 0) {
        Tabellenkopie::kopiere(tabelle);
    }
    streifen.zeige(
        {.kennung = kopiert,
         .text =
             zeilen == 0
                 ? satz(QT_TRANSLATE_NOOP("Mahlberg", "In dieser Liste steht nichts zum Kopieren."))
             : zeilen == 1 ? satz(QT_TRANSLATE_NOOP("Mahlberg", "Als Tabelle kopiert: 1 Zeile."))
                           : satz(QT_TRANSLATE_NOOP("Mahlberg", "Als Tabelle kopiert: %1 Zeilen."))
                                 .arg(zeilen),
         .dauer = lesezeit});
}
