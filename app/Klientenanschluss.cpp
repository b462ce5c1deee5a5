#include "Klientenanschluss.h"

#include "Angabenworte.h"
#include "AnthroController.h"
#include "AppController.h"
#include "Dateidatenbank.h"
#include "Druckkopf.h"
#include "Einstellungen.h"
#include "Feldworte.h"
#include "Fensterplatz.h"
#include "Klientenstand.h"
#include "Klientenstandfenster.h"
#include "Planzeilen.h"
#include "Serverdatenbank.h"
#include "Speicherwahl.h"
#include "Zeichenkettentabelle.h"

#include <QCryptographicHash>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QLocale>
#include <QMenuBar>

namespace {

constexpr auto klientendatei = "MahlbergKlienten.sqlite";
const QString vormerkname = QStringLiteral("MahlbergVorgemerkt%1.json");

const QString hinweisStand = QStringLiteral("klientenstand");
const QString hinweisVorgemerkt = QStringLiteral("klientenvorgemerkt");
const QString hinweisBeiseite = QStringLiteral("vorgemerktbeiseite");

/// The menu of a window in which other windows are opened: the last but the one for help.
QMenu *fenstermenue(const QMainWindow &fenster)
{
    const QList<QAction *> menues = fenster.menuBar()->actions();
    return menues.size() < 2 ? nullptr : menues[menues.size() - 2]->menu();
}

} // namespace

Tueren Klientenanschluss::mitKopfzeile(Tueren tueren, const Kopfzeile &kopfzeile)
{
    if (tueren.drucke) {
        tueren.drucke = [drucke = tueren.drucke, kopfzeile](QWidget *fenster,
                                                            const Druckauftrag &auftrag) {
            drucke(fenster, mitKopf(auftrag, *kopfzeile));
        };
    }
    if (tueren.alsPdf) {
        tueren.alsPdf = [alsPdf = tueren.alsPdf, kopfzeile](QWidget *fenster,
                                                            const Druckauftrag &auftrag,
                                                            const std::function<void()> &danach) {
            alsPdf(fenster, mitKopf(auftrag, *kopfzeile), danach);
        };
    }
    return tueren;
}

Klientenanschluss::Klientenanschluss(AppController &hauptfenster, AnthroController &rechner,
                                     Tueren tueren, Kopfzeile kopfzeile)
    : m_hauptfenster(hauptfenster)
    , m_tueren(std::move(tueren))
    , m_kopfzeile(std::move(kopfzeile))
    , kartei([this] { return neuerOrt(); })
    , tisch(kartei, {.rechner = rechner,
                     .plan =
                         [this](bool oeffnen) {
                             if (oeffnen) {
                                 m_hauptfenster.Planmoduloeffnen();
                             }
                             return m_hauptfenster.planmodul;
                         },
                     .sage = [this](const Hinweis &hinweis) { sage(hinweis); },
                     .einstellungen = *m_tueren.einstellungen})
{
}

/// In the window that the user is looking at.
void Klientenanschluss::sage(const Hinweis &hinweis)
{
    const bool dort = m_fenster != nullptr && m_fenster->isActiveWindow();
    (dort ? *m_fenster->hinweise : *m_hauptfenster.hinweise).zeige(hinweis);
}

QString Klientenanschluss::datei() const
{
    const QString eigene = m_tueren.datenordner.datei(QStringLiteral("customdaten"));
    return QFileInfo(eigene).dir().filePath(QLatin1String(klientendatei));
}

/// What waits for one store is nothing for another one, so each has a file of its own for it.
Kartei::Ort Klientenanschluss::neuerOrt() const
{
    const QString server = klientenserver(*m_tueren.einstellungen);
    const Serverangabe angabe = leseServerangabe(server);
    const QDir ordner = QFileInfo(datei()).dir();
    if (server.isEmpty() || angabe.fehler) {
        return {std::make_unique<Klientenspeicher>(std::make_unique<Dateidatenbank>(datei())),
                ordner.filePath(vormerkname.arg(QString()))};
    }
    const QByteArray merkmal =
        QCryptographicHash::hash(server.toUtf8(), QCryptographicHash::Sha256).toHex().left(8);
    return {std::make_unique<Klientenspeicher>(std::make_unique<Serverdatenbank>(angabe)),
            ordner.filePath(vormerkname.arg(u'-' + QString::fromLatin1(merkmal)))};
}

void Klientenanschluss::beginne()
{
    baueMenue();
    m_hauptfenster.Hauptfenster->installEventFilter(this);
    connect(&tisch, &Tischklient::gewechselt, this, &Klientenanschluss::betitle);
    connect(&m_hauptfenster, &AppController::planBereit, this, &Klientenanschluss::bereitePlan);
    if (m_hauptfenster.planmodul != nullptr) {
        bereitePlan();
    }
    nimmVorgemerktesAuf();
}

/// What waited when the program last ended is tried again without anybody asking for it. The
/// window is there for it, since another desk may have changed the same.
void Klientenanschluss::nimmVorgemerktesAuf()
{
    const Vormerkdatei &vorgemerktes = kartei.vormerkdatei();
    if (vorgemerktes.istGesperrt() || !vorgemerktes.beiseite().isNull()) {
        m_hauptfenster.hinweise->zeige(
            {.kennung = hinweisBeiseite,
             .text = vorgemerktes.beiseite().isNull()
                         ? localizedString(QStringLiteral(
                               "Was bei den Klienten noch zu sichern war, ist nicht zu lesen."))
                         : localizedString(
                               QStringLiteral("Was bei den Klienten noch zu sichern war, ist nicht "
                                              "ganz zu lesen; aufgehoben ist es als „%1“."))
                               .arg(QFileInfo(vorgemerktes.beiseite()).fileName()),
             .warnung = true});
    }
    if (kartei.offene() > 0) {
        fenster();
        connect(&kartei, &Kartei::akteGeaendert, this, &Klientenanschluss::sageVorgemerktes);
        sageVorgemerktes();
    }
}

void Klientenanschluss::sageVorgemerktes()
{
    if (kartei.offene() == 0) {
        m_hauptfenster.hinweise->nimmZurueck(hinweisVorgemerkt);
        disconnect(&kartei, &Kartei::akteGeaendert, this, &Klientenanschluss::sageVorgemerktes);
        return;
    }
    m_hauptfenster.hinweise->zeige(
        {.kennung = hinweisVorgemerkt,
         .text = localizedString(
             QStringLiteral("Bei den Klienten ist vom letzten Mal noch etwas vorgemerkt; es wird "
                            "gesichert, sobald es geht."))});
}

void Klientenanschluss::baueMenue()
{
    QMenu *menue = fenstermenue(*m_hauptfenster.Hauptfenster);
    QAction *klienten = menue->addAction(localizedString(QStringLiteral("&Klienten")));
    klienten->setObjectName(QStringLiteral("aktionKlienten"));
    klienten->setShortcut(QKeySequence(QStringLiteral("Ctrl+K")));
    connect(klienten, &QAction::triggered, this, [this] { fenster().zeige(); });
}

void Klientenanschluss::bereitePlan()
{
    const Planmodul &plan = *m_hauptfenster.planmodul;
    auto *ablegen = new QAction(localizedString(QStringLiteral("Plan beim Klienten ab&legen")),
                                plan.menueAblage);
    ablegen->setObjectName(QStringLiteral("aktionAblegen"));
    ablegen->setShortcut(QKeySequence::Save);
    connect(ablegen, &QAction::triggered, this, [this] {
        if (tisch.akte()) {
            tisch.legePlanAb();
        } else {
            fenster().zeige();
        }
    });
    auto *klienten = new QAction(localizedString(QStringLiteral("&Klienten")), plan.menueAblage);
    klienten->setShortcut(QKeySequence(QStringLiteral("Ctrl+K")));
    connect(klienten, &QAction::triggered, this, [this] { fenster().zeige(); });
    plan.menueAblage->insertActions(plan.aktionSchliessen, {ablegen, klienten});
    plan.menueAblage->insertSeparator(plan.aktionSchliessen);
    betitle();
}

/// The title bars say who sits at the desk, and so does what is printed.
void Klientenanschluss::betitle()
{
    const QString tag = tagesworte(QDate::currentDate());
    *m_kopfzeile =
        tisch.akte() ? tisch.akte()->person.name + QStringLiteral(", ") + tag : QString();
    const auto setze = [this](QWidget &ziel, const QString &name) {
        ziel.setWindowTitle(m_kopfzeile->isEmpty() ? name
                                                   : *m_kopfzeile + QStringLiteral(" – ") + name);
    };
    setze(*m_hauptfenster.Hauptfenster, QStringLiteral("Mahlberg"));
    if (m_hauptfenster.planmodul != nullptr) {
        setze(*m_hauptfenster.planmodul->window(),
              localizedString(QStringLiteral("Mahlzeitenplan")));
    }
}

Klientenfenstertueren Klientenanschluss::fenstertueren()
{
    return {.melde = m_tueren.melde,
            .drucke = m_tueren.drucke,
            .alsPdf = m_tueren.alsPdf,
            .waehleDatei = m_tueren.waehleDatei,
            .lebensmittel =
                [this](const QString &schluessel) {
                    return lebensmittelVon(schluessel, m_hauptfenster.Dictionary,
                                           m_hauptfenster.KundenDictionary);
                },
            .datei = stehtAufServer() ? QString() : datei()};
}

Klientenfenster &Klientenanschluss::fenster()
{
    if (m_fenster == nullptr) {
        m_fenster = std::make_unique<Klientenfenster>(kartei, tisch, fenstertueren());
        connect(m_fenster.get(), &Klientenfenster::fruehereStaendeGewuenscht, this,
                &Klientenanschluss::zeigeFruehereStaende);
        connect(m_fenster.get(), &Klientenfenster::umzugGewuenscht, this,
                &Klientenanschluss::beginneUmzug);
        connect(m_fenster.get(), &Klientenfenster::hilfeGewuenscht, this,
                [this] { Q_EMIT hilfeGewuenscht(m_fenster.get()); });
        Fensterplatz::lasseRollen(*m_fenster->anordnung1, *m_fenster->teiler);
        m_platz = std::make_unique<Platzgedaechtnis>(*m_fenster, *m_tueren.einstellungen,
                                                     QStringLiteral("Klientenfenster"),
                                                     Platzgedaechtnis::Umfang::Platz, nullptr);
        m_platz->stelleWiederHer();
    }
    return *m_fenster;
}

void Klientenanschluss::zeigeFruehereStaende()
{
    if (stehtAufServer()) {
        m_fenster->hinweise->zeige(
            {.kennung = hinweisStand,
             .text = localizedString(QStringLiteral("Die Klienten stehen auf einem Server; seine "
                                                    "früheren Stände hat, wer ihn betreut."))});
        return;
    }
    auto *staende = new Klientenstandfenster(datei(), m_fenster.get());
    staende->setAttribute(Qt::WA_DeleteOnClose);
    connect(staende, &Klientenstandfenster::gewuenscht, this, &Klientenanschluss::holeZurueck);
    staende->open();
}

/// Nobody sits at the desk afterwards: in the earlier state they may not be there.
void Klientenanschluss::holeZurueck(const QString &kopie)
{
    tisch.verlasse();
    kartei.speicher().schliesse();
    QString beiseite;
    const Ausgang ausgang = holeStand(datei(), kopie, QDateTime::currentDateTime(), beiseite);
    kartei.beginneNeu();
    m_fenster->frischeAuf();
    m_fenster->hinweise->zeige(
        {.kennung = hinweisStand,
         .text = !ausgang
                     ? localizedString(QStringLiteral("Der Stand ließ sich nicht zurückholen: %1"))
                           .arg(inWorten(ausgang))
                 : beiseite.isNull()
                     ? localizedString(QStringLiteral("Der frühere Stand ist wieder da."))
                     : localizedString(QStringLiteral("Der frühere Stand ist wieder da. Was vorher "
                                                      "da war, ist aufgehoben als „%1“."))
                           .arg(QFileInfo(beiseite).fileName()),
         .warnung = !ausgang});
}

void Klientenanschluss::folgeSprache()
{
    if (m_fenster != nullptr) {
        m_fenster->folgeSprache();
    }
    betitle();
}

bool Klientenanschluss::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Close && watched == m_hauptfenster.Hauptfenster && !darfEnden()) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

/// What waits to be written is not with the other desks yet; where it could not even be kept here,
/// it would be lost with the program. The clients' window asks about what it can't save before the
/// main one goes: it would be left alone otherwise.
bool Klientenanschluss::darfEnden()
{
    const bool offen = m_fenster != nullptr && m_fenster->isVisible();
    if (offen && !m_fenster->close()) {
        return false;
    }
    tisch.verlasse();
    if (kartei.vorgemerkt() > 0) {
        kartei.versucheNochmals();
    }
    if (kartei.offene() == 0) {
        return true;
    }
    const QString folge =
        kartei.istFestgehalten()
            ? localizedString(QStringLiteral("%1 Es bleibt an diesem Platz vorgemerkt und wird "
                                             "beim nächsten Start gesichert."))
            : localizedString(QStringLiteral("%1 Was davon nicht gesichert ist, geht beim "
                                             "Beenden verloren."));
    const bool endet =
        m_tueren.melde(m_hauptfenster.Hauptfenster,
                       {.text = localizedString(QStringLiteral("Noch nicht alles ist gesichert.")),
                        .erklaerung = folge.arg(inWorten(kartei.hindernis())).trimmed(),
                        .knoepfe = {localizedString(QStringLiteral("Zurück")),
                                    localizedString(QStringLiteral("Trotzdem beenden"))},
                        .gefahr = !kartei.istFestgehalten()}) == 1;
    if (!endet && offen) {
        m_fenster->show();
    }
    return endet;
}
